#include "inivalues.h"

#include "inifile.h"
#include "plugin/platform/platform.h"

#include <QFile>
#include <QRegularExpression>

namespace vantora::settings {

bool boolFromIniText(const QString &text)
{
    return text.startsWith(QLatin1String("TRUE")) || text.startsWith(QLatin1Char('1'));
}

double doubleFromIniText(const QString &text, double defaultValue)
{
    if (text.isEmpty())
        return defaultValue;
    static const QRegularExpression number(
        QStringLiteral(R"(^\s*([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?))"));
    const QRegularExpressionMatch match = number.match(text);
    return match.hasMatch() ? match.captured(1).toDouble() : 0.0;
}

QString iniTextOfDouble(double value)
{
    return QString::asprintf("%.4f", value);
}

QString codedIniText(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toBase64());
}

QString decodedIniText(const QString &coded)
{
    return QString::fromUtf8(QByteArray::fromBase64(coded.toLatin1()));
}

bool createUtf16IniFile(const QString &path)
{
    QFile file(path);
    if (file.exists() && file.size() > 0)
        return true;
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write("\xFF\xFE", 2) == 2;
}

void convertIniFileToUtf16(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.readAll();
    file.close();
    if (bytes.isEmpty() || bytes.startsWith("\xFF\xFE"))
        return;
    const ini::IniText converted {ini::firstLineConverted(bytes), ini::Encoding::Utf16Le};
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        file.write(ini::encode(converted));
}

bool writeIniString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    createUtf16IniFile(path);
    convertIniFileToUtf16(path);
    return platform::writeProfileString(path, section, key, value);
}

bool writeIniNumber(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    createUtf16IniFile(path);
    return platform::writeProfileString(path, section, key, value);
}

} // namespace vantora::settings
