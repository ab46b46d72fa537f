#include "UI/FxUITextView.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUITextViewImpl.h"
#include "UI/Impl/qt/frontend/FxUITextViewFrontend.h"

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QTextBlock>
#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUITextView>);
static_assert(!std::is_copy_constructible_v<CFxUITextView>);
static_assert(!std::is_convertible_v<CFxUIBaseView::UIWidthSizePolicy, CFxUITextView>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUITextView>().textChanged()), CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextView>().focusInEventSignal()),
                             CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextView>().focusOutEventSignal()),
                             CFxUISignal<void()> &>);
static_assert(std::is_same_v<decltype(std::declval<CFxUITextView>().keyPressed()),
                             CFxUISignal<void(int, int)> &>);

namespace {

const QString A = QStringLiteral("a");
const QString B = QStringLiteral("b");
const QString Bold = QStringLiteral("one <b>two</b>");

QTextEdit *Widget(const CFxUITextView &view)
{
    return qobject_cast<CFxUITextViewFrontend *>(view.getHandle());
}

CFxUITextViewImpl *Impl(const CFxUITextView &view)
{
    return static_cast<CFxUITextViewImpl *>(view.impl);
}

/// Reads the fields that have no getter.
class Probe : public CFxUITextViewImpl {
public:
    static QSize PreferredSize(const CFxUITextView &view)
    {
        return { Impl(view)->*(&Probe::m_preferredWidth),
                 Impl(view)->*(&Probe::m_preferredHeight) };
    }
};

QStringList Paragraphs(const CFxUITextView &view)
{
    QStringList paragraphs;
    for (QTextBlock block = Widget(view)->document()->begin(); block.isValid();
         block = block.next())
        paragraphs.append(block.text());
    return paragraphs;
}

bool IsBold(const CFxUITextView &view, int position)
{
    QTextCursor cursor(Widget(view)->document());
    cursor.setPosition(position);
    return cursor.charFormat().fontWeight() == QFont::Bold;
}

} // namespace

class tst_FxUITextView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatEveryControlDoes();
    void widgetIsTheFrontendWithItsStyleSheet();
    void startsEmpty();
    void policySetsTheWidth_data();
    void policySetsTheWidth();
    void policyIsMediumByDefault();
    void policyLeavesTheWidgetAlone();
    void setTextShowsMarkupAsCharacters();
    void setTextReplacesAnyContent_data();
    void setTextReplacesAnyContent();
    void setTextKeepsTheCurrentFormat();
    void setTextIsOneStepOfUndo();
    void setTextOfAnEmptyTextDropsTheUndoSteps();
    void setTextPutsTheCursorBehindTheText();
    void setHtmlTextShowsMarkupAndContentIsPlain();
    void addTextShowsMarkupInAParagraphOfItsOwn();
    void addHtmlTextInsertsMarkupAtTheEnd();
    void addHtmlTextMovesTheCursorToTheEnd();
    void clearEmptiesTheContent();
    void setMultilineHasNoEffect();
    void readOnlyReachesTheWidget();
    void equalPlaceholderTextDoesNotReachTheWidget();
    void tabMovesTheFocus();
    void pastedRichTextComesAsPlainText();
    void contentIsKeptWithoutHandle();
    void contentOfAForeignHandleIsLeftAlone();
};

void tst_FxUITextView::doesWhatEveryControlDoes()
{
    ControlContract([] { return new CFxUITextView; });
    if (QTest::currentTestFailed())
        return;
}

void tst_FxUITextView::widgetIsTheFrontendWithItsStyleSheet()
{
    const CFxUITextView view;
    QVERIFY(Widget(view));
    QCOMPARE(Widget(view)->metaObject()->className(), "CFxUITextViewFrontend");
    QVERIFY(view.getHandle()->inherits("QTextEdit"));
    QCOMPARE(Widget(view)->styleSheet(), QStringLiteral("QTextEdit { }"));
    QCOMPARE(view.impl->GetFrontendClassName(), QStringLiteral("CFxUITextViewFrontend"));
    QVERIFY(Widget(view)->tabChangesFocus());
    QVERIFY(!Widget(view)->acceptRichText());
}

