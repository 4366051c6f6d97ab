#include "settingsdialog.h"

#include "dialogs/preseteditor.h"
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QDir>
#include <QFileInfo>
#include <QTextStream>

namespace vantora::cli {

int editPresetFile(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    // A full sphere with location data and a motion sensor: nothing in the dialog is greyed out
    // for want of a panorama. No settings folder: the one file is what is edited.
    HostContext host {};
    host.endPan = 360.0;
    host.upperEdgeTilt = -90.0;
    host.lowerEdgeTilt = 90.0;
    host.gyroCapable = 1;
    host.queryLocation = [](std::uint64_t, std::uint32_t *orientation, std::uint32_t *location) {
        *orientation = 1;
        *location = 1;
    };
    plugin::pluginState().host = &host;
    settings::resetViewerSettings();

    const QString shown = QDir::toNativeSeparators(file);
    switch (dialogs::editPresetInDialog(file, nullptr)) {
    case dialogs::PresetEdit::Saved:
        QTextStream(stdout) << "saved: " << shown << '\n';
        return 0;
    case dialogs::PresetEdit::Cancelled:
        return 0;
    case dialogs::PresetEdit::Unreadable:
        QTextStream(stderr) << "vantora-export: cannot read the preset " << shown << '\n';
        return 1;
    case dialogs::PresetEdit::Unwritable:
        QTextStream(stderr) << "vantora-export: cannot write the preset " << shown << '\n';
        return 1;
    }
    return 1;
}

} // namespace vantora::cli
