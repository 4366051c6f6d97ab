// Preset files and the host INI: the written bytes, the read rules of every kind of key, names,
// listing, and the Maps API key.
#include "common/textcompare.h"
#include "settings/hostini.h"
#include "settings/presets.h"
#include "settings/settingstable.h"

#include <QtTest>

#include <memory>

using namespace vantora::settings;
using vantora::test::readFileBytes;

namespace {

// The text as the system writes an INI file: UTF-16LE with its byte-order mark, CR LF line ends.
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
    return VANTORA_TEST_DATA "/ini/" + QString::fromLatin1(name);
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

// The value of a preset key as text: numbers and flags in decimal, texts as they stand.
QString valueOf(const Preset &preset, const QString &key)
{
    QVariant value = "<no key " + key + ">";
    for (const SettingRow &row : settingRows())
        if (row.inPresets() && key == QLatin1String(row.name))
            visitValue(row, preset.settings, preset.menu, [&](const auto &field) {
                if constexpr (!std::is_same_v<std::decay_t<decltype(field)>,
                                  QList<ContextMenuItem>>)
                    value = QVariant::fromValue(field);
            });
    return value.type() == QVariant::Bool ? QString::number(value.toInt()) : value.toString();
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
        QVERIFY(writePresetFile(m_settings, "Standard", readPresetFile(m_settings, "none")));
        const QByteArray written = readFileBytes(m_settings + "appletSettings/Standard.ini");
        const QString expected = QString::fromUtf8(readFileBytes(dataFile("default_preset.txt")));
        VANTORA_COMPARE_TEXT(QString::fromUtf16(reinterpret_cast<const char16_t *>(written.data()),
                                 written.size() / 2),
            QString(expected).replace("\n", "\r\n")); // the mark is read, not kept
        QCOMPARE(written, utf16File(expected));
    }

    // A preset with every key away from its default, as the system writes it (UTF-16LE): read and
    // written again it comes out byte for byte the same.
    void everyKeyRoundTrips()
    {
        const QByteArray original = readFileBytes(dataFile("changed_preset_utf16.ini"));
        QVERIFY(writeFile(m_settings + "source.ini", original));
        const Preset preset = readPreset(m_settings + "source.ini");
        const ViewerSettings &values = preset.settings;
        QCOMPARE(values.Title64, "Gipfel über Zürich");
        QCOMPARE(values.Sound, "C:\\Ton\\wind 😀.mp3");
        QCOMPARE(values.PanRate, -4.25);
        QCOMPARE(values.ShadowColor, 8421504u);
        QVERIFY(writePresetFile(m_settings, "copy", preset));
        QCOMPARE(readFileBytes(m_settings + "appletSettings/copy.ini"), original);
        QVERIFY(readPresetFile(m_settings, "copy") == preset);
    }

