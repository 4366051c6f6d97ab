#include "messages.h"

#include <QApplication>
#include <QMessageBox>

namespace vantora::plugin {
namespace {

bool widgetsAvailable()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}

// Yes and No, Yes the default; true only for Yes.
bool askWithIcon(QMessageBox::Icon icon, QWidget *parent, const QString &title, const QString &text)
{
    if (!widgetsAvailable())
        return false;
    QMessageBox box(icon, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setDefaultButton(QMessageBox::Yes);
    return box.exec() == QMessageBox::Yes;
}

} // namespace

void showCritical(QWidget *parent, const QString &title, const QString &text)
{
    if (!parent || !widgetsAvailable())
        return;
    QMessageBox::critical(parent, title, text, QMessageBox::Ok);
}

bool askYesNo(QWidget *parent, const QString &title, const QString &text)
{
    return askWithIcon(QMessageBox::Question, parent, title, text);
}

bool askWarningYesNo(QWidget *parent, const QString &title, const QString &text)
{
    return askWithIcon(QMessageBox::Warning, parent, title, text);
}

} // namespace vantora::plugin
