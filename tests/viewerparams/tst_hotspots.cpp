#include "paramsfixture.h"

#include "viewerparams/hotspots.h"

#include <QFile>
#include <QtTest>

#include <cmath>

using namespace vantora;
using test::Export;

namespace {

QStringList resourceCalls; // "resource -> target"

uint32_t recordResource(const char16_t *resourcePath, const char16_t *targetPath)
{
    resourceCalls << QString::fromStdU16String(resourcePath) + " -> "
            + QString::fromStdU16String(targetPath);
    return 1;
}

const QJsonArray hotspotsOf(Export &run)
{
    run.host.exportResource = recordResource;
    return run.node().value("hotspot").toArray();
}

// clang-format off

// One hotspot with the resource bitmap ":/hotspots/a.png" on a sphere 0..endPan whose upper edge
// lies beyond the pole, so that positions show whether they use the clamped "maxtilt" (90).
// Links go to "tour2.html" in "_self"; an embedded bitmap has width 0.25 and rotation 12.5.
// The expected object holds "hsinfo" reduced to its id.
const struct
{
    const char *tag;
    bool flat;
    int kind, action, flags;
    const char *info;
    int embedded, transparency, hoverTransparency;
    double x, y, endPan;
    const char *expected;
} HOTSPOT_ROWS[] = {
    {"link/no transition", false, 0, 0, 0, nullptr, 0, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"1.00;1.00","bitmaptype":"floating","position":"90.0000,0.0000","unit":"deg","transition":"","href":"tour2.html","target":"_self"})"},
    {"link/blend", false, 0, 0, 1, nullptr, 0, 25, 0, 0.123456, 0.7, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"0.75;1.00","bitmaptype":"floating","position":"44.4442,36.0000","unit":"deg","transition":"blend,2","href":"tour2.html","target":"_self"})"},
    {"link/zoom in", false, 0, 0, 2, nullptr, 0, 100, 50, 0.0, 0.0, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"0.00;0.50","bitmaptype":"floating","position":"0.0000,-90.0000","unit":"deg","transition":"zoomin,2","href":"tour2.html","target":"_self"})"},
    {"link/both", false, 6, 0, 3, nullptr, 0, 33, 67, 1.0, 1.0, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"0.67;0.33","bitmaptype":"floating","position":"360.0000,90.0000","unit":"deg","transition":"zoomin,2;blend,2","href":"tour2.html","target":"_self"})"},
    {"link/flags 4, embedded", false, 0, 0, 4, nullptr, 1, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","embeddedwidth":90,"rotate":12.5,"opacity":"1.00;1.00","bitmaptype":"embedded","position":"90.0000,0.0000","unit":"deg","href":"tour2.html","target":"_self"})"},
    {"link/flags 5, animated kind", false, 14, 0, 5, nullptr, 0, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0","opacity":"1.00;1.00","bitmaptype":"floating","position":"90.0000,0.0000","unit":"deg","transition":"blend,2","href":"tour2.html","target":"_self"})"},
    {"link/flags 6, flat embedded", true, 0, 0, 6, nullptr, 1, 0, 0, 0.25, -0.123456, 360.0,
        R"({"bitmap":"pap_a.png","embeddedwidth":0.25,"rotate":12.5,"opacity":"1.00;1.00","bitmaptype":"embedded","position":"0.2500,-0.1235","unit":"norm","transition":"zoomin,2","href":"tour2.html","target":"_self"})"},
    {"info/text", false, 0, 1, 3, "Der Turm", 0, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"1.00;1.00","bitmaptype":"floating","position":"90.0000,0.0000","unit":"deg","href":"javascript:","onclick":"function(){ this.viewer.action('toggleMessage',this.hsinfo); }","hsinfo":"hsinfo0"})"},
    {"info/empty text, animated embedded", false, 14, 1, 3, "", 1, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","embeddedwidth":90,"rotate":12.5,"opacity":"1.00;1.00","bitmaptype":"embedded","position":"90.0000,0.0000","unit":"deg","href":"javascript:"})"},
    {"no action", false, 0, 2, 3, "Der Turm", 0, 0, 0, 0.25, 0.5, 360.0,
        R"({"bitmap":"pap_a.png","bitmapscale":"1.0;1.1","opacity":"1.00;1.00","bitmaptype":"floating","position":"90.0000,0.0000","unit":"deg"})"},
    {"pan range 370 uncapped", false, 0, 2, 0, nullptr, 1, 0, 0, 0.5, 0.5, 370.0,
        R"({"bitmap":"pap_a.png","embeddedwidth":92.5,"rotate":12.5,"opacity":"1.00;1.00","bitmaptype":"embedded","position":"185.0000,0.0000","unit":"deg"})"},
};

