// What a text view emits, how often and in which order, and what a slot sees.

#include "UI/FxUITextView.h"

#include "support/EventRecorder.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "UI/Impl/FxUITextViewImpl.h"
#include "UI/Impl/qt/frontend/FxUITextViewFrontend.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>

#include <memory>

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");

const QString Changed = QStringLiteral("textChanged() %1/%1");
const QString QtChanged = QStringLiteral("Qt textChanged() %1/%1");

} // namespace

/// A text view with a recorder on all its signals and on Qt's. A line ends with the content as the
/// object knows it and the plain text of the document.
class RecordedView : public CFxUITextView {
public:
    RecordedView()
    {
        recorder.Listen("keyPressed", keyPressed());
        recorder.Listen("textChanged", textChanged());
        recorder.Listen("focusInEventSignal", focusInEventSignal());
        recorder.Listen("focusOutEventSignal", focusOutEventSignal());
        recorder.ListenToQt("Qt textChanged", widget, &QTextEdit::textChanged);
    }

    void focusInEvent(CFxUIFocusEvent *event) override { NoteFocusEvent("focusInEvent", event); }

    void focusOutEvent(CFxUIFocusEvent *event) override { NoteFocusEvent("focusOutEvent", event); }

    void NoteFocusEvent(const char *name, CFxUIFocusEvent *event)
    {
        recorder.Note(name);
        focusFlags.append(hasFocus());
        QCOMPARE(event->type(), CFxUIEvent::FocusIn); // of both
        QCOMPARE(int(event->reason()), 7);
    }

    /// Makes the widget the one with the focus.
    void TakeFocus()
    {
        setVisible(true);
        QApplication::setActiveWindow(widget);
        QVERIFY(QTest::qWaitForWindowActive(widget));
        widget->setFocus(Qt::TabFocusReason);
        QVERIFY(widget->hasFocus());
    }

    QString State() const { return getContent() + QLatin1Char('/') + widget->toPlainText(); }

    CFxUITextViewFrontend *widget = qobject_cast<CFxUITextViewFrontend *>(getHandle());
    CFxUITextViewImpl *textImpl = static_cast<CFxUITextViewImpl *>(impl);
    EventRecorder recorder { [this] { return State(); } };
    QList<bool> focusFlags;
};

class tst_FxUITextViewEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void setTextEmitsTwice();
    void setTextAgainEmitsTwice();
    void setTextOfAnEmptyTextEmitsTwice();
    void otherChangesEmitOnce();
    void addTextOfAnEmptyTextEmitsOnce();
    void addHtmlTextOfNothingEmitsNothing();
    void addHtmlTextOfSeveralBlocksEmitsOnce();
    void changesWhileBlockedKeepTheContent();
    void setTextWithoutHandleEmitsItsOwnOnly();
    void slotThatBlocksSilencesWhatFollows();
    void slotThatAddsTextNests();
    void typingEmitsKeyThenChanged();
    void modifiersArrive();
    void vetoedKeyDoesNotReachTheView();
    void vetoHoldsForOneKey();
    void vetoSetOutsideSwallowsTheNextKey();
    void focusIsReportedInOrder();
    void focusIsReportedBeforeTheWidgetDealsWithIt();
    void focusFlagFollowsWhileBlocked();
    void focusHandlersGiveTheSameReasonAlways();
    void editingFinishedHandlerDoesNothing();
    void settersWithoutContentEmitNothing();
    void widgetThatOutlivesTheViewReportsNothing();
};

// The caret of the focused view is drawn steadily, for the pictures.
void tst_FxUITextViewEvents::init()
{
    QApplication::setCursorFlashTime(0);
}

void tst_FxUITextViewEvents::setTextEmitsTwice()
{
    RecordedView view;
    view.setText(A);
    QCOMPARE(view.recorder.Take(),
             QStringList({ Changed.arg(A), QtChanged.arg(A), Changed.arg(A) }));
}

