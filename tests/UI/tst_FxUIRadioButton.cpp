#include "UI/FxUIRadioButton.h"

#include "support/ControlContract.h"
#include "support/EventRecorder.h"
#include "support/TestMain.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/Impl/FxUIRadioButtonImpl.h"
#include "UI/Impl/FxUIRadioGroupImpl.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QRadioButton>

#include <memory>
#include <type_traits>
#include <utility>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIRadioButton>);
static_assert(!std::is_copy_constructible_v<CFxUIRadioButton>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxUIRadioButton &>().text()), const QString &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIRadioButton &>().released()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIRadioButton &>().clicked()), CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIRadioButton &>().toggled()),
                             CFxUISignal<void(bool)> &>);

namespace {

QRadioButton *Widget(const CFxUIRadioButton &button)
{
    return qobject_cast<QRadioButton *>(button.getHandle());
}

CFxUIRadioButtonImpl *Impl(const CFxUIRadioButton &button)
{
    return static_cast<CFxUIRadioButtonImpl *>(button.impl);
}

class ImplProbe : public CFxUIRadioButtonImpl {
public:
    static CFxUIRadioGroupImpl *Container(const CFxUIRadioButton &button)
    {
        return Impl(button)->*(&ImplProbe::m_container);
    }
};

void Click(const CFxUIRadioButton &button)
{
    QTest::mouseClick(Widget(button), Qt::LeftButton, Qt::NoModifier,
                      QPoint(5, Widget(button)->height() / 2));
}

QString OnOff(bool on)
{
    return on ? QStringLiteral("on") : QStringLiteral("off");
}

// A button under observation. Each line of the log ends with what isChecked() answers and with the
// state of the widget.
struct Watched {
    Watched()
    {
        log.Listen("released", button.released());
        log.Listen("clicked", button.clicked());
        log.Listen("toggled", button.toggled());
        log.ListenToQt("Qt.toggled", Widget(button), &QRadioButton::toggled);
    }

    QString State() const
    {
        return QStringLiteral("%1 widget %2")
            .arg(OnOff(button.isChecked()), OnOff(Widget(button)->isChecked()));
    }

    CFxUIRadioButton button;
    EventRecorder log { [this] { return State(); } };
};

// Two buttons that exclude each other, as in Qt: their widgets share a parent.
struct Siblings {
    Siblings()
    {
        Widget(first.button)->setParent(&parent);
        Widget(second.button)->setParent(&parent);
    }

    QWidget parent;
    Watched first;
    Watched second;
};

} // namespace

class tst_FxUIRadioButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void startsUncheckedWithoutText();
    void widgetIsARadioButton();
    void textGoesToTheWidgetAndIsReturnedByReference();
    void clickEmitsClickedAndChangesNoState();
    void clickOnACheckedButtonEmitsClickedAgain();
    void spaceEmitsClicked();
    void isCheckedAnswersTheLastValueSetAfterAClick();
    void setCheckedReachesTheWidgetFirstAndEmitsToggledOnce();
    void setCheckedFalseOnAFreshButtonIsSilent();
    void setCheckedWithTheSameValueStillDrivesTheWidget();
    void setCheckedFalseAfterAClickDrivesTheWidgetInSilence();
    void siblingsRecordAndSignalsStay();
    void checkedExclusiveButtonCannotBeUncheckedInTheWidget();
    void blockedButtonFollowsInSilence();
    void slotThatUnchecksWins();
    void releasedIsNeverEmittedByTheWidget();
    void toggledHandlerStoresThenEmitsToggledAndReleased();
    void toggledHandlerEmitsReleasedForTheOldValueToo();
    void toggledHandlerTestsTheBlockBeforeEachEmission();
    void containerIsStoredByItsSetterAlone();
    void settersWithoutHandleKeepTheState();
    void widgetThatOutlivesTheButtonCallsNoHandler();
};

void tst_FxUIRadioButton::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUIRadioButton; });
}

void tst_FxUIRadioButton::startsUncheckedWithoutText()
{
    const CFxUIRadioButton button;
    QVERIFY(!button.isChecked());
    QVERIFY(button.text().isNull());
    QVERIFY(!Widget(button)->isChecked());
}

