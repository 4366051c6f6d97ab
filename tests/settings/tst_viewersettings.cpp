#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <QtTest>

using vantora::settings::ContextMenuItem;
using vantora::settings::ViewerSettings;

class tst_ViewerSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { vantora::plugin::resetPluginStateForTests(); }

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
        vantora::plugin::pluginState().host = withHost ? &host : nullptr;
        vantora::settings::resetViewerSettings();
        const ViewerSettings &s = vantora::settings::viewerSettings();
        QCOMPARE(s.AddGyro, expected);
        QCOMPARE(s.GyroButton, expected);
    }

    void loadedRecordIsEmptyUntilTheFirstReset()
    {
        QVERIFY(vantora::settings::viewerSettings().ContextMenuItems.isEmpty());
        vantora::settings::resetViewerSettings();
        QCOMPARE(vantora::settings::viewerSettings().ContextMenuItems.size(), 8);
    }

    void resetRestoresEveryDefault()
    {
        ViewerSettings s;
        s.TBDesign = 6;
        s.Title64 = QStringLiteral("Gipfel");
        s.PanRate = -4.5;
        s.MapZoom = 3;
        s.ShowToolbar = false;
        s.ContextMenuItems.append(
            {ContextMenuItem::Custom, QStringLiteral("x"), QStringLiteral("y")});
        vantora::settings::resetViewerSettings(s, false);

        QCOMPARE(s.TBDesign, 0);
        QVERIFY(s.Title64.isEmpty());
        QCOMPARE(s.PanRate, 2.0);
        QCOMPARE(s.TiltRate, 0.0);
        QCOMPARE(s.ZoomRate, 1.0);
        QCOMPARE(s.Restart, 5);
        QCOMPARE(s.MapZoom, 18);
        QCOMPARE(s.TextColor, 0xFFFFFFu);
        QCOMPARE(s.ShadowColor, 0u);
        QCOMPARE(s.MouseMode, 1);
        QCOMPARE(s.TouchMode, 1);
        QCOMPARE(s.ZoomMode, 0);
        QVERIFY(s.ShowToolbar);
        QVERIFY(s.AddToolbar);
        QVERIFY(s.ShowHotspots);
        QVERIFY(!s.ShowWebGLWarning);
        QVERIFY(!s.ExtensionJS);
        QVERIFY(s.AudioAutoplay && s.AudioLoop && !s.AudioGlobal);
        QVERIFY(s.MapHideOnMarker && s.MapRadar && s.MapZoomControls && s.MapTypeControls);
        QVERIFY(s.VrGamepadEnabled);
        QVERIFY(s.AddContextMenu && !s.ContextMenuSpare);
    }

    void defaultMenuHasSeparatorsAtTwoFiveSeven()
    {
        ViewerSettings s;
        vantora::settings::resetViewerSettings(s, true);
        const QList<int> expectedKinds {1, 0, 2, 3, 0, 4, 0, 5};
        QCOMPARE(s.ContextMenuItems.size(), expectedKinds.size());
        for (int i = 0; i < expectedKinds.size(); ++i) {
            QCOMPARE(s.ContextMenuItems.at(i).kind, expectedKinds.at(i));
            QVERIFY(s.ContextMenuItems.at(i).caption.isEmpty());
            QVERIFY(s.ContextMenuItems.at(i).action.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(tst_ViewerSettings)
#include "tst_viewersettings.moc"
