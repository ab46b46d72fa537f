#include "NA/FxNANetworkRequest.h"
#include "NA/FxNAWebSocket.h"
#include "NA/support/Frame.h"
#include "NA/support/Peer.h"
#include "NA/support/SocketRecorder.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

namespace {

// A handshake's answer with the headers given.
QByteArray Handshake(const QByteArray &headers,
                     const QByteArray &line = "HTTP/1.1 101 Switching Protocols")
{
    return line + "\r\n" + headers + "\r\n";
}

const QByteArray Upgrade = "Upgrade: websocket\r\n";
const QByteArray Connection = "Connection: Upgrade\r\n";
const QByteArray Accept = "Sec-WebSocket-Accept: @ACCEPT@\r\n";
const QByteArray End = Frame(TextFrame, "end");

// What is to come of a connection.
struct Outcome {
    QString events;
    QAbstractSocket::SocketState state;
    int closeCode;
    QString messages;
};

// Connected, and these messages have come, joined by "|".
Outcome Delivers(const char *messages)
{
    return { QStringLiteral("connected"), QAbstractSocket::ConnectedState, 1000,
             QString::fromUtf8(messages) };
}

// Qt closes, or answers the server's close, with this code.
Outcome Closes(int code)
{
    return { QStringLiteral("connected, disconnected"), QAbstractSocket::UnconnectedState, code,
             QString() };
}

// The connection ended without a close; Qt leaves the code as it was.
Outcome Lost(const char *events)
{
    return { QLatin1String(events), QAbstractSocket::UnconnectedState, 1000, QString() };
}

// A handshake that Qt doesn't take: ConnectionRefusedError, and nothing more ever. The socket stays
// connecting.
Outcome Refused()
{
    return { QStringLiteral("error 0"), QAbstractSocket::ConnectingState, 1000, QString() };
}

Outcome Silent(const char *events, QAbstractSocket::SocketState state)
{
    return { QLatin1String(events), state, 1000, QString() };
}

void AddRow(const QByteArray &name, const Steps &steps, const Outcome &outcome)
{
    QTest::newRow(name) << steps << outcome.events << int(outcome.state) << outcome.closeCode
                        << outcome.messages;
}

} // namespace

// Handshakes and frames that are wrong, and what Qt makes of them. Behind each the server goes on
// with the message "end", so that the row shows whether Qt took offence.
class tst_WebSocketFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void handshake_data();
    void handshake();
    void frame_data();
    void frame();
    void utf8_data();
    void utf8();
    void close_data();
    void close();

private:
    void AddColumns();
    void RunRow();

    FaultPeer fault;
};

void tst_WebSocketFaults::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
}

void tst_WebSocketFaults::AddColumns()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("closeCode");
    QTest::addColumn<QString>("messages");
}

void tst_WebSocketFaults::RunRow()
{
    QFETCH(Steps, steps);
    QFETCH(QString, events);
    QFETCH(int, state);
    QFETCH(int, closeCode);
    QFETCH(QString, messages);
    CFxNAWebSocket socket;
    SocketRecorder recorder(socket);
    socket.open(CFxNANetworkRequest(fault.Url(steps.Path(), QStringLiteral("ws"))));
    const auto seen = [&] { return recorder.Events().join(QStringLiteral(", ")); };
    if (events.isEmpty() || (messages.isEmpty() && state == QAbstractSocket::ConnectedState)) {
        bool later = false; // nothing more comes: that takes a while to see
        QTimer::singleShot(100, this, [&] { later = true; });
        QTRY_VERIFY(later);
    }
    recorder.Wait(
        [&] { return seen() == events && recorder.messages.join(QLatin1Char('|')) == messages; });
    QCoreApplication::processEvents();
    QCOMPARE(seen(), events);
    QCOMPARE(recorder.messages.join(QLatin1Char('|')), messages);
    QCOMPARE(int(QtSocket(socket)->state()), state);
    QCOMPARE(int(QtSocket(socket)->closeCode()), closeCode);
}

