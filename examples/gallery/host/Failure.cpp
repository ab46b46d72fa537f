#include "Failure.h"

#include <cerrno>
#include <cstring>
#include <exception>

QString CurrentFailure()
{
    try {
        throw;
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return QStringLiteral("an exception of an unknown type");
    }
}

QString SystemFailure(const QString &text)
{
    return text + QStringLiteral(": ") + QString::fromLocal8Bit(std::strerror(errno));
}

QString LibraryFailure(const QString &file, const QString &errorString)
{
    const QString lead = QStringLiteral(" (") + file + QStringLiteral(": ");
    const int start = errorString.indexOf(lead);
    if (start < 0 || !errorString.endsWith(QLatin1Char(')')))
        return errorString;
    const int from = start + lead.size();
    return errorString.mid(from, errorString.size() - from - 1);
}
