#include "NA/FxNAWebSocket.h"

#include "NA/FxNANetworkRequest.h"
#include "NA/Impl/FxNAWebSocketImpl.h"
#include "NA/support/Peer.h"
#include "NA/support/SocketRecorder.h"
#include "support/TestMain.h"

#include <QtCore/QPointer>
#include <QtNetwork/QNetworkRequest>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxNAWebSocket>);
static_assert(!std::is_copy_constructible_v<CFxNAWebSocket>);
static_assert(!std::is_convertible_v<QString, CFxNAWebSocket>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxNAWebSocket &>().sendTextMessage({})), long long>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxNAWebSocket &>().connected()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxNAWebSocket &>().error()), CFxUISignal<void(int)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNAWebSocket &>().disconnected()),
                             CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNAWebSocket &>().textMessageReceived()),
                             CFxUISignal<void(const QString &)> &>);

using Protocol = CFxNAWebSocketProtocol;

namespace {

const QString Connected = QStringLiteral("connected");
const QString Disconnected = QStringLiteral("disconnected");

} // namespace

class tst_FxNAWebSocket : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void handleIsAQtSocketWithoutParent();
    void originAndVersionGoToQt();
    void frontendClassNameIsEmpty();
    void opensSendsReceivesAndCloses();
    void handshakeCarriesOriginAndHeaders();
    void everyVersionShakesHandsAsTheLatest_data();
    void everyVersionShakesHandsAsTheLatest();
    void theRequestMayGoAfterOpen();
    void timeoutOfTheRequestHasNoEffect();
    void handlersEmitWhatTheyAreGiven();
    void handlersAreSilentWhileBlocked();
    void noSignalNamesASender();
    void blockedSignalsReachNoSlotAndAreNotRecorded();
    void refusedConnection();
    void urlThatCannotBeOpened_data();
    void urlThatCannotBeOpened();
    void sendingWhileNotConnectedSendsNothing();
    void closingWhileNotConnectedDoesNothing();
    void closeByTheClient_data();
    void closeByTheClient();
    void closeByTheServer_data();
    void closeByTheServer();
    void opensAgainAfterAClose();
    void destructionDeletesTheQtSocketAtOnce();
    void theImplementationsEndClearsAForeignHandle();
    void destructionOfAConnectedSocketReachesTheSlots();
    void withoutHandleNothingHappens();
    void overAForeignHandleNothingHappens();
    void requestWithoutHandleOpensNothing();

private:
    CFxNANetworkRequest Request(const QString &path)
    {
        return CFxNANetworkRequest(peer.Url(path, QStringLiteral("ws")));
    }

    WebSocketPeer peer;
};

void tst_FxNAWebSocket::initTestCase()
{
    QVERIFY2(peer.Start(), qPrintable(peer.Fault()));
}

void tst_FxNAWebSocket::handleIsAQtSocketWithoutParent()
{
    const CFxNAWebSocket socket;
    QVERIFY(QtSocket(socket));
    QVERIFY(!QtSocket(socket)->parent());
    QVERIFY(!socket.parent());
}

void tst_FxNAWebSocket::originAndVersionGoToQt()
{
    const CFxNAWebSocket socket(QStringLiteral("http://origin/"), Protocol::Version8);
    QCOMPARE(QtSocket(socket)->origin(), QStringLiteral("http://origin/"));
    QCOMPARE(QtSocket(socket)->version(), QWebSocketProtocol::Version8);
    const CFxNAWebSocket plain;
    QVERIFY(QtSocket(plain)->origin().isEmpty());
    QCOMPARE(QtSocket(plain)->version(), QWebSocketProtocol::VersionLatest);
}

void tst_FxNAWebSocket::frontendClassNameIsEmpty()
{
    const CFxNAWebSocket socket;
    QVERIFY(socket.impl->GetFrontendClassName().isEmpty());
}

