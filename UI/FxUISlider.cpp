#include "UI/FxUISlider.h"

#include "UI/Impl/FxUISliderImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUISlider::CFxUISlider()
{
    auto *sliderImpl = new CFxUISliderImpl(this);
    impl = sliderImpl;
    sliderImpl->CreateFrontendControl();
}

CFxUISlider::~CFxUISlider() = default;

void CFxUISlider::setValue(int value)
{
    ImplOf<CFxUISliderImpl>(this)->setValue(value);
}

void CFxUISlider::setMinimum(int minimum)
{
    ImplOf<CFxUISliderImpl>(this)->setMinimum(minimum);
}

void CFxUISlider::setMaximum(int maximum)
{
    ImplOf<CFxUISliderImpl>(this)->setMaximum(maximum);
}

// Works on this level and doesn't reach CFxUISliderImpl::setRange(). Intended.
void CFxUISlider::setRange(int minimum, int maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

int CFxUISlider::value() const
{
    return ImplOf<CFxUISliderImpl>(this)->value();
}

CFxUISignal<void(int)> &CFxUISlider::valueChanged()
{
    return ImplOf<CFxUISliderImpl>(this)->valueChanged();
}
