#include "UI/FxUILabel.h"

#include "UI/Impl/FxUILabelImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUILabel::CFxUILabel()
{
    auto *labelImpl = new CFxUILabelImpl(this);
    impl = labelImpl;
    labelImpl->CreateFrontendControl();
}

CFxUILabel::~CFxUILabel() = default;

QString CFxUILabel::text() const
{
    return ImplOf<CFxUILabelImpl>(this)->text();
}

void CFxUILabel::setText(const QString &text)
{
    ImplOf<CFxUILabelImpl>(this)->setText(text);
}

// Doesn't reach CFxUILabelImpl::clear(): the stored icon and pixmap stay. Intended.
void CFxUILabel::clear()
{
    setText(QString());
}

void CFxUILabel::setIcon(const QIcon &icon)
{
    ImplOf<CFxUILabelImpl>(this)->setIcon(icon);
}

void CFxUILabel::setPixmap(const QPixmap &pixmap)
{
    ImplOf<CFxUILabelImpl>(this)->setPixmap(pixmap);
}

void CFxUILabel::setBoldText(bool bold)
{
    ImplOf<CFxUILabelImpl>(this)->setBoldText(bold);
}

void CFxUILabel::setFontSize(int pixels)
{
    ImplOf<CFxUILabelImpl>(this)->setFontSize(pixels);
}

bool CFxUILabel::wordWrap() const
{
    return ImplOf<CFxUILabelImpl>(this)->wordWrap();
}

void CFxUILabel::setWordWrap(bool wrap)
{
    ImplOf<CFxUILabelImpl>(this)->setWordWrap(wrap);
}

void CFxUILabel::setToolTip(const QString &toolTip)
{
    ImplOf<CFxUILabelImpl>(this)->setToolTip(toolTip);
}

void CFxUILabel::setTextAlignment(CFxUIBaseView::TextAlignment alignment)
{
    ImplOf<CFxUILabelImpl>(this)->setTextAlignment(alignment);
}
