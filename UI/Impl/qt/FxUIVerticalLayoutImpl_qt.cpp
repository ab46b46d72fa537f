#include "UI/Impl/FxUIVerticalLayoutImpl.h"

#include "UI/Impl/qt/BoxLayout.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/frontend/FxUIVertLayoutFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QVBoxLayout>

QString CFxUIVerticalLayoutImpl::GetFrontendClassName()
{
    return QStringLiteral("QVBoxLayout"); // a label: the handle is a group box
}

void CFxUIVerticalLayoutImpl::CreateFrontendControl()
{
    auto *frontend = new CFxUIVertLayoutFrontend;
    frontend->setStyleSheet(QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    owner->setHandle(frontend);
    LinkFrontend(frontend, this);
    auto *layout = new QVBoxLayout(frontend);
    layout->setContentsMargins(0, 0, 0, 0);
}

void CFxUIVerticalLayoutImpl::AddViewImpl(CFxUIBaseView *view, float weight)
{
    auto *layout = BoxLayout::Find<CFxUIVertLayoutFrontend>(owner);
    QWidget *widget = BoxLayout::Prepare(view, QSizePolicy::Preferred, QSizePolicy::Minimum);
    BoxLayout::Insert(layout, widget, layout ? layout->count() : 0, weight);
}

void CFxUIVerticalLayoutImpl::InsertViewImpl(CFxUIBaseView *view, int index, float weight)
{
    QWidget *widget = BoxLayout::Prepare(view, QSizePolicy::Preferred, QSizePolicy::Minimum);
    BoxLayout::Insert(BoxLayout::Find<CFxUIVertLayoutFrontend>(owner), widget, index, weight);
}

void CFxUIVerticalLayoutImpl::RemoveViewImpl(CFxUIBaseView *view)
{
    auto *layout = BoxLayout::Find<CFxUIVertLayoutFrontend>(owner);
    QWidget *widget = FrontendWidget(view);
    if (layout && widget)
        layout->removeWidget(widget);
}

void CFxUIVerticalLayoutImpl::setBusyStateImpl(bool busy)
{
    auto *frontend = FrontendCast<CFxUIVertLayoutFrontend>(owner);
    if (!frontend)
        return;
    if (busy)
        frontend->startSpinner();
    else
        frontend->stopSpinner();
}

void CFxUIVerticalLayoutImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    BoxLayout::SetContentsMargins(BoxLayout::Find<CFxUIVertLayoutFrontend>(owner), left, top, right,
                                  bottom);
}

void CFxUIVerticalLayoutImpl::SetSpacingImpl(int spacing)
{
    BoxLayout::SetSpacing(BoxLayout::Find<CFxUIVertLayoutFrontend>(owner), spacing);
}
