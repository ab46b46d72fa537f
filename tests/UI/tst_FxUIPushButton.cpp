#include "UI/FxUIPushButton.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUIMenu.h"
#include "UI/Impl/FxUIPushButtonImpl.h"

#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIPushButton>);
static_assert(!std::is_copy_constructible_v<CFxUIPushButton>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIPushButton &>().clicked()),
                             CFxUISignal<void(bool)> &>);

namespace {

QPushButton *QtButton(const CFxUIPushButton &button)
{
    return qobject_cast<QPushButton *>(button.getHandle());
}

CFxUIPushButtonImpl *Impl(const CFxUIPushButton &button)
{
    return static_cast<CFxUIPushButtonImpl *>(button.impl);
}

QIcon SomeIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

struct Probe : CFxUIPushButtonImpl {
    static QIcon Icon(const CFxUIPushButton &button) { return Impl(button)->*(&Probe::m_icon); }
};

// An implementation object before its CreateFrontendControl().
class BareImpl : public CFxUIPushButtonImpl {
public:
    using CFxUIPushButtonImpl::CFxUIPushButtonImpl;
    using CFxUIPushButtonImpl::m_iconSize;
};

void SendEvent(const CFxUIPushButton &button, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(button.getHandle(), &event);
}

} // namespace

class tst_FxUIPushButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passesTheControlContract();
    void frontendIsItsOwnClassWithItsSheet();
    void frontendClassNameIsTheFrontends();
    void startsEmptyWithTheWidgetsIconSize();
    void textGoesToTheWidgetAndIsAnsweredFromTheRecord();
    void iconIsStoredAndReachesTheWidget();
    void resourceIconHasNoEffect();
    void iconSizeIsStoredAndReachesTheWidget();
    void toolTipReachesTheWidget();
    void mouseClickEmitsAtTheRelease();
    void releaseOutsideEmitsNothing();
    void spaceKeyEmits();
    void clickOnADisabledButtonEmitsNothing();
    void checkableButtonEmitsTrueWhenSwitchedOff();
    void handlerNamedForThePressReportsAClick();
    void blockedSignalsSilenceAClick();
    void clickNamesNoSender();
    void hoverIsReported();
    void blockedSignalsSilenceHovering();
    void menuIsTheQMenuOfTheMenu();
    void nullTakesTheMenuAway();
    void menuWithoutAQMenuKeepsTheOldOne();
    void menuOpensAtAPressAndItsEntryTriggers();
    void menuThatDiesLeavesTheButton();
    void settersWithoutHandleKeepTheState();
    void settersWithAForeignHandleKeepTheState();
    void clickAfterTheDeletionReachesNoOne();
};

void tst_FxUIPushButton::passesTheControlContract()
{
    ControlContract([] { return new CFxUIPushButton; });
}

void tst_FxUIPushButton::frontendIsItsOwnClassWithItsSheet()
{
    const CFxUIPushButton button;
    QVERIFY(QtButton(button));
    QCOMPARE(QtButton(button)->metaObject()->className(), "CFxUIPushButtonFrontend");
    QVERIFY(!QtButton(button)->parentWidget());
    QVERIFY(QtButton(button)->autoDefault());
    QCOMPARE(QtButton(button)->styleSheet(), QStringLiteral("QPushButton { }"));
}

void tst_FxUIPushButton::frontendClassNameIsTheFrontends()
{
    const CFxUIPushButton button;
    QCOMPARE(button.impl->GetFrontendClassName(), QStringLiteral("CFxUIPushButtonFrontend"));
}

void tst_FxUIPushButton::startsEmptyWithTheWidgetsIconSize()
{
    const CFxUIPushButton button;
    QVERIFY(button.text().isNull());
    QVERIFY(Probe::Icon(button).isNull());
    QVERIFY(!Impl(button)->isElideTextEnabled());
    QVERIFY(!QtButton(button)->isCheckable());
    QVERIFY(!QtButton(button)->menu());
    QVERIFY(button.iconSize().isValid());
    QCOMPARE(button.iconSize(), QtButton(button)->iconSize());
    CFxUIObject owner;
    const BareImpl bare(&owner);
    QCOMPARE(bare.m_iconSize, QSize(-1, -1));
}

