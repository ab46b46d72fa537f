#include "UI/FxUIListBox.h"

#include "support/ControlContract.h"
#include "support/EventRecorder.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUIListBoxImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QListWidget>

#include <limits>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIListBox>);
static_assert(!std::is_copy_constructible_v<CFxUIListBox>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIListBox>().item(0)), QString &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIListBox>().selectedItems()), QList<QString>>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIListBox>().valueChanged()),
                             CFxUISignal<void(int)> &>);

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");

QListWidget *Widget(const CFxUIListBox &box)
{
    return qobject_cast<QListWidget *>(box.getHandle());
}

CFxUIListBoxImpl *Impl(const CFxUIListBox &box)
{
    return static_cast<CFxUIListBoxImpl *>(box.impl);
}

void AddRows(CFxUIListBox &box, int count)
{
    for (int i = 0; i < count; ++i)
        box.addItem(QString::number(i));
}

// The flags of the rows as a slot sees them.
QString Flags(CFxUIListBox &box)
{
    QString flags;
    for (int i = 0; i < box.count(); ++i)
        flags.append(QLatin1Char(box.isItemSelected(i) ? '1' : '0'));
    return flags;
}

} // namespace

class tst_FxUIListBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatEveryControlDoes();
    void widgetIsAListWidgetWithItsStyleSheet();
    void startsEmpty();
    void countGrowsWhileTheWidgetStaysEmpty();
    void newRowHasNoDataAndIsNotSelected();
    void rowIsTheLowestWithTheText();
    void rowComparesTheWholeText();
    void itemRefersToTheStoredText();
    void itemOutOfRangeIsEmptyAndBelongsToNoRow_data();
    void itemOutOfRangeIsEmptyAndBelongsToNoRow();
    void itemDataIsReplaced();
    void indexOutOfRangeChangesNothing_data();
    void indexOutOfRangeChangesNothing();
    void setItemSelectedStoresTheFlagAndEmitsNothing();
    void selectedItemsStaysEmpty();
    void currentRowIsAlwaysZero();
    void clearSelectionChangesNoFlag();
    void setItemTextChangesNoText();
    void clearRemovesAllRows();
    void onItemSelectedTellsWhetherAnyRowIsSelected();
    void onItemSelectedOutOfRangeEmitsTheStateOfTheOthers();
    void onItemSelectedWithoutRowsEmitsZero();
    void blockedSignalsSilenceAndKeepTheFlags();
    void userActionsReachNothing();
    void rowsAreKeptWithoutHandle();
};

void tst_FxUIListBox::doesWhatEveryControlDoes()
{
    ControlContract([] { return new CFxUIListBox; });
    if (QTest::currentTestFailed())
        return;
}

void tst_FxUIListBox::widgetIsAListWidgetWithItsStyleSheet()
{
    const CFxUIListBox box;
    QVERIFY(Widget(box));
    QCOMPARE(Widget(box)->metaObject()->className(), "QListWidget");
    QCOMPARE(Widget(box)->styleSheet(), QStringLiteral("QListWidget { }"));
    QCOMPARE(box.impl->GetFrontendClassName(), QStringLiteral("QListWidget"));
}

void tst_FxUIListBox::startsEmpty()
{
    CFxUIListBox box;
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.row(QString()), -1);
    QCOMPARE(box.currentRow(), 0);
    QVERIFY(box.selectedItems().isEmpty());
    QVERIFY(!box.itemData(0).isValid());
    QVERIFY(!box.isItemSelected(0));
    QVERIFY(box.valueChanged().empty());
}

void tst_FxUIListBox::countGrowsWhileTheWidgetStaysEmpty()
{
    CFxUIListBox box;
    for (int i = 1; i <= 3; ++i) {
        box.addItem(A);
        QCOMPARE(box.count(), i);
    }
    QCOMPARE(Widget(box)->count(), 0);
}

void tst_FxUIListBox::newRowHasNoDataAndIsNotSelected()
{
    CFxUIListBox box;
    box.addItem(A);
    QCOMPARE(box.item(0), A);
    QVERIFY(!box.itemData(0).isValid());
    QVERIFY(!box.isItemSelected(0));
}

