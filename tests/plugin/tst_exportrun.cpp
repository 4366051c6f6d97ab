// The export run white-box: names, the file report, copies and result codes on real files.
#include "plugin/commands.h"
#include "plugin/exportjob.h"
#include "plugin/exportrun.h"
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QtTest>

using namespace vantora::plugin;

Q_DECLARE_METATYPE(ReportInput)

namespace {

int startCalls = 0;
int closeCalls = 0;
HostContext *closedWith = nullptr;
std::uint32_t tileStatus = 1;

std::uint32_t writeTestTiles(HostContext *, HostTileRequest *request)
{
    const QString id = QString::fromUtf16(request->identifier);
    QDir folder(QString::fromUtf16(request->outputFolder));
    folder.mkpath(id + QStringLiteral("_tiles/level1"));
    auto put = [&](const QString &name, int bytes) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(QByteArray(bytes, 'x'));
    };
    put(id + QStringLiteral("_tiles/") + id + QStringLiteral("_thumb.jpg"), 3000);
    put(id + QStringLiteral("_tiles/0.jpg"), 2000);
    // Only files directly in the tile folder count towards the image data.
    put(id + QStringLiteral("_tiles/level1/1.jpg"), 50000);
    return tileStatus;
}

void writeFile(const QString &path, int bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(bytes, 'v'));
}

class Export
{
public:
    Export()
    {
        install = root.path() + QStringLiteral("/install/");
        out = root.path() + QStringLiteral("/out/");
        QDir().mkpath(install + QStringLiteral("VantoraViewer"));
        QDir().mkpath(out);
        installWide = install.toStdU16String();
        host.installFolder = installWide.c_str();
        host.pathBuffer = pathBuffer;
        host.outputPath = outputBuffer;
        host.nonInteractive = 1;
        host.imageWidth = 4000;
        host.imageHeight = 2000;
        host.endPan = 360;
        host.upperEdgeTilt = -90;
        host.lowerEdgeTilt = 90;
        host.pageWidth = 800;
        host.pageHeight = 600;
        host.start = [](void *reserved) { startCalls += reserved == nullptr ? 1 : 100; };
        host.close = [](HostContext *h) {
            ++closeCalls;
            closedWith = h;
        };
        host.writeTiles = writeTestTiles;
        startCalls = closeCalls = 0;
        closedWith = nullptr;
        tileStatus = 1;
    }

    QString viewerSource() const
    {
        return install + QStringLiteral("VantoraViewer/vantoViewer.js");
    }

    std::uint64_t prepare(const QString &target)
    {
        const std::u16string wide = target.toStdU16String();
        std::copy(wide.begin(), wide.end(), pathBuffer);
        pathBuffer[wide.size()] = 0;
        std::uint64_t word = 1;
        runCommand(VANTORA_PREPARE, &host, &word);
        return word;
    }

    std::uint64_t write()
    {
        std::uint64_t word = 99;
        runCommand(VANTORA_WRITE, &host, &word);
        return word;
    }

    QTemporaryDir root;
    QString install;
    QString out;
    std::u16string installWide;
    char16_t pathBuffer[1024] = {};
    char16_t outputBuffer[1024] = {};
    HostContext host {};
};

} // namespace

