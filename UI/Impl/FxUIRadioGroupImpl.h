#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QString>

class CFxUIRadioButton;

/// Implementation object of CFxUIRadioGroup.
class COMMONUI_EXPORT CFxUIRadioGroupImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIRadioGroupImpl(CFxUIObject *object);
    ~CFxUIRadioGroupImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void setTitle(const QString &title);

    /// Lists \a button, each time anew, and places its widget. The parent is the caller's business.
    /// Null is passed over.
    void AddRadioButton(CFxUIRadioButton *button);

    /// The next three are for a caller that holds this object; the library calls none of them.
    /// Hand the position of \a button in the list on, -1 if it isn't listed. No effect.
    void SetCurrent(CFxUIRadioButton *button);
    void SetText(CFxUIRadioButton *button, const QString &text);

    /// Calls setChecked() on each button in the order of the list, with true for the one at
    /// \a index.
    void OnCurrentIndexChanged(int index);

    /// Leaves a gap where \a button stood in the list, so that the others keep their positions.
    /// Called by a button at its end.
    void ForgetButton(CFxUIRadioButton *button);

    /// Puts the widget at the end of the box layout in the group's parent; with no such layout it
    /// sets the widget's size policy alone.
    void AddRadioButtonImpl(CFxUIRadioButton *button);

    /// Empty.
    void SetTitleImpl(const QString &title);
    void SetCurrentImpl(int index);
    void SetTextImpl(int index, const QString &text);

protected:
    QList<CFxUIRadioButton *> m_buttons; // not owned; null where a button has been deleted
    QString m_title;
};
