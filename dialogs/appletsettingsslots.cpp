// The viewer settings dialog's reactions to the user: page refresh, exclusive boxes, choosers,
// presets, the host's location editor, the map key.
#include "appletsettingsdlg.h"

#include "dialogframe.h"
#include "settingspages.h"

#include "plugin/hostaccess.h"
#include "plugin/messages.h"
#include "settings/hostini.h"
#include "settings/presets.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

namespace vantora::dialogs {
namespace {

constexpr int MAP_PAGE = 9;
// Shorter texts are no Google Maps key.
constexpr int MIN_KEY_LENGTH = 10;

} // namespace

void AppletSettingsDlg::on_buttonBox_clicked(QAbstractButton *button)
{
    switch (buttonBox->standardButton(button)) {
    case QDialogButtonBox::RestoreDefaults:
        settings::resetViewerSettings();
        m_loading = true;
        loadFromSettings();
        m_loading = false;
        refreshPage();
        break;
    case QDialogButtonBox::Ok: {
        if (tabWidget->currentIndex() == MAP_PAGE)
            mapCheck();
        const QString key = mapPage->gmApiKeyBox->currentText();
        if (key.size() >= MIN_KEY_LENGTH)
            settings::storeMapsApiKey(settingsFolder(), key);
        break;
    }
    default:
        break;
    }
}

void AppletSettingsDlg::on_addTBBox_stateChanged(int)
{
    refreshPage();
}

void AppletSettingsDlg::on_hideToolbarBox_stateChanged(int state)
{
    // A hidden toolbar shows neither its thumbnails nor its map at start.
    if (m_loading || state != Qt::Checked)
        return;
    page_4->galleryThumbsVisible->setChecked(false);
    mapPage->mapVisibleBox->setChecked(false);
}

void AppletSettingsDlg::on_addGyro_stateChanged(int state)
{
    stackedWidgetPage5->gyroEnabled->setEnabled(state == Qt::Checked);
}

void AppletSettingsDlg::on_contextMenuBox_stateChanged(int state)
{
    page_2->contextMenuEntriesBox->setEnabled(state == Qt::Checked);
}

void AppletSettingsDlg::on_miCustomItemBox_toggled(bool checked)
{
    collapse(page_2->miCustomItemBox, page_2->miCustomItemBoxContent, checked, 116);
}

void AppletSettingsDlg::on_soundFileButton_clicked()
{
    const QString file = chooseFile(
        QCoreApplication::translate("AppletSettingsDlg", "Audiodatei einfügen"),
        QCoreApplication::translate("AppletSettingsDlg", "Audiodateien (*.mp3);;Alle Dateien (*)"));
    if (!file.isEmpty())
        stackedWidgetPage3->soundFile->setText(file);
}

void AppletSettingsDlg::on_shadowClrButton_clicked()
{
    chooseColour(stackedWidgetPage1->shadowClrButton, &m_shadowColour);
}

void AppletSettingsDlg::on_txtClrButton_clicked()
{
    chooseColour(stackedWidgetPage1->txtClrButton, &m_textColour);
}

void AppletSettingsDlg::on_logoImageButton_clicked()
{
    const QString file
        = chooseFile(QCoreApplication::translate("AppletSettingsDlg", "Bilddatei einfügen"),
            QCoreApplication::translate(
                "AppletSettingsDlg", "Bilddateien (*.jpg *.gif *.png);;Alle Dateien (*)"));
    if (file.isEmpty())
        return;
    stackedWidgetPage1->logoImage->setText(file);
    if (!m_loading)
        settingsBox->setCurrentIndex(-1);
}

void AppletSettingsDlg::on_saveButton_clicked()
{
    const QString folder = settingsFolder();
    if (folder.isEmpty())
        return;
    bool ok = false;
    const QString answer = QInputDialog::getText(this,
        QCoreApplication::translate("AppletSettingsDlg", "Einstellung speichern"),
        QCoreApplication::translate("AppletSettingsDlg", "Bezeichnung:"), QLineEdit::Normal,
        QString(), &ok);
    if (!ok || answer.isEmpty())
        return;
    const QString name = settings::sanitizedPresetName(answer);
    const bool existed = settings::presetExists(folder, name);
    if (existed
        && !plugin::askYesNo(this, QCoreApplication::translate("AppletSettingsDlg", "Hinweis"),
            QCoreApplication::translate("AppletSettingsDlg",
                "Eine Einstellung mit dieser Bezeichnung existiert bereits!\nÜberschreiben?")))
        return;
    if (!settings::writePresetFile(folder, name, currentPreset())) {
        plugin::showCritical(this, QCoreApplication::translate("AppletSettingsDlg", "Fehler"),
            QCoreApplication::translate("AppletSettingsDlg",
                "Einstellung konnte nicht gespeichert werden!\nDie Bezeichnung enthielt "
                "möglicherweise ein ungültiges Zeichen."));
        return;
    }
    // The new entry is what the widgets show already: selecting it must not load it again.
    m_loading = true;
    if (!existed || settingsBox->findText(name) < 0) {
        settingsBox->addItem(name);
        settingsBox->setCurrentIndex(settingsBox->count() - 1);
    }
    m_loading = false;
}

void AppletSettingsDlg::on_deleteButton_clicked()
{
    const int index = settingsBox->currentIndex();
    const QString folder = settingsFolder();
    if (index < 0 || folder.isEmpty())
        return;
    const QString name = settingsBox->itemText(index);
    if (!settings::presetExists(folder, name)
        || !plugin::askYesNo(this, QCoreApplication::translate("AppletSettingsDlg", "Hinweis"),
            QCoreApplication::translate(
                "AppletSettingsDlg", "Diese Einstellung wirklich löschen?")))
        return;
    settings::deletePresetFile(folder, name);
    // Removing the entry moves the selection; nothing is loaded by that.
    m_loading = true;
    settingsBox->removeItem(index);
    settingsBox->setCurrentIndex(-1);
    m_loading = false;
}

void AppletSettingsDlg::on_settingsBox_currentIndexChanged(int index)
{
    if (m_loading || index < 0)
        return;
    if (loadPresetFile(settings::presetFilePath(settingsFolder(), settingsBox->itemText(index))))
        return;
    // What the widgets show is not that preset.
    m_loading = true;
    settingsBox->setCurrentIndex(-1);
    m_loading = false;
}

bool AppletSettingsDlg::loadPresetFile(const QString &path)
{
    bool readable = QFileInfo(path).isFile();
    const settings::Preset preset
        = readable ? settings::readPreset(path, &readable) : settings::Preset();
    if (!readable) {
        plugin::showCritical(this, QCoreApplication::translate("AppletSettingsDlg", "Fehler"),
            QCoreApplication::translate("AppletSettingsDlg",
                "Die Einstellung konnte nicht gelesen werden:\n%1\nDie Einstellungen bleiben "
                "unverändert.")
                .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    m_loading = true;
    showPreset(preset);
    refreshOrientationGroup();
    refreshMapGroup();
    refreshPage();
    m_loading = false;
    return true;
}

void AppletSettingsDlg::on_titleEdit_textChanged(const QString &)
{
    if (!m_loading)
        settingsBox->setCurrentIndex(-1);
}

void AppletSettingsDlg::on_soundFile_textChanged(const QString &text)
{
    if (m_loading)
        return;
    stackedWidgetPage3->audioAutoPlay->setEnabled(!text.isEmpty());
    stackedWidgetPage3->audioLoop->setEnabled(!text.isEmpty());
}

void AppletSettingsDlg::on_editLocationButton_clicked()
{
    if (m_host && m_host->editLocation)
        m_host->editLocation(m_host->locationCookie, this);
    refreshOrientationGroup();
}

void AppletSettingsDlg::on_editLocationButton_2_clicked()
{
    if (m_host && m_host->editLocation)
        m_host->editLocation(m_host->locationCookie, this);
    refreshMapGroup();
}

void AppletSettingsDlg::on_tabWidget_currentChanged(int)
{
    refreshPage();
}

void AppletSettingsDlg::on_catList_currentRowChanged(int row)
{
    if (tabWidget->currentIndex() == MAP_PAGE)
        mapCheck();
    if (row < 0) {
        catList->setCurrentRow(0);
        return;
    }
    tabWidget->setCurrentIndex(row);
}

void AppletSettingsDlg::on_orientationBox_currentIndexChanged(int index)
{
    // The compass and radar in the toolbar sit where the toolbar puts them.
    const bool placed = index != 10 && index != 11;
    page_5->orientationPositionBox->setVisible(placed);
    page_5->orientationPositionLabel->setVisible(placed);
}

void AppletSettingsDlg::on_addMapBox_toggled(bool checked)
{
    if (checked)
        mapPage->gmApiKeyBox->setFocus();
}

void AppletSettingsDlg::on_gmApiKeyInfoButton_clicked()
{
    QMessageBox box(QMessageBox::Information,
        QCoreApplication::translate("AppletSettingsDlg", "Google Maps API Key"),
        QCoreApplication::translate("AppletSettingsDlg",
            "Um Google Maps im Viewer darzustellen, wird ein kostenloser API-Key von Google "
            "benötigt.<br><br>Wie Sie einen Schlüssel erhalten, beschreibt Google hier:<br><a "
            "href=\"https://developers.google.com/maps/documentation/javascript/get-api-key\">"
            "https://developers.google.com/maps/documentation/javascript/get-api-key</a>"),
        QMessageBox::Ok, this);
    box.setTextFormat(Qt::RichText);
    box.setTextInteractionFlags(Qt::TextBrowserInteraction);
    box.exec();
}

void AppletSettingsDlg::on_galleryThumbsVisible_stateChanged(int state)
{
    if (!m_loading && state == Qt::Checked)
        mapPage->mapVisibleBox->setChecked(false);
}

void AppletSettingsDlg::on_mapVisibleBox_stateChanged(int state)
{
    if (!m_loading && state == Qt::Checked)
        page_4->galleryThumbsVisible->setChecked(false);
}

void AppletSettingsDlg::on_mapTypeBox_currentIndexChanged(int index)
{
    // OpenStreetMap offers one kind of map only.
    mapPage->mapTypeControlBox->setVisible(index != 3);
}

void AppletSettingsDlg::on_advancedBox_toggled(bool checked)
{
    collapse(stackedWidgetPage1->advancedBox, stackedWidgetPage1->advancedBoxContent, checked, 121);
    stackedWidgetPage1->advancedBox->adjustSize();
}

void AppletSettingsDlg::mapCheck()
{
    if (!mapPage->addMapBox->isChecked()
        || mapPage->gmApiKeyBox->currentText().size() >= MIN_KEY_LENGTH)
        return;
    QMessageBox::warning(this, QCoreApplication::translate("AppletSettingsDlg", "Warnung"),
        QCoreApplication::translate("AppletSettingsDlg",
            "Google Maps kann nur im Viewer dargestellt werden, wenn ein Google Maps API-Key "
            "eingetragen ist!"),
        QMessageBox::Ok);
}

void AppletSettingsDlg::chooseColour(QToolButton *button, settings::Colour *slot)
{
    const QColor chosen = QColorDialog::getColor(QColor::fromRgb(*slot), this,
        QCoreApplication::translate("AppletSettingsDlg", "Farbauswahl"),
        QColorDialog::DontUseNativeDialog);
    if (chosen.isValid())
        setColour(button, slot, chosen.rgb() & 0xFFFFFFu);
}

QString AppletSettingsDlg::chooseFile(const QString &title, const QString &filter)
{
    // Start beside the page being exported.
    const QString target = m_host ? plugin::fromHost(m_host->pathBuffer) : QString();
    const QString folder
        = target.isEmpty() ? QString() : QFileInfo(QDir::fromNativeSeparators(target)).path();
    const QString file = QFileDialog::getOpenFileName(this, title, folder, filter);
    return file.isEmpty() ? QString() : QDir::toNativeSeparators(file);
}

} // namespace vantora::dialogs
