// Whatever a caller gives to addText comes out as the caller's text, character for character.

#include "UI/FxUITextView.h"

#include "support/Random.h"
#include "support/TestMain.h"

#include <QtGui/QTextDocument>
#include <QtTest/QTest>
#include <QtWidgets/QTextEdit>

namespace {

constexpr int RandomTexts = 100000;

QTextDocument *Document(const CFxUITextView &view)
{
    return qobject_cast<QTextEdit *>(view.getHandle())->document();
}

/// The text as a document can hold it: it has paragraphs instead of line breaks, and its own marks
/// for the ends of frames act as such. All other characters stay.
QString AsHeld(const QString &text)
{
    QString held = text;
    held.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const char16_t unit : { u'\n', u'\r', u'\xfdd0', u'\xfdd1' })
        held.replace(QChar(unit), QChar(QChar::ParagraphSeparator));
    return held;
}

/// What QTextDocument::toPlainText makes of the text that a document holds.
QString AsPlainText(const QString &held)
{
    QString plain = held;
    plain.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    plain.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
    return plain.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

QString Pieces(QRandomGenerator &random)
{
    static const QStringList pieces {
        QStringLiteral("<"),
        QStringLiteral(">"),
        QStringLiteral("&"),
        QStringLiteral(";"),
        QStringLiteral("\""),
        QStringLiteral("'"),
        QStringLiteral("/"),
        QStringLiteral("#"),
        QStringLiteral("="),
        QStringLiteral("&lt;"),
        QStringLiteral("&amp;"),
        QStringLiteral("&#60;"),
        QStringLiteral("&nbsp;"),
        QStringLiteral("<b>"),
        QStringLiteral("</span>"),
        QStringLiteral("<br/>"),
        QStringLiteral("<p>"),
        QStringLiteral("<pre>"),
        QStringLiteral("<table>"),
        QStringLiteral("<style>"),
        QStringLiteral("<!DOCTYPE html>"),
        QStringLiteral("<?xml version=\"1.0\"?>"),
        QStringLiteral("<!--"),
        QStringLiteral("-->"),
        QStringLiteral("<!--StartFragment-->"),
        QStringLiteral("<meta name=\"qrichtext\" content=\"1\" />"),
        QStringLiteral(" "),
        QStringLiteral("  "),
        QStringLiteral("\t"),
        QStringLiteral("\n"),
        QStringLiteral("\r"),
        QStringLiteral("\r\n"),
        QStringLiteral("\v\f"),
        QStringLiteral("\u00a0"),
        QStringLiteral("\u2028"),
        QStringLiteral("\u2029"),
        QStringLiteral("\u0085"),
        QStringLiteral("\u00ad"),
        QStringLiteral("\u200b\u200d"),
        QStringLiteral("\ufeff"),
        QStringLiteral("\ufffc"),
        QStringLiteral("word"),
        QStringLiteral("R&D"),
        QStringLiteral("e\u0301"),
        QStringLiteral("שלום"),
        QStringLiteral("مرحبا"),
        QStringLiteral("\u202e\u202c"),
        QString::fromUtf8("\xF0\x9F\x98\x80"),
        QString::fromUtf8("\xF0\x9F\x91\xA8\xE2\x80\x8D\xF0\x9F\x91\xA9"),
    };
    QString text;
    const int count = random.bounded(12);
    for (int i = 0; i < count; ++i) {
        if (random.bounded(8) == 0)
            text.append(QChar(ushort(random.bounded(0x10000)))); // any code unit, also half a pair
        else
            text.append(pieces.at(random.bounded(pieces.size())));
    }
    return text;
}

} // namespace

class tst_FxUITextViewAddText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textComesOutAsGiven_data();
    void textComesOutAsGiven();
    void linesBecomeParagraphs();
    void whatADocumentCannotHold_data();
    void whatADocumentCannotHold();
    void emptyTextIsAnEmptyParagraph();
    void emptyTextToAnEmptyDocumentIsNothing();
    void looksAsThePlainTextDoes();
    void everyCodeUnitComesOutAsSetTextDoes();
    void aMegabyteComesOutAsGiven();
    void randomTextsComeOutAsGiven();
};

