#include "UI/FxUIEmitScope.h"

#include "UI/FxUIObject.h"

CFxUIEmitScope::CFxUIEmitScope(CFxUIObject *object, CFxUIObject *sender)
    : m_object(object)
{
    if (m_object)
        m_object->setSender(sender);
}

CFxUIEmitScope::~CFxUIEmitScope()
{
    if (m_object)
        m_object->setSender(nullptr);
}
