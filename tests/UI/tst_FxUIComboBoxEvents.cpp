#include "UI/FxUIComboBox.h"

#include "support/TestMain.h"
#include "UI/ComboBoxTools.h"

#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>

#include <functional>

using namespace ComboBoxTools;

namespace {

using UserAction = std::function<void(QComboBox *)>;

// Moves the widget behind the record's back.
void MoveWidgetAlone(const CFxUIComboBox &box, int index)
{
    const QSignalBlocker blocker(Widget(box));
    Widget(box)->setCurrentIndex(index);
}

void TurnTheWheelDown(QComboBox *widget)
{
    const QPointF position(5, 5);
    QWheelEvent wheel(position, widget->mapToGlobal(position.toPoint()), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &wheel);
}

// A release within the double click interval after a popup has opened counts as the end of the
// click that opened it.
class NoDoubleClickInterval {
public:
    NoDoubleClickInterval() { QApplication::setDoubleClickInterval(0); }

    ~NoDoubleClickInterval() { QApplication::setDoubleClickInterval(m_interval); }

private:
    const int m_interval = QApplication::doubleClickInterval();
};

// Opens the list with a click and clicks the second item.
void ClickInThePopup(QComboBox *widget)
{
    const NoDoubleClickInterval guard;
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    QTest::mouseClick(widget, Qt::LeftButton);
    QWidget *viewport = widget->view()->viewport();
    QTRY_VERIFY(viewport->isVisible());
    QCoreApplication::processEvents();
    const QModelIndex item = widget->model()->index(1, widget->modelColumn());
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::NoModifier,
                      widget->view()->visualRect(item).topLeft() + QPoint(5, 5));
    QTRY_VERIFY(!viewport->isVisible());
}

void ChooseInThePopupByKeys(QComboBox *widget)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    widget->showPopup();
    QTRY_VERIFY(widget->view()->isVisible());
    QTest::keyClick(widget->view(), Qt::Key_Down);
    QTest::keyClick(widget->view(), Qt::Key_Return);
    QTRY_VERIFY(!widget->view()->isVisible());
}

} // namespace

Q_DECLARE_METATYPE(UserAction)

class tst_FxUIComboBoxEvents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstItemIsReportedByTheWidget();
    void firstItemInsertedIsReportedByTheWidget();
    void furtherItemsAreSilent();
    void setCurrentIndexEmitsBeforeTheWidgetChanges();
    void setCurrentIndexOutsideTheItemsDoesNothing_data();
    void setCurrentIndexOutsideTheItemsDoesNothing();
    void setCurrentIndexOnAnEmptyBoxDoesNothing();
    void setCurrentIndexWithTheSameIndexOnlyDrivesTheWidget();
    void usersChoiceEmitsAllThreeBehindTheWidgetsChange_data();
    void usersChoiceEmitsAllThreeBehindTheWidgetsChange();
    void usersChoiceOfTheCurrentItemIsSilent();
    void itemsWithTheSameTextAreReportedAlike();
    void insertionBeforeTheCurrentRowIsReported();
    void insertionBehindTheCurrentRowIsSilent();
    void removalBeforeTheCurrentRowIsReported();
    void removalBehindTheCurrentRowIsSilent();
    void removalOfTheCurrentItemWithASuccessorKeepsItsText();
    void removalOfTheCurrentItemAtTheEndIsReported();
    void removalOfTheOnlyItemKeepsIndexAndText();
    void clearKeepsIndexAndText();
    void clearEmptiesTheItemsBeforeTheWidget();
    void firstItemAfterClearAtIndex0IsSilentAndTheTextStays();
    void firstItemAfterClearAtAnotherIndexIsReported();
    void blockedBoxFollowsInSilence();
    void handlerPassesOverIndicesThatNoItemHas_data();
    void handlerPassesOverIndicesThatNoItemHas();
};

void tst_FxUIComboBoxEvents::firstItemIsReportedByTheWidget()
{
    Watched watched;
    watched.box.addItem(A);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(0) 0 'a' widget 0 'a'",
                 "currentIndexChanged(0) 0 'a' widget 0 'a'",
                 "currentStringChanged('a') 0 'a' widget 0 'a'",
                 "Qt.currentIndexChanged(0) 0 'a' widget 0 'a'",
             }));
}

