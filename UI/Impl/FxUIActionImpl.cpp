#include "UI/Impl/FxUIActionImpl.h"

CFxUIActionImpl::CFxUIActionImpl(CFxUIObject *object)
    : CFxUIObjectImpl(object)
    , m_triggered(object)
{
}

CFxUIActionImpl::~CFxUIActionImpl() = default;

void CFxUIActionImpl::setIcon(const QIcon &icon)
{
    m_icon = icon;
    SetIconImpl(m_icon);
}

void CFxUIActionImpl::setResourceIcon(const QString &name)
{
    SetResourceIconImpl(name);
}

void CFxUIActionImpl::setText(const QString &text)
{
    m_text = text;
    SetTextImpl(m_text);
}

void CFxUIActionImpl::setEnabled(bool enabled)
{
    m_enabled = enabled;
    SetEnabledImpl(enabled);
}

void CFxUIActionImpl::setCheckable(bool checkable)
{
    m_checkable = checkable;
    SetCheckableImpl(checkable);
}

void CFxUIActionImpl::setChecked(bool checked)
{
    m_checked = checked;
    SetCheckedImpl(checked);
}

void CFxUIActionImpl::setVisible(bool visible)
{
    m_visible = visible;
    SetVisibleImpl(visible);
}

QString CFxUIActionImpl::text() const
{
    return m_text;
}

bool CFxUIActionImpl::isChecked() const
{
    return m_checked;
}

CFxUISignal<void(bool)> &CFxUIActionImpl::triggered()
{
    return m_triggered;
}

// Stores nothing: isChecked() is the last setChecked() and not the state of the QAction. Intended.
void CFxUIActionImpl::onTriggered(bool checked)
{
    m_triggered.emit(checked);
}
