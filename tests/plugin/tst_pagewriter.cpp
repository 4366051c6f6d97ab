// The page as a file: written in text mode, and refused where it cannot be opened. Its text is
// pinned, template by template, through the library's boundary.
#include "common/textcompare.h"
#include "plugin/pagewriter.h"

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
        QVERIFY(!vantora::plugin::writePage(dir.path(), input)); // a folder cannot be opened
    }
};

QTEST_GUILESS_MAIN(tst_PageWriter)
#include "tst_pagewriter.moc"
