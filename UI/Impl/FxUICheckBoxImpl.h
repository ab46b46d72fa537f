#pragma once

#include "UI/FxUICheckBox.h"
#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUICheckBox.
class COMMONUI_EXPORT CFxUICheckBoxImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUICheckBoxImpl(CFxUIObject *object);
    ~CFxUICheckBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setText(const QString &text);
    QString text() const;
    void setChecked(bool checked);
    bool isChecked() const;
    void setTristate(bool tristate);
    bool isTristate() const;
    void setCheckState(CFxUICheckBox::CheckState state);
    CFxUICheckBox::CheckState checkState() const;
    void setResourceIcon(const QString &resource);
    void setTextSize(float size);

    CFxUISignal<void(int)> &stateChanged();
    CFxUISignal<void(bool)> &toggled();
    CFxUISignal<void()> &clicked();

    /// Follows QCheckBox::stateChanged(int), whoever caused it: stores the state, then emits
    /// stateChanged and toggled.
    void OnSwitchChanged(int state);

    void SetTextImpl(const QString &text);
    void SetCheckedImpl(bool checked);
    void SetTristateImpl(bool tristate);
    void SetCheckStateImpl(CFxUICheckBox::CheckState state);

    /// Empty.
    void SetResourceIconImpl(const QString &resource);
    void SetTextSizeImpl(float size);

protected:
    bool m_checked = false; // also true for partly checked
    bool m_tristate = false;
    QString m_text;
    CFxUICheckBox::CheckState m_checkState = CFxUICheckBox::Unchecked;
    CFxUISignal<void(int)> m_stateChanged; ///< emitted on a change, with the state as a number
    CFxUISignal<void(bool)> m_toggled; ///< emitted behind each stateChanged, false for unchecked
    CFxUISignal<void()> m_clicked; ///< never emitted
};
