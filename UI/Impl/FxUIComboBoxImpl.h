#pragma once

#include "UI/FxUIComboBox.h"
#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>
#include <QtGui/QIcon>

#include <tuple>

/// Implementation object of CFxUIComboBox.
class COMMONUI_EXPORT CFxUIComboBoxImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIComboBoxImpl(CFxUIObject *object);
    ~CFxUIComboBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void clear();
    void addItem(const QString &text, const QVariant &userData);
    void addItem(const QIcon &icon, const QString &text, const QVariant &userData);
    void insertItem(int index, const QString &text, const QVariant &userData);
    void insertItem(int index, const QIcon &icon, const QString &text, const QVariant &userData);
    void removeItem(int index);
    int count() const;
    QString itemText(int index) const;
    QVariant itemData(int index, int role) const;
    void setItemData(int index, const QVariant &value, int role);
    int findData(const QVariant &value, int role, QFlags<Qt::MatchFlag> flags) const;
    int findText(const QString &text, QFlags<Qt::MatchFlag> flags) const;

    /// Changes the widget's item alone: itemText() goes on answering the old text.
    void setItemText(int index, const QString &text);

    bool isEditable() const;
    void setEditable(bool editable);
    QString currentText() const;
    void setCurrentText(const QString &text);
    void setEditText(const QString &text);
    void clearEditText();
    int currentIndex() const;
    void setCurrentIndex(int index);

    /// No effect.
    void setHideEmptyText(bool hide);

    void setIconSize(QSize size);
    void setMaxVisibleItems(int count);

    CFxUISignal<void(int)> &activated();
    CFxUISignal<void(int)> &currentIndexChanged();
    CFxUISignal<void(const QString &)> &currentStringChanged();
    CFxUISignal<void(const QString &)> &editTextChanged();
    CFxUISignal<void()> &editingFinished();

    /// Follows QComboBox::currentIndexChanged(int), whoever caused it. An index that no item has,
    /// and the one that is current already, are passed over; so a setter's own change of the widget
    /// ends here.
    void OnCurrentIndexChanged(int index);

    /// Both for a caller that holds this object: no connection leads to them.
    void OnEditTextChanged(const QString &text);
    void OnEditingFinished();

    void ClearImpl();
    void AddItemImpl(const QString &text);
    void AddItemImpl(const QIcon &icon, const QString &text);
    void InsertItemImpl(int index, const QString &text);
    void InsertItemImpl(int index, const QIcon &icon, const QString &text);
    void RemoveItemImpl(int index);
    void SetEditableImpl(bool editable);

    /// QComboBox::clearEditText. No operation calls it.
    void ClearEditTextImpl();
    void SetItemTextImpl(int index, const QString &text);
    void SetEditTextImpl(const QString &text);

    /// Empty.
    void SetHideEmptyTextImpl(bool hide);

    void SetIconSizeImpl(QSize size);
    void SetMaxVisibleItemsImpl(int count);
    void SetCurrentIndexImpl(int index);

protected:
    using Item = std::tuple<QIcon, QString, QVariant>;

    bool m_editable = false;
    int m_currentIndex = -1; // no item has been current yet
    QString m_currentText;
    QVector<Item> m_items;
    CFxUISignal<void(int)> m_activated; ///< emitted when the widget changes the index, with it
    CFxUISignal<void(int)> m_currentIndexChanged; ///< emitted on each change, with the index
    CFxUISignal<void(const QString &)> m_currentStringChanged; ///< emitted last, with the text
    CFxUISignal<void(const QString &)> m_editTextChanged; ///< emitted by OnEditTextChanged alone
    CFxUISignal<void()> m_editingFinished; ///< emitted by OnEditingFinished alone

private:
    bool HasItem(int index) const;
    void EmitStringOfItem(int index);
};