// Frames 64 x 48, duration 1.5 s; expected null: no "animation".
const struct
{
    const char *tag;
    int kind, frames, mouseOver;
    double delay;
    int iterations, frameOffset;
    const char *expected;
} ANIMATION_ROWS[] = {
    {"timed",                14, 8, 0, 0.5, 3, 2, R"({"width":64,"height":48,"frames":8,"duration":1.5,"delay":0.5,"iterations":3})"},
    {"endless, at once",     14, 8, 0, 0.0, 0, 2, R"({"width":64,"height":48,"frames":8,"duration":1.5})"},
    {"mouse over, offset 1", 14, 8, 1, 0.5, 3, 1, R"({"width":64,"height":48,"frames":8,"duration":1.5,"mouseover":true,"frameOffset":1})"},
    {"mouse over, offset 0", 14, 8, 1, 0.5, 3, 0, R"({"width":64,"height":48,"frames":8,"duration":1.5,"mouseover":true})"},
    {"two frames",           14, 2, 0, -1.0, -1, 0, R"({"width":64,"height":48,"frames":2,"duration":1.5})"},
    {"one frame",            14, 1, 0, 0.5, 3, 0, nullptr},
    {"shape kind",            3, 8, 0, 0.5, 3, 0, nullptr},
};

// Hand-computed; cylindrical: tilt = atan((tan b - tan a) y + tan a).
const struct
{
    const char *tag;
    bool linear;
    double x, y, panRange, lowTilt, highTilt, pixelWidth, pan, tilt;
} PAN_TILT_ROWS[] = {
    {"linear",               true,  0.1,  0.5,  200.0, -30.0, 60.0, 4000.0, 20.0, 15.0},
    {"cylinder/upper half",  false, 0.25, 0.75, 360.0, -45.0, 45.0, 4000.0, 90.0, 26.56505117707799},
    {"cylinder/lower half",  false, 0.25, 0.25, 360.0, -45.0, 45.0, 4000.0, 90.0, -26.56505117707799},
    {"cylinder/asymmetric",  false, 0.5,  0.5,  180.0, -30.0, 60.0, 4000.0, 90.0, 30.0},
    {"cylinder/other width", false, 0.5,  0.5,  180.0, -30.0, 60.0, 123.0,  90.0, 30.0},
    {"cylinder/no width",    false, 0.5,  0.5,  180.0, -30.0, 60.0, 0.0,    90.0, 30.0},
};

// clang-format on

} // namespace

class tst_Hotspots : public QObject
{
    Q_OBJECT

private slots:
    void init() { resourceCalls.clear(); }

    void members_data() { test::addRows(HOTSPOT_ROWS); }
    void members()
    {
        QFETCH(int, row);
        const auto &entry = HOTSPOT_ROWS[row];
        Export run;
        run.extent(0.0, entry.endPan, -100.0, 90.0);
        run.input.flatMode = entry.flat;
        HostHotspot &record = run.add(entry.kind, u":/hotspots/a.png", entry.x, entry.y);
        record.action = entry.action;
        record.transitionFlags = entry.flags;
        record.linkUrl = "tour2.html";
        record.linkTarget = "_self";
        record.infoText = entry.info;
        record.embedded = entry.embedded;
        record.embeddedWidth = 0.25f;
        record.rotation = 12.5f;
        record.transparency = entry.transparency;
        record.hoverTransparency = entry.hoverTransparency;
        QJsonObject hotspot = hotspotsOf(run)[0].toObject();
        if (hotspot.contains("hsinfo"))
            hotspot.insert("hsinfo", hotspot.value("hsinfo")["id"]);
        VANTORA_COMPARE_TEXT(test::compact(hotspot), test::expected(entry.expected));
    }

    void animation_data() { test::addRows(ANIMATION_ROWS); }
    void animation()
    {
        QFETCH(int, row);
        const auto &entry = ANIMATION_ROWS[row];
        Export run;
        HostHotspot &record = run.add(entry.kind, u":/a.png");
        record.frameWidth = 64;
        record.frameHeight = 48;
        record.frameCount = entry.frames;
        record.duration = 1.5;
        record.animateOnMouseOver = std::uint8_t(entry.mouseOver);
        record.delay = entry.delay;
        record.iterations = entry.iterations;
        record.frameOffset = entry.frameOffset;
        VANTORA_COMPARE_TEXT(
            test::compact(hotspotsOf(run)[0]["animation"]), test::expected(entry.expected));
    }

    void panTilt_data() { test::addRows(PAN_TILT_ROWS); }
    void panTilt()
    {
        QFETCH(int, row);
        const auto &entry = PAN_TILT_ROWS[row];
        const double position[2] = {entry.x, entry.y};
        const params::PanTilt result = params::hotspotPanTilt(position, entry.linear,
            entry.panRange, entry.lowTilt, entry.highTilt, entry.pixelWidth);
        QCOMPARE(QString::asprintf("%.9f %.9f", result.pan, result.tilt),
            QString::asprintf("%.9f %.9f", entry.pan, entry.tilt));
    }