class tst_ExportRun : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetPluginStateForTests(); }
    void cleanup() { resetPluginStateForTests(); }

    void names_data()
    {
        QTest::addColumn<QString>("baseName");
        QTest::addColumn<bool>("extensionJs");
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("params");
        QTest::addColumn<QString>("controls");
        QTest::addRow("json") << "tour" << false << 0u << "tour.html"
                              << "tour.json"
                              << "tour_controls.json";
        QTest::addRow("js") << "tour" << true << 0u << "tour.html"
                            << "tour.js"
                            << "tour_controls.js";
        QTest::addRow("jsonp flag") << "tour" << false << 2u << "tour.html"
                                    << "tour.jsonp"
                                    << "tour_controls.jsonp";
        QTest::addRow("js wins over jsonp") << "tour" << true << 2u << "tour.html"
                                            << "tour.js"
                                            << "tour_controls.js";
        QTest::addRow("other flags ignored") << "tour" << false << 3u << "tour.html"
                                             << "tour.json"
                                             << "tour_controls.json";
    }
    void names()
    {
        QFETCH(QString, baseName);
        QFETCH(bool, extensionJs);
        QFETCH(quint32, flags);
        const OutputNames n = outputNames(baseName, extensionJs, flags);
        QTEST(n.page, "page");
        QTEST(n.paramsFile, "params");
        QTEST(n.controlsFile, "controls");
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
        QCOMPARE(baseNameOf(target), QStringLiteral("tour"));
    }

    void report_data()
    {
        QTest::addColumn<ReportInput>("input");
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("totalKb");
        const QString line = QStringLiteral("            (%1 KB)\n");
        ReportInput small;
        small.pageName = QStringLiteral("p.html");
        small.paramsFile = QStringLiteral("p.json");
        small.viewerBytes = 1000;
        small.pageBytes = 10;
        small.paramsBytes = 10;
        // 1000 + 1024 + 1024 = 3048 bytes: 2 KB; the small script is listed as 0 KB.
        QTest::addRow("small files") << small
                                     << "vantoViewer" + line.arg(0) + "p.html" + line.arg(1)
                + "p.json" + line.arg(1) + "Bilddaten: " + line.arg(0)
                                     << 2;

        ReportInput full = small;
        full.viewerBytes = 300 * 1024 + 1023;
        full.pageBytes = 2047;
        full.paramsBytes = 5000;
        full.logoFile = QStringLiteral("logo.png");
        full.logoBytes = 1023;
        full.soundFile = QStringLiteral("wind.mp3");
        full.soundBytes = 4096;
        full.imageDataBytes = 10 * 1024 * 1024 + 1;
        const quint64 total = full.viewerBytes + 2047 + 5000 + 1023 + 4096 + full.imageDataBytes;
        QTest::addRow("logo, sound, image data") << full
                                                 << "vantoViewer" + line.arg(300) + "p.html"
                + line.arg(1) + "p.json" + line.arg(4) + "logo.png" + line.arg(0) + "wind.mp3"
                + line.arg(4) + "Bilddaten: " + line.arg(10240)
                                                 << int(total / 1024);
    }
    void report()
    {
        QFETCH(ReportInput, input);
        const FileReport r = buildFileReport(input);
        QTEST(r.list, "list");
        QTEST(r.totalKb, "totalKb");
    }

    void wholeExport()
    {
        Export e;
        writeFile(e.viewerSource(), 1500);
        QFile::setPermissions(e.viewerSource(), QFileDevice::ReadOwner | QFileDevice::ReadGroup);
        QCOMPARE(e.prepare(e.out + QStringLiteral("tour.html")), 0u);
        QCOMPARE(e.write(), 0u);

        QCOMPARE(startCalls, 1);
        QCOMPARE(closeCalls, 1);
        QCOMPARE(closedWith, &e.host);
        const QString viewerCopy = e.out + QStringLiteral("vantoViewer.js");
        QCOMPARE(QFileInfo(viewerCopy).size(), 1500);
        QVERIFY(QFileInfo(viewerCopy).permissions() & QFileDevice::WriteOwner);
        QVERIFY(QFileInfo::exists(e.out + QStringLiteral("tour.html")));
        QVERIFY(QFileInfo::exists(e.out + QStringLiteral("tour.json")));
        QCOMPARE(exportJob().imageDataBytes, quint64(5000));
    }

    void logoAndSoundAreCopied()
    {
        Export e;
        writeFile(e.viewerSource(), 10);
        const QString media = e.root.path() + QStringLiteral("/media/");
        QDir().mkpath(media);
        writeFile(media + QStringLiteral("logo.png"), 2048);
        e.prepare(e.out + QStringLiteral("p.html"));
        auto &s = vantora::settings::viewerSettings();
        s.LogoImage = media + QStringLiteral("logo.png");
        s.Sound = QStringLiteral("/nonexistent/wind.mp3"); // a failed copy is silent
        QCOMPARE(e.write(), 0u);
        QCOMPARE(s.LogoFile, QStringLiteral("logo.png"));
        QCOMPARE(s.SoundFile, QStringLiteral("wind.mp3"));
        QCOMPARE(QFileInfo(e.out + QStringLiteral("logo.png")).size(), 2048);
        QVERIFY(!QFileInfo::exists(e.out + QStringLiteral("wind.mp3")));
    }
};

QTEST_GUILESS_MAIN(tst_ExportRun)
#include "tst_exportrun.moc"
