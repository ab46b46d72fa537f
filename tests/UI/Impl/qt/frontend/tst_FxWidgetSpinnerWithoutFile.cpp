// The spinner alone, without the resource tree that holds its file.

#include "UI/Impl/qt/frontend/FxWidgetSpinner.h"

#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtGui/QMovie>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

namespace {

class Spinner : public CFxWidgetSpinner {
public:
    using CFxWidgetSpinner::CFxWidgetSpinner;
    using CFxWidgetSpinner::m_movie;
    using CFxWidgetSpinner::m_widget;
};

class Canvas : public QWidget {
public:
    Spinner *spinner = nullptr;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (spinner)
            spinner->paintEvent(event);
    }
};

void Fill(QWidget &widget, const QColor &color)
{
    QPalette colors;
    colors.setColor(QPalette::Window, color);
    widget.setPalette(colors);
}

} // namespace

class tst_FxWidgetSpinnerWithoutFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movieIsKeptButNotStarted();
    void pictureIsDimmedAllTheSame();
    void stopDeletesTheMovie();
};

void tst_FxWidgetSpinnerWithoutFile::movieIsKeptButNotStarted()
{
    QVERIFY(!QFile::exists(QStringLiteral(":/commonui/resources/icons/spinner.gif")));
    QWidget widget;
    Spinner spinner(&widget);
    spinner.StartSpinner();
    QVERIFY(spinner.m_movie);
    QVERIFY(!spinner.m_movie->isValid());
    QCOMPARE(spinner.m_movie->state(), QMovie::NotRunning);
}

void tst_FxWidgetSpinnerWithoutFile::pictureIsDimmedAllTheSame()
{
    Canvas widget;
    widget.resize(60, 40);
    Fill(widget, Qt::black);
    Spinner spinner(&widget);
    spinner.StartSpinner();
    widget.spinner = &spinner;
    Fill(widget, Qt::white);
    const QImage picture = widget.grab().toImage();
    for (const QPoint &point : { QPoint(0, 0), QPoint(35, 25), QPoint(59, 39) })
        QVERIFY(qAbs(picture.pixelColor(point).red() - 217) <= 1);
    widget.spinner = nullptr;
}

void tst_FxWidgetSpinnerWithoutFile::stopDeletesTheMovie()
{
    QWidget widget;
    Spinner spinner(&widget);
    spinner.StartSpinner();
    const QPointer<QMovie> movie(spinner.m_movie);
    spinner.StopSpinner();
    QVERIFY(!movie);
    QVERIFY(!spinner.m_widget);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxWidgetSpinnerWithoutFile>(argc, argv);
}

#include "tst_FxWidgetSpinnerWithoutFile.moc"
