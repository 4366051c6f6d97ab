// The controls file: event handlers by design and flags, actions, context menu, file and include.
#include "common/scriptcheck.h"
#include "paramsfixture.h"

#include "viewerparams/contextmenu.h"
#include "viewerparams/controlsfile.h"

#include <QtTest>

using namespace vantora;
using settings::ContextMenuItem;

namespace {

// clang-format off
// The handlers as the viewer's documentation states them, written out independently of the
// writer's tables and rules. T stands for the tab inside S1 and S13.
#define T "\t"
const char *const S[17] = {nullptr,
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.shbackup = o.skinhover; o.sabackup = o.skinactive; o.skin = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28)'; o.skinhover = 'dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,10,10,28,28)';" T "o.skinactive = 'dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,10,10,28,28)'; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.skinhover = o.shbackup; o.skinactive = o.sabackup; o.updateSkins(); } } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.playskin; o.skinhover = o.playskinhover; o.skinactive = o.playskinactive; o.updateSkins(); }} } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.pauseskin; o.skinhover = o.pauseskinhover; o.skinactive = o.pauseskinactive; o.updateSkins(); }} } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin;  o.sabackup = o.skinactive; o.skin = 'shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28)'; o.skinactive = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,1,1,28,28)'; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup;  o.skinactive = o.sabackup; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,5,2,24,24,#444)'; o.skinactive = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,6,3,24,24,#333)'; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.skinactive = o.sabackup; o.updateSkins(); } } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.playskin;  o.skinactive = o.playskinactive; o.updateSkins(); }} } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.pauseskin;  o.skinactive = o.pauseskinactive; o.updateSkins(); }} } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,5,5,24,24)'; o.skinactive = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,5,5,24,24)'; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,5,2,24,24)'; o.skinactive = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,6,3,24,24)'; o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.skin = 'copy(defaultSkin,128,0,64,64,5,5,24,24)';  " T "o.updateSkins(); } } ",
    "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.updateSkins(); } } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.playskin; o.updateSkins(); }} } ",
    "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ o.skin = o.pauseskin; o.updateSkins(); }} } ",
};

struct DesignRow { const char *tag; int tbDesign, clamped, onplay, onstop, onstartaudio, onstopaudio; };
const DesignRow DESIGNS[] = {
    {"design 0", 0, 0, 1, 2, 3, 4},    {"design 1", 1, 1, 5, 6, 3, 4},
    {"design 2", 2, 2, 7, 8, 9, 10},   {"design 3", 3, 3, 7, 8, 9, 10},
    {"design 4", 4, 4, 11, 8, 3, 4},   {"design 5", 5, 5, 12, 8, 9, 10},
    {"design 6", 6, 6, 13, 14, 15, 16}, {"design 7", 7, 7, 1, 2, 3, 4},
    {"9 is clamped to 7", 9, 7, 1, 2, 3, 4}, {"-1 is clamped to 0", -1, 0, 1, 2, 3, 4},
};

// The assembled handlers: without and with the gyroscope part.
const char SCENE_PLAIN[] = "function(){}";
const char SCENE_GYRO[] = "function(){ var o = this.get('gyrobutton'); if(!!o){ o.setVisible(this.viewer.gyroAvailable&&this.viewer.panoType()==0); this.viewer.gyroAvailable&&this.viewer.panoType()==0&&this.viewer.gyroWasEnabled&&o.onclick(); } if (this.viewer.isVRModeEnabled()){this.viewer.enableGyroscope(!0);}}";
const char EXIT_PLAIN[] = "function(){  var d=this.viewer.get('localData'); if (!!d&&d.infoTextBox){ this.viewer.action('hideMessage'); }}";
const char EXIT_GYRO[] = "function(){  var d=this.viewer.get('localData'); if (!!d&&d.infoTextBox){ this.viewer.action('hideMessage'); } this.viewer.gyroWasEnabled = this.viewer.gyroAvailable&&this.viewer.gyroscopeEnabled();" T "}";
const char INIT_PLAIN[] = "function(){ var g = this.viewer.gallery(); this.viewer.hasGallery = ((!!g) && g.length>1);  }";
const char INIT_GYRO[] = "function(){ var g = this.viewer.gallery(); this.viewer.hasGallery = ((!!g) && g.length>1); this.viewer.checkForGyroscope(); }";
const char INIT_INTRO[] = "function(){ var g = this.viewer.gallery(); this.viewer.hasGallery = ((!!g) && g.length>1);  this.viewer.action('littlePlanetIntro',10.0000,0.0000,70.0000);  }";
const char INIT_GYRO_INTRO[] = "function(){ var g = this.viewer.gallery(); this.viewer.hasGallery = ((!!g) && g.length>1); this.viewer.checkForGyroscope(); this.viewer.action('littlePlanetIntro',10.0000,0.0000,70.0000);  }";
const char GYRO_AUTO_ON[] = "function(available){ this.viewer.gyroAvailable = available; var o = this.get('gyrobutton'); if(!!o){ o.setVisible(available&&this.viewer.panoType()==0); available&&o.onclick(); } } ";
const char GYRO_PLAIN[] = "function(available){ this.viewer.gyroAvailable = available; var o = this.get('gyrobutton'); if(!!o){ o.setVisible(available&&this.viewer.panoType()==0); } } ";
#undef T

