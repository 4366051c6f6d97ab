#include "settingsbinding.h"

#include "settings/settingstable.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace vantora::dialogs {
namespace {

struct Binding
{
    const char *setting;
    const char *widget;
    bool inverted = false;
};

// clang-format off
// The widget of every setting a preset keeps, but the two colours (the dialog's own values).
const Binding BINDINGS[] = {
    {"Position",                   "positionBox"},
    {"TBDesign",                   "designBox"},
    {"PlayButton",                 "playButtonBox"},
    {"ShowToolbarFullscreen",      "toolbarFullscreenBox"},
    {"ShowArrowButtons",           "arrowButtonBox"},
    {"ShowZoomButtons",            "zoomButtonBox"},
    {"AddGyro",                    "addGyro"},
    {"GyroEnabled",                "gyroEnabled"},
    {"GyroButton",                 "gyroButton"},
    {"ShowInfoBox",                "showInfoBox"},
    {"AddAudioButton",             "audioButtonBox"},
    {"HotspotsButton",             "hotspotsButton"},
    {"InfoHTML64",                 "infoTextEdit"},
    {"InfoGlobal",                 "infoGlobalBox"},
    {"Title64",                    "titleEdit"},
    {"ShortDescription64",         "descriptionEdit"},
    {"ShowHotspots",               "hotspotsBox"},
    {"ShowWebGLWarning",           "showWebGLWarning"},
    {"ExtensionJS",                "extensionBox"},
    {"MouseMode",                  "mouseModeBox"},
    {"TouchMode",                  "touchModeBox"},
    {"ZoomMode",                   "zoomToBox"},
    {"AddToolbar",                 "addTBBox"},
    {"ShowToolbar",                "hideToolbarBox", true},
    {"AutoPlay",                   "autoPlayBox"},
    {"Restart",                    "restartEdit"},
    {"PanRate",                    "panEdit"},
    {"TiltRate",                   "tiltEdit"},
    {"ZoomRate",                   "zoomEdit"},
    {"LittlePlanetIntro",          "littlePlanetIntroBox"},
    {"LogoImage",                  "logoImage"},
    {"LogoURL",                    "logoUrlEdit"},
    {"Sound",                      "soundFile"},
    {"AudioAutoplay",              "audioAutoPlay"},
    {"AudioLoop",                  "audioLoop"},
    {"AudioGlobal",                "audioGlobalBox"},
    {"AddContextMenu",             "contextMenuBox"},
    {"ContextMenuFullscreen",      "miFullScreen"},
    {"ContextMenuViews",           "miViewItems"},
    {"ContextMenuGyro",            "miGyroControl"},
    {"ContextMenuAbout",           "miAbout"},
    {"ContextMenuCustom",          "miCustomItemBox"},
    {"ContextMenuCustomCaption",   "miCaptionEdit"},
    {"ContextMenuCustomAction",    "miActionEdit"},
    {"AddVrMode",                  "vrModeBox"},
    {"VrGamepadEnabled",           "vrGamepadBox"},
    {"VrDisplayType",              "vrDisplayType"},
    {"AddGallery",                 "addGalleryBox"},
    {"GalleryThumbnailVisible",    "galleryThumbsVisible"},
    {"GalleryButtons",             "galleryNavBox"},
    {"GalleryPosition",            "thumbnailPositionBox"},
    {"AddOrientation",             "addOrientationBox"},
    {"OrientationElement",         "orientationBox"},
    {"OrientationElementPosition", "orientationPositionBox"},
    {"PositionNorth",              "positionNorthBox"},
    {"AddMap",                     "addMapBox"},
    {"MapPosition",                "mapPositionBox"},
    {"MapType",                    "mapTypeBox"},
    {"GmAPIKey",                   "gmApiKeyBox"},
    {"MapZoom",                    "gmZoomBox"},
    {"MapVisible",                 "mapVisibleBox"},
    {"MapHideOnMarker",            "mapHideBox"},
    {"MapRadar",                   "mapRadarBox"},
    {"MapZoomControls",            "mapZoomControlBox"},
    {"MapTypeControls",            "mapTypeControlBox"},
};
// clang-format on

// Calls bind(row, widget, inverted) for every row of the table that a widget shows.
template <class Dialog, class Bind> void forEachBound(Dialog *dialog, Bind &&bind)
{
    for (const settings::SettingRow &row : settings::settingRows()) {
        const auto *binding = std::find_if(std::begin(BINDINGS), std::end(BINDINGS),
            [&row](const Binding &b) { return std::strcmp(b.setting, row.name) == 0; });
        if (binding == std::end(BINDINGS))
            continue;
        auto *widget = dialog->template findChild<QWidget *>(QLatin1String(binding->widget));
        if (!widget)
            qFatal("the settings dialog has no widget %s", binding->widget);
        bind(row, widget, binding->inverted);
    }
}

// Check boxes and checkable groups hold a flag; a combo box of two entries may hold one too (the
// second entry meaning true).
bool flagOf(const QWidget *widget)
{
    if (auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->isChecked();
    if (auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->isChecked();
    return qobject_cast<const QComboBox *>(widget)->currentIndex() == 1;
}

void setFlag(QWidget *widget, bool on)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setChecked(on);
    else if (auto *group = qobject_cast<QGroupBox *>(widget))
        group->setChecked(on);
    else
        qobject_cast<QComboBox *>(widget)->setCurrentIndex(on ? 1 : 0);
}

int numberOf(const QWidget *widget)
{
    if (auto *spin = qobject_cast<const QSpinBox *>(widget))
        return spin->value();
    return qobject_cast<const QComboBox *>(widget)->currentIndex();
}

void setNumber(QWidget *widget, int value)
{
    if (auto *spin = qobject_cast<QSpinBox *>(widget)) {
        spin->setValue(value);
        return;
    }
    auto *box = qobject_cast<QComboBox *>(widget);
    box->setCurrentIndex(std::clamp(value, 0, box->count() - 1));
}

QString textOf(const QWidget *widget)
{
    if (auto *line = qobject_cast<const QLineEdit *>(widget))
        return line->text();
    if (auto *plain = qobject_cast<const QPlainTextEdit *>(widget))
        return plain->toPlainText();
    return qobject_cast<const QComboBox *>(widget)->currentText();
}

void setText(QWidget *widget, const QString &text)
{
    if (auto *line = qobject_cast<QLineEdit *>(widget))
        line->setText(text);
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(widget))
        plain->setPlainText(text);
    else
        qobject_cast<QComboBox *>(widget)->setCurrentText(text);
}

} // namespace

