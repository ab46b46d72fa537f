#include "UI/FxUIStackedWidget.h"

#include "UI/Impl/FxUIStackedWidgetImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIStackedWidget::CFxUIStackedWidget()
{
    auto *stackedWidgetImpl = new CFxUIStackedWidgetImpl(this);
    impl = stackedWidgetImpl;
    stackedWidgetImpl->CreateFrontendControl();
}

CFxUIStackedWidget::~CFxUIStackedWidget() = default;

int CFxUIStackedWidget::addTab(CFxUIBaseView *view, const QString &title)
{
    if (!view)
        return -1;
    view->setParent(this);
    return ImplOf<CFxUIStackedWidgetImpl>(this)->addTab(view, title);
}

int CFxUIStackedWidget::indexOf(CFxUIBaseView *view) const
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->indexOf(view);
}

void CFxUIStackedWidget::setTabText(int index, const QString &text)
{
    ImplOf<CFxUIStackedWidgetImpl>(this)->setTabText(index, text);
}

int CFxUIStackedWidget::currentIndex() const
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->currentIndex();
}

void CFxUIStackedWidget::setCurrentIndex(int index)
{
    ImplOf<CFxUIStackedWidgetImpl>(this)->setCurrentIndex(index);
}

// The number of pages, which stands for a view that is none, is out of range and changes nothing.
void CFxUIStackedWidget::setCurrentWidget(CFxUIBaseView *view)
{
    setCurrentIndex(indexOf(view));
}

CFxUISignal<void(int)> &CFxUIStackedWidget::currentChanged()
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->currentChanged();
}

CFxUISignal<void(int)> &CFxUIStackedWidget::tabCloseRequested()
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->tabCloseRequested();
}

CFxUISignal<void(int)> &CFxUIStackedWidget::tabBarClicked()
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->tabBarClicked();
}

CFxUISignal<void(int)> &CFxUIStackedWidget::tabBarDoubleClicked()
{
    return ImplOf<CFxUIStackedWidgetImpl>(this)->tabBarDoubleClicked();
}
