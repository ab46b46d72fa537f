#include "NA/FxNANetworkRequest.h"

#include "NA/Impl/FxNANetworkRequestImpl.h"
#include "support/TestMain.h"
#include "UI/FxUIObject.h"

#include <QtNetwork/QNetworkCookie>
#include <QtNetwork/QNetworkRequest>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(!std::is_base_of_v<CFxUIObject, CFxNANetworkRequest>);
static_assert(!std::is_polymorphic_v<CFxNANetworkRequest>);
static_assert(!std::is_polymorphic_v<CFxNANetworkRequestImpl>);
static_assert(sizeof(CFxNANetworkRequest) == 2 * sizeof(void *));
static_assert(std::is_copy_constructible_v<CFxNANetworkRequest>);
static_assert(std::is_copy_assignable_v<CFxNANetworkRequest>);
static_assert(!std::is_default_constructible_v<CFxNANetworkRequest>);
static_assert(!std::is_convertible_v<QUrl, CFxNANetworkRequest>);
static_assert(!std::is_copy_constructible_v<CFxNANetworkRequestImpl>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxNANetworkRequest &>().rawHeader({})), QVariant>);
static_assert(std::is_same_v<decltype(std::declval<CFxNANetworkRequest &>() =
                                          std::declval<const CFxNANetworkRequest &>()),
                             CFxNANetworkRequest &>);

using KnownHeaders = CFxNANetworkRequest::KnownHeaders;

namespace {

QUrl Url()
{
    return QUrl(QStringLiteral("http://example.org/a?b=c#d"));
}

// Reads what the public class doesn't show.
class Record : public CFxNANetworkRequestImpl {
public:
    static constexpr auto owner = &Record::m_owner;
    static constexpr auto knownHeaders = &Record::m_knownHeaders;
    static constexpr auto rawHeaders = &Record::m_rawHeaders;
};

class ProbeRequest : public CFxNANetworkRequest {
public:
    using CFxNANetworkRequest::CFxNANetworkRequest;

    template <class Field> auto Read(Field field) const { return m_impl->*field; }

    void DropImplementation()
    {
        delete m_impl;
        m_impl = nullptr;
    }
};

} // namespace

class tst_FxNANetworkRequest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void newRequestHasItsUrlAndNothingElse();
    void constructionMakesAQtRequestWithTheUrl();
    void implementationKnowsItsOwner();
    void headerByNumberStaysOutOfTheRawHeaders();
    void rawHeaderLeavesTheHeadersByNumberAlone();
    void rawHeaderNamesAreMatchedByteForByte();
    void lastValueOfARawHeaderWins();
    void lastValueOfAHeaderWins();
    void rawHeaderListAscendsByBytes();
    void rawHeaderListComparesZeroBytesAndPrefixes();
    void emptyRawHeaderNameIsAKeyOfTheRecord();
    void emptyRawHeaderValueIsAHit();
    void invalidHeaderValueKeepsTheKey();
    void headersAreHandedToQtAsTheyAreSet_data();
    void headersAreHandedToQtAsTheyAreSet();
    void headerNumberBeyondTheTableIsRecorded();
    void rawHeadersAreHandedToQt();
    void setUrlWritesTheRecordAndQt();
    void timeoutIsStoredAsGiven_data();
    void timeoutIsStoredAsGiven();
    void timeoutStaysOutOfTheQtRequest();
    void readersAnswerFromTheRecordAlone();
    void setHandleStoresThePointerAlone();
    void withoutHandleTheRecordGoesOn();
    void destructionDeletesTheHandleOfThatMoment();
    void destructionWithoutImplementationDoesNothing();
    void copyHasTheUrlAndNothingElse();
    void copyIsIndependentOfItsSource();
    void knownHeaderNames_data();
    void knownHeaderNames();
    void knownHeaderNamesBeyondTheTableAreNull_data();
    void knownHeaderNamesBeyondTheTableAreNull();
};

void tst_FxNANetworkRequest::newRequestHasItsUrlAndNothingElse()
{
    const CFxNANetworkRequest request(Url());
    QCOMPARE(request.url(), Url());
    QCOMPARE(request.requestTimeout(), 0);
    QVERIFY(request.rawHeaderList().isEmpty());
    QVERIFY(!request.header(CFxNANetworkRequest::ContentTypeHeader).isValid());
    QVERIFY(!request.rawHeader("Content-Type").isValid());
}