void tst_FxUIRadioButton::widgetIsARadioButton()
{
    const CFxUIRadioButton button;
    QVERIFY(Widget(button));
    QCOMPARE(Widget(button)->metaObject(), &QRadioButton::staticMetaObject);
    QCOMPARE(Widget(button)->styleSheet(), QStringLiteral("QRadioButton { }"));
    QCOMPARE(button.impl->GetFrontendClassName(), QStringLiteral("QRadioButton"));
}

void tst_FxUIRadioButton::textGoesToTheWidgetAndIsReturnedByReference()
{
    CFxUIRadioButton button;
    const QString &text = button.text();
    button.setText(QStringLiteral("Metric"));
    QCOMPARE(text, QStringLiteral("Metric"));
    QCOMPARE(Widget(button)->text(), QStringLiteral("Metric"));
}

void tst_FxUIRadioButton::clickEmitsClickedAndChangesNoState()
{
    Watched watched;
    Click(watched.button);
    QCOMPARE(watched.log.Take(),
             Lines({ "Qt.toggled(true) off widget on", "clicked() off widget on" }));
}

void tst_FxUIRadioButton::clickOnACheckedButtonEmitsClickedAgain()
{
    Watched watched;
    Click(watched.button);
    watched.log.Take();
    Click(watched.button);
    QCOMPARE(watched.log.Take(), Lines({ "clicked() off widget on" }));
}

void tst_FxUIRadioButton::spaceEmitsClicked()
{
    Watched watched;
    QTest::keyClick(Widget(watched.button), Qt::Key_Space);
    QCOMPARE(watched.log.Take(),
             Lines({ "Qt.toggled(true) off widget on", "clicked() off widget on" }));
}

void tst_FxUIRadioButton::isCheckedAnswersTheLastValueSetAfterAClick()
{
    Siblings siblings;
    siblings.first.button.setChecked(true);
    Click(siblings.second.button);
    QVERIFY(siblings.first.button.isChecked());
    QVERIFY(!siblings.second.button.isChecked());
    QVERIFY(!Widget(siblings.first.button)->isChecked());
    QVERIFY(Widget(siblings.second.button)->isChecked());
}

void tst_FxUIRadioButton::setCheckedReachesTheWidgetFirstAndEmitsToggledOnce()
{
    Watched watched;
    watched.button.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({ "Qt.toggled(true) off widget on", "toggled(true) on widget on" }));
}

void tst_FxUIRadioButton::setCheckedFalseOnAFreshButtonIsSilent()
{
    Watched watched;
    watched.button.setChecked(false);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIRadioButton::setCheckedWithTheSameValueStillDrivesTheWidget()
{
    Siblings siblings;
    siblings.first.button.setChecked(true);
    Click(siblings.second.button);
    siblings.first.log.Take();
    siblings.second.log.Take();
    siblings.first.button.setChecked(true);
    QCOMPARE(siblings.first.log.Take(), Lines({ "Qt.toggled(true) on widget on" }));
    QCOMPARE(siblings.second.log.Take(), Lines({ "Qt.toggled(false) off widget off" }));
}

void tst_FxUIRadioButton::setCheckedFalseAfterAClickDrivesTheWidgetInSilence()
{
    Watched watched;
    Click(watched.button);
    watched.log.Take();
    Widget(watched.button)->setAutoExclusive(false); // else Qt keeps a checked button checked
    watched.button.setChecked(false);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.toggled(false) off widget off" }));
}

void tst_FxUIRadioButton::siblingsRecordAndSignalsStay()
{
    Siblings siblings;
    siblings.first.button.setChecked(true);
    siblings.first.log.Take();
    siblings.second.button.setChecked(true);
    QCOMPARE(siblings.first.log.Take(), Lines({ "Qt.toggled(false) on widget off" }));
    QCOMPARE(siblings.second.log.Take(),
             Lines({ "Qt.toggled(true) off widget on", "toggled(true) on widget on" }));
    siblings.first.button.setChecked(false);
    QCOMPARE(siblings.first.log.Take(), Lines({ "toggled(false) off widget off" }));
}

void tst_FxUIRadioButton::checkedExclusiveButtonCannotBeUncheckedInTheWidget()
{
    Siblings siblings;
    siblings.first.button.setChecked(true);
    siblings.first.log.Take();
    siblings.first.button.setChecked(false);
    QCOMPARE(siblings.first.log.Take(), Lines({ "toggled(false) off widget on" }));
}

void tst_FxUIRadioButton::blockedButtonFollowsInSilence()
{
    Watched watched;
    watched.button.blockSignals(true);
    watched.button.setChecked(true);
    Click(watched.button);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.toggled(true) off widget on" }));
    QVERIFY(watched.button.isChecked());
}

void tst_FxUIRadioButton::slotThatUnchecksWins()
{
    Watched watched;
    bool done = false;
    watched.button.toggled().connect([&](bool) {
        if (!std::exchange(done, true))
            watched.button.setChecked(false);
    });
    Widget(watched.button)->setAutoExclusive(false);
    watched.button.setChecked(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "Qt.toggled(true) off widget on",
                 "toggled(true) on widget on",
                 "Qt.toggled(false) on widget off",
                 "toggled(false) off widget off",
             }));
}

