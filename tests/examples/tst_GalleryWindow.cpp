#include "host/MainWindow.h"
#include "host/SignalLog.h"
#include "support/TestMain.h"
#include "UI/FxUIStyle.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTreeWidget>

class tst_GalleryWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsWhatLoadedAndWhyTheRestDidNot();
    void emptyFolderLeavesNothingToOpen();
    void logShowsEachSignal();
    void logDropsItsOldestLines();
    void clearEmptiesTheLog();
    void darkLookReachesWindowAndPanels();
    void lightLookRestoresTheSheetThatADialogCameWith();
    void openRunsTheSelectedPanel();
    void panelThatThrowsMovesToTheModulesThatDidNotLoad();

private:
    template <class Widget> Widget *Find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }

    Module &Select(const char *name)
    {
        Module *module = FindModule(m_modules, QString::fromLatin1(name));
        m_window->SelectPanel(*module);
        return *module;
    }

    QStringList Log() const;

    SignalLog m_log;
    Modules m_modules;
    std::unique_ptr<MainWindow> m_window;
};

void tst_GalleryWindow::init()
{
    const QString folder = QStringLiteral(FIXTURE_PLUGINS);
    m_modules = LoadModules(folder, &m_log);
    m_window = std::make_unique<MainWindow>(m_modules, m_log, folder);
}

void tst_GalleryWindow::cleanup()
{
    m_window.reset();
    m_modules.clear();
    ApplyPalette(Look::Light);
}

QStringList tst_GalleryWindow::Log() const
{
    QStringList lines;
    const auto *log = Find<QTreeWidget>("log");
    for (int i = 0; i < log->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *line = log->topLevelItem(i);
        lines += QStringLiteral("%1.%2(%3)").arg(line->text(1), line->text(2), line->text(3));
    }
    return lines;
}

void tst_GalleryWindow::listsWhatLoadedAndWhyTheRestDidNot()
{
    const auto *panels = Find<QListWidget>("panels");
    QCOMPARE(panels->count(), 5);
    QCOMPARE(panels->item(2)->text(), QStringLiteral("Good"));
    const auto *refused = Find<QListWidget>("refused");
    QCOMPARE(refused->count(), int(m_modules.size()) - 5);
    QVERIFY(!refused
                 ->findItems(QStringLiteral("not_a_library.so is not a shared library"),
                             Qt::MatchExactly)
                 .isEmpty());
    QVERIFY(Find<QPushButton>("open")->isEnabled());
}

void tst_GalleryWindow::emptyFolderLeavesNothingToOpen()
{
    Modules none;
    m_window = std::make_unique<MainWindow>(none, m_log, QStringLiteral("/nowhere"));
    QCOMPARE(Find<QListWidget>("panels")->count(), 0);
    QCOMPARE(Find<QListWidget>("refused")->item(0)->text(),
             QStringLiteral("No modules in /nowhere"));
    QVERIFY(!Find<QPushButton>("open")->isEnabled());
    m_window->RunSelected();
    QVERIFY(Log().isEmpty());
}

void tst_GalleryWindow::logShowsEachSignal()
{
    m_log.LogSignal(QStringLiteral("button"), QStringLiteral("clicked"), QStringLiteral("true"));
    m_log.LogSignal(QStringLiteral("list"), QStringLiteral("cleared"), QString());
    QCOMPARE(
        Log(),
        QStringList({ QStringLiteral("button.clicked(true)"), QStringLiteral("list.cleared()") }));
}

void tst_GalleryWindow::logDropsItsOldestLines()
{
    for (int i = 0; i < 2005; ++i)
        m_log.LogSignal(QStringLiteral("object"), QStringLiteral("signal"), QString::number(i));
    QCOMPARE(Log().size(), 2000);
    QCOMPARE(Log().constFirst(), QStringLiteral("object.signal(5)"));
    QCOMPARE(Log().constLast(), QStringLiteral("object.signal(2004)"));
}

void tst_GalleryWindow::clearEmptiesTheLog()
{
    m_log.LogSignal(QStringLiteral("object"), QStringLiteral("signal"), QString());
    QTest::mouseClick(Find<QPushButton>("clear"), Qt::LeftButton);
    QVERIFY(Log().isEmpty());
}

void tst_GalleryWindow::darkLookReachesWindowAndPanels()
{
    Find<QRadioButton>("dark")->click();
    const QString sheet = GetStyle()->styleSheet();
    QVERIFY(!sheet.isEmpty());
    QCOMPARE(m_window->styleSheet(), sheet);
    QCOMPARE(Select("good").Window()->styleSheet(), sheet);
    QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(0x33, 0x35, 0x38));
}

void tst_GalleryWindow::lightLookRestoresTheSheetThatADialogCameWith()
{
    QFile light(QStringLiteral(":/commonui/resources/qss/light_style.qss"));
    QVERIFY(light.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(light.readAll());
    const QPalette palette = QApplication::palette();
    QCOMPARE(Select("good").Window()->styleSheet(), sheet);
    Find<QRadioButton>("dark")->click();
    Find<QRadioButton>("light")->click();
    QCOMPARE(Select("good").Window()->styleSheet(), sheet);
    QCOMPARE(m_window->styleSheet(), QString());
    QCOMPARE(QApplication::palette(), palette);
}

void tst_GalleryWindow::openRunsTheSelectedPanel()
{
    Module &good = Select("good");
    bool shown = false;
    QTimer::singleShot(0, this, [&] {
        shown = good.Window()->isVisible();
        good.Window()->close();
    });
    QTest::mouseClick(Find<QPushButton>("open"), Qt::LeftButton);
    QVERIFY(shown);
    QVERIFY(!good.Window()->isVisible());
    QCOMPARE(Log(),
             QStringList({ QStringLiteral("good.exec()"), QStringLiteral("good.closed(0)") }));
}

void tst_GalleryWindow::panelThatThrowsMovesToTheModulesThatDidNotLoad()
{
    Select("setup-throws");
    m_window->RunSelected();
    QCOMPARE(Log().constLast(), QStringLiteral("setup-throws.failed(no content today)"));
    QCOMPARE(Find<QListWidget>("panels")->count(), 4);
    QVERIFY(
        !Find<QListWidget>("refused")
             ->findItems(QStringLiteral("setup_throws.so failed while running: no content today"),
                         Qt::MatchExactly)
             .isEmpty());
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryWindow>(argc, argv);
}

#include "tst_GalleryWindow.moc"
