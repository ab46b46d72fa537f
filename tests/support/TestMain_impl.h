#pragma once

#include <QtWidgets/QApplication>

void PrepareTestApplication();

template <class Test> int RunTest(int argc, char **argv)
{
    PrepareTestEnvironment();
    QApplication application(argc, argv);
    PrepareTestApplication();
    Test test;
    return RunQtTest(test, argc, argv);
}
