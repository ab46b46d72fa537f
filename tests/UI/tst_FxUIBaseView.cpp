#include "UI/FxUIBaseView.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "ViewProbe.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUIBaseView>);
static_assert(!std::is_copy_constructible_v<CFxUIBaseView>);
static_assert(std::is_convertible_v<CFxUIBaseView::TextAlignment, int>);
static_assert(std::is_convertible_v<CFxUIBaseView::UIWidthSizePolicy, int>);
static_assert(std::is_same_v<decltype(std::declval<CFxUIBaseView &>().aboutToPassEventToParent()),
                             CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIBaseView &>().aboutToShow()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIBaseView &>().hoverEnter()), CFxUISignal<void()> &>);
static_assert(
    std::is_same_v<decltype(std::declval<CFxUIBaseView &>().hoverLeave()), CFxUISignal<void()> &>);

class tst_FxUIBaseView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void plainViewHasNoImplementation();
    void fieldsStartWithTheirDefaults();
    void enumeratorsHaveTheirNumbers();
    void widthPolicySetsTheRecord_data();
    void widthPolicySetsTheRecord();

    void addViewTakesTheChildAndTellsTheContainer();
    void childIsInTheTreeWhenTheContainerIsTold();
    void addViewOfAChildWithParentDoesNothing();
    void insertViewMovesAChildWithParent();
    void insertViewPutsTheChildAtTheEndOfTheRecord();
    void addViewMakesAnImplementationOverAHandle();
    void insertViewMakesAnImplementationOverAHandle();
    void addViewWithoutImplementationAndHandleMakesAChildAlone();
    void nullChildIsLeftOut();
    void indexOfGivesTheOrderOfAdding();
    void removeViewCutsTheParentBeforeTheContainerActs();
    void removeViewOfAnotherViewsChildDoesNothing();

    void operationsWithoutImplementationDoNothing();
    void stateOfAViewWithoutImplementationIsKeptToo();
    void foreignHandleIsLeftAlone();
    void genericPathMakesNoFrontend();
    void destructionReleasesTheWidgetLater();
    void widgetIsReleasedBeforeTheChildrenDie();
    void destructionAsksForTheClassNameOnlyForAHandle();
    void destructionLeavesAForeignHandle();
    void viewOverAWidgetWithoutImplementationReleasesIt();
};

void tst_FxUIBaseView::plainViewHasNoImplementation()
{
    CFxUIBaseView view;
    QVERIFY(!view.impl);
    QVERIFY(!view.getHandle());
}

void tst_FxUIBaseView::fieldsStartWithTheirDefaults()
{
    const ViewProbe view;
    QCOMPARE(view.Impl()->m_palette, QPalette());
    QVERIFY(!view.Impl()->m_visible);
    QVERIFY(view.Impl()->m_enabled);
    QVERIFY(!view.Impl()->m_hasFocus);
    QVERIFY(!view.Impl()->m_busy);
    QCOMPARE(view.Impl()->m_width, 0);
    QCOMPARE(view.Impl()->m_height, 0);
    QCOMPARE(view.Impl()->m_preferredWidth, 0);
    QCOMPARE(view.Impl()->m_preferredHeight, 0);
    QVERIFY(!view.Impl()->m_eventAccepted);
}

void tst_FxUIBaseView::enumeratorsHaveTheirNumbers()
{
    QCOMPARE(int(CFxUIBaseView::AlignLeft), 0);
    QCOMPARE(int(CFxUIBaseView::AlignRight), 1);
    QCOMPARE(int(CFxUIBaseView::AlignCenter), 2);
    QCOMPARE(int(CFxUIBaseView::ExtraSmall), 0);
    QCOMPARE(int(CFxUIBaseView::Small), 1);
    QCOMPARE(int(CFxUIBaseView::Medium), 2);
    QCOMPARE(int(CFxUIBaseView::Large), 3);
    QCOMPARE(int(CFxUIBaseView::ExtraLarge), 4);
}