void tst_FxUIComboBoxEvents::firstItemInsertedIsReportedByTheWidget()
{
    Watched watched;
    watched.box.insertItem(0, Icon(), A);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(0) 0 'a' widget 0 'a'",
                 "currentIndexChanged(0) 0 'a' widget 0 'a'",
                 "currentStringChanged('a') 0 'a' widget 0 'a'",
                 "Qt.currentIndexChanged(0) 0 'a' widget 0 'a'",
             }));
}

void tst_FxUIComboBoxEvents::furtherItemsAreSilent()
{
    Watched watched;
    watched.box.addItem(A);
    watched.log.Take();
    watched.box.addItem(B);
    watched.box.addItem(Icon(), C);
    watched.box.insertItem(3, A);
    watched.box.insertItems(4, { B, C });
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIComboBoxEvents::setCurrentIndexEmitsBeforeTheWidgetChanges()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "currentStringChanged('b') 1 'b' widget 0 'a'",
                 "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'",
             }));
}

void tst_FxUIComboBoxEvents::setCurrentIndexOutsideTheItemsDoesNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("count") << 3;
}

void tst_FxUIComboBoxEvents::setCurrentIndexOutsideTheItemsDoesNothing()
{
    QFETCH(int, index);
    WatchedABC watched;
    watched.box.setCurrentIndex(index);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 'a' widget 0 'a'"));
}

void tst_FxUIComboBoxEvents::setCurrentIndexOnAnEmptyBoxDoesNothing()
{
    Watched watched;
    watched.box.setCurrentIndex(0);
    watched.box.setCurrentIndex(-1);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("-1 '' widget -1 ''"));
}

void tst_FxUIComboBoxEvents::setCurrentIndexWithTheSameIndexOnlyDrivesTheWidget()
{
    WatchedABC watched;
    MoveWidgetAlone(watched.box, 2);
    watched.box.setCurrentIndex(0);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(0) 0 'a' widget 0 'a'" }));
    watched.box.setCurrentIndex(0);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIComboBoxEvents::usersChoiceEmitsAllThreeBehindTheWidgetsChange_data()
{
    QTest::addColumn<UserAction>("act");
    QTest::newRow("arrow key") << UserAction(
        [](QComboBox *widget) { QTest::keyClick(widget, Qt::Key_Down); });
    QTest::newRow("first letter") << UserAction(
        [](QComboBox *widget) { QTest::keyClick(widget, 'b'); });
    QTest::newRow("wheel") << UserAction(TurnTheWheelDown);
    QTest::newRow("click in the popup") << UserAction(ClickInThePopup);
    QTest::newRow("keys in the popup") << UserAction(ChooseInThePopupByKeys);
}

void tst_FxUIComboBoxEvents::usersChoiceEmitsAllThreeBehindTheWidgetsChange()
{
    QFETCH(UserAction, act);
    WatchedABC watched;
    act(Widget(watched.box));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'b' widget 1 'b'",
                 "currentIndexChanged(1) 1 'b' widget 1 'b'",
                 "currentStringChanged('b') 1 'b' widget 1 'b'",
                 "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'",
             }));
}

void tst_FxUIComboBoxEvents::usersChoiceOfTheCurrentItemIsSilent()
{
    WatchedABC watched;
    watched.log.ListenToQt("Qt.activated", Widget(watched.box),
                           qOverload<int>(&QComboBox::activated));
    Widget(watched.box)->showPopup();
    QTest::keyClick(Widget(watched.box)->view(), Qt::Key_Return);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.activated(0) 0 'a' widget 0 'a'" }));
}

void tst_FxUIComboBoxEvents::itemsWithTheSameTextAreReportedAlike()
{
    Watched watched;
    watched.box.addItem(A);
    watched.box.addItem(A);
    watched.log.Take();
    watched.box.setCurrentIndex(1);
    QTest::keyClick(Widget(watched.box), Qt::Key_Up);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'a' widget 0 'a'",
                 "currentStringChanged('a') 1 'a' widget 0 'a'",
                 "Qt.currentIndexChanged(1) 1 'a' widget 1 'a'",
                 "activated(0) 0 'a' widget 0 'a'",
                 "currentIndexChanged(0) 0 'a' widget 0 'a'",
                 "currentStringChanged('a') 0 'a' widget 0 'a'",
                 "Qt.currentIndexChanged(0) 0 'a' widget 0 'a'",
             }));
}

void tst_FxUIComboBoxEvents::insertionBeforeTheCurrentRowIsReported()
{
    WatchedABC watched;
    watched.box.insertItem(0, QStringLiteral("new"));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'a' widget 1 'a'",
                 "currentIndexChanged(1) 1 'a' widget 1 'a'",
                 "currentStringChanged('a') 1 'a' widget 1 'a'",
                 "Qt.currentIndexChanged(1) 1 'a' widget 1 'a'",
             }));
}

