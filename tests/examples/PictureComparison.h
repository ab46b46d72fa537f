#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

/// How two pictures differ.
struct PictureDifference {
    QString text; ///< empty: they don't
    QImage image; ///< the second one faded, with each pixel that differs in red; null unless the
                  ///< sizes are equal
};

/// Compares pixel for pixel.
PictureDifference ComparePictures(const QImage &kept, const QImage &made);
