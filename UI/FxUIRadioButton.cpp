#include "UI/FxUIRadioButton.h"

#include "UI/Impl/FxUIRadioButtonImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIRadioButton::CFxUIRadioButton()
{
    auto *radioButtonImpl = new CFxUIRadioButtonImpl(this);
    impl = radioButtonImpl;
    radioButtonImpl->CreateFrontendControl();
}

CFxUIRadioButton::~CFxUIRadioButton()
{
    ImplOf<CFxUIRadioButtonImpl>(this)->LeaveGroups(this);
}

const QString &CFxUIRadioButton::text() const
{
    return ImplOf<CFxUIRadioButtonImpl>(this)->text();
}

void CFxUIRadioButton::setText(const QString &text)
{
    ImplOf<CFxUIRadioButtonImpl>(this)->setText(text);
}

void CFxUIRadioButton::setChecked(bool checked)
{
    ImplOf<CFxUIRadioButtonImpl>(this)->setChecked(checked);
}

bool CFxUIRadioButton::isChecked() const
{
    return ImplOf<CFxUIRadioButtonImpl>(this)->isChecked();
}

CFxUISignal<void()> &CFxUIRadioButton::released()
{
    return ImplOf<CFxUIRadioButtonImpl>(this)->released();
}

CFxUISignal<void()> &CFxUIRadioButton::clicked()
{
    return ImplOf<CFxUIRadioButtonImpl>(this)->clicked();
}

CFxUISignal<void(bool)> &CFxUIRadioButton::toggled()
{
    return ImplOf<CFxUIRadioButtonImpl>(this)->toggled();
}
