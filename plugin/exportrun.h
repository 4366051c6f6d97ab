// One export: command 0 prepares it, command 1 writes it and reports the files.
#pragma once

#include <vantora/host.h>

#include <QString>

#include <cstdint>

namespace vantora::plugin {

// Command 0: settles settings and view, plans the export, takes the target path from the host or
// the main dialog. Returns 0.
std::uint64_t prepareExport(HostContext &host);

// Command 1: writes everything prepared by command 0. Returns a VantoraWriteResult.
std::uint64_t writeExport(HostContext &host);

// The sizes behind the report of written files, in bytes.
struct ReportInput
{
    QString pageName;
    QString paramsFile;
    QString logoFile;  // empty: not listed
    QString soundFile; // empty: not listed
    std::uint64_t viewerBytes = 0;
    std::uint64_t pageBytes = 0;
    std::uint64_t paramsBytes = 0;
    std::uint64_t logoBytes = 0;
    std::uint64_t soundBytes = 0;
    std::uint64_t imageDataBytes = 0;
};

struct FileReport
{
    QString list; // one "name            (N KB)\n" entry per file
    int totalKb = 0;
};

// Page and parameter file count at least 1 KB each, everything else is rounded down.
FileReport buildFileReport(const ReportInput &input);

} // namespace vantora::plugin
