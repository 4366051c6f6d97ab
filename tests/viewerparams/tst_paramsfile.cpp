#include "paramsfixture.h"

#include "viewerparams/jsonbridge.h"
#include "viewerparams/memberwriter.h"

#include <QDir>
#include <QtTest>

using namespace vantora;
using test::Export;

namespace {

// What the fake host's tile writer saw, and how it behaves.
struct TileWriterLog
{
    int calls = 0;
    QString seen;            // the request's values, folder, identifier and node on entry
    uint32_t capacity = 0;   // of the identifier buffer
    QString newIdentifier;   // empty: leave it
    bool fillBuffer = false; // write the whole buffer without a terminator
    uint32_t status = 1;
    int badMemberResult = -1;
} tileLog;

uint32_t fakeWriteTiles(HostContext *, HostTileRequest *r)
{
    ++tileLog.calls;
    tileLog.capacity = r->identifierCapacity;
    tileLog.seen
        = QString::asprintf("%u %u %u %ux%u %g..%g %g..%g %g %g %g %g..%g ", r->size, r->flatMode,
              r->scalePercent, r->outputWidth, r->outputHeight, r->startPan, r->endPan,
              r->upperEdgeTilt, r->lowerEdgeTilt, r->pan, r->tilt, r->hfov, r->minhfov, r->maxhfov)
        + QString::fromStdU16String(r->outputFolder) + QLatin1Char(' ')
        + QString::fromStdU16String(r->identifier) + QLatin1Char(' ')
        + test::compact(r->node->object);
    const std::u16string name = tileLog.newIdentifier.toStdU16String();
    if (!name.empty())
        std::copy(name.c_str(), name.c_str() + name.size() + 1, r->identifier);
    if (tileLog.fillBuffer)
        std::fill_n(r->identifier, r->identifierCapacity, u'x');
    r->setNodeMember(r->node, "image",
        R"({"type": "cube", "tilesize": 510, "levels": [{"width": 2048, "height": 2048}]})");
    tileLog.badMemberResult = r->setNodeMember(r->node, "extra", "1],[2");
    return tileLog.status;
}

int locationCalls = 0;

// Fills the location, noting in it what it was asked for and how often it was called.
void fakeFillLocation(HostContext *, VantoraJsonObject *location, VantoraJsonSetFn setMember,
    uint32_t forMap, uint32_t forOrientation)
{
    setMember(location, "lat", "53.5");
    const QByteArray asked
        = QByteArray::number(forMap) + '/' + QByteArray::number(forOrientation) + " call ";
    setMember(location, "asked", '"' + asked + QByteArray::number(++locationCalls) + '"');
}

// clang-format off

// A flat image whose list holds only lens flares.
void flatFlares(Export &run) { run.input.flatMode = true; run.add(7, u":/flare.png"); run.add(13); }

// One member, at the root and in the node, after `setup`; expected null: absent there. The host
// fills the location for the map and for the orientation (compass or radar) on request.
const struct
{
    const char *tag;
    void (*setup)(Export &);
    const char *key;
    const char *atRoot;
    const char *inNode;
} MEMBER_ROWS[] = {
    {"camera/defaults omitted", [](Export &) {}, "camera", nullptr,
        R"({"minpan":0,"maxpan":360,"mintilt":-90,"maxtilt":90})"},
    {"camera/maxpan 370, minhfov 5.000001", [](Export &r) { r.host.endPan = 370.0; r.input.view.minhfov = 5.000001; }, "camera", nullptr,
        R"({"minpan":0,"maxpan":360,"mintilt":-90,"maxtilt":90,"minhfov":5.000001})"},
    {"camera/tilt clamps", [](Export &r) { r.extent(-10.0, 200.0, -100.0, 120.0); }, "camera", nullptr,
        R"({"minpan":-10,"maxpan":200,"mintilt":-90,"maxtilt":90})"},
    {"camera/partial, both fov limits", [](Export &r) { r.extent(-10.0, 360.5, -30.0, 45.5); r.input.view.minhfov = 10.0; r.input.view.maxhfov = 120.0; }, "camera", nullptr,
        R"({"minpan":-10,"maxpan":360,"mintilt":-45.5,"maxtilt":30,"minhfov":10,"maxhfov":120})"},
    {"control/drag, move", [](Export &r) { r.settings.MouseMode = 2; r.settings.TouchMode = 0; }, "control",
        R"({"mousemode":"drag","touchmode":"move"})", nullptr},
    {"control/move, drag, zoom mode", [](Export &r) { r.settings.MouseMode = 0; r.settings.ZoomMode = 3; }, "control",
        R"({"mousemode":"move","touchmode":"drag","zoomtocursor":false})", nullptr},
    {"control/vr, split screen", [](Export &r) { r.settings.AddVrMode = true; r.settings.VrDisplayType = 1; }, "control",
        R"({"mousemode":"drag","touchmode":"drag","vrgamepadenable":true,"vrdisplay":"splitscreen"})", nullptr},
    {"control/vr, just a full sphere", [](Export &r) { r.settings.AddVrMode = true; r.settings.VrGamepadEnabled = false; r.settings.VrDisplayType = 2; r.extent(0.0, 359.99, 0.0, 179.99); }, "control",
        R"({"mousemode":"drag","touchmode":"drag","vrgamepadenable":false,"vrdisplay":"auto"})", nullptr},
    {"control/vr, pan short", [](Export &r) { r.settings.AddVrMode = true; r.extent(0.0, 359.98, -90.0, 90.0); }, "control",
        R"({"mousemode":"drag","touchmode":"drag"})", nullptr},
    {"control/vr, tilt short", [](Export &r) { r.settings.AddVrMode = true; r.extent(0.0, 360.0, -89.98, 90.0); }, "control",
        R"({"mousemode":"drag","touchmode":"drag"})", nullptr},
    {"control/vr, flat", [](Export &r) { r.settings.AddVrMode = true; r.input.flatMode = true; }, "control",
        R"({"mousemode":"drag","touchmode":"drag"})", nullptr},
    {"hotspots/no list", [](Export &) {}, "hotspots", nullptr, nullptr},
    {"hotspots/only a null entry", [](Export &r) { r.addNull(); r.settings.ShowHotspots = false; }, "hotspots", nullptr, R"({"visible":false})"},
    {"hotspots/flat, only flares", flatFlares, "hotspots", nullptr, R"({"visible":true})"},
    {"hotspot/flat, only flares", flatFlares, "hotspot", nullptr, nullptr},
    {"lensflare/flat, only flares", flatFlares, "lensflare", nullptr, nullptr},
    {"view/flat, described", [](Export &r) { r.input.flatMode = true; r.settings.ShortDescription64 = QStringLiteral("Hafen"); }, "view", nullptr,
        R"({"mode":"fitInWindow","shortdescription":"Hafen"})"},
    {"title/none", [](Export &) {}, "textbox", nullptr, nullptr},
    {"title/toolbar position 2", [](Export &r) { r.settings.Title64 = QStringLiteral("Blick \u00fcber den Hafen"); r.settings.TextColor = 0x12AB3C; r.settings.ShadowColor = 0x0000FF; r.settings.Position = 2; }, "textbox", nullptr,
        R"([{"text":"Blick über den Hafen","align":"top","yoff":"4px","style":" color:#12ab3c; font-family: Arial,Helvetica,sans-serif; text-shadow: 0px 0px 3.8px #0000ff, 0px 0px 2.5px #0000ff, 0px 0px 1.7px #0000ff; font-size: 12px; font-weight: bold; text-align:center;"}])"},
    {"title/toolbar position 3", [](Export &r) { r.settings.Title64 = QStringLiteral("T"); r.settings.TextColor = 0x000001; r.settings.ShadowColor = 0xFEDCBA; r.settings.Position = 3; }, "textbox", nullptr,
        R"([{"text":"T","align":"bottom","yoff":"4px","style":" color:#000001; font-family: Arial,Helvetica,sans-serif; text-shadow: 0px 0px 3.8px #fedcba, 0px 0px 2.5px #fedcba, 0px 0px 1.7px #fedcba; font-size: 12px; font-weight: bold; text-align:center;"}])"},
    {"logo/no image", [](Export &r) { r.settings.LogoURL = QStringLiteral("https://example.org/"); }, "logo", nullptr, nullptr},
    {"logo", [](Export &r) { r.settings.LogoURL = QStringLiteral("https://example.org/"); r.settings.LogoImage = QStringLiteral("Bilder/Firmen logo.png"); }, "logo",
        R"({"src":"Bilder/Firmen logo.png","href":"https://example.org/","target":"_blank","style":"max-width: 80%;"})", nullptr},
    {"sound/global", [](Export &r) { r.settings.Sound = QStringLiteral("meer.mp3"); r.settings.AudioGlobal = true; r.settings.AudioLoop = false; }, "audio",
        R"({"id":"gAudio","src":"meer.mp3","loop":false,"autoplay":true})", nullptr},
    {"sound/local", [](Export &r) { r.settings.Sound = QStringLiteral("meer.mp3"); r.settings.AudioGlobal = false; r.settings.AudioAutoplay = false; }, "audio", nullptr,
        R"({"id":"lAudio","src":"meer.mp3","loop":true,"autoplay":false})"},
    {"autoplay/on", [](Export &r) { r.settings.AutoPlay = true; r.settings.PanRate = -3.5; r.settings.TiltRate = 0.25; r.settings.ZoomRate = 1.125; r.settings.Restart = 12; }, "autoplay", nullptr,
        R"({"status":"on","pan":-3.5,"tilt":0.25,"zoom":1.125,"restart":12})"},
    {"location/neither", [](Export &) {}, "location", nullptr, nullptr},
    {"location/map with radar", [](Export &r) { r.settings.AddMap = true; }, "location", nullptr, R"({"lat":53.5,"asked":"1/1 call 1"})"},
    {"location/map without radar", [](Export &r) { r.settings.AddMap = true; r.settings.MapRadar = false; }, "location", nullptr, R"({"lat":53.5,"asked":"1/0 call 1"})"},
    {"location/orientation", [](Export &r) { r.settings.AddOrientation = true; }, "location", nullptr, R"({"lat":53.5,"asked":"0/1 call 1"})"},
    {"location/map and orientation", [](Export &r) { r.settings.AddMap = r.settings.AddOrientation = true; r.settings.MapRadar = false; }, "location", nullptr, R"({"lat":53.5,"asked":"1/1 call 1"})"},
    {"location/no filler", [](Export &r) { r.settings.AddOrientation = true; r.host.fillLocation = nullptr; }, "location", nullptr, "{}"},
};

// The info box without its style and text.
const char INFO_BOX[] = R"({"id":"infobox","captureMouse":true,"checkHover":true,"align":"center","xoff":0,"yoff":-30,"maxwidth":"66%","onclick":"function(){ this.viewer.action('hideMessage'); } "})";

// Design 0's info box carries this behind its style.
constexpr char DESIGN0_TRANSFORM[]
    = " transform-origin : 0% 0% 0px; transform: translate(0px, 0px) translateZ(10000px);";

// The message style and the text wrapper (before the text; "</div>" follows) for two designs (the
// golden files hold the others); null outside the designs. The info box alternates between the global and the local data object.
const struct
{
    const char *tag;
    int design;
    bool infoGlobal;
    const char *style;
    const char *prefix;
} DESIGN_ROWS[] = {
    {"design0/global", 0, true, "min-width: 25%; text-shadow: none; line-height: 100%; color:#ffffff; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; box-shadow: 4px 4px 1px 0px rgba(0,0,0,0.33);background: rgba(0,0,0,0.66);", "<div style='padding: 16px;' class='vantoViewerText1'><style>div.vantoViewerText1 a, a:visited {color: #FDB815;} div.vantoViewerText1 a:hover, a:active {color: #EFF517;}</style>"},
    {"design1/local", 1, false, "min-width: 25%; text-shadow: none; line-height: 100%; color:#000; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 400; text-align:left; border-radius: 3px; border: rgba(0,0,0,0.66) solid 1px; box-shadow: 2px 2px 3px 0px rgba(0,0,0,0.66);background: rgba(255,255,255,0.75);", "<div style='padding: 16px;'>"},
    {"design8/global", 8, true, nullptr, nullptr},
    {"design9/local", 9, false, nullptr, nullptr},
};

// The members of a root object as the file lays them out between its opening and closing text.
const struct
{
    const char *tag;
    const char *root;
    const char *members;
} WRITER_ROWS[] = {
    {"node last", R"({"node": {"id": "p", "a": [1], "s": "a\nb"}})",
        "\"node\": {\n\t\"a\": [\n\t        1\n\t    ],\n\t\"id\": \"p\",\n\t\"s\": \"a\\nb\"\n}\n"},
    {"image compact and last",
        R"({"version": "4.1", "node": {"id": "p", "image": {"t": 1}}, "image": {"type": "cube", "levels": [1, 2]}})",
        "\"node\": {\n\t\"id\": \"p\",\n\t\"image\":{\"t\":1}\n},\n\"version\": \"4.1\",\n"
        "\"image\":{\"levels\":[1,2],\"type\":\"cube\"}\n"},
};

// clang-format on

} // namespace

class tst_ParamsFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        tileLog = TileWriterLog();
        locationCalls = 0;
    }

    void members_data() { test::addRows(MEMBER_ROWS); }
    void members()
    {
        QFETCH(int, row);
        const auto &entry = MEMBER_ROWS[row];
        Export run;
        run.host.fillLocation = fakeFillLocation;
        entry.setup(run);
        const QJsonObject root = run.root();
        VANTORA_COMPARE_TEXT(test::compact(root[entry.key]), test::expected(entry.atRoot));
        VANTORA_COMPARE_TEXT(test::compact(root["node"][entry.key]), test::expected(entry.inNode));
    }

    void messageBox_data() { test::addRows(DESIGN_ROWS); }
    void messageBox()
    {
        QFETCH(int, row);
        const auto &entry = DESIGN_ROWS[row];
        const QString html = "Blick vom <a href='https://example.org'>Turm</a>";
        Export run;
        run.settings.TBDesign = entry.design;
        run.settings.InfoGlobal = entry.infoGlobal;
        run.settings.InfoHTML64 = html;
        const QJsonObject root = run.root();

        const QString style = entry.style;
        QJsonObject box = QJsonDocument::fromJson(INFO_BOX).object();
        box["text"] = entry.style ? entry.prefix + html + "</div>" : QString();
        if (entry.style)
            box["style"] = entry.design == 0 ? style + DESIGN0_TRANSFORM : style;
        // A data object is named when it is not empty, and left out otherwise.
        QJsonObject global {{"id", "globalData"}}, local {{"id", "localData"}};
        (entry.infoGlobal ? global : local)["infoTextBox"] = box;
        if (entry.style)
            global["messageBoxStyle"] = style;
        VANTORA_COMPARE_TEXT(test::compact(root["data"]),
            global.size() > 1 ? test::compact(global) : test::compact(QJsonValue::Undefined));
        VANTORA_COMPARE_TEXT(test::compact(root["node"]["data"]),
            local.size() > 1 ? test::compact(local) : test::compact(QJsonValue::Undefined));
        // The parameter file saw the design as it was; the setting leaves the export clamped.
        QCOMPARE(run.settings.TBDesign, qBound(0, entry.design, 7));
    }

    void tileWriter()
    {
        Export run;
        QCOMPARE(run.build().tileStatus, 0u); // without a tile writer
        run.host.writeTiles = fakeWriteTiles;
        tileLog.newIdentifier = "hafen_abend";
        tileLog.status = 7;
        run.settings.ShortDescription64 = "Abend";
        const params::ParamsDocument document = run.build("sub\\pano.v2.js");
        QCOMPARE(tileLog.calls, 1);
        QCOMPARE(document.tileStatus, 7u);
        // The node holds the view when the tiles are written.
        VANTORA_COMPARE_TEXT(tileLog.seen,
            QString::asprintf("%u 0 50 4000x2000 0..360 -90..90 10 -5 70 5..140 ",
                unsigned(sizeof(HostTileRequest)))
                + run.folder() + " pano.v2 "
                + test::expected(
                    R"({"view":{"pan":10,"tilt":-5,"hfov":70,"shortdescription":"Abend"}})"));
        QVERIFY(tileLog.capacity >= 256);
        QCOMPARE(tileLog.badMemberResult, 0); // malformed members are refused
        const QJsonObject node = document.root["node"].toObject();
        QCOMPARE(node["id"].toString(), "hafen_abend");
        VANTORA_COMPARE_TEXT(test::compact(node["image"]),
            test::expected(
                R"({"type":"cube","tilesize":510,"levels":[{"width":2048,"height":2048}]})"));
        QVERIFY(!node.contains("extra"));

        // Flat mode is passed on; a buffer filled to the brim is cut before its last unit.
        run.input.flatMode = true;
        tileLog.fillBuffer = true;
        const QString id = run.node().value("id").toString();
        QVERIFY(
            tileLog.seen.startsWith(QString::asprintf("%u 1 ", unsigned(sizeof(HostTileRequest)))));
        QCOMPARE(id, QString(int(tileLog.capacity) - 1, QLatin1Char('x')));
    }

    void memberWriter_data() { test::addRows(WRITER_ROWS); }
    void memberWriter()
    {
        QFETCH(int, row);
        QTemporaryDir dir;
        const QString path = dir.filePath("a/b/p.js"); // folders are created
        QVERIFY(params::writeViewerParamsFile(
            path, QJsonDocument::fromJson(WRITER_ROWS[row].root).object()));
        QCOMPARE(test::readFileBytes(path),
            "VantoraViewerParams = {\n\"vantoraViewer\": {\n" + QByteArray(WRITER_ROWS[row].members)
                + "}\n}");
    }

    void goldenFile()
    {
        Export run;
        run.host.writeTiles = fakeWriteTiles;
        tileLog.status = 7;
        run.input.view.maxhfov = 120.0;
        run.settings.TBDesign = 1;
        run.settings.Title64 = "Hafen";
        run.settings.ShortDescription64 = QStringLiteral("Abend am Hafen, M\u00f6wen");
        HostHotspot &tower = run.add(0, u":/hotspots/info.png", 0.25, 0.5);
        tower.action = 1;
        tower.infoText = "Der Leuchtturm";
        tower.name = "Leuchtturm";
        tower.transparency = 20;
        run.attachList();

        QCOMPARE(params::writeViewerParams(
                     run.input, run.folder(), "hafen.js", "hafen_controls.js", "g.js"),
            7u);
        const QByteArray expected
            = test::readFileBytes(VANTORA_TEST_DATA "/golden/params_basic.json");
        QByteArray actual = test::readFileBytes(run.folder() + "hafen.js");
#ifdef Q_OS_WIN
        // Text mode writes CRLF there; the reviewed file holds the document's line feeds.
        actual.replace("\r\n", "\n");
#endif
        VANTORA_COMPARE_TEXT(QString::fromUtf8(actual), QString::fromUtf8(expected));

        // A file that cannot be opened makes the status 0.
        QVERIFY(QDir(run.dir.path()).mkdir("blocked.js"));
        QCOMPARE(params::writeViewerParams(
                     run.input, run.folder(), "blocked.js", "hafen_controls.js", QString()),
            0u);
    }
};

QTEST_GUILESS_MAIN(tst_ParamsFile)
#include "tst_paramsfile.moc"
