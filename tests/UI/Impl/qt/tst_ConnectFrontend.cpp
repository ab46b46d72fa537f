#include "UI/Impl/qt/ConnectFrontend.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIObject.h"
#include "UI/FxUISlider.h"
#include "UI/FxUITextEdit.h"
#include "UI/Impl/FxUIObjectImpl.h"
#include "UI/Impl/FxUIPushButtonImpl.h"
#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSlider>

#include <memory>

namespace {

class Impl : public CFxUIObjectImpl {
public:
    using CFxUIObjectImpl::CFxUIObjectImpl;

    void OnValueChanged(int value) { values.append(value); }

    QList<int> values;
};

class Object : public CFxUIObject {
public:
    Object() { impl = new Impl(this); }

    Impl *TheImpl() const { return static_cast<Impl *>(impl); }
};

} // namespace

class tst_ConnectFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handlerRunsOnTheStackOfTheSignal();
    void callableRunsOnTheStackOfTheSignal();
    void connectionEndsWithTheQtObject();
    void connectionEndsWithTheImplementation();
    void connectionsOfOthersStayWhenTheImplementationEnds();
    void handlerIsNotCalledForAWidgetThatLostItsControl();
    void handlerIsNotCalledForAWidgetThatWasTakenFromItsControl();
    void handlerIsNotCalledWhileTheSlotsDie();
    void wayBackEndsWithTheImplementation();
    void wayBackOfADeadFrontendIsLeftAlone();
};

void tst_ConnectFrontend::handlerRunsOnTheStackOfTheSignal()
{
    QSlider slider;
    const Object object;
    ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(), &Impl::OnValueChanged);
    slider.setValue(7);
    QCOMPARE(object.TheImpl()->values, { 7 });
}

void tst_ConnectFrontend::callableRunsOnTheStackOfTheSignal()
{
    QSlider slider;
    const Object object;
    ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(),
                    [impl = object.TheImpl()](int value) { impl->OnValueChanged(-value); });
    slider.setValue(7);
    QCOMPARE(object.TheImpl()->values, { -7 });
}

void tst_ConnectFrontend::connectionEndsWithTheQtObject()
{
    const Object object;
    {
        QSlider slider;
        ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(), &Impl::OnValueChanged);
    }
    QVERIFY(object.TheImpl()->values.isEmpty());
}

void tst_ConnectFrontend::connectionEndsWithTheImplementation()
{
    QSlider slider;
    QList<int> values;
    {
        const Object object;
        ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(), &Impl::OnValueChanged);
        ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(),
                        [&values](int value) { values.append(value); });
    }
    slider.setValue(7);
    QVERIFY(values.isEmpty());
}

void tst_ConnectFrontend::connectionsOfOthersStayWhenTheImplementationEnds()
{
    QSlider slider;
    QList<int> values;
    connect(&slider, &QSlider::valueChanged, &slider,
            [&values](int value) { values.append(value); });
    {
        const Object object;
        ConnectFrontend(&slider, &QSlider::valueChanged, object.TheImpl(), &Impl::OnValueChanged);
    }
    slider.setValue(7);
    QCOMPARE(values, { 7 });
}

void tst_ConnectFrontend::handlerIsNotCalledForAWidgetThatLostItsControl()
{
    auto control = std::make_unique<CFxUISlider>();
    const QPointer<QSlider> widget(qobject_cast<QSlider *>(control->getHandle()));
    int calls = 0;
    control->valueChanged().connect([&calls](int) { ++calls; });
    control.reset();
    QVERIFY(widget);
    widget->setValue(7);
    QCOMPARE(calls, 0);
    FlushDeferredDeletes();
}

void tst_ConnectFrontend::handlerIsNotCalledForAWidgetThatWasTakenFromItsControl()
{
    auto control = std::make_unique<CFxUISlider>();
    const std::unique_ptr<QSlider> widget(qobject_cast<QSlider *>(control->getHandle()));
    int calls = 0;
    control->valueChanged().connect([&calls](int) { ++calls; });
    control->setHandle(nullptr);
    control.reset();
    widget->setValue(7);
    QCOMPARE(calls, 0);
}

// What a slot holds dies with the signals, when the handlers must not run any more.
void tst_ConnectFrontend::handlerIsNotCalledWhileTheSlotsDie()
{
    auto control = std::make_unique<CFxUITextEdit>();
    const QPointer<QLineEdit> widget(qobject_cast<QLineEdit *>(control->getHandle()));
    int calls = 0;
    control->textChanged().connect([&calls](const QString &) { ++calls; });
    std::shared_ptr<void> held(nullptr,
                               [widget](void *) { widget->setText(QStringLiteral("late")); });
    control->textEdited().connect([held](const QString &) {});
    held.reset();
    control.reset();
    QCOMPARE(widget->text(), QStringLiteral("late"));
    QCOMPARE(calls, 0);
    FlushDeferredDeletes();
}

void tst_ConnectFrontend::wayBackEndsWithTheImplementation()
{
    CFxUIPushButtonFrontend frontend;
    {
        CFxUIObject owner;
        CFxUIPushButtonImpl impl(&owner);
        LinkFrontend(&frontend, &impl);
        QCOMPARE(frontend.impl, &impl);
    }
    QVERIFY(!frontend.impl);
}

void tst_ConnectFrontend::wayBackOfADeadFrontendIsLeftAlone()
{
    CFxUIObject owner;
    CFxUIPushButtonImpl impl(&owner);
    auto frontend = std::make_unique<CFxUIPushButtonFrontend>();
    LinkFrontend(frontend.get(), &impl);
    frontend.reset();
    impl.OnPressed(); // stands on its own
}

int main(int argc, char **argv)
{
    return RunTest<tst_ConnectFrontend>(argc, argv);
}

#include "tst_ConnectFrontend.moc"