void tst_FxUIBaseView::widthPolicySetsTheRecord_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("width");
    QTest::newRow("extra small") << 0 << 39;
    QTest::newRow("small") << 1 << 69;
    QTest::newRow("medium") << 2 << 158;
    QTest::newRow("large") << 3 << 248;
    QTest::newRow("extra large") << 4 << 336;
    QTest::newRow("above") << 5 << 39;
    QTest::newRow("below") << -1 << 39;
}

void tst_FxUIBaseView::widthPolicySetsTheRecord()
{
    QFETCH(int, policy);
    QFETCH(int, width);
    ViewProbe view;
    const QSize before = view.Widget()->size();
    view.Impl()->setWidthPolicy(static_cast<CFxUIBaseView::UIWidthSizePolicy>(policy));
    QCOMPARE(view.width(), width);
    QCOMPARE(view.height(), -1);
    QCOMPARE(view.Impl()->m_preferredWidth, width);
    QCOMPARE(view.Impl()->m_preferredHeight, -1);
    QCOMPARE(view.Widget()->size(), before);
}

void tst_FxUIBaseView::addViewTakesTheChildAndTellsTheContainer()
{
    ViewProbe view;
    auto *child = new ViewProbe;
    view.addView(child, 1.5f);
    QCOMPARE(child->parent(), &view);
    QCOMPARE(view.Impl()->log, { QStringLiteral("add 1.5") });
    QVERIFY(!child->Widget()->parentWidget());
    view.addView(new ViewProbe);
    QCOMPARE(view.Impl()->log.last(), QStringLiteral("add 0"));
}

void tst_FxUIBaseView::childIsInTheTreeWhenTheContainerIsTold()
{
    ViewProbe view;
    view.addView(new ViewProbe);
    QVERIFY(view.Impl()->toldOfAChild);
    view.Impl()->toldOfAChild = false;
    view.insertView(new ViewProbe, 0);
    QVERIFY(view.Impl()->toldOfAChild);
}

void tst_FxUIBaseView::addViewOfAChildWithParentDoesNothing()
{
    ViewProbe first;
    ViewProbe second;
    auto *child = new ViewProbe;
    first.addView(child);
    second.addView(child);
    QCOMPARE(child->parent(), &first);
    QVERIFY(second.Impl()->log.isEmpty());
    QVERIFY(second.children().isEmpty());
    first.addView(child);
    QCOMPARE(first.Impl()->log.size(), 1);
}

void tst_FxUIBaseView::insertViewMovesAChildWithParent()
{
    ViewProbe first;
    ViewProbe second;
    auto *child = new ViewProbe;
    first.addView(child);
    second.insertView(child, 0, 2.0f);
    QCOMPARE(child->parent(), &second);
    QVERIFY(first.children().isEmpty());
    QCOMPARE(second.Impl()->log, { QStringLiteral("insert 0 2") });
    QCOMPARE(first.Impl()->log, { QStringLiteral("add 0") }); // isn't told of the loss
}

void tst_FxUIBaseView::insertViewPutsTheChildAtTheEndOfTheRecord()
{
    ViewProbe view;
    auto *first = new ViewProbe;
    auto *second = new ViewProbe;
    view.addView(first);
    view.insertView(second, 0);
    QCOMPARE(view.indexOf(first), 0);
    QCOMPARE(view.indexOf(second), 1);
    view.insertView(first, 0);
    QCOMPARE(view.indexOf(first), 1);
    QCOMPARE(view.Impl()->log.last(), QStringLiteral("insert 0 0"));
}

void tst_FxUIBaseView::addViewMakesAnImplementationOverAHandle()
{
    CFxUIBaseView view;
    view.setHandle(new QWidget);
    auto *child = new ViewProbe;
    view.addView(child);
    QVERIFY(view.impl);
    QCOMPARE(view.impl->owner, &view);
    QVERIFY(view.impl->GetFrontendClassName().isEmpty());
    QVERIFY(view.isEnabled());
    QCOMPARE(view.width(), 0);
    QCOMPARE(child->parent(), &view);
    QVERIFY(!child->Widget()->parentWidget());
}

