#pragma once

#include <QtCore/QProcessEnvironment>

/// The environment for a program that a test starts: the test's own, with the suppressions that a
/// test program brings along by itself.
inline QProcessEnvironment ProgramEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LSAN_OPTIONS"),
                       QStringLiteral("print_suppressions=0:suppressions=" SUPPRESSIONS));
    return environment;
}
