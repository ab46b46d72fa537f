#include "UI/Impl/StyleSheetColors.h"

#include "support/TestMain.h"

#include <QtTest/QTest>

using Colors = QMap<QString, QString>;
Q_DECLARE_METATYPE(Colors)

namespace {

Colors Map(std::initializer_list<std::pair<const char *, const char *>> entries)
{
    Colors colors;
    for (const auto &entry : entries)
        colors.insert(QString::fromLatin1(entry.first), QString::fromLatin1(entry.second));
    return colors;
}

} // namespace

class tst_StyleSheetColors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data();
    void parse();
    void replace_data();
    void replace();
};

void tst_StyleSheetColors::parse_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<Colors>("colors");
    const auto add = [](const char *row, const char *table, const Colors &colors) {
        QTest::newRow(row) << QString::fromLatin1(table) << colors;
    };
    add("empty text", "", {});
    add("line end alone", "\r\n", {});
    add("one entry", "a=1\n", Map({ { "a", "1" } }));
    add("last line without line end", "a=1\nb=2", Map({ { "a", "1" }, { "b", "2" } }));
    add("value keeps its carriage return", "a=1\r\nb=2\r\n",
        Map({ { "a", "1\r" }, { "b", "2\r" } }));
    add("carriage return alone ends no line", "a=1\rb2\n", Map({ { "a", "1\rb2" } }));
    add("line without equals sign is skipped", "a\nb=2\n", Map({ { "b", "2" } }));
    add("line with two equals signs is skipped", "a=1=2\nb=2\n", Map({ { "b", "2" } }));
    add("two equals signs in a row are two", "a==1\nb=2\n", Map({ { "b", "2" } }));
    add("lone carriage return in front of a line end", "a=1\r\n\r\nb=2",
        Map({ { "a", "1\r" }, { "b", "2" } }));
    add("last value of a name counts", "a=1\nb=2\na=3\n", Map({ { "a", "3" }, { "b", "2" } }));
    add("a skipped line doesn't undo an entry", "a=1\na=2=3\na\n", Map({ { "a", "1" } }));
    add("blanks belong to name and value", " a = 1 \n", Map({ { " a ", " 1 " } }));
    add("names differ by case", "a=1\nA=2\n", Map({ { "A", "2" }, { "a", "1" } }));
    add("empty name", "=1\n", Map({ { "", "1" } }));
    add("empty value", "a=\n", Map({ { "a", "" } }));
}

void tst_StyleSheetColors::parse()
{
    QFETCH(QString, table);
    QFETCH(Colors, colors);
    QCOMPARE(StyleSheetColors::Parse(table), colors);
}

void tst_StyleSheetColors::replace_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<Colors>("colors");
    QTest::addColumn<QString>("text");
    const auto add = [](const char *row, const char *sheet, const Colors &colors,
                        const char *text) {
        QTest::newRow(row) << QString::fromLatin1(sheet) << colors << QString::fromLatin1(text);
    };
    add("no colors", "QLabel { }", {}, "QLabel { }");
    add("empty sheet", "", Map({ { "a", "1" } }), "");
    add("every occurrence", "red red;red", Map({ { "red", "#1" } }), "#1 #1;#1");
    add("inside a longer word", "bordered", Map({ { "red", "#1" } }), "borde#1");
    add("inside a selector", "QDarkdark { color: dark; }", Map({ { "dark", "#0" } }),
        "QDark#0 { color: #0; }");
    add("inside quotes", "\"red\"", Map({ { "red", "#1" } }), "\"#1\"");
    add("case counts", "Red RED red", Map({ { "red", "#1" } }), "Red RED #1");
    add("empty value removes the name", "a red b", Map({ { "red", "" } }), "a  b");
    add("carriage return stays in front of the semicolon", "color: red;\r\n",
        Map({ { "red", "#1\r" } }), "color: #1\r;\r\n");
    add("found from the left without overlap", "aaa", Map({ { "aa", "b" } }), "ba");
    add("a value isn't searched again for its own name", "a", Map({ { "a", "aa" } }), "aa");
    add("ascending order: a later name in an earlier value", "a",
        Map({ { "b", "c" }, { "a", "b" } }), "c");
    add("ascending order: an earlier name in a later value", "b",
        Map({ { "b", "a" }, { "a", "c" } }), "a");
    add("ascending order: short name in front of the longer one", "abc",
        Map({ { "abc", "1" }, { "ab", "2" } }), "2c");
    add("capital letters come first", "B", Map({ { "a", "1" }, { "B", "a" } }), "1");
}

void tst_StyleSheetColors::replace()
{
    QFETCH(QString, sheet);
    QFETCH(Colors, colors);
    QFETCH(QString, text);
    QCOMPARE(StyleSheetColors::Replace(sheet, colors), text);
}

int main(int argc, char **argv)
{
    return RunTest<tst_StyleSheetColors>(argc, argv);
}

#include "tst_StyleSheetColors.moc"
