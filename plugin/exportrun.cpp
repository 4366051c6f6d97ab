#include "exportrun.h"

#include "defaultview.h"
#include "dialogs/targetprompt.h"
#include "exportjob.h"
#include "hostaccess.h"
#include "messages.h"
#include "outputfiles.h"
#include "outputstage.h"
#include "platform/platform.h"
#include "pluginstate.h"
#include "settings/viewersettings.h"

#include <QFileInfo>

#include <algorithm>

namespace vantora::plugin {
namespace {

QWidget *parentWindow(const HostContext &host)
{
    return static_cast<QWidget *>(host.parentWindow);
}

QString sizeLine(std::uint64_t kb)
{
    return QString::asprintf("            (%d KB)\n", int(kb));
}

} // namespace

std::uint64_t prepareExport(HostContext &host)
{
    PluginState &state = pluginState();
    if (!state.settingsRestored)
        settings::resetViewerSettings();
    if (!state.viewRestored)
        state.view = defaultViewFromHost(host);
    state.settingsRestored = false;
    state.viewRestored = false;

    ExportJob &job = state.job;
    job = ExportJob {};
    job.imageWidth = job.outputWidth = host.imageWidth;
    job.imageHeight = job.outputHeight = host.imageHeight;

    // The same document at the same size keeps the scale the user chose last time.
    const bool sameDocument = host.documentId == state.previousDocument
        && host.imageWidth == state.previousWidth && host.imageHeight == state.previousHeight;
    job.scale = sameDocument ? state.storedScale : 100;

    const QString target
        = host.nonInteractive ? fromHost(host.pathBuffer) : dialogs::runMainDlg(host, job);
    if (!target.isEmpty()) {
        job.targetPath = target;
        job.viewerFolder = job.userFolder = job.imageFolder = outputFolderOf(target);
        job.baseName = baseNameOf(target);
        job.prepared = true;
        copyToHost(host.outputPath, target);
    }

    copyToHost(host.pathBuffer, QString());
    state.storedScale = job.scale;
    state.previousDocument = host.documentId;
    state.previousWidth = host.imageWidth;
    state.previousHeight = host.imageHeight;
    return 0;
}

std::uint64_t writeExport(HostContext &host)
{
    ExportJob &job = exportJob();
    if (!job.prepared)
        return VANTORA_WRITE_DONE;
    job.prepared = false;

    const QString viewerSource = viewerScriptSource(host);
    if (!QFileInfo(viewerSource).isFile())
        return VANTORA_WRITE_NO_VIEWER;

    const settings::ViewerSettings &settings = settings::viewerSettings();
    const QString folder = outputFolderOf(job.targetPath);
    job.viewerFolder = job.userFolder = job.imageFolder = folder;
    const OutputNames names = outputNames(job.baseName, settings.ExtensionJS, job.formatFlags);
    const QString pagePath = folder + names.page;

    // An earlier export cut short in this folder is finished or undone before anything is added.
    if (!stage::recover(folder))
        return VANTORA_WRITE_FAILED;
    if (!testWritable(pagePath, parentWindow(host)))
        return VANTORA_WRITE_PAGE_NOT_WRITABLE;

    if (view().hfov == 0.0)
        view() = defaultViewFromHost(host);

    WriteRequest request;
    request.viewerFolder = job.viewerFolder;
    request.userFolder = job.userFolder;
    request.imageFolder = job.imageFolder;
    request.pageName = names.page;
    request.paramsFile = job.auxName1 + names.paramsFile;
    request.controlsFile = names.controlsFile;
    request.auxName2 = job.auxName2;
    if (writeAllFiles(host, request, &job.imageDataBytes) != 0)
        return VANTORA_WRITE_FAILED;

    copyToHost(host.outputPath, pagePath);
    copyToHost(host.pathBuffer, pagePath);
    storeView(host, view());

    ReportInput sizes;
    sizes.pageName = names.page;
    sizes.paramsFile = names.paramsFile;
    sizes.logoFile = settings.LogoFile;
    sizes.soundFile = settings.SoundFile;
    sizes.viewerBytes = fileSize(folder + QStringLiteral("vantoViewer.js"));
    sizes.pageBytes = fileSize(pagePath);
    sizes.paramsBytes = fileSize(folder + request.paramsFile);
    sizes.logoBytes = settings.LogoFile.isEmpty() ? 0 : fileSize(folder + settings.LogoFile);
    sizes.soundBytes = settings.SoundFile.isEmpty() ? 0 : fileSize(folder + settings.SoundFile);
    sizes.imageDataBytes = job.imageDataBytes;
    const FileReport report = buildFileReport(sizes);

    if (!host.nonInteractive) {
        const QString question = QString::asprintf(
            Tr::tr("Die Dateien für das interaktive Panorama/Zoom-Bild wurden erfolgreich "
                   "gespeichert!\nIm Ordner %ls wurden folgende Dateien erstellt:\n%lsGesamtgröße "
                   "der Dateien: %d KB\n\nJetzt im Browser anzeigen?")
                .toUtf8()
                .constData(),
            folder.utf16(), report.list.utf16(), report.totalKb);
        if (askYesNo(parentWindow(host), Tr::tr("Hinweis"), question))
            platform::openWithDefaultHandler(pagePath);
    }
    return VANTORA_WRITE_DONE;
}

FileReport buildFileReport(const ReportInput &input)
{
    const std::uint64_t page = std::max<std::uint64_t>(input.pageBytes, 1024);
    const std::uint64_t params = std::max<std::uint64_t>(input.paramsBytes, 1024);

    FileReport report;
    report.list = QStringLiteral("vantoViewer") + sizeLine(input.viewerBytes / 1024);
    report.list += input.pageName + sizeLine(page / 1024);
    report.list += input.paramsFile + sizeLine(params / 1024);
    if (!input.logoFile.isEmpty())
        report.list += input.logoFile + sizeLine(input.logoBytes / 1024);
    if (!input.soundFile.isEmpty())
        report.list += input.soundFile + sizeLine(input.soundBytes / 1024);
    report.list += Tr::tr("Bilddaten: ") + sizeLine(input.imageDataBytes / 1024);
    report.totalKb = int((input.viewerBytes + page + params + input.logoBytes + input.soundBytes
                             + input.imageDataBytes)
        / 1024);
    return report;
}

} // namespace vantora::plugin
