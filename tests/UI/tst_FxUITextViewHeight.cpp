// The height of a text view that adjusts itself to its content.

#include "UI/FxUITextView.h"

#include "support/TestMain.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextLayout>
#include <QtTest/QTest>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextEdit>

namespace {

const QString A = QStringLiteral("a");

/// A text view that adjusts its height, in a window on the screen and wide enough for some words.
class GrowingView : public CFxUITextView {
public:
    GrowingView()
    {
        window.resize(400, 300);
        widget->setParent(&window);
        widget->resize(400, 300);
        setVisible(true);
        window.show();
        setAdjustHeightToContent(true);
    }

    QSizeF DocumentSize() const { return widget->document()->documentLayout()->documentSize(); }

    int LineSpacing() const { return QFontMetrics(widget->font()).lineSpacing(); }

    /// The height that a document of so many lines comes to, from the font alone.
    int HeightOfLines(int lines) const
    {
        QTextLayout layout(A, widget->font());
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(100);
        layout.endLayout();
        return int(2 * widget->document()->documentMargin() + lines * line.height())
            + LineSpacing() / 2 - 2;
    }

    bool IsFitted() const
    {
        return widget->height() == int(DocumentSize().height()) + LineSpacing() / 2 - 2;
    }

    bool IsFixed() const
    {
        return widget->minimumHeight() == widget->maximumHeight()
            && widget->height() == widget->maximumHeight();
    }

    QWidget window;
    QTextEdit *widget = qobject_cast<QTextEdit *>(getHandle());
};

} // namespace

class tst_FxUITextViewHeight : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void flagIsStoredAndDoesNothingByItself();
    void withoutTheFlagTheHeightStaysFree();
    void emptyDocumentIs25PixelsHigh();
    void emptiedDocumentKeepsTheHeightOfALine();
    void heightFollowsTheLines_data();
    void heightFollowsTheLines();
    void documentOf100WithALineSpacingOf17Gives106();
    void documentHeightIsTruncated();
    void everyKindOfChangeAdjustsTheHeight();
    void userGrowsAndShrinksTheView();
    void scrollBarGoesOffWithTheFirstChange();
    void switchingOffReleasesNothing();
    void slotsSeeTheFormerHeight();
    void slotMaySwitchItOff();
    void blockedSignalsDoNotStopIt();
    void viewNotShownYetHasNoLayoutForAddedText();
    void viewNotShownYetIsMeasuredAfterSetText();
    void setTextFitsWidgetAndDocumentToTheText();
};

