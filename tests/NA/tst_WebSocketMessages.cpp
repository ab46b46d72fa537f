#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"
#include "NA/support/Peer.h"
#include "NA/support/SocketRecorder.h"
#include "NA/support/TlsFiles.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

#include <initializer_list>
#include <memory>

namespace {

const QString Connected = QStringLiteral("connected");
const QString Disconnected = QStringLiteral("disconnected");

QString Text(std::initializer_list<uint> points)
{
    const QVector<uint> vector(points);
    return QString::fromUcs4(vector.constData(), vector.size());
}

} // namespace

// What goes through a WebSocket, against a server that isn't Qt's.
class tst_WebSocketMessages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void text_data();
    void text();
    void loneSurrogatesAreReplaced();
    void everyCharacterOfUnicode();
    void burstFromTheServer();
    void burstFromTheClient();
    void pingPong();
    void binaryMessagesAreDropped();
    void textOverTls();

private:
    WebSocketPeer peer;
    std::unique_ptr<CFxNAWebSocket> socket;
    std::unique_ptr<SocketRecorder> recorder;

    void Open(const QString &path);
};

void tst_WebSocketMessages::initTestCase()
{
    QVERIFY2(peer.Start(), qPrintable(peer.Fault()));
}

void tst_WebSocketMessages::init()
{
    socket = std::make_unique<CFxNAWebSocket>();
    recorder = std::make_unique<SocketRecorder>(*socket);
}

void tst_WebSocketMessages::cleanup()
{
    recorder.reset();
    socket.reset();
}

void tst_WebSocketMessages::Open(const QString &path)
{
    socket->open(CFxNANetworkRequest(peer.Url(path, QStringLiteral("ws"))));
    QVERIFY(recorder->WaitFor(Connected));
}

void tst_WebSocketMessages::text_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one letter") << QStringLiteral("a");
    QTest::newRow("a zero") << QString(QChar(0));
    QTest::newRow("zeros inside") << Text({ 'a', 0, 'b', 0, 'c' });
    QTest::newRow("control characters") << Text({ 1, 7, 8, 9, 10, 13, 27, 127, 0x80, 0x9F });
    QTest::newRow("byte order mark") << Text({ 0xFEFF, 'a' });
    QTest::newRow("swapped byte order mark") << Text({ 0xFFFE, 'a' });
    QTest::newRow("Latin") << QStringLiteral("\u00E4\u00DF\u0160");
    QTest::newRow("combining marks") << Text({ 'e', 0x301, 0x323, 0x1AB0 });
    QTest::newRow("right to left") << Text({ 0x5E9, 0x5DC, 0x202E, 'a', 0x202C, 0x627 });
    QTest::newRow("CJK") << Text({ 0x4E2D, 0x6587, 0x3042, 0xAC00 });
    QTest::newRow("joined emoji") << Text({ 0x1F468, 0x200D, 0x1F469, 0x200D, 0x1F467 });
    QTest::newRow("flag") << Text({ 0x1F1E9, 0x1F1EA });
    QTest::newRow("last of each length") << Text({ 0x7F, 0x7FF, 0xFFFD, 0x10FFFD });
    QTest::newRow("first of each length") << Text({ 0, 0x80, 0x800, 0x10000 });
    QTest::newRow("around the surrogates") << Text({ 0xD7FF, 0xE000 });
    QTest::newRow("noncharacters") << Text({ 0xFDD0, 0xFFFF, 0x1FFFE, 0x10FFFF });
    QTest::newRow("private use") << Text({ 0xE000, 0xF8FF, 0xF0000, 0x100000 });
    for (const int size : { 125, 126, 127, 65535, 65536, 65537 })
        QTest::addRow("%d bytes", size) << QString(size, QLatin1Char('x'));
    QTest::newRow("1 MB") << QString(1 << 20, QLatin1Char('m'));
    QTest::newRow("1 MB beyond the BMP") << Text({ 0x1F600 }).repeated(1 << 18);
    // Qt sends in frames of 512 KB: the characters are cut in two at the seam.
    QTest::newRow("cut in the middle of a character")
        << QString(512 * 1024 - 1, QLatin1Char('x')) + Text({ 0x1F600, 0x4E2D });
}

