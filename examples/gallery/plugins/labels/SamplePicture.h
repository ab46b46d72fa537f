#pragma once

#include <QtGui/QPixmap>

/// Paints a landscape of \a size pixels, for a panel that has no photograph yet.
QPixmap SamplePicture(const QSize &size);
