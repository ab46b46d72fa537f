#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

/// One choice of several (QRadioButton). Buttons in one container widget exclude each other, as in
/// Qt; CFxUIRadioGroup puts them there.
///
/// isChecked() answers what setChecked() was given last. It doesn't follow the widget: neither a
/// user's click nor the button's losing the selection to another one changes it.
class COMMONUI_EXPORT CFxUIRadioButton : public CFxUIBaseView {
public:
    CFxUIRadioButton();

    /// Leaves the radio groups that list the button.
    ~CFxUIRadioButton() override;

    /// Returns the last text set. Default: empty.
    const QString &text() const;

    /// Stores the text and shows it (QAbstractButton::setText).
    void setText(const QString &text);

    /// Checks or unchecks the widget (QAbstractButton::setChecked), each time, and emits toggled()
    /// if \a checked differs from isChecked(). Qt doesn't uncheck the checked one of several
    /// buttons that exclude each other.
    void setChecked(bool checked);

    /// Returns the last value given to setChecked(). Default: false.
    bool isChecked() const;

    /// Never emitted by the library: it is connected to nothing in the widget.
    CFxUISignal<void()> &released();

    /// Emitted when the user clicks the button, also if it is checked already.
    CFxUISignal<void()> &clicked();

    /// Emitted by setChecked() with the new value, behind the widget's change. Not by a click.
    CFxUISignal<void(bool)> &toggled();
};
