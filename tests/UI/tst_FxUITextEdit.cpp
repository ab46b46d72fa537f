#include "UI/FxUITextEdit.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUITextEditImpl.h"
#include "UI/Impl/qt/frontend/FxUITextEditFrontend.h"

#include <QtGui/QFocusEvent>
#include <QtTest/QTest>

#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUITextEdit>);
static_assert(!std::is_copy_constructible_v<CFxUITextEdit>);
static_assert(!std::is_convertible_v<CFxUIBaseView::UIWidthSizePolicy, CFxUITextEdit>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextEdit>().textChanged()),
                             CFxUISignal<void(QString)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextEdit>().editingFinished()),
                             CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextEdit>().textEdited()),
                             CFxUISignal<void(QString)> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextEdit>().keyPressed()),
                             CFxUISignal<void(int, int)> &>);

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");

QLineEdit *Widget(const CFxUITextEdit &edit)
{
    return qobject_cast<CFxUITextEditFrontend *>(edit.getHandle());
}

CFxUITextEditImpl *Impl(const CFxUITextEdit &edit)
{
    return static_cast<CFxUITextEditImpl *>(edit.impl);
}

/// Reads the fields that have no getter.
class Probe : public CFxUITextEditImpl {
public:
    static QSize PreferredSize(const CFxUITextEdit &edit)
    {
        return { Impl(edit)->*(&Probe::m_preferredWidth),
                 Impl(edit)->*(&Probe::m_preferredHeight) };
    }

    static bool ReadOnly(const CFxUITextEdit &edit) { return Impl(edit)->*(&Probe::m_readOnly); }
};

} // namespace

class tst_FxUITextEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatEveryControlDoes();
    void widgetIsTheFrontendWithItsStyleSheet();
    void startsEmpty();
    void policySetsTheWidth_data();
    void policySetsTheWidth();
    void policyIsMediumByDefault();
    void policyLeavesTheWidgetAlone();
    void setTextReachesTheWidget_data();
    void setTextReachesTheWidget();
    void plainTextIsTheText();
    void maximumLengthOfTheWidgetCutsTheText();
    void selectAllSelectsTheText();
    void setFocusGivesTheOtherReason();
    void equalPlaceholderTextDoesNotReachTheWidget();
    void equalClearButtonFlagReachesTheWidget();
    void equalInputMaskDoesNotReachTheWidget();
    void readOnlyReachesTheWidgetEachTime();
    void readOnlyFieldTakesNoKeys();
    void setInputTypeChangesNothing();
    void moveCursorLeavesTheCursor();
    void clearEmptiesTheField();
    void clearOfAnEmptyFieldDoesNothing();
    void stateIsKeptWithoutHandle();
    void fieldOfAForeignHandleIsLeftAlone();
    void hasFocusStaysFalse();
};

void tst_FxUITextEdit::doesWhatEveryControlDoes()
{
    ControlContract([] { return new CFxUITextEdit; });
    if (QTest::currentTestFailed())
        return;
}

void tst_FxUITextEdit::widgetIsTheFrontendWithItsStyleSheet()
{
    const CFxUITextEdit edit;
    QVERIFY(Widget(edit));
    QCOMPARE(Widget(edit)->metaObject()->className(), "CFxUITextEditFrontend");
    QVERIFY(edit.getHandle()->inherits("QLineEdit"));
    QCOMPARE(Widget(edit)->styleSheet(), QStringLiteral("QLineEdit { }"));
    QCOMPARE(edit.impl->GetFrontendClassName(), QStringLiteral("CFxUITextEditFrontend"));
}

void tst_FxUITextEdit::startsEmpty()
{
    CFxUITextEdit edit;
    QVERIFY(edit.text().isNull());
    QVERIFY(edit.toPlainText().isNull());
    QVERIFY(edit.placeholderText().isNull());
    QVERIFY(edit.inputMask().isNull());
    QVERIFY(!edit.isClearButtonEnabled());
    QVERIFY(!Probe::ReadOnly(edit));
    QVERIFY(edit.textChanged().empty());
    QVERIFY(edit.editingFinished().empty());
    QVERIFY(edit.textEdited().empty());
    QVERIFY(edit.keyPressed().empty());
}

