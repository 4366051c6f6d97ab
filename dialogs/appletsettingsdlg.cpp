#include "appletsettingsdlg.h"

#include "dialogframe.h"
#include "settingsbinding.h"
#include "settingslook.h"
#include "settingspages.h"

#include "plugin/hostaccess.h"
#include "plugin/pluginstate.h"
#include "resources/resources.h"
#include "settings/hostini.h"
#include "settings/presetfile.h"
#include "settings/presets.h"

#include <QPushButton>
#include <QStyle>

#include <cmath>

namespace vantora::dialogs {
namespace {

constexpr int MAP_PAGE = 9;

} // namespace

// Texts set from code are looked up in the form's translation context, "AppletSettingsDlg".
AppletSettingsDlg::AppletSettingsDlg(QWidget *parent)
    : QDialog(parent)
    , m_host(plugin::currentHost())
    , m_job(plugin::pluginState().dialogJob)
{
    resources::ensureRegistered();
    setupUi(this);
    setUpDialog(this, m_host, nullptr);
    resize(800, 640);
    buttonBox->button(QDialogButtonBox::RestoreDefaults)
        ->setToolTip(QCoreApplication::translate(
            "AppletSettingsDlg", "Standard-Einstellungen wiederherstellen"));

    catList->setStyleSheet(categoryListStyle(catList));
    const QString branches = collapsibleGroupStyle();
    stackedWidgetPage1->advancedBox->setStyleSheet(branches);
    page_2->miCustomItemBox->setStyleSheet(branches);
    for (QLabel *panel :
        {page->infoPanel, page_4->galleryInfoPanel, mapPage->mapInfoPanel, page_3->vrInfoPanel})
        panel->setStyleSheet(infoPanelStyle(panel));
    addDesignPictures(stackedWidgetPage2->designBox);
    addOrientationPictures(page_5->orientationBox);
    stackedWidgetPage1->logoImageButton->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
    stackedWidgetPage3->soundFileButton->setIcon(style()->standardIcon(QStyle::SP_DirOpenIcon));
    mapPage->gmApiKeyInfoButton->setIcon(style()->standardIcon(QStyle::SP_MessageBoxQuestion));

    // Without orientation or location data a group keeps its place but reads as unavailable.
    m_dataPalette = palette();
    m_noDataPalette = palette();
    m_noDataPalette.setColor(QPalette::Active, QPalette::WindowText,
        m_noDataPalette.color(QPalette::Disabled, QPalette::WindowText));
    m_noDataPalette.setColor(QPalette::Inactive, QPalette::WindowText,
        m_noDataPalette.color(QPalette::Disabled, QPalette::WindowText));

    stackedWidgetPage1->advancedBox->setChecked(false);
    on_advancedBox_toggled(false);

    m_loading = true;
    loadFromSettings();
    on_miCustomItemBox_toggled(page_2->miCustomItemBox->isChecked());
    const QString folder = settingsFolder();
    settingsBox->addItems(settings::presetNames(folder));
    settingsBox->setCurrentIndex(-1);
    const QString storedKey = settings::readMapsApiKey(folder);
    if (!storedKey.isEmpty()) {
        QComboBox *keyBox = mapPage->gmApiKeyBox;
        const QString recordKey = keyBox->currentText();
        keyBox->addItem(storedKey);
        // A key the record brings stays the one shown; the stored one is offered beside it.
        if (!recordKey.isEmpty())
            keyBox->setCurrentText(recordKey);
    }
    catList->setCurrentRow(0);
    tabWidget->setCurrentIndex(0);
    m_loading = false;
}

bool AppletSettingsDlg::isFlat() const
{
    return (m_host && m_host->flatImage) || (m_job && m_job->displayType != 0);
}

bool AppletSettingsDlg::isFullSphere() const
{
    if (!m_host || isFlat())
        return false;
    return m_host->endPan - m_host->startPan >= 359.99
        && std::fabs(m_host->lowerEdgeTilt - m_host->upperEdgeTilt) >= 179.99;
}

QString AppletSettingsDlg::settingsFolder() const
{
    return m_host ? plugin::fromHost(m_host->settingsFolder) : QString();
}

settings::Preset AppletSettingsDlg::currentPreset() const
{
    settings::Preset colours;
    colours.settings.TextColor = m_textColour;
    colours.settings.ShadowColor = m_shadowColour;
    return presetFromWidgets(this, colours);
}

void AppletSettingsDlg::showPreset(const settings::Preset &preset)
{
    presetToWidgets(this, preset);
    setColour(stackedWidgetPage1->txtClrButton, &m_textColour, preset.settings.TextColor);
    setColour(stackedWidgetPage1->shadowClrButton, &m_shadowColour, preset.settings.ShadowColor);
    // The intro needs a full sphere, whatever was stored.
    QCheckBox *intro = stackedWidgetPage4->littlePlanetIntroBox;
    intro->setChecked(intro->isChecked() && isFullSphere());
}

void AppletSettingsDlg::loadFromSettings()
{
    const settings::ViewerSettings &record = settings::viewerSettings();
    // Without a custom entry in the record the custom texts typed earlier stay.
    const QString caption = page_2->miCaptionEdit->text();
    const QString action = page_2->miActionEdit->toPlainText();
    showPreset({record, settings::menuChoiceOf(record.ContextMenuItems)});
    if (!page_2->miCustomItemBox->isChecked()) {
        page_2->miCaptionEdit->setText(caption);
        page_2->miActionEdit->setPlainText(action);
    }
    applyGating();
}

void AppletSettingsDlg::applyGating()
{
    const bool sphere = isFullSphere();
    const QString sphereOnly = QCoreApplication::translate(
        "AppletSettingsDlg", "Nur für 360x180°-Kugelpanoramen verfügbar.");
    QCheckBox *intro = stackedWidgetPage4->littlePlanetIntroBox;
    intro->setEnabled(sphere);
    intro->setToolTip(sphere ? QCoreApplication::translate("AppletSettingsDlg",
                          "Ein Kugelpanorama zu Beginn von einer LittlePlanet - Ansicht "
                          "auf das eingestellte Sichtfeld schwenken.")
                             : sphereOnly);
    page_3->vrModeBox->setEnabled(sphere);
    page_3->vrModeBox->setToolTip(sphere ? QCoreApplication::translate(
                                      "AppletSettingsDlg", "Darstellung für VR-Headsets anbieten.")
                                         : sphereOnly);
    page_2->miViewItems->setEnabled(sphere);

    ControlPage *control = stackedWidgetPage5;
    if (isFlat()) {
        // A flat zoom image has no view to turn with the device: the gyroscope is not offered.
        for (QWidget *gyro :
            {static_cast<QWidget *>(control->addGyro), static_cast<QWidget *>(control->gyroEnabled),
                static_cast<QWidget *>(stackedWidgetPage2->gyroButton)}) {
            gyro->setVisible(false);
            gyro->setEnabled(false);
        }
        page_2->miViewItems->setEnabled(false);
        page_2->miGyroControl->setEnabled(false);
    } else {
        control->addGyro->setEnabled(true);
        control->gyroEnabled->setEnabled(control->addGyro->isChecked());
    }

    const bool sound = !stackedWidgetPage3->soundFile->text().isEmpty();
    stackedWidgetPage3->audioAutoPlay->setEnabled(sound);
    if (!m_loading)
        stackedWidgetPage3->audioLoop->setEnabled(sound);
    stackedWidgetPage2->audioButtonBox->setEnabled(sound);
    stackedWidgetPage2->showInfoBox->setEnabled(!page->infoTextEdit->toPlainText().isEmpty());

    const bool hotspots
        = m_host && m_host->hotspots && m_host->hotspots->begin != m_host->hotspots->end;
    stackedWidgetPage1->hotspotsBox->setEnabled(hotspots);
    page_2->contextMenuEntriesBox->setEnabled(page_2->contextMenuBox->isChecked());

    on_orientationBox_currentIndexChanged(page_5->orientationBox->currentIndex());
    on_mapTypeBox_currentIndexChanged(mapPage->mapTypeBox->currentIndex());
    refreshOrientationGroup();
    refreshMapGroup();
}

void AppletSettingsDlg::storeToSettings()
{
    settings::ViewerSettings &record = settings::viewerSettings();
    // The preset form rebuilds the context menu from its boxes and sets ContextMenuSpare false.
    settings::applyPreset(currentPreset(), record);
    const auto checkedAndEnabled
        = [](const QCheckBox *box) { return box->isChecked() && box->isEnabled(); };
    record.AddGyro = checkedAndEnabled(stackedWidgetPage5->addGyro);
    record.GyroEnabled = checkedAndEnabled(stackedWidgetPage5->gyroEnabled);
    record.GyroButton = checkedAndEnabled(stackedWidgetPage2->gyroButton);
}

void AppletSettingsDlg::refreshPage()
{
    const QString gyroOn = QCoreApplication::translate(
        "AppletSettingsDlg", "Steuerung mittels Bewegungssensor ein/aus");
    const QString gyroFirst = QCoreApplication::translate(
        "AppletSettingsDlg", "Unter \"Steuerung\" zunächst die Gyroskop-Steuerung aktivieren");
    const bool gyro = stackedWidgetPage5->addGyro->isChecked();
    const bool sound = !stackedWidgetPage3->soundFile->text().isEmpty();
    switch (tabWidget->currentIndex()) {
    case 1: {
        ToolbarPage *toolbar = stackedWidgetPage2;
        const bool on = toolbar->addTBBox->isChecked();
        for (QWidget *widget : {static_cast<QWidget *>(toolbar->designLabel),
                 static_cast<QWidget *>(toolbar->positionLabel),
                 static_cast<QWidget *>(toolbar->designBox),
                 static_cast<QWidget *>(toolbar->positionBox),
                 static_cast<QWidget *>(toolbar->hideToolbarBox),
                 static_cast<QWidget *>(toolbar->tbButtonsBox)})
            widget->setEnabled(on);
        toolbar->showInfoBox->setEnabled(!page->infoTextEdit->toPlainText().isEmpty());
        toolbar->audioButtonBox->setEnabled(sound);
        if (!isFlat()) {
            toolbar->gyroButton->setEnabled(gyro);
            toolbar->gyroButton->setToolTip(gyro ? gyroOn : gyroFirst);
        }
        break;
    }
    case 2:
        stackedWidgetPage3->audioAutoPlay->setEnabled(sound);
        stackedWidgetPage3->audioLoop->setEnabled(sound);
        break;
    case 6:
        page_2->miGyroControl->setEnabled(gyro && !isFlat());
        page_2->miGyroControl->setToolTip(isFlat() ? QString() : gyro ? gyroOn : gyroFirst);
        break;
    case 7:
        page_4->galleryThumbsVisible->setEnabled(!stackedWidgetPage2->hideToolbarBox->isChecked());
        break;
    case MAP_PAGE:
        mapPage->mapVisibleBox->setEnabled(!stackedWidgetPage2->hideToolbarBox->isChecked());
        break;
    default:
        break;
    }
}

void AppletSettingsDlg::queryLocation(bool *orientation, bool *location) const
{
    std::uint32_t hasOrientation = 0, hasLocation = 0;
    if (m_host && m_host->queryLocation)
        m_host->queryLocation(m_host->locationCookie, &hasOrientation, &hasLocation);
    *orientation = hasOrientation != 0;
    *location = hasLocation != 0;
}

void AppletSettingsDlg::showLocationGroup(QGroupBox *group, bool present, const char *title)
{
    const QString plain = QCoreApplication::translate("AppletSettingsDlg", title);
    group->setTitle(present
            ? plain
            : QCoreApplication::translate("AppletSettingsDlg", "%1 (keine Daten vorhanden)")
                  .arg(plain));
    group->setEnabled(present);
    group->setPalette(present ? m_dataPalette : m_noDataPalette);
}

void AppletSettingsDlg::refreshOrientationGroup()
{
    bool orientation = false, location = false;
    queryLocation(&orientation, &location);
    showLocationGroup(page_5->addOrientationBox, orientation,
        QT_TRANSLATE_NOOP("AppletSettingsDlg", "Orientierung ausgeben"));
}

void AppletSettingsDlg::refreshMapGroup()
{
    bool orientation = false, location = false;
    queryLocation(&orientation, &location);
    showLocationGroup(mapPage->addMapBox, location,
        QT_TRANSLATE_NOOP("AppletSettingsDlg", "Standort in Karte anzeigen"));
    mapPage->mapTypeControlBox->setVisible(mapPage->mapTypeBox->currentIndex() != 3);
}

void AppletSettingsDlg::setColour(
    QToolButton *button, settings::Colour *slot, settings::Colour colour)
{
    *slot = colour & 0xFFFFFFu;
    showColourSwatch(button, *slot);
}

void AppletSettingsDlg::collapse(QWidget *group, QWidget *content, bool open, int openHeight)
{
    const double scale = uiScaleFactor(m_host, this);
    content->setVisible(open);
    group->setFixedHeight(int(scale * (open ? openHeight : 24)));
}

} // namespace vantora::dialogs
