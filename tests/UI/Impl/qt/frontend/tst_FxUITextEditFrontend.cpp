#include "UI/Impl/qt/frontend/FxUITextEditFrontend.h"

#include "support/TestMain.h"
#include "UI/FxUITextEdit.h"
#include "UI/Impl/FxUITextEditImpl.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<QLineEdit, CFxUITextEditFrontend>);
static_assert(std::is_base_of_v<CFxUIFrontendBase<CFxUITextEditImpl>, CFxUITextEditFrontend>);
static_assert(!std::is_polymorphic_v<CFxUIFrontendBase<CFxUITextEditImpl>>);

class tst_FxUITextEditFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void standsAloneWithoutParentAndImplementation();
    void worksWithoutImplementation();
    void knowsItsImplementation();
    void reportsEachKeyWithItsModifiers();
    void keySlotMayDeleteTheControl();
    void takenFromItsControlItStandsAlone();
};

void tst_FxUITextEditFrontend::standsAloneWithoutParentAndImplementation()
{
    const CFxUITextEditFrontend frontend;
    QVERIFY(!frontend.parentWidget());
    QVERIFY(!frontend.impl);
    QVERIFY(frontend.text().isEmpty());
}

void tst_FxUITextEditFrontend::worksWithoutImplementation()
{
    CFxUITextEditFrontend frontend;
    QTest::keyClicks(&frontend, QStringLiteral("ab"));
    QCOMPARE(frontend.text(), QStringLiteral("ab"));
}

void tst_FxUITextEditFrontend::knowsItsImplementation()
{
    const CFxUITextEdit edit;
    auto *const frontend = qobject_cast<CFxUITextEditFrontend *>(edit.getHandle());
    QVERIFY(frontend);
    QCOMPARE(static_cast<CFxUIObjectImpl *>(frontend->impl), edit.impl);
}

void tst_FxUITextEditFrontend::reportsEachKeyWithItsModifiers()
{
    CFxUITextEditFrontend frontend;
    QSignalSpy spy(&frontend, &CFxUITextEditFrontend::keyPressed);
    QTest::keyClick(&frontend, Qt::Key_Home, Qt::ShiftModifier);
    QCOMPARE(spy.count(), 2); // Shift is a key, too
    QCOMPARE(spy.at(0).at(0), QVariant(int(Qt::Key_Shift)));
    QCOMPARE(spy.at(1), QVariantList({ int(Qt::Key_Home), int(Qt::ShiftModifier) }));
}

// A listener of the Qt signal, not one of the control's own: those must not.
void tst_FxUITextEditFrontend::keySlotMayDeleteTheControl()
{
    auto *edit = new CFxUITextEdit;
    auto *const frontend = qobject_cast<CFxUITextEditFrontend *>(edit->getHandle());
    connect(frontend, &CFxUITextEditFrontend::keyPressed, this, [edit] { delete edit; });
    QTest::keyClick(frontend, Qt::Key_A);
    QVERIFY(!frontend->impl);
    QCOMPARE(frontend->text(), QStringLiteral("a"));
}

void tst_FxUITextEditFrontend::takenFromItsControlItStandsAlone()
{
    auto control = std::make_unique<CFxUITextEdit>();
    const std::unique_ptr<CFxUITextEditFrontend> frontend(
        qobject_cast<CFxUITextEditFrontend *>(control->getHandle()));
    control->setHandle(nullptr);
    control.reset();
    QVERIFY(!frontend->impl);
    QTest::keyClick(frontend.get(), Qt::Key_A);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextEditFrontend>(argc, argv);
}

#include "tst_FxUITextEditFrontend.moc"
