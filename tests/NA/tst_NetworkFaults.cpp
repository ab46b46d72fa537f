#include "NA/FxNANetworkAccessManager.h"
#include "NA/FxNANetworkReply.h"
#include "NA/FxNANetworkRequest.h"
#include "NA/support/Peer.h"
#include "NA/support/Transfer.h"
#include "support/TestMain.h"

#include <QtNetwork/QNetworkReply>
#include <QtTest/QTest>

using Reply = CFxNANetworkReply;

namespace {

constexpr int Ends = 20000; // a time-out for a transfer that ends by itself, in milliseconds
constexpr int Hangs = 250; // and for one that only the time-out ends

// An answer with a good head; the length goes into Content-Length unless it is empty.
QByteArray Answer(const QByteArray &status, const QByteArray &length, const QByteArray &body,
                  const QByteArray &headers = QByteArray())
{
    const QByteArray lengthLine =
        length.isEmpty() ? QByteArray() : "Content-Length: " + length + "\r\n";
    return "HTTP/1.1 " + status + "\r\n" + headers + lengthLine + "\r\n" + body;
}

QByteArray Chunked(const QByteArray &chunks)
{
    return Answer("200 OK", "", chunks, "Transfer-Encoding: chunked\r\n");
}

// What is to come of a transfer.
struct Outcome {
    int error;
    int status;
    QByteArray body;
    int otherError = -1; ///< comes as well, if it isn't negative
};

// A body that ends before its time. Qt reports that, or another error, or none at all, and may ask
// again on a new connection. No order of the server's settles it: the busier the machine the more
// often it is none, whether the end of the connection comes in one segment with the bytes or long
// after Qt has read them.
Outcome CutShort(const QByteArray &body, int status = 200, int otherError = 0)
{
    return { Reply::RemoteHostClosedError, status, body, otherError };
}

void AddRow(const char *name, const Steps &steps, int timeout, const Outcome &outcome)
{
    QTest::newRow(name) << steps << timeout << outcome.error << outcome.otherError << outcome.status
                        << outcome.body;
}

} // namespace

// What Qt makes of servers that are wrong, and what reaches the caller of it. Each transfer has
// exactly one end, at the latest when its time-out has passed.
class tst_NetworkFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void connection_data();
    void connection();
    void statusLine_data();
    void statusLine();
    void statusCode_data();
    void statusCode();
    void contentLength_data();
    void contentLength();
    void chunks_data();
    void chunks();
    void headers_data();
    void headers();
    void encoding_data();
    void encoding();
    void upload_data();
    void upload();

private:
    void AddColumns();
    void RunRow(bool post = false);

    FaultPeer fault;
};

void tst_NetworkFaults::initTestCase()
{
    QVERIFY2(fault.Start(), qPrintable(fault.Fault()));
}

void tst_NetworkFaults::AddColumns()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<int>("timeout");
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("otherError");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("body");
}

void tst_NetworkFaults::RunRow(bool post)
{
    QFETCH(Steps, steps);
    QFETCH(int, timeout);
    QFETCH(int, error);
    QFETCH(int, otherError);
    QFETCH(int, status);
    QFETCH(QByteArray, body);
    CFxNANetworkAccessManager manager;
    CFxNANetworkRequest request(fault.Url(steps.Path()));
    request.setRequestTimeout(timeout);
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("a/b"));
    Transfer transfer(post ? manager.post(request, QByteArray(4 * 1024 * 1024, 'p'))
                           : manager.get(request));
    // The limit is a timer that starts behind that of the time-out: under load both are late.
    const bool ended = transfer.Wait(timeout + 200);
    QVERIFY(ended);
    QCOMPARE(transfer.ends, 1);
    if (transfer.Code() == otherError)
        error = otherError;
    QCOMPARE(int(transfer.Code()), error);
    QCOMPARE(transfer.errors, error ? QList<int> { error } : QList<int>());
    QVERIFY(transfer.errorsBeforeTheEnd);
    QCOMPARE(transfer.Status(), status);
    QCOMPARE(transfer.body, body);
}

