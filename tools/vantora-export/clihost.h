// The host side of one export without a dialog: the record handed to the library, the host
// operations it calls back, and the two commands of the run.
#pragma once

#include <QString>

#include <cstdint>

namespace vantora::cli {

struct ExportOptions
{
    QString pagePath; // absolute path of the page to write
    std::uint32_t imageWidth = 4000;
    std::uint32_t imageHeight = 2000;
    double hextent = 360.0; // degrees, centred on pan 0
    double vextent = 180.0; // degrees, centred on the horizon
    bool flat = false;
    bool fitToPage = false;
    int pageWidth = 800;
    int pageHeight = 600;
    QString installFolder;     // ending in a separator
    std::uint32_t quality = 0; // 0: the tile writer's default of 80
};

struct ExportOutcome
{
    std::uint64_t result = 0; // command 1's result code
    QString pagePath;         // what the library handed back in the output buffer
    double pan = 0, tilt = 0, hfov = 0, minhfov = 0, maxhfov = 0; // the view written back
};

// Loads the library at `libraryPath` and runs command 0 (non-interactive) and command 1. False,
// with `error` set, when the library cannot be loaded or lacks its entry point.
bool runExport(const QString &libraryPath, const ExportOptions &options, ExportOutcome *outcome,
    QString *error);

// What a result code of command 1 means, in a few words.
QString describeResult(std::uint64_t result);

} // namespace vantora::cli
