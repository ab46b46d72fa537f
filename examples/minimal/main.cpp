// A panel with one button that counts its clicks.
#include "UI/FxUIDialog.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtWidgets/QApplication>

class CounterDialog : public CFxUIDialog {
public:
    CounterDialog() { setWindowTitle("Counter"); }

    void SetupUI() override // runs once, at the first exec()
    {
        auto *button = new CFxUIPushButton;
        button->setText("Press me");
        button->clicked().connect(
            [this, button](bool) { button->setText(QString("Pressed: %1").arg(++m_count)); });
        GetLayout()->setContentsMargins(20, 20, 20, 20);
        GetLayout()->addView(button); // the layout owns it from here on
    }

private:
    int m_count = 0;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    CounterDialog dialog;
    return dialog.exec();
}
