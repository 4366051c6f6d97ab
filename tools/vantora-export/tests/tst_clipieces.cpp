// The pieces of vantora-export that a run through the library cannot show: the level sizes of the
// pyramid, the extents taken from the aspect ratio, and the location filler.
#include "locationfiller.h"
#include "pageframe.h"
#include "tilepyramid.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace vantora::cli;

// A stand-in for the library's object and setter: takes each value as the library would.
struct VantoraJsonObject
{
    QJsonObject object;
};

namespace {

extern "C" int setMember(VantoraJsonObject *object, const char *key, const char *jsonValue)
{
    const QJsonDocument value = QJsonDocument::fromJson(QByteArray("[") + jsonValue + "]");
    if (value.isNull())
        return 0;
    object->object.insert(QString::fromUtf8(key), value.array().first());
    return 1;
}

} // namespace

class tst_CliPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pyramidLevels_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QByteArray>("levels"); // smallest first, as the viewer loads them
        QTest::addRow("one tile") << QSize(512, 512) << QByteArray("512x512");
        QTest::addRow("one pixel") << QSize(1, 1) << QByteArray("1x1");
        QTest::addRow("one pixel too wide") << QSize(513, 200) << QByteArray("257x100 513x200");
        // Odd sizes round up, so that the last column and row survive every halving.
        QTest::addRow("odd") << QSize(3001, 1499)
                             << QByteArray("376x188 751x375 1501x750 3001x1499");
        QTest::addRow("sample") << QSize(8192, 4096)
                                << QByteArray("512x256 1024x512 2048x1024 4096x2048 8192x4096");
        QTest::addRow("tall") << QSize(300, 2000) << QByteArray("75x500 150x1000 300x2000");
    }
    void pyramidLevels()
    {
        QFETCH(QSize, picture);
        QByteArrayList actual;
        for (const PyramidLevel &level :
            vantora::cli::pyramidLevels(picture.width(), picture.height()))
            actual.append(QByteArray::number(level.width) + 'x' + QByteArray::number(level.height));
        QTEST(actual.join(' '), "levels");
    }

    void frameFor_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<double>("hextentGiven"); // 0: not given
        QTest::addColumn<double>("vextentGiven");
        QTest::addColumn<QSizeF>("extents"); // hextent x vextent
        QTest::addRow("2:1 full sphere") << QSize(4000, 2000) << 0.0 << 0.0 << QSizeF(360, 180);
        QTest::addRow("6:1 strip") << QSize(6000, 1000) << 0.0 << 0.0 << QSizeF(360, 60);
        QTest::addRow("3:2 narrower than a sphere")
            << QSize(3000, 2000) << 0.0 << 0.0 << QSizeF(270, 180);
        QTest::addRow("hextent only") << QSize(3000, 1000) << 90.0 << 0.0 << QSizeF(90, 30);
        QTest::addRow("hextent only, capped")
            << QSize(1000, 1000) << 360.0 << 0.0 << QSizeF(360, 180);
        QTest::addRow("vextent only, capped")
            << QSize(8000, 1000) << 0.0 << 60.0 << QSizeF(360, 60);
        QTest::addRow("both") << QSize(1000, 1000) << 100.0 << 50.0 << QSizeF(100, 50);
    }
    void frameFor()
    {
        QFETCH(QSize, picture);
        QFETCH(double, hextentGiven);
        QFETCH(double, vextentGiven);
        auto given
            = [](double value) { return value > 0 ? std::optional<double>(value) : std::nullopt; };
        const PageFrame frame = vantora::cli::frameFor(
            picture.width(), picture.height(), false, given(hextentGiven), given(vextentGiven));
        QTEST(QSizeF(frame.hextent, frame.vextent), "extents");
    }

    void fillLocation_data()
    {
        QTest::addColumn<bool>("hasPosition");
        QTest::addColumn<double>("north"); // negative: unknown
        QTest::addColumn<bool>("forMap");
        QTest::addColumn<bool>("forOrientation");
        QTest::addColumn<QByteArray>("json");
        QTest::addRow("map and compass") << true << 12.5 << true << true
                                         << QByteArray(R"({"lat":48.1,"lng":-11.25,"north":12.5})");
        QTest::addRow("map only") << true << 12.5 << true << false
                                  << QByteArray(R"({"lat":48.1,"lng":-11.25})");
        QTest::addRow("compass only")
            << true << 12.5 << false << true << QByteArray(R"({"north":12.5})");
        QTest::addRow("north unknown")
            << true << -1.0 << true << true << QByteArray(R"({"lat":48.1,"lng":-11.25})");
        QTest::addRow("only north known")
            << false << 180.0 << true << true << QByteArray(R"({"north":180})");
    }
    void fillLocation()
    {
        QFETCH(bool, hasPosition);
        QFETCH(double, north);
        QFETCH(bool, forMap);
        QFETCH(bool, forOrientation);
        Location location;
        location.hasPosition = hasPosition;
        location.latitude = 48.1;
        location.longitude = -11.25;
        if (north >= 0)
            location.north = north;
        VantoraJsonObject object;
        vantora::cli::fillLocation(location, &object, setMember, forMap, forOrientation);
        QTEST(QJsonDocument(object.object).toJson(QJsonDocument::Compact), "json");
    }
};

QTEST_GUILESS_MAIN(tst_CliPieces)
#include "tst_clipieces.moc"
