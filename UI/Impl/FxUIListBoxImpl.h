#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// Implementation object of CFxUIListBox: all of it, for its widget stays empty.
class COMMONUI_EXPORT CFxUIListBoxImpl : public CFxUIBaseViewImpl {
public:
    /// The record of one row beside its text.
    struct ItemDef {
        QVariant data;
        bool selected = false;
    };

    explicit CFxUIListBoxImpl(CFxUIObject *object);
    ~CFxUIListBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    void addItem(const QString &text);
    void clear();
    int count() const;
    int row(const QString &text) const;
    QString &item(int index);
    QVariant itemData(int index) const;
    void setItemData(int index, const QVariant &value);
    bool isItemSelected(int index) const;
    void setItemSelected(int index, bool selected);

    /// Always empty.
    QList<QString> selectedItems() const;

    /// Always 0.
    int currentRow() const;

    /// Reaches the Qt half only, where it ends: no flag changes.
    void clearSelection();

    /// Reaches the Qt half only, where it ends: the text stays.
    void setItemText(int index, const QString &text);

    CFxUISignal<void(int)> &valueChanged();

    /// Stands ready for a report of a selection; nothing is connected to it. Stores the flag if the
    /// row exists, and emits in either case.
    void OnItemSelected(int index, bool selected);

    void AddItemImpl(const QString &text);
    void ClearImpl();
    void ClearSelectionImpl();
    void SetItemSelectedImpl(int index, bool selected);
    void SetItemTextImpl(int index, const QString &text);

protected:
    bool IsRow(int index) const;
    bool IsAnySelected() const;

    QList<QString> m_texts;
    QVector<ItemDef> m_items; // as many as texts, in their order
    CFxUISignal<void(int)> m_valueChanged; ///< emitted by OnItemSelected() with 1 for any, else 0
    QString m_noText; // what item() refers to for a row that doesn't exist
};
