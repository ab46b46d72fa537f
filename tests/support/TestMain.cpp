#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QFont>
#include <QtTest/QTest>
#include <QtWidgets/QStyleFactory>

#include <cstdio>

namespace {

bool HasOutputOption(const QStringList &arguments)
{
    return arguments.contains(QStringLiteral("-o"));
}

// What a platform says for reasons of its own, which no test can announce for every platform: the
// offscreen one of each window with limits to its size, each menu and each grab; the X server's
// when a request of Qt's or of the window manager's arrives for a window that has just gone, or
// when a window is shown again before the manager has taken it away.
bool IsNoise(const QString &line)
{
    return line.contains(QLatin1String(" This plugin does not support "))
        || line.contains(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)"))
        || line.contains(QLatin1String("setNetWmStateOnUnmappedWindow() called on mapped window"));
}

// The warnings in QtTest's own text log: those that a test announced aren't there.
QStringList Warnings(const QString &log)
{
    QStringList warnings;
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return { QStringLiteral("the log can't be read: ") + file.errorString() };
    while (!file.atEnd()) {
        const QString line = QString::fromLocal8Bit(file.readLine()).trimmed();
        const bool isWarning =
            line.startsWith(QLatin1String("QWARN ")) || line.startsWith(QLatin1String("QSYSTEM "));
        if (isWarning && !IsNoise(line))
            warnings.append(line);
    }
    return warnings;
}

} // namespace

void PrepareTestEnvironment()
{
    const QByteArray platform = qgetenv("COMMONUI_TEST_PLATFORM");
    qputenv("QT_QPA_PLATFORM", platform.isEmpty() ? QByteArray("offscreen") : platform);
    qputenv("QT_FONT_DPI", "96");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

void PrepareTestApplication()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
}

int RunQtTest(QObject &test, int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (HasOutputOption(arguments))
        return QTest::qExec(&test, arguments);

    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log.txt"));
    arguments << QStringLiteral("-o") << log + QStringLiteral(",txt") << QStringLiteral("-o")
              << QStringLiteral("-,txt");
    int failures = QTest::qExec(&test, arguments);
    const QStringList warnings = Warnings(log);
    for (const QString &warning : warnings) {
        std::fprintf(stderr, "unexpected warning: %s\n", qPrintable(warning));
        ++failures;
    }
    return failures;
}
