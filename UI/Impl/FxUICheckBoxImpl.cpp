#include "UI/Impl/FxUICheckBoxImpl.h"

namespace {

// Any number but 1 and 2 counts as unchecked.
CFxUICheckBox::CheckState ToCheckState(int state)
{
    switch (state) {
    case CFxUICheckBox::PartiallyChecked:
        return CFxUICheckBox::PartiallyChecked;
    case CFxUICheckBox::Checked:
        return CFxUICheckBox::Checked;
    default:
        return CFxUICheckBox::Unchecked;
    }
}

} // namespace

CFxUICheckBoxImpl::CFxUICheckBoxImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_stateChanged(object)
    , m_toggled(object)
    , m_clicked(object)
{
}

CFxUICheckBoxImpl::~CFxUICheckBoxImpl() = default;

void CFxUICheckBoxImpl::setText(const QString &text)
{
    m_text = text;
    SetTextImpl(m_text);
}

QString CFxUICheckBoxImpl::text() const
{
    return m_text;
}

// Emits both signals a second time, behind the emissions of OnSwitchChanged. Intended.
void CFxUICheckBoxImpl::setChecked(bool checked)
{
    if (checked == m_checked)
        return;
    m_checked = checked;
    SetCheckedImpl(checked);
    m_stateChanged.emit(checked ? CFxUICheckBox::Checked : CFxUICheckBox::Unchecked);
    m_toggled.emit(m_checked); // read anew: a slot may have changed it
}

bool CFxUICheckBoxImpl::isChecked() const
{
    return m_checked;
}

void CFxUICheckBoxImpl::setTristate(bool tristate)
{
    m_tristate = tristate;
    SetTristateImpl(m_tristate);
}

bool CFxUICheckBoxImpl::isTristate() const
{
    return m_tristate;
}

// Emits nothing of its own, unlike setChecked: what the widget reports does. Intended.
void CFxUICheckBoxImpl::setCheckState(CFxUICheckBox::CheckState state)
{
    m_checkState = state;
    SetCheckStateImpl(m_checkState);
}

CFxUICheckBox::CheckState CFxUICheckBoxImpl::checkState() const
{
    return m_checkState;
}

void CFxUICheckBoxImpl::setResourceIcon(const QString &resource)
{
    SetResourceIconImpl(resource);
}

void CFxUICheckBoxImpl::setTextSize(float size)
{
    SetTextSizeImpl(size);
}

CFxUISignal<void(int)> &CFxUICheckBoxImpl::stateChanged()
{
    return m_stateChanged;
}

CFxUISignal<void(bool)> &CFxUICheckBoxImpl::toggled()
{
    return m_toggled;
}

CFxUISignal<void()> &CFxUICheckBoxImpl::clicked()
{
    return m_clicked;
}

void CFxUICheckBoxImpl::OnSwitchChanged(int state)
{
    const bool checked = state != 0;
    m_checked = checked;
    m_checkState = ToCheckState(state);
    m_stateChanged.emit(state);
    m_toggled.emit(checked); // what was reported, whatever a slot has made of the state since
}
