#include "DialogTools.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {

// Says when it dies.
template <class Base> class Mortal : public Base {
public:
    explicit Mortal(std::function<void()> atTheEnd)
        : m_atTheEnd(std::move(atTheEnd))
    {
    }

    ~Mortal() override { m_atTheEnd(); }

private:
    std::function<void()> m_atTheEnd;
};

} // namespace

class tst_FxUIDialogDestruction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void exactlyOneWindowStaysBehindForEachDialog_data();
    void exactlyOneWindowStaysBehindForEachDialog();
    void windowStaysBehindWithoutAParent();
    void shownWindowIsHiddenAtTheEnd();
    void leftBehindWindowIsHarmless();
    void dialogThatNeverRanHasNoLayoutToDelete();
    void contentDiesThenTheSignalsThenTheChildren();
    void buttonBoxDiesWithItsDialog();
    void busyContentEndsWithItsDialog();
    void windowThatTheHostHasSetIsLetGo();
    void windowDeletedByItsParentFirst();
    void dialogDestroyedDuringItsRunEndsIt();
    void windowDeletedDuringARunEndsIt();
};

void tst_FxUIDialogDestruction::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialogDestruction::exactlyOneWindowStaysBehindForEachDialog_data()
{
    QTest::addColumn<bool>("run");
    QTest::newRow("without ever running") << false;
    QTest::newRow("after a run") << true;
}

// Settled: nothing deletes a window, so that there is one more for each dialog, and nothing else.
void tst_FxUIDialogDestruction::exactlyOneWindowStaysBehindForEachDialog()
{
    QFETCH(bool, run);
    const QWidgetList before = QApplication::allWidgets();
    for (int i = 0; i < 3; ++i) {
        TestDialog dialog;
        dialog.inSetup = [&] {
            dialog.GetLayout()->addView(new CFxUILabel);
            new CFxUIDialogButtonBox(&dialog);
        };
        if (run)
            ExecAndDo(dialog, [&] { dialog.accept(); });
    }
    FlushDeferredDeletes();
    const QList<CFxUIDialogFrontend *> windows = LeftBehindWindows();
    QCOMPARE(windows.size(), 3);
    // Inside each: its layout and the group box of the content, emptied.
    const int widgetsOfEach = run ? 2 : 1;
    QCOMPARE(QApplication::allWidgets().size() - before.size(), 3 * widgetsOfEach);
    for (const CFxUIDialogFrontend *window : windows) {
        QCOMPARE(!window->findChildren<QVBoxLayout *>(QStringLiteral("mainLayout")).isEmpty(), run);
        QCOMPARE(!window->findChildren<QGroupBox *>(QStringLiteral("main_layout")).isEmpty(), run);
        QVERIFY(!window->parentWidget());
        QVERIFY(!window->isVisible());
    }
}

void tst_FxUIDialogDestruction::windowStaysBehindWithoutAParent()
{
    TestDialog parent;
    {
        TestDialog dialog;
        Window(dialog)->setCommonParameters(Window(parent), Qt::Dialog);
        QCOMPARE(Window(dialog)->parentWidget(), Window(parent));
    }
    QCOMPARE(LeftBehindWindows().size(), 1);
    QVERIFY(!LeftBehindWindows().first()->parentWidget());
}

void tst_FxUIDialogDestruction::shownWindowIsHiddenAtTheEnd()
{
    {
        TestDialog dialog;
        dialog.setVisible(true);
        QVERIFY(Window(dialog)->isVisible());
    }
    QCOMPARE(LeftBehindWindows().size(), 1);
    QVERIFY(!LeftBehindWindows().first()->isVisible());
}

void tst_FxUIDialogDestruction::leftBehindWindowIsHarmless()
{
    {
        TestDialog dialog;
        ExecAndDo(dialog, [&] { dialog.accept(); });
    }
    auto *window = LeftBehindWindows().first();
    QCOMPARE(window->GetHelpId(), 0); // the host's own answer
    window->show();
    QTest::keyClick(window->findChild<QGroupBox *>(), Qt::Key_A);
    window->findChild<QGroupBox *>()->grab();
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(!window->isVisible());
    window->Help();
    window->accept();
    QCOMPARE(window->result(), 1);
}

void tst_FxUIDialogDestruction::dialogThatNeverRanHasNoLayoutToDelete()
{
    auto dialog = std::make_unique<TestDialog>();
    QVERIFY(!dialog->GetLayout());
    dialog.reset();
    QCOMPARE(LeftBehindWindows().size(), 1);
    QVERIFY(!LeftBehindWindows().first()->layout());
}

