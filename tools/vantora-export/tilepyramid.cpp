#include "tilepyramid.h"

#include <QJsonArray>

#include <algorithm>

namespace vantora::cli {
namespace {

int tilesFor(int pixels, int tileSize)
{
    return (pixels + tileSize - 1) / tileSize;
}

} // namespace

QVector<PyramidLevel> pyramidLevels(int width, int height, int tileSize)
{
    QVector<PyramidLevel> levels;
    if (width < 1 || height < 1 || tileSize < 1)
        return levels;
    int w = width;
    int h = height;
    for (;;) {
        levels.prepend({w, h, tilesFor(w, tileSize), tilesFor(h, tileSize)});
        if (w <= tileSize && h <= tileSize)
            break;
        w = (w + 1) / 2;
        h = (h + 1) / 2;
    }
    return levels;
}

QString tileExtension(TileFormat format)
{
    return format == TileFormat::WebP ? QStringLiteral("webp") : QStringLiteral("jpg");
}

QString tilesFolderName(const QString &identifier)
{
    return identifier + QStringLiteral("_tiles");
}

QString thumbnailName(const QString &identifier)
{
    return identifier + QStringLiteral("_thumb.jpg");
}

QJsonObject imageMember(const QString &identifier, const QVector<PyramidLevel> &levels,
    const Projection &projection, TileFormat format, int tileSize)
{
    QJsonArray levelArray;
    for (const PyramidLevel &level : levels) {
        levelArray.append(QJsonObject {
            {QStringLiteral("width"), level.width},
            {QStringLiteral("height"), level.height},
            {QStringLiteral("columns"), level.columns},
            {QStringLiteral("rows"), level.rows},
        });
    }
    const QString folder = tilesFolderName(identifier) + QLatin1Char('/');
    QJsonObject image {
        {QStringLiteral("type"), QStringLiteral("tiles")},
        {QStringLiteral("projection"),
            projection.flat ? QStringLiteral("flat") : QStringLiteral("equirectangular")},
        {QStringLiteral("width"), levels.isEmpty() ? 0 : levels.constLast().width},
        {QStringLiteral("height"), levels.isEmpty() ? 0 : levels.constLast().height},
        {QStringLiteral("tilesize"), tileSize},
        {QStringLiteral("url"),
            folder + QStringLiteral("{level}/{column}_{row}.") + tileExtension(format)},
        {QStringLiteral("thumbnail"), folder + thumbnailName(identifier)},
        {QStringLiteral("levels"), levelArray},
    };
    if (!projection.flat) {
        image.insert(QStringLiteral("hextent"), projection.hextent);
        image.insert(QStringLiteral("vextent"), projection.vextent);
    }
    return image;
}

} // namespace vantora::cli
