#include "UI/FxUIBaseView.h"

#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUITimer.h"
#include "ViewProbe.h"

#include <QtGui/QFocusEvent>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>

namespace {

// Counts what it paints, and keeps the reason of the last focus.
class Watched : public QWidget {
public:
    int paints = 0;
    Qt::FocusReason reason = Qt::NoFocusReason;

protected:
    void paintEvent(QPaintEvent * /*event*/) override { ++paints; }

    void focusInEvent(QFocusEvent *event) override { reason = event->reason(); }
};

// Tells when Qt has changed something about it.
class Reporting : public QWidget {
public:
    std::function<void()> changed = [] {};

    void setVisible(bool visible) override
    {
        changed();
        QWidget::setVisible(visible);
    }

protected:
    void changeEvent(QEvent * /*event*/) override { changed(); }
};

} // namespace

class tst_FxUIBaseViewState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void enabledGoesToTheWidget();
    void stateIsWrittenBeforeTheWidgetChanges();
    void disabledIsTheOpposite();
    void enabledIsStoredWhateverTheHandleIs();
    void visibleGoesToTheWidget();
    void visibleGoesThroughTheVirtualOperation();
    void showingEmitsAboutToShowBeforeTheWidgetShows();
    void hidingEmitsNothing();
    void slotMayCancelTheShowing();
    void blockedViewShowsInSilence();
    void aboutToShowComesAtEachShowing();
    void signalsHaveTheViewAsOwner();

    void setFocusGivesOtherFocusReason();
    void setFocusWithANumberDoesNothing();
    void hasFocusIsNotKeptUpToDate();
    void focusPolicyIsPassedOnUnchanged_data();
    void focusPolicyIsPassedOnUnchanged();
    void tabOrderIsTheWidgets();
    void tabOrderTakesWhatHasNoWidgetAsNull();
    void backgroundRoleIsBase();

    void sizeIsARecordAlone();
    void preferableSizeIsARecordAlone();
    void sizeWithoutImplementationIsMinusOne();
    void resizeDoesNotReportASize();
    void reportedSizeIsStored();
    void limitsGoToTheWidgetAlone();
    void updateRepaintsTheWidget();
    void busyStateOnlyWritesTheFlag();
    void eventAcceptedIsStored();
    void eventOperationsDoNothing();
};

void tst_FxUIBaseViewState::enabledGoesToTheWidget()
{
    ViewProbe view;
    view.setEnabled(false);
    QVERIFY(!view.isEnabled());
    QVERIFY(!view.Widget()->isEnabled());
    QCOMPARE(view.Impl()->log, { QStringLiteral("enabled 0") });
    view.setEnabled(true);
    QVERIFY(view.isEnabled());
    QVERIFY(view.Widget()->isEnabled());
}

void tst_FxUIBaseViewState::stateIsWrittenBeforeTheWidgetChanges()
{
    ViewProbe view;
    auto *widget = new Reporting;
    view.Take(widget);
    QStringList seen;
    widget->changed = [&] {
        seen.append(QStringLiteral("enabled %1 visible %2 text %3")
                        .arg(view.isEnabled())
                        .arg(view.isVisible())
                        .arg(view.palette().color(QPalette::Text).name()));
    };
    const auto takeSeen = [&seen] { return std::exchange(seen, QStringList()).value(0); };
    QPalette palette;
    palette.setColor(QPalette::Text, QColor(1, 2, 3));
    view.setPalette(palette);
    QCOMPARE(takeSeen(), QStringLiteral("enabled 1 visible 0 text #010203"));
    view.setEnabled(false);
    QCOMPARE(takeSeen(), QStringLiteral("enabled 0 visible 0 text #010203"));
    view.setVisible(true);
    QCOMPARE(takeSeen(), QStringLiteral("enabled 0 visible 1 text #010203"));
    view.setVisible(false);
    QCOMPARE(takeSeen(), QStringLiteral("enabled 0 visible 0 text #010203"));
    widget->changed = [] {};
}

void tst_FxUIBaseViewState::disabledIsTheOpposite()
{
    ViewProbe view;
    view.setDisabled(true);
    QVERIFY(!view.isEnabled());
    view.setDisabled(false);
    QVERIFY(view.isEnabled());
    QCOMPARE(view.Impl()->log,
             (QStringList { QStringLiteral("enabled 0"), QStringLiteral("enabled 1") }));
}

