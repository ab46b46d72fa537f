#include "UI/Impl/FxUIRadioButtonImpl.h"

#include "UI/Impl/FxUIRadioGroupImpl.h"

#include <utility>

CFxUIRadioButtonImpl::CFxUIRadioButtonImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_released(object)
    , m_clicked(object)
    , m_toggled(object)
{
}

CFxUIRadioButtonImpl::~CFxUIRadioButtonImpl() = default;

const QString &CFxUIRadioButtonImpl::text() const
{
    return m_text;
}

void CFxUIRadioButtonImpl::setText(const QString &text)
{
    m_text = text;
    SetTextImpl(m_text);
}

// The widget comes first and always, so that a button that the user has changed can be set back;
// the comparison is with the last value set, not with the widget. Intended.
void CFxUIRadioButtonImpl::setChecked(bool checked)
{
    SetCheckedImpl(checked);
    if (checked == m_checked)
        return;
    m_checked = checked;
    m_toggled.emit(checked);
}

bool CFxUIRadioButtonImpl::isChecked() const
{
    return m_checked;
}

CFxUISignal<void()> &CFxUIRadioButtonImpl::released()
{
    return m_released;
}

CFxUISignal<void()> &CFxUIRadioButtonImpl::clicked()
{
    return m_clicked;
}

CFxUISignal<void(bool)> &CFxUIRadioButtonImpl::toggled()
{
    return m_toggled;
}

void CFxUIRadioButtonImpl::SetContainer(CFxUIRadioGroupImpl *container)
{
    m_container = container;
}

void CFxUIRadioButtonImpl::JoinGroup(CFxUIRadioGroupImpl *group)
{
    if (!m_groups.contains(group))
        m_groups.append(group);
}

void CFxUIRadioButtonImpl::LeaveGroup(CFxUIRadioGroupImpl *group)
{
    m_groups.removeOne(group);
}

void CFxUIRadioButtonImpl::LeaveGroups(CFxUIRadioButton *button)
{
    const QVector<CFxUIRadioGroupImpl *> groups = std::exchange(m_groups, {});
    for (CFxUIRadioGroupImpl *group : groups)
        group->ForgetButton(button);
}

// The click isn't recorded in m_checked. Intended.
void CFxUIRadioButtonImpl::OnClicked()
{
    m_clicked.emit();
}

void CFxUIRadioButtonImpl::OnToggled(bool checked)
{
    if (checked != m_checked) {
        m_checked = checked;
        m_toggled.emit(checked);
    }
    m_released.emit();
}
