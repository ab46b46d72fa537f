#include "UI/FxUIComboBox.h"

#include "support/TestMain.h"
#include "UI/ComboBoxTools.h"

#include <QtTest/QTest>

#include <limits>
#include <tuple>

using namespace ComboBoxTools;

namespace {

// Opens the list of items to the test.
class ImplProbe : public CFxUIComboBoxImpl {
public:
    static QVector<std::tuple<QIcon, QString, QVariant>> Items(const CFxUIComboBox &box)
    {
        return Impl(box)->*(&ImplProbe::m_items);
    }
};

} // namespace

class tst_FxUIComboBoxItems : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void addItemGivesIconAndTextToTheWidgetAndKeepsTheData();
    void itemsAreKeptAsTuplesOfIconTextAndData();
    void dataIsInvalidUnlessGiven();
    void insertItemGoesBeforeTheIndex();
    void insertItemOutsideTheItemsGoesToTheNearerEnd_data();
    void insertItemOutsideTheItemsGoesToTheNearerEnd();
    void insertItemsKeepsTheOrder_data();
    void insertItemsKeepsTheOrder();
    void insertItemsWorksOnACopyOfTheList();
    void removeItemTakesTheItemOut();
    void indexOutsideTheItems_data();
    void indexOutsideTheItems();
    void clearEmptiesItemsAndWidget();
    void setItemDataCountsWhateverTheRole();
    void setItemDataDoesNotTellTheWidget();
    void findDataComparesAsQVariantDoes();
    void findDataWithAnInvalidValueFindsTheFirstItemWithoutData();
    void findDataIgnoresRoleAndFlags();
    void findTextIsExactAndCaseSensitiveWhateverTheFlags();
    void findTextGivesTheLowerIndexOfTwoEqualTexts();
};

void tst_FxUIComboBoxItems::addItemGivesIconAndTextToTheWidgetAndKeepsTheData()
{
    CFxUIComboBox box;
    box.addItem(A, 1);
    box.addItem(Icon(), B, QStringLiteral("two"));
    QCOMPARE(box.count(), 2);
    QCOMPARE(Texts(box), (QStringList { A, B }));
    QCOMPARE(WidgetTexts(box), Texts(box));
    QVERIFY(Widget(box)->itemIcon(0).isNull());
    QVERIFY(!Widget(box)->itemIcon(1).isNull());
    QCOMPARE(box.itemData(0), QVariant(1));
    QCOMPARE(box.itemData(1), QVariant(QStringLiteral("two")));
    QVERIFY(!Widget(box)->itemData(0).isValid());
    QVERIFY(!Widget(box)->itemData(1).isValid());
}

void tst_FxUIComboBoxItems::itemsAreKeptAsTuplesOfIconTextAndData()
{
    CFxUIComboBox box;
    box.addItem(A, 1);
    box.insertItem(0, Icon(), B, 2);
    const auto items = ImplProbe::Items(box);
    QCOMPARE(items.size(), 2);
    QVERIFY(!std::get<0>(items.at(0)).isNull());
    QCOMPARE(std::get<1>(items.at(0)), B);
    QCOMPARE(std::get<2>(items.at(0)), QVariant(2));
    QVERIFY(std::get<0>(items.at(1)).isNull());
}

void tst_FxUIComboBoxItems::dataIsInvalidUnlessGiven()
{
    CFxUIComboBox box;
    box.addItem(A);
    box.addItem(Icon(), B);
    box.insertItem(2, C);
    box.insertItem(3, Icon(), A);
    for (int i = 0; i < box.count(); ++i)
        QVERIFY(!box.itemData(i).isValid());
}

void tst_FxUIComboBoxItems::insertItemGoesBeforeTheIndex()
{
    CFxUIComboBox box;
    box.insertItem(0, C, 3);
    box.insertItem(0, A, 1);
    box.insertItem(1, Icon(), B, 2);
    QCOMPARE(Texts(box), (QStringList { A, B, C }));
    QCOMPARE(WidgetTexts(box), Texts(box));
    QVERIFY(!Widget(box)->itemIcon(1).isNull());
    QCOMPARE(box.itemData(1), QVariant(2));
    QVERIFY(!Widget(box)->itemData(1).isValid());
}