void tst_FxUIComboBoxEvents::insertionBehindTheCurrentRowIsSilent()
{
    WatchedABC watched;
    watched.box.insertItem(1, QStringLiteral("new"));
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIComboBoxEvents::removalBeforeTheCurrentRowIsReported()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(2);
    watched.log.Take();
    watched.box.removeItem(0);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'c' widget 1 'c'",
                 "currentIndexChanged(1) 1 'c' widget 1 'c'",
                 "currentStringChanged('c') 1 'c' widget 1 'c'",
                 "Qt.currentIndexChanged(1) 1 'c' widget 1 'c'",
             }));
}

void tst_FxUIComboBoxEvents::removalBehindTheCurrentRowIsSilent()
{
    WatchedABC watched;
    watched.box.removeItem(2);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIComboBoxEvents::removalOfTheCurrentItemWithASuccessorKeepsItsText()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(1);
    watched.log.Take();
    watched.box.removeItem(1);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(1) 1 'b' widget 1 'c'" }));
}

void tst_FxUIComboBoxEvents::removalOfTheCurrentItemAtTheEndIsReported()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(2);
    watched.log.Take();
    watched.box.removeItem(2);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'b' widget 1 'b'",
                 "currentIndexChanged(1) 1 'b' widget 1 'b'",
                 "currentStringChanged('b') 1 'b' widget 1 'b'",
                 "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'",
             }));
}

void tst_FxUIComboBoxEvents::removalOfTheOnlyItemKeepsIndexAndText()
{
    Watched watched;
    watched.box.addItem(A);
    watched.log.Take();
    watched.box.removeItem(0);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(-1) 0 'a' widget -1 ''" }));
}

void tst_FxUIComboBoxEvents::clearKeepsIndexAndText()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(1);
    watched.log.Take();
    watched.box.clear();
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(-1) 1 'b' widget -1 ''" }));
    QCOMPARE(watched.box.count(), 0);
}

void tst_FxUIComboBoxEvents::clearEmptiesTheItemsBeforeTheWidget()
{
    WatchedABC watched;
    QList<int> counts;
    connect(Widget(watched.box), qOverload<int>(&QComboBox::currentIndexChanged), this,
            [&] { counts.append(watched.box.count()); });
    watched.box.clear();
    QCOMPARE(counts, QList<int> { 0 });
}

void tst_FxUIComboBoxEvents::firstItemAfterClearAtIndex0IsSilentAndTheTextStays()
{
    WatchedABC watched;
    watched.box.clear();
    watched.log.Take();
    watched.box.addItem(QStringLiteral("new"));
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(0) 0 'a' widget 0 'new'" }));
    MoveWidgetAlone(watched.box, -1);
    watched.box.setCurrentIndex(0);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(0) 0 'a' widget 0 'new'" }));
}

void tst_FxUIComboBoxEvents::firstItemAfterClearAtAnotherIndexIsReported()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(2);
    watched.box.clear();
    watched.log.Take();
    watched.box.addItem(QStringLiteral("new"));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(0) 0 'new' widget 0 'new'",
                 "currentIndexChanged(0) 0 'new' widget 0 'new'",
                 "currentStringChanged('new') 0 'new' widget 0 'new'",
                 "Qt.currentIndexChanged(0) 0 'new' widget 0 'new'",
             }));
}

void tst_FxUIComboBoxEvents::blockedBoxFollowsInSilence()
{
    WatchedABC watched;
    watched.box.blockSignals(true);
    watched.box.setCurrentIndex(2);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(2) 2 'c' widget 2 'c'" }));
    QTest::keyClick(Widget(watched.box), Qt::Key_Up);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'" }));
    watched.box.setCurrentText(A);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.box.currentText(), A);
}

void tst_FxUIComboBoxEvents::handlerPassesOverIndicesThatNoItemHas_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("-1") << -1;
    QTest::newRow("current") << 0;
    QTest::newRow("count") << 3;
}

void tst_FxUIComboBoxEvents::handlerPassesOverIndicesThatNoItemHas()
{
    QFETCH(int, index);
    WatchedABC watched;
    Impl(watched.box)->OnCurrentIndexChanged(index);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 'a' widget 0 'a'"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBoxEvents>(argc, argv);
}

#include "tst_FxUIComboBoxEvents.moc"