void tst_FxNANetworkRequest::constructionMakesAQtRequestWithTheUrl()
{
    const CFxNANetworkRequest request(Url());
    QVERIFY(request.getHandle());
    QCOMPARE(*request.getHandle(), QNetworkRequest(Url()));
    const CFxNANetworkRequest empty((QUrl()));
    QVERIFY(empty.url().isEmpty());
    QCOMPARE(*empty.getHandle(), QNetworkRequest());
}

void tst_FxNANetworkRequest::implementationKnowsItsOwner()
{
    const ProbeRequest request(Url());
    QCOMPARE(request.Read(Record::owner), &request);
    const ProbeRequest copy(request);
    QCOMPARE(copy.Read(Record::owner), &copy);
}

void tst_FxNANetworkRequest::headerByNumberStaysOutOfTheRawHeaders()
{
    CFxNANetworkRequest request(Url());
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("text/plain"));
    QCOMPARE(request.header(CFxNANetworkRequest::ContentTypeHeader),
             QVariant(QStringLiteral("text/plain")));
    QVERIFY(!request.rawHeader("Content-Type").isValid());
    QVERIFY(request.rawHeaderList().isEmpty());
}

void tst_FxNANetworkRequest::rawHeaderLeavesTheHeadersByNumberAlone()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("Content-Type", "text/plain");
    QVERIFY(!request.header(CFxNANetworkRequest::ContentTypeHeader).isValid());
    request.setHeader(CFxNANetworkRequest::ContentTypeHeader, QStringLiteral("a/b"));
    request.setRawHeader("Content-Type", "c/d");
    QCOMPARE(request.header(CFxNANetworkRequest::ContentTypeHeader),
             QVariant(QStringLiteral("a/b")));
    QCOMPARE(request.rawHeader("Content-Type"), QVariant(QByteArray("c/d")));
}

void tst_FxNANetworkRequest::rawHeaderNamesAreMatchedByteForByte()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("Content-Type", "text/plain");
    QCOMPARE(request.rawHeader("Content-Type").type(), QVariant::ByteArray);
    QCOMPARE(request.rawHeader("Content-Type").toByteArray(), QByteArray("text/plain"));
    QVERIFY(!request.rawHeader("content-type").isValid());
    QVERIFY(!request.rawHeader("Content-Type ").isValid());
    QVERIFY(!request.rawHeader("").isValid());
}

void tst_FxNANetworkRequest::lastValueOfARawHeaderWins()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("X-A", "1");
    request.setRawHeader("X-A", "2");
    QCOMPARE(request.rawHeaderList(), QList<QByteArray> { "X-A" });
    QCOMPARE(request.rawHeader("X-A").toByteArray(), QByteArray("2"));
    QCOMPARE(request.getHandle()->rawHeader("X-A"), QByteArray("2"));
}

void tst_FxNANetworkRequest::lastValueOfAHeaderWins()
{
    ProbeRequest request(Url());
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("one"));
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("two"));
    QCOMPARE(request.Read(Record::knownHeaders).size(), 1);
    QCOMPARE(request.header(CFxNANetworkRequest::UserAgentHeader).toString(),
             QStringLiteral("two"));
    QCOMPARE(request.getHandle()->rawHeader("User-Agent"), QByteArray("two"));
}

void tst_FxNANetworkRequest::rawHeaderListAscendsByBytes()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("b", "x");
    request.setRawHeader("a", "y");
    QCOMPARE(request.rawHeaderList(), (QList<QByteArray> { "a", "b" }));
    request.setRawHeader("B", "z");
    request.setRawHeader("\xE4", "beyond ASCII, unsigned");
    QCOMPARE(request.rawHeaderList(), (QList<QByteArray> { "B", "a", "b", "\xE4" }));
}

void tst_FxNANetworkRequest::rawHeaderListComparesZeroBytesAndPrefixes()
{
    CFxNANetworkRequest request(Url());
    const QByteArray withZero("a\0b", 3);
    const QList<QByteArray> ascending = { "a", withZero, "aa" };
    request.setRawHeader(ascending.at(2), "3");
    request.setRawHeader(ascending.at(1), "2");
    request.setRawHeader(ascending.at(0), "1");
    QCOMPARE(request.rawHeaderList(), ascending);
    QCOMPARE(request.rawHeader(withZero).toByteArray(), QByteArray("2"));
}

