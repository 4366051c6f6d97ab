// vantora-export: runs one web export of a synthetic panorama through the built library, the
// way a host does without a dialog, and lists the files it wrote.
#include "clihost.h"

#include <vantora/host.h>

#include <QCommandLineParser>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QRegularExpression>
#include <QTextStream>

#include <cstdio>
#include <optional>

namespace {

constexpr int EXIT_BAD_OPTIONS = 2;
constexpr int EXIT_EXPORT_FAILED = 1;

// One line on stderr, the only way this tool reports a failure.
int fail(int status, const QString &message)
{
    QTextStream(stderr) << "vantora-export: " << message << '\n';
    return status;
}

std::optional<std::uint32_t> wholeNumber(const QString &text, std::uint32_t low, std::uint32_t high)
{
    bool ok = false;
    const uint value = text.toUInt(&ok);
    if (!ok || value < low || value > high)
        return std::nullopt;
    return value;
}

std::optional<double> degrees(const QString &text, double high)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (!ok || !(value > 0.0) || value > high)
        return std::nullopt;
    return value;
}

// Size and modification time of every file below `folder`, by relative path.
QHash<QString, QPair<qint64, qint64>> snapshot(const QString &folder)
{
    QHash<QString, QPair<qint64, qint64>> files;
    const QDir base(folder);
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        const QFileInfo info = it.fileInfo();
        files.insert(base.relativeFilePath(info.filePath()),
            qMakePair(info.size(), info.lastModified().toMSecsSinceEpoch()));
    }
    return files;
}

QString defaultLibrary()
{
    const QString built = QStringLiteral(VANTORA_EXPORT_LIBRARY);
    if (QFileInfo::exists(built))
        return built;
    // An installed tool finds the library beside itself.
    return QCoreApplication::applicationDirPath() + QStringLiteral("/vantora_export");
}

} // namespace

