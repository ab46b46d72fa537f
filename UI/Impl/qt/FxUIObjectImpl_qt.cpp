#include "UI/FxUIObject.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QObject>

QString CFxUIObjectImpl::GetFrontendClassName()
{
    return QString();
}

void CFxUIObjectImpl::CreateFrontendControl() { }

void CFxUIObjectImpl::SetObjectNameImpl(const QString &name)
{
    if (QObject *handle = owner->getHandle())
        handle->setObjectName(name);
}

bool CFxUIObjectImpl::SetPropertyImpl(const char *name, const QVariant &value)
{
    QObject *handle = owner->getHandle();
    return handle && handle->setProperty(name, value);
}
