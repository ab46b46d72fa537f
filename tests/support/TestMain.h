#pragma once

#include <QtCore/QObject>

/// Runs the test functions of \a test and returns the exit status of the program.
///
/// The platform is offscreen unless COMMONUI_TEST_PLATFORM names another one; style and font are
/// fixed, so that pictures are the same everywhere. A warning that wasn't announced with
/// QTest::ignoreMessage fails the program.
int RunQtTest(QObject &test, int argc, char **argv);

/// Prepares the environment of the process; before the application object is made.
void PrepareTestEnvironment();

/// The main function of a test program: `return RunTest<tst_FxUILabel>(argc, argv);`
template <class Test> int RunTest(int argc, char **argv);

#include "support/TestMain_impl.h"
