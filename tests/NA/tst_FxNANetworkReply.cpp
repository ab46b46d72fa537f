#include "NA/FxNANetworkReply.h"

#include "NA/Impl/FxNANetworkReplyImpl.h"
#include "NA/support/FakeReply.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

#include <type_traits>
#include <utility>

using NetworkError = CFxNANetworkReply::NetworkError;
using Pairs = QList<QPair<QByteArray, QByteArray>>;

static_assert(std::is_base_of_v<CFxUIObject, CFxNANetworkReply>);
static_assert(!std::is_copy_constructible_v<CFxNANetworkReply>);
static_assert(!std::is_convertible_v<QObject *, CFxNANetworkReply>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxNANetworkReply &>().rawHeader({})), QByteArray>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().rawHeaderPairs()), const Pairs &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().downloadProgress()),
                             CFxUISignal<void(long long, long long)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().uploadProgress()),
                             CFxUISignal<void(long long, long long)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().encrypted()),
                             CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().error()),
                             CFxUISignal<void(NetworkError)> &>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxNANetworkReply &>().error()), NetworkError>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkReply &>().finished()),
                             CFxUISignal<void()> &>);

namespace {

// Reads what the public class doesn't show.
class Fields : public CFxNANetworkReplyImpl {
public:
    static constexpr auto httpStatus = &Fields::m_httpStatus;
};

CFxNANetworkReplyImpl &ImplementationOf(const CFxNANetworkReply &reply)
{
    return *static_cast<CFxNANetworkReplyImpl *>(reply.impl);
}

NetworkError ErrorOf(const CFxNANetworkReply &reply)
{
    return reply.error();
}

} // namespace

class tst_FxNANetworkReply : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newReplyIsRunningAndEmpty_data();
    void newReplyIsRunningAndEmpty();
    void requestIsAPointerToTheOneGiven();
    void setRequestLeavesTheQtReplyAlone();
    void nothingOfTheQtReplyShowsBeforeItsEnd();
    void bodyIsReadFromTheQtReply();
    void seekAndPosGoToTheDevice();
    void headersAreASnapshotOfTheEnd();
    void headerNamesAreMatchedByteForByte();
    void knownHeadersAreBytes_data();
    void knownHeadersAreBytes();
    void knownHeaderOfOtherSpellingIsInvalid();
    void knownHeaderBeyondTheTableIsInvalid_data();
    void knownHeaderBeyondTheTableIsInvalid();
    void lookupBehindARepeatedNameGivesAnotherPairsValue();
    void knownHeadersShareTheLookup();
    void namesOfAnEarlierEndAreKept();
    void rawHeaderPairsIsAReferenceToTheRecord();
    void httpStatusIsKeptAndComesFromTheAttribute();
    void attributesAreAskedOfQtEachTime_data();
    void attributesAreAskedOfQtEachTime();
    void abortGoesToQtAlsoOnAFinishedReply();
};

void tst_FxNANetworkReply::newReplyIsRunningAndEmpty_data()
{
    QTest::addColumn<bool>("overAReply");
    QTest::newRow("over a Qt reply") << true;
    QTest::newRow("over null") << false;
}

void tst_FxNANetworkReply::newReplyIsRunningAndEmpty()
{
    QFETCH(bool, overAReply);
    CFxNANetworkReply reply(overAReply ? new FakeReply : nullptr);
    QVERIFY(!reply.isFinished());
    QVERIFY(reply.isRunning());
    QCOMPARE(ErrorOf(reply), CFxNANetworkReply::NoError);
    QVERIFY(reply.errorString().isNull());
    QCOMPARE(reply.bytesAvailable(), 0LL);
    QCOMPARE(reply.pos(), 0LL);
    QVERIFY(!reply.seek(0));
    QVERIFY(reply.readAll().isNull());
    QVERIFY(reply.rawHeaderList().isEmpty());
    QVERIFY(reply.rawHeaderPairs().isEmpty());
    QVERIFY(!reply.hasRawHeader("Content-Type"));
    QVERIFY(reply.rawHeader("Content-Type").isNull());
    QVERIFY(!reply.header(CFxNANetworkRequest::ContentTypeHeader).isValid());
    QVERIFY(!reply.attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).isValid());
    QVERIFY(!reply.request());
    QVERIFY(!reply.parent());
    QVERIFY(!reply.signalsBlocked());
}