void tst_FxUITextEdit::policySetsTheWidth_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("width");
    QTest::newRow("0") << 0 << 39;
    QTest::newRow("1") << 1 << 69;
    QTest::newRow("2") << 2 << 158;
    QTest::newRow("3") << 3 << 248;
    QTest::newRow("4") << 4 << 336;
    QTest::newRow("5") << 5 << 39;
    QTest::newRow("-1") << -1 << 39;
    QTest::newRow("any number") << 4711 << 39;
}

void tst_FxUITextEdit::policySetsTheWidth()
{
    QFETCH(int, policy);
    QFETCH(int, width);
    CFxUITextEdit edit(static_cast<CFxUIBaseView::UIWidthSizePolicy>(policy));
    QCOMPARE(edit.width(), width);
    QCOMPARE(edit.height(), -1);
    QCOMPARE(Probe::PreferredSize(edit), QSize(width, -1));
}

void tst_FxUITextEdit::policyIsMediumByDefault()
{
    CFxUITextEdit edit;
    QCOMPARE(edit.width(), 158);
}

void tst_FxUITextEdit::policyLeavesTheWidgetAlone()
{
    const CFxUITextEdit small(CFxUIBaseView::Small);
    const CFxUITextEdit large(CFxUIBaseView::Large);
    QCOMPARE(Widget(small)->size(), Widget(large)->size());
    QCOMPARE(Widget(small)->sizeHint(), Widget(large)->sizeHint());
    QCOMPARE(Widget(small)->minimumSize(), QSize(0, 0));
    QCOMPARE(Widget(small)->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_FxUITextEdit::setTextReachesTheWidget_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("plain");
    QTest::newRow("markup") << QStringLiteral("<b>R&D</b> &lt; 3");
    QTest::newRow("blanks and tab") << QStringLiteral("  a\t b  ");
    QTest::newRow("right to left") << QStringLiteral("שלום");
    QTest::newRow("outside the basic plane") << QString::fromUtf8("\xF0\x9F\x98\x80");
    QTest::newRow("two lines") << QStringLiteral("a\nb");
    QTest::newRow("nul") << QString(QChar(0));
    QTest::newRow("long") << QString(30000, QLatin1Char('x'));
}

void tst_FxUITextEdit::setTextReachesTheWidget()
{
    QFETCH(QString, text);
    CFxUITextEdit edit;
    edit.setText(text);
    QCOMPARE(edit.text(), text);
    QCOMPARE(Widget(edit)->text(), text);
}

void tst_FxUITextEdit::plainTextIsTheText()
{
    CFxUITextEdit edit;
    edit.setPlainText(A);
    QCOMPARE(edit.text(), A);
    QCOMPARE(Widget(edit)->text(), A);
    edit.setText(B);
    QCOMPARE(edit.toPlainText(), B);
}

void tst_FxUITextEdit::maximumLengthOfTheWidgetCutsTheText()
{
    CFxUITextEdit edit;
    Widget(edit)->setMaxLength(2);
    edit.setText(QStringLiteral("abc"));
    QCOMPARE(edit.text(), QStringLiteral("ab"));
}

void tst_FxUITextEdit::selectAllSelectsTheText()
{
    CFxUITextEdit edit;
    edit.setText(QStringLiteral("abc"));
    QVERIFY(!Widget(edit)->hasSelectedText());
    edit.selectAll();
    QCOMPARE(Widget(edit)->selectedText(), QStringLiteral("abc"));
}

void tst_FxUITextEdit::setFocusGivesTheOtherReason()
{
    class ReasonFilter : public QObject {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::FocusIn)
                reasons.append(static_cast<QFocusEvent *>(event)->reason());
            return false;
        }

        QList<Qt::FocusReason> reasons;
    };

    QWidget window;
    QWidget other(&window);
    CFxUITextEdit edit;
    Widget(edit)->setParent(&window);
    window.show();
    other.setFocus();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(!Widget(edit)->hasFocus());
    ReasonFilter filter;
    Widget(edit)->installEventFilter(&filter);
    edit.setFocus(5); // does nothing
    QVERIFY(!Widget(edit)->hasFocus());
    edit.setFocus();
    QVERIFY(Widget(edit)->hasFocus());
    QCOMPARE(filter.reasons, QList<Qt::FocusReason>({ Qt::OtherFocusReason }));
}