void tst_FxUITextViewEvents::setTextAgainEmitsTwice()
{
    RecordedView view;
    view.setText(A);
    view.recorder.Take();
    view.setText(A);
    QCOMPARE(view.recorder.Take(),
             QStringList({ Changed.arg(A), QtChanged.arg(A), Changed.arg(A) }));
}

void tst_FxUITextViewEvents::setTextOfAnEmptyTextEmitsTwice()
{
    RecordedView view;
    const QStringList expected { Changed.arg(QString()), QtChanged.arg(QString()),
                                 Changed.arg(QString()) };
    view.setText(QString());
    QCOMPARE(view.recorder.Take(), expected);
    view.setText(A);
    view.recorder.Take();
    view.setText(QString());
    QCOMPARE(view.recorder.Take(), expected);
}

void tst_FxUITextViewEvents::otherChangesEmitOnce()
{
    RecordedView view;
    view.setHtmlText(QStringLiteral("<b>a</b>"));
    QCOMPARE(view.recorder.Take(), QStringList({ Changed.arg(A), QtChanged.arg(A) }));
    view.addHtmlText(QStringLiteral("<i>b</i>"));
    const QString ab = QStringLiteral("ab");
    QCOMPARE(view.recorder.Take(), QStringList({ Changed.arg(ab), QtChanged.arg(ab) }));
    view.addText(QStringLiteral("<"));
    const QString lines = QStringLiteral("ab\n<");
    QCOMPARE(view.recorder.Take(), QStringList({ Changed.arg(lines), QtChanged.arg(lines) }));
    view.clear();
    QCOMPARE(view.recorder.Take(),
             QStringList({ Changed.arg(QString()), QtChanged.arg(QString()) }));
    view.clear(); // no comparison
    QCOMPARE(view.recorder.Take(),
             QStringList({ Changed.arg(QString()), QtChanged.arg(QString()) }));
}

void tst_FxUITextViewEvents::addTextOfAnEmptyTextEmitsOnce()
{
    RecordedView view;
    view.setText(A);
    view.recorder.Take();
    view.addText(QString());
    const QString lines = QStringLiteral("a\n");
    QCOMPARE(view.recorder.Take(), QStringList({ Changed.arg(lines), QtChanged.arg(lines) }));
}

void tst_FxUITextViewEvents::addHtmlTextOfNothingEmitsNothing()
{
    RecordedView view;
    view.addHtmlText(QString());
    QCOMPARE(view.recorder.Take(), QStringList());
}

void tst_FxUITextViewEvents::addHtmlTextOfSeveralBlocksEmitsOnce()
{
    RecordedView view;
    view.addHtmlText(QStringLiteral("<p>a</p><ul><li>b</li><li>c</li></ul>"));
    QCOMPARE(view.recorder.Take().size(), 2); // ours and Qt's
}

void tst_FxUITextViewEvents::changesWhileBlockedKeepTheContent()
{
    RecordedView view;
    view.blockSignals(true);
    view.setText(A);
    QTest::keyClicks(view.widget, B);
    view.addText(A);
    QCOMPARE(view.getContent(), QStringLiteral("ab\na"));
    view.setHtmlText(QStringLiteral("<b>b</b>"));
    QCOMPARE(view.getContent(), B);
    const QStringList lines = view.recorder.Take();
    for (const QString &line : lines)
        QVERIFY2(line.startsWith(QLatin1String("Qt ")), qPrintable(line));
}

void tst_FxUITextViewEvents::setTextWithoutHandleEmitsItsOwnOnly()
{
    CFxUITextView view;
    delete view.getHandle();
    EventRecorder recorder([&] { return view.getContent(); });
    recorder.Listen("textChanged", view.textChanged());
    view.setText(A);
    QCOMPARE(recorder.Take(), QStringList({ QStringLiteral("textChanged() a") }));
    view.setHtmlText(A);
    view.addText(A);
    view.addHtmlText(A);
    view.clear();
    QCOMPARE(recorder.Take(), QStringList());
}