void tst_FxNANetworkReply::requestIsAPointerToTheOneGiven()
{
    CFxNANetworkReply reply(new FakeReply);
    const CFxNANetworkRequest request((QUrl()));
    reply.setRequest(request);
    QCOMPARE(reply.request(), &request);
    {
        const CFxNANetworkRequest gone((QUrl()));
        reply.setRequest(gone);
    }
    QVERIFY(reply.request()); // dangling, and never followed
}

void tst_FxNANetworkReply::setRequestLeavesTheQtReplyAlone()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    const CFxNANetworkRequest request(QUrl(QStringLiteral("http://example.org/")));
    reply.setRequest(request);
    QCOMPARE(qtReply->url(), QUrl(QStringLiteral("http://fake/")));
    QVERIFY(qtReply->request().url().isEmpty());
}

void tst_FxNANetworkReply::nothingOfTheQtReplyShowsBeforeItsEnd()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->body = "body";
    qtReply->setRawHeader("Content-Type", "text/plain");
    qtReply->setFinished(true);
    Q_EMIT qtReply->metaDataChanged();
    Q_EMIT qtReply->readyRead();
    Q_EMIT qtReply->downloadProgress(4, 4);
    QVERIFY(qtReply->isFinished());
    QVERIFY(reply.isRunning());
    QCOMPARE(reply.bytesAvailable(), 0LL);
    QVERIFY(reply.readAll().isEmpty());
    QVERIFY(!reply.hasRawHeader("Content-Type"));
    QVERIFY(reply.rawHeaderPairs().isEmpty());
}

void tst_FxNANetworkReply::bodyIsReadFromTheQtReply()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->body = "body";
    qtReply->Finish();
    QCOMPARE(reply.bytesAvailable(), 4LL);
    QCOMPARE(qtReply->read(1), QByteArray("b"));
    QCOMPARE(reply.bytesAvailable(), 3LL);
    QCOMPARE(reply.readAll(), QByteArray("ody"));
    QCOMPARE(reply.bytesAvailable(), 0LL);
    QVERIFY(reply.readAll().isEmpty());
}

void tst_FxNANetworkReply::seekAndPosGoToTheDevice()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->body = "body";
    qtReply->Finish();
    QVERIFY(reply.seek(2));
    QCOMPARE(reply.pos(), 2LL);
    QCOMPARE(reply.readAll(), QByteArray("dy"));
    QCOMPARE(reply.pos(), 4LL);
    QTest::ignoreMessage(QtWarningMsg, "QIODevice::seek: Invalid pos: -1");
    QVERIFY(!reply.seek(-1));
}

void tst_FxNANetworkReply::headersAreASnapshotOfTheEnd()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->setRawHeader("Zulu", "1");
    qtReply->setRawHeader("Alpha", "2");
    qtReply->Finish();
    qtReply->setRawHeader("Late", "3");
    QCOMPARE(reply.rawHeaderList(), (QList<QByteArray> { "Zulu", "Alpha" }));
    QCOMPARE(reply.rawHeaderPairs(), (Pairs { { "Zulu", "1" }, { "Alpha", "2" } }));
    QVERIFY(!reply.hasRawHeader("Late"));
    QCOMPARE(reply.rawHeader("Alpha"), QByteArray("2"));
}

