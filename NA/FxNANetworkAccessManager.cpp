#include "NA/FxNANetworkAccessManager.h"

#include "NA/Impl/FxNANetworkAccessManagerImpl.h"
#include "UI/Impl/ImplOf.h"

CFxNANetworkAccessManager::CFxNANetworkAccessManager()
{
    impl = new CFxNANetworkAccessManagerImpl(this);
}

CFxNANetworkAccessManager::~CFxNANetworkAccessManager() = default;

CFxNANetworkReply *CFxNANetworkAccessManager::get(const CFxNANetworkRequest &request)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->get(request);
}

CFxNANetworkReply *CFxNANetworkAccessManager::post(const CFxNANetworkRequest &request,
                                                   QIODevice *device)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->post(request, device);
}

CFxNANetworkReply *CFxNANetworkAccessManager::post(const CFxNANetworkRequest &request,
                                                   const QByteArray &body)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->post(request, body);
}

CFxNANetworkReply *CFxNANetworkAccessManager::put(const CFxNANetworkRequest &request,
                                                  QIODevice *device)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->put(request, device);
}

CFxNANetworkReply *CFxNANetworkAccessManager::put(const CFxNANetworkRequest &request,
                                                  const QByteArray &body)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->put(request, body);
}

CFxNANetworkReply *CFxNANetworkAccessManager::deleteResource(const CFxNANetworkRequest &request)
{
    return ImplOf<CFxNANetworkAccessManagerImpl>(this)->deleteResource(request);
}
