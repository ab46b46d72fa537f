#include "DialogTools.h"
#include "FxDocument.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>

#include <memory>

namespace {

// The host's active document, for as long as this lives. Writes down what it is told.
class ActiveDocument final : public IFxDialogSink {
public:
    ActiveDocument()
    {
        m_document.dialogSink = this;
        SetActiveDocument(&m_document);
    }

    ~ActiveDocument() { SetActiveDocument(nullptr); }

    ActiveDocument(const ActiveDocument &) = delete;
    ActiveDocument &operator=(const ActiveDocument &) = delete;

    void SetDialogActive(bool active) override
    {
        told.append(active);
        if (inCall)
            inCall();
    }

    void TakeSinkAway() { m_document.dialogSink = nullptr; }

    QList<bool> told;
    std::function<void()> inCall;

private:
    CFxDocument m_document;
};

// Writes down the window's result code at each hiding.
class ResultWatcher : public QObject {
    Q_OBJECT

public:
    QList<int> results;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide)
            results.append(static_cast<QDialog *>(watched)->result());
        return false;
    }
};

// A window of a host that runs, shows and hides in its own way.
class HostWindow : public CFxUIDialogFrontend {
public:
    QStringList calls;

    int exec() override
    {
        calls.append(QStringLiteral("exec"));
        return 77;
    }

    void setVisible(bool visible) override
    {
        calls.append(visible ? QStringLiteral("show") : QStringLiteral("hide"));
    }
};

// Ways of closing a window that don't go through the public operations.
void CloseByQt(CFxUIDialogFrontend *window, const QString &way)
{
    if (way == QLatin1String("Escape"))
        QTest::keyClick(window, Qt::Key_Escape);
    else
        window->close();
}

} // namespace

class tst_FxUIDialogLifecycle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void documentIsToldBeforeTheSetUp();
    void documentIsToldBeforeTheWindowIsHidden();
    void resultIsInPlaceWhenTheWindowHides();
    void documentIsToldByEachWayOfEnding_data();
    void documentIsToldByEachWayOfEnding();
    void documentIsToldAfterSetVisibleHasHiddenTheWindow();
    void showingTellsTheDocumentNothingAndSetsNothingUp();
    void withoutAListenerTheDialogRuns_data();
    void withoutAListenerTheDialogRuns();
    void closingByQtRejectsPastThePublicOperations_data();
    void closingByQtRejectsPastThePublicOperations();
    void secondRunShowsTheSameViews();
    void runAfterClosingByQt();
    void showingAfterARunShowsTheContent();
    void virtualOperationsOfTheWindowAreCalled();
    void resultOfAHostsWindowWithoutAWayBackIsStored();
    void runWithoutAWindowAnswersTheResult();
    void operationsWithoutAWindowKeepTheState();
};

void tst_FxUIDialogLifecycle::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialogLifecycle::documentIsToldBeforeTheSetUp()
{
    ActiveDocument document;
    TestDialog dialog;
    bool setupYet = true;
    document.inCall = [&] {
        if (document.told.size() == 1)
            setupYet = !Window(dialog)->isUINotYetSetup();
    };
    QList<bool> toldInside;
    ExecAndDo(dialog, [&] {
        toldInside = document.told;
        dialog.accept();
    });
    QVERIFY(!setupYet);
    QCOMPARE(toldInside, QList<bool>({ true }));
    QCOMPARE(document.told, QList<bool>({ true, false }));
}

void tst_FxUIDialogLifecycle::documentIsToldBeforeTheWindowIsHidden()
{
    ActiveDocument document;
    TestDialog dialog;
    bool visible = false;
    int result = -1;
    document.inCall = [&] {
        visible = Window(dialog)->isVisible();
        result = dialog.result();
    };
    ExecAndDo(dialog, [&] { dialog.done(5); });
    QVERIFY(visible);
    QCOMPARE(result, 5); // stored before
}

