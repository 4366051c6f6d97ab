// Skins and fixed members of every toolbar button kind in every design, against a second
// statement of the family rule written here from its parts, and the listed deviations pinned.
#include "common/textcompare.h"
#include "toolbarfixture.h"
#include "viewercontrols/buttons.h"
#include "viewerparams/paramsfixture.h"

#include <QJsonDocument>
#include <QtTest>

using namespace vantora;

namespace {

const char *const MEMBERS[] = {"skin", "skinactive", "skinhover"};

// The family rule from its parts: a drop shadow and the icon copied into a target rectangle;
// design 7 puts a round halo (tile 0,128) behind the icon on hover and press.
QString icon(int x, int y, const QString &target)
{
    return QStringLiteral("copy(defaultSkin,%1,%2,64,64,%3);").arg(x).arg(y).arg(target);
}
const QString DROP = QStringLiteral("shadow(3,0,0,rgba(0,0,0,1));");
const QString DROP_OFFSET = QStringLiteral("shadow(3,2,2,rgba(0,0,0,1));");
const QString LIGHT = QStringLiteral("shadow(1,0,-1,rgba(255,255,255,0.3));");
QString halo(const char *alpha)
{
    return QStringLiteral("dim(-10px,-10px,48px,48px,48,48);comp(%1);").arg(QLatin1String(alpha))
        + icon(0, 128, QStringLiteral("0,0,48,48")) + QStringLiteral("comp(1.0);") + DROP;
}

// skin, skinactive, skinhover; a null text: not written.
QStringList familyRule(int design, int x, int y)
{
    const QString null;
    switch (design) {
    case 0:
        return {DROP + icon(x, y, "0,0,28,28"), null, null};
    case 1:
        return {DROP_OFFSET + icon(x, y, "0,0,28,28") + DROP + icon(x, y, "0,0,28,28"),
            DROP + icon(x, y, "1,1,28,28"), null};
    case 2:
    case 3:
        return {LIGHT + icon(x, y, "5,2,24,24,#444"), LIGHT + icon(x, y, "6,3,24,24,#333"), null};
    case 4:
        return {DROP + icon(x, y, "5,5,24,24"), DROP + icon(x, y, "5,5,24,24"), null};
    case 5:
        return {LIGHT + icon(x, y, "5,2,24,24"), LIGHT + icon(x, y, "6,3,24,24"), null};
    case 6:
        return {icon(x, y, "5,5,24,24"), null, null};
    case 7:
        return {DROP + icon(x, y, "0,0,28,28"), halo("0.9") + icon(x, y, "10,10,28,28"),
            halo("0.5") + icon(x, y, "10,10,28,28")};
    }
    return {null, null, null};
}

// The listed deviations.
enum Deviation {
    None = 0,
    Doubled = 1,  // design-4 "skin" twice
    CutAll = 2,   // no text ends in ';'
    CutSkin = 4,  // "skin" lacks the ';'
    Cut7 = 8,     // design-7 texts lack the ';'
    Cut7Skin = 16 // design-7 "skin" lacks the ';'
};

// clang-format off
struct Kind { const char *tag; const char *key; int x, y; int deviations; const char *fixed; };
const Kind KINDS[] = {
    {"infobutton", "infobutton",       0,   0,   Doubled,  R"({"id":"infobutton","align":"center","xoff":0,"yoff":0,"index":5,"priority":3})"},
    {"hotspotsButton", "hotspotsButton",   128, 256, Doubled,  R"({"id":"hotspotsButton","align":"center","xoff":0,"yoff":0,"index":6,"priority":1})"},
    {"1", "1",                128, 64,  Cut7Skin, R"({"type":1,"align":"center","xoff":0,"yoff":0,"index":7,"priority":0})"},
    {"2", "2",                0,   64,  None,     R"({"type":2,"align":"center","xoff":0,"yoff":0,"index":8,"priority":0})"},
    {"3", "3",                192, 64,  CutSkin,  R"({"type":3,"align":"center","xoff":0,"yoff":0,"index":9,"priority":0})"},
    {"4", "4",                64,  64,  CutSkin,  R"({"type":4,"align":"center","xoff":0,"yoff":0,"index":10,"priority":0})"},
    {"5", "5",                192, 128, CutSkin,  R"({"type":5,"align":"center","xoff":0,"yoff":0,"index":11,"priority":2})"},
    {"6", "6",                128, 128, CutSkin,  R"({"type":6,"align":"center","xoff":0,"yoff":0,"index":12,"priority":2})"},
    {"playbutton", "playbutton",       64,  0,   CutAll,   R"({"id":"playbutton","align":"center","xoff":0,"yoff":0,"index":13,"priority":1})"},
    {"vrButton", "vrButton",         192, 256, Cut7,     R"({"id":"vrButton","align":"center","xoff":0,"yoff":0,"index":14,"priority":3,"visible":false})"},
    {"fullscreenButton", "fullscreenButton", 192, 0,   None,     R"({"id":"fullscreenButton","align":"right","xoff":8,"yoff":0,"index":16,"priority":3})"},
    {"gallerybutton", "gallerybutton",    128, 320, Doubled,  R"({"id":"gallerybutton","align":"left","xoff":8,"yoff":0,"index":4,"priority":3,"visible":false})"},
    {"mapbutton", "mapbutton",        128, 448, Doubled,  R"({"id":"mapbutton","align":"left","xoff":8,"yoff":0,"index":3,"priority":3,"visible":false})"},
    {"navLeftButton", "navLeftButton",    192, 384, Doubled,  R"({"id":"navLeftButton","align":"left","xoff":8,"yoff":0,"index":0,"priority":2,"visible":false})"},
    {"navRightButton", "navRightButton",   128, 384, Doubled,  R"({"id":"navRightButton","align":"right","xoff":8,"yoff":0,"index":15,"priority":2,"visible":false})"},
    {"audiobutton", "audiobutton",      0,   256, None,     R"({"id":"audiobutton","align":"right","xoff":8,"yoff":0,"index":17,"priority":3})"},
};

// Edge cases and deviations spelled out whole.
struct Pinned { const char *tag; int design; const char *key; const char *member; const char *text; };
const Pinned PINNED[] = {
    {"design 4 info skin drawn twice", 4, "infobutton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);"},
    {"design 4 info skinactive single", 4, "infobutton", "skinactive", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,0,64,64,5,5,24,24);"},
    {"design 4 fullscreen skin single", 4, "fullscreenButton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,0,64,64,5,5,24,24);"},
    {"design 7 play skinhover without ;", 7, "playbutton", "skinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,0,64,64,10,10,28,28)"},
    {"design 7 arrow 1 skin without ;", 7, "1", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,64,64,64,0,0,28,28)"},
    {"design 7 vr skinactive without ;", 7, "vrButton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,10,10,28,28)"},
    {"design 4 nav left drawn twice", 4, "navLeftButton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,5,5,24,24);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,5,5,24,24);"},
    {"hide design 1", 1, "hideTbButton", "skin", "shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,0,0,28,28);"},
    {"hide design 4 drawn twice", 4, "hideTbButton", "skin", "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,5,5,24,24);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,5,5,24,24);"},
    {"hide design 7 hover without ;", 7, "hideTbButton", "skinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,10,10,28,28)"},
    {"hide design 7 pressed at 11,11", 7, "hideTbButton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,0,192,64,64,11,11,28,28);"},
    {"hide design 2 tinted", 2, "hideTbButton", "skinactive", "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,0,192,64,64,6,3,24,24,#333);"},
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
    {"gyro design 3 disabled pressed", 3, "gyrobutton", "disabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24,#333);"},
    {"gyro design 5 disabled pressed", 5, "gyrobutton", "disabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(0.66);copy(defaultSkin,64,128,64,64,6,3,24,24);"},
    {"gyro design 5 enabledskin", 5, "gyrobutton", "enabledskin", "shadow(1,0,-1,rgba(255,255,255,0.3));comp(1.0);copy(defaultSkin,64,128,64,64,5,2,24,24);"},
    {"gyro design 6 enabledskin", 6, "gyrobutton", "enabledskin", "comp(1.0);copy(defaultSkin,64,128,64,64,5,5,24,24);"},
    {"gyro design 7 enabledskin", 7, "gyrobutton", "enabledskin", "shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,64,128,64,64,0,0,28,28);"},
    {"gyro design 7 disabledskinhover", 7, "gyrobutton", "disabledskinhover", "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro design 7 skinactive", 7, "gyrobutton", "skinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));comp(0.66);copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro design 7 enabledskinactive", 7, "gyrobutton", "enabledskinactive", "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,64,128,64,64,10,10,28,28);"},
    {"gyro design 6 no hover", 6, "gyrobutton", "enabledskinhover", nullptr},
};
// clang-format on

QString textOf(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isUndefined() ? QString() : value.toString(QStringLiteral("(not a string)"));
}

QJsonObject toolbarButton(int design, const char *key)
{
    test::Toolbar toolbar(design);
    return test::findButton(toolbar.full().buttons(), QLatin1String(key));
}

} // namespace

