// Reviewed golden files: the controls file of every toolbar design and the parameter file of every
// display mode, each compared byte for byte. A difference names the file and its first differing
// line and leaves the written file beside the test for `diff`. VANTORA_WRITE_GOLDEN=1 rewrites the
// golden files instead; review the change before committing it.
#include "paramsfixture.h"

#include "viewerparams/controlsfile.h"
#include "viewerparams/design.h"
#include "viewerparams/infobox.h"
#include "viewerparams/orientation.h"

#include <QtTest>

using namespace vantora;
using settings::ContextMenuItem;

namespace {

const QString GOLDEN = QStringLiteral(VANTORA_TEST_DATA "/golden/");

// The first line in which the two texts differ, both lines shown; empty when equal.
QString firstDifferingLine(const QByteArray &actual, const QByteArray &expected)
{
    if (actual == expected)
        return QString();
    const QList<QByteArray> a = actual.split('\n'), e = expected.split('\n');
    for (int i = 0; i < qMax(a.size(), e.size()); ++i) {
        const QByteArray left = i < a.size() ? a[i] : QByteArray("(no line)");
        const QByteArray right = i < e.size() ? e[i] : QByteArray("(no line)");
        if (left != right)
            return QStringLiteral("line %1\n   actual: %2\n expected: %3")
                .arg(i + 1)
                .arg(QString::fromUtf8(left), QString::fromUtf8(right));
    }
    return QStringLiteral("the files differ only in their line ends");
}

// Compares the written file with the golden one (or replaces the golden one, see above).
void compareWithGolden(const QString &writtenPath, const QString &goldenName)
{
    QByteArray actual = test::readFileBytes(writtenPath);
    QVERIFY2(!actual.isEmpty(), qPrintable(writtenPath + " was not written"));
#ifdef Q_OS_WIN
    // Text mode writes CRLF there; the golden files hold the document's line feeds.
    actual.replace("\r\n", "\n");
#endif
    if (qEnvironmentVariableIntValue("VANTORA_WRITE_GOLDEN") == 1) {
        QVERIFY(test::writeFileBytes(GOLDEN + goldenName, actual));
        return;
    }
    const QString difference = firstDifferingLine(actual, test::readFileBytes(GOLDEN + goldenName));
    if (difference.isEmpty())
        return;
    QDir().mkpath(QStringLiteral("golden-actual"));
    const QString kept = QDir::current().absoluteFilePath("golden-actual/" + goldenName);
    test::writeFileBytes(kept, actual);
    QFAIL(qPrintable(QStringLiteral("%1 differs from the golden file at %2\n(diff %3 %4)")
                         .arg(goldenName, difference, GOLDEN + goldenName, kept)));
}

QList<ContextMenuItem> everyMenuEntry()
{
    QList<ContextMenuItem> list = settings::defaultContextMenuItems();
    list.append({ContextMenuItem::Custom, QStringLiteral("Zur \u00dcbersicht"),
        QStringLiteral("this.viewer.openNext('{gallery}');")});
    return list;
}

} // namespace

class tst_Golden : public QObject
{
    Q_OBJECT

private slots:
    void controlsFile_data();
    void controlsFile();
    void paramsFile_data();
    void paramsFile();
    void designPieces();
};

void tst_Golden::controlsFile_data()
{
    QTest::addColumn<int>("design");
    for (int design = 0; design < params::kDesignCount; ++design)
        QTest::addRow("design %d", design) << design;
}

// Everything the controls file can hold, for one design. Settings that have a few values take a
// different one from design to design, so that the eight files together see each of them; any two
// neighbouring flags differ in at least one of the files.
void tst_Golden::controlsFile()
{
    QFETCH(int, design);
    settings::ViewerSettings settings;
    settings::resetViewerSettings(settings, false);
    settings.TBDesign = design;
    settings.Position = design % 4;
    settings.ShowToolbar = design % 3 != 2;
    settings.PlayButton = design != 3;
    settings.ShowToolbarFullscreen = design != 2;
    settings.ShowArrowButtons = design != 5;
    settings.ShowZoomButtons = design != 6;
    settings.ShowInfoBox = true;
    settings.InfoHTML64 = QStringLiteral("<b>Hafen</b>");
    settings.AddAudioButton = design != 2;
    settings.Sound = QStringLiteral("wellen.mp3");
    settings.HotspotsButton = true;
    settings.AddGyro = true;
    settings.GyroButton = design != 4;
    settings.GyroEnabled = design % 3 == 0;
    settings.LittlePlanetIntro = design % 2 == 1;
    settings.AddVrMode = true;
    settings.AddGallery = true;
    settings.GalleryButtons = design % 3;
    settings.GalleryPosition = design % 2;
    settings.GalleryThumbnailVisible = design % 4 < 2;
    settings.AddMap = true;
    settings.MapPosition = (design + 1) % 2;
    settings.MapType = design % 4;
    settings.GmAPIKey = QStringLiteral("AIzaGoldenKey0123");
    settings.MapZoom = 10 + design;
    settings.MapVisible = design % 2 == 1;
    settings.MapHideOnMarker = design % 3 != 1;
    settings.MapRadar = design % 3 != 2;
    settings.MapZoomControls = design % 2 == 0;
    settings.MapTypeControls = design % 4 != 3;
    settings.AddOrientation = true;
    // Kinds 0..7 across the designs, toolbar and free-standing ones alike.
    settings.OrientationElement = design;
    settings.OrientationElementPosition = design % 3;
    settings.PositionNorth = design % 2 == 0;
    settings.ContextMenuItems = everyMenuEntry();

    params::ControlsInput input;
    input.settings = &settings;
    input.view = plugin::View {10.0, -5.0, 70.0, 5.0, 140.0};
    input.vrAvailable = true;
    QJsonArray actions;
    QTemporaryDir dir;
    const QString name = QStringLiteral("controls_everything_design%1.json").arg(design);
    params::writeControlsFile(dir.path() + QLatin1Char('/'), name, input, actions);
    compareWithGolden(dir.filePath(name), name);
}

