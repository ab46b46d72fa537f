#include "UI/FxUIStyle.h"

#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtTest/QTest>

namespace {

// A resource tree of the test's own in the place of the library's, from a file below
// COMMONUI_TREES, for as long as this lives.
class Tree {
public:
    explicit Tree(const char *name)
        : m_file(QStringLiteral(COMMONUI_TREES "/%1.rcc").arg(QLatin1String(name)))
        , m_registered(QResource::registerResource(m_file))
    {
    }

    Tree(const Tree &) = delete;
    Tree &operator=(const Tree &) = delete;

    ~Tree() { QResource::unregisterResource(m_file); }

    bool isRegistered() const { return m_registered; }

private:
    QString m_file;
    bool m_registered;
};

} // namespace

// The style is compiled into this program without the library's resource tree, so that the files
// can be missing and have another content.
class tst_FxUIStyleFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutFilesTheTextIsEmpty();
    void withoutColorTableTheSheetIsNotRead();
    void withoutSheetTheTextIsEmpty();
    void loadedFromFiles_data();
    void loadedFromFiles();
    void failedLoadKeepsTheTextOfTheLastOne();
    void sharedInstanceIsKeptEmptyAndNeverLoadedAgain();
    void sharedInstanceKeepsItsTextWhenTheFilesChange();
    void cleanup();
};

void tst_FxUIStyleFiles::withoutFilesTheTextIsEmpty()
{
    QVERIFY(!QFile::exists(QStringLiteral(":/commonui")));
    QVERIFY(CFxUIStyle().styleSheet().isEmpty());
}

void tst_FxUIStyleFiles::withoutColorTableTheSheetIsNotRead()
{
    const Tree tree("sheet_only");
    QVERIFY(tree.isRegistered());
    QVERIFY(QFile::exists(QStringLiteral(":/commonui/resources/qss/style.qss")));
    QVERIFY(CFxUIStyle().styleSheet().isEmpty());
}

void tst_FxUIStyleFiles::withoutSheetTheTextIsEmpty()
{
    const Tree tree("colors_only");
    QVERIFY(tree.isRegistered());
    QVERIFY(QFile::exists(QStringLiteral(":/commonui/resources/qss/style.colors")));
    QVERIFY(CFxUIStyle().styleSheet().isEmpty());
}

void tst_FxUIStyleFiles::loadedFromFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("odd_lines") << QStringLiteral("QLabel { color: #2; twoequals; #1; }\n");
    QTest::newRow("name_in_selector") << QStringLiteral("Q#fff\r { color: bl#fff\ring; }\r\n");
}

void tst_FxUIStyleFiles::loadedFromFiles()
{
    QFETCH(QString, text);
    const Tree tree(QTest::currentDataTag());
    QVERIFY(tree.isRegistered());
    QCOMPARE(CFxUIStyle().styleSheet(), text);
}

void tst_FxUIStyleFiles::failedLoadKeepsTheTextOfTheLastOne()
{
    CFxUIStyle style;
    QString text;
    {
        const Tree tree("odd_lines");
        style.Load();
        text = style.styleSheet();
        QVERIFY(!text.isEmpty());
    }
    style.Load();
    QCOMPARE(style.styleSheet(), text);
}

void tst_FxUIStyleFiles::sharedInstanceIsKeptEmptyAndNeverLoadedAgain()
{
    const auto style = GetStyle();
    QVERIFY(style->styleSheet().isEmpty());
    const Tree tree("odd_lines");
    QCOMPARE(GetStyle(), style);
    QVERIFY(style->styleSheet().isEmpty());
}

void tst_FxUIStyleFiles::sharedInstanceKeepsItsTextWhenTheFilesChange()
{
    QString text;
    {
        const Tree tree("odd_lines");
        text = GetStyle()->styleSheet();
        QVERIFY(!text.isEmpty());
    }
    const Tree tree("name_in_selector");
    QCOMPARE(GetStyle()->styleSheet(), text);
}

void tst_FxUIStyleFiles::cleanup()
{
    g_pStyle.reset();
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIStyleFiles>(argc, argv);
}

#include "tst_FxUIStyleFiles.moc"
