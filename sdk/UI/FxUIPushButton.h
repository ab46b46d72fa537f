#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QSize>
#include <QtCore/QString>

class CFxUIMenu;
class QIcon;

/// A button with a text, an icon or both (QPushButton). It alone of all views reports hovering:
/// hoverEnter() and hoverLeave().
///
/// Text alignment, weight and the menu arrow are edits of the widget's own style sheet, as are
/// borders and colours; they are stored nowhere else.
class COMMONUI_EXPORT CFxUIPushButton : public CFxUIBaseView {
public:
    CFxUIPushButton();
    ~CFxUIPushButton() override;

    /// Sets the text; the widget shows it elided if that is enabled.
    void setText(const QString &text);

    /// Returns the full text, never the elided one. Default: empty.
    QString text() const;

    /// QAbstractButton::setIcon. Nothing answers it back.
    void setIcon(const QIcon &icon);

    /// No effect.
    void setResourceIcon(const QString &name);

    /// Sets the size of the icon in pixels (QAbstractButton::setIconSize).
    void setIconSize(const QSize &size);

    /// Returns the last setIconSize(). Default: the widget's own, which its style decides.
    QSize iconSize() const;

    /// Whether setText() and each resizing elide the text, at its right end, to the whole width of
    /// the widget (QFontMetrics::elidedText). Stores only: the text that is shown now stays; once
    /// elided, it stays so until the next setText(). Default: false.
    void setElideTextEnabled(bool enabled);

    /// Emitted when the button is clicked, at the release. The argument is always true, also on a
    /// checkable button.
    CFxUISignal<void(bool)> &clicked();

    /// Writes the alignment in front of the last brace of the widget's style sheet. A number
    /// outside the enumeration removes an earlier one only.
    void setTextAlignment(CFxUIBaseView::TextAlignment alignment);

    /// Writes the weight, bold or normal, in front of the last brace of the widget's style sheet.
    void setBoldText(bool bold);

    /// QWidget::setToolTip. Not stored.
    void setToolTip(const QString &toolTip);

    /// Lets the button keep its state, pressed or not (QAbstractButton::setCheckable).
    void setCheckable(bool checkable);

    /// Hangs \a menu on the button, which opens it when pressed instead of emitting clicked()
    /// (QPushButton::setMenu); null takes a menu away. The caller keeps the menu. One without a
    /// QMenu changes nothing.
    void setMenu(CFxUIMenu *menu);

    /// Shows or hides the arrow that a button with a menu has. Hiding appends a rule to the
    /// widget's style sheet, and setTextAlignment() and setBoldText() then write into that rule:
    /// call them before.
    void setMenuArrowVisible(bool visible);
};
