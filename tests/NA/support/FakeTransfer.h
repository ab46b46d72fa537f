#pragma once

#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/FakeReply.h"
#include "NA/support/ReplyRecorder.h"

#include <QtCore/QPointer>
#include <QtNetwork/QNetworkAccessManager>

#include <memory>

/// Makes Qt replies without a network, children of itself as Qt's own are.
class FakeManager : public QNetworkAccessManager {
public:
    FakeReply *last = nullptr;

protected:
    QNetworkReply *createRequest(Operation, const QNetworkRequest &, QIODevice *) override
    {
        last = new FakeReply(this);
        return last;
    }
};

/// A transfer over a Qt reply that the test drives.
struct FakeTransfer {
    explicit FakeTransfer(int timeout = 0)
    {
        delete manager.getHandle();
        auto *qtManager = new FakeManager;
        manager.setHandle(qtManager);
        CFxNANetworkRequest request(QUrl(QStringLiteral("http://fake/")));
        request.setRequestTimeout(timeout);
        reply.reset(manager.get(request));
        qtReply = qtManager->last;
        recorder = std::make_unique<ReplyRecorder>(*reply);
    }

    CFxNANetworkAccessManager manager;
    std::unique_ptr<CFxNANetworkReply> reply;
    QPointer<FakeReply> qtReply;
    std::unique_ptr<ReplyRecorder> recorder;
};
