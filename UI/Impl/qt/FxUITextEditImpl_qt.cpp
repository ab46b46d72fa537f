#include "UI/Impl/FxUITextEditImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/frontend/FxUITextEditFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

QString CFxUITextEditImpl::GetFrontendClassName()
{
    return QStringLiteral("CFxUITextEditFrontend");
}

void CFxUITextEditImpl::CreateFrontendControl()
{
    auto *frontend = new CFxUITextEditFrontend;
    frontend->setStyleSheet(QStringLiteral("QLineEdit { }"));
    owner->setHandle(frontend);
    LinkFrontend(frontend, this);
    ConnectFrontend(frontend, &QLineEdit::textChanged, this, &CFxUITextEditImpl::OnEditTextChanged);
    // The modifiers stay behind: slots get 0, unlike those of the text view. Intended.
    ConnectFrontend(frontend, &CFxUITextEditFrontend::keyPressed, this,
                    [this](int key) { OnKeyPressed(key, 0); });
}

void CFxUITextEditImpl::SetTextImpl(const QString &text)
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setText(text);
}

void CFxUITextEditImpl::SelectAllImpl()
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->selectAll();
}

void CFxUITextEditImpl::SetFocusImpl()
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setFocus(Qt::OtherFocusReason);
}

void CFxUITextEditImpl::SetPlaceholderTextImpl(const QString &text)
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setPlaceholderText(text);
}

void CFxUITextEditImpl::SetClearButtonEnabledImpl(bool enabled)
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setClearButtonEnabled(enabled);
}

void CFxUITextEditImpl::SetInputMaskImpl(const QString &mask)
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setInputMask(mask);
}

// There are no kinds of input. Intended.
void CFxUITextEditImpl::SetInputTypeImpl(int /*type*/) { }

void CFxUITextEditImpl::SetReadOnlyImpl(bool readOnly)
{
    if (auto *frontend = FrontendCast<CFxUITextEditFrontend>(owner))
        frontend->setReadOnly(readOnly);
}
