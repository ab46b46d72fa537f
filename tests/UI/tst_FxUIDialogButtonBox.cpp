#include "UI/FxUIDialogButtonBox.h"

#include "ButtonBoxTools.h"
#include "support/ControlContract.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"

#include <QtTest/QTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <type_traits>

using namespace ButtonBoxTools;

static_assert(std::is_base_of_v<CFxUIBaseView, Box>);
static_assert(!std::is_copy_constructible_v<Box>);
static_assert(std::is_same_v<decltype(std::declval<Box &>().accepted()), CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<Box &>().rejected()), CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<Box &>().helpRequest()), CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<Box &>().clicked()),
                             CFxUISignal<void(CFxUIPushButton *)> &>);
static_assert(Box::Ok == 0x400 && Box::Cancel == 0x400000 && Box::Help == 0x1000000);
static_assert(std::is_same_v<Box::StandardButtons, QFlags<Box::StandardButton>>);

class tst_FxUIDialogButtonBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void passesTheControlContract();
    void frontendIsAQDialogButtonBoxWithThreeButtons();
    void frontendClassNameIsEmpty();
    void takesItsPlaceBelowTheContent();
    void belongsToTheDialogInTheTreeOfObjects();
    void setStandardButtonsChangesNothing_data();
    void setStandardButtonsChangesNothing();
    void buttonByExactNumberAlone_data();
    void buttonByExactNumberAlone();
    void wrappersHoldTheQtButtons();
    void wrappersTextIsARecordAlone();
    void wrappersReachTheButtonAsAnyView();
    void boxThatGoesBeforeItsDialogLeavesNoTrace();
    void boxWithoutADialogReportsItsPresses();
    void boxOfADialogThatIsNotSetUpIsInNoLayout();
    void qtButtonsAreDeletedOnceWithTheirBox();
    void wrappersLetGoOfTheQtButtonsBeforeAnyDies();
};

void tst_FxUIDialogButtonBox::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialogButtonBox::passesTheControlContract()
{
    ControlContract([] { return new Box(nullptr); });
}

void tst_FxUIDialogButtonBox::frontendIsAQDialogButtonBoxWithThreeButtons()
{
    const Fixture fixture;
    const QDialogButtonBox *qtBox = QtBox(*fixture.box);
    QVERIFY(qtBox);
    QCOMPARE(qtBox->metaObject()->className(), "QDialogButtonBox");
    QCOMPARE(int(qtBox->standardButtons()), 0x1400400);
    QCOMPARE(qtBox->minimumHeight(), 30);
    QVERIFY(qtBox->height() >= 30);
    QCOMPARE(qtBox->styleSheet(), QString());
    QCOMPARE(qtBox->window(), Window(fixture.dialog));
}

void tst_FxUIDialogButtonBox::frontendClassNameIsEmpty()
{
    const Box box(nullptr);
    QVERIFY(box.impl->GetFrontendClassName().isEmpty());
    const QObject *handle = box.getHandle();
    box.impl->CreateFrontendControl(); // the generic path makes nothing without a name
    QCOMPARE(box.getHandle(), handle);
}

void tst_FxUIDialogButtonBox::takesItsPlaceBelowTheContent()
{
    Fixture fixture;
    auto *content = static_cast<QWidget *>(fixture.dialog.GetLayout()->getHandle());
    auto *layout = qobject_cast<QVBoxLayout *>(content->layout());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->indexOf(QtBox(*fixture.box)), 1);
    QCOMPARE(layout->stretch(1), 0);
}

void tst_FxUIDialogButtonBox::belongsToTheDialogInTheTreeOfObjects()
{
    Fixture fixture;
    QCOMPARE(fixture.box->parent(), &fixture.dialog);
    QVERIFY(fixture.dialog.children().contains(fixture.box));
    QCOMPARE(fixture.dialog.GetLayout()->indexOf(fixture.box), -1);
    QVERIFY(fixture.box->children().isEmpty()); // the wrappers stand outside the tree
}

void tst_FxUIDialogButtonBox::setStandardButtonsChangesNothing_data()
{
    QTest::addColumn<int>("buttons");
    QTest::newRow("none") << 0;
    QTest::newRow("Ok") << int(Box::Ok);
    QTest::newRow("Yes and No") << int(Box::Yes | Box::No);
    QTest::newRow("all") << -1;
}

void tst_FxUIDialogButtonBox::setStandardButtonsChangesNothing()
{
    QFETCH(int, buttons);
    const Fixture fixture;
    const QList<QAbstractButton *> before = QtBox(*fixture.box)->buttons();
    fixture.box->setStandardButtons(Box::StandardButtons(QFlag(buttons)));
    QCOMPARE(int(QtBox(*fixture.box)->standardButtons()), 0x1400400);
    QCOMPARE(QtBox(*fixture.box)->buttons(), before);
    QVERIFY(fixture.box->button(Box::Ok) && fixture.box->button(Box::Cancel)
            && fixture.box->button(Box::Help));
}

void tst_FxUIDialogButtonBox::buttonByExactNumberAlone_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("NoButton") << int(Box::NoButton);
    for (int bit = 0x400; bit <= 0x8000000; bit *= 2) {
        if (bit != Box::Ok && bit != Box::Cancel && bit != Box::Help)
            QTest::addRow("0x%x", unsigned(bit)) << bit;
    }
    QTest::newRow("Ok and Cancel") << int(Box::Ok | Box::Cancel);
    QTest::newRow("all three") << int(Box::Ok | Box::Cancel | Box::Help);
    QTest::newRow("-1") << -1;
}

