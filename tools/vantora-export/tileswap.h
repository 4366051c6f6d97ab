// Publishing a finished tile pyramid into the image-data folder by renames only, keeping what it
// replaces until the export as a whole is known to have succeeded.
#pragma once

#include <QString>
#include <QStringList>

namespace vantora::cli {

// Removes whatever `path` is: a link or a file (never what a link points to), or a folder with
// everything in it. True when nothing is left.
bool removePath(const QString &path);

// Whether `path` itself is a symbolic link.
bool isLink(const QString &path);

class TileSwap
{
public:
    // Moves the levels 0..levelCount-1 from `stagedLevels` and the file `stagedThumbnail` into
    // `tilesFolder` (level folders by their number, the thumbnail as `thumbnailName`). Levels and
    // the thumbnail already there move aside to `tilesFolder` + ".vantora-old", and so do older
    // levels beyond the new count. On failure everything is put back.
    bool swapIn(const QString &tilesFolder, const QString &stagedLevels, int levelCount,
        const QString &stagedThumbnail, const QString &thumbnailName, QString *error);
    // The export succeeded: the replaced files go.
    void keep();
    // The export failed: the new files go and the replaced ones return.
    void restore();

private:
    QString m_tilesFolder;
    QString m_keptFolder;
    QStringList m_movedIn;  // names inside the tiles folder that are new
    QStringList m_movedOut; // names moved from the tiles folder into the kept folder
    bool m_createdFolder = false;
};

} // namespace vantora::cli
