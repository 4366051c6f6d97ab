#include "hotspotfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace vantora::cli {
namespace {

constexpr std::int32_t ACTION_LINK = 0;
constexpr std::int32_t ACTION_INFO = 1;

// clang-format off
const QSet<QString> KNOWN_MEMBERS = {
    QStringLiteral("page"), QStringLiteral("type"), QStringLiteral("pan"), QStringLiteral("tilt"),
    QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("bitmap"), QStringLiteral("tooltip"),
    QStringLiteral("url"), QStringLiteral("target"), QStringLiteral("text"),
};
// clang-format on

class Reader
{
public:
    Reader(const QJsonObject &object, QString where)
        : m_object(object)
        , m_where(std::move(where))
    { }

    bool failed() const { return !m_error.isEmpty(); }
    QString error() const { return m_error; }

    void fail(const QString &text)
    {
        if (!m_error.isEmpty())
            return;
        // Names from the file may hold line breaks; the error stays one line.
        m_error = m_where + text;
        for (QChar &c : m_error)
            if (c.unicode() < 0x20)
                c = QLatin1Char('?');
    }

    QString text(const char *key, bool required = false)
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (value.isUndefined()) {
            if (required)
                fail(QStringLiteral("\"%1\" is missing").arg(QLatin1String(key)));
            return QString();
        }
        if (!value.isString())
            fail(QStringLiteral("\"%1\" must be a string").arg(QLatin1String(key)));
        return value.toString();
    }

    std::optional<double> number(const char *key, double low, double high)
    {
        const QJsonValue value = m_object.value(QLatin1String(key));
        if (value.isUndefined())
            return std::nullopt;
        if (!value.isDouble() || value.toDouble() < low || value.toDouble() > high) {
            fail(QStringLiteral("\"%1\" must be a number from %2 to %3")
                     .arg(QLatin1String(key))
                     .arg(low)
                     .arg(high));
            return std::nullopt;
        }
        return value.toDouble();
    }

private:
    QJsonObject m_object;
    QString m_where;
    QString m_error;
};

HotspotSpec readHotspot(const QJsonObject &object, const QDir &base, Reader &reader)
{
    for (auto it = object.constBegin(); it != object.constEnd(); ++it) {
        if (!KNOWN_MEMBERS.contains(it.key()))
            reader.fail(QStringLiteral("unknown member \"%1\"").arg(it.key()));
    }
    HotspotSpec spec;
    spec.page = reader.text("page");
    const QString type = reader.text("type", true);
    if (type != QLatin1String("link") && type != QLatin1String("info"))
        reader.fail(QStringLiteral("\"type\" must be \"link\" or \"info\""));
    spec.info = type == QLatin1String("info");
    spec.pan = reader.number("pan", 0.0, 360.0);
    spec.tilt = reader.number("tilt", -90.0, 90.0);
    spec.x = reader.number("x", 0.0, 1.0);
    spec.y = reader.number("y", 0.0, 1.0);
    const bool angles = spec.pan && spec.tilt;
    const bool fractions = spec.x && spec.y;
    if (angles == fractions || bool(spec.pan) != bool(spec.tilt) || bool(spec.x) != bool(spec.y))
        reader.fail(
            QStringLiteral("give the position as \"pan\" and \"tilt\" or as \"x\" and \"y\""));

    const QString bitmap = reader.text("bitmap", true);
    spec.bitmap = bitmap.startsWith(QLatin1Char(':')) ? bitmap : base.absoluteFilePath(bitmap);
    if (object.contains(QLatin1String("bitmap")) && bitmap.isEmpty())
        reader.fail(QStringLiteral("\"bitmap\" is empty"));
    else if (!bitmap.isEmpty() && !QFileInfo(spec.bitmap).isFile())
        reader.fail(QStringLiteral("bitmap %1 not found").arg(bitmap));
    spec.tooltip = reader.text("tooltip").toUtf8();
    if (spec.info) {
        spec.text = reader.text("text", true).toUtf8();
    } else {
        spec.url = reader.text("url", true).toUtf8();
        spec.target = reader.text("target").toUtf8();
        if (spec.target.isEmpty())
            spec.target = "_self";
    }
    return spec;
}

} // namespace

