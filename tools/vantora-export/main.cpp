// vantora-export: exports pictures, or the embedded sample panorama, as web pages through the
// Vantora web export library, driving it exactly as a panorama application does.
#include "exportplan.h"
#include "hostrecord.h"
#include "interruption.h"
#include "librarysession.h"
#include "options.h"
#include "plugin/outputstage.h"
#include "report.h"
#include "resources/resources.h"
#include "settingsdialog.h"
#include "settingsfile.h"
#include "toolpaths.h"

#include <vantora/version.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QWidget>

#include <deque>
#include <memory>

namespace {

using namespace vantora::cli;

constexpr int EXIT_EXPORT_FAILED = 1;
constexpr int EXIT_BAD_INPUT = 2;

// One line on stderr, the only way this tool reports a failure.
int fail(int status, const QString &message)
{
    QTextStream(stderr) << "vantora-export: " << message << '\n';
    return status;
}

// The summary a script reads: the pages, the files and the time spent.
void printJson(
    QTextStream &out, const QJsonArray &pages, QJsonObject summary, qint64 exportMs, qint64 tilesMs)
{
    summary.insert(QStringLiteral("version"), QStringLiteral(VANTORA_EXPORT_VERSION));
    summary.insert(QStringLiteral("pages"), pages);
    summary.insert(QStringLiteral("timings"),
        QJsonObject {{QStringLiteral("exportMs"), double(exportMs)},
            {QStringLiteral("tilesMs"), double(tilesMs)},
            {QStringLiteral("libraryMs"), double(exportMs - tilesMs)}});
    out << QJsonDocument(summary).toJson(QJsonDocument::Indented);
}

int printVersion(const ToolPaths &paths)
{
    // Tool and library are built and installed together from one source tree.
    QTextStream(stdout) << "vantora-export " << VANTORA_EXPORT_VERSION << '\n'
                        << "library " << VANTORA_EXPORT_VERSION << ": "
                        << QDir::toNativeSeparators(paths.library) << '\n'
                        << "viewer folder: " << QDir::toNativeSeparators(paths.installFolder)
                        << '\n';
    return 0;
}

// Qt warns on stderr when the offscreen platform finds no runtime folder; the tool draws no
// window, and its stderr carries only its own one-line errors.
QtMessageHandler standardHandler = nullptr;

void filterQtMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (type == QtWarningMsg && message.startsWith(QLatin1String("QStandardPaths:")))
        return;
    // The library names each file it could not write on its logging category.
    if (qstrcmp(context.category, "vantora.export") == 0) {
        QTextStream(stderr) << "vantora-export: " << message << '\n';
        return;
    }
    if (standardHandler)
        standardHandler(type, context, message);
    else
        QTextStream(stderr) << qFormatLogMessage(type, context, message) << '\n';
}

// Decided before the application exists: only an interactive run needs widgets and a desktop.
bool asksForDialogs(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--interactive") == 0 || qstrcmp(argv[i], "--settings-dialog") == 0)
            return true;
    }
    return false;
}

// The preset file after --settings-dialog, which replaces an export; empty without one.
QString presetToEdit(const QStringList &arguments)
{
    const int at = arguments.indexOf(QStringLiteral("--settings-dialog"));
    return at > 0 && at + 1 < arguments.size() ? arguments[at + 1] : QString();
}

} // namespace