void tst_FxUIComboBoxItems::insertItemOutsideTheItemsGoesToTheNearerEnd_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("texts");
    const QStringList front { QStringLiteral("new"), A, B, C };
    const QStringList end { A, B, C, QStringLiteral("new") };
    QTest::newRow("-1") << -1 << front;
    QTest::newRow("lowest") << std::numeric_limits<int>::min() << front;
    QTest::newRow("behind the end") << 4 << end;
    QTest::newRow("highest") << std::numeric_limits<int>::max() << end;
}

void tst_FxUIComboBoxItems::insertItemOutsideTheItemsGoesToTheNearerEnd()
{
    QFETCH(int, index);
    QFETCH(QStringList, texts);
    for (const bool withIcon : { false, true }) {
        CFxUIComboBox box;
        AddABC(box);
        if (withIcon)
            box.insertItem(index, Icon(), QStringLiteral("new"));
        else
            box.insertItem(index, QStringLiteral("new"));
        QCOMPARE(Texts(box), texts);
        QCOMPARE(WidgetTexts(box), texts);
    }
}

void tst_FxUIComboBoxItems::insertItemsKeepsTheOrder_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("inserted");
    QTest::addColumn<QStringList>("texts");
    const QStringList two { QStringLiteral("x"), QStringLiteral("y") };
    QTest::newRow("front") << 0 << two << (QStringList(two) << A << B << C);
    QTest::newRow("between") << 1 << two << (QStringList { A } << two << B << C);
    QTest::newRow("end") << 3 << two << (QStringList { A, B, C } << two);
    QTest::newRow("negative") << -7 << two << (QStringList(two) << A << B << C);
    QTest::newRow("behind the end") << 7 << two << (QStringList { A, B, C } << two);
    QTest::newRow("none") << 1 << QStringList() << (QStringList { A, B, C });
}

void tst_FxUIComboBoxItems::insertItemsKeepsTheOrder()
{
    QFETCH(int, index);
    QFETCH(QStringList, inserted);
    QFETCH(QStringList, texts);
    CFxUIComboBox box;
    AddABC(box);
    box.insertItems(index, inserted);
    QCOMPARE(Texts(box), texts);
    QCOMPARE(WidgetTexts(box), texts);
    for (const QString &text : inserted)
        QVERIFY(!box.itemData(box.findText(text)).isValid());
}

void tst_FxUIComboBoxItems::insertItemsWorksOnACopyOfTheList()
{
    CFxUIComboBox box;
    QStringList list { A, B };
    box.currentIndexChanged().connect([&list](int) { list = QStringList { C }; });
    box.insertItems(0, list);
    QCOMPARE(list, QStringList { C });
    QCOMPARE(Texts(box), (QStringList { A, B }));
}

void tst_FxUIComboBoxItems::removeItemTakesTheItemOut()
{
    CFxUIComboBox box;
    AddABC(box);
    box.removeItem(1);
    QCOMPARE(Texts(box), (QStringList { A, C }));
    QCOMPARE(WidgetTexts(box), Texts(box));
    QCOMPARE(box.itemData(1), QVariant(3));
}

void tst_FxUIComboBoxItems::indexOutsideTheItems_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("count") << 3;
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_FxUIComboBoxItems::indexOutsideTheItems()
{
    QFETCH(int, index);
    CFxUIComboBox box;
    AddABC(box);
    QVERIFY(box.itemText(index).isNull());
    QVERIFY(!box.itemData(index).isValid());
    box.setItemData(index, 9);
    box.removeItem(index);
    QCOMPARE(Texts(box), (QStringList { A, B, C }));
    QCOMPARE(WidgetTexts(box), Texts(box));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(box.itemData(i), QVariant(i + 1));
}

