// The main export dialog, the field-of-view and quality dialogs and the boxes of an interactive
// export, driven through the built library's entry point from inside their exec().
#include "common/hostbuilder.h"
#include "common/modaldriver.h"
#include "common/textcompare.h"
#include "settings/settingsblock.h"
#include "settings/viewersettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLibrary>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <memory>
#include <utility>

using namespace vantora::test;
using u32 = std::uint32_t;

namespace {

constexpr char VIEWER_SCRIPT[] = "/* test viewer */\n";

// ---- The test host's operations, and what they saw.

struct HostLog
{
    QList<QPair<QString, HostContext *>> hooks; // class name of the dialog, third argument
    QList<quint64> hookZeros;
    int tiles = 0;
    HostTileRequest request {};
    // The preview: what it was given, what it answers.
    int previews = 0;
    QList<double> previewIn;   // pan, tilt, hfov, minhfov, maxhfov
    QList<qint64> previewArgs; // page width, page height, cookie
    int previewResult = 0;
    double previewOut[3] = {};
    double uiScale = 1.0;
} g_log;

void dialogHook(void *dialog, std::uint64_t zero, HostContext *host)
{
    g_log.hooks << qMakePair(
        QString::fromLatin1(static_cast<QObject *>(dialog)->metaObject()->className()), host);
    g_log.hookZeros << zero;
}

double uiScale(void *)
{
    return g_log.uiScale;
}

u32 writeTiles(HostContext *, HostTileRequest *request)
{
    ++g_log.tiles;
    g_log.request = *request;
    return 1;
}

int32_t preview(HostContext *, double *pan, double *tilt, double *hfov, int32_t pageWidth,
    int32_t pageHeight, double minhfov, double maxhfov, uint64_t cookie)
{
    ++g_log.previews;
    g_log.previewIn = {*pan, *tilt, *hfov, minhfov, maxhfov};
    g_log.previewArgs = {pageWidth, pageHeight, qint64(cookie)};
    // A host that cancels may still have moved its own copies; only a confirmation counts.
    *pan = g_log.previewOut[0];
    *tilt = g_log.previewOut[1];
    *hfov = g_log.previewOut[2];
    return g_log.previewResult;
}

QStringList itemsOf(QComboBox *box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i)
        items << box->itemText(i);
    return items;
}

// Texts that do not fit their widget, by object name: a layout that cuts a label or a button
// at this font size and scale.
QStringList cutTexts(QWidget *dialog)
{
    QStringList cut;
    for (QWidget *widget : dialog->findChildren<QWidget *>()) {
        if (!widget->isVisible()
            || !(qobject_cast<QLabel *>(widget) || qobject_cast<QAbstractButton *>(widget)
                || qobject_cast<QComboBox *>(widget)))
            continue;
        const auto *label = qobject_cast<QLabel *>(widget);
        if (label && label->wordWrap())
            continue;
        if (widget->width() < widget->sizeHint().width())
            cut << QStringLiteral("%1: %2 < %3")
                       .arg(widget->objectName())
                       .arg(widget->width())
                       .arg(widget->sizeHint().width());
    }
    return cut;
}

// A dialog's title and the title-bar buttons it asks for, of those a dialog may have.
QVariantList frameOf(QWidget *dialog)
{
    return {dialog->windowTitle(),
        int(dialog->windowFlags()
            & (Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowContextHelpButtonHint))};
}
// What frameOf() gives for a dialog titled `title` with a close button and no help button.
QVariantList frame(const QString &title)
{
    return {title, int(Qt::WindowTitleHint | Qt::WindowCloseButtonHint)};
}

// A message box as the user sees it: title, text, icon, and whether Yes is the default.
QVariantList boxSeen(QWidget *dialog)
{
    auto *box = static_cast<QMessageBox *>(dialog);
    return {box->windowTitle(), box->text(), int(box->icon()),
        box->defaultButton() && box->defaultButton() == box->button(QMessageBox::Yes)};
}

// What a step saw in a dialog, for the test body to compare once exec() has returned.
using Seen = QMap<QString, QVariant>;

template <class Row, std::size_t N> void addRows(const Row (&rows)[N])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < N; ++i)
        QTest::addRow("%s", rows[i].name) << int(i);
}

