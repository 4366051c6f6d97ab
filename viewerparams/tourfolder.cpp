#include "tourfolder.h"

#include "galleryfile.h"

#include "plugin/paths.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>

namespace vantora::params {
namespace {

constexpr std::size_t REMEMBERED_FOLDERS = 4;

const QStringList VIEWER_FILE_PATTERNS
    = {QStringLiteral("*.json"), QStringLiteral("*.jsonp"), QStringLiteral("*.js")};

// The patterns match whatever the case; a name of plain ASCII is decided without a regular
// expression, any other by the folder-listing rules themselves.
bool isViewerFileName(const QString &name)
{
    bool ascii = true;
    for (const QChar c : name)
        ascii = ascii && c.unicode() < 0x80;
    if (ascii) {
        for (const char *suffix : {".json", ".jsonp", ".js"})
            if (name.endsWith(QLatin1String(suffix), Qt::CaseInsensitive))
                return true;
        return false;
    }
    static const std::vector<QRegularExpression> patterns = [] {
        std::vector<QRegularExpression> compiled;
        for (const QString &pattern : VIEWER_FILE_PATTERNS)
            compiled.emplace_back(QRegularExpression::wildcardToRegularExpression(pattern),
                QRegularExpression::CaseInsensitiveOption);
        return compiled;
    }();
    return std::any_of(patterns.begin(), patterns.end(),
        [&](const QRegularExpression &pattern) { return pattern.match(name).hasMatch(); });
}

// Windows lists a folder in name order ignoring case; sorting the same way everywhere keeps a
// tour's order the same wherever it was exported. Names equal but for case keep a fixed order.
void sortAsListed(std::vector<platform::ListedFile> &files)
{
    std::vector<std::pair<QString, std::size_t>> keys;
    keys.reserve(files.size());
    for (std::size_t i = 0; i < files.size(); ++i)
        keys.emplace_back(files[i].name.toLower(), i);
    std::sort(keys.begin(), keys.end(), [&](const auto &a, const auto &b) {
        const int order = a.first.compare(b.first);
        return order != 0 ? order < 0 : files[a.second].name < files[b.second].name;
    });
    std::vector<platform::ListedFile> sorted;
    sorted.reserve(files.size());
    for (const auto &key : keys)
        sorted.push_back(std::move(files[key.second]));
    files = std::move(sorted);
}

} // namespace

TourFolderReader::TourFolderReader(qint64 settleMs)
    : m_settleMs(settleMs)
{ }

TourFolderReader::FolderMemory &TourFolderReader::memoryOf(const QString &folder)
{
    auto found = std::find_if(m_folders.begin(), m_folders.end(),
        [&](const auto &remembered) { return remembered.first == folder; });
    if (found != m_folders.end()) {
        if (found != m_folders.begin()) {
            auto moved = std::move(*found);
            m_folders.erase(found);
            m_folders.push_front(std::move(moved));
        }
    } else {
        m_folders.emplace_front(folder, FolderMemory());
        if (m_folders.size() > REMEMBERED_FOLDERS)
            m_folders.pop_back();
    }
    return m_folders.front().second;
}

TourFolderReader::Remembered TourFolderReader::read(
    const QString &folder, const platform::ListedFile &file) const
{
    Remembered remembered;
    remembered.stamp = file.stamp;
    // The stamp was taken before the read: a change during the read shows at the next scan.
    const qint64 readAtNs = QDateTime::currentMSecsSinceEpoch() * 1000000;
    remembered.settled = m_settleMs == 0
        || std::max(file.stamp.modifiedNs, file.stamp.changedNs) < readAtNs - m_settleMs * 1000000;
    QJsonArray one;
    readGalleryEntry(one, folder, file.name, file.stamp.size);
    if (!one.isEmpty())
        remembered.entry = one.first().toObject();
    return remembered;
}

void TourFolderReader::appendEarlierExports(
    QJsonArray &gallery, const QString &folder, const QString &currentName)
{
    // Entries name their files relative to the folder, as the viewer loads them.
    const QString base
        = plugin::withTrailingSeparator(folder.isEmpty() ? QStringLiteral(".") : folder);
    std::vector<platform::ListedFile> files = platform::listPlainFiles(base, isViewerFileName);
    sortAsListed(files);
    FolderMemory &memory = memoryOf(base);
    FolderMemory now;
    now.reserve(int(files.size()));
    for (const platform::ListedFile &file : files) {
        if (file.name == currentName)
            continue;
        const auto known = memory.constFind(file.name);
        Remembered remembered;
        if (known != memory.constEnd() && known->settled && known->stamp == file.stamp) {
            remembered = *known;
        } else {
            remembered = read(base, file);
            ++m_filesRead;
        }
        if (remembered.entry)
            gallery.append(*remembered.entry);
        now.insert(file.name, std::move(remembered));
    }
    // Files gone from the folder are forgotten.
    memory = std::move(now);
}

TourFolderReader &processTourFolderReader()
{
    static TourFolderReader reader;
    return reader;
}

} // namespace vantora::params