void tst_FxUIBaseViewState::enabledIsStoredWhateverTheHandleIs()
{
    ViewProbe view;
    view.Take(nullptr);
    view.setEnabled(false);
    QVERIFY(!view.isEnabled());
    QObject foreign;
    view.setHandle(&foreign);
    view.setEnabled(true);
    QVERIFY(view.isEnabled());
}

void tst_FxUIBaseViewState::visibleGoesToTheWidget()
{
    ViewProbe view;
    QVERIFY(!view.isVisible());
    view.setVisible(true);
    QVERIFY(view.isVisible());
    QVERIFY(view.Widget()->isVisible());
    view.Widget()->hide();
    QVERIFY(view.isVisible()); // the widget isn't asked
    view.setVisible(false);
    QVERIFY(!view.isVisible());
}

void tst_FxUIBaseViewState::visibleGoesThroughTheVirtualOperation()
{
    class Refusing : public QWidget {
    public:
        void setVisible(bool visible) override { calls.append(visible); }

        QList<bool> calls;
    };

    ViewProbe view;
    auto *widget = new Refusing;
    view.Take(widget);
    view.setVisible(true);
    view.setVisible(false);
    QCOMPARE(widget->calls, (QList<bool> { true, false }));
    QVERIFY(!widget->isVisible());
}

void tst_FxUIBaseViewState::showingEmitsAboutToShowBeforeTheWidgetShows()
{
    ViewProbe view;
    bool seenVisible = false;
    bool widgetVisible = true;
    view.aboutToShow().connect([&] {
        seenVisible = view.isVisible();
        widgetVisible = view.Widget()->isVisible();
    });
    view.setVisible(true);
    QVERIFY(seenVisible);
    QVERIFY(!widgetVisible);
    QVERIFY(view.Widget()->isVisible());
}

void tst_FxUIBaseViewState::hidingEmitsNothing()
{
    ViewProbe view;
    int calls = 0;
    view.aboutToShow().connect([&calls] { ++calls; });
    view.setVisible(false);
    QCOMPARE(calls, 0);
}

void tst_FxUIBaseViewState::slotMayCancelTheShowing()
{
    ViewProbe view;
    view.aboutToShow().connect([&view] { view.setVisible(false); });
    view.setVisible(true);
    QVERIFY(!view.isVisible());
    QVERIFY(!view.Widget()->isVisible());
}

void tst_FxUIBaseViewState::blockedViewShowsInSilence()
{
    ViewProbe view;
    int calls = 0;
    view.aboutToShow().connect([&calls] { ++calls; });
    view.blockSignals(true);
    view.setVisible(true);
    QCOMPARE(calls, 0);
    QVERIFY(view.isVisible());
    QVERIFY(view.Widget()->isVisible());
}

void tst_FxUIBaseViewState::aboutToShowComesAtEachShowing()
{
    ViewProbe view;
    int calls = 0;
    view.aboutToShow().connect([&calls] { ++calls; });
    view.setVisible(true);
    view.setVisible(true);
    QCOMPARE(calls, 2);
}

void tst_FxUIBaseViewState::signalsHaveTheViewAsOwner()
{
    ViewProbe view;
    CFxUIObject *const expected = &view;
    QCOMPARE(view.aboutToPassEventToParent().owner, expected);
    QCOMPARE(view.aboutToShow().owner, expected);
    QCOMPARE(view.hoverEnter().owner, expected);
    QCOMPARE(view.hoverLeave().owner, expected);
    QCOMPARE(&view.aboutToPassEventToParent(), &view.Impl()->aboutToPassEventToParent());
    QCOMPARE(&view.aboutToShow(), &view.Impl()->aboutToShow());
    QCOMPARE(&view.hoverEnter(), &view.Impl()->hoverEnter());
    QCOMPARE(&view.hoverLeave(), &view.Impl()->hoverLeave());
    QVERIFY(view.aboutToPassEventToParent().empty());
    QVERIFY(view.aboutToShow().empty());
    QVERIFY(view.hoverEnter().empty());
    QVERIFY(view.hoverLeave().empty());
}

