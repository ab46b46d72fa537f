#include "ButtonBoxTools.h"
#include "support/Events.h"
#include "support/TestMain.h"

using namespace ButtonBoxTools;

class tst_FxUIDialogButtonBoxEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void press_data();
    void press();
    void returnKeyPressesOk();
    void pressLeavesTheDialogOpen();
    void connectedBoxEndsTheDialog_data();
    void connectedBoxEndsTheDialog();
    void handlerOfTheDialogTakesTheOtherRoad_data();
    void handlerOfTheDialogTakesTheOtherRoad();
    void eachStationTestsItsOwnBlockFlag_data();
    void eachStationTestsItsOwnBlockFlag();
    void onResult_data();
    void onResult();
    void blockedBoxIsSilent();
    void helpPressRequestsNoHelp();
};

void tst_FxUIDialogButtonBoxEvents::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialogButtonBoxEvents::press_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("Ok") << int(Box::Ok) << "clicked help, accepted";
    QTest::newRow("Cancel") << int(Box::Cancel) << "clicked help, rejected";
    QTest::newRow("Help") << int(Box::Help) << "clicked help";
}

// No slot of clicked() can tell the buttons apart, and the wrappers' own clicked() is silent.
void tst_FxUIDialogButtonBoxEvents::press()
{
    QFETCH(int, which);
    QFETCH(QString, emitted);
    Fixture fixture;
    Press(*fixture.box, static_cast<Box::StandardButton>(which));
    QCOMPARE(fixture.log, emitted.split(QStringLiteral(", ")));
    QVERIFY(!fixture.box->sender());
}

void tst_FxUIDialogButtonBoxEvents::returnKeyPressesOk()
{
    Fixture fixture;
    ExecAndDo(fixture.dialog, [&] {
        QTest::keyClick(Window(fixture.dialog), Qt::Key_Return);
        fixture.dialog.done(2);
    });
    QCOMPARE(fixture.log, Lines("clicked help, accepted"));
}

void tst_FxUIDialogButtonBoxEvents::pressLeavesTheDialogOpen()
{
    Fixture fixture;
    bool visible = false;
    const int code = ExecAndDo(fixture.dialog, [&] {
        for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help })
            Press(*fixture.box, which);
        visible = Window(fixture.dialog)->isVisible();
        fixture.dialog.done(4);
    });
    QVERIFY(visible);
    QCOMPARE(code, 4);
}

void tst_FxUIDialogButtonBoxEvents::connectedBoxEndsTheDialog_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<int>("code");
    QTest::newRow("Ok") << int(Box::Ok) << 1;
    QTest::newRow("Cancel") << int(Box::Cancel) << 0;
}

void tst_FxUIDialogButtonBoxEvents::connectedBoxEndsTheDialog()
{
    QFETCH(int, which);
    QFETCH(int, code);
    Fixture fixture;
    fixture.box->accepted().connect([&] { fixture.dialog.accept(); });
    fixture.box->rejected().connect([&] { fixture.dialog.reject(); });
    const int result = ExecAndDo(
        fixture.dialog, [&] { Press(*fixture.box, static_cast<Box::StandardButton>(which)); });
    QCOMPARE(result, code);
    QCOMPARE(fixture.dialog.result(), code);
}

void tst_FxUIDialogButtonBoxEvents::handlerOfTheDialogTakesTheOtherRoad_data()
{
    QTest::addColumn<QString>("emitted");
    const QString accepted = QStringLiteral("dialog accepted, ok true, accepted");
    const QString rejected = QStringLiteral("dialog rejected, cancel true, rejected");
    QTest::newRow("OnAccepted") << accepted;
    QTest::newRow("OnAcceptPressed") << accepted;
    QTest::newRow("OnRejected") << rejected;
    QTest::newRow("OnRejectPressed") << rejected;
}