const char ALWAYS[] = "id ongyroscopeavailable ongyroscopetoggle onscenechanged onexit oninit onuseswebgl onresize onplay onstop onstartaudio onstopaudio";

struct FlagRow
{
    const char *tag;
    bool flat, fullSphere, addGyro, gyroEnabled, addVr, intro;
    const char *gyroAvailable, *scene, *exit, *init;
    bool vrEvents;
    const char *actions;
};
const FlagRow FLAGS[] = {
    {"nothing on", false, true, false, false, false, false, GYRO_PLAIN, SCENE_PLAIN, EXIT_PLAIN, INIT_PLAIN, false, "showMessage hideMessage toggleMessage"},
    {"gyroscope", false, true, true, false, false, false, GYRO_PLAIN, SCENE_GYRO, EXIT_GYRO, INIT_GYRO, false, "showMessage hideMessage toggleMessage"},
    {"gyroscope on at start", false, true, false, true, false, false, GYRO_AUTO_ON, SCENE_PLAIN, EXIT_PLAIN, INIT_PLAIN, false, "showMessage hideMessage toggleMessage"},
    {"VR on a full sphere", false, true, false, false, true, false, GYRO_PLAIN, SCENE_GYRO, EXIT_GYRO, INIT_GYRO, true, "showMessage hideMessage toggleMessage"},
    {"VR on a partial panorama", false, false, false, false, true, false, GYRO_PLAIN, SCENE_PLAIN, EXIT_PLAIN, INIT_PLAIN, false, "showMessage hideMessage toggleMessage"},
    {"flat mode with everything on", true, false, true, true, true, false, GYRO_PLAIN, SCENE_PLAIN, EXIT_PLAIN, INIT_PLAIN, false, "showMessage hideMessage toggleMessage"},
    {"little planet intro", false, true, false, false, false, true, GYRO_PLAIN, SCENE_PLAIN, EXIT_PLAIN, INIT_INTRO, false, "littlePlanetIntro showMessage hideMessage toggleMessage"},
    {"everything on", false, true, true, true, true, true, GYRO_AUTO_ON, SCENE_GYRO, EXIT_GYRO, INIT_GYRO_INTRO, true, "littlePlanetIntro showMessage hideMessage toggleMessage"},
};

// Menu entries by kind, and what comes out: "-" for a separator item, the id of an item, "?" for
// an item without id; the actions the menu appended; the onshow statements' variables.
struct MenuRow { const char *tag; std::initializer_list<int> kinds; bool gyro; const char *items, *actions, *onshow; };
const MenuRow MENUS[] = {
    {"two separators collapse", {0, 0, 1}, false, "- fullscreenItem", "", ""},
    {"a leading separator stays", {0, 5}, false, "- ?", "", ""},
    {"gyro entry without support", {5, 0, 4, 0, 1}, false, "? - fullscreenItem", "", ""},
    {"gyro entry with support", {5, 0, 4, 0, 1}, true, "? - gyroItem - fullscreenItem", "", "gyro"},
    {"nothing entry ends a separator run", {0, 6, 0}, false, "- -", "", ""},
    {"view items, twice", {2, 3, 2}, false, "normalView littlePlanetView normalView", "leaveLittlePlanet enterLittlePlanet leaveLittlePlanet", "view1 view2 view1"},
    {"the eight defaults", {1, 0, 2, 3, 0, 4, 0, 5}, true, "fullscreenItem - normalView littlePlanetView - gyroItem - ?", "leaveLittlePlanet enterLittlePlanet", "view1 view2 gyro"},
};
// clang-format on

