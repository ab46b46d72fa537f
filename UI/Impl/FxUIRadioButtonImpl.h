#pragma once

#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>
#include <QtCore/QVector>

class CFxUIRadioButton;
class CFxUIRadioGroupImpl;

/// Implementation object of CFxUIRadioButton.
class COMMONUI_EXPORT CFxUIRadioButtonImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIRadioButtonImpl(CFxUIObject *object);
    ~CFxUIRadioButtonImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    const QString &text() const;
    void setText(const QString &text);
    void setChecked(bool checked);
    bool isChecked() const;

    CFxUISignal<void()> &released();
    CFxUISignal<void()> &clicked();
    CFxUISignal<void(bool)> &toggled();

    /// Stores \a container, which nothing reads; not owned. A group doesn't call it.
    void SetContainer(CFxUIRadioGroupImpl *container);

    /// Called by a group that begins or ceases to list the button.
    void JoinGroup(CFxUIRadioGroupImpl *group);
    void LeaveGroup(CFxUIRadioGroupImpl *group);

    /// Takes \a button, the owner, out of the groups that list it; they outlive it.
    void LeaveGroups(CFxUIRadioButton *button);

    /// Follows QAbstractButton::clicked(bool): emits clicked and stores nothing.
    void OnClicked();

    /// For a caller that holds this object: no connection leads to it. Stores a new value and emits
    /// toggled with it; then emits released, also for the old value.
    void OnToggled(bool checked);

    void SetTextImpl(const QString &text);
    void SetCheckedImpl(bool checked);

protected:
    bool m_checked = false; // the last value set, as the widget starts
    QString m_text;
    CFxUIRadioGroupImpl *m_container = nullptr;
    CFxUISignal<void()> m_released; ///< emitted by OnToggled alone
    CFxUISignal<void()> m_clicked; ///< emitted on a user's click
    CFxUISignal<void(bool)> m_toggled; ///< emitted by setChecked on a change, with the new value

private:
    QVector<CFxUIRadioGroupImpl *> m_groups; // those that list the button; not owned
};
