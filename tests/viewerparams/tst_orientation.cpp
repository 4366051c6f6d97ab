// The orientation element: twelve kinds, three positions, eight designs, toolbar or picture.
#include "common/scriptcheck.h"
#include "paramsfixture.h"

#include "viewerparams/controlsfile.h"
#include "viewerparams/memberwriter.h"
#include "viewerparams/orientation.h"

#include <QtTest>

using namespace vantora;

namespace {

// What the settings dialog offers, in its order: what is drawn, how large; 0 for the toolbar.
struct KindRow
{
    const char *tag;
    const char *type;
    int size;
};
const KindRow KINDS[] = {
    {"compass, medium", "compass", 60},
    {"compass, large", "compass", 96},
    {"compass, small", "compass", 48},
    {"compass, compact", "compass", 32},
    {"dial, medium", "dial", 60},
    {"dial, large", "dial", 96},
    {"dial, small", "dial", 48},
    {"radar, medium", "radar", 60},
    {"radar, large", "radar", 96},
    {"radar, small", "radar", 48},
    {"compass in the toolbar", "compass", 0},
    {"radar in the toolbar", "radar", 0},
};
const char *const ALIGNS[] = {"lefttop", "left", "right"};

settings::ViewerSettings orientationSettings(int kind, int position, bool north)
{
    settings::ViewerSettings s;
    s.AddOrientation = true;
    s.OrientationElement = kind;
    s.OrientationElementPosition = position;
    s.PositionNorth = north;
    return s;
}

// Every element and toolbar item of one design, all kinds and positions, north turn on.
QJsonObject allOfDesign(int design)
{
    QJsonArray elements, buttons, actions;
    for (int kind = 0; kind < 12; ++kind)
        for (int position = 0; position < 3; ++position) {
            const auto s = orientationSettings(kind, position, true);
            const QJsonObject element = params::buildOrientationElement(actions, design, s);
            if (!element.isEmpty())
                elements.append(element);
            if (position == 0)
                params::appendOrientationToolbarItems(buttons, actions, design, s);
        }
    return {{"orientation", elements}, {"button", buttons}, {"actions", actions}};
}

} // namespace

class tst_Orientation : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data() { test::addRows(KINDS); }
    void kinds();
    void designLook();
    void turnToNorth();
    void controlsRoot();
    void everyScriptParses();
};

void tst_Orientation::kinds()
{
    QFETCH(int, row);
    const KindRow &r = KINDS[row];
    for (int design = 0; design < 8; ++design) {
        for (int position = 0; position < 3; ++position) {
            QJsonArray actions, buttons;
            const auto s = orientationSettings(row, position, false);
            const QJsonObject element = params::buildOrientationElement(actions, design, s);
            params::appendOrientationToolbarItems(buttons, actions, design, s);
            QVERIFY(actions.isEmpty());
            const QJsonObject object = r.size ? element : buttons.at(0).toObject();
            QCOMPARE(r.size ? buttons.size() : int(!element.isEmpty()), 0);
            QCOMPARE(object.value("id").toString(), QString("compass"));
            QCOMPARE(object.value("type").toString(), QLatin1String(r.type));
            QCOMPARE(object.value("visible"), QJsonValue(false));
            QVERIFY(object.value("skin").toString().contains("copy(defaultCompass,"));
            QCOMPARE(object.contains("rotatingskin"), r.type != QString("radar"));
            QCOMPARE(object.contains("radarcontext"), r.type == QString("radar"));
            QVERIFY(!object.contains("onclick"));
            if (r.size) {
                QCOMPARE(object.value("width").toInt(), r.size);
                QCOMPARE(object.value("height").toInt(), r.size);
                QCOMPARE(object.value("align").toString(), QLatin1String(ALIGNS[position]));
                QVERIFY(
                    object.value("skin").toString().contains(QString(",0,0,%1,%1").arg(r.size)));
                QVERIFY(!object.contains("index"));
            } else {
                QCOMPARE(object.value("index").toInt(), 2);
                QCOMPARE(object.value("align").toString(), QString("left"));
                QVERIFY(!object.contains("width"));
            }
        }
    }
}

