#include "UI/Impl/qt/frontend/FxUITextEditFrontend.h"

#include "UI/Impl/FxUITextEditImpl.h"

#include <QtGui/QKeyEvent>

CFxUITextEditFrontend::CFxUITextEditFrontend() = default;

CFxUITextEditFrontend::~CFxUITextEditFrontend() = default;

void CFxUITextEditFrontend::keyPressEvent(QKeyEvent *event)
{
    Q_EMIT keyPressed(event->key(), static_cast<int>(event->modifiers()));
    if (!impl || !impl->isEventAccepted()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    impl->setEventAccepted(false);
}