void tst_FxNAWebSocket::opensSendsReceivesAndCloses()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(Request(QStringLiteral("/echo")));
    QVERIFY(recorder.events.isEmpty());
    QVERIFY(recorder.WaitFor(Connected));
    QCOMPARE(socket.sendTextMessage(QStringLiteral("h\u00E9llo")), 6LL); // bytes, not characters
    QVERIFY(recorder.WaitForMessages(1));
    QCOMPARE(recorder.messages, QStringList { QStringLiteral("h\u00E9llo") });
    socket.close();
    QVERIFY(recorder.WaitFor(Disconnected));
    QCOMPARE(recorder.events, (QStringList { Connected, Disconnected }));
    QCOMPARE(peer.ReadLine(), QByteArray("closed 1000"));
}

void tst_FxNAWebSocket::handshakeCarriesOriginAndHeaders()
{
    CFxNAWebSocket socket(QStringLiteral("http://origin/"));
    SocketRecorder recorder(socket);
    CFxNANetworkRequest request = Request(QStringLiteral("/headers"));
    request.setRawHeader("X-Raw", "raw value");
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("agent"));
    socket.open(request);
    QVERIFY(recorder.WaitForMessage(QStringLiteral("done")));
    QVERIFY(recorder.messages.contains(QStringLiteral("Origin: http://origin/")));
    QVERIFY(recorder.messages.contains(QStringLiteral("X-Raw: raw value")));
    QVERIFY(recorder.messages.contains(QStringLiteral("User-Agent: agent")));
    QVERIFY(recorder.messages.contains(QStringLiteral("Sec-WebSocket-Version: 13")));
    socket.close();
    QVERIFY(recorder.WaitFor(Disconnected));
    peer.ReadLine();
}

void tst_FxNAWebSocket::everyVersionShakesHandsAsTheLatest_data()
{
    QTest::addColumn<int>("version");
    for (const int version : { -1, 0, 4, 5, 6, 7, 8, 13, 99 })
        QTest::addRow("%d", version) << version;
}

void tst_FxNAWebSocket::everyVersionShakesHandsAsTheLatest()
{
    QFETCH(int, version);
    CFxNAWebSocket socket(QString(), static_cast<Protocol::Version>(version));
    SocketRecorder recorder(socket);
    socket.open(Request(QStringLiteral("/headers")));
    QVERIFY(recorder.WaitForMessage(QStringLiteral("done")));
    QVERIFY(recorder.messages.contains(QStringLiteral("Sec-WebSocket-Version: 13")));
    socket.close();
    QVERIFY(recorder.WaitFor(Disconnected));
    peer.ReadLine();
}

void tst_FxNAWebSocket::theRequestMayGoAfterOpen()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    {
        const CFxNANetworkRequest request = Request(QStringLiteral("/echo"));
        socket.open(request);
    }
    QVERIFY(recorder.WaitFor(Connected));
    socket.close();
    QVERIFY(recorder.WaitFor(Disconnected));
    peer.ReadLine();
}

void tst_FxNAWebSocket::timeoutOfTheRequestHasNoEffect()
{
    FaultPeer silent;
    silent.SetOnConnect(Steps().Hang());
    QVERIFY2(silent.Start(), qPrintable(silent.Fault()));
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    CFxNANetworkRequest request(silent.Url(QStringLiteral("/"), QStringLiteral("ws")));
    request.setRequestTimeout(1);
    socket.open(request);
    bool later = false;
    QTimer::singleShot(100, this, [&] { later = true; });
    QTRY_VERIFY(later);
    QVERIFY(recorder.events.isEmpty());
    QCOMPARE(QtSocket(socket)->state(), QAbstractSocket::ConnectingState);
}

