// Exports and the view commands through the built library's one entry point, as a host drives
// them: result codes, the page, names, buffers, the start view and its blocks, the parameter file,
// the tile writer's request and hotspots.
#include "common/hostbuilder.h"
#include "common/scriptcheck.h"
#include "common/textcompare.h"
#include "settings/settingsblock.h"
#include "settings/settingstable.h"

#include <QDir>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QRegularExpression>
#include <QtTest>

#include <cmath>
#include <cstring>
#include <memory>
#include <utility>

using namespace vantora::test;
using u32 = std::uint32_t;

namespace {

QString operator""_q(const char *text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

// clang-format off
constexpr char FULL_WINDOW_TEMPLATE[] =
"<!DOCTYPE HTML>\n  \t   <html><head>\n\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n\t\t<meta property=\"og:image\" content=\"%s\">\n\t\t<title>%s</title>\n\t\t</head>\n\t\t<body>\n\t\t\t \t<div align=\"center\" style=\"height: 100%%; overflow:hidden;\">\n\t\t\t\t<noscript><div style=\"color: red; width: 30%%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n\t\t\t\t<div id=\"vantoViewerID\" style=\"position: absolute; left: 0px; top: 0px; width: 100%% ; height: 100%% ;\"></div>\n\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"%s\",{%s});</script>\n\t\t\t</div>\n\t\t</body></html>\n";
constexpr char FIXED_SIZE_TEMPLATE[] =
"<!DOCTYPE HTML>\n  \t\t   <html><head>\n\t\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n\t\t\t<meta property=\"og:image\" content=\"%s\">\n\t\t\t<title>%s</title>\n\t\t\t</head>\n\t\t\t<body>\n\t\t\t\t<div align=\"center\" style=\"height: %dpx;\">\n\t\t\t\t<noscript><div style=\"color: red; width: 30%%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n\t\t\t\t<div id=\"vantoViewerID\" style=\"position: relative; margin: auto; padding: 0px; left: 0px; top: 0px; width: %dpx; height: %dpx;\"></div>\n\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"%s\",{%s});</script>\n\t\t\t\t</div>\n\t\t\t</body></html>\n";
// clang-format on
constexpr char PARAMS_OPENING[] = "VantoraViewerParams = {\n\"vantoraViewer\": {\n";
constexpr char VIEWER_SCRIPT[] = "/* test viewer */\nvar vantoViewer = {};\n";
constexpr quint64 SENTINEL = 0xDEADBEEFCAFEF00Dull;

QString readText(const QString &path)
{
    return QString::fromUtf8(readFileBytes(path));
}

// Computed views are compared to 1e-9 degrees.
QList<double> rounded(QList<double> values)
{
    for (double &value : values)
        value = std::round(value * 1e9) / 1e9;
    return values;
}

// Files and folders below `folder`, relative, folders with a trailing '/', sorted.
QStringList entriesBelow(const QString &folder)
{
    QStringList entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
        QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        entries << QDir(folder).relativeFilePath(it.filePath())
                + (it.fileInfo().isDir() ? "/" : "");
    }
    entries.sort();
    return entries;
}

// ---- The test host's operations, and what they saw since the last test began.

struct HostLog
{
    int starts = 0, closes = 0, tiles = 0;
    bool startArgumentNull = true;
    HostContext *closeArgument = nullptr, *tileHost = nullptr;
    u32 tileStatus = 1;
    QString renameTo;           // non-empty: the tile writer rewrites the identifier to it
    HostTileRequest request {}; // as the tile writer got it; its pointers are stale afterwards
    QString outputFolder, identifier;
    QList<int> setterResults; // a good "image", then three values the setter must refuse
    QStringList resources;    // "source -> target"
} g_log;

QString imageMember(const QString &id)
{
    return R"({"height":32,"type":"single","url":"%1_tiles/%1_0.jpg","width":64})"_q.arg(id);
}

void hostStart(void *reserved)
{
    ++g_log.starts;
    g_log.startArgumentNull = g_log.startArgumentNull && !reserved;
}

void hostClose(HostContext *host)
{
    ++g_log.closes;
    g_log.closeArgument = host;
}

u32 writeTiles(HostContext *host, HostTileRequest *request)
{
    ++g_log.tiles;
    g_log.tileHost = host;
    g_log.request = *request;
    g_log.outputFolder = QString::fromUtf16(request->outputFolder);
    g_log.identifier = QString::fromUtf16(request->identifier);
    QString id = g_log.identifier;
    if (!g_log.renameTo.isEmpty() && u32(g_log.renameTo.size()) < request->identifierCapacity) {
        id = g_log.renameTo;
        const std::u16string utf16 = id.toStdU16String();
        std::copy(utf16.c_str(), utf16.c_str() + utf16.size() + 1, request->identifier);
    }
    QDir().mkpath(g_log.outputFolder + id + "_tiles");
    writeFileBytes(g_log.outputFolder + id + "_tiles/" + id + "_thumb.jpg", "thumbnail");
    const auto set = [request](const char *key, const QByteArray &value) {
        return request->setNodeMember(request->node, key, value.constData());
    };
    g_log.setterResults = {set("image", imageMember(id).toUtf8()), set("truncated", "{\"a\": "),
        set("twoValues", "1 2"), set("", "1")};
    return g_log.tileStatus;
}

u32 exportResource(const char16_t *source, const char16_t *target)
{
    g_log.resources << QString::fromUtf16(source) + " -> " + QString::fromUtf16(target);
    writeFileBytes(QString::fromUtf16(target), "resource");
    return 1;
}

// ---- The case tables.

template <class Row, std::size_t N> void addRows(const Row (&rows)[N])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < N; ++i)
        QTest::addRow("%s", rows[i].name) << int(i);
}