class tst_ButtonSkins : public QObject
{
    Q_OBJECT

private slots:
    void familyRule_data();
    void familyRule();
    void fixedMembers_data() { test::addRows(KINDS); }
    void fixedMembers();
    void pinned_data() { test::addRows(PINNED); }
    void pinned();
    void audioSets_data();
    void audioSets();
    void gyroAction();
    void infoBoxOnSceneChange();
    void outsideDesigns();
};

void tst_ButtonSkins::familyRule_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("member");
    for (int design = 0; design < 8; ++design)
        for (int kind = 0; kind < int(std::size(KINDS)); ++kind)
            for (int m = 0; m < 3; ++m)
                // Design 1's audio button has a set of its own, pinned below.
                if (design != 1 || qstrcmp(KINDS[kind].key, "audiobutton") != 0)
                    QTest::addRow("design%d/%s/%s", design, KINDS[kind].key, MEMBERS[m])
                        << design << kind << m;
}

void tst_ButtonSkins::familyRule()
{
    QFETCH(int, design);
    QFETCH(int, kind);
    QFETCH(int, member);
    const Kind &k = KINDS[kind];
    QString expected = ::familyRule(design, k.x, k.y).at(member);
    if (!expected.isNull()) {
        if ((k.deviations & Doubled) && design == 4 && member == 0)
            expected += expected;
        const bool cut = (k.deviations & CutAll) || ((k.deviations & CutSkin) && member == 0)
            || (design == 7
                && ((k.deviations & Cut7) || ((k.deviations & Cut7Skin) && member == 0)));
        if (cut)
            expected.chop(1);
    }
    const QJsonObject button = toolbarButton(design, k.key);
    QVERIFY2(!button.isEmpty(), k.key);
    QCOMPARE(button.contains(QLatin1String(MEMBERS[member])), !expected.isNull());
    VANTORA_COMPARE_TEXT(textOf(button, MEMBERS[member]), expected);
}

