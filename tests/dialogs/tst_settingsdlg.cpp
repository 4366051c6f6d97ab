// The viewer settings dialog as a person meets it: opened from the main export dialog through the
// built library's entry point, driven from inside its exec() under the offscreen platform, its
// result read back through the settings block of command 2.
#include "common/hostbuilder.h"
#include "common/modaldriver.h"
#include "common/textcompare.h"
#include "settings/hostini.h"
#include "settings/settingsblock.h"
#include "settings/settingstable.h"
#include "settings/viewersettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QtTest>

#include <memory>
#include <type_traits>

using namespace vantora::test;
using vantora::settings::ContextMenuItem;
using vantora::settings::ViewerSettings;
using u32 = std::uint32_t;

namespace {

constexpr std::size_t GYRO_CAPABLE = 112, QUERY_LOCATION = 408, EDIT_LOCATION = 416;
const QString SPHERE_ONLY = QStringLiteral("Nur für 360x180°-Kugelpanoramen verfügbar.");

// What the host's location services say and saw.
struct Location
{
    bool orientation = true;
    bool location = true;
    int edits = 0;
} g_location;

void queryLocation(std::uint64_t, u32 *orientation, u32 *location)
{
    *orientation = g_location.orientation;
    *location = g_location.location;
}

// The host's editor: the user enters a location with its orientation.
void editLocation(std::uint64_t, void *)
{
    ++g_location.edits;
    g_location.orientation = g_location.location = true;
}

// One row of the control table (tests/data/dialogs/settings_controls.tsv).
struct Control
{
    int page;
    QString object, kind;
    QStringList labels;
    QString field; // a record field, "!" in front when the box shows its inverse
    QStringList items;
};

QList<Control> controlTable()
{
    QFile file(QStringLiteral(VANTORA_TEST_DATA "/dialogs/settings_controls.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read the control table");
    QList<Control> rows;
    for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QStringList cells = line.split('\t');
        const auto list
            = [](const QString &cell) { return cell.isEmpty() ? QStringList() : cell.split(';'); };
        rows.append(
            {cells[0].toInt(), cells[1], cells[2], list(cells[3]), cells[4], list(cells[5])});
    }
    return rows;
}

// A record field by name, as the widgets show it.
QVariant fieldOf(const ViewerSettings &record, const QString &name)
{
    QVariant value;
    vantora::settings::forEachField(record, [&](const auto &row, const auto &field) {
        using T = std::decay_t<decltype(field)>;
        if constexpr (!std::is_same_v<T, QList<ContextMenuItem>>) {
            if (name == QLatin1String(row.name))
                value = QVariant::fromValue(field);
        }
    });
    return value;
}

// What a control shows: a flag, an index, a number, a text, or a colour swatch's colour.
QVariant shownBy(QWidget *widget)
{
    if (auto *tool = qobject_cast<QToolButton *>(widget))
        return tool->icon()
                   .pixmap(tool->iconSize())
                   .toImage()
                   .pixel(tool->iconSize().width() / 2, tool->iconSize().height() / 2)
            & 0xFFFFFFu;
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        return button->isChecked();
    if (auto *group = qobject_cast<QGroupBox *>(widget))
        return group->isChecked();
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->isEditable() ? QVariant(combo->currentText())
                                   : QVariant(combo->currentIndex());
    if (auto *spin = qobject_cast<QSpinBox *>(widget))
        return spin->value();
    if (auto *spin = qobject_cast<QDoubleSpinBox *>(widget))
        return spin->value();
    if (auto *line = qobject_cast<QLineEdit *>(widget))
        return line->text();
    if (auto *text = qobject_cast<QPlainTextEdit *>(widget))
        return text->toPlainText();
    return {};
}

// Differences between the record and what the dialog shows, one line per control.
QStringList differencesShown(QWidget *dialog, const ViewerSettings &record)
{
    QStringList wrong;
    for (const Control &c : controlTable()) {
        if (c.field.isEmpty())
            continue;
        const bool inverted = c.field.startsWith('!');
        QVariant expected = fieldOf(record, inverted ? c.field.mid(1) : c.field);
        QVariant shown = shownBy(child<QWidget>(dialog, qPrintable(c.object)));
        if (expected.userType() == QMetaType::Bool && shown.userType() == QMetaType::Int)
            shown = shown.toInt() == 1; // a list of two: the second entry is true
        if (inverted)
            expected = !expected.toBool();
        if (shown != expected)
            wrong << QStringLiteral("%1 shows %2, %3 is %4")
                         .arg(c.object, shown.toString(), c.field, expected.toString());
    }
    return wrong;
}

// Every field of two records that differs, by name.
QStringList differences(const ViewerSettings &a, const ViewerSettings &b)
{
    QStringList names;
    for (const char *name : vantora::settings::differingFields(a, b))
        names << QLatin1String(name);
    return names;
}

// A record in which neighbouring fields of one type hold different values, so that two
// swapped controls cannot go unnoticed; within the ranges the dialog offers.
ViewerSettings distinctRecord()
{
    ViewerSettings s;
    vantora::settings::resetViewerSettings(s, true);
    bool flag = false;
    vantora::settings::forEachField(s, [&](const auto &, auto &field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, bool>)
            field = (flag = !flag);
    });
    s.Title64 = QStringLiteral("Hafen bei Nacht ä");
    s.ShortDescription64 = QStringLiteral("Der Hafen");
    s.LogoImage = QStringLiteral("C:\\Logos\\logo.png");
    s.LogoURL = QStringLiteral("https://example.org/");
    s.TextColor = 0x123456;
    s.ShadowColor = 0xA0B0C0;
    s.TBDesign = 5;
    s.Position = 2;
    s.Sound = QStringLiteral("C:\\Musik\\wind.mp3");
    s.InfoHTML64 = QStringLiteral("<b>Info</b>\nzweite Zeile");
    s.Restart = 37;
    s.PanRate = -12.5;
    s.TiltRate = 3.25;
    s.ZoomRate = 1.7;
    s.MouseMode = 0;
    s.TouchMode = 1;
    s.ZoomMode = 1;
    s.GalleryButtons = 2;
    s.GalleryPosition = 1;
    s.OrientationElement = 7;
    s.OrientationElementPosition = 2;
    s.MapPosition = 1;
    s.MapType = 2;
    s.MapZoom = 11;
    s.GmAPIKey = QStringLiteral("AIzaTestKey-0123456789");
    s.VrDisplayType = 1;
    // What the dialog can keep: a toolbar holding the gyroscope button, the gyroscope offered.
    s.AddToolbar = s.AddGyro = true;
    s.ContextMenuSpare = false;
    s.ContextMenuItems = {{ContextMenuItem::Fullscreen, {}, {}}, {},
        {ContextMenuItem::Custom, QStringLiteral("Hilfe"), QStringLiteral("alert('Hilfe');")}, {},
        {ContextMenuItem::About, {}, {}}};
    return s;
}