// clang-format off
// Prepared in out/: a folder (makeFolder), a plain file (makeFile); target: relative to out/;
// tiles: the tile writer's status, -1 for no tile writer. wrote: the host's start and close ran
// and the viewer script was copied.
constexpr struct {
    const char *name, *makeFolder, *makeFile, *target; int tiles; bool viewerScript;
    quint64 result; bool wrote, pageWritten;
} RESULT_ROWS[] = {
    {"done",                            "",          "",          "tour.html",           1,  true,  0, true,  true},
    {"page name is a folder",           "tour.html", "",          "tour.html",           1,  true,  1, false, false},
    {"target folder is a file",         "",          "plain.txt", "plain.txt/tour.html", 1,  true,  1, false, false},
    {"parameter file name is a folder", "tour.json", "",          "tour.html",           1,  true,  2, true,  false},
    {"tile writer reports failure",     "",          "",          "tour.html",           0,  true,  2, true,  false},
    {"no tile writer",                  "",          "",          "tour.html",           -1, true,  2, true,  false},
    {"no viewer script",                "",          "",          "tour.html",           1,  false, 5, false, false},
};

// title and webglWarning reach the library through a settings block; the first row keeps the
// defaults. The title goes in as it is: no escaping, and a '%' is no format.
constexpr struct { const char *name, *base; bool fitToPage; int width, height; const char *title; bool webglWarning; } PAGE_ROWS[] = {
    {"full window, defaults", "tour", true, 800, 600, "", false},
    {"fixed 1024x300, WebGL warning on: no options", "garden", false, 1024, 300, "Alpen", true},
    {"blank and umlaut in the name, title unescaped", "Hof S\u00fcd", true, 640, 480, "Blick <\u00fcber> \"100%\" & mehr", false},
};

// target: "@" stands for the output folder, "@\" for it with its last '/' as a backslash; without
// "@" the target is a bare file name in the current folder. base: the expected B of B.html etc.
// The last rows lend no output buffer, or take the path buffer away before command 1.
constexpr struct { const char *name, *target, *base; bool outputBuffer = true, pathBufferAtWrite = true; } NAME_ROWS[] = {
    {"tour.html", "@tour.html", "tour"},
    {"no extension", "@tour", "tour"},
    {".htm", "@tour.htm", "tour"},
    {"two dots: the page name is cut again", "@my.tour.html", "my"},
    {"backslash before the name", "@\\tour.html", "tour"},
    {"bare file name", "tour.html", "tour"},
    {"no output buffer", "@tour.htm", "tour", false},
    {"no path buffer when writing", "@tour.htm", "tour", true, false},
};