// clang-format off
constexpr struct { const char *name; u32 flat, hideFov, fitToPage; const char *proposed, *shown; bool fovVisible; } OPENING_ROWS[] = {
    {"panorama: scene gets .html",           0, 0, 1, "scene",       "scene.html",       true},
    {"suffix compared with case",            0, 0, 0, "scene.HTML",  "scene.HTML.html",  true},
    {"suffix kept",                          0, 0, 0, "scene.html",  "scene.html",       true},
    {"shorter than the suffix",              0, 0, 0, "html",        "html.html",        true},
    {"flat image: one type, no fov",         1, 0, 0, "flat",        "flat.html",        true},
    {"host hides the fov button",            0, 1, 1, "scene",       "scene.html",       false},
};

// scaleIndex: the entry chosen in scaleBox; type: the entry chosen in typeBox; open: the answer to
// "Jetzt im Browser anzeigen?".
constexpr struct { const char *name; u32 width, height; int scaleIndex, type; const char *size, *megapixels; u32 scale; bool open; } SAVE_ROWS[] = {
    {"50 % of 10000 x 5000",           10000, 5000, 10, 0, "5000x2500 Pixel",  "12.50 Megapixel", 50, true},
    {"10 % truncates towards zero",      333,  111, 18, 0, "33x11 Pixel",      "0.00 Megapixel",  10, false},
    {"95 % as a flat zoom image",       4000, 2000,  1, 1, "3800x1900 Pixel",  "7.22 Megapixel",  95, false},
};

// viaChooser: the path comes from the file chooser; answer: to the overwrite question, 0 none.
constexpr struct { const char *name; bool viaChooser; int answer; bool accepted; } OVERWRITE_ROWS[] = {
    {"existing page, No: the dialog stays open", false, QMessageBox::No,  false},
    {"existing page, Yes",                       false, QMessageBox::Yes, true},
    {"chooser asked: no second question",        true,  0,                true},
};

// opens: the entry the quality box opens on.
constexpr struct { const char *name; u32 stored; const char *opens; bool accept; u32 result; } QUALITY_ROWS[] = {
    {"75 opens on normal, stores 80", 75, "normale Qualität",                  true,  80},
    {"0 opens on the first entry",     0, "geringe Qualität / kleine Dateien", true,  70},
    {"70 is still low",               70, "geringe Qualität / kleine Dateien", true,  70},
    {"89 is normal",                  89, "normale Qualität",                  true,  80},
    {"90 is high",                    90, "hohe Qualität / große Dateien",     true,  90},
    {"cancelled keeps the value",     75, "normale Qualität",                  false, 75},
};

// preview: -1 no preview operation, else what the host answers. The view as command 4 sees it
// afterwards, in the dialog's order: pan, tilt, minhfov, hfov, maxhfov.
constexpr struct { const char *name; QLocale::Language language; QLocale::Country country; int scale; } LAYOUT_ROWS[] = {
    {"de_100", QLocale::German,  QLocale::Germany,        1},
    {"en_100", QLocale::English, QLocale::UnitedKingdom, 1},
    {"de_200", QLocale::German,  QLocale::Germany,        2},
    {"en_200", QLocale::English, QLocale::UnitedKingdom, 2},
};

constexpr struct { const char *name; int preview; bool accept; double view[5]; } FOV_ROWS[] = {
    {"OK applies the fields",          -1, true,  {100, 5, 30, 70, 120}},
    {"Cancel changes nothing",         -1, false, {100, 5, 20, 70, 120}},
    {"preview confirmed, then OK",      1, true,  {200, -10, 30, 45, 120}},
    {"preview cancelled by the host",   0, true,  {100, 5, 30, 70, 120}},
    {"preview confirmed, then Cancel",  1, false, {100, 5, 20, 70, 120}},
};
// clang-format on

} // namespace

class tst_Dialogs : public QObject, BenchUser
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_parent;
    DriverSession m_session;
    QList<QUrl> m_opened;
    std::uint64_t m_document = 0;

    quint64 call(u32 command, quint64 in = 0)
    {
        std::uint64_t word = in;
        m_entry(command, m_host->context(), &word);
        return word;
    }

    // A new driver for the next call; what the previous one found is kept for cleanup().
    ModalDriver &driver() { return m_session.next(); }

    // Command 0 with `proposed` in the path buffer, run against the steps of driver().
    void prepare(const QString &proposed)
    {
        m_host->setPath(proposed);
        QCOMPARE(call(0), 0ull);
        // Whatever happened in the dialog, the path buffer comes back empty.
        QCOMPARE(m_host->pathText(), QString());
    }

    // Command 4's block in the dialog's order: pan, tilt, minhfov, hfov, maxhfov.
    QList<double> savedView()
    {
        const auto *block = reinterpret_cast<const ViewState *>(std::uintptr_t(call(4)));
        const QList<double> view
            = {block->pan, block->tilt, block->minhfov, block->hfov, block->maxhfov};
        call(5);
        return view;
    }

    // The dialogs the host's hook saw, in order, each with 0; only the main dialog gets the record.
    void expectHooks(const QStringList &classes)
    {
        QCOMPARE(g_log.hooks.size(), classes.size());
        for (int i = 0; i < classes.size(); ++i) {
            QVERIFY2(g_log.hooks[i].first.endsWith(classes[i]), qPrintable(g_log.hooks[i].first));
            QCOMPARE(g_log.hooks[i].second, i == 0 ? m_host->context() : nullptr);
            QCOMPARE(g_log.hookZeros[i], 0ull);
        }
    }

    static void cancelMain(QWidget *dialog) { pressLater(dialog, QDialogButtonBox::Cancel); }

