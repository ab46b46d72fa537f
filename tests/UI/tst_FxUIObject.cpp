#include "UI/FxUIObject.h"

#include "ObjectProbe.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIObjectData.h"
#include "UI/FxUITimer.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <memory>
#include <stdexcept>
#include <type_traits>

static_assert(std::has_virtual_destructor_v<CFxUIObject>);
static_assert(!std::is_copy_constructible_v<CFxUIObject>);
static_assert(!std::is_copy_assignable_v<CFxUIObject>);
static_assert(std::is_same_v<decltype(&CFxUIObject::impl), CFxUIObjectImpl * CFxUIObject::*>);
static_assert(std::is_same_v<decltype(&CFxUIObject::data), CFxUIObjectData * CFxUIObject::*>);
static_assert(std::is_void_v<decltype(std::declval<CFxUIObject &>().blockSignals(true))>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxUIObject &>().parent()), CFxUIObject *>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxUIObject &>().children()), QList<CFxUIObject *>>);

class tst_FxUIObject : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsWithARecordAndNothingElse();
    void handleIsStoredAndNotOwned();
    void handleIsNullOnceQtHasDeletedIt();
    void nameGoesToTheRecordAndTheHandle();
    void nameIsStoredBeforeTheImplementationIsTold();
    void nameIsStoredWithoutImplementationOrHandle();
    void senderIsTheLastOneSet();
    void setParentMovesTheObjectBetweenLists();
    void sameParentMovesTheObjectToTheEnd();
    void setParentLeavesTheQtObjectsAlone();
    void childrenAreACopySoThatTheTreeMayChangeMeanwhile();
    void declaredPropertyIsStoredAndSet();
    void storedPropertyOutlivesAChangeByTheHandle();
    void undeclaredPropertyReachesTheHandleButNotTheRecord();
    void refusedValueIsNotStored();
    void propertyOfTheHandleIsNotAsked();
    void propertyNamesAreComparedAsTexts();
    void implementationDecidesWhetherAPropertyIsStored();
    void propertyWithoutImplementationOrHandleIsRefused();
    void nullPropertyNameThrows();
    void blockingSilencesThisObjectAlone();
    void blockingSilencesNeitherHandleNorChildren();
};

void tst_FxUIObject::startsWithARecordAndNothingElse()
{
    CFxUIObject object;
    QVERIFY(!object.impl);
    QVERIFY(object.data);
    QVERIFY(!object.getHandle());
    QVERIFY(object.objectName().isNull());
    QVERIFY(!object.signalsBlocked());
    QVERIFY(!object.sender());
    QVERIFY(!object.parent());
    QVERIFY(object.children().isEmpty());
    QVERIFY(!object.property("objectName").isValid());
}

void tst_FxUIObject::handleIsStoredAndNotOwned()
{
    QPointer<QObject> handle(new QObject);
    {
        CFxUIObject object;
        object.setHandle(handle);
        QCOMPARE(object.getHandle(), handle.data());
    }
    QVERIFY(handle);
    delete handle;
}

void tst_FxUIObject::handleIsNullOnceQtHasDeletedIt()
{
    CFxUIObject object;
    auto handle = std::make_unique<QObject>();
    object.setHandle(handle.get());
    handle.reset();
    QVERIFY(!object.getHandle());
}

void tst_FxUIObject::nameGoesToTheRecordAndTheHandle()
{
    CFxUITimer timer;
    timer.setObjectName(QStringLiteral("autosave"));
    QCOMPARE(timer.objectName(), QStringLiteral("autosave"));
    QCOMPARE(timer.getHandle()->objectName(), QStringLiteral("autosave"));
    timer.getHandle()->setObjectName(QStringLiteral("other"));
    QCOMPARE(timer.objectName(), QStringLiteral("autosave"));
}

void tst_FxUIObject::nameIsStoredBeforeTheImplementationIsTold()
{
    QStringList log;
    ObjectProbe object(QStringLiteral("object"), &log);
    object.setObjectName(QStringLiteral("first"));
    object.setObjectName(QStringLiteral("second"));
    QCOMPARE(log,
             (QStringList { QStringLiteral("object named first after first"),
                            QStringLiteral("object named second after second") }));
}

void tst_FxUIObject::nameIsStoredWithoutImplementationOrHandle()
{
    CFxUIObject object;
    object.setObjectName(QStringLiteral("bare"));
    QCOMPARE(object.objectName(), QStringLiteral("bare"));
    object.impl = new CFxUIObjectImpl(&object);
    object.setObjectName(QStringLiteral("without handle"));
    QCOMPARE(object.objectName(), QStringLiteral("without handle"));
}

void tst_FxUIObject::senderIsTheLastOneSet()
{
    CFxUIObject object;
    CFxUIObject first;
    CFxUIObject second;
    object.setSender(&first);
    object.setSender(&second);
    QCOMPARE(object.sender(), &second);
    object.setSender(nullptr);
    QVERIFY(!object.sender());
}

void tst_FxUIObject::setParentMovesTheObjectBetweenLists()
{
    CFxUIObject first;
    CFxUIObject second;
    CFxUIObject child;
    child.setParent(&first);
    QCOMPARE(child.parent(), &first);
    QCOMPARE(first.children(), { &child });
    child.setParent(&second);
    QCOMPARE(child.parent(), &second);
    QVERIFY(first.children().isEmpty());
    QCOMPARE(second.children(), { &child });
    child.setParent(nullptr);
    QVERIFY(!child.parent());
    QVERIFY(second.children().isEmpty());
}