template <class Row, std::size_t N> void addRows(const Row (&rows)[N])
{
    QTest::addColumn<int>("row");
    for (std::size_t i = 0; i < N; ++i)
        QTest::addRow("%s", rows[i].name) << int(i);
}

// clang-format off
// The panorama and what the host knows of it; what the dialog offers then; what OK stores of a
// record with the intro, the gyroscope boxes and VR checked.
constexpr struct {
    const char *name; u32 flat; int type; double hextent, vextent; bool hotspots, sound, info, data;
    int element, mapType;
    bool sphere, gyro, positionShown, typeControlsShown;
} GATING_ROWS[] = {
    {"full sphere with everything",  0, 0, 360.0,  180.0,  true,  true,  true,  true,  7,  0, true,  true,  true,  true},
    {"359.98 degrees wide",          0, 0, 359.98, 180.0,  false, false, false, false, 10, 3, false, true,  false, false},
    {"179.98 degrees high",          0, 0, 360.0,  179.98, false, true,  false, true,  11, 1, false, true,  false, true},
    {"flat image flag",              1, 0, 360.0,  180.0,  true,  false, true,  false, 0,  3, false, false, true,  false},
    {"flat zoom image chosen",       0, 1, 360.0,  180.0,  false, false, false, true,  9,  2, false, false, true,  true},
};

// key: typed into the API-key box; warned: the map check's box on OK; stored: the host INI after.
constexpr struct { const char *name; const char *key; bool map, warned; const char *stored; } KEY_ROWS[] = {
    {"9 characters: warned, not stored", "123456789",  true,  true,  ""},
    {"10 characters: stored",            "1234567890", true,  false, "1234567890"},
    {"no map: no warning",               "",           false, false, ""},
};
// clang-format on

} // namespace

class tst_SettingsDlg : public QObject, BenchUser
{
    Q_OBJECT

    std::unique_ptr<QWidget> m_parent;
    DriverSession m_session;
    std::uint64_t m_document = 0;
    HostHotspot m_hotspot {};
    HostHotspot *m_hotspotPointers[1] = {&m_hotspot};
    HostHotspotList m_hotspots {m_hotspotPointers, m_hotspotPointers + 1};

    quint64 call(u32 command, quint64 in = 0)
    {
        std::uint64_t word = in;
        m_entry(command, m_host->context(), &word);
        return word;
    }

    ModalDriver &driver() { return m_session.next(); }