void tst_FxUIDialogLifecycle::resultIsInPlaceWhenTheWindowHides()
{
    TestDialog dialog;
    ResultWatcher watcher;
    Window(dialog)->installEventFilter(&watcher);
    ExecAndDo(dialog, [&] { dialog.done(5); });
    QCOMPARE(watcher.results, QList<int>({ 5 }));
}

void tst_FxUIDialogLifecycle::documentIsToldByEachWayOfEnding_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("told");
    for (const char *way : { "accept", "reject", "done", "hide", "setVisible(false)" })
        QTest::newRow(way) << way << true;
    for (const char *way : { "Escape", "close" })
        QTest::newRow(way) << way << false;
}

void tst_FxUIDialogLifecycle::documentIsToldByEachWayOfEnding()
{
    QFETCH(QString, way);
    QFETCH(bool, told);
    ActiveDocument document;
    TestDialog dialog;
    ExecAndDo(dialog, [&] {
        document.told.clear();
        if (way == QLatin1String("accept"))
            dialog.accept();
        else if (way == QLatin1String("reject"))
            dialog.reject();
        else if (way == QLatin1String("done"))
            dialog.done(2);
        else if (way == QLatin1String("hide"))
            dialog.hide();
        else if (way == QLatin1String("setVisible(false)"))
            dialog.setVisible(false);
        else
            CloseByQt(Window(dialog), way);
    });
    QCOMPARE(document.told, told ? QList<bool>({ false }) : QList<bool>());
    QVERIFY(!Window(dialog)->isVisible());
}

void tst_FxUIDialogLifecycle::documentIsToldAfterSetVisibleHasHiddenTheWindow()
{
    ActiveDocument document;
    TestDialog dialog;
    dialog.setVisible(true);
    dialog.setResult(7);
    bool visible = true;
    document.inCall = [&] { visible = Window(dialog)->isVisible(); };
    dialog.setVisible(false);
    QVERIFY(!visible);
    QCOMPARE(document.told, QList<bool>({ false }));
    QCOMPARE(Window(dialog)->result(), 7);
}

void tst_FxUIDialogLifecycle::showingTellsTheDocumentNothingAndSetsNothingUp()
{
    const ActiveDocument document;
    TestDialog dialog;
    dialog.setVisible(true);
    QVERIFY(Window(dialog)->isVisible());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(document.told.isEmpty());
    QVERIFY(dialog.calls.isEmpty());
    QVERIFY(!dialog.GetLayout());
    QVERIFY(Window(dialog)->findChildren<QWidget *>().isEmpty());
    dialog.setVisible(false);
}

void tst_FxUIDialogLifecycle::withoutAListenerTheDialogRuns_data()
{
    QTest::addColumn<bool>("document");
    QTest::newRow("no document") << false;
    QTest::newRow("a document without a sink") << true;
}

void tst_FxUIDialogLifecycle::withoutAListenerTheDialogRuns()
{
    QFETCH(bool, document);
    ActiveDocument active;
    active.TakeSinkAway();
    if (!document)
        SetActiveDocument(nullptr);
    TestDialog dialog;
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.done(5); }), 5);
    dialog.hide();
    QVERIFY(active.told.isEmpty());
}

void tst_FxUIDialogLifecycle::closingByQtRejectsPastThePublicOperations_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Escape key") << "Escape";
    QTest::newRow("closing the window") << "close";
}

void tst_FxUIDialogLifecycle::closingByQtRejectsPastThePublicOperations()
{
    QFETCH(QString, way);
    TestDialog dialog;
    const DialogEmissions emissions(dialog);
    const QSignalSpy qtRejected(Window(dialog), &QDialog::rejected);
    dialog.setResult(7);
    const int code = ExecAndDo(dialog, [&] { CloseByQt(Window(dialog), way); });
    QCOMPARE(code, 0);
    QCOMPARE(dialog.result(), 0);
    QCOMPARE(dialog.calls, QStringList({ QStringLiteral("SetupUI") })); // reject() wasn't called
    QVERIFY(emissions.log.isEmpty());
    QCOMPARE(qtRejected.size(), 1);
}

