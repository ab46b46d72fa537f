#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/Http2Frame.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/TestMain.h"

#include <QtCore/QLoggingCategory>
#include <QtNetwork/QNetworkReply>
#include <QtNetwork/QNetworkRequest>
#include <QtTest/QTest>

using Reply = CFxNANetworkReply;

namespace {

constexpr int Ends = 20000; // a time-out for a transfer that ends by itself, in milliseconds
constexpr int Hangs = 250; // and for one that only the time-out ends
constexpr quint32 Stream = 1; // of the first request of a connection
constexpr int Upgraded = 101; // the status of an upgraded request before its answer comes

// What a server sends first.
const QByteArray Settings = Http2Frame(SettingsFrame, NoFlag, 0);

QByteArray Headers(const QByteArray &block = Http2Status200, int flags = EndHeaders)
{
    return Http2Frame(HeadersFrame, flags, Stream, block);
}

QByteArray Data(const QByteArray &bytes, int flags = NoFlag)
{
    return Http2Frame(DataFrame, flags, Stream, bytes);
}

QByteArray Reset(quint32 code)
{
    return Http2Frame(ResetFrame, NoFlag, Stream, Http2Number(code));
}

QByteArray GoAway(quint32 lastStream, quint32 code)
{
    return Http2Frame(GoAwayFrame, NoFlag, 0, Http2Number(lastStream) + Http2Number(code));
}

QByteArray HeadersWithLength(const QByteArray &length)
{
    return Headers(Http2Status200 + Http2Header(Http2ContentLength, length));
}

QByteArray GrowWindow(quint32 stream, quint32 increment)
{
    return Http2Frame(WindowUpdateFrame, NoFlag, stream, Http2Number(increment));
}

const QByteArray Ping = Http2Frame(PingFrame, NoFlag, 0, "12345678");
const QByteArray Http11 = "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody";
const QByteArray Good = Headers() + Data("body", EndStream);

// What is to come of a transfer.
struct Outcome {
    int error;
    int status;
    QByteArray body;
    bool signalled = error != 0; ///< `error()` comes, if need be with 0
};

QtMessageHandler g_handler = nullptr;

// When a transfer is aborted Qt wants to tell the server, on a socket that it has closed already.
void DropNotOpen(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message != QLatin1String("QIODevice::write (QTcpSocket): device not open"))
        g_handler(type, context, message);
}

void AddRow(const char *name, const Steps &steps, int timeout, const Outcome &outcome)
{
    QTest::newRow(name) << steps << timeout << outcome.error << outcome.signalled << outcome.status
                        << outcome.body;
}

// Sends frames and lets the connection be.
void AddRow(const char *name, const QByteArray &frames, const Outcome &outcome, int timeout = Ends)
{
    AddRow(name, Steps().Send(frames).Hang(), timeout, outcome);
}

} // namespace

// What Qt makes of HTTP/2 servers that give a stream or a connection up, or that are wrong, and
// what reaches the caller of it. Each transfer has exactly one end, at the latest when its time-out
// has passed.
class tst_Http2Faults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void streamReset_data();
    void streamReset();
    void goAway_data();
    void goAway();
    void data_data();
    void data();
    void frames_data();
    void frames();
    void direct_data();
    void direct();

private:
    void AddColumns();
    void RunUpgraded();
    void RunRow(const QUrl &url, QNetworkRequest::Attribute way);

    FaultPeer fault;
};

void tst_Http2Faults::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
    // Qt logs each of the faults.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.network.http2=false"));
    g_handler = qInstallMessageHandler(DropNotOpen);
}

void tst_Http2Faults::cleanupTestCase()
{
    qInstallMessageHandler(g_handler);
}

void tst_Http2Faults::AddColumns()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("signalled");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
}

// The request is one of HTTP/1.1 with an offer to go on with HTTP/2, which the server takes up.
void tst_Http2Faults::RunUpgraded()
{
    QFETCH(Steps, steps);
    Steps all;
    all.Send("HTTP/1.1 101 Switching Protocols\r\nConnection: Upgrade\r\nUpgrade: h2c\r\n\r\n")
        .Read(Http2PrefaceSize)
        .Send(Settings)
        .Append(steps);
    RunRow(fault.Url(all.Path()), QNetworkRequest::Http2AllowedAttribute);
}

