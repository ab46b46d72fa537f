#include "UI/Impl/FxUIPushButtonImpl.h"

#include "UI/FxUIMenu.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"
#include "UI/Impl/qt/StyleSheetEdit.h"

#include <QtWidgets/QMenu>

QString CFxUIPushButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("CFxUIPushButtonFrontend");
}

void CFxUIPushButtonImpl::CreateFrontendControl()
{
    auto *button = new CFxUIPushButtonFrontend;
    button->setStyleSheet(QStringLiteral("QPushButton { }"));
    LinkFrontend(button, this);
    owner->setHandle(button);
    m_iconSize = button->iconSize();
}

void CFxUIPushButtonImpl::SetTextImpl(const QString &text)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setText(text);
}

void CFxUIPushButtonImpl::SetIconImpl(const QIcon &icon)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setIcon(icon);
}

void CFxUIPushButtonImpl::SetResourceIconImpl(const QString & /*name*/)
{
    // The name is dropped. Intended.
}

void CFxUIPushButtonImpl::SetIconSizeImpl(const QSize &size)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setIconSize(size);
}

void CFxUIPushButtonImpl::SetTextAlignmentImpl(CFxUIBaseView::TextAlignment alignment)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setStyleSheet(StyleSheetEdit::WithTextAlignment(button->styleSheet(), alignment));
}

void CFxUIPushButtonImpl::SetBoldTextImpl(bool bold)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setStyleSheet(StyleSheetEdit::WithBoldText(button->styleSheet(), bold));
}

void CFxUIPushButtonImpl::SetToolTipImpl(const QString &toolTip)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setToolTip(toolTip);
}

void CFxUIPushButtonImpl::SetCheckableImpl(bool checkable)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setCheckable(checkable);
}

void CFxUIPushButtonImpl::SetMenuImpl(CFxUIMenu *menu)
{
    auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner);
    auto *qtMenu = FrontendCast<QMenu>(menu);
    if (button && (qtMenu || !menu))
        button->setMenu(qtMenu);
}

// Hiding appends the rule without a test whether it is there; showing removes every one. Intended.
void CFxUIPushButtonImpl::SetMenuArrowVisibleImpl(bool visible)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->setStyleSheet(StyleSheetEdit::WithMenuArrow(button->styleSheet(), visible));
}
