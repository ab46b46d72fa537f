#include "UI/Impl/qt/StyleSheetEdit.h"

#include "support/TestMain.h"

#include <QtTest/QTest>

#include <limits>

namespace {

const char *const Widths =
    "border-left-style:solid;border-top-style:solid;border-right-style:solid;"
    "border-bottom-style:solid;border-left-width:1px;border-top-width:2px;"
    "border-right-width:3px;border-bottom-width:4px;";

QString Text(const char *text)
{
    return QString::fromUtf8(text);
}

} // namespace

class tst_StyleSheetEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void borderWidth_data();
    void borderWidth();
    void borderWidthNumber_data();
    void borderWidthNumber();
    void borderWidths_data();
    void borderWidths();
    void borderWidthsNumbers();
    void borderColor_data();
    void borderColor();
    void backgroundColor_data();
    void backgroundColor();
    void invalidColorGivesItsName();
    void repeatedEditsCollectDeclarations();
};

void tst_StyleSheetEdit::borderWidth_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("rest"); // with %1 where the declaration goes
    const auto row = [](const char *name, const char *sheet, const char *rest) {
        QTest::newRow(name) << Text(sheet) << Text(rest);
    };
    row("empty rule", "QLabel { }", "QLabel { %1}");
    row("no brace", "color: red;", "color: red;%1");
    row("empty sheet", "", "%1");
    row("brace at the start doesn't count", "}", "}%1");
    row("brace at index 1 counts", " }", " %1}");
    row("brace at the start after the removals", "border: none;}", "}%1");
    row("last brace of several rules", "A { } B { }", "A { } B { %1}");
    row("shorthand goes", "A { border: 1px solid red; }", "A {  %1}");
    row("shorthand with tabs goes", "A { border\t:\t1px\tsolid\tred\t; }", "A {  %1}");
    row("shorthand in capitals of its value goes", "A { border: SOLID; }", "A {  %1}");
    row("capital property stays", "A { BORDER: solid; }", "A { BORDER: solid; %1}");
    row("shorthand with a zero stays", "A { border: 10px solid red; }",
        "A { border: 10px solid red; %1}");
    row("shorthand with a point stays", "A { border: 1.5px solid; }",
        "A { border: 1.5px solid; %1}");
    row("shorthand with a colour number stays", "A { border: 1px solid #f11; }",
        "A { border: 1px solid #f11; %1}");
    row("shorthand over two lines stays", "A { border: 1px\nsolid; }",
        "A { border: 1px\nsolid; %1}");
    row("shorthand without semicolon stays", "A { border: 1px }", "A { border: 1px %1}");
    row("style goes", "A { border-style: solid; }", "A {  %1}");
    row("style of four words goes", "A { border-style:solid dotted solid none; }", "A {  %1}");
    row("style of a side stays", "A { border-left-style:solid; }",
        "A { border-left-style:solid; %1}");
    row("width stays", "A { border-width:1px; }", "A { border-width:1px; %1}");
    row("width with a point stays", "A { border-width:1.5px; }", "A { border-width:1.5px; %1}");
    row("width of each side goes",
        "A { border-left-width:1px;border-top-width: 2px;border-right-width:3px;"
        "border-bottom-width :4px; }",
        "A {  %1}");
    row("width of a side with a zero stays", "A { border-left-width:10px; }",
        "A { border-left-width:10px; %1}");
    row("width of a side with a blank inside stays", "A { border-left-width:1 px; }",
        "A { border-left-width:1 px; %1}");
    row("radius stays", "A { border-radius: 3px; }", "A { border-radius: 3px; %1}");
    row("colour stays", "A { border-color: red; }", "A { border-color: red; %1}");
    row("every match goes", "A { border: red; } B { border: blue; border: green; }",
        "A {  } B {   %1}");
    row("end of a longer name goes", "A { my-border: red; }", "A { my- %1}");
    row("brace in a comment counts", "A { } /* } */", "A { } /* %1} */");
}

void tst_StyleSheetEdit::borderWidth()
{
    QFETCH(QString, sheet);
    QFETCH(QString, rest);
    const QString declaration = QStringLiteral("border-style:solid;border-width:2px;");
    QCOMPARE(StyleSheetEdit::WithBorderWidth(sheet, 2.0f), rest.arg(declaration));
}

