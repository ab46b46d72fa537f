#pragma once

#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtWidgets/QTextEdit>

class CFxUITextViewImpl;

/// The widget of CFxUITextView: reports each change of content, the focus, and each key before the
/// widget sees it, and grows to the height of its content if that is asked for.
class COMMONUI_EXPORT CFxUITextViewFrontend : public QTextEdit,
                                              public CFxUIFrontendBase<CFxUITextViewImpl> {
    Q_OBJECT

public:
    CFxUITextViewFrontend();
    ~CFxUITextViewFrontend() override;

    /// Replaces the content by plain text with the current character format, in one edit block.
    /// Costs one cursor movement for each character of the old text.
    void setText(QString text);

Q_SIGNALS:
    void keyPressed(int key, int modifiers);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private Q_SLOTS:
    void OnEditContentChanged();

private:
    void FitHeightToContent();
};
