#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QBasicTimer>
#include <QtCore/QObject>

class QNetworkReply;

/// Aborts a Qt reply that runs too long. A child of the reply, and gone with it.
class COMMONUI_EXPORT CFxNANetworkReplyTimeout : public QObject {
    Q_OBJECT

public:
    /// Starts the timer if \a reply, which may be null, is running. It measures the whole transfer
    /// and fires at most once; nothing restarts it.
    CFxNANetworkReplyTimeout(QNetworkReply *reply, int msec);

    /// Stops the timer.
    ~CFxNANetworkReplyTimeout() override;

    /// Stops the timer, for good. Nothing on an idle one.
    void stop();

protected:
    void timerEvent(QTimerEvent *event) override;

    QBasicTimer m_timer;
};