void tst_FxUIDialogButtonBoxEvents::handlerOfTheDialogTakesTheOtherRoad()
{
    QFETCH(QString, emitted);
    TestDialog dialog;
    // Listeners that come before the box is made stand in front of its own.
    QStringList log;
    dialog.accepted().connect([&log] { log.append(QStringLiteral("dialog accepted")); });
    dialog.rejected().connect([&log] { log.append(QStringLiteral("dialog rejected")); });
    Box *box = nullptr;
    dialog.inSetup = [&] { box = new Box(&dialog); };
    ExecAndDo(dialog, [&] { dialog.done(9); });
    box->accepted().connect([&log] { log.append(QStringLiteral("accepted")); });
    box->rejected().connect([&log] { log.append(QStringLiteral("rejected")); });
    QStringList wrappers;
    box->button(Box::Ok)->clicked().connect(
        [&](bool on) { wrappers.append(on ? QStringLiteral("ok true") : QString()); });
    box->button(Box::Cancel)->clicked().connect([&](bool on) {
        wrappers.append(on ? QStringLiteral("cancel true") : QString());
    });
    CallHandlerOfRow(dialog);
    const QStringList expected = emitted.split(QStringLiteral(", "));
    QCOMPARE(log, QStringList({ expected[0], expected[2] }));
    QCOMPARE(wrappers, QStringList({ expected[1] }));
    QCOMPARE(dialog.result(), 9);
}

void tst_FxUIDialogButtonBoxEvents::eachStationTestsItsOwnBlockFlag_data()
{
    QTest::addColumn<QString>("blocked");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("dialog") << "dialog"
                            << "";
    QTest::newRow("wrapper") << "wrapper"
                             << "dialog accepted";
    QTest::newRow("box") << "box"
                         << "dialog accepted, ok true";
    QTest::newRow("nothing") << ""
                             << "accepted, dialog accepted, ok true";
}

void tst_FxUIDialogButtonBoxEvents::eachStationTestsItsOwnBlockFlag()
{
    QFETCH(QString, blocked);
    QFETCH(QString, emitted);
    Fixture fixture;
    fixture.dialog.blockSignals(blocked == QLatin1String("dialog"));
    fixture.box->button(Box::Ok)->blockSignals(blocked == QLatin1String("wrapper"));
    fixture.box->blockSignals(blocked == QLatin1String("box"));
    fixture.dialog.Impl()->OnAccepted();
    fixture.log.sort(); // the box's own slots stand in front of the listeners
    QCOMPARE(fixture.log, emitted.split(QStringLiteral(", "), Qt::SkipEmptyParts));
}

void tst_FxUIDialogButtonBoxEvents::onResult_data()
{
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("emitted");
    QTest::newRow("1") << 1 << "accepted";
    QTest::newRow("0") << 0 << "rejected";
    QTest::newRow("2") << 2 << "rejected";
    QTest::newRow("-1") << -1 << "rejected";
}

void tst_FxUIDialogButtonBoxEvents::onResult()
{
    QFETCH(int, result);
    QFETCH(QString, emitted);
    Fixture fixture;
    Impl(*fixture.box)->OnResult(result);
    QCOMPARE(fixture.log, QStringList({ emitted }));
    QCOMPARE(fixture.dialog.result(), 9);
}

void tst_FxUIDialogButtonBoxEvents::blockedBoxIsSilent()
{
    Fixture fixture;
    fixture.box->blockSignals(true);
    for (const Box::StandardButton which : { Box::Ok, Box::Cancel, Box::Help })
        Press(*fixture.box, which);
    fixture.dialog.Impl()->OnHelpPressed();
    QVERIFY(fixture.log.isEmpty());
}

void tst_FxUIDialogButtonBoxEvents::helpPressRequestsNoHelp()
{
    Fixture fixture;
    Press(*fixture.box, Box::Help);
    QVERIFY(!fixture.log.contains(QStringLiteral("helpRequest")));
    fixture.dialog.Impl()->OnHelpPressed();
    QVERIFY(fixture.log.contains(QStringLiteral("helpRequest")));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogButtonBoxEvents>(argc, argv);
}

#include "tst_FxUIDialogButtonBoxEvents.moc"
