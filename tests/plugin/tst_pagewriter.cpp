// The HTML page, byte for byte, for both templates.
#include "common/textcompare.h"
#include "plugin/pagewriter.h"

#include <QtTest>

using vantora::plugin::PageInput;

namespace {

// The two templates, typed from the product's page texts with the blanks and tabs as they stand.
const char FULL_PAGE[] =
    "<!DOCTYPE HTML>\n"
    "  \t   <html><head>\n"
    "\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n"
    "\t\t<meta property=\"og:image\" content=\"@THUMB@\">\n"
    "\t\t<title>@TITLE@</title>\n"
    "\t\t</head>\n"
    "\t\t<body>\n"
    "\t\t\t \t<div align=\"center\" style=\"height: 100%; overflow:hidden;\">\n"
    "\t\t\t\t<noscript><div style=\"color: red; width: 30%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n"
    "\t\t\t\t<div id=\"vantoViewerID\" style=\"position: absolute; left: 0px; top: 0px; width: 100% ; height: 100% ;\"></div>\n"
    "\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n"
    "\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"@PARAMS@\",{@OPTIONS@});</script>\n"
    "\t\t\t</div>\n"
    "\t\t</body></html>\n";

const char FIXED_PAGE[] =
    "<!DOCTYPE HTML>\n"
    "  \t\t   <html><head>\n"
    "\t\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n"
    "\t\t\t<meta property=\"og:image\" content=\"@THUMB@\">\n"
    "\t\t\t<title>@TITLE@</title>\n"
    "\t\t\t</head>\n"
    "\t\t\t<body>\n"
    "\t\t\t\t<div align=\"center\" style=\"height: @H@px;\">\n"
    "\t\t\t\t<noscript><div style=\"color: red; width: 30%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n"
    "\t\t\t\t<div id=\"vantoViewerID\" style=\"position: relative; margin: auto; padding: 0px; left: 0px; top: 0px; width: @W@px; height: @H@px;\"></div>\n"
    "\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n"
    "\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"@PARAMS@\",{@OPTIONS@});</script>\n"
    "\t\t\t\t</div>\n"
    "\t\t\t</body></html>\n";

QString expectedPage(bool fit, const QString &thumb, const QString &title, const QString &params,
                     const QString &options, int width, int height)
{
    QString page = QString::fromUtf8(fit ? FULL_PAGE : FIXED_PAGE);
    page.replace(QLatin1String("@THUMB@"), thumb);
    page.replace(QLatin1String("@TITLE@"), title);
    page.replace(QLatin1String("@PARAMS@"), params);
    page.replace(QLatin1String("@OPTIONS@"), options);
    page.replace(QLatin1String("@W@"), QString::number(width));
    page.replace(QLatin1String("@H@"), QString::number(height));
    return page;
}

} // namespace

class tst_PageWriter : public QObject
{
    Q_OBJECT

private slots:
    void page_data()
    {
        QTest::addColumn<bool>("fit");
        QTest::addColumn<bool>("warning");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("options");
        const QString noWarning = QStringLiteral("html5:\"disable_webgl_warning\"");
        QTest::addRow("fit, no warning") << true << false << QString() << noWarning;
        QTest::addRow("fixed, no warning") << false << false << QStringLiteral("Alpen") << noWarning;
        QTest::addRow("fit, warning: empty options") << true << true << QStringLiteral("x") << QString();
        QTest::addRow("fixed, warning") << false << true << QString() << QString();
        // Inserted as it is: no escaping, and a '%' is no format.
        QTest::addRow("title unescaped")
            << true << false << QStringLiteral("Blick <über> \"100%\" & mehr") << noWarning;
    }
    void page()
    {
        QFETCH(bool, fit);
        QFETCH(bool, warning);
        QFETCH(QString, title);
        QFETCH(QString, options);
        PageInput input;
        input.nameForBase = QStringLiteral("tour.html");
        input.paramsFile = QStringLiteral("tour.json");
        input.title = title;
        input.pageWidth = 1024;
        input.pageHeight = 576;
        input.fitToPage = fit;
        input.showWebGLWarning = warning;
        const QString thumb = QStringLiteral("tour_tiles") + QDir::separator()
            + QStringLiteral("tour_thumb.jpg");
        VANTORA_COMPARE_TEXT(QString::fromUtf8(vantora::plugin::pageText(input)),
                             expectedPage(fit, thumb, title, QStringLiteral("tour.json"), options,
                                          1024, 576));
    }

    void fullWindowPageHasNoPixelSizes()
    {
        PageInput input;
        input.nameForBase = QStringLiteral("a.html");
        input.paramsFile = QStringLiteral("a.js");
        input.pageWidth = 640;
        input.pageHeight = 480;
        input.fitToPage = true;
        const QByteArray page = vantora::plugin::pageText(input);
        QVERIFY(!page.contains("640"));
        QVERIFY(!page.contains("480px"));
        QVERIFY(page.contains("\"a.js\""));
    }

    void writtenPageUsesPlatformLineEnds()
    {
        QTemporaryDir dir;
        PageInput input;
        input.nameForBase = QStringLiteral("p.html");
        input.paramsFile = QStringLiteral("p.json");
        input.fitToPage = true;
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
