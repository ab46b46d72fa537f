#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include "support/TestMain.h"

#include <QtCore/QSet>
#include <QtGui/QMovie>
#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<QObject, CFxWidgetSpinner>);
static_assert(!std::is_convertible_v<CFxWidgetSpinner *, QObject *>); // derives privately

namespace {

class Spinner : public CFxWidgetSpinner {
public:
    using CFxWidgetSpinner::CFxWidgetSpinner;
    using CFxWidgetSpinner::m_movie;
    using CFxWidgetSpinner::m_snapshot;
    using CFxWidgetSpinner::m_widget;
};

// A widget of one colour that gives its painting to a spinner, as a column does.
class Canvas : public QWidget {
public:
    explicit Canvas(const QSize &size)
    {
        resize(size);
        Fill(Qt::blue);
    }

    void Fill(const QColor &color)
    {
        QPalette colors;
        colors.setColor(QPalette::Window, color);
        setPalette(colors);
    }

    Spinner *spinner = nullptr;
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paints;
        if (spinner)
            spinner->paintEvent(event);
    }
};

// What the spinner is to leave behind on a background of one colour.
QImage Expected(const QSize &size, const QColor &background, const QImage &snapshot,
                const QPixmap &frame)
{
    QPixmap result(size);
    result.fill(background);
    QPainter painter(&result);
    painter.setOpacity(0.15);
    painter.drawPixmap(0, 0, QPixmap::fromImage(snapshot));
    painter.setOpacity(1.0);
    painter.drawPixmap(size.width() / 2, size.height() / 2, frame);
    painter.end();
    return result.toImage();
}

QImage Picture(QWidget &widget)
{
    return widget.grab().toImage();
}

} // namespace

class tst_FxWidgetSpinner : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void fileHasSevenFrames();
    void startTakesAPictureAndRunsTheMovie();
    void pictureShowsBackgroundAndChildren();
    void widgetWithoutAreaHasAnEmptyPicture();
    void secondStartTakesANewPictureAlone();
    void allFramesComeInTheirTurn();
    void eachFrameRepaintsAtOnce();
    void snapshotIsDimmedTo15Percent();
    void cornerOfTheFrameStandsAtTheMiddle_data();
    void cornerOfTheFrameStandsAtTheMiddle();
    void nothingIsPaintedBeforeTheStart();
    void stopEndsTheMovieAndLetsGoOfTheWidget();
    void stopAsksForNoRepaint();
    void stopBeforeTheStartLetsGoOfTheWidget();
    void withoutWidgetNothingHappens();
    void widgetThatDiesFirstIsNoFault();
};

void tst_FxWidgetSpinner::startsEmpty()
{
    QWidget widget;
    const Spinner spinner(&widget);
    QVERIFY(spinner.m_snapshot.isNull());
    QVERIFY(!spinner.m_movie);
    QCOMPARE(spinner.m_widget.data(), &widget);
    QVERIFY(widget.children().isEmpty()); // it has no parent
}

void tst_FxWidgetSpinner::fileHasSevenFrames()
{
    QMovie movie(QStringLiteral(":/commonui/resources/icons/spinner.gif"));
    QVERIFY(movie.isValid());
    QCOMPARE(movie.frameCount(), 7);
}

void tst_FxWidgetSpinner::startTakesAPictureAndRunsTheMovie()
{
    QWidget widget;
    widget.resize(120, 80);
    Spinner spinner(&widget);
    spinner.StartSpinner();
    QCOMPARE(spinner.m_snapshot.size(), QSize(120, 80));
    QCOMPARE(spinner.m_snapshot.format(), QImage::Format_ARGB32);
    QVERIFY(spinner.m_movie);
    QVERIFY(!spinner.m_movie->parent());
    QCOMPARE(spinner.m_movie->fileName(), QStringLiteral(":/commonui/resources/icons/spinner.gif"));
    QCOMPARE(spinner.m_movie->state(), QMovie::Running);
    QCOMPARE(spinner.m_movie->speed(), 100);
}

void tst_FxWidgetSpinner::pictureShowsBackgroundAndChildren()
{
    Canvas widget(QSize(60, 40));
    QWidget child(&widget);
    child.setGeometry(30, 0, 30, 40);
    child.setAutoFillBackground(true);
    child.setPalette(QPalette(Qt::red));
    Spinner spinner(&widget);
    spinner.StartSpinner();
    QCOMPARE(spinner.m_snapshot.pixelColor(5, 5), QColor(Qt::blue));
    QCOMPARE(spinner.m_snapshot.pixelColor(45, 5), QColor(Qt::red));
}

void tst_FxWidgetSpinner::widgetWithoutAreaHasAnEmptyPicture()
{
    Canvas widget(QSize(60, 0));
    Spinner spinner(&widget);
    spinner.StartSpinner();
    QVERIFY(spinner.m_snapshot.isNull());
    QCOMPARE(spinner.m_movie->state(), QMovie::Running);
}

void tst_FxWidgetSpinner::secondStartTakesANewPictureAlone()
{
    Canvas widget(QSize(60, 40));
    Spinner spinner(&widget);
    spinner.StartSpinner();
    const QMovie *movie = spinner.m_movie;
    widget.Fill(Qt::green);
    widget.resize(50, 30);
    spinner.StartSpinner();
    QCOMPARE(spinner.m_movie, movie);
    QCOMPARE(spinner.m_snapshot.size(), QSize(50, 30));
    QCOMPARE(spinner.m_snapshot.pixelColor(5, 5), QColor(Qt::green));
}

