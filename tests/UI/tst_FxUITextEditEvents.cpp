// What a text edit emits, how often and in which order, and what a slot sees.

#include "UI/FxUITextEdit.h"

#include "support/EventRecorder.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUITextEditImpl.h"
#include "UI/Impl/qt/frontend/FxUITextEditFrontend.h"

#include <QtCore/QPointer>
#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QToolButton>

#include <functional>
#include <memory>

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");

using Action = std::function<void(QLineEdit *)>;

} // namespace

Q_DECLARE_METATYPE(Action)

/// A text edit with a recorder on all its signals and on Qt's. A line ends with the text as the
/// object knows it and the text in the widget.
class RecordedEdit {
public:
    RecordedEdit()
    {
        recorder.Listen("keyPressed", edit.keyPressed());
        recorder.Listen("textChanged", edit.textChanged());
        recorder.Listen("textEdited", edit.textEdited());
        recorder.Listen("editingFinished", edit.editingFinished());
        recorder.ListenToQt("Qt textChanged", widget, &QLineEdit::textChanged);
        recorder.ListenToQt("Qt textEdited", widget, &QLineEdit::textEdited);
        recorder.ListenToQt("Qt returnPressed", widget, &QLineEdit::returnPressed);
    }

    QString State() const { return edit.text() + QLatin1Char('/') + widget->text(); }

    CFxUITextEdit edit;
    CFxUITextEditFrontend *widget = qobject_cast<CFxUITextEditFrontend *>(edit.getHandle());
    CFxUITextEditImpl *impl = static_cast<CFxUITextEditImpl *>(edit.impl);
    EventRecorder recorder { [this] { return State(); } };
};

class tst_FxUITextEditEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setTextEmitsChangedEditedChanged();
    void setTextAgainEmitsNothing();
    void clearEmitsAsSetText();
    void setTextWhileBlockedEmitsNothing();
    void setTextWithoutHandleEmitsItsOwnOnly();
    void slotThatSetsAnotherTextChangesWhatFollows();
    void slotThatBlocksSilencesWhatFollows();
    void typingEmitsKeyThenChangedThenEdited();
    void typingWhileBlockedKeepsTheText();
    void usersChangesEmitEachOnce_data();
    void usersChangesEmitEachOnce();
    void keyThatChangesNothingIsReportedAlone();
    void modifiersAreAlwaysZero();
    void editingFinishedNeverFires();
    void editingFinishedHandlerEmits();
    void vetoedKeyDoesNotReachTheField();
    void vetoedReturnDoesNotReachTheField();
    void vetoHoldsForOneKey();
    void vetoSetOutsideSwallowsTheNextKey();
    void inputMaskTextArrivesAsAChange();
    void inputMaskMakesTheTextDiffer();
    void sameArgumentUnderAMaskGoesToTheWidgetAgain();
    void settersWithoutTextEmitNothing();
    void widgetThatOutlivesTheEditReportsNothing();
};

void tst_FxUITextEditEvents::setTextEmitsChangedEditedChanged()
{
    RecordedEdit edit;
    edit.edit.setText(A);
    QCOMPARE(
        edit.recorder.Take(),
        QStringList({ QStringLiteral("textChanged('a') a/a"), QStringLiteral("textEdited('a') a/a"),
                      QStringLiteral("Qt textChanged('a') a/a"),
                      QStringLiteral("textChanged('a') a/a") }));
}

void tst_FxUITextEditEvents::setTextAgainEmitsNothing()
{
    RecordedEdit edit;
    edit.edit.setText(A);
    edit.recorder.Take();
    edit.edit.setText(A);
    QCOMPARE(edit.recorder.Take(), QStringList());
}

void tst_FxUITextEditEvents::clearEmitsAsSetText()
{
    RecordedEdit edit;
    edit.edit.clear();
    QCOMPARE(edit.recorder.Take(), QStringList());
    edit.edit.setText(A);
    edit.recorder.Take();
    edit.edit.clear();
    const QStringList lines = edit.recorder.Take();
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines.at(0).startsWith(QLatin1String("textChanged(")));
    QVERIFY(lines.at(1).startsWith(QLatin1String("textEdited(")));
    QVERIFY(lines.at(3).startsWith(QLatin1String("textChanged(")));
    QVERIFY(edit.edit.text().isEmpty());
}

