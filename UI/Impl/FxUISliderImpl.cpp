#include "UI/Impl/FxUISliderImpl.h"

CFxUISliderImpl::CFxUISliderImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_valueChanged(object)
{
}

CFxUISliderImpl::~CFxUISliderImpl() = default;

// The QSlider may report the value that it took from inside the call, and that one stays then.
void CFxUISliderImpl::setValue(int value)
{
    m_value = value;
    SetValueImpl(value);
}

void CFxUISliderImpl::setMinimum(int minimum)
{
    m_minimum = minimum;
    SetMinimumImpl(minimum);
}

void CFxUISliderImpl::setMaximum(int maximum)
{
    m_maximum = maximum;
    SetMaximumImpl(maximum);
}

void CFxUISliderImpl::setRange(int minimum, int maximum)
{
    setMinimum(minimum);
    setMaximum(maximum);
}

int CFxUISliderImpl::value() const
{
    return m_value;
}

CFxUISignal<void(int)> &CFxUISliderImpl::valueChanged()
{
    return m_valueChanged;
}

void CFxUISliderImpl::OnValueChanged(int value)
{
    m_value = value;
    m_valueChanged.emit(value);
}
