#include "UI/Impl/FxUIDialogImpl.h"

#include "UI/FxUIDialog.h"
#include "UI/FxUIDialogButtonBox.h"

namespace {

CFxUIDialog *DialogOf(const CFxUIDialogImpl *impl)
{
    return static_cast<CFxUIDialog *>(impl->owner);
}

} // namespace

CFxUIDialogImpl::CFxUIDialogImpl(CFxUIObject *object)
    : CFxUIObjectImpl(object)
    , m_accepted(object)
    , m_rejected(object)
    , m_finished(object)
{
    CreateFrontendDialogImpl();
}

CFxUIDialogImpl::~CFxUIDialogImpl()
{
    DestroyFrontendDialogImpl();
}

int CFxUIDialogImpl::GetHelpId() const
{
    return DialogOf(this)->GetHelpId();
}

const char *CFxUIDialogImpl::GetHelpURL() const
{
    return DialogOf(this)->GetHelpURL();
}

void CFxUIDialogImpl::showEvent(CFxUIShowEvent *event)
{
    DialogOf(this)->showEvent(event);
}

void CFxUIDialogImpl::hideEvent(CFxUIHideEvent *event)
{
    DialogOf(this)->hideEvent(event);
}

int CFxUIDialogImpl::exec(bool modal)
{
    SetDialogActiveImpl(true);
    return ExecImpl(modal);
}

// The three end the dialog by hiding it with the code in place: no signal, no veto. Intended.
void CFxUIDialogImpl::accept()
{
    done(1);
}

void CFxUIDialogImpl::reject()
{
    done(0);
}

void CFxUIDialogImpl::done(int result)
{
    setResult(result);
    hide();
}

CFxUIVerticalLayout *CFxUIDialogImpl::GetLayout()
{
    return m_layoutView;
}

void CFxUIDialogImpl::openHelp()
{
    OpenHelpImpl(GetHelpId());
}

void CFxUIDialogImpl::hide()
{
    SetDialogActiveImpl(false);
    HideImpl();
}

void CFxUIDialogImpl::setVisible(bool visible)
{
    SetVisibleImpl(visible);
}

void CFxUIDialogImpl::setResult(int result)
{
    m_result = result;
}

int CFxUIDialogImpl::result() const
{
    return m_result;
}

QString CFxUIDialogImpl::windowTitle()
{
    return m_windowTitle;
}

void CFxUIDialogImpl::setWindowTitle(const QString &title)
{
    m_windowTitle = title;
    SetWindowTitleImpl(m_windowTitle);
}

CFxUISignal<void()> &CFxUIDialogImpl::accepted()
{
    return m_accepted;
}

CFxUISignal<void()> &CFxUIDialogImpl::rejected()
{
    return m_rejected;
}

CFxUISignal<void(int)> &CFxUIDialogImpl::finished()
{
    return m_finished;
}

void CFxUIDialogImpl::OnAccepted()
{
    m_accepted.emit();
}

void CFxUIDialogImpl::OnAcceptPressed()
{
    m_accepted.emit();
}

void CFxUIDialogImpl::OnRejected()
{
    m_rejected.emit();
}

void CFxUIDialogImpl::OnRejectPressed()
{
    m_rejected.emit();
}

// The block flag that counts is the box's own, not the dialog's. Intended.
void CFxUIDialogImpl::OnHelpPressed()
{
    const QList<CFxUIObject *> children = owner->children();
    for (CFxUIObject *child : children) {
        if (auto *box = dynamic_cast<CFxUIDialogButtonBox *>(child)) {
            box->helpRequest().emit();
            return;
        }
    }
}