void tst_FxNANetworkRequest::emptyRawHeaderNameIsAKeyOfTheRecord()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("", "value");
    QCOMPARE(request.rawHeaderList(), QList<QByteArray> { "" });
    QCOMPARE(request.rawHeader("").toByteArray(), QByteArray("value"));
}

void tst_FxNANetworkRequest::emptyRawHeaderValueIsAHit()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("X-Empty", "");
    QVERIFY(request.rawHeader("X-Empty").isValid());
    QCOMPARE(request.rawHeader("X-Empty").toByteArray(), QByteArray(""));
    request.setRawHeader("X-Null", QByteArray());
    QVERIFY(request.rawHeader("X-Null").isValid());
    QCOMPARE(request.rawHeader("X-Null").type(), QVariant::ByteArray);
    QCOMPARE(request.rawHeaderList().size(), 2);
}

void tst_FxNANetworkRequest::invalidHeaderValueKeepsTheKey()
{
    ProbeRequest request(Url());
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("agent"));
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QVariant());
    QVERIFY(!request.header(CFxNANetworkRequest::UserAgentHeader).isValid());
    QCOMPARE(request.Read(Record::knownHeaders).keys(),
             QList<int> { CFxNANetworkRequest::UserAgentHeader });
    QVERIFY(!request.getHandle()->hasRawHeader("User-Agent"));
}

void tst_FxNANetworkRequest::headersAreHandedToQtAsTheyAreSet_data()
{
    const QDateTime date(QDate(2020, 2, 29), QTime(12, 34, 56), Qt::UTC);
    const QNetworkCookie cookie("name", "value");
    QTest::addColumn<int>("number");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("0") << 0 << QVariant(QLatin1String("a/b")) << QByteArray("Content-Type")
                       << QByteArray("a/b");
    QTest::newRow("1") << 1 << QVariant(12) << QByteArray("Content-Length") << QByteArray("12");
    QTest::newRow("2") << 2 << QVariant(QUrl(QStringLiteral("http://a/"))) << QByteArray("Location")
                       << QByteArray("http://a/");
    QTest::newRow("3") << 3 << QVariant(date) << QByteArray("Last-Modified")
                       << QByteArray("Sat, 29 Feb 2020 12:34:56 GMT");
    QTest::newRow("4") << 4 << QVariant::fromValue(QList<QNetworkCookie> { cookie })
                       << QByteArray("Cookie") << QByteArray("name=value");
    QTest::newRow("5") << 5 << QVariant::fromValue(QList<QNetworkCookie> { cookie })
                       << QByteArray("Set-Cookie") << QByteArray("name=value");
    QTest::newRow("6") << 6 << QVariant(QLatin1String("inline"))
                       << QByteArray("Content-Disposition") << QByteArray("inline");
    QTest::newRow("7") << 7 << QVariant(QLatin1String("agent")) << QByteArray("User-Agent")
                       << QByteArray("agent");
    QTest::newRow("8") << 8 << QVariant(QLatin1String("server")) << QByteArray("Server")
                       << QByteArray("server");
    QTest::newRow("9") << 9 << QVariant(date) << QByteArray("If-Modified-Since")
                       << QByteArray("Sat, 29 Feb 2020 12:34:56 GMT");
    QTest::newRow("10") << 10 << QVariant(QLatin1String("\"tag\"")) << QByteArray("ETag")
                        << QByteArray("\"tag\"");
    QTest::newRow("11") << 11 << QVariant(QLatin1String("\"a\"")) << QByteArray("If-Match")
                        << QByteArray("\"a\"");
    QTest::newRow("12") << 12 << QVariant(QLatin1String("\"a\"")) << QByteArray("If-None-Match")
                        << QByteArray("\"a\"");
}

void tst_FxNANetworkRequest::headersAreHandedToQtAsTheyAreSet()
{
    QFETCH(int, number);
    QFETCH(QVariant, value);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, bytes);
    CFxNANetworkRequest request(Url());
    request.setHeader(static_cast<KnownHeaders>(number), value);
    QVERIFY(request.header(static_cast<KnownHeaders>(number)).isValid());
    QCOMPARE(request.getHandle()->rawHeader(name), bytes);
    QCOMPARE(request.getHandle()->rawHeaderList(), QList<QByteArray> { name });
}

