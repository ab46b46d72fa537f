// An image view has no widget behind it; this is the contract of the controls, as far as that goes.

#include "UI/FxUIImageView.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIImageViewImpl.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>
#include <stdexcept>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUIImageView>);
static_assert(!std::is_copy_constructible_v<CFxUIImageView>);
static_assert(
    std::is_same_v<decltype(std::declval<const CFxUIImageView>().pixmap()), const QPixmap *>);

namespace {

/// Reads the image, which has no getter.
class Probe : public CFxUIImageViewImpl {
public:
    static QImage Image(const CFxUIImageView &view)
    {
        return static_cast<CFxUIImageViewImpl *>(view.impl)->*(&Probe::m_image);
    }
};

CFxUIImageViewImpl *Impl(const CFxUIImageView &view)
{
    return static_cast<CFxUIImageViewImpl *>(view.impl);
}

/// Notes what a painting finds, and fills the image with blue.
class PaintingView : public CFxUIImageView {
public:
    void paintEvent(CFxUIPaintEvent *event) override
    {
        ++paintings;
        type = event->type();
        rect = event->rect();
        region = event->region();
        painter = GetPainter();
        if (!painter)
            return;
        active = painter->isActive();
        if (painter->device())
            deviceSize = QSize(painter->device()->width(), painter->device()->height());
        painter->fillRect(event->rect(), Qt::blue);
        if (action)
            action();
    }

    int paintings = 0;
    CFxUIEvent::Type type = CFxUIEvent::None;
    QRect rect;
    QRegion region;
    QPainter *painter = nullptr;
    bool active = false;
    QSize deviceSize;
    std::function<void()> action;
};

// Left half red, right half green.
QPixmap TwoColors(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    QPainter(&pixmap).fillRect(width / 2, 0, width, height, Qt::green);
    return pixmap;
}

} // namespace

class tst_FxUIImageView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasNoHandle();
    void startsWithoutImagePixmapAndPainter();
    void frontendClassNameIsEmpty();
    void createFrontendControlMakesNothing();
    void stateIsKeptWithoutWidget();
    void updateWithASizeOfZeroPaintsNothing_data();
    void updateWithASizeOfZeroPaintsNothing();
    void updatePaintsAnImageOfTheRecordedSize();
    void eachUpdateMakesAFreshImage();
    void resizeStoresAndPaintsNothing();
    void onSizeChangedStoresAndPaints();
    void onSizeChangedToZeroKeepsTheImage();
    void setPixmapPaintsNothing();
    void pixmapIsTheAddressOfTheStoredOne();
    void pixmapIsStretchedToTheView();
    void pixmapIsDrawnAtTheOriginInTheSizeOfTheRectangle();
    void nullPixmapDrawsNothing();
    void painterIsOpenDuringPaintEventOnly();
    void paintEventFromOutsideDoesNothing();
    void paintEventOfARegionDrawsNothing();
    void updateFromInsideAPaintingDoesNothing();
    void exceptionFromAPaintingClosesThePainter();
    void negativeSizeGoesToQt();
    void sizeChangeUpdatesThroughTheVirtualOperation();
    void hostsWidgetIsNotUpdatedAndGoesWithTheEventLoop();
    void deletionInEitherOrderWithALayout();
};

void tst_FxUIImageView::hasNoHandle()
{
    const CFxUIImageView view;
    QVERIFY(view.impl);
    QVERIFY(!view.getHandle());
    QVERIFY(!view.parent());
}

void tst_FxUIImageView::startsWithoutImagePixmapAndPainter()
{
    CFxUIImageView view;
    QVERIFY(view.pixmap());
    QVERIFY(view.pixmap()->isNull());
    QVERIFY(!view.GetPainter());
    QVERIFY(Probe::Image(view).isNull());
    QCOMPARE(view.width(), 0);
    QCOMPARE(view.height(), 0);
}

