// The library with a host's own kernel library, which is loaded in place of the stand-in.

#include "fixtures/mossgate/HostJournal.h"
#include "FxDialog.h"
#include "support/TestMain.h"
#include "UI/FxUIDialog.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/IFxUIDialogFrontend.h"
#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <dlfcn.h>

#include <functional>
#include <memory>

namespace {

// The host's functions, looked up in whatever kernel library is loaded.
struct Host {
    decltype(&HostJournal_Take) takeJournal = nullptr;
    decltype(&HostJournal_SetDocument) setDocument = nullptr;
    decltype(&HostJournal_CallDialog) callDialog = nullptr;

    Host()
    {
        LookUp("HostJournal_Take", takeJournal);
        LookUp("HostJournal_SetDocument", setDocument);
        LookUp("HostJournal_CallDialog", callDialog);
    }

    QString Journal() const { return QString::fromLatin1(takeJournal()); }

private:
    template <class Function> static void LookUp(const char *name, Function &function)
    {
        function = reinterpret_cast<Function>(dlsym(RTLD_DEFAULT, name));
    }
};

class HostedDialog : public CFxUIDialog {
public:
    void SetupUI() override { new CFxUIDialogButtonBox(this); }

    int GetHelpId() const override { return 42; }
};

class Veto final : public IFxUIDialogFrontend {
public:
    bool IsRejectAllowed() override { return false; }
};

CFxUIDialogFrontend *Window(const CFxUIDialog &dialog)
{
    return qobject_cast<CFxUIDialogFrontend *>(dialog.getHandle());
}

int ExecAndDo(CFxUIDialog &dialog, const std::function<void()> &actions)
{
    QTimer::singleShot(0, dialog.getHandle(), actions);
    return dialog.exec();
}

} // namespace

class tst_HostKernel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void windowIsMadeByTheHostsClass();
    void windowIsLeftBehindAndNotDeleted();
    void runGoesThroughTheHost_data();
    void runGoesThroughTheHost();
    void escapeReachesTheHostsReject();
    void vetoKeepsEscapeFromTheHost();
    void publicOperationsDoNotReachTheHostsOwn();
    void hostReachesTheHelpIdAndItsOwnOperations();

private:
    Host m_host;
};

void tst_HostKernel::initTestCase()
{
    QVERIFY2(m_host.takeJournal && m_host.setDocument && m_host.callDialog,
             "the stand-in is loaded: LD_LIBRARY_PATH must name the host's folder first");
}

void tst_HostKernel::init()
{
    m_host.setDocument(2);
    m_host.takeJournal();
}

void tst_HostKernel::windowIsMadeByTheHostsClass()
{
    const HostedDialog dialog;
    const std::unique_ptr<QObject> window(dialog.getHandle());
    QVERIFY(qobject_cast<CFxDialog *>(window.get()));
    QCOMPARE(m_host.Journal(), QStringLiteral("CFxDialog no parent true 0x8003000"));
}

void tst_HostKernel::windowIsLeftBehindAndNotDeleted()
{
    std::unique_ptr<QObject> window;
    {
        const HostedDialog dialog;
        window.reset(dialog.getHandle());
        m_host.takeJournal();
    }
    QCOMPARE(m_host.Journal(), QString());
    window.reset();
    QCOMPARE(m_host.Journal(), QStringLiteral("~CFxDialog"));
}

void tst_HostKernel::runGoesThroughTheHost_data()
{
    QTest::addColumn<int>("document");
    QTest::addColumn<QString>("journal");
    QTest::newRow("no document") << 0
                                 << "ACTIVE_DOCUMENT, exec, showEvent, ACTIVE_DOCUMENT, hideEvent";
    QTest::newRow("a document without a sink")
        << 1 << "ACTIVE_DOCUMENT, exec, showEvent, ACTIVE_DOCUMENT, hideEvent";
    QTest::newRow("a document that listens")
        << 2
        << "ACTIVE_DOCUMENT, SetDialogActive true, exec, showEvent, "
           "ACTIVE_DOCUMENT, SetDialogActive false, hideEvent";
}

void tst_HostKernel::runGoesThroughTheHost()
{
    QFETCH(int, document);
    QFETCH(QString, journal);
    m_host.setDocument(document);
    HostedDialog dialog;
    const std::unique_ptr<QObject> window(dialog.getHandle());
    m_host.takeJournal();
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.done(5); }), 5);
    QCOMPARE(m_host.Journal(), journal);
}

void tst_HostKernel::escapeReachesTheHostsReject()
{
    HostedDialog dialog;
    const std::unique_ptr<QObject> window(dialog.getHandle());
    const int code = ExecAndDo(dialog, [&] {
        m_host.takeJournal();
        QTest::keyClick(Window(dialog), Qt::Key_Escape);
    });
    QCOMPARE(code, 0);
    QCOMPARE(m_host.Journal(), QStringLiteral("reject, done 0, hideEvent"));
}

void tst_HostKernel::vetoKeepsEscapeFromTheHost()
{
    HostedDialog dialog;
    const std::unique_ptr<QObject> window(dialog.getHandle());
    Veto veto;
    Window(dialog)->setIsRejectCallObject(&veto);
    QString journal;
    ExecAndDo(dialog, [&] {
        m_host.takeJournal();
        QTest::keyClick(Window(dialog), Qt::Key_Escape);
        journal = m_host.Journal();
        dialog.accept();
    });
    QCOMPARE(journal, QString());
}

void tst_HostKernel::publicOperationsDoNotReachTheHostsOwn()
{
    HostedDialog dialog;
    const std::unique_ptr<QObject> window(dialog.getHandle());
    dialog.setVisible(true);
    m_host.takeJournal();
    dialog.accept();
    dialog.reject();
    dialog.done(3);
    QCOMPARE(m_host.Journal(),
             QStringLiteral("ACTIVE_DOCUMENT, SetDialogActive false, hideEvent, "
                            "ACTIVE_DOCUMENT, SetDialogActive false, "
                            "ACTIVE_DOCUMENT, SetDialogActive false"));
}

void tst_HostKernel::hostReachesTheHelpIdAndItsOwnOperations()
{
    auto dialog = std::make_unique<HostedDialog>();
    const std::unique_ptr<CFxDialog> window(Window(*dialog));
    m_host.takeJournal();
    m_host.callDialog(window.get());
    QCOMPARE(m_host.Journal(),
             QStringLiteral("GetHelpId 42, BeginEditorCommand, CancelEditorCommand, "
                            "CompleteEditorCommand, Help"));
    dialog.reset();
    m_host.callDialog(window.get());
    QVERIFY(m_host.Journal().startsWith(QStringLiteral("GetHelpId -1,")));
}

int main(int argc, char **argv)
{
    return RunTest<tst_HostKernel>(argc, argv);
}

#include "tst_HostKernel.moc"
