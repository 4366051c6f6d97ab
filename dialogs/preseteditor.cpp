#include "preseteditor.h"

#include "appletsettingsdlg.h"

#include "settings/presetfile.h"

#include <QFileInfo>

namespace vantora::dialogs {

PresetEdit editPresetInDialog(const QString &file, QWidget *parent)
{
    AppletSettingsDlg dialog(parent);
    if (QFileInfo::exists(file) && !dialog.loadPresetFile(file))
        return PresetEdit::Unreadable;
    if (dialog.exec() != QDialog::Accepted)
        return PresetEdit::Cancelled;
    return settings::writePreset(file, dialog.currentPreset()) ? PresetEdit::Saved
                                                               : PresetEdit::Unwritable;
}

} // namespace vantora::dialogs
