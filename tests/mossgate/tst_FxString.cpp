#include <FxString.h>

#include "support/TestMain.h"

#include <QtGui/QTextDocument>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>

class tst_FxString : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void holdsTheText();
    void encodedTextShowsAsTheText_data();
    void encodedTextShowsAsTheText();
    void encodedTextAlwaysLooksLikeHtml_data();
    void encodedTextAlwaysLooksLikeHtml();
    void emptyTextStaysEmpty();
    void encodingTwiceShowsTheEncodedText();
};

void tst_FxString::holdsTheText()
{
    const QString text = QStringLiteral("R&D");
    const CFxString string(text);
    const QString &first = string;
    const QString &second = string;
    QCOMPARE(first, text);
    QCOMPARE(&first, &second);
}

void tst_FxString::encodedTextShowsAsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << QStringLiteral("plain");
    QTest::newRow("markup") << QStringLiteral("<b>R&D</b> &lt; \"it's\"");
    QTest::newRow("blanks and tabs") << QStringLiteral("  a \t b  ");
    QTest::newRow("lines") << QStringLiteral("a\n b\n\nc");
}

void tst_FxString::encodedTextShowsAsTheText()
{
    QFETCH(QString, text);
    CFxString string(text);
    string.EncodeHTML();
    QCOMPARE(QTextDocumentFragment::fromHtml(string).toPlainText(), text);
}

void tst_FxString::encodedTextAlwaysLooksLikeHtml_data()
{
    encodedTextShowsAsTheText_data();
}

void tst_FxString::encodedTextAlwaysLooksLikeHtml()
{
    QFETCH(QString, text);
    CFxString string(text);
    string.EncodeHTML();
    QVERIFY(Qt::mightBeRichText(string));
}

void tst_FxString::emptyTextStaysEmpty()
{
    CFxString null { QString() };
    null.EncodeHTML();
    QVERIFY(static_cast<const QString &>(null).isNull());
    CFxString empty(QStringLiteral(""));
    empty.EncodeHTML();
    QVERIFY(static_cast<const QString &>(empty).isEmpty());
}

void tst_FxString::encodingTwiceShowsTheEncodedText()
{
    CFxString string(QStringLiteral("<"));
    string.EncodeHTML();
    const QString once = string;
    string.EncodeHTML();
    QCOMPARE(QTextDocumentFragment::fromHtml(string).toPlainText(), once);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxString>(argc, argv);
}

#include "tst_FxString.moc"
