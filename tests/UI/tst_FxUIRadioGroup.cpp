#include "UI/FxUIRadioGroup.h"

#include "support/TestMain.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/RadioGroupTools.h"

#include <QtTest/QTest>

#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIRadioGroup>);
static_assert(!std::is_copy_constructible_v<CFxUIRadioGroup>);

using namespace RadioGroupTools;

class tst_FxUIRadioGroup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handleIsAButtonGroupWithoutParent();
    void viewOperationsKeepTheStateAndReachNoWidget();
    void takesNoPlaceInTheGroupBox();
    void buttonBecomesAChildAndItsWidgetGoesToTheEndOfTheBox();
    void buttonLeavesItsFormerParent();
    void buttonGroupStaysEmpty();
    void buttonsOfABoxExcludeEachOtherAcrossGroups();
    void layoutsServeAsContainersToo();
    void buttonOfAGroupWithoutAContainerIsPutNowhere();
    void buttonOfAGroupInAViewWithoutALayoutIsPutNowhere();
    void buttonWithoutAWidgetIsListedAlone();
    void nullButtonIsPassedOver();
    void buttonAddedTwiceStandsTwiceInTheList();
    void implAddRadioButtonLeavesTheParentToTheCaller();
    void titleIsShownNowhere();
    void currentAndTextHaveNoEffect();
    void currentIndexSwitchesTheButtonsInListOrder();
    void currentIndexOutsideTheListSwitchesEachButtonOff_data();
    void currentIndexOutsideTheListSwitchesEachButtonOff();
    void currentIndexIsSetOnAButtonListedTwiceInItsTurn();
};

void tst_FxUIRadioGroup::handleIsAButtonGroupWithoutParent()
{
    const GroupPointer group = NewGroup();
    QVERIFY(Handle(*group));
    QCOMPARE(Handle(*group)->metaObject(), &QButtonGroup::staticMetaObject);
    QVERIFY(!Handle(*group)->parent());
    QVERIFY(!group->getHandle()->isWidgetType());
    QVERIFY(group->children().isEmpty());
    QCOMPARE(group->impl->GetFrontendClassName(), QStringLiteral("QButtonGroup"));
}

void tst_FxUIRadioGroup::viewOperationsKeepTheStateAndReachNoWidget()
{
    const GroupPointer group = NewGroup();
    int shown = 0;
    group->aboutToShow().connect([&shown] { ++shown; });
    for (const bool withHandle : { true, false }) {
        if (!withHandle) {
            delete group->getHandle();
            QVERIFY(!group->getHandle());
        }
        group->setEnabled(false);
        group->setVisible(true);
        group->setPreferableSize(30, 40);
        group->setBorderWidth(1);
        group->setMinimumWidth(5);
        group->setFocus();
        group->update();
        QVERIFY(!group->isEnabled());
        QVERIFY(group->isVisible());
        QCOMPARE(group->width(), 30);
        group->setVisible(false);
        group->setEnabled(true);
    }
    QCOMPARE(shown, 2);
    group->blockSignals(true);
    group->setVisible(true);
    QVERIFY(group->isVisible());
    QCOMPARE(shown, 2);
}

void tst_FxUIRadioGroup::takesNoPlaceInTheGroupBox()
{
    CFxUIGroupBox box;
    const GroupPointer group = NewGroup();
    box.addView(group.get());
    QCOMPARE(group->parent(), &box);
    QCOMPARE(box.children(), QList<CFxUIObject *> { group.get() });
    QCOMPARE(QtLayout(box)->count(), 0);
}

void tst_FxUIRadioGroup::buttonBecomesAChildAndItsWidgetGoesToTheEndOfTheBox()
{
    CFxUIGroupBox box;
    auto *label = new CFxUILabel;
    box.addView(label);
    const GroupPointer group = NewGroup();
    box.addView(group.get());
    auto *button = new CFxUIRadioButton;
    group->addRadioButton(button);
    QCOMPARE(button->parent(), group.get());
    QCOMPARE(ImplProbe::Buttons(*group), QList<CFxUIRadioButton *> { button });
    QCOMPARE(QtLayout(box)->indexOf(Widget(button)), 1);
    QCOMPARE(QtLayout(box)->stretch(1), 0);
    QCOMPARE(QtLayout(box)->itemAt(1)->alignment(), Qt::Alignment());
    QCOMPARE(Widget(button)->parentWidget(), qobject_cast<QWidget *>(box.getHandle()));
    QCOMPARE(Widget(button)->sizePolicy(),
             QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding));
}