void tst_FxNANetworkReply::headerNamesAreMatchedByteForByte()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->setRawHeader("x-lower", "1");
    qtReply->setRawHeader("X-Empty", "");
    qtReply->Finish();
    QVERIFY(reply.hasRawHeader("x-lower"));
    QVERIFY(!reply.hasRawHeader("X-Lower"));
    QCOMPARE(reply.rawHeader("x-lower"), QByteArray("1"));
    QVERIFY(reply.rawHeader("X-Lower").isNull());
    QVERIFY(reply.hasRawHeader("X-Empty"));
    QVERIFY(reply.rawHeader("X-Empty").isEmpty());
    QVERIFY(!reply.hasRawHeader(""));
    QVERIFY(reply.rawHeader("").isNull());
}

void tst_FxNANetworkReply::knownHeadersAreBytes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("0") << 0 << QByteArray("Content-Type") << QByteArray("a/b; charset=utf-8");
    QTest::newRow("1") << 1 << QByteArray("Content-Length") << QByteArray("0012");
    QTest::newRow("2") << 2 << QByteArray("Location") << QByteArray("../relative");
    QTest::newRow("3") << 3 << QByteArray("Last-Modified")
                       << QByteArray("Sat, 29 Feb 2020 12:34:56 GMT");
    QTest::newRow("4") << 4 << QByteArray("Cookie") << QByteArray("a=b");
    QTest::newRow("5") << 5 << QByteArray("Set-Cookie") << QByteArray("a=b\nc=d");
    QTest::newRow("6") << 6 << QByteArray("Content-Disposition") << QByteArray("attachment");
    QTest::newRow("7") << 7 << QByteArray("User-Agent") << QByteArray("agent");
    QTest::newRow("8") << 8 << QByteArray("Server") << QByteArray("server/1.0");
}

void tst_FxNANetworkReply::knownHeadersAreBytes()
{
    QFETCH(int, number);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->setRawHeader("X-First", "first");
    qtReply->setRawHeader(name, value);
    qtReply->Finish();
    const QVariant header = reply.header(static_cast<CFxNANetworkRequest::KnownHeaders>(number));
    QCOMPARE(header.type(), QVariant::ByteArray);
    QCOMPARE(header.toByteArray(), value);
}

void tst_FxNANetworkReply::knownHeaderOfOtherSpellingIsInvalid()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->setRawHeader("content-type", "text/plain");
    qtReply->Finish();
    QVERIFY(!reply.header(CFxNANetworkRequest::ContentTypeHeader).isValid());
    QCOMPARE(reply.rawHeader("content-type"), QByteArray("text/plain"));
}

void tst_FxNANetworkReply::knownHeaderBeyondTheTableIsInvalid_data()
{
    QTest::addColumn<int>("number");
    for (const int number : { 9, 10, 11, 12, 13, -1 })
        QTest::addRow("%d", number) << number;
}

void tst_FxNANetworkReply::knownHeaderBeyondTheTableIsInvalid()
{
    QFETCH(int, number);
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->setRawHeader("If-Modified-Since", "Sat, 29 Feb 2020 12:34:56 GMT");
    qtReply->setRawHeader("ETag", "tag");
    qtReply->setRawHeader("If-Match", "tag");
    qtReply->setRawHeader("If-None-Match", "tag");
    qtReply->Finish();
    QVERIFY(!reply.header(static_cast<CFxNANetworkRequest::KnownHeaders>(number)).isValid());
}

void tst_FxNANetworkReply::lookupBehindARepeatedNameGivesAnotherPairsValue()
{
    const CFxNANetworkReply reply(new FakeReply);
    const Pairs pairs { { "A", "1" }, { "B", "2" }, { "A", "3" }, { "C", "4" } };
    ImplementationOf(reply).OnFinished(200, pairs, nullptr);
    QCOMPARE(reply.rawHeaderList(), (QList<QByteArray> { "A", "B", "C" }));
    QCOMPARE(reply.rawHeaderPairs(), pairs);
    QCOMPARE(reply.rawHeader("A"), QByteArray("1"));
    QCOMPARE(reply.rawHeader("B"), QByteArray("2"));
    QCOMPARE(reply.rawHeader("C"), QByteArray("3"));
}