void tst_FxUIBaseViewState::setFocusGivesOtherFocusReason()
{
    ViewProbe view;
    QWidget window;
    auto *widget = new Watched;
    view.Take(widget);
    widget->setParent(&window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    view.setFocus();
    QVERIFY(widget->hasFocus());
    QCOMPARE(widget->reason, Qt::OtherFocusReason);
}

void tst_FxUIBaseViewState::setFocusWithANumberDoesNothing()
{
    ViewProbe view;
    view.Widget()->show();
    view.Widget()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(view.Widget()));
    view.setFocus(5);
    QVERIFY(!view.Widget()->hasFocus());
    view.setFocus(Qt::OtherFocusReason);
    QVERIFY(!view.Widget()->hasFocus());
}

void tst_FxUIBaseViewState::hasFocusIsNotKeptUpToDate()
{
    ViewProbe view;
    view.Widget()->show();
    view.Widget()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(view.Widget()));
    view.setFocus();
    QVERIFY(view.Widget()->hasFocus());
    QVERIFY(!view.hasFocus());
    view.Impl()->m_hasFocus = true;
    QVERIFY(view.hasFocus());
}

void tst_FxUIBaseViewState::focusPolicyIsPassedOnUnchanged_data()
{
    QTest::addColumn<int>("policy");
    QTest::newRow("tab") << int(Qt::TabFocus);
    QTest::newRow("strong") << int(Qt::StrongFocus);
    QTest::newRow("wheel") << int(Qt::WheelFocus);
    QTest::newRow("none") << int(Qt::NoFocus);
}

void tst_FxUIBaseViewState::focusPolicyIsPassedOnUnchanged()
{
    QFETCH(int, policy);
    ViewProbe view;
    view.setFocusPolicy(policy);
    QCOMPARE(int(view.Widget()->focusPolicy()), policy);
}

void tst_FxUIBaseViewState::tabOrderIsTheWidgets()
{
    ViewProbe first;
    ViewProbe second;
    ViewProbe third;
    QWidget window;
    for (ViewProbe *view : { &first, &second, &third }) {
        view->Widget()->setParent(&window);
        view->setFocusPolicy(Qt::StrongFocus);
    }
    CFxUIBaseView::setTabOrder(&first, &third);
    QCOMPARE(first.Widget()->nextInFocusChain(), third.Widget());
}

void tst_FxUIBaseViewState::tabOrderTakesWhatHasNoWidgetAsNull()
{
    ViewProbe first;
    ViewProbe second;
    CFxUITimer timer;
    QWidget window;
    first.Widget()->setParent(&window);
    second.Widget()->setParent(&window);
    const QWidget *next = first.Widget()->nextInFocusChain();
    CFxUIBaseView::setTabOrder(&first, &timer);
    CFxUIBaseView::setTabOrder(&timer, &first);
    CFxUIBaseView::setTabOrder(&first, nullptr);
    CFxUIBaseView::setTabOrder(nullptr, nullptr);
    QCOMPARE(first.Widget()->nextInFocusChain(), next);
}

void tst_FxUIBaseViewState::backgroundRoleIsBase()
{
    ViewProbe view;
    QCOMPARE(view.backgroundRole(), 9);
    QCOMPARE(view.backgroundRole(), int(QPalette::Base));
    CFxUIBaseView plain;
    QCOMPARE(plain.backgroundRole(), 9);
}

void tst_FxUIBaseViewState::sizeIsARecordAlone()
{
    ViewProbe view;
    const QSize before = view.Widget()->size();
    view.setWidth(50);
    QCOMPARE(view.width(), 50);
    view.setHeight(60);
    QCOMPARE(view.height(), 60);
    view.resize(70, 80);
    QCOMPARE(view.width(), 70);
    QCOMPARE(view.height(), 80);
    QCOMPARE(view.Widget()->size(), before);
    QCOMPARE(view.Impl()->m_preferredWidth, 0);
    view.Widget()->resize(11, 12);
    QCOMPARE(view.width(), 70);
}