void tst_FxUITextEditEvents::setTextWhileBlockedEmitsNothing()
{
    RecordedEdit edit;
    edit.edit.blockSignals(true);
    edit.edit.setText(A);
    QCOMPARE(edit.recorder.Take(), QStringList({ QStringLiteral("Qt textChanged('a') a/a") }));
    QCOMPARE(edit.edit.text(), A);
}

void tst_FxUITextEditEvents::setTextWithoutHandleEmitsItsOwnOnly()
{
    CFxUITextEdit edit;
    delete edit.getHandle();
    EventRecorder recorder([&] { return edit.text(); });
    recorder.Listen("textChanged", edit.textChanged());
    recorder.Listen("textEdited", edit.textEdited());
    edit.setText(A);
    QCOMPARE(recorder.Take(), QStringList({ QStringLiteral("textChanged('a') a") }));
}

void tst_FxUITextEditEvents::slotThatSetsAnotherTextChangesWhatFollows()
{
    RecordedEdit edit;
    edit.edit.textChanged().connect([&](const QString &text) {
        if (text == A)
            edit.edit.setText(B);
    });
    edit.edit.setText(A);
    QCOMPARE(
        edit.recorder.Take(),
        QStringList(
            { QStringLiteral("textChanged('a') a/a"), QStringLiteral("textChanged('b') b/b"),
              QStringLiteral("textEdited('b') b/b"), QStringLiteral("Qt textChanged('b') b/b"),
              QStringLiteral("textChanged('b') b/b"), QStringLiteral("textEdited('b') b/b"),
              QStringLiteral("Qt textChanged('a') b/b"), QStringLiteral("textChanged('b') b/b") }));
}

void tst_FxUITextEditEvents::slotThatBlocksSilencesWhatFollows()
{
    RecordedEdit edit;
    edit.edit.textChanged().connect([&](const QString &) { edit.edit.blockSignals(true); });
    edit.edit.setText(A);
    QCOMPARE(edit.recorder.Take(),
             QStringList({ QStringLiteral("textChanged('a') a/a"),
                           QStringLiteral("Qt textChanged('a') a/a") }));
}

void tst_FxUITextEditEvents::typingEmitsKeyThenChangedThenEdited()
{
    RecordedEdit edit;
    edit.edit.setText(A);
    edit.recorder.Take();
    QTest::keyClick(edit.widget, Qt::Key_B);
    QCOMPARE(edit.recorder.Take(),
             QStringList({ QStringLiteral("keyPressed(66, 0) a/a"),
                           QStringLiteral("Qt textEdited('ab') a/ab"),
                           QStringLiteral("textChanged('ab') ab/ab"),
                           QStringLiteral("textEdited('ab') ab/ab"),
                           QStringLiteral("Qt textChanged('ab') ab/ab") }));
}

void tst_FxUITextEditEvents::typingWhileBlockedKeepsTheText()
{
    RecordedEdit edit;
    edit.edit.blockSignals(true);
    QTest::keyClicks(edit.widget, QStringLiteral("xyz"));
    QCOMPARE(edit.edit.text(), QStringLiteral("xyz"));
    edit.edit.blockSignals(false);
    edit.recorder.Take();
    edit.edit.setText(QStringLiteral("xyz"));
    QCOMPARE(edit.recorder.Take(), QStringList());
}

void tst_FxUITextEditEvents::usersChangesEmitEachOnce_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("text");
    QTest::newRow("backspace") << Action([](QLineEdit *field) {
        QTest::keyClick(field, Qt::Key_Backspace);
    }) << QStringLiteral("on");
    QTest::newRow("cut") << Action([](QLineEdit *field) {
        field->setSelection(0, 1);
        field->cut();
    }) << QStringLiteral("ne");
    QTest::newRow("paste") << Action([](QLineEdit *field) {
        QGuiApplication::clipboard()->setText(QStringLiteral("!"));
        field->paste();
    }) << QStringLiteral("one!");
    QTest::newRow("undo") << Action([](QLineEdit *field) { field->undo(); }) << QString();
    QTest::newRow("clear button") << Action([](QLineEdit *field) {
        field->setClearButtonEnabled(true);
        field->resize(200, 30);
        field->show();
        auto *const button = field->findChild<QToolButton *>();
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_VERIFY(!button->isVisible()); // faded out: Qt would lose a running animation
    }) << QString();
}

