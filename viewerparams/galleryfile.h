// The tour gallery file: every panorama exported into the output folder, the current one first.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::params {

// Appends the entry of one panorama: its thumbnail and parameter file, and its description and
// location when they are not empty.
void addGalleryEntry(QJsonArray &gallery, const QString &paramsFileName, const QString &text,
    const QJsonObject &location);

// Reads `fileName` of `folder` (ending in a separator), as it was listed with `listedSize`
// bytes, and appends its entry when it is the parameter file of an earlier export. Anything
// else, unreadable files included, is passed over.
void readGalleryEntry(
    QJsonArray &gallery, const QString &folder, const QString &fileName, qint64 listedSize);

class TourFolderReader;

// Collects the current panorama and every earlier export of `outputFolder` into
// outputFolder + galleryFileName. Returns the include object {"src": galleryFileName}, also when
// the file cannot be written. The earlier exports come through `reader`, which remembers them
// for the next export; by default the one the library keeps while it is loaded.
QJsonObject writeGalleryFile(const QString &outputFolder, const QString &galleryFileName,
    const QString &paramsFileName, const QString &description, const QJsonObject &location);
QJsonObject writeGalleryFile(const QString &outputFolder, const QString &galleryFileName,
    const QString &paramsFileName, const QString &description, const QJsonObject &location,
    TourFolderReader &reader);

} // namespace vantora::params
