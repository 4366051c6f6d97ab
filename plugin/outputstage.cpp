#include "outputstage.h"

#include "commitjournal.h"
#include "exportlog.h"
#include "platform/platform.h"

#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <algorithm>

Q_LOGGING_CATEGORY(lcVantoraExport, "vantora.export", QtCriticalMsg)

namespace vantora::plugin {

bool writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const QString staged = journal::stagedPath(path);
    if (platform::writeNewFile(staged, bytes) && platform::replaceFile(staged, path))
        return true;
    platform::removeFile(staged);
    qCWarning(lcVantoraExport, "cannot write %s", qUtf8Printable(path));
    return false;
}

} // namespace vantora::plugin

namespace vantora::plugin::stage {
namespace {

struct Stage
{
    bool open = false;
    bool failed = false;
    QStringList reserved;
    QVector<journal::Move> entries; // in the order written
};

Stage &current()
{
    static Stage stage;
    return stage;
}

bool fail(const char *what, const QString &path)
{
    qCWarning(lcVantoraExport, "%s %s", what, qUtf8Printable(path));
    if (current().open)
        current().failed = true;
    return false;
}

void addEntry(const QString &path, bool folder)
{
    QVector<journal::Move> &entries = current().entries;
    const bool known = std::any_of(entries.cbegin(), entries.cend(),
        [&](const journal::Move &entry) { return entry.target == path; });
    if (!known)
        entries.append({path, folder, false});
}

QString folderOf(const QString &path)
{
    const int cut
        = std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.left(cut + 1);
}

// The image data first, so that the page, moved last, never names tiles not yet in place; the
// files in the order they were written, which ends with the parameter file and the page.
QVector<journal::Move> plannedMoves(const QVector<journal::Move> &entries)
{
    QVector<journal::Move> moves = entries;
    std::stable_partition(
        moves.begin(), moves.end(), [](const journal::Move &move) { return move.folder; });
    for (journal::Move &move : moves) {
        move.existed = platform::pathExists(move.target);
        // A kept name left by an earlier run would be taken for this one's.
        platform::removeTree(journal::keptPath(move.target));
    }
    return moves;
}

} // namespace

void begin(const QStringList &reserved)
{
    discard();
    Stage &stage = current();
    stage.open = true;
    stage.reserved = reserved;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    Stage &stage = current();
    if (!stage.open)
        return writeFileAtomically(path, bytes);
    if (!platform::writeNewFile(journal::stagedPath(path), bytes))
        return fail("cannot write", path);
    addEntry(path, false);
    return true;
}

bool writeTextFile(const QString &path, const QByteArray &text)
{
    return writeFile(path, platform::withPlatformLineEnds(text));
}

bool copyFile(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = source.readAll();
    if (source.error() != QFileDevice::NoError)
        return false;
    return writeFile(to, bytes);
}

void writeByHost(const QString &path, const std::function<void(const QString &target)> &write)
{
    if (isReserved(path))
        return;
    if (!current().open) {
        write(path);
        return;
    }
    // Whatever has the staged name goes first, so the host never writes through a planted link.
    const QString staged = journal::stagedPath(path);
    if (!platform::removeTree(staged))
        return;
    write(staged);
    if (QFileInfo(staged).isFile() && !platform::isLink(staged))
        addEntry(path, false);
    else
        platform::removeTree(staged);
}

void adoptStagedFolder(const QString &path)
{
    const QString staged = journal::stagedPath(path);
    if (current().open && !platform::isLink(staged) && QFileInfo(staged).isDir())
        addEntry(path, true);
}

void reportFailure(const QString &path)
{
    fail("cannot write", path);
}

bool isReserved(const QString &path)
{
    return current().open && current().reserved.contains(path, Qt::CaseInsensitive);
}

bool failed()
{
    return current().failed;
}

bool commit()
{
    Stage &stage = current();
    if (stage.failed || stage.entries.isEmpty()) {
        const bool done = !stage.failed;
        discard();
        return done;
    }
    const QString folder = folderOf(stage.entries.constFirst().target);
    const QVector<journal::Move> moves = plannedMoves(stage.entries);
    journal::keepAhead(moves);
    if (!journal::write(folder, moves, journal::Direction::Forward)) {
        journal::dropKept(moves);
        discard();
        return false;
    }
    if (journal::rollForward(moves)) {
        journal::dropKept(moves);
        journal::remove(folder);
        stage = Stage();
        return true;
    }
    // Undone at once; should that fail or be cut short, the journal, marked first, has the next
    // run finish the undoing.
    journal::write(folder, moves, journal::Direction::Back);
    if (journal::rollBack(moves)) {
        journal::dropKept(moves);
        journal::remove(folder);
    }
    stage = Stage();
    return false;
}

void discard()
{
    Stage &stage = current();
    for (const journal::Move &entry : qAsConst(stage.entries))
        platform::removeTree(journal::stagedPath(entry.target));
    stage = Stage();
}

bool recover(const QString &folder)
{
    return journal::recover(folder);
}

} // namespace vantora::plugin::stage