void tst_FxUIListBox::rowIsTheLowestWithTheText()
{
    CFxUIListBox box;
    box.addItem(B);
    box.addItem(A);
    box.addItem(A);
    QCOMPARE(box.row(A), 1);
    QCOMPARE(box.row(B), 0);
    QCOMPARE(box.row(QStringLiteral("c")), -1);
}

void tst_FxUIListBox::rowComparesTheWholeText()
{
    CFxUIListBox box;
    box.addItem(QStringLiteral("Aa"));
    QCOMPARE(box.row(QStringLiteral("aa")), -1);
    QCOMPARE(box.row(QStringLiteral("A")), -1);
    box.addItem(QString());
    QCOMPARE(box.row(QStringLiteral("")), 1);
}

void tst_FxUIListBox::itemRefersToTheStoredText()
{
    CFxUIListBox box;
    box.addItem(A);
    box.item(0) = B;
    QCOMPARE(box.item(0), B);
    QCOMPARE(box.row(B), 0);
    QCOMPARE(box.row(A), -1);
    QCOMPARE(&box.item(0), &box.item(0));
}

void tst_FxUIListBox::itemOutOfRangeIsEmptyAndBelongsToNoRow_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("below") << -1;
    QTest::newRow("one too far") << 2;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_FxUIListBox::itemOutOfRangeIsEmptyAndBelongsToNoRow()
{
    QFETCH(int, index);
    CFxUIListBox box;
    CFxUIListBox other;
    AddRows(box, 2);
    QVERIFY(box.item(index).isEmpty());
    box.item(index) = B;
    QCOMPARE(box.row(B), -1);
    QVERIFY(box.item(index).isEmpty());
    QVERIFY(&box.item(index) != &other.item(index));
    QCOMPARE(box.count(), 2);
}

void tst_FxUIListBox::itemDataIsReplaced()
{
    CFxUIListBox box;
    AddRows(box, 2);
    box.setItemData(1, 5);
    QCOMPARE(box.itemData(1), QVariant(5));
    QVERIFY(!box.itemData(0).isValid());
    box.setItemData(1, A);
    QCOMPARE(box.itemData(1), QVariant(A));
    box.setItemData(1, QVariant());
    QVERIFY(!box.itemData(1).isValid());
}

void tst_FxUIListBox::indexOutOfRangeChangesNothing_data()
{
    itemOutOfRangeIsEmptyAndBelongsToNoRow_data();
}

void tst_FxUIListBox::indexOutOfRangeChangesNothing()
{
    QFETCH(int, index);
    CFxUIListBox box;
    AddRows(box, 2);
    box.setItemData(index, 5);
    box.setItemSelected(index, true);
    QVERIFY(!box.itemData(index).isValid());
    QVERIFY(!box.isItemSelected(index));
    QCOMPARE(Flags(box), QStringLiteral("00"));
    QVERIFY(!box.itemData(0).isValid());
    QVERIFY(!box.itemData(1).isValid());
}

void tst_FxUIListBox::setItemSelectedStoresTheFlagAndEmitsNothing()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 3);
    box.setItemSelected(2, true);
    QVERIFY(box.isItemSelected(2));
    box.setItemSelected(2, true);
    box.setItemSelected(0, true);
    QCOMPARE(Flags(box), QStringLiteral("101"));
    box.setItemSelected(2, false);
    QCOMPARE(Flags(box), QStringLiteral("100"));
    QCOMPARE(recorder.Take(), QStringList());
}

void tst_FxUIListBox::selectedItemsStaysEmpty()
{
    CFxUIListBox box;
    AddRows(box, 3);
    box.setItemSelected(2, true);
    QVERIFY(box.selectedItems().isEmpty());
    Impl(box)->OnItemSelected(1, true);
    QVERIFY(box.selectedItems().isEmpty());
}

void tst_FxUIListBox::currentRowIsAlwaysZero()
{
    CFxUIListBox box;
    AddRows(box, 3);
    Widget(box)->setCurrentRow(2);
    box.setItemSelected(2, true);
    QCOMPARE(box.currentRow(), 0);
}

