// What the toolkit costs over bare Qt in a transfer and in a message, with libcurl beside for
// scale. Rows are NAME/commonui, NAME/qt and NAME/libcurl. Use the wall time: the server has its
// own thread.

#include "LoopbackServer.h"

#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"

#include <benchmark/benchmark.h>
#include <curl/curl.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtNetwork/QNetworkAccessManager>
#include <QtNetwork/QNetworkReply>
#include <QtWebSockets/QWebSocket>

#include <memory>
#include <string>
#include <utility>

namespace {

LoopbackServer *g_server = nullptr;

void CheckSize(benchmark::State &state, qint64 size, qint64 expected)
{
    if (size != expected)
        state.SkipWithError("the body is not what the server has");
}

void GetWithCommonUI(benchmark::State &state, const QString &path, qint64 expected)
{
    CFxNANetworkAccessManager manager;
    const CFxNANetworkRequest request(QUrl(g_server->Http(path)));
    for (auto _ : state) {
        QEventLoop loop;
        const std::unique_ptr<CFxNANetworkReply> reply(manager.get(request));
        reply->finished().connect([&loop] { loop.quit(); });
        loop.exec();
        CheckSize(state, reply->readAll().size(), expected);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// With a time-out of Qt's own, since a transfer of ours always has one.
void GetWithQt(benchmark::State &state, const QString &path, qint64 expected)
{
    QNetworkAccessManager manager;
    QNetworkRequest request(QUrl(g_server->Http(path)));
    request.setTransferTimeout(30000);
    for (auto _ : state) {
        QEventLoop loop;
        QNetworkReply *reply = manager.get(request);
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        CheckSize(state, reply->readAll().size(), expected);
        reply->deleteLater();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

size_t AppendBody(char *data, size_t size, size_t count, void *body)
{
    static_cast<QByteArray *>(body)->append(data, static_cast<int>(size * count));
    return size * count;
}

void GetWithCurl(benchmark::State &state, const QString &path, qint64 expected)
{
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(),
                                                                   curl_easy_cleanup);
    QByteArray body;
    curl_easy_setopt(curl.get(), CURLOPT_URL, g_server->Http(path).toUtf8().constData());
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, AppendBody);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &body);
    for (auto _ : state) {
        body.clear();
        curl_easy_perform(curl.get());
        CheckSize(state, body.size(), expected);
    }
}

void EchoWithCommonUI(benchmark::State &state)
{
    CFxNAWebSocket socket;
    QEventLoop loop;
    socket.connected().connect([&loop] { loop.quit(); });
    socket.textMessageReceived().connect([&loop](const QString &) { loop.quit(); });
    socket.open(CFxNANetworkRequest(QUrl(g_server->WebSocket())));
    loop.exec();
    for (auto _ : state) {
        socket.sendTextMessage(QStringLiteral("hello"));
        loop.exec();
    }
}

void EchoWithQt(benchmark::State &state)
{
    QWebSocket socket;
    QEventLoop loop;
    QObject::connect(&socket, &QWebSocket::connected, &loop, &QEventLoop::quit);
    QObject::connect(&socket, &QWebSocket::textMessageReceived, &loop, &QEventLoop::quit);
    socket.open(QUrl(g_server->WebSocket()));
    loop.exec();
    for (auto _ : state) {
        socket.sendTextMessage(QStringLiteral("hello"));
        loop.exec();
    }
}

using Get = void (*)(benchmark::State &, const QString &, qint64);

void RegisterGet(const char *name, Get get, const char *path, qint64 size)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State &state) {
        get(state, QLatin1String(path), size);
    })->UseRealTime();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    LoopbackServer server;
    g_server = &server;
    for (const auto &peer : { std::pair<const char *, Get>("commonui", GetWithCommonUI),
                              std::pair<const char *, Get>("qt", GetWithQt),
                              std::pair<const char *, Get>("libcurl", GetWithCurl) }) {
        RegisterGet(("get 1 kB/" + std::string(peer.first)).c_str(), peer.second, "small",
                    LoopbackServer::SmallSize);
        RegisterGet(("get 64 MB/" + std::string(peer.first)).c_str(), peer.second, "large",
                    LoopbackServer::LargeSize);
    }
    benchmark::RegisterBenchmark("echo a message/commonui", EchoWithCommonUI)->UseRealTime();
    benchmark::RegisterBenchmark("echo a message/qt", EchoWithQt)->UseRealTime();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
