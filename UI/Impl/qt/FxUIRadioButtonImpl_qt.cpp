#include "UI/Impl/FxUIRadioButtonImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QRadioButton>

QString CFxUIRadioButtonImpl::GetFrontendClassName()
{
    return QStringLiteral("QRadioButton");
}

// The widget's toggled and released stay unconnected. Intended.
void CFxUIRadioButtonImpl::CreateFrontendControl()
{
    auto *radioButton = new QRadioButton;
    radioButton->setStyleSheet(QStringLiteral("QRadioButton { }"));
    owner->setHandle(radioButton);
    ConnectFrontend(radioButton, &QRadioButton::clicked, this, &CFxUIRadioButtonImpl::OnClicked);
}

void CFxUIRadioButtonImpl::SetTextImpl(const QString &text)
{
    if (auto *radioButton = FrontendCast<QRadioButton>(owner))
        radioButton->setText(text);
}

void CFxUIRadioButtonImpl::SetCheckedImpl(bool checked)
{
    if (auto *radioButton = FrontendCast<QRadioButton>(owner))
        radioButton->setChecked(checked);
}
