// The layout of a tile pyramid and the node's "image" member that describes it to the viewer.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QVector>

namespace vantora::cli {

constexpr int TILE_SIZE = 512;

// How the tiles are encoded: JPEG, which every viewer reads, or WebP, smaller at the same quality.
enum class TileFormat { Jpeg, WebP };

// The file name extension of a tile, without the dot.
QString tileExtension(TileFormat format);

struct PyramidLevel
{
    int width = 0;
    int height = 0;
    int columns = 0;
    int rows = 0;
};

// Levels from the smallest (the whole picture in one tile) to the full size; each level halves the
// next larger one, rounding up, so that no pixel row or column is lost at the edges.
QVector<PyramidLevel> pyramidLevels(int width, int height, int tileSize = TILE_SIZE);

// How the picture maps onto the sphere, for the viewer: a flat picture, or an equirectangular
// panorama covering hextent x vextent degrees centred on its middle column and on the horizon.
struct Projection
{
    bool flat = false;
    double hextent = 360.0;
    double vextent = 180.0;
};

// The "image" member: type, projection, size, tile size, URL pattern, thumbnail and levels. Paths
// are relative to the page, with '/' as in every URL.
QJsonObject imageMember(const QString &identifier, const QVector<PyramidLevel> &levels,
    const Projection &projection, TileFormat format = TileFormat::Jpeg, int tileSize = TILE_SIZE);

// Where the tiles and the thumbnail of panorama `identifier` live, relative to the page.
QString tilesFolderName(const QString &identifier);
QString thumbnailName(const QString &identifier);

} // namespace vantora::cli
