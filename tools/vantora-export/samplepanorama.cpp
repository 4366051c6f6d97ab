#include "samplepanorama.h"

#include <QFont>
#include <QLinearGradient>
#include <QPainter>

namespace vantora::cli {
namespace {

struct CompassLetter
{
    double pan; // degrees from the left edge
    const char *text;
    QRgb colour;
};

// clang-format off
constexpr CompassLetter LETTERS[] = {
    {  0.0, "S", 0xffffffff},
    { 90.0, "W", 0xffffffff},
    {180.0, "N", 0xffe02020},
    {270.0, "E", 0xffffffff},
    {360.0, "S", 0xffffffff},
};
// clang-format on

double xOf(double pan, int width)
{
    return pan / 360.0 * width;
}

double yOf(double tilt, int height)
{
    return (90.0 - tilt) / 180.0 * height;
}

void drawGrid(QPainter &painter, int width, int height)
{
    const double unit = height / 1024.0;
    for (int pan = 0; pan <= 360; pan += 15) {
        const bool strong = pan % 45 == 0;
        painter.setPen(QPen(QColor(255, 255, 255, strong ? 150 : 70), (strong ? 3 : 1.5) * unit));
        painter.drawLine(QPointF(xOf(pan, width), 0), QPointF(xOf(pan, width), height));
    }
    for (int tilt = -75; tilt <= 75; tilt += 15) {
        const bool strong = tilt % 45 == 0;
        painter.setPen(QPen(QColor(255, 255, 255, strong ? 150 : 70), (strong ? 3 : 1.5) * unit));
        painter.drawLine(QPointF(0, yOf(tilt, height)), QPointF(width, yOf(tilt, height)));
    }
    painter.setPen(QPen(QColor(250, 240, 200), 6 * unit));
    painter.drawLine(QPointF(0, yOf(0, height)), QPointF(width, yOf(0, height)));
}

void drawLabel(QPainter &painter, QPointF centre, const QString &text, int pixelSize, QColor colour)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixelSize);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(colour);
    const QRectF box(
        centre.x() - pixelSize * 2, centre.y() - pixelSize, pixelSize * 4, pixelSize * 2);
    painter.drawText(box, Qt::AlignCenter, text);
}

} // namespace

QImage drawSamplePanorama(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB888);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double horizon = yOf(0, height);

    QLinearGradient sky(0, 0, 0, horizon);
    sky.setColorAt(0.0, QColor(14, 40, 100));
    sky.setColorAt(1.0, QColor(170, 205, 240));
    painter.fillRect(QRectF(0, 0, width, horizon), sky);
    QLinearGradient ground(0, horizon, 0, height);
    ground.setColorAt(0.0, QColor(96, 128, 60));
    ground.setColorAt(1.0, QColor(52, 38, 26));
    painter.fillRect(QRectF(0, horizon, width, height - horizon), ground);

    drawGrid(painter, width, height);

    const int letterSize = height / 12;
    for (const CompassLetter &letter : LETTERS)
        drawLabel(painter, QPointF(xOf(letter.pan, width), horizon - letterSize),
            QString::fromLatin1(letter.text), letterSize, QColor::fromRgba(letter.colour));
    const int labelSize = height / 40;
    for (int pan = 45; pan < 360; pan += 90) {
        drawLabel(painter, QPointF(xOf(pan, width), yOf(45, height)), QStringLiteral("+45°"),
            labelSize, Qt::white);
        drawLabel(painter, QPointF(xOf(pan, width), yOf(-45, height)), QStringLiteral("-45°"),
            labelSize, Qt::white);
    }
    return picture;
}

} // namespace vantora::cli
