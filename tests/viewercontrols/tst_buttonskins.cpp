// Fixed members and skins of every toolbar button kind in every design, against a second statement
// of the family rule written here, with the listed deviations pinned.
#include "toolbarfixture.h"
#include "viewercontrols/buttons.h"

#include <QtTest>

using namespace vantora;

namespace {

// clang-format off
// The family rule written out once more: "skin", "skinactive", "skinhover" by design, X,Y
// standing for the icon tile; "": not written.
const char *const RULE[8][3] = {
    {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,0,0,28,28);", "", ""},
    {"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,0,0,28,28);", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,1,1,28,28);", ""},
    {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,5,2,24,24,#444);", "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,6,3,24,24,#333);", ""},
    {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,5,2,24,24,#444);", "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,6,3,24,24,#333);", ""},
    {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,5,5,24,24);", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,5,5,24,24);", ""},
    {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,5,2,24,24);", "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,X,Y,64,64,6,3,24,24);", ""},
    {"copy(defaultSkin,X,Y,64,64,5,5,24,24);", "", ""},
    {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,0,0,28,28);",
     "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,10,10,28,28);",
     "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,X,Y,64,64,10,10,28,28);"},
};
const char *const MEMBERS[] = {"skin", "skinactive", "skinhover"};

// The listed deviations of a kind from the rule.
enum Deviation {
    Doubled = 1,    // design-4 "skin" drawn twice
    CutAll = 2,     // no text ends in ';'
    CutSkin = 4,    // "skin" lacks the ';'
    Cut7 = 8,       // the design-7 texts lack the ';'
    Cut7Skin = 16,  // the design-7 "skin" lacks the ';'
    Cut7Hover = 32, // the design-7 "skinhover" lacks the ';'
    Deeper7 = 64,   // the design-7 "skinactive" draws the icon at 11,11
    Audio = 128,    // pause set as the plain one, play set from tile 64,256; design 1: own sets
    Own = 256,      // sets of its own, pinned below
};

struct Kind { const char *name, *tile; int deviations; const char *align; int xoff, index, priority; bool hidden; };
const Kind KINDS[] = {
    {"navLeftButton",    "192,384", Doubled,                       "left",   8, 0,  2, true},
    {"hideTbButton",     "0,192",   Doubled | Cut7Hover | Deeper7, "left",   8, 1,  3, false},
    {"mapbutton",        "128,448", Doubled,                       "left",   8, 3,  3, true},
    {"gallerybutton",    "128,320", Doubled,                       "left",   8, 4,  3, true},
    {"infobutton",       "0,0",     Doubled,                       "center", 0, 5,  3, false},
    {"hotspotsButton",   "128,256", Doubled,                       "center", 0, 6,  1, false},
    {"type1",            "128,64",  Cut7Skin,                      "center", 0, 7,  0, false},
    {"type2",            "0,64",    0,                             "center", 0, 8,  0, false},
    {"type3",            "192,64",  CutSkin,                       "center", 0, 9,  0, false},
    {"type4",            "64,64",   CutSkin,                       "center", 0, 10, 0, false},
    {"type5",            "192,128", CutSkin,                       "center", 0, 11, 2, false},
    {"type6",            "128,128", CutSkin,                       "center", 0, 12, 2, false},
    {"playbutton",       "64,0",    CutAll,                        "center", 0, 13, 1, false},
    {"vrButton",         "192,256", Cut7,                          "center", 0, 14, 3, true},
    {"navRightButton",   "128,384", Doubled,                       "right",  8, 15, 2, true},
    {"fullscreenButton", "192,0",   0,                             "right",  8, 16, 3, false},
    {"audiobutton",      "0,256",   Audio,                         "right",  8, 17, 3, false},
    {"gyrobutton",       "64,128",  Own,                           "center", 0, 18, 3, true},
};

