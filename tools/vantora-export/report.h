// What the user sees on the terminal: a progress line while tiles are written, the files of the
// run with their sizes at the end.
#pragma once

#include <QHash>
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

// Lists what changed between the snapshots: each file with its size, each image-data folder
// ("*_tiles") as one line with its file count and total, then the total of the run.
void printSummary(QTextStream &out, const QString &folder, const FolderSnapshot &before,
    const FolderSnapshot &after);

} // namespace vantora::cli
