#include "UI/FxUICheckBox.h"

#include "UI/Impl/FxUICheckBoxImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUICheckBox::CFxUICheckBox()
{
    auto *checkBoxImpl = new CFxUICheckBoxImpl(this);
    impl = checkBoxImpl;
    checkBoxImpl->CreateFrontendControl();
}

CFxUICheckBox::~CFxUICheckBox() = default;

void CFxUICheckBox::setText(const QString &text)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setText(text);
}

QString CFxUICheckBox::text() const
{
    return ImplOf<CFxUICheckBoxImpl>(this)->text();
}

void CFxUICheckBox::setChecked(bool checked)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setChecked(checked);
}

bool CFxUICheckBox::isChecked() const
{
    return ImplOf<CFxUICheckBoxImpl>(this)->isChecked();
}

void CFxUICheckBox::setTristate(bool tristate)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setTristate(tristate);
}

bool CFxUICheckBox::isTristate() const
{
    return ImplOf<CFxUICheckBoxImpl>(this)->isTristate();
}

void CFxUICheckBox::setCheckState(CFxUICheckBox::CheckState state)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setCheckState(state);
}

CFxUICheckBox::CheckState CFxUICheckBox::checkState() const
{
    return ImplOf<CFxUICheckBoxImpl>(this)->checkState();
}

void CFxUICheckBox::setResourceIcon(const QString &resource)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setResourceIcon(resource);
}

void CFxUICheckBox::setTextSize(float size)
{
    ImplOf<CFxUICheckBoxImpl>(this)->setTextSize(size);
}

CFxUISignal<void(int)> &CFxUICheckBox::stateChanged()
{
    return ImplOf<CFxUICheckBoxImpl>(this)->stateChanged();
}

CFxUISignal<void(bool)> &CFxUICheckBox::toggled()
{
    return ImplOf<CFxUICheckBoxImpl>(this)->toggled();
}

CFxUISignal<void()> &CFxUICheckBox::clicked()
{
    return ImplOf<CFxUICheckBoxImpl>(this)->clicked();
}
