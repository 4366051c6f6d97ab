#include "librarysession.h"

#include "hostrecord.h"

#include <QDir>
#include <QFileInfo>

#include <cstring>

namespace vantora::cli {
namespace {

// The loader's own reason without the wrapping the toolkit adds around it ("Cannot load library
// P: (P: reason)"), so that the path is named once, as the user gave it.
QString loaderReason(const QString &errorText, const QString &path)
{
    QString reason = errorText;
    const int open = reason.indexOf(QLatin1String(": ("));
    if (open >= 0 && reason.endsWith(QLatin1Char(')')))
        reason = reason.mid(open + 3, reason.size() - open - 4);
    for (const QString &prefix :
        {path + QLatin1String(": "), QFileInfo(path).fileName() + QLatin1String(": ")})
        if (reason.startsWith(prefix))
            reason = reason.mid(prefix.size());
    return reason;
}

} // namespace

bool LibrarySession::load(const QString &path, QString *error)
{
    const QString shown = QDir::toNativeSeparators(path);
    // The toolkit would try other names around a missing file; this tool loads that file only.
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("cannot load the library %1: no such file").arg(shown);
        return false;
    }
    m_library.setFileName(QFileInfo(path).absoluteFilePath());
    if (!m_library.load()) {
        *error = QStringLiteral("cannot load the library %1: %2")
                     .arg(shown, loaderReason(m_library.errorString(), m_library.fileName()));
        return false;
    }
    m_exportApplet = reinterpret_cast<ExportAppletFn>(m_library.resolve("export_applet"));
    if (!m_exportApplet) {
        *error = QStringLiteral("%1 has no export_applet").arg(shown);
        return false;
    }
    return true;
}

ExportOutcome LibrarySession::exportPage(HostContext &host, const QByteArray *settingsBlock)
{
    ExportOutcome outcome;
    std::uint64_t word = 0;
    if (settingsBlock && !settingsBlock->isEmpty()) {
        word = reinterpret_cast<std::uintptr_t>(settingsBlock->constData());
        m_exportApplet(VANTORA_RESTORE_SETTINGS, &host, &word);
    } else {
        m_exportApplet(VANTORA_RESTORE_SETTINGS, &host, nullptr);
    }
    word = 0;
    m_exportApplet(VANTORA_PREPARE, &host, &word);
    word = 0;
    m_exportApplet(VANTORA_WRITE, &host, &word);
    outcome.result = word;
    outcome.pagePath = pathFromHost(host.outputPath);

    // A host keeps both blocks with its document; this one has no document to keep them in, so
    // it reads the view and lets go of them at once.
    word = 0;
    m_exportApplet(VANTORA_SAVE_SETTINGS, &host, &word);
    outcome.settingsBlock = word != 0;
    word = 0;
    m_exportApplet(VANTORA_SAVE_VIEW, &host, &word);
    if (word)
        std::memcpy(
            &outcome.view, reinterpret_cast<const void *>(std::uintptr_t(word)), sizeof(ViewState));
    m_exportApplet(VANTORA_FREE_SETTINGS, &host, &word);
    m_exportApplet(VANTORA_FREE_VIEW, &host, &word);
    return outcome;
}

QString LibrarySession::describeResult(std::uint64_t result)
{
    switch (result) {
    case VANTORA_WRITE_DONE:
        return QStringLiteral("done");
    case VANTORA_WRITE_PAGE_NOT_WRITABLE:
        return QStringLiteral("page not writable");
    case VANTORA_WRITE_FAILED:
        return QStringLiteral("writing failed");
    case VANTORA_WRITE_NO_VIEWER:
        return QStringLiteral("viewer script missing in the installation folder");
    default:
        return QStringLiteral("unknown result %1").arg(result);
    }
}

} // namespace vantora::cli
