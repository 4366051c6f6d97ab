// The portable private-profile rules, and the writers that keep INI files in UTF-16LE.
#include "common/textcompare.h"
#include "plugin/platform/platform.h"
#include "settings/inifile.h"
#include "settings/inivalues.h"

#include <QtTest>

using namespace vantora::settings;

namespace {

// A UTF-16LE file with its byte-order mark, as the system writes one.
QByteArray utf16File(const QString &text)
{
    QByteArray bytes("\xFF\xFE", 2);
    for (const QChar c : text)
        bytes.append(char(c.unicode() & 0xFF)).append(char(c.unicode() >> 8));
    return bytes;
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

const QString MISSING = "<missing>";

} // namespace

class tst_IniFile : public QObject
{
    Q_OBJECT

private slots:
    void lookup_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        // Always section "Applet", key "MapZoom".
        // clang-format off
        const struct { const char *name, *text, *expected; } rows[] = {
            {"names ignore case",             "[applet]\r\nmapzoom=7\r\n",                        "7"},
            {"first matching key wins",       "[Applet]\r\nMapZoom=1\r\nMAPZOOM=2\r\n",          "1"},
            {"section repeated",              "[Applet]\r\na=0\r\n[B]\r\nMapZoom=9\r\n[APPLET]\r\nMapZoom=3\r\n", "3"},
            {"blanks around names and value", "[ Applet ]\r\n  MapZoom  =  v w  \r\n",          "v w"},
            {"double quotes removed",         "[Applet]\r\nMapZoom=\"a b\"\r\n",                 "a b"},
            {"single quotes removed",         "[Applet]\r\nMapZoom='x'\r\n",                     "x"},
            {"unmatched quote kept",          "[Applet]\r\nMapZoom=\"x\r\n",                     "\"x"},
            {"value holding '='",             "[Applet]\r\nMapZoom=a=b\r\n",                     "a=b"},
            {"empty value",                   "[Applet]\r\nMapZoom=\r\n",                        ""},
            {"line feeds only",               "[Applet]\nMapZoom=4\n",                           "4"},
            {"last line without line end",    "[Applet]\r\nMapZoom=5",                           "5"},
            {"key in another section",        "[Toolbar]\r\nMapZoom=1\r\n[Applet]\r\n",          "<missing>"},
            {"key before any section",        "MapZoom=1\r\n[Applet]\r\n",                       "<missing>"},
            {"header without bracket",        "[Applet\r\nMapZoom=1\r\n",                        "<missing>"},
            {"line without '='",              "[Applet]\r\nMapZoom\r\n",                         "<missing>"},
            {"empty text",                    "",                                                "<missing>"},
        };
        // clang-format on
        for (const auto &r : rows)
            QTest::addRow("%s", r.name) << QString(r.text) << QString(r.expected);
    }
    void lookup()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(ini::lookup(text, "Applet", "MapZoom").value_or(MISSING), expected);
    }

    void assign_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        // Always section "Applet", key "Key", value "v".
        // clang-format off
        const struct { const char *name, *before, *after; } rows[] = {
            {"new file",                    "",                                      "[Applet]\r\nKey=v\r\n"},
            {"first match rewritten",       "[Applet]\r\n KEY = old \r\nkey=2\r\n", "[Applet]\r\nKEY=v\r\nkey=2\r\n"},
            {"new key after the last line of its section",
                                            "[Applet]\r\na=1\r\n\r\n[B]\r\nb=2\r\n", "[Applet]\r\na=1\r\nKey=v\r\n\r\n[B]\r\nb=2\r\n"},
            {"new key into the first of two sections",
                                            "[applet]\r\n[Applet]\r\n",              "[applet]\r\nKey=v\r\n[Applet]\r\n"},
            {"new section at the end",      "[B]\r\nb=2\r\n",                        "[B]\r\nb=2\r\n[Applet]\r\nKey=v\r\n"},
            {"new key, no final line end",  "[Applet]\r\na=1",                       "[Applet]\r\na=1\r\nKey=v\r\n"},
            {"new section, no final line end", "[B]\r\nb=2",                        "[B]\r\nb=2\r\n[Applet]\r\nKey=v\r\n"},
            {"other lines kept as they are", "; note\n[Applet]\nx = 1\n",           "; note\n[Applet]\nx = 1\nKey=v\r\n"},
        };
        // clang-format on
        for (const auto &r : rows)
            QTest::addRow("%s", r.name) << QString(r.before) << QString(r.after);
    }
    void assign()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        VANTORA_COMPARE_TEXT(ini::assign(before, "Applet", "Key", "v"), after);
    }

    // The profile readers: the number of key "n" (default 99), or the text of key "k".
    void profileReads_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("expected");
        const QByteArray n("[A]\r\nn=");
        QTest::addRow("digits") << n + "42\r\n"
                                << "42";
        QTest::addRow("blanks, sign, trailing text") << n + " -7px\r\n"
                                                     << "-7";
        QTest::addRow("no digits") << n + "x1\r\n"
                                   << "0";
        QTest::addRow("empty value") << n + "\r\n"
                                     << "0";
        QTest::addRow("missing key: default") << QByteArray("[A]\r\nm=1\r\n") << "99";
        QTest::addRow("beyond 32 bits wraps") << n + "4294967297\r\n"
                                              << "1";
        QTest::addRow("UTF-16 file") << utf16File("[A]\r\nn=12\r\n") << "12";
        QTest::addRow("text cut at 65535") << "[A]\r\nk=" + QByteArray(70000, 'x') + "\r\n"
                                           << QString(65535, 'x');
    }
    void profileReads()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, expected);
        QTemporaryDir dir;
        const QString path = dir.filePath("n.ini");
        QVERIFY(writeFile(path, file));
        using namespace vantora::platform;
        QCOMPARE(file.contains("\nk=") ? profileString(path, "a", "K", QString())
                                       : QString::number(profileInt(path, "a", "N", 99)),
            expected);
    }

    // What the writers leave in a file, byte for byte. ANSI files keep only their first line
    // (text mode: CR LF read as LF, at most length - 1 characters, up to a NUL) when a string key
    // is written, each byte sign-extended; number keys keep the file's encoding.
    void writers_data()
    {
        QTest::addColumn<QByteArray>("before"); // "<none>": no file
        QTest::addColumn<bool>("stringKey");
        QTest::addColumn<QByteArray>("after");
        const QByteArray none("<none>");
        const QString key = "[Maps]\r\nGAPIKey=v\r\n";
        QTest::addRow("no file: UTF-16 from the start, string") << none << true << utf16File(key);
        QTest::addRow("no file: UTF-16 from the start, number") << none << false << utf16File(key);
        QTest::addRow("empty file") << QByteArray() << true << utf16File(key);
        QTest::addRow("UTF-16 file keeps every line")
            << utf16File("[A]\r\na=ä\r\n[Maps]\r\nx=1\r\n") << true
            << utf16File("[A]\r\na=ä\r\n[Maps]\r\nx=1\r\nGAPIKey=v\r\n");
        QTest::addRow("ANSI file, string key: first line only")
            << QByteArray("[Maps]\r\nx=1\r\ny=2\r\n") << true << utf16File(key);
        QTest::addRow("ANSI file, bytes above 0x7F sign-extended")
            << QByteArray("[Gr\xE4n]\r\nx=1\r\n") << true << utf16File("[Gr\uFFE4n]\r\n" + key);
        QTest::addRow("ANSI one-liner loses its last character")
            << QByteArray("[Maps]") << true << utf16File("[Maps\r\n" + key);
        QTest::addRow("ANSI line cut at a NUL")
            << QByteArray("[Ma\0ps]\r\nx=1\r\n", 13) << true << utf16File("[Ma\r\n" + key);
        QTest::addRow("ANSI file, number key: stays ANSI") << QByteArray(
            "[Maps]\r\nx=\xE4\r\n") << false << QByteArray("[Maps]\r\nx=\xE4\r\nGAPIKey=v\r\n");
    }
    void writers()
    {
        QFETCH(QByteArray, before);
        QFETCH(bool, stringKey);
        QFETCH(QByteArray, after);
        QTemporaryDir dir;
        const QString path = dir.filePath("Vantora.INI");
        QVERIFY(before == "<none>" || writeFile(path, before));
        QVERIFY(stringKey ? writeIniString(path, "Maps", "GAPIKey", "v")
                          : writeIniNumber(path, "Maps", "GAPIKey", "v"));
        QCOMPARE(vantora::test::readFileBytes(path).toHex(' '), after.toHex(' '));
        QCOMPARE(vantora::platform::profileString(path, "Maps", "GAPIKey", QString()), "v");
    }
};

QTEST_GUILESS_MAIN(tst_IniFile)
#include "tst_inifile.moc"