void tst_FxUIListBox::clearSelectionChangesNoFlag()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 2);
    box.setItemSelected(1, true);
    box.clearSelection();
    Impl(box)->clearSelection();
    QCOMPARE(Flags(box), QStringLiteral("01"));
    QCOMPARE(recorder.Take(), QStringList());
}

void tst_FxUIListBox::setItemTextChangesNoText()
{
    CFxUIListBox box;
    box.addItem(A);
    box.setItemText(0, B);
    box.setItemText(7, B);
    Impl(box)->setItemText(0, B);
    QCOMPARE(box.item(0), A);
    QCOMPARE(box.count(), 1);
}

void tst_FxUIListBox::clearRemovesAllRows()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 3);
    box.setItemData(0, 5);
    box.setItemSelected(0, true);
    box.clear();
    QCOMPARE(box.count(), 0);
    QVERIFY(!box.itemData(0).isValid());
    QVERIFY(!box.isItemSelected(0));
    QCOMPARE(recorder.Take(), QStringList());
    box.addItem(A);
    QVERIFY(!box.itemData(0).isValid());
    QVERIFY(!box.isItemSelected(0));
}

void tst_FxUIListBox::onItemSelectedTellsWhetherAnyRowIsSelected()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 3);
    Impl(box)->OnItemSelected(2, true);
    Impl(box)->OnItemSelected(0, true);
    Impl(box)->OnItemSelected(0, true);
    Impl(box)->OnItemSelected(2, false);
    Impl(box)->OnItemSelected(0, false);
    QCOMPARE(
        recorder.Take(),
        QStringList({ QStringLiteral("valueChanged(1) 001"), QStringLiteral("valueChanged(1) 101"),
                      QStringLiteral("valueChanged(1) 101"), QStringLiteral("valueChanged(1) 100"),
                      QStringLiteral("valueChanged(0) 000") }));
}

void tst_FxUIListBox::onItemSelectedOutOfRangeEmitsTheStateOfTheOthers()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 2);
    Impl(box)->OnItemSelected(2, true);
    box.setItemSelected(1, true);
    Impl(box)->OnItemSelected(-1, false);
    QCOMPARE(recorder.Take(),
             QStringList(
                 { QStringLiteral("valueChanged(0) 00"), QStringLiteral("valueChanged(1) 01") }));
}

void tst_FxUIListBox::onItemSelectedWithoutRowsEmitsZero()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    Impl(box)->OnItemSelected(0, true);
    QCOMPARE(recorder.Take(), QStringList({ QStringLiteral("valueChanged(0) ") }));
}

void tst_FxUIListBox::blockedSignalsSilenceAndKeepTheFlags()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 2);
    box.blockSignals(true);
    Impl(box)->OnItemSelected(1, true);
    QCOMPARE(recorder.Take(), QStringList());
    QCOMPARE(Flags(box), QStringLiteral("01"));
}

void tst_FxUIListBox::userActionsReachNothing()
{
    CFxUIListBox box;
    EventRecorder recorder([&] { return Flags(box); });
    recorder.Listen("valueChanged", box.valueChanged());
    AddRows(box, 2);
    // Rows that a host gave the widget itself.
    Widget(box)->addItems({ A, B });
    box.setVisible(true);
    QTest::mouseClick(Widget(box)->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Widget(box)->visualItemRect(Widget(box)->item(1)).center());
    QCOMPARE(Widget(box)->currentRow(), 1);
    QTest::keyClick(Widget(box), Qt::Key_Up);
    QCOMPARE(Widget(box)->currentRow(), 0);
    QCOMPARE(recorder.Take(), QStringList());
    QCOMPARE(Flags(box), QStringLiteral("00"));
    QCOMPARE(box.currentRow(), 0);
}

void tst_FxUIListBox::rowsAreKeptWithoutHandle()
{
    CFxUIListBox box;
    delete box.getHandle();
    AddRows(box, 2);
    box.setItemSelected(1, true);
    Impl(box)->OnItemSelected(0, true);
    QCOMPARE(Flags(box), QStringLiteral("11"));
    box.clear();
    QCOMPARE(box.count(), 0);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIListBox>(argc, argv);
}

#include "tst_FxUIListBox.moc"
