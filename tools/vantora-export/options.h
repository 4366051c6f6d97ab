// The command line: what the user asked for, checked, or the one line that says what is wrong.
#pragma once

#include "tilepyramid.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vantora::cli {

struct Location
{
    bool hasPosition = false; // latitude and longitude known
    double latitude = 0.0;
    double longitude = 0.0;
    std::optional<double> north; // pan of north, degrees from the picture's left edge
};

struct CliOptions
{
    QStringList images; // empty: the embedded sample
    QString pagePath;   // absolute; the first page of a tour
    bool flat = false;
    std::optional<double> hextent; // degrees; unset: from the aspect ratio
    std::optional<double> vextent;
    int quality = 80;
    TileFormat tileFormat = TileFormat::Jpeg;
    qint64 maxPixels = 1000000000; // a source picture with more pixels is refused before tiling
    int pageWidth = 800;
    int pageHeight = 600;
    bool fitToPage = false;
    QString hotspotFile;
    QString settingsFile;         // a preset INI file; empty: the library's defaults
    std::optional<QString> title; // replaces the settings' title
    std::optional<Location> location;
    bool interactive = false; // the library's dialogs choose; --output is only proposed
    bool recoverOnly = false; // finish or undo an interrupted export in OUT's folder, nothing else
    bool quiet = false;       // nothing on a terminal but errors
    bool json = false;        // stdout carries one JSON summary instead of the lines for people
    QString writeSettings; // non-empty: write the settings as a preset there instead of exporting
    QString installFolder; // ends in a separator
    QString libraryPath;
};

enum class ParseResult { Run, Help, Version, Error };

// Parses `arguments` (the program name first). On Help, `message` holds the help text; on Error,
// one line without the program name. Version asks for the version lines, which the caller knows.
ParseResult parseOptions(const QStringList &arguments, const QString &defaultLibrary,
    const QString &defaultInstall, CliOptions *options, QString *message);

} // namespace vantora::cli
