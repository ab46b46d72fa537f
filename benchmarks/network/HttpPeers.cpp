#include "HttpPeers.h"

#include "Batch.h"
#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"

#include <curl/curl.h>

#include <QtCore/QProcess>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryFile>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>

#include <memory>
#include <utility>

namespace {

constexpr int Timeout = 30000; // milliseconds

class Transfers : public Batch {
public:
    Transfers(QString url, qint64 size, int atOnce)
        : Batch(atOnce)
        , m_url(std::move(url))
        , m_size(size)
    {
    }

protected:
    QString m_url;
    qint64 m_size;
};

class CommonUITransfers : public Transfers {
public:
    using Transfers::Transfers;

private:
    void Start() override
    {
        CFxNANetworkReply *reply = m_manager.get(m_request);
        reply->finished().connect([this, reply] {
            const bool good = std::as_const(*reply).error() == CFxNANetworkReply::NoError
                && reply->attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).toInt() == 200
                && reply->readAll().size() == m_size;
            m_ended.reset(reply); // deletes the one before: not this one, which is emitting
            Ended(good);
        });
    }

    CFxNANetworkAccessManager m_manager;
    CFxNANetworkRequest m_request { QUrl(m_url) };
    std::unique_ptr<CFxNANetworkReply> m_ended;
};

class QtTransfers : public Transfers {
public:
    using Transfers::Transfers;

protected:
    virtual void SetTimeout(QNetworkReply * /*reply*/) { }

    void Start() override
    {
        QNetworkReply *reply = m_manager.get(m_request);
        SetTimeout(reply);
        QObject::connect(reply, &QNetworkReply::finished, reply, [this, reply] {
            const bool good = reply->error() == QNetworkReply::NoError
                && reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200
                && reply->readAll().size() == m_size;
            reply->deleteLater();
            Ended(good);
        });
    }

    QNetworkAccessManager m_manager;
    QNetworkRequest m_request { QUrl(m_url) };
};

class QtTransfersWithTimer : public QtTransfers {
public:
    using QtTransfers::QtTransfers;

private:
    void SetTimeout(QNetworkReply *reply) override
    {
        auto *timer = new QTimer(reply);
        timer->setSingleShot(true);
        QObject::connect(timer, &QTimer::timeout, reply, &QNetworkReply::abort);
        QObject::connect(reply, &QNetworkReply::finished, timer, &QTimer::stop);
        timer->start(Timeout);
    }
};

// Qt's own time-out, which measures how long nothing came, and not how long the transfer takes.
class QtTransfersWithTransferTimeout : public QtTransfers {
public:
    QtTransfersWithTransferTimeout(const QString &url, qint64 size, int atOnce)
        : QtTransfers(url, size, atOnce)
    {
        m_request.setTransferTimeout(Timeout);
    }
};

// libcurl's multi interface.
class CurlTransfers {
public:
    CurlTransfers(const QString &url, qint64 size, int atOnce)
        : m_multi(curl_multi_init())
        , m_transfers(std::size_t(atOnce))
        , m_size(size)
    {
        for (Transfer &transfer : m_transfers) {
            transfer.easy = curl_easy_init();
            curl_easy_setopt(transfer.easy, CURLOPT_URL, url.toUtf8().constData());
            curl_easy_setopt(transfer.easy, CURLOPT_TIMEOUT_MS, long(Timeout));
            curl_easy_setopt(transfer.easy, CURLOPT_WRITEFUNCTION, AppendBody);
            curl_easy_setopt(transfer.easy, CURLOPT_WRITEDATA, &transfer.body);
            curl_easy_setopt(transfer.easy, CURLOPT_PRIVATE, &transfer);
        }
    }

    ~CurlTransfers()
    {
        for (Transfer &transfer : m_transfers)
            curl_easy_cleanup(transfer.easy);
        curl_multi_cleanup(m_multi);
    }

    CurlTransfers(const CurlTransfers &) = delete;
    CurlTransfers &operator=(const CurlTransfers &) = delete;

    bool Run(int operations)
    {
        bool good = true;
        int toStart = operations;
        for (Transfer &transfer : m_transfers) {
            if (toStart-- > 0)
                curl_multi_add_handle(m_multi, transfer.easy);
        }
        for (int toEnd = operations; toEnd > 0;) {
            int running = 0;
            curl_multi_perform(m_multi, &running);
            int queued = 0;
            while (const CURLMsg *message = curl_multi_info_read(m_multi, &queued)) {
                CURL *easy = message->easy_handle;
                good = good && message->data.result == CURLE_OK && TakeBody(easy);
                curl_multi_remove_handle(m_multi, easy);
                --toEnd;
                if (toStart-- > 0)
                    curl_multi_add_handle(m_multi, easy);
            }
            curl_multi_poll(m_multi, nullptr, 0, running ? Timeout : 0, nullptr);
        }
        return good;
    }

private:
    struct Transfer {
        CURL *easy = nullptr;
        QByteArray body;
    };

    static size_t AppendBody(char *data, size_t size, size_t count, void *body)
    {
        static_cast<QByteArray *>(body)->append(data, static_cast<int>(size * count));
        return size * count;
    }

    bool TakeBody(CURL *easy) const
    {
        Transfer *transfer = nullptr;
        curl_easy_getinfo(easy, CURLINFO_PRIVATE, &transfer);
        return std::exchange(transfer->body, {}).size() == m_size;
    }

    CURLM *m_multi;
    std::vector<Transfer> m_transfers;
    qint64 m_size;
};

// The curl command: all transfers of a batch in one process, told by a file.
bool RunCurlCommand(const QString &url, qint64 size, int operations, int atOnce)
{
    QTemporaryFile file;
    if (!file.open())
        return false;
    for (int i = 0; i < operations; ++i)
        file.write("url = \"" + url.toUtf8() + "\"\noutput = \"/dev/null\"\n");
    file.write("write-out = \"%{size_download}\\n\"\n");
    file.close();
    QStringList arguments { QStringLiteral("--silent"), QStringLiteral("--config"),
                            file.fileName() };
    if (atOnce > 1)
        arguments << QStringLiteral("--parallel") << QStringLiteral("--parallel-max")
                  << QString::number(atOnce);
    QProcess process;
    process.start(QStringLiteral("curl"), arguments);
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
        && process.readAllStandardOutput()
        == QByteArray(QByteArray::number(size) + '\n').repeated(operations);
}

} // namespace

std::vector<Peer> HttpPeers(const QString &url, qint64 size, int operations, int atOnce)
{
    std::vector<Peer> peers {
        MakePeer<QtTransfersWithTimer>("qt", operations, url, size, atOnce),
        MakePeer<CommonUITransfers>("commonui", operations, url, size, atOnce),
        MakePeer<QtTransfers>("qt_no_timer", operations, url, size, atOnce),
        MakePeer<QtTransfersWithTransferTimeout>("qt_own_timeout", operations, url, size, atOnce),
        MakePeer<CurlTransfers>("libcurl", operations, url, size, atOnce),
    };
    if (!QStandardPaths::findExecutable(QStringLiteral("curl")).isEmpty()) {
        peers.push_back({ "curl", operations, false,
                          [=](int count) { return RunCurlCommand(url, size, count, atOnce); } });
        peers.push_back(
            { "curl_each", 1, false, [=](int) { return RunCurlCommand(url, size, 1, 1); } });
    }
    return peers;
}
