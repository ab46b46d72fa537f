#include "UI/FxUIComboBox.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/ComboBoxTools.h"

#include <QtCore/QPointer>
#include <QtGui/QIntValidator>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIComboBox>);
static_assert(!std::is_copy_constructible_v<CFxUIComboBox>);
static_assert(std::is_convertible_v<CFxUIComboBox::InsertPolicy, int>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIComboBox &>().activated()),
                             CFxUISignal<void(int)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIComboBox &>().currentIndexChanged()),
                             CFxUISignal<void(int)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIComboBox &>().currentStringChanged()),
                             CFxUISignal<void(const QString &)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIComboBox &>().editTextChanged()),
                             CFxUISignal<void(const QString &)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIComboBox &>().editingFinished()),
                             CFxUISignal<void()> &>);

using namespace ComboBoxTools;

class tst_FxUIComboBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void startsEmptyAndNotEditable();
    void widgetIsAComboBox();
    void setItemTextHasNoEffect();
    void implSetItemTextReachesTheWidgetAlone();
    void hideEmptyTextInsertPolicyAndValidatorHaveNoEffect();
    void insertPoliciesHaveTheNumbersOfQt_data();
    void insertPoliciesHaveTheNumbersOfQt();
    void setEditableGoesToTheWidget();
    void clearEditTextLeavesTheWidgetAlone();
    void clearEditTextImplEmptiesTheWidgetsText();
    void iconSizeAndMaxVisibleItemsGoToTheWidget();
    void negativeMaxVisibleItemsGetQtsWarning();
    void settersWithoutHandleKeepTheState();
    void settersOverAForeignHandleKeepTheState();
    void widgetThatOutlivesTheBoxCallsNoHandler();
};

void tst_FxUIComboBox::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUIComboBox; });
}

void tst_FxUIComboBox::startsEmptyAndNotEditable()
{
    const CFxUIComboBox box;
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
    QVERIFY(box.currentText().isNull());
    QVERIFY(!box.isEditable());
    QVERIFY(!Widget(box)->isEditable());
}

void tst_FxUIComboBox::widgetIsAComboBox()
{
    const CFxUIComboBox box;
    QVERIFY(Widget(box));
    QCOMPARE(Widget(box)->metaObject(), &QComboBox::staticMetaObject);
    QCOMPARE(Widget(box)->styleSheet(), QStringLiteral("QComboBox { }"));
    QCOMPARE(box.impl->GetFrontendClassName(), QStringLiteral("QComboBox"));
}

void tst_FxUIComboBox::setItemTextHasNoEffect()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setItemText(0, C);
    QCOMPARE(Texts(box), (QStringList { A, B, C }));
    QCOMPARE(WidgetTexts(box), Texts(box));
}

void tst_FxUIComboBox::implSetItemTextReachesTheWidgetAlone()
{
    CFxUIComboBox box;
    AddABC(box);
    Impl(box)->setItemText(1, QStringLiteral("new"));
    QCOMPARE(box.itemText(1), B);
    QCOMPARE(Widget(box)->itemText(1), QStringLiteral("new"));
}

void tst_FxUIComboBox::hideEmptyTextInsertPolicyAndValidatorHaveNoEffect()
{
    CFxUIComboBox box;
    AddABC(box);
    box.addItem(QString());
    box.setEditable(true);
    const QComboBox::InsertPolicy policy = Widget(box)->insertPolicy();
    const QIntValidator validator;
    box.setHideEmptyText(true);
    Impl(box)->setHideEmptyText(true);
    box.setInsertPolicy(CFxUIComboBox::InsertAtTop);
    box.setValidator(&validator);
    QCOMPARE(Widget(box)->insertPolicy(), policy);
    QVERIFY(!Widget(box)->validator());
    QCOMPARE(WidgetTexts(box), (QStringList { A, B, C, QString() }));
    QCOMPARE(Texts(box), WidgetTexts(box));
}

void tst_FxUIComboBox::insertPoliciesHaveTheNumbersOfQt_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("qtNumber");
    QTest::newRow("NoInsert") << int(CFxUIComboBox::NoInsert) << int(QComboBox::NoInsert);
    QTest::newRow("InsertAtTop") << int(CFxUIComboBox::InsertAtTop) << int(QComboBox::InsertAtTop);
    QTest::newRow("InsertAtCurrent")
        << int(CFxUIComboBox::InsertAtCurrent) << int(QComboBox::InsertAtCurrent);
    QTest::newRow("InsertAtBottom")
        << int(CFxUIComboBox::InsertAtBottom) << int(QComboBox::InsertAtBottom);
    QTest::newRow("InsertAfterCurrent")
        << int(CFxUIComboBox::InsertAfterCurrent) << int(QComboBox::InsertAfterCurrent);
    QTest::newRow("InsertBeforeCurrent")
        << int(CFxUIComboBox::InsertBeforeCurrent) << int(QComboBox::InsertBeforeCurrent);
    QTest::newRow("InsertAlphabetically")
        << int(CFxUIComboBox::InsertAlphabetically) << int(QComboBox::InsertAlphabetically);
}

