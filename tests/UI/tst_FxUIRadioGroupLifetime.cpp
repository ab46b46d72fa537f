#include "UI/FxUIRadioGroup.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/RadioGroupTools.h"

#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtTest/QTest>

#include <memory>

using namespace RadioGroupTools;

class tst_FxUIRadioGroupLifetime : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void buttonAddedByASlotIsReached();
    void deletedButtonLeavesAGap();
    void buttonDeletedByASlotOfAnotherIsPassedOver();
    void buttonThatMovedAwayIsStillSwitched();
    void buttonThatMovedAwayOutlivesTheGroup();
    void groupDeletesItsButtons();
    void nobodyDeletesTheButtonGroup();
    void buttonGroupMayBeDeletedFirst();
};

void tst_FxUIRadioGroupLifetime::buttonAddedByASlotIsReached()
{
    GroupInABox fixture;
    CFxUIRadioButton *added = nullptr;
    fixture.buttons.last()->toggled().connect([&](bool) {
        added = new CFxUIRadioButton;
        added->setChecked(true);
        fixture.group->addRadioButton(added);
    });
    Impl(*fixture.group)->OnCurrentIndexChanged(2);
    QVERIFY(added);
    QVERIFY(!added->isChecked());
}

void tst_FxUIRadioGroupLifetime::deletedButtonLeavesAGap()
{
    GroupInABox fixture;
    delete fixture.buttons.takeAt(1);
    QCOMPARE(ImplProbe::Buttons(*fixture.group),
             (QList<CFxUIRadioButton *> { fixture.buttons.at(0), nullptr, fixture.buttons.at(1) }));
    Impl(*fixture.group)->OnCurrentIndexChanged(2);
    QCOMPARE(fixture.State(), QStringLiteral("-+ widgets -+"));
    Impl(*fixture.group)->OnCurrentIndexChanged(1);
    QCOMPARE(fixture.State(), QStringLiteral("-- widgets -+"));
}

void tst_FxUIRadioGroupLifetime::buttonDeletedByASlotOfAnotherIsPassedOver()
{
    GroupInABox fixture;
    fixture.buttons.first()->toggled().connect([&](bool) {
        delete fixture.buttons.takeLast();
        delete fixture.buttons.takeLast();
    });
    Impl(*fixture.group)->OnCurrentIndexChanged(0);
    QCOMPARE(fixture.State(), QStringLiteral("+ widgets +"));
}

void tst_FxUIRadioGroupLifetime::buttonThatMovedAwayIsStillSwitched()
{
    GroupInABox fixture;
    CFxUIRadioButton *button = fixture.buttons.at(1);
    fixture.group->removeView(button);
    QVERIFY(!button->parent());
    Impl(*fixture.group)->OnCurrentIndexChanged(1);
    QVERIFY(button->isChecked());
    delete button;
    fixture.buttons.removeAt(1);
    Impl(*fixture.group)->OnCurrentIndexChanged(1);
    QCOMPARE(fixture.State(), QStringLiteral("-- widgets --"));
}

void tst_FxUIRadioGroupLifetime::buttonThatMovedAwayOutlivesTheGroup()
{
    GroupInABox fixture;
    const std::unique_ptr<CFxUIRadioButton> button(fixture.buttons.at(1));
    button->setParent(nullptr);
    fixture.group.reset();
    button->setChecked(true);
    QVERIFY(button->isChecked());
}

void tst_FxUIRadioGroupLifetime::groupDeletesItsButtons()
{
    GroupInABox fixture;
    const QPointer<QObject> widget(fixture.buttons.first()->getHandle());
    fixture.group.reset();
    QVERIFY(fixture.box.children().isEmpty());
    FlushDeferredDeletes();
    QVERIFY(!widget);
    QCOMPARE(QtLayout(fixture.box)->count(), 0);
}

void tst_FxUIRadioGroupLifetime::nobodyDeletesTheButtonGroup()
{
    QVector<QPointer<QObject>> handles;
    for (int i = 0; i < 3; ++i) {
        CFxUIGroupBox box;
        auto *group = new CFxUIRadioGroup;
        box.addView(group);
        group->addRadioButton(new CFxUIRadioButton);
        handles.append(group->getHandle());
    }
    FlushDeferredDeletes();
    for (const QPointer<QObject> &handle : qAsConst(handles)) {
        QVERIFY(handle);
        QVERIFY(handle->children().isEmpty());
        QVERIFY(!handle->parent());
        delete handle;
    }
}

void tst_FxUIRadioGroupLifetime::buttonGroupMayBeDeletedFirst()
{
    GroupInABox fixture;
    delete fixture.group->getHandle();
    fixture.group->addRadioButton(new CFxUIRadioButton);
    QCOMPARE(QtLayout(fixture.box)->count(), 4);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIRadioGroupLifetime>(argc, argv);
}

#include "tst_FxUIRadioGroupLifetime.moc"
