#include "NA/Impl/FxNANetworkAccessManagerImpl.h"

#include "NA/FxNANetworkAccessManager.h"

CFxNANetworkAccessManagerImpl::CFxNANetworkAccessManagerImpl(CFxNANetworkAccessManager *object)
    : CFxUIObjectImpl(object)
{
    CreateNetworkAccessManagerImpl();
}

CFxNANetworkAccessManagerImpl::~CFxNANetworkAccessManagerImpl()
{
    DestroyNetworkAccessManagerImpl();
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::get(const CFxNANetworkRequest &request)
{
    return GetImpl(request);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::post(const CFxNANetworkRequest &request,
                                                       QIODevice *device)
{
    return PostImpl(request, device);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::post(const CFxNANetworkRequest &request,
                                                       const QByteArray &body)
{
    return PostImpl(request, body);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::put(const CFxNANetworkRequest &request,
                                                      QIODevice *device)
{
    return PutImpl(request, device);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::put(const CFxNANetworkRequest &request,
                                                      const QByteArray &body)
{
    return PutImpl(request, body);
}

CFxNANetworkReply *CFxNANetworkAccessManagerImpl::deleteResource(const CFxNANetworkRequest &request)
{
    return DeleteResourceImpl(request);
}
