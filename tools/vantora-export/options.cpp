#include "options.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace vantora::cli {
namespace {

std::optional<double> number(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

bool parseExtent(const QString &text, double high, std::optional<double> *extent)
{
    const auto value = number(text);
    if (!value || !(*value > 0.0) || *value > high)
        return false;
    *extent = value;
    return true;
}

bool parseLocation(const QString &text, Location *location)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 2 && parts.size() != 3)
        return false;
    const auto latitude = number(parts[0]);
    const auto longitude = number(parts[1]);
    if (!latitude || !longitude || *latitude < -90 || *latitude > 90 || *longitude < -180
        || *longitude > 180)
        return false;
    location->hasPosition = true;
    location->latitude = *latitude;
    location->longitude = *longitude;
    if (parts.size() == 3) {
        const auto north = number(parts[2]);
        if (!north || *north < 0 || *north >= 360)
            return false;
        location->north = north;
    }
    return true;
}

} // namespace

ParseResult parseOptions(const QStringList &arguments, const QString &defaultLibrary,
    const QString &defaultInstall, CliOptions *options, QString *message)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Exports pictures as interactive web pages through the Vantora web export library.\n"
        "Without IMAGE it exports the embedded sample panorama. With several images it writes a\n"
        "tour into one folder: the first page is OUT.html, every further page is named after its\n"
        "image. Each page is replaced as a whole or not at all: when a page of a tour fails, the\n"
        "pages before it stay written (the message names them), that page and the ones after it\n"
        "keep what the folder held. An export cut short (killed, power lost) is finished or undone\n"
        "by the next run into the same folder, or by --recover."));
    parser.addPositionalArgument(QStringLiteral("IMAGE"),
        QStringLiteral("Pictures to export (JPEG, PNG, TIFF, ...)."),
        QStringLiteral("[IMAGE ...]"));
    const QCommandLineOption help(
        {QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version(QStringLiteral("version"),
        QStringLiteral("Shows the version of the tool and of the library it loads."));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
        QStringLiteral("The page to write (required)."), QStringLiteral("OUT.html"));
    const QCommandLineOption quiet({QStringLiteral("q"), QStringLiteral("quiet")},
        QStringLiteral("Prints nothing but errors: no progress, no list of files."));
    const QCommandLineOption json(QStringLiteral("json"),
        QStringLiteral("Prints one JSON object on stdout instead: pages, files, sizes, timings."));
    const QCommandLineOption writeSettings(QStringLiteral("write-settings"),
        QStringLiteral("Writes the viewer settings (the defaults, or --settings and --title "
                       "applied to them) as a preset file to edit, and exports nothing."),
        QStringLiteral("FILE"));
    const QCommandLineOption flat(
        QStringLiteral("flat"), QStringLiteral("Export flat 2D zoom images instead of panoramas."));
    const QCommandLineOption hextent(QStringLiteral("hextent"),
        QStringLiteral("Horizontal extent of a partial panorama in degrees, up to 360 (default: "
                       "from the aspect ratio)."),
        QStringLiteral("DEGREES"));
    const QCommandLineOption vextent(QStringLiteral("vextent"),
        QStringLiteral("Vertical extent in degrees, up to 180, centred on the horizon (default: "
                       "from the aspect ratio)."),
        QStringLiteral("DEGREES"));
    const QCommandLineOption quality(QStringLiteral("quality"),
        QStringLiteral("Quality of the tiles: 70, 80 or 90 (80)."), QStringLiteral("PERCENT"),
        QStringLiteral("80"));
    const QCommandLineOption tileFormat(QStringLiteral("tile-format"),
        QStringLiteral("Encoding of the tiles: jpeg or webp (jpeg). WebP tiles are smaller; "
                       "every current browser shows them."),
        QStringLiteral("FORMAT"), QStringLiteral("jpeg"));
    const QCommandLineOption pageSize(QStringLiteral("page-size"),
        QStringLiteral("Size of the viewer area in the page (800x600)."), QStringLiteral("WxH"),
        QStringLiteral("800x600"));
    const QCommandLineOption fit(QStringLiteral("fit-to-page"),
        QStringLiteral("The viewer fills the whole browser window (instead of --page-size)."));
    const QCommandLineOption hotspots(QStringLiteral("hotspots"),
        QStringLiteral("Link and info hotspots from a JSON file (docs/hotspots-file.md)."),
        QStringLiteral("FILE"));
    const QCommandLineOption location(QStringLiteral("location"),
        QStringLiteral("Where the panorama was taken, for map and compass: latitude and longitude "
                       "in degrees, optionally the pan of north in degrees from the left edge."),
        QStringLiteral("LAT,LNG[,NORTH]"));
    const QCommandLineOption settingsFile(QStringLiteral("settings"),
        QStringLiteral("Viewer settings from a preset file, as the settings dialog saves them "
                       "(INI, docs/vantora-export.md)."),
        QStringLiteral("FILE"));
    const QCommandLineOption title(QStringLiteral("title"),
        QStringLiteral("Title shown over the panorama and in the browser (replaces the settings' "
                       "title)."),
        QStringLiteral("TEXT"));
    const QCommandLineOption install(QStringLiteral("install"),
        QStringLiteral("Installation folder holding VantoraViewer/vantoViewer.js (default: the "
                       "one installed with the tool)."),
        QStringLiteral("DIR"), defaultInstall);
    const QCommandLineOption library(QStringLiteral("library"),
        QStringLiteral("The export library to load (default: the one installed with the tool)."),
        QStringLiteral("FILE"), defaultLibrary);
    const QCommandLineOption maxPixels(QStringLiteral("max-pixels"),
        QStringLiteral("Largest source picture accepted, in pixels (1000000000); its header "
                       "is checked before any tile is cut."),
        QStringLiteral("COUNT"), QStringLiteral("1000000000"));
    const QCommandLineOption interactive(QStringLiteral("interactive"),
        QStringLiteral("Shows the library's export dialog on the desktop, as a panorama "
                       "application does: OUT.html is only proposed there. One image at most."));
    const QCommandLineOption recover(QStringLiteral("recover"),
        QStringLiteral("Only finishes or undoes an export cut short in the folder of OUT.html, "
                       "leaving the old export or the new one, whole; exports nothing."));
    const QList<QCommandLineOption> all {help, version, output, flat, hextent, vextent, quality,
        maxPixels, pageSize, fit, hotspots, location, settingsFile, title, install, library,
        interactive, recover, quiet, json, writeSettings, tileFormat};
    parser.addOptions(all);

    auto error = [message](const QString &text) {
        *message = text;
        return ParseResult::Error;
    };
    // A mistake in the options themselves: the help lists them.
    auto usage = [&error](QString text) {
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
        return error(text + QStringLiteral(" (vantora-export --help lists the options)"));
    };
    if (!parser.parse(arguments))
        return usage(parser.errorText());
    if (parser.isSet(help)) {
        *message = parser.helpText();
        return ParseResult::Help;
    }
    if (parser.isSet(version))
        return ParseResult::Version;
    // Every option takes one value: a second one is a mistake, not a replacement.
    for (const QCommandLineOption &option : all) {
        if (!option.valueName().isEmpty() && parser.values(option).size() > 1)
            return usage(QStringLiteral("--%1 is given more than once").arg(option.names().last()));
    }
    options->quiet = parser.isSet(quiet);
    options->json = parser.isSet(json);

    if (parser.isSet(settingsFile)) {
        const QFileInfo file(parser.value(settingsFile));
        if (!file.isFile() || !file.isReadable())
            return error(QStringLiteral("--settings: cannot read %1")
                             .arg(QDir::toNativeSeparators(file.filePath())));
        options->settingsFile = file.absoluteFilePath();
    }
    if (parser.isSet(title))
        options->title = parser.value(title);
    if (parser.isSet(writeSettings)) {
        if (parser.value(writeSettings).isEmpty())
            return usage(QStringLiteral("--write-settings needs a file name"));
        if (parser.isSet(output) || !parser.positionalArguments().isEmpty())
            return usage(
                QStringLiteral("--write-settings writes a preset only: no IMAGE, no --output"));
        options->writeSettings = QFileInfo(parser.value(writeSettings)).absoluteFilePath();
        return ParseResult::Run;
    }

    if (!parser.isSet(output) || parser.value(output).isEmpty())
        return usage(QStringLiteral("--output is required"));
    const QFileInfo page(parser.value(output));
    if (!page.fileName().endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        || page.completeBaseName().isEmpty())
        return error(QStringLiteral("--output must name an .html file"));
    options->pagePath = page.absoluteFilePath();
    options->images = parser.positionalArguments();
    options->recoverOnly = parser.isSet(recover);
    if (options->recoverOnly && !options->images.isEmpty())
        return error(QStringLiteral("--recover exports nothing: give it no image"));
    options->flat = parser.isSet(flat);

    if (parser.isSet(hextent) && !parseExtent(parser.value(hextent), 360.0, &options->hextent))
        return error(QStringLiteral("--hextent must be above 0 and at most 360"));
    if (parser.isSet(vextent) && !parseExtent(parser.value(vextent), 180.0, &options->vextent))
        return error(QStringLiteral("--vextent must be above 0 and at most 180"));
    if (options->flat && (options->hextent || options->vextent))
        return error(
            QStringLiteral("--hextent and --vextent describe panoramas, not --flat images"));

    const QString qualityText = parser.value(quality);
    if (qualityText != QLatin1String("70") && qualityText != QLatin1String("80")
        && qualityText != QLatin1String("90"))
        return error(QStringLiteral("--quality must be 70, 80 or 90"));
    options->quality = qualityText.toInt();
    const QString format = parser.value(tileFormat);
    if (format != QLatin1String("jpeg") && format != QLatin1String("webp"))
        return error(QStringLiteral("--tile-format must be jpeg or webp"));
    options->tileFormat = format == QLatin1String("webp") ? TileFormat::WebP : TileFormat::Jpeg;

    const QRegularExpressionMatch size
        = QRegularExpression(QStringLiteral("^([1-9][0-9]{0,4})x([1-9][0-9]{0,4})$"))
              .match(parser.value(pageSize));
    if (!size.hasMatch())
        return error(QStringLiteral("--page-size must be WIDTHxHEIGHT, e.g. 800x600"));
    options->pageWidth = size.captured(1).toInt();
    options->pageHeight = size.captured(2).toInt();
    options->fitToPage = parser.isSet(fit);
    if (options->fitToPage && parser.isSet(pageSize))
        return error(QStringLiteral("--fit-to-page and --page-size exclude each other"));

    bool countOk = false;
    options->maxPixels = parser.value(maxPixels).toLongLong(&countOk);
    if (!countOk || options->maxPixels < 1)
        return error(QStringLiteral("--max-pixels must be a positive number"));
    if (parser.isSet(hotspots)) {
        // Only a regular file: a pipe or a device would block the tool or never end.
        const QFileInfo file(parser.value(hotspots));
        if (!file.isFile() || !file.isReadable())
            return error(QStringLiteral("--hotspots: cannot read %1")
                             .arg(QDir::toNativeSeparators(file.filePath())));
        options->hotspotFile = file.absoluteFilePath();
    }
    if (parser.isSet(location)) {
        Location where;
        if (!parseLocation(parser.value(location), &where))
            return error(QStringLiteral("--location must be LAT,LNG[,NORTH] with latitude -90..90, "
                                        "longitude -180..180, north 0..360"));
        options->location = where;
    }
    // The library joins this folder and the viewer's sub-folder without a separator between.
    options->installFolder = QDir::toNativeSeparators(
        QFileInfo(parser.value(install)).absoluteFilePath() + QLatin1Char('/'));
    options->libraryPath = QFileInfo(parser.value(library)).absoluteFilePath();
    options->interactive = parser.isSet(interactive);
    if (options->interactive && options->images.size() > 1)
        return error(QStringLiteral("--interactive exports one image at a time"));
    return ParseResult::Run;
}

} // namespace vantora::cli
