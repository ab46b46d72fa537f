#include "UI/Impl/FxUIActionImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QAction>

QString CFxUIActionImpl::GetFrontendClassName()
{
    return QStringLiteral("QAction");
}

void CFxUIActionImpl::CreateFrontendControl()
{
    auto *action = new QAction(nullptr);
    owner->setHandle(action);
    ConnectFrontend(action, &QAction::triggered, this, &CFxUIActionImpl::onTriggered);
}

void CFxUIActionImpl::SetIconImpl(const QIcon &icon)
{
    if (auto *action = FrontendCast<QAction>(owner))
        action->setIcon(icon);
}

void CFxUIActionImpl::SetResourceIconImpl(const QString & /*name*/)
{
    // The name is dropped. Intended.
}

void CFxUIActionImpl::SetTextImpl(const QString &text)
{
    if (auto *action = FrontendCast<QAction>(owner))
        action->setText(text);
}

void CFxUIActionImpl::SetEnabledImpl(bool /*enabled*/)
{
    // The QAction stays as it is. Intended.
}

void CFxUIActionImpl::SetCheckableImpl(bool checkable)
{
    if (auto *action = FrontendCast<QAction>(owner))
        action->setCheckable(checkable);
}

void CFxUIActionImpl::SetCheckedImpl(bool checked)
{
    if (auto *action = FrontendCast<QAction>(owner))
        action->setChecked(checked);
}

void CFxUIActionImpl::SetVisibleImpl(bool visible)
{
    if (auto *action = FrontendCast<QAction>(owner))
        action->setVisible(visible);
}
