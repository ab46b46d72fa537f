#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"
#include "NA/support/Frame.h"
#include "NA/support/Peer.h"
#include "NA/support/SocketRecorder.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

#include <random>
#include <vector>

namespace {

// What servers may send, to be damaged.
QList<QByteArray> GoodStreams()
{
    return {
        Frame(TextFrame, "text") + Frame(TextFrame, "\xE4\xB8\xAD\xF0\x9F\x98\x80"),
        Frame(TextFrame, "a", 0) + Frame(Continuation, "b", 0) + Frame(Ping, "ping")
            + Frame(Continuation, "c"),
        Frame(TextFrame, QByteArray(126, 'x')) + Frame(BinaryFrame, QByteArray(300, '\xFF')),
        Frame(TextFrame, QByteArray(65536, 'y')),
        Frame(Ping, QByteArray(125, 'p')) + Frame(Pong, "") + Frame(TextFrame, ""),
        Frame(TextFrame, "last") + Frame(CloseFrame, ClosePayload(1000, "reason")),
        Frame(CloseFrame, "") + Frame(TextFrame, "behind the close"),
    };
}

const QByteArray GoodHandshake = "HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\n"
                                 "Connection: Upgrade\r\nSec-WebSocket-Accept: @ACCEPT@\r\n\r\n";

// Damages bytes, the same way for the same seed.
class Mutator {
public:
    explicit Mutator(unsigned seed)
        : m_random(seed)
    {
    }

    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    QByteArray Mutate(QByteArray bytes)
    {
        for (int times = 1 + Below(3); times > 0; --times)
            MutateOnce(bytes);
        return bytes;
    }

private:
    void MutateOnce(QByteArray &bytes)
    {
        // Most of the damage where the heads of the frames are.
        const int reach = bytes.size() > 200 && Below(4) ? 200 : bytes.size();
        const int position = reach ? Below(reach) : 0;
        const char interesting[] = { 0, 1, 0x7D, 0x7E, 0x7F, '\x80', '\x81', '\x88', '\xFF' };
        switch (bytes.isEmpty() ? 4 : Below(7)) {
        case 0:
            bytes[position] = static_cast<char>(bytes.at(position) ^ (1 << Below(8)));
            break;
        case 1:
            bytes[position] = static_cast<char>(Below(256));
            break;
        case 2:
            bytes[position] = interesting[Below(sizeof interesting)];
            break;
        case 3:
            bytes.remove(position, 1 + Below(8));
            break;
        case 4:
            bytes.insert(position, QByteArray(1 + Below(8), static_cast<char>(Below(256))));
            break;
        case 5:
            bytes.insert(position, bytes.mid(Below(bytes.size()), Below(40)));
            break;
        default:
            bytes.truncate(position);
        }
    }

    std::mt19937 m_random;
};

} // namespace

// Streams of frames, and some handshakes, damaged at random: whatever comes, the client ends with
// the connection and never crashes.
class tst_WebSocketMutations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void damagedStreamsEndWithTheConnection_data();
    void damagedStreamsEndWithTheConnection();

private:
    FaultPeer fault;
};

void tst_WebSocketMutations::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
}

void tst_WebSocketMutations::damagedStreamsEndWithTheConnection_data()
{
    QTest::addColumn<unsigned>("firstSeed");
    for (unsigned seed = 0; seed < 10000; seed += 1000)
        QTest::addRow("seeds from %u", seed) << seed;
}

void tst_WebSocketMutations::damagedStreamsEndWithTheConnection()
{
    QFETCH(unsigned, firstSeed);
    const QList<QByteArray> good = GoodStreams();
    const QString disconnected = QStringLiteral("disconnected");
    int delivered = 0;
    int opened = 0;
    for (unsigned seed = firstSeed; seed < firstSeed + 1000; ++seed) {
        Mutator mutator(seed);
        const bool damageHandshake = mutator.Below(10) == 0;
        const QByteArray handshake =
            damageHandshake ? mutator.Mutate(GoodHandshake) : GoodHandshake;
        const QByteArray frames = mutator.Mutate(good.at(mutator.Below(good.size())));
        CFxNAWebSocket socket;
        SocketRecorder recorder(socket);
        socket.open(CFxNANetworkRequest(
            fault.Url(Steps().Send(handshake).Send(frames).Close().Path(), QStringLiteral("ws"))));
        const QByteArray hint = "seed " + QByteArray::number(seed) + " " + handshake.toHex() + " "
            + frames.left(300).toHex();
        QVERIFY2(recorder.WaitFor(disconnected), hint);
        QCOMPARE(recorder.events.count(disconnected), 1);
        QVERIFY2(recorder.events.count(QStringLiteral("connected")) <= 1, hint);
        opened += recorder.events.contains(QStringLiteral("connected"));
        delivered += recorder.messages.size();
        // In order: nothing is connected or received behind the end.
        QCOMPARE(QtSocket(socket)->state(), QAbstractSocket::UnconnectedState);
    }
    // The damage is such that much of it is taken for good.
    QVERIFY(opened > 800);
    QVERIFY(delivered > 200);
}

int main(int argc, char **argv)
{
    return RunTest<tst_WebSocketMutations>(argc, argv);
}

#include "tst_WebSocketMutations.moc"
