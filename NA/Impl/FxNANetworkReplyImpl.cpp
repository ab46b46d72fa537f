#include "NA/Impl/FxNANetworkReplyImpl.h"

#include "NA/Impl/FxNANetworkRequestImpl.h"

#include <utility>

CFxNANetworkReplyImpl::CFxNANetworkReplyImpl(CFxNANetworkReply *object, QObject *reply)
    : CFxUIObjectImpl(object)
    , m_downloadProgressSignal(object)
    , m_uploadProgressSignal(object)
    , m_encryptedSignal(object)
    , m_errorSignal(object)
    , m_finishedSignal(object)
{
    owner->setHandle(reply);
    ConnectNetworkReplySignalsImpl();
}

CFxNANetworkReplyImpl::~CFxNANetworkReplyImpl()
{
    DestroyNetworkReplyImpl();
    if (m_ownsDevice)
        delete m_device;
}

void CFxNANetworkReplyImpl::setRequest(const CFxNANetworkRequest &request)
{
    m_request = &request;
    SetRequestImpl(m_request);
}

const CFxNANetworkRequest *CFxNANetworkReplyImpl::request() const
{
    return m_request;
}

bool CFxNANetworkReplyImpl::isFinished() const
{
    return m_finished;
}

bool CFxNANetworkReplyImpl::isRunning() const
{
    return !m_finished;
}

CFxNANetworkReply::NetworkError CFxNANetworkReplyImpl::error() const
{
    return m_error;
}

QString CFxNANetworkReplyImpl::errorString() const
{
    return m_errorString;
}

long long CFxNANetworkReplyImpl::bytesAvailable() const
{
    return m_device ? m_device->bytesAvailable() : 0;
}

QByteArray CFxNANetworkReplyImpl::readAll()
{
    return m_device ? m_device->readAll() : QByteArray();
}

long long CFxNANetworkReplyImpl::pos() const
{
    return m_device ? m_device->pos() : 0;
}

bool CFxNANetworkReplyImpl::seek(long long position)
{
    return m_device && m_device->seek(position);
}

QVariant CFxNANetworkReplyImpl::attribute(CFxNANetworkRequest::Attribute attribute) const
{
    return AttributeImpl(attribute);
}

QVariant CFxNANetworkReplyImpl::header(CFxNANetworkRequest::KnownHeaders header) const
{
    const QByteArray name = CFxNANetworkRequestImpl::GetKnowHeaderName(header);
    return hasRawHeader(name) ? QVariant(rawHeader(name)) : QVariant();
}

bool CFxNANetworkReplyImpl::hasRawHeader(const QByteArray &name) const
{
    return m_rawHeaderNames.indexOf(name) != -1;
}

// The position among the names without repeats, used among the pairs with repeats. Intended.
QByteArray CFxNANetworkReplyImpl::rawHeader(const QByteArray &name) const
{
    return m_rawHeaderPairs.value(m_rawHeaderNames.indexOf(name)).second;
}

QList<QByteArray> CFxNANetworkReplyImpl::rawHeaderList() const
{
    return m_rawHeaderNames;
}

const QList<QPair<QByteArray, QByteArray>> &CFxNANetworkReplyImpl::rawHeaderPairs() const
{
    return m_rawHeaderPairs;
}

void CFxNANetworkReplyImpl::abort()
{
    AbortImpl();
}

CFxUISignal<void(long long, long long)> &CFxNANetworkReplyImpl::downloadProgress()
{
    return m_downloadProgressSignal;
}

CFxUISignal<void(long long, long long)> &CFxNANetworkReplyImpl::uploadProgress()
{
    return m_uploadProgressSignal;
}

CFxUISignal<void()> &CFxNANetworkReplyImpl::encrypted()
{
    return m_encryptedSignal;
}

CFxUISignal<void(CFxNANetworkReply::NetworkError)> &CFxNANetworkReplyImpl::error()
{
    return m_errorSignal;
}

CFxUISignal<void()> &CFxNANetworkReplyImpl::finished()
{
    return m_finishedSignal;
}

void CFxNANetworkReplyImpl::OnDownloadProgress(long long received, long long total)
{
    m_downloadProgressSignal.emit(received, total);
}

void CFxNANetworkReplyImpl::OnUploadProgress(long long sent, long long total)
{
    m_uploadProgressSignal.emit(sent, total);
}

void CFxNANetworkReplyImpl::OnEncrypted()
{
    m_encryptedSignal.emit();
}

// The transfer isn't finished by an error; the body can be read from here on.
void CFxNANetworkReplyImpl::OnError(CFxNANetworkReply::NetworkError error, const QString &text,
                                    QIODevice *device)
{
    m_error = error;
    m_errorString = text;
    m_device = device;
    m_errorSignal.emit(error);
}

// The names aren't cleared first. Intended.
void CFxNANetworkReplyImpl::OnFinished(int httpStatus, QList<QPair<QByteArray, QByteArray>> pairs,
                                       QIODevice *device)
{
    m_finished = true;
    m_device = device;
    m_rawHeaderPairs = std::move(pairs);
    for (const auto &pair : std::as_const(m_rawHeaderPairs)) {
        if (!m_rawHeaderNames.contains(pair.first))
            m_rawHeaderNames.append(pair.first);
    }
    m_httpStatus = httpStatus;
    m_finishedSignal.emit();
}
