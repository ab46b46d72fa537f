#include "UI/FxUIObjectData.h"

#include "support/TestMain.h"
#include "UI/FxUIObject.h"

#include <QtTest/QTest>

#include <memory>
#include <stdexcept>
#include <type_traits>

static_assert(!std::is_polymorphic_v<CFxUIObjectData>);
static_assert(!std::is_copy_constructible_v<CFxUIObjectData>);
static_assert(!std::is_copy_assignable_v<CFxUIObjectData>);

namespace {

class Probe : public CFxUIObjectData {
public:
    using CFxUIObjectData::m_children;
    using CFxUIObjectData::m_handle;
    using CFxUIObjectData::m_objectName;
    using CFxUIObjectData::m_parent;
    using CFxUIObjectData::m_properties;
    using CFxUIObjectData::m_sender;
    using CFxUIObjectData::m_signalsBlocked;
};

} // namespace

class tst_FxUIObjectData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fieldsStartEmpty();
    void settersWriteTheFields();
    void handleIsNullOnceQtHasDeletedIt();
    void childIsAddedOnce();
    void removeChildTakesOutEveryOccurrence();
    void removingAnAbsentChildIsNoFault();
    void indexOfCountsFromTheFirstAdded();
    void setParentLeavesTheListsAlone();
    void childrenAreACopy();
    void propertiesAreSortedByTheBytesOfTheirNames();
    void equalNamesAreOneProperty();
    void emptyNameIsAName();
    void invalidValueIsStored();
    void nullNameThrows();
};

void tst_FxUIObjectData::fieldsStartEmpty()
{
    const Probe data;
    QVERIFY(data.m_handle.isNull());
    QVERIFY(data.m_objectName.isNull());
    QVERIFY(!data.m_signalsBlocked);
    QVERIFY(!data.m_sender);
    QVERIFY(!data.m_parent);
    QVERIFY(data.m_children.isEmpty());
    QVERIFY(data.m_properties.empty());
}

void tst_FxUIObjectData::settersWriteTheFields()
{
    Probe data;
    QObject handle;
    CFxUIObject sender;
    CFxUIObject parent;
    data.setHandle(&handle);
    data.setObjectName(QStringLiteral("name"));
    data.setSender(&sender);
    data.setParent(&parent);
    data.blockSignals(true);
    QCOMPARE(data.getHandle(), &handle);
    QCOMPARE(data.objectName(), QStringLiteral("name"));
    QCOMPARE(data.sender(), &sender);
    QCOMPARE(data.parent(), &parent);
    QVERIFY(data.signalsBlocked());
    data.blockSignals(false);
    QVERIFY(!data.signalsBlocked());
}

void tst_FxUIObjectData::handleIsNullOnceQtHasDeletedIt()
{
    CFxUIObjectData data;
    auto handle = std::make_unique<QObject>();
    data.setHandle(handle.get());
    handle.reset();
    QVERIFY(!data.getHandle());
}

void tst_FxUIObjectData::childIsAddedOnce()
{
    CFxUIObjectData data;
    CFxUIObject first;
    CFxUIObject second;
    data.addChild(&first);
    data.addChild(&second);
    data.addChild(&first);
    QCOMPARE(data.children(), (QList<CFxUIObject *> { &first, &second }));
}

void tst_FxUIObjectData::removeChildTakesOutEveryOccurrence()
{
    Probe data;
    CFxUIObject first;
    CFxUIObject second;
    data.m_children = { &first, &second, &first };
    data.removeChild(&first);
    QCOMPARE(data.children(), { &second });
}

void tst_FxUIObjectData::removingAnAbsentChildIsNoFault()
{
    CFxUIObjectData data;
    CFxUIObject child;
    CFxUIObject stranger;
    data.addChild(&child);
    data.removeChild(&stranger);
    data.removeChild(nullptr);
    QCOMPARE(data.children(), { &child });
}

void tst_FxUIObjectData::indexOfCountsFromTheFirstAdded()
{
    CFxUIObjectData data;
    CFxUIObject first;
    CFxUIObject second;
    CFxUIObject stranger;
    data.addChild(&first);
    data.addChild(&second);
    QCOMPARE(data.indexOf(&first), 0);
    QCOMPARE(data.indexOf(&second), 1);
    QCOMPARE(data.indexOf(&stranger), -1);
    QCOMPARE(data.indexOf(nullptr), -1);
}

void tst_FxUIObjectData::setParentLeavesTheListsAlone()
{
    CFxUIObjectData data;
    CFxUIObject parent;
    data.setParent(&parent);
    QVERIFY(parent.children().isEmpty());
}

void tst_FxUIObjectData::childrenAreACopy()
{
    CFxUIObjectData data;
    CFxUIObject child;
    data.addChild(&child);
    const QList<CFxUIObject *> before = data.children();
    data.removeChild(&child);
    QCOMPARE(before, { &child });
}

void tst_FxUIObjectData::propertiesAreSortedByTheBytesOfTheirNames()
{
    Probe data;
    for (const char *name : { "b", "a", "B", "\xc3\xa4", "" })
        QVERIFY(data.setProperty(name, 1));
    QList<QByteArray> names;
    for (const auto &entry : data.m_properties)
        names.append(QByteArray::fromStdString(entry.first));
    QCOMPARE(names, (QList<QByteArray> { "", "B", "a", "b", "\xc3\xa4" }));
}

void tst_FxUIObjectData::equalNamesAreOneProperty()
{
    Probe data;
    const std::string name("width");
    const std::string sameText(name);
    QVERIFY(data.setProperty(name.c_str(), 1));
    QVERIFY(data.setProperty(sameText.c_str(), 2));
    QCOMPARE(data.m_properties.size(), std::size_t(1));
    QCOMPARE(data.property("width"), QVariant(2));
    QVERIFY(!data.property("Width").isValid());
}

void tst_FxUIObjectData::emptyNameIsAName()
{
    CFxUIObjectData data;
    QVERIFY(data.setProperty("", 3));
    QCOMPARE(data.property(""), QVariant(3));
}

void tst_FxUIObjectData::invalidValueIsStored()
{
    Probe data;
    QVERIFY(data.setProperty("width", 1));
    QVERIFY(data.setProperty("width", QVariant()));
    QVERIFY(!data.property("width").isValid());
    QCOMPARE(data.m_properties.size(), std::size_t(1));
}

void tst_FxUIObjectData::nullNameThrows()
{
    CFxUIObjectData data;
    QVERIFY_EXCEPTION_THROWN(data.setProperty(nullptr, 1), std::logic_error);
    QVERIFY_EXCEPTION_THROWN(data.property(nullptr), std::logic_error);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIObjectData>(argc, argv);
}

#include "tst_FxUIObjectData.moc"