// view: hfov, maxhfov, minhfov, pan, tilt (the block's order). The host's stored view besides its
// field of view is pan 12.5, tilt -7.25, smallest 10, largest 120.
constexpr struct { const char *name; double startPan, endPan, upperEdge, lowerEdge, storedHfov, view[5]; } VIEW_ROWS[] = {
    {"full sphere from 0: capped at 90", 0, 360, -90, 90, 0, {90, 140, 5, 180, 0}},
    {"full sphere from -180", -180, 180, -90, 90, 0, {90, 140, 5, 0, 0}},
    {"full sphere from 40", 40, 400, -90, 90, 0, {90, 140, 5, 220, 0}},
    {"strip 120 x 40: vertical extent limits", 10, 130, -20, 20, 0, {60, 140, 5, 70, 0}},
    {"strip, vertical bounds swapped", 10, 130, 20, -20, 0, {60, 140, 5, 70, 0}},
    {"narrow 50 x 180: horizontal extent limits", -25, 25, -90, 90, 0, {45, 140, 5, 0, 0}},
    {"stored field of view negative", 0, 360, -90, 90, -10, {90, 140, 5, 180, 0}},
    {"stored view", 0, 360, -90, 90, 75, {75, 120, 10, 12.5, -7.25}},
    {"tiny stored field of view", 0, 360, -90, 90, 0.001, {0.001, 120, 10, 12.5, -7.25}},
};

constexpr struct { const char *name; u32 sizeWord, zeroWord; bool nullAddress, accepted; } RESTORE_ROWS[] = {
    {"valid block", 48, 0, false, true},
    {"second word 1", 48, 1, false, false},
    {"size 47", 47, 0, false, false},
    {"null block address", 48, 0, true, false},
};

constexpr struct { const char *name; bool flat; const char *renameTo; } TILE_ROWS[] = {
    {"panorama", false, ""},
    {"flat image", true, ""},
    {"identifier rewritten by the host", false, "renamed"},
};
// The hotspots of tst_ExportApplet::hotspots(), their info box aside.
constexpr char HOTSPOTS_JSON[] = "["
    R"({"bitmap": "link.png", "bitmapscale": "1.0;1.1", "bitmaptype": "floating", "opacity": "1.00;1.00", "position": "180.0000,-45.0000", "unit": "deg", "transition": "zoomin,2;blend,2", "href": "https://example.com/next.html", "target": "_self"},)"
    R"({"bitmap": "info.png", "bitmapscale": "1.0;1.1", "bitmaptype": "floating", "opacity": "1.00;1.00", "position": "90.0000,0.0000", "unit": "deg", "href": "javascript:", "onclick": "function(){ this.viewer.action('toggleMessage',this.hsinfo); }", "textbox": {"text": "Info", "align": "top", "style": "color:#ffffff; font-family: Arial, Helvetica, sans-serif; font-size: 12px; font-weight: normal; text-align:center; display: inline;"}},)"
    R"({"bitmap": "pap_pin.png", "bitmapscale": "1.0;1.1", "bitmaptype": "floating", "opacity": "0.75;0.40", "position": "0.0000,-90.0000", "unit": "deg"})"
    "]";
// clang-format on

} // namespace

class tst_ExportApplet : public QObject, BenchUser
{
    Q_OBJECT

    QString m_viewerScript, m_savedCurrentPath;
    QStringList m_unexpected;

    // The entry point with a fresh in/out word holding `in`; the word afterwards.
    quint64 call(u32 command, quint64 in = SENTINEL)
    {
        std::uint64_t word = in;
        if (const std::uint64_t returned = m_entry(command, m_host->context(), &word))
            m_unexpected << "command %1 returned %2"_q.arg(command).arg(returned);
        return word;
    }

