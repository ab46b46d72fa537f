#include "NA/support/Peer.h"

#include "support/TestMain.h"

#include <QtCore/QCoreApplication>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>
#include <QtTest/QTest>

#include <csignal>
#include <cstdio>

namespace {

class MissingPeer : public Peer {
public:
    bool Start() override { return StartPrinting(QStringLiteral("/none/server"), {}); }
};

class FailingPeer : public Peer {
public:
    bool Start() override
    {
        return StartPrinting(QStringLiteral("/bin/sh"),
                             { QStringLiteral("-c"), QStringLiteral("echo broken >&2") });
    }
};

bool Connects(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, port);
    return socket.waitForConnected(20000);
}

// A test program that starts all servers, tells their ports and is killed.
void StartPeersAndDie()
{
    NginxPeer nginx;
    FaultPeer fault;
    WebSocketPeer webSocket;
    if (nginx.Start() && fault.Start() && webSocket.Start())
        std::printf("%d %d %d\n", nginx.Port(), fault.Port(), webSocket.Port());
    std::fflush(stdout);
    std::raise(SIGKILL);
}

} // namespace

class tst_Peer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void missingProgramIsNamed();
    void failingProgramTellsItsError();
    void stoppedServerRefusesConnections();
    void serversEndWithAKilledTest();
};

void tst_Peer::missingProgramIsNamed()
{
    MissingPeer peer;
    QVERIFY(!peer.Start());
    QVERIFY2(peer.Fault().contains(QStringLiteral("/none/server")), qPrintable(peer.Fault()));
}

void tst_Peer::failingProgramTellsItsError()
{
    FailingPeer peer;
    QVERIFY(!peer.Start());
    QVERIFY2(peer.Fault().contains(QStringLiteral("broken")), qPrintable(peer.Fault()));
}

void tst_Peer::stoppedServerRefusesConnections()
{
    FaultPeer peer;
    QVERIFY2(peer.Start(), qPrintable(peer.Fault()));
    QVERIFY(Connects(peer.Port()));
    peer.Stop();
    QVERIFY(!Connects(peer.Port()));
}

void tst_Peer::serversEndWithAKilledTest()
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--die") });
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    const QList<QByteArray> ports = process.readAllStandardOutput().trimmed().split(' ');
    QCOMPARE(ports.size(), 3);
    for (const QByteArray &port : ports)
        QTRY_VERIFY(!Connects(port.toUShort()));
}

int main(int argc, char **argv)
{
    if (argc == 2 && QByteArray(argv[1]) == "--die") {
        const QCoreApplication application(argc, argv);
        StartPeersAndDie();
    }
    return RunTest<tst_Peer>(argc, argv);
}

#include "tst_Peer.moc"
