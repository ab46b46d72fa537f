#include "UI/FxUIVerticalLayout.h"

#include "support/ControlContract.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/Impl/FxUIVerticalLayoutImpl.h"
#include "UI/Impl/qt/frontend/FxUIVertLayoutFrontend.h"

#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QVBoxLayout>

#include <limits>
#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIVerticalLayout>);
static_assert(!std::is_copy_constructible_v<CFxUIVerticalLayout>);
static_assert(std::is_base_of_v<CFxUIBaseViewImpl, CFxUIVerticalLayoutImpl>);

namespace {

// A second implementation object of a layout, to read the fields of.
class Probe : public CFxUIVerticalLayoutImpl {
public:
    using CFxUIVerticalLayoutImpl::CFxUIVerticalLayoutImpl;
    using CFxUIVerticalLayoutImpl::m_busy;
    using CFxUIVerticalLayoutImpl::m_name;
};

CFxUIVertLayoutFrontend *Frontend(const CFxUIVerticalLayout &layout)
{
    return qobject_cast<CFxUIVertLayoutFrontend *>(layout.getHandle());
}

QVBoxLayout *QtLayout(const CFxUIVerticalLayout &layout)
{
    return qobject_cast<QVBoxLayout *>(Frontend(layout)->layout());
}

QWidget *Widget(const CFxUIBaseView *view)
{
    return static_cast<QWidget *>(view->getHandle());
}

CFxUILabel *Add(CFxUIVerticalLayout &layout, float weight = 0.0f)
{
    auto *child = new CFxUILabel;
    layout.addView(child, weight);
    return child;
}

} // namespace

class tst_FxUIVerticalLayout : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void handleIsABorderlessGroupBox();
    void unusedNameIsEmpty();
    void marginsAreZeroAtFirst();
    void marginsGoToTheQtLayout();
    void spacingIsQtsUntilItIsSet();
    void sizeConstraintStaysQts();

    void childrenFollowInOrderOfAdding();
    void weightBecomesTheStretch_data();
    void weightBecomesTheStretch();
    void insertedWeightBecomesTheStretch_data();
    void insertedWeightBecomesTheStretch();
    void insertTakesTheIndexAsQtDoes_data();
    void insertTakesTheIndexAsQtDoes();
    void sizePolicyOfAChildIsOverwritten();
    void childOfARowMovesOver();
    void insertingAgainMovesTheChild();
    void removedChildLeavesTheQtLayoutButNotTheScreen();
    void radioGroupTakesNoPlace();
    void childWithoutWidgetTakesNoPlace();
    void columnInItselfTakesNoPlace();
    void deletedChildLeavesTheQtLayout();

    void busyStateStartsTheSpinnerAndNoFlag();
    void destructionWhileBusyEndsTheSpinner();
    void operationsWithoutHandleDoNothing();
    void handleOfAnotherClassIsLeftAlone();
    void widgetTakenFromItsLayoutTakesKeysOnItsOwn();
};

void tst_FxUIVerticalLayout::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUIVerticalLayout; });
}

void tst_FxUIVerticalLayout::handleIsABorderlessGroupBox()
{
    const CFxUIVerticalLayout layout;
    QVERIFY(Frontend(layout));
    QVERIFY(!Frontend(layout)->parentWidget());
    QVERIFY(QtLayout(layout));
    QCOMPARE(Frontend(layout)->styleSheet(),
             QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
    QCOMPARE(layout.impl->GetFrontendClassName(), QStringLiteral("QVBoxLayout"));
    QCOMPARE(static_cast<CFxUIObjectImpl *>(Frontend(layout)->impl), layout.impl);
}

void tst_FxUIVerticalLayout::unusedNameIsEmpty()
{
    CFxUIVerticalLayout layout;
    layout.setObjectName(QStringLiteral("content"));
    const Probe probe(&layout);
    QVERIFY(probe.m_name.isEmpty());
}

void tst_FxUIVerticalLayout::marginsAreZeroAtFirst()
{
    const CFxUIVerticalLayout layout;
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(0, 0, 0, 0));
}

