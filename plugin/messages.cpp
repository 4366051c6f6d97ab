#include "messages.h"

#include <QApplication>
#include <QMessageBox>

namespace vantora::plugin {
namespace {

bool widgetsAvailable()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
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
    if (!widgetsAvailable())
        return false;
    return QMessageBox::question(
               parent, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        == QMessageBox::Yes;
}

bool askWarningYesNo(QWidget *parent, const QString &title, const QString &text)
{
    if (!widgetsAvailable())
        return false;
    return QMessageBox::warning(
               parent, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes)
        == QMessageBox::Yes;
}

} // namespace vantora::plugin