void tst_FxNANetworkRequest::headerNumberBeyondTheTableIsRecorded()
{
    CFxNANetworkRequest request(Url());
    const auto beyond = static_cast<KnownHeaders>(13);
    QTest::ignoreMessage(
        QtWarningMsg, "QNetworkRequest::setHeader: invalid header value KnownHeader(13) received");
    request.setHeader(beyond, QStringLiteral("value"));
    QCOMPARE(request.header(beyond).toString(), QStringLiteral("value"));
    QVERIFY(request.getHandle()->rawHeaderList().isEmpty());
}

void tst_FxNANetworkRequest::rawHeadersAreHandedToQt()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("X-One", "1");
    request.setRawHeader("Content-Type", "a/b");
    QCOMPARE(request.getHandle()->rawHeader("X-One"), QByteArray("1"));
    QCOMPARE(request.getHandle()->header(QNetworkRequest::ContentTypeHeader).toString(),
             QStringLiteral("a/b"));
}

void tst_FxNANetworkRequest::setUrlWritesTheRecordAndQt()
{
    CFxNANetworkRequest request(Url());
    request.setRequestTimeout(5);
    request.setRawHeader("X-One", "1");
    const QUrl other(QStringLiteral("https://example.com/"));
    request.setUrl(other);
    QCOMPARE(request.url(), other);
    QCOMPARE(request.getHandle()->url(), other);
    QCOMPARE(request.requestTimeout(), 5);
    QCOMPARE(request.rawHeaderList().size(), 1);
    request.setUrl(QUrl());
    QVERIFY(request.url().isEmpty());
    QVERIFY(request.getHandle()->url().isEmpty());
}

void tst_FxNANetworkRequest::timeoutIsStoredAsGiven_data()
{
    QTest::addColumn<int>("msec");
    const int numbers[] = {
        1, 0, -1, -5, 30000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()
    };
    for (const int number : numbers)
        QTest::addRow("%d", number) << number;
}

void tst_FxNANetworkRequest::timeoutIsStoredAsGiven()
{
    QFETCH(int, msec);
    CFxNANetworkRequest request(Url());
    request.setRequestTimeout(msec);
    QCOMPARE(request.requestTimeout(), msec);
}

void tst_FxNANetworkRequest::timeoutStaysOutOfTheQtRequest()
{
    CFxNANetworkRequest request(Url());
    request.setRequestTimeout(1234);
    QCOMPARE(request.getHandle()->transferTimeout(), 0);
}

void tst_FxNANetworkRequest::readersAnswerFromTheRecordAlone()
{
    CFxNANetworkRequest request(Url());
    request.getHandle()->setUrl(QUrl(QStringLiteral("http://other/")));
    request.getHandle()->setRawHeader("X-Qt", "1");
    request.getHandle()->setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("qt"));
    QCOMPARE(request.url(), Url());
    QVERIFY(!request.rawHeader("X-Qt").isValid());
    QVERIFY(!request.header(CFxNANetworkRequest::UserAgentHeader).isValid());
    QVERIFY(request.rawHeaderList().isEmpty());
}

void tst_FxNANetworkRequest::setHandleStoresThePointerAlone()
{
    CFxNANetworkRequest request(Url());
    request.setRawHeader("X-One", "1");
    const std::unique_ptr<QNetworkRequest> former(request.getHandle());
    auto *handle = new QNetworkRequest;
    request.setHandle(handle);
    QCOMPARE(request.getHandle(), handle);
    QCOMPARE(*handle, QNetworkRequest());
    QCOMPARE(former->rawHeader("X-One"), QByteArray("1"));
    request.setRawHeader("X-Two", "2");
    QCOMPARE(handle->rawHeaderList(), QList<QByteArray> { "X-Two" });
    QVERIFY(!former->hasRawHeader("X-Two"));
    QCOMPARE(request.rawHeaderList().size(), 2);
}