    void readRules_data()
    {
        QTest::addColumn<QString>("lines"); // the [Applet] section's keys unless a section is named
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        // clang-format off
        const struct { const char *name, *lines, *key, *expected; } rows[] = {
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
            {"Position in [Toolbar], clamped", "[Applet]\nPosition=2\n[Toolbar]\nPosition=4", "Position", "0"},
            {"Position, names in any case", "[toolbar]\nposition=3",  "Position",     "3"},
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
                << QString(r.lines) << QString(r.key) << QString(r.expected);
    }
    void readRules()
    {
        QFETCH(QString, lines);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const QString path = m_settings + "rules.ini";
        const QString section = lines.startsWith('[') ? QString() : QStringLiteral("[Applet]\n");
        QVERIFY(writeFile(path, utf16File(section + lines + '\n')));
        QCOMPARE(valueOf(readPreset(path), key), expected);
    }

    // An 8-bit preset of an older version: read as it stands; saving over it converts it keeping
    // its first line only, as the product always has.
    void legacyAnsiPreset()
    {
        QVERIFY(QDir().mkpath(m_settings + "appletSettings"));
        const QString path = presetFilePath(m_settings, "alt");
        QVERIFY(QFile::copy(dataFile("legacy_ansi.ini"), path));
        const Preset original = readPresetFile(m_settings, "alt");
        const ViewerSettings &v = original.settings;
        QCOMPARE(v.Title64, "Grün");
        QCOMPARE(v.Position, 1);
        QVERIFY(v.AddGyro && v.GyroButton && !v.GyroEnabled);
        QCOMPARE(v.MapZoom, 20);

        // The three [Toolbar] keys go into the 8-bit file; the first string key then keeps only
        // its first line, so they fall back to their defaults, while the legacy Title is gone.
        Preset changed = original;
        changed.settings.Position = 2;
        changed.settings.Title64 = "Neu";
        QVERIFY(writePresetFile(m_settings, "alt", changed));
        const ViewerSettings reread = readPresetFile(m_settings, "alt").settings;
        QCOMPARE(reread.Position, 0);
        QCOMPARE(reread.Title64, "Neu");
        QCOMPARE(reread.MapZoom, 20);
        QVERIFY(readFileBytes(path).startsWith(utf16File("[Toolbar]\n[Applet]\n")));
    }

    // Presets saved by an editor rather than the system: UTF-8 with or without its mark, UTF-16
    // big-endian. Read as what they are, umlauts included.
    void otherEncodings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QString text
            = QStringLiteral("[Applet]\r\nTitle=Gr\u00fcn \u00fcber Z\u00fcrich\r\nMapZoom=7\r\n");
        QByteArray utf16be("\xFE\xFF", 2);
        for (const QChar c : text)
            utf16be.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xFF));
        QTest::addRow("UTF-8 with mark") << "\xEF\xBB\xBF" + text.toUtf8();
        QTest::addRow("UTF-8 without mark") << text.toUtf8();
        QTest::addRow("UTF-16BE") << utf16be;
    }
    void otherEncodings()
    {
        QFETCH(QByteArray, bytes);
        const QString path = m_settings + "editor.ini";
        QVERIFY(writeFile(path, bytes));
        bool readable = false;
        const ViewerSettings values = readPreset(path, &readable).settings;
        QVERIFY(readable);
        QCOMPARE(values.Title64, QStringLiteral("Gr\u00fcn \u00fcber Z\u00fcrich"));
        QCOMPARE(values.MapZoom, 7);
    }

    // A preset that is there but cannot be read is not silently taken for the defaults.
    void unreadablePresetIsReported()
    {
        QVERIFY(QDir().mkpath(m_settings + "folder.ini"));
        bool readable = true;
        readPreset(m_settings + "folder.ini", &readable);
        QVERIFY(!readable);
        readPreset(m_settings + "missing.ini", &readable);
        QVERIFY(readable); // a missing preset is simply the defaults
        QVERIFY(!writePreset(m_settings + "folder.ini", Preset()));
        QVERIFY(QFileInfo(m_settings + "folder.ini").isDir());
    }

    void namesAndFiles()
    {
        Preset values = readPresetFile(m_settings, QString());
        values.settings.TBDesign = 4;
        QVERIFY(writePresetFile(m_settings, "a/b\\c", values));
        QVERIFY(QFileInfo(m_settings + "appletSettings/a_b_c.ini").isFile());
        QVERIFY(presetExists(m_settings, "a_b_c"));
        QCOMPARE(readPresetFile(m_settings, "a/b/c").settings.TBDesign, 4);

        for (const char *name : {"zeta.ini", "Alpha.ini", "beta.INI", "notes.txt", "ini"})
            QVERIFY(writeFile(m_settings + "appletSettings/" + name, ""));
        QVERIFY(QDir().mkpath(m_settings + "appletSettings/folder.ini"));
        QCOMPARE(presetNames(m_settings), QStringList({"a_b_c", "Alpha", "beta", "zeta"}));

        QVERIFY(deletePresetFile(m_settings, "a/b\\c"));
        QVERIFY(!deletePresetFile(m_settings, "a_b_c"));
        QVERIFY(!presetNames(m_settings).contains("a_b_c"));
    }

    void presetFolderIsMade()
    {
        // A plain file in the folder's place gives way; a file in the settings folder's place
        // cannot, and the save fails.
        QVERIFY(writeFile(m_settings + "appletSettings", "in the way"));
        QVERIFY(writePresetFile(m_settings, "x", Preset()));
        QVERIFY(presetExists(m_settings, "x"));

        QVERIFY(writeFile(m_settings + "file", "a file"));
        QVERIFY(!writePresetFile(m_settings + "file/", "x", Preset()));
        QVERIFY(!writePresetFile(QString(), "x", Preset()));
        QCOMPARE(presetNames(QString()), QStringList());
    }

    void mapsApiKey_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("stored");
        QTest::addRow("9 characters") << "123456789" << false;
        QTest::addRow("10 characters") << "1234567890" << true;
        QTest::addRow("long, non-ASCII") << "AIzaSyÄ-key_0123" << true;
    }
    void mapsApiKey()
    {
        QFETCH(QString, key);
        QFETCH(bool, stored);
        QCOMPARE(storeMapsApiKey(m_settings, key), stored);
        QCOMPARE(readFileBytes(m_settings + "Vantora.INI"),
            stored ? utf16File("[Maps]\nGAPIKey=" + key + '\n') : QByteArray());
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
