#include "UI/Impl/FxUIComboBoxImpl.h"

#include <algorithm>

namespace {

constexpr int TextField = 1;
constexpr int DataField = 2;

template <class Items, class Predicate> int FirstIndex(const Items &items, Predicate matches)
{
    const auto found = std::find_if(items.cbegin(), items.cend(), matches);
    return found == items.cend() ? -1 : static_cast<int>(found - items.cbegin());
}

} // namespace

CFxUIComboBoxImpl::CFxUIComboBoxImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_activated(object)
    , m_currentIndexChanged(object)
    , m_currentStringChanged(object)
    , m_editTextChanged(object)
    , m_editingFinished(object)
{
}

CFxUIComboBoxImpl::~CFxUIComboBoxImpl() = default;

// Index and text stay: the widget reports -1, which the handler passes over. Intended.
void CFxUIComboBoxImpl::clear()
{
    m_items.clear();
    ClearImpl();
}

// The item is in the list before the widget has it, so that the handler finds the first item.
void CFxUIComboBoxImpl::addItem(const QString &text, const QVariant &userData)
{
    m_items.append(Item(QIcon(), text, userData));
    AddItemImpl(text);
}

void CFxUIComboBoxImpl::addItem(const QIcon &icon, const QString &text, const QVariant &userData)
{
    m_items.append(Item(icon, text, userData));
    AddItemImpl(icon, text);
}

void CFxUIComboBoxImpl::insertItem(int index, const QString &text, const QVariant &userData)
{
    const int position = qBound(0, index, count());
    m_items.insert(position, Item(QIcon(), text, userData));
    InsertItemImpl(position, text);
}

void CFxUIComboBoxImpl::insertItem(int index, const QIcon &icon, const QString &text,
                                   const QVariant &userData)
{
    const int position = qBound(0, index, count());
    m_items.insert(position, Item(icon, text, userData));
    InsertItemImpl(position, icon, text);
}

void CFxUIComboBoxImpl::removeItem(int index)
{
    if (!HasItem(index))
        return;
    m_items.remove(index);
    RemoveItemImpl(index);
}

int CFxUIComboBoxImpl::count() const
{
    return m_items.size();
}

QString CFxUIComboBoxImpl::itemText(int index) const
{
    return HasItem(index) ? std::get<TextField>(m_items.at(index)) : QString();
}

QVariant CFxUIComboBoxImpl::itemData(int index, int /*role*/) const
{
    return HasItem(index) ? std::get<DataField>(m_items.at(index)) : QVariant();
}

void CFxUIComboBoxImpl::setItemData(int index, const QVariant &value, int /*role*/)
{
    if (HasItem(index))
        std::get<DataField>(m_items[index]) = value;
}

int CFxUIComboBoxImpl::findData(const QVariant &value, int /*role*/,
                                QFlags<Qt::MatchFlag> /*flags*/) const
{
    return FirstIndex(m_items,
                      [&value](const Item &item) { return std::get<DataField>(item) == value; });
}

int CFxUIComboBoxImpl::findText(const QString &text, QFlags<Qt::MatchFlag> /*flags*/) const
{
    return FirstIndex(m_items, [&text](const Item &item) {
        return std::get<TextField>(item).compare(text, Qt::CaseSensitive) == 0;
    });
}

// The list keeps the old text. Intended.
void CFxUIComboBoxImpl::setItemText(int index, const QString &text)
{
    SetItemTextImpl(index, text);
}

bool CFxUIComboBoxImpl::isEditable() const
{
    return m_editable;
}

void CFxUIComboBoxImpl::setEditable(bool editable)
{
    m_editable = editable;
    SetEditableImpl(m_editable);
}

QString CFxUIComboBoxImpl::currentText() const
{
    return m_currentText;
}

void CFxUIComboBoxImpl::setCurrentText(const QString &text)
{
    if (text == m_currentText)
        return;
    m_currentText = text;
    SetEditTextImpl(m_currentText);
    m_currentStringChanged.emit(m_currentText);
}

void CFxUIComboBoxImpl::setEditText(const QString &text)
{
    m_currentText = text;
    SetEditTextImpl(m_currentText);
}

// Doesn't go on to ClearEditTextImpl: the widget keeps its text. Intended.
void CFxUIComboBoxImpl::clearEditText()
{
    m_currentText = QString();
}

int CFxUIComboBoxImpl::currentIndex() const
{
    return m_currentIndex;
}

// The slots run before the widget is told, and what they set is what it gets: the index is read
// anew in each step.
void CFxUIComboBoxImpl::setCurrentIndex(int index)
{
    if (!HasItem(index))
        return;
    if (index == m_currentIndex) {
        SetCurrentIndexImpl(m_currentIndex);
        return;
    }
    m_currentIndex = index;
    m_currentText = itemText(index);
    m_currentIndexChanged.emit(m_currentIndex);
    EmitStringOfItem(m_currentIndex);
    SetCurrentIndexImpl(m_currentIndex);
}

void CFxUIComboBoxImpl::setHideEmptyText(bool hide)
{
    SetHideEmptyTextImpl(hide);
}

void CFxUIComboBoxImpl::setIconSize(QSize size)
{
    SetIconSizeImpl(size);
}

void CFxUIComboBoxImpl::setMaxVisibleItems(int count)
{
    SetMaxVisibleItemsImpl(count);
}

CFxUISignal<void(int)> &CFxUIComboBoxImpl::activated()
{
    return m_activated;
}

CFxUISignal<void(int)> &CFxUIComboBoxImpl::currentIndexChanged()
{
    return m_currentIndexChanged;
}

CFxUISignal<void(const QString &)> &CFxUIComboBoxImpl::currentStringChanged()
{
    return m_currentStringChanged;
}

CFxUISignal<void(const QString &)> &CFxUIComboBoxImpl::editTextChanged()
{
    return m_editTextChanged;
}

CFxUISignal<void()> &CFxUIComboBoxImpl::editingFinished()
{
    return m_editingFinished;
}

// The emissions name the index that was reported, also when a slot has moved on since. Intended.
void CFxUIComboBoxImpl::OnCurrentIndexChanged(int index)
{
    if (!HasItem(index) || index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_currentText = itemText(index);
    m_activated.emit(index);
    m_currentIndexChanged.emit(index);
    EmitStringOfItem(index);
}

void CFxUIComboBoxImpl::OnEditTextChanged(const QString &text)
{
    m_currentText = text;
    m_editTextChanged.emit(text);
}

void CFxUIComboBoxImpl::OnEditingFinished()
{
    m_editingFinished.emit();
}

bool CFxUIComboBoxImpl::HasItem(int index) const
{
    return index >= 0 && index < m_items.size();
}

// With a copy of the text, since a slot may remove the item; null if one has removed it already.
void CFxUIComboBoxImpl::EmitStringOfItem(int index)
{
    const QString text = itemText(index);
    m_currentStringChanged.emit(text);
}
