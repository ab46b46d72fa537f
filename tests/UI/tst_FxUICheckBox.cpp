#include "UI/FxUICheckBox.h"

#include "support/ControlContract.h"
#include "support/EventRecorder.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUICheckBoxImpl.h"

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

CFxUICheckBoxImpl *Impl(const CFxUICheckBox &box)
{
    return static_cast<CFxUICheckBoxImpl *>(box.impl);
}

CFxUICheckBox::CheckState Number(int state)
{
    return static_cast<CFxUICheckBox::CheckState>(state);
}

// A check box under observation. Each line of the log ends with what isChecked() and checkState()
// answer and with the state of the widget.
struct Watched {
    Watched()
    {
        log.Listen("stateChanged", box.stateChanged());
        log.Listen("toggled", box.toggled());
        log.Listen("clicked", box.clicked());
        log.ListenToQt("Qt.stateChanged", Widget(box), &QCheckBox::stateChanged);
    }

    QString State() const
    {
        return QStringLiteral("%1 %2 widget %3")
            .arg(box.isChecked() ? QStringLiteral("on") : QStringLiteral("off"))
            .arg(box.checkState())
            .arg(Widget(box)->checkState());
    }

    CFxUICheckBox box;
    EventRecorder log { [this] { return State(); } };
};

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
    void clickEmitsEachSignalOnce();
    void spaceEmitsEachSignalOnce();
    void clicksPassThroughTheThirdState();
    void setCheckedEmitsEachSignalTwice();
    void setCheckedFalseOnAFreshBoxDoesNothing();
    void setCheckedTwiceDoesNotReachTheWidgetAgain();
    void setCheckStateEmitsEachSignalOnce_data();
    void setCheckStateEmitsEachSignalOnce();
    void setCheckStateTwiceEmitsOnce();
    void partlyCheckedCountsAsChecked();
    void partlyCheckedTurnsTheThirdStateOnInTheWidgetAlone();
    void numberOutsideTheEnumerationStaysUntilTheNextChange_data();
    void numberOutsideTheEnumerationStaysUntilTheNextChange();
    void numberOutsideTheEnumerationUnchecksACheckedBox();
    void blockedBoxFollowsInSilence();
    void slotThatBlocksSilencesWhatFollows();
    void eachEmissionTestsTheBlockForItself();
    void slotThatUnchecksInBetween();
    void slotThatChecksAgainStopsAtTheComparison();
    void handlerTakesAnyNumberButNamesItAsReceived();
    void clickedIsNeverEmitted();
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

void tst_FxUICheckBox::clickEmitsEachSignalOnce()
{
    Watched watched;
    QTest::mouseClick(Widget(watched.box), Qt::LeftButton, Qt::NoModifier, QPoint(5, 12));
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("toggled(true) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2") }));
    QTest::mouseClick(Widget(watched.box), Qt::LeftButton, Qt::NoModifier, QPoint(5, 12));
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0"),
                            QStringLiteral("Qt.stateChanged(0) off 0 widget 0") }));
}

void tst_FxUICheckBox::spaceEmitsEachSignalOnce()
{
    Watched watched;
    QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("toggled(true) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2") }));
}

void tst_FxUICheckBox::clicksPassThroughTheThirdState()
{
    Watched watched;
    watched.box.setTristate(true);
    QVERIFY(watched.box.isTristate());
    QVERIFY(Widget(watched.box)->isTristate());
    for (int click = 0; click < 3; ++click)
        QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(1) on 1 widget 1"),
                            QStringLiteral("toggled(true) on 1 widget 1"),
                            QStringLiteral("Qt.stateChanged(1) on 1 widget 1"),
                            QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("toggled(true) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2"),
                            QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0"),
                            QStringLiteral("Qt.stateChanged(0) off 0 widget 0") }));
}

void tst_FxUICheckBox::setCheckedEmitsEachSignalTwice()
{
    Watched watched;
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("toggled(true) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2"),
                            QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("toggled(true) on 2 widget 2") }));
    watched.box.setChecked(false);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0"),
                            QStringLiteral("Qt.stateChanged(0) off 0 widget 0"),
                            QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0") }));
}

void tst_FxUICheckBox::setCheckedFalseOnAFreshBoxDoesNothing()
{
    Watched watched;
    watched.box.setChecked(false);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(Widget(watched.box)->checkState(), Qt::Unchecked);
}

void tst_FxUICheckBox::setCheckedTwiceDoesNotReachTheWidgetAgain()
{
    Watched watched;
    watched.box.setChecked(true);
    watched.log.Take();
    {
        // Behind the box's back: only a call that reaches the widget would set it right.
        const QSignalBlocker blocker(Widget(watched.box));
        Widget(watched.box)->setChecked(false);
    }
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(Widget(watched.box)->checkState(), Qt::Unchecked);
    QVERIFY(watched.box.isChecked());
}

void tst_FxUICheckBox::setCheckStateEmitsEachSignalOnce_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("partly checked")
        << 1
        << QStringList { QStringLiteral("stateChanged(1) on 1 widget 1"),
                         QStringLiteral("toggled(true) on 1 widget 1"),
                         QStringLiteral("Qt.stateChanged(1) on 1 widget 1") };
    QTest::newRow("checked") << 2
                             << QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                                              QStringLiteral("toggled(true) on 2 widget 2"),
                                              QStringLiteral("Qt.stateChanged(2) on 2 widget 2") };
    QTest::newRow("unchecked, as it was") << 0 << QStringList();
}

