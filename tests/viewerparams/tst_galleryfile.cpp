// The tour gallery file: which files of the output folder join the tour, and the file's bytes.
#include "paramsfixture.h"

#include "viewerparams/galleryfile.h"
#include "viewerparams/memberwriter.h"
#include "viewerparams/tourfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <cstdio>

using namespace vantora;

namespace {

const QJsonObject HAMBURG {{"lat", 53.5}, {"lng", 10.0}};
const QByteArray PREFIX = "VantoraViewerParams = ";

// A parameter file of an earlier export, as the parameter-file writer lays it out.
void writeExport(const QString &path, const QJsonValue &version, const QString &description,
    const QJsonObject &location = {}, const QString &memberKey = "node")
{
    QJsonObject panorama {{"view", QJsonObject {{"pan", 0}, {"shortdescription", description}}}};
    if (!location.isEmpty())
        panorama.insert("location", location);
    QVERIFY(params::writeViewerParamsFile(
        path, QJsonObject {{"version", version}, {memberKey, panorama}}));
}

// The gallery's entries, read back from its file.
QJsonArray entries(const QString &galleryPath)
{
    const QByteArray text = test::readFileBytes(galleryPath);
    const int start = text.indexOf('\n', text.indexOf("\"vantoraViewer\":"));
    return QJsonDocument::fromJson(text.mid(start, text.size() - start - 2))
        .object()
        .value("gallery")
        .toArray();
}

QStringList folderEntries(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
}

} // namespace

class tst_GalleryFile : public QObject
{
    Q_OBJECT

private slots:
    void singlePanoramaBytes();
    void collectsEarlierExports();
    void passesOverForeignFiles_data();
    void passesOverForeignFiles();
    void rememberedEntriesMatchAFreshScan();
    void unwritableGalleryFile();
    void parameterFileIncludesGallery();
};

void tst_GalleryFile::singlePanoramaBytes()
{
    // Run from the folder above: the file goes to the output folder and nowhere else, and the
    // current directory is the same afterwards.
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir("out"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(root.path()));
    const QJsonObject include = params::writeGalleryFile(
        root.path() + "/out/", "vantoViewerGallery.json", "tour.json", "Hafen", HAMBURG);
    const QString after = QDir::currentPath();
    QDir::setCurrent(before);
    QCOMPARE(after, root.path());
    QCOMPARE(include, QJsonObject({{"src", "vantoViewerGallery.json"}}));
    QCOMPARE(folderEntries(root.path()), QStringList({"out"}));
    QCOMPARE(folderEntries(root.path() + "/out"), QStringList({"vantoViewerGallery.json"}));
    VANTORA_COMPARE_TEXT(
        QString::fromUtf8(test::readFileBytes(root.path() + "/out/vantoViewerGallery.json")),
        "VantoraViewerParams = {\n\"vantoraViewer\":\n{\n    \"gallery\": [\n        {\n"
        "            \"href\": \"tour.json\",\n            \"location\": {\n"
        "                \"lat\": 53.5,\n                \"lng\": 10\n            },\n"
        "            \"text\": \"Hafen\",\n"
        "            \"thumbnail\": \"tour_tiles/tour_thumb.jpg\"\n        }\n    ]\n}\n\n}");
}

void tst_GalleryFile::collectsEarlierExports()
{
    QTemporaryDir dir;
    const QString out = dir.path() + '/';
    writeExport(out + "Burg.json", "4.1", "Burg im Nebel", HAMBURG);
    writeExport(out + "alster.js", 4.1, QString());
    writeExport(out + "dom.json", "4.1", "Dom", {}, "image"); // "image" describes it, not "node"
    writeExport(out + "tour.json", "4.1", "stale copy of the current panorama");
    params::writeGalleryFile(out, "vantoViewerGallery.json", "tour.json", "Hafen", {});
    // The gallery file of this export is in the folder now; the next export passes over it.
    params::writeGalleryFile(out, "vantoViewerGallery.json", "tour.json", "Hafen", {});
    QCOMPARE(entries(out + "vantoViewerGallery.json"),
        QJsonDocument::fromJson(R"([
        {"href": "tour.json", "thumbnail": "tour_tiles/tour_thumb.jpg", "text": "Hafen"},
        {"href": "alster.js", "thumbnail": "alster_tiles/alster_thumb.jpg"},
        {"href": "Burg.json", "thumbnail": "Burg_tiles/Burg_thumb.jpg", "text": "Burg im Nebel", "location": {"lat": 53.5, "lng": 10}},
        {"href": "dom.json", "thumbnail": "dom_tiles/dom_thumb.jpg", "text": "Dom"}])")
            .array());
}

