#include "UI/Impl/qt/BoxLayout.h"

#include "support/TestMain.h"
#include "UI/FxUIBaseView.h"

#include <QtTest/QTest>
#include <QtWidgets/QDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

#include <limits>

class tst_BoxLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stretchIsTruncatedAndLimited_data();
    void stretchIsTruncatedAndLimited();
    void layoutIsFoundBehindTheFrontendsClassAlone();
    void layoutOfAnotherKindIsNotFound();
};

void tst_BoxLayout::stretchIsTruncatedAndLimited_data()
{
    using Float = std::numeric_limits<float>;
    using Int = std::numeric_limits<int>;
    QTest::addColumn<float>("weight");
    QTest::addColumn<int>("stretch");
    QTest::newRow("0") << 0.0f << 0;
    QTest::newRow("-0") << -0.0f << 0;
    QTest::newRow("0.99") << 0.99f << 0;
    QTest::newRow("-0.99") << -0.99f << 0;
    QTest::newRow("1") << 1.0f << 1;
    QTest::newRow("-2.9") << -2.9f << -2;
    QTest::newRow("largest float below the limit") << 2147483520.0f << 2147483520;
    QTest::newRow("limit") << 2147483648.0f << Int::max();
    QTest::newRow("smallest float above the lower limit") << -2147483520.0f << -2147483520;
    QTest::newRow("lower limit") << -2147483648.0f << Int::min();
    QTest::newRow("largest") << Float::max() << Int::max();
    QTest::newRow("lowest") << Float::lowest() << Int::min();
    QTest::newRow("infinity") << Float::infinity() << Int::max();
    QTest::newRow("-infinity") << -Float::infinity() << Int::min();
    QTest::newRow("no number") << Float::quiet_NaN() << 0;
    QTest::newRow("smallest above 0") << Float::denorm_min() << 0;
}

void tst_BoxLayout::stretchIsTruncatedAndLimited()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    QCOMPARE(BoxLayout::Stretch(weight), stretch);
}

void tst_BoxLayout::layoutIsFoundBehindTheFrontendsClassAlone()
{
    CFxUIBaseView view;
    QVERIFY(!BoxLayout::Find<QGroupBox>(&view));
    QVERIFY(!BoxLayout::Find<QGroupBox>(nullptr));
    auto *box = new QGroupBox;
    view.setHandle(box);
    QVERIFY(!BoxLayout::Find<QGroupBox>(&view));
    auto *layout = new QVBoxLayout(box);
    QCOMPARE(BoxLayout::Find<QGroupBox>(&view), layout);
    QCOMPARE(BoxLayout::Find<QWidget>(&view), layout);
    QVERIFY(!BoxLayout::Find<QDialog>(&view));
}

void tst_BoxLayout::layoutOfAnotherKindIsNotFound()
{
    CFxUIBaseView view;
    auto *box = new QGroupBox;
    view.setHandle(box);
    new QGridLayout(box);
    QVERIFY(!BoxLayout::Find<QGroupBox>(&view));
}

int main(int argc, char **argv)
{
    return RunTest<tst_BoxLayout>(argc, argv);
}

#include "tst_BoxLayout.moc"
