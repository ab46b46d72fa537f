#include "UI/FxUIEvent.h"

#include "support/TestMain.h"

#include <QtCore/QEvent>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>

static_assert(std::has_virtual_destructor_v<CFxUIEvent>);
static_assert(std::is_base_of_v<CFxUIEvent, CFxUIShowEvent>);
static_assert(std::is_base_of_v<CFxUIEvent, CFxUIHideEvent>);
static_assert(std::is_base_of_v<CFxUIEvent, CFxUIResizeEvent>);
static_assert(std::is_base_of_v<CFxUIEvent, CFxUIPaintEvent>);
static_assert(std::is_base_of_v<CFxUIEvent, CFxUIFocusEvent>);
static_assert(sizeof(CFxUIEvent::Type) == 4);
static_assert(sizeof(CFxUIFocusEvent::FocusReason) == 4);
static_assert(std::is_convertible_v<CFxUIEvent::Type, int>);
static_assert(std::is_convertible_v<CFxUIFocusEvent::FocusReason, int>);

class tst_FxUIEvent : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typesHaveTheNumbersOfQt_data();
    void typesHaveTheNumbersOfQt();
    void reasonsHaveTheNumbersOfQt_data();
    void reasonsHaveTheNumbersOfQt();
    void eachEventHasItsType_data();
    void eachEventHasItsType();
    void resizeEventTellsBothSizes();
    void paintEventOfARegionHasANullRectangle();
    void paintEventOfARectangleHasAnEmptyRegion();
    void focusEventIgnoresItsType_data();
    void focusEventIgnoresItsType();
    void numbersOutsideTheEnumerationsPassThrough();
};

Q_DECLARE_METATYPE(std::shared_ptr<CFxUIEvent>)

void tst_FxUIEvent::typesHaveTheNumbersOfQt_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("expected");
    QTest::addColumn<int>("qtNumber");
    QTest::newRow("None") << int(CFxUIEvent::None) << 0 << int(QEvent::None);
    QTest::newRow("FocusIn") << int(CFxUIEvent::FocusIn) << 8 << int(QEvent::FocusIn);
    QTest::newRow("FocusOut") << int(CFxUIEvent::FocusOut) << 9 << int(QEvent::FocusOut);
    QTest::newRow("Paint") << int(CFxUIEvent::Paint) << 12 << int(QEvent::Paint);
    QTest::newRow("Resize") << int(CFxUIEvent::Resize) << 14 << int(QEvent::Resize);
    QTest::newRow("Show") << int(CFxUIEvent::Show) << 17 << int(QEvent::Show);
    QTest::newRow("Hide") << int(CFxUIEvent::Hide) << 18 << int(QEvent::Hide);
}

void tst_FxUIEvent::typesHaveTheNumbersOfQt()
{
    QFETCH(int, number);
    QFETCH(int, expected);
    QFETCH(int, qtNumber);
    QCOMPARE(number, expected);
    QCOMPARE(number, qtNumber);
}

void tst_FxUIEvent::reasonsHaveTheNumbersOfQt_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("qtNumber");
    QTest::newRow("mouse") << int(CFxUIFocusEvent::MouseFocusReason) << int(Qt::MouseFocusReason);
    QTest::newRow("tab") << int(CFxUIFocusEvent::TabFocusReason) << int(Qt::TabFocusReason);
    QTest::newRow("backtab") << int(CFxUIFocusEvent::BacktabFocusReason)
                             << int(Qt::BacktabFocusReason);
    QTest::newRow("active window")
        << int(CFxUIFocusEvent::ActiveWindowFocusReason) << int(Qt::ActiveWindowFocusReason);
    QTest::newRow("popup") << int(CFxUIFocusEvent::PopupFocusReason) << int(Qt::PopupFocusReason);
    QTest::newRow("shortcut") << int(CFxUIFocusEvent::ShortcutFocusReason)
                              << int(Qt::ShortcutFocusReason);
    QTest::newRow("menu bar") << int(CFxUIFocusEvent::MenuBarFocusReason)
                              << int(Qt::MenuBarFocusReason);
    QTest::newRow("other") << int(CFxUIFocusEvent::OtherFocusReason) << 7;
    QTest::newRow("none") << int(CFxUIFocusEvent::NoFocusReason) << int(Qt::NoFocusReason);
}

