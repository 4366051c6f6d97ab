#include "settingslook.h"

#include "resources/resources.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

namespace vantora::dialogs {
namespace {

QString hexOf(const QColor &colour)
{
    return QString::asprintf("%06X", unsigned(colour.rgb() & 0xFFFFFFu));
}

} // namespace

QString categoryListStyle(const QListWidget *list)
{
    const QPalette &palette = list->palette();
    return QStringLiteral(
        "QListWidget::item { background-color: transparent; height: %3px; } "
        "QListWidget::item:selected, QListWidget::item:selected:!active { color: #%2; "
        "background-color: #%1; } QListWidget::item {selection-background-color: #%1; "
        "selection-color: #%2; }")
        .arg(hexOf(palette.color(QPalette::Highlight)),
            hexOf(palette.color(QPalette::HighlightedText)),
            QString::number(list->fontMetrics().height() * 3 / 2));
}

QString collapsibleGroupStyle()
{
    return QStringLiteral(
        "QGroupBox::indicator { width: 16px; height: 16px; } "
        "QGroupBox::indicator:unchecked { image: url(:/treeBranch/BMPS/png/branchClosed.png); } "
        "QGroupBox::indicator:unchecked:hover { image: "
        "url(:/treeBranch/BMPS/png/branchClosedHover.png); } "
        "QGroupBox::indicator:checked { image: url(:/treeBranch/BMPS/png/branchOpen.png); } "
        "QGroupBox::indicator:checked:hover { image: url(:/treeBranch/BMPS/png/branchOpenHover.png); }");
}

QString infoPanelStyle(const QLabel *panel)
{
    return QString::asprintf(
        "QFrame{ background-color: #%06X; border: 1px solid black; border-radius: 3px;}",
        unsigned(panel->palette().color(QPalette::AlternateBase).rgb() & 0xFFFFFFu));
}

void addDesignPictures(QComboBox *designBox)
{
    resources::ensureRegistered();
    // The previews are drawn at 120 x 24 (and twice that for high-density screens).
    designBox->setIconSize(QSize(120, 24));
    for (int i = 0; i < designBox->count(); ++i)
        designBox->setItemIcon(
            i, QIcon(QStringLiteral(":/toolbar/BMPS/tbdesigns/controls%1_s.png").arg(i + 1)));
}

void addOrientationPictures(QComboBox *orientationBox)
{
    static const char *const pictures[]
        = {"compass60", "compass96", "compass48", "compact32", "compassDial60", "compassDial96",
            "compassDial48", "radar60", "radar96", "radar48", "compassToolbar", "radarToolbar"};
    resources::ensureRegistered();
    orientationBox->setIconSize(QSize(32, 32));
    for (int i = 0; i < orientationBox->count() && i < int(std::size(pictures)); ++i)
        orientationBox->setItemIcon(i,
            QIcon(QStringLiteral(":/compass/BMPS/compassDesigns/%1.png")
                      .arg(QLatin1String(pictures[i]))));
}

void showColourSwatch(QToolButton *button, unsigned int colour)
{
    const QSize size = button->iconSize();
    QPixmap swatch(size);
    swatch.fill(QColor::fromRgb(colour & 0xFFFFFFu));
    {
        QPainter painter(&swatch);
        painter.setPen(QColor(48, 48, 48));
        const int right = size.width() - 1, bottom = size.height() - 1;
        painter.drawLine(0, 0, right, 0);
        painter.drawLine(right, 0, right, bottom);
        painter.drawLine(right, bottom, 0, bottom);
        painter.drawLine(0, bottom, 0, 0);
    }
    button->setIcon(QIcon(swatch));
}

} // namespace vantora::dialogs
