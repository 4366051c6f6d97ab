// The host's tile writer: the thumbnail and the multi-resolution tile pyramid of one panorama.
#pragma once

#include "sourceimage.h"
#include "tilepyramid.h"

#include <QString>
#include <QVector>

#include <functional>

namespace vantora::cli {

struct TileJob
{
    const SourceImage *source = nullptr;
    QString tilesFolder; // the image-data folder, without a trailing separator
    QString identifier;  // names the thumbnail
    int outputWidth = 0; // the size of the largest level; smaller than the source: scaled down
    int outputHeight = 0;
    int quality = 80;
    TileFormat format = TileFormat::Jpeg;
    std::function<void(int percent)> progress; // may be empty
};

struct TileResult
{
    bool ok = false;
    QString error; // one line when !ok
    QVector<PyramidLevel> levels;
};

// Writes the image-data folder <level>/<column>_<row>.jpg, level 0 the smallest, and the
// thumbnail: cut into a staging folder, counted, then assembled as stagedTilesFolder(tilesFolder)
// for the library to move in with the export's other files. Streams the source, so memory stays
// bounded whatever the picture's size.
TileResult writeTilePyramid(const TileJob &job);

} // namespace vantora::cli
