#include "ObjectProbe.h"
#include "support/TestMain.h"
#include "UI/FxUIObject.h"
#include "UI/FxUIObjectData.h"

#include <QtCore/QSharedPointer>
#include <QtTest/QTest>

#include <stdexcept>

class tst_FxUIObjectDestruction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deletedChildLeavesItsParent();
    void destructionGoesFromImplementationToChildrenInOrder();
    void recordGoesBehindTheChildren();
    void dyingChildTakesItselfOutOfTheRecordOfItsParent();
    void childDeletedByASiblingDuringDestructionDiesOnce();
    void childMovedByASiblingDuringDestructionIsDeletedInItsTurn_data();
    void childMovedByASiblingDuringDestructionIsDeletedInItsTurn();
    void childMovedAndDeletedDuringDestructionDiesOnce();
    void childAddedDuringDestructionIsNotDeleted();
    void childThatOnlyTheRecordListsDiesWithItsList();
    void nullInTheListOfChildrenIsLeftOut();
    void constructorThatThrowsFreesTheImplementation();
    void cyclesAreNotRefused();
};

void tst_FxUIObjectDestruction::deletedChildLeavesItsParent()
{
    QStringList log;
    {
        CFxUIObject parent;
        auto *first = new ObjectProbe(QStringLiteral("first"), &log, &parent);
        auto *second = new ObjectProbe(QStringLiteral("second"), &log, &parent);
        delete first;
        QCOMPARE(parent.children(), { second });
        log.clear();
    }
    QCOMPARE(log,
             (QStringList { QStringLiteral("second gone"), QStringLiteral("second impl gone") }));
}

void tst_FxUIObjectDestruction::destructionGoesFromImplementationToChildrenInOrder()
{
    QStringList log;
    CFxUIObject root;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log, &root);
    auto *first = new ObjectProbe(QStringLiteral("first"), &log, parent);
    new ObjectProbe(QStringLiteral("second"), &log, parent);
    new ObjectProbe(QStringLiteral("grandchild"), &log, first);
    bool inList = true;
    first->atEnd = [&] { inList = root.children().contains(parent); };
    delete parent;
    const QStringList order {
        QStringLiteral("parent gone"),     QStringLiteral("parent impl gone"),
        QStringLiteral("first gone"),      QStringLiteral("first impl gone"),
        QStringLiteral("grandchild gone"), QStringLiteral("grandchild impl gone"),
        QStringLiteral("second gone"),     QStringLiteral("second impl gone")
    };
    QCOMPARE(log, order);
    QVERIFY(!inList);
}

void tst_FxUIObjectDestruction::recordGoesBehindTheChildren()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    new ObjectProbe(QStringLiteral("child"), &log, parent);
    {
        const QSharedPointer<QObject> value(new QObject);
        connect(value.data(), &QObject::destroyed, this,
                [&log] { log.append(QStringLiteral("property gone")); });
        parent->data->setProperty("value", QVariant::fromValue(value));
    }
    delete parent;
    const QStringList order { QStringLiteral("parent gone"), QStringLiteral("parent impl gone"),
                              QStringLiteral("child gone"), QStringLiteral("child impl gone"),
                              QStringLiteral("property gone") };
    QCOMPARE(log, order);
}

void tst_FxUIObjectDestruction::dyingChildTakesItselfOutOfTheRecordOfItsParent()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    new ObjectProbe(QStringLiteral("first"), &log, parent);
    auto *second = new ObjectProbe(QStringLiteral("second"), &log, parent);
    QList<CFxUIObject *> seenBySecond;
    second->atEnd = [&] { seenBySecond = parent->children(); };
    CFxUIObject *const expected = second;
    delete parent;
    QCOMPARE(seenBySecond, { expected });
}

void tst_FxUIObjectDestruction::childDeletedByASiblingDuringDestructionDiesOnce()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    auto *first = new ObjectProbe(QStringLiteral("first"), &log, parent);
    auto *second = new ObjectProbe(QStringLiteral("second"), &log, parent);
    first->atEnd = [second] { delete second; };
    delete parent;
    QCOMPARE(log.count(QStringLiteral("second gone")), 1);
}

void tst_FxUIObjectDestruction::childMovedByASiblingDuringDestructionIsDeletedInItsTurn_data()
{
    QTest::addColumn<bool>("toAnotherParent");
    QTest::newRow("out of the tree") << false;
    QTest::newRow("to another parent") << true;
}

