#include "commitjournal.h"

#include "exportlog.h"
#include "platform/platform.h"

#include <QDir>
#include <QFile>
#include <QList>
#include <QUrl>

namespace vantora::plugin::journal {
namespace {

const QString STAGED_SUFFIX = QStringLiteral(".vantora-new");
const QString KEPT_SUFFIX = QStringLiteral(".vantora-old");
const QString JOURNAL_NAME = QStringLiteral(".vantora-journal");
// The first line names the format; a journal of another version is left alone.
const QByteArray HEADER = "vantora-journal 1";
const QByteArray FORWARD = "forward";
const QByteArray BACK = "back";
const QByteArray END = "end";

bool isAbsolute(const QString &path)
{
    return path.startsWith(QLatin1Char('/')) || path.startsWith(QLatin1Char('\\'))
        || (path.size() > 1 && path.at(1) == QLatin1Char(':'));
}

// Names inside the folder are kept relative, so that a folder moved or copied after a crash
// still recovers; anything else keeps its full path.
QByteArray storedName(const QString &folder, const QString &target)
{
    const QString name = target.startsWith(folder) ? target.mid(folder.size()) : target;
    return QUrl::toPercentEncoding(name);
}

QString targetOf(const QString &folder, const QByteArray &stored)
{
    const QString name = QUrl::fromPercentEncoding(stored);
    return isAbsolute(name) ? name : folder + name;
}

// Moves a folder entry: what has the final name goes aside, the staged folder takes its place.
bool moveFolderIn(const Move &move)
{
    if (platform::pathExists(move.target)
        && !platform::renamePath(move.target, keptPath(move.target)))
        return false;
    return platform::renamePath(stagedPath(move.target), move.target);
}

bool putBack(const Move &move)
{
    const QString kept = keptPath(move.target);
    if (!move.existed) {
        // Made by this export: once its staged name is gone, the final name holds the new one.
        return platform::pathExists(stagedPath(move.target)) || platform::removeTree(move.target);
    }
    if (!platform::pathExists(kept))
        return true; // never moved: the final name still holds the earlier one
    if (!move.folder)
        return platform::replaceFile(kept, move.target);
    return platform::removeTree(move.target) && platform::renamePath(kept, move.target);
}

void removeWorkingFiles(const QString &folder)
{
    const QStringList names = QDir(folder).entryList(
        QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    for (const QString &name : names)
        if (isWorkingName(name))
            platform::removeTree(folder + name);
}

} // namespace

QString stagedPath(const QString &target)
{
    return target + STAGED_SUFFIX;
}

QString keptPath(const QString &target)
{
    return target + KEPT_SUFFIX;
}

bool isWorkingName(const QString &name)
{
    return name.endsWith(STAGED_SUFFIX) || name.endsWith(KEPT_SUFFIX)
        || name.endsWith(QLatin1String(".vantora-staging"))
        || name.endsWith(QLatin1String(".vantora-test"));
}

QString journalPath(const QString &folder)
{
    return folder + JOURNAL_NAME;
}

QByteArray journalBytes(const QString &folder, const QVector<Move> &moves, Direction direction)
{
    QByteArray bytes = HEADER + '\n' + (direction == Direction::Forward ? FORWARD : BACK) + '\n';
    for (const Move &move : moves)
        bytes += QByteArray(move.folder ? "d " : "f ") + (move.existed ? "1 " : "0 ")
            + storedName(folder, move.target) + '\n';
    return bytes + END + '\n';
}

bool parseJournal(
    const QString &folder, const QByteArray &bytes, QVector<Move> *moves, Direction *direction)
{
    QList<QByteArray> lines = bytes.split('\n');
    // A whole journal ends in "end" and a line feed: split leaves one empty piece after it.
    if (lines.size() < 4 || lines.takeLast() != QByteArray() || lines.takeLast() != END
        || lines.takeFirst() != HEADER)
        return false;
    const QByteArray way = lines.takeFirst();
    if (way != FORWARD && way != BACK)
        return false;
    *direction = way == FORWARD ? Direction::Forward : Direction::Back;
    moves->clear();
    for (const QByteArray &line : qAsConst(lines)) {
        const QList<QByteArray> fields = line.split(' ');
        if (fields.size() != 3 || (fields[0] != "d" && fields[0] != "f")
            || (fields[1] != "0" && fields[1] != "1") || fields[2].isEmpty())
            return false;
        moves->append({targetOf(folder, fields[2]), fields[0] == "d", fields[1] == "1"});
    }
    return true;
}

bool rollForward(const QVector<Move> &moves)
{
    for (const Move &move : moves) {
        const QString staged = stagedPath(move.target);
        if (!platform::pathExists(staged))
            continue; // moved already
        // A file kept ahead of the moves (keepAhead) needs no second name now.
        const QString kept = keptPath(move.target);
        const bool moved = move.folder   ? moveFolderIn(move)
            : platform::pathExists(kept) ? platform::replaceFile(staged, move.target)
                                         : platform::replaceFile(staged, move.target, kept);
        if (!moved) {
            qCWarning(lcVantoraExport, "cannot replace %s", qUtf8Printable(move.target));
            return false;
        }
    }
    return true;
}

bool rollBack(const QVector<Move> &moves)
{
    bool ok = true;
    for (int i = moves.size() - 1; i >= 0; --i) {
        const Move &move = moves.at(i);
        if (!putBack(move)) {
            qCWarning(lcVantoraExport, "cannot put back %s", qUtf8Printable(move.target));
            ok = false;
            continue; // its staged file may still be needed to tell what happened
        }
        platform::removeTree(stagedPath(move.target));
    }
    return ok;
}

void keepAhead(const QVector<Move> &moves)
{
    for (const Move &move : moves)
        if (!move.folder && move.existed)
            platform::addHardLink(move.target, keptPath(move.target));
}

void dropKept(const QVector<Move> &moves)
{
    for (const Move &move : moves)
        platform::removeTree(keptPath(move.target));
}

bool write(const QString &folder, const QVector<Move> &moves, Direction direction)
{
    const QString path = journalPath(folder);
    const QString staged = stagedPath(path);
    if (platform::writeNewFile(staged, journalBytes(folder, moves, direction))
        && platform::replaceFile(staged, path)) {
        platform::syncFolder(folder);
        return true;
    }
    platform::removeFile(staged);
    qCWarning(lcVantoraExport, "cannot write %s", qUtf8Printable(path));
    return false;
}

void remove(const QString &folder)
{
    platform::syncFolder(folder);
    platform::removeFile(journalPath(folder));
    platform::syncFolder(folder);
}

bool recover(const QString &folder)
{
    const QString path = journalPath(folder);
    if (platform::pathExists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            qCWarning(lcVantoraExport, "cannot read %s", qUtf8Printable(path));
            return false;
        }
        const QByteArray bytes = file.readAll();
        const bool read = file.error() == QFileDevice::NoError;
        file.close();
        if (!read) {
            qCWarning(lcVantoraExport, "cannot read %s", qUtf8Printable(path));
            return false;
        }
        QVector<Move> moves;
        Direction direction = Direction::Back;
        // A journal reaches its name whole, before the first move: one that does not parse was
        // not written by this library, and no move of ours depends on it.
        if (parseJournal(folder, bytes, &moves, &direction)) {
            bool done = direction == Direction::Forward && rollForward(moves);
            // What cannot be finished is undone; the journal says so first, so that a run
            // interrupted while undoing goes on undoing.
            if (!done)
                done = write(folder, moves, Direction::Back) && rollBack(moves);
            if (!done) {
                qCWarning(lcVantoraExport, "cannot recover the interrupted export in %s",
                    qUtf8Printable(folder));
                return false;
            }
            dropKept(moves);
        }
    }
    removeWorkingFiles(folder);
    remove(folder);
    return true;
}

} // namespace vantora::plugin::journal
