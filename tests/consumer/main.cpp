// Compiled with Qt's keywords alive, as most hosts do.
#include "UI/FxUILabel.h"
#include "UI/FxUITimer.h"
#include "UI/Impl/FxUILabelImpl.h"

#include <QtWidgets/QApplication>

#include <iostream>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    CFxUILabel label;
    label.setText(QStringLiteral("Hello"));
    auto *impl = static_cast<CFxUILabelImpl *>(label.impl);
    std::cout << "label: " << label.text().toStdString()
              << ", implementation: " << impl->GetFrontendClassName().toStdString();
    CFxUITimer timer;
    timer.timeout().connect([&timer] {
        timer.stop();
        std::cout << ", timer fired" << std::endl;
        QCoreApplication::quit();
    });
    timer.start(0);
    return QCoreApplication::exec();
}
