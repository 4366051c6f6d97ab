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

// The handlers of onplay, onstop, onstartaudio and onstopaudio by design.
const char *const PLAY_KEYS[] = {"onplay", "onstop", "onstartaudio", "onstopaudio"};
struct DesignRow { const char *tag; int tbDesign, clamped, handler[4]; };
const DesignRow DESIGNS[] = {
    {"design 0", 0, 0, {1, 2, 3, 4}},    {"design 1", 1, 1, {5, 6, 3, 4}},
    {"design 2", 2, 2, {7, 8, 9, 10}},   {"design 3", 3, 3, {7, 8, 9, 10}},
    {"design 4", 4, 4, {11, 8, 3, 4}},   {"design 5", 5, 5, {12, 8, 9, 10}},
    {"design 6", 6, 6, {13, 14, 15, 16}}, {"design 7", 7, 7, {1, 2, 3, 4}},
    {"9 is clamped to 7", 9, 7, {1, 2, 3, 4}}, {"-1 is clamped to 0", -1, 0, {1, 2, 3, 4}},
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
};
// The eight default entries and a custom one, with gyro support: the menu, its actions and the
// German captions.
const char MENU[] = R"({"contextmenu": {"id": "menu",
"style": "background-color: rgba(255,255,255,0.8); box-shadow: 4px 4px 4px rgba(0,0,0,0.5); border-radius: 3px;",
"onshow": "function(){ var view1 = this.getItem('normalView'); if (view1){ view1.visible = (this.viewer.webglAvailable && this.viewer.fullEquirectangular()) ? true : false; } var view2 = this.getItem('littlePlanetView'); if (view2){ view2.visible = (this.viewer.webglAvailable && this.viewer.fullEquirectangular())?true:false; } var gyro = this.getItem('gyroItem'); if (gyro){ gyro.visible = this.viewer.gyroAvailable?true:false; }  this.update(); }",
"items": [
{"id":"fullscreenItem","onclick":"function(){ this.viewer.toggleFullscreen(); }","oninit":"function(){ this.caption = this.viewer.tr('Fullscreen'); if (!this.viewer.fullscreenSupported()) this.visible = false;  } "},
{"caption":"-"},
{"id":"normalView","onclick":"function(){  if (this.viewer.fisheyeDistortion()!=0.0){ this.viewer.action('leaveLittlePlanet'); } }","oninit":"function(){  this.caption = this.viewer.tr('Normal View'); }"},
{"id":"littlePlanetView","onclick":"function(){ if (this.viewer.fisheyeDistortion()!=1.0){ this.viewer.action('enterLittlePlanet'); } }","oninit":"function(){  this.caption = this.viewer.tr('LittlePlanet View'); }"},
{"caption":"-"},
{"id":"gyroItem","onclick":"function(){  var gb = this.get('gyrobutton'); if (gb){ gb.onclick(); } else { this.viewer.enableGyroscope(!this.viewer.gyroscopeEnabled()); } }","oninit":"function(){  this.caption = this.viewer.tr('Gyroscope Control'); }"},
{"caption":"-"},
{"onclick":"function(){ window.open('https://www.vantora.com/web-export/','_blank'); }","oninit":"function(){  this.caption = this.viewer.tr('About Vantora...'); }"},
{"id":"customMenuItem","caption":"Zur Übersicht","onclick":"function(){ this.viewer.openNext('{gallery}');}"}
]}})";
const char MENU_ACTIONS[] = R"([
{"id":"leaveLittlePlanet","func":"function(){ if (!this.viewer.fullEquirectangular()) return; this.viewer.panTo(this.viewer.getView().pan,0,100,1.0,0,'easeInOutSine',true); this.tween({'time': 1.0, 'lp': 0.0, 'transition': 'easeInOutSine', 'onInit' : function(a,dstParams){ a.lp=a.viewer.fisheyeDistortion(); }, 'onUpdate': function(a){ a.viewer.setFisheyeDistortion(a.lp);}}); }"},
{"id":"enterLittlePlanet","func":"function(){ if (!this.viewer.fullEquirectangular()) return; this.viewer.panTo(this.viewer.getView().pan+90,90,150,1.0,0,'easeInOutSine',true); this.tween({'time': 1.0, 'lp': 1.0, 'transition': 'easeInOutSine', 'onInit' : function(a,dstParams){ a.lp=a.viewer.fisheyeDistortion(); }, 'onUpdate': function(a){ a.viewer.setFisheyeDistortion(a.lp);}}); }"}
])";
const char MENU_CAPTIONS[] = R"({"Fullscreen": "Vollbild", "Normal View": "Normale Ansicht", "LittlePlanet View": "LittlePlanet-Ansicht", "Gyroscope Control": "Gyroskop-Steuerung", "About Vantora...": "&Uuml;ber Vantora..."})";
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

void setFlags(Controls &c, const FlagRow &r)
{
    c.input.flatMode = r.flat;
    c.input.vrAvailable = r.fullSphere;
    c.settings.AddGyro = r.addGyro;
    c.settings.GyroEnabled = r.gyroEnabled;
    c.settings.AddVrMode = r.addVr;
    c.settings.LittlePlanetIntro = r.intro;
}