void tst_FxUIImageView::frontendClassNameIsEmpty()
{
    const CFxUIImageView view;
    QVERIFY(view.impl->GetFrontendClassName().isEmpty());
}

void tst_FxUIImageView::createFrontendControlMakesNothing()
{
    const CFxUIImageView view;
    view.impl->CreateFrontendControl();
    Impl(view)->MakePreviewWidget();
    Impl(view)->SetPixmapImpl(QImage(2, 2, QImage::Format_ARGB32));
    QVERIFY(!view.getHandle());
    QVERIFY(view.pixmap()->isNull());
}

void tst_FxUIImageView::stateIsKeptWithoutWidget()
{
    CFxUIImageView view;
    int shown = 0;
    view.aboutToShow().connect([&shown] { ++shown; });
    view.setEnabled(false);
    view.setVisible(true);
    view.setPreferableSize(30, 40);
    view.setBorderWidth(1);
    view.setMinimumWidth(5);
    view.setFocus();
    QVERIFY(!view.isEnabled());
    QVERIFY(view.isVisible());
    QCOMPARE(view.width(), 30);
    QCOMPARE(view.height(), 40);
    QCOMPARE(shown, 1);
    view.blockSignals(true);
    view.setVisible(true);
    QCOMPARE(shown, 1);
}

void tst_FxUIImageView::updateWithASizeOfZeroPaintsNothing_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("both") << QSize(0, 0);
    QTest::newRow("width") << QSize(0, 10);
    QTest::newRow("height") << QSize(10, 0);
}

void tst_FxUIImageView::updateWithASizeOfZeroPaintsNothing()
{
    QFETCH(QSize, size);
    PaintingView view;
    view.resize(size.width(), size.height());
    view.update();
    QCOMPARE(view.paintings, 0);
    QVERIFY(Probe::Image(view).isNull());
}

void tst_FxUIImageView::updatePaintsAnImageOfTheRecordedSize()
{
    PaintingView view;
    view.resize(100, 50);
    view.update();
    QCOMPARE(view.paintings, 1);
    QCOMPARE(view.type, CFxUIEvent::Paint);
    QCOMPARE(view.rect, QRect(0, 0, 100, 50));
    QVERIFY(view.region.isEmpty());
    const QImage image = Probe::Image(view);
    QCOMPARE(image.size(), QSize(100, 50));
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.pixelColor(99, 49), QColor(Qt::blue));
}

void tst_FxUIImageView::eachUpdateMakesAFreshImage()
{
    PaintingView view;
    view.resize(10, 10);
    view.update();
    const QImage first = Probe::Image(view);
    view.update();
    QCOMPARE(view.paintings, 2);
    QVERIFY(Probe::Image(view).constBits() != first.constBits());
    QCOMPARE(Probe::Image(view), first);
}

void tst_FxUIImageView::resizeStoresAndPaintsNothing()
{
    PaintingView view;
    view.resize(10, 10);
    view.setWidth(20);
    view.setPreferableSize(30, 30);
    QCOMPARE(view.paintings, 0);
}

void tst_FxUIImageView::onSizeChangedStoresAndPaints()
{
    PaintingView view;
    Impl(view)->OnSizeChanged(20, 10);
    QCOMPARE(view.width(), 20);
    QCOMPARE(view.height(), 10);
    QCOMPARE(view.paintings, 1);
    QCOMPARE(Probe::Image(view).size(), QSize(20, 10));
}

void tst_FxUIImageView::onSizeChangedToZeroKeepsTheImage()
{
    PaintingView view;
    Impl(view)->OnSizeChanged(20, 10);
    Impl(view)->OnSizeChanged(0, 10);
    QCOMPARE(view.width(), 0);
    QCOMPARE(view.paintings, 1);
    QCOMPARE(Probe::Image(view).size(), QSize(20, 10));
}

