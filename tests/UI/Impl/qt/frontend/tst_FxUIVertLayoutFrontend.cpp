#include "UI/Impl/qt/frontend/FxUIVertLayoutFrontend.h"

#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIVerticalLayoutImpl.h"
#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include <QtGui/QKeyEvent>
#include <QtTest/QTest>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<QGroupBox, CFxUIVertLayoutFrontend>);
static_assert(
    std::is_base_of_v<CFxUIFrontendBase<CFxUIVerticalLayoutImpl>, CFxUIVertLayoutFrontend>);
static_assert(!std::is_polymorphic_v<CFxUIFrontendBase<CFxUIVerticalLayoutImpl>>);

namespace {

class Frontend : public CFxUIVertLayoutFrontend {
public:
    using CFxUIVertLayoutFrontend::m_spinner;

    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        CFxUIVertLayoutFrontend::paintEvent(event);
    }
};

// A window that writes down the keys that its content passes on.
class Window : public QWidget {
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        keys.append(event->key());
        event->accept();
    }
};

// A column in a window.
struct Stage {
    Stage()
    {
        auto *content = new QVBoxLayout(&window);
        content->addWidget(Widget());
    }

    QWidget *Widget() const { return static_cast<QWidget *>(layout.getHandle()); }

    bool IsEventAccepted() const
    {
        return static_cast<CFxUIVerticalLayoutImpl *>(layout.impl)->isEventAccepted();
    }

    Window window;
    CFxUIVerticalLayout layout;
};

} // namespace

class tst_FxUIVertLayoutFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutParentSpinnerAndWayBack();
    void startMakesASpinnerAndStopDeletesIt();
    void stopWithoutSpinnerDoesNothing();
    void spinnerTakesOverThePainting();
    void dimmedLookStaysUntilTheNextRepaint();
    void childrenGoOnPaintingAndTakingInput();
    void lostSpinnerGoesOnRepainting();
    void destructionWhileSpinningIsNoFault();

    void keyGoesToTheParentWithoutSlots();
    void keyGoesToTheParentUnlessASlotClaimsIt();
    void claimedKeyStaysAndTheNextOneIsFree();
    void claimedKeyIsAccepted();
    void claimMadeBeforehandCountsForTheNextKey();
    void blockedLayoutIsSilentAndTheEarlierClaimDecides();
    void slotSeesTheKeyBeforeTheParent();
    void keyThatAChildLeavesIsOfferedToo();
    void keyWithoutWayBackGoesToTheParent();
    void slotMayStartTheSpinner();
};

void tst_FxUIVertLayoutFrontend::startsWithoutParentSpinnerAndWayBack()
{
    const Frontend frontend;
    QVERIFY(!frontend.parent());
    QVERIFY(!frontend.m_spinner);
    QVERIFY(!frontend.impl);
    QVERIFY(frontend.title().isEmpty());
}

void tst_FxUIVertLayoutFrontend::startMakesASpinnerAndStopDeletesIt()
{
    Frontend frontend;
    frontend.startSpinner();
    QVERIFY(frontend.m_spinner);
    frontend.stopSpinner();
    QVERIFY(!frontend.m_spinner);
}

void tst_FxUIVertLayoutFrontend::stopWithoutSpinnerDoesNothing()
{
    Frontend frontend;
    frontend.stopSpinner();
    QVERIFY(!frontend.m_spinner);
}

void tst_FxUIVertLayoutFrontend::spinnerTakesOverThePainting()
{
    Frontend frontend;
    frontend.setTitle(QStringLiteral("A frame and a title"));
    frontend.resize(200, 100);
    const QImage before = frontend.grab().toImage();
    frontend.startSpinner();
    const QImage spinning = frontend.grab().toImage();
    QVERIFY(spinning != before);
    // The group box itself isn't painted: without frame and title the corner is plain.
    QCOMPARE(spinning.pixel(1, 50), spinning.pixel(20, 50));
    frontend.stopSpinner();
    QCOMPARE(frontend.grab().toImage(), before);
}

void tst_FxUIVertLayoutFrontend::dimmedLookStaysUntilTheNextRepaint()
{
    Frontend frontend;
    frontend.show();
    QVERIFY(QTest::qWaitForWindowExposed(&frontend));
    frontend.startSpinner();
    QCoreApplication::processEvents();
    const int before = frontend.paints;
    frontend.stopSpinner();
    QCoreApplication::processEvents();
    QCOMPARE(frontend.paints, before);
}

void tst_FxUIVertLayoutFrontend::childrenGoOnPaintingAndTakingInput()
{
    Stage stage;
    auto *child = new CFxUILabel;
    stage.layout.addView(child);
    auto *widget = static_cast<QWidget *>(child->getHandle());
    widget->setStyleSheet(QStringLiteral("QLabel { background: red; }"));
    stage.window.resize(200, 100);
    stage.window.show();
    stage.layout.setBusyState(true);
    QVERIFY(widget->isEnabled());
    QVERIFY(widget->isVisible());
    const QPoint middle = widget->mapTo(&stage.window, widget->rect().center());
    QCOMPARE(stage.window.grab().toImage().pixelColor(middle), QColor(Qt::red));
    stage.layout.setBusyState(false);
}

