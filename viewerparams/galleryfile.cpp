#include "galleryfile.h"

#include "plugin/outputstage.h"
#include "plugin/paths.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace vantora::params {
namespace {

const QByteArray PARAMS_PREFIX = QByteArrayLiteral("VantoraViewerParams = ");

// A parameter file holds a few kilobytes, with many hotspots some hundred; a file far beyond
// that is no parameter file of ours, and reading it whole would stall the export.
constexpr qint64 MAX_PARAMS_FILE_BYTES = 64 * 1024 * 1024;

// The oldest parameter files a tour may link: earlier formats lack what the viewer needs.
constexpr double MIN_VERSION = 4.0;

// Changes the process's current directory for the lifetime of the object.
class CurrentDirectory
{
public:
    explicit CurrentDirectory(const QString &folder)
        : m_previous(QDir::currentPath())
        , m_entered(QDir::setCurrent(folder))
    { }
    ~CurrentDirectory()
    {
        if (m_entered)
            QDir::setCurrent(m_previous);
    }
    bool entered() const { return m_entered; }

private:
    QString m_previous;
    bool m_entered;
};

bool hasSupportedVersion(const QJsonObject &viewer)
{
    const QJsonValue version = viewer.value(QStringLiteral("version"));
    if (version.isDouble())
        return version.toDouble() >= MIN_VERSION;
    if (!version.isString())
        return false;
    bool ok = false;
    const double number = version.toString().toDouble(&ok);
    return ok && number >= MIN_VERSION;
}

// The names of the folder's viewer files, in the order the product's platform lists them.
QStringList viewerFileNames(const QString &folder)
{
    // Windows lists a folder in name order ignoring case; sorting the same way everywhere keeps
    // a tour's order the same wherever it was exported.
    return QDir(folder).entryList(
        {QStringLiteral("*.json"), QStringLiteral("*.jsonp"), QStringLiteral("*.js")},
        QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Name | QDir::IgnoreCase);
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

void readGalleryEntry(QJsonArray &gallery, const QString &fileName)
{
    QFile file(fileName);
    if (file.size() > MAX_PARAMS_FILE_BYTES || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    // The prefix decides before the rest is read: a large script of some other kind costs one
    // short read. A byte-order mark or a blank in front means some other writer: not ours.
    if (file.peek(PARAMS_PREFIX.size()) != PARAMS_PREFIX)
        return;
    QByteArray text = file.readAll();
    // A member list that ends in a separator gets its object closed once more.
    if (text.endsWith(",\n}\n}"))
        text.append("\n}\n}");

    const QJsonDocument document = QJsonDocument::fromJson(text.mid(PARAMS_PREFIX.size()));
    const QJsonObject viewer = document.object().value(QStringLiteral("vantoraViewer")).toObject();
    if (!hasSupportedVersion(viewer))
        return;
    // The panorama is described by "image" when present, else by "node".
    QJsonObject panorama = viewer.value(QStringLiteral("image")).toObject();
    if (!viewer.value(QStringLiteral("image")).isObject()) {
        if (!viewer.value(QStringLiteral("node")).isObject())
            return;
        panorama = viewer.value(QStringLiteral("node")).toObject();
    }
    const QString description = panorama.value(QStringLiteral("view"))
                                    .toObject()
                                    .value(QStringLiteral("shortdescription"))
                                    .toString();
    addGalleryEntry(
        gallery, fileName, description, panorama.value(QStringLiteral("location")).toObject());
}

QJsonObject writeGalleryFile(const QString &outputFolder, const QString &galleryFileName,
    const QString &paramsFileName, const QString &description, const QJsonObject &location)
{
    QJsonArray gallery;
    addGalleryEntry(gallery, paramsFileName, description, location);

    QStringList names = viewerFileNames(outputFolder);
    names.removeOne(paramsFileName);
    {
        // Entries name their files relative to the folder, as the viewer loads them.
        const CurrentDirectory inFolder(outputFolder);
        if (inFolder.entered())
            for (const QString &name : qAsConst(names))
                readGalleryEntry(gallery, name);
    }

    const QJsonObject include {{QStringLiteral("src"), galleryFileName}};
    // Written byte for byte: the layout's line feeds stay line feeds on every platform.
    plugin::stage::writeFile(plugin::toNativeSeparators(outputFolder + galleryFileName),
        "VantoraViewerParams = {\n\"vantoraViewer\":\n"
            + QJsonDocument(QJsonObject {{QStringLiteral("gallery"), gallery}}).toJson() + "\n}");
    return include;
}

} // namespace vantora::params
