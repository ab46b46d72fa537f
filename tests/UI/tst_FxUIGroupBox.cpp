#include "UI/FxUIGroupBox.h"

#include "support/ControlContract.h"
#include "support/EventRecorder.h"
#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/FxUITimer.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIGroupBoxImpl.h"
#include "UI/Impl/qt/frontend/FxUIGroupBoxFrontend.h"

#include <QtTest/QTest>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIGroupBox>);
static_assert(!std::is_copy_constructible_v<CFxUIGroupBox>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIGroupBox &>().onCollapsedStateChanged()),
                             CFxUISignal<void(bool)> &>);

namespace {

CFxUIGroupBoxFrontend *Frontend(const CFxUIGroupBox &box)
{
    return qobject_cast<CFxUIGroupBoxFrontend *>(box.getHandle());
}

CFxUIGroupBoxImpl *Impl(const CFxUIGroupBox &box)
{
    return static_cast<CFxUIGroupBoxImpl *>(box.impl);
}

QVBoxLayout *QtLayout(const CFxUIGroupBox &box)
{
    return qobject_cast<QVBoxLayout *>(Frontend(box)->layout());
}

QWidget *Widget(const CFxUIBaseView *view)
{
    return qobject_cast<QWidget *>(view->getHandle());
}

// Notes each update() of its view.
class ParentImpl : public CFxUIBaseViewImpl {
public:
    ParentImpl(CFxUIBaseView *view, EventRecorder *log)
        : CFxUIBaseViewImpl(view)
        , m_log(log)
    {
    }

    void UpdateImpl() override { m_log->Note("parent.update"); }

private:
    EventRecorder *m_log;
};

// A group box under observation, in a parent view that notes its updates. Each line of the log ends
// with what isCollapsed() answers.
struct Watched {
    Watched()
    {
        parent.impl = new ParentImpl(&parent, &log);
        parent.addView(box);
        log.Listen("onCollapsedStateChanged", box->onCollapsedStateChanged());
    }

    CFxUIBaseView parent;
    CFxUIGroupBox *box = new CFxUIGroupBox;
    EventRecorder log { [this] {
        return box->isCollapsed() ? QStringLiteral("collapsed") : QStringLiteral("open");
    } };
};

} // namespace

class tst_FxUIGroupBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fulfilsTheContractOfControls();
    void startsOpenWithoutTitle();
    void widgetIsAGroupBoxWithAColumn();
    void marginsAndSpacingStartWithQtsDefaults();
    void titleGoesToTheWidget();
    void marginsAndSpacingGoToTheQtLayout();
    void addViewPutsTheChildLastWithItsPolicyOverwritten();
    void insertViewPutsTheChildAtTheIndex_data();
    void insertViewPutsTheChildAtTheIndex();
    void weightIsTruncatedToTheStretch_data();
    void weightIsTruncatedToTheStretch();
    void radioGroupTakesNoPlace();
    void childWithoutAWidgetIsAChildAlone();
    void removeViewKeepsTheWidgetInTheQtLayout();
    void collapsingUpdatesTheParentThenEmits();
    void collapsingAgainDoesNothing();
    void collapsingUpdatesARealParentOnTheScreen();
    void collapsingWithoutAViewAsParentEmitsAlone();
    void blockedBoxCollapsesInSilence();
    void slotThatOpensTheBoxAgain();
    void handlerUpdatesTheParentAlsoWithoutAChange();
    void usersActionsReachNothing();
    void collapsingChangesNothingOnTheScreen();
    void settersWithoutHandleKeepTheState();
};

void tst_FxUIGroupBox::fulfilsTheContractOfControls()
{
    ControlContract([] { return new CFxUIGroupBox; });
}

void tst_FxUIGroupBox::startsOpenWithoutTitle()
{
    CFxUIGroupBox box;
    QVERIFY(box.title().isEmpty());
    QVERIFY(!box.isCollapsed());
}

void tst_FxUIGroupBox::widgetIsAGroupBoxWithAColumn()
{
    const CFxUIGroupBox box;
    QVERIFY(Frontend(box));
    QVERIFY(QtLayout(box));
    QVERIFY(!Frontend(box)->isCheckable());
    QVERIFY(!Frontend(box)->impl);
    QCOMPARE(Frontend(box)->styleSheet(), QStringLiteral("QGroupBox { }"));
    QCOMPARE(box.impl->GetFrontendClassName(), QStringLiteral("QGroupBox"));
}

void tst_FxUIGroupBox::marginsAndSpacingStartWithQtsDefaults()
{
    const CFxUIGroupBox box;
    QGroupBox plain;
    plain.setStyleSheet(QStringLiteral("QGroupBox { }"));
    const auto *layout = new QVBoxLayout(&plain);
    QCOMPARE(QtLayout(box)->contentsMargins(), layout->contentsMargins());
    QVERIFY(!QtLayout(box)->contentsMargins().isNull());
    QCOMPARE(QtLayout(box)->spacing(), layout->spacing());
}

