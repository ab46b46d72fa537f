#include "interface/GalleryPanel.h"

#include "support/TestMain.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QWidget>

namespace {

class RecordingHost final : public IGalleryHost {
public:
    void LogSignal(const QString &object, const QString &signal, const QString &arguments) override
    {
        lines.append(QStringLiteral("%1.%2(%3)").arg(object, signal, arguments));
    }

    QStringList lines;
};

template <class Fill> class TestPanel : public GalleryPanel {
public:
    TestPanel(IGalleryHost *host, Fill fill)
        : GalleryPanel(host, "Test")
        , m_fill(fill)
    {
    }

    using GalleryPanel::AddActions;
    using GalleryPanel::AddHeading;
    using GalleryPanel::AddNote;
    using GalleryPanel::AddRow;
    using GalleryPanel::AddTallRow;
    using GalleryPanel::AddWideRow;

private:
    void Build() override { m_fill(*this); }

    Fill m_fill;
};

// Runs a panel that `fill` builds, and calls `look` with its window while it is shown.
template <class Fill, class Inspect> void RunPanel(RecordingHost &host, Fill fill, Inspect inspect)
{
    TestPanel<Fill> panel(&host, fill);
    QWidget *window = qobject_cast<QWidget *>(panel.getHandle());
    window->resize(760, 300);
    QTimer::singleShot(0, window, [&] {
        inspect(*window);
        panel.accept();
    });
    panel.exec(true);
    delete window;
}

QLabel *LabelWith(const QWidget &window, const QString &text)
{
    for (QLabel *label : window.findChildren<QLabel *>()) {
        if (label->text().contains(text))
            return label;
    }
    return nullptr;
}

QRect Place(const QWidget &widget)
{
    return { widget.mapTo(widget.window(), QPoint()), widget.size() };
}

} // namespace

class tst_GalleryPanel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts();
    void rowReportsToLogAndAnswer();
    void rowShowsGettersFromTheStartAndAfterEachSignal();
    void answersWithAngleBracketsShowAsTheyAre();
    void refreshShowsAChangeThatNoSignalTells();
    void columnsAreAligned();
    void wideRowTakesTheSpareHeight();
    void actionsRunAndRefreshTheRow();
    void titleStandsInTheFrame();
};

void tst_GalleryPanel::texts()
{
    QCOMPARE(GalleryText(true), QStringLiteral("true"));
    QCOMPARE(GalleryText(QStringLiteral("a")), QStringLiteral("\"a\""));
    QCOMPARE(GalleryText(7), QStringLiteral("7"));
    QCOMPARE(GalleryText(CFxUIBaseView::AlignCenter), QStringLiteral("2"));
    QCOMPARE(GalleryText(static_cast<QObject *>(nullptr)), QStringLiteral("null"));
    QCOMPARE(GalleryText(static_cast<QObject *>(this)), QStringLiteral("object"));
    QCOMPARE(GalleryTexts(), QString());
    QCOMPARE(GalleryTexts(1, false), QStringLiteral("1, false"));
}

void tst_GalleryPanel::rowReportsToLogAndAnswer()
{
    RecordingHost host;
    CFxUIPushButton *button = nullptr;
    RunPanel(
        host,
        [&](auto &panel) {
            button = new CFxUIPushButton;
            panel.AddRow("A button", button)
                .Reports("clicked", button->clicked())
                .Reports("aboutToShow", button->aboutToShow());
        },
        [&](const QWidget &window) {
            QTest::mouseClick(qobject_cast<QWidget *>(button->getHandle()), Qt::LeftButton);
            QTest::mouseClick(qobject_cast<QWidget *>(button->getHandle()), Qt::LeftButton);
            QVERIFY(LabelWith(window, QStringLiteral("clicked(true)</b> 2\u00d7")));
            button->setVisible(true);
            QVERIFY(LabelWith(window, QStringLiteral("aboutToShow()</b> 3\u00d7")));
        });
    QCOMPARE(host.lines,
             QStringList({ QStringLiteral("A button.clicked(true)"),
                           QStringLiteral("A button.clicked(true)"),
                           QStringLiteral("A button.aboutToShow()") }));
}

void tst_GalleryPanel::rowShowsGettersFromTheStartAndAfterEachSignal()
{
    RecordingHost host;
    CFxUISlider *slider = nullptr;
    RunPanel(
        host,
        [&](auto &panel) {
            slider = new CFxUISlider;
            panel
                .AddRow("Slider", slider,
                        [&] { return QStringLiteral("value() ") + GalleryText(slider->value()); })
                .Reports("valueChanged", slider->valueChanged());
        },
        [&](const QWidget &window) {
            QVERIFY(LabelWith(window, QStringLiteral("value() 0")));
            QTest::keyClick(qobject_cast<QWidget *>(slider->getHandle()), Qt::Key_End);
            QVERIFY(LabelWith(window, QStringLiteral("value() 99")));
        });
}