void tst_WebSocketFaults::handshake_data()
{
    AddColumns();
    const auto row = [](const QByteArray &name, const QByteArray &answer, const Outcome &outcome) {
        AddRow(name, Steps().Send(answer + End).Hang(), outcome);
    };
    const QByteArray good = Upgrade + Connection + Accept;
    row("good", Handshake(good), Delivers("end"));
    row("good, lower-case names", Handshake(good.toLower().replace("@accept@", "@ACCEPT@")),
        Delivers("end"));
    row("200", Handshake(good, "HTTP/1.1 200 OK"), Refused());
    row("204", Handshake(good, "HTTP/1.1 204 OK"), Refused());
    row("301", Handshake("Location: ws://127.0.0.1/\r\n", "HTTP/1.1 301 Moved"), Refused());
    row("400", Handshake("", "HTTP/1.1 400 Bad"), Refused());
    row("401", Handshake("WWW-Authenticate: Basic realm=\"r\"\r\n", "HTTP/1.1 401 No"), Refused());
    row("404", Handshake("", "HTTP/1.1 404 No"), Refused());
    row("426", Handshake("", "HTTP/1.1 426 Upgrade"), Refused());
    row("500", Handshake("", "HTTP/1.1 500 No"), Refused());
    row("100, then 101", "HTTP/1.1 100 Continue\r\n\r\n" + Handshake(good),
        { QStringLiteral("error 0, connected"), QAbstractSocket::ConnectedState, 1000,
          QStringLiteral("end") });
    row("HTTP/1.0", Handshake(good, "HTTP/1.0 101 Switching"), Refused());
    row("HTTP/9.9", Handshake(good, "HTTP/9.9 101 Switching"), Delivers("end"));
    row("another protocol", Handshake(good, "ICY 101 Switching"), Refused());
    row("letters for a number", Handshake(good, "HTTP/1.1 abc Switching"), Refused());
    row("no number", Handshake(good, "HTTP/1.1"), Refused());
    row("garbage", "\x01\x02\xff garbage\r\n\r\n", Refused());
    row("an empty line", "\r\n", Refused());
    row("no headers", Handshake(""), Refused());
    row("no Upgrade", Handshake(Connection + Accept), Refused());
    row("another Upgrade", Handshake("Upgrade: other\r\n" + Connection + Accept), Refused());
    row("no Connection", Handshake(Upgrade + Accept), Refused());
    row("another Connection", Handshake(Upgrade + "Connection: close\r\n" + Accept), Refused());
    row("no key", Handshake(Upgrade + Connection), Refused());
    row("an empty key", Handshake(Upgrade + Connection + "Sec-WebSocket-Accept:\r\n"), Refused());
    row("a wrong key",
        Handshake(Upgrade + Connection + "Sec-WebSocket-Accept: s3pPLMBiTxaQ9kYGzzhZRbK+xOo=\r\n"),
        Refused());
    row("a key too long", Handshake(Upgrade + Connection + "Sec-WebSocket-Accept: @ACCEPT@x\r\n"),
        Refused());
    row("two keys, wrong first",
        Handshake(Upgrade + Connection + "Sec-WebSocket-Accept: wrong\r\n" + Accept),
        Delivers("end"));
    row("two keys, right first", Handshake(good + "Sec-WebSocket-Accept: wrong\r\n"), Refused());
    row("an extension nobody asked for",
        Handshake(good + "Sec-WebSocket-Extensions: permessage-deflate\r\n"), Delivers("end"));
    row("a protocol nobody asked for", Handshake(good + "Sec-WebSocket-Protocol: chat\r\n"),
        Delivers("end"));
    row("another version", Handshake(good + "Sec-WebSocket-Version: 8\r\n"), Delivers("end"));
    row("a header without a colon", Handshake("Nonsense\r\n" + good), Delivers("end"));
    row("a folded header", Handshake("A: b\r\n c\r\n" + good), Delivers("end"));
    row("a header of 64 KB", Handshake("A: " + QByteArray(65536, 'a') + "\r\n" + good),
        Delivers("end"));
    row("1000 headers", Handshake(QByteArray("A: b\r\n").repeated(1000) + good), Delivers("end"));
    row("line feeds alone", Handshake(good).replace("\r\n", "\n"),
        Silent("", QAbstractSocket::ConnectingState));
    row("a body", Handshake(good + "Content-Length: 4\r\n") + "body", Closes(1002));
    AddRow("closes instead of an answer", Steps().Close(), Lost("error 1, disconnected"));
    AddRow("resets instead of an answer", Steps().Reset(), Lost("error 1, disconnected"));
    AddRow("never answers", Steps().Hang(), Silent("", QAbstractSocket::ConnectingState));
    AddRow("closes within the status line", Steps().Send("HTTP/1.1 1").Close(),
           Lost("error 1, disconnected"));
    AddRow("hangs within the status line", Steps().Send("HTTP/1.1 1").Hang(),
           Silent("", QAbstractSocket::ConnectingState));
    AddRow("closes within the headers", Steps().Send(Handshake(good).chopped(8)).Close(),
           Lost("error 1, disconnected"));
    AddRow("hangs within the headers", Steps().Send(Handshake(good).chopped(8)).Hang(),
           Silent("", QAbstractSocket::ConnectingState));
    AddRow("resets within the headers", Steps().Send(Handshake(good).chopped(8)).Reset(),
           Lost("error 1, disconnected"));
    AddRow("one byte at a time", Steps().Upgrade().Drip(End, 0.001).Hang(), Delivers("end"));
}

