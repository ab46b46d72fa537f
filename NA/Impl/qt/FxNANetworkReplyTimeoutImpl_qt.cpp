#include "NA/Impl/qt/FxNANetworkReplyTimeoutImpl_qt.h"

#include <QtCore/QTimerEvent>
#include <QtNetwork/QNetworkReply>

CFxNANetworkReplyTimeout::CFxNANetworkReplyTimeout(QNetworkReply *reply, int msec)
    : QObject(reply)
{
    if (reply && reply->isRunning())
        m_timer.start(msec, this);
}

CFxNANetworkReplyTimeout::~CFxNANetworkReplyTimeout()
{
    stop();
}

void CFxNANetworkReplyTimeout::stop()
{
    m_timer.stop();
}

void CFxNANetworkReplyTimeout::timerEvent(QTimerEvent *event)
{
    if (!m_timer.isActive() || event->timerId() != m_timer.timerId())
        return;
    auto *reply = qobject_cast<QNetworkReply *>(parent());
    if (reply && reply->isRunning())
        reply->abort();
    m_timer.stop();
}
