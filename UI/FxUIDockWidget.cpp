#include "UI/FxUIDockWidget.h"

#include "UI/Impl/FxUIDockWidgetImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIDockWidget::CFxUIDockWidget(int area)
{
    auto *dockWidgetImpl = new CFxUIDockWidgetImpl(this);
    impl = dockWidgetImpl;
    dockWidgetImpl->CreateFrontendControl();
    dockWidgetImpl->setArea(area);
}

CFxUIDockWidget::~CFxUIDockWidget() = default;

void CFxUIDockWidget::showEvent(CFxUIShowEvent *event)
{
    if (CFxUIBaseView *view = widget())
        view->showEvent(event);
}

void CFxUIDockWidget::hideEvent(CFxUIHideEvent *event)
{
    if (CFxUIBaseView *view = widget())
        view->hideEvent(event);
}

void CFxUIDockWidget::setWidget(CFxUIBaseView *view)
{
    ImplOf<CFxUIDockWidgetImpl>(this)->setWidget(view);
}

CFxUIBaseView *CFxUIDockWidget::widget() const
{
    return ImplOf<CFxUIDockWidgetImpl>(this)->widget();
}

CFxUIBaseView *CFxUIDockWidget::widget()
{
    return ImplOf<CFxUIDockWidgetImpl>(this)->widget();
}

void CFxUIDockWidget::setTitle(const QString &title)
{
    ImplOf<CFxUIDockWidgetImpl>(this)->setTitle(title);
}

void CFxUIDockWidget::raise()
{
    ImplOf<CFxUIDockWidgetImpl>(this)->raise();
}
