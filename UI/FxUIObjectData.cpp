#include "UI/FxUIObjectData.h"

QObject *CFxUIObjectData::getHandle() const
{
    return m_handle;
}

void CFxUIObjectData::setHandle(QObject *handle)
{
    m_handle = handle;
}

void CFxUIObjectData::setObjectName(const QString &name)
{
    m_objectName = name;
}

QString CFxUIObjectData::objectName() const
{
    return m_objectName;
}

void CFxUIObjectData::setSender(CFxUIObject *sender)
{
    m_sender = sender;
}

CFxUIObject *CFxUIObjectData::sender()
{
    return m_sender;
}

CFxUIObject *CFxUIObjectData::parent() const
{
    return m_parent;
}

void CFxUIObjectData::setParent(CFxUIObject *parent)
{
    m_parent = parent;
}

QList<CFxUIObject *> CFxUIObjectData::children() const
{
    return m_children;
}

int CFxUIObjectData::indexOf(CFxUIObject *child) const
{
    return m_children.indexOf(child);
}

void CFxUIObjectData::addChild(CFxUIObject *child)
{
    if (!m_children.contains(child))
        m_children.append(child);
}

void CFxUIObjectData::removeChild(CFxUIObject *child)
{
    m_children.removeAll(child);
}

bool CFxUIObjectData::setProperty(const char *name, const QVariant &value)
{
    m_properties[std::string(name)] = value;
    return true;
}

QVariant CFxUIObjectData::property(const char *name) const
{
    const auto entry = m_properties.find(std::string(name));
    return entry == m_properties.end() ? QVariant() : entry->second;
}

void CFxUIObjectData::blockSignals(bool block)
{
    m_signalsBlocked = block;
}

bool CFxUIObjectData::signalsBlocked() const
{
    return m_signalsBlocked;
}