void tst_Http2Faults::RunRow(const QUrl &url, QNetworkRequest::Attribute way)
{
    QFETCH(int, timeout);
    QFETCH(int, error);
    QFETCH(bool, signalled);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(url);
    request.getHandle()->setAttribute(way, true);
    request.setRequestTimeout(timeout);
    Transfer transfer(manager.get(request));
    // The limit is a timer that starts behind that of the time-out: under load both are late.
    const bool ended = transfer.Wait(timeout + 200);
    QVERIFY(ended);
    QCOMPARE(transfer.ends, 1);
    QCOMPARE(int(transfer.Code()), error);
    QCOMPARE(transfer.errors, signalled ? QList<int> { error } : QList<int>());
    QVERIFY(transfer.errorsBeforeTheEnd);
    QCOMPARE(transfer.Status(), status);
    QCOMPARE(transfer.body, body);
}

// A reset with the code of no error is signalled all the same, as error 0. One that comes before
// the answer's end is the only sign of a body cut short.
void tst_Http2Faults::streamReset_data()
{
    AddColumns();
    const auto code = [](const char *name, quint32 number, int error) {
        AddRow(name, Reset(number), { error, Upgraded, "", true });
    };
    code("code 0, no error", Http2NoError, 0);
    code("code 1, protocol error", Http2ProtocolError, Reply::ProtocolFailure);
    code("code 2, internal error", Http2InternalError, Reply::InternalServerError);
    code("code 3, flow control", Http2FlowControlError, Reply::ProtocolFailure);
    code("code 5, stream closed", Http2StreamClosed, Reply::ProtocolFailure);
    code("code 6, frame size", Http2FrameSizeError, Reply::ProtocolFailure);
    code("code 7, refused", Http2RefusedStream, Reply::ProtocolFailure);
    code("code 8, cancel", Http2Cancel, Reply::ProtocolFailure);
    code("code 11, calm down", Http2EnhanceYourCalm, Reply::UnknownServerError);
    code("code 13, HTTP/1.1 required", Http2Http11Required, Reply::ProtocolFailure);
    code("code 99, unknown", 99, Reply::ProtocolFailure);
    AddRow("behind the headers", Headers() + Reset(Http2InternalError),
           { Reply::InternalServerError, 200, "" });
    AddRow("behind the headers of a 404", Headers(Http2Status404) + Reset(Http2InternalError),
           { Reply::InternalServerError, 404, "" });
    AddRow("in the body, no error", Headers() + Data("bo") + Reset(Http2NoError),
           { 0, 200, "bo", true });
    AddRow("in the body, internal error", Headers() + Data("bo") + Reset(Http2InternalError),
           { Reply::InternalServerError, 200, "bo" });
    AddRow("in the body, cancel", Headers() + Data("bo") + Reset(Http2Cancel),
           { Reply::ProtocolFailure, 200, "bo" });
    AddRow("in a body with a length, no error", HeadersWithLength("4") + Data("bo") + Reset(0),
           { 0, 200, "bo", true });
    AddRow("behind the end", Good + Reset(Http2InternalError), { 0, 200, "body" });
    AddRow("twice", Headers() + Reset(Http2InternalError) + Reset(Http2Cancel),
           { Reply::InternalServerError, 200, "" });
    AddRow("then the body", Headers() + Reset(Http2InternalError) + Data("body", EndStream),
           { Reply::InternalServerError, 200, "" });
    AddRow("of a stream that there isn't",
           Http2Frame(ResetFrame, NoFlag, 7, Http2Number(Http2Cancel)) + Good,
           { Reply::ProtocolFailure, Upgraded, "" });
    AddRow("of the connection", Http2Frame(ResetFrame, NoFlag, 0, Http2Number(Http2Cancel)),
           { Reply::ProtocolFailure, Upgraded, "" });
    AddRow("of a wrong size", Http2Frame(ResetFrame, NoFlag, Stream, "abc"),
           { Reply::ProtocolFailure, Upgraded, "" });
}

void tst_Http2Faults::streamReset()
{
    RunUpgraded();
}

