#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>
#include <QtGui/QTextCursor>

/// A text field of one line (QLineEdit).
///
/// hasFocus() stays false, and focusInEvent() and focusOutEvent() are not called: this control
/// doesn't report its focus.
class COMMONUI_EXPORT CFxUITextEdit : public CFxUIBaseView {
public:
    /// The policy sets width() and the preferred width; height() is -1. The widget's size is left
    /// alone.
    explicit CFxUITextEdit(CFxUIBaseView::UIWidthSizePolicy policy = CFxUIBaseView::Medium);
    ~CFxUITextEdit() override;

    /// Does nothing for the text that stands already. Otherwise emits textChanged(), textEdited()
    /// and textChanged() again, in this order. Under an input mask text() is then what the widget
    /// has made of \a text; if that leaves the widget as it was, only the last textChanged() is
    /// emitted, and text() is \a text itself.
    void setText(const QString &text);

    /// Default: a null string.
    QString text() const;

    /// The same as setText() and text().
    void setPlainText(const QString &text);
    QString toPlainText() const;

    /// QLineEdit::selectAll.
    void selectAll();

    /// QWidget::setFocus with Qt::OtherFocusReason.
    void setFocus();
    using CFxUIBaseView::setFocus;

    /// Shown while the field is empty (QLineEdit::setPlaceholderText). Default: a null string.
    void setPlaceholderText(const QString &text);
    QString placeholderText() const;

    /// Shows a button that empties the field (QLineEdit::setClearButtonEnabled). Default: false.
    void setClearButtonEnabled(bool enabled);
    bool isClearButtonEnabled() const;

    /// QLineEdit::setInputMask, in its notation; an empty mask ends it. The text that the widget
    /// makes of it arrives as a change of the text. Default: a null string.
    void setInputMask(const QString &mask);
    QString inputMask() const;

    /// Does nothing: there are no kinds of input.
    void setInputType(int type);

    /// Does nothing: the cursor stays.
    void moveCursor(QTextCursor::MoveOperation operation,
                    QTextCursor::MoveMode mode = QTextCursor::MoveAnchor);

    /// QLineEdit::setReadOnly. There is no getter.
    void setReadOnly(bool readOnly);

    /// setText() with a null text; does nothing to an empty field.
    void clear();

    /// Emitted with the new text when the widget reports a change, be it the user's or the
    /// caller's, and once more by setText().
    CFxUISignal<void(QString)> &textChanged();

    /// Never emitted.
    CFxUISignal<void()> &editingFinished();

    /// Emitted behind the textChanged() of each change that the widget reports, also of a caller's,
    /// with the text that then stands.
    CFxUISignal<void(QString)> &textEdited();

    /// Emitted with the key (a number of Qt::Key) and always 0 before the field sees the key. A
    /// slot that calls setEventAccepted(true) keeps the key from the field.
    CFxUISignal<void(int, int)> &keyPressed();
};
