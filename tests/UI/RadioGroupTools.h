#pragma once

#include "UI/FxUIGroupBox.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/Impl/FxUIRadioGroupImpl.h"

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QRadioButton>

#include <memory>

// What the tests of the radio group share.
namespace RadioGroupTools {

inline CFxUIRadioGroupImpl *Impl(const CFxUIRadioGroup &group)
{
    return static_cast<CFxUIRadioGroupImpl *>(group.impl);
}

class ImplProbe : public CFxUIRadioGroupImpl {
public:
    static QList<CFxUIRadioButton *> Buttons(const CFxUIRadioGroup &group)
    {
        return Impl(group)->*(&ImplProbe::m_buttons);
    }

    static QString Title(const CFxUIRadioGroup &group)
    {
        return Impl(group)->*(&ImplProbe::m_title);
    }
};

inline QButtonGroup *Handle(const CFxUIRadioGroup &group)
{
    return qobject_cast<QButtonGroup *>(group.getHandle());
}

inline QRadioButton *Widget(const CFxUIRadioButton *button)
{
    return qobject_cast<QRadioButton *>(button->getHandle());
}

inline QBoxLayout *QtLayout(const CFxUIBaseView &container)
{
    auto *widget = qobject_cast<QWidget *>(container.getHandle());
    return qobject_cast<QBoxLayout *>(widget->layout());
}

// Deletes the group and its handle, which nobody else deletes.
struct DeleteWithHandle {
    void operator()(CFxUIRadioGroup *group) const
    {
        delete group->getHandle();
        delete group;
    }
};

using GroupPointer = std::unique_ptr<CFxUIRadioGroup, DeleteWithHandle>;

inline GroupPointer NewGroup()
{
    return GroupPointer(new CFxUIRadioGroup);
}

// A group of three buttons in a group box.
struct GroupInABox {
    GroupInABox()
    {
        box.addView(group.get());
        for (CFxUIRadioButton *button : buttons)
            group->addRadioButton(button);
    }

    void CheckFirstInTheWidget() { Widget(buttons.first())->setChecked(true); }

    // Writes down every toggled() of the buttons: position and value.
    void Watch()
    {
        for (int i = 0; i < buttons.size(); ++i) {
            buttons.at(i)->toggled().connect([this, i](bool on) {
                toggles.append(QString::number(i) + QLatin1Char(on ? '+' : '-'));
            });
        }
    }

    QString State() const
    {
        QString state;
        for (const CFxUIRadioButton *button : buttons)
            state += QLatin1Char(button->isChecked() ? '+' : '-');
        state += QLatin1String(" widgets ");
        for (const CFxUIRadioButton *button : buttons)
            state += QLatin1Char(Widget(button)->isChecked() ? '+' : '-');
        return state;
    }

    CFxUIGroupBox box;
    GroupPointer group = NewGroup(); // goes before its box
    QList<CFxUIRadioButton *> buttons { new CFxUIRadioButton, new CFxUIRadioButton,
                                        new CFxUIRadioButton };
    QStringList toggles;
};

} // namespace RadioGroupTools
