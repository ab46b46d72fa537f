#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkReply>

#include <cstring>

/// A Qt reply without a network: the test says what it holds and when it emits.
class FakeReply : public QNetworkReply {
public:
    explicit FakeReply(QObject *parentObject = nullptr)
        : QNetworkReply(parentObject)
    {
        setUrl(QUrl(QStringLiteral("http://fake/")));
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    using QNetworkReply::setAttribute;
    using QNetworkReply::setFinished;
    using QNetworkReply::setRawHeader;

    QByteArray body;
    int aborts = 0;

    /// A device that can seek, unlike those that Qt's manager makes.
    bool isSequential() const override { return false; }

    qint64 size() const override { return body.size(); }

    void abort() override
    {
        ++aborts;
        if (isRunning())
            Fail(OperationCanceledError, QStringLiteral("Operation canceled"));
    }

    void EmitError(NetworkError code, const QString &text)
    {
        setError(code, text);
        Q_EMIT errorOccurred(code);
    }

    void Finish()
    {
        setFinished(true);
        Q_EMIT finished();
    }

    void Fail(NetworkError code, const QString &text)
    {
        EmitError(code, text);
        Finish();
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        const qint64 count = qMin(maxSize, body.size() - pos());
        std::memcpy(data, body.constData() + pos(), static_cast<std::size_t>(count));
        return count;
    }
};
