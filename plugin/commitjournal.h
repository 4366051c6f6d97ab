// The commit journal of an export: the list of moves that put a staged export into place, kept in
// the output folder while they run, so that an export interrupted among them (a killed process, a
// power cut) is finished or undone by the next run instead of leaving old and new files mixed.
//
// Every file of an export is first written beside its final name (stagedPath) and flushed. The
// journal, naming each final name in the order of the moves, then reaches the disk in one rename.
// Each move keeps what it replaces under keptPath until all moves are done; then the kept files
// and the journal go. A journal found later is rolled forward (every staged file still there
// moves in) or, when it was marked to go back, rolled back (every kept file returns, the new ones
// go); either way the folder ends as one whole export and the journal is removed.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace vantora::plugin::journal {

// One final name of the export.
struct Move
{
    QString target;       // the final path
    bool folder = false;  // a whole folder (the image data), else a file
    bool existed = false; // something had the final name before the export
};

enum class Direction {
    Forward, // finish the moves: the new export
    Back,    // undo them: the export that was there before
};

// Where the file `target` is written before the commit, and where what it replaces is kept.
QString stagedPath(const QString &target);
QString keptPath(const QString &target);
// Whether a name in an output folder is one of these working names (or another of the export's:
// the tile writer's staging folder, the page's writability probe).
bool isWorkingName(const QString &name);

// The journal of the output folder `folder` (ending in a separator).
QString journalPath(const QString &folder);

// The journal's bytes, names relative to `folder`; and back. parse() is false for anything but a
// whole journal.
QByteArray journalBytes(const QString &folder, const QVector<Move> &moves, Direction direction);
bool parseJournal(
    const QString &folder, const QByteArray &bytes, QVector<Move> *moves, Direction *direction);

// Makes the moves; false at the first that fails (the rest are left undone).
bool rollForward(const QVector<Move> &moves);
// Undoes whatever of the moves was done, in reverse order, and removes the staged files. False
// when something could not be put back.
bool rollBack(const QVector<Move> &moves);
// Gives every file that a move will replace its kept name ahead of the moves, where the file
// system allows a second name: the moves themselves are then single renames, and an export cut
// short among them leaves as few mixed states as it can. Before the journal is written.
void keepAhead(const QVector<Move> &moves);
// Removes the kept files of the moves: the last step of a commit.
void dropKept(const QVector<Move> &moves);

// Writes the journal durably; false when it could not be.
bool write(const QString &folder, const QVector<Move> &moves, Direction direction);
// Removes the journal once its moves are done or undone.
void remove(const QString &folder);

// Finishes or undoes an export interrupted in `folder`, then removes the working files an export
// left there (staged, kept, probes, the tile writer's staging folder). False, with a logged line,
// when the journal could not be carried out; it then stays for the next run.
bool recover(const QString &folder);

} // namespace vantora::plugin::journal
