#include "Hand.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUIDialog.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <memory>

namespace {

QWidget *WidgetOf(const CFxUIObject &object)
{
    return static_cast<QWidget *>(object.getHandle());
}

class PlainDialog : public CFxUIDialog {
public:
    void SetupUI() override
    {
        auto *label = new CFxUILabel;
        label->setText(QStringLiteral("Press Escape, or close the window"));
        GetLayout()->addView(label);
    }
};

} // namespace

class tst_HandOnPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void clickingAButtonEmitsClickedOnce();
    void hoveringAButtonEmitsEnterAndLeave();
    void menuOfAButtonOpensAndTriggers();
    void draggingTheSliderReportsItsValues();
    void escapeEndsAModalDialogAsRejected();
    void closingTheWindowEndsAModalDialogAsRejected_data();
    void closingTheWindowEndsAModalDialogAsRejected();

private:
    CFxUIVerticalLayout *m_panel = nullptr;
};

void tst_HandOnPanel::init()
{
    m_panel = new CFxUIVerticalLayout;
    WidgetOf(*m_panel)->setGeometry(200, 200, 320, 200);
}

void tst_HandOnPanel::cleanup()
{
    delete m_panel;
    FlushDeferredDeletes();
}

void tst_HandOnPanel::clickingAButtonEmitsClickedOnce()
{
    Hand hand(QStringLiteral("click"));
    auto *button = new CFxUIPushButton;
    button->setText(QStringLiteral("Click me"));
    m_panel->addView(button);
    QList<bool> clicks;
    button->clicked().connect([&clicks](bool checked) { clicks.append(checked); });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    QVERIFY(hand.moveTo(WidgetOf(*button)));
    QVERIFY(hand.press());
    QVERIFY(hand.keepPicture(QStringLiteral("pressed")));
    QVERIFY(clicks.isEmpty());
    QVERIFY(hand.release());
    QTRY_COMPARE(clicks, QList<bool>() << true);
    QVERIFY(hand.keepPicture(QStringLiteral("released")));
}

void tst_HandOnPanel::hoveringAButtonEmitsEnterAndLeave()
{
    Hand hand(QStringLiteral("hover"));
    auto *button = new CFxUIPushButton;
    button->setText(QStringLiteral("Hover over me"));
    m_panel->addView(button);
    auto *label = new CFxUILabel;
    label->setText(QStringLiteral("Not over me"));
    m_panel->addView(label);
    QStringList events;
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    QVERIFY(hand.moveTo(WidgetOf(*label)));
    button->hoverEnter().connect([&events] { events.append(QStringLiteral("enter")); });
    button->hoverLeave().connect([&events] { events.append(QStringLiteral("leave")); });
    QVERIFY(hand.moveTo(WidgetOf(*button)));
    QTRY_COMPARE(events, QStringList(QStringLiteral("enter")));
    QVERIFY(hand.keepPicture(QStringLiteral("over")));
    QVERIFY(hand.moveTo(WidgetOf(*label)));
    QTRY_COMPARE(events, QStringList({ QStringLiteral("enter"), QStringLiteral("leave") }));
    QVERIFY(hand.keepPicture(QStringLiteral("left")));
}

void tst_HandOnPanel::menuOfAButtonOpensAndTriggers()
{
    Hand hand(QStringLiteral("menu"));
    CFxUIMenu menu;
    auto *first = new CFxUIAction;
    first->setText(QStringLiteral("First entry"));
    menu.addAction(first);
    auto *second = new CFxUIAction;
    second->setText(QStringLiteral("Second entry"));
    second->setCheckable(true);
    menu.addAction(second);
    QList<bool> triggered;
    second->triggered().connect([&triggered](bool checked) { triggered.append(checked); });
    auto *button = new CFxUIPushButton;
    button->setText(QStringLiteral("Menu"));
    button->setMenu(&menu);
    m_panel->addView(button);
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));

    auto *qtMenu = qobject_cast<QMenu *>(menu.getHandle());
    QVERIFY(hand.moveTo(WidgetOf(*button)));
    // The menu's own event loop runs inside the press: the rest of the hand's work comes from
    // there.
    bool done = false;
    connect(qtMenu, &QMenu::aboutToShow, this, [&] {
        QTimer::singleShot(0, this, [&] {
            QVERIFY(QTest::qWaitForWindowExposed(qtMenu));
            QVERIFY(hand.release());
            QVERIFY(hand.keepPicture(QStringLiteral("open")));
            const QRect entry = qtMenu->actionGeometry(qtMenu->actions().last());
            QVERIFY(hand.moveTo(qtMenu, entry.center()));
            QVERIFY(hand.press() && hand.release());
            done = true;
        });
    });
    QVERIFY(hand.press());
    QTRY_VERIFY(done);
    QTRY_COMPARE(triggered, QList<bool>() << true);
    QVERIFY(!second->isChecked()); // the last setChecked, and not the menu's state
    QVERIFY(hand.keepPicture(QStringLiteral("chosen")));
    button->setMenu(nullptr);
}

