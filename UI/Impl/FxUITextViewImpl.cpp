#include "UI/Impl/FxUITextViewImpl.h"

#include "UI/FxUIEvent.h"

CFxUITextViewImpl::CFxUITextViewImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_textChanged(object)
    , m_focusInEventSignal(object)
    , m_focusOutEventSignal(object)
    , m_keyPressed(object)
{
}

CFxUITextViewImpl::~CFxUITextViewImpl()
{
    CutFrontend();
}

// No comparison with the text that stands, and the document reports the change as well, so that
// slots see textChanged twice. Intended.
void CFxUITextViewImpl::setText(const QString &text)
{
    const QString hostText = HostTextImpl(text);
    m_content = hostText;
    SetTextImpl(hostText);
    m_textChanged.emit();
}

// What the next three store lasts only until the document reports the change. Intended.
void CFxUITextViewImpl::setHtmlText(const QString &html)
{
    m_content = html;
    SetHtmlTextImpl(html);
}

void CFxUITextViewImpl::addText(const QString &text)
{
    const QString encoded = EncodedTextImpl(text);
    m_content.append(encoded);
    AddTextImpl(encoded);
}

void CFxUITextViewImpl::addHtmlText(const QString &html)
{
    m_content.append(html);
    AddHtmlTextImpl(html);
}

void CFxUITextViewImpl::setMultiline(bool multiline)
{
    SetMultiline(multiline);
}

void CFxUITextViewImpl::setReadOnly(bool readOnly)
{
    SetReadOnly(readOnly);
}

void CFxUITextViewImpl::setPlaceholderText(const QString &text)
{
    if (text == m_placeholderText)
        return;
    m_placeholderText = text;
    SetPlaceholderTextImpl(m_placeholderText);
}

QString CFxUITextViewImpl::placeholderText() const
{
    return m_placeholderText;
}

QString CFxUITextViewImpl::getContent() const
{
    return m_content;
}

void CFxUITextViewImpl::setAdjustHeightToContent(const bool &adjust)
{
    m_adjustHeightToContent = adjust;
}

bool CFxUITextViewImpl::getAdjustHeightToContent() const
{
    return m_adjustHeightToContent;
}

void CFxUITextViewImpl::clear()
{
    m_content = QString();
    SetTextImpl(QString());
}

CFxUISignal<void()> &CFxUITextViewImpl::textChanged()
{
    return m_textChanged;
}

CFxUISignal<void()> &CFxUITextViewImpl::focusInEventSignal()
{
    return m_focusInEventSignal;
}

CFxUISignal<void()> &CFxUITextViewImpl::focusOutEventSignal()
{
    return m_focusOutEventSignal;
}

CFxUISignal<void(int, int)> &CFxUITextViewImpl::keyPressed()
{
    return m_keyPressed;
}

void CFxUITextViewImpl::OnEditTextChanged(const QString &text)
{
    m_content = text;
    m_textChanged.emit();
}

void CFxUITextViewImpl::OnEditingFinished() { }

void CFxUITextViewImpl::OnKeyPressed(int key, int modifiers)
{
    m_keyPressed.emit(key, modifiers);
}

// The reason is the same whatever Qt's event says. Intended, here and below.
void CFxUITextViewImpl::OnFocusIn()
{
    m_hasFocus = true;
    {
        CFxUIFocusEvent event(CFxUIEvent::FocusIn, CFxUIFocusEvent::OtherFocusReason);
        View()->focusInEvent(&event);
    }
    m_focusInEventSignal.emit();
}

void CFxUITextViewImpl::OnFocusOut()
{
    m_hasFocus = false;
    {
        CFxUIFocusEvent event(CFxUIEvent::FocusOut, CFxUIFocusEvent::OtherFocusReason);
        View()->focusOutEvent(&event);
    }
    m_focusOutEventSignal.emit();
}

CFxUIBaseView *CFxUITextViewImpl::View() const
{
    return static_cast<CFxUIBaseView *>(owner);
}
