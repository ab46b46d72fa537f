// The order of virtual operations and of fields in the classes that hosts derive from: a change
// here breaks programs that were compiled before it.

#include "support/BinaryInterface.h"
#include "support/TestMain.h"
#include "UI/FxUIBaseView.h"
#include "UI/FxUIEmitScope.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUIObject.h"
#include "UI/FxUIObjectData.h"
#include "UI/FxUITimer.h"
#include "UI/Impl/FxUIBaseViewImpl.h"
#include "UI/Impl/FxUIObjectImpl.h"
#include "UI/Impl/FxUITimerImpl.h"
#include "UI/Impl/qt/frontend/FxUIFrontendBase.h"

#include <QtTest/QTest>

#include <type_traits>

static_assert(sizeof(CFxUIObject) == 3 * sizeof(void *), "table, impl, data");
static_assert(sizeof(CFxUIBaseView) == sizeof(CFxUIObject), "adds no fields");
static_assert(sizeof(CFxUITimer) == sizeof(CFxUIObject), "adds no fields");
static_assert(sizeof(CFxUIEmitScope) == sizeof(CFxUIObject *), "one field");
static_assert(sizeof(CFxUIShowEvent) == sizeof(CFxUIEvent), "adds no fields");
static_assert(sizeof(CFxUIHideEvent) == sizeof(CFxUIEvent), "adds no fields");
static_assert(sizeof(CFxUIFrontendBase<CFxUIBaseViewImpl>) == sizeof(void *), "one field");
static_assert(!std::is_polymorphic_v<CFxUIFrontendBase<CFxUIBaseViewImpl>>);
static_assert(!std::is_polymorphic_v<CFxUIObjectData>);

namespace {

class DataProbe : public CFxUIObjectData {
public:
    QVector<const void *> Fields() const
    {
        return { &m_handle, &m_objectName, &m_signalsBlocked, &m_sender,
                 &m_parent, &m_children,   &m_properties };
    }
};

class TimerProbe : public CFxUITimerImpl {
public:
    using CFxUITimerImpl::CFxUITimerImpl;

    QVector<const void *> Fields() const { return { &owner, &m_active, &m_timeout }; }
};

class ViewProbe : public CFxUIBaseViewImpl {
public:
    using CFxUIBaseViewImpl::CFxUIBaseViewImpl;

    QVector<const void *> Fields() const
    {
        return { &owner,
                 &m_palette,
                 &m_visible,
                 &m_enabled,
                 &m_hasFocus,
                 &m_busy,
                 &m_width,
                 &m_height,
                 &m_preferredWidth,
                 &m_preferredHeight,
                 &m_eventAccepted,
                 &m_aboutToPassEventToParent,
                 &m_aboutToShow,
                 &m_hoverEnter,
                 &m_hoverLeave };
    }
};

class ResizeProbe : public CFxUIResizeEvent {
public:
    using CFxUIResizeEvent::CFxUIResizeEvent;

    QVector<const void *> Fields() const { return { &m_type, &m_size, &m_oldSize }; }
};

class PaintProbe : public CFxUIPaintEvent {
public:
    using CFxUIPaintEvent::CFxUIPaintEvent;

    QVector<const void *> Fields() const { return { &m_type, &m_rect, &m_region }; }
};

class FocusProbe : public CFxUIFocusEvent {
public:
    using CFxUIFocusEvent::CFxUIFocusEvent;

    QVector<const void *> Fields() const { return { &m_type, &m_reason }; }
};

} // namespace

class tst_CoreBinaryInterface : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void virtualOperation_data();
    void virtualOperation();
    void fieldsStandInTheirOrder_data();
    void fieldsStandInTheirOrder();
    void comparisonSeesADifference();
};

