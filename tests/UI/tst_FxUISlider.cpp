#include "UI/FxUISlider.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUISliderImpl.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUISlider>);
static_assert(!std::is_copy_constructible_v<CFxUISlider>);
static_assert(std::is_same_v<decltype(std::declval<CFxUISlider &>().valueChanged()),
                             CFxUISignal<void(int)> &>);

namespace {

QSlider *QtSlider(const CFxUISlider &slider)
{
    return qobject_cast<QSlider *>(slider.getHandle());
}

struct Probe : CFxUISliderImpl {
    static const CFxUISliderImpl &Of(const CFxUISlider &slider)
    {
        return *static_cast<const CFxUISliderImpl *>(slider.impl);
    }

    static int Minimum(const CFxUISlider &slider) { return Of(slider).*(&Probe::m_minimum); }

    static int Maximum(const CFxUISlider &slider) { return Of(slider).*(&Probe::m_maximum); }
};

QPoint HandleCentre(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

// Presses the handle, pulls it to the right end and lets it go.
void DragToTheRightEnd(QSlider *slider)
{
    slider->resize(200, slider->height());
    slider->show();
    const QPoint from = HandleCentre(slider);
    const QPoint to(slider->width() - 1, from.y());
    QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, slider->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &move);
    QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, to);
    slider->hide();
}

} // namespace

class tst_FxUISlider : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passesTheControlContract();
    void frontendIsAHorizontalQSliderWithItsSheet();
    void frontendClassNameIsQSlider();
    void isTwentyFiveHighInATallLayout();
    void startsAtZeroAndLeavesTheRangeToQt();
    void settersReachTheWidget();
    void setterWritesTheFieldBeforeTheWidgetReports();
    void setValueWithTheCurrentValueIsSilent();
    void setValueBeyondTheMaximumAtTheMaximumAnswersWhatWasAsked();
    void setValueBeyondTheMaximumFromElsewhereIsClamped();
    void setValueBelowTheMinimumIsClamped();
    void setMinimumAboveTheValuePushesIt();
    void setMaximumBelowTheValuePushesIt();
    void setMinimumWithinTheRangeIsSilent();
    void setRangeSetsTheMinimumFirst_data();
    void setRangeSetsTheMinimumFirst();
    void dragEmitsTheValue();
    void arrowKeyEmitsTheValue();
    void blockedSignalsSilenceADragAndKeepTheValue();
    void blockedSignalsSilenceASetter();
    void slotMaySetTheValueAgain();
    void valueDoesNotAskTheWidget();
    void settersWithoutHandleKeepTheState();
    void settersWithAForeignHandleKeepTheState();
    void widgetMovedAfterTheDeletionReachesNoOne();
};

void tst_FxUISlider::passesTheControlContract()
{
    ControlContract([] { return new CFxUISlider; });
}

void tst_FxUISlider::frontendIsAHorizontalQSliderWithItsSheet()
{
    const CFxUISlider slider;
    QVERIFY(QtSlider(slider));
    QCOMPARE(QtSlider(slider)->metaObject()->className(), "QSlider");
    QCOMPARE(QtSlider(slider)->styleSheet(), QStringLiteral("QSlider { }"));
    QCOMPARE(QtSlider(slider)->orientation(), Qt::Horizontal);
    QCOMPARE(QtSlider(slider)->minimumHeight(), 25);
    QCOMPARE(QtSlider(slider)->maximumHeight(), 25);
}

void tst_FxUISlider::frontendClassNameIsQSlider()
{
    const CFxUISlider slider;
    QCOMPARE(slider.impl->GetFrontendClassName(), QStringLiteral("QSlider"));
}

void tst_FxUISlider::isTwentyFiveHighInATallLayout()
{
    CFxUIVerticalLayout layout;
    auto *slider = new CFxUISlider;
    layout.addView(slider, 1.0f);
    auto *box = static_cast<QWidget *>(layout.getHandle());
    box->resize(300, 400);
    box->show();
    QCOMPARE(QtSlider(*slider)->height(), 25);
}

void tst_FxUISlider::startsAtZeroAndLeavesTheRangeToQt()
{
    const CFxUISlider slider;
    QCOMPARE(slider.value(), 0);
    QCOMPARE(Probe::Minimum(slider), 0);
    QCOMPARE(Probe::Maximum(slider), 100);
    QCOMPARE(QtSlider(slider)->minimum(), 0);
    QCOMPARE(QtSlider(slider)->maximum(), 99); // Qt's own default, not the record
    QCOMPARE(QtSlider(slider)->value(), 0);
}