void tst_FxUIPushButton::textGoesToTheWidgetAndIsAnsweredFromTheRecord()
{
    CFxUIPushButton button;
    button.setText(QStringLiteral("ours"));
    QCOMPARE(QtButton(button)->text(), QStringLiteral("ours"));
    QtButton(button)->setText(QStringLiteral("theirs"));
    QCOMPARE(button.text(), QStringLiteral("ours"));
}

void tst_FxUIPushButton::iconIsStoredAndReachesTheWidget()
{
    CFxUIPushButton button;
    button.setIcon(SomeIcon());
    QVERIFY(!QtButton(button)->icon().isNull());
    QVERIFY(!Probe::Icon(button).isNull());
    button.setIcon(QIcon());
    QVERIFY(QtButton(button)->icon().isNull());
    QVERIFY(Probe::Icon(button).isNull());
}

void tst_FxUIPushButton::resourceIconHasNoEffect()
{
    CFxUIPushButton button;
    button.setIcon(SomeIcon());
    const qint64 key = QtButton(button)->icon().cacheKey();
    button.setResourceIcon(QStringLiteral(":/commonui/resources/icons/chevron_up.png"));
    QCOMPARE(QtButton(button)->icon().cacheKey(), key);
    QCOMPARE(Probe::Icon(button).cacheKey(), key);
}

void tst_FxUIPushButton::iconSizeIsStoredAndReachesTheWidget()
{
    CFxUIPushButton button;
    button.setIconSize(QSize(48, 32));
    QCOMPARE(button.iconSize(), QSize(48, 32));
    QCOMPARE(QtButton(button)->iconSize(), QSize(48, 32));
    QtButton(button)->setIconSize(QSize(8, 8));
    QCOMPARE(button.iconSize(), QSize(48, 32));
}

void tst_FxUIPushButton::toolTipReachesTheWidget()
{
    CFxUIPushButton button;
    button.setToolTip(QStringLiteral("tip"));
    QCOMPARE(QtButton(button)->toolTip(), QStringLiteral("tip"));
}

void tst_FxUIPushButton::mouseClickEmitsAtTheRelease()
{
    CFxUIPushButton button;
    QList<bool> emitted;
    button.clicked().connect([&emitted](bool checked) { emitted.append(checked); });
    QTest::mousePress(QtButton(button), Qt::LeftButton);
    QVERIFY(emitted.isEmpty());
    QTest::mouseRelease(QtButton(button), Qt::LeftButton);
    QCOMPARE(emitted, QList<bool>({ true }));
}

