#include "UI/Impl/FxUIDockWidgetImpl.h"

CFxUIDockWidgetImpl::CFxUIDockWidgetImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIDockWidgetImpl::~CFxUIDockWidgetImpl() = default;

void CFxUIDockWidgetImpl::setArea(int area)
{
    SetAreaImpl(area);
}

void CFxUIDockWidgetImpl::setWidget(CFxUIBaseView *view)
{
    m_widget = view;
    SetWidgetImpl(view);
}

CFxUIBaseView *CFxUIDockWidgetImpl::widget() const
{
    return m_widget;
}

void CFxUIDockWidgetImpl::setTitle(const QString &title)
{
    m_title = title;
    SetTitleImpl(m_title);
}

void CFxUIDockWidgetImpl::raise()
{
    RaiseImpl();
}