void tst_CoreBinaryInterface::virtualOperation_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("expected");
    const auto row = [](const char *name, int position, int expected) {
        QTest::newRow(name) << position << expected;
    };
    row("behind CFxUIObject", PositionBehind<CFxUIObject>(), 2);
    row("behind CFxUITimer", PositionBehind<CFxUITimer>(), 2);
    row("behind CFxUIEvent", PositionBehind<CFxUIEvent>(), 2);
    row("behind CFxUIShowEvent", PositionBehind<CFxUIShowEvent>(), 2);
    row("behind CFxUIHideEvent", PositionBehind<CFxUIHideEvent>(), 2);
    row("behind CFxUIResizeEvent", PositionBehind<CFxUIResizeEvent>(), 2);
    row("behind CFxUIPaintEvent", PositionBehind<CFxUIPaintEvent>(), 2);
    row("behind CFxUIFocusEvent", PositionBehind<CFxUIFocusEvent>(), 2);

    row("CFxUIObjectImpl::GetFrontendClassName", Position(&CFxUIObjectImpl::GetFrontendClassName),
        2);
    row("CFxUIObjectImpl::CreateFrontendControl", Position(&CFxUIObjectImpl::CreateFrontendControl),
        3);
    row("CFxUIObjectImpl::SetObjectNameImpl", Position(&CFxUIObjectImpl::SetObjectNameImpl), 4);
    row("CFxUIObjectImpl::SetPropertyImpl", Position(&CFxUIObjectImpl::SetPropertyImpl), 5);
    row("behind CFxUIObjectImpl", PositionBehind<CFxUIObjectImpl>(), 6);
    row("behind CFxUITimerImpl", PositionBehind<CFxUITimerImpl>(), 6);

    row("CFxUIBaseView::showEvent", Position(&CFxUIBaseView::showEvent), 2);
    row("CFxUIBaseView::hideEvent", Position(&CFxUIBaseView::hideEvent), 3);
    row("CFxUIBaseView::paintEvent", Position(&CFxUIBaseView::paintEvent), 4);
    row("CFxUIBaseView::resizeEvent", Position(&CFxUIBaseView::resizeEvent), 5);
    row("CFxUIBaseView::focusInEvent", Position(&CFxUIBaseView::focusInEvent), 6);
    row("CFxUIBaseView::focusOutEvent", Position(&CFxUIBaseView::focusOutEvent), 7);
    row("behind CFxUIBaseView", PositionBehind<CFxUIBaseView>(), 8);

    row("CFxUIBaseViewImpl::AddViewImpl", Position(&CFxUIBaseViewImpl::AddViewImpl), 6);
    row("CFxUIBaseViewImpl::InsertViewImpl", Position(&CFxUIBaseViewImpl::InsertViewImpl), 7);
    row("CFxUIBaseViewImpl::RemoveViewImpl", Position(&CFxUIBaseViewImpl::RemoveViewImpl), 8);
    row("CFxUIBaseViewImpl::setBusyStateImpl", Position(&CFxUIBaseViewImpl::setBusyStateImpl), 9);
    row("CFxUIBaseViewImpl::SetEnabled", Position(&CFxUIBaseViewImpl::SetEnabled), 10);
    row("CFxUIBaseViewImpl::OnSizeChanged", Position(&CFxUIBaseViewImpl::OnSizeChanged), 11);
    row("CFxUIBaseViewImpl::UpdateImpl", Position(&CFxUIBaseViewImpl::UpdateImpl), 12);
    row("behind CFxUIBaseViewImpl", PositionBehind<CFxUIBaseViewImpl>(), 13);
}

void tst_CoreBinaryInterface::virtualOperation()
{
    QFETCH(int, position);
    QFETCH(int, expected);
    QCOMPARE(position, expected);
}

void tst_CoreBinaryInterface::fieldsStandInTheirOrder_data()
{
    QTest::addColumn<bool>("inOrder");
    const auto row = [](const char *name, const QVector<const void *> &fields) {
        QTest::newRow(name) << IsInOrder(fields);
    };
    CFxUIObject object;
    row("CFxUIObject", { &object, &object.impl, &object.data });
    row("CFxUIObjectData", DataProbe().Fields());
    row("CFxUITimerImpl", TimerProbe(&object).Fields());
    row("CFxUIBaseViewImpl", ViewProbe(&object).Fields());
    row("CFxUIResizeEvent", ResizeProbe(QSize(), QSize()).Fields());
    row("CFxUIPaintEvent", PaintProbe(QRect()).Fields());
    row("CFxUIFocusEvent",
        FocusProbe(CFxUIEvent::FocusIn, CFxUIFocusEvent::OtherFocusReason).Fields());
}

void tst_CoreBinaryInterface::fieldsStandInTheirOrder()
{
    QFETCH(bool, inOrder);
    QVERIFY(inOrder);
}

void tst_CoreBinaryInterface::comparisonSeesADifference()
{
    const int fields[2] {};
    QVERIFY(IsInOrder({ &fields[0], &fields[1] }));
    QVERIFY(!IsInOrder({ &fields[1], &fields[0] }));
    QVERIFY(!IsInOrder({ &fields[0], &fields[0] }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_CoreBinaryInterface>(argc, argv);
}

#include "tst_CoreBinaryInterface.moc"