void tst_FxUITextViewHeight::flagIsStoredAndDoesNothingByItself()
{
    CFxUITextView view;
    auto *const widget = qobject_cast<QTextEdit *>(view.getHandle());
    view.setText(QStringLiteral("a\nb\nc"));
    const QSize size = widget->size();
    QVERIFY(!view.getAdjustHeightToContent());
    view.setAdjustHeightToContent(true);
    QVERIFY(view.getAdjustHeightToContent());
    QCOMPARE(widget->size(), size);
    QCOMPARE(widget->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    view.addText(A); // the next change
    QVERIFY(widget->maximumHeight() < QWIDGETSIZE_MAX);
    view.setAdjustHeightToContent(false);
    QVERIFY(!view.getAdjustHeightToContent());
}

void tst_FxUITextViewHeight::withoutTheFlagTheHeightStaysFree()
{
    CFxUITextView view;
    auto *const widget = qobject_cast<QTextEdit *>(view.getHandle());
    view.setText(A);
    view.addText(A);
    view.clear();
    QCOMPARE(widget->minimumHeight(), 0);
    QCOMPARE(widget->maximumHeight(), QWIDGETSIZE_MAX);
    QCOMPARE(widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void tst_FxUITextViewHeight::emptyDocumentIs25PixelsHigh()
{
    CFxUITextView view;
    auto *const widget = qobject_cast<QTextEdit *>(view.getHandle());
    view.setAdjustHeightToContent(true);
    view.setText(QString());
    QCOMPARE(widget->document()->documentLayout()->documentSize().height(), 0.0);
    QCOMPARE(widget->minimumHeight(), 25);
    QCOMPARE(widget->maximumHeight(), 25);
    QCOMPARE(widget->height(), 25);
}

// Once it is laid out, an empty document is as high as a line.
void tst_FxUITextViewHeight::emptiedDocumentKeepsTheHeightOfALine()
{
    GrowingView view;
    view.setText(QStringLiteral("a\nb\nc"));
    view.clear();
    QVERIFY(view.DocumentSize().height() > 0);
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
}

void tst_FxUITextViewHeight::heightFollowsTheLines_data()
{
    QTest::addColumn<int>("lines");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("seven") << 7;
    QTest::newRow("a thousand") << 1000;
}

void tst_FxUITextViewHeight::heightFollowsTheLines()
{
    QFETCH(int, lines);
    GrowingView view;
    view.setText(A + QStringLiteral("\na").repeated(lines - 1));
    QCOMPARE(view.widget->height(), view.HeightOfLines(lines));
    QVERIFY(view.IsFitted());
    QVERIFY(view.IsFixed());
}

void tst_FxUITextViewHeight::documentOf100WithALineSpacingOf17Gives106()
{
    GrowingView view;
    QFont font = view.widget->font();
    for (int pixels = 8; pixels < 40 && QFontMetrics(font).lineSpacing() != 17; ++pixels)
        font.setPixelSize(pixels);
    QCOMPARE(QFontMetrics(font).lineSpacing(), 17);
    view.widget->setFont(font);
    view.addText(A);
    const qreal line = view.DocumentSize().height() - 2 * view.widget->document()->documentMargin();
    view.widget->document()->setDocumentMargin((100 - line) / 2);
    view.widget->insertPlainText(A);
    QCOMPARE(view.DocumentSize().height(), 100.0);
    QCOMPARE(view.widget->height(), 106);
}

void tst_FxUITextViewHeight::documentHeightIsTruncated()
{
    GrowingView view;
    QTextBlockFormat format;
    format.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
    view.widget->textCursor().setBlockFormat(format);
    view.widget->insertPlainText(A);
    const qreal height = view.DocumentSize().height();
    QCOMPARE(height - int(height), 0.5);
    QCOMPARE(view.widget->height(), int(height) + view.LineSpacing() / 2 - 2);
}

void tst_FxUITextViewHeight::everyKindOfChangeAdjustsTheHeight()
{
    GrowingView view;
    view.addText(A);
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
    view.addText(A);
    QCOMPARE(view.widget->height(), view.HeightOfLines(2));
    view.addHtmlText(QStringLiteral("<h1>b</h1>"));
    QVERIFY(view.widget->height() > view.HeightOfLines(2)); // the letters are higher
    QVERIFY(view.IsFitted());
    view.setHtmlText(QStringLiteral("a<h1>b</h1>"));
    QVERIFY(view.widget->height() > view.HeightOfLines(2));
    QVERIFY(view.IsFitted());
    view.setText(QStringLiteral("a\nb"));
    QVERIFY(view.IsFitted());
    view.clear();
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
    view.widget->setPlainText(QStringLiteral("a\nb\nc\nd\ne")); // by the host, past the view
    QVERIFY(view.widget->height() >= view.HeightOfLines(5));
    QVERIFY(view.IsFitted());
}

void tst_FxUITextViewHeight::userGrowsAndShrinksTheView()
{
    GrowingView view;
    QTest::keyClick(view.widget, Qt::Key_A);
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
    QTest::keyClick(view.widget, Qt::Key_Return);
    QCOMPARE(view.widget->height(), view.HeightOfLines(2));
    QTest::keyClick(view.widget, Qt::Key_Backspace);
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
}

void tst_FxUITextViewHeight::scrollBarGoesOffWithTheFirstChange()
{
    GrowingView view;
    QCOMPARE(view.widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    view.setText(QStringLiteral("a\n").repeated(100));
    QCOMPARE(view.widget->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(!view.widget->verticalScrollBar()->isVisible());
}

void tst_FxUITextViewHeight::switchingOffReleasesNothing()
{
    GrowingView view;
    view.setText(QStringLiteral("a\nb\nc"));
    const int height = view.widget->height();
    view.setAdjustHeightToContent(false);
    view.setText(QStringLiteral("a\n").repeated(100));
    QCOMPARE(view.widget->height(), height);
    QVERIFY(view.IsFixed());
    QCOMPARE(view.widget->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void tst_FxUITextViewHeight::slotsSeeTheFormerHeight()
{
    GrowingView view;
    view.addText(A);
    QList<int> seen;
    view.textChanged().connect([&] { seen.append(view.widget->height()); });
    view.addText(A);
    QCOMPARE(seen, QList<int>({ view.HeightOfLines(1) }));
    QCOMPARE(view.widget->height(), view.HeightOfLines(2));
}

void tst_FxUITextViewHeight::slotMaySwitchItOff()
{
    GrowingView view;
    view.addText(A);
    view.textChanged().connect([&] { view.setAdjustHeightToContent(false); });
    view.addText(A);
    QCOMPARE(view.widget->height(), view.HeightOfLines(1));
}

void tst_FxUITextViewHeight::blockedSignalsDoNotStopIt()
{
    GrowingView view;
    view.blockSignals(true);
    view.setText(QStringLiteral("a\nb\nc"));
    QCOMPARE(view.widget->height(), view.HeightOfLines(3));
}

// QTextEdit lays its document out when it is first shown, and tells nobody then.
void tst_FxUITextViewHeight::viewNotShownYetHasNoLayoutForAddedText()
{
    const GrowingView shown;
    CFxUITextView view;
    auto *const widget = qobject_cast<QTextEdit *>(view.getHandle());
    QWidget window;
    widget->setParent(&window);
    view.setAdjustHeightToContent(true);
    view.addText(QStringLiteral("a\nb\nc"));
    QVERIFY(widget->height() < shown.HeightOfLines(3));
    view.clear();
    view.addText(QStringLiteral("a\nb\nc"));
    QCOMPARE(widget->height(), 25);
    view.setVisible(true);
    window.show();
    QCOMPARE(widget->height(), 25);
    view.addText(A); // the next change
    QCOMPARE(widget->height(), shown.HeightOfLines(4));
}

void tst_FxUITextViewHeight::viewNotShownYetIsMeasuredAfterSetText()
{
    const GrowingView shown;
    CFxUITextView view;
    auto *const widget = qobject_cast<QTextEdit *>(view.getHandle());
    view.setAdjustHeightToContent(true);
    view.setText(QStringLiteral("a\nb\nc"));
    QCOMPARE(widget->height(), shown.HeightOfLines(3));
}

// QWidget::adjustSize and QTextDocument::adjustSize.
void tst_FxUITextViewHeight::setTextFitsWidgetAndDocumentToTheText()
{
    GrowingView view;
    view.setAdjustHeightToContent(false);
    view.setText(A);
    QCOMPARE(view.widget->size(), view.widget->sizeHint());
    QCOMPARE(view.widget->document()->textWidth(), view.widget->document()->idealWidth());
    view.widget->insertPlainText(QStringLiteral(" word"));
    QVERIFY(view.widget->document()->firstBlock().layout()->lineCount() > 1);
    view.widget->resize(400, 300);
    QCOMPARE(view.widget->document()->firstBlock().layout()->lineCount(), 1);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextViewHeight>(argc, argv);
}

#include "tst_FxUITextViewHeight.moc"
