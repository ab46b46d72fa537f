#include "UI/FxUIHorizontalLayout.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/Impl/FxUIHorizontalLayoutImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>

#include <limits>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIHorizontalLayout>);
static_assert(!std::is_copy_constructible_v<CFxUIHorizontalLayout>);
static_assert(std::is_base_of_v<CFxUIBaseViewImpl, CFxUIHorizontalLayoutImpl>);

namespace {

// A second implementation object of a layout, to read the fields of.
class Probe : public CFxUIHorizontalLayoutImpl {
public:
    using CFxUIHorizontalLayoutImpl::CFxUIHorizontalLayoutImpl;
    using CFxUIHorizontalLayoutImpl::m_busy;
    using CFxUIHorizontalLayoutImpl::m_name;
};

QGroupBox *Box(const CFxUIHorizontalLayout &layout)
{
    return qobject_cast<QGroupBox *>(layout.getHandle());
}

QHBoxLayout *QtLayout(const CFxUIHorizontalLayout &layout)
{
    return qobject_cast<QHBoxLayout *>(Box(layout)->layout());
}

QWidget *Widget(const CFxUIBaseView *view)
{
    return static_cast<QWidget *>(view->getHandle());
}

CFxUILabel *Add(CFxUIHorizontalLayout &layout, float weight = 0.0f)
{
    auto *child = new CFxUILabel;
    layout.addView(child, weight);
    return child;
}

} // namespace

class tst_FxUIHorizontalLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void handleIsAPlainBorderlessGroupBox();
    void unusedNameIsEmpty();
    void marginsAreZeroAtFirst();
    void marginsGoToTheQtLayout();
    void spacingIsQtsUntilItIsSet();

    void childrenFollowInOrderOfAdding();
    void weightBecomesTheStretch_data();
    void weightBecomesTheStretch();
    void insertedWeightBecomesTheStretch_data();
    void insertedWeightBecomesTheStretch();
    void insertTakesTheIndexAsQtDoes_data();
    void insertTakesTheIndexAsQtDoes();
    void sizePolicyOfAChildIsOverwritten();
    void removedChildStaysInTheQtLayoutAndOnTheScreen();
    void removedChildThatIsAddedAgainComesLast();
    void radioGroupTakesNoPlace();
    void childWithoutWidgetTakesNoPlace();

    void busyStateIsAFlagAndShowsNothing();
    void operationsWithoutHandleDoNothing();
};

void tst_FxUIHorizontalLayout::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUIHorizontalLayout; });
}

void tst_FxUIHorizontalLayout::handleIsAPlainBorderlessGroupBox()
{
    const CFxUIHorizontalLayout layout;
    QVERIFY(Box(layout));
    QCOMPARE(Box(layout)->metaObject(), &QGroupBox::staticMetaObject);
    QVERIFY(!Box(layout)->parentWidget());
    QVERIFY(QtLayout(layout));
    QCOMPARE(Box(layout)->styleSheet(), QStringLiteral("QGroupBox{ border: none; padding: 0px; }"));
    QCOMPARE(layout.impl->GetFrontendClassName(), QStringLiteral("QHBoxLayout"));
}

void tst_FxUIHorizontalLayout::unusedNameIsEmpty()
{
    CFxUIHorizontalLayout layout;
    layout.setObjectName(QStringLiteral("buttons"));
    const Probe probe(&layout);
    QVERIFY(probe.m_name.isEmpty());
}

void tst_FxUIHorizontalLayout::marginsAreZeroAtFirst()
{
    const CFxUIHorizontalLayout layout;
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_FxUIHorizontalLayout::marginsGoToTheQtLayout()
{
    CFxUIHorizontalLayout layout;
    layout.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(1, 2, 3, 4));
}

void tst_FxUIHorizontalLayout::spacingIsQtsUntilItIsSet()
{
    CFxUIHorizontalLayout layout;
    QWidget parent;
    const auto *ofQt = new QHBoxLayout(&parent);
    QCOMPARE(QtLayout(layout)->spacing(), ofQt->spacing());
    layout.setSpacing(17);
    QCOMPARE(QtLayout(layout)->spacing(), 17);
    layout.setSpacing(-1);
    QCOMPARE(QtLayout(layout)->spacing(), ofQt->spacing());
}

void tst_FxUIHorizontalLayout::childrenFollowInOrderOfAdding()
{
    CFxUIHorizontalLayout layout;
    CFxUILabel *first = Add(layout);
    CFxUILabel *second = Add(layout);
    QCOMPARE(QtLayout(layout)->count(), 2);
    QCOMPARE(QtLayout(layout)->itemAt(0)->widget(), Widget(first));
    QCOMPARE(QtLayout(layout)->itemAt(1)->widget(), Widget(second));
    QCOMPARE(Widget(first)->parentWidget(), Box(layout));
    QCOMPARE(QtLayout(layout)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_FxUIHorizontalLayout::weightBecomesTheStretch_data()
{
    QTest::addColumn<float>("weight");
    QTest::addColumn<int>("stretch");
    QTest::newRow("0.5") << 0.5f << 0;
    QTest::newRow("0.9") << 0.9f << 0;
    QTest::newRow("1.5") << 1.5f << 1;
    QTest::newRow("2.9") << 2.9f << 2;
    QTest::newRow("-0.5") << -0.5f << 0;
    QTest::newRow("less than an int holds") << -1e20f << std::numeric_limits<int>::min();
}

void tst_FxUIHorizontalLayout::weightBecomesTheStretch()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    CFxUIHorizontalLayout layout;
    Add(layout, weight);
    QCOMPARE(QtLayout(layout)->stretch(0), stretch);
}

void tst_FxUIHorizontalLayout::insertedWeightBecomesTheStretch_data()
{
    weightBecomesTheStretch_data();
}

void tst_FxUIHorizontalLayout::insertedWeightBecomesTheStretch()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    CFxUIHorizontalLayout layout;
    layout.insertView(new CFxUILabel, 0, weight);
    QCOMPARE(QtLayout(layout)->stretch(0), stretch);
}