void tst_FxUITextEdit::equalPlaceholderTextDoesNotReachTheWidget()
{
    CFxUITextEdit edit;
    edit.setPlaceholderText(A);
    QCOMPARE(edit.placeholderText(), A);
    QCOMPARE(Widget(edit)->placeholderText(), A);
    Widget(edit)->setPlaceholderText(B);
    edit.setPlaceholderText(A);
    QCOMPARE(Widget(edit)->placeholderText(), B);
    QCOMPARE(edit.placeholderText(), A);
}

void tst_FxUITextEdit::equalClearButtonFlagReachesTheWidget()
{
    CFxUITextEdit edit;
    edit.setClearButtonEnabled(true);
    QVERIFY(edit.isClearButtonEnabled());
    QVERIFY(Widget(edit)->isClearButtonEnabled());
    Widget(edit)->setClearButtonEnabled(false);
    edit.setClearButtonEnabled(true);
    QVERIFY(Widget(edit)->isClearButtonEnabled());
    edit.setClearButtonEnabled(false);
    QVERIFY(!edit.isClearButtonEnabled());
    QVERIFY(!Widget(edit)->isClearButtonEnabled());
}

void tst_FxUITextEdit::equalInputMaskDoesNotReachTheWidget()
{
    const QString mask = QStringLiteral("99-99");
    CFxUITextEdit edit;
    edit.setInputMask(mask);
    QCOMPARE(edit.inputMask(), mask);
    QCOMPARE(Widget(edit)->inputMask(), mask);
    Widget(edit)->setInputMask(QString());
    edit.setInputMask(mask);
    QVERIFY(Widget(edit)->inputMask().isEmpty());
    edit.setInputMask(QString());
    QVERIFY(edit.inputMask().isEmpty());
}

void tst_FxUITextEdit::readOnlyReachesTheWidgetEachTime()
{
    CFxUITextEdit edit;
    edit.setReadOnly(true);
    QVERIFY(Widget(edit)->isReadOnly());
    QVERIFY(Probe::ReadOnly(edit));
    Widget(edit)->setReadOnly(false);
    edit.setReadOnly(true);
    QVERIFY(Widget(edit)->isReadOnly());
    edit.setReadOnly(false);
    QVERIFY(!Widget(edit)->isReadOnly());
    QVERIFY(!Probe::ReadOnly(edit));
}

void tst_FxUITextEdit::readOnlyFieldTakesNoKeys()
{
    CFxUITextEdit edit;
    edit.setReadOnly(true);
    QTest::keyClick(Widget(edit), Qt::Key_A);
    QVERIFY(edit.text().isEmpty());
    edit.setText(B);
    QCOMPARE(edit.text(), B);
}

void tst_FxUITextEdit::setInputTypeChangesNothing()
{
    CFxUITextEdit edit;
    edit.setText(A);
    const QLineEdit plain;
    for (int type = -1; type < 8; ++type) {
        edit.setInputType(type);
        QCOMPARE(Widget(edit)->echoMode(), plain.echoMode());
        QCOMPARE(Widget(edit)->inputMethodHints(), plain.inputMethodHints());
        QVERIFY(Widget(edit)->inputMask().isEmpty());
        QVERIFY(!Widget(edit)->validator());
        QCOMPARE(Widget(edit)->text(), A);
        QCOMPARE(edit.text(), A);
    }
}

