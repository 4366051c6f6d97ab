// What the boundary cannot show: the reset's host, unusable restores, the scale memory, and a
// preparation whose dialog is cancelled.
#include "plugin/commands.h"
#include "plugin/pluginstate.h"
#include "settings/settingsblock.h"
#include "settings/viewersettings.h"

#include <QtTest>

using namespace vantora::plugin;
using vantora::settings::viewerSettings;

namespace {

std::uint64_t run(std::uint32_t command, HostContext &host, std::uint64_t in = 0)
{
    std::uint64_t word = in;
    runCommand(command, &host, &word);
    return word;
}

} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetPluginStateForTests(); }
    void cleanup() { resetPluginStateForTests(); }

    // The gyroscope defaults come from the host of the command that resets.
    void preparationResetsSettings()
    {
        HostContext host {};
        host.gyroCapable = 1;
        viewerSettings().TBDesign = 5;
        run(VANTORA_PREPARE, host);
        QCOMPARE(viewerSettings().TBDesign, 0);
        QVERIFY(viewerSettings().AddGyro && viewerSettings().GyroButton);
        QCOMPARE(viewerSettings().ContextMenuItems.size(), 8);
    }

    void unusableRestoreLeavesTheDefaults_data()
    {
        QTest::addColumn<bool>("wordPointer");
        QTest::addColumn<int>("version"); // -2: a null block address
        QTest::addColumn<int>("expectedDesign");
        QTest::addRow("no in/out word: nothing happens") << false << 12 << 4;
        QTest::addRow("null block") << true << -2 << 0;
        QTest::addRow("version 13") << true << 13 << 0;
    }
    void unusableRestoreLeavesTheDefaults()
    {
        QFETCH(bool, wordPointer);
        QFETCH(int, version);
        QFETCH(int, expectedDesign);
        HostContext host {};
        viewerSettings().TBDesign = 4;
        QByteArray block = vantora::settings::encodeSettingsBlock(viewerSettings());
        qToLittleEndian(qint32(version), block.data() + 4);
        std::uint64_t word = version == -2 ? 0 : std::uintptr_t(block.constData());
        runCommand(VANTORA_RESTORE_SETTINGS, &host, wordPointer ? &word : nullptr);
        QVERIFY(!pluginState().settingsRestored);
        QCOMPARE(viewerSettings().TBDesign, expectedDesign);
    }

    void scaleIsKeptForTheSameDocumentOnly_data()
    {
        QTest::addColumn<quint64>("document");
        QTest::addColumn<quint32>("width");
        QTest::addColumn<quint32>("height");
        QTest::addColumn<quint32>("expectedScale");
        QTest::addRow("same document and size") << quint64(7) << 8000u << 4000u << 40u;
        QTest::addRow("other document") << quint64(8) << 8000u << 4000u << 100u;
        QTest::addRow("other width") << quint64(7) << 8001u << 4000u << 100u;
        QTest::addRow("other height") << quint64(7) << 8000u << 3999u << 100u;
    }
    void scaleIsKeptForTheSameDocumentOnly()
    {
        QFETCH(quint64, document);
        QFETCH(quint32, width);
        QFETCH(quint32, height);
        HostContext host {};
        host.documentId = 7;
        host.imageWidth = 8000;
        host.imageHeight = 4000;
        run(VANTORA_PREPARE, host);
        QCOMPARE(exportJob().scale, 100u);
        // What the main dialog does when the user picks 40 %.
        exportJob().scale = pluginState().storedScale = 40;

        host.documentId = document;
        host.imageWidth = width;
        host.imageHeight = height;
        run(VANTORA_PREPARE, host);
        QTEST(exportJob().scale, "expectedScale");
        QCOMPARE(exportJob().outputWidth, width);
        QCOMPARE(exportJob().imageHeight, height);
    }

    // Until the user picks a target, an interactive preparation ends as if cancelled: the path
    // buffer is emptied and the next command 1 writes nothing.
    void cancelledPreparation()
    {
        HostContext host {};
        char16_t path[64] = u"/tmp/x.html";
        host.pathBuffer = path;
        run(VANTORA_PREPARE, host);
        QVERIFY(!exportJob().prepared);
        QCOMPARE(QString::fromUtf16(path), QString());
        QCOMPARE(run(VANTORA_WRITE, host, 77), 0u);
    }
};

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