void tst_FxUIVerticalLayout::marginsGoToTheQtLayout()
{
    CFxUIVerticalLayout layout;
    const QMargins ofTheBox = Frontend(layout)->contentsMargins();
    layout.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(Frontend(layout)->contentsMargins(), ofTheBox);
    QWidget parent;
    auto *ofQt = new QVBoxLayout(&parent);
    ofQt->setContentsMargins(-5, 0, 0, 0);
    layout.setContentsMargins(-5, 0, 0, 0);
    QCOMPARE(QtLayout(layout)->contentsMargins(), ofQt->contentsMargins());
}

void tst_FxUIVerticalLayout::spacingIsQtsUntilItIsSet()
{
    CFxUIVerticalLayout layout;
    QWidget parent;
    const auto *ofQt = new QVBoxLayout(&parent);
    QCOMPARE(QtLayout(layout)->spacing(), ofQt->spacing());
    layout.setSpacing(17);
    QCOMPARE(QtLayout(layout)->spacing(), 17);
    layout.setSpacing(-1);
    QCOMPARE(QtLayout(layout)->spacing(), ofQt->spacing());
}

void tst_FxUIVerticalLayout::sizeConstraintStaysQts()
{
    CFxUIVerticalLayout layout;
    const QLayout::SizeConstraint before = QtLayout(layout)->sizeConstraint();
    QCOMPARE(before, QLayout::SetDefaultConstraint);
    layout.setSizeConstraint(QLayout::SetFixedSize);
    QCOMPARE(QtLayout(layout)->sizeConstraint(), before);
}

void tst_FxUIVerticalLayout::childrenFollowInOrderOfAdding()
{
    CFxUIVerticalLayout layout;
    CFxUILabel *first = Add(layout);
    CFxUILabel *second = Add(layout);
    QCOMPARE(QtLayout(layout)->count(), 2);
    QCOMPARE(QtLayout(layout)->itemAt(0)->widget(), Widget(first));
    QCOMPARE(QtLayout(layout)->itemAt(1)->widget(), Widget(second));
    QCOMPARE(Widget(first)->parentWidget(), Frontend(layout));
    QCOMPARE(first->parent(), &layout);
    QCOMPARE(QtLayout(layout)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_FxUIVerticalLayout::weightBecomesTheStretch_data()
{
    QTest::addColumn<float>("weight");
    QTest::addColumn<int>("stretch");
    QTest::newRow("0") << 0.0f << 0;
    QTest::newRow("0.5") << 0.5f << 0;
    QTest::newRow("0.9") << 0.9f << 0;
    QTest::newRow("1") << 1.0f << 1;
    QTest::newRow("1.5") << 1.5f << 1;
    QTest::newRow("2.9") << 2.9f << 2;
    QTest::newRow("-0.5") << -0.5f << 0;
    QTest::newRow("-1.5") << -1.5f << -1;
    QTest::newRow("more than an int holds") << 1e20f << std::numeric_limits<int>::max();
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
}

void tst_FxUIVerticalLayout::weightBecomesTheStretch()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    CFxUIVerticalLayout layout;
    Add(layout, weight);
    QCOMPARE(QtLayout(layout)->stretch(0), stretch);
}

void tst_FxUIVerticalLayout::insertedWeightBecomesTheStretch_data()
{
    weightBecomesTheStretch_data();
}

void tst_FxUIVerticalLayout::insertedWeightBecomesTheStretch()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    CFxUIVerticalLayout layout;
    layout.insertView(new CFxUILabel, 0, weight);
    QCOMPARE(QtLayout(layout)->stretch(0), stretch);
}

void tst_FxUIVerticalLayout::insertTakesTheIndexAsQtDoes_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("between") << 1 << 1;
    QTest::newRow("last") << 2 << 2;
    QTest::newRow("-1") << -1 << 2;
    QTest::newRow("far below") << -100 << 2;
    QTest::newRow("far above") << 100 << 2;
}

void tst_FxUIVerticalLayout::insertTakesTheIndexAsQtDoes()
{
    QFETCH(int, index);
    QFETCH(int, place);
    CFxUIVerticalLayout layout;
    Add(layout);
    Add(layout);
    auto *child = new CFxUILabel;
    layout.insertView(child, index);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(child)), place);
    QCOMPARE(layout.indexOf(child), 2);
}