void tst_StyleSheetEdit::borderWidthNumber_data()
{
    QTest::addColumn<float>("width");
    QTest::addColumn<QString>("number");
    QTest::newRow("2") << 2.0f << QStringLiteral("2");
    QTest::newRow("0") << 0.0f << QStringLiteral("0");
    QTest::newRow("1.5") << 1.5f << QStringLiteral("1.5");
    QTest::newRow("0.1: six digits of the double") << 0.1f << QStringLiteral("0.1");
    QTest::newRow("1.2345678") << 1.2345678f << QStringLiteral("1.23457");
    QTest::newRow("-1") << -1.0f << QStringLiteral("-1");
    QTest::newRow("1e7: an exponent") << 1e7f << QStringLiteral("1e+07");
    QTest::newRow("0.00001") << 0.00001f << QStringLiteral("1e-05");
    QTest::newRow("infinity") << std::numeric_limits<float>::infinity() << QStringLiteral("inf");
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << QStringLiteral("nan");
}

void tst_StyleSheetEdit::borderWidthNumber()
{
    QFETCH(float, width);
    QFETCH(QString, number);
    QCOMPARE(StyleSheetEdit::WithBorderWidth(QString(), width),
             QStringLiteral("border-style:solid;border-width:%1px;").arg(number));
    QVERIFY(StyleSheetEdit::WithBorderWidths(QString(), width, 0, 0, 0)
                .contains(QStringLiteral("border-left-width:%1px;").arg(number)));
}

void tst_StyleSheetEdit::borderWidths_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *name, const char *sheet, const char *rest) {
        QTest::newRow(name) << Text(sheet) << Text(rest);
    };
    row("empty rule", "QLabel { }", "QLabel { %1}");
    row("empty sheet", "", "%1");
    row("brace at the start doesn't count", "}", "}%1");
    row("shorthand goes", "A { border: 1px solid red; }", "A {  %1}");
    row("style goes", "A { border-style: solid; }", "A {  %1}");
    row("style of any side goes", "A { border-left-style:solid;border-x-style: none; }",
        "A {  %1}");
    row("style of a side in capitals stays", "A { border-LEFT-style:solid; }",
        "A { border-LEFT-style:solid; %1}");
    row("width of each side goes",
        "A { border-left-width:1px;border-top-width: 2px;border-right-width:3px;"
        "border-bottom-width:4px; }",
        "A {  %1}");
    row("width of a side with a zero stays", "A { border-top-width:20px; }",
        "A { border-top-width:20px; %1}");
    row("width stays", "A { border-width:1px; }", "A { border-width:1px; %1}");
    row("colour stays", "A { border-color: red; }", "A { border-color: red; %1}");
}

void tst_StyleSheetEdit::borderWidths()
{
    QFETCH(QString, sheet);
    QFETCH(QString, rest);
    QCOMPARE(StyleSheetEdit::WithBorderWidths(sheet, 1.0f, 2.0f, 3.0f, 4.0f),
             rest.arg(Text(Widths)));
}

// A number that looks like a place marker isn't replaced in its turn.
void tst_StyleSheetEdit::borderWidthsNumbers()
{
    const QString sheet = StyleSheetEdit::WithBorderWidths(QString(), 1.5f, 0.0f, -2.0f, 1e7f);
    QVERIFY(sheet.endsWith(QStringLiteral("border-left-width:1.5px;border-top-width:0px;"
                                          "border-right-width:-2px;border-bottom-width:1e+07px;")));
}

void tst_StyleSheetEdit::borderColor_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *name, const char *sheet, const char *rest) {
        QTest::newRow(name) << Text(sheet) << Text(rest);
    };
    row("empty rule", "QPushButton { }", "QPushButton { %1}");
    row("empty sheet", "", "%1");
    row("brace at the start doesn't count", "}", "}%1");
    row("shorthand goes, width and style with it", "A { border: 1px solid red; }", "A {  %1}");
    row("shorthand with a zero stays", "A { border: 10px solid; }", "A { border: 10px solid; %1}");
    row("colour stays", "A { border-color: red; }", "A { border-color: red; %1}");
    row("colour number stays", "A { border-color: #ff1111; }", "A { border-color: #ff1111; %1}");
    row("colour of one character goes", "A { border-color: r; }", "A {  %1}");
    row("zero stays", "A { border-color: 0; }", "A { border-color: 0; %1}");
    row("number sign stays", "A { border-color: #; }", "A { border-color: #; %1}");
    row("style and width stay", "A { border-style:solid;border-width:1px; }",
        "A { border-style:solid;border-width:1px; %1}");
}

