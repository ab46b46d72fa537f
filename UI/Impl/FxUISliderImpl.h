#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

/// Implementation object of CFxUISlider.
class COMMONUI_EXPORT CFxUISliderImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUISliderImpl(CFxUIObject *object);
    ~CFxUISliderImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setValue(int value);
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /// For a caller that holds this object; the public setRange() doesn't come here.
    void setRange(int minimum, int maximum);
    int value() const;
    CFxUISignal<void(int)> &valueChanged();

    void OnValueChanged(int value);

    void SetValueImpl(int value);
    void SetMinimumImpl(int minimum);
    void SetMaximumImpl(int maximum);

protected:
    int m_minimum = 0; // a record alone: the QSlider has its own defaults
    int m_maximum = 100;
    int m_value = 0;
    CFxUISignal<void(int)> m_valueChanged; ///< emitted when the slider has moved with the new value
};
