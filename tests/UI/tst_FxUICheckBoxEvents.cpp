#include "UI/FxUICheckBox.h"

#include "support/EventRecorder.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUICheckBoxImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>

#include <utility>

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

class tst_FxUICheckBoxEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_FxUICheckBoxEvents::clickEmitsEachSignalOnce()
{
    Watched watched;
    QTest::mouseClick(Widget(watched.box), Qt::LeftButton, Qt::NoModifier, QPoint(5, 12));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 "toggled(true) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
             }));
    QTest::mouseClick(Widget(watched.box), Qt::LeftButton, Qt::NoModifier, QPoint(5, 12));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::spaceEmitsEachSignalOnce()
{
    Watched watched;
    QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 "toggled(true) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
             }));
}

void tst_FxUICheckBoxEvents::clicksPassThroughTheThirdState()
{
    Watched watched;
    watched.box.setTristate(true);
    QVERIFY(watched.box.isTristate());
    QVERIFY(Widget(watched.box)->isTristate());
    for (int click = 0; click < 3; ++click)
        QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(1) on 1 widget 1",
                 "toggled(true) on 1 widget 1",
                 "Qt.stateChanged(1) on 1 widget 1",
                 "stateChanged(2) on 2 widget 2",
                 "toggled(true) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::setCheckedEmitsEachSignalTwice()
{
    Watched watched;
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 "toggled(true) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
                 "stateChanged(2) on 2 widget 2",
                 "toggled(true) on 2 widget 2",
             }));
    watched.box.setChecked(false);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::setCheckedFalseOnAFreshBoxDoesNothing()
{
    Watched watched;
    watched.box.setChecked(false);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(Widget(watched.box)->checkState(), Qt::Unchecked);
}

void tst_FxUICheckBoxEvents::setCheckedTwiceDoesNotReachTheWidgetAgain()
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

void tst_FxUICheckBoxEvents::setCheckStateEmitsEachSignalOnce_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("partly checked") << 1
                                    << Lines({
                                           "stateChanged(1) on 1 widget 1",
                                           "toggled(true) on 1 widget 1",
                                           "Qt.stateChanged(1) on 1 widget 1",
                                       });
    QTest::newRow("checked") << 2
                             << Lines({
                                    "stateChanged(2) on 2 widget 2",
                                    "toggled(true) on 2 widget 2",
                                    "Qt.stateChanged(2) on 2 widget 2",
                                });
    QTest::newRow("unchecked, as it was") << 0 << QStringList();
}

void tst_FxUICheckBoxEvents::setCheckStateEmitsEachSignalOnce()
{
    QFETCH(int, state);
    QFETCH(QStringList, lines);
    Watched watched;
    watched.box.setCheckState(Number(state));
    QCOMPARE(watched.log.Take(), lines);
}

void tst_FxUICheckBoxEvents::setCheckStateTwiceEmitsOnce()
{
    Watched watched;
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    watched.log.Take();
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUICheckBoxEvents::partlyCheckedCountsAsChecked()
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
             Lines({
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::numberOutsideTheEnumerationStaysUntilTheNextChange_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("above") << 3;
    QTest::newRow("far above") << 100000;
    QTest::newRow("below") << -1;
}

void tst_FxUICheckBoxEvents::numberOutsideTheEnumerationStaysUntilTheNextChange()
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

void tst_FxUICheckBoxEvents::numberOutsideTheEnumerationUnchecksACheckedBox()
{
    Watched watched;
    watched.box.setCheckState(CFxUICheckBox::Checked);
    watched.log.Take();
    watched.box.setCheckState(Number(3));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::blockedBoxFollowsInSilence()
{
    Watched watched;
    watched.box.blockSignals(true);
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.stateChanged(2) on 2 widget 2" }));
    watched.box.setCheckState(CFxUICheckBox::PartiallyChecked);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.stateChanged(1) on 1 widget 1" }));
    QTest::keyClick(Widget(watched.box), Qt::Key_Space);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.stateChanged(2) on 2 widget 2" }));
}

void tst_FxUICheckBoxEvents::slotThatBlocksSilencesWhatFollows()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.blockSignals(true); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
             }));
}

void tst_FxUICheckBoxEvents::eachEmissionTestsTheBlockForItself()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.blockSignals(true); });
    connect(Widget(watched.box), &QCheckBox::stateChanged, this,
            [&watched] { watched.box.blockSignals(false); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 "Qt.stateChanged(2) on 2 widget 2",
                 "stateChanged(2) on 2 widget 2",
             }));
}

void tst_FxUICheckBoxEvents::slotThatUnchecksInBetween()
{
    Watched watched;
    bool done = false;
    watched.box.stateChanged().connect([&](int) {
        if (!std::exchange(done, true))
            watched.box.setChecked(false);
    });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(2) on 2 widget 2",
                 // the call from within, in full
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 "Qt.stateChanged(0) off 0 widget 0",
                 "stateChanged(0) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
                 // the handler names what was reported, the setter what is so by then
                 "toggled(true) off 0 widget 0",
                 "Qt.stateChanged(2) off 0 widget 0",
                 "stateChanged(2) off 0 widget 0",
                 "toggled(false) off 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::slotThatChecksAgainStopsAtTheComparison()
{
    Watched watched;
    watched.box.stateChanged().connect([&watched](int) { watched.box.setChecked(true); });
    watched.box.setChecked(true);
    QCOMPARE(watched.log.Take().size(), 5);
}

void tst_FxUICheckBoxEvents::handlerTakesAnyNumberButNamesItAsReceived()
{
    Watched watched;
    Impl(watched.box)->OnSwitchChanged(7);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "stateChanged(7) on 0 widget 0",
                 "toggled(true) on 0 widget 0",
             }));
}

void tst_FxUICheckBoxEvents::clickedIsNeverEmitted()
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

int main(int argc, char **argv)
{
    return RunTest<tst_FxUICheckBoxEvents>(argc, argv);
}

#include "tst_FxUICheckBoxEvents.moc"