// Qt gives the request up with the connection, even one that the server says it still answers: the
// request of an upgrade has no stream yet as Qt counts them.
void tst_Http2Faults::goAway_data()
{
    AddColumns();
    const Outcome givenUp { Reply::ProtocolUnknownError, Upgraded, "" };
    AddRow("no error, before the request", GoAway(0, Http2NoError), givenUp);
    AddRow("no error, before the request, closes", Steps().Send(GoAway(0, Http2NoError)).Close(),
           Ends, givenUp);
    AddRow("no error, behind the request, then the answer", GoAway(Stream, Http2NoError) + Good,
           givenUp);
    AddRow("no error, behind the request, closes",
           Steps().Send(GoAway(Stream, Http2NoError)).Close(), Ends, givenUp);
    AddRow("no error, behind all requests", GoAway(0x7fffffff, Http2NoError), givenUp);
    AddRow("no error, within the answer",
           Headers() + GoAway(Stream, Http2NoError) + Data("body", EndStream),
           { Reply::ProtocolUnknownError, 200, "" });
    AddRow("no error, behind the answer", Good + GoAway(Stream, Http2NoError), { 0, 200, "body" });
    AddRow("protocol error", GoAway(0, Http2ProtocolError), givenUp);
    AddRow("internal error", GoAway(0, Http2InternalError), givenUp);
    AddRow("calm down", GoAway(0, Http2EnhanceYourCalm), givenUp);
    AddRow("HTTP/1.1 required", GoAway(0, Http2Http11Required), givenUp);
    AddRow("internal error within the body", Headers() + Data("bo") + GoAway(0, Http2InternalError),
           { Reply::ProtocolUnknownError, 200, "bo" });
    AddRow("internal error behind the request, then the answer",
           GoAway(Stream, Http2InternalError) + Good, givenUp);
    AddRow("of a stream", Http2Frame(GoAwayFrame, NoFlag, Stream, QByteArray(8, 0)),
           { Reply::ProtocolFailure, Upgraded, "" });
    AddRow("of a wrong size", Http2Frame(GoAwayFrame, NoFlag, 0, "abc"),
           { Reply::ProtocolFailure, Upgraded, "" });
}

void tst_Http2Faults::goAway()
{
    RunUpgraded();
}

void tst_Http2Faults::data_data()
{
    AddColumns();
    const Outcome body { 0, 200, "body" };
    AddRow("good", Good, body);
    AddRow("in pieces", Headers() + Data("bo") + Data("") + Data("dy") + Data("", EndStream), body);
    AddRow("a byte at a time", Steps().Drip(Good, 0.001), Ends, body);
    AddRow("padded",
           Headers()
               + Data(QByteArray("\x02"
                                 "body\0\0",
                                 7),
                      EndStream | Padded),
           body);
    AddRow("padding longer than the frame",
           Headers()
               + Data("\x09"
                      "body",
                      EndStream | Padded),
           { Reply::ProtocolFailure, 200, "" });
    AddRow("none", Headers(Http2Status200, EndHeaders | EndStream), { 0, 200, "" });
    AddRow("trailers behind",
           Headers() + Data("body")
               + Headers(Http2Header(Http2ContentType, "a/b"), EndHeaders | EndStream),
           body);
    AddRow("behind the end", Good + Data("more", EndStream), body);
    AddRow("behind an end in the headers",
           Headers(Http2Status200, EndHeaders | EndStream) + Data("more", EndStream),
           { 0, 200, "" });
    AddRow("a second answer behind the first", Good + Good, body);
    AddRow("before the headers, which never come", Data("body", EndStream),
           { 0, Upgraded, "body" });
    AddRow("before the headers and behind them", Data("some") + Good, { 0, 200, "somebody" });
    AddRow("of a stream that there isn't", Http2Frame(DataFrame, NoFlag, 7, "else") + Good,
           { Reply::UnknownServerError, Upgraded, "" });
    AddRow("of a stream of the server's", Http2Frame(DataFrame, NoFlag, 2, "else") + Good,
           { Reply::UnknownServerError, Upgraded, "" });
    AddRow("of no stream", Http2Frame(DataFrame, NoFlag, 0, "else") + Good,
           { Reply::ProtocolFailure, Upgraded, "" });
    AddRow("less than the length says", HeadersWithLength("9") + Data("body", EndStream), body);
    AddRow("more than the length says", HeadersWithLength("2") + Data("body", EndStream), body);
    const Outcome aborted { Reply::OperationCanceledError, 200, "" };
    AddRow("no end, hangs", Headers() + Data("body"), aborted, Hangs);
    AddRow("no end, closes", Steps().Send(Headers() + Data("body")).Close(), Hangs, aborted);
    AddRow("no end, resets",
           Steps().Send(Headers() + Data("body") + Ping).Frames(PingFrame).Reset(), Hangs, aborted);
    AddRow("a frame cut short, closes", Steps().Send(Headers() + Data("body").chopped(2)).Close(),
           Hangs, aborted);
    AddRow("endless", Steps().Send(Headers()).Endless(Data("body")), Hangs, aborted);
    AddRow("endless and empty", Steps().Send(Headers()).Endless(Data("")), Hangs, aborted);
}

void tst_Http2Faults::data()
{
    RunUpgraded();
}