void tst_FxUIObjectDestruction::childMovedByASiblingDuringDestructionIsDeletedInItsTurn()
{
    QFETCH(bool, toAnotherParent);
    QStringList log;
    CFxUIObject other;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    auto *first = new ObjectProbe(QStringLiteral("first"), &log, parent);
    auto *second = new ObjectProbe(QStringLiteral("second"), &log, parent);
    new ObjectProbe(QStringLiteral("third"), &log, parent);
    first->atEnd = [&] { second->setParent(toAnotherParent ? &other : nullptr); };
    delete parent;
    const QStringList order { QStringLiteral("parent gone"), QStringLiteral("parent impl gone"),
                              QStringLiteral("first gone"),  QStringLiteral("first impl gone"),
                              QStringLiteral("second gone"), QStringLiteral("second impl gone"),
                              QStringLiteral("third gone"),  QStringLiteral("third impl gone") };
    QCOMPARE(log, order);
    QVERIFY(other.children().isEmpty());
}

void tst_FxUIObjectDestruction::childMovedAndDeletedDuringDestructionDiesOnce()
{
    QStringList log;
    CFxUIObject other;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    auto *first = new ObjectProbe(QStringLiteral("first"), &log, parent);
    auto *second = new ObjectProbe(QStringLiteral("second"), &log, parent);
    auto *grandchild = new ObjectProbe(QStringLiteral("grandchild"), &log, first);
    first->atEnd = [&] { second->setParent(&other); };
    grandchild->atEnd = [second] { delete second; };
    delete parent;
    QCOMPARE(log.count(QStringLiteral("second gone")), 1);
    QVERIFY(other.children().isEmpty());
}

void tst_FxUIObjectDestruction::childAddedDuringDestructionIsNotDeleted()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    auto *first = new ObjectProbe(QStringLiteral("first"), &log, parent);
    auto *late = new ObjectProbe(QStringLiteral("late"), &log);
    first->atEnd = [&] { late->setParent(parent); };
    delete parent;
    QVERIFY(!log.contains(QStringLiteral("late gone")));
    QVERIFY(!late->parent());
    delete late;
}

void tst_FxUIObjectDestruction::childThatOnlyTheRecordListsDiesWithItsList()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    auto *child = new ObjectProbe(QStringLiteral("child"), &log);
    parent->data->addChild(child);
    delete parent;
    QCOMPARE(log,
             (QStringList { QStringLiteral("parent gone"), QStringLiteral("parent impl gone"),
                            QStringLiteral("child gone"), QStringLiteral("child impl gone") }));
}

void tst_FxUIObjectDestruction::nullInTheListOfChildrenIsLeftOut()
{
    QStringList log;
    auto *parent = new ObjectProbe(QStringLiteral("parent"), &log);
    parent->data->addChild(nullptr);
    new ObjectProbe(QStringLiteral("first"), &log, parent);
    delete parent;
    QCOMPARE(log.count(QStringLiteral("first gone")), 1);
}

void tst_FxUIObjectDestruction::constructorThatThrowsFreesTheImplementation()
{
    class Throwing : public ObjectProbe {
    public:
        Throwing(QStringList *log, CFxUIObject *parent)
            : ObjectProbe(QStringLiteral("throwing"), log, parent)
        {
            throw std::runtime_error("constructor");
        }
    };

    QStringList log;
    CFxUIObject parent;
    QVERIFY_EXCEPTION_THROWN(Throwing(&log, &parent), std::runtime_error);
    QCOMPARE(log.last(), QStringLiteral("throwing impl gone"));
    QVERIFY(parent.children().isEmpty());
}

void tst_FxUIObjectDestruction::cyclesAreNotRefused()
{
    QStringList log;
    auto *own = new ObjectProbe(QStringLiteral("own"), &log);
    own->setParent(own);
    QCOMPARE(own->parent(), own);
    delete own;
    QCOMPARE(log.count(QStringLiteral("own gone")), 1);

    auto *first = new ObjectProbe(QStringLiteral("first"), &log);
    auto *second = new ObjectProbe(QStringLiteral("second"), &log, first);
    first->setParent(second);
    delete first;
    QCOMPARE(log.count(QStringLiteral("first gone")), 1);
    QCOMPARE(log.count(QStringLiteral("second gone")), 1);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIObjectDestruction>(argc, argv);
}

#include "tst_FxUIObjectDestruction.moc"
