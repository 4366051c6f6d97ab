#include "textcompare.h"

#include <QFile>

namespace vantora::test {
namespace {

QString visible(const QString &text)
{
    QString shown = text;
    shown.replace(QLatin1Char(' '), QChar(0x00B7));
    shown.replace(QLatin1Char('\t'), QChar(0x2192));
    shown.replace(QLatin1Char('\n'), QChar(0x21B5));
    shown.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    return shown;
}

} // namespace

QString describeTextDifference(const QString &actual, const QString &expected)
{
    if (actual == expected)
        return QString();
    int at = 0;
    while (at < actual.size() && at < expected.size() && actual.at(at) == expected.at(at))
        ++at;
    const int from = qMax(0, at - 40);
    return QStringLiteral(
        "texts differ at position %1 (lengths %2 and %3)\n   actual: %4\n expected: %5")
        .arg(at)
        .arg(actual.size())
        .arg(expected.size())
        .arg(visible(actual.mid(from, 100)), visible(expected.mid(from, 100)));
}

QByteArray readFileBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

bool writeFileBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace vantora::test
