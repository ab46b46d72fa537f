#include "UI/FxUISignal.h"

#include "NA/FxNANetworkReply.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUIBaseView.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUISlider.h"
#include "UI/FxUITextEdit.h"

#include <QtCore/QString>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

#if defined(emit) || defined(signals) || defined(slots)
#error "this source is compiled without Qt's keywords; its twin has them"
#endif

namespace {

/// A signal that shows its fields.
template <class Signature> class Probe : public CFxUISignal<Signature> {
public:
    using CFxUISignal<Signature>::CFxUISignal;
    using CFxUISignal<Signature>::depth;
    using CFxUISignal<Signature>::m_offset;
    using CFxUISignal<Signature>::pending;
};

} // namespace

static_assert(std::is_base_of_v<
              slimsig::signal_base<slimsig::signal_traits<void(QString)>,
                                   std::allocator<std::function<void(QString)>>, void(QString)>,
              CFxUISignal<void(QString)>>);
static_assert(sizeof(CFxUISignal<void()>)
              == sizeof(slimsig::signal_base<slimsig::signal_traits<void()>,
                                             std::allocator<std::function<void()>>, void()>)
                  + sizeof(CFxUIObject *));
static_assert(std::is_same_v<decltype(CFxUISignal<void()>::owner), CFxUIObject *>);
static_assert(!std::is_copy_constructible_v<CFxUISignal<void()>>);
static_assert(!std::is_move_constructible_v<CFxUISignal<void()>>);
static_assert(!std::is_default_constructible_v<CFxUISignal<void()>>);
static_assert(!std::is_convertible_v<CFxUIObject *, CFxUISignal<void()>>);

// Every signature that the library's signals have, each once: by value or by reference is part of
// it.

template <class Accessed, class Signature>
constexpr bool isSignal = std::is_same_v<Accessed, CFxUISignal<Signature> &>;

static_assert(isSignal<decltype(std::declval<CFxUIBaseView &>().aboutToShow()), void()>);
static_assert(isSignal<decltype(std::declval<CFxUIAction &>().triggered()), void(bool)>);
static_assert(isSignal<decltype(std::declval<CFxUISlider &>().valueChanged()), void(int)>);
static_assert(isSignal<decltype(std::declval<CFxUITextEdit &>().keyPressed()), void(int, int)>);
static_assert(
    isSignal<decltype(std::declval<CFxUIComboBox &>().editTextChanged()), void(const QString &)>);
static_assert(isSignal<decltype(std::declval<CFxUITextEdit &>().textChanged()), void(QString)>);
static_assert(isSignal<decltype(std::declval<CFxNANetworkReply &>().downloadProgress()),
                       void(long long, long long)>);
static_assert(isSignal<decltype(std::declval<CFxNANetworkReply &>().error()),
                       void(CFxNANetworkReply::NetworkError)>);
static_assert(
    isSignal<decltype(std::declval<CFxUIDialogButtonBox &>().clicked()), void(CFxUIPushButton *)>);

class tst_FxUISignal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsItsOwner();
    void emitsWhileTheOwnerIsNotBlocked();
    void emittingWhileTheOwnerIsBlockedCallsNoSlotAndLeavesDepthAlone();
    void aSlotThatBlocksTheOwnerDoesNotStopTheRunningEmission();
    void aNestedEmissionIsBlockedWhereTheOuterOneWasNot();
    void aBlockedEmissionDoesNotTidyUp();
    void connectionsWorkWhileTheOwnerIsBlocked();
    void aStringByValueIsSharedByTheLastSlot();
};

void tst_FxUISignal::keepsItsOwner()
{
    CFxUIObject object;
    const CFxUISignal<void()> signal(&object);
    QCOMPARE(signal.owner, &object);
}

void tst_FxUISignal::emitsWhileTheOwnerIsNotBlocked()
{
    CFxUIObject object;
    CFxUISignal<void(int)> signal(&object);
    int sum = 0;
    signal.connect([&sum](int value) { sum += value; });
    signal.emit(1);
    signal(2);
    QCOMPARE(sum, 3);
}

void tst_FxUISignal::emittingWhileTheOwnerIsBlockedCallsNoSlotAndLeavesDepthAlone()
{
    CFxUIObject object;
    Probe<void()> signal(&object);
    int calls = 0;
    unsigned depthWhileBlocked = 0;
    signal.connect([&] {
        ++calls;
        object.blockSignals(true);
        signal.emit();
        depthWhileBlocked = signal.depth;
        object.blockSignals(false);
    });
    object.blockSignals(true);
    signal.emit();
    signal();
    QCOMPARE(calls, 0);
    QCOMPARE(signal.depth, 0u);
    object.blockSignals(false);
    signal.emit();
    QCOMPARE(calls, 1);
    QCOMPARE(depthWhileBlocked, 1u);
}

void tst_FxUISignal::aSlotThatBlocksTheOwnerDoesNotStopTheRunningEmission()
{
    CFxUIObject object;
    CFxUISignal<void()> signal(&object);
    int calls = 0;
    signal.connect([&object] { object.blockSignals(true); });
    signal.connect([&calls] { ++calls; });
    signal.emit();
    QCOMPARE(calls, 1);
    signal.emit();
    QCOMPARE(calls, 1);
}

void tst_FxUISignal::aNestedEmissionIsBlockedWhereTheOuterOneWasNot()
{
    CFxUIObject object;
    CFxUISignal<void()> signal(&object);
    int calls = 0;
    signal.connect([&] {
        ++calls;
        object.blockSignals(true);
        signal.emit();
        object.blockSignals(false);
    });
    signal.emit();
    QCOMPARE(calls, 1);
}

void tst_FxUISignal::aBlockedEmissionDoesNotTidyUp()
{
    CFxUIObject object;
    Probe<void()> signal(&object);
    signal.connect([] {});
    signal.connect([] {}).disconnect();
    object.blockSignals(true);
    signal.emit();
    QCOMPARE(signal.pending.size(), std::size_t(2));
    object.blockSignals(false);
    signal.emit();
    QCOMPARE(signal.pending.size(), std::size_t(1));
}

void tst_FxUISignal::connectionsWorkWhileTheOwnerIsBlocked()
{
    CFxUIObject object;
    CFxUISignal<void()> signal(&object);
    object.blockSignals(true);
    auto connection = signal.connect([] {});
    QVERIFY(connection.connected());
    connection.disconnect();
    QVERIFY(signal.empty());
}

void tst_FxUISignal::aStringByValueIsSharedByTheLastSlot()
{
    CFxUIObject object;
    CFxUISignal<void(QString)> signal(&object);
    const QChar *first = nullptr;
    bool lastIsAlone = false;
    signal.connect([&first](const QString &text) { first = text.constData(); });
    signal.connect(
        [&](const QString &text) { lastIsAlone = text.isDetached() && text.constData() == first; });
    signal.emit(QString(40, QLatin1Char('x')));
    QVERIFY2(lastIsAlone, "the last slot gets the emission's own argument");
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUISignal>(argc, argv);
}

#include "tst_FxUISignal.moc"