bool readHotspotFile(const QString &path, QVector<HotspotSpec> *hotspots, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1").arg(path);
        return false;
    }
    return parseHotspotFile(file.readAll(), path, hotspots, error);
}

bool parseHotspotFile(
    const QByteArray &bytes, const QString &path, QVector<HotspotSpec> *hotspots, QString *error)
{
    QJsonParseError parseError {};
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        *error = QStringLiteral("%1: %2 at byte %3")
                     .arg(path, parseError.errorString())
                     .arg(parseError.offset);
        return false;
    }
    const QJsonValue list = document.object().value(QLatin1String("hotspots"));
    if (!document.isObject() || !list.isArray()) {
        *error = QStringLiteral("%1: expected an object with a \"hotspots\" array").arg(path);
        return false;
    }
    const QDir base = QFileInfo(path).absoluteDir();
    const QJsonArray entries = list.toArray();
    for (int i = 0; i < entries.size(); ++i) {
        Reader reader(
            entries[i].toObject(), QStringLiteral("%1: hotspot %2: ").arg(path).arg(i + 1));
        if (!entries[i].isObject())
            reader.fail(QStringLiteral("must be an object"));
        const HotspotSpec spec = readHotspot(entries[i].toObject(), base, reader);
        if (reader.failed()) {
            *error = reader.error();
            return false;
        }
        hotspots->append(spec);
    }
    return true;
}

bool PageHotspots::build(
    const QVector<HotspotSpec> &all, const QString &page, const PageFrame &frame, QString *error)
{
    for (const HotspotSpec &spec : all) {
        if (spec.page.isEmpty() || spec.page == page)
            m_specs.push_back(spec);
    }
    // The records point into these vectors: size them once, before taking any address.
    m_bitmaps.reserve(m_specs.size());
    m_records.resize(m_specs.size());
    for (std::size_t i = 0; i < m_specs.size(); ++i) {
        const HotspotSpec &spec = m_specs[i];
        HostHotspot &record = m_records[i];
        record = HostHotspot {};
        record.action = spec.info ? ACTION_INFO : ACTION_LINK;
        record.name = spec.tooltip.constData();
        record.linkUrl = spec.url.constData();
        record.linkTarget = spec.target.constData();
        record.infoText = spec.text.constData();
        m_bitmaps.push_back(spec.bitmap.toStdU16String());
        record.bitmapPath = m_bitmaps.back().c_str();

        if (spec.pan) {
            const double half = frame.vextent / 2;
            if (frame.flat || *spec.pan > frame.hextent || *spec.tilt < -half
                || *spec.tilt > half) {
                *error = frame.flat
                    ? QStringLiteral("hotspots on the flat page %1 need \"x\" and \"y\"").arg(page)
                    : QStringLiteral("a hotspot of page %1 lies outside its %2 x %3 degrees")
                          .arg(page)
                          .arg(frame.hextent)
                          .arg(frame.vextent);
                return false;
            }
            // The library measures the host's vertical fraction upward from the lower edge.
            record.position[0] = *spec.pan / frame.hextent;
            record.position[1] = (*spec.tilt + half) / frame.vextent;
        } else if (frame.flat) {
            // Flat pages take the position in the viewer's normalised units, which are these
            // fractions of the picture, from its top left corner.
            record.position[0] = *spec.x;
            record.position[1] = *spec.y;
        } else {
            record.position[0] = *spec.x;
            record.position[1] = 1.0 - *spec.y;
        }
    }
    for (HostHotspot &record : m_records)
        m_pointers.push_back(&record);
    m_list.begin = m_pointers.data();
    m_list.end = m_pointers.data() + m_pointers.size();
    return true;
}

} // namespace vantora::cli