void tst_HandOnPanel::draggingTheSliderReportsItsValues()
{
    Hand hand(QStringLiteral("drag"));
    auto *slider = new CFxUISlider;
    m_panel->addView(slider);
    QList<int> values;
    slider->valueChanged().connect([&values](int value) { values.append(value); });
    m_panel->setVisible(true);
    QVERIFY(hand.waitForWindow(WidgetOf(*m_panel)));
    auto *widget = qobject_cast<QSlider *>(slider->getHandle());
    QStyleOptionSlider option;
    option.initFrom(widget);
    option.orientation = Qt::Horizontal;
    option.maximum = widget->maximum();
    const QPoint knob =
        widget->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget)
            .center();
    QVERIFY(hand.moveTo(widget, knob));
    QVERIFY(hand.press());
    QVERIFY(hand.moveTo(widget, QPoint(widget->width() / 2, knob.y())));
    QVERIFY(hand.keepPicture(QStringLiteral("half-way")));
    QVERIFY(hand.moveTo(widget, QPoint(widget->width() - 2, knob.y())));
    QVERIFY(hand.release());
    QTRY_COMPARE(slider->value(), widget->maximum());
    QVERIFY(values.size() >= 2);
    QCOMPARE(values.last(), widget->maximum());
    QVERIFY(hand.keepPicture(QStringLiteral("end")));
}

void tst_HandOnPanel::escapeEndsAModalDialogAsRejected()
{
    Hand hand(QStringLiteral("escape"));
    PlainDialog dialog;
    int rejected = 0;
    dialog.rejected().connect([&rejected] { ++rejected; });
    QTimer::singleShot(0, this, [&] {
        QVERIFY(hand.waitForWindow(WidgetOf(dialog)));
        QVERIFY(hand.keepPicture(QStringLiteral("open")));
        QVERIFY(hand.key(QStringLiteral("Escape")));
    });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.result(), 0);
    QCOMPARE(rejected, 0); // Qt's way of ending a dialog emits nothing of ours
    QVERIFY(hand.waitForBareScreen());
    QVERIFY(hand.keepPicture(QStringLiteral("closed")));
    delete dialog.getHandle();
}

void tst_HandOnPanel::closingTheWindowEndsAModalDialogAsRejected_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("title bar") << false;
    QTest::newRow("alt+F4") << true;
}

void tst_HandOnPanel::closingTheWindowEndsAModalDialogAsRejected()
{
    QFETCH(bool, byKey);
    Hand hand(QStringLiteral("close"));
    PlainDialog dialog;
    dialog.setResult(7);
    QTimer::singleShot(0, this, [&] {
        QVERIFY(hand.waitForWindow(WidgetOf(dialog)));
        QVERIFY(hand.keepPicture(QStringLiteral("open")));
        QVERIFY(byKey ? hand.key(QStringLiteral("alt+F4")) : hand.closeWindow(WidgetOf(dialog)));
    });
    QCOMPARE(dialog.exec(), 0);
    QCOMPARE(dialog.result(), 0);
    QVERIFY(hand.waitForBareScreen());
    QVERIFY(hand.keepPicture(QStringLiteral("closed")));
    delete dialog.getHandle();
}

int main(int argc, char **argv)
{
    return RunTest<tst_HandOnPanel>(argc, argv);
}

#include "tst_HandOnPanel.moc"