void tst_FxUIRadioGroup::buttonLeavesItsFormerParent()
{
    GroupInABox fixture;
    CFxUIVerticalLayout former;
    auto *button = new CFxUIRadioButton;
    former.addView(button);
    fixture.group->addRadioButton(button);
    QCOMPARE(button->parent(), fixture.group.get());
    QVERIFY(former.children().isEmpty());
    QCOMPARE(QtLayout(fixture.box)->indexOf(Widget(button)), 3);
}

void tst_FxUIRadioGroup::buttonGroupStaysEmpty()
{
    const GroupInABox fixture;
    QVERIFY(Handle(*fixture.group)->buttons().isEmpty());
    QVERIFY(!Widget(fixture.buttons.first())->group());
}

void tst_FxUIRadioGroup::buttonsOfABoxExcludeEachOtherAcrossGroups()
{
    GroupInABox fixture;
    const GroupPointer other = NewGroup();
    fixture.box.addView(other.get());
    auto *button = new CFxUIRadioButton;
    other->addRadioButton(button);
    fixture.CheckFirstInTheWidget();
    Widget(fixture.buttons.at(1))->setChecked(true);
    QCOMPARE(fixture.State(), QStringLiteral("--- widgets -+-"));
    Widget(button)->setChecked(true);
    QCOMPARE(fixture.State(), QStringLiteral("--- widgets ---"));
}

void tst_FxUIRadioGroup::layoutsServeAsContainersToo()
{
    CFxUIVerticalLayout column;
    CFxUIHorizontalLayout row;
    for (CFxUIBaseView *container :
         { static_cast<CFxUIBaseView *>(&column), static_cast<CFxUIBaseView *>(&row) }) {
        const GroupPointer group = NewGroup();
        container->addView(group.get());
        QCOMPARE(QtLayout(*container)->count(), 0);
        auto *button = new CFxUIRadioButton;
        group->addRadioButton(button);
        QCOMPARE(QtLayout(*container)->indexOf(Widget(button)), 0);
    }
}

void tst_FxUIRadioGroup::buttonOfAGroupWithoutAContainerIsPutNowhere()
{
    const GroupPointer group = NewGroup();
    auto *button = new CFxUIRadioButton;
    group->addRadioButton(button);
    QCOMPARE(button->parent(), group.get());
    QCOMPARE(ImplProbe::Buttons(*group), QList<CFxUIRadioButton *> { button });
    QVERIFY(!Widget(button)->parentWidget());
}

void tst_FxUIRadioGroup::buttonOfAGroupInAViewWithoutALayoutIsPutNowhere()
{
    CFxUILabel label;
    CFxUIBaseView bare; // neither implementation object nor handle
    for (CFxUIBaseView *container : { static_cast<CFxUIBaseView *>(&label), &bare }) {
        const GroupPointer group = NewGroup();
        container->addView(group.get());
        auto *button = new CFxUIRadioButton;
        group->addRadioButton(button);
        QVERIFY(!Widget(button)->parentWidget());
    }
}

void tst_FxUIRadioGroup::buttonWithoutAWidgetIsListedAlone()
{
    GroupInABox fixture;
    auto *button = new CFxUIRadioButton;
    delete button->getHandle();
    fixture.group->addRadioButton(button);
    QCOMPARE(ImplProbe::Buttons(*fixture.group).size(), 4);
    QCOMPARE(QtLayout(fixture.box)->count(), 3);
}

void tst_FxUIRadioGroup::nullButtonIsPassedOver()
{
    GroupInABox fixture;
    fixture.group->addRadioButton(nullptr);
    Impl(*fixture.group)->AddRadioButton(nullptr);
    QCOMPARE(ImplProbe::Buttons(*fixture.group).size(), 3);
}

void tst_FxUIRadioGroup::buttonAddedTwiceStandsTwiceInTheList()
{
    GroupInABox fixture;
    CFxUIRadioButton *button = fixture.buttons.first();
    fixture.group->addRadioButton(button);
    QCOMPARE(ImplProbe::Buttons(*fixture.group),
             (QList<CFxUIRadioButton *>(fixture.buttons) << button));
    QCOMPARE(fixture.group->children().size(), 3);
    QCOMPARE(fixture.group->children().last(), button);
}