// Not among these: a CONTINUATION that continues nothing, at which Qt reads an empty list and the
// process ends.
void tst_Http2Faults::frames_data()
{
    AddColumns();
    const Outcome body { 0, 200, "body" };
    const Outcome failed { Reply::ProtocolFailure, Upgraded, "" };
    const Outcome aborted { Reply::OperationCanceledError, Upgraded, "" };
    AddRow("none, hangs", "", aborted, Hangs);
    AddRow("none, closes", Steps().Close(), Hangs, aborted);
    AddRow("none, resets", Steps().Reset(), Hangs, aborted);
    AddRow("garbage", QByteArray(100, '\xff'), aborted, Hangs);
    AddRow("HTTP/1.1", Http11, aborted, Hangs);
    AddRow("longer than allowed", Http2Frame(HeadersFrame, EndHeaders, Stream, "", 0xffffff),
           aborted, Hangs);
    AddRow("of an unknown type", Http2Frame(0xbb, 0xff, Stream, "any") + Good, body);
    AddRow("headers of a stream that there isn't",
           Http2Frame(HeadersFrame, EndHeaders, 7, Http2Status200) + Good,
           { Reply::UnknownServerError, Upgraded, "" });
    AddRow("headers that don't unpack", Headers("\x80"), failed);
    AddRow("headers without a status",
           Headers(Http2Header(Http2ContentType, "a/b")) + Data("body", EndStream),
           { 0, Upgraded, "body" });
    AddRow("headers of status 500", Headers(Http2Status500) + Data("body", EndStream),
           { Reply::InternalServerError, 500, "body" });
    AddRow("headers that never end", Headers(Http2Status200, NoFlag), aborted, Hangs);
    AddRow("headers that never end, then data",
           Headers(Http2Status200, NoFlag) + Data("body", EndStream), failed);
    AddRow("endless continuation",
           Steps()
               .Send(Headers(Http2Status200, NoFlag))
               .Endless(Http2Frame(ContinuationFrame, NoFlag, Stream, Http2Status200)),
           Hangs, aborted);
    AddRow("a push that nobody allowed",
           Http2Frame(PushFrame, EndHeaders, Stream, Http2Number(2) + Http2Status200) + Good, body);
    AddRow("pings", Ping.repeated(10) + Good, body);
    AddRow("pings for ever", Steps().Endless(Ping), Hangs, aborted);
    AddRow("a ping of a wrong size", Http2Frame(PingFrame, NoFlag, 0, "123") + Good, failed);
    AddRow("settings of a wrong size", Http2Frame(SettingsFrame, NoFlag, 0, "123") + Good, failed);
    AddRow("settings of a stream", Http2Frame(SettingsFrame, NoFlag, Stream) + Good, failed);
    AddRow("a window that grows by nothing", GrowWindow(0, 0) + Good, failed);
    AddRow("a window that grows too far", GrowWindow(0, 0x7fffffff) + Good, failed);
    AddRow("a stream's window that grows too far", GrowWindow(Stream, 0x7fffffff) + Good, failed);
}

void tst_Http2Faults::frames()
{
    RunUpgraded();
}

void tst_Http2Faults::direct_data()
{
    AddColumns();
    AddRow("good", Good, { 0, 200, "body" });
    AddRow("stream refused", Reset(Http2RefusedStream), { Reply::ProtocolFailure, 0, "" });
    AddRow("stream ended without an error", Reset(Http2NoError), { 0, 0, "", true });
    AddRow("stream cancelled in the body", Headers() + Data("bo") + Reset(Http2Cancel),
           { Reply::ProtocolFailure, 200, "bo" });
    AddRow("connection given up", GoAway(0, Http2InternalError),
           { Reply::InternalServerError, 0, "" });
    AddRow("connection given up without an error", GoAway(0, Http2NoError),
           { Reply::ContentReSendError, 0, "" });
    AddRow("connection given up behind the request", GoAway(Stream, Http2NoError) + Good,
           { 0, 200, "body" });
    AddRow("data behind the end", Good + Data("more", EndStream), { 0, 200, "body" });
    AddRow("never answers", "", { Reply::OperationCanceledError, 0, "" }, Hangs);
    AddRow("closes instead of an answer", Steps().Close(), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("closes in the body", Steps().Send(Headers() + Data("bo")).Close(), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("HTTP/1.1", Http11, { Reply::OperationCanceledError, 0, "" }, Hangs);
}

// The first byte is HTTP/2 already.
void tst_Http2Faults::direct()
{
    QFETCH(Steps, steps);
    FaultPeer peer;
    peer.SetOnConnect(
        Steps().Read(Http2PrefaceSize).Frames(HeadersFrame).Send(Settings).Append(steps));
    QVERIFY2(peer.Start(), qPrintable(peer.Fault()));
    RunRow(peer.Url(QStringLiteral("/")), QNetworkRequest::Http2DirectAttribute);
}

int main(int argc, char **argv)
{
    return RunTest<tst_Http2Faults>(argc, argv);
}

#include "tst_Http2Faults.moc"
