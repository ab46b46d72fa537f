// The containers side by side. They differ on purpose; what each does on its own is tested with it.

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIRadioGroup.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUIVerticalLayout.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QScrollArea>

#include <memory>

namespace {

enum Trait {
    AddsWidgets = 1,
    InsertsWidgets = 2,
    TakesWidgetsOut = 4,
    WeighsWidgets = 8,
    HoldsOneWidget = 16,
    ShowsBusyState = 32
};

struct Container {
    const char *name;
    CFxUIBaseView *(*make)();
    int traits;
    QSizePolicy::Policy horizontal; // of an added child
    QSizePolicy::Policy vertical;
};

template <class View> CFxUIBaseView *New()
{
    return new View;
}

CFxUIBaseView *NewViewOverAWidget()
{
    auto *view = new CFxUIBaseView;
    view->setHandle(new QWidget);
    return view;
}

// What a child brings along, and keeps where the container doesn't overwrite it.
constexpr auto OwnPolicy = QSizePolicy::Fixed;

const Container Containers[] = {
    { "vertical layout", New<CFxUIVerticalLayout>,
      AddsWidgets | InsertsWidgets | TakesWidgetsOut | WeighsWidgets | ShowsBusyState,
      QSizePolicy::Preferred, QSizePolicy::Minimum },
    { "horizontal layout", New<CFxUIHorizontalLayout>, AddsWidgets | InsertsWidgets | WeighsWidgets,
      QSizePolicy::Preferred, QSizePolicy::Preferred },
    { "group box", New<CFxUIGroupBox>, AddsWidgets | InsertsWidgets | WeighsWidgets,
      QSizePolicy::Preferred, QSizePolicy::Minimum },
    { "scrollable area", New<CFxUIScrollableArea>, AddsWidgets | HoldsOneWidget,
      QSizePolicy::Preferred, QSizePolicy::Preferred },
    { "dock widget", [] { return static_cast<CFxUIBaseView *>(new CFxUIDockWidget(0)); }, 0,
      OwnPolicy, OwnPolicy },
    { "stacked widget", New<CFxUIStackedWidget>, 0, OwnPolicy, OwnPolicy },
    { "view over a widget", NewViewOverAWidget, 0, OwnPolicy, OwnPolicy },
};

QWidget *Widget(const CFxUIBaseView *view)
{
    QObject *handle = view->getHandle();
    return handle && handle->isWidgetType() ? static_cast<QWidget *>(handle) : nullptr;
}

QBoxLayout *QtLayout(const CFxUIBaseView *container)
{
    return Widget(container) ? qobject_cast<QBoxLayout *>(Widget(container)->layout()) : nullptr;
}

// Whether the container shows the child in a place of its own.
bool Holds(const CFxUIBaseView *container, const CFxUIBaseView *child)
{
    if (const auto *area = qobject_cast<QScrollArea *>(container->getHandle()))
        return area->widget() && area->widget() == Widget(child);
    const QBoxLayout *layout = QtLayout(container);
    return layout && layout->indexOf(Widget(child)) >= 0;
}

CFxUILabel *NewChild()
{
    auto *child = new CFxUILabel;
    Widget(child)->setSizePolicy(OwnPolicy, OwnPolicy);
    return child;
}

} // namespace

Q_DECLARE_METATYPE(Container)

