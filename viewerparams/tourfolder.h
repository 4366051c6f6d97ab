// The earlier exports of an output folder, read for the tour gallery and remembered between
// exports, so that a tour exported one panorama after another reads each file about once.
#pragma once

#include "galleryentry.h"

#include "plugin/platform/platform.h"

#include <QHash>
#include <QJsonArray>
#include <QString>

#include <deque>
#include <optional>

namespace vantora::params {

class TourFolderReader
{
public:
    // A file whose last change lies less than `settleMs` before it was read is read again at the
    // next scan: a file system keeps times in ticks (two seconds on FAT), and a second change in
    // the tick of the first, with the size kept, would leave the stamp as it was. 0 trusts every
    // stamp at once.
    static constexpr qint64 DEFAULT_SETTLE_MS = 3000;
    explicit TourFolderReader(qint64 settleMs = DEFAULT_SETTLE_MS);

    // Appends, in the folder's order, the entry of every parameter file of `folder` but
    // `currentName`: what reading each of them afresh would give.
    void appendEarlierExports(
        QJsonArray &gallery, const QString &folder, const QString &currentName);

    // Files opened and read so far.
    int filesRead() const { return m_filesRead; }

private:
    struct Remembered
    {
        platform::FileStamp stamp;
        std::optional<QJsonObject> entry; // none: not a parameter file
        bool settled = false;             // the stamp is to be trusted
    };
    using FolderMemory = QHash<QString, Remembered>;

    FolderMemory &memoryOf(const QString &folder);
    Remembered read(const QString &folder, const platform::ListedFile &file) const;

    qint64 m_settleMs;
    int m_filesRead = 0;
    // The folders scanned last, the latest first; a few, as a host seldom alternates between
    // more tours, and what is remembered stays bounded by what those folders hold.
    std::deque<std::pair<QString, FolderMemory>> m_folders;
};

// The reader that lives as long as the library is loaded.
TourFolderReader &processTourFolderReader();

} // namespace vantora::params
