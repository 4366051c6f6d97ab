// A host with a full equirectangular sphere and JSON text helpers for the parameter-file tests.
#pragma once

#include "common/textcompare.h"
#include "viewerparams/paramsfile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <deque>
#include <vector>

namespace vantora::test {

// Default settings, no host callbacks, a temporary output folder, and the host's hotspot list
// (entries may be null; the deque keeps the records in place while entries are added).
struct Export
{
    HostContext host {};
    settings::ViewerSettings settings;
    params::ParamsInput input;
    QTemporaryDir dir;
    std::deque<HostHotspot> records;
    std::vector<HostHotspot *> entries;
    HostHotspotList list {};

    Export()
    {
        extent(0.0, 360.0, -90.0, 90.0);
        host.linearVertical = 1;
        input.host = &host;
        input.settings = &settings;
        input.view = plugin::View {10.0, -5.0, 70.0, 5.0, 140.0};
        input.outputWidth = 4000;
        input.outputHeight = 2000;
        input.scalePercent = 50;
    }
    void extent(double startPan, double endPan, double upperEdge, double lowerEdge)
    {
        host.startPan = startPan;
        host.endPan = endPan;
        host.upperEdgeTilt = upperEdge;
        host.lowerEdgeTilt = lowerEdge;
    }
    HostHotspot &add(int kind, const char16_t *bitmapPath = nullptr, double x = 0.0, double y = 0.0)
    {
        HostHotspot &record = records.emplace_back();
        record.kind = kind;
        record.action = 2; // no action unless a test gives one
        record.bitmapPath = bitmapPath;
        record.position[0] = x;
        record.position[1] = y;
        entries.push_back(&record);
        return record;
    }
    void addNull() { entries.push_back(nullptr); }

    QString folder() const { return dir.path() + QLatin1Char('/'); }
    void attachList()
    {
        list = {entries.data(), entries.data() + entries.size()};
        host.hotspots = entries.empty() ? nullptr : &list;
    }
    params::ParamsDocument build(const QString &fileName = QStringLiteral("pano.js"))
    {
        attachList();
        return params::buildViewerParams(input, folder(), fileName,
            QStringLiteral("pano_controls.js"), QStringLiteral("gallery.js"));
    }
    QJsonObject root() { return build().root; }
    QJsonObject node() { return root().value(QStringLiteral("node")).toObject(); }
};

// Compact JSON text of a value; "(absent)" for a missing member.
inline QString compact(const QJsonValue &value)
{
    if (value.isUndefined())
        return QStringLiteral("(absent)");
    const QByteArray text = QJsonDocument(QJsonArray {value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2));
}

// The compact text of a value written as JSON (null: absent). A typo never matches.
inline QString expected(const char *json)
{
    if (!json)
        return compact(QJsonValue::Undefined);
    QJsonParseError error {};
    const QJsonDocument document
        = QJsonDocument::fromJson(QByteArray("[") + json + QByteArray("]"), &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("unparsable expectation: ") + QString::fromUtf8(json);
    return compact(document.array().first());
}

// Every member of `expected` has the same value in `actual`, texts compared exactly (nested objects
// alike; null: the member is absent); with `exact` `actual` has no other member.
inline void compareMembers(
    const QJsonObject &actual, const QJsonObject &expected, bool exact = false)
{
    QVERIFY2(!expected.isEmpty(), "empty or unparsable expectation");
    const auto text = [](const QString &key,
                          const QJsonValue &value) { // the key tells which differs
        return key + QLatin1String(": ") + (value.isString() ? value.toString() : compact(value));
    };
    for (auto it = expected.begin(); it != expected.end(); ++it) {
        const QJsonValue value = actual.value(it.key());
        if (it->isObject() && value.isObject())
            compareMembers(value.toObject(), it->toObject(), exact);
        else
            VANTORA_COMPARE_TEXT(
                text(it.key(), value), text(it.key(), it->isNull() ? QJsonValue::Undefined : *it));
    }
    for (const QString &key : actual.keys())
        QVERIFY2(!exact || expected.contains(key), qPrintable(QLatin1String("unexpected ") + key));
}
inline void compareMembers(const QJsonObject &actual, const char *json, bool exact = false)
{
    compareMembers(actual, QJsonDocument::fromJson(json).object(), exact);
}

// The objects' "id" members ("typeN" for a button with a "type" instead), in order.
inline QStringList idList(const QJsonArray &objects)
{
    QStringList list;
    for (const QJsonValue &o : objects)
        list << (o[QLatin1String("id")].isString()
                ? o[QLatin1String("id")].toString()
                : QStringLiteral("type%1").arg(o[QLatin1String("type")].toInt()));
    return list;
}
inline QString ids(const QJsonArray &objects)
{
    return idList(objects).join(QLatin1Char(' '));
}

// One data row per table entry, carrying its index; the entry names the row by its `tag`.
template <typename Row, std::size_t N> void addRows(const Row (&rows)[N])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < N; ++i)
        QTest::newRow(rows[i].tag) << int(i);
}

} // namespace vantora::test