    // Command 0 with `target` in the path buffer, then command 1; command 1's result.
    quint64 exportTo(const QString &target)
    {
        m_host->setPath(target);
        if (const quint64 prepared = call(0))
            m_unexpected << "command 0 gave %1"_q.arg(prepared);
        return call(1);
    }

    // Command 4's block read by its offsets, then command 5; in the block's order.
    QList<double> savedView()
    {
        const std::uint64_t address = call(4, 0);
        const auto *block = reinterpret_cast<const unsigned char *>(std::uintptr_t(address));
        u32 words[2] = {};
        double view[5] = {};
        if (address != 0 && address % 8 == 0) {
            std::memcpy(words, block, sizeof words);
            std::memcpy(view, block + 8, sizeof view);
        }
        if (words[0] != 48 || words[1] != 0)
            m_unexpected << "view block starts %1 %2"_q.arg(words[0]).arg(words[1]);
        call(5);
        return rounded(QList<double>(std::begin(view), std::end(view)));
    }

    // Offsets 328..360, in the block's order.
    QList<double> hostView() const
    {
        return rounded({m_host->get<double>(at::ViewHfov), m_host->get<double>(at::ViewMaxHfov),
            m_host->get<double>(at::ViewMinHfov), m_host->get<double>(at::ViewPan),
            m_host->get<double>(at::ViewTilt)});
    }

private slots:
    void initTestCase()
    {
        QString error;
        m_entry = loadExportEntry(VANTORA_EXPORT_LIBRARY, &error);
        QVERIFY2(m_entry, qPrintable(error));
    }

    // A non-interactive export of the bench's full sphere into out/, every test host operation
    // installed.
    void init()
    {
        g_log = HostLog();
        m_savedCurrentPath = QDir::currentPath();
        QVERIFY(newBench(VIEWER_SCRIPT, 1));
        m_viewerScript = m_bench->viewerScript;
        m_host->put(at::LinearVertical, u32(1), at::NonInteractive, u32(1), at::Start, &hostStart,
            at::Close, &hostClose, at::WriteTiles, &writeTiles, at::ExportResource,
            &exportResource);
    }

    void cleanup()
    {
        QDir::setCurrent(m_savedCurrentPath);
        const QStringList unexpected = std::exchange(m_unexpected, QStringList());
        QVERIFY2(unexpected.isEmpty(), qPrintable(unexpected.join('\n')));
    }

    // Runs first: the freshly loaded library has nothing prepared.
    void writeWithoutPrepare()
    {
        QCOMPARE(call(1), 0ull);
        QCOMPARE(g_log.starts, 0);
        QCOMPARE(entriesBelow(m_out), QStringList());
    }

    void resultCodes_data() { addRows(RESULT_ROWS); }
    void resultCodes()
    {
        QFETCH(int, row);
        const auto &r = RESULT_ROWS[row];
        const QString page = m_out + "tour.html";
        QVERIFY(!*r.makeFolder || QDir().mkpath(m_out + r.makeFolder));
        QVERIFY(!*r.makeFile || writeFileBytes(m_out + r.makeFile, "not a folder"));
        QVERIFY(r.viewerScript || QFile::remove(m_viewerScript));
        g_log.tileStatus = u32(r.tiles);
        if (r.tiles < 0)
            m_host->put(at::WriteTiles, HostWriteTilesFn(nullptr));
        m_host->fillHostBytes(0xA5);
        const QStringList before = entriesBelow(m_out);

        QCOMPARE(exportTo(m_out + r.target), r.result);
        QCOMPARE(g_log.starts, r.wrote ? 1 : 0);
        QCOMPARE(g_log.closes, r.wrote ? 1 : 0);
        QVERIFY(g_log.startArgumentNull);
        QCOMPARE(g_log.closeArgument, r.wrote ? m_host->context() : nullptr);
        // A failed export leaves the folder as it was; what the host's tile writer did there
        // is the host's own business.
        QCOMPARE(QFileInfo::exists(m_out + "vantoViewer.js"), r.result == 0);
        QCOMPARE(readText(page).startsWith("<!DOCTYPE HTML>"), r.pageWritten);
        const auto library = [](QStringList entries) {
            return entries.filter(QRegularExpression("^(?!tour_tiles)"));
        };
        if (r.result != 0)
            QCOMPARE(library(entriesBelow(m_out)), library(before));
        // The page path goes back to the host only after a successful run.
        QCOMPARE(m_host->pathText(), r.result == 0 ? page : QString());
        QCOMPARE(m_host->hostBytesChanged(0xA5), QString());

        // Each command 0 allows one command 1, whatever its result.
        QVERIFY(writeFileBytes(m_viewerScript, VIEWER_SCRIPT));
        g_log.tileStatus = 1;
        QCOMPARE(call(1), 0ull);
        QCOMPARE(g_log.starts, r.wrote ? 1 : 0);
    }

