#include "inifile.h"

#include <QFile>
#include <QTextCodec>

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

QString unquoted(const QString &value)
{
    if (value.size() >= 2 && value.front() == value.back()
        && (value.front() == QLatin1Char('"') || value.front() == QLatin1Char('\'')))
        return value.mid(1, value.size() - 2);
    return value;
}

// All of the bytes as UTF-8: a further byte-order mark stays a character, and a NUL does not end
// the text.
QString fromUtf8(const QByteArray &bytes)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
}

// Valid UTF-8 holding at least one character beyond ASCII: text a UTF-8 editor saved.
bool isUtf8BeyondAscii(const QByteArray &bytes)
{
    bool beyondAscii = false;
    for (int i = 0; i < bytes.size();) {
        const uchar lead = uchar(bytes[i]);
        int length = lead < 0x80          ? 1
            : lead >= 0xC2 && lead < 0xE0 ? 2
            : lead >= 0xE0 && lead < 0xF0 ? 3
            : lead >= 0xF0 && lead < 0xF5 ? 4
                                          : 0;
        if (length == 0 || i + length > bytes.size())
            return false;
        for (int k = 1; k < length; ++k)
            if ((uchar(bytes[i + k]) & 0xC0) != 0x80)
                return false;
        beyondAscii = beyondAscii || length > 1;
        i += length;
    }
    return beyondAscii;
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
    const auto startsWith = [&](const char *mark) { return bytes.startsWith(mark); };
    if (startsWith("\xFF\xFE") || startsWith("\xFE\xFF")) {
        const bool little = uchar(bytes[0]) == 0xFF;
        ini.encoding = little ? Encoding::Utf16Le : Encoding::Utf16Be;
        ini.text.reserve((bytes.size() - 2) / 2);
        for (int i = 2; i + 1 < bytes.size(); i += 2) {
            const ushort low = uchar(bytes[little ? i : i + 1]);
            const ushort high = uchar(bytes[little ? i + 1 : i]);
            ini.text.append(QChar(ushort(low | high << 8)));
        }
    } else if (startsWith("\xEF\xBB\xBF")) {
        ini.encoding = Encoding::Utf8Bom;
        ini.text = fromUtf8(bytes.mid(3));
    } else if (isUtf8BeyondAscii(bytes)) {
        ini.encoding = Encoding::Utf8;
        ini.text = fromUtf8(bytes);
    } else {
        ini.text = QString::fromLatin1(bytes);
    }
    return ini;
}

QByteArray encode(const IniText &ini)
{
    switch (ini.encoding) {
    case Encoding::Ansi:
        return ini.text.toLatin1();
    case Encoding::Utf8:
        return ini.text.toUtf8();
    case Encoding::Utf8Bom:
        return "\xEF\xBB\xBF" + ini.text.toUtf8();
    case Encoding::Utf16Le:
    case Encoding::Utf16Be:
        break;
    }
    const bool little = ini.encoding == Encoding::Utf16Le;
    QByteArray bytes;
    bytes.reserve(2 + 2 * ini.text.size());
    bytes.append(little ? "\xFF\xFE" : "\xFE\xFF");
    for (const QChar c : ini.text) {
        const char low = char(c.unicode() & 0xFF), high = char(c.unicode() >> 8);
        bytes.append(little ? low : high).append(little ? high : low);
    }
    return bytes;
}

Index index(const QString &text)
{
    Index keys;
    QString section;
    bool inSection = false;
    for (const Line &line : splitLines(text)) {
        const Entry entry = parse(text, line);
        if (entry.isSection) {
            section = entry.name.toCaseFolded();
            inSection = true;
        } else if (inSection && entry.isKey) {
            const QString name = section + QChar(0) + entry.name.toCaseFolded();
            if (!keys.contains(name))
                keys.insert(name, unquoted(entry.value));
        }
    }
    return keys;
}

QString indexKey(const QString &section, const QString &key)
{
    return section.trimmed().toCaseFolded() + QChar(0) + key.trimmed().toCaseFolded();
}

int intValue(const QString &text)
{
    int i = 0;
    while (i < text.size() && text.at(i).isSpace())
        ++i;
    bool negative = false;
    if (i < text.size() && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+')))
        negative = text.at(i++) == QLatin1Char('-');
    // Digits beyond 32 bits wrap around, as the system's conversion does.
    quint32 result = 0;
    for (; i < text.size() && text.at(i) >= QLatin1Char('0') && text.at(i) <= QLatin1Char('9'); ++i)
        result = result * 10 + quint32(text.at(i).unicode() - '0');
    return int(negative ? 0u - result : result);
}

QString cutValue(const QString &value)
{
    return value.left(MAX_VALUE_CHARS);
}

std::optional<QString> lookup(const QString &text, const QString &section, const QString &key)
{
    bool inSection = false;
    for (const Line &line : splitLines(text)) {
        const Entry entry = parse(text, line);
        if (entry.isSection) {
            inSection = sameName(entry.name, section);
        } else if (inSection && entry.isKey && sameName(entry.name, key)) {
            return unquoted(entry.value);
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
    return cutValue(value ? *value : defaultText);
}

int readInt(const QString &path, const QString &section, const QString &key, int defaultValue)
{
    const std::optional<QString> value = lookup(decode(readBytes(path)).text, section, key);
    return value ? intValue(*value) : defaultValue;
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
