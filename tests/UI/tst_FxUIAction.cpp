#include "UI/FxUIAction.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIBaseView.h"
#include "UI/Impl/FxUIActionImpl.h"

#include <QtCore/QPointer>
#include <QtGui/QIcon>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QMenu>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUIAction>);
static_assert(!std::is_base_of_v<CFxUIBaseView, CFxUIAction>);
static_assert(!std::is_copy_constructible_v<CFxUIAction>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIAction &>().triggered()), CFxUISignal<void(bool)> &>);

namespace {

QAction *QtAction(const CFxUIAction &action)
{
    return qobject_cast<QAction *>(action.getHandle());
}

// An action whose QAction dies with it: the library leaves it behind.
struct ScopedAction {
    CFxUIAction action;
    std::unique_ptr<QObject> handle { action.getHandle() };
};

QIcon SomeIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

// The flags, in the order of their fields: enabled, checkable, checked, visible.
struct Probe : CFxUIActionImpl {
    static QList<bool> Flags(const CFxUIAction &action)
    {
        const auto &impl = *static_cast<const CFxUIActionImpl *>(action.impl);
        return { impl.*(&Probe::m_enabled), impl.*(&Probe::m_checkable), impl.*(&Probe::m_checked),
                 impl.*(&Probe::m_visible) };
    }

    static QSize IconSize(const CFxUIAction &action)
    {
        const auto &impl = *static_cast<const CFxUIActionImpl *>(action.impl);
        return { impl.*(&Probe::m_iconWidth), impl.*(&Probe::m_iconHeight) };
    }

    static QIcon Icon(const CFxUIAction &action)
    {
        return (*static_cast<const CFxUIActionImpl *>(action.impl)).*(&Probe::m_icon);
    }
};

} // namespace

class tst_FxUIAction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handleIsAQActionWithoutParent();
    void frontendClassNameIsQAction();
    void startsEmptyWithAllFlagsFalse();
    void settersStoreAndReachTheQAction();
    void setEnabledStoresOnly();
    void setResourceIconChangesNothing();
    void setCheckedOnAnUncheckableActionIsStoredAlone();
    void setCheckedEmitsNothing();
    void triggerOfAPlainActionEmitsFalse();
    void togglingByTheUserDoesNotReachIsChecked();
    void blockedSignalsSilenceTriggeredAndTheQActionToggles();
    void readersDoNotAskTheQAction();
    void settersWithoutHandleKeepTheState();
    void settersWithAForeignHandleKeepTheState();
    void qactionOutlivesTheActionInItsMenuWithoutEffect();
    void exactlyOneQActionStaysBehind();
};

void tst_FxUIAction::handleIsAQActionWithoutParent()
{
    const ScopedAction scoped;
    QVERIFY(QtAction(scoped.action));
    QVERIFY(!QtAction(scoped.action)->parent());
    QVERIFY(!scoped.action.parent());
}

void tst_FxUIAction::frontendClassNameIsQAction()
{
    const ScopedAction scoped;
    QCOMPARE(scoped.action.impl->GetFrontendClassName(), QStringLiteral("QAction"));
}

void tst_FxUIAction::startsEmptyWithAllFlagsFalse()
{
    const ScopedAction scoped;
    QCOMPARE(scoped.action.text(), QString());
    QVERIFY(!scoped.action.isChecked());
    QCOMPARE(Probe::Flags(scoped.action), QList<bool>({ false, false, false, false }));
    QCOMPARE(Probe::IconSize(scoped.action), QSize(-1, -1));
    QVERIFY(Probe::Icon(scoped.action).isNull());
    QVERIFY(QtAction(scoped.action)->isEnabled()); // the QAction keeps Qt's own defaults
    QVERIFY(QtAction(scoped.action)->isVisible());
    QVERIFY(!QtAction(scoped.action)->isCheckable());
}

void tst_FxUIAction::settersStoreAndReachTheQAction()
{
    ScopedAction scoped;
    CFxUIAction &action = scoped.action;
    action.setText(QStringLiteral("Align"));
    action.setIcon(SomeIcon());
    action.setCheckable(true);
    action.setChecked(true);
    action.setVisible(false);
    QCOMPARE(action.text(), QStringLiteral("Align"));
    QVERIFY(action.isChecked());
    QCOMPARE(Probe::Flags(action), QList<bool>({ false, true, true, false }));
    QVERIFY(!Probe::Icon(action).isNull());
    QCOMPARE(Probe::IconSize(action), QSize(-1, -1)); // nothing writes it
    QCOMPARE(QtAction(action)->text(), QStringLiteral("Align"));
    QVERIFY(!QtAction(action)->icon().isNull());
    QVERIFY(QtAction(action)->isCheckable());
    QVERIFY(QtAction(action)->isChecked());
    QVERIFY(!QtAction(action)->isVisible());
    action.setVisible(true);
    QVERIFY(QtAction(action)->isVisible());
    QCOMPARE(Probe::Flags(action), QList<bool>({ false, true, true, true }));
}

void tst_FxUIAction::setEnabledStoresOnly()
{
    ScopedAction scoped;
    const QSignalSpy changes(QtAction(scoped.action), &QAction::changed);
    scoped.action.setEnabled(true);
    QCOMPARE(Probe::Flags(scoped.action).first(), true);
    scoped.action.setEnabled(false);
    QCOMPARE(Probe::Flags(scoped.action).first(), false);
    QVERIFY(QtAction(scoped.action)->isEnabled());
    QCOMPARE(changes.size(), 0);
}

