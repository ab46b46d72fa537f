#include "UI/Impl/FxUIDialogButtonBoxImpl.h"

#include "UI/FxUIDialog.h"
#include "UI/FxUIPushButton.h"

#include <array>

CFxUIDialogButtonBoxImpl::CFxUIDialogButtonBoxImpl(CFxUIDialogButtonBox *box, CFxUIDialog *dialog)
    : CFxUIBaseViewImpl(box)
    , m_accepted(box)
    , m_clicked(box)
    , m_helpRequest(box)
    , m_rejected(box)
{
    CreateButtonBoxImpl(dialog);
    WrapButtonsImpl();
}

CFxUIDialogButtonBoxImpl::~CFxUIDialogButtonBoxImpl()
{
    const std::array<CFxUIPushButton *, 3> wrappers { m_okButton, m_cancelButton, m_helpButton };
    for (CFxUIPushButton *wrapper : wrappers) {
        if (wrapper)
            wrapper->setHandle(nullptr);
    }
    for (const CFxUIPushButton *wrapper : wrappers)
        delete wrapper;
}

void CFxUIDialogButtonBoxImpl::ConnectDialog(CFxUIDialog *dialog)
{
    if (!dialog)
        return;
    m_dialogAccepted = dialog->accepted().connect([this] { m_okButton->clicked().emit(true); });
    m_dialogRejected = dialog->rejected().connect([this] { m_cancelButton->clicked().emit(true); });
}

void CFxUIDialogButtonBoxImpl::setStandardButtons(
    QFlags<CFxUIDialogButtonBox::StandardButton> /*buttons*/)
{
    // The three buttons are fixed. Intended.
}

CFxUIPushButton *CFxUIDialogButtonBoxImpl::button(CFxUIDialogButtonBox::StandardButton which) const
{
    switch (static_cast<int>(which)) {
    case CFxUIDialogButtonBox::Ok:
        return m_okButton;
    case CFxUIDialogButtonBox::Cancel:
        return m_cancelButton;
    case CFxUIDialogButtonBox::Help:
        return m_helpButton;
    default:
        return nullptr;
    }
}

CFxUISignal<void()> &CFxUIDialogButtonBoxImpl::accepted()
{
    return m_accepted;
}

CFxUISignal<void(CFxUIPushButton *)> &CFxUIDialogButtonBoxImpl::clicked()
{
    return m_clicked;
}

CFxUISignal<void()> &CFxUIDialogButtonBoxImpl::helpRequest()
{
    return m_helpRequest;
}

CFxUISignal<void()> &CFxUIDialogButtonBoxImpl::rejected()
{
    return m_rejected;
}

void CFxUIDialogButtonBoxImpl::OnResult(int result)
{
    if (result == 1)
        m_accepted.emit();
    else
        m_rejected.emit();
}

// The Help button's wrapper, whichever of the three was pressed. Intended.
void CFxUIDialogButtonBoxImpl::OnClicked()
{
    m_clicked.emit(m_helpButton);
}