    void page_data() { addRows(PAGE_ROWS); }
    void page()
    {
        QFETCH(int, row);
        const auto &r = PAGE_ROWS[row];
        const QString base = r.base, page = m_out + base + ".html", copy = m_out + "vantoViewer.js";
        if (*r.title || r.webglWarning) {
            vantora::settings::ViewerSettings settings;
            resetViewerSettings(settings, false);
            settings.Title64 = QString::fromUtf8(r.title);
            settings.ShowWebGLWarning = r.webglWarning;
            const QByteArray block = vantora::settings::encodeSettingsBlock(settings);
            call(6, quint64(std::uintptr_t(block.constData())));
        }
        // An existing page is replaced; a read-only viewer script still gives a writable copy.
        QVERIFY(writeFileBytes(page, QByteArray(5000, 'x')));
        QVERIFY(QFile::setPermissions(m_viewerScript, QFileDevice::ReadOwner));
        m_host->put(
            at::FitToPage, u32(r.fitToPage), at::PageWidth, r.width, at::PageHeight, r.height);

        QCOMPARE(exportTo(page), 0ull);

        // Paths the library builds, the thumbnail path among them, use the platform's separator.
        const QString thumbnail = base + "_tiles" + QDir::separator() + base + "_thumb.jpg";
        const QByteArray thumb = thumbnail.toUtf8(), params = (base + ".json").toUtf8();
        const char *options = r.webglWarning ? "" : "html5:\"disable_webgl_warning\"";
        const QString expected = r.fitToPage
            ? QString::asprintf(FULL_WINDOW_TEMPLATE, thumb.data(), r.title, params.data(), options)
            : QString::asprintf(FIXED_SIZE_TEMPLATE, thumb.data(), r.title, r.height, r.width,
                r.height, params.data(), options);
        VANTORA_COMPARE_TEXT(readText(page), expected);
        QCOMPARE(readFileBytes(page), expected.toUtf8());
        QCOMPARE(readFileBytes(copy), QByteArray(VIEWER_SCRIPT));
        QVERIFY(QFileInfo(copy).permissions() & QFileDevice::WriteOwner);
    }

    void outputNames_data() { addRows(NAME_ROWS); }
    void outputNames()
    {
        QFETCH(int, row);
        const auto &r = NAME_ROWS[row];
        QString target = r.target;
        const bool bare = !target.startsWith('@');
        if (bare)
            QVERIFY(QDir::setCurrent(m_out));
        else
            target = (target.startsWith("@\\") ? m_out.chopped(1) : m_out) + target.mid(1);
        const QString base = r.base, page = base + ".html", params = base + ".json";
        const QString pagePath = (bare ? QString() : m_out) + page;
        if (!r.outputBuffer)
            m_host->put<char16_t *>(at::OutputPath, nullptr);

        // Command 0 empties the path buffer and hands the chosen target back.
        m_host->setPath(target);
        QCOMPARE(call(0), 0ull);
        QCOMPARE(m_host->pathText(), QString());
        QCOMPARE(m_host->outputText(), r.outputBuffer ? target : QString());
        if (!r.pathBufferAtWrite)
            m_host->put<char16_t *>(at::PathBuffer, nullptr);
        QCOMPARE(call(1), 0ull);
        QCOMPARE(m_host->outputText(), r.outputBuffer ? pagePath : QString());
        QCOMPARE(m_host->pathText(), r.pathBufferAtWrite ? pagePath : QString());
        QCOMPARE(g_log.identifier, base);
        // The controls file lies next to the parameter file, named after the page.
        const QStringList expected = {page, params, base + "_controls.json", base + "_tiles/",
            base + "_tiles/" + base + "_thumb.jpg", "vantoViewer.js"};
        QCOMPARE(entriesBelow(m_out), expected);
        QVERIFY(readText(m_out + base + "_controls.json").startsWith(PARAMS_OPENING));
        const QJsonObject root = viewerRoot(m_out + params);
        QCOMPARE(root.value("node").toObject().value("id").toString(), base);
        // No gallery is wanted by default: "include" names the controls file alone.
        QCOMPARE(root.value("include").toArray(),
            QJsonArray({QJsonObject({{"src", base + "_controls.json"}})}));
        QVERIFY(readText(m_out + page).contains('"' + params + '"'));
    }

