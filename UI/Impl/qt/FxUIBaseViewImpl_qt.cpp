#include "UI/Impl/FxUIBaseViewImpl.h"

#include "UI/Impl/FxBaseViewImpl.h"
#include "UI/Impl/qt/FrontendCast.h"
#include "UI/Impl/qt/StyleSheetEdit.h"

namespace {

// Numbers out of range leave an invalid colour, with QColor::setRgb's own warning.
QColor Rgb(int red, int green, int blue)
{
    QColor color;
    color.setRgb(red, green, blue);
    return color;
}

} // namespace

QString CFxUIBaseViewImpl::GetFrontendClassName()
{
    return QString();
}

void CFxUIBaseViewImpl::CreateFrontendControl()
{
    const QString className = GetFrontendClassName();
    if (!className.isEmpty())
        owner->setHandle(FxBaseViewImpl::CreateFrontendControl(className, this));
}

void CFxUIBaseViewImpl::UpdateImpl()
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->update();
}

void CFxUIBaseViewImpl::SetEnabledImpl(bool enabled)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setEnabled(enabled);
}

void CFxUIBaseViewImpl::SetVisibleImpl(bool visible)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setVisible(visible);
}

void CFxUIBaseViewImpl::SetFocusImpl()
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setFocus(Qt::OtherFocusReason);
}

void CFxUIBaseViewImpl::SetFocusPolicyImpl(int policy)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(policy));
}

void CFxUIBaseViewImpl::SetTabOrderImpl(CFxUIObject *first, CFxUIObject *second)
{
    QWidget::setTabOrder(FrontendWidget(first), FrontendWidget(second));
}

void CFxUIBaseViewImpl::SetPreferrableSizeImpl(int /*width*/, int /*height*/)
{
    // The preferred size is a record alone.
}

void CFxUIBaseViewImpl::SetMinimumWidthImpl(int width)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setMinimumWidth(width);
}

void CFxUIBaseViewImpl::SetMinimumHeightImpl(int height)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setMinimumHeight(height);
}

void CFxUIBaseViewImpl::SetMaximumWidthImpl(int width)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setMaximumWidth(width);
}

void CFxUIBaseViewImpl::SetMaximumHeightImpl(int height)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setMaximumHeight(height);
}

void CFxUIBaseViewImpl::SetCornerRadiusImpl(float /*radius*/)
{
    // A radius has no effect.
}

void CFxUIBaseViewImpl::SetBorderWidthImpl(float width)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setStyleSheet(StyleSheetEdit::WithBorderWidth(widget->styleSheet(), width));
}

void CFxUIBaseViewImpl::SetBorderWidthImpl(float left, float top, float right, float bottom)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setStyleSheet(
            StyleSheetEdit::WithBorderWidths(widget->styleSheet(), left, top, right, bottom));
}

void CFxUIBaseViewImpl::SetBorderColorImpl(int red, int green, int blue)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setStyleSheet(
            StyleSheetEdit::WithBorderColor(widget->styleSheet(), Rgb(red, green, blue)));
}

void CFxUIBaseViewImpl::SetBackgroundColorImpl(int red, int green, int blue)
{
    if (QWidget *widget = FrontendWidget(owner))
        widget->setStyleSheet(
            StyleSheetEdit::WithBackgroundColor(widget->styleSheet(), Rgb(red, green, blue)));
}

void CFxUIBaseViewImpl::SetTextColorImpl(int red, int green, int blue)
{
    QWidget *widget = FrontendWidget(owner);
    if (!widget)
        return;
    QPalette palette = widget->palette();
    palette.setBrush(QPalette::All, QPalette::Text, QBrush(Rgb(red, green, blue)));
    widget->setPalette(palette);
}
