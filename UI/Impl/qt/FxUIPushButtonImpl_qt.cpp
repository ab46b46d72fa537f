#include "UI/Impl/FxUIPushButtonImpl.h"

#include "UI/FxUIMenu.h"
#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"
#include "UI/Impl/qt/StyleSheetEdit.h"

#include <QtWidgets/QMenu>

namespace {

// The backslashes are the expression's own.
const QString TextAlign = QStringLiteral("text-align[ \\t]*:[ \\ta-zA-Z]*;");
const QString FontWeight = QStringLiteral("font-weight[ \\t]*:[ \\ta-zA-Z]*;");

// There is no such file: Qt finds no picture and draws no arrow.
const QString NoMenuArrow = QStringLiteral("QPushButton::menu-indicator{image:url(none.jpg);}");

QString TextAlignDeclaration(CFxUIBaseView::TextAlignment alignment)
{
    switch (alignment) {
    case CFxUIBaseView::AlignLeft:
        return QStringLiteral("text-align:left;");
    case CFxUIBaseView::AlignRight:
        return QStringLiteral("text-align:right;");
    case CFxUIBaseView::AlignCenter:
        return QStringLiteral("text-align:center;");
    }
    return QString();
}

void ReplaceDeclaration(QWidget *widget, const QString &pattern, const QString &declaration)
{
    widget->setStyleSheet(StyleSheetEdit::Replace(widget->styleSheet(), { pattern }, declaration,
                                                  StyleSheetEdit::Brace::Anywhere));
}

} // namespace

QString CFxUIPushButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("CFxUIPushButtonFrontend");
}

void CFxUIPushButtonImpl::CreateFrontendControl()
{
    auto *button = new CFxUIPushButtonFrontend;
    button->setStyleSheet(QStringLiteral("QPushButton { }"));
    button->impl = this;
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
        ReplaceDeclaration(button, TextAlign, TextAlignDeclaration(alignment));
}

void CFxUIPushButtonImpl::SetBoldTextImpl(bool bold)
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        ReplaceDeclaration(button, FontWeight,
                           bold ? QStringLiteral("font-weight: bold;")
                                : QStringLiteral("font-weight: normal;"));
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
    auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner);
    if (!button)
        return;
    QString sheet = button->styleSheet();
    if (visible)
        sheet.replace(NoMenuArrow, QString());
    else
        sheet.append(NoMenuArrow);
    button->setStyleSheet(sheet);
}

void CFxUIPushButtonImpl::DetachFrontendImpl()
{
    if (auto *button = FrontendCast<CFxUIPushButtonFrontend>(owner))
        button->impl = nullptr;
}