    void defaultView_data() { addRows(VIEW_ROWS); }
    void defaultView()
    {
        QFETCH(int, row);
        const auto &r = VIEW_ROWS[row];
        const QList<double> expected(std::begin(r.view), std::end(r.view));
        m_host->put(at::StartPan, r.startPan, at::EndPan, r.endPan, at::UpperEdge, r.upperEdge,
            at::LowerEdge, r.lowerEdge, at::ViewPan, 12.5, at::ViewTilt, -7.25, at::ViewHfov,
            r.storedHfov, at::ViewMinHfov, 10.0, at::ViewMaxHfov, 120.0);

        m_host->setPath(m_out + "tour.html");
        QCOMPARE(call(0), 0ull);
        QCOMPARE(savedView(), expected);
        // Command 7 without a block computes the same view.
        call(7, 0);
        QCOMPARE(savedView(), expected);
        // The export hands the view to the tile writer and writes it back to the host.
        QCOMPARE(exportTo(m_out + "tour.html"), 0ull);
        const HostTileRequest &q = g_log.request;
        QCOMPARE(rounded({q.hfov, q.maxhfov, q.minhfov, q.pan, q.tilt}), expected);
        QCOMPARE(hostView(), expected);
    }

    void restoreView_data() { addRows(RESTORE_ROWS); }
    void restoreView()
    {
        QFETCH(int, row);
        const auto &r = RESTORE_ROWS[row];
        const double view[5] = {33, 100, 20, 45.5, -12.25};
        alignas(8) unsigned char block[48];
        std::memcpy(block, &r.sizeWord, 4);
        std::memcpy(block + 4, &r.zeroWord, 4);
        std::memcpy(block + 8, view, sizeof view);
        const QList<double> computed = {90, 140, 5, 0, 0};
        const QList<double> expected = r.accepted ? QList<double>(view, view + 5) : computed;

        call(7, r.nullAddress ? 0 : std::uint64_t(reinterpret_cast<std::uintptr_t>(block)));
        // Without an in/out word commands 6 and 7 do nothing: the restore still stands.
        QCOMPARE(m_entry(7, m_host->context(), nullptr), std::uint64_t(0));
        QCOMPARE(m_entry(6, m_host->context(), nullptr), std::uint64_t(0));
        QCOMPARE(exportTo(m_out + "tour.html"), 0ull);
        QCOMPARE(hostView(), expected);
        QCOMPARE(savedView(), expected);

        // A restore counts for one export only.
        m_host->put(at::ViewHfov, 0.0).setPath(m_out + "tour.html");
        QCOMPARE(call(0), 0ull);
        QCOMPARE(savedView(), computed);
    }

