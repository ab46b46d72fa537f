// The minimal example, whole: its main() is called, its slider is moved, and it is closed with Ok
// and with Cancel. The README shows the same text.
#define main MinimalMain
#include "examples/minimal/main.cpp"
#undef main

#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>

#include <cstdio>

namespace {

QDialogButtonBox::StandardButton g_button;
QStringList g_seen;

void UseTheDialog()
{
    const QWidget *window = QApplication::activeModalWidget();
    const auto *label = window->findChild<QLabel *>();
    g_seen += label->text();
    QTest::keyClick(window->findChild<QSlider *>(), Qt::Key_Right);
    g_seen += label->text();
    QTest::mouseClick(window->findChild<QDialogButtonBox *>()->button(g_button), Qt::LeftButton);
}

void AtStart()
{
    QTimer::singleShot(0, UseTheDialog);
}

bool RunsAs(QDialogButtonBox::StandardButton button, int expectedStatus, int argc, char **argv)
{
    g_button = button;
    g_seen.clear();
    const int status = MinimalMain(argc, argv);
    const QStringList expected { QStringLiteral("Volume: 30"), QStringLiteral("Volume: 31") };
    if (status == expectedStatus && g_seen == expected)
        return true;
    std::fprintf(stderr, "status %d, seen: %s\n", status,
                 qPrintable(g_seen.join(QStringLiteral(", "))));
    return false;
}

bool ReadmeShowsTheText()
{
    QFile readme(QStringLiteral(SOURCE_TREE "/README.md"));
    QFile example(QStringLiteral(SOURCE_TREE "/examples/minimal/main.cpp"));
    if (!readme.open(QIODevice::ReadOnly) || !example.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = example.readAll();
    if (readme.readAll().contains("```cpp\n" + text + "```\n") && text.count('\n') < 50)
        return true;
    std::fprintf(stderr, "README.md doesn't show examples/minimal/main.cpp as it is\n");
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    PrepareTestEnvironment();
    qAddPreRoutine(AtStart);
    const bool passed = RunsAs(QDialogButtonBox::Ok, 0, argc, argv)
        && RunsAs(QDialogButtonBox::Cancel, 1, argc, argv) && ReadmeShowsTheText();
    return passed ? 0 : 1;
}