void tst_FxNANetworkReply::knownHeadersShareTheLookup()
{
    const CFxNANetworkReply reply(new FakeReply);
    ImplementationOf(reply).OnFinished(
        200, { { "A", "1" }, { "A", "2" }, { "Content-Type", "a/b" } }, nullptr);
    QCOMPARE(reply.header(CFxNANetworkRequest::ContentTypeHeader).toByteArray(), QByteArray("2"));
}

void tst_FxNANetworkReply::namesOfAnEarlierEndAreKept()
{
    const CFxNANetworkReply reply(new FakeReply);
    ImplementationOf(reply).OnFinished(200, { { "A", "1" }, { "B", "2" } }, nullptr);
    ImplementationOf(reply).OnFinished(200, { { "C", "3" } }, nullptr);
    QCOMPARE(reply.rawHeaderList(), (QList<QByteArray> { "A", "B", "C" }));
    QCOMPARE(reply.rawHeaderPairs(), (Pairs { { "C", "3" } }));
    QCOMPARE(reply.rawHeader("A"), QByteArray("3"));
    QVERIFY(reply.hasRawHeader("C"));
    QVERIFY(reply.rawHeader("C").isNull()); // no pair at that position
}

void tst_FxNANetworkReply::rawHeaderPairsIsAReferenceToTheRecord()
{
    auto *qtReply = new FakeReply;
    const CFxNANetworkReply reply(qtReply);
    const Pairs &pairs = reply.rawHeaderPairs();
    QVERIFY(pairs.isEmpty());
    qtReply->setRawHeader("A", "1");
    qtReply->Finish();
    QCOMPARE(pairs.size(), 1);
    QVERIFY(pairs.isSharedWith(qtReply->rawHeaderPairs()));
}

void tst_FxNANetworkReply::httpStatusIsKeptAndComesFromTheAttribute()
{
    auto *qtReply = new FakeReply;
    const CFxNANetworkReply reply(qtReply);
    QCOMPARE(ImplementationOf(reply).*Fields::httpStatus, 0);
    qtReply->setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 404);
    qtReply->Finish();
    QCOMPARE(ImplementationOf(reply).*Fields::httpStatus, 404);
    QCOMPARE(reply.attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).toInt(), 404);
}

void tst_FxNANetworkReply::attributesAreAskedOfQtEachTime_data()
{
    QTest::addColumn<int>("number");
    for (int number = 0; number <= CFxNANetworkRequest::AutoDeleteReplyOnFinishAttribute; ++number)
        QTest::addRow("%d", number) << number;
    QTest::newRow("User") << 1000;
    QTest::newRow("UserMax") << 32767;
}

void tst_FxNANetworkReply::attributesAreAskedOfQtEachTime()
{
    QFETCH(int, number);
    auto *qtReply = new FakeReply;
    const CFxNANetworkReply reply(qtReply);
    const auto attribute = static_cast<CFxNANetworkRequest::Attribute>(number);
    QCOMPARE(reply.attribute(attribute),
             qtReply->attribute(static_cast<QNetworkRequest::Attribute>(number)));
    qtReply->setAttribute(static_cast<QNetworkRequest::Attribute>(number), number + 1);
    QCOMPARE(reply.attribute(attribute), QVariant(number + 1));
    qtReply->Finish();
    qtReply->setAttribute(static_cast<QNetworkRequest::Attribute>(number), number + 2);
    QCOMPARE(reply.attribute(attribute), QVariant(number + 2));
}

void tst_FxNANetworkReply::abortGoesToQtAlsoOnAFinishedReply()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    reply.abort();
    QCOMPARE(qtReply->aborts, 1);
    QVERIFY(reply.isFinished());
    QCOMPARE(ErrorOf(reply), CFxNANetworkReply::OperationCanceledError);
    reply.abort();
    QCOMPARE(qtReply->aborts, 2);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkReply>(argc, argv);
}

#include "tst_FxNANetworkReply.moc"