void tst_FxUIEvent::reasonsHaveTheNumbersOfQt()
{
    QFETCH(int, number);
    QFETCH(int, qtNumber);
    QCOMPARE(number, qtNumber);
}

void tst_FxUIEvent::eachEventHasItsType_data()
{
    QTest::addColumn<std::shared_ptr<CFxUIEvent>>("event");
    QTest::addColumn<int>("type");
    const auto row = [](const char *name, CFxUIEvent *event, int type) {
        QTest::newRow(name) << std::shared_ptr<CFxUIEvent>(event) << type;
    };
    row("show", new CFxUIShowEvent, 17);
    row("hide", new CFxUIHideEvent, 18);
    row("resize", new CFxUIResizeEvent(QSize(), QSize()), 14);
    row("paint a region", new CFxUIPaintEvent(QRegion()), 12);
    row("paint a rectangle", new CFxUIPaintEvent(QRect()), 12);
    row("focus", new CFxUIFocusEvent(CFxUIEvent::FocusIn, CFxUIFocusEvent::OtherFocusReason), 8);
    row("any", new CFxUIEvent(CFxUIEvent::None), 0);
}

void tst_FxUIEvent::eachEventHasItsType()
{
    QFETCH(std::shared_ptr<CFxUIEvent>, event);
    QFETCH(int, type);
    QCOMPARE(int(event->type()), type);
}

void tst_FxUIEvent::resizeEventTellsBothSizes()
{
    const CFxUIResizeEvent event(QSize(3, 4), QSize(1, 2));
    QCOMPARE(event.size(), QSize(3, 4));
    QCOMPARE(event.oldSize(), QSize(1, 2));
}

void tst_FxUIEvent::paintEventOfARegionHasANullRectangle()
{
    const QRegion region = QRegion(0, 0, 5, 5) + QRegion(10, 10, 5, 5);
    const CFxUIPaintEvent event(region);
    QCOMPARE(event.region(), region);
    QCOMPARE(event.rect(), QRect());
    QCOMPARE(event.rect().right(), -1);
    QCOMPARE(event.rect().bottom(), -1);
}

void tst_FxUIEvent::paintEventOfARectangleHasAnEmptyRegion()
{
    const CFxUIPaintEvent event(QRect(1, 2, 3, 4));
    QCOMPARE(event.rect(), QRect(1, 2, 3, 4));
    QVERIFY(event.region().isEmpty());
}

void tst_FxUIEvent::focusEventIgnoresItsType_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("focus in") << 8;
    QTest::newRow("focus out") << 9;
    QTest::newRow("paint") << 12;
    QTest::newRow("unknown") << 12345;
}

void tst_FxUIEvent::focusEventIgnoresItsType()
{
    QFETCH(int, type);
    const CFxUIFocusEvent event(static_cast<CFxUIEvent::Type>(type),
                                CFxUIFocusEvent::OtherFocusReason);
    QCOMPARE(int(event.type()), 8);
    QCOMPARE(int(event.reason()), 7);
}

void tst_FxUIEvent::numbersOutsideTheEnumerationsPassThrough()
{
    QCOMPARE(int(CFxUIEvent(static_cast<CFxUIEvent::Type>(-5)).type()), -5);
    const auto reason = static_cast<CFxUIFocusEvent::FocusReason>(1000);
    QCOMPARE(int(CFxUIFocusEvent(CFxUIEvent::FocusIn, reason).reason()), 1000);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIEvent>(argc, argv);
}

#include "tst_FxUIEvent.moc"
