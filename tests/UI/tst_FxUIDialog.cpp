#include "UI/FxUIDialog.h"

#include "DialogTools.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIBaseView.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIDialogImpl.h"

#include <QtCore/QFile>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUIDialog>);
static_assert(!std::is_base_of_v<CFxUIBaseView, CFxUIDialog>);
static_assert(std::is_abstract_v<CFxUIDialog>);
static_assert(!std::is_copy_constructible_v<CFxUIDialog>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIDialog &>().accepted()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIDialog &>().rejected()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIDialog &>().finished()), CFxUISignal<void(int)> &>);

namespace {

class PlainDialog : public CFxUIDialog {
public:
    void SetupUI() override { }
};

} // namespace

class tst_FxUIDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void handleIsAHiddenWindowOfTheHost();
    void handleIsThereBeforeTheImplementationObject();
    void windowHasTitleSystemMenuAndCloseButton();
    void styleSheetIsTheLightStyle();
    void frontendClassNameIsEmpty();
    void nothingIsMadeBeforeTheFirstExec();
    void setUpContentHasItsNamesMarginsAndPolicies();
    void setupRunsOnceBeforeTheWindowIsShown();
    void setupThatThrowsPassesAndIsNotRepeated();
    void execBlocksModallyWhateverTheArgument_data();
    void execBlocksModallyWhateverTheArgument();
    void endOfARun_data();
    void endOfARun();
    void doneOutsideARunStoresTheCode();
    void setResultIsNotSeenByTheWindowUntilItIsHidden();
    void resultOfARunIsStoredAgain();
    void handlerEmits_data();
    void handlerEmits();
    void onHelpPressedWithoutAButtonBoxDoesNothing();
    void onHelpPressedReachesTheFirstBoxOnly();
    void onHelpPressedTestsTheBlockFlagOfTheBox();
    void helpIsNothingByDefault();
    void helpIdReachesTheHostsDialog();
    void openHelpAsksForTheHelpIdAlone();
    void viewEventsOfTheImplementationReachTheDialog();
    void viewEventsAreNotSentByShowingAndHiding();
    void windowTitleIsAnsweredFromTheRecord();
};

void tst_FxUIDialog::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialog::handleIsAHiddenWindowOfTheHost()
{
    const TestDialog dialog;
    QVERIFY(Window(dialog));
    QVERIFY(qobject_cast<CFxDialog *>(dialog.getHandle()));
    QCOMPARE(Window(dialog)->impl, dialog.Impl());
    QVERIFY(!Window(dialog)->parentWidget());
    QVERIFY(!Window(dialog)->isVisible());
}

void tst_FxUIDialog::handleIsThereBeforeTheImplementationObject()
{
    TestDialog dialog;
    const CFxUIDialogFrontend *first = Window(dialog);
    const CFxUIObjectImpl *stored = dialog.impl;
    const CFxUIDialogImpl another(&dialog); // its constructor alone
    QVERIFY(Window(dialog));
    QVERIFY(Window(dialog) != first);
    QCOMPARE(Window(dialog)->impl, &another);
    QCOMPARE(dialog.impl, stored);
}

void tst_FxUIDialog::windowHasTitleSystemMenuAndCloseButton()
{
    const TestDialog dialog;
    QCOMPARE(int(Window(dialog)->windowFlags()), 0x8003000 | int(Qt::Dialog)); // added by QDialog
}

