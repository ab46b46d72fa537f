#pragma once

#include "support/EventRecorder.h"
#include "UI/FxUIComboBox.h"
#include "UI/Impl/FxUIComboBoxImpl.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QComboBox>

// What the tests of the combo box share.
namespace ComboBoxTools {

inline const QString A = QStringLiteral("a");
inline const QString B = QStringLiteral("b");
inline const QString C = QStringLiteral("c");

inline QComboBox *Widget(const CFxUIComboBox &box)
{
    return qobject_cast<QComboBox *>(box.getHandle());
}

inline CFxUIComboBoxImpl *Impl(const CFxUIComboBox &box)
{
    return static_cast<CFxUIComboBoxImpl *>(box.impl);
}

inline QStringList Texts(const CFxUIComboBox &box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i)
        texts.append(box.itemText(i));
    return texts;
}

inline QStringList WidgetTexts(const CFxUIComboBox &box)
{
    QStringList texts;
    for (int i = 0; i < Widget(box)->count(); ++i)
        texts.append(Widget(box)->itemText(i));
    return texts;
}

inline void AddABC(CFxUIComboBox &box)
{
    box.addItem(A, 1);
    box.addItem(B, 2);
    box.addItem(C, 3);
}

inline QIcon Icon()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

// A combo box under observation. Each line of the log ends with what currentIndex() and
// currentText() answer and with the index and the text of the widget.
struct Watched {
    Watched()
    {
        log.Listen("activated", box.activated());
        log.Listen("currentIndexChanged", box.currentIndexChanged());
        log.Listen("currentStringChanged", box.currentStringChanged());
        log.Listen("editTextChanged", box.editTextChanged());
        log.Listen("editingFinished", box.editingFinished());
        log.ListenToQt("Qt.currentIndexChanged", Widget(box),
                       qOverload<int>(&QComboBox::currentIndexChanged));
    }

    QString State() const
    {
        return QStringLiteral("%1 '%2' widget %3 '%4'")
            .arg(QString::number(box.currentIndex()), box.currentText(),
                 QString::number(Widget(box)->currentIndex()), Widget(box)->currentText());
    }

    CFxUIComboBox box;
    EventRecorder log { [this] { return State(); } };
};

// With the items "a", "b" and "c", of which the first is the current one; nothing is logged yet.
struct WatchedABC : Watched {
    WatchedABC()
    {
        AddABC(box);
        log.Take();
    }
};

} // namespace ComboBoxTools
