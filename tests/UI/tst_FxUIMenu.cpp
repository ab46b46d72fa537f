#include "UI/FxUIMenu.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIAction.h"
#include "UI/FxUILabel.h"
#include "UI/Impl/FxUIMenuImpl.h"

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIObject, CFxUIMenu>);
static_assert(!std::is_base_of_v<CFxUIBaseView, CFxUIMenu>);
static_assert(!std::is_copy_constructible_v<CFxUIMenu>);

namespace {

QMenu *QtMenu(const CFxUIMenu &menu)
{
    return qobject_cast<QMenu *>(menu.getHandle());
}

QAction *QtAction(const CFxUIAction *action)
{
    return qobject_cast<QAction *>(action->getHandle());
}

// A menu whose QMenu and QActions die with it: the library leaves the QActions behind.
class ScopedMenu {
public:
    CFxUIMenu menu;

    CFxUIAction *Add(const char *text)
    {
        auto *action = new CFxUIAction;
        action->setText(QString::fromLatin1(text));
        menu.addAction(action);
        m_handles.emplace_back(action->getHandle());
        return action;
    }

    ~ScopedMenu()
    {
        if (QMenu *qtMenu = QtMenu(menu))
            qtMenu->hide();
    }

private:
    std::vector<std::unique_ptr<QObject>> m_handles;
};

class NarrowMenu : public QMenu {
    Q_OBJECT

public:
    explicit NarrowMenu(int width)
        : m_width(width)
    {
    }

    QSize sizeHint() const override { return { m_width, 50 }; }

private:
    int m_width;
};

class MenuProbe : public CFxUIMenuImpl {
public:
    using CFxUIMenuImpl::CFxUIMenuImpl;
    using CFxUIMenuImpl::m_actions;

    static std::size_t ListSize(const CFxUIMenu &menu)
    {
        return ((*static_cast<const CFxUIMenuImpl *>(menu.impl)).*(&MenuProbe::m_actions)).size();
    }
};

// A view on the screen, away from its edges.
void ShowAt(const CFxUIBaseView &view, const QRect &geometry)
{
    auto *widget = static_cast<QWidget *>(view.getHandle());
    widget->setGeometry(geometry);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    QCOMPARE(widget->size(), geometry.size());
}

} // namespace

class tst_FxUIMenu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void handleIsAQMenuWithoutParentAndWithItsSheet();
    void frontendClassNameIsQMenu();
    void addActionAppendsAndTakesOwnership();
    void addActionNeverFillsTheList();
    void addActionOfAnotherMenuMovesTheParentAlone();
    void addActionOfNullDoesNothing();
    void addActionWithoutAHandleTakesOwnershipAlone();
    void addSeparatorIsNotWrapped();
    void addSeparatorWithoutAQMenuGivesNull();
    void clearLeavesTheActionsAliveAsChildren();
    void clearWalksTheListThatIsFilledByHand();
    void clearWithoutHandleDoesNothing();
    void popupOpensBelowTheViewWithAlignedRightEdges_data();
    void popupOpensBelowTheViewWithAlignedRightEdges();
    void popupUsesTheMenusOwnWidth();
    void popupDoesNotBlock();
    void popupWithoutAWidgetDoesNothing();
    void popupWithoutAQMenuDoesNothing();
    void disabledEntryStaysSelectable();
    void clickedCheckableEntryReportsItsStateAlone();
    void qmenuGoesWithTheEventLoopAndTheActionsAtOnce();
};

void tst_FxUIMenu::handleIsAQMenuWithoutParentAndWithItsSheet()
{
    const CFxUIMenu menu;
    QVERIFY(QtMenu(menu));
    QVERIFY(!QtMenu(menu)->parent());
    QCOMPARE(QtMenu(menu)->styleSheet(), QStringLiteral("QMenu { }"));
    QVERIFY(QtMenu(menu)->isEmpty());
}

void tst_FxUIMenu::frontendClassNameIsQMenu()
{
    const CFxUIMenu menu;
    QCOMPARE(menu.impl->GetFrontendClassName(), QStringLiteral("QMenu"));
}

void tst_FxUIMenu::addActionAppendsAndTakesOwnership()
{
    ScopedMenu scoped;
    const CFxUIAction *first = scoped.Add("first");
    const CFxUIAction *second = scoped.Add("second");
    QCOMPARE(QtMenu(scoped.menu)->actions(),
             QList<QAction *>({ QtAction(first), QtAction(second) }));
    QCOMPARE(first->parent(), &scoped.menu);
    QCOMPARE(scoped.menu.children().size(), 2);
    QVERIFY(!QtAction(first)->parent()); // the QMenu shows it and doesn't own it
}