int main(int argc, char *argv[])
{
    // Without --interactive the tool never shows a window: draw offscreen unless told otherwise.
    const bool dialogs = asksForDialogs(argc, argv);
    if (!dialogs && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    standardHandler = qInstallMessageHandler(filterQtMessages);
    QLoggingCategory::setFilterRules(QStringLiteral("vantora.export.warning=true"));
    const std::unique_ptr<QGuiApplication> app = dialogs
        ? std::make_unique<QApplication>(argc, argv)
        : std::make_unique<QGuiApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vantora-export"));
    // The map markers the library asks the host to export are the library's own pictures; the
    // tool carries them through the library's sources it links anyway.
    vantora::resources::ensureRegistered();

    if (dialogs && QCoreApplication::arguments().contains(QStringLiteral("--settings-dialog"))) {
        const QString preset = presetToEdit(QCoreApplication::arguments());
        if (preset.isEmpty())
            return fail(EXIT_BAD_INPUT, QStringLiteral("--settings-dialog needs a preset file"));
        return editPresetFile(preset);
    }

    CliOptions options;
    QString message;
    const ToolPaths paths = findToolPaths(QCoreApplication::applicationDirPath());
    switch (parseOptions(
        QCoreApplication::arguments(), paths.library, paths.installFolder, &options, &message)) {
    case ParseResult::Help:
        QTextStream(stdout) << message;
        return 0;
    case ParseResult::Version:
        return printVersion(paths);
    case ParseResult::Error:
        return fail(EXIT_BAD_INPUT, message);
    case ParseResult::Run:
        break;
    }
    // The library's own recovery, run before anything is planned, read or measured.
    const QString outputFolder = QFileInfo(options.pagePath).absolutePath() + QLatin1Char('/');
    if (options.recoverOnly || QFileInfo(outputFolder).isDir()) {
        if (!vantora::plugin::stage::recover(outputFolder))
            return fail(EXIT_EXPORT_FAILED,
                QStringLiteral("cannot finish or undo the export cut short in %1")
                    .arg(QDir::toNativeSeparators(outputFolder)));
        if (options.recoverOnly)
            return 0;
    }
    if (!options.settingsFile.isEmpty() && !isPresetFile(options.settingsFile, &message))
        return fail(EXIT_BAD_INPUT, QStringLiteral("--settings: ") + message);
    if (!options.writeSettings.isEmpty()) {
        if (!writeSettingsFile(options, &message))
            return fail(EXIT_BAD_INPUT, message);
        if (!options.quiet)
            QTextStream(stdout) << "settings: " << QDir::toNativeSeparators(options.writeSettings)
                                << '\n';
        return 0;
    }
    const QString notice = settingsNotice(options);
    if (!notice.isEmpty() && !options.quiet)
        QTextStream(stderr) << "vantora-export: " << notice << '\n';
    if (!initImageLibrary(argv[0]))
        return fail(EXIT_EXPORT_FAILED, QStringLiteral("cannot start the image library"));

    // Everything is checked before the first file is written.
    ExportPlan plan;
    QString error;
    if (!makeExportPlan(options, &plan, &error))
        return fail(EXIT_BAD_INPUT, error);

    // The settings folder is the host's; a run of this tool leaves the user's folders alone.
    QTemporaryDir settingsFolder;
    if (!settingsFolder.isValid())
        return fail(EXIT_EXPORT_FAILED,
            QStringLiteral("cannot make a settings folder: %1").arg(settingsFolder.errorString()));
    // Every page of a tour gets the same settings; without a settings file or a title the
    // block stays empty and the library keeps its defaults.
    const QByteArray settingsBlock = settingsBlockFor(options);
    LibrarySession library;
    if (!library.load(options.libraryPath, &error))
        return fail(EXIT_EXPORT_FAILED, error);

    const QString &folder = plan.folder;
    const FolderSnapshot before = snapshotFolder(folder);
    if (!QDir().mkpath(folder))
        return fail(EXIT_EXPORT_FAILED, QStringLiteral("cannot make the folder %1").arg(folder));
    // The window the library's dialogs belong to, as a panorama application's main window.
    std::unique_ptr<QWidget> parentWindow;
    if (options.interactive) {
        parentWindow = std::make_unique<QWidget>();
        parentWindow->setWindowTitle(QStringLiteral("vantora-export"));
    }
    // From here on Ctrl-C stops the run at its next safe point instead of killing it midway.
    watchInterruptions();
    QTextStream out(stdout);
    QStringList pageLines;
    QStringList writtenPages;
    QJsonArray pageObjects;
    ProgressLine progress(stderrIsTerminal() && !options.quiet && !options.json);
    qint64 exportMs = 0;
    qint64 tilesMs = 0;
    const std::deque<Page> &pages = plan.pages;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const Page &page = pages[i];
        PageJob job;
        job.source = &page.source;
        job.pagePath = QDir::toNativeSeparators(page.path);
        job.frame = page.frame;
        job.documentId = i + 1;
        job.quality = options.quality;
        job.tileFormat = options.tileFormat;
        job.pageWidth = options.pageWidth;
        job.pageHeight = options.pageHeight;
        job.fitToPage = options.fitToPage;
        job.hotspots = &page.hotspots;
        job.location = plan.location;
        job.installFolder = options.installFolder;
        job.settingsFolder = QDir::toNativeSeparators(settingsFolder.path() + QLatin1Char('/'));
        job.progress = [&progress](int percent) { progress.update(percent); };
        job.parentWindow = parentWindow.get();

        HostRecord host(job);
        progress.start(QStringLiteral("%1 (%2/%3)").arg(page.name).arg(i + 1).arg(pages.size()));
        QElapsedTimer clock;
        clock.start();
        const ExportOutcome outcome = library.exportPage(*host.context(), &settingsBlock);
        exportMs += clock.elapsed();
        tilesMs += host.tiles().elapsedMs;
        progress.finish();
        const bool exported = outcome.result == VANTORA_WRITE_DONE && !outcome.pagePath.isEmpty();
        host.finishTiles();
        // Cancelled in the dialog: the library wrote nothing, and neither did the tool.
        if (options.interactive && outcome.result == VANTORA_WRITE_DONE
            && outcome.pagePath.isEmpty()) {
            removeCreatedFolders(plan);
            QTextStream(stderr) << "vantora-export: export cancelled\n";
            return 0;
        }
        // Stopped while its tiles were cut, or between the pages of a tour: the pages not yet
        // exported stay as they were. Only a run whose every page is done counts as finished.
        // Like a failure, the pages already done are whole new exports and stay, named in the line.
        if (interrupted() && (!exported || i + 1 < pages.size())) {
            if (exported)
                writtenPages.append(QDir::toNativeSeparators(outcome.pagePath));
            removeCreatedFolders(plan);
            QTextStream(stderr) << "vantora-export: interrupted"
                                << (writtenPages.isEmpty() ? QString()
                                                           : QStringLiteral("; written before it: ")
                                               + writtenPages.join(QStringLiteral(", ")))
                                << '\n';
            return interruptedStatus();
        }
        if (!exported) {
            // The library left this page's files as they were; the pages before it are whole new
            // exports and stay, named in the one line.
            removeCreatedFolders(plan);
            QString reason = LibrarySession::describeResult(outcome.result);
            if (host.tiles().called && !host.tiles().ok)
                reason
                    = QStringLiteral("tiles of %1: %2").arg(page.source.name, host.tiles().error);
            for (const QString &line : qAsConst(pageLines))
                out << line << '\n';
            out.flush();
            return fail(EXIT_EXPORT_FAILED,
                QStringLiteral("export of %1 failed: %2; %3")
                    .arg(page.source.name, reason,
                        writtenPages.isEmpty()
                            ? QStringLiteral("no page was written")
                            : QStringLiteral("written before it: %1")
                                  .arg(writtenPages.join(QStringLiteral(", ")))));
        }
        writtenPages.append(QDir::toNativeSeparators(outcome.pagePath));
        pageLines.append(
            QStringLiteral("page: %1  (%2, %3x%4, %5, start view pan %6 tilt %7 hfov %8)")
                .arg(QDir::toNativeSeparators(outcome.pagePath), page.source.name)
                .arg(page.source.width)
                .arg(page.source.height)
                .arg(page.frame.flat ? QStringLiteral("flat")
                                     : QStringLiteral("%1x%2 degrees")
                                           .arg(page.frame.hextent)
                                           .arg(page.frame.vextent))
                .arg(outcome.view.pan)
                .arg(outcome.view.tilt)
                .arg(outcome.view.hfov));
        pageObjects.append(
            QJsonObject {{QStringLiteral("page"), QDir::toNativeSeparators(outcome.pagePath)},
                {QStringLiteral("image"), page.source.name},
                {QStringLiteral("width"), page.source.width},
                {QStringLiteral("height"), page.source.height},
                {QStringLiteral("flat"), page.frame.flat},
                {QStringLiteral("hextent"), page.frame.hextent},
                {QStringLiteral("vextent"), page.frame.vextent},
                {QStringLiteral("view"),
                    QJsonObject {{QStringLiteral("pan"), outcome.view.pan},
                        {QStringLiteral("tilt"), outcome.view.tilt},
                        {QStringLiteral("hfov"), outcome.view.hfov}}}});
    }
    const RunFiles written = changedFiles(before, snapshotFolder(folder));
    if (options.json) {
        printJson(out, pageObjects, summaryJson(folder, written), exportMs, tilesMs);
        return 0;
    }
    if (options.quiet)
        return 0;
    // Printed once every page is done: a failed tour names no page as written.
    for (const QString &line : qAsConst(pageLines))
        out << line << '\n';
    // In the dialog the user may have chosen another folder; the summary covers the proposed one.
    if (!options.interactive)
        printSummary(out, folder, written);
    out << QStringLiteral(
        "export time: %1 s, of which tiles %2 s and the library's own files %3 s\n")
               .arg(exportMs / 1000.0, 0, 'f', 3)
               .arg(tilesMs / 1000.0, 0, 'f', 3)
               .arg((exportMs - tilesMs) / 1000.0, 0, 'f', 3);
    return 0;
}