    QString settingsFolder() const { return m_bench->root + "settings/"; }

    // Command 6 with `record`'s block, so that the next command 0 starts from it.
    void restore(const ViewerSettings &record)
    {
        QByteArray block = vantora::settings::encodeSettingsBlock(record);
        call(6, quint64(std::uintptr_t(block.data())));
    }

    // The record as command 2 hands it to the host.
    ViewerSettings saved()
    {
        ViewerSettings record;
        vantora::settings::resetViewerSettings(record, false);
        const auto *block = reinterpret_cast<const unsigned char *>(std::uintptr_t(call(2)));
        const bool read = vantora::settings::decodeSettingsBlock(block, record);
        call(3);
        if (!read)
            qFatal("command 2 gave an unreadable block");
        return record;
    }

    // Command 0: the main dialog opens the settings dialog, `act` works in it, then the main
    // dialog is cancelled. Steps between may be added by `more` (after the settings dialog's).
    void openSettings(ModalDriver::Action act,
        const std::function<void(ModalDriver &)> &more = nullptr, int type = 0)
    {
        ModalDriver &d = driver().then("MainDlg", [type](QWidget *main) {
            child<QComboBox>(main, "typeBox")->setCurrentIndex(type);
            clickLater(child<QPushButton>(main, "settingsButton"));
        });
        d.then("AppletSettingsDlg", act);
        if (more)
            more(d);
        d.then("MainDlg", [](QWidget *main) { pressLater(main, QDialogButtonBox::Cancel); });
        m_host->setPath(m_out + "hafen");
        QCOMPARE(call(0), 0ull);
    }

private slots:
    void initTestCase()
    {
        QString error;
        m_entry = loadExportEntry(VANTORA_EXPORT_LIBRARY, &error);
        QVERIFY2(m_entry, qPrintable(error));
    }

