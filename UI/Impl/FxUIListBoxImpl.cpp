#include "UI/Impl/FxUIListBoxImpl.h"

#include <algorithm>

CFxUIListBoxImpl::CFxUIListBoxImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_valueChanged(object)
{
}

CFxUIListBoxImpl::~CFxUIListBoxImpl() = default;

void CFxUIListBoxImpl::addItem(const QString &text)
{
    m_texts.append(text);
    m_items.append(ItemDef());
    AddItemImpl(m_texts.constLast());
}

void CFxUIListBoxImpl::clear()
{
    m_texts = QList<QString>();
    m_items.clear();
    ClearImpl();
}

int CFxUIListBoxImpl::count() const
{
    return m_texts.size();
}

int CFxUIListBoxImpl::row(const QString &text) const
{
    return m_texts.indexOf(text);
}

QString &CFxUIListBoxImpl::item(int index)
{
    if (IsRow(index))
        return m_texts[index];
    m_noText = QString(); // the last caller may have written to it
    return m_noText;
}

QVariant CFxUIListBoxImpl::itemData(int index) const
{
    return IsRow(index) ? m_items.at(index).data : QVariant();
}

void CFxUIListBoxImpl::setItemData(int index, const QVariant &value)
{
    if (IsRow(index))
        m_items[index].data = value;
}

bool CFxUIListBoxImpl::isItemSelected(int index) const
{
    return IsRow(index) && m_items.at(index).selected;
}

void CFxUIListBoxImpl::setItemSelected(int index, bool selected)
{
    if (!IsRow(index))
        return;
    m_items[index].selected = selected;
    SetItemSelectedImpl(index, selected);
}

// The rows' flags are not consulted. Intended.
QList<QString> CFxUIListBoxImpl::selectedItems() const
{
    return QList<QString>();
}

int CFxUIListBoxImpl::currentRow() const
{
    return 0;
}

void CFxUIListBoxImpl::clearSelection()
{
    ClearSelectionImpl();
}

void CFxUIListBoxImpl::setItemText(int index, const QString &text)
{
    SetItemTextImpl(index, text);
}

CFxUISignal<void(int)> &CFxUIListBoxImpl::valueChanged()
{
    return m_valueChanged;
}

void CFxUIListBoxImpl::OnItemSelected(int index, bool selected)
{
    if (IsRow(index))
        m_items[index].selected = selected;
    m_valueChanged.emit(IsAnySelected() ? 1 : 0);
}

bool CFxUIListBoxImpl::IsRow(int index) const
{
    return index >= 0 && index < m_items.size();
}

bool CFxUIListBoxImpl::IsAnySelected() const
{
    return std::any_of(m_items.cbegin(), m_items.cend(),
                       [](const ItemDef &item) { return item.selected; });
}
