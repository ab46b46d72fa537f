#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QObject>

/// Deletes what waits for deletion (QObject::deleteLater), at once.
inline void FlushDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Counts the requests for a repaint that reach a widget.
class UpdateCounter : public QObject {
public:
    int updates = 0;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        updates += event->type() == QEvent::UpdateRequest ? 1 : 0;
        return false;
    }
};
