#pragma once

#include "UI/Impl/FxUIObjectImpl.h"

#include <list>

class CFxUIAction;
class CFxUIBaseView;
class QAction;

/// Implementation object of CFxUIMenu.
class COMMONUI_EXPORT CFxUIMenuImpl : public CFxUIObjectImpl {
public:
    explicit CFxUIMenuImpl(CFxUIObject *object);
    ~CFxUIMenuImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void clear();
    void addAction(CFxUIAction *action);
    QAction *addSeparator();
    void popup(CFxUIBaseView *view);

    void ClearImpl();
    void AddActionImpl(CFxUIAction *action);
    QAction *AddSeparatorImpl();
    void PopupImpl(CFxUIBaseView *view);

protected:
    std::list<CFxUIAction *> m_actions; // what clear() deletes; addAction() doesn't fill it
};
