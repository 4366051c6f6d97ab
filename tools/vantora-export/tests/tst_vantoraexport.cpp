// vantora-export run as a user runs it: a tour, a flat picture, partial panoramas, the JPEG
// quality, and every kind of bad input, each checked on the files it leaves.
#include <QDirIterator>
#include <QImageReader>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLinearGradient>
#include <QPainter>
#include <QProcess>
#include <QtTest>

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
    QString out;
    QString err;
};

Run runTool(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(VANTORA_EXPORT_TOOL), arguments);
    Run run;
    if (!process.waitForFinished(60000))
        return run;
    run.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

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

bool writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

// The "vantoraViewer" object of a parameter file.
QJsonObject viewerRoot(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QJsonObject();
    const QByteArray bytes = file.readAll(), prefix = "VantoraViewerParams = ";
    if (!bytes.startsWith(prefix))
        return QJsonObject();
    return QJsonDocument::fromJson(bytes.mid(prefix.size()))
        .object()
        .value(QLatin1String("vantoraViewer"))
        .toObject();
}

QJsonObject nodeOf(const QString &paramsFile)
{
    return viewerRoot(paramsFile).value(QLatin1String("node")).toObject();
}

// Every tile the "image" member announces decodes as a JPEG of its stated size, no level holds
// more, the largest level is the picture and the smallest fits one tile.
void verifyPyramid(const QString &folder, const QJsonObject &image, QSize picture)
{
    const int tile = image.value(QLatin1String("tilesize")).toInt();
    QCOMPARE(tile, 512);
    const QJsonArray levels = image.value(QLatin1String("levels")).toArray();
    QVERIFY(!levels.isEmpty());
    const QJsonObject largest = levels.last().toObject();
    QCOMPARE(QSize(largest.value(QLatin1String("width")).toInt(),
                 largest.value(QLatin1String("height")).toInt()),
        picture);
    const QJsonObject smallest = levels.first().toObject();
    QVERIFY(smallest.value(QLatin1String("width")).toInt() <= tile);
    QVERIFY(smallest.value(QLatin1String("height")).toInt() <= tile);

    const QString pattern = image.value(QLatin1String("url")).toString();
    for (int level = 0; level < levels.size(); ++level) {
        const QJsonObject entry = levels[level].toObject();
        const int width = entry.value(QLatin1String("width")).toInt();
        const int height = entry.value(QLatin1String("height")).toInt();
        const int columns = entry.value(QLatin1String("columns")).toInt();
        const int rows = entry.value(QLatin1String("rows")).toInt();
        QCOMPARE(columns, (width + tile - 1) / tile);
        QCOMPARE(rows, (height + tile - 1) / tile);
        if (level > 0) {
            const QJsonObject finer = levels[level].toObject();
            const QJsonObject coarser = levels[level - 1].toObject();
            QCOMPARE(coarser.value(QLatin1String("width")).toInt(),
                (finer.value(QLatin1String("width")).toInt() + 1) / 2);
        }
        for (int column = 0; column < columns; ++column) {
            for (int row = 0; row < rows; ++row) {
                QString url = pattern;
                url.replace(QLatin1String("{level}"), QString::number(level))
                    .replace(QLatin1String("{column}"), QString::number(column))
                    .replace(QLatin1String("{row}"), QString::number(row));
                QImageReader reader(folder + QLatin1Char('/') + url);
                QCOMPARE(reader.format(), QByteArray("jpeg"));
                const QImage decoded = reader.read();
                QVERIFY2(!decoded.isNull(), qPrintable(url));
                QCOMPARE(decoded.size(),
                    QSize(qMin(tile, width - column * tile), qMin(tile, height - row * tile)));
            }
        }
        const QString levelFolder = QFileInfo(folder + QLatin1Char('/')
            + QString(pattern).replace(QLatin1String("{level}"), QString::number(level)))
                                        .absolutePath();
        QCOMPARE(QDir(levelFolder).entryList(QDir::Files).size(), columns * rows);
    }
    // Nothing but the announced levels: no level of an earlier export, no staging left over.
    const QDir tiles(folder + QLatin1Char('/') + pattern.section(QLatin1Char('/'), 0, 0));
    QCOMPARE(tiles.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), levels.size());
    QCOMPARE(tiles.entryList(QDir::Files).size(), 1);
    QImageReader thumbnail(
        folder + QLatin1Char('/') + image.value(QLatin1String("thumbnail")).toString());
    QCOMPARE(thumbnail.format(), QByteArray("jpeg"));
    QCOMPARE(thumbnail.read().width(), qMin(256, picture.width()));
}

