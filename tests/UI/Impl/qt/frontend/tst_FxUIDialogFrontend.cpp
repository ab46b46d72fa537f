#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

#include "support/TestMain.h"
#include "UI/FxUIDialog.h"
#include "UI/Impl/FxUIDialogImpl.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxDialog, CFxUIDialogFrontend>);
static_assert(std::is_base_of_v<CFxUIFrontendBase<CFxUIDialogImpl>, CFxUIDialogFrontend>);
static_assert((Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
              == 0x8003000);

namespace {

struct Probe : CFxUIDialogFrontend {
    static const IFxUIDialogFrontend *RejectCallObject(const CFxUIDialogFrontend &window)
    {
        return window.*(&Probe::m_rejectCallObject);
    }
};

// Writes down the window flags at each change of the parent.
class ParentWatcher : public QObject {
    Q_OBJECT

public:
    QList<Qt::WindowFlags> flags;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::ParentChange)
            flags.append(static_cast<QWidget *>(watched)->windowFlags());
        return false;
    }
};

class EmptyDialog : public CFxUIDialog {
public:
    void SetupUI() override { }
};

} // namespace

class tst_FxUIDialogFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAQObjectClassOfItsOwnWithoutSignalsAndSlots();
    void answersToItsTwoBases();
    void startsNotSetUpAndWithoutAVeto();
    void setUpFlagIsWrittenAndRead();
    void commonParametersSetTheParentThenTheFlags();
    void worksWithoutAnImplementationObject();
    void editorCommandsAndHelpAreTheHosts();
    void takenFromItsDialogItStandsAlone();
};

void tst_FxUIDialogFrontend::isAQObjectClassOfItsOwnWithoutSignalsAndSlots()
{
    const QMetaObject &meta = CFxUIDialogFrontend::staticMetaObject;
    QCOMPARE(meta.className(), "CFxUIDialogFrontend");
    QCOMPARE(meta.superClass(), &CFxDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_FxUIDialogFrontend::answersToItsTwoBases()
{
    CFxUIDialogFrontend window;
    QCOMPARE(window.qt_metacast("CFxUIDialogFrontend"), static_cast<void *>(&window));
    QCOMPARE(window.qt_metacast("CFxUIFrontendBase<CFxUIDialogImpl>"),
             static_cast<CFxUIFrontendBase<CFxUIDialogImpl> *>(&window));
    QCOMPARE(window.qt_metacast("CFxDialog"), static_cast<CFxDialog *>(&window));
    QVERIFY(!window.qt_metacast("CFxUIDialog"));
}

void tst_FxUIDialogFrontend::startsNotSetUpAndWithoutAVeto()
{
    const CFxUIDialogFrontend window;
    QVERIFY(!window.impl);
    QVERIFY(window.isUINotYetSetup());
    QVERIFY(!Probe::RejectCallObject(window));
    QVERIFY(!window.parentWidget());
    QVERIFY(!window.isModal());
}

void tst_FxUIDialogFrontend::setUpFlagIsWrittenAndRead()
{
    CFxUIDialogFrontend window;
    window.setIsUINotYetSetup(false);
    QVERIFY(!window.isUINotYetSetup());
    window.setIsUINotYetSetup(true);
    QVERIFY(window.isUINotYetSetup());
}

// QWidget::setParent makes a window a part of its parent; the flags make it a window again.
void tst_FxUIDialogFrontend::commonParametersSetTheParentThenTheFlags()
{
    CFxDialog parent(nullptr, true, Qt::Dialog);
    CFxUIDialogFrontend window;
    ParentWatcher watcher;
    window.installEventFilter(&watcher);
    const Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    window.setCommonParameters(&parent, flags);
    QCOMPARE(window.parentWidget(), &parent);
    QCOMPARE(window.windowFlags(), flags);
    QVERIFY(!watcher.flags.isEmpty());
    QVERIFY(!(watcher.flags.first() & Qt::Window));
    QVERIFY(window.isWindow());
    window.setCommonParameters(nullptr, Qt::Dialog);
    QVERIFY(!window.parentWidget());
}

void tst_FxUIDialogFrontend::worksWithoutAnImplementationObject()
{
    CFxUIDialogFrontend window;
    QCOMPARE(window.GetHelpId(), 0);
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    QVERIFY(!window.isVisible());
}

void tst_FxUIDialogFrontend::editorCommandsAndHelpAreTheHosts()
{
    CFxUIDialogFrontend window;
    CFxDialog *host = &window;
    host->BeginEditorCommand();
    host->CancelEditorCommand();
    host->CompleteEditorCommand();
    host->Help();
    QVERIFY(!window.isVisible());
}

void tst_FxUIDialogFrontend::takenFromItsDialogItStandsAlone()
{
    auto dialog = std::make_unique<EmptyDialog>();
    const std::unique_ptr<CFxUIDialogFrontend> window(
        qobject_cast<CFxUIDialogFrontend *>(dialog->getHandle()));
    dialog->setHandle(nullptr);
    dialog.reset();
    QVERIFY(!window->impl);
    QCOMPARE(window->GetHelpId(), 0);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogFrontend>(argc, argv);
}

#include "tst_FxUIDialogFrontend.moc"
