// A dock widget has no widget behind it; this is the contract of the controls, as far as that goes.

#include "UI/FxUIDockWidget.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIDockWidgetImpl.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QDockWidget>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIDockWidget>);
static_assert(!std::is_copy_constructible_v<CFxUIDockWidget>);
static_assert(!std::is_convertible_v<int, CFxUIDockWidget>);

namespace {

/// Reads the title, which has no getter.
class Probe : public CFxUIDockWidgetImpl {
public:
    static QString Title(const CFxUIDockWidget &dock)
    {
        return static_cast<CFxUIDockWidgetImpl *>(dock.impl)->*(&Probe::m_title);
    }
};

class EventView : public CFxUIBaseView {
public:
    void showEvent(CFxUIShowEvent *event) override { shown.append(event); }

    void hideEvent(CFxUIHideEvent *event) override { hidden.append(event); }

    QList<CFxUIShowEvent *> shown;
    QList<CFxUIHideEvent *> hidden;
};

} // namespace

class tst_FxUIDockWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasNoHandle_data();
    void hasNoHandle();
    void frontendClassNameIsQDockWidget();
    void stateIsKeptWithoutWidget();
    void setWidgetStoresAndNeitherOwnsNorAdopts();
    void setTitleStoresOnly();
    void raiseWithoutWidgetDoesNothing();
    void raiseRaisesADockWidgetOfTheHost();
    void raiseLeavesAnotherWidgetAlone();
    void showEventReachesTheContainedViewOnce();
    void hideEventReachesTheContainedViewOnce();
    void eventsWithoutContainedViewDoNothing();
    void addViewMakesAChildAlone();
    void titleAndAreaReachNoWidget();
    void hostsWidgetGoesWithTheEventLoop();
    void dockWidgetInALayoutTakesNoPlace();
};

void tst_FxUIDockWidget::hasNoHandle_data()
{
    QTest::addColumn<int>("area");
    QTest::newRow("none") << 0;
    QTest::newRow("left") << 1;
    QTest::newRow("negative") << -1;
    QTest::newRow("any number") << 12345;
}

void tst_FxUIDockWidget::hasNoHandle()
{
    QFETCH(int, area);
    CFxUIDockWidget dock(area);
    QVERIFY(dock.impl);
    QVERIFY(!dock.getHandle());
    QVERIFY(!dock.widget());
    QVERIFY(!dock.parent());
    QVERIFY(Probe::Title(dock).isNull());
}

void tst_FxUIDockWidget::frontendClassNameIsQDockWidget()
{
    const CFxUIDockWidget dock(1);
    QCOMPARE(dock.impl->GetFrontendClassName(), QStringLiteral("QDockWidget"));
}

void tst_FxUIDockWidget::stateIsKeptWithoutWidget()
{
    CFxUIDockWidget dock(1);
    int shown = 0;
    dock.aboutToShow().connect([&shown] { ++shown; });
    dock.setEnabled(false);
    dock.setVisible(true);
    dock.setPreferableSize(30, 40);
    dock.setBorderWidth(1);
    dock.setMinimumWidth(5);
    dock.setFocus();
    dock.update();
    QVERIFY(!dock.isEnabled());
    QVERIFY(dock.isVisible());
    QCOMPARE(dock.width(), 30);
    QCOMPARE(dock.height(), 40);
    QCOMPARE(shown, 1);
    dock.blockSignals(true);
    dock.setVisible(true);
    QCOMPARE(shown, 1);
}

void tst_FxUIDockWidget::setWidgetStoresAndNeitherOwnsNorAdopts()
{
    auto dock = std::make_unique<CFxUIDockWidget>(1);
    CFxUILabel view;
    dock->setWidget(&view);
    QCOMPARE(dock->widget(), &view);
    QCOMPARE(const_cast<const CFxUIDockWidget &>(*dock).widget(), &view);
    QVERIFY(!view.parent());
    QVERIFY(dock->children().isEmpty());
    dock->setWidget(nullptr);
    QVERIFY(!dock->widget());
    dock->setWidget(&view);
    dock.reset();
    QVERIFY(view.getHandle());
}

void tst_FxUIDockWidget::setTitleStoresOnly()
{
    CFxUIDockWidget dock(1);
    dock.setTitle(QStringLiteral("x"));
    QCOMPARE(Probe::Title(dock), QStringLiteral("x"));
    QVERIFY(dock.objectName().isEmpty());
}

