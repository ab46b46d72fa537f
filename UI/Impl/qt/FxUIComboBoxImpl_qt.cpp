#include "UI/Impl/FxUIComboBoxImpl.h"

#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QComboBox>

static_assert(static_cast<int>(CFxUIComboBox::NoInsert) == QComboBox::NoInsert);
static_assert(static_cast<int>(CFxUIComboBox::InsertAtTop) == QComboBox::InsertAtTop);
static_assert(static_cast<int>(CFxUIComboBox::InsertAtCurrent) == QComboBox::InsertAtCurrent);
static_assert(static_cast<int>(CFxUIComboBox::InsertAtBottom) == QComboBox::InsertAtBottom);
static_assert(static_cast<int>(CFxUIComboBox::InsertAfterCurrent) == QComboBox::InsertAfterCurrent);
static_assert(static_cast<int>(CFxUIComboBox::InsertBeforeCurrent)
              == QComboBox::InsertBeforeCurrent);
static_assert(static_cast<int>(CFxUIComboBox::InsertAlphabetically)
              == QComboBox::InsertAlphabetically);

QString CFxUIComboBoxImpl::GetFrontendClassName()
{
    return QStringLiteral("QComboBox");
}

void CFxUIComboBoxImpl::CreateFrontendControl()
{
    auto *comboBox = new QComboBox;
    comboBox->setStyleSheet(QStringLiteral("QComboBox { }"));
    owner->setHandle(comboBox);
    ConnectFrontend(comboBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
                    &CFxUIComboBoxImpl::OnCurrentIndexChanged);
}

void CFxUIComboBoxImpl::ClearImpl()
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->clear();
}

void CFxUIComboBoxImpl::AddItemImpl(const QString &text)
{
    AddItemImpl(QIcon(), text);
}

void CFxUIComboBoxImpl::AddItemImpl(const QIcon &icon, const QString &text)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->insertItem(comboBox->count(), icon, text, QVariant());
}

void CFxUIComboBoxImpl::InsertItemImpl(int index, const QString &text)
{
    InsertItemImpl(index, QIcon(), text);
}

void CFxUIComboBoxImpl::InsertItemImpl(int index, const QIcon &icon, const QString &text)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->insertItem(index, icon, text, QVariant());
}

void CFxUIComboBoxImpl::RemoveItemImpl(int index)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->removeItem(index);
}

void CFxUIComboBoxImpl::SetEditableImpl(bool editable)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setEditable(editable);
}

void CFxUIComboBoxImpl::ClearEditTextImpl()
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->clearEditText();
}

void CFxUIComboBoxImpl::SetItemTextImpl(int index, const QString &text)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setItemText(index, text);
}

void CFxUIComboBoxImpl::SetEditTextImpl(const QString &text)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setEditText(text);
}

void CFxUIComboBoxImpl::SetHideEmptyTextImpl(bool /*hide*/)
{
    // Items without text are shown. Intended.
}

void CFxUIComboBoxImpl::SetIconSizeImpl(QSize size)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setIconSize(size);
}

void CFxUIComboBoxImpl::SetMaxVisibleItemsImpl(int count)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setMaxVisibleItems(count);
}

void CFxUIComboBoxImpl::SetCurrentIndexImpl(int index)
{
    if (auto *comboBox = FrontendCast<QComboBox>(owner))
        comboBox->setCurrentIndex(index);
}
