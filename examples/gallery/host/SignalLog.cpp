#include "SignalLog.h"

void SignalLog::LogSignal(const QString &object, const QString &signal, const QString &arguments)
{
    Q_EMIT logged(++m_count, object, signal, arguments);
}

void SignalLog::Restart()
{
    m_count = 0;
}
