#include "UI/Impl/FxUITextEditImpl.h"

CFxUITextEditImpl::CFxUITextEditImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_textChanged(object)
    , m_editingFinished(object)
    , m_textEdited(object)
    , m_keyPressed(object)
{
}

CFxUITextEditImpl::~CFxUITextEditImpl()
{
    CutFrontend();
}

// The widget reports the change as well, so that slots see textChanged, textEdited, textChanged.
// Intended.
void CFxUITextEditImpl::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    SetTextImpl(text);
    m_textChanged.emit(m_text); // read anew: an input mask or a slot may have changed it
}

QString CFxUITextEditImpl::text() const
{
    return m_text;
}

void CFxUITextEditImpl::selectAll()
{
    SelectAllImpl();
}

void CFxUITextEditImpl::setPlaceholderText(const QString &text)
{
    if (text == m_placeholderText)
        return;
    m_placeholderText = text;
    SetPlaceholderTextImpl(m_placeholderText);
}

QString CFxUITextEditImpl::placeholderText() const
{
    return m_placeholderText;
}

void CFxUITextEditImpl::setClearButtonEnabled(bool enabled)
{
    m_clearButtonEnabled = enabled;
    SetClearButtonEnabledImpl(enabled);
}

bool CFxUITextEditImpl::isClearButtonEnabled() const
{
    return m_clearButtonEnabled;
}

void CFxUITextEditImpl::setInputMask(const QString &mask)
{
    if (mask == m_inputMask)
        return;
    m_inputMask = mask;
    SetInputMaskImpl(mask);
}

QString CFxUITextEditImpl::inputMask() const
{
    return m_inputMask;
}

void CFxUITextEditImpl::setInputType(int type)
{
    SetInputTypeImpl(type);
}

void CFxUITextEditImpl::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    SetReadOnlyImpl(readOnly);
}

CFxUISignal<void(QString)> &CFxUITextEditImpl::textChanged()
{
    return m_textChanged;
}

CFxUISignal<void()> &CFxUITextEditImpl::editingFinished()
{
    return m_editingFinished;
}

CFxUISignal<void(QString)> &CFxUITextEditImpl::textEdited()
{
    return m_textEdited;
}

CFxUISignal<void(int, int)> &CFxUITextEditImpl::keyPressed()
{
    return m_keyPressed;
}

// Both signals for every change, not textEdited for the user's alone. Intended.
void CFxUITextEditImpl::OnEditTextChanged(const QString &text)
{
    m_text = text;
    m_textChanged.emit(m_text);
    m_textEdited.emit(m_text); // read anew: a slot may have changed it
}

void CFxUITextEditImpl::OnEditingFinished()
{
    m_editingFinished.emit();
}

void CFxUITextEditImpl::OnKeyPressed(int key, int modifiers)
{
    m_keyPressed.emit(key, modifiers);
}