void tst_FxUIDialogButtonBox::buttonByExactNumberAlone()
{
    QFETCH(int, number);
    const Box box(nullptr);
    QVERIFY(!box.button(static_cast<Box::StandardButton>(number)));
    QVERIFY(box.button(Box::Ok) && box.button(Box::Cancel) && box.button(Box::Help));
}

void tst_FxUIDialogButtonBox::wrappersHoldTheQtButtons()
{
    const Fixture fixture;
    for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help }) {
        const CFxUIPushButton *wrapper = fixture.box->button(which);
        QCOMPARE(wrapper->getHandle(), QtButton(*fixture.box, which));
        QCOMPARE(wrapper->getHandle()->metaObject()->className(), "QPushButton");
        QVERIFY(!wrapper->parent());
    }
    // The widgets that the wrappers had made for themselves are gone already.
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets)
        QVERIFY(!qobject_cast<const CFxUIPushButtonFrontend *>(widget));
}

void tst_FxUIDialogButtonBox::wrappersTextIsARecordAlone()
{
    const Fixture fixture;
    CFxUIPushButton *wrapper = fixture.box->button(Box::Ok);
    const QString caption = QtButton(*fixture.box, Box::Ok)->text();
    QVERIFY(!caption.isEmpty());
    QVERIFY(wrapper->text().isNull());
    wrapper->setText(QStringLiteral("Go"));
    QCOMPARE(wrapper->text(), QStringLiteral("Go"));
    QCOMPARE(QtButton(*fixture.box, Box::Ok)->text(), caption);
}

void tst_FxUIDialogButtonBox::wrappersReachTheButtonAsAnyView()
{
    const Fixture fixture;
    CFxUIPushButton *wrapper = fixture.box->button(Box::Ok);
    wrapper->setEnabled(false);
    wrapper->setMinimumWidth(150);
    QVERIFY(!QtButton(*fixture.box, Box::Ok)->isEnabled());
    QCOMPARE(QtButton(*fixture.box, Box::Ok)->minimumWidth(), 150);
    wrapper->setVisible(false);
    QVERIFY(QtButton(*fixture.box, Box::Ok)->isHidden());
}

void tst_FxUIDialogButtonBox::boxThatGoesBeforeItsDialogLeavesNoTrace()
{
    Fixture fixture;
    const QPointer<QPushButton> ok(QtButton(*fixture.box, Box::Ok));
    delete fixture.box;
    fixture.dialog.Impl()->OnAccepted();
    fixture.dialog.Impl()->OnRejected();
    fixture.dialog.Impl()->OnHelpPressed();
    QVERIFY(ok); // until the event loop next runs
    ok->click();
    QCOMPARE(fixture.log, Lines("dialog accepted, dialog rejected"));
    FlushDeferredDeletes();
    QVERIFY(!ok);
    QVERIFY(fixture.dialog.children().isEmpty());
}

void tst_FxUIDialogButtonBox::boxWithoutADialogReportsItsPresses()
{
    Box box(nullptr);
    QVERIFY(!box.parent());
    QVERIFY(!QtBox(box)->parentWidget());
    int accepted = 0;
    box.accepted().connect([&accepted] { ++accepted; });
    Press(box, Box::Ok);
    QCOMPARE(accepted, 1);
    box.button(Box::Ok)->clicked().emit(true);
    QCOMPARE(accepted, 2);
}

void tst_FxUIDialogButtonBox::boxOfADialogThatIsNotSetUpIsInNoLayout()
{
    TestDialog dialog;
    auto *box = new Box(&dialog);
    QCOMPARE(box->parent(), &dialog);
    QCOMPARE(QtBox(*box)->parentWidget(), Window(dialog));
    QVERIFY(!Window(dialog)->layout());
    int accepted = 0;
    box->accepted().connect([&accepted] { ++accepted; });
    dialog.Impl()->OnAccepted();
    QCOMPARE(accepted, 1);
}

void tst_FxUIDialogButtonBox::qtButtonsAreDeletedOnceWithTheirBox()
{
    QList<QPointer<QPushButton>> buttons;
    auto fixture = std::make_unique<Fixture>();
    for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help })
        buttons.append(QtButton(*fixture->box, which));
    fixture.reset();
    for (const QPointer<QPushButton> &button : buttons)
        QVERIFY(button);
    FlushDeferredDeletes();
    for (const QPointer<QPushButton> &button : buttons)
        QVERIFY(!button);
}

// A child of the first wrapper dies with it, and sees the others as they are then.
void tst_FxUIDialogButtonBox::wrappersLetGoOfTheQtButtonsBeforeAnyDies()
{
    class Witness : public CFxUIObject {
    public:
        Witness(const Box &box, QList<const QObject *> &handles)
            : m_handles(handles)
        {
            for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help })
                m_wrappers.append(box.button(which));
        }

        ~Witness() override
        {
            for (const CFxUIObject *wrapper : m_wrappers)
                m_handles.append(wrapper->getHandle());
        }

    private:
        QList<const CFxUIObject *> m_wrappers;
        QList<const QObject *> &m_handles;
    };

    QList<const QObject *> handles;
    {
        const Box box(nullptr);
        (new Witness(box, handles))->setParent(box.button(Box::Ok));
    }
    QCOMPARE(handles, QList<const QObject *>({ nullptr, nullptr, nullptr }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogButtonBox>(argc, argv);
}

#include "tst_FxUIDialogButtonBox.moc"