    void blockCommands()
    {
        m_host->setPath(m_out + "tour.html");
        QCOMPARE(call(0), 0ull);
        // A second command 4 replaces the block; commands 3 and 5 leave the word alone and free
        // once, a second time nothing. (A second command 2 would leave its first block to the
        // host, which has no way to free it: the leak checker rightly counts that.)
        call(2);
        QCOMPARE(call(3), SENTINEL);
        QCOMPARE(call(3), SENTINEL);
        QVERIFY(call(4, 0) != 0);
        QVERIFY(call(4, 0) != 0);
        QCOMPARE(call(5), SENTINEL);
        QCOMPARE(call(5), SENTINEL);
        QCOMPARE(savedView(), QList<double>({90, 140, 5, 0, 0}));
        // An unknown command writes 0 and does nothing else.
        QCOMPARE(call(8), 0ull);
        QCOMPARE(call(0xFFFFFFFF), 0ull);
        QCOMPARE(g_log.starts, 0);
        QCOMPARE(entriesBelow(m_out), QStringList());
    }

    // A hand-built block of the current version, restored before command 0, shapes the export; the
    // block of command 2 restores to the same settings; without a new block the next export starts
    // from the defaults.
    void settingsBlock()
    {
        using namespace vantora::settings;
        const QByteArray block = readFileBytes(VANTORA_TEST_DATA "/blocks/markers_v12.bin");
        QVERIFY(block.size() > 133);
        call(6, quint64(std::uintptr_t(block.constData())));
        m_host->setPath(m_out + "tour.html");
        QCOMPARE(call(0), 0ull);

        const auto *saved = reinterpret_cast<const unsigned char *>(std::uintptr_t(call(2, 0)));
        QVERIFY(saved);
        ViewerSettings given, returned;
        resetViewerSettings(given, false);
        resetViewerSettings(returned, false);
        QVERIFY(
            decodeSettingsBlock(reinterpret_cast<const unsigned char *>(block.constData()), given));
        QVERIFY(decodeSettingsBlock(saved, returned));
        QCOMPARE(differingFields(returned, given), QList<const char *>());
        QCOMPARE(call(3), SENTINEL);

        QCOMPARE(call(1), 0ull);
        QVERIFY(QFileInfo::exists(m_out + "tour.js"));
        QVERIFY(!QFileInfo::exists(m_out + "tour.json"));
        QVERIFY(readText(m_out + "tour.html").contains("<title>Gipfel über Zürich</title>"));

        QCOMPARE(exportTo(m_out + "again.html"), 0ull);
        QVERIFY(QFileInfo::exists(m_out + "again.json"));
    }

    void tileRequest_data() { addRows(TILE_ROWS); }
    void tileRequest()
    {
        QFETCH(int, row);
        const auto &r = TILE_ROWS[row];
        m_host->put(at::FlatImage, u32(r.flat), at::ImageWidth, u32(5000), at::ImageHeight,
            u32(1800), at::StartPan, -100.0, at::EndPan, 140.0, at::UpperEdge, -30.0, at::LowerEdge,
            50.0);
        g_log.renameTo = r.renameTo;

        QCOMPARE(exportTo(m_out + "tour.html"), 0ull);

        const HostTileRequest &q = g_log.request;
        QCOMPARE(g_log.tiles, 1);
        QCOMPARE(g_log.tileHost, m_host->context());
        QCOMPARE(g_log.outputFolder, m_out);
        // size, flat mode, scale, output width and height
        QCOMPARE(QList<u32>(
                     {q.size, u32(q.flatMode != 0), q.scalePercent, q.outputWidth, q.outputHeight}),
            QList<u32>({u32(sizeof(HostTileRequest)), r.flat, 100, 5000, 1800}));
        QCOMPARE(QList<double>({q.startPan, q.endPan, q.upperEdgeTilt, q.lowerEdgeTilt}),
            QList<double>({-100, 140, -30, 50}));
        // The node setter takes one well-formed value under a non-empty key and refuses the rest.
        QCOMPARE(g_log.setterResults, QList<int>({1, 0, 0, 0}));

        // The file is framed for the viewer, "version" sorting last among the root's members and
        // no line feed at its end; the host's "image" stands on one line of the node.
        const QString id = *r.renameTo ? r.renameTo : "tour",
                      params = readText(m_out + "tour.json");
        QVERIFY2(
            params.startsWith(PARAMS_OPENING) && params.endsWith("\n\"version\": \"4.1\"\n}\n}"),
            qPrintable(params));
        QVERIFY2(params.contains("\n\t\"image\":" + imageMember(id) + ",\n"), qPrintable(params));
        // Every line of the node, and no other, is indented by a tab.
        const QStringList lines = params.split('\n');
        const int nodeStart = lines.indexOf("\"node\": {");
        const int nodeEnd = lines.indexOf(QRegularExpression("^},?$"), nodeStart);
        QVERIFY2(nodeStart > 1 && nodeEnd > nodeStart, qPrintable(params));
        for (int i = 2; i < lines.size() - 2; ++i)
            QVERIFY2(
                lines[i].startsWith('\t') == (i > nodeStart && i < nodeEnd), qPrintable(lines[i]));
        const QJsonObject node = viewerRoot(m_out + "tour.json").value("node").toObject();
        QCOMPARE(node.value("id").toString(), id);
        QVERIFY(!node.contains("truncated") && !node.contains("twoValues"));
        const QJsonObject view = node.value("view").toObject();
        if (r.flat)
            QCOMPARE(view, QJsonObject({{"mode", "fitInWindow"}}));
        else
            QCOMPARE(view.value("hfov").toDouble(), q.hfov);
    }