void tst_FxUITextEdit::moveCursorLeavesTheCursor()
{
    CFxUITextEdit edit;
    edit.setText(QStringLiteral("abc"));
    Widget(edit)->setCursorPosition(1);
    edit.moveCursor(QTextCursor::End);
    edit.moveCursor(QTextCursor::Start, QTextCursor::KeepAnchor);
    QCOMPARE(Widget(edit)->cursorPosition(), 1);
    QVERIFY(!Widget(edit)->hasSelectedText());
}

void tst_FxUITextEdit::clearEmptiesTheField()
{
    CFxUITextEdit edit;
    edit.setText(A);
    edit.clear();
    QVERIFY(edit.text().isEmpty());
    QVERIFY(Widget(edit)->text().isEmpty());
}

void tst_FxUITextEdit::clearOfAnEmptyFieldDoesNothing()
{
    CFxUITextEdit edit;
    Impl(edit)->OnEditTextChanged(QStringLiteral(""));
    QVERIFY(!edit.text().isNull());
    int changes = 0;
    edit.textChanged().connect([&changes](const QString &) { ++changes; });
    edit.clear();
    QVERIFY(!edit.text().isNull()); // an empty string compares equal to a null one
    QCOMPARE(changes, 0);
}

void tst_FxUITextEdit::stateIsKeptWithoutHandle()
{
    CFxUITextEdit edit;
    delete edit.getHandle();
    edit.setText(A);
    edit.setPlaceholderText(A);
    edit.setClearButtonEnabled(true);
    edit.setInputMask(A);
    edit.setReadOnly(true);
    edit.setInputType(1);
    edit.selectAll();
    QCOMPARE(edit.text(), A);
    QCOMPARE(edit.placeholderText(), A);
    QVERIFY(edit.isClearButtonEnabled());
    QCOMPARE(edit.inputMask(), A);
    QVERIFY(Probe::ReadOnly(edit));
}

void tst_FxUITextEdit::fieldOfAForeignHandleIsLeftAlone()
{
    CFxUITextEdit edit;
    delete edit.getHandle();
    QLineEdit foreign(B); // a field, but not the frontend
    foreign.setVisible(true);
    QApplication::setActiveWindow(&foreign);
    QVERIFY(QTest::qWaitForWindowActive(&foreign));
    foreign.clearFocus();
    edit.setHandle(&foreign);
    edit.setText(A);
    edit.setPlaceholderText(A);
    edit.setClearButtonEnabled(true);
    edit.setInputMask(A);
    edit.setReadOnly(true);
    edit.selectAll();
    edit.setFocus();
    QCOMPARE(edit.text(), A);
    QCOMPARE(foreign.text(), B);
    QVERIFY(foreign.placeholderText().isEmpty());
    QVERIFY(!foreign.isClearButtonEnabled());
    QVERIFY(foreign.inputMask().isEmpty());
    QVERIFY(!foreign.isReadOnly());
    QVERIFY(!foreign.hasSelectedText());
    QVERIFY(!foreign.hasFocus());
    edit.setHandle(nullptr);
}

void tst_FxUITextEdit::hasFocusStaysFalse()
{
    class FocusView : public CFxUITextEdit {
    public:
        void focusInEvent(CFxUIFocusEvent *) override { ++calls; }

        void focusOutEvent(CFxUIFocusEvent *) override { ++calls; }

        int calls = 0;
    };

    FocusView edit;
    edit.setVisible(true);
    QApplication::setActiveWindow(Widget(edit));
    QVERIFY(QTest::qWaitForWindowActive(Widget(edit)));
    edit.setFocus();
    QVERIFY(Widget(edit)->hasFocus());
    QVERIFY(!edit.hasFocus());
    Widget(edit)->clearFocus();
    QVERIFY(!edit.hasFocus());
    QCOMPARE(edit.calls, 0);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextEdit>(argc, argv);
}

#include "tst_FxUITextEdit.moc"