void tst_FxUIHorizontalLayout::insertTakesTheIndexAsQtDoes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("between") << 1 << 1;
    QTest::newRow("-1") << -1 << 2;
    QTest::newRow("far above") << 100 << 2;
}

void tst_FxUIHorizontalLayout::insertTakesTheIndexAsQtDoes()
{
    QFETCH(int, index);
    QFETCH(int, place);
    CFxUIHorizontalLayout layout;
    Add(layout);
    Add(layout);
    auto *child = new CFxUILabel;
    layout.insertView(child, index);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(child)), place);
    QCOMPARE(layout.indexOf(child), 2);
}

void tst_FxUIHorizontalLayout::sizePolicyOfAChildIsOverwritten()
{
    CFxUIHorizontalLayout layout;
    QSizePolicy other(QSizePolicy::Fixed, QSizePolicy::Expanding, QSizePolicy::PushButton);
    other.setHorizontalStretch(3);
    auto *added = new CFxUILabel;
    auto *inserted = new CFxUILabel;
    for (CFxUILabel *child : { added, inserted })
        Widget(child)->setSizePolicy(other);
    layout.addView(added);
    layout.insertView(inserted, 0);
    const QSizePolicy expected(QSizePolicy::Preferred, QSizePolicy::Preferred);
    QCOMPARE(Widget(added)->sizePolicy(), expected);
    QCOMPARE(Widget(inserted)->sizePolicy(), expected);
}

void tst_FxUIHorizontalLayout::removedChildStaysInTheQtLayoutAndOnTheScreen()
{
    CFxUIHorizontalLayout layout;
    const std::unique_ptr<CFxUILabel> child(Add(layout));
    Add(layout);
    layout.setVisible(true);
    layout.removeView(child.get());
    QVERIFY(!child->parent());
    QCOMPARE(QtLayout(layout)->indexOf(Widget(child.get())), 0);
    QCOMPARE(Widget(child.get())->parentWidget(), Box(layout));
    QVERIFY(Widget(child.get())->isVisible());
}

void tst_FxUIHorizontalLayout::removedChildThatIsAddedAgainComesLast()
{
    CFxUIHorizontalLayout layout;
    CFxUILabel *first = Add(layout);
    CFxUILabel *second = Add(layout);
    layout.removeView(first);
    layout.addView(first);
    QCOMPARE(QtLayout(layout)->count(), 2);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(second)), 0);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(first)), 1);
}

void tst_FxUIHorizontalLayout::radioGroupTakesNoPlace()
{
    CFxUIHorizontalLayout layout;
    auto *added = new CFxUIRadioGroup;
    auto *inserted = new CFxUIRadioGroup;
    layout.addView(added);
    layout.insertView(inserted, 0);
    QCOMPARE(added->parent(), &layout);
    QCOMPARE(inserted->parent(), &layout);
    QCOMPARE(QtLayout(layout)->count(), 0);
}

void tst_FxUIHorizontalLayout::childWithoutWidgetTakesNoPlace()
{
    CFxUIHorizontalLayout layout;
    auto *foreign = new CFxUIBaseView;
    QObject handle;
    foreign->setHandle(&handle);
    layout.addView(new CFxUIBaseView, 1.0f);
    layout.insertView(foreign, 0, 1.0f);
    QCOMPARE(QtLayout(layout)->count(), 0);
    QCOMPARE(layout.children().size(), 2);
    foreign->setHandle(nullptr);
}

void tst_FxUIHorizontalLayout::busyStateIsAFlagAndShowsNothing()
{
    CFxUIHorizontalLayout layout;
    Probe probe(&layout);
    Box(layout)->resize(200, 100);
    const QImage before = Box(layout)->grab().toImage();
    probe.setBusyStateImpl(true);
    QVERIFY(probe.m_busy);
    QCOMPARE(Box(layout)->grab().toImage(), before);
    probe.setBusyStateImpl(false);
    QVERIFY(!probe.m_busy);
}

void tst_FxUIHorizontalLayout::operationsWithoutHandleDoNothing()
{
    CFxUIHorizontalLayout layout;
    const std::unique_ptr<QObject> handle(layout.getHandle());
    layout.setHandle(nullptr);
    layout.setContentsMargins(1, 2, 3, 4);
    layout.setSpacing(5);
    layout.setBusyState(true);
    Add(layout);
    layout.insertView(new CFxUILabel, 0);
    QCOMPARE(layout.children().size(), 2);
    QObject foreign;
    layout.setHandle(&foreign);
    layout.setContentsMargins(1, 2, 3, 4);
    Add(layout);
    layout.setHandle(handle.get());
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(QtLayout(layout)->count(), 0);
    layout.setHandle(nullptr);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIHorizontalLayout>(argc, argv);
}

#include "tst_FxUIHorizontalLayout.moc"
