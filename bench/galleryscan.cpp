// How long the tour gallery takes to collect a folder of earlier exports, read afresh and with
// the entries remembered from the previous export, against the time to merely read the same
// bytes. Not a test: run it by hand and compare the figures.
//
//   bench_gallery_scan [COUNT...]      (default: 100 300 1000)
#include "viewerparams/galleryfile.h"
#include "viewerparams/memberwriter.h"
#include "viewerparams/tourfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace vantora;

namespace {

// A parameter file of typical size: a view, a camera, a dozen hotspots, a location.
QJsonObject typicalExport(int number)
{
    QJsonArray hotspots;
    for (int i = 0; i < 12; ++i)
        hotspots.append(QJsonObject {{"bitmap", "pin.png"}, {"position", "12.5000,-3.2500"},
            {"href", QString("pano%1.json").arg(i)}, {"tooltip", "Weiter zum nächsten Raum"}});
    const QJsonObject node {{"id", QString("pano%1").arg(number)},
        {"view",
            QJsonObject {{"pan", 10.0}, {"tilt", 0.0}, {"hfov", 70.0},
                {"shortdescription", QString("Raum %1").arg(number)}}},
        {"camera", QJsonObject {{"minhfov", 5.0}, {"maxhfov", 140.0}}}, {"hotspot", hotspots},
        {"location", QJsonObject {{"lat", 53.55}, {"lng", 9.99}, {"north", 12.5}}}};
    return {{"version", "4.1"}, {"node", node}};
}

template <typename F> double medianMs(F run)
{
    std::vector<double> times;
    for (int i = 0; i < 7; ++i) {
        QElapsedTimer timer;
        timer.start();
        run();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QStringList counts = app.arguments().mid(1);
    if (counts.isEmpty())
        counts = QStringList {"100", "300", "1000"};
    for (const QString &count : counts) {
        bool ok = false;
        if (count.toInt(&ok) <= 0 || !ok) {
            QTextStream(stderr) << "usage: bench_gallery_scan [COUNT...]   (COUNT > 0; default "
                                   "100 300 1000)\n";
            return 2;
        }
    }
    QTextStream out(stdout);
    out << "exports  bytes      scan ms  read ms  ratio  scan us/file  rescan ms\n";
    for (const QString &count : counts) {
        const int n = count.toInt();
        QTemporaryDir dir;
        const QString folder = dir.path() + '/';
        for (int i = 0; i < n; ++i)
            params::writeViewerParamsFile(folder + QString("pano%1.json").arg(i), typicalExport(i));
        // Each export also leaves a controls file, which the scan must open and pass over.
        for (int i = 0; i < n; ++i)
            params::writeViewerParamsFile(folder + QString("pano%1_controls.json").arg(i),
                QJsonObject {{"events", QJsonObject {{"id", "mainEvents"}}}},
                params::Layout::Plain);

        const QStringList names = QDir(folder).entryList(QDir::Files);
        qint64 bytes = 0;
        const double readMs = medianMs([&] {
            bytes = 0;
            for (const QString &name : names) {
                QFile file(folder + name);
                file.open(QIODevice::ReadOnly);
                bytes += file.readAll().size();
            }
        });
        const double scanMs = medianMs([&] {
            params::TourFolderReader fresh;
            params::writeGalleryFile(
                folder, "vantoViewerGallery.json", "current.json", "", {}, fresh);
        });
        params::TourFolderReader remembering(0);
        const double rescanMs = medianMs([&] {
            params::writeGalleryFile(
                folder, "vantoViewerGallery.json", "current.json", "", {}, remembering);
        });
        out << qSetFieldWidth(7) << n << qSetFieldWidth(0) << "  " << qSetFieldWidth(9) << bytes
            << qSetFieldWidth(0) << "  " << qSetFieldWidth(7) << QString::number(scanMs, 'f', 1)
            << qSetFieldWidth(0) << "  " << qSetFieldWidth(7) << QString::number(readMs, 'f', 1)
            << qSetFieldWidth(0) << "  " << qSetFieldWidth(5)
            << QString::number(scanMs / readMs, 'f', 1) << qSetFieldWidth(0) << "  "
            << qSetFieldWidth(12) << QString::number(1000.0 * scanMs / (2 * n), 'f', 1)
            << qSetFieldWidth(0) << "  " << qSetFieldWidth(9) << QString::number(rescanMs, 'f', 1)
            << qSetFieldWidth(0) << '\n';
    }
    return 0;
}