void tst_FxUITextViewAddText::textComesOutAsGiven_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("ampersand") << QStringLiteral("R&D");
    QTest::newRow("less than") << QStringLiteral("a < b");
    QTest::newRow("both") << QStringLiteral("a < b && c > d");
    QTest::newRow("element") << QStringLiteral("<b>x</b>");
    QTest::newRow("unclosed element") << QStringLiteral("<b");
    QTest::newRow("entity") << QStringLiteral("&lt;");
    QTest::newRow("entity twice") << QStringLiteral("&amp;lt;");
    QTest::newRow("numeric entity") << QStringLiteral("&#65;&#x41;");
    QTest::newRow("quotes") << QStringLiteral("\"it's\"");
    QTest::newRow("no markup at all") << QStringLiteral("plain");
    QTest::newRow("tabs") << QStringLiteral("\ta\t\tb\t");
    QTest::newRow("leading blanks") << QStringLiteral("   a");
    QTest::newRow("trailing blanks") << QStringLiteral("a   ");
    QTest::newRow("repeated blanks") << QStringLiteral("a    b");
    QTest::newRow("blanks alone") << QStringLiteral("   ");
    QTest::newRow("comment") << QStringLiteral("<!-- x -->");
    QTest::newRow("fragment mark") << QStringLiteral("<!--StartFragment-->x<!--EndFragment-->");
    QTest::newRow("document type") << QStringLiteral("<!DOCTYPE html><html>x</html>");
    QTest::newRow("the encoder's own element")
        << QStringLiteral("</span><span style=\"white-space:pre-wrap\">");
    QTest::newRow("emoji") << QString::fromUtf8("a\xF0\x9F\x98\x80z");
    QTest::newRow("right to left") << QStringLiteral("שלום <עולם>");
    QTest::newRow("combining") << QStringLiteral("e\u0301o\u0308");
    QTest::newRow("zero width") << QStringLiteral("a\u200b\u200d\ufeffb");
    QTest::newRow("object replacement") << QStringLiteral("a\ufffcb");
    QTest::newRow("nul") << QStringLiteral("a%1b").arg(QChar(0));
    QTest::newRow("half a pair") << QStringLiteral("a%1b").arg(QChar(0xd800));
}

void tst_FxUITextViewAddText::textComesOutAsGiven()
{
    QFETCH(QString, text);
    CFxUITextView view;
    view.addText(text);
    QCOMPARE(view.getContent(), text);
    view.addText(text);
    QCOMPARE(view.getContent(), text + QLatin1Char('\n') + text);
    QCOMPARE(Document(view)->blockCount(), 2);
    QCOMPARE(Document(view)->toRawText(), text + QChar(QChar::ParagraphSeparator) + text);
}

void tst_FxUITextViewAddText::linesBecomeParagraphs()
{
    CFxUITextView view;
    view.addText(QStringLiteral("a\n\n b & c\n"));
    QCOMPARE(view.getContent(), QStringLiteral("a\n\n b & c\n"));
    QCOMPARE(Document(view)->blockCount(), 4);
    view.addText(QStringLiteral("\n"));
    QCOMPARE(view.getContent(), QStringLiteral("a\n\n b & c\n\n\n"));
    QCOMPARE(Document(view)->blockCount(), 6);
}

void tst_FxUITextViewAddText::whatADocumentCannotHold_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("held");
    QTest::addColumn<QString>("content");
    const QString paragraphs = QStringLiteral("a\u2029b");
    const QString lines = QStringLiteral("a\nb");
    QTest::newRow("line feed") << QStringLiteral("a\nb") << paragraphs << lines;
    QTest::newRow("carriage return") << QStringLiteral("a\rb") << paragraphs << lines;
    QTest::newRow("both") << QStringLiteral("a\r\nb") << paragraphs << lines;
    QTest::newRow("both, crossed")
        << QStringLiteral("a\n\rb") << QStringLiteral("a\u2029\u2029b") << QStringLiteral("a\n\nb");
    QTest::newRow("paragraph separator") << paragraphs << paragraphs << lines;
    QTest::newRow("begin of frame")
        << QStringLiteral("a%1b").arg(QChar(0xfdd0)) << paragraphs << lines;
    QTest::newRow("end of frame") << QStringLiteral("a%1b").arg(QChar(0xfdd1)) << paragraphs
                                  << lines;
    // Held as they are, and mapped when the plain text is asked for.
    QTest::newRow("line separator")
        << QStringLiteral("a\u2028b") << QStringLiteral("a\u2028b") << lines;
    QTest::newRow("no-break space")
        << QStringLiteral("a\u00a0b") << QStringLiteral("a\u00a0b") << QStringLiteral("a b");
}