void tst_FxUIVertLayoutFrontend::lostSpinnerGoesOnRepainting()
{
    auto frontend = std::make_unique<Frontend>();
    frontend->show();
    QVERIFY(QTest::qWaitForWindowExposed(frontend.get()));
    frontend->startSpinner();
    const CFxWidgetSpinner *first = frontend->m_spinner;
    frontend->startSpinner();
    QVERIFY(frontend->m_spinner != first);
    frontend->stopSpinner();
    QVERIFY(!frontend->m_spinner);
    QCoreApplication::processEvents();
    const int before = frontend->paints;
    QTRY_VERIFY(frontend->paints >= before + 2);
    frontend.reset();
}

void tst_FxUIVertLayoutFrontend::destructionWhileSpinningIsNoFault()
{
    auto frontend = std::make_unique<Frontend>();
    frontend->show();
    frontend->startSpinner();
    frontend.reset();
    QCoreApplication::processEvents();
}

void tst_FxUIVertLayoutFrontend::keyGoesToTheParentWithoutSlots()
{
    Stage stage;
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QCOMPARE(stage.window.keys, { Qt::Key_A });
}

void tst_FxUIVertLayoutFrontend::keyGoesToTheParentUnlessASlotClaimsIt()
{
    Stage stage;
    int calls = 0;
    stage.layout.aboutToPassEventToParent().connect([&calls] { ++calls; });
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QCOMPARE(calls, 1);
    QCOMPARE(stage.window.keys, { Qt::Key_A });
}

void tst_FxUIVertLayoutFrontend::claimedKeyStaysAndTheNextOneIsFree()
{
    Stage stage;
    bool claim = true;
    bool claimedAtStart = false;
    stage.layout.aboutToPassEventToParent().connect([&] {
        claimedAtStart = claimedAtStart || stage.IsEventAccepted();
        stage.layout.setEventAccepted(claim);
    });
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QVERIFY(stage.window.keys.isEmpty());
    QVERIFY(!stage.IsEventAccepted());
    claim = false;
    QTest::keyClick(stage.Widget(), Qt::Key_B);
    QCOMPARE(stage.window.keys, { Qt::Key_B });
    QVERIFY(!claimedAtStart);
}

void tst_FxUIVertLayoutFrontend::claimedKeyIsAccepted()
{
    Stage stage;
    stage.layout.setEventAccepted(true);
    QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    key.ignore(); // what the column finds
    QCoreApplication::sendEvent(stage.Widget(), &key);
    QVERIFY(key.isAccepted());
    QVERIFY(stage.window.keys.isEmpty());
}

void tst_FxUIVertLayoutFrontend::claimMadeBeforehandCountsForTheNextKey()
{
    Stage stage;
    stage.layout.setEventAccepted(true);
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QTest::keyClick(stage.Widget(), Qt::Key_B);
    QCOMPARE(stage.window.keys, { Qt::Key_B });
}

void tst_FxUIVertLayoutFrontend::blockedLayoutIsSilentAndTheEarlierClaimDecides()
{
    Stage stage;
    int calls = 0;
    stage.layout.aboutToPassEventToParent().connect([&calls] { ++calls; });
    stage.layout.blockSignals(true);
    stage.layout.setEventAccepted(true);
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QVERIFY(stage.window.keys.isEmpty());
    QTest::keyClick(stage.Widget(), Qt::Key_B);
    QCOMPARE(stage.window.keys, { Qt::Key_B });
    QCOMPARE(calls, 0);
}

void tst_FxUIVertLayoutFrontend::slotSeesTheKeyBeforeTheParent()
{
    Stage stage;
    int keysInSlot = -1;
    stage.layout.aboutToPassEventToParent().connect([&] { keysInSlot = stage.window.keys.size(); });
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QCOMPARE(keysInSlot, 0);
}

void tst_FxUIVertLayoutFrontend::keyThatAChildLeavesIsOfferedToo()
{
    Stage stage;
    auto *child = new CFxUILabel;
    stage.layout.addView(child);
    int calls = 0;
    stage.layout.aboutToPassEventToParent().connect([&] {
        ++calls;
        stage.layout.setEventAccepted(true);
    });
    QTest::keyClick(static_cast<QWidget *>(child->getHandle()), Qt::Key_A);
    QCOMPARE(calls, 1);
    QVERIFY(stage.window.keys.isEmpty());
}

void tst_FxUIVertLayoutFrontend::keyWithoutWayBackGoesToTheParent()
{
    Window window;
    auto *frontend = new Frontend;
    frontend->setParent(&window);
    QTest::keyClick(frontend, Qt::Key_A);
    QCOMPARE(window.keys, { Qt::Key_A });
}

void tst_FxUIVertLayoutFrontend::slotMayStartTheSpinner()
{
    Stage stage;
    stage.layout.aboutToPassEventToParent().connect([&] { stage.layout.setBusyState(true); });
    QTest::keyClick(stage.Widget(), Qt::Key_A);
    QCOMPARE(stage.window.keys, { Qt::Key_A });
    stage.layout.setBusyState(false);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIVertLayoutFrontend>(argc, argv);
}

#include "tst_FxUIVertLayoutFrontend.moc"
