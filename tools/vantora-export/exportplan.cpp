#include "exportplan.h"

#include "samplepanorama.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
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
        if (!openSourceImage(image, &pages.back().source, error))
            return false;
    }
    QVector<HotspotSpec> hotspots;
    if (!options.hotspotFile.isEmpty() && !readHotspotFile(options.hotspotFile, &hotspots, error))
        return false;

    QSet<QString> names;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        Page &page = pages[i];
        // The first page takes the name the user gave; the others are named after their images.
        page.name = i == 0 ? QFileInfo(options.pagePath).completeBaseName()
                           : QFileInfo(page.source.path).completeBaseName();
        page.path = plan->folder + QLatin1Char('/') + page.name + QStringLiteral(".html");
        if (names.contains(page.name)) {
            *error = QStringLiteral("two pages would be named %1.html").arg(page.name);
            return false;
        }
        names.insert(page.name);
        page.frame = frameFor(
            page.source.width, page.source.height, options.flat, options.hextent, options.vextent);
        if (!page.hotspots.build(hotspots, page.name, page.frame, error))
            return false;
    }

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
