#include "UI/FxUIScrollableArea.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUILabel.h"
#include "UI/Impl/FxUIScrollableAreaImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include <functional>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIScrollableArea>);
static_assert(!std::is_copy_constructible_v<CFxUIScrollableArea>);

namespace {

QScrollArea *Widget(const CFxUIScrollableArea &area)
{
    return qobject_cast<QScrollArea *>(area.getHandle());
}

QWidget *WidgetOf(const CFxUIBaseView &view)
{
    return qobject_cast<QWidget *>(view.getHandle());
}

/// An area in a window on the screen, whose content is wider and much higher than it is, with a row
/// of 20 pixels at 500 from the top.
class ScrolledArea {
public:
    ScrolledArea()
    {
        area->addView(content);
        content->setMinimumWidth(1000);
        content->setMinimumHeight(3000);
        rowWidget->setParent(WidgetOf(*content));
        rowWidget->setGeometry(0, 500, 50, 20);
        // A child, so that no window manager has a say in its size.
        widget->setParent(&window);
        widget->setGeometry(0, 0, 200, 200);
        area->setVisible(true);
        window.show();
        QCoreApplication::processEvents();
        horizontal->setValue(100);
    }

    ~ScrolledArea() { FlushDeferredDeletes(); }

    int ViewportHeight() const { return widget->viewport()->height(); }

    QWidget window;
    std::unique_ptr<CFxUIScrollableArea> area = std::make_unique<CFxUIScrollableArea>();
    CFxUILabel *content = new CFxUILabel;
    std::unique_ptr<CFxUILabel> row = std::make_unique<CFxUILabel>();
    QWidget *rowWidget = WidgetOf(*row);
    QScrollArea *widget = Widget(*area);
    QScrollBar *horizontal = widget->horizontalScrollBar();
    QScrollBar *vertical = widget->verticalScrollBar();
};

using Deletion = std::function<void(ScrolledArea &)>;

} // namespace

Q_DECLARE_METATYPE(Deletion)

class tst_FxUIScrollableArea : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatEveryControlDoes();
    void widgetIsAScrollAreaWithItsStyleSheet();
    void flagsStartFalseWhileTheBarsAreAsNeeded();
    void horizontalScrollingIsABarAlwaysOrNever();
    void horizontalScrollingOffHidesTheBarOfWideContent();
    void verticalScrollingIsStoredOnly();
    void flagsAreKeptWithoutHandle();
    void addViewShowsTheChildResizable();
    void addViewAgainReplacesTheWidgetAndKeepsTheChild();
    void addViewOfAChildOfAnotherViewShowsNothing();
    void addViewWithoutWidgetMakesAChildAlone();
    void addViewWithoutHandleMakesAChildAlone();
    void insertViewMakesAChildAlone();
    void removeViewLeavesTheWidgetInTheArea();
    void scrollToARowBelowShowsItWithItsMaximumHeightAsMargin();
    void scrollToARowAboveShowsItWithItsMaximumHeightAsMargin();
    void scrollToAVisibleRowMovesTheLeftEdgeAlone();
    void scrollToARowWithoutMaximumHeightPutsItInTheMiddle_data();
    void scrollToARowWithoutMaximumHeightPutsItInTheMiddle();
    void scrollToRunsPendingEventsFirst();
    void scrollToAForeignViewMovesTheLeftEdgeAlone();
    void scrollToWithoutWidgetDoesNothing();
    void scrollToWithoutContentDoesNotCrash();
    void scrollToSurvivesWhatEventsDelete_data();
    void scrollToSurvivesWhatEventsDelete();
};

void tst_FxUIScrollableArea::doesWhatEveryControlDoes()
{
    ControlContract([] { return new CFxUIScrollableArea; });
    if (QTest::currentTestFailed())
        return;
}

void tst_FxUIScrollableArea::widgetIsAScrollAreaWithItsStyleSheet()
{
    const CFxUIScrollableArea area;
    QVERIFY(Widget(area));
    QCOMPARE(Widget(area)->metaObject()->className(), "QScrollArea");
    QCOMPARE(Widget(area)->styleSheet(), QStringLiteral("QScrollView, QScrollArea { }"));
    QCOMPARE(area.impl->GetFrontendClassName(), QStringLiteral("QScrollView"));
    QVERIFY(!Widget(area)->widget());
}

