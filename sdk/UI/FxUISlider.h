#pragma once

#include "UI/FxUIBaseView.h"

/// A horizontal slider of integers (QSlider), always 25 pixels high.
///
/// No setter compares with the old value, and none emits by itself: valueChanged() comes from the
/// QSlider, and so only where that moves.
class COMMONUI_EXPORT CFxUISlider : public CFxUIBaseView {
public:
    CFxUISlider();
    ~CFxUISlider() override;

    /// Moves the slider (QAbstractSlider::setValue, which clamps to the range) and emits
    /// valueChanged() from inside the call if it moved. If it did not, value() is \a value all the
    /// same, also when that is out of range.
    void setValue(int value);

    /// Sets an end of the range (QAbstractSlider::setMinimum, setMaximum). Where that pushes the
    /// value, valueChanged() is emitted from inside the call. Default: QSlider's own, 0 and 99.
    void setMinimum(int minimum);
    void setMaximum(int maximum);

    /// setMinimum(), then setMaximum().
    void setRange(int minimum, int maximum);

    /// Returns the number last set or last reported by the QSlider, whichever came later; the
    /// QSlider isn't asked. Default: 0.
    int value() const;

    /// Emitted with the new value when the slider has moved, by the user or by a setter.
    CFxUISignal<void(int)> &valueChanged();
};
