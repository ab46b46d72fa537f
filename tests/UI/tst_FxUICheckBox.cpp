#include "UI/FxUICheckBox.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUICheckBox>);
static_assert(!std::is_copy_constructible_v<CFxUICheckBox>);
static_assert(std::is_convertible_v<CFxUICheckBox::CheckState, int>);
static_assert(std::is_same_v<decltype(std::declval<CFxUICheckBox &>().stateChanged()),
                             CFxUISignal<void(int)> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUICheckBox &>().toggled()), CFxUISignal<void(bool)> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUICheckBox &>().clicked()), CFxUISignal<void()> &>);

namespace {

QCheckBox *Widget(const CFxUICheckBox &box)
{
    return qobject_cast<QCheckBox *>(box.getHandle());
}

CFxUICheckBox::CheckState Number(int state)
{
    return static_cast<CFxUICheckBox::CheckState>(state);
}

} // namespace

class tst_FxUICheckBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void startsUncheckedWithoutTextAndThirdState();
    void widgetIsACheckBoxOf25Pixels();
    void textGoesToTheWidget();
    void enumeratorsHaveTheNumbersOfQt_data();
    void enumeratorsHaveTheNumbersOfQt();
    void partlyCheckedTurnsTheThirdStateOnInTheWidgetAlone();
    void textSizeAndResourceIconChangeNothingVisible();
    void settersWithoutHandleKeepTheState();
    void widgetThatOutlivesTheBoxCallsNoHandler();
};

void tst_FxUICheckBox::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUICheckBox; });
}

void tst_FxUICheckBox::startsUncheckedWithoutTextAndThirdState()
{
    const CFxUICheckBox box;
    QVERIFY(!box.isChecked());
    QCOMPARE(box.checkState(), CFxUICheckBox::Unchecked);
    QVERIFY(!box.isTristate());
    QVERIFY(box.text().isNull());
    QCOMPARE(Widget(box)->checkState(), Qt::Unchecked);
}

void tst_FxUICheckBox::widgetIsACheckBoxOf25Pixels()
{
    const CFxUICheckBox box;
    QVERIFY(Widget(box));
    QCOMPARE(Widget(box)->metaObject(), &QCheckBox::staticMetaObject);
    QCOMPARE(Widget(box)->styleSheet(), QStringLiteral("QCheckBox { }"));
    QCOMPARE(Widget(box)->minimumHeight(), 25);
    QCOMPARE(Widget(box)->maximumHeight(), 25);
    QCOMPARE(box.impl->GetFrontendClassName(), QStringLiteral("QCheckBox"));
}

void tst_FxUICheckBox::textGoesToTheWidget()
{
    CFxUICheckBox box;
    box.setText(QStringLiteral("Snap to grid"));
    QCOMPARE(box.text(), QStringLiteral("Snap to grid"));
    QCOMPARE(Widget(box)->text(), QStringLiteral("Snap to grid"));
}

void tst_FxUICheckBox::enumeratorsHaveTheNumbersOfQt_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("qtNumber");
    QTest::newRow("Unchecked") << int(CFxUICheckBox::Unchecked) << int(Qt::Unchecked);
    QTest::newRow("PartiallyChecked")
        << int(CFxUICheckBox::PartiallyChecked) << int(Qt::PartiallyChecked);
    QTest::newRow("Checked") << int(CFxUICheckBox::Checked) << int(Qt::Checked);
}

void tst_FxUICheckBox::enumeratorsHaveTheNumbersOfQt()
{
    QFETCH(int, number);
    QFETCH(int, qtNumber);
    QCOMPARE(number, qtNumber);
    CFxUICheckBox box;
    box.setCheckState(Number(number));
    QCOMPARE(int(Widget(box)->checkState()), qtNumber);
    QCOMPARE(int(box.checkState()), qtNumber);
}

void tst_FxUICheckBox::partlyCheckedTurnsTheThirdStateOnInTheWidgetAlone()
{
    CFxUICheckBox box;
    box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QVERIFY(Widget(box)->isTristate());
    QVERIFY(!box.isTristate());
}

void tst_FxUICheckBox::textSizeAndResourceIconChangeNothingVisible()
{
    CFxUICheckBox box;
    box.setText(QStringLiteral("Snap to grid"));
    const QImage before = Widget(box)->grab().toImage();
    box.setTextSize(30.0f);
    box.setResourceIcon(QStringLiteral(":/commonui/resources/icons/checkbox_active.png"));
    QCOMPARE(Widget(box)->grab().toImage(), before);
    QVERIFY(Widget(box)->icon().isNull());
    QCOMPARE(Widget(box)->styleSheet(), QStringLiteral("QCheckBox { }"));
}

void tst_FxUICheckBox::settersWithoutHandleKeepTheState()
{
    CFxUICheckBox box;
    const std::unique_ptr<QObject> widget(box.getHandle());
    box.setHandle(nullptr);
    box.setText(QStringLiteral("text"));
    box.setTristate(true);
    box.setCheckState(CFxUICheckBox::Checked);
    QCOMPARE(box.text(), QStringLiteral("text"));
    QVERIFY(box.isTristate());
    QCOMPARE(box.checkState(), CFxUICheckBox::Checked);
    QVERIFY(!box.isChecked()); // nothing reports the change
    box.setChecked(true);
    QVERIFY(box.isChecked());
    QObject foreign;
    box.setHandle(&foreign);
    box.setChecked(false);
    box.setTextSize(9.0f);
    QVERIFY(!box.isChecked());
    box.setHandle(nullptr);
}

void tst_FxUICheckBox::widgetThatOutlivesTheBoxCallsNoHandler()
{
    auto box = std::make_unique<CFxUICheckBox>();
    const QPointer<QCheckBox> widget(Widget(*box));
    box.reset();
    QVERIFY(widget);
    widget->click();
    QVERIFY(widget->isChecked());
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUICheckBox>(argc, argv);
}

#include "tst_FxUICheckBox.moc"
