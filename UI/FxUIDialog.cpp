#include "UI/FxUIDialog.h"

#include "UI/Impl/FxUIDialogImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIDialog::CFxUIDialog()
{
    impl = new CFxUIDialogImpl(this);
}

CFxUIDialog::~CFxUIDialog() = default;

int CFxUIDialog::GetHelpId() const
{
    return 0;
}

const char *CFxUIDialog::GetHelpURL() const
{
    return "";
}

int CFxUIDialog::exec(bool modal)
{
    return ImplOf<CFxUIDialogImpl>(this)->exec(modal);
}

void CFxUIDialog::showEvent(CFxUIShowEvent * /*event*/) { }

void CFxUIDialog::hideEvent(CFxUIHideEvent * /*event*/) { }

void CFxUIDialog::accept()
{
    ImplOf<CFxUIDialogImpl>(this)->accept();
}

void CFxUIDialog::reject()
{
    ImplOf<CFxUIDialogImpl>(this)->reject();
}

void CFxUIDialog::done(int result)
{
    ImplOf<CFxUIDialogImpl>(this)->done(result);
}

CFxUIVerticalLayout *CFxUIDialog::GetLayout()
{
    return ImplOf<CFxUIDialogImpl>(this)->GetLayout();
}

void CFxUIDialog::openHelp()
{
    ImplOf<CFxUIDialogImpl>(this)->openHelp();
}

void CFxUIDialog::hide()
{
    ImplOf<CFxUIDialogImpl>(this)->hide();
}

// Hiding goes on with hide(), after the window is hidden already. Intended.
void CFxUIDialog::setVisible(bool visible)
{
    ImplOf<CFxUIDialogImpl>(this)->setVisible(visible);
    if (!visible)
        hide();
}

void CFxUIDialog::setResult(int result)
{
    ImplOf<CFxUIDialogImpl>(this)->setResult(result);
}

int CFxUIDialog::result() const
{
    return ImplOf<CFxUIDialogImpl>(this)->result();
}

QString CFxUIDialog::windowTitle()
{
    return ImplOf<CFxUIDialogImpl>(this)->windowTitle();
}

void CFxUIDialog::setWindowTitle(const QString &title)
{
    ImplOf<CFxUIDialogImpl>(this)->setWindowTitle(title);
}

CFxUISignal<void()> &CFxUIDialog::accepted()
{
    return ImplOf<CFxUIDialogImpl>(this)->accepted();
}

CFxUISignal<void()> &CFxUIDialog::rejected()
{
    return ImplOf<CFxUIDialogImpl>(this)->rejected();
}

CFxUISignal<void(int)> &CFxUIDialog::finished()
{
    return ImplOf<CFxUIDialogImpl>(this)->finished();
}