void tst_FxNAWebSocket::handlersEmitWhatTheyAreGiven()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    auto *implementation = static_cast<CFxNAWebSocketImpl *>(socket.impl);
    implementation->OnConnected();
    for (const int number : { 0, 22, -1, 12345 })
        implementation->OnError(number);
    implementation->OnDisconnected();
    implementation->OnTextMessageReceived(QStringLiteral("text"));
    implementation->OnTextMessageReceived(QString());
    QCOMPARE(
        recorder.events,
        (QStringList { Connected, QStringLiteral("error 0"), QStringLiteral("error 22"),
                       QStringLiteral("error -1"), QStringLiteral("error 12345"), Disconnected }));
    QCOMPARE(recorder.messages, (QStringList { QStringLiteral("text"), QString() }));
}

void tst_FxNAWebSocket::handlersAreSilentWhileBlocked()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.blockSignals(true);
    auto *implementation = static_cast<CFxNAWebSocketImpl *>(socket.impl);
    implementation->OnConnected();
    implementation->OnError(1);
    implementation->OnDisconnected();
    implementation->OnTextMessageReceived(QStringLiteral("text"));
    socket.blockSignals(false);
    QVERIFY(recorder.events.isEmpty());
    QVERIFY(recorder.messages.isEmpty());
}

void tst_FxNAWebSocket::noSignalNamesASender()
{
    CFxNAWebSocket socket;
    CFxUIObject other;
    socket.setSender(&other);
    int calls = 0;
    const auto slot = [&](auto...) { calls += socket.sender() == &other; };
    socket.connected().connect(slot);
    socket.error().connect(slot);
    socket.disconnected().connect(slot);
    socket.textMessageReceived().connect(slot);
    auto *implementation = static_cast<CFxNAWebSocketImpl *>(socket.impl);
    implementation->OnConnected();
    implementation->OnError(1);
    implementation->OnDisconnected();
    implementation->OnTextMessageReceived(QString());
    QCOMPARE(calls, 4);
    QCOMPARE(socket.sender(), &other);
}

void tst_FxNAWebSocket::blockedSignalsReachNoSlotAndAreNotRecorded()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.blockSignals(true);
    socket.open(Request(QStringLiteral("/echo")));
    QTRY_COMPARE(QtSocket(socket)->state(), QAbstractSocket::ConnectedState);
    int qtMessages = 0;
    connect(QtSocket(socket), &QWebSocket::textMessageReceived, this, [&] { ++qtMessages; });
    socket.sendTextMessage(QStringLiteral("missed"));
    QTRY_COMPARE(qtMessages, 1);
    socket.close();
    QTRY_COMPARE(QtSocket(socket)->state(), QAbstractSocket::UnconnectedState);
    socket.blockSignals(false);
    QCoreApplication::processEvents();
    QVERIFY(recorder.events.isEmpty());
    QVERIFY(recorder.messages.isEmpty());
    peer.ReadLine();
}

void tst_FxNAWebSocket::refusedConnection()
{
    const ReservedPort port;
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(CFxNANetworkRequest(QUrl(QStringLiteral("ws://127.0.0.1:%1/").arg(port.Port()))));
    QVERIFY(recorder.WaitFor(QStringLiteral("error 0")));
    QCOMPARE(int(QAbstractSocket::ConnectionRefusedError), 0);
    QCoreApplication::processEvents();
    QCOMPARE(recorder.events, (QStringList { Disconnected, QStringLiteral("error 0") }));
    QCOMPARE(QtSocket(socket)->state(), QAbstractSocket::UnconnectedState);
}

void tst_FxNAWebSocket::urlThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QStringList>("events");
    const QStringList refused { QStringLiteral("error 0") };
    const QStringList unsupported { QStringLiteral("error 10") };
    QTest::newRow("empty") << QString() << refused;
    QTest::newRow("http") << QStringLiteral("http://127.0.0.1/") << unsupported;
    QTest::newRow("no scheme") << QStringLiteral("127.0.0.1/") << unsupported;
    QTest::newRow("no host") << QStringLiteral("ws:///")
                             << QStringList { Disconnected, QStringLiteral("error 2") };
    QTest::newRow("line end in the path") << QStringLiteral("ws://127.0.0.1/%0D%0A") << refused;
}