void tst_FxUIObject::sameParentMovesTheObjectToTheEnd()
{
    CFxUIObject parent;
    CFxUIObject first;
    CFxUIObject second;
    first.setParent(&parent);
    second.setParent(&parent);
    first.setParent(&parent);
    QCOMPARE(parent.children(), (QList<CFxUIObject *> { &second, &first }));
}

void tst_FxUIObject::setParentLeavesTheQtObjectsAlone()
{
    CFxUILabel parent;
    auto *child = new CFxUILabel;
    child->setParent(&parent);
    QVERIFY(!child->getHandle()->parent());
    QVERIFY(parent.getHandle()->children().isEmpty());
}

void tst_FxUIObject::childrenAreACopySoThatTheTreeMayChangeMeanwhile()
{
    CFxUIObject parent;
    for (int i = 0; i < 3; ++i)
        (new CFxUIObject)->setParent(&parent);
    int seen = 0;
    const QList<CFxUIObject *> children = parent.children();
    for (CFxUIObject *child : children) {
        ++seen;
        delete child;
    }
    QCOMPARE(seen, 3);
    QVERIFY(parent.children().isEmpty());
}

void tst_FxUIObject::declaredPropertyIsStoredAndSet()
{
    CFxUITimer timer;
    QVERIFY(timer.setProperty("interval", 250));
    QCOMPARE(timer.getHandle()->property("interval"), QVariant(250));
    QCOMPARE(timer.property("interval"), QVariant(250));
}

void tst_FxUIObject::storedPropertyOutlivesAChangeByTheHandle()
{
    CFxUITimer timer;
    QVERIFY(timer.setProperty("interval", 250));
    timer.start(40);
    QCOMPARE(timer.getHandle()->property("interval"), QVariant(40));
    QCOMPARE(timer.property("interval"), QVariant(250));
}

void tst_FxUIObject::undeclaredPropertyReachesTheHandleButNotTheRecord()
{
    CFxUITimer timer;
    QVERIFY(!timer.setProperty("purpose", QStringLiteral("autosave")));
    QCOMPARE(timer.getHandle()->property("purpose"), QVariant(QStringLiteral("autosave")));
    QVERIFY(!timer.property("purpose").isValid());
}

void tst_FxUIObject::refusedValueIsNotStored()
{
    CFxUITimer timer;
    QVERIFY(timer.setProperty("interval", 250));
    QVERIFY(!timer.setProperty("interval", QVariant::fromValue(QList<int> { 1 })));
    QCOMPARE(timer.property("interval"), QVariant(250));
}

void tst_FxUIObject::propertyOfTheHandleIsNotAsked()
{
    CFxUITimer timer;
    QVERIFY(timer.getHandle()->property("interval").isValid());
    QVERIFY(!timer.property("interval").isValid());
}

void tst_FxUIObject::propertyNamesAreComparedAsTexts()
{
    CFxUITimer timer;
    const QByteArray name("interval");
    const QByteArray sameText(name.constData());
    QVERIFY(name.constData() != sameText.constData());
    QVERIFY(timer.setProperty(name.constData(), 1));
    QVERIFY(timer.setProperty(sameText.constData(), 2));
    QCOMPARE(timer.property("interval"), QVariant(2));
}

void tst_FxUIObject::implementationDecidesWhetherAPropertyIsStored()
{
    QStringList log;
    ObjectProbe object(QStringLiteral("object"), &log);
    QVERIFY(object.setProperty("anything", 7));
    QCOMPARE(log, { QStringLiteral("object set anything") });
    QCOMPARE(object.property("anything"), QVariant(7));
}

void tst_FxUIObject::propertyWithoutImplementationOrHandleIsRefused()
{
    CFxUIObject object;
    QVERIFY(!object.setProperty("objectName", QStringLiteral("a")));
    object.impl = new CFxUIObjectImpl(&object);
    QVERIFY(!object.setProperty("objectName", QStringLiteral("a")));
    QVERIFY(!object.property("objectName").isValid());
}

void tst_FxUIObject::nullPropertyNameThrows()
{
    CFxUITimer timer;
    QVERIFY_EXCEPTION_THROWN(timer.setProperty(nullptr, 1), std::logic_error);
    QVERIFY_EXCEPTION_THROWN(timer.property(nullptr), std::logic_error);
}

void tst_FxUIObject::blockingSilencesThisObjectAlone()
{
    CFxUITimer blocked;
    CFxUITimer free;
    int blockedCalls = 0;
    int freeCalls = 0;
    blocked.timeout().connect([&blockedCalls] { ++blockedCalls; });
    free.timeout().connect([&freeCalls] { ++freeCalls; });
    blocked.blockSignals(true);
    QVERIFY(blocked.signalsBlocked());
    blocked.timeout().emit();
    free.timeout().emit();
    QCOMPARE(blockedCalls, 0);
    QCOMPARE(freeCalls, 1);
    blocked.blockSignals(false);
    QVERIFY(!blocked.signalsBlocked());
    blocked.timeout().emit();
    QCOMPARE(blockedCalls, 1);
}

void tst_FxUIObject::blockingSilencesNeitherHandleNorChildren()
{
    CFxUITimer parent;
    auto *child = new CFxUITimer;
    child->setParent(&parent);
    int childCalls = 0;
    child->timeout().connect([&childCalls] { ++childCalls; });
    parent.blockSignals(true);
    QVERIFY(!child->signalsBlocked());
    QVERIFY(!parent.getHandle()->signalsBlocked());
    child->timeout().emit();
    QCOMPARE(childCalls, 1);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIObject>(argc, argv);
}

#include "tst_FxUIObject.moc"
