// What a stacked widget emits, how often and in which order, and what a slot sees.

#include "UI/FxUIStackedWidget.h"

#include "support/EventRecorder.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

/// A stacked widget of three pages, with a recorder on all its signals and on Qt's. A line ends
/// with the index as the object knows it and the page that Qt shows.
class RecordedStack {
public:
    RecordedStack()
    {
        for (int i = 0; i < 3; ++i)
            stack.addTab(new CFxUILabel, QString::number(i));
        widget->resize(400, 200);
        stack.setVisible(true);
        recorder.ListenToQt("Qt currentChanged", widget, &QTabWidget::currentChanged);
        recorder.Listen("currentChanged", stack.currentChanged());
        recorder.Listen("tabCloseRequested", stack.tabCloseRequested());
        recorder.Listen("tabBarClicked", stack.tabBarClicked());
        recorder.Listen("tabBarDoubleClicked", stack.tabBarDoubleClicked());
    }

    QString State() const
    {
        return QStringLiteral("%1/%2").arg(stack.currentIndex()).arg(widget->currentIndex());
    }

    void ClickTab(int index)
    {
        QTest::mouseClick(widget->tabBar(), Qt::LeftButton, Qt::NoModifier,
                          widget->tabBar()->tabRect(index).center());
    }

    CFxUIStackedWidget stack;
    QTabWidget *widget = qobject_cast<QTabWidget *>(stack.getHandle());
    CFxUIStackedWidgetImpl *impl = static_cast<CFxUIStackedWidgetImpl *>(stack.impl);
    EventRecorder recorder { [this] { return State(); } };
};

class tst_FxUIStackedWidgetEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setCurrentIndexTellsQtThenEmits();
    void setCurrentIndexAgainEmitsNothing();
    void setCurrentIndexTellsQtAlsoOfTheIndexItHas();
    void setCurrentIndexFromASlotNests();
    void blockedSignalsLetIndexAndPageChange();
    void clickOnATabReachesNothing();
    void keysOnTheTabBarReachNothing();
    void doubleClickAndCloseButtonReachNothing();
    void onPageActivatedStoresAndEmits();
    void onTabClickedActivatedEmitsTwice();
    void slotOfTheFirstEmissionChangesTheSecond();
    void slotOfTheFirstEmissionSilencesTheSecond();
    void handlersHaveNoTestOfTheRange();
    void handlersStoreWhileBlocked();
};

void tst_FxUIStackedWidgetEvents::setCurrentIndexTellsQtThenEmits()
{
    RecordedStack stack;
    stack.stack.setCurrentIndex(2);
    QCOMPARE(stack.recorder.Take(),
             QStringList({ QStringLiteral("Qt currentChanged(2) 0/2"),
                           QStringLiteral("currentChanged(2) 2/2") }));
}

void tst_FxUIStackedWidgetEvents::setCurrentIndexAgainEmitsNothing()
{
    RecordedStack stack;
    stack.stack.setCurrentIndex(2);
    stack.recorder.Take();
    stack.stack.setCurrentIndex(2);
    QCOMPARE(stack.recorder.Take(), QStringList());
    QCOMPARE(stack.State(), QStringLiteral("2/2"));
}

void tst_FxUIStackedWidgetEvents::setCurrentIndexTellsQtAlsoOfTheIndexItHas()
{
    RecordedStack stack;
    stack.ClickTab(1);
    stack.recorder.Take();
    stack.stack.setCurrentIndex(0);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("Qt currentChanged(0) 0/0") }));
}

void tst_FxUIStackedWidgetEvents::setCurrentIndexFromASlotNests()
{
    RecordedStack stack;
    stack.stack.currentChanged().connect([&](int index) {
        if (index == 1)
            stack.stack.setCurrentIndex(2);
    });
    stack.stack.setCurrentIndex(1);
    QCOMPARE(stack.recorder.Take(),
             QStringList({ QStringLiteral("Qt currentChanged(1) 0/1"),
                           QStringLiteral("currentChanged(1) 1/1"),
                           QStringLiteral("Qt currentChanged(2) 1/2"),
                           QStringLiteral("currentChanged(2) 2/2") }));
}

void tst_FxUIStackedWidgetEvents::blockedSignalsLetIndexAndPageChange()
{
    RecordedStack stack;
    stack.stack.blockSignals(true);
    stack.stack.setCurrentIndex(1);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("Qt currentChanged(1) 0/1") }));
    QCOMPARE(stack.State(), QStringLiteral("1/1"));
}

