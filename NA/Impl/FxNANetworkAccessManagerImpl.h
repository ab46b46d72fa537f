#pragma once

#include "UI/Impl/FxUIObjectImpl.h"

class CFxNANetworkAccessManager;
class CFxNANetworkReply;
class CFxNANetworkRequest;
class QByteArray;
class QIODevice;

/// Implementation object of CFxNANetworkAccessManager. It has no state: the QNetworkAccessManager
/// is the owner's handle.
class COMMONUI_EXPORT CFxNANetworkAccessManagerImpl : public CFxUIObjectImpl {
public:
    explicit CFxNANetworkAccessManagerImpl(CFxNANetworkAccessManager *object);
    ~CFxNANetworkAccessManagerImpl() override;

    CFxNANetworkReply *get(const CFxNANetworkRequest &request);
    CFxNANetworkReply *post(const CFxNANetworkRequest &request, QIODevice *device);
    CFxNANetworkReply *post(const CFxNANetworkRequest &request, const QByteArray &body);
    CFxNANetworkReply *put(const CFxNANetworkRequest &request, QIODevice *device);
    CFxNANetworkReply *put(const CFxNANetworkRequest &request, const QByteArray &body);
    CFxNANetworkReply *deleteResource(const CFxNANetworkRequest &request);

    void CreateNetworkAccessManagerImpl();
    void DestroyNetworkAccessManagerImpl();
    CFxNANetworkReply *GetImpl(const CFxNANetworkRequest &request);
    CFxNANetworkReply *PostImpl(const CFxNANetworkRequest &request, QIODevice *device);
    CFxNANetworkReply *PostImpl(const CFxNANetworkRequest &request, const QByteArray &body);
    CFxNANetworkReply *PutImpl(const CFxNANetworkRequest &request, QIODevice *device);
    CFxNANetworkReply *PutImpl(const CFxNANetworkRequest &request, const QByteArray &body);
    CFxNANetworkReply *DeleteResourceImpl(const CFxNANetworkRequest &request);
};
