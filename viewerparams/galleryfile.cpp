#include "galleryfile.h"

#include "tourfolder.h"

#include "plugin/paths.h"

#include <QFile>
#include <QJsonDocument>

namespace vantora::params {

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
    QFile file(plugin::toNativeSeparators(outputFolder + galleryFileName));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(text);
    return include;
}

} // namespace vantora::params
