// A preset applied to the viewer record: every key reaches its field, the menu is rebuilt.
#include "settings/presetrecord.h"
#include "settings/viewersettingsfields.h"

#include <QtTest>

#include <cstring>
#include <type_traits>

using namespace vantora::settings;
using Item = ContextMenuItem;

namespace {

// A value unlike every default: flipped flags, odd numbers, non-ASCII texts.
template <typename T> T unusual(const T &value, int n)
{
    if constexpr (std::is_same_v<T, bool>)
        return !value;
    else if constexpr (std::is_same_v<T, QString>)
        return QStringLiteral("Wert %1 für ").arg(n) + value;
    else
        return value + T(n + 3);
}

} // namespace

class tst_PresetRecord : public QObject
{
    Q_OBJECT

private slots:
    void everyKeyReachesItsField();
    void menu_data();
    void menu();
};

void tst_PresetRecord::everyKeyReachesItsField()
{
    PresetValues values;
    int n = 0;
    forEachPresetField([&](const char *, PresetField field) {
        std::visit([&](auto member) { values.*member = unusual(values.*member, ++n); }, field);
    });
    ViewerSettings record;
    resetViewerSettings(record, false);
    record.LogoFile = QStringLiteral("logo.png");
    applyPresetValues(values, record);

    // Compared by name against the record's own field list.
    int compared = 0;
    forEachPresetField([&](const char *key, PresetField field) {
        std::visit(
            [&](auto from) {
                forEachField([&](const char *name, auto to) {
                    if constexpr (std::is_same_v<std::remove_cv_t<std::remove_reference_t<
                                                     decltype(values.*from)>>,
                                      std::remove_reference_t<decltype(record.*to)>>) {
                        if (std::strcmp(name, key) == 0) {
                            QVERIFY2(record.*to == values.*from, key);
                            ++compared;
                        }
                    }
                });
            },
            field);
    });
    // Every key but the seven that describe the menu has a field of its own.
    QCOMPARE(compared, n - 7);
    QCOMPARE(record.LogoFile, QStringLiteral("logo.png"));
}

void tst_PresetRecord::menu_data()
{
    QTest::addColumn<QList<bool>>("flags"); // full screen, views, custom, gyro, about
    QTest::addColumn<QString>("kinds");
    QTest::newRow("none") << QList<bool> {false, false, false, false, false} << "";
    QTest::newRow("defaults") << QList<bool> {true, true, false, true, true} << "1 0 2 3 0 4 0 5";
    QTest::newRow("views first, no separator in front")
        << QList<bool> {false, true, false, false, true} << "2 3 0 5";
    QTest::newRow("all") << QList<bool> {true, true, true, true, true} << "1 0 2 3 0 7 0 4 0 5";
}

void tst_PresetRecord::menu()
{
    QFETCH(QList<bool>, flags);
    QFETCH(QString, kinds);
    PresetValues values;
    values.ContextMenuFullscreen = flags[0];
    values.ContextMenuViews = flags[1];
    values.ContextMenuCustom = flags[2];
    values.ContextMenuGyro = flags[3];
    values.ContextMenuAbout = flags[4];
    values.ContextMenuCustomCaption = "Karte";
    values.ContextMenuCustomAction = "this.viewer.action('toggleMap');";
    ViewerSettings record;
    record.ContextMenuSpare = true;
    applyPresetValues(values, record);
    QStringList actual;
    for (const Item &item : record.ContextMenuItems) {
        actual << QString::number(item.kind);
        // Only the custom item carries texts.
        const bool custom = item.kind == Item::Custom;
        QCOMPARE(item.caption, custom ? QString("Karte") : QString());
        QCOMPARE(item.action, custom ? QString("this.viewer.action('toggleMap');") : QString());
    }
    QCOMPARE(actual.join(' '), kinds);
    QVERIFY(!record.ContextMenuSpare);
}

QTEST_MAIN(tst_PresetRecord)
#include "tst_presetrecord.moc"
