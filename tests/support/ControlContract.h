#pragma once

#include "support/Events.h"
#include "UI/FxUIBaseView.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QEnterEvent>
#include <QtGui/QFocusEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
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

// Counts the events that reach a widget while its view is gone.
class LateEvents : public QObject {
public:
    bool viewIsGone = false;
    QList<QEvent::Type> types;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (viewIsGone)
            types.append(event->type());
        return false;
    }
};

// What a user's hand would send, and what Qt asks of a widget, in the order of posting.
inline void PostEventsOfAllKinds(QWidget *widget)
{
    const QPointF middle = QRectF(widget->rect()).center();
    const auto post = [widget](QEvent *event) { QCoreApplication::postEvent(widget, event); };
    const auto postMouse = [&](QEvent::Type type, Qt::MouseButtons buttons) {
        post(new QMouseEvent(type, middle, widget->mapToGlobal(middle.toPoint()), Qt::LeftButton,
                             buttons, Qt::NoModifier));
    };
    post(new QEnterEvent(middle, middle, middle));
    post(new QFocusEvent(QEvent::FocusIn));
    postMouse(QEvent::MouseButtonPress, Qt::LeftButton);
    postMouse(QEvent::MouseButtonRelease, Qt::NoButton);
    for (const int key : { Qt::Key_Space, Qt::Key_Down, Qt::Key_X, Qt::Key_Return }) {
        post(new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("x")));
        post(new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
    }
    post(new QFocusEvent(QEvent::FocusOut));
    post(new QEvent(QEvent::Leave));
    post(new QEvent(QEvent::UpdateRequest));
    post(new QEvent(QEvent::LayoutRequest));
}

// The widget gets what was posted to it although the view is gone by then: none of it may reach
// what has been deleted.
template <class Make> void DeletionFromTheEventLoopBeforePostedEvents(Make make)
{
    CFxUIBaseView *view = make();
    const QPointer<QWidget> widget(static_cast<QWidget *>(view->getHandle()));
    view->setVisible(true);
    LateEvents late;
    widget->installEventFilter(&late);
    QMetaObject::invokeMethod(
        qApp,
        [&late, view] {
            delete view;
            late.viewIsGone = true;
        },
        Qt::QueuedConnection);
    PostEventsOfAllKinds(widget);
    QCoreApplication::processEvents();
    for (const QEvent::Type type :
         { QEvent::Enter, QEvent::FocusIn, QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
           QEvent::KeyPress, QEvent::KeyRelease, QEvent::FocusOut, QEvent::Leave })
        QVERIFY2(late.types.contains(type), qPrintable(QString::number(type)));
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
    void (*const parts[])(Make) = {
        HandleAfterConstruction<Make>,    StateKeptWithoutHandle<Make>,
        ForeignHandleIsLeftAlone<Make>,   SilentButCurrentWhileBlocked<Make>,
        WidgetGoesWithTheEventLoop<Make>, DeletionFromTheEventLoopBeforePostedEvents<Make>,
        DeletionInEitherOrder<Make>
    };
    for (auto part : parts) {
        part(make);
        if (QTest::currentTestFailed())
            return;
    }
    FlushDeferredDeletes();
}
