#include "NA/Impl/FxNANetworkAccessManagerImpl.h"

#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/Impl/qt/FxNANetworkReplyTimeoutImpl_qt.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QPointer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>

namespace {

constexpr int DefaultTimeout = 30000; // milliseconds

int TimeoutOf(const CFxNANetworkRequest &request)
{
    return request.requestTimeout() > 0 ? request.requestTimeout() : DefaultTimeout;
}

// Hangs the time-out on a transfer that has begun and wraps it. The order matters: the timer stops
// before the reply hears of the end. A null reply leaves a time-out object that nobody deletes, and
// Qt warns of the connection. Intended.
CFxNANetworkReply *WrapReply(QNetworkReply *qtReply, const CFxNANetworkRequest &request)
{
    const QPointer<CFxNANetworkReplyTimeout> timeout(
        new CFxNANetworkReplyTimeout(qtReply, TimeoutOf(request)));
    QObject::connect(
        qtReply, &QNetworkReply::finished, qtReply,
        [timeout] {
            if (timeout)
                timeout->stop();
        },
        Qt::DirectConnection);
    auto *reply = new CFxNANetworkReply(qtReply);
    reply->setRequest(request);
    return reply;
}

// Makes the Qt call with what the two handles hold; without both there is no Qt reply.
template <class Call>
CFxNANetworkReply *StartTransfer(CFxUIObject *owner, const CFxNANetworkRequest &request, Call call)
{
    auto *manager = FrontendCast<QNetworkAccessManager>(owner);
    const QNetworkRequest *qtRequest = request.getHandle();
    return WrapReply(manager && qtRequest ? call(manager, *qtRequest) : nullptr, request);
}

} // namespace

void CFxNANetworkAccessManagerImpl::CreateNetworkAccessManagerImpl()
{
    owner->setHandle(new QNetworkAccessManager);
}

void CFxNANetworkAccessManagerImpl::DestroyNetworkAccessManagerImpl()
{
    delete FrontendCast<QNetworkAccessManager>(owner);
    owner->setHandle(nullptr);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::GetImpl(const CFxNANetworkRequest &request)
{
    return StartTransfer(owner, request,
                         [](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->get(qtRequest);
                         });
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::PostImpl(const CFxNANetworkRequest &request,
                                                           QIODevice *device)
{
    return StartTransfer(owner, request,
                         [=](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->post(qtRequest, device);
                         });
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::PostImpl(const CFxNANetworkRequest &request,
                                                           const QByteArray &body)
{
    return StartTransfer(owner, request,
                         [&](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->post(qtRequest, body);
                         });
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::PutImpl(const CFxNANetworkRequest &request,
                                                          QIODevice *device)
{
    return StartTransfer(owner, request,
                         [=](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->put(qtRequest, device);
                         });
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::PutImpl(const CFxNANetworkRequest &request,
                                                          const QByteArray &body)
{
    return StartTransfer(owner, request,
                         [&](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->put(qtRequest, body);
                         });
}

CFxNANetworkReply *
CFxNANetworkAccessManagerImpl::DeleteResourceImpl(const CFxNANetworkRequest &request)
{
    return StartTransfer(owner, request,
                         [](QNetworkAccessManager *manager, const QNetworkRequest &qtRequest) {
                             return manager->deleteResource(qtRequest);
                         });
}
