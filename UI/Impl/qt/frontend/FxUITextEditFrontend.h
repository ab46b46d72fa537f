#pragma once

#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtWidgets/QLineEdit>

class CFxUITextEditImpl;

/// The widget of CFxUITextEdit: reports each key before the field sees it, and keeps it from the
/// field if the report was answered with CFxUIBaseView::setEventAccepted(true).
class COMMONUI_EXPORT CFxUITextEditFrontend : public QLineEdit,
                                              public CFxUIFrontendBase<CFxUITextEditImpl> {
    Q_OBJECT

public:
    CFxUITextEditFrontend();
    ~CFxUITextEditFrontend() override;

Q_SIGNALS:
    void keyPressed(int key, int modifiers);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