void tst_StyleSheetEdit::borderColor()
{
    QFETCH(QString, sheet);
    QFETCH(QString, rest);
    QCOMPARE(StyleSheetEdit::WithBorderColor(sheet, QColor(255, 0, 0)),
             rest.arg(QStringLiteral("border-color: #ff0000;")));
}

void tst_StyleSheetEdit::backgroundColor_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("rest");
    const auto row = [](const char *name, const char *sheet, const char *rest) {
        QTest::newRow(name) << Text(sheet) << Text(rest);
    };
    row("empty rule", "QPushButton { }", "QPushButton { %1}");
    row("empty sheet", "", "%1");
    row("brace at the start counts", "}", "%1}");
    row("brace that gets to the start counts", "background-color: red;}", "%1}");
    row("name goes", "A { background-color: red; }", "A {  %1}");
    row("number without a zero goes", "A { background-color: #1a2b3c; }", "A {  %1}");
    row("number with a zero stays", "A { background-color: #ff0000; }",
        "A { background-color: #ff0000; %1}");
    row("function stays", "A { background-color: rgb(1,2,3); }",
        "A { background-color: rgb(1,2,3); %1}");
    row("empty value goes", "A { background-color:; }", "A {  %1}");
    row("blank before the colon goes", "A { background-color \t: red; }", "A {  %1}");
    row("background stays", "A { background: red; }", "A { background: red; %1}");
    row("border stays", "A { border: red; }", "A { border: red; %1}");
    row("end of a longer name goes", "A { selection-background-color: red; }",
        "A { selection- %1}");
    row("alternate background goes", "A { alternate-background-color: red; }",
        "A { alternate- %1}");
}

void tst_StyleSheetEdit::backgroundColor()
{
    QFETCH(QString, sheet);
    QFETCH(QString, rest);
    QCOMPARE(StyleSheetEdit::WithBackgroundColor(sheet, QColor(0xAB, 0xC, 0xDE)),
             rest.arg(QStringLiteral("background-color: #ab0cde;")));
}

void tst_StyleSheetEdit::invalidColorGivesItsName()
{
    QCOMPARE(StyleSheetEdit::WithBorderColor(QString(), QColor()),
             QStringLiteral("border-color: #000000;"));
    QCOMPARE(StyleSheetEdit::WithBackgroundColor(QString(), QColor()),
             QStringLiteral("background-color: #000000;"));
}

void tst_StyleSheetEdit::repeatedEditsCollectDeclarations()
{
    QString sheet = QStringLiteral("QPushButton { }");
    sheet = StyleSheetEdit::WithBorderColor(sheet, Qt::red);
    QCOMPARE(sheet, QStringLiteral("QPushButton { border-color: #ff0000;}"));
    sheet = StyleSheetEdit::WithBorderColor(sheet, Qt::blue);
    QCOMPARE(sheet, QStringLiteral("QPushButton { border-color: #ff0000;border-color: #0000ff;}"));
    sheet = StyleSheetEdit::WithBorderWidth(sheet, 1.0f);
    sheet = StyleSheetEdit::WithBorderWidth(sheet, 2.0f);
    // The style is replaced; the width that came with it stays.
    QCOMPARE(sheet,
             QStringLiteral("QPushButton { border-color: #ff0000;border-color: #0000ff;"
                            "border-width:1px;border-style:solid;border-width:2px;}"));
    sheet = StyleSheetEdit::WithBackgroundColor(sheet, QColor(0x11, 0x22, 0x33));
    sheet = StyleSheetEdit::WithBackgroundColor(sheet, QColor(0x10, 0x22, 0x33));
    sheet = StyleSheetEdit::WithBackgroundColor(sheet, QColor(0x44, 0x55, 0x66));
    QCOMPARE(sheet,
             QStringLiteral("QPushButton { border-color: #ff0000;border-color: #0000ff;"
                            "border-width:1px;border-style:solid;border-width:2px;"
                            "background-color: #102233;background-color: #445566;}"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_StyleSheetEdit>(argc, argv);
}

#include "tst_StyleSheetEdit.moc"