void tst_FxUIDialogDestruction::contentDiesThenTheSignalsThenTheChildren()
{
    QStringList log;
    auto dialog = std::make_unique<TestDialog>();
    auto *dying = dialog.get();
    const auto say = [&](const char *who) {
        const char *state = dying->getHandle() ? " with the handle" : " without a handle";
        log.append(QString::fromLatin1(who) + QLatin1String(state));
    };
    dialog->inSetup = [&] {
        dialog->GetLayout()->addView(new Mortal<CFxUILabel>([&] { say("view"); }));
        auto *child = new Mortal<CFxUIObject>([&] { say("child"); });
        child->setParent(dialog.get());
    };
    ExecAndDo(*dialog, [&] { dialog->accept(); });

    class Empty {
    public:
        virtual ~Empty() = default;
    };

    // A slot dies with its signal, and what it holds with the slot.
    dialog->accepted().connect(
        [held = std::make_shared<Mortal<Empty>>([&] { say("slot"); })] { Q_UNUSED(held) });
    dialog.reset();
    QCOMPARE(log,
             QStringList({ QStringLiteral("view without a handle"),
                           QStringLiteral("slot without a handle"),
                           QStringLiteral("child without a handle") }));
}

void tst_FxUIDialogDestruction::buttonBoxDiesWithItsDialog()
{
    int deaths = 0;
    QPointer<QObject> qtBox;

    class Box : public CFxUIDialogButtonBox {
    public:
        Box(CFxUIDialog *dialog, int &deaths)
            : CFxUIDialogButtonBox(dialog)
            , m_deaths(deaths)
        {
        }

        ~Box() override { ++m_deaths; }

    private:
        int &m_deaths;
    };

    {
        TestDialog dialog;
        dialog.inSetup = [&] { qtBox = (new Box(&dialog, deaths))->getHandle(); };
        ExecAndDo(dialog, [&] { dialog.accept(); });
    }
    QCOMPARE(deaths, 1);
    QVERIFY(qtBox);
    FlushDeferredDeletes();
    QVERIFY(!qtBox);
}

void tst_FxUIDialogDestruction::busyContentEndsWithItsDialog()
{
    QImage idle;
    QImage busy;
    {
        TestDialog dialog;
        ExecAndDo(dialog, [&] {
            Window(dialog)->setFixedSize(200, 100); // no window manager has a say in it
            idle = Window(dialog)->grab().toImage();
            dialog.GetLayout()->setBusyState(true);
            busy = Window(dialog)->grab().toImage();
            dialog.accept();
        });
    }
    QVERIFY(busy != idle);
    QCOMPARE(LeftBehindWindows().first()->grab().toImage(), idle);
}

void tst_FxUIDialogDestruction::windowThatTheHostHasSetIsLetGo()
{
    auto dialog = std::make_unique<TestDialog>();
    const std::unique_ptr<CFxUIDialogFrontend> own(Window(*dialog));
    CFxUIDialogFrontend window;
    window.impl = dialog->Impl();
    dialog->setHandle(&window);
    dialog.reset();
    QVERIFY(!window.impl);
    QVERIFY(!own->impl);
    QCOMPARE(window.GetHelpId(), 0);
}

void tst_FxUIDialogDestruction::windowDeletedByItsParentFirst()
{
    auto dialog = std::make_unique<TestDialog>();
    ExecAndDo(*dialog, [&] {
        dialog->GetLayout()->addView(new CFxUILabel);
        dialog->accept();
    });
    auto host = std::make_unique<CFxDialog>(nullptr, true, Qt::Dialog);
    Window(*dialog)->setCommonParameters(host.get(), Qt::Dialog);
    host.reset();
    QVERIFY(!dialog->getHandle());
    QVERIFY(!dialog->GetLayout()->getHandle());
    dialog->hide();
    dialog.reset();
    QVERIFY(LeftBehindWindows().isEmpty());
}

// Not allowed, and yet no reason to write to memory that is gone.
void tst_FxUIDialogDestruction::dialogDestroyedDuringItsRunEndsIt()
{
    auto *dialog = new TestDialog;
    const auto destroy = [&] {
        dialog->setResult(5);
        delete dialog;
    };
    QCOMPARE(ExecAndDo(*dialog, destroy), 0);
    QCOMPARE(LeftBehindWindows().size(), 1);
    QVERIFY(!LeftBehindWindows().first()->isVisible());
}

void tst_FxUIDialogDestruction::windowDeletedDuringARunEndsIt()
{
    TestDialog dialog;
    dialog.setResult(5);
    QCOMPARE(ExecAndDo(dialog, [&] { delete Window(dialog); }), 0);
    QCOMPARE(dialog.result(), 0); // what the run has returned, as ever
    QVERIFY(!dialog.getHandle());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogDestruction>(argc, argv);
}

#include "tst_FxUIDialogDestruction.moc"