void tst_ButtonSkins::fixedMembers()
{
    QFETCH(int, row);
    const Kind &k = KINDS[row];
    const QJsonObject expected = QJsonDocument::fromJson(k.fixed).object();
    QVERIFY(!expected.isEmpty());
    for (int design = 0; design < 8; ++design) {
        const QJsonObject button = toolbarButton(design, k.key);
        for (auto it = expected.begin(); it != expected.end(); ++it)
            QCOMPARE(button.value(it.key()), it.value());
        // Only the hidden-at-start kinds carry "visible"; arrows and zoom have no id and no
        // handler.
        QCOMPARE(button.contains("visible"), expected.contains("visible"));
        QCOMPARE(button.contains("id"), expected.contains("id"));
        QCOMPARE(button.contains("onclick"), expected.contains("id"));
    }
}

void tst_ButtonSkins::pinned()
{
    QFETCH(int, row);
    const Pinned &p = PINNED[row];
    const QJsonObject button = toolbarButton(p.design, p.key);
    QVERIFY2(!button.isEmpty(), p.key);
    QCOMPARE(button.contains(QLatin1String(p.member)), p.text != nullptr);
    if (p.text)
        VANTORA_COMPARE_TEXT(textOf(button, p.member), QString::fromLatin1(p.text));
}

