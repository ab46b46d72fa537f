#include "UI/FxUIEmitScope.h"

#include "support/TestMain.h"
#include "UI/FxUIObject.h"
#include "UI/FxUITimer.h"
#include "UI/Impl/FxUITimerImpl.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CFxUIEmitScope>);
static_assert(!std::is_copy_assignable_v<CFxUIEmitScope>);
static_assert(!std::is_polymorphic_v<CFxUIEmitScope>);

class tst_FxUIEmitScope : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesTheSenderWhileItLives();
    void endWritesNullAndNotTheEarlierSender();
    void innerScopeLeavesTheOuterOneWithoutSender();
    void scopesOnTwoObjectsDoNotMeet();
    void nullObjectMakesItDoNothing();
    void nullSenderIsSet();
    void slotOfAHostEmissionSeesTheSender();
    void emissionsOfTheLibraryNameNoSender();
};

void tst_FxUIEmitScope::namesTheSenderWhileItLives()
{
    CFxUIObject object;
    CFxUIObject sender;
    {
        const CFxUIEmitScope scope(&object, &sender);
        QCOMPARE(object.sender(), &sender);
    }
    QVERIFY(!object.sender());
}

void tst_FxUIEmitScope::endWritesNullAndNotTheEarlierSender()
{
    CFxUIObject object;
    CFxUIObject sender;
    object.setSender(&object);
    {
        const CFxUIEmitScope scope(&object, &sender);
    }
    QVERIFY(!object.sender());
}

void tst_FxUIEmitScope::innerScopeLeavesTheOuterOneWithoutSender()
{
    CFxUIObject object;
    CFxUIObject outerSender;
    CFxUIObject innerSender;
    const CFxUIEmitScope outer(&object, &outerSender);
    {
        const CFxUIEmitScope inner(&object, &innerSender);
        QCOMPARE(object.sender(), &innerSender);
    }
    QVERIFY(!object.sender());
}

void tst_FxUIEmitScope::scopesOnTwoObjectsDoNotMeet()
{
    CFxUIObject first;
    CFxUIObject second;
    const CFxUIEmitScope outer(&first, &second);
    {
        const CFxUIEmitScope inner(&second, &first);
    }
    QCOMPARE(first.sender(), &second);
}

void tst_FxUIEmitScope::nullObjectMakesItDoNothing()
{
    CFxUIObject sender;
    const CFxUIEmitScope scope(nullptr, &sender);
    QVERIFY(!sender.sender());
}

void tst_FxUIEmitScope::nullSenderIsSet()
{
    CFxUIObject object;
    object.setSender(&object);
    const CFxUIEmitScope scope(&object, nullptr);
    QVERIFY(!object.sender());
}

void tst_FxUIEmitScope::slotOfAHostEmissionSeesTheSender()
{
    CFxUITimer timer;
    CFxUIObject listener;
    CFxUIObject *seen = nullptr;
    timer.timeout().connect([&] { seen = listener.sender(); });
    {
        const CFxUIEmitScope scope(&listener, &timer);
        timer.timeout().emit();
    }
    QCOMPARE(seen, &timer);
}

void tst_FxUIEmitScope::emissionsOfTheLibraryNameNoSender()
{
    CFxUITimer timer;
    CFxUIObject host;
    CFxUIObject *seen = nullptr;
    timer.timeout().connect([&] { seen = timer.sender(); });
    timer.setSender(&host);
    static_cast<CFxUITimerImpl *>(timer.impl)->OnTimeout();
    QCOMPARE(seen, &host);
    QCOMPARE(timer.sender(), &host);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIEmitScope>(argc, argv);
}

#include "tst_FxUIEmitScope.moc"