void tst_Golden::paramsFile_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("full sphere") << QStringLiteral("sphere");
    QTest::newRow("partial panorama") << QStringLiteral("partial");
    QTest::newRow("flat") << QStringLiteral("flat");
}

// One parameter file per display mode, with hotspots of both kinds, texts and sound.
void tst_Golden::paramsFile()
{
    QFETCH(QString, mode);
    test::Export run;
    run.settings.TBDesign = 5;
    run.settings.Title64 = QStringLiteral("Hafen");
    run.settings.ShortDescription64 = QStringLiteral("Abend am Hafen, M\u00f6wen");
    run.settings.ShowInfoBox = true;
    run.settings.InfoHTML64 = QStringLiteral("<i>Leuchtturm</i> von 1890");
    run.settings.Sound = QStringLiteral("wellen.mp3");
    run.settings.AudioAutoplay = false;
    run.settings.AutoPlay = true;
    run.settings.PanRate = 3.5;
    if (mode == QLatin1String("partial")) {
        run.extent(20.0, 200.0, -30.0, 40.0);
        run.host.linearVertical = 0;
    } else if (mode == QLatin1String("flat")) {
        run.input.flatMode = true;
    }
    HostHotspot &tower = run.add(0, u":/hotspots/info.png", 0.25, 0.5);
    tower.action = 1;
    tower.infoText = "Der Leuchtturm";
    tower.name = "Leuchtturm";
    tower.transparency = 20;
    HostHotspot &pier = run.add(1, u":/hotspots/link.png", 0.75, 0.4);
    pier.action = 0;
    pier.name = "Mole";
    pier.linkUrl = "garden.html";
    pier.linkTarget = "_self";
    run.attachList();

    const QString name = QStringLiteral("params_%1.json").arg(mode);
    params::writeViewerParams(run.input, run.folder(), name, "hafen_controls.js", "g.js");
    compareWithGolden(run.folder() + name, name);
}

// What the files above show of one design only: the message box of every design, the compass and
// radar that sit in every design's toolbar and a free-standing radar, gathered in one file.
void tst_Golden::designPieces()
{
    QJsonArray designs;
    for (int design = 0; design < params::kDesignCount; ++design) {
        settings::ViewerSettings settings;
        settings::resetViewerSettings(settings, false);
        settings.PositionNorth = design % 2 == 0;
        QJsonArray buttons, actions;
        for (const int kind : {10, 11}) {
            settings.OrientationElement = kind;
            params::appendOrientationToolbarItems(buttons, actions, design, settings);
        }
        QJsonObject entry;
        entry.insert(QStringLiteral("design"), design);
        entry.insert(QStringLiteral("messageBox"),
            params::buildMessageBox(
                design, QStringLiteral("<b>Hafen</b>"), QStringLiteral("info")));
        entry.insert(QStringLiteral("toolbarInstruments"), buttons);
        // The large and small radar, which the controls files above leave out.
        settings.OrientationElement = 8 + design % 2;
        entry.insert(
            QStringLiteral("radar"), params::buildOrientationElement(actions, design, settings));
        designs.append(entry);
    }
    QTemporaryDir dir;
    const QString name = QStringLiteral("design_pieces.json");
    QVERIFY(test::writeFileBytes(dir.filePath(name), QJsonDocument(designs).toJson()));
    compareWithGolden(dir.filePath(name), name);
}

QTEST_GUILESS_MAIN(tst_Golden)
#include "tst_golden.moc"
