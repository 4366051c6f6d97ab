// The orientation element: twelve kinds, three positions, eight designs, toolbar or picture.
#include "common/scriptcheck.h"
#include "paramsfixture.h"

#include "viewerparams/controlsfile.h"
#include "viewerparams/memberwriter.h"
#include "viewerparams/orientation.h"

#include <QtTest>

using namespace vantora;

namespace {

// clang-format off
// The kinds the settings dialog offers, in its order: what is drawn, how large (0: in the
// toolbar), and the tiles of "defaultCompass" for the fixed and the turning layer.
struct Kind { const char *type; int size; const char *tile, *turningTile; };
const char FACE[] = "0,0,128,128", NEEDLE[] = "128,0,128,128", SCALE[] = "256,0,128,128", INDEX[] = "384,0,128,128", DISC[] = "0,128,128,128";
const Kind KINDS[] = {
    {"compass", 60, FACE, NEEDLE}, {"compass", 96, FACE, NEEDLE}, {"compass", 48, FACE, NEEDLE}, {"compass", 32, "128,128,64,64", "192,128,64,64"},
    {"dial", 60, INDEX, SCALE},    {"dial", 96, INDEX, SCALE},    {"dial", 48, INDEX, SCALE},
    {"radar", 60, DISC, nullptr},  {"radar", 96, DISC, nullptr},  {"radar", 48, DISC, nullptr},
    {"compass", 0, FACE, NEEDLE},  {"radar", 0, DISC, nullptr},
};
// By design: the shadow and tint of the toolbar icons, and where a toolbar item draws (x, y, size).
struct Look { const char *shadow, *tint; int x, y, size; };
const char DROP[] = "shadow(3,0,0,rgba(0,0,0,1));", LIGHT[] = "shadow(1,0,-1,rgba(255,255,255,0.3));";
const Look LOOKS[] = {
    {DROP, "", 0, 0, 28}, {"shadow(3,2,2,rgba(0,0,0,1));", "", 0, 0, 28}, {LIGHT, ",#444", 5, 2, 24}, {LIGHT, ",#444", 5, 2, 24},
    {DROP, "", 5, 5, 24}, {LIGHT, "", 5, 2, 24}, {"", "", 5, 5, 24}, {DROP, "", 0, 0, 28},
};
const char *const ALIGNS[] = {"lefttop", "left", "right"};
// In the controls root: whether an "orientation" array over the picture and an item at toolbar
// index 2 are written.
struct Case { bool add; int kind; bool toolbar, element, toolbarItem; };
const Case CASES[] = {{false, 0, true, false, false}, {true, 0, true, true, false}, {true, 9, false, true, false}, {true, 10, true, false, true},
    {true, 11, true, false, true}, {true, 11, false, false, false}, {false, 10, true, false, false}, {true, 12, true, false, false}};
// clang-format on

settings::ViewerSettings orientationSettings(int kind, int position = 0, bool north = false)
{
    settings::ViewerSettings s;
    s.AddOrientation = true;
    s.OrientationElement = kind;
    s.OrientationElementPosition = position;
    s.PositionNorth = north;
    return s;
}

QJsonObject element(int design, const settings::ViewerSettings &s)
{
    QJsonArray actions;
    return params::buildOrientationElement(actions, design, s);
}

} // namespace

class tst_Orientation : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data();
    void kinds();
    void everyScriptParses();
    void edges();
    void controlsRoot();

private:
    QTemporaryDir m_dir;
    QStringList m_files;
    int m_functions = 0;
};

void tst_Orientation::kinds_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind < 12; ++kind)
        QTest::addRow("kind %d: %s %d", kind, KINDS[kind].type, KINDS[kind].size) << kind;
}

