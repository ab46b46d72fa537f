#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

/// Implementation object of CFxUILabel.
class COMMONUI_EXPORT CFxUILabelImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUILabelImpl(CFxUIObject *object);
    ~CFxUILabelImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    QString text() const;
    void setText(const QString &text);

    /// Resets icon, pixmap and text, in this order. The public clear() doesn't come here.
    void clear();
    void setIcon(const QIcon &icon);
    void setPixmap(const QPixmap &pixmap);
    void setBoldText(bool bold);
    void setFontSize(int pixels);
    bool wordWrap() const;
    void setWordWrap(bool wrap);
    void setToolTip(const QString &toolTip);
    void setTextAlignment(CFxUIBaseView::TextAlignment alignment);

    void SetTextImpl(const QString &text);
    void SetPixmapImpl(const QPixmap &pixmap);
    void SetIconImpl(const QIcon &icon);
    void SetBoldTextImpl(bool bold);
    void SetFontSizeImpl(int pixels);
    void SetWordWrapImpl(bool wrap);
    void SetToolTipImpl(const QString &toolTip);
    void SetTextAlignmentImpl(CFxUIBaseView::TextAlignment alignment);

    /// QLabel::setBuddy with the widget of \a view; nothing without one. For a caller that holds
    /// this object.
    void SetBuddyImpl(CFxUIBaseView *view);

protected:
    QIcon m_icon;
    QPixmap m_pixmap;
    QString m_text;
    int m_fontSize = -1; // never set
    bool m_wordWrap = false;
    QString m_toolTip;
};