void tst_FxUITextEditEvents::usersChangesEmitEachOnce()
{
    QFETCH(Action, action);
    QFETCH(QString, text);
    CFxUITextEdit edit;
    auto *const field = qobject_cast<QLineEdit *>(edit.getHandle());
    field->insert(QStringLiteral("one")); // as a user would, so that it can be undone
    EventRecorder recorder([&] { return edit.text(); });
    recorder.Listen("textChanged", edit.textChanged());
    recorder.Listen("textEdited", edit.textEdited());
    action(field);
    QCOMPARE(edit.text(), text);
    const QString expected = QStringLiteral("%1('%2') %2");
    QCOMPARE(recorder.Take(),
             QStringList({ expected.arg(QStringLiteral("textChanged"), text),
                           expected.arg(QStringLiteral("textEdited"), text) }));
}

void tst_FxUITextEditEvents::keyThatChangesNothingIsReportedAlone()
{
    RecordedEdit edit;
    QTest::keyClick(edit.widget, Qt::Key_Left);
    QTest::keyClick(edit.widget, Qt::Key_F5);
    QCOMPARE(edit.recorder.Take(),
             QStringList({ QStringLiteral("keyPressed(%1, 0) /").arg(int(Qt::Key_Left)),
                           QStringLiteral("keyPressed(%1, 0) /").arg(int(Qt::Key_F5)) }));
}

void tst_FxUITextEditEvents::modifiersAreAlwaysZero()
{
    RecordedEdit edit;
    QList<int> qtModifiers;
    connect(edit.widget, &CFxUITextEditFrontend::keyPressed, this,
            [&](int, int modifiers) { qtModifiers.append(modifiers); });
    // A user presses the modifier first, which is a key, too.
    QTest::keyClick(edit.widget, Qt::Key_A, Qt::ControlModifier);
    const QString pressed = QStringLiteral("keyPressed(%1, 0) /");
    QCOMPARE(edit.recorder.Take(),
             QStringList({ pressed.arg(int(Qt::Key_Control)), pressed.arg(int(Qt::Key_A)) }));
    QCOMPARE(qtModifiers.last(), int(Qt::ControlModifier)); // the widget's own signal has them
}

void tst_FxUITextEditEvents::editingFinishedNeverFires()
{
    RecordedEdit edit;
    int qtFinished = 0;
    connect(edit.widget, &QLineEdit::editingFinished, this, [&qtFinished] { ++qtFinished; });
    int finished = 0;
    edit.edit.editingFinished().connect([&finished] { ++finished; });
    edit.edit.setVisible(true);
    QApplication::setActiveWindow(edit.widget);
    QVERIFY(QTest::qWaitForWindowActive(edit.widget));
    edit.edit.setFocus();
    QTest::keyClick(edit.widget, Qt::Key_A);
    QTest::keyClick(edit.widget, Qt::Key_Return);
    edit.widget->clearFocus();
    QVERIFY(qtFinished >= 1);
    QCOMPARE(finished, 0);
}

void tst_FxUITextEditEvents::editingFinishedHandlerEmits()
{
    RecordedEdit edit;
    edit.impl->OnEditingFinished();
    QCOMPARE(edit.recorder.Take(), QStringList({ QStringLiteral("editingFinished() /") }));
    edit.edit.blockSignals(true);
    edit.impl->OnEditingFinished();
    edit.impl->OnKeyPressed(1, 2);
    QCOMPARE(edit.recorder.Take(), QStringList());
    edit.edit.blockSignals(false);
    edit.impl->OnKeyPressed(1, 2);
    QCOMPARE(edit.recorder.Take(), QStringList({ QStringLiteral("keyPressed(1, 2) /") }));
}

void tst_FxUITextEditEvents::vetoedKeyDoesNotReachTheField()
{
    RecordedEdit edit;
    edit.edit.keyPressed().connect([&](int, int) { edit.edit.setEventAccepted(true); });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, A);
    event.ignore();
    QCoreApplication::sendEvent(edit.widget, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(!edit.impl->isEventAccepted());
    QCOMPARE(edit.recorder.Take(), QStringList({ QStringLiteral("keyPressed(65, 0) /") }));
}

void tst_FxUITextEditEvents::vetoedReturnDoesNotReachTheField()
{
    RecordedEdit edit;
    bool veto = true;
    edit.edit.keyPressed().connect([&](int key, int) {
        if (veto && key == Qt::Key_Return)
            edit.edit.setEventAccepted(true);
    });
    const QString pressed = QStringLiteral("keyPressed(%1, 0) /").arg(int(Qt::Key_Return));
    QTest::keyClick(edit.widget, Qt::Key_Return);
    QCOMPARE(edit.recorder.Take(), QStringList({ pressed }));
    veto = false;
    QTest::keyClick(edit.widget, Qt::Key_Return);
    QCOMPARE(edit.recorder.Take(),
             QStringList({ pressed, QStringLiteral("Qt returnPressed() /") }));
}

