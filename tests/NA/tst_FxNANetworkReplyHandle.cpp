#include "NA/FxNANetworkReply.h"

#include "NA/Impl/FxNANetworkReplyImpl.h"
#include "NA/support/FakeReply.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QBuffer>
#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <memory>

using NetworkError = CFxNANetworkReply::NetworkError;

namespace {

// Reads what the public class doesn't show.
class Fields : public CFxNANetworkReplyImpl {
public:
    static constexpr auto httpStatus = &Fields::m_httpStatus;
    static constexpr auto ownsDevice = &Fields::m_ownsDevice;
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

class tst_FxNANetworkReplyHandle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handleIsTheObjectGiven();
    void frontendClassNameIsEmpty();
    void theDeviceIsNotOwnedOnceTheQtHalfHasRun();
    void anOwnedDeviceIsDeletedWithTheReply();
    void overAnotherObjectItRunsForEver();
    void overNullItRunsForEver();
    void destructionDeletesTheQtReplyWithTheEventLoop();
    void destructionLeavesAnotherObjectAlone();
    void theImplementationsEndClearsTheHandle();
    void whenQtDeletesTheReplyFirstTheSnapshotStays();
    void withoutHandleTheEndIsStillReported();
    void aReplacedHandleIsAsked();
};

void tst_FxNANetworkReplyHandle::handleIsTheObjectGiven()
{
    auto *qtReply = new FakeReply;
    const CFxNANetworkReply reply(qtReply);
    QCOMPARE(reply.getHandle(), qtReply);
}

void tst_FxNANetworkReplyHandle::frontendClassNameIsEmpty()
{
    const CFxNANetworkReply reply(new FakeReply);
    QVERIFY(reply.impl->GetFrontendClassName().isEmpty());
    reply.impl->CreateFrontendControl();
    QVERIFY(qobject_cast<QNetworkReply *>(reply.getHandle()));
}

void tst_FxNANetworkReplyHandle::theDeviceIsNotOwnedOnceTheQtHalfHasRun()
{
    const CFxNANetworkReply reply(new FakeReply);
    QVERIFY(!(ImplementationOf(reply).*Fields::ownsDevice));
    const CFxNANetworkReply overNull(nullptr);
    QVERIFY(!(ImplementationOf(overNull).*Fields::ownsDevice));
}

void tst_FxNANetworkReplyHandle::anOwnedDeviceIsDeletedWithTheReply()
{
    QPointer<QBuffer> device(new QBuffer);
    auto reply = std::make_unique<CFxNANetworkReply>(nullptr);
    ImplementationOf(*reply).OnFinished(200, {}, device);
    ImplementationOf(*reply).*Fields::ownsDevice = true;
    reply.reset();
    QVERIFY(!device);

    QBuffer other;
    reply = std::make_unique<CFxNANetworkReply>(nullptr);
    ImplementationOf(*reply).OnFinished(200, {}, &other);
    reply.reset();
    QVERIFY(other.open(QIODevice::ReadOnly));
}

void tst_FxNANetworkReplyHandle::overAnotherObjectItRunsForEver()
{
    QBuffer buffer;
    buffer.setData("body");
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    CFxNANetworkReply reply(&buffer);
    QCOMPARE(reply.getHandle(), &buffer);
    reply.abort();
    QVERIFY(buffer.isOpen());
    QVERIFY(reply.isRunning());
    QCOMPARE(reply.bytesAvailable(), 0LL);
    QVERIFY(!reply.attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).isValid());
}

void tst_FxNANetworkReplyHandle::overNullItRunsForEver()
{
    CFxNANetworkReply reply(nullptr);
    QVERIFY(!reply.getHandle());
    reply.abort();
    QVERIFY(reply.isRunning());
}

void tst_FxNANetworkReplyHandle::destructionDeletesTheQtReplyWithTheEventLoop()
{
    auto reply = std::make_unique<CFxNANetworkReply>(new FakeReply);
    const QPointer<QObject> qtReply(reply->getHandle());
    reply.reset();
    QVERIFY(qtReply);
    FlushDeferredDeletes();
    QVERIFY(!qtReply);
}

void tst_FxNANetworkReplyHandle::destructionLeavesAnotherObjectAlone()
{
    auto object = std::make_unique<QObject>();
    const QPointer<QObject> guard(object.get());
    {
        const CFxNANetworkReply reply(object.get());
    }
    FlushDeferredDeletes();
    QVERIFY(guard);
}

void tst_FxNANetworkReplyHandle::whenQtDeletesTheReplyFirstTheSnapshotStays()
{
    auto *qtReply = new FakeReply;
    CFxNANetworkReply reply(qtReply);
    qtReply->body = "body";
    qtReply->setRawHeader("Content-Type", "a/b");
    qtReply->Fail(QNetworkReply::ContentNotFoundError, QStringLiteral("not there"));
    delete qtReply;
    QVERIFY(!reply.getHandle());
    QVERIFY(reply.isFinished());
    QCOMPARE(ErrorOf(reply), CFxNANetworkReply::ContentNotFoundError);
    QCOMPARE(reply.errorString(), QStringLiteral("not there"));
    QCOMPARE(reply.rawHeader("Content-Type"), QByteArray("a/b"));
    QCOMPARE(reply.bytesAvailable(), 0LL);
    QCOMPARE(reply.pos(), 0LL);
    QVERIFY(!reply.seek(0));
    QVERIFY(reply.readAll().isNull());
    QVERIFY(!reply.attribute(CFxNANetworkRequest::HttpStatusCodeAttribute).isValid());
    reply.abort();
}

void tst_FxNANetworkReplyHandle::withoutHandleTheEndIsStillReported()
{
    const auto qtReply = std::make_unique<FakeReply>();
    CFxNANetworkReply reply(qtReply.get());
    QList<int> codes;
    int ends = 0;
    reply.error().connect([&](NetworkError code) { codes.append(code); });
    reply.finished().connect([&] { ++ends; });
    reply.setHandle(nullptr);
    qtReply->Fail(QNetworkReply::TimeoutError, QStringLiteral("text"));
    QCOMPARE(codes, QList<int> { CFxNANetworkReply::TimeoutError });
    QCOMPARE(ends, 1);
    QVERIFY(reply.isFinished());
    QVERIFY(reply.errorString().isEmpty());
    QVERIFY(reply.readAll().isEmpty());
}

void tst_FxNANetworkReplyHandle::aReplacedHandleIsAsked()
{
    const auto first = std::make_unique<FakeReply>();
    auto *second = new FakeReply;
    CFxNANetworkReply reply(first.get());
    reply.setHandle(second);
    second->body = "second";
    second->setAttribute(QNetworkRequest::HttpStatusCodeAttribute, 201);
    first->Finish();
    QCOMPARE(reply.readAll(), QByteArray("second"));
    QCOMPARE(ImplementationOf(reply).*Fields::httpStatus, 201);
}

void tst_FxNANetworkReplyHandle::theImplementationsEndClearsTheHandle()
{
    QObject other;
    for (QObject *handle : { static_cast<QObject *>(new FakeReply), &other }) {
        CFxNANetworkReply reply(handle);
        delete reply.impl;
        reply.impl = nullptr;
        QVERIFY(!reply.getHandle());
    }
    FlushDeferredDeletes();
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNANetworkReplyHandle>(argc, argv);
}

#include "tst_FxNANetworkReplyHandle.moc"
