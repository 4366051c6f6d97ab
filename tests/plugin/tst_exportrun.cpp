// The export run white-box: names, the file report, and what a run copies and measures.
#include "common/hostbuilder.h"
#include "common/textcompare.h"
#include "plugin/commands.h"
#include "plugin/exportjob.h"
#include "plugin/exportrun.h"
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QtTest>

using namespace vantora::plugin;
using vantora::test::writeFileBytes;
namespace at = vantora::test::at;

Q_DECLARE_METATYPE(ReportInput)

namespace {

// Only files directly in the tile folder count towards the image data: 3000 + 2000 bytes.
std::uint32_t writeTestTiles(HostContext *, HostTileRequest *request)
{
    const QString tiles = QString::fromUtf16(request->outputFolder)
        + QString::fromUtf16(request->identifier) + "_tiles/";
    QDir().mkpath(tiles + "level1");
    writeFileBytes(
        tiles + QString::fromUtf16(request->identifier) + "_thumb.jpg", QByteArray(3000, 't'));
    writeFileBytes(tiles + "0.jpg", QByteArray(2000, 't'));
    writeFileBytes(tiles + "level1/1.jpg", QByteArray(50000, 't'));
    return 1;
}

} // namespace

class tst_ExportRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetPluginStateForTests(); }
    void cleanup() { resetPluginStateForTests(); }

    void names_data()
    {
        QTest::addColumn<bool>("extensionJs");
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<QString>("extension");
        QTest::addRow("json") << false << 0u << ".json";
        QTest::addRow("js") << true << 0u << ".js";
        QTest::addRow("jsonp flag") << false << 2u << ".jsonp";
        QTest::addRow("js wins over jsonp") << true << 2u << ".js";
        QTest::addRow("other flags ignored") << false << 3u << ".json";
    }
    void names()
    {
        QFETCH(bool, extensionJs);
        QFETCH(quint32, flags);
        QFETCH(QString, extension);
        const OutputNames n = outputNames("tour", extensionJs, flags);
        QCOMPARE(QStringList({n.page, n.paramsFile, n.controlsFile}),
            QStringList({"tour.html", "tour" + extension, "tour_controls" + extension}));
    }

    void outputFolder_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("folder");
        const QString s = QDir::separator();
        QTest::addRow("windows path") << "C:\\out\\tour.html"
                                      << "C:" + s + "out" + s;
        QTest::addRow("slashes") << "/srv/www/tour.html" << s + "srv" + s + "www" + s;
        QTest::addRow("mixed") << "/srv\\www/tour.html" << s + "srv" + s + "www" + s;
        QTest::addRow("bare file name") << "tour.html" << QString();
        QTest::addRow("root") << "/tour.html" << s;
    }
    void outputFolder()
    {
        QFETCH(QString, target);
        QTEST(outputFolderOf(target), "folder");
        QCOMPARE(baseNameOf(target), QString("tour"));
    }

    void report_data()
    {
        QTest::addColumn<ReportInput>("input");
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("totalKb");
        const QString line = "            (%1 KB)\n";
        ReportInput small;
        small.pageName = "p.html";
        small.paramsFile = "p.json";
        small.viewerBytes = 1000;
        small.pageBytes = small.paramsBytes = 10;
        // 1000 + 1024 + 1024 = 3048 bytes: 2 KB; the small script is listed as 0 KB.
        const QString smallList = "vantoViewer" + line.arg(0) + "p.html" + line.arg(1) + "p.json"
            + line.arg(1) + "Bilddaten: " + line.arg(0);
        QTest::addRow("small files") << small << smallList << 2;

        ReportInput full = small;
        full.viewerBytes = 300 * 1024 + 1023;
        full.pageBytes = 2047;
        full.paramsBytes = 5000;
        full.logoFile = "logo.png";
        full.logoBytes = 1023;
        full.soundFile = "wind.mp3";
        full.soundBytes = 4096;
        full.imageDataBytes = 10 * 1024 * 1024 + 1;
        const quint64 total = full.viewerBytes + 2047 + 5000 + 1023 + 4096 + full.imageDataBytes;
        const QString fullList = "vantoViewer" + line.arg(300) + "p.html" + line.arg(1) + "p.json"
            + line.arg(4) + "logo.png" + line.arg(0) + "wind.mp3" + line.arg(4)
            + "Bilddaten: " + line.arg(10240);
        QTest::addRow("logo, sound, image data") << full << fullList << int(total / 1024);
    }
    void report()
    {
        QFETCH(ReportInput, input);
        const FileReport r = buildFileReport(input);
        QTEST(r.list, "list");
        QTEST(r.totalKb, "totalKb");
    }

    // The logo is copied and named; a sound that cannot be copied is still named, silently.
    void copiesAndSizes()
    {
        QTemporaryDir root;
        const QString install = root.filePath("install/"), out = root.filePath("out/");
        QVERIFY(QDir().mkpath(install + "VantoraViewer") && QDir().mkpath(out));
        QVERIFY(writeFileBytes(install + "VantoraViewer/vantoViewer.js", "var v;"));
        QVERIFY(writeFileBytes(root.filePath("logo.png"), QByteArray(2048, 'l')));
        vantora::test::HostBuilder host;
        host.put(at::NonInteractive, 1u, at::EndPan, 360.0, at::WriteTiles, &writeTestTiles);
        host.putString(at::InstallFolder, install).setPath(out + "tour.html");

        std::uint64_t word = 1;
        runCommand(VANTORA_PREPARE, host.context(), &word);
        auto &s = vantora::settings::viewerSettings();
        s.LogoImage = root.filePath("logo.png");
        s.Sound = "/nonexistent/wind.mp3";
        runCommand(VANTORA_WRITE, host.context(), &word);

        QCOMPARE(word, 0u);
        QCOMPARE(QStringList({s.LogoFile, s.SoundFile}), QStringList({"logo.png", "wind.mp3"}));
        QCOMPARE(QFileInfo(out + "logo.png").size(), 2048);
        QVERIFY(!QFileInfo::exists(out + "wind.mp3"));
        QCOMPARE(exportJob().imageDataBytes, quint64(5000));
    }
};

QTEST_GUILESS_MAIN(tst_ExportRun)
#include "tst_exportrun.moc"
