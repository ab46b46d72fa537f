#include "UI/Impl/FxUIRadioGroupImpl.h"

#include "UI/FxUIRadioButton.h"
#include "UI/Impl/FxUIRadioButtonImpl.h"
#include "UI/Impl/ImplOf.h"

#include <algorithm>
#include <utility>

CFxUIRadioGroupImpl::CFxUIRadioGroupImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIRadioGroupImpl::~CFxUIRadioGroupImpl()
{
    for (CFxUIRadioButton *button : std::as_const(m_buttons)) {
        if (button)
            ImplOf<CFxUIRadioButtonImpl>(button)->LeaveGroup(this);
    }
}

void CFxUIRadioGroupImpl::setTitle(const QString &title)
{
    m_title = title;
    SetTitleImpl(m_title);
}

// Doesn't call SetContainer on the button. Intended.
void CFxUIRadioGroupImpl::AddRadioButton(CFxUIRadioButton *button)
{
    if (!button)
        return;
    m_buttons.append(button);
    ImplOf<CFxUIRadioButtonImpl>(button)->JoinGroup(this);
    AddRadioButtonImpl(button);
}

void CFxUIRadioGroupImpl::SetCurrent(CFxUIRadioButton *button)
{
    SetCurrentImpl(m_buttons.indexOf(button));
}

void CFxUIRadioGroupImpl::SetText(CFxUIRadioButton *button, const QString &text)
{
    SetTextImpl(m_buttons.indexOf(button), text);
}

// The list is read anew in each step: a slot may add buttons, and may delete others.
void CFxUIRadioGroupImpl::OnCurrentIndexChanged(int index)
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (CFxUIRadioButton *button = m_buttons.at(i))
            button->setChecked(i == index);
    }
}

void CFxUIRadioGroupImpl::ForgetButton(CFxUIRadioButton *button)
{
    std::replace(m_buttons.begin(), m_buttons.end(), button,
                 static_cast<CFxUIRadioButton *>(nullptr));
}
