// The minimal example, whole: its main() is called, and its one button is pressed.
#define main MinimalMain
#include "examples/minimal/main.cpp"
#undef main

#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

#include <cstdio>

namespace {

QStringList g_seen;

void UseTheDialog()
{
    QWidget *window = QApplication::activeModalWidget();
    g_seen += window->windowTitle();
    auto *button = window->findChild<QPushButton *>();
    for (int i = 0; i < 2; ++i) {
        g_seen += button->text();
        QTest::mouseClick(button, Qt::LeftButton);
    }
    g_seen += button->text();
    window->close();
}

void AtStart()
{
    QTimer::singleShot(0, UseTheDialog);
}

} // namespace

int main(int argc, char **argv)
{
    PrepareTestEnvironment();
    qAddPreRoutine(AtStart);
    const int result = MinimalMain(argc, argv);
    const QStringList expected { "Counter", "Press me", "Pressed: 1", "Pressed: 2" };
    if (result == 0 && g_seen == expected)
        return 0;
    std::fprintf(stderr, "result %d, seen: %s\n", result, qPrintable(g_seen.join(", ")));
    return 1;
}
