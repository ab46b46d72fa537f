#include "UI/FxUIStackedWidget.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUILabel.h"
#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QTabWidget>

#include <limits>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIStackedWidget>);
static_assert(!std::is_copy_constructible_v<CFxUIStackedWidget>);

namespace {

const QString One = QStringLiteral("one");
const QString Two = QStringLiteral("two");

/// Reads the titles, which have no getter.
class Probe : public CFxUIStackedWidgetImpl {
public:
    static QVector<QString> Titles(const CFxUIStackedWidget &stack)
    {
        return static_cast<CFxUIStackedWidgetImpl *>(stack.impl)->*(&Probe::m_titles);
    }
};

QTabWidget *Widget(const CFxUIStackedWidget &stack)
{
    return qobject_cast<QTabWidget *>(stack.getHandle());
}

void AddPages(CFxUIStackedWidget &stack, int count)
{
    for (int i = 0; i < count; ++i)
        stack.addTab(new CFxUILabel, QString::number(i));
}

} // namespace

class tst_FxUIStackedWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatEveryControlDoes();
    void widgetIsATabWidgetWithItsStyleSheet();
    void startsWithoutPagesAtIndexZero();
    void addTabReturnsTheIndexesInTurn();
    void addTabShowsThePageUnderItsTitle();
    void addTabMakesThePageAChild();
    void addTabMovesAPageThatHasAParent();
    void addTabLeavesTheCurrentIndexAtZero();
    void addTabOfNullDoesNothing();
    void addTabOfAViewWithoutWidgetListsItAlone();
    void addTabWithoutHandleKeepsTheRecord();
    void addViewMakesAChildAndNoTab();
    void indexOfAnUnknownViewIsTheNumberOfPages();
    void pageAddedTwiceIsListedTwiceAndFoundAtTheLowerIndex();
    void setTabTextWritesTitleAndTab();
    void setTabTextOutOfRangeChangesNothing_data();
    void setTabTextOutOfRangeChangesNothing();
    void setCurrentIndexWithoutPagesDoesNothing();
    void setCurrentWidgetTurnsToThePage();
    void setCurrentWidgetOfAnUnknownViewChangesNothing();
    void deletedPageStaysListed();
    void pagesGoWithTheWidget();
    void widgetDeletedByQtLeavesTheRecord();
};

void tst_FxUIStackedWidget::doesWhatEveryControlDoes()
{
    ControlContract([] { return new CFxUIStackedWidget; });
    if (QTest::currentTestFailed())
        return;
}

void tst_FxUIStackedWidget::widgetIsATabWidgetWithItsStyleSheet()
{
    const CFxUIStackedWidget stack;
    QVERIFY(Widget(stack));
    QCOMPARE(Widget(stack)->metaObject()->className(), "QTabWidget");
    QCOMPARE(Widget(stack)->styleSheet(), QStringLiteral("QTabWidget { }"));
    QCOMPARE(stack.impl->GetFrontendClassName(), QStringLiteral("QTabWidget"));
}

void tst_FxUIStackedWidget::startsWithoutPagesAtIndexZero()
{
    CFxUIStackedWidget stack;
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(Widget(stack)->currentIndex(), -1);
    QCOMPARE(Widget(stack)->count(), 0);
    QVERIFY(stack.currentChanged().empty());
    QVERIFY(stack.tabCloseRequested().empty());
    QVERIFY(stack.tabBarClicked().empty());
    QVERIFY(stack.tabBarDoubleClicked().empty());
}

void tst_FxUIStackedWidget::addTabReturnsTheIndexesInTurn()
{
    CFxUIStackedWidget stack;
    for (int i = 0; i < 3; ++i) {
        auto *page = new CFxUILabel;
        QCOMPARE(stack.addTab(page, One), i);
        QCOMPARE(stack.indexOf(page), i);
    }
}

