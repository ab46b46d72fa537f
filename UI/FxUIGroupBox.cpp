#include "UI/FxUIGroupBox.h"

#include "UI/Impl/FxUIGroupBoxImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIGroupBox::CFxUIGroupBox()
{
    auto *groupBoxImpl = new CFxUIGroupBoxImpl(this);
    impl = groupBoxImpl;
    groupBoxImpl->CreateFrontendControl();
}

CFxUIGroupBox::~CFxUIGroupBox() = default;

void CFxUIGroupBox::setTitle(const QString &title)
{
    ImplOf<CFxUIGroupBoxImpl>(this)->setTitle(title);
}

QString CFxUIGroupBox::title()
{
    return ImplOf<CFxUIGroupBoxImpl>(this)->title();
}

void CFxUIGroupBox::setContentsMargins(int left, int top, int right, int bottom)
{
    ImplOf<CFxUIGroupBoxImpl>(this)->setContentsMargins(left, top, right, bottom);
}

void CFxUIGroupBox::setSpacing(int spacing)
{
    ImplOf<CFxUIGroupBoxImpl>(this)->setSpacing(spacing);
}

void CFxUIGroupBox::setCollapsed(bool collapsed)
{
    ImplOf<CFxUIGroupBoxImpl>(this)->setCollapsed(collapsed);
}

bool CFxUIGroupBox::isCollapsed() const
{
    return ImplOf<CFxUIGroupBoxImpl>(this)->isCollapsed();
}

CFxUISignal<void(bool)> &CFxUIGroupBox::onCollapsedStateChanged()
{
    return ImplOf<CFxUIGroupBoxImpl>(this)->onCollapsedStateChanged();
}
