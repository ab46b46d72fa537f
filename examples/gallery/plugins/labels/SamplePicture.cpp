#include "SamplePicture.h"

#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>

namespace {

// A ridge of hills from the left to the right edge, down to the bottom.
QPainterPath Ridge(const QSize &size, double height, double roughness, double phase)
{
    QPainterPath path(QPointF(0, size.height()));
    for (int x = 0; x <= size.width(); x += 2) {
        const double along = double(x) / size.width();
        const double y = height - roughness * std::sin(along * 7 + phase)
            - roughness / 3 * std::sin(along * 23 + phase * 2);
        path.lineTo(x, y * size.height());
    }
    path.lineTo(size.width(), size.height());
    return path;
}

} // namespace

QPixmap SamplePicture(const QSize &size)
{
    QPixmap pixmap(size);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(70, 120, 190));
    sky.setColorAt(0.7, QColor(250, 215, 160));
    painter.fillRect(pixmap.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 245, 200));
    painter.drawEllipse(QPointF(size.width() * 0.72, size.height() * 0.3), size.height() * 0.09,
                        size.height() * 0.09);
    painter.fillPath(Ridge(size, 0.62, 0.07, 0.4), QColor(110, 130, 160));
    painter.fillPath(Ridge(size, 0.75, 0.06, 2.2), QColor(70, 105, 95));
    painter.fillPath(Ridge(size, 0.9, 0.05, 4.1), QColor(45, 75, 50));
    return pixmap;
}
