// The settings block: the current version byte for byte, every older version's layout and
// missing-field rules, round trips, and blocks that lie about their size.
#include "common/textcompare.h"
#include "plugin/pluginstate.h"
#include "settings/settingsblock.h"
#include "settings/settingstable.h"

#include <QtEndian>
#include <QtTest>

#include <type_traits>

using namespace vantora::settings;

namespace {

QByteArray blockFile(const QString &name)
{
    return vantora::test::readFileBytes(VANTORA_TEST_DATA "/blocks/" + name);
}

const unsigned char *bytesOf(const QByteArray &block)
{
    return reinterpret_cast<const unsigned char *>(block.constData());
}

ViewerSettings defaults()
{
    ViewerSettings s;
    resetViewerSettings(s, false);
    return s;
}

QStringList names(const QList<const char *> &fields)
{
    QStringList list;
    for (const char *field : fields)
        list << QString::fromLatin1(field);
    return list;
}

// Every field away from its default; texts and menu entries beyond ASCII.
ViewerSettings everyFieldChanged()
{
    ViewerSettings s = defaults();
    forEachField(s, [](const SettingRow &row, auto &field) {
        const char *name = row.name;
        using T = std::remove_reference_t<decltype(field)>;
        if constexpr (std::is_same_v<T, bool>)
            field = !field;
        else if constexpr (std::is_same_v<T, int>)
            field = qstrcmp(name, "ZoomMode") == 0 ? 1 : field - 3; // ZoomMode is kept as a byte
        else if constexpr (std::is_same_v<T, Colour>)
            field ^= 0xA5A5A5u;
        else if constexpr (std::is_same_v<T, double>)
            field = -field - 0.375;
        else if constexpr (std::is_same_v<T, QString>)
            field = QString::fromLatin1(name) + QStringLiteral(" Größe € 漢字 😀");
        else
            field = {{7, QStringLiteral("Über"), QStringLiteral("alert('ä');")},
                {0, QString(), QString()}, {1, QString(), QString()},
                {7, QStringLiteral("Karte 🗺"), QStringLiteral("x();")}};
    });
    return s;
}

// What the version-12 marker block holds (see tests/data/blocks/makeblocks.py): every flag
// flipped, these numbers and texts, and three menu entries.
// clang-format off
const QVariantMap MARKERS {
    {"TextColor", 0x123456}, {"ShadowColor", 0x654321}, {"MouseMode", 0}, {"TouchMode", 0},
    {"Position", 3}, {"TBDesign", 7}, {"Restart", 42}, {"GalleryButtons", 2}, {"GalleryPosition", 2},
    {"OrientationElement", 9}, {"OrientationElementPosition", 2}, {"MapPosition", 1}, {"MapType", 3},
    {"MapZoom", 7}, {"VrDisplayType", 1}, {"ZoomMode", 1},
    {"PanRate", -3.5}, {"TiltRate", 1.25}, {"ZoomRate", 0.5},
    {"Title64", "Gipfel über Zürich"}, {"LogoFile", "logo.png"}, {"LogoImage", "C:\\Bilder\\logo.png"},
    {"LogoURL", "https://example.org/"}, {"Sound", "C:\\Ton\\wind.mp3"}, {"SoundFile", "wind.mp3"},
    {"InfoHTML64", "<b>Info</b> €"}, {"ShortDescription64", "Kurz"}, {"GmAPIKey", "AIzaMarkerKey"},
};
// clang-format on
ViewerSettings markers()
{
    ViewerSettings s = defaults();
    forEachField(s, [](const SettingRow &row, auto &field) {
        using T = std::remove_reference_t<decltype(field)>;
        if constexpr (std::is_same_v<T, bool>)
            field = !field;
        else if constexpr (!std::is_same_v<T, QList<ContextMenuItem>>)
            field = MARKERS.value(QLatin1String(row.name), "missing").value<T>();
    });
    s.ContextMenuItems = {{7, QStringLiteral("Über uns"), QStringLiteral("alert('ä');")},
        {0, QString(), QString()}, {5, QString(), QString()}};
    return s;
}

// The fields each version brought. Version 1 also sets GyroButton (it follows AddGyro),
// GalleryPosition (1 before version 5) and ContextMenuItems (emptied before version 3).
// clang-format off
const struct { int since; const char *fields; } VERSION_FIELDS[] = {
    {1,  "TextColor ShadowColor MouseMode TouchMode Position TBDesign Restart PanRate TiltRate "
         "ZoomRate AddToolbar ShowToolbar ShowHotspots PlayButton ShowToolbarFullscreen "
         "ShowArrowButtons ShowZoomButtons AddGyro GyroEnabled ShowInfoBox AddAudioButton "
         "AudioAutoplay AudioLoop ShowWebGLWarning AutoPlay LittlePlanetIntro Title64 LogoFile "
         "LogoImage LogoURL Sound SoundFile InfoHTML64 GyroButton GalleryPosition ContextMenuItems"},
    {2,  "HotspotsButton"},
    {3,  "AddContextMenu ContextMenuSpare AddVrMode"},
    {5,  "GalleryButtons AddGallery GalleryThumbnailVisible ShortDescription64"},
    {6,  "InfoGlobal AudioGlobal"},
    {7,  "ZoomMode"},
    {8,  "OrientationElement OrientationElementPosition AddMap AddOrientation PositionNorth"},
    {9,  "MapPosition MapType MapZoom GmAPIKey MapVisible MapHideOnMarker MapRadar "
         "MapZoomControls MapTypeControls"},
    {10, "ExtensionJS"},
    {11, "VrDisplayType VrGamepadEnabled"},
};
// clang-format on

// The marker block of `version` restored: the markers of the fields it has, defaults elsewhere.
ViewerSettings markersOf(int version)
{
    QStringList present;
    for (const auto &group : VERSION_FIELDS)
        if (group.since <= version)
            present << QString::fromLatin1(group.fields).split(' ');
    const ViewerSettings m = markers();
    ViewerSettings s = defaults();
    ContextMenuChoice unused;
    forEachField(s, [&](const SettingRow &row, auto &field) {
        if (present.contains(QLatin1String(row.name)))
            visitValue(row, m, unused, [&](const auto &marker) {
                if constexpr (std::is_same_v<std::decay_t<decltype(marker)>,
                                  std::decay_t<decltype(field)>>)
                    field = marker;
            });
    });
    if (version < 5)
        s.GalleryPosition = 1;
    if (version < 3)
        s.ContextMenuItems.clear();
    return s;
}

void putU32(QByteArray &block, int offset, quint32 value)
{
    qToLittleEndian(value, block.data() + offset);
}

} // namespace

