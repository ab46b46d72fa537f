#pragma once

#include "UI/FxUIObject.h"

#include <QtWidgets/QWidget>

/// The handle of \a object as a \a Frontend; null if there is no object, no handle, or one of
/// another class.
template <class Frontend> Frontend *FrontendCast(const CFxUIObject *object)
{
    return object ? qobject_cast<Frontend *>(object->getHandle()) : nullptr;
}

/// The handle of \a object as a widget of any class (QObject::isWidgetType), or null.
inline QWidget *FrontendWidget(const CFxUIObject *object)
{
    QObject *handle = object ? object->getHandle() : nullptr;
    return handle && handle->isWidgetType() ? static_cast<QWidget *>(handle) : nullptr;
}
