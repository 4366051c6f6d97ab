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

#include <csignal>
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

// A preset file as text: UTF-16LE after its byte-order mark.
QString presetText(const QString &path)
{
    const QByteArray bytes = vantora::test::readFileBytes(path);
    if (!bytes.startsWith("\xff\xfe"))
        return QString();
    return QString::fromUtf16(
        reinterpret_cast<const char16_t *>(bytes.constData() + 2), (bytes.size() - 2) / 2);
}

// Every file below a folder with its bytes, by relative path.
QMap<QString, QByteArray> contentsBelow(const QString &folder)
{
    QMap<QString, QByteArray> files;
    for (QDirIterator it(
             folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString file = it.next();
        files.insert(QDir(folder).relativeFilePath(file), vantora::test::readFileBytes(file));
    }
    return files;
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
        QCOMPARE(r.status, 0);
        // The preset asks for a map without a key: the library leaves it out, the tool says so.
        QCOMPARE(r.err,
            QString("vantora-export: the settings ask for a map, but it is left out: the library "
                    "writes a map only with a Google Maps key (GmAPIKey), even for the "
                    "OpenStreetMap type\n"));

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

    // WebP tiles: the "url" member names them, every announced tile is a WebP file, the
    // thumbnail stays JPEG, and the pyramid is smaller than the JPEG one at the same quality.
    void webpTiles()
    {
        QVERIFY(writePicture(path("good.jpg"), 1100, 550, Qt::darkGreen));
        QCOMPARE(run("@/good.jpg -o @/jpeg/x.html").status, 0);
        const Run webp = run("@/good.jpg -o @/webp/x.html --tile-format webp");
        QVERIFY2(webp.status == 0, qPrintable(webp.err));

        const QJsonObject image = nodeOf(path("webp/x.json")).value("image").toObject();
        QCOMPARE(image["url"].toString(), QString("x_tiles/{level}/{column}_{row}.webp"));
        const QJsonArray levels = image["levels"].toArray();
        QCOMPARE(levels.size(), 3);
        for (int level = 0; level < levels.size(); ++level) {
            const QDir folder(path("webp/x_tiles/") + QString::number(level));
            const int columns = levels[level]["columns"].toInt(),
                      rows = levels[level]["rows"].toInt();
            QCOMPARE(folder.entryList(QDir::Files).size(), columns * rows);
            for (int column = 0; column < columns; ++column)
                for (int row = 0; row < rows; ++row) {
                    const QByteArray tile = vantora::test::readFileBytes(
                        folder.filePath(QString("%1_%2.webp").arg(column).arg(row)));
                    QVERIFY(tile.startsWith("RIFF") && tile.mid(8, 4) == "WEBP");
                }
        }
        QCOMPARE(QImageReader(path("webp/x_tiles/x_thumb.jpg")).format(), QByteArray("jpeg"));
        QVERIFY(bytesBelow(path("webp/x_tiles")) < bytesBelow(path("jpeg/x_tiles")));
    }

    // What scripts rely on: the version, a run that prints nothing, and the JSON summary whose
    // figures are those of the files on disk.
    void versionQuietAndJson()
    {
        const Run version = run("--version");
        QCOMPARE(version.status, 0);
        QVERIFY2(QRegularExpression("^vantora-export \\d+\\.\\d+\nlibrary \\d+\\.\\d+: "
                                    "/[^\n]*/libvantora_export\\.so\nviewer folder: /[^\n]*/\n$")
                     .match(version.out)
                     .hasMatch(),
            qPrintable(version.out));

        QVERIFY(writePicture(path("good.jpg"), 1100, 550, Qt::gray));
        const Run quiet = run("@/good.jpg -o @/quiet/x.html --quiet");
        QCOMPARE(quiet.status, 0);
        QCOMPARE(quiet.out + quiet.err, QString());
        QVERIFY(QFileInfo(path("quiet/x.html")).size() > 0);

        const Run json = run("@/good.jpg -o @/out/x.html --json");
        QVERIFY2(json.status == 0 && json.err.isEmpty(), qPrintable(json.err));
        QJsonParseError error;
        const QJsonObject summary = QJsonDocument::fromJson(json.out.toUtf8(), &error).object();
        QVERIFY2(error.error == QJsonParseError::NoError, qPrintable(json.out));
        const QJsonArray pages = summary["pages"].toArray();
        QCOMPARE(pages.size(), 1);
        QCOMPARE(pages[0]["page"].toString(), path("out/x.html"));
        QCOMPARE(QSize(pages[0]["width"].toInt(), pages[0]["height"].toInt()), QSize(1100, 550));
        QCOMPARE(summary["folder"].toString(), path("out"));
        qint64 total = 0;
        QStringList names;
        for (const QJsonValue file : summary["files"].toArray()) {
            names << file["path"].toString();
            QCOMPARE(
                qint64(file["bytes"].toDouble()), QFileInfo(path("out/") + names.last()).size());
            total += qint64(file["bytes"].toDouble());
        }
        QVERIFY2(names.contains("x.html") && names.contains("x.json")
                && names.contains("vantoViewer.js"),
            qPrintable(names.join(' ')));
        const QJsonObject tiles = summary["tileFolders"][0].toObject();
        QCOMPARE(tiles["path"].toString(), QString("x_tiles"));
        QCOMPARE(qint64(tiles["bytes"].toDouble()), bytesBelow(path("out/x_tiles")));
        total += qint64(tiles["bytes"].toDouble());
        QCOMPARE(qint64(summary["totalBytes"].toDouble()), total);
        QCOMPARE(summary["fileCount"].toInt(), names.size() + tiles["files"].toInt());
        const QJsonObject timings = summary["timings"].toObject();
        QVERIFY(timings["exportMs"].toDouble() >= timings["tilesMs"].toDouble());
        QCOMPARE(timings["libraryMs"].toDouble(),
            timings["exportMs"].toDouble() - timings["tilesMs"].toDouble());
    }

    // The settings of a command line, written as a preset the user can edit and read back.
    void writeSettings()
    {
        const Run written = run("--write-settings @/garden.ini", {"--title", "Garten Süd"});
        QCOMPARE(written.status, 0);
        QCOMPARE(written.out, "settings: " + path("garden.ini") + '\n');
        // Written as the settings dialog writes presets: UTF-16LE, free texts as base64 of UTF-8.
        QString preset = presetText(path("garden.ini"));
        QVERIFY2(preset.contains("Title64=" + QByteArray("Garten Süd").toBase64() + "\r\n"),
            qPrintable(preset));
        QVERIFY(preset.contains("[Toolbar]\r\nPosition=0\r\nTBDesign=0\r\n"));

        // Edited by the user, then used: the title comes back, a second write keeps the edit.
        preset.replace("TBDesign=0", "TBDesign=3");
        QVERIFY(writeFileBytes(path("garden.ini"),
            "\xff\xfe"
                + QByteArray(reinterpret_cast<const char *>(preset.utf16()), preset.size() * 2)));
        QVERIFY(writePicture(path("good.jpg"), 600, 300, Qt::gray));
        const Run used = run("@/good.jpg -o @/out/x.html --settings @/garden.ini");
        QVERIFY2(used.status == 0 && used.err.isEmpty(), qPrintable(used.err));
        QCOMPARE(nodeOf(path("out/x.json")).value("textbox")[0]["text"].toString(),
            QString("Garten Süd"));
        QCOMPARE(run("--write-settings @/copy.ini --settings @/garden.ini").status, 0);
        QVERIFY(presetText(path("copy.ini")).contains("TBDesign=3\r\n"));
    }

    // Ctrl-C or a termination request at a few points of a run: the folder is left as it was
    // before, and the tool ends with the signal's status.
    void interruption_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("stagedWhen"); // the staging folder whose appearance triggers
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("exportedBefore"); // the folder holds an earlier export
        QTest::addRow("re-export, during the tiles")
            << "-o @/out/sample.html --quality 90"
            << "sample_tiles.vantora-staging" << SIGINT << true;
        QTest::addRow("first export, terminated during the tiles")
            << "-o @/out/sample.html"
            << "sample_tiles.vantora-staging" << SIGTERM << false;
        QTest::addRow("tour, during its first page")
            << "@/second.jpg @/first.jpg -o @/out/second.html"
            << "second_tiles.vantora-staging" << SIGINT << false;
    }
    void interruption()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, stagedWhen);
        QFETCH(int, signal);
        QFETCH(bool, exportedBefore);
        QVERIFY(writePicture(path("first.jpg"), 800, 400, Qt::red));
        QVERIFY(writePicture(path("second.jpg"), 6000, 3000, Qt::blue));
        QVERIFY(QDir().mkpath(path("out")) && writeFileBytes(path("out/keep.txt"), "the user's\n"));
        if (exportedBefore)
            QCOMPARE(run("-o @/out/sample.html").status, 0);
        const QMap<QString, QByteArray> before = contentsBelow(path("out"));

        QProcess process;
        process.start(VANTORA_EXPORT_TOOL,
            QString(arguments).replace('@', m_dir->path()).split(' ', Qt::SkipEmptyParts));
        QVERIFY(process.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(
            QFileInfo(path("out/") + stagedWhen).isDir() || process.state() == QProcess::NotRunning,
            60000);
        QCOMPARE(process.state(), QProcess::Running);
        QCOMPARE(::kill(pid_t(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished(60000));

        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 128 + signal);
        QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
            QString("vantora-export: interrupted\n"));
        QCOMPARE(contentsBelow(path("out")).keys(), before.keys());
        QVERIFY(contentsBelow(path("out")) == before);
    }

    void badInput_data()
    {
        QTest::addColumn<QString>("arguments"); // @ stands for the test's folder
        QTest::addColumn<QString>("reason");
        QTest::addColumn<int>("status");

        static const struct
        {
            const char *name, *arguments, *reason;
            int status = 2;
        } rows[] = {
            // clang-format off
            {"unknown option",     "-o @/out/x.html --frobnicate",          "Unknown option 'frobnicate' (vantora-export --help lists the options)"},
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
            {"truncated picture",  "@/trunc.png -o @/out/x.html",           "export of trunc.png failed: tiles of trunc.png: ", 1},
            {"settings missing",   "-o @/out/x.html --settings @/none.ini", "--settings: cannot read @/none.ini"},
            {"not a library",      "@/good.jpg -o @/out/x.html --library @/text.jpg", "cannot load the library @/text.jpg: ", 1},
            {"no library",         "@/good.jpg -o @/out/x.html --library @/none.so", "cannot load the library @/none.so: no such file", 1},
            {"tile format",        "-o @/out/x.html --tile-format png",     "--tile-format must be jpeg or webp"},
            {"-o twice",           "-o @/out/x.html -o @/out/y.html",       "--output is given more than once (vantora-export --help lists the options)"},
            {"--quality twice",    "-o @/out/x.html --quality 70 --quality 90", "--quality is given more than once"},
            {"value missing",      "-o",                                    "Missing value after '-o' (vantora-export --help lists the options)"},
            {"settings binary",    "-o @/out/x.html --settings @/binary.ini", "--settings: @/binary.ini is not a preset file: it is not text"},
            {"settings not INI",   "-o @/out/x.html --settings @/text.jpg", "--settings: @/text.jpg is not a preset file: line 1 is neither [section] nor key=value"},
            {"settings no keys",   "-o @/out/x.html --settings @/other.ini", "--settings: @/other.ini is not a preset file: it holds none of the preset keys"},
            {"settings a folder",  "-o @/out/x.html --settings @/sub",      "--settings: cannot read @/sub"},
            {"write-settings and -o", "--write-settings @/p.ini -o @/out/x.html", "--write-settings writes a preset only: no IMAGE, no --output"},
            {"write over a picture", "--write-settings @/good.jpg",         "--write-settings: @/good.jpg is not a preset file: it is not text, left alone"},
            {"write into nowhere", "--write-settings @/none/p.ini",         "--write-settings: no folder @/none"},
            // clang-format on
        };
        for (const auto &row : rows)
            QTest::addRow("%s", row.name)
                << QString(row.arguments) << QString(row.reason) << row.status;
    }
    void badInput()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, reason);
        QFETCH(int, status);
        QVERIFY(writePicture(path("good.jpg"), 600, 300, Qt::gray));
        QVERIFY(
            writeFileBytes(path("binary.ini"), QByteArray("[Applet]\r\nAddMap=1\r\n\0\x7f", 22)));
        QVERIFY(writeFileBytes(path("other.ini"), "[Paths]\r\nRecent=a.pano\r\n"));
        const QByteArray picture = vantora::test::readFileBytes(path("good.jpg"));
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
        QCOMPARE(r.status, status);
        QVERIFY(r.out.isEmpty());
        QCOMPARE(vantora::test::readFileBytes(path("good.jpg")), picture);
        const QString expected = "vantora-export: " + reason.replace('@', m_dir->path());
        QVERIFY2(r.err.startsWith(expected), qPrintable(r.err));
        QCOMPARE(r.err.count('\n'), 1);
        QVERIFY(r.err.endsWith('\n'));
        QVERIFY(!QFileInfo::exists(path("out")));
    }
};

QTEST_GUILESS_MAIN(tst_VantoraExport)
#include "tst_vantoraexport.moc"
