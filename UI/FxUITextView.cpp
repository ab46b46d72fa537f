#include "UI/FxUITextView.h"

#include "UI/Impl/FxUITextViewImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUITextView::CFxUITextView(CFxUIBaseView::UIWidthSizePolicy policy)
{
    auto *textViewImpl = new CFxUITextViewImpl(this);
    impl = textViewImpl;
    textViewImpl->CreateFrontendControl();
    textViewImpl->setWidthPolicy(policy);
}

CFxUITextView::~CFxUITextView() = default;

void CFxUITextView::setText(const QString &text)
{
    ImplOf<CFxUITextViewImpl>(this)->setText(text);
}

void CFxUITextView::setHtmlText(const QString &html)
{
    ImplOf<CFxUITextViewImpl>(this)->setHtmlText(html);
}

void CFxUITextView::addText(const QString &text)
{
    ImplOf<CFxUITextViewImpl>(this)->addText(text);
}

void CFxUITextView::addHtmlText(const QString &html)
{
    ImplOf<CFxUITextViewImpl>(this)->addHtmlText(html);
}

void CFxUITextView::setMultiline(bool multiline)
{
    ImplOf<CFxUITextViewImpl>(this)->setMultiline(multiline);
}

void CFxUITextView::setReadOnly(bool readOnly)
{
    ImplOf<CFxUITextViewImpl>(this)->setReadOnly(readOnly);
}

void CFxUITextView::setPlaceholderText(const QString &text)
{
    ImplOf<CFxUITextViewImpl>(this)->setPlaceholderText(text);
}

QString CFxUITextView::placeholderText() const
{
    return ImplOf<CFxUITextViewImpl>(this)->placeholderText();
}

QString CFxUITextView::getContent() const
{
    return ImplOf<CFxUITextViewImpl>(this)->getContent();
}

void CFxUITextView::setAdjustHeightToContent(const bool &adjust)
{
    ImplOf<CFxUITextViewImpl>(this)->setAdjustHeightToContent(adjust);
}

bool CFxUITextView::getAdjustHeightToContent() const
{
    return ImplOf<CFxUITextViewImpl>(this)->getAdjustHeightToContent();
}

void CFxUITextView::clear()
{
    ImplOf<CFxUITextViewImpl>(this)->clear();
}

CFxUISignal<void()> &CFxUITextView::textChanged()
{
    return ImplOf<CFxUITextViewImpl>(this)->textChanged();
}

CFxUISignal<void()> &CFxUITextView::focusInEventSignal()
{
    return ImplOf<CFxUITextViewImpl>(this)->focusInEventSignal();
}

CFxUISignal<void()> &CFxUITextView::focusOutEventSignal()
{
    return ImplOf<CFxUITextViewImpl>(this)->focusOutEventSignal();
}

CFxUISignal<void(int, int)> &CFxUITextView::keyPressed()
{
    return ImplOf<CFxUITextViewImpl>(this)->keyPressed();
}
