// What the boundary cannot show: restore flags, settings reset, scale memory, the export plan.
#include "plugin/commands.h"
#include "plugin/defaultview.h"
#include "plugin/pluginstate.h"
#include "settings/settingsblock.h"
#include "settings/viewersettings.h"

#include <QtTest>

using namespace vantora::plugin;

namespace {

std::uint64_t run(std::uint32_t command, HostContext &host, std::uint64_t in = 0)
{
    std::uint64_t word = in;
    runCommand(command, &host, &word);
    return word;
}

int closeCalls = 0;

} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetPluginStateForTests(); }
    void cleanup() { resetPluginStateForTests(); }

    void preparationResetsSettings()
    {
        HostContext host {};
        host.gyroCapable = 1;
        vantora::settings::viewerSettings().TBDesign = 5;
        run(VANTORA_PREPARE, host);
        QCOMPARE(vantora::settings::viewerSettings().TBDesign, 0);
        QVERIFY(vantora::settings::viewerSettings().AddGyro);
        QCOMPARE(vantora::settings::viewerSettings().ContextMenuItems.size(), 8);
    }

    // Command 6 restores before command 0, which keeps the settings and clears the flag; command
    // 2 hands out a block of them and keeps it, command 3 frees it and leaves the word alone.
    void settingsBlockCommands()
    {
        using namespace vantora::settings;
        HostContext host {};
        ViewerSettings custom;
        resetViewerSettings(custom, false);
        custom.TBDesign = 6;
        custom.Title64 = QStringLiteral("Süd");
        const QByteArray given = encodeSettingsBlock(custom);
        run(VANTORA_RESTORE_SETTINGS, host, std::uintptr_t(given.constData()));
        QVERIFY(pluginState().settingsRestored);
        run(VANTORA_PREPARE, host);
        QVERIFY(!pluginState().settingsRestored);
        QCOMPARE(viewerSettings().TBDesign, 6);

        const std::uint64_t address = run(VANTORA_SAVE_SETTINGS, host);
        QCOMPARE(address, std::uint64_t(std::uintptr_t(pluginState().settingsBlock)));
        const auto *block = reinterpret_cast<const char *>(std::uintptr_t(address));
        QCOMPARE(QByteArray(block, given.size()), given);
        QCOMPARE(run(VANTORA_FREE_SETTINGS, host, 5), 5u);
        QVERIFY(!pluginState().settingsBlock);

        // The next export without a restore starts from the defaults.
        run(VANTORA_PREPARE, host);
        QCOMPARE(viewerSettings().TBDesign, 0);
    }

    void unusableRestoreLeavesTheDefaults_data()
    {
        QTest::addColumn<bool>("wordPointer");
        QTest::addColumn<int>("version");
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
        vantora::settings::viewerSettings().TBDesign = 4;
        QByteArray block
            = vantora::settings::encodeSettingsBlock(vantora::settings::viewerSettings());
        qToLittleEndian(qint32(version), block.data() + 4);
        std::uint64_t word = version == -2 ? 0 : std::uintptr_t(block.constData());
        runCommand(VANTORA_RESTORE_SETTINGS, &host, wordPointer ? &word : nullptr);
        QVERIFY(!pluginState().settingsRestored);
        QCOMPARE(vantora::settings::viewerSettings().TBDesign, expectedDesign);
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
        QFETCH(quint32, expectedScale);
        HostContext host {};
        host.documentId = 7;
        host.imageWidth = 8000;
        host.imageHeight = 4000;
        run(VANTORA_PREPARE, host);
        QCOMPARE(exportJob().scale, 100u);
        // What the main dialog does when the user picks 40 %.
        exportJob().scale = 40;
        pluginState().storedScale = 40;

        host.documentId = document;
        host.imageWidth = width;
        host.imageHeight = height;
        run(VANTORA_PREPARE, host);
        QCOMPARE(exportJob().scale, expectedScale);
        QCOMPARE(exportJob().outputWidth, width);
        QCOMPARE(exportJob().imageHeight, height);
    }

    void nonInteractivePreparationTakesTheHostPath()
    {
        HostContext host {};
        char16_t path[512] = u"/tmp/out dir\\tour.html";
        char16_t output[512] = u"stale";
        host.pathBuffer = path;
        host.outputPath = output;
        host.nonInteractive = 1;
        QCOMPARE(run(VANTORA_PREPARE, host, 99), 0u);
        const ExportJob &job = exportJob();
        QVERIFY(job.prepared);
        QCOMPARE(job.targetPath, QStringLiteral("/tmp/out dir\\tour.html"));
        QCOMPARE(job.baseName, QStringLiteral("tour"));
        QCOMPARE(job.viewerFolder, QStringLiteral("/tmp/out dir/"));
        QCOMPARE(job.userFolder, job.viewerFolder);
        QCOMPARE(job.imageFolder, job.viewerFolder);
        QCOMPARE(QString::fromUtf16(path), QString()); // emptied for the host
        QCOMPARE(QString::fromUtf16(output), QStringLiteral("/tmp/out dir\\tour.html"));
    }

    void interactivePreparationWithoutDialogIsCancelled()
    {
        HostContext host {};
        char16_t path[64] = u"/tmp/x.html";
        host.pathBuffer = path;
        run(VANTORA_PREPARE, host);
        QVERIFY(!exportJob().prepared);
        QCOMPARE(QString::fromUtf16(path), QString());
        QCOMPARE(run(VANTORA_WRITE, host, 77), 0u);
    }

    void writeWithoutPreparationDoesNothing()
    {
        HostContext host {};
        closeCalls = 0;
        host.close = [](HostContext *) { ++closeCalls; };
        QCOMPARE(run(VANTORA_WRITE, host, 77), 0u);
        QCOMPARE(closeCalls, 0);
    }
};

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
