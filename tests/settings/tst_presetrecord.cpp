// A preset applied to the viewer record: every key reaches its field, the menu is rebuilt.
#include "settings/presetrecord.h"
#include "settings/viewersettingsfields.h"

#include <QtTest>

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
    QVariantMap preset; // each key's value, unlike its default
    forEachPresetField([&](const char *key, PresetField field) {
        std::visit(
            [&](auto member) {
                values.*member = unusual(values.*member, preset.size());
                preset.insert(key, QVariant::fromValue(values.*member));
            },
            field);
    });
    ViewerSettings record; // all zero or empty, unlike every value above
    forEachField([&](const char *, auto member) {
        record.*member = std::remove_reference_t<decltype(record.*member)>();
    });
    record.LogoFile = "logo.png";
    applyPresetValues(values, record);

    QVariantMap fields;
    forEachField([&](const char *name, auto member) {
        if constexpr (!std::is_same_v<std::remove_reference_t<decltype(record.*member)>,
                          QList<Item>>)
            fields.insert(name, QVariant::fromValue(record.*member));
    });
    // Every key but the seven that describe the menu reaches the field of its name; the others
    // stay as they were.
    for (auto it = preset.cbegin(); it != preset.cend(); ++it)
        QVERIFY2(it.key().startsWith("ContextMenu") || fields.value(it.key()) == *it,
            qPrintable(it.key()));
    QCOMPARE(record.LogoFile, "logo.png");
}

// The five menu flags in the order full screen, views, custom, gyro, about; each entry is shown
// as its kind followed by its caption and action.
void tst_PresetRecord::menu_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QString>("entries");
    QTest::newRow("none") << "00000"
                          << "";
    QTest::newRow("defaults") << "11011"
                              << "1 0 2 3 0 4 0 5";
    QTest::newRow("views first, no separator in front") << "01001"
                                                        << "2 3 0 5";
    QTest::newRow("custom alone") << "00100"
                                  << "7Kartex();";
    QTest::newRow("all") << "11111"
                         << "1 0 2 3 0 7Kartex(); 0 4 0 5";
}

void tst_PresetRecord::menu()
{
    QFETCH(QString, flags);
    QFETCH(QString, entries);
    PresetValues values;
    bool *const flag[] = {&values.ContextMenuFullscreen, &values.ContextMenuViews,
        &values.ContextMenuCustom, &values.ContextMenuGyro, &values.ContextMenuAbout};
    for (int i = 0; i < 5; ++i)
        *flag[i] = flags[i] == '1';
    values.ContextMenuCustomCaption = "Karte";
    values.ContextMenuCustomAction = "x();";
    ViewerSettings record;
    record.ContextMenuSpare = true;
    applyPresetValues(values, record);
    QStringList actual;
    for (const Item &item : record.ContextMenuItems)
        actual << QString::number(item.kind) + item.caption + item.action;
    QCOMPARE(actual.join(' '), entries);
    QVERIFY(!record.ContextMenuSpare);
}

QTEST_MAIN(tst_PresetRecord)
#include "tst_presetrecord.moc"
