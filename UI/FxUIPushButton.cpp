#include "UI/FxUIPushButton.h"

#include "UI/Impl/FxUIPushButtonImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIPushButton::CFxUIPushButton()
{
    auto *buttonImpl = new CFxUIPushButtonImpl(this);
    impl = buttonImpl;
    buttonImpl->CreateFrontendControl();
}

CFxUIPushButton::~CFxUIPushButton() = default;

void CFxUIPushButton::setText(const QString &text)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setText(text);
}

QString CFxUIPushButton::text() const
{
    return ImplOf<CFxUIPushButtonImpl>(this)->text();
}

void CFxUIPushButton::setIcon(const QIcon &icon)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setIcon(icon);
}

void CFxUIPushButton::setResourceIcon(const QString &name)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setResourceIcon(name);
}

void CFxUIPushButton::setIconSize(const QSize &size)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setIconSize(size);
}

QSize CFxUIPushButton::iconSize() const
{
    return ImplOf<CFxUIPushButtonImpl>(this)->iconSize();
}

void CFxUIPushButton::setElideTextEnabled(bool enabled)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setElideTextEnabled(enabled);
}

CFxUISignal<void(bool)> &CFxUIPushButton::clicked()
{
    return ImplOf<CFxUIPushButtonImpl>(this)->clicked();
}

void CFxUIPushButton::setTextAlignment(CFxUIBaseView::TextAlignment alignment)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setTextAlignment(alignment);
}

void CFxUIPushButton::setBoldText(bool bold)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setBoldText(bold);
}

void CFxUIPushButton::setToolTip(const QString &toolTip)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setToolTip(toolTip);
}

void CFxUIPushButton::setCheckable(bool checkable)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setCheckable(checkable);
}

void CFxUIPushButton::setMenu(CFxUIMenu *menu)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setMenu(menu);
}

void CFxUIPushButton::setMenuArrowVisible(bool visible)
{
    ImplOf<CFxUIPushButtonImpl>(this)->setMenuArrowVisible(visible);
}