struct Controls
{
    settings::ViewerSettings settings;
    params::ControlsInput input;
    QJsonArray actions;

    Controls()
    {
        settings::resetViewerSettings(settings, false);
        settings.ContextMenuItems.clear();
        input.settings = &settings;
        input.view = plugin::View {10.0, 0.0, 70.0, 5.0, 140.0};
        input.vrAvailable = true;
    }
    QJsonObject build() { return params::buildControls(input, actions); }
};

QString ids(const QJsonArray &array, const char *key)
{
    QStringList list;
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        list << (object.value(QStringLiteral("caption")) == QStringLiteral("-")
                ? QStringLiteral("-")
                : object.value(QLatin1String(key)).toString(QStringLiteral("?")));
    }
    return list.join(QLatin1Char(' '));
}

QList<ContextMenuItem> entries(std::initializer_list<int> kinds)
{
    QList<ContextMenuItem> list;
    for (int kind : kinds)
        list.append(ContextMenuItem {kind, QString(), QString()});
    return list;
}

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

class tst_ControlsFile : public QObject
{
    Q_OBJECT

private slots:
    void designHandlers_data() { test::addRows(DESIGNS); }
    void designHandlers();
    void flags_data() { test::addRows(FLAGS); }
    void flags();
    void menu_data() { test::addRows(MENUS); }
    void menu();
    void menuItemTexts();
    void rootMembers();
    void writtenFile();
    void unwritableFile();
    void everyScriptParses();
};

void tst_ControlsFile::designHandlers()
{
    QFETCH(int, row);
    const DesignRow &r = DESIGNS[row];
    Controls c;
    c.settings.TBDesign = r.tbDesign;
    const QJsonObject events = c.build().value(QStringLiteral("events")).toObject();
    QCOMPARE(c.settings.TBDesign, r.clamped);
    VANTORA_COMPARE_TEXT(text(events, "onplay"), QString::fromLatin1(S[r.onplay]));
    VANTORA_COMPARE_TEXT(text(events, "onstop"), QString::fromLatin1(S[r.onstop]));
    VANTORA_COMPARE_TEXT(text(events, "onstartaudio"), QString::fromLatin1(S[r.onstartaudio]));
    VANTORA_COMPARE_TEXT(text(events, "onstopaudio"), QString::fromLatin1(S[r.onstopaudio]));
}

void tst_ControlsFile::flags()
{
    QFETCH(int, row);
    const FlagRow &r = FLAGS[row];
    Controls c;
    c.input.flatMode = r.flat;
    c.input.vrAvailable = r.fullSphere;
    c.settings.AddGyro = r.addGyro;
    c.settings.GyroEnabled = r.gyroEnabled;
    c.settings.AddVrMode = r.addVr;
    c.settings.LittlePlanetIntro = r.intro;
    const QJsonObject root = c.build();
    const QJsonObject events = root.value(QStringLiteral("events")).toObject();

    QStringList keys = QString::fromLatin1(ALWAYS).split(QLatin1Char(' '));
    if (r.vrEvents)
        keys << QStringLiteral("onentervrmode") << QStringLiteral("onexitvrmode");
    keys.sort();
    QCOMPARE(events.keys(), keys);
    QCOMPARE(text(events, "id"), QStringLiteral("mainEvents"));
    VANTORA_COMPARE_TEXT(
        text(events, "ongyroscopeavailable"), QString::fromLatin1(r.gyroAvailable));
    VANTORA_COMPARE_TEXT(text(events, "onscenechanged"), QString::fromLatin1(r.scene));
    VANTORA_COMPARE_TEXT(text(events, "onexit"), QString::fromLatin1(r.exit));
    VANTORA_COMPARE_TEXT(text(events, "oninit"), QString::fromLatin1(r.init));
    QCOMPARE(
        ids(root.value(QStringLiteral("actions")).toArray(), "id"), QString::fromLatin1(r.actions));
    QCOMPARE(c.actions, root.value(QStringLiteral("actions")).toArray());
}