void tst_FxUITextViewEvents::slotThatBlocksSilencesWhatFollows()
{
    RecordedView view;
    view.textChanged().connect([&] { view.blockSignals(true); });
    view.setText(A);
    QCOMPARE(view.recorder.Take(), QStringList({ Changed.arg(A), QtChanged.arg(A) }));
}

void tst_FxUITextViewEvents::slotThatAddsTextNests()
{
    RecordedView view;
    view.textChanged().connect([&] {
        if (view.getContent() == A)
            view.addText(B);
    });
    view.setText(A);
    const QString lines = QStringLiteral("a\nb");
    QCOMPARE(view.recorder.Take(),
             QStringList({ Changed.arg(A), Changed.arg(lines), QtChanged.arg(lines),
                           QtChanged.arg(lines), Changed.arg(lines) }));
}

void tst_FxUITextViewEvents::typingEmitsKeyThenChanged()
{
    RecordedView view;
    QTest::keyClick(view.widget, Qt::Key_A);
    QCOMPARE(
        view.recorder.Take(),
        QStringList({ QStringLiteral("keyPressed(65, 0) /"), Changed.arg(A), QtChanged.arg(A) }));
    QTest::keyClick(view.widget, Qt::Key_Left);
    QCOMPARE(view.recorder.Take(),
             QStringList({ QStringLiteral("keyPressed(%1, 0) a/a").arg(int(Qt::Key_Left)) }));
}

