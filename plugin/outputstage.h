// The whole-file writes of one export, kept out of sight until the export has succeeded.
//
// While a stage is open every file goes to a new file beside its final name; commit() then moves
// them all into place under a commit journal (commitjournal.h), keeping the replaced files until
// the last one is in, so that a failure at any point puts the earlier export back and an export
// killed among the moves is finished by the next run's recover(). discard() drops what was
// written. Outside a stage a write still replaces its file in one step, never truncating it first.
//
// Order of use by the export run: recover(folder), begin(), the writes, then commit() or discard().
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace vantora::plugin {

// Replaces the file `path` with `bytes` in one step (a new file beside it, flushed, then renamed
// over it); a link at `path` is replaced, not followed. False, with a logged line, on failure:
// the old file then stays as it was.
bool writeFileAtomically(const QString &path, const QByteArray &bytes);

} // namespace vantora::plugin

namespace vantora::plugin::stage {

// Opens a stage (dropping one left open). `reserved` lists the final paths that only the export's
// own writers may fill (compared ignoring case); copies of user files never take them.
void begin(const QStringList &reserved = {});

// Writes `bytes` as the file `path`; a failure is logged and marks the stage failed.
bool writeFile(const QString &path, const QByteArray &bytes);
// The same as writeFile, with line feeds written as the platform's line ends.
bool writeTextFile(const QString &path, const QByteArray &text);
// Copies the file `from` to `to`. A source that cannot be read is not an error of the export
// (false, nothing logged); a copy that cannot be written is.
bool copyFile(const QString &from, const QString &to);

// Has the host write the file `path`: `write` is called with the name to write to (beside `path`
// while a stage is open, the file is then moved in with the rest). A file the host did not write
// is no error of the export; nothing replaces the old one then. A reserved name is never given.
void writeByHost(const QString &path, const std::function<void(const QString &target)> &write);

// Joins the folder `path` + ".vantora-new", when a host left one there, to the stage: the commit
// puts it in the place of the folder `path` (the image data), the first of all moves.
void adoptStagedFolder(const QString &path);

// Logs that `path` could not be written and marks the stage failed.
void reportFailure(const QString &path);

// Whether `path` is one of the reserved names of the open stage.
bool isReserved(const QString &path);

// Whether a write of the open stage failed.
bool failed();

// Moves every staged file and folder to its final name: the image data first, the page last. On
// failure everything already moved is put back, the staged files are removed and false is
// returned. Closes the stage.
bool commit();
// Removes the staged files and closes the stage.
void discard();

// Finishes or undoes an export that was interrupted in `folder` (ending in a separator) and
// removes the working files it left there. Run before an export writes into the folder; false,
// with a logged line, when the folder could not be brought back to one whole export.
bool recover(const QString &folder);

} // namespace vantora::plugin::stage