void tst_FxUIComboBox::insertPoliciesHaveTheNumbersOfQt()
{
    QFETCH(int, number);
    QFETCH(int, qtNumber);
    QCOMPARE(number, qtNumber);
}

void tst_FxUIComboBox::setEditableGoesToTheWidget()
{
    CFxUIComboBox box;
    box.setEditable(true);
    QVERIFY(box.isEditable());
    QVERIFY(Widget(box)->isEditable());
    box.setEditable(false);
    QVERIFY(!box.isEditable());
    QVERIFY(!Widget(box)->isEditable());
}

void tst_FxUIComboBox::clearEditTextLeavesTheWidgetAlone()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setEditable(true);
    box.clearEditText();
    QVERIFY(box.currentText().isNull());
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(Widget(box)->currentText(), A);
}

void tst_FxUIComboBox::clearEditTextImplEmptiesTheWidgetsText()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setEditable(true);
    Impl(box)->ClearEditTextImpl();
    QCOMPARE(box.currentText(), A);
    QCOMPARE(Widget(box)->currentText(), QString());
}

void tst_FxUIComboBox::iconSizeAndMaxVisibleItemsGoToTheWidget()
{
    CFxUIComboBox box;
    box.setIconSize(QSize(31, 17));
    box.setMaxVisibleItems(4);
    QCOMPARE(Widget(box)->iconSize(), QSize(31, 17));
    QCOMPARE(Widget(box)->maxVisibleItems(), 4);
}

void tst_FxUIComboBox::negativeMaxVisibleItemsGetQtsWarning()
{
    CFxUIComboBox box;
    QTest::ignoreMessage(QtWarningMsg,
                         "QComboBox::setMaxVisibleItems: Invalid max visible items (-1) must be >= "
                         "0");
    box.setMaxVisibleItems(-1);
    QCOMPARE(Widget(box)->maxVisibleItems(), 10);
}

void tst_FxUIComboBox::settersWithoutHandleKeepTheState()
{
    CFxUIComboBox box;
    const std::unique_ptr<QObject> widget(box.getHandle());
    box.setHandle(nullptr);
    box.addItem(A);
    QCOMPARE(box.currentIndex(), -1); // nothing reports the first item
    box.addItem(Icon(), B);
    box.insertItem(0, C);
    box.insertItem(3, Icon(), C);
    box.setCurrentIndex(1);
    box.setEditable(true);
    box.setIconSize(QSize(1, 1));
    box.setMaxVisibleItems(1);
    Impl(box)->setItemText(0, B);
    Impl(box)->ClearEditTextImpl();
    QCOMPARE(Texts(box), (QStringList { C, A, B, C }));
    QCOMPARE(box.currentText(), A);
    QVERIFY(box.isEditable());
    box.setCurrentText(B);
    QCOMPARE(box.currentText(), B);
    box.setEditText(C);
    QCOMPARE(box.currentText(), C);
    box.removeItem(0);
    QCOMPARE(box.count(), 3);
    box.clear();
    QCOMPARE(box.count(), 0);
}

void tst_FxUIComboBox::settersOverAForeignHandleKeepTheState()
{
    CFxUIComboBox box;
    const std::unique_ptr<QObject> widget(box.getHandle());
    QLineEdit foreign;
    box.setHandle(&foreign);
    AddABC(box);
    box.setCurrentIndex(2);
    box.setEditable(true);
    box.setCurrentText(A);
    QCOMPARE(box.currentIndex(), 2);
    QCOMPARE(box.currentText(), A);
    QCOMPARE(foreign.text(), QString());
    box.setHandle(nullptr);
}

void tst_FxUIComboBox::widgetThatOutlivesTheBoxCallsNoHandler()
{
    auto box = std::make_unique<CFxUIComboBox>();
    AddABC(*box);
    const QPointer<QComboBox> widget(Widget(*box));
    box.reset();
    QVERIFY(widget);
    QTest::keyClick(widget, Qt::Key_Down);
    QCOMPARE(widget->currentIndex(), 1);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBox>(argc, argv);
}

#include "tst_FxUIComboBox.moc"
