// The viewer settings dialog: every viewer option on eleven pages, and the named presets.
#pragma once

#include "ui_appletsettingsdlg.h"

#include "settings/presetfile.h"
#include "settings/viewersettings.h"

#include <vantora/host.h>

#include <QDialog>
#include <QPalette>

class QAbstractButton;
class QGroupBox;
class QToolButton;

namespace vantora::plugin {
struct ExportJob;
}

namespace vantora::dialogs {

class AppletSettingsDlg : public QDialog, private Ui::AppletSettingsDlg
{
    Q_OBJECT

public:
    // Fills the widgets from the process-wide viewer settings and lists the presets of the host's
    // settings folder. The display type comes from the export the main dialog edits, if any.
    explicit AppletSettingsDlg(QWidget *parent);

    // Copies the process-wide record into the widgets, and back (on OK).
    void loadFromSettings();
    void storeToSettings();

    // The widgets as a preset would store them, and a preset's values shown in the widgets.
    settings::Preset currentPreset() const;
    void showPreset(const settings::Preset &preset);

    // Reads the preset file at `path` into the widgets. An unreadable file is reported in one
    // message box and leaves every widget as it was; false then.
    bool loadPresetFile(const QString &path);

private Q_SLOTS:
    // Connected by name, in this order.
    void on_buttonBox_clicked(QAbstractButton *button);
    void on_addTBBox_stateChanged(int state);
    void on_hideToolbarBox_stateChanged(int state);
    void on_addGyro_stateChanged(int state);
    void on_contextMenuBox_stateChanged(int state);
    void on_miCustomItemBox_toggled(bool checked);
    void on_soundFileButton_clicked();
    void on_shadowClrButton_clicked();
    void on_txtClrButton_clicked();
    void on_logoImageButton_clicked();
    void on_saveButton_clicked();
    void on_deleteButton_clicked();
    void on_settingsBox_currentIndexChanged(int index);
    void on_titleEdit_textChanged(const QString &text);
    void on_soundFile_textChanged(const QString &text);
    void on_editLocationButton_clicked();
    void on_editLocationButton_2_clicked();
    void on_tabWidget_currentChanged(int index);
    void on_catList_currentRowChanged(int row);
    void on_orientationBox_currentIndexChanged(int index);
    void on_addMapBox_toggled(bool checked);
    void on_gmApiKeyInfoButton_clicked();
    void on_galleryThumbsVisible_stateChanged(int state);
    void on_mapVisibleBox_stateChanged(int state);
    void on_mapTypeBox_currentIndexChanged(int index);
    void on_advancedBox_toggled(bool checked);

private:
    // Non-zero display type or the host's flat-image flag: a flat zoom image, no gyroscope.
    bool isFlat() const;
    bool isFullSphere() const;
    QString settingsFolder() const;

    // The rules that follow a fill from the record or a preset.
    void applyGating();
    void refreshPage();
    void refreshOrientationGroup();
    void refreshMapGroup();
    // The group's title (with a note when the host has no data), enabled state and palette.
    void showLocationGroup(QGroupBox *group, bool present, const char *title);
    void mapCheck();
    void setColour(QToolButton *button, settings::Colour *slot, settings::Colour colour);
    void chooseColour(QToolButton *button, settings::Colour *slot);
    QString chooseFile(const QString &title, const QString &filter);
    void collapse(QWidget *group, QWidget *content, bool open, int openHeight);
    // Asks the host which location data the panorama has.
    void queryLocation(bool *orientation, bool *location) const;

    HostContext *m_host;
    const plugin::ExportJob *m_job;
    settings::Colour m_textColour = 0xFFFFFF;
    settings::Colour m_shadowColour = 0;
    bool m_loading = false;
    QPalette m_dataPalette;
    QPalette m_noDataPalette;
};

} // namespace vantora::dialogs
