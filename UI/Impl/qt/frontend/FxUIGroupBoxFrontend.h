#pragma once

#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtWidgets/QGroupBox>

class CFxUIGroupBoxImpl;

/// The widget of a CFxUIGroupBox: draws the black outline over the style's own frame. Its way back
/// to the implementation object stays null.
class COMMONUI_EXPORT CFxUIGroupBoxFrontend : public QGroupBox,
                                              public CFxUIFrontendBase<CFxUIGroupBoxImpl> {
    Q_OBJECT

public:
    CFxUIGroupBoxFrontend();
    ~CFxUIGroupBoxFrontend() override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