void tst_FxUITextView::startsEmpty()
{
    CFxUITextView view;
    QVERIFY(view.getContent().isNull());
    QVERIFY(view.placeholderText().isNull());
    QVERIFY(!view.getAdjustHeightToContent());
    QVERIFY(!view.hasFocus());
    QVERIFY(view.textChanged().empty());
    QVERIFY(view.focusInEventSignal().empty());
    QVERIFY(view.focusOutEventSignal().empty());
    QVERIFY(view.keyPressed().empty());
}

void tst_FxUITextView::policySetsTheWidth_data()
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

void tst_FxUITextView::policySetsTheWidth()
{
    QFETCH(int, policy);
    QFETCH(int, width);
    CFxUITextView view(static_cast<CFxUIBaseView::UIWidthSizePolicy>(policy));
    QCOMPARE(view.width(), width);
    QCOMPARE(view.height(), -1);
    QCOMPARE(Probe::PreferredSize(view), QSize(width, -1));
}

void tst_FxUITextView::policyIsMediumByDefault()
{
    CFxUITextView view;
    QCOMPARE(view.width(), 158);
}

void tst_FxUITextView::policyLeavesTheWidgetAlone()
{
    const CFxUITextView small(CFxUIBaseView::Small);
    const CFxUITextView large(CFxUIBaseView::Large);
    QCOMPARE(Widget(small)->size(), Widget(large)->size());
    QCOMPARE(Widget(small)->sizeHint(), Widget(large)->sizeHint());
    QCOMPARE(Widget(small)->minimumSize(), QSize(0, 0));
    QCOMPARE(Widget(small)->maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

void tst_FxUITextView::setTextShowsMarkupAsCharacters()
{
    CFxUITextView view;
    view.setText(Bold);
    QCOMPARE(Widget(view)->toPlainText(), Bold);
    QCOMPARE(view.getContent(), Bold);
    QVERIFY(!IsBold(view, 8));
}

void tst_FxUITextView::setTextReplacesAnyContent_data()
{
    QTest::addColumn<QString>("html");
    QTest::newRow("nothing") << QString();
    QTest::newRow("a line") << A;
    QTest::newRow("paragraphs") << QStringLiteral("<p>one</p><p>two</p>");
    QTest::newRow("a list") << QStringLiteral("<ul><li>one</li><li>two</li></ul>");
    QTest::newRow("a table first") << QStringLiteral("<table><tr><td>a<td>b</tr></table>c");
    QTest::newRow("a table last") << QStringLiteral("c<table><tr><td>a<td>b</tr></table>");
    QTest::newRow("outside the basic plane") << QString::fromUtf8("a\xF0\x9F\x98\x80z");
    QTest::newRow("combining") << QStringLiteral("e\u0301\u0302 o\u0308");
    QTest::newRow("right to left") << QStringLiteral("שלום abc עולם");
}

void tst_FxUITextView::setTextReplacesAnyContent()
{
    QFETCH(QString, html);
    CFxUITextView view;
    view.setHtmlText(html);
    view.setText(QStringLiteral("new\ntext"));
    QCOMPARE(view.getContent(), QStringLiteral("new\ntext"));
    QCOMPARE(Paragraphs(view), QStringList({ QStringLiteral("new"), QStringLiteral("text") }));
}

void tst_FxUITextView::setTextKeepsTheCurrentFormat()
{
    CFxUITextView view;
    view.setText(A);
    Widget(view)->setFontWeight(QFont::Bold);
    view.setText(B);
    QVERIFY(IsBold(view, 1));
}

void tst_FxUITextView::setTextIsOneStepOfUndo()
{
    CFxUITextView view;
    view.setText(QStringLiteral("one\ntwo"));
    view.setText(B);
    Widget(view)->undo();
    QCOMPARE(view.getContent(), QStringLiteral("one\ntwo"));
    Widget(view)->undo();
    QCOMPARE(view.getContent(), QString());
    QVERIFY(!Widget(view)->document()->isUndoAvailable());
    Widget(view)->redo();
    QCOMPARE(view.getContent(), QStringLiteral("one\ntwo"));
}

void tst_FxUITextView::setTextOfAnEmptyTextDropsTheUndoSteps()
{
    CFxUITextView view;
    view.setText(A);
    QVERIFY(Widget(view)->document()->isUndoAvailable());
    view.setText(QString());
    QVERIFY(!Widget(view)->document()->isUndoAvailable());
    QCOMPARE(Widget(view)->toPlainText(), QString());
}

void tst_FxUITextView::setTextPutsTheCursorBehindTheText()
{
    CFxUITextView view;
    view.setText(QStringLiteral("abc"));
    QCOMPARE(Widget(view)->textCursor().position(), 3);
    QVERIFY(!Widget(view)->textCursor().hasSelection());
    Widget(view)->moveCursor(QTextCursor::Start);
    Widget(view)->moveCursor(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    view.setText(QStringLiteral("de"));
    QCOMPARE(Widget(view)->textCursor().position(), 2);
    QVERIFY(!Widget(view)->textCursor().hasSelection());
}

void tst_FxUITextView::setHtmlTextShowsMarkupAndContentIsPlain()
{
    CFxUITextView view;
    view.setHtmlText(Bold);
    QCOMPARE(view.getContent(), QStringLiteral("one two"));
    QVERIFY(!IsBold(view, 1));
    QVERIFY(IsBold(view, 7));
}

void tst_FxUITextView::addTextShowsMarkupInAParagraphOfItsOwn()
{
    CFxUITextView view;
    view.setHtmlText(Bold);
    view.addText(Bold);
    QCOMPARE(Paragraphs(view), QStringList({ QStringLiteral("one two"), Bold }));
    QVERIFY(IsBold(view, 7));
    for (int position = 9; position <= 8 + Bold.size(); ++position)
        QVERIFY(!IsBold(view, position));
}

void tst_FxUITextView::addHtmlTextInsertsMarkupAtTheEnd()
{
    CFxUITextView view;
    view.setText(QStringLiteral("zero\nhalf "));
    Widget(view)->moveCursor(QTextCursor::Start);
    view.addHtmlText(Bold);
    QCOMPARE(Paragraphs(view),
             QStringList({ QStringLiteral("zero"), QStringLiteral("half one two") }));
    QVERIFY(IsBold(view, int(view.getContent().size())));
}

void tst_FxUITextView::addHtmlTextMovesTheCursorToTheEnd()
{
    CFxUITextView view;
    view.setText(QStringLiteral("abc"));
    QTextCursor cursor = Widget(view)->textCursor();
    cursor.setPosition(0);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    Widget(view)->setTextCursor(cursor);
    view.addHtmlText(QStringLiteral("<i>d</i>"));
    QCOMPARE(view.getContent(), QStringLiteral("abcd"));
    QCOMPARE(Widget(view)->textCursor().position(), 4);
    QVERIFY(!Widget(view)->textCursor().hasSelection());
}

void tst_FxUITextView::clearEmptiesTheContent()
{
    CFxUITextView view;
    view.setHtmlText(Bold);
    view.clear();
    QVERIFY(view.getContent().isEmpty());
    QVERIFY(Widget(view)->document()->isEmpty());
}

void tst_FxUITextView::setMultilineHasNoEffect()
{
    CFxUITextView view;
    view.setMultiline(false);
    QTest::keyClicks(Widget(view), A);
    QTest::keyClick(Widget(view), Qt::Key_Return);
    QTest::keyClicks(Widget(view), B);
    QCOMPARE(view.getContent(), QStringLiteral("a\nb"));
    QCOMPARE(Widget(view)->lineWrapMode(), QTextEdit::WidgetWidth);
    view.setMultiline(true);
    QCOMPARE(view.getContent(), QStringLiteral("a\nb"));
}

void tst_FxUITextView::readOnlyReachesTheWidget()
{
    CFxUITextView view;
    view.setReadOnly(true);
    QVERIFY(Widget(view)->isReadOnly());
    QTest::keyClicks(Widget(view), A);
    QVERIFY(view.getContent().isEmpty());
    view.setText(B);
    view.addText(B);
    QCOMPARE(view.getContent(), QStringLiteral("b\nb"));
    Widget(view)->setReadOnly(false);
    view.setReadOnly(true); // nothing stored to compare with
    QVERIFY(Widget(view)->isReadOnly());
    view.setReadOnly(false);
    QVERIFY(!Widget(view)->isReadOnly());
}

void tst_FxUITextView::equalPlaceholderTextDoesNotReachTheWidget()
{
    CFxUITextView view;
    view.setPlaceholderText(A);
    QCOMPARE(view.placeholderText(), A);
    QCOMPARE(Widget(view)->placeholderText(), A);
    Widget(view)->setPlaceholderText(B);
    view.setPlaceholderText(A);
    QCOMPARE(Widget(view)->placeholderText(), B);
    QCOMPARE(view.placeholderText(), A);
}

void tst_FxUITextView::tabMovesTheFocus()
{
    QWidget window;
    CFxUITextView view;
    Widget(view)->setParent(&window);
    QLineEdit other(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view.setFocus();
    QVERIFY(Widget(view)->hasFocus());
    QTest::keyClick(Widget(view), Qt::Key_Tab);
    QVERIFY(other.hasFocus());
    QVERIFY(view.getContent().isEmpty());
}

void tst_FxUITextView::pastedRichTextComesAsPlainText()
{
    auto *data = new QMimeData;
    data->setHtml(Bold);
    data->setText(QStringLiteral("one two"));
    QGuiApplication::clipboard()->setMimeData(data);
    CFxUITextView view;
    Widget(view)->paste();
    QCOMPARE(view.getContent(), QStringLiteral("one two"));
    QVERIFY(!IsBold(view, 7));
    QGuiApplication::clipboard()->clear();
}

void tst_FxUITextView::contentIsKeptWithoutHandle()
{
    CFxUITextView view;
    delete view.getHandle();
    view.setHtmlText(Bold);
    QCOMPARE(view.getContent(), Bold); // no document to correct it
    view.addHtmlText(Bold);
    QCOMPARE(view.getContent(), Bold + Bold);
    view.setText(A);
    QCOMPARE(view.getContent(), A);
    view.addText(QStringLiteral("<"));
    QCOMPARE(view.getContent(), A + CFxUITextViewImpl::EncodedTextImpl(QStringLiteral("<")));
    view.clear();
    QVERIFY(view.getContent().isNull());
    view.setPlaceholderText(A);
    view.setReadOnly(true);
    view.setMultiline(true);
    view.setAdjustHeightToContent(true);
    QCOMPARE(view.placeholderText(), A);
    QVERIFY(view.getAdjustHeightToContent());
}

void tst_FxUITextView::contentOfAForeignHandleIsLeftAlone()
{
    CFxUITextView view;
    delete view.getHandle();
    QTextEdit foreign; // a text edit, but not the frontend
    foreign.setPlainText(B);
    view.setHandle(&foreign);
    view.setText(A);
    view.setHtmlText(A);
    view.addText(A);
    view.addHtmlText(A);
    view.setReadOnly(true);
    view.setPlaceholderText(A);
    QCOMPARE(foreign.toPlainText(), B);
    QVERIFY(!foreign.isReadOnly());
    QVERIFY(foreign.placeholderText().isEmpty());
    view.setHandle(nullptr);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextView>(argc, argv);
}

#include "tst_FxUITextView.moc"
