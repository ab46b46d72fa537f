#include "UI/FxUIMenu.h"

#include "UI/Impl/FxBaseViewImpl.h"
#include "UI/Impl/FxUIMenuImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIMenu::CFxUIMenu()
{
    auto *menuImpl = new CFxUIMenuImpl(this);
    impl = menuImpl;
    menuImpl->CreateFrontendControl();
}

CFxUIMenu::~CFxUIMenu()
{
    if (QObject *handle = getHandle())
        FxBaseViewImpl::ReleaseFrontendControl(impl->GetFrontendClassName(), handle);
}

void CFxUIMenu::clear()
{
    ImplOf<CFxUIMenuImpl>(this)->clear();
}

void CFxUIMenu::addAction(CFxUIAction *action)
{
    ImplOf<CFxUIMenuImpl>(this)->addAction(action);
}

QAction *CFxUIMenu::addSeparator()
{
    return ImplOf<CFxUIMenuImpl>(this)->addSeparator();
}

void CFxUIMenu::popup(CFxUIBaseView *view)
{
    ImplOf<CFxUIMenuImpl>(this)->popup(view);
}
