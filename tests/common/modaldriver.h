// Drives the modal dialogs that a call into the library opens, from inside their exec(): each
// step waits for the next modal widget of its class and acts on it, as a person would.
#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <deque>
#include <functional>
#include <memory>

namespace vantora::test {

class ModalDriver : public QObject
{
public:
    using Action = std::function<void(QWidget *)>;

    ModalDriver();
    ~ModalDriver() override;

    // Adds a step: when a modal widget whose class name ends in `className` ("MainDlg",
    // "QMessageBox", "QFileDialog") is active, `act` runs on it. A step never acts twice on the
    // same widget in a row: after acting it waits until another modal widget is active.
    ModalDriver &then(const char *className, Action act);

    bool finished() const { return m_steps.empty(); }
    // Modal widgets no step expected (each closed), and steps that timed out.
    QStringList problems() const { return m_problems; }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    struct Step
    {
        QByteArray className;
        Action act;
    };
    std::deque<Step> m_steps;
    QPointer<QWidget> m_lastActed;
    QPointer<QWidget> m_unexpected;
    int m_unexpectedTicks = 0;
    QStringList m_problems;
    int m_timerId = 0;
    int m_idleTicks = 0;
};

// What a test that drives dialogs keeps from one call of the library to the next: a new driver
// for each call, and what the earlier drivers found, for the test's cleanup to report.
class DriverSession
{
public:
    // A fresh driver; the previous one's problems are kept.
    ModalDriver &next();
    ModalDriver &current() { return *m_driver; }
    // Every problem found so far (a step left over counts), and a clean slate.
    QStringList takeProblems();

private:
    void collect();
    std::unique_ptr<ModalDriver> m_driver;
    QStringList m_problems;
};

// Helpers for actions: widgets by object name, and clicks that return at once (a click that
// opens another modal dialog would otherwise block the step until that dialog is closed).
template <class T> T *child(QWidget *dialog, const char *objectName)
{
    T *widget = dialog->findChild<T *>(QLatin1String(objectName));
    if (!widget)
        qFatal("no %s named %s in %s", T::staticMetaObject.className(), objectName,
            dialog->metaObject()->className());
    return widget;
}
void clickLater(QWidget *button);
// Presses the standard button `which` (a QDialogButtonBox or QMessageBox button) later.
void pressLater(QWidget *dialog, int which);

} // namespace vantora::test
