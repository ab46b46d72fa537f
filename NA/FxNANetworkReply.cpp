#include "NA/FxNANetworkReply.h"

#include "NA/Impl/FxNANetworkReplyImpl.h"
#include "UI/Impl/ImplOf.h"

#include <utility>

CFxNANetworkReply::CFxNANetworkReply(QObject *reply)
{
    impl = new CFxNANetworkReplyImpl(this, reply);
}

CFxNANetworkReply::~CFxNANetworkReply() = default;

void CFxNANetworkReply::setRequest(const CFxNANetworkRequest &request)
{
    ImplOf<CFxNANetworkReplyImpl>(this)->setRequest(request);
}

const CFxNANetworkRequest *CFxNANetworkReply::request() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->request();
}

bool CFxNANetworkReply::isFinished() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->isFinished();
}

bool CFxNANetworkReply::isRunning() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->isRunning();
}

CFxNANetworkReply::NetworkError CFxNANetworkReply::error() const
{
    return std::as_const(*ImplOf<CFxNANetworkReplyImpl>(this)).error();
}

QString CFxNANetworkReply::errorString() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->errorString();
}

long long CFxNANetworkReply::bytesAvailable() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->bytesAvailable();
}

QByteArray CFxNANetworkReply::readAll()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->readAll();
}

long long CFxNANetworkReply::pos() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->pos();
}

bool CFxNANetworkReply::seek(long long position)
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->seek(position);
}

QVariant CFxNANetworkReply::attribute(CFxNANetworkRequest::Attribute attribute) const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->attribute(attribute);
}

QVariant CFxNANetworkReply::header(CFxNANetworkRequest::KnownHeaders header) const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->header(header);
}

bool CFxNANetworkReply::hasRawHeader(const QByteArray &name) const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->hasRawHeader(name);
}

QByteArray CFxNANetworkReply::rawHeader(const QByteArray &name) const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->rawHeader(name);
}

QList<QByteArray> CFxNANetworkReply::rawHeaderList() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->rawHeaderList();
}

const QList<QPair<QByteArray, QByteArray>> &CFxNANetworkReply::rawHeaderPairs() const
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->rawHeaderPairs();
}

void CFxNANetworkReply::abort()
{
    ImplOf<CFxNANetworkReplyImpl>(this)->abort();
}

CFxUISignal<void(long long, long long)> &CFxNANetworkReply::downloadProgress()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->downloadProgress();
}

CFxUISignal<void(long long, long long)> &CFxNANetworkReply::uploadProgress()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->uploadProgress();
}

CFxUISignal<void()> &CFxNANetworkReply::encrypted()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->encrypted();
}

CFxUISignal<void(CFxNANetworkReply::NetworkError)> &CFxNANetworkReply::error()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->error();
}

CFxUISignal<void()> &CFxNANetworkReply::finished()
{
    return ImplOf<CFxNANetworkReplyImpl>(this)->finished();
}