void tst_WebSocketMessages::text()
{
    QFETCH(QString, text);
    Open(QStringLiteral("/echo"));
    QCOMPARE(socket->sendTextMessage(text), static_cast<long long>(text.toUtf8().size()));
    QVERIFY(recorder->WaitForMessages(1));
    QVERIFY(recorder->messages.first() == text);
    QCOMPARE(recorder->events, QStringList { Connected });
}

void tst_WebSocketMessages::loneSurrogatesAreReplaced()
{
    Open(QStringLiteral("/echo"));
    const QChar parts[] = { QLatin1Char('a'), QChar(0xD800), QLatin1Char('b'), QChar(0xDC00) };
    socket->sendTextMessage(QString(parts, 4));
    QVERIFY(recorder->WaitForMessages(1));
    QCOMPARE(recorder->messages.first(), QString::fromUtf8(QString(parts, 4).toUtf8()));
    QCOMPARE(recorder->events, QStringList { Connected });
}

void tst_WebSocketMessages::everyCharacterOfUnicode()
{
    Open(QStringLiteral("/echo"));
    QStringList sent;
    for (uint plane = 0; plane <= 0x10; ++plane) {
        QVector<uint> points;
        for (uint point = plane << 16U; point < (plane + 1) << 16U; ++point) {
            if (point < 0xD800 || point > 0xDFFF)
                points.append(point);
        }
        sent.append(QString::fromUcs4(points.constData(), points.size()));
        socket->sendTextMessage(sent.last());
    }
    QVERIFY(recorder->WaitForMessages(sent.size()));
    QVERIFY(recorder->messages == sent);
}

void tst_WebSocketMessages::burstFromTheServer()
{
    const int count = 10000;
    Open(QStringLiteral("/burst/%1").arg(count));
    QVERIFY(recorder->WaitForMessages(count));
    QCOMPARE(recorder->messages.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(recorder->messages.at(i), QString::number(i));
}

void tst_WebSocketMessages::burstFromTheClient()
{
    const int count = 10000;
    Open(QStringLiteral("/echo"));
    for (int i = 0; i < count; ++i)
        QVERIFY(socket->sendTextMessage(QString::number(i)) > 0);
    QVERIFY(recorder->WaitForMessages(count));
    QCOMPARE(recorder->messages.size(), count);
    for (int i = 0; i < count; ++i)
        QCOMPARE(recorder->messages.at(i), QString::number(i));
}

// A slot that sends from inside the emission.
void tst_WebSocketMessages::pingPong()
{
    Open(QStringLiteral("/echo"));
    int left = 500;
    socket->textMessageReceived().connect([&](const QString &) {
        if (--left > 0)
            socket->sendTextMessage(QString::number(left));
        else
            socket->close();
    });
    socket->sendTextMessage(QString::number(left));
    QVERIFY(recorder->WaitFor(Disconnected));
    QCOMPARE(left, 0);
    QCOMPARE(recorder->messages.size(), 500);
    QCOMPARE(recorder->messages.last(), QStringLiteral("1"));
}

void tst_WebSocketMessages::binaryMessagesAreDropped()
{
    Open(QStringLiteral("/binary"));
    QVERIFY(recorder->WaitForMessages(1));
    QCOMPARE(recorder->messages, QStringList { QStringLiteral("done") });
    QCOMPARE(recorder->events, QStringList { Connected });
}

void tst_WebSocketMessages::textOverTls()
{
    TlsFiles files;
    QVERIFY2(files.Make(), qPrintable(files.Fault()));
    FaultPeer secure;
    secure.SetTls(files.Certificate(), files.Key());
    QVERIFY2(secure.Start(), qPrintable(secure.Fault()));
    const QUrl url =
        secure.Url(Steps().Upgrade().Send("\x81\x04text").Hang().Path(), QStringLiteral("wss"));

    CFxNAWebSocket untrusting;
    SocketRecorder refusal(untrusting);
    untrusting.open(CFxNANetworkRequest(url));
    QVERIFY(refusal.WaitFor(QStringLiteral("error 13"))); // SslHandshakeFailedError
    QVERIFY(!refusal.events.contains(Connected));

    const TrustedAuthority trust(files.Authority());
    socket->open(CFxNANetworkRequest(url));
    QVERIFY(recorder->WaitForMessages(1));
    QCOMPARE(recorder->messages, QStringList { QStringLiteral("text") });
    QCOMPARE(recorder->events, QStringList { Connected });
}

int main(int argc, char **argv)
{
    return RunTest<tst_WebSocketMessages>(argc, argv);
}

#include "tst_WebSocketMessages.moc"