void tst_GalleryFile::passesOverForeignFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("taken");
    const QByteArray body
        = "{\n\"vantoraViewer\": {\n\"node\": {\n\t\"id\": \"x\"\n},\n\"version\": ";
    const QByteArray ours = PREFIX + body;
    // clang-format off
    QTest::newRow("version 4.1 as text")          << "a.json"  << ours + "\"4.1\"\n}\n}" << true;
    QTest::newRow("version 4 as number, .jsonp") << "a.jsonp" << ours + "4\n}\n}" << true;
    QTest::newRow("another extension")            << "a.txt"   << ours + "\"4.1\"\n}\n}" << false;
    QTest::newRow("version 3.9 as text")          << "a.json"  << ours + "\"3.9\"\n}\n}" << false;
    QTest::newRow("version is no number")         << "a.json"  << ours + "\"neu\"\n}\n}" << false;
    QTest::newRow("version is an object")         << "a.json"  << ours + "{\"major\": 4}\n}\n}" << false;
    QTest::newRow("version is missing")           << "a.json"  << PREFIX + "{\n\"vantoraViewer\": {\n\"node\": {}\n}\n}" << false;
    QTest::newRow("byte-order mark")              << "a.json"  << "\xEF\xBB\xBF" + ours + "\"4.1\"\n}\n}" << false;
    QTest::newRow("blank in front")               << "a.json"  << " " + ours + "\"4.1\"\n}\n}" << false;
    QTest::newRow("JSONP")                        << "a.jsonp" << "callback(" + body + "\"4.1\"\n}\n});" << false;
    QTest::newRow("some script")                  << "a.js"    << QByteArray("function f(){ return 1; }\n") << false;
    QTest::newRow("not JSON")                     << "a.json"  << PREFIX + "{\"vantoraViewer\": oops" << false;
    QTest::newRow("no panorama")                  << "a.json"  << PREFIX + "{\"vantoraViewer\": {\"version\": \"4.1\"}}" << false;
    // A separator before the closing braces: the object is closed once more, which the strict
    // JSON reader still refuses; the file is passed over like any other broken one.
    QTest::newRow("separator before the end")     << "a.json"  << ours + "\"4.1\",\n}\n}" << false;
    // A link to an export elsewhere, and an export too large to be ours: neither is read.
    QTest::newRow("symbolic link")                << "a.json"  << QByteArray("link") << false;
    QTest::newRow("over 16 MiB")                  << "a.js"    << PREFIX + QByteArray(16 << 20, ' ') + body + "4\n}\n}" << false;
    // Read as text: carriage returns go wherever they stand, the prefix's included.
    QTest::newRow("carriage returns")             << "a.json"  << QByteArray(ours + "\"4.1\"\n}\n}").replace('\n', "\r\n").replace("Viewer", "View\rer") << true;
    // The JSON reader resolves escapes, unknown ones to the character itself.
    QTest::newRow("version spelled with escapes") << "a.json"  << PREFIX + "{\"vantoraViewer\": {\"node\": {}, \"\\u0076\\ersion\": 4}}" << true;
    QTest::newRow("version only as a value")      << "a.json"  << PREFIX + "{\"vantoraViewer\": {\"node\": {\"id\": \"version\"}}}" << false;
    // clang-format on
}

void tst_GalleryFile::passesOverForeignFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, taken);
    QTemporaryDir dir, elsewhere;
    const QString path = dir.path() + '/' + name;
    QFile file(path);
    if (bytes == "link") {
        writeExport(elsewhere.path() + "/real.json", "4.1", "Anderswo");
        QVERIFY(QFile::link(elsewhere.path() + "/real.json", path));
    } else {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
    }
    params::writeGalleryFile(dir.path() + '/', "g.json", "tour.json", QString(), {});
    const QJsonArray gallery = entries(dir.path() + "/g.json");
    QCOMPARE(gallery.size(), taken ? 2 : 1);
    QCOMPARE(gallery.last()["href"].toString(), taken ? name : "tour.json");
}

