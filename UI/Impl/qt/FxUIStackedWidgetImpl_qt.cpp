#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QTabWidget>

QString CFxUIStackedWidgetImpl::GetFrontendClassName()
{
    return QStringLiteral("QTabWidget");
}

// No connection: a user's click on a tab doesn't reach the record. Intended.
void CFxUIStackedWidgetImpl::CreateFrontendControl()
{
    auto *tabWidget = new QTabWidget(nullptr);
    tabWidget->setStyleSheet(QStringLiteral("QTabWidget { }"));
    owner->setHandle(tabWidget);
}

int CFxUIStackedWidgetImpl::AddTabImpl(CFxUIBaseView *view, const QString &title)
{
    QWidget *page = FrontendWidget(view);
    if (!page)
        return -1;
    page->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    auto *tabWidget = FrontendCast<QTabWidget>(owner);
    return tabWidget ? tabWidget->addTab(page, title) : -1;
}

void CFxUIStackedWidgetImpl::SetTabTextImpl(int index, const QString &text)
{
    if (auto *tabWidget = FrontendCast<QTabWidget>(owner))
        tabWidget->setTabText(index, text);
}

void CFxUIStackedWidgetImpl::SetCurrentIndexImpl(int index)
{
    if (auto *tabWidget = FrontendCast<QTabWidget>(owner))
        tabWidget->setCurrentIndex(index);
}