void tst_FxUICheckBox::setCheckStateEmitsEachSignalOnce()
{
    QFETCH(int, state);
    QFETCH(QStringList, lines);
    Watched watched;
    watched.box.setCheckState(Number(state));
    QCOMPARE(watched.log.Take(), lines);
}

void tst_FxUICheckBox::setCheckStateTwiceEmitsOnce()
{
    Watched watched;
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    watched.log.Take();
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUICheckBox::partlyCheckedCountsAsChecked()
{
    Watched watched;
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QVERIFY(watched.box.isChecked());
    watched.log.Take();
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(Widget(watched.box)->checkState(), Qt::PartiallyChecked);
    watched.box.setChecked(false);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0"),
                            QStringLiteral("Qt.stateChanged(0) off 0 widget 0"),
                            QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0") }));
}

void tst_FxUICheckBox::partlyCheckedTurnsTheThirdStateOnInTheWidgetAlone()
{
    CFxUICheckBox box;
    box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QVERIFY(Widget(box)->isTristate());
    QVERIFY(!box.isTristate());
}

void tst_FxUICheckBox::numberOutsideTheEnumerationStaysUntilTheNextChange_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("above") << 3;
    QTest::newRow("far above") << 100000;
    QTest::newRow("below") << -1;
}

void tst_FxUICheckBox::numberOutsideTheEnumerationStaysUntilTheNextChange()
{
    QFETCH(int, number);
    Watched watched;
    watched.box.setCheckState(Number(number));
    QCOMPARE(int(watched.box.checkState()), number);
    QVERIFY(!watched.box.isChecked());
    QCOMPARE(Widget(watched.box)->checkState(), Qt::Unchecked);
    QCOMPARE(watched.log.Take(), QStringList());
    QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.box.checkState(), CFxUICheckBox::Checked);
}

void tst_FxUICheckBox::numberOutsideTheEnumerationUnchecksACheckedBox()
{
    Watched watched;
    watched.box.setCheckState(CFxUICheckBox::Checked);
    watched.log.Take();
    watched.box.setCheckState(Number(3));
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(0) off 0 widget 0"),
                            QStringLiteral("toggled(false) off 0 widget 0"),
                            QStringLiteral("Qt.stateChanged(0) off 0 widget 0") }));
}

void tst_FxUICheckBox::blockedBoxFollowsInSilence()
{
    Watched watched;
    watched.box.blockSignals(true);
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             QStringList { QStringLiteral("Qt.stateChanged(2) on 2 widget 2") });
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QCOMPARE(watched.log.Take(),
             QStringList { QStringLiteral("Qt.stateChanged(1) on 1 widget 1") });
    QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             QStringList { QStringLiteral("Qt.stateChanged(2) on 2 widget 2") });
}

void tst_FxUICheckBox::slotThatBlocksSilencesWhatFollows()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.blockSignals(true); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2") }));
}

void tst_FxUICheckBox::eachEmissionTestsTheBlockForItself()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.blockSignals(true); });
    connect(Widget(watched.box), &QCheckBox::stateChanged, this,
            [&watched] { watched.box.blockSignals(false); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(2) on 2 widget 2"),
                            QStringLiteral("Qt.stateChanged(2) on 2 widget 2"),
                            QStringLiteral("stateChanged(2) on 2 widget 2") }));
}

void tst_FxUICheckBox::slotThatUnchecksInBetween()
{
    Watched watched;
    bool done = false;
    watched.box.stateChanged().connect([&](int) {
        if (!std::exchange(done, true))
            watched.box.setChecked(false);
    });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             (QStringList {
                 QStringLiteral("stateChanged(2) on 2 widget 2"),
                 // the call from within, in full
                 QStringLiteral("stateChanged(0) off 0 widget 0"),
                 QStringLiteral("toggled(false) off 0 widget 0"),
                 QStringLiteral("Qt.stateChanged(0) off 0 widget 0"),
                 QStringLiteral("stateChanged(0) off 0 widget 0"),
                 QStringLiteral("toggled(false) off 0 widget 0"),
                 // the handler names what was reported, the setter what is so by then
                 QStringLiteral("toggled(true) off 0 widget 0"),
                 QStringLiteral("Qt.stateChanged(2) off 0 widget 0"),
                 QStringLiteral("stateChanged(2) off 0 widget 0"),
                 QStringLiteral("toggled(false) off 0 widget 0"),
             }));
}

void tst_FxUICheckBox::slotThatChecksAgainStopsAtTheComparison()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.setChecked(true); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take().size(), 5);
}

void tst_FxUICheckBox::handlerTakesAnyNumberButNamesItAsReceived()
{
    Watched watched;
    Impl(watched.box)->OnSwitchChanged(7);
    QCOMPARE(watched.log.Take(),
             (QStringList { QStringLiteral("stateChanged(7) on 0 widget 0"),
                            QStringLiteral("toggled(true) on 0 widget 0") }));
}

void tst_FxUICheckBox::clickedIsNeverEmitted()
{
    CFxUICheckBox box;
    int clicks = 0;
    box.clicked().connect([&clicks] { ++clicks; });
    QCOMPARE(box.clicked().num_slots(), std::size_t(1));
    QTest::mouseClick(Widget(box), Qt::LeftButton, Qt::NoModifier, QPoint(5, 12));
    QVERIFY(box.isChecked());
    Widget(box)->click();
    box.setChecked(true);
    box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QCOMPARE(clicks, 0);
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
