#include "UI/FxUIDialogButtonBox.h"

#include "UI/FxUIDialog.h"
#include "UI/FxUIPushButton.h"
#include "UI/Impl/FxUIDialogButtonBoxImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIDialogButtonBox::CFxUIDialogButtonBox(CFxUIDialog *dialog)
{
    auto *boxImpl = new CFxUIDialogButtonBoxImpl(this, dialog);
    impl = boxImpl;
    setParent(dialog); // from the layout, where the implementation object has put it
    boxImpl->ConnectDialog(dialog);
    button(Ok)->clicked().connect([this](bool) { accepted().emit(); });
    button(Cancel)->clicked().connect([this](bool) { rejected().emit(); });
}

CFxUIDialogButtonBox::~CFxUIDialogButtonBox() = default;

void CFxUIDialogButtonBox::setStandardButtons(QFlags<CFxUIDialogButtonBox::StandardButton> buttons)
{
    ImplOf<CFxUIDialogButtonBoxImpl>(this)->setStandardButtons(buttons);
}

CFxUIPushButton *CFxUIDialogButtonBox::button(CFxUIDialogButtonBox::StandardButton which) const
{
    return ImplOf<CFxUIDialogButtonBoxImpl>(this)->button(which);
}

CFxUISignal<void()> &CFxUIDialogButtonBox::accepted()
{
    return ImplOf<CFxUIDialogButtonBoxImpl>(this)->accepted();
}

CFxUISignal<void(CFxUIPushButton *)> &CFxUIDialogButtonBox::clicked()
{
    return ImplOf<CFxUIDialogButtonBoxImpl>(this)->clicked();
}

CFxUISignal<void()> &CFxUIDialogButtonBox::helpRequest()
{
    return ImplOf<CFxUIDialogButtonBoxImpl>(this)->helpRequest();
}

CFxUISignal<void()> &CFxUIDialogButtonBox::rejected()
{
    return ImplOf<CFxUIDialogButtonBoxImpl>(this)->rejected();
}
