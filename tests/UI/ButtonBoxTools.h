#pragma once

#include "DialogTools.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIDialogButtonBoxImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

// What the tests of the button box share.
namespace ButtonBoxTools {

using Box = CFxUIDialogButtonBox;

inline QDialogButtonBox *QtBox(const Box &box)
{
    return qobject_cast<QDialogButtonBox *>(box.getHandle());
}

inline CFxUIDialogButtonBoxImpl *Impl(const Box &box)
{
    return static_cast<CFxUIDialogButtonBoxImpl *>(box.impl);
}

inline QPushButton *QtButton(const Box &box, Box::StandardButton which)
{
    return QtBox(box)->button(static_cast<QDialogButtonBox::StandardButton>(which));
}

inline void Press(const Box &box, Box::StandardButton which)
{
    QTest::mouseClick(QtButton(box, which), Qt::LeftButton);
}

// A set-up dialog with a box, and a log of what dialog, wrappers and box emit.
class Fixture {
public:
    TestDialog dialog;
    Box *box = nullptr;
    QStringList log;

    Fixture()
    {
        dialog.inSetup = [this] {
            dialog.GetLayout()->addView(new CFxUILabel);
            box = new Box(&dialog);
        };
        ExecAndDo(dialog, [this] { dialog.done(9); });
        Listen(dialog.accepted(), "dialog accepted");
        Listen(dialog.rejected(), "dialog rejected");
        Listen(box->accepted(), "accepted");
        Listen(box->rejected(), "rejected");
        Listen(box->helpRequest(), "helpRequest");
        box->clicked().connect([this](CFxUIPushButton *button) {
            log.append(QStringLiteral("clicked ") + Name(button));
        });
        for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help }) {
            CFxUIPushButton *wrapper = box->button(which);
            wrapper->clicked().connect([this, wrapper](bool checked) {
                log.append(Name(wrapper) + (checked ? QStringLiteral(" true") : QString()));
            });
        }
    }

private:
    void Listen(CFxUISignal<void()> &signal, const char *name)
    {
        signal.connect([this, name] { log.append(QString::fromLatin1(name)); });
    }

    QString Name(const CFxUIPushButton *button) const
    {
        if (button == box->button(Box::Ok))
            return QStringLiteral("ok");
        return button == box->button(Box::Cancel) ? QStringLiteral("cancel")
                                                  : QStringLiteral("help");
    }
};

inline QStringList Lines(const char *text)
{
    return QString::fromLatin1(text).split(QStringLiteral(", "), Qt::SkipEmptyParts);
}

} // namespace ButtonBoxTools