void tst_FxUIComboBoxItems::clearEmptiesItemsAndWidget()
{
    CFxUIComboBox box;
    AddABC(box);
    box.clear();
    QCOMPARE(box.count(), 0);
    QCOMPARE(Widget(box)->count(), 0);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.currentText(), A);
}

void tst_FxUIComboBoxItems::setItemDataCountsWhateverTheRole()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setItemData(1, QStringLiteral("new"), Qt::ToolTipRole);
    QCOMPARE(box.itemData(1), QVariant(QStringLiteral("new")));
    QCOMPARE(box.itemData(1, Qt::UserRole + 5), QVariant(QStringLiteral("new")));
    QCOMPARE(box.itemData(1, Qt::DisplayRole), QVariant(QStringLiteral("new")));
    QCOMPARE(Impl(box)->itemData(1, -1), QVariant(QStringLiteral("new")));
    box.setItemData(1, QVariant());
    QVERIFY(!box.itemData(1).isValid());
}

void tst_FxUIComboBoxItems::setItemDataDoesNotTellTheWidget()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setItemData(1, 7);
    box.setItemData(1, QStringLiteral("tip"), Qt::ToolTipRole);
    QVERIFY(!Widget(box)->itemData(1).isValid());
    QVERIFY(!Widget(box)->itemData(1, Qt::ToolTipRole).isValid());
}

void tst_FxUIComboBoxItems::findDataComparesAsQVariantDoes()
{
    CFxUIComboBox box;
    AddABC(box);
    box.addItem(A, 2);
    QCOMPARE(box.findData(2), 1);
    QCOMPARE(box.findData(QStringLiteral("3")), 2); // QVariant converts the number
    QCOMPARE(box.findData(4), -1);
    QCOMPARE(CFxUIComboBox().findData(QVariant()), -1);
}

void tst_FxUIComboBoxItems::findDataWithAnInvalidValueFindsTheFirstItemWithoutData()
{
    CFxUIComboBox box;
    box.addItem(A, 1);
    box.addItem(B);
    box.addItem(C);
    QCOMPARE(box.findData(QVariant()), 1);
}

void tst_FxUIComboBoxItems::findDataIgnoresRoleAndFlags()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setItemData(1, QStringLiteral("Two"));
    const QVariant lower(QStringLiteral("two"));
    QCOMPARE(box.findData(QStringLiteral("Two"), Qt::ToolTipRole, Qt::MatchStartsWith), 1);
    QCOMPARE(box.findData(QStringLiteral("Tw"), Qt::UserRole, Qt::MatchStartsWith), -1);
    QCOMPARE(box.findData(lower, Qt::UserRole, Qt::MatchFixedString), -1);
}

void tst_FxUIComboBoxItems::findTextIsExactAndCaseSensitiveWhateverTheFlags()
{
    CFxUIComboBox box;
    box.addItem(QStringLiteral("Line"));
    box.addItem(QStringLiteral("line"));
    QCOMPARE(box.findText(QStringLiteral("line")), 1);
    QCOMPARE(box.findText(QStringLiteral("line"), Qt::MatchFixedString), 1);
    QCOMPARE(box.findText(QStringLiteral("LINE"), Qt::MatchFixedString), -1);
    QCOMPARE(box.findText(QStringLiteral("li"), Qt::MatchStartsWith), -1);
    QCOMPARE(box.findText(QStringLiteral("l*"), Qt::MatchWildcard), -1);
    QCOMPARE(Impl(box)->findText(QStringLiteral("LINE"), Qt::MatchFixedString), -1);
}

void tst_FxUIComboBoxItems::findTextGivesTheLowerIndexOfTwoEqualTexts()
{
    CFxUIComboBox box;
    box.addItem(A);
    box.addItem(B, 1);
    box.addItem(B, 2);
    QCOMPARE(box.findText(B), 1);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBoxItems>(argc, argv);
}

#include "tst_FxUIComboBoxItems.moc"
