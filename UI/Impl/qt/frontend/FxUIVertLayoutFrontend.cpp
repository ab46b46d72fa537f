#include "UI/Impl/qt/frontend/FxUIVertLayoutFrontend.h"

#include "UI/Impl/FxUIVerticalLayoutImpl.h"
#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include <QtGui/QKeyEvent>

CFxUIVertLayoutFrontend::CFxUIVertLayoutFrontend()
    : QGroupBox(nullptr)
{
}

CFxUIVertLayoutFrontend::~CFxUIVertLayoutFrontend()
{
    delete m_spinner;
}

// The spinner is stored before it starts, so its picture shows the background and the children, but
// not the group box's own painting. Intended.
void CFxUIVertLayoutFrontend::startSpinner()
{
    if (m_spinner)
        m_lostSpinners.emplace_back(m_spinner);
    m_spinner = new CFxWidgetSpinner(this);
    m_spinner->StartSpinner();
}

void CFxUIVertLayoutFrontend::stopSpinner()
{
    if (!m_spinner)
        return;
    m_spinner->StopSpinner();
    delete m_spinner;
    m_spinner = nullptr;
}

void CFxUIVertLayoutFrontend::paintEvent(QPaintEvent *event)
{
    if (m_spinner)
        m_spinner->paintEvent(event);
    else
        QGroupBox::paintEvent(event);
}

void CFxUIVertLayoutFrontend::keyPressEvent(QKeyEvent *event)
{
    if (impl)
        impl->aboutToPassEventToParent().emit();
    if (impl && impl->isEventAccepted()) {
        event->accept();
        impl->setEventAccepted(false);
        return;
    }
    QWidget::keyPressEvent(event);
}
