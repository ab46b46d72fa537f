#include "UI/FxUITextEdit.h"

#include "UI/Impl/FxUITextEditImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUITextEdit::CFxUITextEdit(CFxUIBaseView::UIWidthSizePolicy policy)
{
    auto *textEditImpl = new CFxUITextEditImpl(this);
    impl = textEditImpl;
    textEditImpl->CreateFrontendControl();
    textEditImpl->setWidthPolicy(policy);
}

CFxUITextEdit::~CFxUITextEdit() = default;

void CFxUITextEdit::setText(const QString &text)
{
    ImplOf<CFxUITextEditImpl>(this)->setText(text);
}

QString CFxUITextEdit::text() const
{
    return ImplOf<CFxUITextEditImpl>(this)->text();
}

void CFxUITextEdit::setPlainText(const QString &text)
{
    setText(text);
}

QString CFxUITextEdit::toPlainText() const
{
    return text();
}

void CFxUITextEdit::selectAll()
{
    ImplOf<CFxUITextEditImpl>(this)->SelectAllImpl();
}

void CFxUITextEdit::setFocus()
{
    ImplOf<CFxUITextEditImpl>(this)->SetFocusImpl();
}

void CFxUITextEdit::setPlaceholderText(const QString &text)
{
    ImplOf<CFxUITextEditImpl>(this)->setPlaceholderText(text);
}

QString CFxUITextEdit::placeholderText() const
{
    return ImplOf<CFxUITextEditImpl>(this)->placeholderText();
}

void CFxUITextEdit::setClearButtonEnabled(bool enabled)
{
    ImplOf<CFxUITextEditImpl>(this)->setClearButtonEnabled(enabled);
}

bool CFxUITextEdit::isClearButtonEnabled() const
{
    return ImplOf<CFxUITextEditImpl>(this)->isClearButtonEnabled();
}

void CFxUITextEdit::setInputMask(const QString &mask)
{
    ImplOf<CFxUITextEditImpl>(this)->setInputMask(mask);
}

QString CFxUITextEdit::inputMask() const
{
    return ImplOf<CFxUITextEditImpl>(this)->inputMask();
}

void CFxUITextEdit::setInputType(int type)
{
    ImplOf<CFxUITextEditImpl>(this)->setInputType(type);
}

// The cursor stays. Intended.
void CFxUITextEdit::moveCursor(QTextCursor::MoveOperation /*operation*/,
                               QTextCursor::MoveMode /*mode*/)
{
}

void CFxUITextEdit::setReadOnly(bool readOnly)
{
    ImplOf<CFxUITextEditImpl>(this)->setReadOnly(readOnly);
}

void CFxUITextEdit::clear()
{
    setText(QString());
}

CFxUISignal<void(QString)> &CFxUITextEdit::textChanged()
{
    return ImplOf<CFxUITextEditImpl>(this)->textChanged();
}

CFxUISignal<void()> &CFxUITextEdit::editingFinished()
{
    return ImplOf<CFxUITextEditImpl>(this)->editingFinished();
}

CFxUISignal<void(QString)> &CFxUITextEdit::textEdited()
{
    return ImplOf<CFxUITextEditImpl>(this)->textEdited();
}

CFxUISignal<void(int, int)> &CFxUITextEdit::keyPressed()
{
    return ImplOf<CFxUITextEditImpl>(this)->keyPressed();
}
