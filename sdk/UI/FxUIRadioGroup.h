#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>

class CFxUIRadioButton;

/// A set of radio buttons in the column of the group box that is the group's parent. It has no
/// widget: its handle is a QButtonGroup, which stays empty. Add the group to the group box with
/// CFxUIBaseView::addView() first and the buttons with addRadioButton() then:
///
///     auto *group = new CFxUIRadioGroup;
///     box->addView(group);
///     group->addRadioButton(new CFxUIRadioButton);
///
/// The buttons exclude each other because they share the group box, and so do those of two groups
/// in one box. The group itself knows of no selection.
///
/// Nobody deletes the QButtonGroup with the group; a caller that makes many groups deletes it by
/// `delete group->getHandle()` first.
class COMMONUI_EXPORT CFxUIRadioGroup : public CFxUIBaseView {
public:
    CFxUIRadioGroup();

    /// Deletes the buttons that are still its children.
    ~CFxUIRadioGroup() override;

    /// Stores the title, which is shown nowhere.
    void setTitle(const QString &title);

    /// Makes the group the parent of \a button, lists it and puts its widget at the end of the
    /// group box's layout. In a group whose parent isn't a container with a box layout the widget
    /// is put nowhere. Null is passed over.
    void addRadioButton(CFxUIRadioButton *button);
};
