// The order and gates of the toolbar's buttons; the free-standing buttons; every script of a
// written controls file parsed by Node.js.
#include "common/scriptcheck.h"
#include "toolbarfixture.h"
#include "viewerparams/controlsfile.h"

#include <QtTest>

#include <numeric>

using namespace vantora;

namespace {

// clang-format off

// Which buttons the toolbar holds in every design: the switches on (all others off),
// GalleryButtons, the names; "compass" and "radar" are the orientation kinds in the toolbar.
struct Gate { const char *tag, *on; int galleryButtons; const char *names; };
const Gate GATES[] = {
    {"no optional button", "", 0, "hideTbButton infobutton"},
    {"arrows, zoom, play, audio, fullscreen", "arrows zoom play audio fullscreen", 0, "hideTbButton infobutton type1 type2 type3 type4 type5 type6 playbutton audiobutton fullscreenButton"},
    {"gallery buttons in the toolbar", "gallery", 1, "navLeftButton hideTbButton gallerybutton infobutton navRightButton"},
    {"gallery buttons at the edges", "gallery", 0, "hideTbButton gallerybutton infobutton"},
    {"no gallery buttons", "gallery", 2, "hideTbButton gallerybutton infobutton"},
    {"GalleryButtons 1 without gallery", "", 1, "hideTbButton infobutton"},
    {"map and hotspots", "map hotspots", 0, "hideTbButton mapbutton infobutton hotspotsButton"},
    {"VR without a full sphere", "vr notVrCapable", 0, "hideTbButton infobutton"},
    {"gyroscope", "gyroButton addGyro", 0, "hideTbButton infobutton gyrobutton"},
    {"gyroscope button without AddGyro", "gyroButton", 0, "hideTbButton infobutton"},
    {"gyroscope in flat mode", "gyroButton addGyro noGyroscope", 0, "hideTbButton infobutton"},
    {"everything, compass", "gallery map compass hotspots arrows zoom play vr gyroButton addGyro audio fullscreen", 1, "navLeftButton hideTbButton gallerybutton mapbutton compass infobutton hotspotsButton type1 type2 type3 type4 type5 type6 playbutton vrButton gyrobutton audiobutton fullscreenButton navRightButton"},
    {"everything, radar", "gallery map radar hotspots arrows zoom play vr gyroButton addGyro audio fullscreen", 1, "navLeftButton hideTbButton gallerybutton mapbutton compass infobutton hotspotsButton type1 type2 type3 type4 type5 type6 playbutton vrButton gyrobutton audiobutton fullscreenButton navRightButton"},
};
using S = settings::ViewerSettings;
const std::pair<const char *, bool S::*> SWITCHES[] = {
    {"gallery", &S::AddGallery}, {"map", &S::AddMap}, {"hotspots", &S::HotspotsButton},
    {"arrows", &S::ShowArrowButtons}, {"zoom", &S::ShowZoomButtons}, {"play", &S::PlayButton}, {"vr", &S::AddVrMode},
    {"gyroButton", &S::GyroButton}, {"addGyro", &S::AddGyro}, {"audio", &S::AddAudioButton}, {"fullscreen", &S::ShowToolbarFullscreen},
};

// The free-standing buttons: which exist.
struct Free { const char *tag; int design; bool shown, gallery; int galleryButtons; bool vr, vrCapable; const char *names; };
const Free FREES[] = {
    {"show button only", 2, true, true, 1, true, false, "showTbButton"},
    {"stereo and edge buttons", 2, true, true, 0, true, true, "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext"},
    {"no gallery buttons", 2, true, true, 2, false, true, "showTbButton"},
    {"design 3 hidden parks the edge buttons", 3, false, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext"},
    {"design 0 hidden folds the edge buttons", 0, false, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext"},
    {"design 0 shown", 0, true, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext"},
    {"design 1 edge buttons", 1, true, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext"},
    {"design 4 edge and stereo buttons", 4, true, true, 0, true, true, "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext"},
    {"design 6 stereo buttons", 6, true, false, 0, true, true, "showTbButton leftStereoButton rightStereoButton"},
};
// clang-format on

params::ControlsInput controlsInput(settings::ViewerSettings &s)
{
    params::ControlsInput input;
    input.settings = &s;
    input.vrAvailable = true;
    return input;
}

} // namespace

class tst_Toolbar : public QObject
{
    Q_OBJECT

private slots:
    void gates_data();
    void gates();
    void elements();
    void freeButtons_data() { test::addRows(FREES); }
    void freeButtons();
    void controlsRoot();
    void everyScriptParses();
};

void tst_Toolbar::gates_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("row");
    for (int design = 0; design < 8; ++design)
        for (int row = 0; row < int(std::size(GATES)); ++row)
            QTest::addRow("design%d/%s", design, GATES[row].tag) << design << row;
}

void tst_Toolbar::gates()
{
    QFETCH(int, design);
    QFETCH(int, row);
    const Gate &g = GATES[row];
    const QStringList on = QString(g.on).split(' ', Qt::SkipEmptyParts);
    test::Toolbar t(design);
    for (const auto &[name, flag] : SWITCHES)
        t.settings.*flag = on.contains(name);
    t.settings.AddOrientation = on.contains("compass") || on.contains("radar");
    t.settings.OrientationElement = on.contains("radar") ? 11 : 10;
    t.settings.GalleryButtons = g.galleryButtons;
    t.input.vrCapable = !on.contains("notVrCapable");
    t.input.noGyroscope = on.contains("noGyroscope");
    const QJsonArray buttons = t.buttons();
    QCOMPARE(test::ids(buttons), g.names);
    // A full toolbar gives each index 0..18 exactly one owner.
    QVector<int> indexes, expected(19);
    for (const QJsonValue &button : buttons)
        indexes << button["index"].toInt(-1);
    std::sort(indexes.begin(), indexes.end());
    std::iota(expected.begin(), expected.end(), 0);
    if (buttons.size() == 19)
        QCOMPARE(indexes, expected);
}

void tst_Toolbar::elements()
{
    test::Toolbar t(2);
    const QJsonObject toolbar = t.full().toolbar();
    QCOMPARE(toolbar.value("galleryElement")["id"].toString(), "thumbnailGallery");
    QCOMPARE(toolbar.value("mapElement")["id"].toString(), "map");
    QCOMPARE(test::ids(t.actions),
        "updateGyroButton toggleGallery hideGallery toggleMap hideMap resizeMap");
    // A key too short for the map service leaves the element empty, and without its actions.
    test::Toolbar shortKey(2);
    shortKey.full().settings.GmAPIKey = "012345678";
    QCOMPARE(shortKey.toolbar().value("mapElement"), QJsonValue(QJsonObject()));
    QCOMPARE(test::ids(shortKey.actions), "updateGyroButton toggleGallery hideGallery");
    const QJsonObject none = test::Toolbar(2).toolbar();
    QVERIFY(!none.contains("galleryElement") && !none.contains("mapElement"));
}

void tst_Toolbar::freeButtons()
{
    QFETCH(int, row);
    const Free &f = FREES[row];
    test::Toolbar t(f.design);
    t.settings.ShowToolbar = f.shown;
    t.settings.AddGallery = f.gallery;
    t.settings.GalleryButtons = f.galleryButtons;
    t.settings.AddVrMode = f.vr;
    t.input.vrCapable = f.vrCapable;
    const QJsonArray buttons = controls::buildFreeButtons(t.input);
    QCOMPARE(test::ids(buttons), f.names);
    // The stereo buttons never carry the edge buttons' handlers, and are hidden until VR mode.
    for (const QJsonValue &button : buttons)
        QVERIFY(
            !button["id"].toString().endsWith("StereoButton") || button["oninit"].isUndefined());
}

void tst_Toolbar::controlsRoot()
{
    settings::ViewerSettings s;
    settings::resetViewerSettings(s, true);
    s.ContextMenuItems.clear();
    s.AddGallery = s.AddVrMode = true;
    QJsonArray actions, bare;
    const QJsonObject root = params::buildControls(controlsInput(s), actions);
    QCOMPARE(root.keys(), QStringList({"actions", "button", "buttonBox", "events"}));
    QCOMPARE(root.value("buttonBox").toArray().size(), 1);
    QCOMPARE(test::ids(root.value("button").toArray()),
        "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext");
    // Without the toolbar no button of any kind is written, nor the gallery's actions.
    s.AddToolbar = false;
    QCOMPARE(
        params::buildControls(controlsInput(s), bare).keys(), QStringList({"actions", "events"}));
    QCOMPARE(bare.size(), 3);
}

void tst_Toolbar::everyScriptParses()
{
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design)
        for (bool shown : {true, false})
            for (int galleryButtons : {0, 1}) {
                test::Toolbar t(design);
                settings::ViewerSettings &s = t.full().settings;
                s.ShowToolbar = s.GalleryThumbnailVisible = shown;
                s.MapVisible = !shown;
                s.GalleryButtons = galleryButtons;
                s.LittlePlanetIntro = s.PositionNorth = true;
                // Each of the twelve orientation kinds in some file.
                s.OrientationElement = galleryButtons ? 10 + shown : (design + 8 * shown) % 10;
                QJsonArray actions;
                files << QString("%1/d%2_%3.js").arg(dir.path()).arg(design).arg(files.size());
                params::writeControlsFile(QString(), files.last(), controlsInput(s), actions);
            }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(files.size()), check.output.constData());
}

QTEST_MAIN(tst_Toolbar)
#include "tst_toolbar.moc"
