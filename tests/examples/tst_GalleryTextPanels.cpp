#include "ShownPanel.h"
#include "support/TestMain.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextEdit>

#include <algorithm>

class tst_GalleryTextPanels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textEntryLogsTypingAndCalls();
    void textEntryVetoesDigits();
    void textEntryMasksTheTime();
    void textViewShowsPlainTextAndHtml();
    void textViewChatGrowsAndShowsCharacters();
    void listsStayEmptyOnTheScreen();
    void tabsKeepTheCallersIndex();
    void groupBoxContentIsHiddenByASlot();
    void scrollJumpsToARow();
    void imageIsPaintedByUpdateAlone();
};

void tst_GalleryTextPanels::textEntryLogsTypingAndCalls()
{
    RunPanel("textentry", [](Panel &panel) {
        panel.host.Take();
        QTest::keyClick(panel.Field("Type a name"), Qt::Key_A);
        const QString object = QStringLiteral("Placeholder, clear button.");
        QCOMPARE(panel.host.Take(),
                 QStringList({ object + QStringLiteral("textChanged(\"a\")"),
                               object + QStringLiteral("textEdited(\"a\")") }));
        panel.Press("setText(\"Ada Lovelace\")");
        QCOMPARE(panel.host.Take().size(), 3);
        QVERIFY(panel.Shows("text() \"Ada Lovelace\""));
        panel.Press("setText(\"Ada Lovelace\")");
        QCOMPARE(panel.host.Take(), QStringList());
        panel.Press("clear()");
        QVERIFY(panel.Field("Type a name")->text().isEmpty());
    });
}

void tst_GalleryTextPanels::textEntryVetoesDigits()
{
    RunPanel("textentry", [](Panel &panel) {
        QTest::keyClicks(panel.Field("Takes no digits"), QStringLiteral("a1b2"));
        QCOMPARE(panel.Field("Takes no digits")->text(), QStringLiteral("ab"));
    });
}

void tst_GalleryTextPanels::textEntryMasksTheTime()
{
    RunPanel("textentry", [](Panel &panel) {
        QVERIFY(panel.Shows("text() \"09:30\""));
        panel.Press("setText(\"1x5\")");
        QVERIFY(!panel.Shows("text() \"1x5\""));
        panel.Press("setText(\"1x5\")");
        QVERIFY(panel.Shows("text() \"1x5\""));
    });
}

void tst_GalleryTextPanels::textViewShowsPlainTextAndHtml()
{
    RunPanel("textview", [](Panel &panel) {
        QVERIFY(panel.Shows("getContent() \"R&amp;D: <b>a</b> &lt; <u>b</u>\""));
        QVERIFY(panel.Shows("getContent() \"R&D: a < b\""));
    });
}

void tst_GalleryTextPanels::textViewChatGrowsAndShowsCharacters()
{
    RunPanel("textview", [](Panel &panel) {
        auto *const chat = panel.window.findChildren<QTextEdit *>().last();
        const int height = chat->height();
        QLineEdit *const entry = panel.Field("Write a message, press Return");
        QTest::keyClicks(entry, QStringLiteral("<b>  &lt;"));
        QTest::keyClick(entry, Qt::Key_Return);
        QVERIFY(entry->text().isEmpty());
        QVERIFY(chat->toPlainText().endsWith(QLatin1String("\n<You> <b>  &lt;")));
        QVERIFY(chat->height() > height);
        QVERIFY(panel.Shows("paragraphs 3"));
        QVERIFY(panel.window.isVisible()); // Return was claimed, and pressed no button
    });
}

void tst_GalleryTextPanels::listsStayEmptyOnTheScreen()
{
    RunPanel("lists", [](Panel &panel) {
        panel.Press("addItem(\"Mars\")");
        QVERIFY(panel.Shows("count() 4: Mercury, Venus, Earth *, Mars"));
        QCOMPARE(panel.window.findChild<QListWidget *>()->count(), 0);
        panel.Press("clearSelection()");
        panel.Press("setItemText(0, \"x\")");
        QVERIFY(panel.Shows("Mercury, Venus, Earth *, Mars"));
        panel.Press("item(0) = \"Hermes\"");
        QVERIFY(panel.Shows("Hermes, Venus"));
        QCOMPARE(panel.host.Take(), QStringList());
        panel.Press("OnItemSelected(1, false)");
        QCOMPARE(panel.host.Take(), QStringList({ QStringLiteral("List box.valueChanged(1)") }));
        panel.Press("clear()");
        QVERIFY(panel.Shows("count() 0"));
    });
}

void tst_GalleryTextPanels::tabsKeepTheCallersIndex()
{
    RunPanel("tabs", [](Panel &panel) {
        auto *const tabs = panel.window.findChild<QTabWidget *>();
        QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          tabs->tabBar()->tabRect(2).center());
        QCOMPARE(tabs->currentIndex(), 2);
        QVERIFY(panel.Shows("currentIndex() 0"));
        panel.Press("setCurrentIndex(next)");
        QCOMPARE(tabs->currentIndex(), 1);
        QCOMPARE(panel.host.Take(), QStringList({ QStringLiteral("Tabs.currentChanged(1)") }));
        panel.Press("setTabText(0, \"Renamed\")");
        QCOMPARE(tabs->tabText(0), QStringLiteral("Renamed"));
        panel.Press("setTitle(\"Pane\")");
        QVERIFY(panel.Shows("getHandle() null"));
    });
}

void tst_GalleryTextPanels::groupBoxContentIsHiddenByASlot()
{
    RunPanel("tabs", [](Panel &panel) {
        panel.Press("setCollapsed()");
        QVERIFY(panel.Shows("isCollapsed() true"));
        const QList<QLabel *> labels = panel.window.findChildren<QLabel *>();
        const auto content = std::find_if(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->text().startsWith(QLatin1String("Hidden by"));
        });
        QVERIFY(content != labels.end());
        QVERIFY(!(*content)->isVisible());
        panel.Press("setCollapsed()");
        QVERIFY((*content)->isVisible());
    });
}

void tst_GalleryTextPanels::scrollJumpsToARow()
{
    RunPanel("scroll", [](Panel &panel) {
        auto *const area = panel.window.findChild<QScrollArea *>();
        auto *const slider = panel.window.findChild<QSlider *>();
        const QWidget *const field = panel.Field("Value of row 40");
        QVERIFY(field->visibleRegion().isEmpty());
        slider->setFocus();
        QTest::keyClick(slider, Qt::Key_End);
        QCOMPARE(slider->value(), 40);
        QVERIFY(!field->visibleRegion().isEmpty());
        QTest::keyClick(slider, Qt::Key_Home);
        QCOMPARE(area->verticalScrollBar()->value(), 0);
        QVERIFY(field->visibleRegion().isEmpty());
    });
}

void tst_GalleryTextPanels::imageIsPaintedByUpdateAlone()
{
    RunPanel("image", [](Panel &panel) {
        QVERIFY(panel.Shows("width() 260, height() 120"));
        QVERIFY(panel.Shows("paintings 1"));
        panel.Press("resize()");
        panel.Press("setPixmap(null)");
        QVERIFY(panel.Shows("width() 180, height() 120"));
        QVERIFY(panel.Shows("paintings 1"));
        panel.Press("setPixmap(tiles)");
        panel.Press("update()");
        QVERIFY(panel.Shows("paintings 2"));
        const QList<QLabel *> labels = panel.window.findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->pixmap(Qt::ReturnByValue).size() == QSize(180, 120);
        }));
    });
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryTextPanels>(argc, argv);
}

#include "tst_GalleryTextPanels.moc"