void tst_FxUISlider::settersReachTheWidget()
{
    CFxUISlider slider;
    slider.setMinimum(-20);
    slider.setMaximum(500);
    slider.setValue(321);
    QCOMPARE(Probe::Minimum(slider), -20);
    QCOMPARE(Probe::Maximum(slider), 500);
    QCOMPARE(slider.value(), 321);
    QCOMPARE(QtSlider(slider)->minimum(), -20);
    QCOMPARE(QtSlider(slider)->maximum(), 500);
    QCOMPARE(QtSlider(slider)->value(), 321);
}

void tst_FxUISlider::setterWritesTheFieldBeforeTheWidgetReports()
{
    CFxUISlider slider;
    QList<int> emitted;
    QList<int> valueInSlot;
    slider.valueChanged().connect([&](int value) {
        emitted.append(value);
        valueInSlot.append(slider.value());
    });
    slider.setValue(7);
    QCOMPARE(emitted, QList<int>({ 7 })); // from inside the call
    QCOMPARE(valueInSlot, QList<int>({ 7 }));
}

void tst_FxUISlider::setValueWithTheCurrentValueIsSilent()
{
    CFxUISlider slider;
    slider.setValue(7);
    int emissions = 0;
    slider.valueChanged().connect([&emissions](int) { ++emissions; });
    slider.setValue(7);
    QCOMPARE(emissions, 0);
    QCOMPARE(slider.value(), 7);
}

void tst_FxUISlider::setValueBeyondTheMaximumAtTheMaximumAnswersWhatWasAsked()
{
    CFxUISlider slider;
    slider.setMaximum(50);
    slider.setValue(50);
    int emissions = 0;
    slider.valueChanged().connect([&emissions](int) { ++emissions; });
    slider.setValue(80);
    QCOMPARE(emissions, 0);
    QCOMPARE(slider.value(), 80);
    QCOMPARE(QtSlider(slider)->value(), 50);
}

void tst_FxUISlider::setValueBeyondTheMaximumFromElsewhereIsClamped()
{
    CFxUISlider slider;
    slider.setMaximum(50);
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    slider.setValue(80);
    QCOMPARE(emitted, QList<int>({ 50 }));
    QCOMPARE(slider.value(), 50);
}

void tst_FxUISlider::setValueBelowTheMinimumIsClamped()
{
    CFxUISlider slider;
    slider.setValue(20);
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    slider.setValue(-5);
    QCOMPARE(emitted, QList<int>({ 0 }));
    QCOMPARE(slider.value(), 0);
}

void tst_FxUISlider::setMinimumAboveTheValuePushesIt()
{
    CFxUISlider slider;
    QList<int> emitted;
    slider.valueChanged().connect([&](int value) {
        emitted.append(value);
        QCOMPARE(slider.value(), value);
    });
    slider.setMinimum(10);
    QCOMPARE(emitted, QList<int>({ 10 }));
    QCOMPARE(slider.value(), 10);
}

void tst_FxUISlider::setMaximumBelowTheValuePushesIt()
{
    CFxUISlider slider;
    slider.setValue(60);
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    slider.setMaximum(30);
    QCOMPARE(emitted, QList<int>({ 30 }));
    QCOMPARE(slider.value(), 30);
}

void tst_FxUISlider::setMinimumWithinTheRangeIsSilent()
{
    CFxUISlider slider;
    slider.setValue(60);
    int emissions = 0;
    slider.valueChanged().connect([&emissions](int) { ++emissions; });
    slider.setMinimum(10);
    slider.setMaximum(70);
    QCOMPARE(emissions, 0);
    QCOMPARE(slider.value(), 60);
}

void tst_FxUISlider::setRangeSetsTheMinimumFirst_data()
{
    QTest::addColumn<bool>("throughTheImplementationObject");
    QTest::newRow("public operation") << false;
    QTest::newRow("operation of the implementation object") << true;
}

// A range the wrong way round shows the order: setMaximum() comes last and pulls the minimum down,
// while QSlider::setRange(20, 10) would have left both at 20.
void tst_FxUISlider::setRangeSetsTheMinimumFirst()
{
    QFETCH(bool, throughTheImplementationObject);
    CFxUISlider slider;
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    if (throughTheImplementationObject)
        static_cast<CFxUISliderImpl *>(slider.impl)->setRange(20, 10);
    else
        slider.setRange(20, 10);
    QCOMPARE(emitted, QList<int>({ 20, 10 }));
    QCOMPARE(QtSlider(slider)->minimum(), 10);
    QCOMPARE(QtSlider(slider)->maximum(), 10);
    QCOMPARE(Probe::Minimum(slider), 20);
    QCOMPARE(Probe::Maximum(slider), 10);
}