class tst_Containers : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void addViewPlacesTheWidget_data() { AddContainers(); }

    void addViewPlacesTheWidget();

    void addViewLeavesAChildWithParent_data() { AddContainers(); }

    void addViewLeavesAChildWithParent();

    void insertViewPlacesTheWidget_data() { AddContainers(); }

    void insertViewPlacesTheWidget();

    void insertViewTakesAChildWithParent_data() { AddContainers(); }

    void insertViewTakesAChildWithParent();

    void removeViewTakesTheWidgetOut_data() { AddContainers(); }

    void removeViewTakesTheWidgetOut();

    void sizePolicyAfterAdding_data() { AddContainers(); }

    void sizePolicyAfterAdding();

    void weightBecomesTheStretch_data() { AddContainers(); }

    void weightBecomesTheStretch();

    void radioGroupTakesNoPlace_data() { AddContainers(); }

    void radioGroupTakesNoPlace();

    void secondChildReplacesTheFirst_data() { AddContainers(); }

    void secondChildReplacesTheFirst();

    void indexOfGivesTheOrderOfAdding_data() { AddContainers(); }

    void indexOfGivesTheOrderOfAdding();

    void busyStateShows_data() { AddContainers(); }

    void busyStateShows();

    void childrenGoWithTheContainer_data() { AddContainers(); }

    void childrenGoWithTheContainer();

    void childDeletedFirstLeavesTheContainer_data() { AddContainers(); }

    void childDeletedFirstLeavesTheContainer();

    void containerOutlivesItsWidget_data() { AddContainers(); }

    void containerOutlivesItsWidget();

private:
    static void AddContainers();
};

void tst_Containers::AddContainers()
{
    QTest::addColumn<Container>("container");
    for (const Container &container : Containers)
        QTest::newRow(container.name) << container;
}

void tst_Containers::addViewPlacesTheWidget()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *child = NewChild();
    view->addView(child);
    QCOMPARE(child->parent(), view.get());
    QCOMPARE(Holds(view.get(), child), bool(container.traits & AddsWidgets));
}

void tst_Containers::addViewLeavesAChildWithParent()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUIVerticalLayout other;
    CFxUILabel *child = NewChild();
    other.addView(child);
    view->addView(child);
    QCOMPARE(child->parent(), &other);
    QVERIFY(!Holds(view.get(), child));
    QVERIFY(Holds(&other, child));
}

void tst_Containers::insertViewPlacesTheWidget()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *first = NewChild();
    CFxUILabel *second = NewChild();
    view->insertView(second, 0);
    view->insertView(first, 0);
    const bool inserts = container.traits & InsertsWidgets;
    QCOMPARE(Holds(view.get(), first), inserts);
    QCOMPARE(Holds(view.get(), second), inserts);
    if (inserts)
        QCOMPARE(QtLayout(view.get())->indexOf(Widget(first)), 0);
}

void tst_Containers::insertViewTakesAChildWithParent()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUIVerticalLayout other;
    CFxUILabel *child = NewChild();
    other.addView(child);
    view->insertView(child, 0);
    QCOMPARE(child->parent(), view.get());
    const bool inserts = container.traits & InsertsWidgets;
    QCOMPARE(Holds(view.get(), child), inserts);
    // Where nothing is placed anew the widget stays with the container that had it.
    QCOMPARE(Holds(&other, child), !inserts);
}

void tst_Containers::removeViewTakesTheWidgetOut()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    const std::unique_ptr<CFxUILabel> child(NewChild());
    view->addView(child.get());
    const QWidget *parentWidget = Widget(child.get())->parentWidget();
    view->removeView(child.get());
    QVERIFY(!child->parent());
    QVERIFY(view->children().isEmpty());
    const bool adds = container.traits & AddsWidgets;
    const bool takesOut = container.traits & TakesWidgetsOut;
    QCOMPARE(Holds(view.get(), child.get()), adds && !takesOut);
    QCOMPARE(Widget(child.get())->parentWidget(), parentWidget);
}

void tst_Containers::sizePolicyAfterAdding()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *added = NewChild();
    view->addView(added);
    QCOMPARE(Widget(added)->sizePolicy(), QSizePolicy(container.horizontal, container.vertical));
    CFxUILabel *inserted = NewChild();
    view->insertView(inserted, 0);
    QCOMPARE(Widget(inserted)->sizePolicy(),
             container.traits & InsertsWidgets
                 ? QSizePolicy(container.horizontal, container.vertical)
                 : QSizePolicy(OwnPolicy, OwnPolicy));
}

