#include "UI/FxUIAction.h"

#include "UI/Impl/FxBaseViewImpl.h"
#include "UI/Impl/FxUIActionImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIAction::CFxUIAction()
{
    auto *actionImpl = new CFxUIActionImpl(this);
    impl = actionImpl;
    actionImpl->CreateFrontendControl();
}

// Schedules the deletion of widgets alone: the QAction stays behind. Intended.
CFxUIAction::~CFxUIAction()
{
    if (QObject *handle = getHandle())
        FxBaseViewImpl::ReleaseFrontendControl(impl->GetFrontendClassName(), handle);
}

void CFxUIAction::setIcon(const QIcon &icon)
{
    ImplOf<CFxUIActionImpl>(this)->setIcon(icon);
}

void CFxUIAction::setResourceIcon(const QString &name)
{
    ImplOf<CFxUIActionImpl>(this)->setResourceIcon(name);
}

void CFxUIAction::setText(const QString &text)
{
    ImplOf<CFxUIActionImpl>(this)->setText(text);
}

void CFxUIAction::setEnabled(bool enabled)
{
    ImplOf<CFxUIActionImpl>(this)->setEnabled(enabled);
}

void CFxUIAction::setCheckable(bool checkable)
{
    ImplOf<CFxUIActionImpl>(this)->setCheckable(checkable);
}

void CFxUIAction::setChecked(bool checked)
{
    ImplOf<CFxUIActionImpl>(this)->setChecked(checked);
}

void CFxUIAction::setVisible(bool visible)
{
    ImplOf<CFxUIActionImpl>(this)->setVisible(visible);
}

QString CFxUIAction::text() const
{
    return ImplOf<CFxUIActionImpl>(this)->text();
}

bool CFxUIAction::isChecked() const
{
    return ImplOf<CFxUIActionImpl>(this)->isChecked();
}

CFxUISignal<void(bool)> &CFxUIAction::triggered()
{
    return ImplOf<CFxUIActionImpl>(this)->triggered();
}
