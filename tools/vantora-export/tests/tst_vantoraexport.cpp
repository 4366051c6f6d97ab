// vantora-export run as a user runs it: a tour, a flat picture, partial panoramas, a preset and a
// title, re-exports, a failed tour and every kind of bad input, each checked on the files it
// leaves.
#include "common/scriptcheck.h"
#include "common/textcompare.h"

#include <QDirIterator>
#include <QImageReader>
#include <QJsonArray>
#include <QLinearGradient>
#include <QMap>
#include <QPainter>
#include <QProcess>
#include <QtTest>

#include <sys/stat.h>

using vantora::test::viewerRoot;
using vantora::test::writeFileBytes;

namespace {

// clang-format off
constexpr char TOUR_HOTSPOTS[] = R"({"hotspots": [
    {"page": "tour", "type": "link", "pan": 90, "tilt": 10, "bitmap": ":/hotspots/link.png",
     "tooltip": "To the garden", "url": "garden.html"},
    {"page": "garden", "type": "info", "x": 0.25, "y": 0.75, "bitmap": "info.png",
     "tooltip": "Fountain", "text": "<b>1890</b>"}]})";
constexpr char FLAT_HOTSPOTS[] = R"({"hotspots": [{"type": "link", "x": 0.5, "y": 0.25, "bitmap": ":/hotspots/info.png", "url": "https://example.org/"}]})";
constexpr char BAD_TYPE_HOTSPOTS[] = R"({"hotspots": [{"type": "sound", "x": 0.5, "y": 0.5, "bitmap": ":/hotspots/link.png", "url": "a.html"}]})";
constexpr char BAD_BITMAP_HOTSPOTS[] = R"({"hotspots": [{"type": "link", "x": 0.5, "y": 0.5, "bitmap": ":/hotspots/none.png", "url": "a.html"}]})";
constexpr char FAR_HOTSPOTS[] = R"({"hotspots": [{"type": "link", "pan": 100, "tilt": 0, "bitmap": ":/hotspots/link.png", "url": "a.html"}]})";
// clang-format on

struct Run
{
    int status = -1;
    QString out, err;
};

// A picture with a little structure, so that its JPEG tiles are not trivially small.
bool writePicture(const QString &path, int width, int height, QColor colour)
{
    QImage picture(width, height, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient gradient(0, 0, width, height);
    gradient.setColorAt(0, colour);
    gradient.setColorAt(1, Qt::black);
    painter.fillRect(picture.rect(), gradient);
    for (int x = 0; x < width; x += 37)
        painter.fillRect(x, 0, 3, height, Qt::white);
    painter.end();
    return picture.save(path);
}

QJsonObject nodeOf(const QString &paramsFile)
{
    return viewerRoot(paramsFile).value("node").toObject();
}

// Every tile the "image" member announces decodes as a JPEG of its stated size, no level holds
// more, each level halves the next one rounding up, the largest is the picture and the smallest
// fits one tile.
void verifyPyramid(const QString &folder, const QJsonObject &image, QSize picture)
{
    const int tile = image["tilesize"].toInt();
    QCOMPARE(tile, 512);
    const QJsonArray levels = image["levels"].toArray();
    const auto sizeOf = [&](int level) {
        return QSize(levels[level]["width"].toInt(), levels[level]["height"].toInt());
    };
    QVERIFY(!levels.isEmpty());
    QCOMPARE(sizeOf(levels.size() - 1), picture);
    QVERIFY(sizeOf(0).width() <= tile && sizeOf(0).height() <= tile);

    const QString pattern = folder + '/' + image["url"].toString();
    for (int level = 0; level < levels.size(); ++level) {
        const QSize size = sizeOf(level);
        const int columns = levels[level]["columns"].toInt(), rows = levels[level]["rows"].toInt();
        QCOMPARE(columns, (size.width() + tile - 1) / tile);
        QCOMPARE(rows, (size.height() + tile - 1) / tile);
        if (level > 0)
            QCOMPARE(sizeOf(level - 1), QSize((size.width() + 1) / 2, (size.height() + 1) / 2));
        const QString levelPattern = QString(pattern).replace("{level}", QString::number(level));
        for (int column = 0; column < columns; ++column) {
            for (int row = 0; row < rows; ++row) {
                QImageReader reader(QString(levelPattern)
                                        .replace("{column}", QString::number(column))
                                        .replace("{row}", QString::number(row)));
                QCOMPARE(reader.format(), QByteArray("jpeg"));
                QCOMPARE(reader.read().size(),
                    QSize(qMin(tile, size.width() - column * tile),
                        qMin(tile, size.height() - row * tile)));
            }
        }
        QCOMPARE(QFileInfo(levelPattern).dir().entryList(QDir::Files).size(), columns * rows);
    }
    // Nothing but the announced levels: no level of an earlier export, no staging left over.
    const QDir tiles(folder + '/' + image["url"].toString().section('/', 0, 0));
    QCOMPARE(tiles.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), levels.size());
    QCOMPARE(tiles.entryList(QDir::Files).size(), 1);
    QImageReader thumbnail(folder + '/' + image["thumbnail"].toString());
    QCOMPARE(thumbnail.format(), QByteArray("jpeg"));
    QCOMPARE(thumbnail.read().width(), qMin(256, picture.width()));
}