void tst_Orientation::designLook()
{
    // The drawings take the shadow, tint and icon box of the design's toolbar icons.
    QJsonArray actions, buttons;
    const auto corner = orientationSettings(0, 0, false);
    QCOMPARE(params::buildOrientationElement(actions, 2, corner).value("skin").toString(),
        QString(
            "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultCompass,0,0,128,128,0,0,60,60,#444)"));
    QCOMPARE(params::buildOrientationElement(actions, 6, corner).value("rotatingskin").toString(),
        QString("copy(defaultCompass,128,0,128,128,0,0,60,60)"));
    params::appendOrientationToolbarItems(buttons, actions, 4, orientationSettings(10, 0, false));
    QCOMPARE(buttons.at(0).toObject().value("skin").toString(),
        QString("shadow(3,0,0,rgba(0,0,0,1));copy(defaultCompass,0,0,128,128,5,5,24,24)"));
    // A design out of range looks like the nearest one; the compact compass has no frame.
    QCOMPARE(params::buildOrientationElement(actions, 9, corner).value("style"),
        params::buildOrientationElement(actions, 7, corner).value("style"));
    QCOMPARE(params::buildOrientationElement(actions, 0, orientationSettings(3, 0, false))
                 .value("style")
                 .toString(),
        QString("background: none;"));
    // Unknown kinds and positions: nothing, or the corner.
    QVERIFY(
        params::buildOrientationElement(actions, 0, orientationSettings(12, 0, false)).isEmpty());
    QVERIFY(
        params::buildOrientationElement(actions, 0, orientationSettings(-1, 0, false)).isEmpty());
    QCOMPARE(params::buildOrientationElement(actions, 0, orientationSettings(0, 7, false))
                 .value("align")
                 .toString(),
        QString("lefttop"));
    QVERIFY(actions.isEmpty());
}

void tst_Orientation::turnToNorth()
{
    QJsonArray actions;
    const QJsonObject element
        = params::buildOrientationElement(actions, 0, orientationSettings(8, 2, true));
    QCOMPARE(element.value("onclick").toString(),
        QString("function(){ this.viewer.action('turnToNorth'); }"));
    QVERIFY(element.value("style").toString().endsWith(" cursor: pointer;"));
    QCOMPARE(actions.size(), 1);
    QCOMPARE(actions.at(0).toObject().value("id").toString(), QString("turnToNorth"));
    QVERIFY(actions.at(0).toObject().value("func").toString().contains("panTo(l.north,"));
}

void tst_Orientation::controlsRoot()
{
    struct Case
    {
        bool add;
        int kind;
        bool toolbar;
        bool element;     // an "orientation" array over the picture
        bool toolbarItem; // an item at toolbar index 2
    };
    for (const Case c : {Case {false, 0, true, false, false}, Case {true, 0, true, true, false},
             Case {true, 9, false, true, false}, Case {true, 10, true, false, true},
             Case {true, 11, true, false, true}, Case {true, 11, false, false, false},
             Case {false, 10, true, false, false}, Case {true, 12, true, false, false}}) {
        settings::ViewerSettings s;
        s.AddOrientation = c.add;
        s.OrientationElement = c.kind;
        s.PositionNorth = true;
        s.AddToolbar = c.toolbar;
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
        QStringList ids;
        for (const QJsonValue action : actions)
            ids << action["id"].toString();
        QCOMPARE(ids.count("turnToNorth"), int(c.element || c.toolbarItem));
        QVERIFY(ids.indexOf("turnToNorth") < ids.indexOf("showMessage"));
    }
}

void tst_Orientation::everyScriptParses()
{
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design) {
        files << QString("%1/design%2.json").arg(dir.path()).arg(design);
        QVERIFY(params::writeViewerParamsFile(
            files.last(), allOfDesign(design), params::Layout::Plain));
    }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    // 30 elements and 2 toolbar items per design: two visibility handlers and a click handler
    // each, one action per element, and the canvas function of each of the 10 radars.
    QVERIFY2(check.counted(8, 8 * (32 * 4 + 10)), check.output.constData());
}

QTEST_MAIN(tst_Orientation)
#include "tst_orientation.moc"
