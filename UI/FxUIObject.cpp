#include "UI/FxUIObject.h"

#include "UI/FxUIObjectData.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <string>

namespace {

// The children that a dying object is about to delete. One that dies before, in a sibling's
// destructor, takes itself out; one that such a destructor moves to another parent stays in.
struct Walk {
    QList<CFxUIObject *> children;
    Walk *outer;
};

Walk *innermostWalk = nullptr;

void LeaveWalks(CFxUIObject *object)
{
    for (Walk *walk = innermostWalk; walk; walk = walk->outer)
        walk->children.removeAll(object);
}

void DeleteChildren(CFxUIObject *parent)
{
    Walk walk { parent->children(), innermostWalk };
    innermostWalk = &walk;
    while (!walk.children.isEmpty()) {
        CFxUIObject *const child = walk.children.takeFirst();
        if (child && child->parent() != parent)
            parent->data->removeChild(child); // it won't know to leave the list as it dies
        delete child;
    }
    innermostWalk = walk.outer;
}

// A child that comes while its parent dies isn't the parent's to delete any more.
void LetGoOfLateChildren(CFxUIObject *parent)
{
    const QList<CFxUIObject *> late = parent->children();
    for (CFxUIObject *child : late) {
        if (child)
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
    setParent(nullptr);
    LeaveWalks(this);
    delete impl;
    impl = nullptr;
    DeleteChildren(this);
    LetGoOfLateChildren(this);
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