void tst_FxUIDialog::styleSheetIsTheLightStyle()
{
    QFile file(QStringLiteral(":/commonui/resources/qss/light_style.qss"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString light = QString::fromUtf8(file.readAll());
    QVERIFY(!light.isEmpty());
    qApp->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    const TestDialog dialog;
    QCOMPARE(Window(dialog)->styleSheet(), light);
    qApp->setStyleSheet(QString());
}

void tst_FxUIDialog::frontendClassNameIsEmpty()
{
    const TestDialog dialog;
    QVERIFY(dialog.impl->GetFrontendClassName().isEmpty());
    const QObject *window = dialog.getHandle();
    dialog.impl->CreateFrontendControl(); // makes nothing: the window stands already
    QCOMPARE(dialog.getHandle(), window);
}

void tst_FxUIDialog::nothingIsMadeBeforeTheFirstExec()
{
    TestDialog dialog;
    QVERIFY(dialog.calls.isEmpty());
    QVERIFY(!dialog.GetLayout());
    QCOMPARE(dialog.result(), 0);
    QCOMPARE(dialog.windowTitle(), QString());
    QVERIFY(dialog.children().isEmpty());
    QVERIFY(Window(dialog)->isUINotYetSetup());
    QVERIFY(!Window(dialog)->layout());
    QVERIFY(Window(dialog)->findChildren<QWidget *>().isEmpty());
}

void tst_FxUIDialog::setUpContentHasItsNamesMarginsAndPolicies()
{
    TestDialog dialog;
    ExecAndDo(dialog, [&] { dialog.accept(); });
    const CFxUIDialogFrontend *window = Window(dialog);
    QCOMPARE(window->sizePolicy(),
             QSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding));
    auto *layout = qobject_cast<QVBoxLayout *>(window->layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("mainLayout"));
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());

    auto *groupBox = qobject_cast<QGroupBox *>(layout->itemAt(0)->widget());
    QVERIFY(groupBox);
    QCOMPARE(groupBox, dialog.GetLayout()->getHandle());
    QCOMPARE(groupBox->objectName(), QStringLiteral("main_layout"));
    QCOMPARE(groupBox->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(groupBox->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QVERIFY(!dialog.GetLayout()->parent()); // held apart from the tree of objects
}

void tst_FxUIDialog::setupRunsOnceBeforeTheWindowIsShown()
{
    TestDialog dialog;
    bool notYetSetup = true;
    bool visible = true;
    const CFxUIVerticalLayout *layout = nullptr;
    dialog.inSetup = [&] {
        notYetSetup = Window(dialog)->isUINotYetSetup();
        visible = Window(dialog)->isVisible();
        layout = dialog.GetLayout();
    };
    ExecAndDo(dialog, [&] { dialog.accept(); });
    QVERIFY(!notYetSetup);
    QVERIFY(!visible);
    QVERIFY(layout);
    ExecAndDo(dialog, [&] { dialog.accept(); });
    QCOMPARE(dialog.calls, QStringList({ QStringLiteral("SetupUI") }));
    QCOMPARE(dialog.GetLayout(), layout);
}

void tst_FxUIDialog::setupThatThrowsPassesAndIsNotRepeated()
{
    TestDialog dialog;
    dialog.inSetup = [] { throw 7; };
    int caught = 0;
    try {
        dialog.exec();
    } catch (int number) {
        caught = number;
    }
    QCOMPARE(caught, 7);
    QVERIFY(!Window(dialog)->isVisible());
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.accept(); }), 1);
    QCOMPARE(dialog.calls.size(), 1);
}

void tst_FxUIDialog::execBlocksModallyWhateverTheArgument_data()
{
    QTest::addColumn<bool>("modal");
    QTest::newRow("true") << true;
    QTest::newRow("false") << false;
}

void tst_FxUIDialog::execBlocksModallyWhateverTheArgument()
{
    QFETCH(bool, modal);
    TestDialog dialog;
    bool visible = false;
    const QWidget *modalWidget = nullptr;
    const auto actions = [&] {
        visible = Window(dialog)->isVisible();
        modalWidget = QApplication::activeModalWidget();
        dialog.done(3);
    };
    QCOMPARE(ExecAndDo(dialog, actions, modal), 3);
    QVERIFY(visible);
    QCOMPARE(modalWidget, Window(dialog));
}

void tst_FxUIDialog::endOfARun_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("code");
    QTest::newRow("accept") << 0 << 1;
    QTest::newRow("reject") << 1 << 0;
    QTest::newRow("done(5)") << 2 << 5;
    QTest::newRow("done(-3)") << 3 << -3;
    QTest::newRow("hide after setResult(7)") << 4 << 7;
    QTest::newRow("setVisible(false) after setResult(8)") << 5 << 8;
}

