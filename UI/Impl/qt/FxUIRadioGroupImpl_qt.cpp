#include "UI/Impl/FxUIRadioGroupImpl.h"

#include "UI/FxUIRadioButton.h"
#include "UI/Impl/qt/BoxLayout.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QGroupBox>

QString CFxUIRadioGroupImpl::GetFrontendClassName()
{
    return QStringLiteral("QButtonGroup");
}

void CFxUIRadioGroupImpl::CreateFrontendControl()
{
    owner->setHandle(new QButtonGroup);
}

// The button doesn't join the QButtonGroup: buttons in one widget exclude each other. Intended.
void CFxUIRadioGroupImpl::AddRadioButtonImpl(CFxUIRadioButton *button)
{
    auto *layout = BoxLayout::Find<QGroupBox>(owner->parent());
    QWidget *widget =
        BoxLayout::Prepare(button, QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
    if (layout && widget)
        layout->addWidget(widget);
}

void CFxUIRadioGroupImpl::SetTitleImpl(const QString & /*title*/)
{
    // The title is shown nowhere. Intended.
}

void CFxUIRadioGroupImpl::SetCurrentImpl(int /*index*/)
{
    // The selection is Qt's. Intended.
}

void CFxUIRadioGroupImpl::SetTextImpl(int /*index*/, const QString & /*text*/)
{
    // A button's text is set at the button. Intended.
}
