#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

/// Deletes what waits for deletion (QObject::deleteLater), at once.
inline void FlushDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
