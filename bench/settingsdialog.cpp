// How long the viewer settings dialog takes to open (construct, fill from the record, list the
// presets, show and paint once), next to the main export dialog in the same run. Not a test: run
// it by hand under the offscreen platform and compare the figures.
//
//   QT_QPA_PLATFORM=offscreen bench_settings_dialog [ROUNDS]      (default: 30)
#include "dialogs/appletsettingsdlg.h"
#include "dialogs/maindlg.h"
#include "plugin/pluginstate.h"
#include "settings/presets.h"
#include "settings/viewersettings.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <vector>

using namespace vantora;

namespace {

// Milliseconds of each round of `open`: the dialog built, shown and painted, then closed.
std::vector<double> timeRounds(int rounds, const std::function<QDialog *()> &open)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        QDialog *dialog = open();
        dialog->show();
        dialog->grab(); // one full paint, as the first frame on screen
        times.push_back(clock.nsecsElapsed() / 1e6);
        delete dialog;
        QCoreApplication::processEvents();
    }
    std::sort(times.begin(), times.end());
    return times;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, atoi(argv[1])) : 30;

    // A full sphere, a settings folder with twenty presets, every host service absent.
    QTemporaryDir folder;
    const std::u16string settingsFolder = (folder.path() + QLatin1Char('/')).toStdU16String();
    HostContext host {};
    host.endPan = 360.0;
    host.upperEdgeTilt = -90.0;
    host.lowerEdgeTilt = 90.0;
    host.gyroCapable = 1;
    host.settingsFolder = settingsFolder.c_str();
    plugin::pluginState().host = &host;
    settings::resetViewerSettings();
    for (int i = 0; i < 20; ++i)
        settings::writePresetFile(QString::fromStdU16String(settingsFolder),
            QStringLiteral("Voreinstellung %1").arg(i), settings::Preset());

    plugin::ExportJob job;
    job.imageWidth = 8000;
    job.imageHeight = 4000;
    const std::vector<double> settingsTimes
        = timeRounds(rounds, [] { return new dialogs::AppletSettingsDlg(nullptr); });
    const std::vector<double> mainTimes = timeRounds(rounds,
        [&job] { return new dialogs::MainDlg(nullptr, QStringLiteral("/tmp/hafen"), &job); });

    QTextStream out(stdout);
    const auto row = [&](const char *name, const std::vector<double> &t) {
        out << QString::asprintf("| %s | %.1f | %.1f | %.1f | %.1f |\n", name, t.front(),
            t[t.size() / 2], t[t.size() * 9 / 10], t.back());
    };
    out << "| dialog (" << rounds << " rounds) | min ms | median ms | 90 % ms | max ms |\n"
        << "|---|---|---|---|---|\n";
    row("viewer settings dialog", settingsTimes);
    row("main export dialog", mainTimes);
    return 0;
}
