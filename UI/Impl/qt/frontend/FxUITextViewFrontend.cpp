#include "UI/Impl/qt/frontend/FxUITextViewFrontend.h"

#include "UI/Impl/FxUITextViewImpl.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QFontMetrics>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

CFxUITextViewFrontend::CFxUITextViewFrontend()
    : QTextEdit(nullptr)
{
    connect(this, SIGNAL(textChanged()), this, SLOT(OnEditContentChanged()));
    setTabChangesFocus(true);
    setAcceptRichText(false);
}

CFxUITextViewFrontend::~CFxUITextViewFrontend() = default;

void CFxUITextViewFrontend::setText(QString text)
{
    if (text.isEmpty()) {
        QTextEdit::setText(text);
        return;
    }
    QTextCursor cursor = textCursor();
    QTextCursor block(document());
    block.beginEditBlock();
    const int length = toPlainText().length();
    cursor.setPosition(length, QTextCursor::MoveAnchor);
    for (int i = 0; i < length; ++i)
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, 1);
    cursor.insertText(text, currentCharFormat());
    setTextCursor(cursor);
    adjustSize();
    document()->adjustSize();
    block.endEditBlock(); // here the change is reported
}

void CFxUITextViewFrontend::keyPressEvent(QKeyEvent *event)
{
    Q_EMIT keyPressed(event->key(), static_cast<int>(event->modifiers()));
    if (!impl || !impl->isEventAccepted()) {
        QTextEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    impl->setEventAccepted(false);
}

void CFxUITextViewFrontend::focusInEvent(QFocusEvent *event)
{
    if (impl)
        impl->OnFocusIn();
    QTextEdit::focusInEvent(event);
}

void CFxUITextViewFrontend::focusOutEvent(QFocusEvent *event)
{
    if (impl)
        impl->OnFocusOut();
    QTextEdit::focusOutEvent(event);
}

void CFxUITextViewFrontend::OnEditContentChanged()
{
    if (!impl)
        return;
    impl->OnEditTextChanged(document()->toPlainText());
    if (impl && impl->getAdjustHeightToContent())
        FitHeightToContent();
}

// Switching it off later brings back neither the scroll bar nor the free height. Intended.
void CFxUITextViewFrontend::FitHeightToContent()
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int contentHeight =
        static_cast<int>(document()->documentLayout()->documentSize().height());
    const int lineSpacing = QFontMetrics(font()).lineSpacing();
    setFixedHeight(contentHeight == 0 ? 25 : contentHeight + lineSpacing / 2 - 2);
}
