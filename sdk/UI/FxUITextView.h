#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>

/// A text control of several lines (QTextEdit), for plain text and HTML, that can grow to the
/// height of its content.
///
/// The Tab key moves the focus on, and pasted rich text comes in as plain text. hasFocus() follows
/// the focus.
class COMMONUI_EXPORT CFxUITextView : public CFxUIBaseView {
public:
    /// The policy sets width() and the preferred width; height() is -1. The widget's size is left
    /// alone.
    explicit CFxUITextView(CFxUIBaseView::UIWidthSizePolicy policy = CFxUIBaseView::Medium);
    ~CFxUITextView() override;

    /// Replaces the content by plain text, in which markup shows as characters, as one step of
    /// undo. Emits textChanged() twice, also for the text that stands already.
    void setText(const QString &text);

    /// Replaces the content (QTextEdit::setHtml).
    void setHtmlText(const QString &html);

    /// Appends a paragraph of plain text, in which markup shows as characters
    /// (QTextEdit::append). An empty text appends an empty paragraph, but to an empty document
    /// nothing.
    void addText(const QString &text);

    /// Inserts at the end of the last paragraph (QTextEdit::insertHtml). The cursor goes there.
    void addHtmlText(const QString &html);

    /// Does nothing: the control has several lines always.
    void setMultiline(bool multiline);

    /// QTextEdit::setReadOnly. There is no getter.
    void setReadOnly(bool readOnly);

    /// Shown while the document is empty (QTextEdit::setPlaceholderText). Default: a null string.
    void setPlaceholderText(const QString &text);
    QString placeholderText() const;

    /// Returns the plain text of the document as of its last change (QTextDocument::toPlainText),
    /// also after setHtmlText(). Default: a null string.
    QString getContent() const;

    /// From the next change of content on, each change fixes the widget's height to that of the
    /// content and turns the vertical scroll bar off. false stops that, but neither brings the
    /// scroll bar back nor releases the height. A view that hasn't been shown yet has no layout:
    /// its height is measured right only after setText(). Default: false.
    void setAdjustHeightToContent(const bool &adjust);
    bool getAdjustHeightToContent() const;

    /// Empties the content. Emits textChanged() once.
    void clear();

    /// Emitted at each change of content, the user's or the caller's, and once more by setText().
    CFxUISignal<void()> &textChanged();

    /// Emitted when the widget gets or loses the focus, behind focusInEvent() or focusOutEvent()
    /// and before the widget itself deals with it. hasFocus() has changed by then.
    CFxUISignal<void()> &focusInEventSignal();
    CFxUISignal<void()> &focusOutEventSignal();

    /// Emitted with the key (a number of Qt::Key) and the modifiers (Qt::KeyboardModifiers) before
    /// the widget sees the key. A slot that calls setEventAccepted(true) keeps the key from it.
    CFxUISignal<void(int, int)> &keyPressed();
};