void tst_FxUIGroupBox::titleGoesToTheWidget()
{
    CFxUIGroupBox box;
    box.setTitle(QStringLiteral("Units"));
    QCOMPARE(box.title(), QStringLiteral("Units"));
    QCOMPARE(Frontend(box)->title(), QStringLiteral("Units"));
}

void tst_FxUIGroupBox::marginsAndSpacingGoToTheQtLayout()
{
    CFxUIGroupBox box;
    box.setContentsMargins(1, 2, 3, 4);
    box.setSpacing(5);
    QCOMPARE(QtLayout(box)->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(QtLayout(box)->spacing(), 5);
}

void tst_FxUIGroupBox::addViewPutsTheChildLastWithItsPolicyOverwritten()
{
    CFxUIGroupBox box;
    auto *first = new CFxUILabel;
    auto *second = new CFxUILabel;
    Widget(second)->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    box.addView(first);
    box.addView(second);
    QCOMPARE(QtLayout(box)->indexOf(Widget(first)), 0);
    QCOMPARE(QtLayout(box)->indexOf(Widget(second)), 1);
    QCOMPARE(Widget(second)->sizePolicy(),
             QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    QCOMPARE(QtLayout(box)->itemAt(1)->alignment(), Qt::Alignment());
    QCOMPARE(QtLayout(box)->stretch(1), 0);
    QCOMPARE(Widget(second)->parentWidget(), Frontend(box));
}

void tst_FxUIGroupBox::insertViewPutsTheChildAtTheIndex_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("position");
    QTest::newRow("front") << 0 << 0;
    QTest::newRow("between") << 1 << 1;
    QTest::newRow("negative means the end") << -1 << 2;
    QTest::newRow("far behind the end") << 99 << 2;
}

void tst_FxUIGroupBox::insertViewPutsTheChildAtTheIndex()
{
    QFETCH(int, index);
    QFETCH(int, position);
    CFxUIGroupBox box;
    box.addView(new CFxUILabel);
    box.addView(new CFxUILabel);
    auto *inserted = new CFxUILabel;
    box.insertView(inserted, index, 3.9f);
    QCOMPARE(QtLayout(box)->indexOf(Widget(inserted)), position);
    QCOMPARE(QtLayout(box)->stretch(position), 3);
    QCOMPARE(Widget(inserted)->sizePolicy(),
             QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum));
    QCOMPARE(box.indexOf(inserted), 2); // in the tree always the end
}

void tst_FxUIGroupBox::weightIsTruncatedToTheStretch_data()
{
    QTest::addColumn<float>("weight");
    QTest::addColumn<int>("stretch");
    QTest::newRow("0.9") << 0.9f << 0;
    QTest::newRow("1.5") << 1.5f << 1;
    QTest::newRow("2.9") << 2.9f << 2;
    QTest::newRow("-0.5") << -0.5f << 0;
}

void tst_FxUIGroupBox::weightIsTruncatedToTheStretch()
{
    QFETCH(float, weight);
    QFETCH(int, stretch);
    CFxUIGroupBox box;
    box.addView(new CFxUILabel, weight);
    QCOMPARE(QtLayout(box)->stretch(0), stretch);
}

void tst_FxUIGroupBox::radioGroupTakesNoPlace()
{
    CFxUIGroupBox box;
    auto *added = new CFxUIRadioGroup;
    auto *inserted = new CFxUIRadioGroup;
    box.addView(added);
    box.insertView(inserted, 0);
    QCOMPARE(box.children(), (QList<CFxUIObject *> { added, inserted }));
    QCOMPARE(QtLayout(box)->count(), 0);
}

void tst_FxUIGroupBox::childWithoutAWidgetIsAChildAlone()
{
    CFxUIGroupBox box;
    auto *child = new CFxUIBaseView;
    box.addView(child);
    QCOMPARE(child->parent(), &box);
    QCOMPARE(QtLayout(box)->count(), 0);
}

void tst_FxUIGroupBox::removeViewKeepsTheWidgetInTheQtLayout()
{
    CFxUIGroupBox box;
    const auto child = std::make_unique<CFxUILabel>();
    box.addView(child.get());
    box.setVisible(true);
    box.removeView(child.get());
    QVERIFY(!child->parent());
    QCOMPARE(QtLayout(box)->indexOf(Widget(child.get())), 0);
    QVERIFY(Widget(child.get())->isVisible());
    box.setVisible(false);
}

void tst_FxUIGroupBox::collapsingUpdatesTheParentThenEmits()
{
    Watched watched;
    watched.box->setCollapsed(true);
    QCOMPARE(watched.log.Take(),
             Lines({ "parent.update() open", "onCollapsedStateChanged(true) collapsed" }));
    watched.box->setCollapsed(false);
    QCOMPARE(watched.log.Take(),
             Lines({ "parent.update() collapsed", "onCollapsedStateChanged(false) open" }));
}