qint64 bytesBelow(const QString &folder)
{
    qint64 total = 0;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        total += it.fileInfo().size();
    }
    return total;
}

} // namespace

class tst_VantoraExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tour();
    void flatPicture();
    void partialPanorama_data();
    void partialPanorama();
    void settingsAndTitle();
    void qualityChangesTheTiles();
    void reexportReplacesThePyramid();
    void failedTourTakesBackItsFiles();
    void badInput_data();
    void badInput();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString path(const QString &name) const { return m_dir->filePath(name); }
};

void tst_VantoraExport::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void tst_VantoraExport::tour()
{
    QVERIFY(writePicture(path(QStringLiteral("hall.jpg")), 1200, 600, Qt::red));
    QVERIFY(writePicture(path(QStringLiteral("garden.png")), 1030, 515, Qt::green));
    QVERIFY(writePicture(path(QStringLiteral("tower.jpg")), 1400, 700, Qt::blue));
    QVERIFY(writePicture(path(QStringLiteral("info.png")), 32, 32, Qt::yellow));
    QVERIFY(writeText(path(QStringLiteral("hotspots.json")), TOUR_HOTSPOTS));
    QVERIFY(
        writeText(path(QStringLiteral("tour.ini")), "[Applet]\r\nAddGallery=1\r\nAddMap=1\r\n"));

    const QString out = path(QStringLiteral("out"));
    const Run run = runTool({path(QStringLiteral("hall.jpg")), path(QStringLiteral("garden.png")),
        path(QStringLiteral("tower.jpg")), QStringLiteral("-o"), out + QStringLiteral("/tour.html"),
        QStringLiteral("--hotspots"), path(QStringLiteral("hotspots.json")),
        QStringLiteral("--settings"), path(QStringLiteral("tour.ini")),
        QStringLiteral("--location"), QStringLiteral("48.5,11")});
    QVERIFY2(run.status == 0, qPrintable(run.err));
    QVERIFY(run.err.isEmpty());

    const struct
    {
        const char *page;
        QSize size;
    } pages[] = {{"tour", {1200, 600}}, {"garden", {1030, 515}}, {"tower", {1400, 700}}};
    for (const auto &page : pages) {
        const QString name = QString::fromLatin1(page.page);
        QVERIFY(QFileInfo(out + QLatin1Char('/') + name + QStringLiteral(".html")).size() > 0);
        const QJsonObject root
            = viewerRoot(out + QLatin1Char('/') + name + QStringLiteral(".json"));
        QVERIFY2(!root.isEmpty(), page.page);
        // Each page has its controls file; the page's node describes its own tiles.
        QVERIFY(viewerRoot(out + QLatin1Char('/') + name + QStringLiteral("_controls.json"))
                    .contains(QLatin1String("events")));
        QCOMPARE(
            root.value(QLatin1String("include")).toArray().first()[QLatin1String("src")].toString(),
            name + QStringLiteral("_controls.json"));
        const QJsonObject node = root.value(QLatin1String("node")).toObject();
        QCOMPARE(node.value(QLatin1String("id")).toString(), name);
        const QJsonObject image = node.value(QLatin1String("image")).toObject();
        QCOMPARE(
            image.value(QLatin1String("projection")).toString(), QStringLiteral("equirectangular"));
        verifyPyramid(out, image, page.size);
        QVERIFY(run.out.contains(name + QStringLiteral(".html")));
        QVERIFY(run.out.contains(name + QStringLiteral("_tiles/")));
    }

    // Positions come back from the library in the viewer's degrees: pan from the left edge,
    // tilt above the horizon.
    const QJsonArray hall
        = nodeOf(out + QStringLiteral("/tour.json")).value(QLatin1String("hotspot")).toArray();
    QCOMPARE(hall.size(), 1);
    QCOMPARE(hall[0][QLatin1String("position")].toString(), QStringLiteral("90.0000,10.0000"));
    QCOMPARE(hall[0][QLatin1String("href")].toString(), QStringLiteral("garden.html"));
    QCOMPARE(hall[0][QLatin1String("target")].toString(), QStringLiteral("_self"));
    QCOMPARE(hall[0][QLatin1String("bitmap")].toString(), QStringLiteral("pap_link.png"));
    QCOMPARE(QImageReader(out + QStringLiteral("/pap_link.png")).read().size(), QSize(48, 48));
    const QJsonArray garden
        = nodeOf(out + QStringLiteral("/garden.json")).value(QLatin1String("hotspot")).toArray();
    QCOMPARE(garden.size(), 1);
    QCOMPARE(garden[0][QLatin1String("position")].toString(), QStringLiteral("90.0000,-45.0000"));
    QCOMPARE(garden[0][QLatin1String("href")].toString(), QStringLiteral("javascript:"));
    QCOMPARE(garden[0][QLatin1String("textbox")][QLatin1String("text")].toString(),
        QStringLiteral("Fountain"));
    QVERIFY(QFileInfo(out + QStringLiteral("/info.png")).isFile());
    QVERIFY(!nodeOf(out + QStringLiteral("/tower.json")).contains(QLatin1String("hotspot")));

    // The gallery, rewritten by each page, lists the last page first and then the folder's
    // other pages by name; each thumbnail it names was written by the tile writer.
    const QJsonArray gallery
        = viewerRoot(out + QStringLiteral("/vantoViewerGallery.json")).value("gallery").toArray();
    QStringList hrefs;
    for (const QJsonValue entry : gallery) {
        hrefs << entry["href"].toString();
        QVERIFY(QImageReader(out + QLatin1Char('/') + entry["thumbnail"].toString()).canRead());
        QCOMPARE(entry["location"]["lat"].toDouble(), 48.5);
    }
    QCOMPARE(hrefs, QStringList({"tower.json", "garden.json", "tour.json"}));
}