void tst_FxUISlider::dragEmitsTheValue()
{
    CFxUISlider slider;
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    DragToTheRightEnd(QtSlider(slider));
    QCOMPARE(emitted, QList<int>({ 99 }));
    QCOMPARE(slider.value(), 99);
}

void tst_FxUISlider::arrowKeyEmitsTheValue()
{
    CFxUISlider slider;
    QList<int> emitted;
    slider.valueChanged().connect([&emitted](int value) { emitted.append(value); });
    QTest::keyClick(QtSlider(slider), Qt::Key_Right);
    QTest::keyClick(QtSlider(slider), Qt::Key_End);
    QCOMPARE(emitted, QList<int>({ 1, 99 }));
    QCOMPARE(slider.value(), 99);
}

void tst_FxUISlider::blockedSignalsSilenceADragAndKeepTheValue()
{
    CFxUISlider slider;
    int emissions = 0;
    slider.valueChanged().connect([&emissions](int) { ++emissions; });
    slider.blockSignals(true);
    DragToTheRightEnd(QtSlider(slider));
    QCOMPARE(emissions, 0);
    QCOMPARE(slider.value(), 99);
}

void tst_FxUISlider::blockedSignalsSilenceASetter()
{
    CFxUISlider slider;
    const QSignalSpy qtChanges(QtSlider(slider), &QSlider::valueChanged);
    int emissions = 0;
    slider.valueChanged().connect([&emissions](int) { ++emissions; });
    slider.blockSignals(true);
    slider.setValue(200);
    QCOMPARE(emissions, 0);
    QCOMPARE(qtChanges.size(), 1); // the widget's own signals aren't blocked
    QCOMPARE(slider.value(), 99);
}

void tst_FxUISlider::slotMaySetTheValueAgain()
{
    CFxUISlider slider;
    QList<int> emitted;
    slider.valueChanged().connect([&](int value) {
        emitted.append(value);
        if (value % 2)
            slider.setValue(value + 1);
    });
    slider.setValue(7);
    QCOMPARE(emitted, QList<int>({ 7, 8 }));
    QCOMPARE(slider.value(), 8);
    QCOMPARE(QtSlider(slider)->value(), 8);
}

void tst_FxUISlider::valueDoesNotAskTheWidget()
{
    CFxUISlider slider;
    slider.setValue(7);
    const QSignalBlocker blocker(QtSlider(slider));
    QtSlider(slider)->setValue(40);
    QCOMPARE(slider.value(), 7);
}

void tst_FxUISlider::settersWithoutHandleKeepTheState()
{
    CFxUISlider slider;
    const std::unique_ptr<QObject> handle(slider.getHandle());
    slider.setHandle(nullptr);
    slider.setRange(300, 400);
    slider.setValue(1000);
    QCOMPARE(slider.value(), 1000);
    QCOMPARE(Probe::Minimum(slider), 300);
    QCOMPARE(Probe::Maximum(slider), 400);
    QCOMPARE(static_cast<QSlider *>(handle.get())->value(), 0);
    QCOMPARE(static_cast<QSlider *>(handle.get())->maximum(), 99);
}

void tst_FxUISlider::settersWithAForeignHandleKeepTheState()
{
    CFxUISlider slider;
    const std::unique_ptr<QObject> handle(slider.getHandle());
    QLabel foreign;
    slider.setHandle(&foreign);
    slider.setRange(300, 400);
    slider.setValue(1000);
    QCOMPARE(slider.value(), 1000);
    QCOMPARE(foreign.text(), QString());
    slider.setHandle(nullptr);
}

void tst_FxUISlider::widgetMovedAfterTheDeletionReachesNoOne()
{
    auto slider = std::make_unique<CFxUISlider>();
    int emissions = 0;
    slider->valueChanged().connect([&emissions](int) { ++emissions; });
    const QPointer<QSlider> widget(QtSlider(*slider));
    slider.reset();
    QVERIFY(widget);
    widget->setValue(5);
    QCOMPARE(emissions, 0);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUISlider>(argc, argv);
}

#include "tst_FxUISlider.moc"
