#include "outputfiles.h"

#include "exportjob.h"
#include "hostaccess.h"
#include "messages.h"
#include "outputstage.h"
#include "pagewriter.h"
#include "paths.h"
#include "platform/platform.h"
#include "pluginstate.h"
#include "settings/viewersettings.h"
#include "viewerparams/paramsfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vantora::plugin {
namespace {

// Copies a user file (logo, sound) next to the page; returns its name there, empty when the
// setting is empty. A source that cannot be read is not reported: the file list shows what the
// disk holds. A name the export's own files take is left to them.
QString copyUserFile(const QString &source, const QString &folder)
{
    if (source.isEmpty())
        return QString();
    const QString name = fileNamePart(source);
    if (!stage::isReserved(folder + name))
        stage::copyFile(source, folder + name);
    return name;
}

} // namespace

std::uint64_t fileSize(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? std::uint64_t(info.size()) : 0;
}

std::uint64_t folderSize(const QString &folder)
{
    std::uint64_t total = 0;
    const QFileInfoList entries
        = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::System | QDir::NoSymLinks);
    for (const QFileInfo &entry : entries)
        total += std::uint64_t(entry.size());
    return total;
}

bool testWritable(const QString &path, QWidget *parent)
{
    // A link in place of the page is replaced, not written through: what counts is whether a
    // file can be made beside it.
    const bool link = platform::isLink(path);
    const QString probe = link ? path + QStringLiteral(".vantora-test") : path;
    QFile file(probe);
    const bool existed = !link && file.exists();
    if (file.open(QIODevice::ReadWrite)) {
        file.close();
        // The page is written last; an export that fails before must not leave an empty one.
        if (!existed)
            file.remove();
        return true;
    }
    showCritical(parent, Tr::tr("Fehler"),
        QString::asprintf(
            Tr::tr("Die Datei %ls kann nicht geschrieben werden!").toUtf8().constData(),
            path.utf16()));
    return false;
}

QString viewerScriptSource(const HostContext &host)
{
    // The installation folder carries its own trailing separator.
    return fromHost(host.installFolder) + QStringLiteral("VantoraViewer") + nativeSeparator()
        + QStringLiteral("vantoViewer.js");
}

QString galleryFileName(bool extensionJs)
{
    return extensionJs ? QStringLiteral("vantoViewerGallery.js")
                       : QStringLiteral("vantoViewerGallery.json");
}

int writeAllFiles(HostContext &host, const WriteRequest &request, std::uint64_t *imageDataBytes)
{
    settings::ViewerSettings &settings = settings::viewerSettings();
    const ExportJob &job = exportJob();

    if (host.start)
        host.start(nullptr);
    *imageDataBytes = 0;

    // Every file of the export reaches its final name only once all of them have been written,
    // so that a failure leaves the earlier export in the folder as it was.
    const QString viewerCopy = request.viewerFolder + QStringLiteral("vantoViewer.js");
    const QString galleryFile = galleryFileName(settings.ExtensionJS);
    stage::begin({viewerCopy, request.viewerFolder + request.pageName,
        request.viewerFolder + request.paramsFile, request.viewerFolder + request.controlsFile,
        request.viewerFolder + galleryFile});
    if (!stage::copyFile(viewerScriptSource(host), viewerCopy))
        stage::reportFailure(viewerCopy);
    settings.LogoFile = copyUserFile(settings.LogoImage, request.userFolder);
    settings.SoundFile = copyUserFile(settings.Sound, request.userFolder);

    params::ParamsInput input;
    input.host = &host;
    input.settings = &settings;
    input.view = view();
    input.flatMode = host.flatImage != 0 || job.displayType != 0;
    input.outputWidth = job.outputWidth;
    input.outputHeight = job.outputHeight;
    input.scalePercent = job.scale;
    bool written = params::writeViewerParams(input, request.viewerFolder, request.paramsFile,
                       request.controlsFile, galleryFile)
        != 0;
    // A host that staged its image data beside the folder has it moved in with the rest.
    const QString base = withoutExtension(request.pageName);
    const QString tilesFolder = request.imageFolder + base + QStringLiteral("_tiles");
    stage::adoptStagedFolder(tilesFolder);

    if (written) {
        PageInput page;
        page.nameForBase = request.pageName;
        page.paramsFile = fileNamePart(request.paramsFile);
        page.title = settings.Title64;
        page.pageWidth = host.pageWidth;
        page.pageHeight = host.pageHeight;
        page.fitToPage = host.fitToPage != 0;
        page.showWebGLWarning = settings.ShowWebGLWarning;
        writePage(request.viewerFolder + request.pageName, page);
    }
    written = written && !stage::failed() ? stage::commit() : (stage::discard(), false);

    *imageDataBytes += folderSize(tilesFolder);

    if (host.close)
        host.close(&host);
    return written ? 0 : 2;
}

} // namespace vantora::plugin
