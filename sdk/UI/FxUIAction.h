#pragma once

#include "UI/FxUIObject.h"
#include "UI/FxUISignal.h"

#include <QtCore/QString>

class QIcon;

/// An entry of a CFxUIMenu (QAction). An object and not a view: it can't be put into a layout.
///
/// At its destruction the QAction isn't deleted: it stays in any menu that still shows it, without
/// effect.
class COMMONUI_EXPORT CFxUIAction : public CFxUIObject {
public:
    CFxUIAction();
    ~CFxUIAction() override;

    /// QAction::setIcon.
    void setIcon(const QIcon &icon);

    /// No effect.
    void setResourceIcon(const QString &name);

    /// Stores the text and shows it (QAction::setText).
    void setText(const QString &text);

    /// Stores only: the entry stays selectable.
    void setEnabled(bool enabled);

    /// QAction::setCheckable.
    void setCheckable(bool checkable);

    /// Stores the value for isChecked() and checks the QAction (QAction::setChecked), which does so
    /// only if it is checkable. Emits nothing.
    void setChecked(bool checked);

    /// QAction::setVisible: whether menus show the entry.
    void setVisible(bool visible);

    /// Returns the last text set. Default: empty.
    QString text() const;

    /// Returns the last setChecked(), and not the state of the QAction: a user's toggling doesn't
    /// show here. Default: false.
    bool isChecked() const;

    /// Emitted when the user selects the entry, with the check state of the QAction; always false
    /// if it isn't checkable.
    CFxUISignal<void(bool)> &triggered();
};
