#include "inivalues.h"

#include "inifile.h"
#include "plugin/cformat.h"
#include "plugin/exportlog.h"
#include "plugin/outputstage.h"

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
    return plugin::cFormatText("%.4f", value);
}

QString codedIniText(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toBase64());
}

QString decodedIniText(const QString &coded)
{
    return QString::fromUtf8(QByteArray::fromBase64(coded.toLatin1()));
}

bool readIniBytes(const QString &path, QByteArray *bytes)
{
    bytes->clear();
    QFile file(path);
    if (path.isEmpty() || !file.exists())
        return true;
    if (file.open(QIODevice::ReadOnly)) {
        *bytes = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return true;
    }
    qCWarning(lcVantoraExport, "cannot read %s", qUtf8Printable(path));
    bytes->clear();
    return false;
}

IniEdit::IniEdit(const QByteArray &bytes)
    : m_ini(ini::decode(bytes))
    , m_bytes(bytes)
{ }

void IniEdit::set(const QString &section, const QString &key, const QString &value, bool stringKey)
{
    // Only a file that is not UTF-16LE yet needs its bytes: after the conversion it stays UTF-16LE.
    if (m_ini.encoding != ini::Encoding::Utf16Le || (m_ini.text.isEmpty() && !m_changed)) {
        const QByteArray bytes = m_changed ? ini::encode(m_ini) : m_bytes;
        if (bytes.isEmpty())
            m_ini = ini::IniText {QString(), ini::Encoding::Utf16Le};
        else if (stringKey && m_ini.encoding != ini::Encoding::Utf16Le)
            m_ini = ini::IniText {ini::firstLineConverted(bytes), ini::Encoding::Utf16Le};
    }
    m_ini.text = ini::assign(m_ini.text, section, key, value);
    m_changed = true;
}

QByteArray IniEdit::bytes() const
{
    return m_changed ? ini::encode(m_ini) : m_bytes;
}

bool IniEdit::write(const QString &path) const
{
    return plugin::writeFileAtomically(path, bytes());
}

namespace {

bool writeIniKey(const QString &path, const QString &section, const QString &key,
    const QString &value, bool stringKey)
{
    QByteArray bytes;
    if (!readIniBytes(path, &bytes))
        return false;
    IniEdit edit(bytes);
    edit.set(section, key, value, stringKey);
    return edit.write(path);
}

} // namespace

bool writeIniString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    return writeIniKey(path, section, key, value, true);
}

bool writeIniNumber(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    return writeIniKey(path, section, key, value, false);
}

} // namespace vantora::settings
