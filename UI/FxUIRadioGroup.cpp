#include "UI/FxUIRadioGroup.h"

#include "UI/FxUIRadioButton.h"
#include "UI/Impl/FxUIRadioGroupImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIRadioGroup::CFxUIRadioGroup()
{
    auto *radioGroupImpl = new CFxUIRadioGroupImpl(this);
    impl = radioGroupImpl;
    radioGroupImpl->CreateFrontendControl();
}

CFxUIRadioGroup::~CFxUIRadioGroup() = default;

void CFxUIRadioGroup::setTitle(const QString &title)
{
    ImplOf<CFxUIRadioGroupImpl>(this)->setTitle(title);
}

void CFxUIRadioGroup::addRadioButton(CFxUIRadioButton *button)
{
    if (!button)
        return;
    button->setParent(this);
    ImplOf<CFxUIRadioGroupImpl>(this)->AddRadioButton(button);
}