void tst_FxUIBaseViewState::preferableSizeIsARecordAlone()
{
    ViewProbe view;
    const QSize before = view.Widget()->size();
    const QSize hint = view.Widget()->sizeHint();
    view.setPreferableSize(90, 91);
    QCOMPARE(view.width(), 90);
    QCOMPARE(view.height(), 91);
    QCOMPARE(view.Impl()->m_preferredWidth, 90);
    QCOMPARE(view.Impl()->m_preferredHeight, 91);
    QCOMPARE(view.Widget()->size(), before);
    QCOMPARE(view.Widget()->sizeHint(), hint);
}

void tst_FxUIBaseViewState::sizeWithoutImplementationIsMinusOne()
{
    CFxUIBaseView view;
    view.setWidth(5);
    view.setHeight(6);
    view.resize(7, 8);
    view.setPreferableSize(9, 10);
    QCOMPARE(view.width(), -1);
    QCOMPARE(view.height(), -1);
    QVERIFY(!view.impl);
}

void tst_FxUIBaseViewState::resizeDoesNotReportASize()
{
    ViewProbe view;
    view.resize(5, 6);
    view.setWidth(7);
    view.setPreferableSize(8, 9);
    QVERIFY(view.Impl()->log.isEmpty());
}

void tst_FxUIBaseViewState::reportedSizeIsStored()
{
    ViewProbe view;
    view.Impl()->OnSizeChanged(21, 22);
    QCOMPARE(view.width(), 21);
    QCOMPARE(view.height(), 22);
    QCOMPARE(view.Impl()->m_preferredWidth, 0);
}

void tst_FxUIBaseViewState::limitsGoToTheWidgetAlone()
{
    ViewProbe view;
    view.setMinimumWidth(31);
    view.setMinimumHeight(32);
    view.setMaximumWidth(331);
    view.setMaximumHeight(332);
    QCOMPARE(view.Widget()->minimumSize(), QSize(31, 32));
    QCOMPARE(view.Widget()->maximumSize(), QSize(331, 332));
    QCOMPARE(view.width(), 0);
    QCOMPARE(view.height(), 0);
}

void tst_FxUIBaseViewState::updateRepaintsTheWidget()
{
    ViewProbe view;
    auto *widget = new Watched;
    view.Take(widget);
    widget->show();
    QTRY_VERIFY(widget->paints > 0);
    QCoreApplication::processEvents();
    widget->paints = 0;
    view.update();
    QCOMPARE(widget->paints, 0);
    QCOMPARE(view.Impl()->log, { QStringLiteral("update") });
    QTRY_VERIFY(widget->paints > 0);
}

void tst_FxUIBaseViewState::busyStateOnlyWritesTheFlag()
{
    ViewProbe view;
    view.setBusyState(true);
    QVERIFY(view.Impl()->m_busy);
    QCOMPARE(view.Impl()->log, { QStringLiteral("busy 1") });
    view.setBusyState(false);
    QVERIFY(!view.Impl()->m_busy);
}

void tst_FxUIBaseViewState::eventAcceptedIsStored()
{
    ViewProbe view;
    view.setEventAccepted(true);
    QVERIFY(view.Impl()->m_eventAccepted);
    view.setEventAccepted(false);
    QVERIFY(!view.Impl()->m_eventAccepted);
}

void tst_FxUIBaseViewState::eventOperationsDoNothing()
{
    ViewProbe view;
    const QSize before = view.Widget()->size();
    CFxUIShowEvent show;
    CFxUIHideEvent hide;
    CFxUIPaintEvent paint(QRect(0, 0, 1, 1));
    CFxUIResizeEvent resize(QSize(5, 6), before);
    CFxUIFocusEvent focus(CFxUIEvent::FocusIn, CFxUIFocusEvent::OtherFocusReason);
    view.showEvent(&show);
    view.hideEvent(&hide);
    view.paintEvent(&paint);
    view.resizeEvent(&resize);
    view.focusInEvent(&focus);
    view.focusOutEvent(&focus);
    QVERIFY(view.Impl()->log.isEmpty());
    QVERIFY(!view.isVisible());
    QVERIFY(!view.hasFocus());
    QCOMPARE(view.width(), 0);
    QCOMPARE(view.Widget()->size(), before);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIBaseViewState>(argc, argv);
}

#include "tst_FxUIBaseViewState.moc"
