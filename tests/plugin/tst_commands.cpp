// What the boundary cannot show: restore flags, settings reset, scale memory, the export plan.
#include "plugin/commands.h"
#include "plugin/defaultview.h"
#include "plugin/pluginstate.h"
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
