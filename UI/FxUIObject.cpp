#include "UI/FxUIObject.h"

#include "UI/FxUIObjectData.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <string>

namespace {

// The children of a dying object that left it alive, which a sibling's destructor may make them do.
// They die in their turn all the same; one that dies before takes itself out.
struct Departures {
    const CFxUIObject *parent;
    QList<CFxUIObject *> departed;
    Departures *outer;
};

Departures *innermostDepartures = nullptr;

// Returns the parent that was left, null if there was none.
CFxUIObject *LeaveParent(CFxUIObject *object)
{
    CFxUIObject *const parent = object->data->parent();
    if (parent)
        parent->data->removeChild(object);
    object->data->setParent(nullptr);
    return parent;
}

void NoteDeparture(const CFxUIObject *parent, CFxUIObject *child)
{
    for (Departures *noted = innermostDepartures; noted; noted = noted->outer) {
        if (noted->parent == parent)
            noted->departed.append(child);
    }
}

void NoteDeath(CFxUIObject *object)
{
    for (Departures *noted = innermostDepartures; noted; noted = noted->outer) {
        if (!noted->departed.isEmpty())
            noted->departed.removeAll(object);
    }
}

// From a copy of the list: each child takes itself out of the list in the record as it dies. One
// that a sibling's destructor has deleted meanwhile is gone already; one that came meanwhile isn't
// the parent's to delete any more and is let go.
void DeleteChildren(CFxUIObject *parent)
{
    const QList<CFxUIObject *> children = parent->children();
    if (children.isEmpty())
        return;
    Departures noted { parent, {}, innermostDepartures };
    innermostDepartures = &noted;
    for (CFxUIObject *child : children) {
        if (parent->data->indexOf(child) >= 0 || noted.departed.contains(child))
            delete child;
    }
    innermostDepartures = noted.outer;
    const QList<CFxUIObject *> late = parent->children();
    for (CFxUIObject *child : late) {
        if (child && !children.contains(child))
            child->setParent(nullptr);
    }
}

} // namespace

CFxUIObject::CFxUIObject()
    : data(new CFxUIObjectData)
{
}

CFxUIObject::~CFxUIObject()
{
    LeaveParent(this);
    NoteDeath(this);
    delete impl;
    impl = nullptr;
    DeleteChildren(this);
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
    if (const CFxUIObject *const former = LeaveParent(this))
        NoteDeparture(former, this);
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