void tst_FxUIPushButton::releaseOutsideEmitsNothing()
{
    CFxUIPushButton button;
    int emissions = 0;
    button.clicked().connect([&emissions](bool) { ++emissions; });
    QTest::mousePress(QtButton(button), Qt::LeftButton);
    QTest::mouseRelease(QtButton(button), Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
    QCOMPARE(emissions, 0);
}

void tst_FxUIPushButton::spaceKeyEmits()
{
    CFxUIPushButton button;
    QList<bool> emitted;
    button.clicked().connect([&emitted](bool checked) { emitted.append(checked); });
    QTest::keyPress(QtButton(button), Qt::Key_Space);
    QVERIFY(emitted.isEmpty());
    QTest::keyRelease(QtButton(button), Qt::Key_Space);
    QCOMPARE(emitted, QList<bool>({ true }));
}

void tst_FxUIPushButton::clickOnADisabledButtonEmitsNothing()
{
    CFxUIPushButton button;
    int emissions = 0;
    button.clicked().connect([&emissions](bool) { ++emissions; });
    button.setEnabled(false);
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QCOMPARE(emissions, 0);
}

void tst_FxUIPushButton::checkableButtonEmitsTrueWhenSwitchedOff()
{
    CFxUIPushButton button;
    button.setCheckable(true);
    QVERIFY(QtButton(button)->isCheckable());
    QList<bool> emitted;
    QList<bool> states;
    button.clicked().connect([&](bool checked) {
        emitted.append(checked);
        states.append(QtButton(button)->isChecked());
    });
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QCOMPARE(states, QList<bool>({ true, false }));
    QCOMPARE(emitted, QList<bool>({ true, true }));
    button.setCheckable(false);
    QVERIFY(!QtButton(button)->isCheckable());
}

void tst_FxUIPushButton::handlerNamedForThePressReportsAClick()
{
    CFxUIPushButton button;
    QList<bool> emitted;
    button.clicked().connect([&emitted](bool checked) { emitted.append(checked); });
    Impl(button)->OnPressed();
    QCOMPARE(emitted, QList<bool>({ true }));
    button.blockSignals(true);
    Impl(button)->OnPressed();
    QCOMPARE(emitted.size(), 1);
}

void tst_FxUIPushButton::blockedSignalsSilenceAClick()
{
    CFxUIPushButton button;
    button.setCheckable(true);
    int emissions = 0;
    button.clicked().connect([&emissions](bool) { ++emissions; });
    button.blockSignals(true);
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QCOMPARE(emissions, 0);
    QVERIFY(QtButton(button)->isChecked());
    button.blockSignals(false);
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QCOMPARE(emissions, 1);
}

void tst_FxUIPushButton::clickNamesNoSender()
{
    CFxUIPushButton button;
    const CFxUIObject *sender = &button;
    button.clicked().connect([&](bool) { sender = button.sender(); });
    QTest::mouseClick(QtButton(button), Qt::LeftButton);
    QVERIFY(!sender);
}

void tst_FxUIPushButton::hoverIsReported()
{
    CFxUIPushButton button;
    QStringList log;
    button.hoverEnter().connect([&log] { log.append(QStringLiteral("enter")); });
    button.hoverLeave().connect([&log] { log.append(QStringLiteral("leave")); });
    SendEvent(button, QEvent::Enter);
    QCOMPARE(log, QStringList({ QStringLiteral("enter") }));
    SendEvent(button, QEvent::Leave);
    QCOMPARE(log, QStringList({ QStringLiteral("enter"), QStringLiteral("leave") }));
}

void tst_FxUIPushButton::blockedSignalsSilenceHovering()
{
    CFxUIPushButton button;
    int emissions = 0;
    button.hoverEnter().connect([&emissions] { ++emissions; });
    button.hoverLeave().connect([&emissions] { ++emissions; });
    button.blockSignals(true);
    SendEvent(button, QEvent::Enter);
    SendEvent(button, QEvent::Leave);
    QCOMPARE(emissions, 0);
}

void tst_FxUIPushButton::menuIsTheQMenuOfTheMenu()
{
    CFxUIPushButton button;
    CFxUIMenu menu;
    button.setMenu(&menu);
    QCOMPARE(QtButton(button)->menu(), menu.getHandle());
    QVERIFY(!menu.parent()); // the caller keeps it
}

void tst_FxUIPushButton::nullTakesTheMenuAway()
{
    CFxUIPushButton button;
    CFxUIMenu menu;
    button.setMenu(&menu);
    button.setMenu(nullptr);
    QVERIFY(!QtButton(button)->menu());
}

void tst_FxUIPushButton::menuWithoutAQMenuKeepsTheOldOne()
{
    CFxUIPushButton button;
    CFxUIMenu menu;
    button.setMenu(&menu);
    CFxUIMenu other;
    const std::unique_ptr<QObject> handle(other.getHandle());
    QLabel foreign;
    other.setHandle(&foreign);
    button.setMenu(&other);
    QCOMPARE(QtButton(button)->menu(), menu.getHandle());
    other.setHandle(nullptr);
    button.setMenu(&other);
    QCOMPARE(QtButton(button)->menu(), menu.getHandle());
}

void tst_FxUIPushButton::menuOpensAtAPressAndItsEntryTriggers()
{
    CFxUIMenu menu;
    auto *action = new CFxUIAction;
    const std::unique_ptr<QObject> handle(action->getHandle());
    action->setText(QStringLiteral("entry"));
    menu.addAction(action);
    int triggered = 0;
    action->triggered().connect([&triggered](bool) { ++triggered; });
    CFxUIPushButton button;
    int clicks = 0;
    button.clicked().connect([&clicks](bool) { ++clicks; });
    button.setMenu(&menu);
    auto *qtMenu = static_cast<QMenu *>(menu.getHandle());
    bool opened = false;
    // QPushButton runs the menu in an event loop of its own.
    connect(qtMenu, &QMenu::aboutToShow, this, [&] {
        QTimer::singleShot(0, qtMenu, [&] {
            opened = qtMenu->isVisible();
            QTest::keyClick(qtMenu, Qt::Key_Down);
            QTest::keyClick(qtMenu, Qt::Key_Return);
        });
    });
    button.setVisible(true);
    QTest::mousePress(QtButton(button), Qt::LeftButton);
    QVERIFY(opened);
    QCOMPARE(triggered, 1);
    QCOMPARE(clicks, 0);
    QTest::mouseRelease(QtButton(button), Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
}

void tst_FxUIPushButton::menuThatDiesLeavesTheButton()
{
    CFxUIPushButton button;
    {
        CFxUIMenu menu;
        button.setMenu(&menu);
    }
    FlushDeferredDeletes();
    QVERIFY(!QtButton(button)->menu());
}

void tst_FxUIPushButton::settersWithoutHandleKeepTheState()
{
    CFxUIPushButton button;
    const std::unique_ptr<QObject> handle(button.getHandle());
    button.setHandle(nullptr);
    CFxUIMenu menu;
    button.setText(QStringLiteral("text"));
    button.setIcon(SomeIcon());
    button.setResourceIcon(QStringLiteral("any"));
    button.setIconSize(QSize(3, 4));
    button.setElideTextEnabled(true);
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    button.setBoldText(true);
    button.setToolTip(QStringLiteral("tip"));
    button.setCheckable(true);
    button.setMenu(&menu);
    button.setMenu(nullptr);
    button.setMenuArrowVisible(false);
    QCOMPARE(button.text(), QStringLiteral("text"));
    QCOMPARE(button.iconSize(), QSize(3, 4));
    QVERIFY(!Probe::Icon(button).isNull());
    QVERIFY(Impl(button)->isElideTextEnabled());
    auto *widget = static_cast<QPushButton *>(handle.get());
    QCOMPARE(widget->text(), QString());
    QCOMPARE(widget->toolTip(), QString());
    QCOMPARE(widget->styleSheet(), QStringLiteral("QPushButton { }"));
}

void tst_FxUIPushButton::settersWithAForeignHandleKeepTheState()
{
    CFxUIPushButton button;
    const std::unique_ptr<QObject> handle(button.getHandle());
    QPushButton foreign; // a QPushButton isn't enough: the frontend class is asked for
    button.setHandle(&foreign);
    CFxUIMenu menu;
    button.setText(QStringLiteral("text"));
    button.setIconSize(QSize(3, 4));
    button.setCheckable(true);
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    button.setBoldText(true);
    button.setMenuArrowVisible(false);
    button.setToolTip(QStringLiteral("tip"));
    button.setMenu(&menu);
    QCOMPARE(button.text(), QStringLiteral("text"));
    QCOMPARE(button.iconSize(), QSize(3, 4));
    QCOMPARE(foreign.text(), QString());
    QCOMPARE(foreign.styleSheet(), QString());
    QCOMPARE(foreign.toolTip(), QString());
    QVERIFY(!foreign.isCheckable());
    QVERIFY(!foreign.menu());
    button.setHandle(nullptr);
}

void tst_FxUIPushButton::clickAfterTheDeletionReachesNoOne()
{
    auto button = std::make_unique<CFxUIPushButton>();
    int emissions = 0;
    button->clicked().connect([&emissions](bool) { ++emissions; });
    button->hoverEnter().connect([&emissions] { ++emissions; });
    const QPointer<QPushButton> widget(QtButton(*button));
    button.reset();
    QVERIFY(widget);
    widget->click();
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(widget, &enter);
    QCOMPARE(emissions, 0);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIPushButton>(argc, argv);
}

#include "tst_FxUIPushButton.moc"