void tst_ControlsFile::menu()
{
    QFETCH(int, row);
    const MenuRow &r = MENUS[row];
    QJsonObject root;
    QJsonArray actions;
    QJsonObject captions;
    params::buildContextMenu(root, actions, captions, entries(r.kinds), r.gyro);
    const QJsonObject menu = root.value(QStringLiteral("contextmenu")).toObject();
    QCOMPARE(
        ids(menu.value(QStringLiteral("items")).toArray(), "id"), QString::fromLatin1(r.items));
    QCOMPARE(ids(actions, "id"), QString::fromLatin1(r.actions));

    // The onshow script holds one visibility statement per shown view or gyro item, in order.
    QStringList shown;
    QRegularExpressionMatchIterator it
        = QRegularExpression(QStringLiteral("var (\\w+) = this.getItem"))
              .globalMatch(text(menu, "onshow"));
    while (it.hasNext())
        shown << it.next().captured(1);
    QCOMPARE(shown.join(QLatin1Char(' ')), QString::fromLatin1(r.onshow));
    QVERIFY(text(menu, "onshow").startsWith(QStringLiteral("function(){ ")));
    QVERIFY(text(menu, "onshow").endsWith(QStringLiteral(" this.update(); }")));
}

void tst_ControlsFile::menuItemTexts()
{
    QJsonObject root;
    QJsonArray actions;
    QJsonObject captions;
    QList<ContextMenuItem> list = settings::defaultContextMenuItems();
    list.append(ContextMenuItem {ContextMenuItem::Custom, QStringLiteral("Zur Übersicht"),
        QStringLiteral("this.viewer.openNext('{gallery}');")});
    params::buildContextMenu(root, actions, captions, list, true);
    const QJsonObject menu = root.value(QStringLiteral("contextmenu")).toObject();
    const QJsonArray items = menu.value(QStringLiteral("items")).toArray();

    QCOMPARE(text(menu, "id"), QStringLiteral("menu"));
    QCOMPARE(text(menu, "style"),
        QStringLiteral("background-color: rgba(255,255,255,0.8); box-shadow: 4px 4px 4px "
                       "rgba(0,0,0,0.5); border-radius: 3px;"));
    VANTORA_COMPARE_TEXT(text(menu, "onshow"),
        QStringLiteral(
            "function(){ var view1 = this.getItem('normalView'); if (view1){ "
            "view1.visible = (this.viewer.webglAvailable && "
            "this.viewer.fullEquirectangular()) ? true : false; } var view2 = "
            "this.getItem('littlePlanetView'); if (view2){ view2.visible = "
            "(this.viewer.webglAvailable && this.viewer.fullEquirectangular())?true:false; "
            "} var gyro = this.getItem('gyroItem'); if (gyro){ gyro.visible = "
            "this.viewer.gyroAvailable?true:false; }  this.update(); }"));
    QCOMPARE(items.at(0).toObject(),
        QJsonObject(
            {{"id", "fullscreenItem"}, {"onclick", "function(){ this.viewer.toggleFullscreen(); }"},
                {"oninit",
                    "function(){ this.caption = this.viewer.tr('Fullscreen'); if "
                    "(!this.viewer.fullscreenSupported()) this.visible = false;  } "}}));
    QCOMPARE(items.at(5).toObject(),
        QJsonObject({{"id", "gyroItem"},
            {"onclick",
                "function(){  var gb = this.get('gyrobutton'); if (gb){ gb.onclick(); } "
                "else { this.viewer.enableGyroscope(!this.viewer.gyroscopeEnabled()); } }"},
            {"oninit", "function(){  this.caption = this.viewer.tr('Gyroscope Control'); }"}}));
    QCOMPARE(items.at(7).toObject(),
        QJsonObject(
            {{"onclick",
                 "function(){ window.open('https://www.vantora.com/web-export/','_blank'); }"},
                {"oninit", "function(){  this.caption = this.viewer.tr('About Vantora...'); }"}}));
    QCOMPARE(items.at(8).toObject(),
        QJsonObject({{"id", "customMenuItem"}, {"caption", "Zur Übersicht"},
            {"onclick", "function(){ this.viewer.openNext('{gallery}');}"}}));
    QCOMPARE(captions,
        QJsonObject({{"Fullscreen", "Vollbild"}, {"Normal View", "Normale Ansicht"},
            {"LittlePlanet View", "LittlePlanet-Ansicht"},
            {"Gyroscope Control", "Gyroskop-Steuerung"},
            {"About Vantora...", "&Uuml;ber Vantora..."}}));
}