void tst_FxUIMenu::addActionNeverFillsTheList()
{
    ScopedMenu scoped;
    scoped.Add("first");
    QCOMPARE(MenuProbe::ListSize(scoped.menu), std::size_t(0));
}

void tst_FxUIMenu::addActionOfAnotherMenuMovesTheParentAlone()
{
    ScopedMenu from;
    CFxUIMenu to;
    CFxUIAction *action = from.Add("entry");
    to.addAction(action);
    QCOMPARE(action->parent(), &to);
    QVERIFY(from.menu.children().isEmpty());
    QVERIFY(QtMenu(from.menu)->actions().contains(QtAction(action)));
    QVERIFY(QtMenu(to)->actions().contains(QtAction(action)));
    action->setParent(&from.menu); // dies with it
}

void tst_FxUIMenu::addActionOfNullDoesNothing()
{
    CFxUIMenu menu;
    menu.addAction(nullptr);
    QVERIFY(menu.children().isEmpty());
    QVERIFY(QtMenu(menu)->isEmpty());
}

void tst_FxUIMenu::addActionWithoutAHandleTakesOwnershipAlone()
{
    CFxUIMenu menu;
    auto *action = new CFxUIAction;
    const std::unique_ptr<QObject> handle(action->getHandle());
    action->setHandle(nullptr);
    menu.addAction(action);
    QCOMPARE(action->parent(), &menu);
    QVERIFY(QtMenu(menu)->isEmpty());
}

void tst_FxUIMenu::addSeparatorIsNotWrapped()
{
    CFxUIMenu menu;
    const QAction *separator = menu.addSeparator();
    QVERIFY(separator);
    QVERIFY(separator->isSeparator());
    QCOMPARE(QtMenu(menu)->actions().size(), 1);
    QVERIFY(menu.children().isEmpty());
}

void tst_FxUIMenu::addSeparatorWithoutAQMenuGivesNull()
{
    CFxUIMenu menu;
    const std::unique_ptr<QObject> handle(menu.getHandle());
    menu.setHandle(nullptr);
    QVERIFY(!menu.addSeparator());
    QLabel foreign;
    menu.setHandle(&foreign);
    QVERIFY(!menu.addSeparator());
    menu.setHandle(nullptr);
}

void tst_FxUIMenu::clearLeavesTheActionsAliveAsChildren()
{
    ScopedMenu scoped;
    CFxUIAction *action = scoped.Add("entry");
    const QPointer<QAction> separator(scoped.menu.addSeparator());
    scoped.menu.clear();
    QVERIFY(!separator); // the QMenu's own
    QVERIFY(QtMenu(scoped.menu)->isEmpty());
    QCOMPARE(scoped.menu.children(), QList<CFxUIObject *>({ action }));
    QCOMPARE(action->parent(), &scoped.menu);
    QCOMPARE(action->text(), QStringLiteral("entry"));
    scoped.menu.addAction(action);
    QCOMPARE(QtMenu(scoped.menu)->actions(), QList<QAction *>({ QtAction(action) }));
}

void tst_FxUIMenu::clearWalksTheListThatIsFilledByHand()
{
    CFxUIObject owner;
    MenuProbe impl(&owner);
    auto *action = new CFxUIAction;
    const std::unique_ptr<QObject> handle(action->getHandle());
    action->setParent(&owner);
    impl.m_actions = { action, nullptr };
    impl.clear();
    QVERIFY(impl.m_actions.empty());
    QVERIFY(owner.children().isEmpty());
}

void tst_FxUIMenu::clearWithoutHandleDoesNothing()
{
    CFxUIMenu menu;
    const std::unique_ptr<QObject> handle(menu.getHandle());
    menu.addSeparator();
    menu.setHandle(nullptr);
    menu.clear();
    QCOMPARE(static_cast<QMenu *>(handle.get())->actions().size(), 1);
}

void tst_FxUIMenu::popupOpensBelowTheViewWithAlignedRightEdges_data()
{
    QTest::addColumn<int>("menuWidth");
    QTest::addColumn<QPoint>("point");
    QTest::newRow("narrower than the view") << 60 << QPoint(40, 20);
    QTest::newRow("as wide as the view") << 100 << QPoint(0, 20);
    QTest::newRow("wider than the view") << 170 << QPoint(-70, 20);
}