void tst_ButtonSkins::audioSets_data()
{
    QTest::addColumn<int>("design");
    for (int design : {0, 2, 3, 4, 5, 6, 7})
        QTest::addRow("design%d", design) << design;
}

void tst_ButtonSkins::audioSets()
{
    // The pause set repeats the plain set (tile 0,256), the play set draws tile 64,256.
    QFETCH(int, design);
    const QJsonObject button = toolbarButton(design, "audiobutton");
    const QStringList plain = ::familyRule(design, 0, 256);
    const QStringList play = ::familyRule(design, 64, 256);
    for (int m = 0; m < 3; ++m) {
        const QString pauseKey = QStringLiteral("pause") + QLatin1String(MEMBERS[m]);
        const QString playKey = QStringLiteral("play") + QLatin1String(MEMBERS[m]);
        QCOMPARE(button.contains(pauseKey), !plain.at(m).isNull());
        QCOMPARE(button.value(pauseKey).toString(), plain.at(m));
        QCOMPARE(button.value(playKey).toString(), play.at(m));
    }
}

void tst_ButtonSkins::gyroAction()
{
    for (int design = 0; design < 8; ++design) {
        test::Toolbar toolbar(design);
        toolbar.full().toolbar();
        QCOMPARE(toolbar.actions.size(), 6); // gyroscope, two gallery and three map actions
        const QJsonObject action = toolbar.actions.first().toObject();
        QCOMPARE(action.value("id").toString(), QStringLiteral("updateGyroButton"));
        VANTORA_COMPARE_TEXT(action.value("func").toString(),
            design == 7
                ? QStringLiteral(
                    "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin;  gb.skinhover = enabled?gb.enabledskinhover:gb.disabledskinhover;  gb.skinactive = enabled?gb.enabledskinactive:gb.disabledskinactive; gb.updateSkins(); } }")
                : QStringLiteral(
                    "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin; gb.updateSkins(); } }"));
    }
}

void tst_ButtonSkins::infoBoxOnSceneChange()
{
    // ShowInfoBox opens the box on every scene change and changes nothing else of the button.
    QJsonObject plain;
    QJsonObject opening;
    controls::writeInfoButton(plain, 2, QStringLiteral("PGI+SGk8L2I+"), false);
    controls::writeInfoButton(opening, 2, QString(), true);
    VANTORA_COMPARE_TEXT(plain.value("onscenechanged").toString(),
        "function(){ var d=this.viewer.get('localData'); var g=this.viewer.get('globalData'); var "
        "o=d&&d.infoTextBox||g&&g.infoTextBox; this.setVisible(!!o); }");
    VANTORA_COMPARE_TEXT(opening.value("onscenechanged").toString(),
        "function(){ var d=this.viewer.get('localData'); var g=this.viewer.get('globalData'); var "
        "o=d&&d.infoTextBox||g&&g.infoTextBox; this.setVisible(!!o); if (!!o){ if "
        "(d&&d.infoTextBox) this.viewer.action('hideMessage'); this.viewer.action('showMessage',o); "
        "} }");
    plain.remove("onscenechanged");
    opening.remove("onscenechanged");
    QCOMPARE(plain, opening);
}

void tst_ButtonSkins::outsideDesigns()
{
    // A design the clamping would never let through leaves the fixed members alone.
    for (int design : {-1, 8}) {
        QJsonObject button;
        controls::writeInfoButton(button, design, QString(), false);
        QVERIFY(!button.contains("skin"));
        QCOMPARE(button.value("index").toInt(), 5);
        QJsonArray actions;
        QJsonObject gyro;
        controls::writeGyroButton(gyro, design, actions);
        QVERIFY(!gyro.contains("skin") && !gyro.contains("enabledskin"));
    }
}

QTEST_MAIN(tst_ButtonSkins)
#include "tst_buttonskins.moc"
