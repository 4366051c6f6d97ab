// Button skins outside the known designs, and what opening the info box on a scene change alters.
// The skins of every design are held by the golden controls files.
#include "toolbarfixture.h"
#include "viewercontrols/buttons.h"

#include <QtTest>

using namespace vantora;

class tst_ButtonSkins : public QObject
{
    Q_OBJECT

private slots:
    void outsideTheDesigns_data();
    void outsideTheDesigns();
    void infoBoxOnSceneChange();
};

void tst_ButtonSkins::outsideTheDesigns_data()
{
    QTest::addColumn<int>("design");
    QTest::newRow("below") << -1;
    QTest::newRow("above") << 8;
}

// A design number out of range draws no skin at all, and the hide button keeps no handler.
void tst_ButtonSkins::outsideTheDesigns()
{
    QFETCH(int, design);
    const QJsonArray buttons = test::Toolbar(design).full().buttons();
    QCOMPARE(buttons.size(), test::Toolbar(2).full().buttons().size());
    for (const QJsonValue &value : buttons) {
        const QJsonObject button = value.toObject();
        const QString id = button.value("id").toString();
        if (id == "compass") // the orientation instrument draws its own pictures
            continue;
        for (const QString &member : button.keys())
            QVERIFY2(!member.contains(QLatin1String("skin")), qPrintable(id + " has " + member));
        QCOMPARE(button.contains("onclick"), !button.contains("type") && id != "hideTbButton");
    }
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