void tst_NetworkFaults::connection_data()
{
    AddColumns();
    const QByteArray good = Answer("200 OK", "4", "body");
    AddRow("closes instead of an answer", Steps().Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("resets instead of an answer", Steps().Reset(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("never answers", Steps().Hang(), Hangs, { Reply::OperationCanceledError, 0, "" });
    AddRow("closes within the status line", Steps().Send("HTTP/1.1 2").Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("resets within the status line", Steps().Send("HTTP/1.1 2").Reset(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("hangs within the status line", Steps().Send("HTTP/1.1 2").Hang(), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("closes behind the status line", Steps().Send("HTTP/1.1 200 OK\r\n").Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("closes within the headers", Steps().Send("HTTP/1.1 200 OK\r\nA: b\r\nC").Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("resets within the headers", Steps().Send("HTTP/1.1 200 OK\r\nA: b\r\nC").Reset(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("hangs within the headers", Steps().Send("HTTP/1.1 200 OK\r\nA: b\r\nC").Hang(), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("one byte at a time", Steps().Drip(good, 0.001), Ends, { 0, 200, "body" });
    AddRow("one byte a second", Steps().Drip(good, 1), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("closes behind a good answer", Steps().Send(good).Close(), Ends, { 0, 200, "body" });
    AddRow("resets behind a good answer", Steps().Send(good).Reset(), Ends, { 0, 200, "body" });
    AddRow("more bytes behind a good answer", Steps().Send(good + "surplus").Close(), Ends,
           { 0, 200, "body" });
    AddRow("a second answer behind the first", Steps().Send(good + good), Ends, { 0, 200, "body" });
}

void tst_NetworkFaults::connection()
{
    RunRow();
}

void tst_NetworkFaults::statusLine_data()
{
    AddColumns();
    const auto row = [](const char *name, const QByteArray &line, const Outcome &outcome) {
        AddRow(name, Steps().Send(line + "\r\nContent-Length: 4\r\n\r\nbody").Close(), Ends,
               outcome);
    };
    row("garbage", "\x01\x02\xff garbage", { Reply::RemoteHostClosedError, 0, "" });
    row("empty", "", { Reply::RemoteHostClosedError, 0, "" });
    row("blanks", "   ", { Reply::RemoteHostClosedError, 0, "" });
    row("without a number", "HTTP/1.1", { Reply::RemoteHostClosedError, 0, "" });
    row("letters for a number", "HTTP/1.1 abc OK", { Reply::RemoteHostClosedError, 0, "" });
    row("no reason", "HTTP/1.1 200", { 0, 200, "body" });
    row("number below 100", "HTTP/1.1 99 Low", { 0, 99, "body" });
    row("number of four digits", "HTTP/1.1 2000 High", { Reply::UnknownServerError, 2000, "body" });
    row("negative number", "HTTP/1.1 -200 OK", { 0, -200, "body" });
    row("HTTP/1.0", "HTTP/1.0 200 OK", { 0, 200, "body" });
    row("HTTP/0.9", "HTTP/0.9 200 OK", { 0, 200, "body" });
    row("HTTP/2.0", "HTTP/2.0 200 OK", { 0, 200, "body" });
    row("HTTP/9.9", "HTTP/9.9 200 OK", { 0, 200, "body" });
    row("HTTP/11", "HTTP/11 200 OK", { Reply::RemoteHostClosedError, 0, "" });
    row("lower case", "http/1.1 200 OK", { Reply::RemoteHostClosedError, 0, "" });
    row("another protocol", "ICY 200 OK", { Reply::RemoteHostClosedError, 0, "" });
    row("an SSH server", "SSH-2.0-OpenSSH_9.2", { Reply::RemoteHostClosedError, 0, "" });
    row("two blanks", "HTTP/1.1  200 OK", { Reply::RemoteHostClosedError, 0, "" });
    row("64 KB of reason", "HTTP/1.1 200 " + QByteArray(65536, 'r'), { 0, 200, "body" });
    AddRow("line feeds alone", Steps().Send("HTTP/1.1 200 OK\nContent-Length: 4\n\nbody").Close(),
           Ends, { 0, 200, "body" });
    AddRow("a body alone", Steps().Send("body").Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("garbage, hangs", Steps().Send("\x01\x02\xff garbage\r\n\r\n").Hang(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("HTTP garbage, hangs", Steps().Send("HTTP/1.1 abc OK\r\n\r\n").Hang(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("a TLS alert", Steps().Send(QByteArray("\x15\x03\x01\x00\x02\x02\x46", 7)).Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("an endless status line", Steps().Send("HTTP/1.1 200 ").Endless(QByteArray(1000, 'r')),
           Hangs, { Reply::OperationCanceledError, 0, "" });
}

void tst_NetworkFaults::statusLine()
{
    RunRow();
}

void tst_NetworkFaults::statusCode_data()
{
    AddColumns();
    const auto row = [](const char *code, int error) {
        AddRow(code, Steps().Send(Answer(code + QByteArray(" Text"), "4", "body")), Ends,
               { error, QByteArray(code).toInt(), "body" });
    };
    row("200", 0);
    row("201", 0);
    row("203", 0);
    row("206", 0);
    row("226", 0);
    row("299", 0);
    row("300", 0);
    row("301", 0);
    row("302", 0);
    row("303", 0);
    row("307", 0);
    row("308", 0);
    row("400", Reply::ProtocolInvalidOperationError);
    row("401", Reply::AuthenticationRequiredError);
    row("402", Reply::UnknownContentError);
    row("403", Reply::ContentAccessDenied);
    row("404", Reply::ContentNotFoundError);
    row("405", Reply::ContentOperationNotPermittedError);
    row("406", Reply::UnknownContentError);
    row("407", Reply::ProxyAuthenticationRequiredError);
    row("408", Reply::UnknownContentError);
    row("409", Reply::ContentConflictError);
    row("410", Reply::ContentGoneError);
    row("413", Reply::UnknownContentError);
    row("416", Reply::UnknownContentError);
    row("418", Reply::ProtocolInvalidOperationError);
    row("429", Reply::UnknownContentError);
    row("451", Reply::UnknownContentError);
    row("499", Reply::UnknownContentError);
    row("500", Reply::InternalServerError);
    row("501", Reply::OperationNotImplementedError);
    row("502", Reply::UnknownServerError);
    row("503", Reply::ServiceUnavailableError);
    row("504", Reply::UnknownServerError);
    row("505", Reply::UnknownServerError);
    row("599", Reply::UnknownServerError);
    row("600", Reply::UnknownServerError);
    row("999", Reply::UnknownServerError);
    AddRow("204 without a body", Steps().Send("HTTP/1.1 204 No\r\n\r\n"), Ends, { 0, 204, "" });
    AddRow("204 with a body", Steps().Send(Answer("204 No", "4", "body")), Ends, { 0, 204, "" });
    AddRow("304 with a body", Steps().Send(Answer("304 No", "4", "body")), Ends, { 0, 304, "" });
    AddRow("100, then 200",
           Steps().Send("HTTP/1.1 100 Continue\r\n\r\n" + Answer("200 OK", "4", "body")), Ends,
           { 0, 200, "body" });
    AddRow("103, then 200",
           Steps().Send("HTTP/1.1 103 Early\r\nLink: a\r\n\r\n" + Answer("200 OK", "4", "body")),
           Ends, { 0, 103, "" });
    AddRow("100 for ever", Steps().Endless("HTTP/1.1 100 Continue\r\n\r\n"), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("101 that nobody asked for",
           Steps().Send("HTTP/1.1 101 Switching\r\nUpgrade: x\r\n\r\nbytes").Close(), Ends,
           { 0, 101, "" });
    AddRow("302 to itself", Steps().Send(Answer("302 Found", "0", "", "Location: /\r\n")), Ends,
           { 0, 302, "" });
    AddRow("302 to a file",
           Steps().Send(Answer("302 Found", "0", "", "Location: file:///etc/passwd\r\n")), Ends,
           { 0, 302, "" });
    AddRow("302 to nonsense", Steps().Send(Answer("302 Found", "0", "", "Location: http://[\r\n")),
           Ends, { 0, 302, "" });
    AddRow("401 with an unknown scheme",
           Steps().Send(Answer("401 No", "4", "body", "WWW-Authenticate: Unknown x=y\r\n")), Ends,
           { Reply::AuthenticationRequiredError, 401, "body" });
    AddRow("401 with an empty scheme",
           Steps().Send(Answer("401 No", "4", "body", "WWW-Authenticate:\r\n")), Ends,
           { Reply::AuthenticationRequiredError, 401, "body" });
    AddRow("401 with a broken Digest",
           Steps().Send(Answer("401 No", "4", "body", "WWW-Authenticate: Digest realm=\"\r\n")),
           Ends, { Reply::AuthenticationRequiredError, 401, "body" });
    AddRow("404 cut short", Steps().Send(Answer("404 No", "9", "body")).Close(), Ends,
           CutShort("body", 404, Reply::ContentNotFoundError));
}

void tst_NetworkFaults::statusCode()
{
    RunRow();
}

void tst_NetworkFaults::contentLength_data()
{
    AddColumns();
    const auto row = [](const char *name, const QByteArray &length, const Outcome &outcome) {
        AddRow(name, Steps().Send(Answer("200 OK", length, "body")).Close(), Ends, outcome);
    };
    row("none, closes behind the body", "", { 0, 200, "body" });
    row("right", "4", { 0, 200, "body" });
    row("0 with a body", "0", { 0, 200, "" });
    row("too small", "2", { 0, 200, "bo" });
    row("too big, closes", "9", CutShort("body"));
    row("negative", "-4", { 0, 200, "body" });
    row("letters", "four", { 0, 200, "body" });
    row("letters behind a number", "4x", { 0, 200, "body" });
    row("a plus sign", "+4", { 0, 200, "body" });
    row("hexadecimal", "0x4", { 0, 200, "body" });
    row("leading zeros", "0004", { 0, 200, "body" });
    row("beyond 32 bits", "4294967300", CutShort("body"));
    row("beyond 64 bits", "99999999999999999999", { 0, 200, "body" });
    row("blanks around", "  4  ", { 0, 200, "body" });
    row("two in one", "4, 4", { 0, 200, "body" });
    AddRow("too big, resets", Steps().Send(Answer("200 OK", "9", "body")).Reset(), Ends,
           CutShort("body"));
    AddRow("too big, hangs", Steps().Send(Answer("200 OK", "9", "body")).Hang(), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("none, resets behind the body", Steps().Send(Answer("200 OK", "", "body")).Reset(), Ends,
           { 0, 200, "body" });
    AddRow("none, hangs behind the body", Steps().Send(Answer("200 OK", "", "body")).Hang(), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("twice the same",
           Steps().Send(Answer("200 OK", "4", "body", "Content-Length: 4\r\n")).Close(), Ends,
           { 0, 200, "body" });
    AddRow("twice, smaller first",
           Steps().Send(Answer("200 OK", "4", "body", "Content-Length: 2\r\n")).Close(), Ends,
           { 0, 200, "bo" });
    AddRow("twice, bigger first",
           Steps().Send(Answer("200 OK", "2", "body", "Content-Length: 4\r\n")).Close(), Ends,
           { 0, 200, "body" });
    AddRow("an endless body", Steps().Send(Answer("200 OK", "", "")).Endless(QByteArray(1000, 'x')),
           Hangs, { Reply::OperationCanceledError, 200, "" });
}

void tst_NetworkFaults::contentLength()
{
    RunRow();
}

void tst_NetworkFaults::chunks_data()
{
    AddColumns();
    const auto row = [](const char *name, const QByteArray &chunks, const Outcome &outcome,
                        int timeout = Ends) {
        AddRow(name, Steps().Send(Chunked(chunks)).Close(), timeout, outcome);
    };
    row("good", "4\r\nbody\r\n0\r\n\r\n", { 0, 200, "body" });
    row("several", "1\r\nb\r\n3\r\nody\r\n0\r\n\r\n", { 0, 200, "body" });
    row("upper-case size", "A\r\n0123456789\r\n0\r\n\r\n", { 0, 200, "0123456789" });
    row("leading zeros", "0004\r\nbody\r\n0\r\n\r\n", { 0, 200, "body" });
    row("extension", "4;a=b\r\nbody\r\n0\r\n\r\n", { 0, 200, "body" });
    row("trailer", "4\r\nbody\r\n0\r\nA: b\r\n\r\n", { 0, 200, "body" });
    AddRow("line feeds alone, hangs", Steps().Send(Chunked("4\nbody\n0\n\n")).Hang(), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    row("no end, closes", "4\r\nbody\r\n", CutShort("body"));
    row("cut short, closes", "9\r\nbody", CutShort("body"));
    row("empty", "", CutShort(""));
    row("size isn't a number, closes", "xyz\r\nbody\r\n0\r\n\r\n", { 0, 200, "" });
    row("negative size, closes", "-4\r\nbody\r\n0\r\n\r\n", { 0, 200, "" });
    row("size beyond 64 bits, closes", "FFFFFFFFFFFFFFFFF\r\nbody\r\n0\r\n\r\n", { 0, 200, "" });
    row("size of 63 bits, closes", "7FFFFFFFFFFFFFFF\r\nbody\r\n0\r\n\r\n",
        CutShort("body\r\n0\r\n\r\n"));
    row("bytes for the line end behind a chunk", "4\r\nbodyXX0\r\n\r\n", { 0, 200, "body" });
    AddRow("size isn't a number, hangs", Steps().Send(Chunked("xyz\r\nbody\r\n0\r\n\r\n")).Hang(),
           Ends, { 0, 200, "" });
    AddRow("second size isn't a number, hangs",
           Steps().Send(Chunked("4\r\nbody\r\nxyz\r\nbody\r\n0\r\n\r\n")).Hang(), Ends,
           { 0, 200, "body" });
    AddRow("second size isn't a number, closes",
           Steps().Send(Chunked("4\r\nbody\r\nxyz\r\nbody\r\n0\r\n\r\n")).Close(), Ends,
           { 0, 200, "body" });
    AddRow("cut short, resets", Steps().Send(Chunked("9\r\nbody")).Reset(), Ends, CutShort("body"));
    AddRow("cut short, hangs", Steps().Send(Chunked("9\r\nbody")).Hang(), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("endless chunks", Steps().Send(Chunked("")).Endless("4\r\nbody\r\n"), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("endless chunk", Steps().Send(Chunked("7FFFFFFFFFFF\r\n")).Endless("body"), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("endless size", Steps().Send(Chunked("")).Endless("0"), Hangs,
           { Reply::OperationCanceledError, 200, "" });
    AddRow("one byte at a time", Steps().Drip(Chunked("4\r\nbody\r\n0\r\n\r\n"), 0.001), Ends,
           { 0, 200, "body" });
    AddRow("Content-Length as well",
           Steps().Send(
               Answer("200 OK", "2", "4\r\nbody\r\n0\r\n\r\n", "Transfer-Encoding: chunked\r\n")),
           Ends, { 0, 200, "body" });
}

void tst_NetworkFaults::chunks()
{
    RunRow();
}

void tst_NetworkFaults::headers_data()
{
    AddColumns();
    const auto row = [](const char *name, const QByteArray &headers,
                        const Outcome &outcome = { 0, 200, "body" }) {
        AddRow(name, Steps().Send(Answer("200 OK", "4", "body", headers)).Close(), Ends, outcome);
    };
    row("none", "");
    row("without a colon", "Nonsense\r\n");
    row("without a name", ": value\r\n");
    row("without a value", "Name:\r\n");
    row("blank before the colon", "Name : value\r\n");
    row("folded over two lines", "Name: one\r\n two\r\n");
    row("zero bytes", QByteArray("Na\0me: va\0lue\r\n", 15));
    row("beyond ASCII", "N\xE4me: v\xE4lue\r\n");
    row("a carriage return inside", "Name: a\rb\r\n");
    row("1000 of them", QByteArray("Name: value\r\n").repeated(1000));
    AddRow("64 KB of one",
           Steps()
               .Send("HTTP/1.1 200 OK\r\nBig: ")
               .Fill(65536)
               .Send("\r\nContent-Length: 4\r\n\r\nbody"),
           Ends, { 0, 200, "body" });
    AddRow("endless", Steps().Send("HTTP/1.1 200 OK\r\n").Endless("Name: value\r\n"), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("an endless one", Steps().Send("HTTP/1.1 200 OK\r\nName: ").Endless("value"), Hangs,
           { Reply::OperationCanceledError, 0, "" });
}

void tst_NetworkFaults::headers()
{
    RunRow();
}

void tst_NetworkFaults::encoding_data()
{
    AddColumns();
    const auto row = [](const char *name, const QByteArray &encoding, const QByteArray &body,
                        const Outcome &outcome, int timeout = Ends) {
        AddRow(name,
               Steps().Send(Answer("200 OK", QByteArray::number(body.size()), body,
                                   "Content-Encoding: " + encoding + "\r\n")),
               timeout, outcome);
    };
    const QByteArray gzip = QByteArray::fromHex("1f8b08000000000002ff4bca4fa90400b20ba8db04000000");
    row("gzip", "gzip", gzip, { 0, 200, "body" });
    row("gzip cut short", "gzip", gzip.left(12), { 0, 200, "b" });
    row("gzip without its trailer", "gzip", gzip.chopped(8), { 0, 200, "body" });
    row("gzip with a wrong checksum", "gzip", gzip.chopped(8) + "\1\2\3\4\5\6\7\x8",
        { Reply::ProtocolFailure, 200, "" });
    row("gzip that is plain", "gzip", "body", { 0, 200, "\x07\x81\x04" });
    row("gzip of nothing", "gzip", "", { 0, 200, "" });
    row("deflate that is plain", "deflate", "body", { 0, 200, "\x07\x81\x04" });
    row("unknown", "unknown", "body", { 0, 200, "body" });
    row("identity", "identity", "body", { 0, 200, "body" });
}

void tst_NetworkFaults::encoding()
{
    RunRow();
}

void tst_NetworkFaults::upload_data()
{
    AddColumns();
    const QByteArray good = Answer("200 OK", "4", "body");
    AddRow("reads all", Steps().Read(4 * 1024 * 1024).Send(good), Ends, { 0, 200, "body" });
    AddRow("reads all and closes", Steps().Read(4 * 1024 * 1024).Close(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("reads all and resets", Steps().Read(4 * 1024 * 1024).Reset(), Ends,
           { Reply::RemoteHostClosedError, 0, "" });
    AddRow("answers and never reads", Steps().Send(good).Hang(), Ends, { 0, 200, "body" });
    AddRow("answers at once and closes", Steps().Send(good).Close(), Ends, { 0, 200, "body" });
    AddRow("refuses at once with 413 and closes",
           Steps().Send(Answer("413 No", "4", "body")).Close(), Ends,
           { Reply::UnknownContentError, 413, "body" });
    AddRow("drains and never answers", Steps().Hang(), Hangs,
           { Reply::OperationCanceledError, 0, "" });
    AddRow("100 on the way",
           Steps().Send("HTTP/1.1 100 Continue\r\n\r\n").Read(4 * 1024 * 1024).Send(good), Ends,
           { 0, 200, "body" });
}

void tst_NetworkFaults::upload()
{
    RunRow(true);
}

int main(int argc, char **argv)
{
    return RunTest<tst_NetworkFaults>(argc, argv);
}

#include "tst_NetworkFaults.moc"
