#include "UI/FxUIPreviewView.h"

#include "support/Events.h"
#include "support/TestMain.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIImageViewImpl.h"

#include <QtGui/QPainter>
#include <QtTest/QTest>

#include <memory>
#include <type_traits>
#include <typeinfo>

static_assert(std::is_base_of_v<CFxUIImageView, CFxUIPreviewView>);
static_assert(!std::is_copy_constructible_v<CFxUIPreviewView>);

class tst_FxUIPreviewView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hasNoHandle();
    void sharesTheImageViewsImplementation();
    void paintsAsAnImageView();
    void takesNoPlaceInALayout();
};

void tst_FxUIPreviewView::hasNoHandle()
{
    const CFxUIPreviewView view;
    QVERIFY(!view.getHandle());
    QVERIFY(view.impl->GetFrontendClassName().isEmpty());
    QVERIFY(view.pixmap()->isNull());
}

void tst_FxUIPreviewView::sharesTheImageViewsImplementation()
{
    const CFxUIPreviewView view;
    const CFxUIObjectImpl &impl = *view.impl;
    QVERIFY(typeid(impl) == typeid(CFxUIImageViewImpl));
}

void tst_FxUIPreviewView::paintsAsAnImageView()
{
    class CopyingView : public CFxUIPreviewView {
    public:
        void paintEvent(CFxUIPaintEvent *event) override
        {
            CFxUIPreviewView::paintEvent(event);
            copy = *static_cast<QImage *>(GetPainter()->device());
        }

        QImage copy;
    };

    CopyingView view;
    QPixmap pixmap(2, 2);
    pixmap.fill(Qt::cyan);
    view.setPixmap(pixmap);
    view.resize(6, 4);
    view.update();
    QImage expected(6, 4, QImage::Format_ARGB32);
    expected.fill(Qt::cyan);
    QCOMPARE(view.copy, expected);
    QVERIFY(!view.GetPainter());
}

void tst_FxUIPreviewView::takesNoPlaceInALayout()
{
    auto layout = std::make_unique<CFxUIVerticalLayout>();
    auto *view = new CFxUIPreviewView;
    layout->addView(view);
    QCOMPARE(view->parent(), layout.get());
    delete view;
    QVERIFY(layout->children().isEmpty());
    layout->addView(new CFxUIPreviewView);
    layout.reset();
    FlushDeferredDeletes();
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIPreviewView>(argc, argv);
}

#include "tst_FxUIPreviewView.moc"
