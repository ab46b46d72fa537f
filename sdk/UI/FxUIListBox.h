#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A list of text rows, each with a data value and a selected flag.
///
/// A model and no more: the QListWidget behind it stays empty on the screen, and no selection that
/// a user could make reaches it. Rows can be added and cleared, not removed one by one.
class COMMONUI_EXPORT CFxUIListBox : public CFxUIBaseView {
public:
    CFxUIListBox();
    ~CFxUIListBox() override;

    /// Appends a row without data, not selected.
    void addItem(const QString &text);

    /// Removes all rows.
    void clear();

    int count() const;

    /// Returns the lowest row with exactly this text, or -1.
    int row(const QString &text) const;

    /// Returns the stored text of row \a index; what is assigned to it stays. The reference is good
    /// until rows are added or cleared. An index out of range gives an empty text that belongs to
    /// no row, emptied again at each such call.
    QString &item(int index);

    /// Returns the row's data; invalid for an index out of range. Default: invalid.
    QVariant itemData(int index) const;

    /// Does nothing for an index out of range.
    void setItemData(int index, const QVariant &value);

    /// Returns the row's flag; false for an index out of range. Default: false.
    bool isItemSelected(int index);

    /// Stores the row's flag and emits nothing. Does nothing for an index out of range.
    void setItemSelected(int index, bool selected);

    /// Always empty: the rows' flags are not consulted.
    QList<QString> selectedItems() const;

    /// Always 0.
    int currentRow() const;

    /// Does nothing: all flags stay.
    void clearSelection();

    /// Does nothing: the text stays.
    void setItemText(int index, const QString &text);

    /// Emitted by CFxUIListBoxImpl::OnItemSelected() alone, which the host may call: with 1 if any
    /// row is selected then, with 0 if none is. Neither a row nor a count.
    CFxUISignal<void(int)> &valueChanged();
};
