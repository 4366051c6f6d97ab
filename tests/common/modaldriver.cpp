#include "modaldriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTimerEvent>

#include <utility>

namespace vantora::test {
namespace {

constexpr int TICK_MS = 10;
// A step that has not come after this long will not come: close what is open and give up.
constexpr int GIVE_UP_TICKS = 1000;
// A modal widget no step expects counts only once it stays active this long: between one box
// closing and its caller going on, the caller is briefly the active modal widget again.
constexpr int UNEXPECTED_TICKS = 30;

void closeLater(QWidget *widget)
{
    QTimer::singleShot(0, widget, [widget] {
        if (auto *dialog = qobject_cast<QDialog *>(widget))
            dialog->reject();
        else
            widget->close();
    });
}

} // namespace

ModalDriver::ModalDriver()
    : m_timerId(startTimer(TICK_MS))
{ }

ModalDriver::~ModalDriver() = default;

ModalDriver &ModalDriver::then(const char *className, Action act)
{
    m_steps.push_back({className, std::move(act)});
    return *this;
}

void ModalDriver::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timerId)
        return;
    QWidget *modal = QApplication::activeModalWidget();
    if (!modal || modal == m_lastActed) {
        if (!m_steps.empty() && ++m_idleTicks > GIVE_UP_TICKS) {
            m_problems << QStringLiteral("step for %1 never came")
                              .arg(QString::fromLatin1(m_steps.front().className));
            m_steps.clear();
            if (modal)
                closeLater(modal);
        }
        return;
    }
    const QByteArray name = modal->metaObject()->className();
    if (m_steps.empty() || !name.endsWith(m_steps.front().className)) {
        if (modal != m_unexpected) {
            m_unexpected = modal;
            m_unexpectedTicks = 0;
        }
        if (++m_unexpectedTicks < UNEXPECTED_TICKS)
            return;
        m_problems << QStringLiteral("unexpected %1 \"%2\"")
                          .arg(QString::fromLatin1(name), modal->windowTitle());
        m_lastActed = modal;
        m_unexpected = nullptr;
        closeLater(modal);
        return;
    }
    m_idleTicks = 0;
    m_unexpected = nullptr;
    const Step step = m_steps.front();
    m_steps.pop_front();
    m_lastActed = modal;
    step.act(modal);
}

ModalDriver &DriverSession::next()
{
    collect();
    m_driver = std::make_unique<ModalDriver>();
    return *m_driver;
}

QStringList DriverSession::takeProblems()
{
    collect();
    return std::exchange(m_problems, QStringList());
}

void DriverSession::collect()
{
    if (!m_driver)
        return;
    m_problems << m_driver->problems();
    if (!m_driver->finished())
        m_problems << QStringLiteral("a step was left over");
    m_driver.reset();
}

void clickLater(QWidget *button)
{
    QTimer::singleShot(0, button, [button] { static_cast<QAbstractButton *>(button)->click(); });
}

void pressLater(QWidget *dialog, int which)
{
    QAbstractButton *button = nullptr;
    if (auto *box = qobject_cast<QMessageBox *>(dialog))
        button = box->button(QMessageBox::StandardButton(which));
    else if (auto *buttons = dialog->findChild<QDialogButtonBox *>())
        button = buttons->button(QDialogButtonBox::StandardButton(which));
    if (!button)
        qFatal("no standard button %x in %s", which, dialog->metaObject()->className());
    clickLater(button);
}

} // namespace vantora::test