void tst_VantoraExport::flatPicture()
{
    QVERIFY(writePicture(path(QStringLiteral("plan.png")), 1100, 700, Qt::cyan));
    QVERIFY(writeText(path(QStringLiteral("spots.json")), FLAT_HOTSPOTS));
    const QString page = path(QStringLiteral("flat/plan.html"));
    const Run run = runTool({path(QStringLiteral("plan.png")), QStringLiteral("--flat"),
        QStringLiteral("-o"), page, QStringLiteral("--fit-to-page"), QStringLiteral("--hotspots"),
        path(QStringLiteral("spots.json"))});
    QVERIFY2(run.status == 0, qPrintable(run.err));

    const QJsonObject node = nodeOf(path(QStringLiteral("flat/plan.json")));
    QCOMPARE(node.value(QLatin1String("view"))[QLatin1String("mode")].toString(),
        QStringLiteral("fitInWindow"));
    const QJsonObject image = node.value(QLatin1String("image")).toObject();
    QCOMPARE(image.value(QLatin1String("projection")).toString(), QStringLiteral("flat"));
    QVERIFY(!image.contains(QLatin1String("hextent")));
    verifyPyramid(path(QStringLiteral("flat")), image, QSize(1100, 700));
    const QJsonObject spot = node.value(QLatin1String("hotspot")).toArray().first().toObject();
    QCOMPARE(spot.value(QLatin1String("position")).toString(), QStringLiteral("0.5000,0.2500"));
    QCOMPARE(spot.value(QLatin1String("unit")).toString(), QStringLiteral("norm"));
    // Fit to page: the page has no pixel sizes.
    QFile html(page);
    QVERIFY(html.open(QIODevice::ReadOnly));
    QVERIFY(!html.readAll().contains("px;\""));
}

void tst_VantoraExport::partialPanorama_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QList<double>>("camera"); // minpan, maxpan, mintilt, maxtilt

    static const struct
    {
        const char *name;
        QSize size;
        const char *options; // split at blanks
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
        QTest::addRow("%s", row.name)
            << row.size
            << QString::fromUtf8(row.options).split(QLatin1Char(' '), Qt::SkipEmptyParts)
            << row.camera;
}

