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
        QTest::addRow("kind %d", kind) << kind;
}

// Every design and position with the north turn: a picture for kinds 0..9, a toolbar item for 10
// and 11, never both; written for the Node.js check below. The drawings are in the golden files.
void tst_Orientation::kinds()
{
    QFETCH(int, kind);
    const bool inToolbar = kind >= 10;
    QJsonArray elements, buttons, actions;
    int functions = 0;
    for (int design = 0; design < 8; ++design) {
        for (int position = 0; position < 3; ++position) {
            QJsonArray own, items;
            const auto s = orientationSettings(kind, position, true);
            const QJsonObject element = params::buildOrientationElement(own, design, s);
            params::appendOrientationToolbarItems(items, own, design, s);
            QCOMPARE(items.size(), inToolbar ? 1 : 0);
            QCOMPARE(element.isEmpty(), inToolbar);
            const QJsonObject object = inToolbar ? items.at(0).toObject() : element;
            QCOMPARE(object.value("id").toString(), "compass");
            if (!inToolbar)
                QCOMPARE(object.value("align").toString(), ALIGNS[position]);
            QCOMPARE(test::ids(own), "turnToNorth");
            (inToolbar ? buttons : elements).append(object);
            actions.append(own.at(0));
            // Two visibility handlers, a click handler, the radar's canvas function, the action.
            functions += object.value("radarcontext").isString() ? 5 : 4;
        }
    }
    m_files << QString("%1/kind%2.json").arg(m_dir.path()).arg(kind);
    QVERIFY(params::writeViewerParamsFile(m_files.last(),
        {{"orientation", elements}, {"button", buttons}, {"actions", actions}},
        params::Layout::Plain));
    m_functions += functions;
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
