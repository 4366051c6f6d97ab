// The tour gallery file: which files of the output folder join the tour, and the file's bytes.
#include "paramsfixture.h"

#include "viewerparams/galleryfile.h"
#include "viewerparams/memberwriter.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace vantora;

namespace {

const QJsonObject HAMBURG {{"lat", 53.5}, {"lng", 10.0}};

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

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

// The entries' "href" members, in order.
QStringList hrefs(const QString &galleryPath)
{
    const QByteArray text = test::readFileBytes(galleryPath);
    const int start = text.indexOf('\n', text.indexOf("\"vantoraViewer\":"));
    const QJsonArray gallery = QJsonDocument::fromJson(text.mid(start, text.size() - start - 2))
                                   .object()
                                   .value("gallery")
                                   .toArray();
    QStringList list;
    for (const QJsonValue &entry : gallery)
        list << entry.toObject().value("href").toString();
    return list;
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
    void passesOverLinksAndHugeFiles();
    void unwritableGalleryFile();
    void parameterFileIncludesGallery();
};

void tst_GalleryFile::singlePanoramaBytes()
{
    QTemporaryDir dir;
    const QString before = QDir::currentPath();
    QCOMPARE(params::writeGalleryFile(
                 dir.path() + '/', "vantoViewerGallery.json", "tour.json", "Hafen", HAMBURG),
        QJsonObject({{"src", "vantoViewerGallery.json"}}));
    QCOMPARE(QDir::currentPath(), before);
    VANTORA_COMPARE_TEXT(
        QString::fromUtf8(test::readFileBytes(dir.path() + "/vantoViewerGallery.json")),
        QStringLiteral(
            "VantoraViewerParams = {\n\"vantoraViewer\":\n{\n    \"gallery\": [\n        {\n"
            "            \"href\": \"tour.json\",\n            \"location\": {\n"
            "                \"lat\": 53.5,\n                \"lng\": 10\n            },\n"
            "            \"text\": \"Hafen\",\n"
            "            \"thumbnail\": \"tour_tiles/tour_thumb.jpg\"\n        }\n    ]\n}\n\n}"));
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

    const QByteArray text = test::readFileBytes(out + "vantoViewerGallery.json");
    QCOMPARE(hrefs(out + "vantoViewerGallery.json"),
        QStringList({"tour.json", "alster.js", "Burg.json", "dom.json"}));
    QVERIFY(text.contains("\"text\": \"Burg im Nebel\""));
    QVERIFY(text.contains("\"text\": \"Dom\""));
    QVERIFY(text.contains("\"lat\": 53.5"));
    QVERIFY(text.contains("\"thumbnail\": \"Burg_tiles/Burg_thumb.jpg\""));
    QVERIFY(!text.contains("stale"));
}

void tst_GalleryFile::passesOverForeignFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("taken");
    const QByteArray body
        = "{\n\"vantoraViewer\": {\n\"node\": {\n\t\"id\": \"x\"\n},\n\"version\": ";
    QTest::newRow("version 4.1 as text") << body + "\"4.1\"\n}\n}" << true;
    QTest::newRow("version 4 as number") << body + "4\n}\n}" << true;
    QTest::newRow("version 3.9 as text") << body + "\"3.9\"\n}\n}" << false;
    QTest::newRow("version is no number") << body + "\"neu\"\n}\n}" << false;
    QTest::newRow("version is an object") << body + "{\"major\": 4}\n}\n}" << false;
    QTest::newRow("version is missing")
        << QByteArray("{\n\"vantoraViewer\": {\n\"node\": {}\n}\n}") << false;
    QTest::newRow("byte-order mark")
        << "\xEF\xBB\xBFVantoraViewerParams = " + body + "\"4.1\"\n}\n}" << false;
    QTest::newRow("blank in front") << " VantoraViewerParams = " + body + "\"4.1\"\n}\n}" << false;
    QTest::newRow("JSONP") << "callback(" + body + "\"4.1\"\n}\n});" << false;
    QTest::newRow("some script") << QByteArray("function f(){ return 1; }\n") << false;
    QTest::newRow("not JSON") << QByteArray("VantoraViewerParams = {\"vantoraViewer\": oops")
                              << false;
    QTest::newRow("no panorama") << QByteArray("{\"vantoraViewer\": {\"version\": \"4.1\"}}")
                                 << false;
    // A separator before the closing braces: the object is closed once more, which the strict
    // JSON reader still refuses; the file is passed over like any other broken one.
    QTest::newRow("separator before the end") << body + "\"4.1\",\n}\n}" << false;
}

void tst_GalleryFile::passesOverForeignFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, taken);
    QTemporaryDir dir;
    if (!bytes.startsWith('\xEF') && !bytes.startsWith(' ') && !bytes.startsWith("callback")
        && !bytes.startsWith("function") && !bytes.startsWith("VantoraViewerParams"))
        bytes.prepend("VantoraViewerParams = ");
    writeFile(dir.path() + "/other.json", bytes);
    params::writeGalleryFile(dir.path() + '/', "g.json", "tour.json", QString(), {});
    QCOMPARE(hrefs(dir.path() + "/g.json").size(), taken ? 2 : 1);
}

void tst_GalleryFile::passesOverLinksAndHugeFiles()
{
    QTemporaryDir elsewhere, dir;
    writeExport(elsewhere.path() + "/real.json", "4.1", "Anderswo");
    QVERIFY(QFile::link(elsewhere.path() + "/real.json", dir.path() + "/link.json"));
    // A huge file with the right beginning: passed over without being read.
    QFile huge(dir.path() + "/huge.js");
    QVERIFY(huge.open(QIODevice::WriteOnly));
    huge.write("VantoraViewerParams = {");
    QVERIFY(huge.resize(qint64(65) * 1024 * 1024));
    huge.close();
    writeExport(dir.path() + "/kept.json", "4.1", "Hier");
    params::writeGalleryFile(dir.path() + '/', "g.json", "tour.json", QString(), {});
    QCOMPARE(hrefs(dir.path() + "/g.json"), QStringList({"tour.json", "kept.json"}));
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
    withGallery.settings.ShortDescription64 = "Hafen";
    writeExport(withGallery.folder() + "earlier.json", "4.1", "Früher");
    const QJsonArray include = withGallery.root().value("include").toArray();
    QCOMPARE(include.size(), 2);
    QCOMPARE(include.at(1).toObject(), QJsonObject({{"src", "gallery.js"}}));
    QCOMPARE(hrefs(withGallery.folder() + "gallery.js"), QStringList({"pano.js", "earlier.json"}));

    test::Export withoutGallery;
    QCOMPARE(withoutGallery.root().value("include").toArray().size(), 1);
    QVERIFY(!QFile::exists(withoutGallery.folder() + "gallery.js"));
}

QTEST_MAIN(tst_GalleryFile)
#include "tst_galleryfile.moc"