void tst_VantoraExport::partialPanorama()
{
    QFETCH(QSize, size);
    QFETCH(QStringList, options);
    QFETCH(QList<double>, camera);
    QVERIFY(
        writePicture(path(QStringLiteral("strip.jpg")), size.width(), size.height(), Qt::magenta));
    const Run run = runTool(QStringList {path(QStringLiteral("strip.jpg")), QStringLiteral("-o"),
                                path(QStringLiteral("strip.html"))}
        + options);
    QVERIFY2(run.status == 0, qPrintable(run.err));
    const QJsonObject node = nodeOf(path(QStringLiteral("strip.json")));
    const QJsonObject limits = node.value(QLatin1String("camera")).toObject();
    QCOMPARE(limits.value(QLatin1String("minpan")).toDouble(), camera[0]);
    QCOMPARE(limits.value(QLatin1String("maxpan")).toDouble(), camera[1]);
    QCOMPARE(limits.value(QLatin1String("mintilt")).toDouble(), camera[2]);
    QCOMPARE(limits.value(QLatin1String("maxtilt")).toDouble(), camera[3]);
    const QJsonObject image = node.value(QLatin1String("image")).toObject();
    QCOMPARE(image.value(QLatin1String("hextent")).toDouble(), camera[1] - camera[0]);
    QCOMPARE(image.value(QLatin1String("vextent")).toDouble(), camera[3] - camera[2]);
    // The start view looks at the middle of the picture.
    QCOMPARE(node.value(QLatin1String("view"))[QLatin1String("pan")].toDouble(),
        (camera[1] - camera[0]) / 2);
}

void tst_VantoraExport::settingsAndTitle()
{
    // A preset as the settings dialog saves it (here in ANSI): scripts as .js, a map with its key.
    QVERIFY(writePicture(path(QStringLiteral("hall.jpg")), 800, 400, Qt::red));
    QVERIFY(writeText(path(QStringLiteral("preset.ini")),
        "[Applet]\r\nExtensionJS=1\r\nAddMap=1\r\nGmAPIKey=QUl6YVRlc3RLZXkxMjM=\r\n[Toolbar]\r\nTBDesign=6\r\n"));
    const QString out = path(QStringLiteral("out"));
    const Run run = runTool({path(QStringLiteral("hall.jpg")), QStringLiteral("-o"),
        out + QStringLiteral("/hall.html"), QStringLiteral("--settings"),
        path(QStringLiteral("preset.ini")), QStringLiteral("--title"), QStringLiteral("Hafen Süd"),
        QStringLiteral("--location"), QStringLiteral("53.5,10,12")});
    QVERIFY2(run.status == 0, qPrintable(run.err));

    const QJsonObject node = nodeOf(out + QStringLiteral("/hall.js"));
    QCOMPARE(node.value(QLatin1String("textbox"))[0][QLatin1String("text")].toString(),
        QStringLiteral("Hafen Süd"));
    QCOMPARE(node.value(QLatin1String("location")).toObject(),
        QJsonObject({{QStringLiteral("lat"), 53.5}, {QStringLiteral("lng"), 10},
            {QStringLiteral("north"), 12}}));
    // Design 6's play handler carries its tab.
    const QJsonObject controls = viewerRoot(out + QStringLiteral("/hall_controls.js"));
    QVERIFY(controls.value(QLatin1String("events"))[QLatin1String("onplay")].toString().contains(
        QStringLiteral("24,24)';  \to.updateSkins()")));
    // The map's markers came through the host's resource exporter.
    for (const char *marker : {"/pap_marker_redorange.png", "/pap_marker_lima.png"})
        QCOMPARE(QImageReader(out + QLatin1String(marker)).size(), QSize(60, 96));
}

void tst_VantoraExport::qualityChangesTheTiles()
{
    QVERIFY(writePicture(path(QStringLiteral("q.jpg")), 1500, 750, Qt::darkYellow));
    qint64 bytes[2] = {};
    const char *qualities[2] = {"70", "90"};
    for (int i = 0; i < 2; ++i) {
        const QString folder = path(QStringLiteral("q") + QLatin1String(qualities[i]));
        const Run run = runTool({path(QStringLiteral("q.jpg")), QStringLiteral("-o"),
            folder + QStringLiteral("/q.html"), QStringLiteral("--quality"),
            QLatin1String(qualities[i])});
        QVERIFY2(run.status == 0, qPrintable(run.err));
        bytes[i] = bytesBelow(folder + QStringLiteral("/q_tiles"));
    }
    QVERIFY2(bytes[0] * 5 < bytes[1] * 4,
        qPrintable(QStringLiteral("%1 vs %2").arg(bytes[0]).arg(bytes[1])));
}

