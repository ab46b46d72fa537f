#include "ModuleProbe.h"

#include "Failure.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QLibrary>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// The child writes one of these, and behind it what it has to say.
constexpr char Opened = '+';
constexpr char Refused = '-';

int g_report = -1;

[[noreturn]] void Report(char verdict, const QString &text)
{
    const QByteArray message = verdict + text.toUtf8();
    const ssize_t written = write(g_report, message.constData(), size_t(message.size()));
    _exit(written == message.size() ? 0 : 1);
}

[[noreturn]] void ReportException()
{
    Report(Refused, QStringLiteral("failed while loading: ") + CurrentFailure());
}

[[noreturn]] void OpenInChild(const QString &file)
{
    const int nothing = open("/dev/null", O_RDWR);
    dup2(nothing, STDOUT_FILENO);
    dup2(nothing, STDERR_FILENO);
    std::set_terminate(ReportException);
    try {
        QLibrary library(file);
        library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
        if (library.load())
            Report(Opened, {});
        Report(Refused, LibraryFailure(file, library.errorString()));
    } catch (...) {
        ReportException();
    }
}

// Reads until the child closes its end. False if that takes too long.
bool ReadAll(int pipe, int timeoutMilliseconds, QByteArray &text)
{
    QElapsedTimer clock;
    clock.start();
    char buffer[512];
    for (;;) {
        const qint64 left = timeoutMilliseconds - clock.elapsed();
        pollfd descriptor { pipe, POLLIN, 0 };
        const int ready = left > 0 ? poll(&descriptor, 1, int(left)) : 0;
        if (ready == 0)
            return false;
        const ssize_t size = ready > 0 ? read(pipe, buffer, sizeof buffer) : -1;
        if (size > 0)
            text.append(buffer, int(size));
        else if (size == 0 || errno != EINTR)
            return true;
    }
}

int WaitFor(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return status;
}

QString Verdict(const QByteArray &text, int status)
{
    if (text.startsWith(Opened))
        return {};
    if (text.startsWith(Refused))
        return QString::fromUtf8(text.mid(1));
    if (WIFSIGNALED(status))
        return QStringLiteral("crashed while loading (%1)")
            .arg(QString::fromLocal8Bit(strsignal(WTERMSIG(status))));
    return QStringLiteral("ended the process while loading");
}

} // namespace

QString ProbeModule(const QString &file, int timeoutMilliseconds)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return SystemFailure(QStringLiteral("cannot be probed"));
    const pid_t child = fork();
    if (child == 0) {
        g_report = ends[1];
        OpenInChild(file);
    }
    close(ends[1]);
    if (child < 0) {
        close(ends[0]);
        return SystemFailure(QStringLiteral("cannot be probed"));
    }

    QByteArray text;
    const bool inTime = ReadAll(ends[0], timeoutMilliseconds, text);
    close(ends[0]);
    if (!inTime)
        kill(child, SIGKILL);
    const int status = WaitFor(child);
    return inTime
        ? Verdict(text, status)
        : QStringLiteral("takes more than %1 seconds to load").arg(timeoutMilliseconds / 1000.0);
}
