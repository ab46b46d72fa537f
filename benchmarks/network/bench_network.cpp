// What the toolkit costs over bare Qt in transfers and messages, with libcurl and the curl command
// beside for scale. Each benchmark's counters hold the times of bare Qt and the ratios to it.

#include "HttpPeers.h"
#include "LoopbackServer.h"
#include "Rounds.h"
#include "WebSocketPeers.h"

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <exception>
#include <functional>
#include <vector>

namespace {

constexpr int Connections = 6; // that Qt opens to one server
constexpr int Window = 64; // messages on the way

void Register(const LoopbackServer &server, const char *name,
              const std::function<std::vector<Peer>()> &peers)
{
    benchmark::RegisterBenchmark(name, [=, &server](benchmark::State &state) {
        Rounds(peers(), [&server] { return server.ProcessorSeconds(); }).Run(state);
    })->UseRealTime();
}

void RegisterAll(const LoopbackServer &server)
{
    const QString small = server.Http(QStringLiteral("small"));
    const QString large = server.Http(QStringLiteral("large"));
    const QString socket = server.WebSocket();
    Register(server, "get 1 kB",
             [=] { return HttpPeers(small, LoopbackServer::SmallSize, 60, 1); });
    Register(server, "get 1 kB, 6 at once",
             [=] { return HttpPeers(small, LoopbackServer::SmallSize, 60, Connections); });
    Register(server, "get 64 MB",
             [=] { return HttpPeers(large, LoopbackServer::LargeSize, 1, 1); });
    Register(server, "echo", [=] { return WebSocketPeers(socket, 200, 1); });
    Register(server, "echo, 64 on the way", [=] { return WebSocketPeers(socket, 1000, Window); });
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const LoopbackServer server;
    RegisterAll(server);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    try {
        benchmark::RunSpecifiedBenchmarks();
    } catch (const std::exception &fault) {
        std::fprintf(stderr, "bench_network: %s\n", fault.what());
        return 1;
    }
    return 0;
}