// The deviations spelled out whole, and the sets of their own.
struct Pinned { const char *tag; int design; const char *name; const char *member; const char *text; };
const Pinned PINNED[] = {
    {"design 4 info skin drawn twice", 4, "infobutton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);"},
    {"design 4 info skinactive single", 4, "infobutton", "skinactive", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);"},
    {"design 4 nav left drawn twice", 4, "navLeftButton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,5,5,24,24);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,5,5,24,24);"},
    {"design 4 fullscreen skin single", 4, "fullscreenButton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,0,64,64,5,5,24,24);"},
    {"design 7 play skinhover without ;", 7, "playbutton", "skinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,0,64,64,10,10,28,28)"},
    {"design 7 arrow 1 skin without ;", 7, "type1", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,64,64,64,0,0,28,28)"},
    {"design 7 vr skinactive without ;", 7, "vrButton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,10,10,28,28)"},
    {"hide design 7 hover without ;", 7, "hideTbButton", "skinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,10,10,28,28)"},
    {"hide design 7 pressed at 11,11", 7, "hideTbButton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,11,11,28,28);"},
    {"audio design 1 skin", 1, "audiobutton", "skin", "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,2,2,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,2,2,28,28);"},
    {"audio design 1 skinactive", 1, "audiobutton", "skinactive", "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,0,256,64,64,3,3,28,28);"},
    {"audio design 1 playskin", 1, "audiobutton", "playskin", "dim(-2px,-2px,32px,32px,32,32);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,2,2,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,2,2,28,28);"},
    {"audio design 1 playskinactive centred", 1, "audiobutton", "playskinactive", "dim(-2px,-2px,32px,32px,32,32);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,256,64,64,3,3,28,28);"},
    {"audio design 1 no pause set", 1, "audiobutton", "pauseskin", nullptr},
    {"audio design 1 onscenechanged", 1, "audiobutton", "onscenechanged", "function(){ this.pauseskin = this.skin; this.pauseskinactive = this.skinactive; var o = this.get('gAudio')||this.get('lAudio'); this.setVisible(!!o); }"},
    {"audio design 2 onscenechanged", 2, "audiobutton", "onscenechanged", "function(){ var o = this.get('gAudio')||this.get('lAudio'); this.setVisible(!!o); }"},
    {"gyro design 0 skin", 0, "gyrobutton", "skin", "shadow(5,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    {"gyro design 0 no skinactive", 0, "gyrobutton", "skinactive", nullptr},
    {"gyro design 1 enabledskin", 1, "gyrobutton", "enabledskin", "shadow(3,2,2,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    {"gyro design 1 no skinactive", 1, "gyrobutton", "skinactive", nullptr},
    {"gyro design 3 skin at rest", 3, "gyrobutton", "skin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,5,2,24,24,#444);"},
    {"gyro design 2 disabled pressed", 2, "gyrobutton", "disabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24,#333);"},
    {"gyro design 3 disabled pressed", 3, "gyrobutton", "disabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24,#333);"},
    {"gyro design 5 disabled pressed", 5, "gyrobutton", "disabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24);"},
    {"gyro design 5 enabledskin", 5, "gyrobutton", "enabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(1.0);copy(defaultSkin,64,128,64,64,5,2,24,24);"},
    {"gyro design 6 enabledskin", 6, "gyrobutton", "enabledskin", "comp(1.0);copy(defaultSkin,64,128,64,64,5,5,24,24);"},
    {"gyro design 6 no hover", 6, "gyrobutton", "enabledskinhover", nullptr},
    {"gyro design 7 enabledskin", 7, "gyrobutton", "enabledskin", "shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    {"gyro design 7 disabledskinhover", 7, "gyrobutton", "disabledskinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro design 7 skinactive", 7, "gyrobutton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro design 7 enabledskinactive", 7, "gyrobutton", "enabledskinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro action", 3, "updateGyroButton", "func", "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin; gb.updateSkins(); } }"},
    {"gyro action design 7", 7, "updateGyroButton", "func", "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin;  gb.skinhover = enabled?gb.enabledskinhover:gb.disabledskinhover;  gb.skinactive = enabled?gb.enabledskinactive:gb.disabledskinactive; gb.updateSkins(); } }"},
};
// clang-format on

QString textOf(const QJsonObject &button, const QString &member)
{
    const QJsonValue value = button.value(member);
    return value.isUndefined() ? "(absent)" : value.toString("(not a string)");
}

} // namespace

