#include "inifile.h"

#include <QFile>

#include <vector>

namespace vantora::settings::ini {
namespace {

constexpr int MAX_VALUE_CHARS = 65535; // the system's 65,536-character buffer, less its terminator

// One line of the text: its content and the position after its line end.
struct Line
{
    int start;
    int contentEnd;
    int end;
};

std::vector<Line> splitLines(const QString &text)
{
    std::vector<Line> lines;
    int start = 0;
    while (start < text.size()) {
        int end = start;
        while (end < text.size() && text.at(end) != QLatin1Char('\r')
            && text.at(end) != QLatin1Char('\n'))
            ++end;
        const int contentEnd = end;
        if (end < text.size() && text.at(end) == QLatin1Char('\r'))
            ++end;
        if (end < text.size() && text.at(end) == QLatin1Char('\n'))
            ++end;
        lines.push_back({start, contentEnd, end});
        start = end;
    }
    return lines;
}

// What a line is, for the profile rules.
struct Entry
{
    bool isSection = false;
    bool isKey = false;
    QString name;  // section or key name, trimmed
    QString value; // key value, trimmed
};

Entry parse(const QString &text, const Line &line)
{
    const QString content = text.mid(line.start, line.contentEnd - line.start).trimmed();
    Entry entry;
    // A section header needs its closing bracket; the name runs up to the last one.
    const int close = content.lastIndexOf(QLatin1Char(']'));
    if (content.startsWith(QLatin1Char('[')) && close > 0) {
        entry.isSection = true;
        entry.name = content.mid(1, close - 1).trimmed();
        return entry;
    }
    const int equals = content.indexOf(QLatin1Char('='));
    if (equals < 0)
        return entry;
    entry.isKey = true;
    entry.name = content.left(equals).trimmed();
    entry.value = content.mid(equals + 1).trimmed();
    return entry;
}

bool sameName(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return !path.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

IniText decode(const QByteArray &bytes)
{
    IniText ini;
    if (bytes.size() >= 2 && uchar(bytes[0]) == 0xFF && uchar(bytes[1]) == 0xFE) {
        ini.encoding = Encoding::Utf16Le;
        ini.text.reserve((bytes.size() - 2) / 2);
        for (int i = 2; i + 1 < bytes.size(); i += 2)
            ini.text.append(QChar(ushort(uchar(bytes[i]) | uchar(bytes[i + 1]) << 8)));
    } else {
        ini.text = QString::fromLatin1(bytes);
    }
    return ini;
}

QByteArray encode(const IniText &ini)
{
    if (ini.encoding == Encoding::Ansi)
        return ini.text.toLatin1();
    QByteArray bytes;
    bytes.reserve(2 + 2 * ini.text.size());
    bytes.append(char(0xFF)).append(char(0xFE));
    for (const QChar c : ini.text)
        bytes.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
    return bytes;
}

std::optional<QString> lookup(const QString &text, const QString &section, const QString &key)
{
    bool inSection = false;
    for (const Line &line : splitLines(text)) {
        const Entry entry = parse(text, line);
        if (entry.isSection) {
            inSection = sameName(entry.name, section);
        } else if (inSection && entry.isKey && sameName(entry.name, key)) {
            QString value = entry.value;
            if (value.size() >= 2 && value.front() == value.back()
                && (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\'')))
                value = value.mid(1, value.size() - 2);
            return value;
        }
    }
    return std::nullopt;
}

QString assign(
    const QString &text, const QString &section, const QString &key, const QString &value)
{
    const QString crlf = QStringLiteral("\r\n");
    const std::vector<Line> lines = splitLines(text);
    bool inSection = false;
    const Line *lastOfSection = nullptr; // last non-blank line of the first matching section
    bool sectionFound = false, sectionClosed = false;
    for (const Line &line : lines) {
        const Entry entry = parse(text, line);
        if (entry.isSection) {
            if (inSection)
                sectionClosed = true;
            inSection = sameName(entry.name, section);
            if (inSection && !sectionFound) {
                sectionFound = true;
                lastOfSection = &line;
            }
            continue;
        }
        if (!inSection)
            continue;
        if (entry.isKey && sameName(entry.name, key)) {
            return text.left(line.start) + entry.name + QLatin1Char('=') + value
                + text.mid(line.contentEnd);
        }
        if (!sectionClosed && line.contentEnd > line.start
            && !text.mid(line.start, line.contentEnd - line.start).trimmed().isEmpty())
            lastOfSection = &line;
    }
    const QString newKey = key + QLatin1Char('=') + value + crlf;
    if (sectionFound) {
        const bool ended = lastOfSection->end > lastOfSection->contentEnd;
        return text.left(lastOfSection->end) + (ended ? QString() : crlf) + newKey
            + text.mid(lastOfSection->end);
    }
    const bool ended
        = text.isEmpty() || text.endsWith(QLatin1Char('\n')) || text.endsWith(QLatin1Char('\r'));
    return text + (ended ? QString() : crlf) + QLatin1Char('[') + section + QLatin1Char(']') + crlf
        + newKey;
}

QString firstLineConverted(const QByteArray &bytes)
{
    QByteArray line;
    for (int i = 0; i < bytes.size() && line.size() < bytes.size() - 1; ++i) {
        char c = bytes.at(i);
        if (c == '\x1A')
            break;
        if (c == '\r' && i + 1 < bytes.size() && bytes.at(i + 1) == '\n')
            c = bytes.at(++i);
        line.append(c);
        if (c == '\n')
            break;
    }
    QString converted;
    for (const char c : line) {
        if (c == '\0')
            break;
        if (c == '\n')
            converted.append(QLatin1Char('\r'));
        converted.append(QChar(ushort(short(static_cast<signed char>(c)))));
    }
    return converted;
}

QString readString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText)
{
    const std::optional<QString> value = lookup(decode(readBytes(path)).text, section, key);
    return (value ? *value : defaultText).left(MAX_VALUE_CHARS);
}

int readInt(const QString &path, const QString &section, const QString &key, int defaultValue)
{
    const std::optional<QString> value = lookup(decode(readBytes(path)).text, section, key);
    if (!value)
        return defaultValue;
    int i = 0;
    while (i < value->size() && value->at(i).isSpace())
        ++i;
    bool negative = false;
    if (i < value->size() && (value->at(i) == QLatin1Char('-') || value->at(i) == QLatin1Char('+')))
        negative = value->at(i++) == QLatin1Char('-');
    // Digits beyond 32 bits wrap around, as the system's conversion does.
    quint32 result = 0;
    for (;
         i < value->size() && value->at(i) >= QLatin1Char('0') && value->at(i) <= QLatin1Char('9');
         ++i)
        result = result * 10 + quint32(value->at(i).unicode() - '0');
    return int(negative ? 0u - result : result);
}

bool writeString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    IniText ini = decode(readBytes(path));
    ini.text = assign(ini.text, section, key, value);
    QFile file(path);
    const QByteArray bytes = encode(ini);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(bytes) == bytes.size();
}

} // namespace vantora::settings::ini
