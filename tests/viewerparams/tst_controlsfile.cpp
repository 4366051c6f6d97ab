// The controls file: design clamping, event handlers by flags, actions, context menu, file and
// include.
#include "common/scriptcheck.h"
#include "paramsfixture.h"

#include "viewerparams/contextmenu.h"
#include "viewerparams/controlsfile.h"

#include <QtTest>

using namespace vantora;
using settings::ContextMenuItem;

namespace {

// clang-format off
// T stands for the tab inside EXIT_GYRO.
#define T "\t"
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
    void designClamped_data();
    void designClamped();
    void flags_data() { test::addRows(FLAGS); }
    void flags();
    void menu_data() { test::addRows(MENUS); }
    void menu();
    void rootMembers();
    void writtenFile();
    void everyScriptParses();
};

void tst_ControlsFile::designClamped_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("clamped");
    QTest::newRow("-1 is clamped to 0") << -1 << 0;
    QTest::newRow("9 is clamped to 7") << 9 << 7;
}

// A design number out of range takes the nearest design, handlers and all.
void tst_ControlsFile::designClamped()
{
    QFETCH(int, design);
    QFETCH(int, clamped);
    Controls outside, inside;
    outside.settings.TBDesign = design;
    inside.settings.TBDesign = clamped;
    const QJsonObject events = outside.build().value("events").toObject();
    QCOMPARE(events, inside.build().value("events").toObject());
    // The neighbour differs, so the comparison above can tell designs apart.
    Controls neighbour;
    neighbour.settings.TBDesign = clamped == 0 ? 1 : 6;
    QVERIFY(events != neighbour.build().value("events").toObject());
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