void tst_FxUIStackedWidgetEvents::clickOnATabReachesNothing()
{
    RecordedStack stack;
    stack.ClickTab(2);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("Qt currentChanged(2) 0/2") }));
}

void tst_FxUIStackedWidgetEvents::keysOnTheTabBarReachNothing()
{
    RecordedStack stack;
    QTest::keyClick(stack.widget->tabBar(), Qt::Key_Right);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("Qt currentChanged(1) 0/1") }));
}

void tst_FxUIStackedWidgetEvents::doubleClickAndCloseButtonReachNothing()
{
    RecordedStack stack;
    QTest::mouseDClick(stack.widget->tabBar(), Qt::LeftButton, Qt::NoModifier,
                       stack.widget->tabBar()->tabRect(0).center());
    stack.widget->setTabsClosable(true);
    int requests = 0;
    connect(stack.widget, &QTabWidget::tabCloseRequested, this, [&requests] { ++requests; });
    QWidget *button = stack.widget->tabBar()->tabButton(0, QTabBar::RightSide);
    QVERIFY(button);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(requests, 1);
    QCOMPARE(stack.recorder.Take(), QStringList());
}

void tst_FxUIStackedWidgetEvents::onPageActivatedStoresAndEmits()
{
    RecordedStack stack;
    stack.impl->OnPageActivated(0);
    QCOMPARE(stack.recorder.Take(), QStringList());
    stack.impl->OnPageActivated(1);
    stack.impl->OnPageActivated(1);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("currentChanged(1) 1/0") }));
}

void tst_FxUIStackedWidgetEvents::onTabClickedActivatedEmitsTwice()
{
    RecordedStack stack;
    stack.impl->OnTabClickedActivated(0);
    QCOMPARE(stack.recorder.Take(), QStringList());
    stack.impl->OnTabClickedActivated(2);
    QCOMPARE(stack.recorder.Take(),
             QStringList({ QStringLiteral("tabBarClicked(2) 2/0"),
                           QStringLiteral("currentChanged(2) 2/0") }));
}

void tst_FxUIStackedWidgetEvents::slotOfTheFirstEmissionChangesTheSecond()
{
    RecordedStack stack;
    stack.stack.tabBarClicked().connect([&](int) { stack.stack.setCurrentIndex(1); });
    stack.impl->OnTabClickedActivated(2);
    QCOMPARE(stack.recorder.Take(),
             QStringList({ QStringLiteral("tabBarClicked(2) 2/0"),
                           QStringLiteral("Qt currentChanged(1) 2/1"),
                           QStringLiteral("currentChanged(1) 1/1"),
                           QStringLiteral("currentChanged(1) 1/1") }));
}

void tst_FxUIStackedWidgetEvents::slotOfTheFirstEmissionSilencesTheSecond()
{
    RecordedStack stack;
    stack.stack.tabBarClicked().connect([&](int) { stack.stack.blockSignals(true); });
    stack.impl->OnTabClickedActivated(2);
    QCOMPARE(stack.recorder.Take(), QStringList({ QStringLiteral("tabBarClicked(2) 2/0") }));
    QCOMPARE(stack.State(), QStringLiteral("2/0"));
}

void tst_FxUIStackedWidgetEvents::handlersHaveNoTestOfTheRange()
{
    RecordedStack stack;
    stack.impl->OnPageActivated(7);
    stack.impl->OnTabClickedActivated(-1);
    QCOMPARE(stack.recorder.Take(),
             QStringList({ QStringLiteral("currentChanged(7) 7/0"),
                           QStringLiteral("tabBarClicked(-1) -1/0"),
                           QStringLiteral("currentChanged(-1) -1/0") }));
}

void tst_FxUIStackedWidgetEvents::handlersStoreWhileBlocked()
{
    RecordedStack stack;
    stack.stack.blockSignals(true);
    stack.impl->OnPageActivated(1);
    QCOMPARE(stack.State(), QStringLiteral("1/0"));
    stack.impl->OnTabClickedActivated(2);
    QCOMPARE(stack.State(), QStringLiteral("2/0"));
    QCOMPARE(stack.recorder.Take(), QStringList());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIStackedWidgetEvents>(argc, argv);
}

#include "tst_FxUIStackedWidgetEvents.moc"