class tst_SettingsBlock : public QObject
{
    Q_OBJECT

private slots:
    void init() { vantora::plugin::resetPluginStateForTests(); }

    // A fresh record and one with every field changed both reset to the hand-built block.
    void resetRecordGivesTheHandBuiltBlock()
    {
        const QByteArray expected = blockFile("default_v12.bin");
        QCOMPARE(expected.size(), 273);
        ViewerSettings changed = everyFieldChanged();
        resetViewerSettings(changed, false);
        QCOMPARE(encodeSettingsBlock(defaults()).toHex(), expected.toHex());
        QCOMPARE(encodeSettingsBlock(changed).toHex(), expected.toHex());
    }

    void everyFieldSurvivesARoundTrip()
    {
        const ViewerSettings changed = everyFieldChanged();
        QCOMPARE(differingFields(changed, defaults()).size(), 64);
        const QByteArray block = encodeSettingsBlock(changed);

        // 133 fixed bytes, 11 strings (two reserved ones empty) with their lengths, 12 bytes and
        // two texts per menu entry.
        int expectedSize = 133 + 2 * 4;
        for (const QString &text : {changed.Title64, changed.LogoFile, changed.LogoImage,
                 changed.LogoURL, changed.Sound, changed.SoundFile, changed.InfoHTML64,
                 changed.ShortDescription64, changed.GmAPIKey})
            expectedSize += 4 + text.toUtf8().size();
        for (const ContextMenuItem &item : changed.ContextMenuItems)
            expectedSize += 12 + item.caption.toUtf8().size() + item.action.toUtf8().size();
        QCOMPARE(block.size(), expectedSize);
        QCOMPARE(qFromLittleEndian<quint32>(block.constData()), quint32(expectedSize));

        ViewerSettings restored = defaults();
        QVERIFY(decodeSettingsBlock(bytesOf(block), restored));
        QCOMPARE(names(differingFields(restored, changed)), QStringList());
    }

