#pragma once

#include "NA/FxNANetworkReply.h"
#include "NA/support/Transfer.h"

#include <QtCore/QStringList>

/// One line for each signal of a reply, with the reply's state as the slot sees it.
class ReplyRecorder {
public:
    explicit ReplyRecorder(CFxNANetworkReply &recorded)
        : m_reply(recorded)
    {
        m_reply.downloadProgress().connect([this](long long received, long long total) {
            Add(QStringLiteral("downloadProgress %1/%2").arg(received).arg(total));
        });
        m_reply.uploadProgress().connect([this](long long sent, long long total) {
            Add(QStringLiteral("uploadProgress %1/%2").arg(sent).arg(total));
        });
        m_reply.encrypted().connect([this] { Add(QStringLiteral("encrypted")); });
        m_reply.error().connect([this](CFxNANetworkReply::NetworkError code) {
            Add(QStringLiteral("error %1").arg(code));
        });
        m_reply.finished().connect([this] { Add(QStringLiteral("finished")); });
    }

    QStringList lines;

private:
    void Add(const QString &signal)
    {
        const CFxNANetworkReply &reply = m_reply;
        QObject *timeout = TimeoutOf(reply);
        lines.append(
            QStringLiteral("%1: isFinished %2, error %3, available %4, headers %5, timer %6")
                .arg(signal)
                .arg(reply.isFinished())
                .arg(reply.error())
                .arg(reply.bytesAvailable())
                .arg(reply.rawHeaderList().size())
                .arg(RunningInterval(timeout)));
    }

    CFxNANetworkReply &m_reply;
};