void tst_FxNANetworkRequest::withoutHandleTheRecordGoesOn()
{
    CFxNANetworkRequest request(Url());
    const std::unique_ptr<QNetworkRequest> handle(request.getHandle());
    request.setHandle(nullptr);
    QVERIFY(!request.getHandle());
    request.setUrl(QUrl(QStringLiteral("http://other/")));
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("agent"));
    request.setRawHeader("X-One", "1");
    request.setRequestTimeout(7);
    QCOMPARE(request.url(), QUrl(QStringLiteral("http://other/")));
    QCOMPARE(request.header(CFxNANetworkRequest::UserAgentHeader).toString(),
             QStringLiteral("agent"));
    QCOMPARE(request.rawHeader("X-One").toByteArray(), QByteArray("1"));
    QCOMPARE(request.requestTimeout(), 7);
    QCOMPARE(*handle, QNetworkRequest(Url()));
    const CFxNANetworkRequest copy(request);
    QVERIFY(copy.getHandle());
}

// A handle that was deleted twice, or not at all, is what the sanitizers report here.
void tst_FxNANetworkRequest::destructionDeletesTheHandleOfThatMoment()
{
    auto request = std::make_unique<CFxNANetworkRequest>(Url());
    std::unique_ptr<QNetworkRequest> former(request->getHandle());
    request->setHandle(new QNetworkRequest);
    request.reset();
    QCOMPARE(former->url(), Url());
}

void tst_FxNANetworkRequest::copyHasTheUrlAndNothingElse()
{
    ProbeRequest request(Url());
    request.setHeader(CFxNANetworkRequest::UserAgentHeader, QStringLiteral("agent"));
    request.setRawHeader("X-One", "1");
    request.setRequestTimeout(5);
    const ProbeRequest copy(request);
    QCOMPARE(copy.url(), Url());
    QCOMPARE(copy.requestTimeout(), 0);
    QVERIFY(copy.Read(Record::knownHeaders).isEmpty());
    QVERIFY(copy.Read(Record::rawHeaders).isEmpty());
    QCOMPARE(*copy.getHandle(), QNetworkRequest(Url()));
    QCOMPARE(request.rawHeaderList().size(), 1);
    QCOMPARE(request.requestTimeout(), 5);
}

void tst_FxNANetworkRequest::copyIsIndependentOfItsSource()
{
    auto request = std::make_unique<CFxNANetworkRequest>(Url());
    CFxNANetworkRequest copy(*request);
    QVERIFY(copy.getHandle() != request->getHandle());
    copy.setUrl(QUrl(QStringLiteral("http://copy/")));
    QCOMPARE(request->url(), Url());
    request.reset();
    QCOMPARE(copy.url(), QUrl(QStringLiteral("http://copy/")));
    QCOMPARE(copy.getHandle()->url(), QUrl(QStringLiteral("http://copy/")));
}

void tst_FxNANetworkRequest::knownHeaderNames_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("name");
    const char *const names[] = { "Content-Type",        "Content-Length", "Location",
                                  "Last-Modified",       "Cookie",         "Set-Cookie",
                                  "Content-Disposition", "User-Agent",     "Server" };
    int number = 0;
    for (const char *name : names)
        QTest::newRow(name) << number++ << QByteArray(name);
}

void tst_FxNANetworkRequest::knownHeaderNames()
{
    QFETCH(int, number);
    QFETCH(QByteArray, name);
    QCOMPARE(CFxNANetworkRequestImpl::GetKnowHeaderName(static_cast<KnownHeaders>(number)), name);
}

void tst_FxNANetworkRequest::knownHeaderNamesBeyondTheTableAreNull_data()
{
    QTest::addColumn<int>("number");
    for (const int number : { 9, 10, 11, 12, 13, 1000, -1 })
        QTest::addRow("%d", number) << number;
}

void tst_FxNANetworkRequest::knownHeaderNamesBeyondTheTableAreNull()
{
    QFETCH(int, number);
    QVERIFY(CFxNANetworkRequestImpl::GetKnowHeaderName(static_cast<KnownHeaders>(number)).isNull());
}

void tst_FxNANetworkRequest::destructionWithoutImplementationDoesNothing()
{
    const QNetworkRequest expected(Url());
    auto handle = std::make_unique<QNetworkRequest>(Url());
    {
        ProbeRequest request(Url());
        request.DropImplementation();
        QVERIFY(!request.getHandle());
        request.setHandle(handle.get());
    }
    QCOMPARE(*handle, expected);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkRequest>(argc, argv);
}

#include "tst_FxNANetworkRequest.moc"
