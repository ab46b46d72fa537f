#include "Hand.h"
#include "host/MainWindow.h"
#include "host/SignalLog.h"
#include "support/TestMain.h"
#include "UI/FxUIStyle.h"

#include <QtCore/QProcess>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QTreeWidget>

#include <functional>

namespace {

/// Calls a function from the event loop once the window is active for the first time.
class WhenActive : public QObject {
public:
    WhenActive(QWidget *window, std::function<void()> function)
        : QObject(window)
        , m_function(std::move(function))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() == QEvent::WindowActivate) {
            window->removeEventFilter(this);
            QMetaObject::invokeMethod(this, m_function, Qt::QueuedConnection);
        }
        return false;
    }

private:
    std::function<void()> m_function;
};

QString Answer(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

bool HasWindow(const char *title)
{
    return Answer(QStringLiteral("wmctrl"), { QStringLiteral("-l") })
        .contains(QLatin1Char(' ') + QLatin1String(title) + QLatin1Char('\n'));
}

void CloseWindow(const char *title)
{
    Answer(QStringLiteral("wmctrl"),
           { QStringLiteral("-F"), QStringLiteral("-c"), QLatin1String(title) });
}

} // namespace

// A user before the gallery: in this process, and as a program of its own.
class tst_HandOnGallery : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void opensAPanelPressesItsButtonAndReadsTheLog();
    void opensAPanelWithADoubleClick();
    void choosesTheDarkLookAndTheLightOneAgain();
    void programEndsWhenItsWindowIsClosed();

private:
    template <class Widget> Widget *Find(const char *name) const
    {
        return m_window->findChild<Widget *>(QString::fromLatin1(name));
    }

    QStringList Log() const;

    SignalLog m_log;
    Modules m_modules;
    Module *m_hello = nullptr;
    std::unique_ptr<MainWindow> m_window;
};

void tst_HandOnGallery::initTestCase()
{
    m_modules = LoadModules(QStringLiteral(GALLERY_PLUGINS), &m_log);
    m_hello = FindModule(m_modules, QStringLiteral("hello"));
    QVERIFY(m_hello);
}

void tst_HandOnGallery::init()
{
    m_window = std::make_unique<MainWindow>(m_modules, m_log, QStringLiteral(GALLERY_PLUGINS));
    m_window->move(20, 40);
    m_window->show();
}

void tst_HandOnGallery::cleanup()
{
    m_window.reset();
}

QStringList tst_HandOnGallery::Log() const
{
    QStringList lines;
    const auto *log = Find<QTreeWidget>("log");
    for (int i = 0; i < log->topLevelItemCount(); ++i)
        lines += log->topLevelItem(i)->text(2);
    return lines;
}

void tst_HandOnGallery::opensAPanelPressesItsButtonAndReadsTheLog()
{
    Hand hand(QStringLiteral("gallery-open"));
    QVERIFY(hand.waitForWindow(m_window.get()));
    new WhenActive(m_hello->Window(), [&] {
        QWidget *panel = m_hello->Window();
        QVERIFY(hand.click(panel->findChild<QPushButton *>()));
        QTRY_VERIFY(Log().contains(QStringLiteral("clicked")));
        QVERIFY(hand.keepPicture(QStringLiteral("pressed")));
        QVERIFY(hand.key(QStringLiteral("Escape")));
    });
    QVERIFY(hand.click(Find<QPushButton>("open")));
    QTRY_COMPARE(Log(),
                 QStringList({ QStringLiteral("exec"), QStringLiteral("clicked"),
                               QStringLiteral("closed") }));
    QVERIFY(hand.keepPicture(QStringLiteral("closed")));
}

void tst_HandOnGallery::opensAPanelWithADoubleClick()
{
    Hand hand(QStringLiteral("gallery-double-click"));
    QVERIFY(hand.waitForWindow(m_window.get()));
    auto *panels = Find<QListWidget>("panels");
    const QList<QListWidgetItem *> items =
        panels->findItems(QStringLiteral("Hello"), Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    new WhenActive(m_hello->Window(), [&] { hand.closeWindow(m_hello->Window()); });
    QVERIFY(hand.moveTo(panels->viewport(), panels->visualItemRect(items.first()).center()));
    QVERIFY(hand.press());
    QVERIFY(hand.release());
    QVERIFY(hand.press());
    QVERIFY(hand.release());
    QTRY_COMPARE(Log(), QStringList({ QStringLiteral("exec"), QStringLiteral("closed") }));
}

void tst_HandOnGallery::choosesTheDarkLookAndTheLightOneAgain()
{
    Hand hand(QStringLiteral("gallery-look"));
    QVERIFY(hand.waitForWindow(m_window.get()));
    const QString light = m_hello->Window()->styleSheet();
    auto *dark = Find<QRadioButton>("dark");
    QVERIFY(hand.moveTo(dark, QPoint(10, dark->height() / 2)));
    QVERIFY(hand.press());
    QVERIFY(hand.release());
    QTRY_COMPARE(m_window->styleSheet(), GetStyle()->styleSheet());
    QCOMPARE(m_hello->Window()->styleSheet(), GetStyle()->styleSheet());
    QVERIFY(hand.keepPicture(QStringLiteral("dark")));
    auto *lightButton = Find<QRadioButton>("light");
    QVERIFY(hand.moveTo(lightButton, QPoint(10, lightButton->height() / 2)));
    QVERIFY(hand.press());
    QVERIFY(hand.release());
    QTRY_COMPARE(m_hello->Window()->styleSheet(), light);
    QVERIFY(hand.keepPicture(QStringLiteral("light")));
}

void tst_HandOnGallery::programEndsWhenItsWindowIsClosed()
{
    m_window.reset();
    QProcess gallery;
    gallery.start(QStringLiteral(GALLERY), { QStringLiteral("--panel"), QStringLiteral("hello") });
    QTRY_VERIFY_WITH_TIMEOUT(HasWindow("Hello") && HasWindow("CommonUI Gallery"), 20000);
    CloseWindow("Hello");
    QTRY_VERIFY_WITH_TIMEOUT(!HasWindow("Hello"), 20000);
    QCOMPARE(gallery.state(), QProcess::Running);
    CloseWindow("CommonUI Gallery");
    QVERIFY(gallery.waitForFinished(20000));
    QCOMPARE(gallery.exitStatus(), QProcess::NormalExit);
    QCOMPARE(gallery.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(gallery.readAllStandardError()), QString());
}

int main(int argc, char **argv)
{
    return RunTest<tst_HandOnGallery>(argc, argv);
}

#include "tst_HandOnGallery.moc"
