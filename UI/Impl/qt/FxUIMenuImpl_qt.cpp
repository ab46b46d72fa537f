#include "UI/Impl/FxUIMenuImpl.h"

#include "UI/FxUIAction.h"
#include "UI/FxUIBaseView.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QMenu>

QString CFxUIMenuImpl::GetFrontendClassName()
{
    return QStringLiteral("QMenu");
}

void CFxUIMenuImpl::CreateFrontendControl()
{
    auto *menu = new QMenu(nullptr);
    menu->setStyleSheet(QStringLiteral("QMenu { }"));
    owner->setHandle(menu);
}

void CFxUIMenuImpl::ClearImpl()
{
    if (auto *menu = FrontendCast<QMenu>(owner))
        menu->clear();
}

void CFxUIMenuImpl::AddActionImpl(CFxUIAction *action)
{
    auto *menu = FrontendCast<QMenu>(owner);
    auto *entry = FrontendCast<QAction>(action);
    if (menu && entry)
        menu->addAction(entry);
}

QAction *CFxUIMenuImpl::AddSeparatorImpl()
{
    auto *menu = FrontendCast<QMenu>(owner);
    return menu ? menu->addSeparator() : nullptr;
}

void CFxUIMenuImpl::PopupImpl(CFxUIBaseView *view)
{
    const QWidget *widget = FrontendWidget(view);
    if (!widget)
        return;
    auto *menu = FrontendCast<QMenu>(owner);
    if (!menu)
        return;
    const int menuWidth = menu->sizeHint().width();
    const QPoint below(widget->width() - menuWidth, widget->height());
    menu->popup(widget->mapToGlobal(below), nullptr);
}
