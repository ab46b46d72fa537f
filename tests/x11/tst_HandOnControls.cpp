#include "Hand.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUICheckBox.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

namespace {

QWidget *WidgetOf(const CFxUIObject &object)
{
    return static_cast<QWidget *>(object.getHandle());
}

CFxUILabel *MakeLabel(const QString &text)
{
    auto *label = new CFxUILabel;
    label->setText(text);
    return label;
}

} // namespace

class tst_HandOnControls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void typingAndTabbingBetweenFields();
    void choosingFromTheListOfAComboBox();
    void checkingABox();
    void draggingTheScrollBar();
    void clickingATabChangesThePageAndNotTheIndex();

private:
    CFxUIVerticalLayout *m_panel = nullptr;
};

void tst_HandOnControls::init()
{
    m_panel = new CFxUIVerticalLayout;
    WidgetOf(*m_panel)->setGeometry(200, 200, 320, 240);
}

void tst_HandOnControls::cleanup()
{
    delete m_panel;
    FlushDeferredDeletes();
}

void tst_HandOnControls::typingAndTabbingBetweenFields()
{
    Hand hand(QStringLiteral("typing"));
    auto *first = new CFxUITextEdit;
    auto *second = new CFxUITextEdit;
    m_panel->addView(first);
    m_panel->addView(second);
    QStringList events;
    first->keyPressed().connect([&events](int key, int modifiers) {
        events.append(QStringLiteral("key %1 %2").arg(key).arg(modifiers));
    });
    first->textChanged().connect(
        [&events](const QString &text) { events.append(QStringLiteral("changed ") + text); });
    first->textEdited().connect(
        [&events](const QString &text) { events.append(QStringLiteral("edited ") + text); });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    QVERIFY(hand.click(WidgetOf(*first)));
    QTRY_VERIFY(WidgetOf(*first)->hasFocus());
    QVERIFY(hand.type(QStringLiteral("a")));
    QTRY_COMPARE(first->text(), QStringLiteral("a"));
    QCOMPARE(events,
             QStringList({ QStringLiteral("key %1 0").arg(int(Qt::Key_A)),
                           QStringLiteral("changed a"), QStringLiteral("edited a") }));
    QVERIFY(hand.keepPicture(QStringLiteral("first")));
    QVERIFY(hand.key(QStringLiteral("Tab")));
    QTRY_VERIFY(WidgetOf(*second)->hasFocus());
    QVERIFY(hand.type(QStringLiteral("second")));
    QTRY_COMPARE(second->text(), QStringLiteral("second"));
    QCOMPARE(first->text(), QStringLiteral("a"));
    QVERIFY(hand.keepPicture(QStringLiteral("second")));
}

void tst_HandOnControls::choosingFromTheListOfAComboBox()
{
    Hand hand(QStringLiteral("combo"));
    auto *box = new CFxUIComboBox;
    for (const char *text : { "one", "two", "three" })
        box->addItem(QLatin1String(text));
    m_panel->addView(box);
    QStringList events;
    box->activated().connect(
        [&events](int index) { events.append(QStringLiteral("activated %1").arg(index)); });
    box->currentIndexChanged().connect(
        [&events](int index) { events.append(QStringLiteral("index %1").arg(index)); });
    box->currentStringChanged().connect(
        [&events](const QString &text) { events.append(QStringLiteral("text ") + text); });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    auto *widget = qobject_cast<QComboBox *>(box->getHandle());
    QVERIFY(hand.click(widget));
    QVERIFY(hand.waitForWindow(widget->view()->window()));
    QVERIFY(hand.keepPicture(QStringLiteral("open")));
    const QModelIndex third = widget->model()->index(2, 0);
    QWidget *list = widget->view()->viewport();
    // Qt ignores a release that comes within the double-click time of the opening press.
    QTRY_VERIFY(widget->view()->isVisible());
    QVERIFY(hand.moveTo(list, widget->view()->visualRect(third).center()));
    QTRY_COMPARE(widget->view()->currentIndex(), third);
    QVERIFY(hand.key(QStringLiteral("Return")));
    QTRY_COMPARE(box->currentIndex(), 2);
    QCOMPARE(events,
             QStringList({ QStringLiteral("activated 2"), QStringLiteral("index 2"),
                           QStringLiteral("text three") }));
    QVERIFY(hand.keepPicture(QStringLiteral("chosen")));
}

void tst_HandOnControls::checkingABox()
{
    Hand hand(QStringLiteral("check"));
    auto *box = new CFxUICheckBox;
    box->setText(QStringLiteral("Check me"));
    m_panel->addView(box);
    QStringList events;
    box->stateChanged().connect(
        [&events](int state) { events.append(QStringLiteral("state %1").arg(state)); });
    box->toggled().connect(
        [&events](bool checked) { events.append(QStringLiteral("toggled %1").arg(checked)); });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    QVERIFY(hand.moveTo(WidgetOf(*box), QPoint(10, WidgetOf(*box)->height() / 2)));
    QVERIFY(hand.press() && hand.release());
    QTRY_VERIFY(box->isChecked());
    QCOMPARE(events, QStringList({ QStringLiteral("state 2"), QStringLiteral("toggled 1") }));
    QVERIFY(hand.keepPicture(QStringLiteral("checked")));
}

void tst_HandOnControls::draggingTheScrollBar()
{
    Hand hand(QStringLiteral("scroll"));
    auto *form = new CFxUIVerticalLayout;
    for (int row = 1; row <= 40; ++row)
        form->addView(MakeLabel(QStringLiteral("Row %1").arg(row)));
    auto *area = new CFxUIScrollableArea;
    area->addView(form);
    m_panel->addView(area);
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    QScrollBar *bar = qobject_cast<QScrollArea *>(area->getHandle())->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible() && bar->maximum() > 0);
    QVERIFY(hand.moveTo(bar, QPoint(bar->width() / 2, 25)));
    QVERIFY(hand.press());
    QVERIFY(hand.moveTo(bar, QPoint(bar->width() / 2, bar->height() - 2)));
    QVERIFY(hand.release());
    QTRY_COMPARE(bar->value(), bar->maximum());
    QVERIFY(hand.keepPicture(QStringLiteral("end")));
}

void tst_HandOnControls::clickingATabChangesThePageAndNotTheIndex()
{
    Hand hand(QStringLiteral("tab"));
    auto *pages = new CFxUIStackedWidget;
    pages->addTab(MakeLabel(QStringLiteral("First page")), QStringLiteral("First"));
    pages->addTab(MakeLabel(QStringLiteral("Second page")), QStringLiteral("Second"));
    m_panel->addView(pages);
    int changes = 0;
    pages->currentChanged().connect([&changes](int) { ++changes; });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    auto *widget = qobject_cast<QTabWidget *>(pages->getHandle());
    QVERIFY(hand.moveTo(widget->tabBar(), widget->tabBar()->tabRect(1).center()));
    QVERIFY(hand.press() && hand.release());
    QTRY_COMPARE(widget->currentIndex(), 1);
    QCOMPARE(pages->currentIndex(), 0);
    QCOMPARE(changes, 0);
    QVERIFY(hand.keepPicture(QStringLiteral("second")));
}

int main(int argc, char **argv)
{
    return RunTest<tst_HandOnControls>(argc, argv);
}

#include "tst_HandOnControls.moc"