void tst_FxUITextViewAddText::whatADocumentCannotHold()
{
    QFETCH(QString, text);
    QFETCH(QString, held);
    QFETCH(QString, content);
    CFxUITextView view;
    view.addText(text);
    QCOMPARE(Document(view)->toRawText(), held);
    QCOMPARE(view.getContent(), content);
    // A matter of the document, not of the encoding: text that is set fares the same.
    view.setText(text);
    QCOMPARE(Document(view)->toRawText(), held);
    QCOMPARE(view.getContent(), content);
    QCOMPARE(AsHeld(text), held);
    QCOMPARE(AsPlainText(held), content);
}

void tst_FxUITextViewAddText::emptyTextIsAnEmptyParagraph()
{
    CFxUITextView view;
    view.addText(QStringLiteral("a"));
    view.addText(QString());
    view.addText(QStringLiteral("b"));
    QCOMPARE(view.getContent(), QStringLiteral("a\n\nb"));
}

void tst_FxUITextViewAddText::emptyTextToAnEmptyDocumentIsNothing()
{
    CFxUITextView view;
    view.addText(QString());
    view.addText(QStringLiteral(""));
    view.addText(QStringLiteral("b"));
    QCOMPARE(view.getContent(), QStringLiteral("b"));
    QCOMPARE(Document(view)->blockCount(), 1);
}

void tst_FxUITextViewAddText::looksAsThePlainTextDoes()
{
    const QString text = QStringLiteral("one\n\ttwo  three\n  four");
    CFxUITextView view;
    view.addText(text);
    CFxUITextView plain;
    qobject_cast<QTextEdit *>(plain.getHandle())->append(text);
    QCOMPARE(Document(view)->toHtml(), Document(plain)->toHtml());
}

void tst_FxUITextViewAddText::everyCodeUnitComesOutAsSetTextDoes()
{
    CFxUITextView added;
    CFxUITextView set;
    for (int first = 0; first < 0x10000; first += 0x100) {
        QString text;
        for (int unit = first; unit < first + 0x100; ++unit)
            text.append(QLatin1Char('x')).append(QChar(ushort(unit)));
        text.append(QLatin1Char('x'));
        added.clear();
        added.addText(text);
        set.setText(text);
        QCOMPARE(Document(added)->toRawText(), AsHeld(text));
        QCOMPARE(Document(set)->toRawText(), AsHeld(text));
    }
}

void tst_FxUITextViewAddText::aMegabyteComesOutAsGiven()
{
    const QString line = QStringLiteral("if (a < b && c > d) // \"R&D\"\t&lt;b&gt;  ok\n");
    QString text;
    while (text.size() < 1024 * 1024)
        text.append(line);
    CFxUITextView view;
    view.addText(text);
    QVERIFY(view.getContent() == text); // no megabytes in a message
    view.setText(text);
    QVERIFY(view.getContent() == text);
    const QString oneLine = QString(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    view.clear();
    view.addText(oneLine);
    QVERIFY(view.getContent() == oneLine);
    QCOMPARE(Document(view)->blockCount(), 1);
}

void tst_FxUITextViewAddText::randomTextsComeOutAsGiven()
{
    QRandomGenerator random = SeededRandom();
    CFxUITextView view;
    for (int i = 0; i < RandomTexts; ++i) {
        const QString text = Pieces(random);
        const QString held = QStringLiteral("first\u2029") + AsHeld(text);
        view.clear();
        view.addText(QStringLiteral("first"));
        view.addText(text);
        QCOMPARE(Document(view)->toRawText(), held);
        QCOMPARE(view.getContent(), AsPlainText(held));
    }
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUITextViewAddText>(argc, argv);
}

#include "tst_FxUITextViewAddText.moc"
