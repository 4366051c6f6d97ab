#include "outputstage.h"

#include "exportlog.h"
#include "platform/platform.h"

#include <QFile>
#include <QVector>

#include <algorithm>

Q_LOGGING_CATEGORY(lcVantoraExport, "vantora.export", QtCriticalMsg)

namespace vantora::plugin {
namespace {

const QString STAGED_SUFFIX = QStringLiteral(".vantora-new");
const QString KEPT_SUFFIX = QStringLiteral(".vantora-old");

} // namespace

bool writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const QString staged = path + STAGED_SUFFIX;
    if (platform::writeNewFile(staged, bytes) && platform::replaceFile(staged, path))
        return true;
    platform::removeFile(staged);
    qCWarning(lcVantoraExport, "cannot write %s", qUtf8Printable(path));
    return false;
}

} // namespace vantora::plugin

namespace vantora::plugin::stage {
namespace {

struct Entry
{
    QString target;
    bool replaced = false; // an earlier file was moved to the kept name
};

struct Stage
{
    bool open = false;
    bool failed = false;
    QStringList reserved;
    QVector<Entry> entries;
};

Stage &current()
{
    static Stage stage;
    return stage;
}

void removeStaged(const Stage &stage)
{
    for (const Entry &entry : stage.entries)
        platform::removeFile(entry.target + STAGED_SUFFIX);
}

bool fail(const char *what, const QString &path)
{
    qCWarning(lcVantoraExport, "%s %s", what, qUtf8Printable(path));
    if (current().open)
        current().failed = true;
    return false;
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
    if (!platform::writeNewFile(path + STAGED_SUFFIX, bytes))
        return fail("cannot write", path);
    const bool known = std::any_of(stage.entries.cbegin(), stage.entries.cend(),
        [&](const Entry &entry) { return entry.target == path; });
    if (!known)
        stage.entries.append(Entry {path});
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
    if (stage.failed) {
        discard();
        return false;
    }
    int moved = 0;
    for (; moved < stage.entries.size(); ++moved) {
        Entry &entry = stage.entries[moved];
        entry.replaced = QFile::exists(entry.target) || platform::isLink(entry.target);
        if (!platform::replaceFile(
                entry.target + STAGED_SUFFIX, entry.target, entry.target + KEPT_SUFFIX)) {
            fail("cannot replace", entry.target);
            break;
        }
    }
    const bool done = moved == stage.entries.size();
    // Undo in reverse order, so the folder ends as it was before the export.
    for (int i = done ? -1 : moved - 1; i >= 0; --i) {
        const Entry &entry = stage.entries.at(i);
        if (entry.replaced)
            platform::replaceFile(entry.target + KEPT_SUFFIX, entry.target);
        else
            platform::removeFile(entry.target);
    }
    for (const Entry &entry : qAsConst(stage.entries))
        platform::removeFile(entry.target + KEPT_SUFFIX);
    discard();
    return done;
}

void discard()
{
    Stage &stage = current();
    removeStaged(stage);
    stage = Stage();
}

} // namespace vantora::plugin::stage
