// Preset files and the host INI: the written bytes, the read rules of every kind of key, names,
// listing, and the Maps API key.
#include "common/textcompare.h"
#include "settings/hostini.h"
#include "settings/presets.h"

#include <QtTest>

#include <memory>

using namespace vantora::settings;

namespace {

QByteArray utf16File(QString text)
{
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    QByteArray bytes("\xFF\xFE", 2);
    for (const QChar c : text)
        bytes.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
    return bytes;
}

QString dataFile(const char *name)
{
    return QStringLiteral(VANTORA_TEST_DATA "/ini/") + QLatin1String(name);
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

class tst_Presets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
        m_settings = m_dir->path() + QLatin1Char('/');
    }

    // A missing preset reads as the documented defaults; written back, they give this file.
    void defaultsAreWrittenInTableOrder()
    {
        const PresetValues defaults = readPresetFile(m_settings, QStringLiteral("none"));
        QVERIFY(writePresetFile(m_settings, QStringLiteral("Standard"), defaults));
        const QByteArray expected = utf16File(
            QString::fromUtf8(vantora::test::readFileBytes(dataFile("default_preset.txt"))));
        const QByteArray written = vantora::test::readFileBytes(
            m_settings + QStringLiteral("appletSettings/Standard.ini"));
        VANTORA_COMPARE_TEXT(
            QString::fromUtf16(
                reinterpret_cast<const char16_t *>(written.constData()), written.size() / 2),
            QString::fromUtf16(
                reinterpret_cast<const char16_t *>(expected.constData()), expected.size() / 2));
        QCOMPARE(written, expected);
    }

    // A preset with every key away from its default, as the system writes it (UTF-16LE): read and
    // written again it comes out byte for byte the same.
    void everyKeyRoundTrips()
    {
        const QByteArray original
            = vantora::test::readFileBytes(dataFile("changed_preset_utf16.ini"));
        QVERIFY(writeFile(m_settings + QStringLiteral("source.ini"), original));
        const PresetValues values = readPresetValues(m_settings + QStringLiteral("source.ini"));
        QVERIFY(values != readPresetValues(QString()));
        QCOMPARE(values.Title64, QStringLiteral("Gipfel über Zürich"));
        QCOMPARE(values.Sound, QStringLiteral("C:\\Ton\\wind 😀.mp3"));
        QCOMPARE(values.PanRate, -4.25);
        QCOMPARE(values.ShadowColor, 8421504u);
        QVERIFY(writePresetFile(m_settings, QStringLiteral("copy"), values));
        QCOMPARE(
            vantora::test::readFileBytes(m_settings + QStringLiteral("appletSettings/copy.ini")),
            original);
        QVERIFY(readPresetFile(m_settings, QStringLiteral("copy")) == values);
    }

