// The library as a host sees it: loaded once, then driven through the commands of each export.
#pragma once

#include <vantora/host.h>

#include <QByteArray>
#include <QLibrary>
#include <QString>

namespace vantora::cli {

struct ExportOutcome
{
    std::uint64_t result = 0;   // command 1's result code
    QString pagePath;           // what the library handed back in the output buffer
    ViewState view {};          // the start view, from the block of command 4
    bool settingsBlock = false; // command 2 handed over a block
};

class LibrarySession
{
public:
    // Loads the library and finds its entry point; false with one line in `error` otherwise.
    // The library stays loaded: it keeps process-wide state between exports, as hosts expect.
    bool load(const QString &path, QString *error);

    // One export: command 6 with `settingsBlock` (none: a null word, which restores nothing),
    // 0 without a dialog, 1, then 2 and 4 for the blocks a host keeps, 3 and 5 to release them.
    ExportOutcome exportPage(HostContext &host, const QByteArray *settingsBlock);

    static QString describeResult(std::uint64_t result);

private:
    QLibrary m_library;
    ExportAppletFn m_exportApplet = nullptr;
};

} // namespace vantora::cli
