#pragma once

#include "NA/FxNANetworkReply.h"
#include "NA/Impl/qt/FxNANetworkReplyTimeoutImpl_qt.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkReply>

#include <memory>
#include <utility>

/// One transfer with what its signals told, and the body read at its end.
class Transfer {
public:
    /// Takes the reply over.
    explicit Transfer(CFxNANetworkReply *newReply)
        : reply(newReply)
    {
        reply->error().connect([this](CFxNANetworkReply::NetworkError code) {
            errors.append(code);
            errorsBeforeTheEnd = ends == 0;
        });
        reply->finished().connect([this] {
            ++ends;
            // An aborted Qt reply is closed and warns of reading.
            if (static_cast<QNetworkReply *>(reply->getHandle())->isOpen())
                body.append(reply->readAll());
            m_loop.quit();
        });
    }

    /// Runs the event loop until the transfer has ended; false if it hasn't within \a msec
    /// milliseconds. Lets a second end show, if there should be one.
    bool Wait(int msec = 20000)
    {
        QTimer limit;
        limit.setSingleShot(true);
        QObject::connect(&limit, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        limit.start(msec);
        if (!ends)
            m_loop.exec();
        const bool ended = ends > 0;
        QCoreApplication::processEvents();
        return ended;
    }

    CFxNANetworkReply::NetworkError Code() const { return std::as_const(*reply).error(); }

    int Status() const
    {
        return reply->attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).toInt();
    }

    std::unique_ptr<CFxNANetworkReply> reply;
    QList<int> errors;
    bool errorsBeforeTheEnd = true;
    int ends = 0;
    QByteArray body;

private:
    QEventLoop m_loop;
};

/// The time-out object of a reply, null if it has none.
inline CFxNANetworkReplyTimeout *TimeoutOf(const CFxNANetworkReply &reply)
{
    return reply.getHandle() ? reply.getHandle()->findChild<CFxNANetworkReplyTimeout *>() : nullptr;
}

/// The interval of an object's only running timer in milliseconds, -1 if none runs.
inline int RunningInterval(QObject *object)
{
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(object);
    return timers.size() == 1 ? timers.first().interval : -1;
}
