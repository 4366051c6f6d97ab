// The process-wide record and its host-dependent defaults. Every other default, the menu
// included, is pinned byte for byte by the default settings block (tst_settingsblock).
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QtTest>

using namespace vantora;

class tst_ViewerSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { plugin::resetPluginStateForTests(); }

    void gyroDefaultsFollowTheHost_data()
    {
        QTest::addColumn<bool>("withHost");
        QTest::addColumn<quint32>("capability");
        QTest::addColumn<bool>("expected");
        QTest::addRow("no host") << false << 0u << false;
        QTest::addRow("host without sensor") << true << 0u << false;
        QTest::addRow("host with sensor") << true << 1u << true;
        QTest::addRow("any non-zero value") << true << 0x80000000u << true;
    }
    void gyroDefaultsFollowTheHost()
    {
        QFETCH(bool, withHost);
        QFETCH(quint32, capability);
        QFETCH(bool, expected);
        HostContext host {};
        host.gyroCapable = capability;
        plugin::pluginState().host = withHost ? &host : nullptr;
        settings::resetViewerSettings();
        QCOMPARE(settings::viewerSettings().AddGyro, expected);
        QCOMPARE(settings::viewerSettings().GyroButton, expected);
    }

    // Loaded empty; each reset refills the menu instead of adding to it.
    void loadedRecordIsEmptyUntilTheFirstReset()
    {
        QVERIFY(settings::viewerSettings().ContextMenuItems.isEmpty());
        settings::resetViewerSettings();
        settings::resetViewerSettings();
        QCOMPARE(settings::viewerSettings().ContextMenuItems.size(), 8);
    }
};

QTEST_GUILESS_MAIN(tst_ViewerSettings)
#include "tst_viewersettings.moc"