void tst_FxUIBaseView::insertViewMakesAnImplementationOverAHandle()
{
    CFxUIBaseView view;
    view.setHandle(new QWidget);
    auto *child = new ViewProbe;
    view.insertView(child, 0);
    QVERIFY(view.impl);
    QCOMPARE(child->parent(), &view);
}

void tst_FxUIBaseView::addViewWithoutImplementationAndHandleMakesAChildAlone()
{
    CFxUIBaseView view;
    auto *added = new ViewProbe;
    auto *inserted = new ViewProbe;
    view.addView(added);
    view.insertView(inserted, 0);
    QCOMPARE(view.children(), (QList<CFxUIObject *> { added, inserted }));
    QVERIFY(!view.impl);
}

void tst_FxUIBaseView::nullChildIsLeftOut()
{
    ViewProbe view;
    view.addView(nullptr);
    view.insertView(nullptr, 0);
    view.removeView(nullptr);
    QVERIFY(view.children().isEmpty());
    QVERIFY(view.Impl()->log.isEmpty());
    QCOMPARE(view.indexOf(nullptr), -1);
}

void tst_FxUIBaseView::indexOfGivesTheOrderOfAdding()
{
    ViewProbe view;
    ViewProbe stranger;
    auto *first = new ViewProbe;
    auto *second = new ViewProbe;
    view.addView(first);
    view.addView(second);
    QCOMPARE(view.indexOf(first), 0);
    QCOMPARE(view.indexOf(second), 1);
    QCOMPARE(view.indexOf(&stranger), -1);
}

void tst_FxUIBaseView::removeViewCutsTheParentBeforeTheContainerActs()
{
    ViewProbe view;
    ViewProbe child;
    view.addView(&child);
    view.removeView(&child);
    QVERIFY(!child.parent());
    QVERIFY(view.children().isEmpty());
    QCOMPARE(view.Impl()->log.last(), QStringLiteral("remove"));
}

void tst_FxUIBaseView::removeViewOfAnotherViewsChildDoesNothing()
{
    ViewProbe first;
    ViewProbe second;
    auto *child = new ViewProbe;
    first.addView(child);
    second.removeView(child);
    QCOMPARE(child->parent(), &first);
    QVERIFY(second.Impl()->log.isEmpty());
    ViewProbe orphan;
    second.removeView(&orphan);
    QVERIFY(second.Impl()->log.isEmpty());
}

void tst_FxUIBaseView::operationsWithoutImplementationDoNothing()
{
    CFxUIBaseView view;
    view.setEnabled(false);
    view.setDisabled(true);
    view.update();
    view.setBusyState(true);
    view.setFocus();
    view.setFocus(1);
    view.setFocusPolicy(Qt::StrongFocus);
    view.setMinimumWidth(1);
    view.setMinimumHeight(1);
    view.setMaximumWidth(1);
    view.setMaximumHeight(1);
    view.setCornerRadius(1);
    view.setBorderWidth(1);
    view.setBorderWidth(1, 2, 3, 4);
    view.setBorderColor(1, 2, 3);
    QVERIFY(view.isEnabled());
    QVERIFY(!view.hasFocus());
    QVERIFY(!view.isVisible());
    QVERIFY(!view.impl);
}

void tst_FxUIBaseView::stateOfAViewWithoutImplementationIsKeptToo()
{
    CFxUIBaseView view;
    int calls = 0;
    view.aboutToShow().connect([&calls] { ++calls; });
    view.setVisible(true);
    QVERIFY(view.isVisible());
    QCOMPARE(calls, 1);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::red);
    view.setPalette(palette);
    QCOMPARE(view.palette(), palette);
    view.setEventAccepted(true);
    view.aboutToPassEventToParent().emit();
    view.hoverEnter().emit();
    view.hoverLeave().emit();
    QVERIFY(!view.getHandle());
}

