#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"

#include "UI/Impl/FxUIPushButtonImpl.h"

#include <QtGui/QFontMetrics>

CFxUIPushButtonFrontend::CFxUIPushButtonFrontend()
{
    connect(this, SIGNAL(pressed()), this, SLOT(OnPressed()));
    connect(this, SIGNAL(released()), this, SLOT(OnReleased()));
    connect(this, SIGNAL(clicked()), this, SLOT(OnClicked()));
    setAutoDefault(true);
}

CFxUIPushButtonFrontend::~CFxUIPushButtonFrontend() = default;

void CFxUIPushButtonFrontend::setText(const QString &text)
{
    m_fullText = text;
    QAbstractButton::setText(IsTextToElide() ? ElidedText() : m_fullText);
}

void CFxUIPushButtonFrontend::enterEvent(QEvent *event)
{
    if (impl)
        impl->hoverEnter().emit();
    QWidget::enterEvent(event);
}

void CFxUIPushButtonFrontend::leaveEvent(QEvent *event)
{
    if (impl)
        impl->hoverLeave().emit();
    QWidget::leaveEvent(event);
}

// The blocking doesn't restore an earlier state: afterwards the widget's signals are unblocked.
// Intended.
void CFxUIPushButtonFrontend::resizeEvent(QResizeEvent *event)
{
    if (IsTextToElide()) {
        const QString elided = ElidedText();
        blockSignals(true);
        QAbstractButton::setText(elided);
        blockSignals(false);
    }
    QWidget::resizeEvent(event);
}

void CFxUIPushButtonFrontend::OnPressed()
{
    // A press reaches no one. Intended.
}

void CFxUIPushButtonFrontend::OnReleased()
{
    // A release reaches no one. Intended.
}

// The operation that is named for the press reports the click. Intended.
void CFxUIPushButtonFrontend::OnClicked()
{
    if (impl)
        impl->OnPressed();
}

bool CFxUIPushButtonFrontend::IsTextToElide() const
{
    return impl && impl->isElideTextEnabled() && !m_fullText.isEmpty();
}

QString CFxUIPushButtonFrontend::ElidedText() const
{
    return QFontMetrics(font()).elidedText(m_fullText, Qt::ElideRight, width(), 0);
}