void tst_FxUIRadioButton::releasedIsNeverEmittedByTheWidget()
{
    Watched watched;
    int pressesAndReleases = 0;
    connect(Widget(watched.button), &QRadioButton::pressed, this, [&] { ++pressesAndReleases; });
    connect(Widget(watched.button), &QRadioButton::released, this, [&] { ++pressesAndReleases; });
    Click(watched.button);
    QCOMPARE(pressesAndReleases, 2);
    watched.button.setChecked(true);
    watched.button.setChecked(false);
    QVERIFY(watched.log.Take().filter(QStringLiteral("released")).isEmpty());
}

void tst_FxUIRadioButton::toggledHandlerStoresThenEmitsToggledAndReleased()
{
    Watched watched;
    Impl(watched.button)->OnToggled(true);
    QCOMPARE(watched.log.Take(),
             Lines({ "toggled(true) on widget off", "released() on widget off" }));
}

void tst_FxUIRadioButton::toggledHandlerEmitsReleasedForTheOldValueToo()
{
    Watched watched;
    Impl(watched.button)->OnToggled(false);
    QCOMPARE(watched.log.Take(), Lines({ "released() off widget off" }));
}

void tst_FxUIRadioButton::toggledHandlerTestsTheBlockBeforeEachEmission()
{
    Watched watched;
    watched.button.toggled().connect([&](bool) { watched.button.blockSignals(true); });
    Impl(watched.button)->OnToggled(true);
    QCOMPARE(watched.log.Take(), Lines({ "toggled(true) on widget off" }));
    Impl(watched.button)->OnToggled(false);
    QCOMPARE(watched.log.Take(), QStringList());
    QVERIFY(!watched.button.isChecked());
}

void tst_FxUIRadioButton::containerIsStoredByItsSetterAlone()
{
    CFxUIGroupBox box;
    auto *group = new CFxUIRadioGroup;
    box.addView(group);
    auto *button = new CFxUIRadioButton;
    group->addRadioButton(button);
    QVERIFY(!ImplProbe::Container(*button));
    auto *groupImpl = static_cast<CFxUIRadioGroupImpl *>(group->impl);
    Impl(*button)->SetContainer(groupImpl);
    QCOMPARE(ImplProbe::Container(*button), groupImpl);
}

void tst_FxUIRadioButton::settersWithoutHandleKeepTheState()
{
    CFxUIRadioButton button;
    const std::unique_ptr<QObject> widget(button.getHandle());
    int toggles = 0;
    button.toggled().connect([&toggles](bool) { ++toggles; });
    button.setHandle(nullptr);
    button.setText(QStringLiteral("text"));
    button.setChecked(true);
    QCOMPARE(button.text(), QStringLiteral("text"));
    QVERIFY(button.isChecked());
    QObject foreign;
    button.setHandle(&foreign);
    button.setText(QString());
    button.setChecked(false);
    QVERIFY(!button.isChecked());
    QCOMPARE(toggles, 2);
    button.setHandle(nullptr);
}

void tst_FxUIRadioButton::widgetThatOutlivesTheButtonCallsNoHandler()
{
    auto button = std::make_unique<CFxUIRadioButton>();
    const QPointer<QRadioButton> widget(Widget(*button));
    button.reset();
    QVERIFY(widget);
    widget->click();
    QVERIFY(widget->isChecked());
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIRadioButton>(argc, argv);
}

#include "tst_FxUIRadioButton.moc"