void tst_FxUIImageView::setPixmapPaintsNothing()
{
    PaintingView view;
    view.resize(10, 10);
    view.setPixmap(TwoColors(4, 4));
    QCOMPARE(view.paintings, 0);
    view.update();
    QCOMPARE(view.paintings, 1);
    Impl(view)->OnSizeChanged(12, 12);
    QCOMPARE(view.paintings, 2);
}

void tst_FxUIImageView::pixmapIsTheAddressOfTheStoredOne()
{
    CFxUIImageView view;
    const QPixmap *const address = view.pixmap();
    view.setPixmap(TwoColors(4, 6));
    QCOMPARE(view.pixmap(), address);
    QCOMPARE(address->size(), QSize(4, 6));
}

void tst_FxUIImageView::pixmapIsStretchedToTheView()
{
    CFxUIImageView view;
    view.setPixmap(TwoColors(10, 10));
    view.resize(100, 50);
    view.update();
    const QImage image = Probe::Image(view);
    QCOMPARE(image.size(), QSize(100, 50));
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 100; ++x)
            QCOMPARE(image.pixelColor(x, y), QColor(x < 50 ? Qt::red : Qt::green));
    }
}

void tst_FxUIImageView::pixmapIsDrawnAtTheOriginInTheSizeOfTheRectangle()
{
    class ShiftedView : public CFxUIImageView {
    public:
        void paintEvent(CFxUIPaintEvent *event) override
        {
            GetPainter()->fillRect(event->rect(), Qt::yellow);
            CFxUIPaintEvent shifted(QRect(3, 2, 4, 4));
            CFxUIImageView::paintEvent(&shifted);
        }
    };

    ShiftedView view;
    view.setPixmap(TwoColors(10, 10));
    view.resize(8, 8);
    view.update();
    QImage expected(8, 8, QImage::Format_ARGB32);
    expected.fill(Qt::yellow);
    QPainter painter(&expected);
    painter.fillRect(0, 0, 2, 4, Qt::red);
    painter.fillRect(2, 0, 2, 4, Qt::green);
    painter.end();
    QCOMPARE(Probe::Image(view), expected);
}

void tst_FxUIImageView::nullPixmapDrawsNothing()
{
    class ClearedView : public CFxUIImageView {
    public:
        void paintEvent(CFxUIPaintEvent *event) override
        {
            GetPainter()->fillRect(event->rect(), Qt::yellow);
            CFxUIImageView::paintEvent(event);
        }
    };

    ClearedView view;
    view.resize(8, 8);
    view.update();
    QImage expected(8, 8, QImage::Format_ARGB32);
    expected.fill(Qt::yellow);
    QCOMPARE(Probe::Image(view), expected);
}

void tst_FxUIImageView::painterIsOpenDuringPaintEventOnly()
{
    PaintingView view;
    view.resize(30, 20);
    view.update();
    QVERIFY(view.painter);
    QVERIFY(view.active);
    QCOMPARE(view.deviceSize, QSize(30, 20));
    QVERIFY(!view.GetPainter());
}

void tst_FxUIImageView::paintEventFromOutsideDoesNothing()
{
    CFxUIImageView view;
    view.setPixmap(TwoColors(4, 4));
    CFxUIPaintEvent event(QRect(0, 0, 4, 4));
    view.paintEvent(&event);
    view.paintEvent(nullptr);
    QVERIFY(Probe::Image(view).isNull());
}

void tst_FxUIImageView::paintEventOfARegionDrawsNothing()
{
    class RegionView : public CFxUIImageView {
    public:
        void paintEvent(CFxUIPaintEvent *event) override
        {
            GetPainter()->fillRect(event->rect(), Qt::yellow);
            CFxUIPaintEvent other { QRegion(event->rect()) };
            CFxUIImageView::paintEvent(&other);
            CFxUIImageView::paintEvent(nullptr);
        }
    };

    RegionView view;
    view.setPixmap(TwoColors(4, 4));
    view.resize(8, 8);
    view.update();
    QImage expected(8, 8, QImage::Format_ARGB32);
    expected.fill(Qt::yellow);
    QCOMPARE(Probe::Image(view), expected);
}

