// What the user sees on the terminal: a progress line while tiles are written, the files of the
// run with their sizes at the end.
#pragma once

#include <QHash>
#include <QJsonObject>
#include <QMap>
#include <QPair>
#include <QString>
#include <QTextStream>

namespace vantora::cli {

// Whether stderr is a terminal, where a line may be rewritten in place.
bool stderrIsTerminal();

// One line on stderr, rewritten in place; silent when stderr is not a terminal.
class ProgressLine
{
public:
    explicit ProgressLine(bool terminal);
    void start(const QString &label);
    void update(int percent);
    void finish();

private:
    bool m_terminal;
    QString m_label;
    int m_percent = -1;
};

// Size and modification time of every file below a folder, by path relative to it.
using FolderSnapshot = QHash<QString, QPair<qint64, qint64>>;
FolderSnapshot snapshotFolder(const QString &folder);

// What a run wrote: the files beside the pages with their sizes, each image-data folder ("*_tiles")
// with its file count and total, by path relative to the output folder.
struct RunFiles
{
    QMap<QString, qint64> files;
    QMap<QString, QPair<int, qint64>> tileFolders;
    qint64 totalBytes = 0;
    int count = 0;
};
RunFiles changedFiles(const FolderSnapshot &before, const FolderSnapshot &after);

// Lists the files: each with its size, each image-data folder as one line, then the total.
void printSummary(QTextStream &out, const QString &folder, const RunFiles &written);

// The same as JSON: "folder", "files" [{"path", "bytes"}], "tileFolders" [{"path", "files",
// "bytes"}], "fileCount", "totalBytes".
QJsonObject summaryJson(const QString &folder, const RunFiles &written);

} // namespace vantora::cli
