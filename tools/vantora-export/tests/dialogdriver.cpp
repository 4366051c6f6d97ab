// Loaded into vantora-export with LD_PRELOAD by the interactive tests: answers the library's
// dialogs from inside the tool, as a person at the desktop would, and says on stdout what it saw.
// VANTORA_DRIVE=cancel cancels the main dialog; VANTORA_DRIVE=save:PATH saves to PATH at 50 %
// with high quality, replaces the page of an earlier run and declines to open it in the browser.
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {

void say(const QString &what, QWidget *dialog)
{
    std::printf("driver: %s %s\n", qPrintable(what), qPrintable(dialog->windowTitle()));
    std::fflush(stdout);
}

void clickLater(QAbstractButton *button)
{
    QTimer::singleShot(0, button, [button] { button->click(); });
}

void act(QWidget *modal)
{
    const QString drive = qEnvironmentVariable("VANTORA_DRIVE");
    const QByteArray name = modal->metaObject()->className();
    if (name.endsWith("MainDlg")) {
        say(QStringLiteral("main dialog"), modal);
        auto *buttons = modal->findChild<QDialogButtonBox *>(QStringLiteral("outBox"));
        if (!drive.startsWith(QLatin1String("save:"))) {
            clickLater(buttons->button(QDialogButtonBox::Cancel));
            return;
        }
        modal->findChild<QLineEdit *>(QStringLiteral("filenameEdit"))->setText(drive.mid(5));
        modal->findChild<QComboBox *>(QStringLiteral("scaleBox"))->setCurrentIndex(10);
        // The quality dialog first; the main dialog comes back for Save.
        static bool qualityChosen = false;
        if (!qualityChosen) {
            qualityChosen = true;
            clickLater(modal->findChild<QPushButton *>(QStringLiteral("qualityButton")));
            return;
        }
        clickLater(buttons->button(QDialogButtonBox::Save));
    } else if (name.endsWith("QualityDlg")) {
        say(QStringLiteral("quality dialog"), modal);
        modal->findChild<QComboBox *>(QStringLiteral("qualityBox"))->setCurrentIndex(2);
        clickLater(modal->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok));
    } else if (auto *box = qobject_cast<QMessageBox *>(modal)) {
        // Replacing the page of an earlier run is fine; opening a browser is not.
        if (box->icon() == QMessageBox::Warning) {
            clickLater(box->button(QMessageBox::Yes));
            return;
        }
        say(QStringLiteral("box"), modal);
        clickLater(box->button(QMessageBox::No) ? box->button(QMessageBox::No)
                                                : box->button(QMessageBox::Ok));
    }
}

void startDriver()
{
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, [] {
        static QPointer<QWidget> last;
        QWidget *modal = QApplication::activeModalWidget();
        if (!modal || modal == last)
            return;
        last = modal;
        act(modal);
    });
    timer->start(20);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startDriver)