void tst_FxNAWebSocket::urlThatCannotBeOpened()
{
    QFETCH(QString, url);
    QFETCH(QStringList, events);
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(CFxNANetworkRequest(QUrl(url)));
    QVERIFY(recorder.WaitFor(events.last()));
    QCoreApplication::processEvents();
    QCOMPARE(recorder.events, events);
    QCOMPARE(QtSocket(socket)->state(), QAbstractSocket::UnconnectedState);
}

void tst_FxNAWebSocket::sendingWhileNotConnectedSendsNothing()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    QCOMPARE(socket.sendTextMessage(QStringLiteral("text")), 0LL);
    socket.open(Request(QStringLiteral("/echo")));
    QCOMPARE(socket.sendTextMessage(QStringLiteral("too early")), 0LL);
    QVERIFY(recorder.WaitFor(Connected));
    socket.close();
    QVERIFY(recorder.WaitFor(Disconnected));
    QCOMPARE(socket.sendTextMessage(QStringLiteral("too late")), 0LL);
    QVERIFY(recorder.messages.isEmpty());
    peer.ReadLine();
}

void tst_FxNAWebSocket::closingWhileNotConnectedDoesNothing()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.close();
    QCoreApplication::processEvents();
    QVERIFY(recorder.events.isEmpty());
}

void tst_FxNAWebSocket::closeByTheClient_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QByteArray>("seen");
    QTest::newRow("1000") << 1000 << QString() << QByteArray("closed 1000");
    QTest::newRow("1000 with a reason") << 1000 << QStringLiteral("b\u00FCe")
                                        << QByteArray("closed 1000 b\xC3\xBC"
                                                      "e");
    QTest::newRow("1001") << 1001 << QStringLiteral("away") << QByteArray("closed 1001 away");
    QTest::newRow("1002") << 1002 << QString() << QByteArray("closed 1002");
    QTest::newRow("1003") << 1003 << QString() << QByteArray("closed 1003");
    QTest::newRow("1007") << 1007 << QString() << QByteArray("closed 1007");
    QTest::newRow("1008") << 1008 << QString() << QByteArray("closed 1008");
    QTest::newRow("1009") << 1009 << QString() << QByteArray("closed 1009");
    QTest::newRow("1010") << 1010 << QString() << QByteArray("closed 1010");
    QTest::newRow("1011") << 1011 << QString() << QByteArray("closed 1011");
    QTest::newRow("4999, the last private one") << 4999 << QString() << QByteArray("closed 4999");
    QTest::newRow("a reason beyond 123 bytes")
        << 1000 << QString(200, QLatin1Char('r')) << "closed 1000 " + QByteArray(123, 'r');
}

void tst_FxNAWebSocket::closeByTheClient()
{
    QFETCH(int, code);
    QFETCH(QString, reason);
    QFETCH(QByteArray, seen);
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(Request(QStringLiteral("/echo")));
    QVERIFY(recorder.WaitFor(Connected));
    socket.close(static_cast<Protocol::CloseCode>(code), reason);
    QVERIFY(recorder.WaitFor(Disconnected));
    QCOMPARE(peer.ReadLine(), seen);
    QCOMPARE(recorder.events, (QStringList { Connected, Disconnected }));
}

void tst_FxNAWebSocket::closeByTheServer_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");
    QTest::newRow("1000") << 1000 << QString();
    QTest::newRow("1001 with a reason") << 1001 << QStringLiteral("going away");
    QTest::newRow("1008") << 1008 << QStringLiteral("policy");
    QTest::newRow("1011") << 1011 << QStringLiteral("b\u00FCe");
    QTest::newRow("3000") << 3000 << QStringLiteral("library");
    QTest::newRow("4000") << 4000 << QString(100, QLatin1Char('r'));
}