void tst_FxUIDialogLifecycle::secondRunShowsTheSameViews()
{
    TestDialog dialog;
    CFxUILabel *label = nullptr;
    dialog.inSetup = [&] {
        label = new CFxUILabel;
        dialog.GetLayout()->addView(label);
    };
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.accept(); }), 1);
    bool visible = false;
    const int code = ExecAndDo(dialog, [&] {
        visible = static_cast<QWidget *>(label->getHandle())->isVisible();
        dialog.done(2);
    });
    QCOMPARE(code, 2);
    QVERIFY(visible);
    QCOMPARE(dialog.calls.size(), 1);
    QCOMPARE(Window(dialog)->findChildren<QGroupBox *>().size(), 1);
}

void tst_FxUIDialogLifecycle::runAfterClosingByQt()
{
    TestDialog dialog;
    QCOMPARE(ExecAndDo(dialog, [&] { Window(dialog)->close(); }), 0);
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.accept(); }), 1);
}

void tst_FxUIDialogLifecycle::showingAfterARunShowsTheContent()
{
    TestDialog dialog;
    ExecAndDo(dialog, [&] { dialog.accept(); });
    dialog.setVisible(true);
    QVERIFY(static_cast<QWidget *>(dialog.GetLayout()->getHandle())->isVisible());
    QCOMPARE(dialog.calls.size(), 1);
    dialog.setVisible(false);
}

void tst_FxUIDialogLifecycle::virtualOperationsOfTheWindowAreCalled()
{
    TestDialog dialog;
    const std::unique_ptr<CFxUIDialogFrontend> own(Window(dialog));
    HostWindow window;
    window.impl = dialog.Impl();
    dialog.setHandle(&window);
    QCOMPARE(dialog.exec(), 77);
    QCOMPARE(dialog.result(), 77);
    QCOMPARE(dialog.calls, QStringList({ QStringLiteral("SetupUI") }));
    dialog.setVisible(true);
    dialog.setVisible(false); // hides, and goes on with hide()
    QCOMPARE(window.calls,
             QStringList({ QStringLiteral("exec"), QStringLiteral("show"), QStringLiteral("hide"),
                           QStringLiteral("hide") }));
    dialog.setHandle(own.get());
}

void tst_FxUIDialogLifecycle::resultOfAHostsWindowWithoutAWayBackIsStored()
{
    TestDialog dialog;
    const std::unique_ptr<CFxUIDialogFrontend> own(Window(dialog));
    HostWindow window;
    dialog.setHandle(&window);
    QCOMPARE(dialog.exec(), 77);
    QCOMPARE(dialog.result(), 77);
    dialog.setHandle(own.get());
}

void tst_FxUIDialogLifecycle::runWithoutAWindowAnswersTheResult()
{
    TestDialog dialog;
    const std::unique_ptr<CFxUIDialogFrontend> window(Window(dialog));
    dialog.setHandle(nullptr);
    dialog.setResult(7);
    QCOMPARE(dialog.exec(), 7);
    QVERIFY(dialog.calls.isEmpty());
    window->impl = nullptr;
}

void tst_FxUIDialogLifecycle::operationsWithoutAWindowKeepTheState()
{
    ActiveDocument document;
    TestDialog dialog;
    delete Window(dialog);
    QVERIFY(!dialog.getHandle());
    dialog.setVisible(true);
    dialog.setWindowTitle(QStringLiteral("x"));
    dialog.done(3);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("x"));
    QCOMPARE(dialog.result(), 3);
    QCOMPARE(document.told, QList<bool>({ false }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogLifecycle>(argc, argv);
}

#include "tst_FxUIDialogLifecycle.moc"