void tst_FxUIVerticalLayout::sizePolicyOfAChildIsOverwritten()
{
    CFxUIVerticalLayout layout;
    QSizePolicy other(QSizePolicy::Fixed, QSizePolicy::Expanding, QSizePolicy::PushButton);
    other.setHorizontalStretch(3);
    other.setVerticalStretch(4);
    auto *added = new CFxUILabel;
    auto *inserted = new CFxUILabel;
    for (CFxUILabel *child : { added, inserted })
        Widget(child)->setSizePolicy(other);
    layout.addView(added);
    layout.insertView(inserted, 0);
    const QSizePolicy expected(QSizePolicy::Preferred, QSizePolicy::Minimum);
    QCOMPARE(Widget(added)->sizePolicy(), expected);
    QCOMPARE(Widget(inserted)->sizePolicy(), expected);
    Widget(added)->setSizePolicy(other);
    Add(layout);
    QCOMPARE(Widget(added)->sizePolicy(), other); // set after adding it stays
}

void tst_FxUIVerticalLayout::childOfARowMovesOver()
{
    CFxUIHorizontalLayout row;
    CFxUIVerticalLayout column;
    auto *child = new CFxUILabel;
    row.addView(child);
    column.addView(child);
    QCOMPARE(child->parent(), &row);
    QCOMPARE(QtLayout(column)->count(), 0);
    column.insertView(child, 0);
    QCOMPARE(child->parent(), &column);
    QCOMPARE(Widget(child)->parentWidget(), Frontend(column));
    QCOMPARE(Widget(&row)->layout()->count(), 0); // Qt takes it out there
}

void tst_FxUIVerticalLayout::insertingAgainMovesTheChild()
{
    CFxUIVerticalLayout layout;
    CFxUILabel *first = Add(layout);
    CFxUILabel *second = Add(layout);
    layout.insertView(second, 0);
    QCOMPARE(QtLayout(layout)->count(), 2);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(second)), 0);
    QCOMPARE(QtLayout(layout)->indexOf(Widget(first)), 1);
}

void tst_FxUIVerticalLayout::removedChildLeavesTheQtLayoutButNotTheScreen()
{
    CFxUIVerticalLayout layout;
    const std::unique_ptr<CFxUILabel> child(Add(layout));
    layout.setVisible(true);
    QVERIFY(Widget(child.get())->isVisible());
    layout.removeView(child.get());
    QCOMPARE(QtLayout(layout)->indexOf(Widget(child.get())), -1);
    QVERIFY(!child->parent());
    QCOMPARE(Widget(child.get())->parentWidget(), Frontend(layout));
    QVERIFY(Widget(child.get())->isVisible());
}

void tst_FxUIVerticalLayout::radioGroupTakesNoPlace()
{
    CFxUIVerticalLayout layout;
    auto *added = new CFxUIRadioGroup;
    CFxUIRadioGroup inserted;
    layout.addView(added);
    layout.insertView(&inserted, 0);
    QCOMPARE(added->parent(), &layout);
    QCOMPARE(inserted.parent(), &layout);
    QCOMPARE(QtLayout(layout)->count(), 0);
    layout.removeView(&inserted);
    QVERIFY(!inserted.parent());
}

void tst_FxUIVerticalLayout::childWithoutWidgetTakesNoPlace()
{
    CFxUIVerticalLayout layout;
    auto *bare = new CFxUIBaseView;
    auto *foreign = new CFxUIBaseView;
    QObject handle;
    foreign->setHandle(&handle);
    layout.addView(bare, 1.0f);
    layout.insertView(foreign, 0, 1.0f);
    QCOMPARE(QtLayout(layout)->count(), 0);
    QCOMPARE(layout.children().size(), 2);
    layout.removeView(bare);
    layout.removeView(foreign);
    QVERIFY(layout.children().isEmpty());
    foreign->setHandle(nullptr);
    delete bare;
    delete foreign;
}

void tst_FxUIVerticalLayout::columnInItselfTakesNoPlace()
{
    CFxUIVerticalLayout layout;
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("Cannot add parent widget")));
    layout.addView(&layout);
    QCOMPARE(layout.parent(), &layout); // cycles aren't refused in the object tree
    QCOMPARE(QtLayout(layout)->count(), 0);
    layout.removeView(&layout);
    QVERIFY(!layout.parent());
}

