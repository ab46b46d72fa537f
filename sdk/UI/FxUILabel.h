#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>

class QIcon;
class QPixmap;

/// A line of text, an icon or a picture (QLabel). Has no signals of its own.
///
/// No setter compares with the old value: setting the same value twice goes to the widget twice.
class COMMONUI_EXPORT CFxUILabel : public CFxUIBaseView {
public:
    CFxUILabel();
    ~CFxUILabel() override;

    /// Returns the last text set, also while a picture is shown. Default: empty.
    QString text() const;

    /// Stores the text and shows it in place of an icon or pixmap (QLabel::setText). An empty one
    /// leaves those standing.
    void setText(const QString &text);

    /// Empties the text. An icon or pixmap stays, shown and stored.
    void clear();

    /// Shows \a icon at 25 by 25 pixels (QIcon::pixmap, which doesn't enlarge); a null icon shows
    /// nothing.
    void setIcon(const QIcon &icon);

    /// Shows \a pixmap at its own size (QLabel::setPixmap); a null pixmap shows nothing.
    void setPixmap(const QPixmap &pixmap);

    /// Sets QFont::Bold or QFont::Normal on the widget's font (QWidget::setFont). Not stored.
    void setBoldText(bool bold);

    /// Sets the size of the text in pixels (QFont::setPixelSize, which refuses 0 and less with a
    /// warning).
    void setFontSize(int pixels);

    /// Returns the last setWordWrap(). Default: false.
    bool wordWrap() const;

    /// QLabel::setWordWrap.
    void setWordWrap(bool wrap);

    /// QWidget::setToolTip.
    void setToolTip(const QString &toolTip);

    /// Aligns the text or the picture (QLabel::setAlignment): left, right, or in the middle of both
    /// axes. A number outside the enumeration changes nothing. Not stored.
    void setTextAlignment(CFxUIBaseView::TextAlignment alignment);
};
