#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QIcon>

class CFxUIMenu;

/// Implementation object of CFxUIPushButton.
class COMMONUI_EXPORT CFxUIPushButtonImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIPushButtonImpl(CFxUIObject *object);
    ~CFxUIPushButtonImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;

    /// Reports a click, in spite of its name.
    virtual void OnPressed();

    void setText(const QString &text);
    QString text() const;
    void setIcon(const QIcon &icon);
    void setResourceIcon(const QString &name);
    void setIconSize(const QSize &size);
    QSize iconSize() const;
    void setElideTextEnabled(bool enabled);

    /// For the frontend.
    bool isElideTextEnabled() const;
    CFxUISignal<void(bool)> &clicked();
    void setTextAlignment(CFxUIBaseView::TextAlignment alignment);
    void setBoldText(bool bold);
    void setToolTip(const QString &toolTip);
    void setCheckable(bool checkable);
    void setMenu(CFxUIMenu *menu);
    void setMenuArrowVisible(bool visible);

    void SetTextImpl(const QString &text);
    void SetIconImpl(const QIcon &icon);
    void SetResourceIconImpl(const QString &name);
    void SetIconSizeImpl(const QSize &size);

    /// Edits of the widget's style sheet, the only record of what they set.
    void SetTextAlignmentImpl(CFxUIBaseView::TextAlignment alignment);
    void SetBoldTextImpl(bool bold);
    void SetToolTipImpl(const QString &toolTip);
    void SetCheckableImpl(bool checkable);
    void SetMenuImpl(CFxUIMenu *menu);
    void SetMenuArrowVisibleImpl(bool visible);

protected:
    QString m_text;
    QIcon m_icon;
    QSize m_iconSize; // -1 by -1, then the widget's own
    bool m_elideText = false;
    CFxUISignal<void(bool)> m_clicked; ///< emitted when the button is clicked with true
};
