#include "UI/Impl/FxUILabelImpl.h"

#include "UI/Impl/qt/Convert.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QLabel>

QString CFxUILabelImpl::GetFrontendClassName()
{
    return QStringLiteral("QLabel");
}

void CFxUILabelImpl::CreateFrontendControl()
{
    auto *label = new QLabel;
    label->setStyleSheet(QStringLiteral("QLabel { }"));
    owner->setHandle(label);
}

void CFxUILabelImpl::SetTextImpl(const QString &text)
{
    if (auto *label = FrontendCast<QLabel>(owner))
        label->setText(text);
}

void CFxUILabelImpl::SetPixmapImpl(const QPixmap &pixmap)
{
    if (auto *label = FrontendCast<QLabel>(owner))
        label->setPixmap(pixmap);
}

void CFxUILabelImpl::SetIconImpl(const QIcon &icon)
{
    if (auto *label = FrontendCast<QLabel>(owner))
        label->setPixmap(icon.pixmap(QSize(25, 25), QIcon::Normal, QIcon::Off));
}

void CFxUILabelImpl::SetBoldTextImpl(bool bold)
{
    auto *label = FrontendCast<QLabel>(owner);
    if (!label)
        return;
    QFont font = label->font();
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    label->setFont(font);
}

void CFxUILabelImpl::SetFontSizeImpl(int pixels)
{
    auto *label = FrontendCast<QLabel>(owner);
    if (!label)
        return;
    QFont font = label->font();
    font.setPixelSize(pixels);
    label->setFont(font);
}

void CFxUILabelImpl::SetWordWrapImpl(bool wrap)
{
    if (auto *label = FrontendCast<QLabel>(owner))
        label->setWordWrap(wrap);
}

void CFxUILabelImpl::SetToolTipImpl(const QString &toolTip)
{
    if (auto *label = FrontendCast<QLabel>(owner))
        label->setToolTip(toolTip);
}

void CFxUILabelImpl::SetTextAlignmentImpl(CFxUIBaseView::TextAlignment alignment)
{
    auto *label = FrontendCast<QLabel>(owner);
    const Qt::Alignment qtAlignment = ToQtAlignment(alignment);
    if (label && qtAlignment)
        label->setAlignment(qtAlignment);
}

void CFxUILabelImpl::SetBuddyImpl(CFxUIBaseView *view)
{
    auto *label = FrontendCast<QLabel>(owner);
    QWidget *buddy = FrontendWidget(view);
    if (label && buddy)
        label->setBuddy(buddy);
}