void tst_ControlsFile::rootMembers()
{
    // Without menu entries there is neither a menu nor a caption to translate. The toolbar's
    // members have their own tests.
    Controls bare;
    bare.settings.AddToolbar = false;
    QCOMPARE(bare.build().keys(), QStringList({"actions", "events"}));
    Controls withMenu;
    withMenu.settings.AddToolbar = false;
    withMenu.settings.ContextMenuItems = entries({0, 1});
    const QJsonObject root = withMenu.build();
    QCOMPARE(root.keys(), QStringList({"actions", "contextmenu", "events", "translate"}));
    QCOMPARE(root.value("translate").toObject(),
        QJsonObject({{"de", QJsonObject({{"Fullscreen", "Vollbild"}})}}));
    // A custom item alone has nothing to translate.
    Controls custom;
    custom.settings.ContextMenuItems = {ContextMenuItem {ContextMenuItem::Custom, "A", "b();"}};
    QVERIFY(!custom.build().contains("translate"));
}

void tst_ControlsFile::writtenFile()
{
    QTemporaryDir dir;
    Controls c;
    c.settings.ContextMenuItems = entries({1});
    c.settings.TBDesign = 6;
    c.settings.AddToolbar = false; // the toolbar's members have their own tests
    const QString folder = dir.path() + "/sub/";
    const QJsonObject include
        = params::writeControlsFile(folder, "tour_controls.json", c.input, c.actions);
    QCOMPARE(include, QJsonObject({{"src", "tour_controls.json"}}));
    VANTORA_COMPARE_TEXT(QString::fromUtf8(test::readFileBytes(folder + "tour_controls.json")),
        QString::fromUtf8(test::readFileBytes(VANTORA_TEST_DATA "/golden/controls_design6.json")));
    // The include passes the name through the printf formatter: "%%" prints as "%".
    QCOMPARE(params::writeControlsFile(folder, "50%%_controls.js", c.input, c.actions),
        QJsonObject({{"src", "50%_controls.js"}}));
}

void tst_ControlsFile::unwritableFile()
{
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir("taken_controls.json")); // a folder where the file should go
    Controls c;
    QCOMPARE(params::writeControlsFile(dir.path() + '/', "taken_controls.json", c.input, c.actions),
        QJsonObject({{"src", "taken_controls.json"}}));
    QVERIFY(QFileInfo(dir.path() + "/taken_controls.json").isDir());
}

void tst_ControlsFile::everyScriptParses()
{
    // Every design with every flag and the whole menu, each written and run through Node.js.
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design) {
        for (const FlagRow &r : FLAGS) {
            Controls c;
            c.settings.TBDesign = design;
            c.settings.ContextMenuItems = entries({1, 0, 2, 3, 0, 4, 0, 5, 7});
            c.settings.ContextMenuItems.last().action = "alert('\\u00fc'); this.viewer.next();";
            c.input.flatMode = r.flat;
            c.input.vrAvailable = r.fullSphere;
            c.settings.AddGyro = r.addGyro;
            c.settings.AddVrMode = r.addVr;
            c.settings.LittlePlanetIntro = r.intro;
            files << QString("%1/d%2_%3.json").arg(dir.path()).arg(design).arg(files.size());
            params::writeControlsFile(QString(), files.last(), c.input, c.actions);
        }
    }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(files.size()), check.output.constData());
}

QTEST_MAIN(tst_ControlsFile)
#include "tst_controlsfile.moc"