void tst_GalleryPanel::answersWithAngleBracketsShowAsTheyAre()
{
    RecordingHost host;
    RunPanel(
        host,
        [](auto &panel) {
            panel.AddRow("Label", new CFxUILabel, [] { return QStringLiteral("<b>\nnext"); });
        },
        [](const QWidget &window) {
            QVERIFY(LabelWith(window, QStringLiteral("&lt;b&gt;<br>next")));
        });
}

void tst_GalleryPanel::refreshShowsAChangeThatNoSignalTells()
{
    RecordingHost host;
    QString answer = QStringLiteral("before");
    std::function<void()> refresh;
    RunPanel(
        host,
        [&](auto &panel) {
            GalleryRow row = panel.AddRow("Label", new CFxUILabel, [&] { return answer; });
            refresh = [row]() mutable { row.Refresh(); };
        },
        [&](const QWidget &window) {
            answer = QStringLiteral("after");
            QVERIFY(!LabelWith(window, answer));
            refresh();
            QVERIFY(LabelWith(window, answer));
        });
    QVERIFY(host.lines.isEmpty());
}

void tst_GalleryPanel::columnsAreAligned()
{
    RecordingHost host;
    CFxUIPushButton *first = nullptr;
    CFxUIPushButton *second = nullptr;
    RunPanel(
        host,
        [&](auto &panel) {
            first = new CFxUIPushButton;
            second = new CFxUIPushButton;
            panel.AddHeading("Heading");
            panel.AddNote("A note.");
            panel.AddRow("First", first, [] { return QStringLiteral("one"); });
            panel.AddTallRow("Second caption", second, [] { return QStringLiteral("two"); });
        },
        [&](const QWidget &window) {
            const QRect one = Place(*qobject_cast<QWidget *>(first->getHandle()));
            const QRect two = Place(*qobject_cast<QWidget *>(second->getHandle()));
            QCOMPARE(one.left(), two.left());
            QCOMPARE(one.width(), two.width());
            QVERIFY(one.width() <= GalleryPanel::ControlWidth);
            QVERIFY(one.bottom() < two.top());
            QCOMPARE(Place(*LabelWith(window, QStringLiteral("First"))).left(),
                     Place(*LabelWith(window, QStringLiteral("A note."))).left());
            QCOMPARE(Place(*LabelWith(window, QStringLiteral("one"))).left(),
                     Place(*LabelWith(window, QStringLiteral("two"))).left());
        });
}

void tst_GalleryPanel::wideRowTakesTheSpareHeight()
{
    RecordingHost host;
    CFxUILabel *label = nullptr;
    RunPanel(
        host,
        [&](auto &panel) {
            label = new CFxUILabel;
            panel.AddWideRow("Wide", label);
        },
        [&](const QWidget &window) {
            const QRect place = Place(*qobject_cast<QWidget *>(label->getHandle()));
            QCOMPARE(place.width(), window.width() - 36);
            QVERIFY(place.height() > 200);
        });
}

void tst_GalleryPanel::actionsRunAndRefreshTheRow()
{
    RecordingHost host;
    int count = 0;
    RunPanel(
        host,
        [&](auto &panel) {
            GalleryRow row =
                panel.AddRow("Label", new CFxUILabel, [&] { return GalleryText(count); });
            panel.AddActions(row,
                             { { "Once", [&] { ++count; } }, { "Twice", [&] { count += 2; } } });
        },
        [&](const QWidget &window) {
            const QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
            QCOMPARE(buttons.size(), 2);
            QCOMPARE(buttons.at(1)->text(), QStringLiteral("Twice"));
            QVERIFY(Place(*buttons.at(1)).left() > Place(*buttons.at(0)).right());
            QTest::mouseClick(buttons.at(0), Qt::LeftButton);
            QTest::mouseClick(buttons.at(1), Qt::LeftButton);
            QCOMPARE(count, 3);
            QVERIFY(LabelWith(window, QStringLiteral("<span>3</span>")));
        });
    QCOMPARE(host.lines, QStringList());
}

void tst_GalleryPanel::titleStandsInTheFrame()
{
    RecordingHost host;
    RunPanel(
        host, [](auto &) {},
        [](const QWidget &window) { QCOMPARE(window.windowTitle(), QStringLiteral("Test")); });
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryPanel>(argc, argv);
}

#include "tst_GalleryPanel.moc"
