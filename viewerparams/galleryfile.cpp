#include "galleryfile.h"

#include "galleryentry.h"
#include "plugin/outputstage.h"
#include "plugin/paths.h"
#include "tourfolder.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>

namespace vantora::params {
namespace {

// Enough for a parameter file or a controls file in one read; a longer file is read on only when
// its head shows the prefix.
constexpr qint64 HEAD_BYTES = 64 * 1024;

// The file's bytes as listed, when they may hold a parameter file; an empty array when they
// cannot. The listing is the scan's view of the folder: a file that grows after it is read up
// to its listed size, and its new stamp has it read again at the next scan.
QByteArray readCandidate(const QString &path, qint64 listedSize)
{
    QFile file(path);
    if (listedSize > MAX_PARAMS_FILE_BYTES
        || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    QByteArray bytes = file.read(std::min(listedSize, HEAD_BYTES));
    if (!mayBeParamsFile(bytes, bytes.size() < HEAD_BYTES))
        return {};
    if (bytes.size() == HEAD_BYTES)
        bytes += file.read(listedSize - HEAD_BYTES);
    return bytes;
}

} // namespace

void addGalleryEntry(QJsonArray &gallery, const QString &paramsFileName, const QString &text,
    const QJsonObject &location)
{
    const QString base = plugin::withoutExtension(plugin::fileNamePart(paramsFileName));
    QJsonObject entry;
    entry.insert(QStringLiteral("thumbnail"),
        base + QStringLiteral("_tiles/") + base + QStringLiteral("_thumb.jpg"));
    entry.insert(QStringLiteral("href"), paramsFileName);
    if (!text.isEmpty())
        entry.insert(QStringLiteral("text"), text);
    if (!location.isEmpty())
        entry.insert(QStringLiteral("location"), location);
    gallery.append(entry);
}

void readGalleryEntry(
    QJsonArray &gallery, const QString &folder, const QString &fileName, qint64 listedSize)
{
    const QByteArray bytes = readCandidate(folder + fileName, listedSize);
    if (bytes.isEmpty())
        return;
    if (const std::optional<PanoramaSummary> panorama = panoramaFromBytes(bytes))
        addGalleryEntry(gallery, fileName, panorama->text, panorama->location);
}

QJsonObject writeGalleryFile(const QString &outputFolder, const QString &galleryFileName,
    const QString &paramsFileName, const QString &description, const QJsonObject &location)
{
    return writeGalleryFile(outputFolder, galleryFileName, paramsFileName, description, location,
        processTourFolderReader());
}

QJsonObject writeGalleryFile(const QString &outputFolder, const QString &galleryFileName,
    const QString &paramsFileName, const QString &description, const QJsonObject &location,
    TourFolderReader &reader)
{
    QJsonArray gallery;
    addGalleryEntry(gallery, paramsFileName, description, location);
    reader.appendEarlierExports(gallery, outputFolder, paramsFileName);

    const QJsonObject include {{QStringLiteral("src"), galleryFileName}};
    const QByteArray text = "VantoraViewerParams = {\n\"vantoraViewer\":\n"
        + QJsonDocument(QJsonObject {{QStringLiteral("gallery"), gallery}}).toJson() + "\n}";
    // Written byte for byte: the layout's line feeds stay line feeds on every platform.
    plugin::stage::writeFile(plugin::toNativeSeparators(outputFolder + galleryFileName), text);
    return include;
}

} // namespace vantora::params