settings::Preset presetFromWidgets(const QWidget *dialog, settings::Preset preset)
{
    forEachBound(
        dialog, [&](const settings::SettingRow &row, const QWidget *widget, bool inverted) {
            settings::visitValue(row, preset.settings, preset.menu, [&](auto &value) {
                using Value = std::decay_t<decltype(value)>;
                if constexpr (std::is_same_v<Value, bool>)
                    value = flagOf(widget) != inverted;
                else if constexpr (std::is_same_v<Value, int>)
                    value = numberOf(widget);
                else if constexpr (std::is_same_v<Value, double>)
                    value = qobject_cast<const QDoubleSpinBox *>(widget)->value();
                else if constexpr (std::is_same_v<Value, QString>)
                    value = textOf(widget);
            });
        });
    return preset;
}

void presetToWidgets(QWidget *dialog, const settings::Preset &preset)
{
    forEachBound(dialog, [&](const settings::SettingRow &row, QWidget *widget, bool inverted) {
        settings::visitValue(row, preset.settings, preset.menu, [&](const auto &value) {
            using Value = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<Value, bool>)
                setFlag(widget, value != inverted);
            else if constexpr (std::is_same_v<Value, int>)
                setNumber(widget, value);
            else if constexpr (std::is_same_v<Value, double>)
                qobject_cast<QDoubleSpinBox *>(widget)->setValue(value);
            else if constexpr (std::is_same_v<Value, QString>)
                setText(widget, value);
        });
    });
}

} // namespace vantora::dialogs