void tst_FxUITextViewEvents::modifiersArrive()
{
    RecordedView view;
    QTest::keyClick(view.widget, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(view.recorder.Take().last(),
             QStringLiteral("keyPressed(%1, %2) /")
                 .arg(int(Qt::Key_Home))
                 .arg(int(Qt::ControlModifier | Qt::ShiftModifier)));
}

void tst_FxUITextViewEvents::vetoedKeyDoesNotReachTheView()
{
    RecordedView view;
    view.keyPressed().connect([&](int, int) { view.setEventAccepted(true); });
    QKeyEvent event(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, A);
    event.ignore();
    QCoreApplication::sendEvent(view.widget, &event);
    QVERIFY(event.isAccepted());
    QVERIFY(!view.textImpl->isEventAccepted());
    QCOMPARE(view.recorder.Take(), QStringList({ QStringLiteral("keyPressed(65, 0) /") }));
}

void tst_FxUITextViewEvents::vetoHoldsForOneKey()
{
    RecordedView view;
    int keys = 0;
    view.keyPressed().connect([&](int, int) { view.setEventAccepted(++keys == 1); });
    QTest::keyClicks(view.widget, QStringLiteral("ab"));
    QCOMPARE(view.getContent(), B);
}

void tst_FxUITextViewEvents::vetoSetOutsideSwallowsTheNextKey()
{
    RecordedView view;
    view.setEventAccepted(true);
    view.blockSignals(true); // no slot has a part in it
    QTest::keyClicks(view.widget, QStringLiteral("ab"));
    QCOMPARE(view.getContent(), B);
    QVERIFY(!view.textImpl->isEventAccepted());
}

void tst_FxUITextViewEvents::focusIsReportedInOrder()
{
    RecordedView view;
    QList<bool> flags;
    view.focusInEventSignal().connect([&] { flags.append(view.hasFocus()); });
    view.focusOutEventSignal().connect([&] { flags.append(view.hasFocus()); });
    view.TakeFocus();
    view.recorder.Take(); // showing may give the focus by itself
    view.widget->clearFocus();
    view.focusFlags.clear();
    flags.clear();
    view.recorder.Take();
    view.widget->setFocus(Qt::MouseFocusReason);
    QVERIFY(view.hasFocus());
    view.widget->clearFocus();
    QVERIFY(!view.hasFocus());
    QCOMPARE(
        view.recorder.Take(),
        QStringList({ QStringLiteral("focusInEvent() /"), QStringLiteral("focusInEventSignal() /"),
                      QStringLiteral("focusOutEvent() /"),
                      QStringLiteral("focusOutEventSignal() /") }));
    QCOMPARE(view.focusFlags, QList<bool>({ true, false }));
    QCOMPARE(flags, QList<bool>({ true, false }));
}

// The caret shows whether the widget has dealt with the change already.
void tst_FxUITextViewEvents::focusIsReportedBeforeTheWidgetDealsWithIt()
{
    RecordedView view;
    view.TakeFocus();
    const auto picture = [&] { return view.widget->viewport()->grab().toImage(); };
    view.widget->clearFocus();
    const QImage without = picture();
    QList<QImage> seen;
    view.focusInEventSignal().connect([&] { seen.append(picture()); });
    view.focusOutEventSignal().connect([&] { seen.append(picture()); });
    view.widget->setFocus();
    const QImage with = picture();
    view.widget->clearFocus();
    QVERIFY(with != without);
    QCOMPARE(picture(), without);
    QCOMPARE(seen.size(), 2);
    QCOMPARE(seen.at(0), without);
    QCOMPARE(seen.at(1), with);
}

void tst_FxUITextViewEvents::focusFlagFollowsWhileBlocked()
{
    RecordedView view;
    view.blockSignals(true);
    view.TakeFocus();
    QVERIFY(view.hasFocus());
    view.widget->clearFocus();
    QVERIFY(!view.hasFocus());
    const QStringList lines = view.recorder.Take();
    QVERIFY(lines.contains(QStringLiteral("focusInEvent() /")));
    QVERIFY(!lines.contains(QStringLiteral("focusInEventSignal() /")));
    QVERIFY(!lines.contains(QStringLiteral("focusOutEventSignal() /")));
}

void tst_FxUITextViewEvents::focusHandlersGiveTheSameReasonAlways()
{
    RecordedView view;
    view.textImpl->OnFocusIn(); // the recorder checks type and reason
    view.textImpl->OnFocusOut();
    view.textImpl->OnFocusOut();
    QCOMPARE(view.focusFlags, QList<bool>({ true, false, false }));
    QCOMPARE(view.recorder.Take().size(), 6);
}

void tst_FxUITextViewEvents::editingFinishedHandlerDoesNothing()
{
    RecordedView view;
    view.textImpl->OnEditingFinished();
    QCOMPARE(view.recorder.Take(), QStringList());
}

void tst_FxUITextViewEvents::settersWithoutContentEmitNothing()
{
    RecordedView view;
    view.setText(A);
    view.recorder.Take();
    view.setPlaceholderText(B);
    view.setReadOnly(true);
    view.setMultiline(false);
    view.setAdjustHeightToContent(true);
    view.setAdjustHeightToContent(false);
    QCOMPARE(view.recorder.Take(), QStringList());
}

void tst_FxUITextViewEvents::widgetThatOutlivesTheViewReportsNothing()
{
    auto view = std::make_unique<CFxUITextView>();
    int emissions = 0;
    view->textChanged().connect([&emissions] { ++emissions; });
    view->keyPressed().connect([&emissions](int, int) { ++emissions; });
    view->focusInEventSignal().connect([&emissions] { ++emissions; });
    view->setAdjustHeightToContent(true);
    const QPointer<CFxUITextViewFrontend> widget(
        qobject_cast<CFxUITextViewFrontend *>(view->getHandle()));
    view.reset();
    QVERIFY(widget);
    QVERIFY(!widget->impl);
    QTest::keyClick(widget, Qt::Key_A);
    widget->setText(B);
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(widget, &in);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(widget, &out);
    QCOMPARE(widget->toPlainText(), B);
    QCOMPARE(emissions, 0);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextViewEvents>(argc, argv);
}

#include "tst_FxUITextViewEvents.moc"
