#include "galleryelement.h"

#include "actions.h"
#include "design.h"
#include "elementtexts.h"
#include "tabletext.h"

namespace vantora::params {
namespace {

// The thumbnails' look by design; nullptr: member not written. Design 1 draws larger gaps.
struct ThumbRow
{
    const char *thumbStyle;
    const char *thumbStyleHover;
    const char *selectionStyle;
    int thumbnailSize;
    int thumbnailPadding;
};

// clang-format off
constexpr PerDesign<ThumbRow> THUMB_DESIGNS = perDesign<ThumbRow>({
    /* 0 */ {nullptr, nullptr, nullptr, 96, 8},
    /* 1 */ {"box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;", "box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px, 0px 0px 5px 4px rgba(255,255,255,0.5);", nullptr, 90, 11},
    /* 2 */ {"border-radius: 3px; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;", "border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.8) 1px 1px 3px 1.2px;", "border-radius: 3px;", 96, 8},
    /* 3 */ {"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 1px 1px 3px 2px;", "border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.3) 1px 1px 3px 1.2px;", "border-radius: 3px;", 96, 8},
    /* 4 */ {"border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;", "border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;", "border-radius: 2px; box-shadow: rgba(0, 0, 0, 0.8) 0px 0px 1px 1px;", 96, 8},
    /* 5 */ {"border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 3px 2px;", "border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 4px 1px;", "border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 0px 0px 1px 1px;", 96, 8},
    /* 6 */ {"box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 2px 0.5px;", nullptr, nullptr, 96, 8},
    /* 7 */ {nullptr, nullptr, nullptr, 96, 8},
});
// clang-format on

} // namespace

void writeGalleryElement(
    QJsonObject &element, QJsonArray &actions, int design, const settings::ViewerSettings &settings)
{
    const bool open = settings.GalleryThumbnailVisible;
    element.insert(QStringLiteral("id"), QStringLiteral("thumbnailGallery"));
    element.insert(QStringLiteral("style"),
        QLatin1String(open ? GALLERY_STYLE_VISIBLE : GALLERY_STYLE_HIDDEN));
    // Even an open strip starts invisible: its "oninit" shows it once the gallery has two
    // panoramas.
    element.insert(QStringLiteral("visible"), false);
    element.insert(
        QStringLiteral("height"), open ? QStringLiteral("112px") : QStringLiteral("0px"));
    element.insert(QStringLiteral("align"),
        settings.GalleryPosition != 0 ? QStringLiteral("leftbottom") : QStringLiteral("lefttop"));
    element.insert(QStringLiteral("edgeEffect"), QStringLiteral("tilt"));
    element.insert(QStringLiteral("thumbnailHeight"), 96);
    element.insert(QStringLiteral("thumbnailWidth"), 96);
    element.insert(QStringLiteral("thumbnailPadding"), 8);
    element.insert(QStringLiteral("contentstyle"), QLatin1String(GALLERY_CONTENT_STYLE));
    if (open)
        element.insert(QStringLiteral("oninit"), QLatin1String(GALLERY_ONINIT));

    if (const ThumbRow *found = designRow(THUMB_DESIGNS, design)) {
        const ThumbRow &row = *found;
        insertText(element, "thumbstyle", row.thumbStyle);
        insertText(element, "thumbstylehover", row.thumbStyleHover);
        insertText(element, "selectionstyle", row.selectionStyle);
        element.insert(QStringLiteral("thumbnailHeight"), row.thumbnailSize);
        element.insert(QStringLiteral("thumbnailWidth"), row.thumbnailSize);
        element.insert(QStringLiteral("thumbnailPadding"), row.thumbnailPadding);
    }

    appendAction(actions, QStringLiteral("toggleGallery"), QLatin1String(TOGGLE_GALLERY));
    appendAction(actions, QStringLiteral("hideGallery"), QLatin1String(HIDE_GALLERY));
}

} // namespace vantora::params
