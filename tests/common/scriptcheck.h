// Runs written viewer files through Node.js the way a page loads them (tests/js/checkjs.mjs), and
// reads one as JSON.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

namespace vantora::test {

struct ScriptCheck
{
    bool passed = false; // Node ran, every file defined its parameters, every function compiled
    QByteArray output;   // what the checker printed: failures, then the summary line
    // Whether the summary counts `files` files and, when not negative, `functions` functions.
    bool counted(int files, int functions = -1) const;
};

ScriptCheck checkScripts(const QStringList &files);

// The "vantoraViewer" object of a viewer file; empty unless the file is "VantoraViewerParams = "
// followed by a JSON object with that one member.
QJsonObject viewerRoot(const QString &path);

} // namespace vantora::test

// Fails the test unless every file passed the script check; `check` is evaluated once.
#define VANTORA_VERIFY_SCRIPTS(check)                                                              \
    do {                                                                                           \
        const vantora::test::ScriptCheck &vantoraCheck_ = (check);                                 \
        QVERIFY2(vantoraCheck_.passed, vantoraCheck_.output.constData());                          \
    } while (false)
