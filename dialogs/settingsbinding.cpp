#include "settingsbinding.h"

#include "settings/viewersettingsfields.h"

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

using settings::Colour;
using settings::PresetValues;

struct Binding
{
    const char *key;
    const char *widget; // null: not a widget (the colours)
    bool inverted = false;
};

// clang-format off
// The preset keys in file order, each with the widget that shows it.
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
    {"TextColor",                  nullptr},
    {"ShadowColor",                nullptr},
};
// clang-format on

const Binding &bindingOf(const char *key)
{
    for (const Binding &binding : BINDINGS) {
        if (std::strcmp(binding.key, key) == 0)
            return binding;
    }
    qFatal("no widget bound to the preset key %s", key);
}

QWidget *widgetOf(const QWidget *dialog, const Binding &binding)
{
    auto *widget = dialog->findChild<QWidget *>(QLatin1String(binding.widget));
    if (!widget)
        qFatal("the settings dialog has no widget %s", binding.widget);
    return widget;
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

PresetValues valuesFromWidgets(const QWidget *dialog, Colour textColour, Colour shadowColour)
{
    PresetValues values;
    values.TextColor = textColour;
    values.ShadowColor = shadowColour;
    settings::forEachPresetField([&](const char *key, settings::PresetField field) {
        const Binding &binding = bindingOf(key);
        if (!binding.widget)
            return;
        const QWidget *widget = widgetOf(dialog, binding);
        std::visit(
            [&](auto member) {
                using Value = std::remove_cv_t<std::remove_reference_t<decltype(values.*member)>>;
                if constexpr (std::is_same_v<Value, bool>)
                    values.*member = flagOf(widget) != binding.inverted;
                else if constexpr (std::is_same_v<Value, int>)
                    values.*member = numberOf(widget);
                else if constexpr (std::is_same_v<Value, double>)
                    values.*member = qobject_cast<const QDoubleSpinBox *>(widget)->value();
                else if constexpr (std::is_same_v<Value, QString>)
                    values.*member = textOf(widget);
            },
            field);
    });
    return values;
}

void valuesToWidgets(QWidget *dialog, const PresetValues &values)
{
    settings::forEachPresetField([&](const char *key, settings::PresetField field) {
        const Binding &binding = bindingOf(key);
        if (!binding.widget)
            return;
        QWidget *widget = widgetOf(dialog, binding);
        std::visit(
            [&](auto member) {
                using Value = std::remove_cv_t<std::remove_reference_t<decltype(values.*member)>>;
                if constexpr (std::is_same_v<Value, bool>)
                    setFlag(widget, values.*member != binding.inverted);
                else if constexpr (std::is_same_v<Value, int>)
                    setNumber(widget, values.*member);
                else if constexpr (std::is_same_v<Value, double>)
                    qobject_cast<QDoubleSpinBox *>(widget)->setValue(values.*member);
                else if constexpr (std::is_same_v<Value, QString>)
                    setText(widget, values.*member);
            },
            field);
    });
}

PresetValues valuesFromRecord(const settings::ViewerSettings &record)
{
    PresetValues values;
    // Keys and record fields share their names; the menu keys have no field of their own.
    settings::forEachPresetField([&](const char *key, settings::PresetField presetMember) {
        std::visit(
            [&](auto to) {
                using Value = std::remove_reference_t<decltype(values.*to)>;
                settings::forEachField([&](const char *name, auto from) {
                    using Field = std::remove_cv_t<std::remove_reference_t<decltype(record.*from)>>;
                    if constexpr (std::is_same_v<Value, Field>) {
                        if (std::strcmp(name, key) == 0)
                            values.*to = record.*from;
                    }
                });
            },
            presetMember);
    });
    using Item = settings::ContextMenuItem;
    for (const Item &item : record.ContextMenuItems) {
        switch (item.kind) {
        case Item::Fullscreen:
            values.ContextMenuFullscreen = true;
            break;
        case Item::NormalView:
        case Item::LittlePlanetView:
            values.ContextMenuViews = true;
            break;
        case Item::Gyroscope:
            values.ContextMenuGyro = true;
            break;
        case Item::About:
            values.ContextMenuAbout = true;
            break;
        case Item::Custom:
            values.ContextMenuCustom = true;
            values.ContextMenuCustomCaption = item.caption;
            values.ContextMenuCustomAction = item.action;
            break;
        default:
            break;
        }
    }
    return values;
}

} // namespace vantora::dialogs
