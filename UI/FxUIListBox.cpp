#include "UI/FxUIListBox.h"

#include "UI/Impl/FxUIListBoxImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIListBox::CFxUIListBox()
{
    auto *listBoxImpl = new CFxUIListBoxImpl(this);
    impl = listBoxImpl;
    listBoxImpl->CreateFrontendControl();
}

CFxUIListBox::~CFxUIListBox() = default;

void CFxUIListBox::addItem(const QString &text)
{
    ImplOf<CFxUIListBoxImpl>(this)->addItem(text);
}

void CFxUIListBox::clear()
{
    ImplOf<CFxUIListBoxImpl>(this)->clear();
}

int CFxUIListBox::count() const
{
    return ImplOf<CFxUIListBoxImpl>(this)->count();
}

int CFxUIListBox::row(const QString &text) const
{
    return ImplOf<CFxUIListBoxImpl>(this)->row(text);
}

QString &CFxUIListBox::item(int index)
{
    return ImplOf<CFxUIListBoxImpl>(this)->item(index);
}

QVariant CFxUIListBox::itemData(int index) const
{
    return ImplOf<CFxUIListBoxImpl>(this)->itemData(index);
}

void CFxUIListBox::setItemData(int index, const QVariant &value)
{
    ImplOf<CFxUIListBoxImpl>(this)->setItemData(index, value);
}

bool CFxUIListBox::isItemSelected(int index)
{
    return ImplOf<CFxUIListBoxImpl>(this)->isItemSelected(index);
}

void CFxUIListBox::setItemSelected(int index, bool selected)
{
    ImplOf<CFxUIListBoxImpl>(this)->setItemSelected(index, selected);
}

QList<QString> CFxUIListBox::selectedItems() const
{
    return ImplOf<CFxUIListBoxImpl>(this)->selectedItems();
}

int CFxUIListBox::currentRow() const
{
    return ImplOf<CFxUIListBoxImpl>(this)->currentRow();
}

// Doesn't reach CFxUIListBoxImpl::clearSelection(). Intended.
void CFxUIListBox::clearSelection() { }

// Doesn't reach CFxUIListBoxImpl::setItemText(). Intended.
void CFxUIListBox::setItemText(int /*index*/, const QString & /*text*/) { }

CFxUISignal<void(int)> &CFxUIListBox::valueChanged()
{
    return ImplOf<CFxUIListBoxImpl>(this)->valueChanged();
}