class tst_ButtonSkins : public QObject
{
    Q_OBJECT

private slots:
    void kinds_data();
    void kinds();
    void pinned_data() { test::addRows(PINNED); }
    void pinned();
    void infoBoxOnSceneChange();
};

void tst_ButtonSkins::kinds_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("kind");
    for (int design = -1; design <= 8; ++design) // -1 and 8: outside, no skins at all
        for (int kind = 0; kind < int(std::size(KINDS)); ++kind)
            QTest::addRow("design%d/%s", design, KINDS[kind].name) << design << kind;
}

void tst_ButtonSkins::kinds()
{
    QFETCH(int, design);
    QFETCH(int, kind);
    const Kind &k = KINDS[kind];
    const QString name = k.name;
    const QJsonObject button = test::findButton(test::Toolbar(design).full().buttons(), name);
    const bool typed = name.startsWith("type"); // the viewer acts on "type": no id, no handler
    test::compareMembers(button,
        {{"align", k.align}, {"xoff", k.xoff}, {"yoff", 0}, {"index", k.index},
            {"priority", k.priority}, {"visible", k.hidden ? QJsonValue(false) : QJsonValue()},
            {"id", typed ? QJsonValue() : name},
            {"type", typed ? QJsonValue(name.mid(4).toInt()) : QJsonValue()}});
    // Outside the designs the hide button keeps its common members only: no handler.
    const bool outside = design < 0 || design > 7;
    QCOMPARE(button.contains("onclick"), !typed && !(outside && name == "hideTbButton"));

    const int d = k.deviations;
    if (!outside && ((d & Own) || ((d & Audio) && design == 1)))
        return;
    for (const QString set : (d & Audio) ? QStringList {"", "pause", "play"} : QStringList {""})
        for (int m = 0; m < 3; ++m) {
            QString expected = outside
                ? QString()
                : QString(RULE[design][m]).replace("X,Y", set == "play" ? "64,256" : k.tile);
            if (design == 4 && m == 0 && (d & Doubled))
                expected += expected;
            if (design == 7 && m == 1 && (d & Deeper7))
                expected.replace(",10,10,28,28);", ",11,11,28,28);");
            if ((d & CutAll) || (m == 0 && (d & CutSkin))
                || (design == 7
                    && ((d & Cut7) || (m == 0 && (d & Cut7Skin)) || (m == 2 && (d & Cut7Hover)))))
                expected.chop(1);
            VANTORA_COMPARE_TEXT(
                textOf(button, set + MEMBERS[m]), expected.isEmpty() ? "(absent)" : expected);
        }
}

void tst_ButtonSkins::pinned()
{
    QFETCH(int, row);
    const Pinned &p = PINNED[row];
    test::Toolbar toolbar(p.design);
    QJsonObject object = test::findButton(toolbar.full().buttons(), p.name);
    if (object.isEmpty())
        object = test::findButton(toolbar.actions, p.name);
    VANTORA_COMPARE_TEXT(textOf(object, p.member), p.text ? p.text : "(absent)");
}

void tst_ButtonSkins::infoBoxOnSceneChange()
{
    // ShowInfoBox opens the box on every scene change and changes nothing else of the button.
    QJsonObject plain, opening;
    controls::writeInfoButton(plain, 2, "PGI+SGk8L2I+", false);
    controls::writeInfoButton(opening, 2, QString(), true);
    const QString head
        = "function(){ var d=this.viewer.get('localData'); var g=this.viewer.get('globalData'); var o=d&&d.infoTextBox||g&&g.infoTextBox; this.setVisible(!!o); ";
    VANTORA_COMPARE_TEXT(plain.take("onscenechanged").toString(), head + "}");
    VANTORA_COMPARE_TEXT(opening.take("onscenechanged").toString(),
        head
            + "if (!!o){ if (d&&d.infoTextBox) this.viewer.action('hideMessage'); this.viewer.action('showMessage',o); } }");
    QCOMPARE(plain, opening);
}

QTEST_MAIN(tst_ButtonSkins)
#include "tst_buttonskins.moc"