void tst_FxUIMenu::popupOpensBelowTheViewWithAlignedRightEdges()
{
    QFETCH(int, menuWidth);
    QFETCH(QPoint, point);
    ScopedMenu scoped;
    const std::unique_ptr<QObject> own(scoped.menu.getHandle());
    NarrowMenu narrow(menuWidth);
    scoped.menu.setHandle(&narrow);
    scoped.Add("first");
    scoped.Add("second");
    const CFxUILabel view;
    ShowAt(view, QRect(300, 200, 100, 20));
    scoped.menu.popup(const_cast<CFxUILabel *>(&view));
    QVERIFY(narrow.isVisible());
    QCOMPARE(narrow.pos(), static_cast<QWidget *>(view.getHandle())->mapToGlobal(point));
    narrow.hide();
    scoped.menu.setHandle(own.get());
}

void tst_FxUIMenu::popupUsesTheMenusOwnWidth()
{
    ScopedMenu scoped;
    scoped.Add("an entry");
    CFxUILabel view;
    ShowAt(view, QRect(300, 200, 150, 30));
    scoped.menu.popup(&view);
    const QPoint right(150 - QtMenu(scoped.menu)->sizeHint().width(), 30);
    QCOMPARE(QtMenu(scoped.menu)->pos(),
             static_cast<QWidget *>(view.getHandle())->mapToGlobal(right));
}

void tst_FxUIMenu::popupDoesNotBlock()
{
    ScopedMenu scoped;
    scoped.Add("an entry");
    CFxUILabel view;
    ShowAt(view, QRect(300, 200, 150, 30));
    scoped.menu.popup(&view);
    QVERIFY(QtMenu(scoped.menu)->isVisible());
    QTest::keyClick(QtMenu(scoped.menu), Qt::Key_Escape);
    QVERIFY(!QtMenu(scoped.menu)->isVisible());
}

void tst_FxUIMenu::popupWithoutAWidgetDoesNothing()
{
    ScopedMenu scoped;
    scoped.Add("an entry");
    CFxUILabel view;
    const std::unique_ptr<QObject> handle(view.getHandle());
    view.setHandle(nullptr);
    scoped.menu.popup(&view);
    QVERIFY(!QtMenu(scoped.menu)->isVisible());
    QObject noWidget;
    view.setHandle(&noWidget);
    scoped.menu.popup(&view);
    QVERIFY(!QtMenu(scoped.menu)->isVisible());
    scoped.menu.popup(nullptr);
    QVERIFY(!QtMenu(scoped.menu)->isVisible());
    view.setHandle(nullptr);
}

void tst_FxUIMenu::popupWithoutAQMenuDoesNothing()
{
    CFxUIMenu menu;
    const std::unique_ptr<QObject> handle(menu.getHandle());
    CFxUILabel view;
    QLabel foreign;
    menu.setHandle(&foreign);
    menu.popup(&view);
    menu.setHandle(nullptr);
    menu.popup(&view);
    QVERIFY(!static_cast<QMenu *>(handle.get())->isVisible());
    QVERIFY(!foreign.isVisible());
}

void tst_FxUIMenu::disabledEntryStaysSelectable()
{
    ScopedMenu scoped;
    CFxUIAction *action = scoped.Add("entry");
    action->setEnabled(false);
    int emissions = 0;
    action->triggered().connect([&emissions](bool) { ++emissions; });
    CFxUILabel view;
    ShowAt(view, QRect(300, 200, 150, 30));
    scoped.menu.popup(&view);
    QTest::keyClick(QtMenu(scoped.menu), Qt::Key_Down);
    QTest::keyClick(QtMenu(scoped.menu), Qt::Key_Return);
    QCOMPARE(emissions, 1);
}

void tst_FxUIMenu::clickedCheckableEntryReportsItsStateAlone()
{
    ScopedMenu scoped;
    CFxUIAction *action = scoped.Add("entry");
    action->setCheckable(true);
    QList<bool> emitted;
    action->triggered().connect([&emitted](bool checked) { emitted.append(checked); });
    CFxUILabel view;
    ShowAt(view, QRect(300, 200, 150, 30));
    scoped.menu.popup(&view);
    QMenu *menu = QtMenu(scoped.menu);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(QtAction(action)).center());
    QCOMPARE(emitted, QList<bool>({ true }));
    QVERIFY(QtAction(action)->isChecked());
    QVERIFY(!action->isChecked());
}

void tst_FxUIMenu::qmenuGoesWithTheEventLoopAndTheActionsAtOnce()
{
    auto menu = std::make_unique<CFxUIMenu>();
    const QPointer<QObject> widget(menu->getHandle());
    auto *action = new CFxUIAction;
    const std::unique_ptr<QObject> handle(action->getHandle());
    int emissions = 0;
    action->triggered().connect([&emissions](bool) { ++emissions; });
    menu->addAction(action);
    menu.reset();
    QVERIFY(widget);
    static_cast<QAction *>(handle.get())->trigger();
    QCOMPARE(emissions, 0);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIMenu>(argc, argv);
}

#include "tst_FxUIMenu.moc"
