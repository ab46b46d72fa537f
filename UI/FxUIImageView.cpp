#include "UI/FxUIImageView.h"

#include "UI/FxUIEvent.h"
#include "UI/Impl/FxUIImageViewImpl.h"
#include "UI/Impl/ImplOf.h"

#include <QtGui/QPainter>

CFxUIImageView::CFxUIImageView()
{
    auto *imageViewImpl = new CFxUIImageViewImpl(this);
    impl = imageViewImpl;
    imageViewImpl->MakePreviewWidget();
}

CFxUIImageView::~CFxUIImageView() = default;

void CFxUIImageView::paintEvent(CFxUIPaintEvent *event)
{
    QPainter *painter = GetPainter();
    if (!painter || !event)
        return;
    const QRectF target(QPointF(0, 0), QSizeF(event->rect().size()));
    painter->drawPixmap(target, *pixmap(), QRectF());
}

const QPixmap *CFxUIImageView::pixmap() const
{
    return ImplOf<CFxUIImageViewImpl>(this)->pixmap();
}

void CFxUIImageView::setPixmap(const QPixmap &pixmap)
{
    ImplOf<CFxUIImageViewImpl>(this)->setPixmap(pixmap);
}

QPainter *CFxUIImageView::GetPainter()
{
    return ImplOf<CFxUIImageViewImpl>(this)->GetPainter();
}