void tst_FxUIVerticalLayout::deletedChildLeavesTheQtLayout()
{
    CFxUIVerticalLayout layout;
    delete Add(layout);
    QCOMPARE(QtLayout(layout)->count(), 1); // the widget goes with the event loop
    FlushDeferredDeletes();
    QCOMPARE(QtLayout(layout)->count(), 0);
}

void tst_FxUIVerticalLayout::busyStateStartsTheSpinnerAndNoFlag()
{
    CFxUIVerticalLayout layout;
    Probe probe(&layout);
    // A column of blue: dimmed to 15 percent while it is busy.
    CFxUILabel *child = Add(layout);
    Widget(child)->setStyleSheet(QStringLiteral("QLabel { background: blue; }"));
    Frontend(layout)->resize(200, 100);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::blue);
    Frontend(layout)->setPalette(palette);
    const QImage before = Frontend(layout)->grab().toImage();
    delete child;
    FlushDeferredDeletes();
    palette.setColor(QPalette::Window, Qt::white);
    probe.setBusyStateImpl(true);
    QVERIFY(!probe.m_busy);
    Frontend(layout)->setPalette(palette);
    const QColor dimmed = Frontend(layout)->grab().toImage().pixelColor(5, 5);
    QCOMPARE(before.pixelColor(5, 5), QColor(Qt::blue));
    QVERIFY(qAbs(dimmed.red() - 217) <= 1);
    QVERIFY(qAbs(dimmed.green() - 217) <= 1);
    QCOMPARE(dimmed.blue(), 255);
    probe.setBusyStateImpl(false);
    QVERIFY(!probe.m_busy);
    QCOMPARE(Frontend(layout)->grab().toImage().pixelColor(5, 5), QColor(Qt::white));
}

void tst_FxUIVerticalLayout::destructionWhileBusyEndsTheSpinner()
{
    auto layout = std::make_unique<CFxUIVerticalLayout>();
    layout->setVisible(true);
    layout->setBusyState(true);
    layout->setBusyState(true);
    const QPointer<QWidget> widget(Frontend(*layout));
    layout.reset();
    FlushDeferredDeletes();
    QVERIFY(!widget); // and the spinners, which LeakSanitizer would tell of
}

void tst_FxUIVerticalLayout::operationsWithoutHandleDoNothing()
{
    CFxUIVerticalLayout layout;
    const std::unique_ptr<QObject> handle(layout.getHandle());
    layout.setHandle(nullptr);
    layout.setContentsMargins(1, 2, 3, 4);
    layout.setSpacing(5);
    layout.setBusyState(true);
    layout.setBusyState(false);
    CFxUILabel *child = Add(layout);
    layout.insertView(new CFxUILabel, 0);
    QCOMPARE(layout.children().size(), 2);
    layout.removeView(child);
    delete child;
    layout.setHandle(handle.get());
    QCOMPARE(QtLayout(layout)->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(QtLayout(layout)->count(), 0);
    layout.setHandle(nullptr);
}

void tst_FxUIVerticalLayout::handleOfAnotherClassIsLeftAlone()
{
    CFxUIVerticalLayout layout;
    const std::unique_ptr<QObject> handle(layout.getHandle());
    QGroupBox other; // a group box alone isn't the column's frontend
    QVBoxLayout otherLayout(&other);
    otherLayout.setContentsMargins(9, 9, 9, 9);
    layout.setHandle(&other);
    layout.setContentsMargins(1, 2, 3, 4);
    layout.setSpacing(5);
    layout.setBusyState(true);
    Add(layout);
    QCOMPARE(otherLayout.contentsMargins(), QMargins(9, 9, 9, 9));
    QCOMPARE(otherLayout.count(), 0);
    layout.setHandle(nullptr);
}

void tst_FxUIVerticalLayout::widgetTakenFromItsLayoutTakesKeysOnItsOwn()
{
    auto layout = std::make_unique<CFxUIVerticalLayout>();
    const std::unique_ptr<CFxUIVertLayoutFrontend> frontend(Frontend(*layout));
    int calls = 0;
    layout->aboutToPassEventToParent().connect([&calls] { ++calls; });
    layout->setHandle(nullptr);
    layout.reset();
    QVERIFY(!frontend->impl);
    QTest::keyClick(frontend.get(), Qt::Key_A);
    QCOMPARE(calls, 0);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIVerticalLayout>(argc, argv);
}

#include "tst_FxUIVerticalLayout.moc"
