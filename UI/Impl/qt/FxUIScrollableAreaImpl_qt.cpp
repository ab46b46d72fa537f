#include "UI/Impl/FxUIScrollableAreaImpl.h"

#include "UI/Impl/qt/FrontendCast.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

// A label alone: there is no class of this name.
QString CFxUIScrollableAreaImpl::GetFrontendClassName()
{
    return QStringLiteral("QScrollView");
}

void CFxUIScrollableAreaImpl::CreateFrontendControl()
{
    auto *area = new QScrollArea(nullptr);
    area->setStyleSheet(QStringLiteral("QScrollView, QScrollArea { }"));
    owner->setHandle(area);
}

void CFxUIScrollableAreaImpl::AddViewImpl(CFxUIBaseView *view, float /*weight*/)
{
    auto *area = FrontendCast<QScrollArea>(owner);
    QWidget *content = FrontendWidget(view);
    if (!area || !content)
        return;
    content->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    area->setWidget(content);
    area->setWidgetResizable(true);
}

// addView() is the one way in, and nothing takes the content out again. Intended.
void CFxUIScrollableAreaImpl::InsertViewImpl(CFxUIBaseView * /*view*/, int /*index*/,
                                             float /*weight*/)
{
}

void CFxUIScrollableAreaImpl::RemoveViewImpl(CFxUIBaseView * /*view*/) { }

void CFxUIScrollableAreaImpl::ScrollToImpl(CFxUIBaseView *view)
{
    const QPointer<QScrollArea> area(FrontendCast<QScrollArea>(owner));
    const QPointer<QWidget> widget(FrontendWidget(view));
    if (!area || !widget)
        return;
    QCoreApplication::processEvents(); // brings the layout up to date, and may delete anything
    if (!area || !widget)
        return;
    if (area->widget())
        area->ensureWidgetVisible(widget, 0, widget->maximumHeight());
    area->horizontalScrollBar()->setValue(0);
}

void CFxUIScrollableAreaImpl::SetHorizontalScrollingEnabledImpl(bool enabled)
{
    if (auto *area = FrontendCast<QScrollArea>(owner))
        area->setHorizontalScrollBarPolicy(enabled ? Qt::ScrollBarAlwaysOn
                                                   : Qt::ScrollBarAlwaysOff);
}

// The vertical bar stays as needed, unlike the horizontal one. Intended.
void CFxUIScrollableAreaImpl::SetVerticalScrollingEnabledImpl(bool /*enabled*/) { }