// The loop ends because the window is hidden: no signal of the dialog or of the QDialog tells of
// it.
void tst_FxUIDialog::endOfARun()
{
    QFETCH(int, way);
    QFETCH(int, code);
    TestDialog dialog;
    const DialogEmissions emissions(dialog);
    const QSignalSpy accepted(Window(dialog), &QDialog::accepted);
    const QSignalSpy rejected(Window(dialog), &QDialog::rejected);
    const QSignalSpy finished(Window(dialog), &QDialog::finished);
    const std::function<void()> ways[] = { [&] { dialog.accept(); },
                                           [&] { dialog.reject(); },
                                           [&] { dialog.done(5); },
                                           [&] { dialog.done(-3); },
                                           [&] {
                                               dialog.setResult(7);
                                               dialog.hide();
                                           },
                                           [&] {
                                               dialog.setResult(8);
                                               dialog.setVisible(false);
                                           } };
    QCOMPARE(ExecAndDo(dialog, ways[way]), code);
    QCOMPARE(dialog.result(), code);
    QCOMPARE(Window(dialog)->result(), code);
    QVERIFY(!Window(dialog)->isVisible());
    QVERIFY(emissions.log.isEmpty());
    QCOMPARE(accepted.size() + rejected.size() + finished.size(), 0);
}

void tst_FxUIDialog::doneOutsideARunStoresTheCode()
{
    TestDialog dialog;
    dialog.done(9);
    QCOMPARE(dialog.result(), 9);
    QCOMPARE(Window(dialog)->result(), 9);
    QVERIFY(dialog.calls.isEmpty());
}

void tst_FxUIDialog::setResultIsNotSeenByTheWindowUntilItIsHidden()
{
    TestDialog dialog;
    dialog.setResult(7);
    QCOMPARE(dialog.result(), 7);
    QCOMPARE(Window(dialog)->result(), 0);
    dialog.hide();
    QCOMPARE(Window(dialog)->result(), 7);
}

void tst_FxUIDialog::resultOfARunIsStoredAgain()
{
    TestDialog dialog;
    const auto actions = [&] {
        dialog.done(5);
        dialog.setResult(6); // too late: the window has its code
    };
    QCOMPARE(ExecAndDo(dialog, actions), 5);
    QCOMPARE(dialog.result(), 5);
}

void tst_FxUIDialog::handlerEmits_data()
{
    QTest::addColumn<QString>("emitted");
    QTest::newRow("OnAccepted") << "accepted";
    QTest::newRow("OnAcceptPressed") << "accepted";
    QTest::newRow("OnRejected") << "rejected";
    QTest::newRow("OnRejectPressed") << "rejected";
}

void tst_FxUIDialog::handlerEmits()
{
    QFETCH(QString, emitted);
    TestDialog dialog;
    const DialogEmissions emissions(dialog);
    const CFxUIObject *sender = &dialog;
    dialog.accepted().connect([&] { sender = dialog.sender(); });
    dialog.rejected().connect([&] { sender = dialog.sender(); });
    CallHandlerOfRow(dialog);
    QCOMPARE(emissions.log, QStringList({ emitted }));
    QVERIFY(!sender);
    QCOMPARE(dialog.result(), 0); // the dialog itself isn't touched
    dialog.blockSignals(true);
    CallHandlerOfRow(dialog);
    QCOMPARE(emissions.log.size(), 1);
}

void tst_FxUIDialog::onHelpPressedWithoutAButtonBoxDoesNothing()
{
    TestDialog dialog;
    const DialogEmissions emissions(dialog);
    auto *child = new PlainDialog; // a child of another class
    child->setParent(&dialog);
    dialog.Impl()->OnHelpPressed();
    QVERIFY(emissions.log.isEmpty());
}