// The objects' ids; "-" for a separator item, "?" for an object without id.
QString ids(const QJsonArray &array)
{
    QStringList list;
    for (const QJsonValue &value : array)
        list << (value["caption"] == "-" ? "-" : value["id"].toString("?"));
    return list.join(' ');
}

QList<ContextMenuItem> entries(std::initializer_list<int> kinds)
{
    QList<ContextMenuItem> list;
    for (int kind : kinds)
        list.append(ContextMenuItem {kind, QString(), QString()});
    return list;
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
    void everyScriptParses();
};

void tst_ControlsFile::designHandlers()
{
    QFETCH(int, row);
    const DesignRow &r = DESIGNS[row];
    Controls c;
    c.settings.TBDesign = r.tbDesign;
    const QJsonObject events = c.build().value("events").toObject();
    QCOMPARE(c.settings.TBDesign, r.clamped);
    for (int i = 0; i < 4; ++i) // the key leads, so that a failure names it
        VANTORA_COMPARE_TEXT(PLAY_KEYS[i] + events[PLAY_KEYS[i]].toString(),
            PLAY_KEYS[i] + QString::fromLatin1(S[r.handler[i]]));
}

void tst_ControlsFile::flags()
{
    QFETCH(int, row);
    const FlagRow &r = FLAGS[row];
    Controls c;
    setFlags(c, r);
    const QJsonObject root = c.build();
    const QJsonObject events = root.value("events").toObject();

    QStringList keys = QString(ALWAYS).split(' ');
    if (r.vrEvents)
        keys << "onentervrmode"
             << "onexitvrmode";
    keys.sort();
    QCOMPARE(events.keys(), keys);
    QCOMPARE(events["id"].toString(), "mainEvents");
    VANTORA_COMPARE_TEXT(events["ongyroscopeavailable"].toString(), r.gyroAvailable);
    VANTORA_COMPARE_TEXT(events["onscenechanged"].toString(), r.scene);
    VANTORA_COMPARE_TEXT(events["onexit"].toString(), r.exit);
    VANTORA_COMPARE_TEXT(events["oninit"].toString(), r.init);
    QCOMPARE(ids(root.value("actions").toArray()), r.actions);
    QCOMPARE(c.actions, root.value("actions").toArray());
}

void tst_ControlsFile::menu()
{
    QFETCH(int, row);
    const MenuRow &r = MENUS[row];
    QJsonObject root;
    QJsonArray actions;
    QJsonObject captions;
    params::buildContextMenu(root, actions, captions, entries(r.kinds), r.gyro);
    const QJsonObject menu = root.value("contextmenu").toObject();
    QCOMPARE(ids(menu.value("items").toArray()), r.items);
    QCOMPARE(ids(actions), r.actions);

    // The onshow script holds one visibility statement per shown view or gyro item, in order.
    const QString onshow = menu["onshow"].toString();
    QStringList shown;
    for (auto it = QRegularExpression("var (\\w+) = this.getItem").globalMatch(onshow);
         it.hasNext();)
        shown << it.next().captured(1);
    QCOMPARE(shown.join(' '), r.onshow);
    QVERIFY(onshow.startsWith("function(){ ") && onshow.endsWith(" this.update(); }"));
}

void tst_ControlsFile::menuItemTexts()
{
    QJsonObject root;
    QJsonArray actions;
    QJsonObject captions;
    QList<ContextMenuItem> list = settings::defaultContextMenuItems();
    list.append({ContextMenuItem::Custom, "Zur Übersicht", "this.viewer.openNext('{gallery}');"});
    params::buildContextMenu(root, actions, captions, list, true);
    VANTORA_COMPARE_TEXT(test::compact(root), test::expected(MENU));
    VANTORA_COMPARE_TEXT(test::compact(actions), test::expected(MENU_ACTIONS));
    VANTORA_COMPARE_TEXT(test::compact(captions), test::expected(MENU_CAPTIONS));
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
    // A folder where the file should go: nothing is written, the include is returned all the same.
    QVERIFY(QDir(folder).mkdir("taken.json"));
    QCOMPARE(params::writeControlsFile(folder, "taken.json", c.input, c.actions),
        QJsonObject({{"src", "taken.json"}}));
    QVERIFY(QFileInfo(folder + "taken.json").isDir());
}

void tst_ControlsFile::everyScriptParses()
{
    // Every design and every flag row, with the whole menu, each written and run through Node.js.
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design) {
        Controls c;
        setFlags(c, FLAGS[design]);
        c.settings.TBDesign = design;
        c.settings.ContextMenuItems = entries({1, 0, 2, 3, 0, 4, 0, 5, 7});
        c.settings.ContextMenuItems.last().action = "alert('\\u00fc'); this.viewer.next();";
        files << QString("%1/d%2.json").arg(dir.path()).arg(design);
        params::writeControlsFile(QString(), files.last(), c.input, c.actions);
    }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(files.size()), check.output.constData());
}

QTEST_MAIN(tst_ControlsFile)
#include "tst_controlsfile.moc"
