#include "UI/FxUIObject.h"

#include "UI/FxUIObjectData.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <string>

CFxUIObject::CFxUIObject()
    : impl(nullptr)
    , data(new CFxUIObjectData)
{
}

CFxUIObject::~CFxUIObject()
{
    setParent(nullptr);
    delete impl;
    impl = nullptr;
    // A copy: each child takes itself out of the list in the record as it dies. One that has left
    // meanwhile, deleted or moved by a sibling's destructor, is no longer this object's to delete.
    const QList<CFxUIObject *> children = data->children();
    for (CFxUIObject *child : children) {
        if (data->indexOf(child) >= 0)
            delete child;
    }
    delete data;
}

QObject *CFxUIObject::getHandle() const
{
    return data->getHandle();
}

void CFxUIObject::setHandle(QObject *handle)
{
    data->setHandle(handle);
}

void CFxUIObject::setObjectName(const QString &name)
{
    data->setObjectName(name);
    if (impl)
        impl->SetObjectNameImpl(name);
}

QString CFxUIObject::objectName() const
{
    return data->objectName();
}

void CFxUIObject::setSender(CFxUIObject *sender)
{
    data->setSender(sender);
}

CFxUIObject *CFxUIObject::sender()
{
    return data->sender();
}

CFxUIObject *CFxUIObject::parent()
{
    return data->parent();
}

CFxUIObject *CFxUIObject::parent() const
{
    return data->parent();
}

void CFxUIObject::setParent(CFxUIObject *parent)
{
    if (data->parent())
        data->parent()->data->removeChild(this);
    data->setParent(parent);
    if (parent)
        parent->data->addChild(this);
}

QList<CFxUIObject *> CFxUIObject::children() const
{
    return data->children();
}

bool CFxUIObject::setProperty(const char *name, const QVariant &value)
{
    const std::string key(name); // refuses a null name before Qt sees it
    if (!impl || !impl->SetPropertyImpl(key.c_str(), value))
        return false;
    return data->setProperty(key.c_str(), value);
}

QVariant CFxUIObject::property(const char *name)
{
    return data->property(name);
}

void CFxUIObject::blockSignals(bool block)
{
    data->blockSignals(block);
}

bool CFxUIObject::signalsBlocked() const
{
    return data->signalsBlocked();
}