void tst_FxUIDialog::onHelpPressedReachesTheFirstBoxOnly()
{
    TestDialog dialog;
    QStringList log;
    dialog.inSetup = [&] {
        auto *first = new CFxUIDialogButtonBox(&dialog);
        auto *second = new CFxUIDialogButtonBox(&dialog);
        first->setObjectName(QStringLiteral("zzz")); // names play no part
        first->helpRequest().connect([&log] { log.append(QStringLiteral("first")); });
        second->helpRequest().connect([&log] { log.append(QStringLiteral("second")); });
    };
    ExecAndDo(dialog, [&] { dialog.accept(); });
    dialog.Impl()->OnHelpPressed();
    QCOMPARE(log, QStringList({ QStringLiteral("first") }));
}

void tst_FxUIDialog::onHelpPressedTestsTheBlockFlagOfTheBox()
{
    TestDialog dialog;
    CFxUIDialogButtonBox *box = nullptr;
    dialog.inSetup = [&] { box = new CFxUIDialogButtonBox(&dialog); };
    ExecAndDo(dialog, [&] { dialog.accept(); });
    int requests = 0;
    box->helpRequest().connect([&requests] { ++requests; });
    dialog.blockSignals(true);
    dialog.Impl()->OnHelpPressed();
    QCOMPARE(requests, 1);
    dialog.blockSignals(false);
    box->blockSignals(true);
    dialog.Impl()->OnHelpPressed();
    QCOMPARE(requests, 1);
}

void tst_FxUIDialog::helpIsNothingByDefault()
{
    const PlainDialog dialog;
    QCOMPARE(dialog.GetHelpId(), 0);
    QCOMPARE(dialog.GetHelpURL(), "");
    QCOMPARE(Window(dialog)->GetHelpId(), 0);
}

void tst_FxUIDialog::helpIdReachesTheHostsDialog()
{
    TestDialog dialog;
    const CFxDialog *host = Window(dialog);
    QCOMPARE(host->GetHelpId(), 42);
    dialog.helpId = 43;
    QCOMPARE(host->GetHelpId(), 43);
    QCOMPARE(dialog.Impl()->GetHelpId(), 43);
    QCOMPARE(dialog.Impl()->GetHelpURL(), "https://help.example/");
}

void tst_FxUIDialog::openHelpAsksForTheHelpIdAlone()
{
    TestDialog dialog;
    const DialogEmissions emissions(dialog);
    dialog.openHelp();
    QCOMPARE(dialog.helpIdsAsked, 1);
    QVERIFY(dialog.calls.isEmpty());
    QVERIFY(emissions.log.isEmpty());
    QVERIFY(!Window(dialog)->isVisible());
}

void tst_FxUIDialog::viewEventsOfTheImplementationReachTheDialog()
{
    TestDialog dialog;
    CFxUIShowEvent show;
    CFxUIHideEvent hide;
    dialog.Impl()->showEvent(&show);
    dialog.Impl()->hideEvent(&hide);
    QCOMPARE(dialog.calls,
             QStringList({ QStringLiteral("showEvent"), QStringLiteral("hideEvent") }));
    PlainDialog plain; // the operations of the class itself do nothing
    plain.showEvent(&show);
    plain.hideEvent(&hide);
    QVERIFY(!Window(plain)->isVisible());
}

void tst_FxUIDialog::viewEventsAreNotSentByShowingAndHiding()
{
    TestDialog dialog;
    dialog.setVisible(true);
    dialog.setVisible(false);
    QVERIFY(dialog.calls.isEmpty());
}

void tst_FxUIDialog::windowTitleIsAnsweredFromTheRecord()
{
    TestDialog dialog;
    dialog.setWindowTitle(QStringLiteral("x"));
    QCOMPARE(Window(dialog)->windowTitle(), QStringLiteral("x"));
    Window(dialog)->setWindowTitle(QStringLiteral("behind its back"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("x"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialog>(argc, argv);
}

#include "tst_FxUIDialog.moc"