void tst_GalleryFile::rememberedEntriesMatchAFreshScan()
{
    QTemporaryDir dir;
    const QString out = dir.path() + '/';
    writeExport(out + "alster.json", "4.1", "Alster");
    writeExport(out + "burg.json", "4.1", "Burg", HAMBURG);
    // A time the replacement below can be given to the nanosecond.
    const QDateTime modified(QDate(2026, 1, 2), QTime(12, 0), Qt::UTC);
    QFile burg(out + "burg.json");
    QVERIFY(burg.open(QIODevice::ReadWrite)
        && burg.setFileTime(modified, QFileDevice::FileModificationTime));
    burg.close();
    writeExport(out + "dom.js", "4.1", "Dom");
    QVERIFY(params::writeViewerParamsFile(out + "dom_controls.js",
        QJsonObject {{"events", QJsonObject {{"id", "mainEvents"}}}}, params::Layout::Plain));
    // Trusts every stamp at once, so that only the stamps tell a changed file from the one read.
    params::TourFolderReader remembering(0);
    int readBefore = 0;
    const auto exportAndCompare = [&](int filesToRead, const QStringList &hrefs) {
        params::writeGalleryFile(out, "g.json", "tour.json", "Hafen", {}, remembering);
        const QByteArray remembered = test::readFileBytes(out + "g.json");
        params::TourFolderReader fresh;
        params::writeGalleryFile(out, "g.json", "tour.json", "Hafen", {}, fresh);
        QCOMPARE(remembered, test::readFileBytes(out + "g.json"));
        QCOMPARE(remembering.filesRead() - readBefore, filesToRead);
        readBefore = remembering.filesRead();
        QStringList listed;
        for (const QJsonValue entry : entries(out + "g.json"))
            listed << entry["href"].toString() + '=' + entry["text"].toString();
        QCOMPARE(listed, hrefs);
    };
    exportAndCompare(4, {"tour.json=Hafen", "alster.json=Alster", "burg.json=Burg", "dom.js=Dom"});
    // Unchanged: only the gallery file, rewritten by the fresh scan, is read again.
    exportAndCompare(1, {"tour.json=Hafen", "alster.json=Alster", "burg.json=Burg", "dom.js=Dom"});

    writeExport(out + "alster.json", "4.1", "Alster bei Nacht"); // changed
    writeExport(out + "elbe.json", "4.1", "Elbe");               // added
    QVERIFY(QFile::remove(out + "dom.js"));                      // removed
    // Replaced by another file of the same size and modification time, as a copy that keeps
    // the original's time would: only the file's identity tells them apart.
    QVERIFY(burg.open(QIODevice::ReadOnly));
    const QByteArray replacement = burg.readAll().replace("\"Burg\"", "\"Berg\"");
    burg.close();
    QFile beside(out + "burg.new");
    QVERIFY(beside.open(QIODevice::WriteOnly) && beside.write(replacement) == replacement.size());
    QVERIFY(beside.flush());
    QVERIFY(beside.setFileTime(modified, QFileDevice::FileModificationTime));
    beside.close();
    QVERIFY(
        ::rename(QFile::encodeName(out + "burg.new"), QFile::encodeName(out + "burg.json")) == 0);
    QCOMPARE(QFileInfo(out + "burg.json").lastModified(), modified);
    exportAndCompare(
        4, {"tour.json=Hafen", "alster.json=Alster bei Nacht", "burg.json=Berg", "elbe.json=Elbe"});
}

void tst_GalleryFile::unwritableGalleryFile()
{
    QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkdir("g.json"));
    QCOMPARE(params::writeGalleryFile(dir.path() + '/', "g.json", "tour.json", QString(), {}),
        QJsonObject({{"src", "g.json"}}));
    QVERIFY(QFileInfo(dir.path() + "/g.json").isDir());
}

void tst_GalleryFile::parameterFileIncludesGallery()
{
    test::Export withGallery;
    withGallery.settings.AddGallery = true;
    writeExport(withGallery.folder() + "earlier.json", "4.1", "Früher");
    QCOMPARE(
        withGallery.root().value("include")[1], QJsonValue(QJsonObject({{"src", "gallery.js"}})));
    const QJsonArray gallery = entries(withGallery.folder() + "gallery.js");
    QCOMPARE(gallery.size(), 2);
    QCOMPARE(gallery.at(0)["href"].toString(), "pano.js");
    QCOMPARE(gallery.at(1)["href"].toString(), "earlier.json");

    test::Export withoutGallery;
    QCOMPARE(withoutGallery.root().value("include").toArray().size(), 1);
    QVERIFY(!QFile::exists(withoutGallery.folder() + "gallery.js"));
}

QTEST_MAIN(tst_GalleryFile)
#include "tst_galleryfile.moc"