void tst_VantoraExport::reexportReplacesThePyramid()
{
    const QString page = path(QStringLiteral("out/view.html"));
    QVERIFY(writePicture(path(QStringLiteral("large.jpg")), 2400, 1200, Qt::red));
    QVERIFY(writePicture(path(QStringLiteral("small.jpg")), 700, 350, Qt::blue));
    QCOMPARE(runTool({path(QStringLiteral("large.jpg")), QStringLiteral("-o"), page}).status, 0);
    const Run run = runTool({path(QStringLiteral("small.jpg")), QStringLiteral("-o"), page});
    QCOMPARE(run.status, 0);
    const QJsonObject image
        = nodeOf(path(QStringLiteral("out/view.json"))).value(QLatin1String("image")).toObject();
    verifyPyramid(path(QStringLiteral("out")), image, QSize(700, 350));
}

void tst_VantoraExport::failedTourTakesBackItsFiles()
{
    // The first page is written in full before the second turns out broken.
    QVERIFY(writePicture(path(QStringLiteral("first.jpg")), 800, 400, Qt::red));
    QVERIFY(writePicture(path(QStringLiteral("second.png")), 800, 400, Qt::blue));
    QFile second(path(QStringLiteral("second.png")));
    QVERIFY(second.resize(second.size() / 2));
    QVERIFY(QDir().mkpath(path(QStringLiteral("out"))));
    QVERIFY(writeText(path(QStringLiteral("out/keep.txt")), "the user's\n"));

    const Run run = runTool({path(QStringLiteral("first.jpg")), path(QStringLiteral("second.png")),
        QStringLiteral("-o"), path(QStringLiteral("out/first.html"))});
    QCOMPARE(run.status, 1);
    QVERIFY2(run.err.startsWith(QStringLiteral("vantora-export: export of second.png failed: ")),
        qPrintable(run.err));
    QVERIFY(run.out.isEmpty());
    QCOMPARE(QDir(path(QStringLiteral("out"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
        QStringList {QStringLiteral("keep.txt")});
}

void tst_VantoraExport::badInput_data()
{
    QTest::addColumn<QStringList>("arguments"); // @ stands for the test's folder
    QTest::addColumn<QString>("reason");

    // Arguments are split at blanks.
    static const struct
    {
        const char *name;
        const char *arguments;
        const char *reason;
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
        {"two pages one name", "@/good.jpg @/sub/good.jpg -o @/out/good.html", "two pages would be named good.html"},
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
        QTest::addRow("%s", row.name) << QString::fromUtf8(row.arguments).split(QLatin1Char(' '))
                                      << QString::fromUtf8(row.reason);
}

void tst_VantoraExport::badInput()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    QVERIFY(writePicture(path(QStringLiteral("good.jpg")), 600, 300, Qt::gray));
    QVERIFY(QDir().mkpath(path(QStringLiteral("sub"))));
    QVERIFY(writePicture(path(QStringLiteral("sub/good.jpg")), 600, 300, Qt::gray));
    QVERIFY(writeText(path(QStringLiteral("text.jpg")), "This is not a picture.\n"));
    QVERIFY(writePicture(path(QStringLiteral("trunc.png")), 600, 300, Qt::darkRed));
    QFile truncated(path(QStringLiteral("trunc.png")));
    QVERIFY(truncated.resize(truncated.size() / 2));
    QVERIFY(writeText(path(QStringLiteral("badtype.json")), BAD_TYPE_HOTSPOTS));
    QVERIFY(writeText(path(QStringLiteral("badbitmap.json")), BAD_BITMAP_HOTSPOTS));
    QVERIFY(writeText(path(QStringLiteral("far.json")), FAR_HOTSPOTS));
    const QString folder = m_dir->path();
    for (QString &argument : arguments)
        argument.replace(QLatin1Char('@'), folder);
    reason.replace(QLatin1Char('@'), folder);

    const Run run = runTool(arguments);
    QVERIFY(run.status > 0);
    QVERIFY2(run.err.startsWith(QStringLiteral("vantora-export: ") + reason), qPrintable(run.err));
    QCOMPARE(run.err.count(QLatin1Char('\n')), 1);
    QVERIFY(run.err.endsWith(QLatin1Char('\n')));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("out"))));
}

QTEST_GUILESS_MAIN(tst_VantoraExport)
#include "tst_vantoraexport.moc"
