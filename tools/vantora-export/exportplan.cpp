#include "exportplan.h"

#include "samplepanorama.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryFile>

namespace vantora::cli {
namespace {

// The folder must exist and take new files, or be creatable below a folder that does.
bool checkOutputFolder(const QString &pagePath, ExportPlan *plan, QString *error)
{
    QFileInfo existing(plan->folder);
    while (!existing.exists() && !existing.isRoot())
        existing = QFileInfo(existing.absolutePath());
    plan->existingAncestor = existing.absoluteFilePath();
    if (!existing.isDir()) {
        *error = QStringLiteral("cannot write into %1: %2 is not a folder")
                     .arg(plan->folder, existing.absoluteFilePath());
        return false;
    }
    QTemporaryFile probe(existing.absoluteFilePath() + QStringLiteral("/.vantora-probe-XXXXXX"));
    if (!probe.open()) {
        *error = QStringLiteral("cannot write into %1").arg(existing.absoluteFilePath());
        return false;
    }
    if (QFileInfo(pagePath).isDir()) {
        *error = QStringLiteral("%1 is a folder").arg(pagePath);
        return false;
    }
    return true;
}

} // namespace

namespace {

// The name the library gives a page's own files: the page name cut again at its last '.'.
QString libraryBaseName(const QString &pageName)
{
    const int dot = pageName.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? pageName : pageName.left(dot);
}

// Refuses, before anything is written, a tour whose pages would overwrite each other's files or
// the files every export shares. Names compare ignoring case, as on the real host's disks.
bool namesAreDistinct(const std::deque<Page> &pages, QString *error)
{
    QHash<QString, QString> owners; // a base name taken, folded -> who takes it
    const auto take = [&](const QString &base, const QString &page) {
        const QString key = base.toCaseFolded();
        const auto owner = owners.constFind(key);
        if (owner != owners.cend()) {
            *error = QStringLiteral("%1 and %2 would write the same files (%3.*)")
                         .arg(*owner, page, base);
            return false;
        }
        owners.insert(key, page);
        return true;
    };
    // The shared files: the viewer script and the gallery file, with either extension.
    for (const char *shared : {"vantoViewer", "vantoViewerGallery"})
        owners.insert(QString::fromLatin1(shared).toCaseFolded(),
            QStringLiteral("the shared file %1").arg(QString::fromLatin1(shared)));
    for (const Page &page : pages) {
        const QString base = libraryBaseName(page.name);
        const QString name = page.name + QStringLiteral(".html");
        if (!take(base, name) || !take(base + QStringLiteral("_controls"), name)
            || !take(base + QStringLiteral("_tiles"), name))
            return false;
    }
    return true;
}

} // namespace

bool makeExportPlan(const CliOptions &options, ExportPlan *plan, QString *error)
{
    plan->folder = QFileInfo(options.pagePath).absolutePath();
    const QString viewer = options.installFolder + QStringLiteral("VantoraViewer/vantoViewer.js");
    if (!QFileInfo(viewer).isFile()) {
        *error = QStringLiteral("no viewer script %1").arg(viewer);
        return false;
    }
    if (!checkOutputFolder(options.pagePath, plan, error))
        return false;

    std::deque<Page> &pages = plan->pages;
    if (options.images.isEmpty()) {
        pages.emplace_back();
        pages.back().source
            = sourceFromMemory(drawSamplePanorama(), QStringLiteral("the sample panorama"));
    }
    for (const QString &image : options.images) {
        pages.emplace_back();
        const SourceImage &source = pages.back().source;
        if (!openSourceImage(image, &pages.back().source, error))
            return false;
        // The header may promise any size; a small file claiming billions of pixels would fill
        // the disk with tiles.
        if (qint64(source.width) * source.height > options.maxPixels) {
            *error = QStringLiteral("%1 has %2x%3 pixels, more than %4 (see --max-pixels)")
                         .arg(image)
                         .arg(source.width)
                         .arg(source.height)
                         .arg(options.maxPixels);
            return false;
        }
    }
    QVector<HotspotSpec> hotspots;
    if (!options.hotspotFile.isEmpty() && !readHotspotFile(options.hotspotFile, &hotspots, error))
        return false;

    for (std::size_t i = 0; i < pages.size(); ++i) {
        Page &page = pages[i];
        // The first page takes the name the user gave; the others are named after their images.
        page.name = i == 0 ? QFileInfo(options.pagePath).completeBaseName()
                           : QFileInfo(page.source.path).completeBaseName();
        page.path = plan->folder + QLatin1Char('/') + page.name + QStringLiteral(".html");
        page.frame = frameFor(
            page.source.width, page.source.height, options.flat, options.hextent, options.vextent);
        if (!page.hotspots.build(hotspots, page.name, page.frame, error))
            return false;
    }

    if (!namesAreDistinct(pages, error))
        return false;

    plan->location = options.location;
    // The sample knows where its north is.
    if (options.images.isEmpty() && !(plan->location && plan->location->north)) {
        if (!plan->location)
            plan->location = Location {};
        plan->location->north = SAMPLE_NORTH;
    }
    return true;
}

void removeCreatedFolders(const ExportPlan &plan)
{
    QDir folder(plan.folder);
    while (folder.absolutePath() != plan.existingAncestor && folder.rmdir(folder.absolutePath())) {
        if (!folder.cdUp())
            break;
    }
}

} // namespace vantora::cli