void tst_FxUIRadioGroup::implAddRadioButtonLeavesTheParentToTheCaller()
{
    GroupInABox fixture;
    CFxUIRadioButton button;
    Impl(*fixture.group)->AddRadioButton(&button);
    QVERIFY(!button.parent());
    QCOMPARE(ImplProbe::Buttons(*fixture.group).last(), &button);
    QCOMPARE(QtLayout(fixture.box)->indexOf(Widget(&button)), 3);
    Impl(*fixture.group)->OnCurrentIndexChanged(3);
    QVERIFY(button.isChecked());
}

void tst_FxUIRadioGroup::titleIsShownNowhere()
{
    GroupInABox fixture;
    const QImage before = qobject_cast<QWidget *>(fixture.box.getHandle())->grab().toImage();
    fixture.group->setTitle(QStringLiteral("Units"));
    QCOMPARE(ImplProbe::Title(*fixture.group), QStringLiteral("Units"));
    QCOMPARE(fixture.box.title(), QString());
    QCOMPARE(qobject_cast<QWidget *>(fixture.box.getHandle())->grab().toImage(), before);
}

void tst_FxUIRadioGroup::currentAndTextHaveNoEffect()
{
    GroupInABox fixture;
    CFxUIRadioButton stranger;
    for (CFxUIRadioButton *button : { fixture.buttons.at(1), &stranger }) {
        Impl(*fixture.group)->SetCurrent(button);
        Impl(*fixture.group)->SetText(button, QStringLiteral("text"));
        QVERIFY(button->text().isEmpty());
        QVERIFY(Widget(button)->text().isEmpty());
    }
    QCOMPARE(fixture.State(), QStringLiteral("--- widgets ---"));
}

void tst_FxUIRadioGroup::currentIndexSwitchesTheButtonsInListOrder()
{
    GroupInABox fixture;
    fixture.Watch();
    Impl(*fixture.group)->OnCurrentIndexChanged(2);
    QCOMPARE(fixture.toggles, QStringList { QStringLiteral("2+") });
    QCOMPARE(fixture.State(), QStringLiteral("--+ widgets --+"));
    fixture.toggles.clear();
    Impl(*fixture.group)->OnCurrentIndexChanged(0);
    QCOMPARE(fixture.toggles, (QStringList { QStringLiteral("0+"), QStringLiteral("2-") }));
    QCOMPARE(fixture.State(), QStringLiteral("+-- widgets +--"));
    fixture.toggles.clear();
    Impl(*fixture.group)->OnCurrentIndexChanged(1);
    // The first one is switched off before the second is on, which Qt doesn't permit: its widget
    // goes off with the second's going on.
    QCOMPARE(fixture.toggles, (QStringList { QStringLiteral("0-"), QStringLiteral("1+") }));
    QCOMPARE(fixture.State(), QStringLiteral("-+- widgets -+-"));
}

void tst_FxUIRadioGroup::currentIndexOutsideTheListSwitchesEachButtonOff_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("count") << 3;
}

void tst_FxUIRadioGroup::currentIndexOutsideTheListSwitchesEachButtonOff()
{
    QFETCH(int, index);
    GroupInABox fixture;
    Impl(*fixture.group)->OnCurrentIndexChanged(1);
    fixture.Watch();
    Impl(*fixture.group)->OnCurrentIndexChanged(index);
    QCOMPARE(fixture.toggles, QStringList { QStringLiteral("1-") });
    QCOMPARE(fixture.State(), QStringLiteral("--- widgets -+-")); // Qt keeps the checked one
}

void tst_FxUIRadioGroup::currentIndexIsSetOnAButtonListedTwiceInItsTurn()
{
    GroupInABox fixture;
    fixture.group->addRadioButton(fixture.buttons.first());
    fixture.Watch();
    Impl(*fixture.group)->OnCurrentIndexChanged(0);
    QCOMPARE(fixture.toggles, (QStringList { QStringLiteral("0+"), QStringLiteral("0-") }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIRadioGroup>(argc, argv);
}

#include "tst_FxUIRadioGroup.moc"
