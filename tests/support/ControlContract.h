#pragma once

#include "support/Events.h"
#include "UI/FxUIBaseView.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

#include <memory>

/// What every control over a widget does, each through its public class. After calling it test
/// QTest::currentTestFailed(): a failed check leaves only the function that it stands in.
///
/// \a make returns a new control, owned by the caller.
template <class Make> void ControlContract(Make make);

namespace ControlContractParts {

template <class Make> void HandleAfterConstruction(Make make)
{
    const std::unique_ptr<CFxUIBaseView> view(make());
    QVERIFY(view->impl);
    QVERIFY(view->getHandle());
    QVERIFY(view->getHandle()->isWidgetType());
    QVERIFY(!static_cast<QWidget *>(view->getHandle())->parentWidget());
    QVERIFY(!view->parent());
    QVERIFY(view->children().isEmpty());
    QVERIFY(!view->signalsBlocked());
}

template <class Make> void StateKeptWithoutHandle(Make make)
{
    const std::unique_ptr<CFxUIBaseView> view(make());
    const std::unique_ptr<QObject> handle(view->getHandle());
    view->setHandle(nullptr);
    view->setEnabled(false);
    view->setVisible(true);
    view->setPreferableSize(30, 40);
    view->setBorderWidth(1);
    view->setMinimumWidth(5);
    view->setFocus();
    view->update();
    QVERIFY(!view->isEnabled());
    QVERIFY(view->isVisible());
    QCOMPARE(view->width(), 30);
    QCOMPARE(view->height(), 40);
}

template <class Make> void ForeignHandleIsLeftAlone(Make make)
{
    const std::unique_ptr<CFxUIBaseView> view(make());
    const std::unique_ptr<QObject> handle(view->getHandle());
    QObject foreign;
    view->setHandle(&foreign);
    view->setEnabled(false);
    view->setVisible(true);
    view->setBorderColor(1, 2, 3);
    QVERIFY(!view->isEnabled());
    QVERIFY(foreign.dynamicPropertyNames().isEmpty());
    view->setHandle(nullptr);
}

template <class Make> void SilentButCurrentWhileBlocked(Make make)
{
    const std::unique_ptr<CFxUIBaseView> view(make());
    int shown = 0;
    view->aboutToShow().connect([&shown] { ++shown; });
    view->blockSignals(true);
    view->setVisible(true);
    QCOMPARE(shown, 0);
    QVERIFY(view->isVisible());
    QVERIFY(static_cast<QWidget *>(view->getHandle())->isVisible());
    view->setVisible(false);
    view->blockSignals(false);
    view->setVisible(true);
    QCOMPARE(shown, 1);
    view->setVisible(false);
}

template <class Make> void WidgetGoesWithTheEventLoop(Make make)
{
    CFxUIBaseView *view = make();
    const QPointer<QObject> widget(view->getHandle());
    delete view;
    QVERIFY(widget);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

template <class Make> void DeletionInEitherOrder(Make make)
{
    {
        CFxUIVerticalLayout layout;
        CFxUIBaseView *child = make();
        layout.addView(child);
        delete child;
        QVERIFY(layout.children().isEmpty());
    }
    FlushDeferredDeletes();
    {
        auto *layout = new CFxUIVerticalLayout;
        const QPointer<QObject> widget([&] {
            CFxUIBaseView *child = make();
            layout->addView(child);
            return child->getHandle();
        }());
        delete layout;
        FlushDeferredDeletes();
        QVERIFY(!widget);
    }
    const std::unique_ptr<CFxUIBaseView> view(make());
    delete view->getHandle();
    QVERIFY(!view->getHandle());
    view->setEnabled(false);
    view->setVisible(true);
}

} // namespace ControlContractParts

template <class Make> void ControlContract(Make make)
{
    using namespace ControlContractParts;
    void (*const parts[])(
        Make) = { HandleAfterConstruction<Make>,    StateKeptWithoutHandle<Make>,
                  ForeignHandleIsLeftAlone<Make>,   SilentButCurrentWhileBlocked<Make>,
                  WidgetGoesWithTheEventLoop<Make>, DeletionInEitherOrder<Make> };
    for (auto part : parts) {
        part(make);
        if (QTest::currentTestFailed())
            return;
    }
    FlushDeferredDeletes();
}