void tst_FxUIStackedWidget::addTabShowsThePageUnderItsTitle()
{
    CFxUIStackedWidget stack;
    auto *page = new CFxUILabel;
    stack.addTab(page, One);
    QCOMPARE(Widget(stack)->tabText(0), One);
    QCOMPARE(Widget(stack)->widget(0), page->getHandle());
    QCOMPARE(Widget(stack)->widget(0)->sizePolicy(),
             QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void tst_FxUIStackedWidget::addTabMakesThePageAChild()
{
    CFxUIStackedWidget stack;
    auto *page = new CFxUILabel;
    stack.addTab(page, One);
    QCOMPARE(page->parent(), &stack);
    QCOMPARE(stack.children(), QList<CFxUIObject *>({ page }));
}

void tst_FxUIStackedWidget::addTabMovesAPageThatHasAParent()
{
    CFxUIBaseView other;
    CFxUIStackedWidget stack;
    auto *page = new CFxUILabel;
    page->setParent(&other);
    stack.addTab(page, One);
    QCOMPARE(page->parent(), &stack);
    QVERIFY(other.children().isEmpty());
}

void tst_FxUIStackedWidget::addTabLeavesTheCurrentIndexAtZero()
{
    CFxUIStackedWidget stack;
    int changes = 0;
    stack.currentChanged().connect([&changes](int) { ++changes; });
    AddPages(stack, 2);
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(Widget(stack)->currentIndex(), 0);
    QCOMPARE(changes, 0);
}

void tst_FxUIStackedWidget::addTabOfNullDoesNothing()
{
    CFxUIStackedWidget stack;
    QCOMPARE(stack.addTab(nullptr, One), -1);
    QCOMPARE(Widget(stack)->count(), 0);
    QVERIFY(Probe::Titles(stack).isEmpty());
    QVERIFY(stack.children().isEmpty());
}

void tst_FxUIStackedWidget::addTabOfAViewWithoutWidgetListsItAlone()
{
    CFxUIStackedWidget stack;
    auto *bare = new CFxUIDockWidget(0);
    QCOMPARE(stack.addTab(bare, One), -1);
    QCOMPARE(stack.indexOf(bare), 0);
    QCOMPARE(bare->parent(), &stack);
    QCOMPARE(Probe::Titles(stack), QVector<QString>({ One }));
    QCOMPARE(Widget(stack)->count(), 0);
    // Qt counts its own tabs alone.
    QCOMPARE(stack.addTab(new CFxUILabel, Two), 0);
}

void tst_FxUIStackedWidget::addTabWithoutHandleKeepsTheRecord()
{
    CFxUIStackedWidget stack;
    delete stack.getHandle();
    auto *page = new CFxUILabel;
    QCOMPARE(stack.addTab(page, One), -1);
    QCOMPARE(stack.indexOf(page), 0);
    stack.setTabText(0, Two);
    QCOMPARE(Probe::Titles(stack), QVector<QString>({ Two }));
    AddPages(stack, 1);
    stack.setCurrentIndex(1);
    QCOMPARE(stack.currentIndex(), 1);
}

void tst_FxUIStackedWidget::addViewMakesAChildAndNoTab()
{
    CFxUIStackedWidget stack;
    auto *added = new CFxUILabel;
    auto *inserted = new CFxUILabel;
    stack.addView(added, 1.0f);
    stack.insertView(inserted, 0, 1.0f);
    QCOMPARE(stack.children(), QList<CFxUIObject *>({ added, inserted }));
    QCOMPARE(Widget(stack)->count(), 0);
    QCOMPARE(stack.indexOf(added), 0); // the number of pages
    QCOMPARE(stack.addTab(added, One), 0);
    stack.removeView(added);
    QCOMPARE(Widget(stack)->count(), 1);
    QCOMPARE(stack.indexOf(added), 0);
    added->setParent(&stack);
}

void tst_FxUIStackedWidget::indexOfAnUnknownViewIsTheNumberOfPages()
{
    CFxUIStackedWidget stack;
    CFxUILabel unknown;
    QCOMPARE(stack.indexOf(&unknown), 0);
    AddPages(stack, 3);
    QCOMPARE(stack.indexOf(&unknown), 3);
    QCOMPARE(stack.indexOf(nullptr), 3);
}

void tst_FxUIStackedWidget::pageAddedTwiceIsListedTwiceAndFoundAtTheLowerIndex()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 1);
    auto *page = new CFxUILabel;
    QCOMPARE(stack.addTab(page, One), 1);
    QCOMPARE(stack.addTab(page, Two),
             Widget(stack)->indexOf(qobject_cast<QWidget *>(page->getHandle())));
    QCOMPARE(stack.indexOf(page), 1);
    QCOMPARE(Probe::Titles(stack), QVector<QString>({ QStringLiteral("0"), One, Two }));
    QCOMPARE(stack.children().size(), 2);
    // Qt moves the tab, of which there is one for each widget.
    QCOMPARE(Widget(stack)->count(), 2);
    QCOMPARE(Widget(stack)->tabText(1), Two);
}

