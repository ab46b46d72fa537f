#include "UI/Impl/qt/frontend/FxUITextViewFrontend.h"

#include "support/TestMain.h"
#include "UI/FxUITextView.h"
#include "UI/Impl/FxUITextViewImpl.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<QTextEdit, CFxUITextViewFrontend>);
static_assert(std::is_base_of_v<CFxUIFrontendBase<CFxUITextViewImpl>, CFxUITextViewFrontend>);

class tst_FxUITextViewFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void standsAloneWithoutParentAndImplementation();
    void worksWithoutImplementation();
    void knowsItsImplementation();
    void hearsItsOwnChangesByName();
    void setTextHidesTheOneOfTheTextEdit();
    void setTextReplacesASelectionElsewhere();
    void reportsEachKeyWithItsModifiers();
    void keySlotMayDeleteTheControl();
    void takenFromItsControlItStandsAlone();
};

void tst_FxUITextViewFrontend::standsAloneWithoutParentAndImplementation()
{
    const CFxUITextViewFrontend frontend;
    QVERIFY(!frontend.parentWidget());
    QVERIFY(!frontend.impl);
    QVERIFY(frontend.tabChangesFocus());
    QVERIFY(!frontend.acceptRichText());
}

void tst_FxUITextViewFrontend::worksWithoutImplementation()
{
    CFxUITextViewFrontend frontend;
    frontend.setText(QStringLiteral("a"));
    QTest::keyClick(&frontend, Qt::Key_B);
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&frontend, &in);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&frontend, &out);
    QCOMPARE(frontend.toPlainText(), QStringLiteral("ab"));
}

void tst_FxUITextViewFrontend::knowsItsImplementation()
{
    const CFxUITextView view;
    auto *const frontend = qobject_cast<CFxUITextViewFrontend *>(view.getHandle());
    QVERIFY(frontend);
    QCOMPARE(static_cast<CFxUIObjectImpl *>(frontend->impl), view.impl);
}

void tst_FxUITextViewFrontend::hearsItsOwnChangesByName()
{
    CFxUITextViewFrontend frontend;
    QVERIFY(frontend.metaObject()->indexOfSlot("OnEditContentChanged()") >= 0);
    QVERIFY(QObject::disconnect(&frontend, SIGNAL(textChanged()), &frontend,
                                SLOT(OnEditContentChanged())));
}

void tst_FxUITextViewFrontend::setTextHidesTheOneOfTheTextEdit()
{
    CFxUITextViewFrontend frontend;
    QTextEdit &textEdit = frontend;
    const QString bold = QStringLiteral("<b>x</b>");
    frontend.setText(bold);
    QCOMPARE(frontend.toPlainText(), bold);
    textEdit.setText(bold);
    QCOMPARE(frontend.toPlainText(), QStringLiteral("x"));
}

void tst_FxUITextViewFrontend::setTextReplacesASelectionElsewhere()
{
    CFxUITextViewFrontend frontend;
    frontend.setText(QStringLiteral("one two three"));
    QTextCursor cursor = frontend.textCursor();
    cursor.setPosition(4);
    cursor.setPosition(7, QTextCursor::KeepAnchor);
    frontend.setTextCursor(cursor);
    frontend.setText(QStringLiteral("new"));
    QCOMPARE(frontend.toPlainText(), QStringLiteral("new"));
    QVERIFY(!frontend.textCursor().hasSelection());
}

void tst_FxUITextViewFrontend::reportsEachKeyWithItsModifiers()
{
    CFxUITextViewFrontend frontend;
    QSignalSpy spy(&frontend, &CFxUITextViewFrontend::keyPressed);
    QTest::keyClick(&frontend, Qt::Key_Home, Qt::ShiftModifier);
    QCOMPARE(spy.count(), 2); // Shift is a key, too
    QCOMPARE(spy.at(0).at(0), QVariant(int(Qt::Key_Shift)));
    QCOMPARE(spy.at(1), QVariantList({ int(Qt::Key_Home), int(Qt::ShiftModifier) }));
}

// A listener of the Qt signal, not one of the control's own: those must not.
void tst_FxUITextViewFrontend::keySlotMayDeleteTheControl()
{
    auto *view = new CFxUITextView;
    auto *const frontend = qobject_cast<CFxUITextViewFrontend *>(view->getHandle());
    connect(frontend, &CFxUITextViewFrontend::keyPressed, this, [view] { delete view; });
    QTest::keyClick(frontend, Qt::Key_A);
    QVERIFY(!frontend->impl);
    QCOMPARE(frontend->toPlainText(), QStringLiteral("a"));
}

void tst_FxUITextViewFrontend::takenFromItsControlItStandsAlone()
{
    auto control = std::make_unique<CFxUITextView>();
    const std::unique_ptr<CFxUITextViewFrontend> frontend(
        qobject_cast<CFxUITextViewFrontend *>(control->getHandle()));
    control->setHandle(nullptr);
    control.reset();
    QVERIFY(!frontend->impl);
    QTest::keyClick(frontend.get(), Qt::Key_A);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextViewFrontend>(argc, argv);
}

#include "tst_FxUITextViewFrontend.moc"