    void everyVersionRestores_data()
    {
        QTest::addColumn<int>("version");
        for (int version = 1; version <= 12; ++version)
            QTest::addRow("v%d", version) << version;
    }
    void everyVersionRestores()
    {
        QFETCH(int, version);
        const QByteArray block = blockFile(QStringLiteral("markers_v%1.bin").arg(version));
        QVERIFY(!block.isEmpty());
        ViewerSettings restored = defaults();
        QVERIFY(decodeSettingsBlock(bytesOf(block), restored));
        QCOMPARE(names(differingFields(restored, markersOf(version))), QStringList());

        // One byte less than the block needs: nothing of it is taken.
        QByteArray truncated = block;
        putU32(truncated, 0, quint32(block.size() - 1));
        ViewerSettings untouched = defaults();
        QVERIFY(!decodeSettingsBlock(bytesOf(truncated), untouched));
        QCOMPARE(names(differingFields(untouched, defaults())), QStringList());
    }

    void lyingBlocksLeaveTheDefaults_data()
    {
        QTest::addColumn<int>("offset"); // -1: no block at all
        QTest::addColumn<quint32>("value");
        QTest::addColumn<bool>("restored");
        const quint32 size = quint32(blockFile("markers_v12.bin").size());
        QTest::addRow("null block") << -1 << 0u << false;
        QTest::addRow("size word zero") << 0 << 0u << false;
        QTest::addRow("size word below the header") << 0 << 7u << false;
        QTest::addRow("size word covers the header only") << 0 << 8u << false;
        QTest::addRow("size word one short") << 0 << size - 1 << false;
        QTest::addRow("version 0") << 4 << 0u << false;
        QTest::addRow("version 13") << 4 << 13u << false;
        QTest::addRow("version -1") << 4 << 0xFFFFFFFFu << false;
        QTest::addRow("item count negative") << 36 << 0xFFFFFFFFu << false;
        QTest::addRow("item count huge") << 36 << 0x7FFFFFFFu << false;
        QTest::addRow("title length past the end") << 133 << 0xFFFFFFF0u << false;
        QTest::addRow("title length to the end") << 133 << size - 137 << false;
        QTest::addRow("unchanged") << 4 << 12u << true;
        QTest::addRow("size word larger, bytes present") << 0 << size + 16 << true;
    }
    void lyingBlocksLeaveTheDefaults()
    {
        QFETCH(int, offset);
        QFETCH(quint32, value);
        QFETCH(bool, restored);
        // Sixteen spare bytes behind the block, so that only the size word decides.
        QByteArray block = blockFile("markers_v12.bin") + QByteArray(16, '\x5A');
        if (offset >= 0)
            putU32(block, offset, value);
        ViewerSettings &record = viewerSettings();
        record.TBDesign = 5;
        record.Title64 = "stale";
        vantora::plugin::pluginState().settingsRestored = true;

        restoreViewerSettings(offset < 0 ? nullptr : bytesOf(block));
        QCOMPARE(vantora::plugin::pluginState().settingsRestored, restored);
        QCOMPARE(names(differingFields(record, restored ? markers() : defaults())), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_SettingsBlock)
#include "tst_settingsblock.moc"