void tst_WebSocketFaults::handshake()
{
    RunRow();
}

void tst_WebSocketFaults::frame_data()
{
    AddColumns();
    const auto row = [](const QByteArray &name, const QByteArray &frames, const Outcome &outcome) {
        AddRow(name, Steps().Upgrade().Send(frames + End).Hang(), outcome);
    };
    row("good", "", Delivers("end"));
    for (int opcode : { 3, 4, 5, 6, 7, 11, 12, 13, 14, 15 })
        AddRow("opcode " + QByteArray::number(opcode),
               Steps().Upgrade().Send(Frame(opcode, "x") + End).Hang(), Closes(1002));
    for (int flags : { 8 + 4, 8 + 2, 8 + 1, 15 })
        AddRow("flags " + QByteArray::number(flags),
               Steps().Upgrade().Send(Frame(TextFrame, "x", flags) + End).Hang(), Closes(1002));
    row("masked", QByteArray("\x81\x81mask", 6) + char('x' ^ 'm'), Delivers("x|end"));
    row("a continuation of nothing", Frame(Continuation, "x"), Closes(1002));
    row("a text within a text", Frame(TextFrame, "a", 0) + Frame(TextFrame, "b"), Closes(1002));
    row("a binary within a text", Frame(TextFrame, "a", 0) + Frame(BinaryFrame, "b"), Closes(1002));
    row("a text in three frames",
        Frame(TextFrame, "a", 0) + Frame(Continuation, "b", 0) + Frame(Continuation, "c"),
        Delivers("abc|end"));
    row("a text in 1001 empty frames",
        Frame(TextFrame, "", 0) + Frame(Continuation, "", 0).repeated(999)
            + Frame(Continuation, ""),
        Delivers("|end"));
    row("a ping within a text",
        Frame(TextFrame, "a", 0) + Frame(Ping, "p") + Frame(Continuation, "b"), Delivers("ab|end"));
    row("a ping in two frames", Frame(Ping, "p", 0) + Frame(Continuation, "q"), Closes(1002));
    row("a close in two frames", Frame(CloseFrame, ClosePayload(1000), 0) + Frame(Continuation, ""),
        Closes(1002));
    row("a ping of 125 bytes", Frame(Ping, QByteArray(125, 'p')), Delivers("end"));
    row("a ping of 126 bytes", Frame(Ping, QByteArray(126, 'p')), Closes(1002));
    row("a ping of 64 KB", Frame(Ping, QByteArray(65536, 'p')), Closes(1002));
    row("1000 pings", Frame(Ping, "p").repeated(1000), Delivers("end"));
    row("a pong nobody asked for", Frame(Pong, "p"), Delivers("end"));
    row("16 bits for a short length", "\x81" + LongLength(126, 1) + "x", Closes(1002));
    row("64 bits for a short length", "\x81" + LongLength(127, 1) + "x", Closes(1002));
    row("64 bits for a length of 16", "\x81" + LongLength(127, 126) + QByteArray(126, 'x'),
        Closes(1002));
    row("a length with the top bit", "\x81" + LongLength(127, 1ULL << 63U) + "x", Closes(1002));
    row("the biggest length", "\x81" + LongLength(127, ~0ULL) + "x", Closes(1002));
    row("a length of 63 bits", "\x81" + LongLength(127, ~0ULL >> 1U) + "x", Closes(1009));
    AddRow("a length of 1 GB, hangs",
           Steps().Upgrade().Send("\x81" + LongLength(127, 1ULL << 30U) + "x").Hang(),
           Silent("connected", QAbstractSocket::ConnectedState));
    row("a length of 2 GB", "\x81" + LongLength(127, 1ULL << 31U) + "x", Closes(1009));
    row("a length of 4 GB", "\x81" + LongLength(127, 1ULL << 32U) + "x", Closes(1009));
    AddRow("a frame cut short, closes",
           Steps().Upgrade().Send(Frame(TextFrame, "text").chopped(1)).Close(),
           Lost("connected, error 1, disconnected"));
    AddRow("a frame cut short, resets",
           Steps().Upgrade().Send(Frame(TextFrame, "text").chopped(1)).Reset(),
           Lost("connected, error 1, disconnected"));
    AddRow("a frame cut short, hangs",
           Steps().Upgrade().Send(Frame(TextFrame, "text").chopped(1)).Hang(),
           Silent("connected", QAbstractSocket::ConnectedState));
    AddRow("a text cut short, closes", Steps().Upgrade().Send(Frame(TextFrame, "text", 0)).Close(),
           Lost("connected, error 1, disconnected"));
    AddRow("closes without a close", Steps().Upgrade().Close(),
           Lost("connected, error 1, disconnected"));
    AddRow("resets without a close", Steps().Upgrade().Reset(),
           Lost("connected, error 1, disconnected"));
    AddRow("one byte at a time",
           Steps().Upgrade().Drip(Frame(TextFrame, "text") + End, 0.001).Hang(),
           Delivers("text|end"));
}

