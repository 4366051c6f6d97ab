// What the page takes from the settings; the templates themselves are pinned through the boundary.
#include "common/textcompare.h"
#include "plugin/pagewriter.h"

#include <QtTest>

using vantora::plugin::PageInput;

class tst_PageWriter : public QObject
{
    Q_OBJECT

private slots:
    void settingsReachThePage_data()
    {
        QTest::addColumn<bool>("warning");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QByteArray>("insertCall");
        QTest::addRow("viewer warning off")
            << false << QStringLiteral("Alpen")
            << QByteArray(
                   R"(vantoViewer.insert("vantoViewerID","tour.json",{html5:"disable_webgl_warning"});)");
        QTest::addRow("viewer warning on: empty options")
            << true << QStringLiteral("x")
            << QByteArray(R"(vantoViewer.insert("vantoViewerID","tour.json",{});)");
        // Inserted as it is: no escaping, and a '%' is no format.
        QTest::addRow("title unescaped")
            << false << QStringLiteral("Blick <\u00fcber> \"100%\" & mehr")
            << QByteArray(
                   R"(vantoViewer.insert("vantoViewerID","tour.json",{html5:"disable_webgl_warning"});)");
    }
    void settingsReachThePage()
    {
        QFETCH(bool, warning);
        QFETCH(QString, title);
        QFETCH(QByteArray, insertCall);
        PageInput input;
        input.nameForBase = QStringLiteral("tour.html");
        input.paramsFile = QStringLiteral("tour.json");
        input.title = title;
        input.fitToPage = true;
        input.showWebGLWarning = warning;
        const QByteArray page = vantora::plugin::pageText(input);
        QVERIFY2(page.contains("\t\t<title>" + title.toUtf8() + "</title>\n"), page.constData());
        QVERIFY2(
            page.contains("\t\t\t\t<script type=\"text/javascript\">" + insertCall + "</script>\n"),
            page.constData());
    }

    void writtenPageUsesPlatformLineEnds()
    {
        QTemporaryDir dir;
        PageInput input;
        input.nameForBase = QStringLiteral("p.html");
        input.paramsFile = QStringLiteral("p.json");
        const QString path = dir.filePath(QStringLiteral("p.html"));
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
