#include "UI/Impl/FxUIObjectImpl.h"

#include <utility>

CFxUIObjectImpl::CFxUIObjectImpl(CFxUIObject *object)
    : owner(object)
{
}

CFxUIObjectImpl::~CFxUIObjectImpl()
{
    for (const QMetaObject::Connection &connection : std::as_const(m_connections))
        QObject::disconnect(connection);
}

void CFxUIObjectImpl::EndWithThis(const QMetaObject::Connection &connection)
{
    m_connections.append(connection);
}
