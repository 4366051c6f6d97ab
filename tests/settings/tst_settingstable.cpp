// The settings table against reviewed data in which every field carries a value of its own: six
// settings blocks and six preset files. Across the six, each flag and number has its own pattern
// of 0 and 1 and each text and rate its own value, so a field moved to another's slot or key
// shows. VANTORA_WRITE_GOLDEN=1 rewrites the files; review the change before committing it.
#include "common/textcompare.h"
#include "settings/presetfile.h"
#include "settings/settingsblock.h"
#include "settings/settingstable.h"

#include <QtTest>

#include <algorithm>

using namespace vantora::settings;
using Item = ContextMenuItem;

namespace {

constexpr int FILES = 6;

// Each row's place in the alphabetical order of the names: the fields' values follow the names,
// not the table's order, so that a reordered table cannot carry its values along.
int codeOf(const SettingRow &row)
{
    QStringList names;
    for (const SettingRow &r : settingRows())
        names << QLatin1String(r.name);
    std::sort(names.begin(), names.end());
    return names.indexOf(QLatin1String(row.name));
}

// The values of file `n` (0..5): flags and numbers bit n of their code, rates code + n / 8, texts
// the name, n and some non-ASCII, n + 1 custom menu entries.
Preset distinctValues(int n)
{
    Preset preset;
    for (const SettingRow &row : settingRows()) {
        const int code = codeOf(row);
        visitValue(row, preset.settings, preset.menu, [&](auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, bool>)
                value = (code >> n) & 1;
            else if constexpr (std::is_same_v<T, int> || std::is_same_v<T, Colour>)
                value = T((code >> n) & 1);
            else if constexpr (std::is_same_v<T, double>)
                value = code + n / 8.0;
            else if constexpr (std::is_same_v<T, QString>)
                value = QStringLiteral("%1 %2 ü€").arg(QLatin1String(row.name)).arg(n);
            else
                for (int i = 0; i <= n; ++i)
                    value.append({Item::Custom, QStringLiteral("Eintrag %1").arg(i),
                        QStringLiteral("go(%1);").arg(i)});
        });
    }
    return preset;
}

QString dataFile(const QString &name)
{
    return QStringLiteral(VANTORA_TEST_DATA "/") + name;
}

// The bytes against the reviewed file (or the file replaced, see above).
void compareWithFile(const QByteArray &actual, const QString &name)
{
    if (qEnvironmentVariableIntValue("VANTORA_WRITE_GOLDEN") == 1) {
        QVERIFY(vantora::test::writeFileBytes(dataFile(name), actual));
        return;
    }
    const QByteArray expected = vantora::test::readFileBytes(dataFile(name));
    const auto parted
        = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    QVERIFY2(actual == expected,
        qPrintable(QStringLiteral("%1 differs from the bytes written, first at byte %2")
                       .arg(name)
                       .arg(parted.first - actual.begin())));
}

} // namespace

class tst_SettingsTable : public QObject
{
    Q_OBJECT

private slots:
    void distinct_data()
    {
        QTest::addColumn<int>("n");
        for (int n = 0; n < FILES; ++n)
            QTest::addRow("%d", n) << n;
    }

    void distinctBlocks_data() { distinct_data(); }
    void distinctBlocks()
    {
        QFETCH(int, n);
        const ViewerSettings values = distinctValues(n).settings;
        const QString name = QStringLiteral("blocks/distinct_%1.bin").arg(n);
        compareWithFile(encodeSettingsBlock(values), name);
        const QByteArray block = vantora::test::readFileBytes(dataFile(name));
        ViewerSettings read;
        QVERIFY(decodeSettingsBlock(reinterpret_cast<const unsigned char *>(block.data()), read));
        QCOMPARE(differingFields(read, values), QList<const char *>());
    }

    void distinctPresets_data() { distinct_data(); }
    void distinctPresets()
    {
        QFETCH(int, n);
        Preset values = distinctValues(n);
        const QString name = QStringLiteral("ini/distinct_%1.ini").arg(n);
        compareWithFile(presetFileBytes(QByteArray(), values), name);

        // What a preset has no key for keeps the record's default.
        const Preset read = presetFromBytes(vantora::test::readFileBytes(dataFile(name)));
        for (const SettingRow &row : settingRows())
            if (!row.inPresets())
                visitValue(row, values.settings, values.menu,
                    [&](auto &value) { value = std::decay_t<decltype(value)>(); });
        QCOMPARE(differingFields(read.settings, values.settings), QList<const char *>());
        QVERIFY(read.menu == values.menu);
    }

    // Applied to a record, a preset sets every field it has a key for and the menu it describes;
    // the file names the export fills stay.
    void presetReachesTheRecord_data() { distinct_data(); }
    void presetReachesTheRecord()
    {
        QFETCH(int, n);
        const Preset preset = distinctValues(n);
        // Every field unlike the preset's.
        ViewerSettings record = preset.settings;
        forEachField(record, [](const SettingRow &, auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, bool>)
                value = !value;
            else if constexpr (std::is_same_v<T, QList<Item>>)
                value = {Item {Item::About, {}, {}}};
            else if constexpr (std::is_same_v<T, QString>)
                value += '!';
            else
                value += 2;
        });
        const ViewerSettings before = record;
        applyPreset(preset, record);
        QStringList changed;
        for (const char *name : differingFields(record, before))
            changed << QLatin1String(name);
        QStringList keyed {"ContextMenuItems"};
        for (const SettingRow &row : settingRows())
            if (row.inPresets() && row.inRecord())
                keyed << QLatin1String(row.name);
        if (before.ContextMenuSpare)
            keyed << "ContextMenuSpare";
        changed.sort();
        keyed.sort();
        QCOMPARE(changed, keyed);
        QCOMPARE(record.ContextMenuItems, menuItemsOf(preset.menu));
        QVERIFY(!record.ContextMenuSpare);
    }

    // The five menu flags in the order full screen, views, custom, gyro, about; each entry is
    // shown as its kind followed by its caption and action.
    void menu_data()
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
    void menu()
    {
        QFETCH(QString, flags);
        QFETCH(QString, entries);
        ContextMenuChoice choice;
        bool *const flag[] = {&choice.ContextMenuFullscreen, &choice.ContextMenuViews,
            &choice.ContextMenuCustom, &choice.ContextMenuGyro, &choice.ContextMenuAbout};
        for (int i = 0; i < 5; ++i)
            *flag[i] = flags[i] == '1';
        choice.ContextMenuCustomCaption = "Karte";
        choice.ContextMenuCustomAction = "x();";
        const QList<Item> items = menuItemsOf(choice);
        QStringList actual;
        for (const Item &item : items)
            actual << QString::number(item.kind) + item.caption + item.action;
        QCOMPARE(actual.join(' '), entries);

        // The dialog's boxes show the list again; the texts stay only with their entry.
        ContextMenuChoice shown = menuChoiceOf(items);
        if (!choice.ContextMenuCustom)
            shown.ContextMenuCustomCaption = "Karte", shown.ContextMenuCustomAction = "x();";
        QVERIFY(shown == choice);
    }
};

QTEST_GUILESS_MAIN(tst_SettingsTable)
#include "tst_settingstable.moc"
