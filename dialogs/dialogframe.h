// What every dialog of the library shares: its window frame, the host's hook and its UI scale.
#pragma once

#include <vantora/host.h>

class QDialog;
class QWidget;

namespace vantora::dialogs {

// Gives `dialog` a title bar and a close button and no help button, then hands it to the host's
// dialog hook (when the host has one) with 0 and `hookRecord`: the record itself for the main
// dialog, null for the others.
void setUpDialog(QDialog *dialog, HostContext *host, HostContext *hookRecord);

// The host's UI scale factor for `widget`: 1 without a host operation or for a nonsensical answer.
double uiScaleFactor(const HostContext *host, QWidget *widget);

// `pixels` multiplied by the host's UI scale factor for `widget`, rounded.
int scaledPixels(const HostContext *host, QWidget *widget, int pixels);

} // namespace vantora::dialogs
