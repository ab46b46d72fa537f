#include "UI/Impl/FxUICheckBoxImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QCheckBox>

static_assert(static_cast<int>(CFxUICheckBox::Unchecked) == Qt::Unchecked);
static_assert(static_cast<int>(CFxUICheckBox::PartiallyChecked) == Qt::PartiallyChecked);
static_assert(static_cast<int>(CFxUICheckBox::Checked) == Qt::Checked);

namespace {

Qt::CheckState ToQtCheckState(CFxUICheckBox::CheckState state)
{
    switch (static_cast<int>(state)) {
    case CFxUICheckBox::PartiallyChecked:
        return Qt::PartiallyChecked;
    case CFxUICheckBox::Checked:
        return Qt::Checked;
    default:
        return Qt::Unchecked;
    }
}

} // namespace

QString CFxUICheckBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QCheckBox");
}

void CFxUICheckBoxImpl::CreateFrontendControl()
{
    constexpr int height = 25;
    auto *checkBox = new QCheckBox;
    checkBox->setStyleSheet(QStringLiteral("QCheckBox { }"));
    checkBox->setMinimumHeight(height);
    checkBox->setMaximumHeight(height);
    owner->setHandle(checkBox);
    ConnectFrontend(checkBox, &QCheckBox::stateChanged, this, &CFxUICheckBoxImpl::OnSwitchChanged);
}

void CFxUICheckBoxImpl::SetTextImpl(const QString &text)
{
    if (auto *checkBox = FrontendCast<QCheckBox>(owner))
        checkBox->setText(text);
}

void CFxUICheckBoxImpl::SetCheckedImpl(bool checked)
{
    if (auto *checkBox = FrontendCast<QCheckBox>(owner))
        checkBox->setChecked(checked);
}

void CFxUICheckBoxImpl::SetTristateImpl(bool tristate)
{
    if (auto *checkBox = FrontendCast<QCheckBox>(owner))
        checkBox->setTristate(tristate);
}

void CFxUICheckBoxImpl::SetCheckStateImpl(CFxUICheckBox::CheckState state)
{
    if (auto *checkBox = FrontendCast<QCheckBox>(owner))
        checkBox->setCheckState(ToQtCheckState(state));
}

void CFxUICheckBoxImpl::SetResourceIconImpl(const QString & /*resource*/)
{
    // No icon is shown. Intended.
}

void CFxUICheckBoxImpl::SetTextSizeImpl(float /*size*/)
{
    // The text keeps its size. Intended.
}