void tst_FxUIAction::setResourceIconChangesNothing()
{
    ScopedAction scoped;
    const QSignalSpy changes(QtAction(scoped.action), &QAction::changed);
    scoped.action.setResourceIcon(QStringLiteral(":/commonui/resources/icons/chevron_up.png"));
    QCOMPARE(changes.size(), 0);
    QVERIFY(QtAction(scoped.action)->icon().isNull());
    QVERIFY(Probe::Icon(scoped.action).isNull());
}

void tst_FxUIAction::setCheckedOnAnUncheckableActionIsStoredAlone()
{
    ScopedAction scoped;
    scoped.action.setChecked(true);
    QVERIFY(scoped.action.isChecked());
    QVERIFY(!QtAction(scoped.action)->isChecked());
}

void tst_FxUIAction::setCheckedEmitsNothing()
{
    ScopedAction scoped;
    const QSignalSpy toggles(QtAction(scoped.action), &QAction::toggled);
    int emissions = 0;
    scoped.action.triggered().connect([&emissions](bool) { ++emissions; });
    scoped.action.setCheckable(true);
    scoped.action.setChecked(true);
    QCOMPARE(toggles.size(), 1);
    QCOMPARE(emissions, 0);
}

void tst_FxUIAction::triggerOfAPlainActionEmitsFalse()
{
    ScopedAction scoped;
    QList<bool> emitted;
    CFxUIObject *sender = &scoped.action;
    scoped.action.triggered().connect([&](bool checked) {
        emitted.append(checked);
        sender = scoped.action.sender();
    });
    QtAction(scoped.action)->trigger();
    QCOMPARE(emitted, QList<bool>({ false }));
    QVERIFY(!sender); // the library names no sender
}

void tst_FxUIAction::togglingByTheUserDoesNotReachIsChecked()
{
    ScopedAction scoped;
    scoped.action.setCheckable(true);
    QList<bool> emitted;
    scoped.action.triggered().connect([&emitted](bool checked) { emitted.append(checked); });
    QtAction(scoped.action)->trigger();
    QVERIFY(!scoped.action.isChecked());
    scoped.action.setChecked(true);
    QtAction(scoped.action)->trigger();
    QVERIFY(scoped.action.isChecked());
    QVERIFY(!QtAction(scoped.action)->isChecked());
    QCOMPARE(emitted, QList<bool>({ true, false }));
}

void tst_FxUIAction::blockedSignalsSilenceTriggeredAndTheQActionToggles()
{
    ScopedAction scoped;
    scoped.action.setCheckable(true);
    int emissions = 0;
    scoped.action.triggered().connect([&emissions](bool) { ++emissions; });
    scoped.action.blockSignals(true);
    QtAction(scoped.action)->trigger();
    QCOMPARE(emissions, 0);
    QVERIFY(QtAction(scoped.action)->isChecked());
}

void tst_FxUIAction::readersDoNotAskTheQAction()
{
    ScopedAction scoped;
    scoped.action.setText(QStringLiteral("ours"));
    scoped.action.setCheckable(true);
    QtAction(scoped.action)->setText(QStringLiteral("theirs"));
    QtAction(scoped.action)->setChecked(true);
    QCOMPARE(scoped.action.text(), QStringLiteral("ours"));
    QVERIFY(!scoped.action.isChecked());
}

void tst_FxUIAction::settersWithoutHandleKeepTheState()
{
    ScopedAction scoped;
    scoped.action.setHandle(nullptr);
    scoped.action.setText(QStringLiteral("Align"));
    scoped.action.setIcon(SomeIcon());
    scoped.action.setResourceIcon(QStringLiteral("any"));
    scoped.action.setEnabled(true);
    scoped.action.setCheckable(true);
    scoped.action.setChecked(true);
    scoped.action.setVisible(true);
    QCOMPARE(scoped.action.text(), QStringLiteral("Align"));
    QVERIFY(scoped.action.isChecked());
    QCOMPARE(Probe::Flags(scoped.action), QList<bool>({ true, true, true, true }));
    QCOMPARE(static_cast<QAction *>(scoped.handle.get())->text(), QString());
}

void tst_FxUIAction::settersWithAForeignHandleKeepTheState()
{
    ScopedAction scoped;
    QMenu foreign;
    scoped.action.setHandle(&foreign);
    scoped.action.setText(QStringLiteral("Align"));
    scoped.action.setVisible(true);
    QCOMPARE(scoped.action.text(), QStringLiteral("Align"));
    QVERIFY(!foreign.isVisible());
    QCOMPARE(foreign.title(), QString());
    scoped.action.setHandle(nullptr);
}

void tst_FxUIAction::qactionOutlivesTheActionInItsMenuWithoutEffect()
{
    QMenu menu;
    auto action = std::make_unique<CFxUIAction>();
    int emissions = 0;
    action->triggered().connect([&emissions](bool) { ++emissions; });
    const std::unique_ptr<QAction> handle(QtAction(*action));
    const QPointer<QAction> guard(handle.get());
    menu.addAction(handle.get());
    action.reset();
    FlushDeferredDeletes();
    QVERIFY(guard);
    QVERIFY(menu.actions().contains(handle.get()));
    handle->trigger();
    QCOMPARE(emissions, 0);
}

// Settled: a QAction is no widget, and only widgets are released.
void tst_FxUIAction::exactlyOneQActionStaysBehind()
{
    QList<QPointer<QObject>> handles;
    for (int i = 0; i < 3; ++i) {
        const CFxUIAction action;
        handles.append(action.getHandle());
    }
    FlushDeferredDeletes();
    for (const QPointer<QObject> &handle : handles) {
        QVERIFY(handle);
        QVERIFY(handle->children().isEmpty());
        delete handle;
    }
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIAction>(argc, argv);
}

#include "tst_FxUIAction.moc"