void tst_FxUITextEditEvents::vetoHoldsForOneKey()
{
    RecordedEdit edit;
    int keys = 0;
    edit.edit.keyPressed().connect([&](int, int) { edit.edit.setEventAccepted(++keys == 1); });
    QTest::keyClicks(edit.widget, QStringLiteral("ab"));
    QCOMPARE(edit.edit.text(), B);
}

void tst_FxUITextEditEvents::vetoSetOutsideSwallowsTheNextKey()
{
    RecordedEdit edit;
    edit.edit.setEventAccepted(true);
    edit.edit.blockSignals(true); // no slot has a part in it
    QTest::keyClicks(edit.widget, QStringLiteral("ab"));
    QCOMPARE(edit.edit.text(), B);
    QVERIFY(!edit.impl->isEventAccepted());
}

void tst_FxUITextEditEvents::inputMaskTextArrivesAsAChange()
{
    RecordedEdit edit;
    edit.edit.setInputMask(QStringLiteral("99-99"));
    QCOMPARE(
        edit.recorder.Take(),
        QStringList({ QStringLiteral("textChanged('-') -/-"), QStringLiteral("textEdited('-') -/-"),
                      QStringLiteral("Qt textChanged('-') -/-") }));
}

void tst_FxUITextEditEvents::inputMaskMakesTheTextDiffer()
{
    RecordedEdit edit;
    edit.edit.setInputMask(QStringLiteral("99-99"));
    edit.recorder.Take();
    edit.edit.setText(QStringLiteral("12x4"));
    QCOMPARE(edit.edit.text(), QStringLiteral("12-4"));
    QCOMPARE(edit.recorder.Take(),
             QStringList({ QStringLiteral("textChanged('12-4') 12-4/12-4"),
                           QStringLiteral("textEdited('12-4') 12-4/12-4"),
                           QStringLiteral("Qt textChanged('12-4') 12-4/12-4"),
                           QStringLiteral("textChanged('12-4') 12-4/12-4") }));
}

void tst_FxUITextEditEvents::sameArgumentUnderAMaskGoesToTheWidgetAgain()
{
    RecordedEdit edit;
    edit.edit.setInputMask(QStringLiteral("99-99"));
    edit.edit.setText(QStringLiteral("12x4"));
    edit.recorder.Take();
    edit.widget->setCursorPosition(0);
    edit.edit.setText(QStringLiteral("12x4"));
    // The widget took it and found its text the same, so that the argument stands.
    QCOMPARE(edit.recorder.Take(),
             QStringList({ QStringLiteral("textChanged('12x4') 12x4/12-4") }));
    QVERIFY(edit.widget->cursorPosition() > 0);
    edit.edit.setText(QStringLiteral("12x4"));
    QCOMPARE(edit.recorder.Take(), QStringList());
}

void tst_FxUITextEditEvents::settersWithoutTextEmitNothing()
{
    RecordedEdit edit;
    edit.edit.setText(A);
    edit.recorder.Take();
    edit.edit.setPlaceholderText(B);
    edit.edit.setClearButtonEnabled(true);
    edit.edit.setReadOnly(true);
    edit.edit.setInputType(1);
    edit.edit.moveCursor(QTextCursor::End);
    edit.edit.selectAll();
    QCOMPARE(edit.recorder.Take(), QStringList());
}

void tst_FxUITextEditEvents::widgetThatOutlivesTheEditReportsNothing()
{
    auto edit = std::make_unique<CFxUITextEdit>();
    int emissions = 0;
    edit->textChanged().connect([&emissions](const QString &) { ++emissions; });
    edit->keyPressed().connect([&emissions](int, int) { ++emissions; });
    const QPointer<CFxUITextEditFrontend> widget(
        qobject_cast<CFxUITextEditFrontend *>(edit->getHandle()));
    edit.reset();
    QVERIFY(widget);
    QVERIFY(!widget->impl);
    QTest::keyClick(widget, Qt::Key_A);
    QCOMPARE(widget->text(), A);
    QCOMPARE(emissions, 0);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextEditEvents>(argc, argv);
}

#include "tst_FxUITextEditEvents.moc"