void tst_Containers::weightBecomesTheStretch()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    view->addView(NewChild(), 2.9f);
    view->insertView(NewChild(), 0, 1.5f);
    QCOMPARE(QtLayout(view.get()) != nullptr, bool(container.traits & WeighsWidgets));
    if (!(container.traits & WeighsWidgets))
        return; // there is nothing that could have a stretch
    QCOMPARE(QtLayout(view.get())->stretch(0), 1);
    QCOMPARE(QtLayout(view.get())->stretch(1), 2);
}

void tst_Containers::radioGroupTakesNoPlace()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    auto *added = new CFxUIRadioGroup;
    auto *inserted = new CFxUIRadioGroup;
    view->addView(added, 1.0f);
    view->insertView(inserted, 0, 1.0f);
    QCOMPARE(added->parent(), view.get());
    QCOMPARE(inserted->parent(), view.get());
    QVERIFY(!QtLayout(view.get()) || QtLayout(view.get())->isEmpty());
    QVERIFY(!Holds(view.get(), added));
}

void tst_Containers::secondChildReplacesTheFirst()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *first = NewChild();
    CFxUILabel *second = NewChild();
    view->addView(first);
    view->addView(second);
    QCOMPARE(view->children(), (QList<CFxUIObject *> { first, second }));
    QCOMPARE(first->getHandle() == nullptr, bool(container.traits & HoldsOneWidget));
    QCOMPARE(Holds(view.get(), second), bool(container.traits & AddsWidgets));
}

void tst_Containers::indexOfGivesTheOrderOfAdding()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *first = NewChild();
    CFxUILabel *second = NewChild();
    view->addView(first);
    view->insertView(second, 0);
    QCOMPARE(view->CFxUIBaseView::indexOf(first), 0);
    QCOMPARE(view->CFxUIBaseView::indexOf(second), 1);
}

void tst_Containers::busyStateShows()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    view->setBusyState(false);
    if (QWidget *widget = Widget(view.get())) {
        widget->resize(200, 100);
        const QImage before = widget->grab().toImage();
        view->setBusyState(true);
        QCOMPARE(widget->grab().toImage() != before, bool(container.traits & ShowsBusyState));
    }
    view->setBusyState(false);
}

void tst_Containers::childrenGoWithTheContainer()
{
    QFETCH(Container, container);
    std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *child = NewChild();
    const QPointer<QWidget> widget(Widget(child));
    view->addView(child);
    view.reset();
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

// The child's widget stays in its place until the event loop next runs.
void tst_Containers::childDeletedFirstLeavesTheContainer()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *child = NewChild();
    const QPointer<QWidget> widget(Widget(child));
    view->addView(child);
    delete child;
    QVERIFY(view->children().isEmpty());
    QVERIFY(widget);
    FlushDeferredDeletes();
    QVERIFY(!widget);
    CFxUILabel *next = NewChild();
    view->addView(next);
    QCOMPARE(view->children(), QList<CFxUIObject *> { next });
    QCOMPARE(Holds(view.get(), next), bool(container.traits & AddsWidgets));
    if (const QBoxLayout *layout = QtLayout(view.get()))
        QCOMPARE(layout->count(), 1);
}

// A host that deletes the widget takes the placed children's widgets with it, and no more.
void tst_Containers::containerOutlivesItsWidget()
{
    QFETCH(Container, container);
    const std::unique_ptr<CFxUIBaseView> view(container.make());
    CFxUILabel *child = NewChild();
    view->addView(child);
    const bool places = container.traits & AddsWidgets;
    delete view->getHandle();
    QVERIFY(!view->getHandle());
    QCOMPARE(child->getHandle() == nullptr, places);
    view->insertView(NewChild(), 0);
    view->addView(NewChild());
    QCOMPARE(view->children().size(), 3);
    view->removeView(child);
    const std::unique_ptr<CFxUIBaseView> removed(child);
    QCOMPARE(view->children().size(), 2);
}

int main(int argc, char **argv)
{
    return RunTest<tst_Containers>(argc, argv);
}

#include "tst_Containers.moc"
