#pragma once

#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtCore/QString>
#include <QtWidgets/QPushButton>

class CFxUIPushButtonImpl;

/// The QPushButton behind a CFxUIPushButton: keeps the full text, elides it, and reports clicks and
/// hovering.
class COMMONUI_EXPORT CFxUIPushButtonFrontend : public QPushButton,
                                                public CFxUIFrontendBase<CFxUIPushButtonImpl> {
    Q_OBJECT

public:
    CFxUIPushButtonFrontend();
    ~CFxUIPushButtonFrontend() override;

    /// Keeps \a text and shows it, elided to the whole width if that is enabled. Hides the one of
    /// QAbstractButton.
    void setText(const QString &text);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    QString m_fullText;

private Q_SLOTS:
    void OnPressed();
    void OnReleased();
    void OnClicked();

private:
    bool IsTextToElide() const;
    QString ElidedText() const;
};