qint64 bytesBelow(const QString &folder)
{
    qint64 total = 0;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        total += QFileInfo(it.next()).size();
    return total;
}

// Every file below `folder` with its bytes, by relative path.
QMap<QString, QByteArray> filesBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString file = it.next();
        files.insert(QDir(folder).relativeFilePath(file), vantora::test::readFileBytes(file));
    }
    return files;
}

} // namespace

class tst_VantoraExport : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }

    // Runs the tool with `arguments` split at blanks, "@" standing for the test's folder, followed
    // by `more` as they are.
    Run run(const QString &arguments, const QStringList &more = {}) const
    {
        QProcess process;
        process.start(VANTORA_EXPORT_TOOL,
            QString(arguments).replace('@', m_dir->path()).split(' ', Qt::SkipEmptyParts) + more);
        if (!process.waitForFinished(60000))
            return Run();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
    }

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }

    void tour()
    {
        QVERIFY(writePicture(path("hall.jpg"), 1200, 600, Qt::red));
        QVERIFY(writePicture(path("garden.png"), 1030, 515, Qt::green));
        QVERIFY(writePicture(path("tower.jpg"), 1400, 700, Qt::blue));
        QVERIFY(writePicture(path("info.png"), 32, 32, Qt::yellow));
        QVERIFY(writeFileBytes(path("hotspots.json"), TOUR_HOTSPOTS));
        QVERIFY(writeFileBytes(path("tour.ini"), "[Applet]\r\nAddGallery=1\r\nAddMap=1\r\n"));

        const Run r = run("@/hall.jpg @/garden.png @/tower.jpg -o @/out/tour.html --hotspots "
                          "@/hotspots.json --settings @/tour.ini --location 48.5,11");
        QVERIFY2(r.status == 0 && r.err.isEmpty(), qPrintable(r.err));

        const QString out = path("out/");
        const struct
        {
            const char *page;
            QSize size;
        } pages[] = {{"tour", {1200, 600}}, {"garden", {1030, 515}}, {"tower", {1400, 700}}};
        for (const auto &page : pages) {
            const QString name = page.page;
            QVERIFY(QFileInfo(out + name + ".html").size() > 0);
            QVERIFY(r.out.contains(name + ".html") && r.out.contains(name + "_tiles/"));
            // Each page has its controls file; the page's node describes its own tiles.
            const QJsonObject root = viewerRoot(out + name + ".json");
            QVERIFY2(viewerRoot(out + name + "_controls.json").contains("events"), page.page);
            QCOMPARE(root["include"][0]["src"].toString(), name + "_controls.json");
            QCOMPARE(root["node"]["id"].toString(), name);
            const QJsonObject image = root["node"]["image"].toObject();
            QCOMPARE(image["projection"].toString(), QString("equirectangular"));
            verifyPyramid(out, image, page.size);
        }

        // Positions come back from the library in the viewer's degrees: pan from the left edge,
        // tilt above the horizon.
        const QJsonArray hall = nodeOf(out + "tour.json").value("hotspot").toArray();
        QCOMPARE(hall.size(), 1);
        QCOMPARE(QStringList({hall[0]["position"].toString(), hall[0]["href"].toString(),
                     hall[0]["target"].toString(), hall[0]["bitmap"].toString()}),
            QStringList({"90.0000,10.0000", "garden.html", "_self", "pap_link.png"}));
        QCOMPARE(QImageReader(out + "pap_link.png").read().size(), QSize(48, 48));
        const QJsonArray garden = nodeOf(out + "garden.json").value("hotspot").toArray();
        QCOMPARE(garden.size(), 1);
        QCOMPARE(QStringList({garden[0]["position"].toString(), garden[0]["href"].toString(),
                     garden[0]["textbox"]["text"].toString()}),
            QStringList({"90.0000,-45.0000", "javascript:", "Fountain"}));
        QVERIFY(QFileInfo(out + "info.png").isFile());
        QVERIFY(!nodeOf(out + "tower.json").contains("hotspot"));

        // The gallery, rewritten by each page, lists the last page first and then the folder's
        // other pages by name; each thumbnail it names was written by the tile writer.
        QStringList hrefs;
        for (const QJsonValue entry :
            viewerRoot(out + "vantoViewerGallery.json").value("gallery").toArray()) {
            hrefs << entry["href"].toString();
            QVERIFY(QImageReader(out + entry["thumbnail"].toString()).canRead());
            QCOMPARE(entry["location"]["lat"].toDouble(), 48.5);
        }
        QCOMPARE(hrefs, QStringList({"tower.json", "garden.json", "tour.json"}));
    }

    void flatPicture()
    {
        QVERIFY(writePicture(path("plan.png"), 1100, 700, Qt::cyan));
        QVERIFY(writeFileBytes(path("spots.json"), FLAT_HOTSPOTS));
        const Run r
            = run("@/plan.png --flat -o @/flat/plan.html --fit-to-page --hotspots @/spots.json");
        QVERIFY2(r.status == 0, qPrintable(r.err));

        const QJsonObject node = nodeOf(path("flat/plan.json"));
        QCOMPARE(node["view"]["mode"].toString(), QString("fitInWindow"));
        const QJsonObject image = node["image"].toObject();
        QCOMPARE(image["projection"].toString(), QString("flat"));
        QVERIFY(!image.contains("hextent"));
        verifyPyramid(path("flat"), image, QSize(1100, 700));
        const QJsonValue spot = node["hotspot"][0];
        QCOMPARE(spot["position"].toString() + ' ' + spot["unit"].toString(),
            QString("0.5000,0.2500 norm"));
        // Fit to page: the page has no pixel sizes.
        QVERIFY(!vantora::test::readFileBytes(path("flat/plan.html")).contains("px;\""));
    }

    void partialPanorama_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QList<double>>("camera"); // minpan, maxpan, mintilt, maxtilt

        static const struct
        {
            const char *name;
            QSize size;
            const char *options;
            QList<double> camera;
        } rows[] = {
            // clang-format off
            {"4:1 from the aspect ratio",      {1600, 400}, "",                          {0, 360, -45, 45}},
            {"1:1 from the aspect ratio",      {600, 600},  "",                          {0, 180, -90, 90}},
            {"hextent given, vextent follows", {1200, 300}, "--hextent 120",             {0, 120, -15, 15}},
            {"vextent given, hextent follows", {1200, 300}, "--vextent 40",              {0, 160, -20, 20}},
            {"both given",                     {1000, 500}, "--hextent 200 --vextent 60", {0, 200, -30, 30}},
            // clang-format on
        };
        for (const auto &row : rows)
            QTest::addRow("%s", row.name) << row.size << QString(row.options) << row.camera;
    }
    void partialPanorama()
    {
        QFETCH(QSize, size);
        QFETCH(QString, options);
        QFETCH(QList<double>, camera);
        QVERIFY(writePicture(path("strip.jpg"), size.width(), size.height(), Qt::magenta));
        const Run r = run("@/strip.jpg -o @/strip.html " + options);
        QVERIFY2(r.status == 0, qPrintable(r.err));
        const QJsonObject node = nodeOf(path("strip.json"));
        const QJsonValue limits = node["camera"], image = node["image"];
        QCOMPARE(QList<double>({limits["minpan"].toDouble(), limits["maxpan"].toDouble(),
                     limits["mintilt"].toDouble(), limits["maxtilt"].toDouble()}),
            camera);
        QCOMPARE(image["hextent"].toDouble(), camera[1] - camera[0]);
        QCOMPARE(image["vextent"].toDouble(), camera[3] - camera[2]);
        // The start view looks at the middle of the picture.
        QCOMPARE(node["view"]["pan"].toDouble(), (camera[1] - camera[0]) / 2);
    }

    void settingsAndTitle()
    {
        // A preset as the settings dialog saves it (here in ANSI): scripts as .js, a map with its
        // key.
        QVERIFY(writePicture(path("hall.jpg"), 800, 400, Qt::red));
        QVERIFY(writeFileBytes(path("preset.ini"),
            "[Applet]\r\nExtensionJS=1\r\nAddMap=1\r\nGmAPIKey=QUl6YVRlc3RLZXkxMjM=\r\n[Toolbar]\r\nTBDesign=6\r\n"));
        const Run r
            = run("@/hall.jpg -o @/out/hall.html --settings @/preset.ini --location 53.5,10,12",
                {"--title", "Hafen Süd"});
        QVERIFY2(r.status == 0, qPrintable(r.err));

        const QJsonObject node = nodeOf(path("out/hall.js"));
        QCOMPARE(node["textbox"][0]["text"].toString(), QString("Hafen Süd"));
        QCOMPARE(
            node["location"].toObject(), QJsonObject({{"lat", 53.5}, {"lng", 10}, {"north", 12}}));
        // Design 6's play handler carries its tab.
        QVERIFY(viewerRoot(path("out/hall_controls.js"))
                    .value("events")["onplay"]
                    .toString()
                    .contains("24,24)';  \to.updateSkins()"));
        // The map's markers came through the host's resource exporter.
        for (const char *marker : {"out/pap_marker_redorange.png", "out/pap_marker_lima.png"})
            QCOMPARE(QImageReader(path(marker)).size(), QSize(60, 96));
    }

    // A page exported again gets a new pyramid: larger tiles at a higher quality, and no level of
    // a larger picture left behind by a smaller one.
    void reexportWithOtherQualityAndSize()
    {
        QVERIFY(writePicture(path("q.jpg"), 1500, 750, Qt::darkYellow));
        QVERIFY(writePicture(path("small.jpg"), 700, 350, Qt::blue));
        qint64 bytes[2] = {};
        for (int i = 0; i < 2; ++i) {
            const Run r = run(QString("@/q.jpg -o @/out/view.html --quality ") + (i ? "90" : "70"));
            QVERIFY2(r.status == 0, qPrintable(r.err));
            bytes[i] = bytesBelow(path("out/view_tiles"));
        }
        QVERIFY2(bytes[0] * 5 < bytes[1] * 4,
            qPrintable(QString("%1 vs %2").arg(bytes[0]).arg(bytes[1])));
        QCOMPARE(run("@/small.jpg -o @/out/view.html").status, 0);
        verifyPyramid(
            path("out"), nodeOf(path("out/view.json")).value("image").toObject(), QSize(700, 350));
    }

    // Links planted where the export writes are replaced, never written through, a linked tiles
    // folder too, and nothing outside the output folder changes.
    void linksInTheFolderAreNotFollowed()
    {
        QVERIFY(writePicture(path("good.jpg"), 600, 300, Qt::gray));
        QVERIFY(QDir().mkpath(path("out")) && QDir().mkpath(path("elsewhere/0")));
        QVERIFY(writeFileBytes(path("victim.txt"), "outside\n"));
        QVERIFY(writeFileBytes(path("elsewhere/0/0_0.jpg"), "outside\n"));
        for (const char *name : {"out/x.json", "out/x.html", "out/vantoViewer.js"})
            QVERIFY(QFile::link(path("victim.txt"), path(name)));

        const Run done = run("@/good.jpg -o @/out/x.html");
        QVERIFY2(done.status == 0, qPrintable(done.err));
        QCOMPARE(vantora::test::readFileBytes(path("victim.txt")), QByteArray("outside\n"));
        for (const char *name : {"out/x.json", "out/x.html", "out/vantoViewer.js"})
            QVERIFY2(
                !QFileInfo(path(name)).isSymLink() && QFileInfo(path(name)).size() > 100, name);

        QVERIFY(QDir(path("out/x_tiles")).removeRecursively());
        QVERIFY(QFile::link(path("elsewhere"), path("out/x_tiles")));
        const Run replaced = run("@/good.jpg -o @/out/x.html --title other");
        QVERIFY2(replaced.status == 0, qPrintable(replaced.err));
        QVERIFY(!QFileInfo(path("out/x_tiles")).isSymLink());
        verifyPyramid(
            path("out"), nodeOf(path("out/x.json")).value("image").toObject(), QSize(600, 300));
        QCOMPARE(
            vantora::test::readFileBytes(path("elsewhere/0/0_0.jpg")), QByteArray("outside\n"));
        QCOMPARE(QDir(path("elsewhere")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList {"0"});
    }

    // A tour stopped by a broken picture: the pages before it are whole new exports and are
    // named, the broken one keeps what the folder held, and so do the pages after it.
    void failedTourKeepsWhatItFinished()
    {
        QVERIFY(writePicture(path("first.jpg"), 800, 400, Qt::red));
        QVERIFY(writePicture(path("second.png"), 800, 400, Qt::blue));
        QVERIFY(writePicture(path("third.jpg"), 800, 400, Qt::green));
        QVERIFY(QDir().mkpath(path("out")) && writeFileBytes(path("out/keep.txt"), "the user's\n"));
        QCOMPARE(run("@/second.png -o @/out/second.html").status, 0);
        const QMap<QString, QByteArray> before = filesBelow(path("out"));
        QFile second(path("second.png"));
        QVERIFY(second.resize(second.size() / 2));

        const Run r = run("@/first.jpg @/second.png @/third.jpg -o @/out/first.html");
        QCOMPARE(r.status, 1);
        const QString first = QDir::toNativeSeparators(path("out/first.html"));
        QVERIFY2(r.err.startsWith("vantora-export: export of second.png failed: tiles of "
                                  "second.png: "),
            qPrintable(r.err));
        QVERIFY2(r.err.endsWith("; written before it: " + first + "\n"), qPrintable(r.err));
        QVERIFY2(r.out.startsWith("page: " + first + "  (first.jpg"), qPrintable(r.out));
        const QMap<QString, QByteArray> after = filesBelow(path("out"));
        for (auto it = before.cbegin(); it != before.cend(); ++it)
            QVERIFY2(after.value(it.key()) == it.value(), qPrintable(it.key()));
        QVERIFY(after.contains("first.html") && after.contains("first_tiles/first_thumb.jpg"));
        QVERIFY(!after.contains("third.html"));
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("arguments"); // @ stands for the test's folder
        QTest::addColumn<QString>("reason");

        static const struct
        {
            const char *name, *arguments, *reason;
        } rows[] = {
            // clang-format off
            {"unknown option",     "-o @/out/x.html --frobnicate",          "Unknown option 'frobnicate'"},
            {"missing -o",         "@/good.jpg",                            "--output is required"},
            {"-o not a page",      "-o @/out/x.txt",                        "--output must name an .html file"},
            {"unreadable file",    "@/missing.jpg -o @/out/x.html",         "cannot read @/missing.jpg"},
            {"text named .jpg",    "@/text.jpg -o @/out/x.html",            "@/text.jpg is not a picture"},
            {"output below file",  "-o @/text.jpg/out/x.html",              "cannot write into @/text.jpg/out: @/text.jpg is not a folder"},
            {"output refuses",     "-o /proc/vantora/x.html",               "cannot write into /proc"},
            {"quality 75",         "-o @/out/x.html --quality 75",          "--quality must be 70, 80 or 90"},
            {"page size",          "-o @/out/x.html --page-size 800",       "--page-size must be WIDTHxHEIGHT"},
            {"vextent 200",        "-o @/out/x.html --vextent 200",         "--vextent must be above 0 and at most 180"},
            {"location",           "-o @/out/x.html --location 91,10",      "--location must be LAT,LNG[,NORTH]"},
            {"interactive tour",   "@/good.jpg @/sub/good.jpg -o @/out/x.html --interactive", "--interactive exports one image at a time"},
            {"two pages one name", "@/good.jpg @/sub/good.jpg -o @/out/good.html", "good.html and good.html would write the same files (good.*)"},
            {"one base name",      "@/good.jpg @/x.1.jpg @/x.2.jpg -o @/out/a.html", "x.1.html and x.2.html would write the same files (x.*)"},
            {"a page's controls",  "@/good.jpg @/good_controls.jpg -o @/out/good.html", "good.html and good_controls.html would write the same files (good_controls.*)"},
            {"the viewer's name",  "@/good.jpg -o @/out/vantoViewer.html", "the shared file vantoViewer and vantoViewer.html would write the same files"},
            {"hotspots a pipe",    "-o @/out/x.html --hotspots @/fifo",     "--hotspots: cannot read @/fifo"},
            {"settings a pipe",    "-o @/out/x.html --settings @/fifo",     "--settings: cannot read @/fifo"},
            {"too many pixels",    "@/good.jpg -o @/out/x.html --max-pixels 1000", "@/good.jpg has 600x300 pixels, more than 1000 (see --max-pixels)"},
            {"hotspots not JSON",  "-o @/out/x.html --hotspots @/text.jpg", "@/text.jpg: illegal value at byte 1"},
            {"hotspot type",       "-o @/out/x.html --hotspots @/badtype.json", "@/badtype.json: hotspot 1: \"type\" must be \"link\" or \"info\""},
            {"hotspot bitmap",     "-o @/out/x.html --hotspots @/badbitmap.json", "@/badbitmap.json: hotspot 1: bitmap :/hotspots/none.png not found"},
            {"hotspot outside",    "@/good.jpg -o @/out/x.html --hextent 90 --hotspots @/far.json", "a hotspot of page x lies outside its 90 x 45 degrees"},
            {"no viewer",          "-o @/out/x.html --install @",           "no viewer script @/VantoraViewer/vantoViewer.js"},
            // Found broken only while the tiles are cut: what was written by then is taken back.
            {"truncated picture",  "@/trunc.png -o @/out/x.html",           "export of trunc.png failed: tiles of trunc.png: "},
            {"settings missing",   "-o @/out/x.html --settings @/none.ini", "--settings: cannot read @/none.ini"},
            {"not a library",      "@/good.jpg -o @/out/x.html --library @/text.jpg", "cannot load the library"},
            // clang-format on
        };
        for (const auto &row : rows)
            QTest::addRow("%s", row.name) << QString(row.arguments) << QString(row.reason);
    }
    void badInput()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, reason);
        QVERIFY(writePicture(path("good.jpg"), 600, 300, Qt::gray));
        QVERIFY(
            QDir().mkpath(path("sub")) && writePicture(path("sub/good.jpg"), 600, 300, Qt::gray));
        QVERIFY(writeFileBytes(path("text.jpg"), "This is not a picture.\n"));
        QVERIFY(writePicture(path("trunc.png"), 600, 300, Qt::darkRed));
        QFile truncated(path("trunc.png"));
        QVERIFY(truncated.resize(truncated.size() / 2));
        QVERIFY(writeFileBytes(path("badtype.json"), BAD_TYPE_HOTSPOTS));
        QVERIFY(writeFileBytes(path("badbitmap.json"), BAD_BITMAP_HOTSPOTS));
        QVERIFY(writeFileBytes(path("far.json"), FAR_HOTSPOTS));
        for (const char *name : {"x.1.jpg", "x.2.jpg", "good_controls.jpg"})
            QVERIFY(QFile::copy(path("good.jpg"), path(name)) || QFile::exists(path(name)));
        QVERIFY(::mkfifo(QFile::encodeName(path("fifo")).constData(), 0600) == 0
            || QFileInfo(path("fifo")).exists());

        const Run r = run(arguments);
        QVERIFY(r.status > 0);
        const QString expected = "vantora-export: " + reason.replace('@', m_dir->path());
        QVERIFY2(r.err.startsWith(expected), qPrintable(r.err));
        QCOMPARE(r.err.count('\n'), 1);
        QVERIFY(r.err.endsWith('\n'));
        QVERIFY(!QFileInfo::exists(path("out")));
    }
};

QTEST_GUILESS_MAIN(tst_VantoraExport)
#include "tst_vantoraexport.moc"