void tst_FxUIStackedWidget::setTabTextWritesTitleAndTab()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 2);
    stack.setTabText(1, Two);
    QCOMPARE(Probe::Titles(stack), QVector<QString>({ QStringLiteral("0"), Two }));
    QCOMPARE(Widget(stack)->tabText(0), QStringLiteral("0"));
    QCOMPARE(Widget(stack)->tabText(1), Two);
}

void tst_FxUIStackedWidget::setTabTextOutOfRangeChangesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("below") << -1;
    QTest::newRow("one too far") << 2;
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("highest") << std::numeric_limits<int>::max();
}

void tst_FxUIStackedWidget::setTabTextOutOfRangeChangesNothing()
{
    QFETCH(int, index);
    CFxUIStackedWidget stack;
    AddPages(stack, 2);
    stack.setTabText(index, QStringLiteral("x"));
    stack.setCurrentIndex(index);
    QCOMPARE(Probe::Titles(stack), QVector<QString>({ QStringLiteral("0"), QStringLiteral("1") }));
    QCOMPARE(Widget(stack)->tabText(0), QStringLiteral("0"));
    QCOMPARE(Widget(stack)->tabText(1), QStringLiteral("1"));
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(Widget(stack)->currentIndex(), 0);
}

void tst_FxUIStackedWidget::setCurrentIndexWithoutPagesDoesNothing()
{
    CFxUIStackedWidget stack;
    int changes = 0;
    stack.currentChanged().connect([&changes](int) { ++changes; });
    stack.setCurrentIndex(0);
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(Widget(stack)->currentIndex(), -1);
    QCOMPARE(changes, 0);
}

void tst_FxUIStackedWidget::setCurrentWidgetTurnsToThePage()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 2);
    auto *page = new CFxUILabel;
    stack.addTab(page, Two);
    stack.setCurrentWidget(page);
    QCOMPARE(stack.currentIndex(), 2);
    QCOMPARE(Widget(stack)->currentWidget(), page->getHandle());
}

void tst_FxUIStackedWidget::setCurrentWidgetOfAnUnknownViewChangesNothing()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 3);
    stack.setCurrentIndex(1);
    CFxUILabel unknown;
    stack.setCurrentWidget(&unknown);
    stack.setCurrentWidget(nullptr);
    QCOMPARE(stack.currentIndex(), 1);
    QCOMPARE(Widget(stack)->currentIndex(), 1);
}

void tst_FxUIStackedWidget::deletedPageStaysListed()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 1);
    auto *page = new CFxUILabel;
    auto *last = new CFxUILabel;
    stack.addTab(page, One);
    stack.addTab(last, Two);
    const auto *const address = page;
    delete page;
    FlushDeferredDeletes();
    QCOMPARE(Widget(stack)->count(), 2);
    QCOMPARE(stack.indexOf(last), 2);
    QCOMPARE(Probe::Titles(stack).size(), 3);
    // The record compares the address and never looks behind it.
    stack.setCurrentWidget(const_cast<CFxUILabel *>(address));
    QCOMPARE(stack.currentIndex(), 1);
    stack.setCurrentIndex(2); // no tab for it any more
    QCOMPARE(stack.currentIndex(), 2);
    QCOMPARE(Widget(stack)->currentIndex(), 1);
}

void tst_FxUIStackedWidget::pagesGoWithTheWidget()
{
    auto stack = std::make_unique<CFxUIStackedWidget>();
    AddPages(*stack, 2);
    const QPointer<QWidget> first(Widget(*stack)->widget(0));
    const QPointer<QWidget> second(Widget(*stack)->widget(1));
    stack.reset();
    FlushDeferredDeletes();
    QVERIFY(!first);
    QVERIFY(!second);
}

void tst_FxUIStackedWidget::widgetDeletedByQtLeavesTheRecord()
{
    CFxUIStackedWidget stack;
    AddPages(stack, 3);
    auto *page = static_cast<CFxUIBaseView *>(stack.children().at(1));
    stack.setCurrentIndex(1);
    delete stack.getHandle();
    QVERIFY(!page->getHandle()); // Qt deletes the pages with their tabs
    QCOMPARE(stack.currentIndex(), 1);
    QCOMPARE(stack.indexOf(page), 1);
    stack.setCurrentIndex(2);
    QCOMPARE(stack.currentIndex(), 2);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIStackedWidget>(argc, argv);
}

#include "tst_FxUIStackedWidget.moc"