    // A full sphere with hotspots, a motion sensor and location data, every host service there.
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        g_location = Location();
        QVERIFY(newBench("/* viewer */\n", ++m_document));
        m_parent = std::make_unique<QWidget>();
        m_host->put(at::ParentWindow, static_cast<void *>(m_parent.get()), GYRO_CAPABLE, u32(1),
            at::Hotspots, static_cast<const HostHotspotList *>(&m_hotspots), QUERY_LOCATION,
            &queryLocation, EDIT_LOCATION, &editLocation);
    }

    void cleanup()
    {
        const QStringList problems = m_session.takeProblems();
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
        QVERIFY(!QApplication::activeModalWidget());
    }

    // Every control of the table exists on its page with its kind, label, range and items.
    void controls()
    {
        QStringList wrong;
        QVariantList frame;
        openSettings([&](QWidget *d) {
            // 800 x 640, or more where the font needs more room.
            const QSize least = d->minimumSizeHint();
            frame = {d->windowTitle(),
                child<QDialogButtonBox>(d, "buttonBox")
                    ->button(QDialogButtonBox::RestoreDefaults)
                    ->toolTip(),
                d->width() == std::max(800, least.width()),
                d->height() == std::max(640, least.height()),
                int(d->windowFlags()
                    & (Qt::WindowContextHelpButtonHint | Qt::WindowCloseButtonHint))};
            auto *pages = child<QStackedWidget>(d, "tabWidget");
            for (const Control &c : controlTable()) {
                auto *w = child<QWidget>(d, qPrintable(c.object));
                const auto fail = [&](const QString &what) { wrong << c.object + ": " + what; };
                if (!pages->widget(c.page)->isAncestorOf(w))
                    fail("not on page " + QString::number(c.page));
                // The kind: the widget class, checkable, editable.
                static const QList<QPair<QString, QString>> kinds
                    = {{"editable combo box", "QComboBox"}, {"combo box", "QComboBox"},
                        {"double spin box", "QDoubleSpinBox"}, {"spin box", "QSpinBox"},
                        {"line edit", "QLineEdit"}, {"plain-text edit", "QPlainTextEdit"},
                        {"check box", "QCheckBox"}, {"push button", "QPushButton"},
                        {"tool button", "QToolButton"}, {"colour button", "QToolButton"},
                        {"collapsible", "QGroupBox"}, {"checkable group", "QGroupBox"},
                        {"group", "QGroupBox"}};
                for (const auto &kind : kinds) {
                    if (!c.kind.startsWith(kind.first))
                        continue;
                    if (qstrcmp(w->metaObject()->className(), qPrintable(kind.second)) != 0)
                        fail(QStringLiteral("a %1, not a %2")
                                 .arg(w->metaObject()->className(), kind.second));
                    break;
                }
                auto *group = qobject_cast<QGroupBox *>(w);
                if (group
                    && group->isCheckable()
                        != (c.kind.contains("checkable") || c.kind.startsWith("collapsible")))
                    fail("checkable is " + QString::number(group->isCheckable()));
                auto *combo = qobject_cast<QComboBox *>(w);
                if (combo && combo->isEditable() != c.kind.startsWith("editable"))
                    fail("editable is " + QString::number(combo->isEditable()));
                // Labels: a button's or group's own text, else a label that names the control.
                QStringList onPage;
                for (auto *label : pages->widget(c.page)->findChildren<QLabel *>())
                    onPage << label->text();
                for (auto *box : pages->widget(c.page)->findChildren<QGroupBox *>())
                    onPage << box->title();
                if (!c.labels.isEmpty()) {
                    QString own;
                    bool named = false;
                    for (auto *label : d->findChildren<QLabel *>())
                        if (label->buddy() == w)
                            own = label->text(), named = true;
                    if (!named)
                        own = group ? group->title() : static_cast<QAbstractButton *>(w)->text();
                    if (own != (named ? c.labels.last() : c.labels.first()))
                        fail("labelled \"" + own + "\"");
                    for (const QString &text : c.labels.mid(0, c.labels.size() - 1))
                        if (named && !onPage.contains(text))
                            fail("no \"" + text + "\" on its page");
                }
                const QRegularExpressionMatch range
                    = QRegularExpression(R"((-?[\d.]+)\.\.(-?[\d.]+))").match(c.kind);
                if (range.hasMatch()) {
                    const QVariant lo = w->property("minimum"), hi = w->property("maximum");
                    if (lo.toDouble() != range.captured(1).toDouble()
                        || hi.toDouble() != range.captured(2).toDouble())
                        fail(QStringLiteral("range %1..%2").arg(lo.toString(), hi.toString()));
                }
                if (c.kind.contains("step 0.1") && w->property("singleStep").toDouble() != 0.1)
                    fail("step " + w->property("singleStep").toString());
                const QRegularExpressionMatch unit
                    = QRegularExpression(R"re(unit label "([^"]+)")re").match(c.kind);
                if (unit.hasMatch() && !onPage.contains(unit.captured(1)))
                    fail("no unit " + unit.captured(1));
                const QRegularExpressionMatch inGroup
                    = QRegularExpression(R"re(in group "([^"]+)")re").match(c.kind);
                if (inGroup.hasMatch()) {
                    bool found = false;
                    for (QWidget *p = w->parentWidget(); p; p = p->parentWidget())
                        if (auto *g = qobject_cast<QGroupBox *>(p))
                            found = found || g->title() == inGroup.captured(1);
                    if (!found)
                        fail("not in group " + inGroup.captured(1));
                }
                if (c.kind.contains("scroll area") && !w->findChild<QScrollArea *>())
                    fail("no scroll area");
                if (combo) {
                    QStringList items;
                    for (int i = 0; i < combo->count(); ++i) {
                        items << combo->itemText(i);
                        if (c.kind.contains("pictures")
                            && combo->itemIcon(i).availableSizes().isEmpty())
                            fail("no picture on entry " + QString::number(i));
                    }
                    const QRegularExpressionMatch count
                        = QRegularExpression(R"((\d+) items)").match(c.kind);
                    if (count.hasMatch() && items.size() != count.captured(1).toInt())
                        fail(QString::number(items.size()) + " items");
                    if (!c.items.isEmpty() && items != c.items)
                        fail("items " + items.join(';'));
                }
            }
            pressLater(d, QDialogButtonBox::Cancel);
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QCOMPARE(frame,
            QVariantList(
                {"Einstellungen für den Vantora Viewer", "Standard-Einstellungen wiederherstellen",
                    true, true, int(Qt::WindowCloseButtonHint)}));
    }

    // A record of distinct values is shown control by control, and OK gives it back whole.
    void roundTrip()
    {
        const ViewerSettings record = distinctRecord();
        restore(record);
        QStringList wrong;
        QRgb frameColour = 0;
        openSettings([&](QWidget *d) {
            wrong = differencesShown(d, record);
            auto *colour = child<QToolButton>(d, "txtClrButton");
            frameColour
                = colour->icon().pixmap(colour->iconSize()).toImage().pixel(0, 0) & 0xFFFFFFu;
            pressLater(d, QDialogButtonBox::Ok);
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QCOMPARE(frameColour, qRgb(48, 48, 48) & 0xFFFFFFu);
        QCOMPARE(differences(saved(), record), QStringList());
        QCOMPARE(vantora::settings::readMapsApiKey(settingsFolder()), record.GmAPIKey);
    }

    // Restore Defaults resets the record at once: Cancel afterwards keeps the defaults.
    void restoreDefaults()
    {
        restore(distinctRecord());
        ViewerSettings defaults;
        vantora::settings::resetViewerSettings(defaults, true);
        QStringList wrong;
        openSettings([&](QWidget *d) {
            child<QDialogButtonBox>(d, "buttonBox")
                ->button(QDialogButtonBox::RestoreDefaults)
                ->click();
            wrong = differencesShown(d, defaults);
            pressLater(d, QDialogButtonBox::Cancel);
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QCOMPARE(differences(saved(), defaults), QStringList());
    }

    void gating_data() { addRows(GATING_ROWS); }
    void gating()
    {
        QFETCH(int, row);
        const auto &r = GATING_ROWS[row];
        ViewerSettings record;
        vantora::settings::resetViewerSettings(record, true);
        record.LittlePlanetIntro = record.AddVrMode = record.AddGyro = true;
        record.GyroEnabled = record.GyroButton = true;
        record.Sound = r.sound ? QStringLiteral("wind.mp3") : QString();
        record.InfoHTML64 = r.info ? QStringLiteral("<p>Info</p>") : QString();
        record.OrientationElement = r.element;
        record.MapType = r.mapType;
        restore(record);
        m_host->put(at::FlatImage, r.flat, at::StartPan, -r.hextent / 2, at::EndPan, r.hextent / 2,
            at::UpperEdge, -r.vextent / 2, at::LowerEdge, r.vextent / 2);
        if (!r.hotspots)
            m_host->put(at::Hotspots, static_cast<const HostHotspotList *>(nullptr));
        g_location.orientation = g_location.location = r.data;
        QVariantMap seen;
        openSettings(
            [&](QWidget *d) {
                auto *intro = child<QCheckBox>(d, "littlePlanetIntroBox");
                auto *vr = child<QGroupBox>(d, "vrModeBox");
                seen["intro"]
                    = QVariantList {intro->isEnabled(), intro->isChecked(), intro->toolTip()};
                seen["vr"] = QVariantList {vr->isEnabled(), vr->toolTip()};
                seen["view items"] = child<QCheckBox>(d, "miViewItems")->isEnabled();
                seen["gyro shown"] = QVariantList {!child<QWidget>(d, "addGyro")->isHidden(),
                    !child<QWidget>(d, "gyroEnabled")->isHidden(),
                    !child<QWidget>(d, "gyroButton")->isHidden()};
                seen["hotspots"] = child<QCheckBox>(d, "hotspotsBox")->isEnabled();
                seen["sound"] = QVariantList {child<QWidget>(d, "audioAutoPlay")->isEnabled(),
                    child<QWidget>(d, "audioButtonBox")->isEnabled()};
                seen["info"] = child<QWidget>(d, "showInfoBox")->isEnabled();
                seen["position"]
                    = QVariantList {!child<QWidget>(d, "orientationPositionBox")->isHidden(),
                        !child<QWidget>(d, "orientationPositionLabel")->isHidden()};
                seen["type controls"] = !child<QWidget>(d, "mapTypeControlBox")->isHidden();
                auto *orientation = child<QGroupBox>(d, "addOrientationBox");
                auto *map = child<QGroupBox>(d, "addMapBox");
                seen["groups"] = QVariantList {
                    orientation->title(), orientation->isEnabled(), map->title(), map->isEnabled()};
                // The context menu page refreshes the gyroscope entry; the toolbar page its button.
                child<QListWidget>(d, "catList")->setCurrentRow(6);
                auto *menuGyro = child<QCheckBox>(d, "miGyroControl");
                seen["menu gyro"] = QVariantList {menuGyro->isEnabled(), menuGyro->toolTip()};
                child<QListWidget>(d, "catList")->setCurrentRow(1);
                auto *gyroButton = child<QCheckBox>(d, "gyroButton");
                seen["gyro button"] = QVariantList {gyroButton->isEnabled(), gyroButton->toolTip()};
                pressLater(d, QDialogButtonBox::Ok);
            },
            nullptr, r.type);
        const QString introTip = r.sphere
            ? QStringLiteral("Ein Kugelpanorama zu Beginn von einer LittlePlanet - "
                             "Ansicht auf das eingestellte Sichtfeld schwenken.")
            : SPHERE_ONLY;
        const QString gyroTip = QStringLiteral("Steuerung mittels Bewegungssensor ein/aus");
        QCOMPARE(seen["intro"].toList(), QVariantList({r.sphere, r.sphere, introTip}));
        QCOMPARE(seen["vr"].toList(),
            QVariantList({r.sphere,
                r.sphere ? QStringLiteral("Darstellung für VR-Headsets anbieten.") : SPHERE_ONLY}));
        QCOMPARE(seen["view items"].toBool(), r.sphere);
        QCOMPARE(seen["gyro shown"].toList(), QVariantList({r.gyro, r.gyro, r.gyro}));
        QCOMPARE(seen["hotspots"].toBool(), r.hotspots);
        QCOMPARE(seen["sound"].toList(), QVariantList({r.sound, r.sound}));
        QCOMPARE(seen["info"].toBool(), r.info);
        QCOMPARE(seen["position"].toList(), QVariantList({r.positionShown, r.positionShown}));
        QCOMPARE(seen["type controls"].toBool(), r.typeControlsShown);
        const QString none = r.data ? QString() : QStringLiteral(" (keine Daten vorhanden)");
        QCOMPARE(seen["groups"].toList(),
            QVariantList({"Orientierung ausgeben" + none, r.data,
                "Standort in Karte anzeigen" + none, r.data}));
        QCOMPARE(seen["menu gyro"].toList(), QVariantList({r.gyro, r.gyro ? gyroTip : QString()}));
        if (r.gyro)
            QCOMPARE(seen["gyro button"].toList(), QVariantList({true, gyroTip}));
        const ViewerSettings stored = saved();
        QCOMPARE(QVariantList({stored.LittlePlanetIntro, stored.AddGyro, stored.GyroEnabled,
                     stored.GyroButton}),
            QVariantList({r.sphere, r.gyro, r.gyro, r.gyro}));
    }

    // The boxes that depend on each other, the menu rebuilt from its boxes, the host's editor,
    // the API-key help.
    void interactions()
    {
        g_location.orientation = g_location.location = false;
        QVariantMap seen;
        openSettings(
            [&](QWidget *d) {
                auto *gallery = child<QCheckBox>(d, "galleryThumbsVisible");
                auto *map = child<QCheckBox>(d, "mapVisibleBox");
                auto *hide = child<QCheckBox>(d, "hideToolbarBox");
                gallery->setChecked(true);
                map->setChecked(true);
                const bool mapClearsGallery = !gallery->isChecked();
                gallery->setChecked(true);
                seen["exclusive"] = QVariantList {mapClearsGallery, !map->isChecked()};
                hide->setChecked(true);
                seen["hidden"] = QVariantList {gallery->isChecked(), map->isChecked()};
                hide->setChecked(false);

                auto *orientation = child<QComboBox>(d, "orientationBox");
                QVariantList shown;
                for (int index : {10, 3, 11, 0})
                    shown << (orientation->setCurrentIndex(index),
                        !child<QWidget>(d, "orientationPositionBox")->isHidden());
                seen["position"] = shown;

                child<QPushButton>(d, "editLocationButton")->click();
                seen["edited"] = QVariantList {g_location.edits,
                    child<QGroupBox>(d, "addOrientationBox")->title(),
                    child<QGroupBox>(d, "addOrientationBox")->isEnabled(),
                    child<QGroupBox>(d, "addMapBox")->title()};
                child<QPushButton>(d, "editLocationButton_2")->click();
                seen["edited"] = seen["edited"].toList()
                    << g_location.edits << child<QGroupBox>(d, "addMapBox")->title()
                    << child<QGroupBox>(d, "addMapBox")->isEnabled();

                for (const char *name : {"miFullScreen", "miViewItems", "miGyroControl", "miAbout"})
                    child<QCheckBox>(d, name)->setChecked(false);
                child<QGroupBox>(d, "miCustomItemBox")->setChecked(false);
                child<QCheckBox>(d, "miViewItems")->setChecked(true);
                child<QCheckBox>(d, "miAbout")->setChecked(true);
                // The help sits in the map group, open once the map is wanted.
                child<QGroupBox>(d, "addMapBox")->setChecked(true);
                clickLater(child<QToolButton>(d, "gmApiKeyInfoButton"));
            },
            [&](ModalDriver &more) {
                more.then("QMessageBox",
                        [&](QWidget *box) {
                            seen["help"] = QVariantList {box->windowTitle(),
                                static_cast<QMessageBox *>(box)->text().contains(
                                    "href=\"https://developers.google.com/maps/documentation/javascript/get-api-key\"")};
                            pressLater(box, QMessageBox::Ok);
                        })
                    .then("AppletSettingsDlg",
                        [](QWidget *d) { pressLater(d, QDialogButtonBox::Ok); });
            });
        QCOMPARE(seen["exclusive"].toList(), QVariantList({true, true}));
        QCOMPARE(seen["hidden"].toList(), QVariantList({false, false}));
        QCOMPARE(seen["position"].toList(), QVariantList({false, true, false, true}));
        QCOMPARE(seen["edited"].toList(),
            QVariantList({1, "Orientierung ausgeben", true,
                "Standort in Karte anzeigen (keine Daten vorhanden)", 2,
                "Standort in Karte anzeigen", true}));
        QCOMPARE(seen["help"].toList(), QVariantList({"Google Maps API Key", true}));
        QList<int> kinds;
        const ViewerSettings stored = saved();
        for (const ContextMenuItem &item : stored.ContextMenuItems)
            kinds << item.kind;
        QCOMPARE(kinds, QList<int>({2, 3, 0, 5}));
        QCOMPARE(stored.ContextMenuSpare, false);
    }

    // Presets in the host's settings folder: listed sorted ignoring case, saved (name cleaned,
    // overwrite asked), loaded on selection, deselected by a new title, deleted after a question;
    // an unreadable one is reported and changes nothing.
    void presets()
    {
        const QString folder = settingsFolder() + "appletSettings/";
        QVERIFY(QDir().mkpath(folder));
        for (const char *name : {"beta", "Alpha", "gamma", "weg"})
            QVERIFY(writeFileBytes(folder + name + ".ini", "[Applet]\nAutoPlay=1\n"));
        const ViewerSettings record = distinctRecord();
        restore(record);
        QVariantMap seen;
        QStringList wrong;
        const auto answer = [](const char *text) {
            return [text](QWidget *input) {
                static_cast<QInputDialog *>(input)->setTextValue(QString::fromUtf8(text));
                static_cast<QInputDialog *>(input)->accept();
            };
        };
        const auto settingsBox = [](QWidget *d) { return child<QComboBox>(d, "settingsBox"); };
        openSettings(
            [&](QWidget *d) {
                QStringList listed;
                for (int i = 0; i < settingsBox(d)->count(); ++i)
                    listed << settingsBox(d)->itemText(i);
                seen["listed"] = QVariantList {listed, settingsBox(d)->currentIndex()};
                clickLater(child<QPushButton>(d, "saveButton"));
            },
            [&](ModalDriver &more) {
                more.then("QInputDialog", answer("Hafen/Nacht\\1"))
                    .then("AppletSettingsDlg",
                        [&](QWidget *d) {
                            seen["saved"]
                                = QVariantList {QFileInfo::exists(folder + "Hafen_Nacht_1.ini"),
                                    settingsBox(d)->currentText(), settingsBox(d)->currentIndex()};
                            // Something else in the widgets, then the preset back.
                            child<QLineEdit>(d, "titleEdit")->setText("anders");
                            seen["deselected"] = settingsBox(d)->currentIndex();
                            child<QCheckBox>(d, "autoPlayBox")->setChecked(!record.AutoPlay);
                            child<QComboBox>(d, "designBox")->setCurrentIndex(0);
                            settingsBox(d)->setCurrentIndex(
                                settingsBox(d)->findText("Hafen_Nacht_1"));
                            wrong = differencesShown(d, record);
                            clickLater(child<QPushButton>(d, "saveButton"));
                        })
                    .then("QInputDialog", answer("Hafen/Nacht\\1"))
                    .then("QMessageBox",
                        [&](QWidget *box) {
                            seen["overwrite"] = QVariantList {
                                box->windowTitle(), static_cast<QMessageBox *>(box)->text()};
                            pressLater(box, QMessageBox::No);
                        })
                    .then("AppletSettingsDlg",
                        [&](QWidget *d) {
                            // The preset "weg" disappears behind the dialog's back.
                            QFile::remove(folder + "weg.ini");
                            QDir().mkpath(folder + "weg.ini");
                            child<QLineEdit>(d, "titleEdit")->setText("bleibt");
                            // Picked later: the box it opens must not block this step.
                            QComboBox *box = settingsBox(d);
                            QTimer::singleShot(
                                0, box, [box] { box->setCurrentIndex(box->findText("weg")); });
                        })
                    .then("QMessageBox",
                        [&](QWidget *box) {
                            seen["unreadable"] = box->windowTitle();
                            pressLater(box, QMessageBox::Ok);
                        })
                    .then("AppletSettingsDlg",
                        [&](QWidget *d) {
                            seen["kept"] = QVariantList {child<QLineEdit>(d, "titleEdit")->text(),
                                settingsBox(d)->currentIndex()};
                            child<QCheckBox>(d, "autoPlayBox")->setChecked(false);
                            settingsBox(d)->setCurrentIndex(settingsBox(d)->findText("beta"));
                            seen["loaded"] = child<QCheckBox>(d, "autoPlayBox")->isChecked();
                            clickLater(child<QPushButton>(d, "deleteButton"));
                        })
                    .then("QMessageBox",
                        [&](QWidget *box) {
                            seen["delete"] = static_cast<QMessageBox *>(box)->text();
                            pressLater(box, QMessageBox::Yes);
                        })
                    .then("AppletSettingsDlg", [&](QWidget *d) {
                        seen["deleted"] = QVariantList {QFileInfo::exists(folder + "beta.ini"),
                            settingsBox(d)->findText("beta"), settingsBox(d)->currentIndex()};
                        pressLater(d, QDialogButtonBox::Cancel);
                    });
            });
        QCOMPARE(seen["listed"].toList(),
            QVariantList({QStringList({"Alpha", "beta", "gamma", "weg"}), -1}));
        QCOMPARE(seen["saved"].toList(), QVariantList({true, "Hafen_Nacht_1", 4}));
        QCOMPARE(seen["deselected"].toInt(), -1);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
        QCOMPARE(seen["overwrite"].toList(),
            QVariantList({"Hinweis",
                "Eine Einstellung mit dieser Bezeichnung existiert bereits!\nÜberschreiben?"}));
        QCOMPARE(seen["unreadable"].toString(), QStringLiteral("Fehler"));
        QCOMPARE(seen["kept"].toList(), QVariantList({"bleibt", -1}));
        QCOMPARE(seen["loaded"].toBool(), true);
        QCOMPARE(seen["delete"].toString(), QStringLiteral("Diese Einstellung wirklich löschen?"));
        QCOMPARE(seen["deleted"].toList(), QVariantList({false, -1, -1}));
    }

    void apiKey_data() { addRows(KEY_ROWS); }
    void apiKey()
    {
        QFETCH(int, row);
        const auto &r = KEY_ROWS[row];
        QString warning;
        openSettings(
            [&](QWidget *d) {
                child<QListWidget>(d, "catList")->setCurrentRow(9);
                child<QGroupBox>(d, "addMapBox")->setChecked(r.map);
                child<QComboBox>(d, "gmApiKeyBox")->setCurrentText(QString::fromLatin1(r.key));
                pressLater(d, QDialogButtonBox::Ok);
            },
            [&](ModalDriver &more) {
                if (r.warned)
                    more.then("QMessageBox", [&](QWidget *box) {
                        warning
                            = box->windowTitle() + ": " + static_cast<QMessageBox *>(box)->text();
                        pressLater(box, QMessageBox::Ok);
                    });
            });
        QCOMPARE(warning,
            r.warned ? QStringLiteral(
                "Warnung: Google Maps kann nur im Viewer dargestellt werden, wenn ein "
                "Google Maps API-Key eingetragen ist!")
                     : QString());
        QCOMPARE(
            vantora::settings::readMapsApiKey(settingsFolder()), QString::fromLatin1(r.stored));
        QCOMPARE(saved().GmAPIKey, QString::fromLatin1(r.key));
    }

    // Every page in German and English; no text cut. With VANTORA_SCREENSHOTS set to a folder,
    // each page is saved there as appletsettingsdlg_<language>_<row>.png.
    void pages_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addRow("de") << QLocale(QLocale::German, QLocale::Germany);
        QTest::addRow("en") << QLocale(QLocale::English, QLocale::UnitedKingdom);
    }
    void pages()
    {
        QFETCH(QLocale, locale);
        QLocale::setDefault(locale);
        restore(distinctRecord());
        const QString folder = qEnvironmentVariable("VANTORA_SCREENSHOTS");
        QStringList cut, titles;
        openSettings([&](QWidget *d) {
            titles << d->windowTitle();
            auto *list = child<QListWidget>(d, "catList");
            for (int row = 0; row < list->count(); ++row) {
                list->setCurrentRow(row);
                titles << list->item(row)->text();
                QApplication::processEvents();
                for (QWidget *w : d->findChildren<QWidget *>()) {
                    auto *label = qobject_cast<QLabel *>(w);
                    if (w->isVisible()
                        && (qobject_cast<QAbstractButton *>(w) || (label && !label->wordWrap()))
                        && w->width() < w->sizeHint().width())
                        cut << QStringLiteral("%1 on page %2").arg(w->objectName()).arg(row);
                }
                if (!folder.isEmpty())
                    QVERIFY(d->grab().save(QStringLiteral("%1/appletsettingsdlg_%2_%3.png")
                                               .arg(folder, QTest::currentDataTag())
                                               .arg(row, 2, 10, QLatin1Char('0'))));
            }
            pressLater(d, QDialogButtonBox::Cancel);
        });
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
        QCOMPARE(titles.first(),
            locale.language() == QLocale::English
                ? QStringLiteral("Settings for the Vantora Viewer")
                : QStringLiteral("Einstellungen für den Vantora Viewer"));
        QCOMPARE(titles.size(), 12);
    }
};

QTEST_MAIN(tst_SettingsDlg)
#include "tst_settingsdlg.moc"