void tst_FxUIBaseView::foreignHandleIsLeftAlone()
{
    ViewProbe view;
    QTimer foreign;
    view.Take(&foreign);
    view.setEnabled(false);
    view.setVisible(true);
    view.setFocus();
    view.setFocusPolicy(Qt::StrongFocus);
    view.setMinimumWidth(1);
    view.setMinimumHeight(1);
    view.setMaximumWidth(1);
    view.setMaximumHeight(1);
    view.setBorderWidth(1);
    view.setBorderWidth(1, 2, 3, 4);
    view.setBorderColor(1, 2, 3);
    view.update();
    QVERIFY(!view.isEnabled());
    QVERIFY(view.isVisible());
    QVERIFY(foreign.dynamicPropertyNames().isEmpty());
    view.setHandle(nullptr);
}

void tst_FxUIBaseView::genericPathMakesNoFrontend()
{
    ViewProbe view;
    QWidget *const widget = view.Widget();
    view.Impl()->CreateFrontendControl();
    QCOMPARE(view.getHandle(), widget); // no name, nothing asked for
    const std::unique_ptr<QWidget> kept(widget);
    view.Impl()->className = QStringLiteral("QLabel");
    view.Impl()->CreateFrontendControl();
    QVERIFY(!view.getHandle());

    CFxUIBaseView plain;
    CFxUIBaseViewImpl impl(&plain);
    QVERIFY(impl.GetFrontendClassName().isEmpty());
    impl.CreateFrontendControl();
    QVERIFY(!plain.getHandle());
}

void tst_FxUIBaseView::destructionReleasesTheWidgetLater()
{
    auto view = std::make_unique<ViewProbe>();
    const QPointer<QWidget> widget(view->Widget());
    view.reset();
    QVERIFY(widget);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

void tst_FxUIBaseView::widgetIsReleasedBeforeTheChildrenDie()
{
    auto view = std::make_unique<ViewProbe>();
    auto *child = new ViewProbe;
    view->addView(child);
    QStringList gone; // in the order of their deleteLater()
    connect(child->Widget(), &QObject::destroyed, this,
            [&gone] { gone.append(QStringLiteral("widget of the child")); });
    connect(view->Widget(), &QObject::destroyed, this,
            [&gone] { gone.append(QStringLiteral("widget of the view")); });
    view.reset();
    FlushDeferredDeletes();
    QCOMPARE(gone,
             (QStringList { QStringLiteral("widget of the view"),
                            QStringLiteral("widget of the child") }));
}

void tst_FxUIBaseView::destructionAsksForTheClassNameOnlyForAHandle()
{
    class Impl : public CFxUIBaseViewImpl {
    public:
        Impl(CFxUIObject *object, int *asked)
            : CFxUIBaseViewImpl(object)
            , m_asked(asked)
        {
        }

        QString GetFrontendClassName() override
        {
            ++*m_asked;
            return QStringLiteral("QTimer"); // isn't looked at
        }

    private:
        int *m_asked;
    };

    int asked = 0;
    {
        CFxUIBaseView view;
        view.impl = new Impl(&view, &asked);
    }
    QCOMPARE(asked, 0);
    const QPointer<QWidget> widget(new QWidget);
    {
        CFxUIBaseView view;
        view.impl = new Impl(&view, &asked);
        view.setHandle(widget);
    }
    QCOMPARE(asked, 1);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

void tst_FxUIBaseView::destructionLeavesAForeignHandle()
{
    const QPointer<QObject> foreign(new QObject);
    {
        ViewProbe view;
        view.Take(foreign);
    }
    FlushDeferredDeletes();
    QVERIFY(foreign);
    delete foreign;
}

void tst_FxUIBaseView::viewOverAWidgetWithoutImplementationReleasesIt()
{
    const QPointer<QWidget> widget(new QWidget);
    {
        CFxUIBaseView view;
        view.setHandle(widget);
    }
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIBaseView>(argc, argv);
}

#include "tst_FxUIBaseView.moc"