    void readRules_data()
    {
        QTest::addColumn<QString>("lines"); // the [Applet] section's keys
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");
        // clang-format off
        const struct { const char *name, *lines, *field, *expected; } rows[] = {
            {"bool TRUEX",                  "ShowInfoBox=TRUEX",      "ShowInfoBox",  "1"},
            {"bool true (lower case)",      "ShowInfoBox=true",       "ShowInfoBox",  "0"},
            {"bool 10",                     "ShowInfoBox=10",         "ShowInfoBox",  "1"},
            {"bool 01",                     "ShowInfoBox=01",         "ShowInfoBox",  "0"},
            {"bool True",                   "ShowHotspots=True",      "ShowHotspots", "0"},
            {"bool missing: default 1",     "",                       "ShowHotspots", "1"},
            {"bool empty",                  "ShowHotspots=",          "ShowHotspots", "0"},
            {"MapZoom 25",                  "MapZoom=25",             "MapZoom",      "20"},
            {"MapZoom 20",                  "MapZoom=20",             "MapZoom",      "20"},
            {"MapZoom missing",             "",                       "MapZoom",      "18"},
            {"MapType 9",                   "MapType=9",              "MapType",      "3"},
            {"VrDisplayType 5",             "VrDisplayType=5",        "VrDisplayType", "1"},
            {"VrDisplayType 1",             "VrDisplayType=1",        "VrDisplayType", "1"},
            {"GalleryButtons 3",            "GalleryButtons=3",       "GalleryButtons", "2"},
            {"GalleryPosition 2",           "GalleryPosition=2",      "GalleryPosition", "1"},
            {"MapPosition 7",               "MapPosition=7",          "MapPosition",  "1"},
            {"MouseMode 2",                 "MouseMode=2",            "MouseMode",    "0"},
            {"TouchMode 1",                 "TouchMode=1",            "TouchMode",    "1"},
            {"ZoomMode 5",                  "ZoomMode=5",             "ZoomMode",     "0"},
            {"negative mode is kept",       "MouseMode=-1",           "MouseMode",    "-1"},
            {"OrientationElement: no clamp", "OrientationElement=12", "OrientationElement", "12"},
            {"Restart missing",             "",                       "Restart",      "5"},
            {"PanRate missing",             "",                       "PanRate",      "2"},
            {"PanRate empty",               "PanRate=",               "PanRate",      "2"},
            {"PanRate with trailing text",  "PanRate=1.5deg",         "PanRate",      "1.5"},
            {"PanRate unparsable",          "PanRate=fast",           "PanRate",      "0"},
            {"PanRate with exponent",       "PanRate=-2.5e1",         "PanRate",      "-25"},
            {"TextColor missing",           "",                       "TextColor",    "16777215"},
            {"AddGyroButton alone",         "AddGyroButton=1",        "AddGyro",      "1"},
            {"AddGyro over AddGyroButton",  "AddGyroButton=1\nAddGyro=0", "AddGyro",  "0"},
            {"GyroButton from AddGyroButton", "AddGyroButton=1\nAddGyro=0", "GyroButton", "1"},
            {"GyroButtonEnabled",           "GyroButtonEnabled=1",    "GyroEnabled",  "1"},
            {"Title64 decoded",             "Title64=R3LDvG4=",       "Title64",      "Grün"},
            {"Title wins over Title64",     "Title=Alt\nTitle64=R3LDvG4=", "Title64", "Alt"},
            {"empty Title yields",          "Title=\nTitle64=R3LDvG4=", "Title64",    "Grün"},
            {"InfoHTML wins",               "InfoHTML=<b>x</b>\nInfoHTML64=R3LDvG4=", "InfoHTML64", "<b>x</b>"},
            {"Sound is plain",              "Sound=C:\\a b.mp3",      "Sound",        "C:\\a b.mp3"},
        };
        // clang-format on
        for (const auto &r : rows)
            QTest::addRow("%s", r.name)
                << QString::fromUtf8(r.lines) << QString::fromLatin1(r.field)
                << QString::fromUtf8(r.expected);
    }
    void readRules()
    {
        QFETCH(QString, lines);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        const QString path = m_settings + QStringLiteral("rules.ini");
        QVERIFY(
            writeFile(path, utf16File(QStringLiteral("[Applet]\n") + lines + QLatin1Char('\n'))));
        const PresetValues v = readPresetValues(path);
        // clang-format off
        const QMap<QString, QString> read {
            {"ShowInfoBox", QString::number(v.ShowInfoBox)}, {"ShowHotspots", QString::number(v.ShowHotspots)},
            {"MapZoom", QString::number(v.MapZoom)}, {"MapType", QString::number(v.MapType)},
            {"VrDisplayType", QString::number(v.VrDisplayType)}, {"GalleryButtons", QString::number(v.GalleryButtons)},
            {"GalleryPosition", QString::number(v.GalleryPosition)}, {"MapPosition", QString::number(v.MapPosition)},
            {"MouseMode", QString::number(v.MouseMode)}, {"TouchMode", QString::number(v.TouchMode)},
            {"ZoomMode", QString::number(v.ZoomMode)}, {"OrientationElement", QString::number(v.OrientationElement)},
            {"Restart", QString::number(v.Restart)}, {"PanRate", QString::number(v.PanRate)},
            {"TextColor", QString::number(v.TextColor)}, {"AddGyro", QString::number(v.AddGyro)},
            {"GyroButton", QString::number(v.GyroButton)}, {"GyroEnabled", QString::number(v.GyroEnabled)},
            {"Title64", v.Title64}, {"InfoHTML64", v.InfoHTML64}, {"Sound", v.Sound},
        };
        // clang-format on
        QVERIFY(read.contains(field));
        QCOMPARE(read.value(field), expected);
    }

    // Position sits in [Toolbar]: its clamp and the section together.
    void positionClamp()
    {
        const QString path = m_settings + QStringLiteral("p.ini");
        QVERIFY(writeFile(
            path, utf16File(QStringLiteral("[Applet]\nPosition=2\n[Toolbar]\nPosition=4\n"))));
        QCOMPARE(readPresetValues(path).Position, 0);
        QVERIFY(writeFile(path, utf16File(QStringLiteral("[toolbar]\nposition=3\n"))));
        QCOMPARE(readPresetValues(path).Position, 3);
    }