void tst_FxNAWebSocket::closeByTheServer()
{
    QFETCH(int, code);
    QFETCH(QString, reason);
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(Request(QStringLiteral("/close/%1/%2").arg(code).arg(reason)));
    QVERIFY(recorder.WaitFor(Disconnected));
    QCOMPARE(recorder.events, (QStringList { Connected, Disconnected }));
    QCOMPARE(int(QtSocket(socket)->closeCode()), code);
    QCOMPARE(QtSocket(socket)->closeReason(), reason);
    peer.ReadLine();
}

void tst_FxNAWebSocket::opensAgainAfterAClose()
{
    CFxNAWebSocket socket;
    for (int i = 0; i < 3; ++i) {
        SocketRecorder recorder(socket);
        socket.open(Request(QStringLiteral("/echo")));
        QVERIFY(recorder.WaitFor(Connected));
        socket.sendTextMessage(QString::number(i));
        QVERIFY(recorder.WaitForMessages(1));
        QCOMPARE(recorder.messages, QStringList { QString::number(i) });
        socket.close();
        QVERIFY(recorder.WaitFor(Disconnected));
        peer.ReadLine();
    }
}

void tst_FxNAWebSocket::destructionDeletesTheQtSocketAtOnce()
{
    auto socket = std::make_unique<CFxNAWebSocket>();
    const QPointer<QObject> handle(socket->getHandle());
    socket.reset();
    QVERIFY(!handle);
}

void tst_FxNAWebSocket::destructionOfAConnectedSocketReachesTheSlots()
{
    auto socket = std::make_unique<CFxNAWebSocket>();
    SocketRecorder recorder(*socket);
    socket->open(Request(QStringLiteral("/echo")));
    QVERIFY(recorder.WaitFor(Connected));
    const QPointer<QObject> handle(socket->getHandle());
    socket.reset();
    QVERIFY(!handle);
    QCOMPARE(recorder.events, (QStringList { Connected, Disconnected }));
    QCOMPARE(peer.ReadLine(), QByteArray("closed 1001 Connection closed"));
}

void tst_FxNAWebSocket::withoutHandleNothingHappens()
{
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    delete socket.getHandle();
    socket.open(Request(QStringLiteral("/echo")));
    QCOMPARE(socket.sendTextMessage(QStringLiteral("text")), 0LL);
    socket.close();
    QVERIFY(recorder.events.isEmpty());
}

void tst_FxNAWebSocket::overAForeignHandleNothingHappens()
{
    QObject foreign;
    CFxNAWebSocket socket;
    const std::unique_ptr<QObject> handle(socket.getHandle());
    socket.setHandle(&foreign);
    socket.open(Request(QStringLiteral("/echo")));
    QCOMPARE(socket.sendTextMessage(QStringLiteral("text")), 0LL);
    socket.close();
    QCOMPARE(static_cast<QWebSocket *>(handle.get())->state(), QAbstractSocket::UnconnectedState);
}

void tst_FxNAWebSocket::requestWithoutHandleOpensNothing()
{
    CFxNANetworkRequest request = Request(QStringLiteral("/echo"));
    const std::unique_ptr<QNetworkRequest> handle(request.getHandle());
    request.setHandle(nullptr);
    CFxNAWebSocket socket;
    socket.open(request);
    QCOMPARE(QtSocket(socket)->state(), QAbstractSocket::UnconnectedState);
}

void tst_FxNAWebSocket::theImplementationsEndClearsAForeignHandle()
{
    CFxNAWebSocket socket;
    delete socket.getHandle();
    QObject foreign;
    socket.setHandle(&foreign);
    delete socket.impl;
    socket.impl = nullptr;
    QVERIFY(!socket.getHandle());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNAWebSocket>(argc, argv);
}

#include "tst_FxNAWebSocket.moc"