void tst_WebSocketFaults::frame()
{
    RunRow();
}

void tst_WebSocketFaults::utf8_data()
{
    AddColumns();
    const auto row = [](const QByteArray &name, const QByteArray &text, const Outcome &outcome) {
        AddRow(name, Steps().Upgrade().Send(Frame(TextFrame, text) + End).Hang(), outcome);
    };
    row("a continuation byte alone",
        "a\x80"
        "b",
        Closes(1007));
    row("a first byte alone",
        "a\xC3"
        "b",
        Closes(1007));
    row("cut short at the end", "a\xE4\xB8", Closes(1007));
    row("a slash in two bytes", "\xC0\xAF", Closes(1007));
    row("a slash in three bytes", "\xE0\x80\xAF", Closes(1007));
    row("a slash in four bytes", "\xF0\x80\x80\xAF", Closes(1007));
    row("a zero in two bytes", "\xC0\x80", Closes(1007));
    row("a surrogate", "\xED\xA0\x80", Closes(1007));
    row("a pair of surrogates", "\xED\xA0\x80\xED\xB0\x80", Closes(1007));
    row("beyond Unicode", "\xF4\x90\x80\x80", Closes(1007));
    row("five bytes", "\xF8\x88\x80\x80\x80", Closes(1007));
    row("six bytes", "\xFC\x84\x80\x80\x80\x80", Closes(1007));
    row("FE", "\xFE", Closes(1007));
    row("FF", "\xFF", Closes(1007));
    row("a noncharacter", "\xEF\xBF\xBF", Delivers("\xEF\xBF\xBF|end"));
    row("a byte order mark",
        "\xEF\xBB\xBF"
        "a",
        { QStringLiteral("connected"), QAbstractSocket::ConnectedState, 1000,
          QStringLiteral("\uFEFFa|end") });
    const auto parts = [](const QByteArray &name, const QByteArray &first, const QByteArray &second,
                          const Outcome &outcome) {
        AddRow(name,
               Steps()
                   .Upgrade()
                   .Send(Frame(TextFrame, first, 0) + Frame(Continuation, second) + End)
                   .Hang(),
               outcome);
    };
    parts("a character over two frames", "\xE4", "\xB8\xAD", Delivers("\xE4\xB8\xAD|end"));
    parts("half a character over two frames", "\xE4", "\xB8", Closes(1007));
    parts("a broken character in the first frame", "\xFF", "a", Closes(1007));
}

void tst_WebSocketFaults::utf8()
{
    RunRow();
}

void tst_WebSocketFaults::close_data()
{
    AddColumns();
    const auto row = [](const QByteArray &name, const QByteArray &payload, const Outcome &outcome) {
        AddRow(name, Steps().Upgrade().Send(Frame(CloseFrame, payload) + End).Hang(), outcome);
    };
    row("without a code", "", Closes(1000));
    row("one byte", "x", Closes(1002));
    for (const int code :
         { 1000, 1001, 1002, 1003, 1007, 1008, 1009, 1010, 1011, 3000, 3999, 4000, 4999 })
        row(QByteArray::number(code), ClosePayload(code), Closes(code));
    for (const int code : { 0, 1, 999, 1004, 1005, 1006, 1012, 1013, 1014, 1015, 1016, 1100, 2000,
                            2999, 5000, 65535 })
        row(QByteArray::number(code), ClosePayload(code), Closes(1002));
    row("a reason", ClosePayload(1000, "reason"), Closes(1000));
    row("a reason that is no UTF-8", ClosePayload(1000, "\xC0\xAF"), Closes(1007));
    row("a reason too long", ClosePayload(1000, QByteArray(124, 'r')), Closes(1002));
    AddRow("twice",
           Steps()
               .Upgrade()
               .Send(Frame(CloseFrame, ClosePayload(1000)) + Frame(CloseFrame, ClosePayload(1001)))
               .Hang(),
           Closes(1000));
}

void tst_WebSocketFaults::close()
{
    RunRow();
}

int main(int argc, char **argv)
{
    return RunTest<tst_WebSocketFaults>(argc, argv);
}

#include "tst_WebSocketFaults.moc"
