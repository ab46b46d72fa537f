#pragma once

#include "UI/FxUIObject.h"

class CFxUIAction;
class CFxUIBaseView;
class QAction;

/// A pop-up list of actions (QMenu). An object and not a view: it can't be put into a layout, but
/// hung on a CFxUIPushButton or popped up at any view.
class COMMONUI_EXPORT CFxUIMenu : public CFxUIObject {
public:
    CFxUIMenu();
    ~CFxUIMenu() override;

    /// Empties the QMenu (QMenu::clear), which deletes its separators. The actions stay children of
    /// this menu until it dies.
    void clear();

    /// Adds \a action at the end (QWidget::addAction) and owns it from then on. Does nothing for
    /// null.
    void addAction(CFxUIAction *action);

    /// Adds a separator (QMenu::addSeparator) and returns it; the QMenu owns it. Null without a
    /// QMenu.
    QAction *addSeparator();

    /// Opens the menu just below \a view, the right edges aligned, and returns at once
    /// (QMenu::popup). Does nothing for a view without a widget.
    void popup(CFxUIBaseView *view);
};
