// The page as a file: written in text mode, and refused where it cannot be opened. Its text is
// pinned, template by template, through the library's boundary.
#include "common/textcompare.h"
#include "plugin/pagewriter.h"
#include "plugin/paths.h"

#include <QtTest>

class tst_PageWriter : public QObject
{
    Q_OBJECT

private slots:
    void writtenPageUsesPlatformLineEnds()
    {
        QTemporaryDir dir;
        vantora::plugin::PageInput input;
        input.nameForBase = "p.html";
        input.paramsFile = "p.json";
        const QString path = dir.filePath("p.html");
        QVERIFY(vantora::plugin::writePage(path, input));
        QByteArray expected = vantora::plugin::pageText(input);
#ifdef Q_OS_WIN
        expected.replace("\n", "\r\n");
#endif
        QCOMPARE(vantora::test::readFileBytes(path), expected);
        QVERIFY(!vantora::plugin::writePage(dir.path(), input)); // a folder cannot be replaced
    }

    // File names reach the inline script and the og:image attribute; none may end either.
    void namesAreEscaped_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("params");
        QTest::addColumn<QByteArray>("thumbnail");
        QTest::addColumn<QByteArray>("insert");
        const QByteArray sep = QByteArray(1, char(vantora::plugin::nativeSeparator().unicode()));
        QTest::addRow("ordinary") << "Hof S\u00fcd"
                                  << "Hof S\u00fcd.json"
                                  << "Hof S\xC3\xBC"
                                     "d_tiles"
                + sep
                + "Hof S\xC3\xBC"
                  "d_thumb.jpg"
                                  << QByteArray("\"Hof S\xC3\xBC"
                                                "d.json\"");
        QTest::addRow("script in the name")
            << "p\");alert(1);(\"x"
            << "p\");alert(1);(\"x.json"
            << "p&quot;);alert(1);(&quot;x_tiles" + sep + "p&quot;);alert(1);(&quot;x_thumb.jpg"
            << QByteArray("\"p\\\");alert(1);(\\\"x.json\"");
        QTest::addRow("markup in the name") << "a<b>c"
                                            << "a<!--b>c.json"
                                            << "a&lt;b&gt;c_tiles" + sep + "a&lt;b&gt;c_thumb.jpg"
                                            << QByteArray("\"a\\u003C!--b\\u003Ec.json\"");
    }
    void namesAreEscaped()
    {
        QFETCH(QString, base);
        QFETCH(QString, params);
        QFETCH(QByteArray, thumbnail);
        QFETCH(QByteArray, insert);
        vantora::plugin::PageInput input;
        input.nameForBase = base + ".html";
        input.paramsFile = params;
        input.fitToPage = true;
        const QByteArray page = vantora::plugin::pageText(input);
        QVERIFY2(page.contains("content=\"" + thumbnail + "\">"), page.constData());
        QVERIFY2(page.contains("vantoViewer.insert(\"vantoViewerID\"," + insert + ",{"),
            page.constData());
    }
};

QTEST_GUILESS_MAIN(tst_PageWriter)
#include "tst_pagewriter.moc"