int main(int argc, char *argv[])
{
    // The tool never shows a window: draw offscreen unless told otherwise.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vantora-export"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Exports a synthetic panorama as a web page through the Vantora web export library."));
    const QCommandLineOption helpOption = parser.addHelpOption();
    const QCommandLineOption outputOption({QStringLiteral("o"), QStringLiteral("output")},
        QStringLiteral("The page to write (required)."), QStringLiteral("OUT.html"));
    const QCommandLineOption widthOption(QStringLiteral("width"),
        QStringLiteral("Image width in pixels (4000)."), QStringLiteral("PIXELS"),
        QStringLiteral("4000"));
    const QCommandLineOption heightOption(QStringLiteral("height"),
        QStringLiteral("Image height in pixels (2000)."), QStringLiteral("PIXELS"),
        QStringLiteral("2000"));
    const QCommandLineOption hextentOption(QStringLiteral("hextent"),
        QStringLiteral("Horizontal extent in degrees (360)."), QStringLiteral("DEGREES"),
        QStringLiteral("360"));
    const QCommandLineOption vextentOption(QStringLiteral("vextent"),
        QStringLiteral("Vertical extent in degrees (180)."), QStringLiteral("DEGREES"),
        QStringLiteral("180"));
    const QCommandLineOption flatOption(
        QStringLiteral("flat"), QStringLiteral("The image is flat, not a panorama."));
    const QCommandLineOption fitOption(
        QStringLiteral("fit-to-page"), QStringLiteral("The viewer fills the browser window."));
    const QCommandLineOption pageSizeOption(QStringLiteral("page-size"),
        QStringLiteral("Viewer area in the page (800x600)."), QStringLiteral("WxH"),
        QStringLiteral("800x600"));
    const QCommandLineOption installOption(QStringLiteral("install"),
        QStringLiteral("Installation folder holding VantoraViewer/vantoViewer.js (default: the "
                       "build's placeholder)."),
        QStringLiteral("DIR"), QStringLiteral(VANTORA_PLACEHOLDER_INSTALL));
    const QCommandLineOption qualityOption(QStringLiteral("quality"),
        QStringLiteral("JPEG quality: 70, 80 or 90 (80)."), QStringLiteral("PERCENT"));
    const QCommandLineOption libraryOption(QStringLiteral("library"),
        QStringLiteral("The export library to load."), QStringLiteral("FILE"), defaultLibrary());
    parser.addOptions({outputOption, widthOption, heightOption, hextentOption, vextentOption,
        flatOption, fitOption, pageSizeOption, installOption, qualityOption, libraryOption});

    if (!parser.parse(QCoreApplication::arguments()))
        return fail(EXIT_BAD_OPTIONS, parser.errorText());
    if (parser.isSet(helpOption))
        parser.showHelp(0);
    if (!parser.positionalArguments().isEmpty())
        return fail(EXIT_BAD_OPTIONS,
            QStringLiteral("unexpected argument '%1'")
                .arg(parser.positionalArguments().constFirst()));

    vantora::cli::ExportOptions options;
    if (!parser.isSet(outputOption) || parser.value(outputOption).isEmpty())
        return fail(EXIT_BAD_OPTIONS, QStringLiteral("--output is required"));
    options.pagePath = QFileInfo(parser.value(outputOption)).absoluteFilePath();

    const auto width = wholeNumber(parser.value(widthOption), 1, 1000000);
    if (!width)
        return fail(
            EXIT_BAD_OPTIONS, QStringLiteral("--width must be a whole number from 1 to 1000000"));
    const auto height = wholeNumber(parser.value(heightOption), 1, 1000000);
    if (!height)
        return fail(
            EXIT_BAD_OPTIONS, QStringLiteral("--height must be a whole number from 1 to 1000000"));
    options.imageWidth = *width;
    options.imageHeight = *height;

    const auto hextent = degrees(parser.value(hextentOption), 360.0);
    if (!hextent)
        return fail(EXIT_BAD_OPTIONS, QStringLiteral("--hextent must be above 0 and at most 360"));
    const auto vextent = degrees(parser.value(vextentOption), 180.0);
    if (!vextent)
        return fail(EXIT_BAD_OPTIONS, QStringLiteral("--vextent must be above 0 and at most 180"));
    options.hextent = *hextent;
    options.vextent = *vextent;

    const QRegularExpressionMatch pageSize
        = QRegularExpression(QStringLiteral("^([1-9][0-9]{0,4})x([1-9][0-9]{0,4})$"))
              .match(parser.value(pageSizeOption));
    if (!pageSize.hasMatch())
        return fail(
            EXIT_BAD_OPTIONS, QStringLiteral("--page-size must be WIDTHxHEIGHT, e.g. 800x600"));
    options.pageWidth = pageSize.captured(1).toInt();
    options.pageHeight = pageSize.captured(2).toInt();

    if (parser.isSet(qualityOption)) {
        const QString quality = parser.value(qualityOption);
        if (quality != QLatin1String("70") && quality != QLatin1String("80")
            && quality != QLatin1String("90"))
            return fail(EXIT_BAD_OPTIONS, QStringLiteral("--quality must be 70, 80 or 90"));
        options.quality = quality.toUInt();
    }
    options.flat = parser.isSet(flatOption);
    options.fitToPage = parser.isSet(fitOption);
    // The library joins the folder and the viewer's sub-folder without inserting a separator.
    options.installFolder = QDir::toNativeSeparators(
        QFileInfo(parser.value(installOption)).absoluteFilePath() + QLatin1Char('/'));

    const QString folder = QFileInfo(options.pagePath).absolutePath();
    if (!QDir().mkpath(folder))
        return fail(EXIT_EXPORT_FAILED, QStringLiteral("cannot make the folder %1").arg(folder));
    const auto before = snapshot(folder);

    vantora::cli::ExportOutcome outcome;
    QString error;
    if (!vantora::cli::runExport(parser.value(libraryOption), options, &outcome, &error))
        return fail(EXIT_EXPORT_FAILED, error);

    QTextStream out(stdout);
    out << "result " << outcome.result << " (" << vantora::cli::describeResult(outcome.result)
        << ")\n";
    if (outcome.result == VANTORA_WRITE_DONE) {
        out << "page: " << outcome.pagePath << '\n';
        out << "start view: pan " << outcome.pan << ", tilt " << outcome.tilt << ", hfov "
            << outcome.hfov << " (" << outcome.minhfov << " to " << outcome.maxhfov << ")\n";
    }

    // New files and files whose size or time changed: what this run wrote.
    const auto after = snapshot(folder);
    QStringList written;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (before.value(it.key(), qMakePair(qint64(-1), qint64(-1))) != it.value())
            written.append(it.key());
    }
    written.sort();
    out << "files written in " << QDir::toNativeSeparators(folder) << ": " << written.size()
        << '\n';
    for (const QString &file : written)
        out << QStringLiteral("%1").arg(after.value(file).first, 12) << " bytes  " << file << '\n';
    out.flush();

    if (outcome.result != VANTORA_WRITE_DONE)
        return fail(EXIT_EXPORT_FAILED,
            QStringLiteral("export failed with result %1 (%2)")
                .arg(outcome.result)
                .arg(vantora::cli::describeResult(outcome.result)));
    return 0;
}
