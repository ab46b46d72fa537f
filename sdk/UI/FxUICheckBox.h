#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

/// A switch with two or three states (QCheckBox), 25 pixels high.
///
/// A user's click and setCheckState() emit stateChanged() and toggled() once each, in this order. A
/// setChecked() that changes the state emits the pair twice; see there.
class COMMONUI_EXPORT CFxUICheckBox : public CFxUIBaseView {
public:
    /// The numbers of Qt::CheckState.
    enum CheckState : int { Unchecked = 0, PartiallyChecked = 1, Checked = 2 };

    CFxUICheckBox();
    ~CFxUICheckBox() override;

    /// Stores the text and shows it (QAbstractButton::setText).
    void setText(const QString &text);

    /// Returns the last text set. Default: empty.
    QString text() const;

    /// Checks or unchecks the box. With the value that isChecked() answers it does nothing, also on
    /// a partly checked box; otherwise it emits stateChanged(), toggled(), stateChanged() and
    /// toggled(): once as the widget changes and once more behind it. The second toggled() tells
    /// what isChecked() answers by then.
    void setChecked(bool checked);

    /// Returns whether the box is checked or partly checked. Default: false.
    bool isChecked() const;

    /// Lets the user's click pass through the third state (QCheckBox::setTristate).
    void setTristate(bool tristate);

    /// Returns what setTristate() was given last. Default: false. setCheckState(PartiallyChecked)
    /// turns the widget's third state on by itself and leaves this as it was.
    bool isTristate() const;

    /// Stores \a state and gives it to the widget, for which any number outside the enumeration is
    /// Unchecked. stateChanged() and toggled() follow where the widget changes. A number outside
    /// the enumeration that changes nothing there stays stored as it is.
    void setCheckState(CFxUICheckBox::CheckState state);

    /// Default: Unchecked.
    CFxUICheckBox::CheckState checkState() const;

    /// No effect.
    void setResourceIcon(const QString &resource);

    /// No effect.
    void setTextSize(float size);

    /// Emitted with the new CheckState as a number, before toggled().
    CFxUISignal<void(int)> &stateChanged();

    /// Emitted after each stateChanged(): true for checked and partly checked.
    CFxUISignal<void(bool)> &toggled();

    /// Never emitted. Use stateChanged() or toggled().
    CFxUISignal<void()> &clicked();
};
