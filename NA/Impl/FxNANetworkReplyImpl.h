#pragma once

#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPair>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// Implementation object of CFxNANetworkReply: a snapshot of the Qt reply, taken when Qt reports an
/// error and the end of the transfer.
class COMMONUI_EXPORT CFxNANetworkReplyImpl : public CFxUIObjectImpl {
public:
    CFxNANetworkReplyImpl(CFxNANetworkReply *object, QObject *reply);
    ~CFxNANetworkReplyImpl() override;

    void setRequest(const CFxNANetworkRequest &request);
    const CFxNANetworkRequest *request() const;
    bool isFinished() const;
    bool isRunning() const;
    CFxNANetworkReply::NetworkError error() const;
    QString errorString() const;
    long long bytesAvailable() const;
    QByteArray readAll();
    long long pos() const;
    bool seek(long long position);
    QVariant attribute(CFxNANetworkRequest::Attribute attribute) const;
    QVariant header(CFxNANetworkRequest::KnownHeaders header) const;
    bool hasRawHeader(const QByteArray &name) const;
    QByteArray rawHeader(const QByteArray &name) const;
    QList<QByteArray> rawHeaderList() const;
    const QList<QPair<QByteArray, QByteArray>> &rawHeaderPairs() const;
    void abort();
    CFxUISignal<void(long long, long long)> &downloadProgress();
    CFxUISignal<void(long long, long long)> &uploadProgress();
    CFxUISignal<void()> &encrypted();
    CFxUISignal<void(CFxNANetworkReply::NetworkError)> &error();
    CFxUISignal<void()> &finished();

    void OnDownloadProgress(long long received, long long total);
    void OnUploadProgress(long long sent, long long total);
    void OnEncrypted();
    void OnError(CFxNANetworkReply::NetworkError error, const QString &text, QIODevice *device);
    void OnFinished(int httpStatus, QList<QPair<QByteArray, QByteArray>> pairs, QIODevice *device);

    void ConnectNetworkReplySignalsImpl();
    void DestroyNetworkReplyImpl();
    void SetRequestImpl(const CFxNANetworkRequest *request);
    QVariant AttributeImpl(CFxNANetworkRequest::Attribute attribute) const;
    void AbortImpl();

protected:
    CFxUISignal<void(long long, long long)>
        m_downloadProgressSignal; ///< emitted with received, total
    CFxUISignal<void(long long, long long)> m_uploadProgressSignal; ///< emitted with sent, total
    CFxUISignal<void()> m_encryptedSignal; ///< emitted when the TLS handshake is done
    CFxUISignal<void(CFxNANetworkReply::NetworkError)> m_errorSignal; ///< emitted with the code
    CFxUISignal<void()> m_finishedSignal; ///< emitted at the end, on success and failure alike
    const CFxNANetworkRequest *m_request = nullptr; // not owned
    bool m_finished = false;
    int m_httpStatus = 0; // kept, and read by no operation: attribute() asks Qt. Intended.
    QPointer<QIODevice> m_device; // guarded: Qt's manager deletes its replies
    bool m_ownsDevice = true; // until the Qt half says that the device is the Qt reply itself
    CFxNANetworkReply::NetworkError m_error = CFxNANetworkReply::NoError;
    QString m_errorString;
    QList<QByteArray> m_rawHeaderNames; // distinct, in order of first appearance
    QList<QPair<QByteArray, QByteArray>> m_rawHeaderPairs;
};
