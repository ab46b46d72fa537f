#include "UI/Impl/FxUIDockWidgetImpl.h"

#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QDockWidget>

QString CFxUIDockWidgetImpl::GetFrontendClassName()
{
    return QStringLiteral("QDockWidget");
}

// The pane is the host's: no widget is made, and what is set reaches none. Intended, as are all
// empty bodies here.
void CFxUIDockWidgetImpl::CreateFrontendControl() { }

void CFxUIDockWidgetImpl::SetAreaImpl(int /*area*/) { }

void CFxUIDockWidgetImpl::SetWidgetImpl(CFxUIBaseView * /*view*/) { }

void CFxUIDockWidgetImpl::SetTitleImpl(const QString & /*title*/) { }

void CFxUIDockWidgetImpl::RaiseImpl()
{
    if (auto *dockWidget = FrontendCast<QDockWidget>(owner))
        dockWidget->raise();
}