void tst_FxWidgetSpinner::allFramesComeInTheirTurn()
{
    QWidget widget;
    Spinner spinner(&widget);
    spinner.StartSpinner();
    QSet<int> seen;
    connect(spinner.m_movie, &QMovie::frameChanged, this,
            [&seen](int frame) { seen.insert(frame); });
    QTRY_COMPARE(seen.size(), 7);
    QCOMPARE(seen, (QSet<int> { 0, 1, 2, 3, 4, 5, 6 }));
}

void tst_FxWidgetSpinner::eachFrameRepaintsAtOnce()
{
    Canvas widget(QSize(60, 40));
    Spinner spinner(&widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    spinner.StartSpinner();
    spinner.m_movie->setPaused(true);
    const int before = widget.paints;
    QVERIFY(spinner.m_movie->jumpToNextFrame());
    QCOMPARE(widget.paints, before + 1);
    QVERIFY(spinner.m_movie->jumpToNextFrame());
    QCOMPARE(widget.paints, before + 2);
}

void tst_FxWidgetSpinner::snapshotIsDimmedTo15Percent()
{
    Canvas widget(QSize(200, 100));
    Spinner spinner(&widget);
    spinner.StartSpinner(); // blue
    spinner.m_movie->setPaused(true);
    widget.spinner = &spinner;
    widget.Fill(Qt::white);
    const QColor dimmed = Picture(widget).pixelColor(5, 5);
    QVERIFY(qAbs(dimmed.red() - qRound(0.85 * 255)) <= 1);
    QVERIFY(qAbs(dimmed.green() - qRound(0.85 * 255)) <= 1);
    QCOMPARE(dimmed.blue(), 255);
    widget.spinner = nullptr;
}

void tst_FxWidgetSpinner::cornerOfTheFrameStandsAtTheMiddle_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("even") << QSize(200, 100);
    QTest::newRow("odd: rounded down") << QSize(201, 101);
    QTest::newRow("smaller than the frame") << QSize(31, 21);
}

void tst_FxWidgetSpinner::cornerOfTheFrameStandsAtTheMiddle()
{
    QFETCH(QSize, size);
    Canvas widget(size);
    Spinner spinner(&widget);
    spinner.StartSpinner();
    spinner.m_movie->setPaused(true);
    widget.spinner = &spinner;
    widget.Fill(Qt::white);
    const QPixmap frame = spinner.m_movie->currentPixmap();
    QVERIFY(!frame.isNull());
    const QImage picture = Picture(widget);
    QCOMPARE(
        picture.convertToFormat(QImage::Format_RGB32),
        Expected(size, Qt::white, spinner.m_snapshot, frame).convertToFormat(QImage::Format_RGB32));
    // The frame shows, and nowhere else than behind the middle.
    const QRgb plain = picture.pixel(0, 0);
    bool shows = false;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool differs = picture.pixel(x, y) != plain;
            shows = shows || differs;
            QVERIFY(!differs || (x >= size.width() / 2 && y >= size.height() / 2));
        }
    }
    QVERIFY(shows);
    widget.spinner = nullptr;
}

void tst_FxWidgetSpinner::nothingIsPaintedBeforeTheStart()
{
    Canvas widget(QSize(60, 40));
    const QImage before = Picture(widget);
    Spinner spinner(&widget);
    widget.spinner = &spinner;
    QCOMPARE(Picture(widget), before);
    widget.spinner = nullptr;
}

void tst_FxWidgetSpinner::stopEndsTheMovieAndLetsGoOfTheWidget()
{
    Canvas widget(QSize(60, 40));
    const QImage before = Picture(widget);
    Spinner spinner(&widget);
    spinner.StartSpinner();
    const QPointer<QMovie> movie(spinner.m_movie);
    spinner.StopSpinner();
    QVERIFY(!movie);
    QVERIFY(!spinner.m_movie);
    QVERIFY(!spinner.m_widget);
    widget.spinner = &spinner;
    QCOMPARE(Picture(widget), before);
    widget.spinner = nullptr;
    spinner.StopSpinner();
    spinner.StartSpinner(); // without a widget there is nothing to start
    QVERIFY(!spinner.m_movie);
}

void tst_FxWidgetSpinner::stopAsksForNoRepaint()
{
    Canvas widget(QSize(60, 40));
    Spinner spinner(&widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    spinner.StartSpinner();
    QCoreApplication::processEvents();
    const int before = widget.paints;
    spinner.StopSpinner();
    QCoreApplication::processEvents();
    QCOMPARE(widget.paints, before);
}

void tst_FxWidgetSpinner::stopBeforeTheStartLetsGoOfTheWidget()
{
    QWidget widget;
    Spinner spinner(&widget);
    spinner.StopSpinner();
    QVERIFY(!spinner.m_widget);
}

void tst_FxWidgetSpinner::withoutWidgetNothingHappens()
{
    Spinner spinner(nullptr);
    spinner.StartSpinner();
    QVERIFY(!spinner.m_movie);
    QVERIFY(spinner.m_snapshot.isNull());
    spinner.paintEvent(nullptr);
    spinner.StopSpinner();
}

void tst_FxWidgetSpinner::widgetThatDiesFirstIsNoFault()
{
    auto widget = std::make_unique<Canvas>(QSize(60, 40));
    Spinner spinner(widget.get());
    spinner.StartSpinner();
    spinner.m_movie->setPaused(true);
    widget.reset();
    QVERIFY(!spinner.m_widget);
    QVERIFY(spinner.m_movie->jumpToNextFrame());
    spinner.paintEvent(nullptr);
    spinner.StartSpinner();
    spinner.StopSpinner();
    QVERIFY(!spinner.m_movie);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxWidgetSpinner>(argc, argv);
}

#include "tst_FxWidgetSpinner.moc"