void tst_FxUIDockWidget::raiseWithoutWidgetDoesNothing()
{
    CFxUIDockWidget dock(1);
    dock.raise();
    QVERIFY(!dock.getHandle());
}

void tst_FxUIDockWidget::raiseRaisesADockWidgetOfTheHost()
{
    QWidget window;
    auto *pane = new QDockWidget(&window);
    auto *other = new QWidget(&window);
    CFxUIDockWidget dock(1);
    dock.setHandle(pane);
    QCOMPARE(window.children().last(), other);
    dock.raise();
    QCOMPARE(window.children().last(), pane);
}

void tst_FxUIDockWidget::raiseLeavesAnotherWidgetAlone()
{
    QWidget window;
    auto *pane = new QWidget(&window);
    auto *other = new QWidget(&window);
    CFxUIDockWidget dock(1);
    dock.setHandle(pane);
    dock.raise();
    QCOMPARE(window.children().last(), other);
}

void tst_FxUIDockWidget::showEventReachesTheContainedViewOnce()
{
    CFxUIDockWidget dock(1);
    EventView view;
    dock.setWidget(&view);
    CFxUIShowEvent event;
    static_cast<CFxUIBaseView &>(dock).showEvent(&event);
    QCOMPARE(view.shown, QList<CFxUIShowEvent *>({ &event }));
    QVERIFY(view.hidden.isEmpty());
}

void tst_FxUIDockWidget::hideEventReachesTheContainedViewOnce()
{
    CFxUIDockWidget dock(1);
    EventView view;
    dock.setWidget(&view);
    CFxUIHideEvent event;
    static_cast<CFxUIBaseView &>(dock).hideEvent(&event);
    QCOMPARE(view.hidden, QList<CFxUIHideEvent *>({ &event }));
    QVERIFY(view.shown.isEmpty());
}

void tst_FxUIDockWidget::eventsWithoutContainedViewDoNothing()
{
    CFxUIDockWidget dock(1);
    EventView view;
    dock.setWidget(&view);
    dock.setWidget(nullptr);
    CFxUIShowEvent shown;
    CFxUIHideEvent hidden;
    dock.showEvent(&shown);
    dock.hideEvent(&hidden);
    QVERIFY(view.shown.isEmpty());
    QVERIFY(view.hidden.isEmpty());
}

void tst_FxUIDockWidget::addViewMakesAChildAlone()
{
    CFxUIDockWidget dock(1);
    auto *child = new CFxUILabel;
    auto *inserted = new CFxUILabel;
    dock.addView(child);
    dock.insertView(inserted, 0);
    QCOMPARE(dock.children(), QList<CFxUIObject *>({ child, inserted }));
    QVERIFY(!dock.widget());
    QVERIFY(!static_cast<QWidget *>(child->getHandle())->parentWidget());
}

void tst_FxUIDockWidget::titleAndAreaReachNoWidget()
{
    QDockWidget pane;
    CFxUILabel content;
    CFxUIDockWidget dock(2);
    dock.setHandle(&pane);
    dock.setTitle(QStringLiteral("x"));
    dock.setWidget(&content);
    QVERIFY(pane.windowTitle().isEmpty());
    QVERIFY(!pane.widget());
    dock.setHandle(nullptr);
}

void tst_FxUIDockWidget::hostsWidgetGoesWithTheEventLoop()
{
    auto *dock = new CFxUIDockWidget(1);
    const QPointer<QDockWidget> pane(new QDockWidget);
    dock->setHandle(pane);
    delete dock;
    QVERIFY(pane);
    FlushDeferredDeletes();
    QVERIFY(!pane);
}

void tst_FxUIDockWidget::dockWidgetInALayoutTakesNoPlace()
{
    auto layout = std::make_unique<CFxUIVerticalLayout>();
    auto *dock = new CFxUIDockWidget(1);
    layout->addView(dock);
    QCOMPARE(dock->parent(), layout.get());
    delete dock;
    QVERIFY(layout->children().isEmpty());
    layout->addView(new CFxUIDockWidget(1));
    layout.reset();
    FlushDeferredDeletes();
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDockWidget>(argc, argv);
}

#include "tst_FxUIDockWidget.moc"