    void hotspots()
    {
        const QString infoFile = m_bench->root + "info.png", linkFile = m_bench->root + "link.png";
        QVERIFY(writeFileBytes(infoFile, QByteArray(700, 'i'))
            && writeFileBytes(linkFile, QByteArray(900, 'l')));
        const std::u16string infoPath = infoFile.toStdU16String(),
                             linkPath = linkFile.toStdU16String();
        // name, link address and target, info text, kind, action, position, internal bitmap, bitmap
        HostHotspot link = {nullptr, "https://example.com/next.html", "_self", nullptr, 1, 0,
            {0.5, 0.25}, 0, linkPath.c_str()};
        HostHotspot info
            = {"Info", nullptr, nullptr, "<b>Hallo</b>", 0, 1, {0.25, 0.5}, 0, infoPath.c_str()};
        HostHotspot pin
            = {nullptr, nullptr, nullptr, nullptr, 2, 2, {0, 0}, 0, u":/hotspots/pin.png"};
        link.transitionFlags = 3;
        pin.transparency = 25;
        pin.hoverTransparency = 60;
        // The null entry uses up no running number: the info hotspot is number 1.
        HostHotspot *const entries[] = {&link, nullptr, &info, &pin};
        const HostHotspotList list = {entries, entries + 4};
        m_host->put(at::Hotspots, &list);

        QCOMPARE(exportTo(m_out + "tour.html"), 0ull);

        // Bitmap files are copied beside the page; the host writes its own resources.
        QCOMPARE(readFileBytes(m_out + "link.png"), QByteArray(900, 'l'));
        QCOMPARE(readFileBytes(m_out + "info.png"), QByteArray(700, 'i'));
        QCOMPARE(g_log.resources, QStringList({":/hotspots/pin.png -> " + m_out + "pap_pin.png"}));

        // The info box inside "hsinfo" is its builder's business; here only its name counts.
        QJsonArray spots
            = viewerRoot(m_out + "tour.json").value("node").toObject().value("hotspot").toArray();
        QJsonObject infoJson = spots.at(1).toObject();
        QCOMPARE(infoJson.take("hsinfo").toObject().value("id").toString(), "hsinfo1"_q);
        spots.replace(1, infoJson);
        VANTORA_COMPARE_TEXT(QJsonDocument(spots).toJson(QJsonDocument::Compact),
            QJsonDocument::fromJson(HOTSPOTS_JSON).toJson(QJsonDocument::Compact));

        // Both files run in a script engine, their function texts included.
        VANTORA_VERIFY_SCRIPTS(
            vantora::test::checkScripts({m_out + "tour.json", m_out + "tour_controls.json"}));
    }
};

QTEST_MAIN(tst_ExportApplet)
#include "tst_exportapplet.moc"
