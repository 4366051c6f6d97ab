// Exact-text comparison that shows where two long texts part, with blanks made visible; the
// files the texts come from.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantora::test {

// Empty when equal; otherwise a message naming the first differing position and the two texts
// around it, blanks shown as '·', tabs as '→' and line feeds as '↵'.
QString describeTextDifference(const QString &actual, const QString &expected);

// The file's bytes; an empty array when it cannot be read.
QByteArray readFileBytes(const QString &path);
// Replaces the file's content by `bytes`; whether all of them were written.
bool writeFileBytes(const QString &path, const QByteArray &bytes);

} // namespace vantora::test

// QCOMPARE for exact texts: on a mismatch it reports the first differing position readably.
#define VANTORA_COMPARE_TEXT(actual, expected)                                                     \
    do {                                                                                           \
        const QString vantoraDiff_ = vantora::test::describeTextDifference((actual), (expected));  \
        if (!vantoraDiff_.isEmpty())                                                               \
            QFAIL(qPrintable(vantoraDiff_));                                                       \
    } while (false)
