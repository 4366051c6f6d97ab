#include "panoramapicture.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vantora::cli {
namespace {

constexpr int MAX_WIDTH = 2048;
constexpr int MAX_HEIGHT = 1024;

// Row of tilt 0 between the picture's upper and lower edge, kept inside the picture.
int horizonRow(int height, const PictureExtent &extent)
{
    if (extent.flat)
        return height * 3 / 5;
    const double span = extent.lowerEdge - extent.upperEdge;
    if (span == 0.0)
        return height / 2;
    const double fraction = std::clamp((0.0 - extent.upperEdge) / span, 0.0, 1.0);
    return int(std::lround(fraction * height));
}

void drawMarker(QPainter &painter, int x, int height, const QColor &color, int width)
{
    painter.fillRect(QRect(x - width / 2, height / 8, width, height * 3 / 4), color);
}

} // namespace

QSize pictureSize(QSize outputSize)
{
    QSize size = outputSize.isValid() && !outputSize.isEmpty() ? outputSize : QSize(2, 1);
    size.scale(QSize(MAX_WIDTH, MAX_HEIGHT), Qt::KeepAspectRatio);
    return size.expandedTo(QSize(1, 1));
}

QImage drawPanorama(QSize size, const PictureExtent &extent)
{
    QImage picture(size, QImage::Format_RGB32);
    const int width = size.width();
    const int height = size.height();
    const int horizon = horizonRow(height, extent);

    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, std::max(horizon, 1));
    sky.setColorAt(0.0, QColor(18, 52, 120));
    sky.setColorAt(1.0, QColor(190, 215, 240));
    painter.fillRect(QRect(0, 0, width, horizon), sky);

    QLinearGradient ground(0, horizon, 0, height);
    ground.setColorAt(0.0, QColor(110, 140, 70));
    ground.setColorAt(1.0, QColor(60, 45, 30));
    painter.fillRect(QRect(0, horizon, width, height - horizon), ground);

    const int thin = std::max(1, width / 512);
    if (extent.flat) {
        for (int i = 1; i <= 8; ++i)
            drawMarker(painter, width * i / 9, height, Qt::white, thin);
        return picture;
    }

    const double panSpan = extent.endPan - extent.startPan;
    if (panSpan <= 0.0)
        return picture;
    // Every multiple of 30 degrees inside the extent, north and the quarters stand out.
    for (int pan = int(std::ceil(extent.startPan / 30.0)) * 30; pan <= extent.endPan; pan += 30) {
        const int x = int(std::lround((pan - extent.startPan) / panSpan * width));
        const int turn = ((pan % 360) + 360) % 360;
        if (turn == 0)
            drawMarker(painter, x, height, QColor(220, 30, 30), thin * 4);
        else if (turn % 90 == 0)
            drawMarker(painter, x, height, QColor(240, 200, 40), thin * 3);
        else
            drawMarker(painter, x, height, Qt::white, thin);
    }
    return picture;
}

} // namespace vantora::cli
