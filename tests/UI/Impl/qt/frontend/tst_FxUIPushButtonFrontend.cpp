#include "UI/Impl/qt/frontend/FxUIPushButtonFrontend.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIPushButton.h"
#include "UI/Impl/FxUIPushButtonImpl.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtGui/QResizeEvent>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<QPushButton, CFxUIPushButtonFrontend>);
static_assert(std::is_base_of_v<CFxUIFrontendBase<CFxUIPushButtonImpl>, CFxUIPushButtonFrontend>);

namespace {

struct Probe : CFxUIPushButtonFrontend {
    static QString FullText(const CFxUIPushButtonFrontend &button)
    {
        return button.*(&Probe::m_fullText);
    }
};

// Counts the virtual calls of the frontend.
class CountingImpl : public CFxUIPushButtonImpl {
public:
    using CFxUIPushButtonImpl::CFxUIPushButtonImpl;

    int calls = 0;

    void OnPressed() override { ++calls; }
};

} // namespace

class tst_FxUIPushButtonFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAQObjectClassOfItsOwn();
    void hasThreePrivateSlotsInOrder();
    void pressAndReleaseReachNoOne();
    void clickCallsTheHandlerNamedForThePress();
    void fullTextIsKept();
    void setTextOfTheQtClassLeavesTheFullText();
    void worksWithoutAnImplementationObject();
    void wayBackIsGoneWithTheImplementationObject();
    void takenFromItsControlItStandsAlone();
};

void tst_FxUIPushButtonFrontend::isAQObjectClassOfItsOwn()
{
    CFxUIPushButtonFrontend button;
    QVERIFY(!button.impl);
    QCOMPARE(button.metaObject()->superClass(), &QPushButton::staticMetaObject);
    QVERIFY(button.qt_metacast("CFxUIPushButtonFrontend"));
    QCOMPARE(button.qt_metacast("CFxUIFrontendBase<CFxUIPushButtonImpl>"),
             static_cast<CFxUIFrontendBase<CFxUIPushButtonImpl> *>(&button));
    QVERIFY(!button.parentWidget());
    QVERIFY(button.autoDefault());
}

void tst_FxUIPushButtonFrontend::hasThreePrivateSlotsInOrder()
{
    const QMetaObject &meta = CFxUIPushButtonFrontend::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Private);
        slotNames.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(slotNames,
             QStringList({ QStringLiteral("OnPressed()"), QStringLiteral("OnReleased()"),
                           QStringLiteral("OnClicked()") }));
}

void tst_FxUIPushButtonFrontend::pressAndReleaseReachNoOne()
{
    CFxUIObject owner;
    CountingImpl impl(&owner);
    CFxUIPushButtonFrontend button;
    button.impl = &impl;
    QVERIFY(QMetaObject::invokeMethod(&button, "OnPressed"));
    QVERIFY(QMetaObject::invokeMethod(&button, "OnReleased"));
    QTest::mousePress(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));
    QCOMPARE(impl.calls, 0);
}

void tst_FxUIPushButtonFrontend::clickCallsTheHandlerNamedForThePress()
{
    CFxUIObject owner;
    CountingImpl impl(&owner);
    CFxUIPushButtonFrontend button;
    button.impl = &impl;
    button.click();
    QCOMPARE(impl.calls, 1);
    QVERIFY(QMetaObject::invokeMethod(&button, "OnClicked"));
    QCOMPARE(impl.calls, 2);
}

void tst_FxUIPushButtonFrontend::fullTextIsKept()
{
    CFxUIObject owner;
    CFxUIPushButtonImpl impl(&owner);
    impl.setElideTextEnabled(true);
    CFxUIPushButtonFrontend button;
    QVERIFY(Probe::FullText(button).isNull());
    button.impl = &impl;
    button.resize(40, 30);
    button.setText(QStringLiteral("a caption that is too long"));
    QCOMPARE(Probe::FullText(button), QStringLiteral("a caption that is too long"));
    QVERIFY(button.text() != Probe::FullText(button));
}

void tst_FxUIPushButtonFrontend::setTextOfTheQtClassLeavesTheFullText()
{
    CFxUIPushButtonFrontend button;
    button.setText(QStringLiteral("kept"));
    static_cast<QAbstractButton &>(button).setText(QStringLiteral("shown"));
    QCOMPARE(Probe::FullText(button), QStringLiteral("kept"));
    QCOMPARE(button.text(), QStringLiteral("shown"));
}

void tst_FxUIPushButtonFrontend::worksWithoutAnImplementationObject()
{
    CFxUIPushButtonFrontend button;
    button.setText(QStringLiteral("text"));
    QCOMPARE(button.text(), QStringLiteral("text"));
    for (const QEvent::Type type : { QEvent::Enter, QEvent::Leave }) {
        QEvent event(type);
        QCoreApplication::sendEvent(&button, &event);
    }
    QResizeEvent resize(QSize(10, 10), QSize(20, 20));
    QCoreApplication::sendEvent(&button, &resize);
    button.click();
    QCOMPARE(button.text(), QStringLiteral("text"));
}

void tst_FxUIPushButtonFrontend::wayBackIsGoneWithTheImplementationObject()
{
    auto owner = std::make_unique<CFxUIPushButton>();
    const QPointer<CFxUIPushButtonFrontend> button(
        qobject_cast<CFxUIPushButtonFrontend *>(owner->getHandle()));
    QCOMPARE(button->impl, owner->impl);
    owner.reset();
    QVERIFY(button);
    QVERIFY(!button->impl);
    FlushDeferredDeletes();
    QVERIFY(!button);
}

void tst_FxUIPushButtonFrontend::takenFromItsControlItStandsAlone()
{
    auto control = std::make_unique<CFxUIPushButton>();
    const std::unique_ptr<CFxUIPushButtonFrontend> frontend(
        qobject_cast<CFxUIPushButtonFrontend *>(control->getHandle()));
    control->setHandle(nullptr);
    control.reset();
    QVERIFY(!frontend->impl);
    QTest::keyClick(frontend.get(), Qt::Key_Space);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIPushButtonFrontend>(argc, argv);
}

#include "tst_FxUIPushButtonFrontend.moc"