public slots:
    // The desktop's handler for local files, as the library's "open in the browser" reaches it.
    void openUrl(const QUrl &url) { m_opened << url; }

private slots:
    void initTestCase()
    {
        QString error;
        m_entry = loadExportEntry(VANTORA_EXPORT_LIBRARY, &error);
        QVERIFY2(m_entry, qPrintable(error));
        QDesktopServices::setUrlHandler("file", this, "openUrl");
    }

    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"); }

    // An interactive host over a parent window: a 4000 x 2000 full sphere, a new document each
    // time (so the output scale starts at 100 %), every host operation installed.
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        g_log = HostLog();
        m_opened.clear();
        QVERIFY(newBench(VIEWER_SCRIPT, ++m_document));
        m_parent = std::make_unique<QWidget>();
        m_host->put(at::WriteTiles, &writeTiles, at::DialogHook, &dialogHook, at::UiScale, &uiScale,
            at::JpegQuality, u32(80), at::ParentWindow, static_cast<void *>(m_parent.get()));
    }

    void cleanup()
    {
        const QStringList problems = m_session.takeProblems();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
        QVERIFY(!QApplication::activeModalWidget());
    }

    void opening_data() { addRows(OPENING_ROWS); }
    void opening()
    {
        QFETCH(int, row);
        const auto &r = OPENING_ROWS[row];
        m_host->put(at::FlatImage, r.flat, at::HideFovButton, r.hideFov, at::FitToPage, r.fitToPage,
            at::PageWidth, 1024, at::PageHeight, 4000);
        Seen seen;
        driver().then("MainDlg", [&](QWidget *d) {
            seen["parent"] = d->parentWidget() == m_parent.get();
            seen["frame"] = frameOf(d);
            seen["file"] = child<QLineEdit>(d, "filenameEdit")->text();
            auto *types = child<QComboBox>(d, "typeBox");
            seen["types"] = itemsOf(types);
            seen["type"] = types->currentIndex();
            auto *fov = child<QPushButton>(d, "fovButton");
            seen["fov"] = QVariantList {fov->isVisible(), fov->isEnabled()};
            QVariantList sizeControls;
            for (const char *name :
                {"widthLabel", "widthBox", "heightLabel", "heightBox", "pixelLabel"})
                sizeControls << child<QWidget>(d, name)->isEnabled();
            seen["size controls"] = sizeControls;
            seen["page size"] = QVariantList {
                child<QSpinBox>(d, "widthBox")->value(), child<QSpinBox>(d, "heightBox")->value()};
            // The check box switches the five controls both ways.
            auto *fit = child<QCheckBox>(d, "pageSizeBox");
            fit->toggle();
            seen["toggled"] = child<QSpinBox>(d, "heightBox")->isEnabled();
            fit->toggle();
            // Choosing the flat type disables the field-of-view button of a panorama.
            types->setCurrentIndex(types->count() - 1);
            seen["fov after flat"] = fov->isEnabled();
            seen["shortcuts"]
                = QStringList {child<QPushButton>(d, "settingsButton")->shortcut().toString(),
                    fov->shortcut().toString(),
                    child<QPushButton>(d, "qualityButton")->shortcut().toString()};
            seen["settings"] = child<QPushButton>(d, "settingsButton")->isEnabled();
            cancelMain(d);
        });
        prepare(r.proposed);

        QVERIFY(m_session.current().finished());
        QCOMPARE(seen["parent"].toBool(), true);
        QCOMPARE(
            seen["frame"].toList(), frame("Interaktives HTML5-Panorama/Zoom-Bild speichern..."));
        QCOMPARE(seen["file"].toString(), QString::fromUtf8(r.shown));
        const QStringList types = r.flat
            ? QStringList {"Flaches 2D-Zoom-Bild"}
            : QStringList {"Interaktives 3D-Panorama", "Flaches 2D-Zoom-Bild"};
        QCOMPARE(seen["types"].toStringList(), types);
        QCOMPARE(seen["type"].toInt(), 0);
        QCOMPARE(seen["fov"].toList(), QVariantList({r.fovVisible, r.flat == 0}));
        QCOMPARE(seen["fov after flat"].toBool(), false);
        QVariantList sizeControls;
        for (int i = 0; i < 5; ++i)
            sizeControls << (r.fitToPage == 0);
        QCOMPARE(seen["size controls"].toList(), sizeControls);
        QCOMPARE(seen["toggled"].toBool(), r.fitToPage != 0);
        // The boxes hold the host's page size within their range of 50 to 2048.
        QCOMPARE(seen["page size"].toList(), QVariantList({1024, 2048}));
        QCOMPARE(seen["shortcuts"].toStringList(), QStringList({"Ctrl+S", "Ctrl+S", "Ctrl+S"}));
        // The viewer settings dialog opens from here (tst_settingsdlg drives it).
        QCOMPARE(seen["settings"].toBool(), true);
        // The host's hook saw the main dialog with 0 and the record itself.
        expectHooks({"MainDlg"});

        // Cancelled: nothing handed back, nothing stored, and the job stays idle.
        QCOMPARE(m_host->outputText(), QString());
        QCOMPARE(m_host->get<u32>(at::PageHeight), 4000u);
        QCOMPARE(call(1), 0ull);
        QCOMPARE(g_log.tiles, 0);
        QCOMPARE(QDir(m_out).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    }

    void save_data() { addRows(SAVE_ROWS); }
    void save()
    {
        QFETCH(int, row);
        const auto &r = SAVE_ROWS[row];
        m_host->put(at::ImageWidth, r.width, at::ImageHeight, r.height, at::FitToPage, u32(1));
        const QString page = m_out + "tour.html";
        // Settings restored before command 0 that a flat zoom image overrides: mouse and touch.
        vantora::settings::ViewerSettings restored;
        resetViewerSettings(restored, false);
        restored.MouseMode = restored.TouchMode = 0;
        const QByteArray block = vantora::settings::encodeSettingsBlock(restored);
        call(6, quint64(std::uintptr_t(block.constData())));
        Seen seen;
        driver().then("MainDlg", [&](QWidget *d) {
            child<QComboBox>(d, "typeBox")->setCurrentIndex(r.type);
            auto *scale = child<QComboBox>(d, "scaleBox");
            seen["scales"] = itemsOf(scale);
            seen["scale opened"] = scale->currentIndex();
            scale->setCurrentIndex(r.scaleIndex);
            seen["size"] = child<QLabel>(d, "sizeLabel")->text();
            seen["megapixels"] = child<QLabel>(d, "megapixelLabel")->text();
            child<QCheckBox>(d, "pageSizeBox")->setChecked(false);
            child<QSpinBox>(d, "widthBox")->setValue(1024);
            child<QSpinBox>(d, "heightBox")->setValue(300);
            child<QLineEdit>(d, "filenameEdit")->setText(QDir::toNativeSeparators(page));
            pressLater(d, QDialogButtonBox::Save);
        });
        prepare(m_out + "proposed");

        QStringList scales;
        for (int percent = 100; percent >= 10; percent -= 5)
            scales << QString::number(percent) + '%';
        QCOMPARE(seen["scales"].toStringList(), scales);
        QCOMPARE(seen["scale opened"].toInt(), 0);
        QCOMPARE(seen["size"].toString(), QString::fromUtf8(r.size));
        QCOMPARE(seen["megapixels"].toString(), QString::fromUtf8(r.megapixels));
        // The page size went into the record, the chosen path into the output buffer.
        QCOMPARE(m_host->get<std::int32_t>(at::PageWidth), 1024);
        QCOMPARE(m_host->get<std::int32_t>(at::PageHeight), 300);
        QCOMPARE(m_host->get<u32>(at::FitToPage), 0u);
        QCOMPARE(m_host->outputText(), QDir::toNativeSeparators(page));

        // Command 1 writes the export at the chosen scale and asks to show it.
        QVariantList box;
        driver().then("QMessageBox", [&](QWidget *d) {
            box = boxSeen(d);
            pressLater(d, r.open ? QMessageBox::Yes : QMessageBox::No);
        });
        QCOMPARE(call(1), 0ull);
        QCOMPARE(g_log.tiles, 1);
        QCOMPARE(QList<u32>({g_log.request.scalePercent, g_log.request.outputWidth,
                     g_log.request.outputHeight, u32(g_log.request.flatMode != 0)}),
            QList<u32>({r.scale, r.width * r.scale / 100, r.height * r.scale / 100, u32(r.type)}));
        QVERIFY(readFileBytes(page).contains("width: 1024px; height: 300px;"));
        QCOMPARE(box.value(0).toString(), "Hinweis");
        const QString text = box.value(1).toString();
        QVERIFY2(text.startsWith("Die Dateien für das interaktive Panorama/Zoom-Bild wurden "
                                 "erfolgreich gespeichert!\nIm Ordner "
                     + QDir::toNativeSeparators(m_out) + " wurden folgende Dateien erstellt:\n"
                     + "vantoViewer            (0 KB)\ntour.html            (1 KB)\n"),
            qPrintable(text));
        QVERIFY2(text.endsWith(" KB\n\nJetzt im Browser anzeigen?"), qPrintable(text));
        QCOMPARE(box.value(3).toBool(), true);
        QCOMPARE(m_opened, r.open ? QList<QUrl>({QUrl::fromLocalFile(page)}) : QList<QUrl>());
        vantora::settings::ViewerSettings exported;
        resetViewerSettings(exported, false);
        const quint64 saved = call(2);
        QVERIFY(vantora::settings::decodeSettingsBlock(
            reinterpret_cast<const unsigned char *>(std::uintptr_t(saved)), exported));
        call(3);
        QCOMPARE(
            QList<int>({exported.MouseMode, exported.TouchMode}), QList<int>({r.type, r.type}));

        // The same document at the same size opens on the scale chosen last time.
        driver().then("MainDlg", [&](QWidget *d) {
            seen["scale again"] = child<QComboBox>(d, "scaleBox")->currentIndex();
            cancelMain(d);
        });
        prepare(page);
        QCOMPARE(seen["scale again"].toInt(), r.scaleIndex);
    }

    void overwrite_data() { addRows(OVERWRITE_ROWS); }
    void overwrite()
    {
        QFETCH(int, row);
        const auto &r = OVERWRITE_ROWS[row];
        const QString page = QDir::toNativeSeparators(m_out + "tour.html");
        QVERIFY(writeFileBytes(page, "the user's page"));
        Seen seen;
        driver().then("MainDlg", [&](QWidget *d) {
            auto *edit = child<QLineEdit>(d, "filenameEdit");
            if (!r.viaChooser) {
                edit->setText(page);
                pressLater(d, QDialogButtonBox::Save);
                return;
            }
            // A right-button press is no request for the chooser.
            QTest::mouseClick(edit, Qt::RightButton);
            QTimer::singleShot(0, edit, [edit] { QTest::mousePress(edit, Qt::LeftButton); });
        });
        if (r.viaChooser) {
            m_session.current()
                .then("QFileDialog",
                    [&](QWidget *d) {
                        auto *chooser = static_cast<QFileDialog *>(d);
                        seen["caption"] = chooser->windowTitle();
                        seen["filters"] = chooser->nameFilters();
                        seen["start"] = chooser->selectedFiles().value(0);
                        chooser->selectFile(m_out + "tour.html");
                        QTimer::singleShot(0, chooser,
                            [chooser] { QMetaObject::invokeMethod(chooser, "accept"); });
                    })
                // The chooser's own question about the existing file.
                .then("QMessageBox", [](QWidget *d) { pressLater(d, QMessageBox::Yes); })
                .then("MainDlg", [&](QWidget *d) {
                    seen["chosen"] = child<QLineEdit>(d, "filenameEdit")->text();
                    pressLater(d, QDialogButtonBox::Save);
                });
        } else {
            m_session.current().then("QMessageBox", [&](QWidget *d) {
                seen["box"] = boxSeen(d);
                pressLater(d, r.answer);
            });
            if (!r.accepted)
                m_session.current().then("MainDlg", cancelMain);
        }
        prepare(m_out + "tour");

        if (r.viaChooser) {
            QCOMPARE(seen["caption"].toString(), "Interaktives Panorama/Zoom-Bild speichern...");
            QCOMPARE(seen["filters"].toStringList(),
                QStringList("Webseite mit interaktivem Panorama/Zoom-Bild (*.html)"));
            QCOMPARE(
                QDir::cleanPath(seen["start"].toString()), QDir::cleanPath(m_out + "tour.html"));
            QCOMPARE(seen["chosen"].toString(), page);
        } else {
            QCOMPARE(seen["box"].toList(),
                QVariantList({"Hinweis", page + " besteht bereits.\nMöchten Sie sie ersetzen?",
                    int(QMessageBox::Warning), true}));
        }
        QCOMPARE(m_host->outputText(), r.accepted ? page : QString());
        QCOMPARE(readFileBytes(page), QByteArray("the user's page"));
    }

    void quality_data() { addRows(QUALITY_ROWS); }
    void quality()
    {
        QFETCH(int, row);
        const auto &r = QUALITY_ROWS[row];
        m_host->put(at::JpegQuality, r.stored);
        Seen seen;
        driver()
            .then("MainDlg", [](QWidget *d) { clickLater(child<QPushButton>(d, "qualityButton")); })
            .then("QualityDlg",
                [&](QWidget *d) {
                    seen["frame"] = frameOf(d);
                    seen["group"] = child<QGroupBox>(d, "qualityGroup")->title();
                    seen["label"] = child<QLabel>(d, "qualityLabel")->text();
                    seen["opens"] = child<QComboBox>(d, "qualityBox")->currentText();
                    seen["parent"] = d->parentWidget()->metaObject()->className();
                    pressLater(d, r.accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
                })
            .then("MainDlg", cancelMain);
        prepare(m_out + "tour");

        QCOMPARE(seen["frame"].toList(), frame("Einstellungen für Qualität/Darstellung"));
        QCOMPARE(seen["group"].toString(), "Qualität/Darstellung");
        QCOMPARE(seen["label"].toString(), "Bildqualität (JPEG):");
        QCOMPARE(seen["opens"].toString(), QString::fromUtf8(r.opens));
        QVERIFY(seen["parent"].toString().endsWith("MainDlg"));
        QCOMPARE(m_host->get<u32>(at::JpegQuality), r.result);
        expectHooks({"MainDlg", "QualityDlg"});
    }

    void fieldOfView_data() { addRows(FOV_ROWS); }
    void fieldOfView()
    {
        QFETCH(int, row);
        const auto &r = FOV_ROWS[row];
        // The host's count of the vertical extent runs downward: -30 is the upper edge.
        m_host->put(at::StartPan, 10.0, at::EndPan, 350.0, at::UpperEdge, -30.0, at::LowerEdge,
            60.0, at::ViewPan, 100.0, at::ViewTilt, 5.0, at::ViewHfov, 70.0, at::ViewMinHfov, 20.0,
            at::ViewMaxHfov, 120.0, at::PreviewCookie, quint64(0x1234567890ull));
        if (r.preview < 0)
            m_host->put(at::Preview, HostPreviewFn(nullptr));
        else
            m_host->put(at::Preview, &preview);
        g_log.previewResult = r.preview;
        g_log.previewOut[0] = 200;
        g_log.previewOut[1] = -10;
        g_log.previewOut[2] = 45;
        const char *fields[] = {"panMinBox", "panBox", "panMaxBox", "tiltMinBox", "tiltBox",
            "tiltMaxBox", "minHfovBox", "hfovBox", "maxHfovBox"};
        Seen seen;
        driver()
            .then("MainDlg",
                [](QWidget *d) {
                    child<QSpinBox>(d, "widthBox")->setValue(1000);
                    child<QSpinBox>(d, "heightBox")->setValue(500);
                    clickLater(child<QPushButton>(d, "fovButton"));
                })
            .then("FovDlg",
                [&](QWidget *d) {
                    seen["frame"] = frameOf(d);
                    seen["group"] = child<QGroupBox>(d, "fovGroup")->title();
                    seen["explanation"] = child<QLabel>(d, "explanationLabel")->text();
                    QVariantList values, editable;
                    for (const char *name : fields) {
                        auto *box = child<QDoubleSpinBox>(d, name);
                        values << box->value();
                        editable << (box->isEnabled() && !box->isReadOnly());
                    }
                    seen["values"] = values;
                    seen["editable"] = editable;
                    seen["tilt min buttons"]
                        = int(child<QDoubleSpinBox>(d, "tiltMinBox")->buttonSymbols());
                    auto *previewButton = child<QPushButton>(d, "previewButton");
                    seen["preview enabled"] = previewButton->isEnabled();
                    child<QDoubleSpinBox>(d, "minHfovBox")->setValue(30);
                    if (r.preview >= 0)
                        previewButton->click();
                    QVariantList after;
                    for (const char *name : {"panBox", "tiltBox", "hfovBox"})
                        after << child<QDoubleSpinBox>(d, name)->value();
                    seen["after preview"] = after;
                    pressLater(d, r.accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
                })
            .then("MainDlg", cancelMain);
        prepare(m_out + "tour");

        QCOMPARE(seen["frame"].toList(), frame("Sichtfeld-Einstellungen"));
        QCOMPARE(seen["group"].toString(), "Sichtfeld");
        VANTORA_COMPARE_TEXT(seen["explanation"].toString(),
            "Die Blickrichtung zu Beginn kann mittels 'Pan' und 'Tilt' eingestellt werden. Das "
            "Sichtfeld zu Beginn sowie die minimalen und maximalen Werte können über die Felder "
            "in der Zeile 'HFov' eingestellt werden.");
        // Rows pan, tilt, hfov; columns Min., start, Max. The tilt bounds negated and swapped.
        QCOMPARE(seen["values"].toList(),
            QVariantList({10.0, 100.0, 350.0, -60.0, 5.0, 30.0, 20.0, 70.0, 120.0}));
        QCOMPARE(seen["editable"].toList(),
            QVariantList({false, true, false, false, true, false, true, true, true}));
        QCOMPARE(seen["tilt min buttons"].toInt(), int(QAbstractSpinBox::NoButtons));
        QCOMPARE(seen["preview enabled"].toBool(), r.preview >= 0);
        if (r.preview >= 0) {
            QCOMPARE(g_log.previews, 1);
            QCOMPARE(g_log.previewIn, QList<double>({100, 5, 70, 30, 120}));
            QCOMPARE(g_log.previewArgs, QList<qint64>({1000, 500, 0x1234567890ll}));
        }
        const QVariantList after = r.preview == 1 ? QVariantList({200.0, -10.0, 45.0})
                                                  : QVariantList({100.0, 5.0, 70.0});
        QCOMPARE(seen["after preview"].toList(), after);
        QCOMPARE(savedView(), QList<double>(std::begin(r.view), std::end(r.view)));
        expectHooks({"MainDlg", "FovDlg"});
    }

    // Each dialog at 100 % and 200 % (the host's scale factor and a font twice as large), in
    // German and English: no text is cut. With VANTORA_SCREENSHOTS set to a folder, each dialog
    // is saved there as <dialog>_<row>.png.
    void layout_data() { addRows(LAYOUT_ROWS); }
    void layout()
    {
        QFETCH(int, row);
        const auto &r = LAYOUT_ROWS[row];
        QLocale::setDefault(QLocale(r.language, r.country));
        const QFont font = QApplication::font();
        QFont scaled = font;
        scaled.setPointSizeF(font.pointSizeF() * r.scale);
        QApplication::setFont(scaled);
        g_log.uiScale = r.scale;
        const QString folder = qEnvironmentVariable("VANTORA_SCREENSHOTS");
        QMap<QString, QStringList> cut;
        int minimumEdit = 0;
        const auto look = [&](const char *name) {
            return [&, name](QWidget *d) {
                cut[name] = cutTexts(d);
                if (!folder.isEmpty())
                    QVERIFY(d->grab().save(folder + '/' + QString(name).toLower() + '_'
                        + QTest::currentDataTag() + ".png"));
            };
        };
        driver()
            .then("MainDlg",
                [&](QWidget *d) {
                    look("MainDlg")(d);
                    minimumEdit = child<QLineEdit>(d, "filenameEdit")->minimumWidth();
                    clickLater(child<QPushButton>(d, "fovButton"));
                })
            .then("FovDlg",
                [&](QWidget *d) {
                    look("FovDlg")(d);
                    pressLater(d, QDialogButtonBox::Cancel);
                })
            .then("MainDlg", [](QWidget *d) { clickLater(child<QPushButton>(d, "qualityButton")); })
            .then("QualityDlg",
                [&](QWidget *d) {
                    look("QualityDlg")(d);
                    pressLater(d, QDialogButtonBox::Cancel);
                })
            .then("MainDlg", cancelMain);
        m_host->put(at::ImageWidth, u32(12000), at::ImageHeight, u32(6000));
        prepare("C:\\Users\\Anna\\Panoramen\\Hafen");
        QApplication::setFont(font);

        QCOMPARE(cut.keys(), QStringList({"FovDlg", "MainDlg", "QualityDlg"}));
        for (auto it = cut.cbegin(); it != cut.cend(); ++it)
            QVERIFY2(it.value().isEmpty(), qPrintable(it.key() + ": " + it.value().join(", ")));
        // Fixed pixel sizes follow the host's scale factor.
        QCOMPARE(minimumEdit, 420 * r.scale);
    }

    // The page cannot be written: the critical box names it, and nothing is written.
    void unwritablePage_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QStringList>("box"); // title, text before and after the path
        QTest::addRow("de_DE") << QLocale(QLocale::German, QLocale::Germany)
                               << QStringList(
                                      {"Fehler", "Die Datei ", " kann nicht geschrieben werden!"});
        QTest::addRow("en_GB") << QLocale(QLocale::English, QLocale::UnitedKingdom)
                               << QStringList({"Error", "The file ", " cannot be written!"});
    }
    void unwritablePage()
    {
        QFETCH(QLocale, locale);
        QFETCH(QStringList, box);
        QLocale::setDefault(locale);
        QVERIFY(writeFileBytes(m_out + "plain.txt", "a file, not a folder"));
        const QString page = QDir::toNativeSeparators(m_out + "plain.txt/tour.html");
        driver().then("MainDlg", [&](QWidget *d) {
            child<QLineEdit>(d, "filenameEdit")->setText(page);
            pressLater(d, QDialogButtonBox::Save);
        });
        prepare(m_out + "tour");
        QVariantList seen;
        driver().then("QMessageBox", [&](QWidget *d) {
            seen = boxSeen(d);
            pressLater(d, QMessageBox::Ok);
        });
        QCOMPARE(call(1), 1ull);
        QCOMPARE(seen,
            QVariantList({box[0], box[1] + page + box[2], int(QMessageBox::Critical), false}));
        QCOMPARE(g_log.tiles, 0);
        QCOMPARE(QDir(m_out).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
            QStringList("plain.txt"));
    }

    // The dialogs' texts: English only for an English default locale, German for every other.
    void texts_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QStringList>("texts");
        const QStringList german = {"Interaktives HTML5-Panorama/Zoom-Bild speichern...", "Ausgabe",
            "Fenstergröße", "Ausgabegröße Panoramabild", "Interaktives 3D-Panorama",
            "Flaches 2D-Zoom-Bild", "10000x5000 Pixel", "50.00 Megapixel",
            "Erweiterte Einstellungen...", "geringe Qualität / kleine Dateien", "normale Qualität",
            "hohe Qualität / große Dateien"};
        const QStringList english = {"Save Interactive HTML5 Panorama/Zoom Image...", "Output",
            "Window Size", "Output Size of the Panorama Image", "Interactive 3D panorama",
            "Flat 2D zoom image", "10000x5000 pixels", "50.00 megapixels", "Advanced Settings...",
            "low quality / small files", "normal quality", "high quality / large files"};
        QTest::addRow("en_GB") << QLocale(QLocale::English, QLocale::UnitedKingdom) << english;
        QTest::addRow("en_US") << QLocale(QLocale::English, QLocale::UnitedStates) << english;
        QTest::addRow("fr_FR") << QLocale(QLocale::French, QLocale::France) << german;
        QTest::addRow("C") << QLocale::c() << german;
    }
    void texts()
    {
        QFETCH(QLocale, locale);
        QFETCH(QStringList, texts);
        QLocale::setDefault(locale);
        m_host->put(at::ImageWidth, u32(10000), at::ImageHeight, u32(5000));
        QStringList seen;
        driver()
            .then("MainDlg",
                [&](QWidget *d) {
                    seen << d->windowTitle();
                    for (auto *group : d->findChildren<QGroupBox *>())
                        seen << group->title();
                    seen << itemsOf(child<QComboBox>(d, "typeBox"))
                         << child<QLabel>(d, "sizeLabel")->text()
                         << child<QLabel>(d, "megapixelLabel")->text()
                         << child<QPushButton>(d, "settingsButton")->text();
                    clickLater(child<QPushButton>(d, "qualityButton"));
                })
            .then("QualityDlg",
                [&](QWidget *d) {
                    seen << itemsOf(child<QComboBox>(d, "qualityBox"));
                    pressLater(d, QDialogButtonBox::Cancel);
                })
            .then("MainDlg", cancelMain);
        prepare(m_out + "tour");
        QCOMPARE(seen, texts);
    }
};

QTEST_MAIN(tst_Dialogs)
#include "tst_dialogs.moc"
