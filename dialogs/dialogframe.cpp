#include "dialogframe.h"

#include <QDialog>

#include <cmath>

namespace vantora::dialogs {

void setUpDialog(QDialog *dialog, HostContext *host, HostContext *hookRecord)
{
    dialog->setWindowFlags(
        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    if (host && host->dialogHook)
        host->dialogHook(dialog, 0, hookRecord);
}

double uiScaleFactor(const HostContext *host, QWidget *widget)
{
    const double factor = host && host->uiScale ? host->uiScale(widget) : 1.0;
    // A host that answers nonsense gets the unscaled size rather than an unusable dialog.
    return factor > 0.0 && factor <= 8.0 ? factor : 1.0;
}

int scaledPixels(const HostContext *host, QWidget *widget, int pixels)
{
    return int(std::lround(pixels * uiScaleFactor(host, widget)));
}

} // namespace vantora::dialogs
