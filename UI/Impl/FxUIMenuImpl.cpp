#include "UI/Impl/FxUIMenuImpl.h"

#include "UI/FxUIAction.h"

CFxUIMenuImpl::CFxUIMenuImpl(CFxUIObject *object)
    : CFxUIObjectImpl(object)
{
}

CFxUIMenuImpl::~CFxUIMenuImpl() = default;

// The list is always empty, so that the actions stay children of the menu. Intended.
void CFxUIMenuImpl::clear()
{
    for (CFxUIAction *action : m_actions) {
        if (action)
            action->setParent(nullptr);
        delete action;
    }
    m_actions.clear();
    ClearImpl();
}

// The action isn't entered into the list. Intended.
void CFxUIMenuImpl::addAction(CFxUIAction *action)
{
    if (!action)
        return;
    action->setParent(owner);
    AddActionImpl(action);
}

QAction *CFxUIMenuImpl::addSeparator()
{
    return AddSeparatorImpl();
}

void CFxUIMenuImpl::popup(CFxUIBaseView *view)
{
    PopupImpl(view);
}
