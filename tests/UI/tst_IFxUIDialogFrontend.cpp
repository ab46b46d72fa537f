#include "UI/IFxUIDialogFrontend.h"

#include "DialogTools.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_abstract_v<IFxUIDialogFrontend>);
static_assert(std::is_same_v<decltype(&IFxUIDialogFrontend::IsRejectAllowed),
                             bool (IFxUIDialogFrontend::*)()>);

namespace {

// A host's veto. Counts how often it is asked.
class Veto final : public IFxUIDialogFrontend {
public:
    bool allowed = false;
    int asked = 0;

    bool IsRejectAllowed() override
    {
        ++asked;
        return allowed;
    }
};

void AddWays()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Escape key") << true;
    QTest::newRow("closing the window") << false;
}

void Close(CFxUIDialogFrontend *window, bool byEscape)
{
    if (byEscape)
        QTest::keyClick(window, Qt::Key_Escape);
    else
        window->close();
}

} // namespace

class tst_IFxUIDialogFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void vetoKeepsTheDialogOpenAndItsRunBlocked_data();
    void vetoKeepsTheDialogOpenAndItsRunBlocked();
    void consentRejects_data();
    void consentRejects();
    void consentAfterAVetoRejects();
    void withoutAnObjectTheDialogRejects();
    void publicOperationsDoNotAsk_data();
    void publicOperationsDoNotAsk();
    void objectIsAskedAfterTheDialogIsGone();
};

void tst_IFxUIDialogFrontend::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_IFxUIDialogFrontend::vetoKeepsTheDialogOpenAndItsRunBlocked_data()
{
    AddWays();
}

void tst_IFxUIDialogFrontend::vetoKeepsTheDialogOpenAndItsRunBlocked()
{
    QFETCH(bool, escape);
    TestDialog dialog;
    Veto veto;
    Window(dialog)->setIsRejectCallObject(&veto);
    bool visible = false;
    const int code = ExecAndDo(dialog, [&] {
        Close(Window(dialog), escape);
        Close(Window(dialog), escape);
        visible = Window(dialog)->isVisible();
        dialog.done(5);
    });
    QVERIFY(visible);
    QCOMPARE(veto.asked, 2);
    QCOMPARE(code, 5);
}

void tst_IFxUIDialogFrontend::consentRejects_data()
{
    AddWays();
}

void tst_IFxUIDialogFrontend::consentRejects()
{
    QFETCH(bool, escape);
    TestDialog dialog;
    Veto veto;
    veto.allowed = true;
    Window(dialog)->setIsRejectCallObject(&veto);
    QCOMPARE(ExecAndDo(dialog, [&] { Close(Window(dialog), escape); }), 0);
    QCOMPARE(veto.asked, 1);
    QVERIFY(!Window(dialog)->isVisible());
}

void tst_IFxUIDialogFrontend::consentAfterAVetoRejects()
{
    TestDialog dialog;
    Veto veto;
    Window(dialog)->setIsRejectCallObject(&veto);
    const int code = ExecAndDo(dialog, [&] {
        Close(Window(dialog), true);
        veto.allowed = true;
        Close(Window(dialog), true);
    });
    QCOMPARE(code, 0);
    QCOMPARE(veto.asked, 2);
}

void tst_IFxUIDialogFrontend::withoutAnObjectTheDialogRejects()
{
    TestDialog dialog;
    Veto veto;
    Window(dialog)->setIsRejectCallObject(&veto);
    Window(dialog)->setIsRejectCallObject(nullptr);
    QCOMPARE(ExecAndDo(dialog, [&] { Close(Window(dialog), true); }), 0);
    QCOMPARE(veto.asked, 0);
}

void tst_IFxUIDialogFrontend::publicOperationsDoNotAsk_data()
{
    QTest::addColumn<int>("way");
    QTest::addColumn<int>("code");
    QTest::newRow("reject") << 0 << 0;
    QTest::newRow("done(0)") << 1 << 0;
    QTest::newRow("accept") << 2 << 1;
    QTest::newRow("hide") << 3 << 0;
}

void tst_IFxUIDialogFrontend::publicOperationsDoNotAsk()
{
    QFETCH(int, way);
    QFETCH(int, code);
    TestDialog dialog;
    Veto veto;
    Window(dialog)->setIsRejectCallObject(&veto);
    const std::function<void()> ways[] = { [&] { dialog.reject(); }, [&] { dialog.done(0); },
                                           [&] { dialog.accept(); }, [&] { dialog.hide(); } };
    QCOMPARE(ExecAndDo(dialog, ways[way]), code);
    QCOMPARE(veto.asked, 0);
}

// The window keeps the object that the host has set: it is the host's to take away.
void tst_IFxUIDialogFrontend::objectIsAskedAfterTheDialogIsGone()
{
    Veto veto;
    {
        TestDialog dialog;
        Window(dialog)->setIsRejectCallObject(&veto);
    }
    CFxUIDialogFrontend *window = LeftBehindWindows().first();
    window->show();
    window->reject();
    QCOMPARE(veto.asked, 1);
    QVERIFY(window->isVisible());
    window->setIsRejectCallObject(nullptr);
    window->reject();
    QVERIFY(!window->isVisible());
}

int main(int argc, char **argv)
{
    return RunTest<tst_IFxUIDialogFrontend>(argc, argv);
}

#include "tst_IFxUIDialogFrontend.moc"
