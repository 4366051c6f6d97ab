#include "report.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonArray>
#include <QMap>

#include <algorithm>
#include <cstdio>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vantora::cli {
namespace {

QString humanSize(qint64 bytes)
{
    if (bytes < 1024)
        return QStringLiteral("%1 B").arg(bytes);
    if (bytes < 1024 * 1024)
        return QStringLiteral("%1 KB").arg(double(bytes) / 1024, 0, 'f', 1);
    return QStringLiteral("%1 MB").arg(double(bytes) / (1024 * 1024), 0, 'f', 1);
}

// The image-data folder a file lies in ("B_tiles"), empty for the files beside the page.
QString tilesFolderOf(const QString &relativePath)
{
    const QString top = relativePath.section(QLatin1Char('/'), 0, 0);
    return top != relativePath && top.endsWith(QLatin1String("_tiles")) ? top : QString();
}

} // namespace

bool stderrIsTerminal()
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(fileno(stderr)) != 0;
#endif
}

ProgressLine::ProgressLine(bool terminal)
    : m_terminal(terminal)
{ }

void ProgressLine::start(const QString &label)
{
    m_label = label;
    m_percent = -1;
    update(0);
}

void ProgressLine::update(int percent)
{
    if (!m_terminal || percent == m_percent)
        return;
    m_percent = percent;
    std::fprintf(stderr, "\r%s: tiles %3d%%", m_label.toLocal8Bit().constData(), percent);
    std::fflush(stderr);
}

void ProgressLine::finish()
{
    if (!m_terminal)
        return;
    update(100);
    std::fputc('\n', stderr);
}

FolderSnapshot snapshotFolder(const QString &folder)
{
    FolderSnapshot files;
    const QDir base(folder);
    QDirIterator it(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
        QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        const QFileInfo info = it.fileInfo();
        const QString name = base.relativeFilePath(info.filePath());
        if (info.isDir())
            files.insert(name + QLatin1Char('/'), qMakePair(qint64(-1), qint64(-1)));
        else
            files.insert(name, qMakePair(info.size(), info.lastModified().toMSecsSinceEpoch()));
    }
    return files;
}

RunFiles changedFiles(const FolderSnapshot &before, const FolderSnapshot &after)
{
    RunFiles written;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (it.key().endsWith(QLatin1Char('/'))
            || before.value(it.key(), qMakePair(qint64(-1), qint64(-2))) == it.value())
            continue;
        const qint64 size = it.value().first;
        written.totalBytes += size;
        ++written.count;
        const QString tiles = tilesFolderOf(it.key());
        if (tiles.isEmpty()) {
            written.files.insert(it.key(), size);
        } else {
            written.tileFolders[tiles].first += 1;
            written.tileFolders[tiles].second += size;
        }
    }
    return written;
}

void printSummary(QTextStream &out, const QString &folder, const RunFiles &written)
{
    out << "files written in " << QDir::toNativeSeparators(folder) << ":\n";
    for (auto it = written.files.cbegin(); it != written.files.cend(); ++it)
        out << QStringLiteral("  %1  %2\n").arg(humanSize(it.value()), 10).arg(it.key());
    for (auto it = written.tileFolders.cbegin(); it != written.tileFolders.cend(); ++it)
        out << QStringLiteral("  %1  %2/ (%3 files)\n")
                   .arg(humanSize(it.value().second), 10)
                   .arg(it.key())
                   .arg(it.value().first);
    out << QStringLiteral("  %1  in %2 files\n")
               .arg(humanSize(written.totalBytes), 10)
               .arg(written.count);
}

QJsonObject summaryJson(const QString &folder, const RunFiles &written)
{
    QJsonArray files;
    for (auto it = written.files.cbegin(); it != written.files.cend(); ++it)
        files.append(QJsonObject {
            {QStringLiteral("path"), it.key()}, {QStringLiteral("bytes"), double(it.value())}});
    QJsonArray tileFolders;
    for (auto it = written.tileFolders.cbegin(); it != written.tileFolders.cend(); ++it)
        tileFolders.append(QJsonObject {{QStringLiteral("path"), it.key()},
            {QStringLiteral("files"), it.value().first},
            {QStringLiteral("bytes"), double(it.value().second)}});
    return {{QStringLiteral("folder"), QDir::toNativeSeparators(folder)},
        {QStringLiteral("files"), files}, {QStringLiteral("tileFolders"), tileFolders},
        {QStringLiteral("fileCount"), written.count},
        {QStringLiteral("totalBytes"), double(written.totalBytes)}};
}

} // namespace vantora::cli
