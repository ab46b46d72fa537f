#pragma once

#include "UI/FxUIExport.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtWidgets/QGroupBox>

#include <memory>
#include <vector>

class CFxUIVerticalLayoutImpl;
class CFxWidgetSpinner;

/// The widget of a CFxUIVerticalLayout: paints the busy animation, and offers key presses to the
/// caller before they go on to the parent.
class COMMONUI_EXPORT CFxUIVertLayoutFrontend : public QGroupBox,
                                                public CFxUIFrontendBase<CFxUIVerticalLayoutImpl> {
    Q_OBJECT

public:
    CFxUIVertLayoutFrontend();
    ~CFxUIVertLayoutFrontend() override;

    /// Freezes the present look and runs the animation. To be paired with stopSpinner(): a second
    /// start makes a second spinner, and the first can't be stopped any more and goes on repainting
    /// until this widget dies.
    void startSpinner();

    /// Ends the animation. Doesn't ask for a repaint: the dimmed look stays until the next one.
    void stopSpinner();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    CFxWidgetSpinner *m_spinner = nullptr; // owned
    std::vector<std::unique_ptr<CFxWidgetSpinner>> m_lostSpinners; // of starts without a stop
};
