#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/FxUISignal.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/Qt>
#include <QtCore/QVariant>

class QIcon;
class QValidator;

/// A list of items to choose one from (QComboBox), each with an icon, a text and data.
///
/// The box keeps items, index and text in a record of its own, from which every getter answers; the
/// widget gets the icons and texts. Three changes leave the record behind the widget: clear() keeps
/// currentIndex() and currentText(), an item that takes over the row of the current one keeps
/// currentText(), and what a user types into an editable box doesn't arrive here at all.
///
/// Signals of a change of the index:
/// - by setCurrentIndex(): currentIndexChanged(), currentStringChanged(), then the widget follows;
/// - by the widget, that is by the user, by the first item of an empty box, and by an insertion or
///   removal that shifts the current row: activated(), currentIndexChanged(),
///   currentStringChanged(), behind the widget's change.
class COMMONUI_EXPORT CFxUIComboBox : public CFxUIBaseView {
public:
    /// The numbers of QComboBox::InsertPolicy.
    enum InsertPolicy : int {
        NoInsert = 0,
        InsertAtTop = 1,
        InsertAtCurrent = 2,
        InsertAtBottom = 3,
        InsertAfterCurrent = 4,
        InsertBeforeCurrent = 5,
        InsertAlphabetically = 6
    };

    CFxUIComboBox();
    ~CFxUIComboBox() override;

    /// Removes all items. currentIndex() and currentText() keep their values and no signal is
    /// emitted. If the index was 0, the first item added afterwards emits nothing either, and the
    /// text stays that of the item that is gone.
    void clear();

    /// Appends an item. The first item of an empty widget becomes the current one.
    void addItem(const QString &text, const QVariant &userData = QVariant());
    void addItem(const QIcon &icon, const QString &text, const QVariant &userData = QVariant());

    /// Inserts an item before the one at \a index, from 0 to count(). An index outside goes to the
    /// nearer end (as with QComboBox::insertItem).
    void insertItem(int index, const QString &text, const QVariant &userData = QVariant());
    void insertItem(int index, const QIcon &icon, const QString &text,
                    const QVariant &userData = QVariant());

    /// Inserts items without data one by one, the first before the one at \a index. An index
    /// outside goes to the nearer end.
    void insertItems(int index, const QStringList &texts);

    /// Removes the item at \a index; nothing for an index outside the items (as with
    /// QComboBox::removeItem).
    void removeItem(int index);

    int count() const;

    /// Returns the text of an item; a null string for an index outside the items.
    QString itemText(int index) const;

    /// Returns the data of an item, which is one value whatever the \a role; invalid for an index
    /// outside the items.
    QVariant itemData(int index, int role = Qt::UserRole) const;

    /// Replaces the data of an item, whatever the \a role; nothing for an index outside the items.
    /// The widget has no data.
    void setItemData(int index, const QVariant &value, int role = Qt::UserRole);

    /// Returns the first index whose data equals \a value (QVariant's operator), or -1. \a role and
    /// \a flags aren't looked at. An invalid value finds the first item without data.
    int findData(const QVariant &value, int role = Qt::UserRole,
                 QFlags<Qt::MatchFlag> flags = Qt::MatchExactly | Qt::MatchCaseSensitive) const;

    /// Returns the first index whose text equals \a text, or -1. The search is always exact and
    /// case sensitive, whatever the \a flags.
    int findText(const QString &text,
                 QFlags<Qt::MatchFlag> flags = Qt::MatchExactly | Qt::MatchCaseSensitive) const;

    /// No effect.
    void setItemText(int index, const QString &text);

    /// Default: false.
    bool isEditable() const;

    /// QComboBox::setEditable. No signal follows.
    void setEditable(bool editable);

    /// Returns the text of the item that became current last, or the text set since. Default:
    /// empty.
    QString currentText() const;

    /// Stores \a text, shows it in an editable box, and emits currentStringChanged() if it differs
    /// from currentText(). No item is looked up: currentIndex() stays.
    void setCurrentText(const QString &text);

    /// As setCurrentText(), but without comparison and without a signal.
    void setEditText(const QString &text);

    /// Empties currentText() alone: the widget goes on showing its text, and nothing is emitted.
    void clearEditText();

    /// Default: -1, which doesn't come back once an item has been current.
    int currentIndex() const;

    /// Makes an item the current one; nothing for an index outside the items. The slots of the two
    /// signals run before the widget changes; one that sets another index wins. With the index that
    /// currentIndex() answers the widget is brought in line, and nothing is emitted.
    void setCurrentIndex(int index);

    /// No effect, all three.
    void setHideEmptyText(bool hide);
    void setInsertPolicy(CFxUIComboBox::InsertPolicy policy);
    void setValidator(const QValidator *validator);

    /// QComboBox::setIconSize. Not stored.
    void setIconSize(QSize size);

    /// QComboBox::setMaxVisibleItems. Not stored.
    void setMaxVisibleItems(int count);

    /// Emitted with the index when the widget changes it, whether or not a user did; never by
    /// setCurrentIndex().
    CFxUISignal<void(int)> &activated();

    /// Emitted with the new index, behind activated() where that is emitted.
    CFxUISignal<void(int)> &currentIndexChanged();

    /// Emitted with the new text, behind currentIndexChanged() or alone by setCurrentText(). If a
    /// slot before it has removed the item, the text is null.
    CFxUISignal<void(const QString &)> &currentStringChanged();

    /// Never emitted by the library, both: they are connected to nothing in the widget.
    CFxUISignal<void(const QString &)> &editTextChanged();
    CFxUISignal<void()> &editingFinished();
};