void tst_FxUIScrollableArea::flagsStartFalseWhileTheBarsAreAsNeeded()
{
    const CFxUIScrollableArea area;
    QVERIFY(!area.horizontalScrollingEnabled());
    QVERIFY(!area.verticalScrollingEnabled());
    QCOMPARE(Widget(area)->horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QCOMPARE(Widget(area)->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

void tst_FxUIScrollableArea::horizontalScrollingIsABarAlwaysOrNever()
{
    CFxUIScrollableArea area;
    area.setHorizontalScrollingEnabled(true);
    QVERIFY(area.horizontalScrollingEnabled());
    QCOMPARE(Widget(area)->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    area.setHorizontalScrollingEnabled(false);
    QVERIFY(!area.horizontalScrollingEnabled());
    QCOMPARE(Widget(area)->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
}

void tst_FxUIScrollableArea::horizontalScrollingOffHidesTheBarOfWideContent()
{
    ScrolledArea scrolled;
    QVERIFY(scrolled.horizontal->isVisible());
    scrolled.area->setHorizontalScrollingEnabled(false);
    QVERIFY(!scrolled.horizontal->isVisible());
}

void tst_FxUIScrollableArea::verticalScrollingIsStoredOnly()
{
    ScrolledArea scrolled;
    scrolled.area->setVerticalScrollingEnabled(true);
    QVERIFY(scrolled.area->verticalScrollingEnabled());
    QCOMPARE(scrolled.widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    scrolled.area->setVerticalScrollingEnabled(false);
    QVERIFY(!scrolled.area->verticalScrollingEnabled());
    QCOMPARE(scrolled.widget->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(scrolled.vertical->isVisible());
}

void tst_FxUIScrollableArea::flagsAreKeptWithoutHandle()
{
    CFxUIScrollableArea area;
    delete area.getHandle();
    area.setHorizontalScrollingEnabled(true);
    area.setVerticalScrollingEnabled(true);
    QVERIFY(area.horizontalScrollingEnabled());
    QVERIFY(area.verticalScrollingEnabled());
}

void tst_FxUIScrollableArea::addViewShowsTheChildResizable()
{
    CFxUIScrollableArea area;
    auto *child = new CFxUILabel;
    QVERIFY(!Widget(area)->widgetResizable());
    area.addView(child, 7.0f);
    QCOMPARE(Widget(area)->widget(), WidgetOf(*child));
    QVERIFY(Widget(area)->widgetResizable());
    QCOMPARE(WidgetOf(*child)->sizePolicy(),
             QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QCOMPARE(child->parent(), &area);
}

void tst_FxUIScrollableArea::addViewAgainReplacesTheWidgetAndKeepsTheChild()
{
    CFxUIScrollableArea area;
    auto *first = new CFxUILabel;
    auto *second = new CFxUILabel;
    area.addView(first);
    area.addView(second);
    QVERIFY(!first->getHandle());
    QCOMPARE(Widget(area)->widget(), WidgetOf(*second));
    QCOMPARE(area.children(), QList<CFxUIObject *>({ first, second }));
    first->setText(QStringLiteral("still a child"));
    QCOMPARE(first->text(), QStringLiteral("still a child"));
}

void tst_FxUIScrollableArea::addViewOfAChildOfAnotherViewShowsNothing()
{
    CFxUIScrollableArea area;
    CFxUIBaseView other;
    auto *child = new CFxUILabel;
    child->setParent(&other);
    area.addView(child);
    QVERIFY(!Widget(area)->widget());
    QCOMPARE(child->parent(), &other);
}

void tst_FxUIScrollableArea::addViewWithoutWidgetMakesAChildAlone()
{
    CFxUIScrollableArea area;
    auto *bare = new CFxUIDockWidget(0);
    area.addView(bare);
    QVERIFY(!Widget(area)->widget());
    QVERIFY(!Widget(area)->widgetResizable());
    QCOMPARE(bare->parent(), &area);

    QButtonGroup group; // no widget either
    auto *grouped = new CFxUIDockWidget(0);
    grouped->setHandle(&group);
    area.addView(grouped);
    QVERIFY(!Widget(area)->widget());
    grouped->setHandle(nullptr);
}

void tst_FxUIScrollableArea::addViewWithoutHandleMakesAChildAlone()
{
    CFxUIScrollableArea area;
    delete area.getHandle();
    auto *child = new CFxUILabel;
    area.addView(child);
    QCOMPARE(child->parent(), &area);
    QVERIFY(!WidgetOf(*child)->parentWidget());
}

void tst_FxUIScrollableArea::insertViewMakesAChildAlone()
{
    CFxUIScrollableArea area;
    auto *child = new CFxUILabel;
    area.insertView(child, 0, 1.0f);
    QCOMPARE(child->parent(), &area);
    QVERIFY(!Widget(area)->widget());
    QVERIFY(!Widget(area)->widgetResizable());
}

void tst_FxUIScrollableArea::removeViewLeavesTheWidgetInTheArea()
{
    CFxUIScrollableArea area;
    CFxUILabel child;
    area.addView(&child);
    area.removeView(&child);
    QVERIFY(!child.parent());
    QCOMPARE(Widget(area)->widget(), WidgetOf(child));
}

void tst_FxUIScrollableArea::scrollToARowBelowShowsItWithItsMaximumHeightAsMargin()
{
    ScrolledArea scrolled;
    scrolled.row->setMaximumHeight(30);
    scrolled.area->scrollTo(scrolled.row.get());
    QCOMPARE(scrolled.vertical->value(), 500 + 20 + 30 - scrolled.ViewportHeight());
    QCOMPARE(scrolled.horizontal->value(), 0);
}

void tst_FxUIScrollableArea::scrollToARowAboveShowsItWithItsMaximumHeightAsMargin()
{
    ScrolledArea scrolled;
    scrolled.row->setMaximumHeight(30);
    scrolled.vertical->setValue(2000);
    scrolled.area->scrollTo(scrolled.row.get());
    QCOMPARE(scrolled.vertical->value(), 500 - 30);
    QCOMPARE(scrolled.horizontal->value(), 0);
}

void tst_FxUIScrollableArea::scrollToAVisibleRowMovesTheLeftEdgeAlone()
{
    ScrolledArea scrolled;
    scrolled.row->setMaximumHeight(30);
    scrolled.vertical->setValue(450);
    scrolled.horizontal->setValue(20);
    scrolled.area->scrollTo(scrolled.row.get());
    QCOMPARE(scrolled.vertical->value(), 450);
    QCOMPARE(scrolled.horizontal->value(), 0);
}

void tst_FxUIScrollableArea::scrollToARowWithoutMaximumHeightPutsItInTheMiddle_data()
{
    QTest::addColumn<int>("from");
    QTest::newRow("from above") << 0;
    QTest::newRow("from below") << 2000;
}

void tst_FxUIScrollableArea::scrollToARowWithoutMaximumHeightPutsItInTheMiddle()
{
    QFETCH(int, from);
    ScrolledArea scrolled;
    QCOMPARE(scrolled.rowWidget->maximumHeight(), QWIDGETSIZE_MAX);
    scrolled.vertical->setValue(from);
    scrolled.area->scrollTo(scrolled.row.get());
    const int middle = scrolled.vertical->value() + scrolled.ViewportHeight() / 2;
    QVERIFY(qAbs(middle - (500 + 20 / 2)) <= 1);
}

void tst_FxUIScrollableArea::scrollToRunsPendingEventsFirst()
{
    ScrolledArea scrolled;
    scrolled.row->setMaximumHeight(30);
    QMetaObject::invokeMethod(
        scrolled.rowWidget, [&] { scrolled.rowWidget->move(0, 1000); }, Qt::QueuedConnection);
    scrolled.area->scrollTo(scrolled.row.get());
    QCOMPARE(scrolled.vertical->value(), 1000 + 20 + 30 - scrolled.ViewportHeight());
}

void tst_FxUIScrollableArea::scrollToAForeignViewMovesTheLeftEdgeAlone()
{
    ScrolledArea scrolled;
    scrolled.vertical->setValue(70);
    CFxUILabel foreign;
    scrolled.area->scrollTo(&foreign);
    QCOMPARE(scrolled.vertical->value(), 70);
    QCOMPARE(scrolled.horizontal->value(), 0);
}

void tst_FxUIScrollableArea::scrollToWithoutWidgetDoesNothing()
{
    ScrolledArea scrolled;
    bool eventsRan = false;
    QMetaObject::invokeMethod(
        scrolled.widget, [&eventsRan] { eventsRan = true; }, Qt::QueuedConnection);
    CFxUIDockWidget bare(0);
    scrolled.area->scrollTo(nullptr);
    scrolled.area->scrollTo(&bare);
    QCOMPARE(scrolled.horizontal->value(), 100);
    CFxUIScrollableArea without;
    delete without.getHandle();
    without.scrollTo(scrolled.row.get());
    QVERIFY(!eventsRan);
}

void tst_FxUIScrollableArea::scrollToWithoutContentDoesNotCrash()
{
    CFxUIScrollableArea area;
    CFxUILabel row;
    area.scrollTo(&row);
    QCOMPARE(Widget(area)->horizontalScrollBar()->value(), 0);
}

void tst_FxUIScrollableArea::scrollToSurvivesWhatEventsDelete_data()
{
    QTest::addColumn<Deletion>("deletion");
    QTest::newRow("the area's widget")
        << Deletion([](ScrolledArea &scrolled) { delete scrolled.widget; });
    QTest::newRow("the area") << Deletion([](ScrolledArea &scrolled) { scrolled.area.reset(); });
    QTest::newRow("the content") << Deletion(
        [](ScrolledArea &scrolled) { delete scrolled.content->getHandle(); });
    QTest::newRow("the row's widget")
        << Deletion([](ScrolledArea &scrolled) { delete scrolled.rowWidget; });
    QTest::newRow("the row") << Deletion([](ScrolledArea &scrolled) { scrolled.row.reset(); });
}

void tst_FxUIScrollableArea::scrollToSurvivesWhatEventsDelete()
{
    QFETCH(Deletion, deletion);
    ScrolledArea scrolled;
    bool ran = false;
    QMetaObject::invokeMethod(
        qApp,
        [&] {
            deletion(scrolled);
            ran = true;
        },
        Qt::QueuedConnection);
    scrolled.area->scrollTo(scrolled.row.get());
    QVERIFY(ran);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIScrollableArea>(argc, argv);
}

#include "tst_FxUIScrollableArea.moc"
