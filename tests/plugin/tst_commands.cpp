// The command protocol: views and their blocks, restore flags, scale memory, unknown commands.
#include "plugin/commands.h"
#include "plugin/defaultview.h"
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QtTest>

#include <cstring>

using namespace vantora::plugin;

namespace {

struct Extent
{
    double startPan, endPan, upperEdge, lowerEdge;
};

HostContext hostWithExtent(const Extent &e)
{
    HostContext host{};
    host.startPan = e.startPan;
    host.endPan = e.endPan;
    host.upperEdgeTilt = e.upperEdge;
    host.lowerEdgeTilt = e.lowerEdge;
    return host;
}

std::uint64_t run(std::uint32_t command, HostContext &host, std::uint64_t in = 0)
{
    std::uint64_t word = in;
    runCommand(command, &host, &word);
    return word;
}

int closeCalls = 0;

ViewState viewStateOf(std::uint64_t address)
{
    ViewState block;
    std::memcpy(&block, reinterpret_cast<const void *>(std::uintptr_t(address)), sizeof block);
    return block;
}

} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void init() { resetPluginStateForTests(); }
    void cleanup() { resetPluginStateForTests(); }

    void defaultView_data()
    {
        QTest::addColumn<Extent>("extent");
        QTest::addColumn<double>("hfov");
        QTest::addColumn<double>("pan");
        // 0.9 x min(V x 5/3, H), capped at 90; pan in the middle of the extent.
        QTest::addRow("full sphere") << Extent{0, 360, -90, 90} << 90.0 << 180.0;
        QTest::addRow("full sphere from -180") << Extent{-180, 180, -90, 90} << 90.0 << 0.0;
        QTest::addRow("strip 120x40") << Extent{10, 130, -20, 20} << 60.0 << 70.0;
        QTest::addRow("reversed bounds") << Extent{130, 10, 20, -20} << 60.0 << 190.0;
        QTest::addRow("narrow and tall") << Extent{0, 50, -80, 80} << 45.0 << 25.0;
    }
    void defaultView()
    {
        QFETCH(Extent, extent);
        QFETCH(double, hfov);
        QFETCH(double, pan);
        const View view = defaultViewFromHost(hostWithExtent(extent));
        QCOMPARE(view.hfov, hfov);
        QCOMPARE(view.pan, pan);
        QCOMPARE(view.tilt, 0.0);
        QCOMPARE(view.minhfov, 5.0);
        QCOMPARE(view.maxhfov, 140.0);
    }

    void storedViewWinsWhenItsFieldOfViewIsPositive_data()
    {
        QTest::addColumn<double>("storedHfov");
        QTest::addColumn<bool>("taken");
        QTest::addRow("positive") << 33.0 << true;
        QTest::addRow("tiny") << 1e-9 << true;
        QTest::addRow("zero") << 0.0 << false;
        QTest::addRow("negative") << -1.0 << false;
    }
    void storedViewWinsWhenItsFieldOfViewIsPositive()
    {
        QFETCH(double, storedHfov);
        QFETCH(bool, taken);
        HostContext host = hostWithExtent({0, 360, -90, 90});
        host.viewPan = 12;
        host.viewTilt = -7;
        host.viewHfov = storedHfov;
        host.viewMinHfov = 11;
        host.viewMaxHfov = 99;
        const View view = defaultViewFromHost(host);
        QCOMPARE(view.hfov, taken ? storedHfov : 90.0);
        QCOMPARE(view.pan, taken ? 12.0 : 180.0);
        QCOMPARE(view.tilt, taken ? -7.0 : 0.0);
        QCOMPARE(view.minhfov, taken ? 11.0 : 5.0);
        QCOMPARE(view.maxhfov, taken ? 99.0 : 140.0);
    }

    void viewStateBlockHoldsTheViewInItsOwnOrder()
    {
        HostContext host{};
        view() = View{10.5, -3.25, 70.0, 6.0, 120.0};
        const std::uint64_t address = run(VANTORA_SAVE_VIEW, host);
        QVERIFY(address != 0);
        QCOMPARE(reinterpret_cast<ViewState *>(std::uintptr_t(address)), pluginState().viewStateBlock);
        const ViewState block = viewStateOf(address);
        QCOMPARE(block.size, 48u);
        QCOMPARE(block.zero, 0u);
        QCOMPARE(block.hfov, 70.0);
        QCOMPARE(block.maxhfov, 120.0);
        QCOMPARE(block.minhfov, 6.0);
        QCOMPARE(block.pan, 10.5);
        QCOMPARE(block.tilt, -3.25);

        run(VANTORA_FREE_VIEW, host);
        QVERIFY(!pluginState().viewStateBlock);
        run(VANTORA_FREE_VIEW, host); // a second free is a no-op
        QVERIFY(!pluginState().viewStateBlock);
    }

    void restoreView_data()
    {
        QTest::addColumn<quint32>("sizeWord");
        QTest::addColumn<quint32>("secondWord");
        QTest::addColumn<bool>("accepted");
        QTest::addRow("valid") << 48u << 0u << true;
        QTest::addRow("second word 1") << 48u << 1u << false;
        QTest::addRow("size 47") << 47u << 0u << false;
        QTest::addRow("size 49") << 49u << 0u << false;
        QTest::addRow("size 0") << 0u << 0u << false;
    }
    void restoreView()
    {
        QFETCH(quint32, sizeWord);
        QFETCH(quint32, secondWord);
        QFETCH(bool, accepted);
        HostContext host = hostWithExtent({0, 360, -90, 90});
        // An odd address: the host's block need not be aligned.
        alignas(8) unsigned char storage[64] = {};
        ViewState block{sizeWord, secondWord, 44.0, 130.0, 8.0, 15.0, -5.0};
        std::memcpy(storage + 1, &block, sizeof block);

        run(VANTORA_RESTORE_VIEW, host, std::uintptr_t(storage + 1));
        QCOMPARE(pluginState().viewRestored, accepted);
        const View &v = view();
        QCOMPARE(v.hfov, accepted ? 44.0 : 90.0);
        QCOMPARE(v.maxhfov, accepted ? 130.0 : 140.0);
        QCOMPARE(v.minhfov, accepted ? 8.0 : 5.0);
        QCOMPARE(v.pan, accepted ? 15.0 : 180.0);
        QCOMPARE(v.tilt, accepted ? -5.0 : 0.0);
    }

    void restoreViewToleratesNulls()
    {
        HostContext host = hostWithExtent({0, 360, -90, 90});
        view() = View{1, 2, 3, 4, 5};
        runCommand(VANTORA_RESTORE_VIEW, &host, nullptr);
        QCOMPARE(view().hfov, 3.0); // untouched: the command did nothing
        run(VANTORA_RESTORE_VIEW, host, 0);
        QCOMPARE(view().hfov, 90.0); // a null block: the default view stands
        QVERIFY(!pluginState().viewRestored);
        runCommand(VANTORA_RESTORE_SETTINGS, &host, nullptr);
        QVERIFY(!pluginState().settingsRestored);
    }

    void restoredViewIsConsumedByOnePreparation()
    {
        HostContext host = hostWithExtent({0, 360, -90, 90});
        ViewState block{48, 0, 44.0, 130.0, 8.0, 15.0, -5.0};
        run(VANTORA_RESTORE_VIEW, host, std::uintptr_t(&block));
        run(VANTORA_PREPARE, host);
        QCOMPARE(view().hfov, 44.0);
        QVERIFY(!pluginState().viewRestored);
        run(VANTORA_PREPARE, host);
        QCOMPARE(view().hfov, 90.0);
    }

    void preparationResetsSettings()
    {
        HostContext host{};
        host.gyroCapable = 1;
        vantora::settings::viewerSettings().TBDesign = 5;
        run(VANTORA_PREPARE, host);
        QCOMPARE(vantora::settings::viewerSettings().TBDesign, 0);
        QVERIFY(vantora::settings::viewerSettings().AddGyro);
        QCOMPARE(vantora::settings::viewerSettings().ContextMenuItems.size(), 8);
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
        HostContext host{};
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
        HostContext host{};
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
        HostContext host{};
        char16_t path[64] = u"/tmp/x.html";
        host.pathBuffer = path;
        run(VANTORA_PREPARE, host);
        QVERIFY(!exportJob().prepared);
        QCOMPARE(QString::fromUtf16(path), QString());
        QCOMPARE(run(VANTORA_WRITE, host, 77), 0u);
    }

    void writeWithoutPreparationDoesNothing()
    {
        HostContext host{};
        closeCalls = 0;
        host.close = [](HostContext *) { ++closeCalls; };
        QCOMPARE(run(VANTORA_WRITE, host, 77), 0u);
        QCOMPARE(closeCalls, 0);
    }

    void otherCommands_data()
    {
        QTest::addColumn<quint32>("command");
        QTest::addRow("settings block not yet serialised") << 2u;
        QTest::addRow("unknown 8") << 8u;
        QTest::addRow("unknown max") << 0xFFFFFFFFu;
    }
    void otherCommands()
    {
        QFETCH(quint32, command);
        HostContext host{};
        QCOMPARE(run(command, host, 0xDEADBEEF), 0u);
        QCOMPARE(pluginState().host, &host);
    }
};

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