void tst_FxUIGroupBox::collapsingAgainDoesNothing()
{
    Watched watched;
    watched.box->setCollapsed(false);
    QCOMPARE(watched.log.Take(), QStringList());
    watched.box->setCollapsed(true);
    watched.log.Take();
    watched.box->setCollapsed(true);
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIGroupBox::collapsingUpdatesARealParentOnTheScreen()
{
    CFxUIVerticalLayout column;
    auto *box = new CFxUIGroupBox;
    column.addView(box);
    column.setVisible(true);
    QVERIFY(QTest::qWaitForWindowExposed(Widget(&column)));
    UpdateCounter counter;
    Widget(&column)->installEventFilter(&counter);
    const auto updatesSince = [&counter](int since) {
        QCoreApplication::processEvents();
        return counter.updates - since;
    };
    QTRY_COMPARE(updatesSince(counter.updates), 0); // the first showing is over
    counter.updates = 0;
    box->setCollapsed(true);
    QTRY_COMPARE(counter.updates, 1);
    column.setVisible(false);
}

void tst_FxUIGroupBox::collapsingWithoutAViewAsParentEmitsAlone()
{
    CFxUITimer noView;
    for (CFxUIObject *parent :
         { static_cast<CFxUIObject *>(nullptr), static_cast<CFxUIObject *>(&noView) }) {
        CFxUIGroupBox box;
        box.setParent(parent);
        int emissions = 0;
        box.onCollapsedStateChanged().connect([&emissions](bool) { ++emissions; });
        box.setCollapsed(true);
        QCOMPARE(emissions, 1);
    }
}

void tst_FxUIGroupBox::blockedBoxCollapsesInSilence()
{
    Watched watched;
    watched.box->blockSignals(true);
    watched.box->setCollapsed(true);
    QVERIFY(watched.box->isCollapsed());
    QCOMPARE(watched.log.Take(), Lines({ "parent.update() open" }));
}

void tst_FxUIGroupBox::slotThatOpensTheBoxAgain()
{
    Watched watched;
    watched.box->onCollapsedStateChanged().connect(
        [&watched](bool) { watched.box->setCollapsed(false); });
    watched.box->setCollapsed(true);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "parent.update() open",
                 "onCollapsedStateChanged(true) collapsed",
                 "parent.update() collapsed",
                 "onCollapsedStateChanged(false) open",
             }));
}

void tst_FxUIGroupBox::handlerUpdatesTheParentAlsoWithoutAChange()
{
    Watched watched;
    Impl(*watched.box)->OnCollapsedStateChanged(false);
    QCOMPARE(watched.log.Take(), Lines({ "parent.update() open" }));
    Impl(*watched.box)->OnCollapsedStateChanged(true);
    QCOMPARE(watched.log.Take(),
             Lines({ "parent.update() open", "onCollapsedStateChanged(true) collapsed" }));
}

void tst_FxUIGroupBox::usersActionsReachNothing()
{
    Watched watched;
    watched.box->setTitle(QStringLiteral("Units"));
    watched.box->setVisible(true);
    CFxUIGroupBoxFrontend *widget = Frontend(*watched.box);
    watched.log.ListenToQt("Qt.clicked", widget, &QGroupBox::clicked);
    watched.log.ListenToQt("Qt.toggled", widget, &QGroupBox::toggled);
    const QPoint title(20, 5);
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, title);
    QTest::mouseDClick(widget, Qt::LeftButton, Qt::NoModifier, title);
    QCOMPARE(watched.log.Take(), QStringList());
    QTest::keyClick(widget, Qt::Key_Space); // Qt reports it, though the box can't be checked
    QCOMPARE(watched.log.Take(), Lines({ "Qt.clicked(true) open" }));
    QVERIFY(!watched.box->isCollapsed());
    watched.box->setVisible(false);
}

void tst_FxUIGroupBox::collapsingChangesNothingOnTheScreen()
{
    CFxUIGroupBox box;
    box.setTitle(QStringLiteral("Units"));
    auto *child = new CFxUILabel;
    child->setText(QStringLiteral("Metric"));
    box.addView(child);
    box.setVisible(true);
    const QSize size = Frontend(box)->size();
    const QImage before = Frontend(box)->grab().toImage();
    box.setCollapsed(true);
    QCoreApplication::processEvents();
    QVERIFY(Widget(child)->isVisible());
    QCOMPARE(Frontend(box)->size(), size);
    QCOMPARE(Frontend(box)->grab().toImage(), before);
    box.setVisible(false);
}

void tst_FxUIGroupBox::settersWithoutHandleKeepTheState()
{
    CFxUIGroupBox box;
    const std::unique_ptr<QObject> widget(box.getHandle());
    QGroupBox foreign; // a group box, but not the frontend
    for (QObject *handle : { static_cast<QObject *>(nullptr), static_cast<QObject *>(&foreign) }) {
        box.setHandle(handle);
        box.setTitle(QStringLiteral("Units"));
        box.setContentsMargins(1, 2, 3, 4);
        box.setSpacing(5);
        box.addView(new CFxUILabel);
        QCOMPARE(box.title(), QStringLiteral("Units"));
        QVERIFY(foreign.title().isEmpty());
    }
    box.setCollapsed(true);
    QVERIFY(box.isCollapsed());
    QCOMPARE(box.children().size(), 2);
    box.setHandle(nullptr);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIGroupBox>(argc, argv);
}

#include "tst_FxUIGroupBox.moc"
