#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <functional>
#include <utility>

// A combo box in plain words, to be compared with the real one after each step.
namespace ComboBoxModel {

/// What Qt's own widget does, as far as the test drives it.
class Widget {
public:
    std::function<void(int)> currentIndexChanged;
    QStringList rows;
    int current = -1;
    bool editable = false;
    QString edit;

    QString CurrentText() const { return editable ? edit : RowText(); }

    void SetCurrentIndex(int index) { MoveTo(index >= 0 && index < rows.size() ? index : -1); }

    void Insert(int index, const QString &text)
    {
        const int row = qBound(0, index, rows.size());
        rows.insert(row, text);
        if (rows.size() == 1)
            MoveTo(0);
        else if (row <= current)
            Report(current + 1);
    }

    void Remove(int row)
    {
        const int before = current;
        rows.removeAt(row);
        if (rows.isEmpty())
            LoseAll();
        else if (row < before)
            ShowAndReport(before - 1);
        else if (row == before)
            ShowAndReport(qMin(before, rows.size() - 1)); // also when the number stays
    }

    void Clear()
    {
        if (rows.isEmpty())
            return;
        rows.clear();
        LoseAll();
    }

    void SetEditable(bool value)
    {
        if (value && !editable)
            edit = RowText();
        editable = value;
    }

    void SetEditText(const QString &text)
    {
        if (editable)
            edit = text;
    }

    void PressDown() { GoTo(current + 1); }

    void PressUp() { GoTo(current - 1); }

    /// The return key in an editable box: a new text becomes a row at the end.
    void PressReturn()
    {
        if (edit.isEmpty())
            return;
        const QString text = edit;
        int row = rows.indexOf(text);
        if (row < 0) {
            row = rows.size();
            Insert(row, text);
        }
        SetCurrentIndex(row);
    }

private:
    QString RowText() const { return current < 0 ? QString() : rows.at(current); }

    void GoTo(int row)
    {
        if (row >= 0 && row < rows.size() && row != current)
            MoveTo(row);
    }

    void MoveTo(int row)
    {
        const bool changed = std::exchange(current, row) != row;
        edit = RowText();
        if (changed)
            currentIndexChanged(row);
    }

    // Without a current row the edited text stays.
    void LoseAll()
    {
        if (current >= 0)
            MoveTo(-1);
    }

    void ShowAndReport(int row)
    {
        current = row;
        edit = RowText();
        currentIndexChanged(row);
    }

    void Report(int row)
    {
        current = row;
        currentIndexChanged(row);
    }
};

/// The library's record and its emissions.
class Box {
public:
    struct Item {
        bool hasIcon;
        QString text;
        QVariant data;
    };

    Box()
    {
        widget.currentIndexChanged = [this](int row) { Follow(row); };
    }

    Widget widget;
    QVector<Item> items;
    int index = -1;
    QString text;
    bool editable = false;
    bool blocked = false;

    /// Called at each emission: name, argument.
    std::function<void(const char *, const QString &)> emitted;

    QString ItemText(int row) const { return HasItem(row) ? items.at(row).text : QString(); }

    void Insert(int row, const Item &item)
    {
        const int position = qBound(0, row, items.size());
        items.insert(position, item);
        widget.Insert(position, item.text);
    }

    void Add(const Item &item)
    {
        items.append(item);
        widget.Insert(widget.rows.size(), item.text);
    }

    void Remove(int row)
    {
        if (!HasItem(row))
            return;
        items.removeAt(row);
        if (row < widget.rows.size())
            widget.Remove(row);
    }

    void Clear()
    {
        items.clear();
        widget.Clear();
    }

    void SetItemData(int row, const QVariant &data)
    {
        if (HasItem(row))
            items[row].data = data;
    }

    void SetCurrentIndex(int row)
    {
        if (!HasItem(row))
            return;
        if (row != index) {
            index = row;
            text = items.at(row).text;
            Emit("currentIndexChanged", QString::number(index));
            Emit("currentStringChanged", ItemText(index));
        }
        widget.SetCurrentIndex(index);
    }

    void SetCurrentText(const QString &value)
    {
        if (value == text)
            return;
        text = value;
        widget.SetEditText(text);
        Emit("currentStringChanged", text);
    }

    void SetEditText(const QString &value)
    {
        text = value;
        widget.SetEditText(text);
    }

    void SetEditable(bool value)
    {
        editable = value;
        widget.SetEditable(value);
    }

    int FindText(const QString &value) const
    {
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).text == value)
                return i;
        }
        return -1;
    }

    int FindData(const QVariant &value) const
    {
        for (int i = 0; i < items.size(); ++i) {
            if (items.at(i).data == value)
                return i;
        }
        return -1;
    }

private:
    bool HasItem(int row) const { return row >= 0 && row < items.size(); }

    void Follow(int row)
    {
        if (!HasItem(row) || row == index)
            return;
        index = row;
        text = items.at(row).text;
        Emit("activated", QString::number(row));
        Emit("currentIndexChanged", QString::number(row));
        Emit("currentStringChanged", ItemText(row));
    }

    void Emit(const char *name, const QString &argument)
    {
        if (!blocked)
            emitted(name, argument);
    }
};

} // namespace ComboBoxModel