    // An 8-bit preset of an older version: read as it stands; saving over it converts it keeping
    // its first line only, as the product always has.
    void legacyAnsiPreset()
    {
        QVERIFY(QDir().mkpath(m_settings + QStringLiteral("appletSettings")));
        const QString path = presetFilePath(m_settings, QStringLiteral("alt"));
        QVERIFY(QFile::copy(dataFile("legacy_ansi.ini"), path));
        const PresetValues v = readPresetFile(m_settings, QStringLiteral("alt"));
        QCOMPARE(v.Title64, QStringLiteral("Grün"));
        QCOMPARE(v.Position, 1);
        QVERIFY(v.AddGyro && v.GyroButton && !v.GyroEnabled);
        QCOMPARE(v.MapZoom, 20);

        // The three [Toolbar] keys go into the 8-bit file; the first string key then keeps only
        // its first line, so they fall back to their defaults, while the legacy Title is gone.
        PresetValues changed = v;
        changed.Position = 2;
        changed.Title64 = QStringLiteral("Neu");
        QVERIFY(writePresetFile(m_settings, QStringLiteral("alt"), changed));
        const PresetValues reread = readPresetFile(m_settings, QStringLiteral("alt"));
        QCOMPARE(reread.Position, 0);
        QCOMPARE(reread.Title64, QStringLiteral("Neu"));
        QCOMPARE(reread.MapZoom, 20);
        QVERIFY(vantora::test::readFileBytes(path).startsWith(
            utf16File(QStringLiteral("[Toolbar]\n[Applet]\n"))));
    }

    void namesAndFiles()
    {
        PresetValues values = readPresetFile(m_settings, QString());
        values.TBDesign = 4;
        QVERIFY(writePresetFile(m_settings, QStringLiteral("a/b\\c"), values));
        QVERIFY(QFileInfo(m_settings + QStringLiteral("appletSettings/a_b_c.ini")).isFile());
        QVERIFY(presetExists(m_settings, QStringLiteral("a_b_c")));
        QCOMPARE(readPresetFile(m_settings, QStringLiteral("a/b/c")).TBDesign, 4);

        for (const char *name : {"zeta.ini", "Alpha.ini", "beta.INI", "notes.txt", "ini"})
            QVERIFY(writeFile(
                m_settings + QStringLiteral("appletSettings/") + QLatin1String(name), ""));
        QVERIFY(QDir().mkpath(m_settings + QStringLiteral("appletSettings/folder.ini")));
        QCOMPARE(presetNames(m_settings),
            QStringList({QStringLiteral("a_b_c"), QStringLiteral("Alpha"), QStringLiteral("beta"),
                QStringLiteral("zeta")}));

        QVERIFY(deletePresetFile(m_settings, QStringLiteral("a/b\\c")));
        QVERIFY(!deletePresetFile(m_settings, QStringLiteral("a_b_c")));
        QVERIFY(!presetNames(m_settings).contains(QStringLiteral("a_b_c")));
    }

    void presetFolderIsMade()
    {
        // A plain file in the folder's place gives way; a file in the settings folder's place
        // cannot, and the save fails.
        QVERIFY(writeFile(m_settings + QStringLiteral("appletSettings"), "in the way"));
        QVERIFY(writePresetFile(m_settings, QStringLiteral("x"), PresetValues()));
        QVERIFY(presetExists(m_settings, QStringLiteral("x")));

        const QString blocked = m_settings + QStringLiteral("file/");
        QVERIFY(writeFile(m_settings + QStringLiteral("file"), "a file"));
        QVERIFY(!writePresetFile(blocked, QStringLiteral("x"), PresetValues()));
        QVERIFY(!writePresetFile(QString(), QStringLiteral("x"), PresetValues()));
        QCOMPARE(presetNames(QString()), QStringList());
    }

    void mapsApiKey_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("stored");
        QTest::addRow("9 characters") << QStringLiteral("123456789") << false;
        QTest::addRow("10 characters") << QStringLiteral("1234567890") << true;
        QTest::addRow("long, non-ASCII") << QStringLiteral("AIzaSyÄ-key_0123") << true;
    }
    void mapsApiKey()
    {
        QFETCH(QString, key);
        QFETCH(bool, stored);
        QCOMPARE(storeMapsApiKey(m_settings, key), stored);
        const QByteArray bytes
            = vantora::test::readFileBytes(m_settings + QStringLiteral("Vantora.INI"));
        QCOMPARE(bytes,
            stored ? utf16File(QStringLiteral("[Maps]\nGAPIKey=") + key + QLatin1Char('\n'))
                   : QByteArray());
        QCOMPARE(readMapsApiKey(m_settings), stored ? key : QString());
        QVERIFY(!storeMapsApiKey(QString(), key));
        QCOMPARE(readMapsApiKey(QString()), QString());
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_settings;
};

QTEST_GUILESS_MAIN(tst_Presets)
#include "tst_presets.moc"
