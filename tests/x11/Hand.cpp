#include "Hand.h"

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

namespace {

constexpr int ProgramTimeout = 10000; // milliseconds

QPixmap grabScreen()
{
    QGuiApplication::sync();
    return QGuiApplication::primaryScreen()->grabWindow(0);
}

} // namespace

Hand::Hand(const QString &test)
    : m_test(test)
{
}

bool Hand::waitForWindow(QWidget *widget)
{
    return QTest::qWaitForWindowExposed(widget) && QTest::qWaitForWindowActive(widget);
}

bool Hand::waitForBareScreen()
{
    return QTest::qWaitFor([] {
        const QImage screen = grabScreen().toImage();
        QImage bare(screen.size(), screen.format());
        bare.fill(screen.pixelColor(0, 0));
        return screen == bare;
    });
}

bool Hand::moveTo(const QWidget *widget, const QPoint &position)
{
    const QPoint point = widget->mapToGlobal(position);
    return run(QStringLiteral("xdotool"),
               { QStringLiteral("mousemove"), QStringLiteral("--sync"), QString::number(point.x()),
                 QString::number(point.y()) });
}

bool Hand::moveTo(const QWidget *widget)
{
    return moveTo(widget, widget->rect().center());
}

bool Hand::click(const QWidget *widget)
{
    return moveTo(widget) && press() && release();
}

bool Hand::press()
{
    return run(QStringLiteral("xdotool"), { QStringLiteral("mousedown"), QStringLiteral("1") });
}

bool Hand::release()
{
    return run(QStringLiteral("xdotool"), { QStringLiteral("mouseup"), QStringLiteral("1") });
}

bool Hand::key(const QString &name)
{
    return run(QStringLiteral("xdotool"), { QStringLiteral("key"), name });
}

bool Hand::type(const QString &text)
{
    return run(QStringLiteral("xdotool"), { QStringLiteral("type"), text });
}

bool Hand::closeWindow(const QWidget *window)
{
    return run(QStringLiteral("wmctrl"),
               { QStringLiteral("-i"), QStringLiteral("-c"), QString::number(window->winId()) });
}

bool Hand::keepPicture(const QString &step)
{
    const QString name =
        QStringLiteral("%1-%2-%3.png").arg(m_test).arg(++m_step, 2, 10, QLatin1Char('0')).arg(step);
    const QPixmap screen = grabScreen();
    return QDir().mkpath(QStringLiteral(HAND_PICTURES))
        && screen.save(QDir(QStringLiteral(HAND_PICTURES)).filePath(name));
}

// The event loop goes on while the other program works, so that its events arrive.
bool Hand::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    QEventLoop loop;
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(ProgramTimeout, &loop, &QEventLoop::quit);
    process.start(program, arguments);
    loop.exec();
    if (process.state() == QProcess::NotRunning && process.error() == QProcess::UnknownError
        && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    qWarning("%s failed: %s %s", qPrintable(program), qPrintable(process.errorString()),
             process.readAllStandardError().constData());
    process.kill();
    process.waitForFinished();
    return false;
}
