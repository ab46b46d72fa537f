#include "UI/Impl/FxUIHorizontalLayoutImpl.h"

#include "UI/Impl/qt/BoxLayout.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>

QString CFxUIHorizontalLayoutImpl::GetFrontendClassName()
{
    return QStringLiteral("QHBoxLayout"); // a label: the handle is a group box
}

void CFxUIHorizontalLayoutImpl::CreateFrontendControl()
{
    auto *box = new QGroupBox(nullptr);
    box->setStyleSheet(QStringLiteral("QGroupBox{ border: none; padding: 0px; }"));
    owner->setHandle(box);
    auto *layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
}

void CFxUIHorizontalLayoutImpl::AddViewImpl(CFxUIBaseView *view, float weight)
{
    auto *layout = BoxLayout::Find<QGroupBox>(owner);
    QWidget *widget = BoxLayout::Prepare(view, QSizePolicy::Preferred, QSizePolicy::Preferred);
    if (layout && widget)
        layout->addWidget(widget, BoxLayout::Stretch(weight));
}

void CFxUIHorizontalLayoutImpl::InsertViewImpl(CFxUIBaseView *view, int index, float weight)
{
    QWidget *widget = BoxLayout::Prepare(view, QSizePolicy::Preferred, QSizePolicy::Preferred);
    BoxLayout::Insert(BoxLayout::Find<QGroupBox>(owner), widget, index, weight);
}

// Unlike the column, the row keeps the widget in its Qt layout and on screen. Intended.
void CFxUIHorizontalLayoutImpl::RemoveViewImpl(CFxUIBaseView *view)
{
    CFxUIBaseViewImpl::RemoveViewImpl(view);
}

void CFxUIHorizontalLayoutImpl::SetContentsMarginsImpl(int left, int top, int right, int bottom)
{
    BoxLayout::SetContentsMargins(BoxLayout::Find<QGroupBox>(owner), left, top, right, bottom);
}

void CFxUIHorizontalLayoutImpl::SetSpacingImpl(int spacing)
{
    BoxLayout::SetSpacing(BoxLayout::Find<QGroupBox>(owner), spacing);
}
