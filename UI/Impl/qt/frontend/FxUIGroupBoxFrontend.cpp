#include "UI/Impl/qt/frontend/FxUIGroupBoxFrontend.h"

#include <QtGui/QPainter>

CFxUIGroupBoxFrontend::CFxUIGroupBoxFrontend()
    : QGroupBox(nullptr)
{
}

CFxUIGroupBoxFrontend::~CFxUIGroupBoxFrontend() = default;

void CFxUIGroupBoxFrontend::paintEvent(QPaintEvent *event)
{
    QGroupBox::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QColor(Qt::black));
    const QRect outline(0, 0, width() - 1, height() - 1);
    painter.drawRects(&outline, 1);
}