void tst_FxUIImageView::updateFromInsideAPaintingDoesNothing()
{
    PaintingView view;
    view.action = [&view] {
        view.update();
        Impl(view)->OnSizeChanged(40, 40);
    };
    view.resize(8, 8);
    view.update();
    QCOMPARE(view.paintings, 1);
    QCOMPARE(Probe::Image(view).size(), QSize(8, 8));
    QCOMPARE(view.width(), 40);
    view.update();
    QCOMPARE(Probe::Image(view).size(), QSize(40, 40));
}

void tst_FxUIImageView::exceptionFromAPaintingClosesThePainter()
{
    PaintingView view;
    view.action = [] { throw std::runtime_error("painting"); };
    view.resize(8, 8);
    QVERIFY_EXCEPTION_THROWN(view.update(), std::runtime_error);
    QVERIFY(!view.GetPainter());
    view.action = nullptr;
    view.update();
    QCOMPARE(view.paintings, 2);
}

void tst_FxUIImageView::negativeSizeGoesToQt()
{
    PaintingView view;
    view.resize(-5, 10);
    QTest::ignoreMessage(QtWarningMsg,
                         "QPainter::begin: Paint device returned engine == 0, type: 3");
    view.update();
    QCOMPARE(view.paintings, 1);
    QVERIFY(!view.active);
    QVERIFY(Probe::Image(view).isNull());
}

void tst_FxUIImageView::sizeChangeUpdatesThroughTheVirtualOperation()
{
    class CountingImpl : public CFxUIImageViewImpl {
    public:
        using CFxUIImageViewImpl::CFxUIImageViewImpl;

        void UpdateImpl() override
        {
            ++updates;
            size = QSize(width(), height());
        }

        int updates = 0;
        QSize size;
    };

    PaintingView view;
    CountingImpl impl(&view);
    impl.OnSizeChanged(20, 10);
    QCOMPARE(impl.updates, 1);
    QCOMPARE(impl.size, QSize(20, 10)); // stored before
    QCOMPARE(view.paintings, 0);
}

void tst_FxUIImageView::hostsWidgetIsNotUpdatedAndGoesWithTheEventLoop()
{
    const QPointer<QWidget> canvas(new QWidget);
    auto view = std::make_unique<PaintingView>();
    view->setHandle(canvas);
    canvas->setAttribute(Qt::WA_DontShowOnScreen); // else an X server may ask for repaints, too
    view->setVisible(true);
    UpdateCounter counter;
    canvas->installEventFilter(&counter);
    const auto updatesSince = [&counter](int since) {
        QCoreApplication::processEvents();
        return counter.updates - since;
    };
    QTRY_COMPARE(updatesSince(counter.updates), 0); // the first showing is over
    const int before = counter.updates;
    view->resize(8, 8);
    view->update();
    QCOMPARE(view->paintings, 1);
    QCOMPARE(updatesSince(before), 0);
    view.reset();
    QVERIFY(canvas);
    FlushDeferredDeletes();
    QVERIFY(!canvas);
}

void tst_FxUIImageView::deletionInEitherOrderWithALayout()
{
    auto layout = std::make_unique<CFxUIVerticalLayout>();
    auto *view = new CFxUIImageView;
    layout->addView(view);
    QCOMPARE(view->parent(), layout.get());
    view->setPixmap(TwoColors(4, 4));
    view->resize(8, 8);
    view->update();
    delete view;
    QVERIFY(layout->children().isEmpty());
    layout->addView(new CFxUIImageView);
    layout.reset();
    FlushDeferredDeletes();
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIImageView>(argc, argv);
}

#include "tst_FxUIImageView.moc"
