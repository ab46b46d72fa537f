#include "PictureComparison.h"

#include <QtGui/QColor>

namespace {

QString SizeText(const QImage &image)
{
    return QStringLiteral("%1x%2").arg(image.width()).arg(image.height());
}

QRgb Faded(QRgb pixel)
{
    const int grey = 170 + qGray(pixel) / 3;
    return qRgb(grey, grey, grey);
}

} // namespace

PictureDifference ComparePictures(const QImage &kept, const QImage &made)
{
    if (kept.size() != made.size())
        return { QStringLiteral("the size was %1 and is %2").arg(SizeText(kept), SizeText(made)),
                 QImage() };
    QImage image(made.size(), QImage::Format_RGB32);
    int differing = 0;
    for (int y = 0; y < made.height(); ++y) {
        for (int x = 0; x < made.width(); ++x) {
            const bool same = kept.pixel(x, y) == made.pixel(x, y);
            image.setPixel(x, y, same ? Faded(made.pixel(x, y)) : qRgb(255, 0, 0));
            differing += same ? 0 : 1;
        }
    }
    if (differing == 0)
        return {};
    return { QStringLiteral("%1 pixels differ").arg(differing), image };
}