void tst_Orientation::kinds()
{
    // Every design and position with the north turn, written for the Node.js check below.
    QFETCH(int, kind);
    const Kind &k = KINDS[kind];
    QJsonArray elements, buttons, actions;
    for (int design = 0; design < 8; ++design) {
        const Look &l = LOOKS[design];
        const int size = k.size ? k.size : l.size;
        const auto skin = [&](const char *tile) {
            const QString box = k.size ? QString("0,0") : QString("%1,%2").arg(l.x).arg(l.y);
            return tile ? QJsonValue(QString(l.shadow) + "copy(defaultCompass," + tile + ',' + box
                       + QString(",%1,%1").arg(size) + l.tint + ')')
                        : QJsonValue();
        };
        for (int position = 0; position < 3; ++position) {
            QJsonArray own, items;
            const auto s = orientationSettings(kind, position, true);
            const QJsonObject element = params::buildOrientationElement(own, design, s);
            params::appendOrientationToolbarItems(items, own, design, s);
            QCOMPARE(items.size(), k.size ? 0 : 1);
            QCOMPARE(element.isEmpty(), !k.size);
            const QJsonObject object = k.size ? element : items.at(0).toObject();
            test::compareMembers(object,
                {{"id", "compass"}, {"type", k.type}, {"visible", false}, {"skin", skin(k.tile)},
                    {"rotatingskin", skin(k.turningTile)}, {"xoff", 8},
                    {"onclick", "function(){ this.viewer.action('turnToNorth'); }"}});
            test::compareMembers(object,
                k.size ? QJsonObject {{"width", size}, {"height", size}, {"index", QJsonValue()},
                    {"align", ALIGNS[position]}, {"yoff", position ? 0 : 8}}
                       : QJsonObject {{"align", "left"}, {"index", 2}, {"priority", 1}, {"yoff", 0},
                           {"width", QJsonValue()}, {"style", QJsonValue()}});
            if (QTest::currentTestFailed())
                return;
            QCOMPARE(object.value("radarcontext").isString(), !k.turningTile);
            QVERIFY(!k.size || object.value("style").toString().endsWith(" cursor: pointer;"));
            QCOMPARE(test::ids(own), "turnToNorth");
            QVERIFY(own.at(0)["func"].toString().contains("panTo(l.north,"));
            (k.size ? elements : buttons).append(object);
            actions.append(own.at(0));
        }
    }
    m_files << QString("%1/kind%2.json").arg(m_dir.path()).arg(kind);
    QVERIFY(params::writeViewerParamsFile(m_files.last(),
        {{"orientation", elements}, {"button", buttons}, {"actions", actions}},
        params::Layout::Plain));
    // 24 objects with two visibility handlers and a click handler each, a radar's canvas
    // function, and one action each.
    m_functions += 24 * (k.turningTile ? 4 : 5);
}

void tst_Orientation::everyScriptParses()
{
    // The files kinds() wrote, in one run of Node.js.
    if (m_files.isEmpty())
        QSKIP("kinds() wrote no file");
    const test::ScriptCheck check = test::checkScripts(m_files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(m_files.size(), m_functions), check.output.constData());
}

void tst_Orientation::edges()
{
    // Without the north turn no click handler and no action.
    QJsonArray actions, items;
    QVERIFY(
        !params::buildOrientationElement(actions, 0, orientationSettings(7)).contains("onclick"));
    params::appendOrientationToolbarItems(items, actions, 0, orientationSettings(10));
    QVERIFY(actions.isEmpty() && !items.at(0)["onclick"].isString());
    // A design out of range looks like the nearest one; an unknown position is the corner.
    QCOMPARE(element(9, orientationSettings(0)), element(7, orientationSettings(0)));
    QCOMPARE(element(-1, orientationSettings(1)), element(0, orientationSettings(1)));
    QCOMPARE(element(0, orientationSettings(0, 7)), element(0, orientationSettings(0)));
    // Unknown kinds write nothing; the compact compass has no frame.
    QVERIFY(element(0, orientationSettings(12)).isEmpty());
    QVERIFY(element(0, orientationSettings(-1)).isEmpty());
    QCOMPARE(element(4, orientationSettings(3)).value("style").toString(), "background: none;");
}

void tst_Orientation::controlsRoot()
{
    for (const Case c : CASES) {
        settings::ViewerSettings s;
        s.AddOrientation = c.add;
        s.OrientationElement = c.kind;
        s.AddToolbar = c.toolbar;
        s.PositionNorth = true;
        params::ControlsInput input;
        input.settings = &s;
        QJsonArray actions;
        const QJsonObject root = params::buildControls(input, actions);
        QCOMPARE(root.value("orientation").toArray().size(), int(c.element));
        int atIndex2 = 0;
        for (const QJsonValue button : root.value("buttonBox")[0]["button"].toArray())
            atIndex2 += button["index"].toInt() == 2;
        QCOMPARE(atIndex2, int(c.toolbarItem));
        // The north turn is an action like the toolbar's: before the message actions.
        const QStringList ids = test::idList(actions);
        QCOMPARE(ids.count("turnToNorth"), int(c.element || c.toolbarItem));
        QVERIFY(ids.indexOf("turnToNorth") < ids.indexOf("showMessage"));
    }
}

QTEST_MAIN(tst_Orientation)
#include "tst_orientation.moc"
