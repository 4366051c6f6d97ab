#include "galleryentry.h"

#include <QJsonValue>

#include <cstring>

namespace vantora::params {
namespace {

const QByteArray PARAMS_PREFIX = QByteArrayLiteral("VantoraViewerParams = ");
const QByteArray VERSION_KEY = QByteArrayLiteral("version");

// The oldest parameter files a tour may link: earlier formats lack what the viewer needs.
constexpr double MIN_VERSION = 4.0;

// Text-mode reading: every carriage return goes, wherever it stands.
void dropCarriageReturns(QByteArray &bytes)
{
    const char *first
        = static_cast<const char *>(std::memchr(bytes.constData(), '\r', size_t(bytes.size())));
    if (!first)
        return;
    int kept = int(first - bytes.constData());
    char *data = bytes.data(); // may copy a shared array: offsets only from here on
    for (int i = kept + 1; i < bytes.size(); ++i)
        if (data[i] != '\r')
            data[kept++] = data[i];
    bytes.truncate(kept);
}

// The longest a string reading "version" can be: every character written as "\uXXXX".
constexpr std::ptrdiff_t MAX_ESCAPED_VERSION = 7 * 6;

// Whether the string between `begin` and `end` (quotes excluded) reads "version" once its
// escapes are resolved. The JSON reader resolves an unknown escape to the character itself, so
// "\v" counts as a "v".
bool readsVersion(const char *begin, const char *end)
{
    if (end - begin < VERSION_KEY.size() || end - begin > MAX_ESCAPED_VERSION)
        return false;
    char text[MAX_ESCAPED_VERSION];
    int length = 0;
    for (const char *at = begin; at < end; ++at) {
        char c = *at;
        if (c == '\\' && ++at < end) {
            c = *at;
            if (c == 'u') {
                bool ok = false;
                const uint code
                    = end - at > 4 ? QByteArray::fromRawData(at + 1, 4).toUInt(&ok, 16) : 0;
                if (!ok)
                    return true; // the reader refuses it; leave the judgement to it
                if (code >= 0x80)
                    return false; // no letter of "version"
                c = char(code);
                at += 4;
            } else if (const char *named = c ? std::strchr("bfnrt", c) : nullptr) {
                c = "\b\f\n\r\t"[named - "bfnrt"];
            }
        }
        text[length++] = c;
    }
    return length == VERSION_KEY.size()
        && std::memcmp(text, VERSION_KEY.constData(), size_t(length)) == 0;
}

// Whether some string of the JSON text reads "version". Outside strings a quote always opens
// one, so for any text the reader accepts this walk meets exactly its strings; a file without
// such a string has no "version" member and need not be parsed at all.
bool mentionsVersion(const char *at, const char *end)
{
    while (at < end) {
        const char *open = static_cast<const char *>(std::memchr(at, '"', size_t(end - at)));
        if (!open)
            return false;
        const char *begin = open + 1;
        const char *close = begin;
        for (;;) {
            close = static_cast<const char *>(std::memchr(close, '"', size_t(end - close)));
            if (!close)
                return false; // an unclosed string: the reader refuses the text
            // A quote behind an odd number of backslashes is part of the string.
            const char *slashes = close;
            while (slashes > begin && slashes[-1] == '\\')
                --slashes;
            if ((close - slashes) % 2 == 0)
                break;
            ++close;
        }
        if (readsVersion(begin, close))
            return true;
        at = close + 1;
    }
    return false;
}

bool hasSupportedVersion(const QJsonObject &viewer)
{
    const QJsonValue version = viewer.value(QStringLiteral("version"));
    if (version.isDouble())
        return version.toDouble() >= MIN_VERSION;
    if (!version.isString())
        return false;
    bool ok = false;
    const double number = version.toString().toDouble(&ok);
    return ok && number >= MIN_VERSION;
}

} // namespace

bool mayBeParamsFile(const QByteArray &head, bool whole)
{
    const int looked = PARAMS_PREFIX.size() * 2;
    QByteArray start = head.left(looked);
    dropCarriageReturns(start);
    if (start.size() >= PARAMS_PREFIX.size())
        return start.startsWith(PARAMS_PREFIX);
    // Carriage returns crowd the head: let the whole text decide, unless this was all of it.
    return !whole || head.size() > looked;
}

std::optional<PanoramaSummary> panoramaFromBytes(QByteArray bytes)
{
    dropCarriageReturns(bytes);
    // A byte-order mark or a blank in front means some other writer: not ours.
    if (!bytes.startsWith(PARAMS_PREFIX))
        return std::nullopt;
    // A member list that ends in a separator gets its object closed once more.
    if (bytes.endsWith(",\n}\n}"))
        bytes.append("\n}\n}");
    const char *json = bytes.constData() + PARAMS_PREFIX.size();
    const int jsonSize = bytes.size() - PARAMS_PREFIX.size();
    // Controls files, gallery files and other scripts of the viewer's framing are told apart by
    // their want of a "version" member, which a look at their strings finds without parsing them.
    if (!mentionsVersion(json, json + jsonSize))
        return std::nullopt;
    return panoramaFromDocument(QJsonDocument::fromJson(QByteArray::fromRawData(json, jsonSize)));
}

std::optional<PanoramaSummary> panoramaFromDocument(const QJsonDocument &document)
{
    const QJsonObject viewer = document.object().value(QStringLiteral("vantoraViewer")).toObject();
    if (!hasSupportedVersion(viewer))
        return std::nullopt;
    // The panorama is described by "image" when present, else by "node".
    QJsonValue panorama = viewer.value(QStringLiteral("image"));
    if (!panorama.isObject()) {
        panorama = viewer.value(QStringLiteral("node"));
        if (!panorama.isObject())
            return std::nullopt;
    }
    const QJsonObject object = panorama.toObject();
    return PanoramaSummary {object.value(QStringLiteral("view"))
                                .toObject()
                                .value(QStringLiteral("shortdescription"))
                                .toString(),
        object.value(QStringLiteral("location")).toObject()};
}

} // namespace vantora::params