    // Cylindrical sphere 100..460 with edges -45/45: the start pan is not added to the pan.
    void lensFlares()
    {
        Export run;
        run.host.linearVertical = 0;
        run.extent(100.0, 460.0, -45.0, 45.0);
        run.add(7, u":/flare.png", 0.25, 0.75);
        run.addNull();
        run.add(0, u":/shape.png", 0.75, 0.6);
        run.add(14);
        run.add(13, nullptr, 0.5, 0.25);
        run.add(6);
        const QJsonObject node = run.node();
        QJsonArray flares; // tilts rounded to six decimals
        for (const QJsonValue flare : node.value("lensflare").toArray()) {
            QJsonObject object = flare.toObject();
            object["tilt"] = std::round(object["tilt"].toDouble() * 1e6) / 1e6;
            flares << object;
        }
        VANTORA_COMPARE_TEXT(test::compact(flares),
            test::expected(R"([{"pan":90,"tilt":26.565051,"type":0,"brightening":1,"scale":1},)"
                           R"({"pan":180,"tilt":-26.565051,"type":6,"brightening":1,"scale":1}])"));
        const QJsonArray hotspots = node.value("hotspot").toArray();
        QCOMPARE(hotspots.size(), 1);
        QCOMPARE(hotspots[0]["position"].toString(), "270.0000,11.3099");
    }

    // On the horizon of a symmetric cylinder the tilt is a negative zero, written as printf
    // writes it.
    void negativeZeroTilt()
    {
        Export run;
        run.host.linearVertical = 0;
        run.extent(0.0, 360.0, -45.0, 45.0);
        run.add(0, u":/shape.png", 0.25, 0.5);
        QCOMPARE(hotspotsOf(run)[0]["position"].toString(), "90.0000,-0.0000");
    }

    // Null entries do not count; lens flares, other kinds and dropped hotspots do.
    void runningNumbers()
    {
        Export run;
        const auto info = [](HostHotspot &record, const char *text) {
            record.action = 1;
            record.infoText = text;
        };
        info(run.add(0), "weg"); // 0: no bitmap, dropped
        run.addNull();
        run.add(8, u":/flare.png");                        // 1
        info(run.add(0, u":/hotspots/arrow.png"), "Zwei"); // 2
        run.add(0, u":/inner.png").hasInternalBitmap = 1;  // 3: dropped
        run.add(20, u":/odd.png");                         // 4
        run.addNull();
        info(run.add(14, u":/anim.png"), "Vier"); // 5
        QStringList summary;
        for (const QJsonValue hotspot : hotspotsOf(run))
            summary << hotspot["bitmap"].toString() + hotspot["hsinfo"]["id"].toString();
        QCOMPARE(summary.join(' '), "pap_arrow.pnghsinfo2 pap_anim.pnghsinfo5");
        QCOMPARE(resourceCalls.join(' ').replace(run.folder(), "OUT/"),
            ":/hotspots/arrow.png -> OUT/pap_arrow.png :/anim.png -> OUT/pap_anim.png");
    }

    // A file bitmap replaces an older copy and is made writable; a failed copy keeps the name.
    void fileBitmaps()
    {
        QTemporaryDir source;
        const QString original = source.filePath("mark.png");
        QFile file(original);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("new bitmap") == 10);
        file.close();
        QVERIFY(QFile::setPermissions(original, QFileDevice::ReadOwner));
        for (const QChar separator : {QLatin1Char('/'), QLatin1Char('\\')}) {
            Export run;
            const QString target = run.folder() + "mark.png";
            QFile old(target);
            QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
            old.close();
            const std::u16string copied
                = QString(original).replace(QLatin1Char('/'), separator).toStdU16String();
            const std::u16string missing = source.filePath("no/ghost.png").toStdU16String();
            run.add(0, copied.c_str());
            run.add(0, missing.c_str());
            const QJsonArray hotspots = hotspotsOf(run);
            QCOMPARE(hotspots[0]["bitmap"].toString() + hotspots[1]["bitmap"].toString(),
                "mark.pngghost.png");
            QCOMPARE(test::readFileBytes(target), QByteArray("new bitmap"));
            QVERIFY(QFileInfo(target).permissions() & QFileDevice::WriteOwner);
            QVERIFY(!QFileInfo::exists(run.folder() + "ghost.png"));
            QVERIFY(resourceCalls.isEmpty());
        }
        QFile::setPermissions(original, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
};

QTEST_GUILESS_MAIN(tst_Hotspots)
#include "tst_hotspots.moc"
