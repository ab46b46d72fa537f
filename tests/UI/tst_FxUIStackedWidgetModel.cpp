// A stacked widget under random calls and user actions, beside plain lists that do what the class
// promises. After each step all getters, the widget and the emissions agree.

#include "UI/FxUIStackedWidget.h"

#include "support/Random.h"
#include "support/TestMain.h"
#include "UI/FxUIDockWidget.h"
#include "UI/FxUILabel.h"
#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include <memory>
#include <utility>

namespace {

constexpr int Steps = 50000;
constexpr int MostPages = 8;

/// Reads the titles, which have no getter.
class Probe : public CFxUIStackedWidgetImpl {
public:
    static QVector<QString> Titles(const CFxUIStackedWidget &stack)
    {
        return static_cast<CFxUIStackedWidgetImpl *>(stack.impl)->*(&Probe::m_titles);
    }
};

/// The stacked widget as it is described, with the tabs as Qt is told of them. A page without a
/// widget has no tab.
struct Model {
    bool IsPage(int index) const { return index >= 0 && index < titles.size(); }

    void AddPage(CFxUIBaseView *page, const QString &title, bool hasWidget)
    {
        pages.append(page);
        titles.append(title);
        if (!hasWidget)
            return;
        tabs.append(title);
        if (tab < 0)
            tab = 0;
    }

    void SetTabText(int index, const QString &text)
    {
        if (!IsPage(index))
            return;
        titles[index] = text;
        if (index < tabs.size())
            tabs[index] = text;
    }

    void SetCurrentIndex(int index)
    {
        if (!IsPage(index))
            return;
        if (index < tabs.size())
            tab = index;
        Activate(index);
    }

    void Activate(int index)
    {
        if (index == current)
            return;
        current = index;
        Emit("currentChanged", index);
    }

    void ClickActivated(int index)
    {
        if (index == current)
            return;
        current = index;
        Emit("tabBarClicked", index);
        Emit("currentChanged", current);
    }

    // A slot of the next tabBarClicked turns to the page `armed`.
    void Emit(const char *signal, int index)
    {
        if (blocked)
            return;
        log.append(QStringLiteral("%1(%2) %3/%4")
                       .arg(QLatin1String(signal))
                       .arg(index)
                       .arg(current)
                       .arg(tab));
        if (qstrcmp(signal, "tabBarClicked") == 0 && armed >= 0)
            SetCurrentIndex(std::exchange(armed, -1));
    }

    QList<CFxUIBaseView *> pages;
    QVector<QString> titles;
    QStringList tabs;
    int current = 0;
    int tab = -1;
    int armed = -1;
    bool blocked = false;
    QStringList log;
};

} // namespace

class tst_FxUIStackedWidgetModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void agreesWithThePlainLists();

private:
    void StartAnew();
    void Step();
    void AddPage();
    void Turn();
    void ActOnTheTabBar();
    void ClickTab(int index);
    void Log(const char *signal, int index);
    void Compare();

    int RandomIndex() { return m_random.bounded(m_model.titles.size() + 4) - 2; }

    QString RandomTitle() { return QString::number(m_random.bounded(100)); }

    std::unique_ptr<CFxUIStackedWidget> m_stack;
    CFxUIStackedWidgetImpl *m_impl = nullptr;
    QTabWidget *m_widget = nullptr;
    CFxUILabel m_unknown;
    Model m_model;
    int m_armed = -1;
    QStringList m_log;
    QRandomGenerator m_random;
};

void tst_FxUIStackedWidgetModel::initTestCase()
{
    m_random = SeededRandom();
    StartAnew();
}

void tst_FxUIStackedWidgetModel::agreesWithThePlainLists()
{
    for (int step = 0; step < Steps; ++step) {
        Step();
        Compare();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("in step %1").arg(step)));
    }
}

void tst_FxUIStackedWidgetModel::StartAnew()
{
    m_stack = std::make_unique<CFxUIStackedWidget>();
    m_impl = static_cast<CFxUIStackedWidgetImpl *>(m_stack->impl);
    m_widget = qobject_cast<QTabWidget *>(m_stack->getHandle());
    m_widget->resize(1000, 200);
    m_stack->setVisible(true);
    m_model = Model();
    m_armed = -1;
    m_stack->currentChanged().connect([this](int index) { Log("currentChanged", index); });
    m_stack->tabCloseRequested().connect([this](int index) { Log("tabCloseRequested", index); });
    m_stack->tabBarDoubleClicked().connect(
        [this](int index) { Log("tabBarDoubleClicked", index); });
    m_stack->tabBarClicked().connect([this](int index) {
        Log("tabBarClicked", index);
        if (m_armed >= 0)
            m_stack->setCurrentIndex(std::exchange(m_armed, -1));
    });
}

void tst_FxUIStackedWidgetModel::Log(const char *signal, int index)
{
    m_log.append(QStringLiteral("%1(%2) %3/%4")
                     .arg(QLatin1String(signal))
                     .arg(index)
                     .arg(m_stack->currentIndex())
                     .arg(m_widget->currentIndex()));
}

void tst_FxUIStackedWidgetModel::Step()
{
    const int choice = m_random.bounded(20);
    if (choice < 2) {
        AddPage();
    } else if (choice < 4) {
        const int index = RandomIndex();
        const QString title = RandomTitle();
        m_stack->setTabText(index, title);
        m_model.SetTabText(index, title);
    } else if (choice < 13) {
        Turn();
    } else if (choice < 18) {
        ActOnTheTabBar();
    } else if (choice == 18) {
        m_model.blocked = m_random.bounded(3) == 0;
        m_stack->blockSignals(m_model.blocked);
    } else {
        m_model.armed = m_armed = m_random.bounded(MostPages);
    }
}

void tst_FxUIStackedWidgetModel::AddPage()
{
    if (m_model.pages.size() == MostPages) {
        StartAnew();
        return;
    }
    const QString title = RandomTitle();
    const bool hasWidget = m_random.bounded(8) != 0;
    CFxUIBaseView *const page =
        hasWidget ? static_cast<CFxUIBaseView *>(new CFxUILabel) : new CFxUIDockWidget(0);
    const int expected = hasWidget ? m_model.tabs.size() : -1;
    QCOMPARE(m_stack->addTab(page, title), expected);
    m_model.AddPage(page, title, hasWidget);
    m_stack->addView(new CFxUILabel); // a child, and no tab
}

void tst_FxUIStackedWidgetModel::Turn()
{
    const int index = RandomIndex();
    switch (m_random.bounded(4)) {
    case 0:
        m_stack->setCurrentIndex(index);
        m_model.SetCurrentIndex(index);
        break;
    case 1: {
        CFxUIBaseView *const view = m_model.IsPage(index) ? m_model.pages.at(index) : &m_unknown;
        m_stack->setCurrentWidget(view);
        m_model.SetCurrentIndex(index);
        break;
    }
    case 2:
        m_impl->OnPageActivated(index);
        m_model.Activate(index);
        break;
    default:
        m_impl->OnTabClickedActivated(index);
        m_model.ClickActivated(index);
    }
}

// What a user does turns Qt's page and reaches nothing else.
void tst_FxUIStackedWidgetModel::ActOnTheTabBar()
{
    if (m_model.tabs.isEmpty())
        return;
    QTabBar *const bar = m_widget->tabBar();
    const int last = m_model.tabs.size() - 1;
    switch (m_random.bounded(4)) {
    case 0:
        QTest::keyClick(bar, Qt::Key_Left);
        m_model.tab = qMax(m_model.tab - 1, 0);
        break;
    case 1:
        QTest::keyClick(bar, Qt::Key_Right);
        m_model.tab = qMin(m_model.tab + 1, last);
        break;
    case 2:
        m_model.tab = m_random.bounded(last + 1);
        ClickTab(m_model.tab);
        QTest::mouseDClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(m_model.tab).center());
        break;
    default:
        m_model.tab = m_random.bounded(last + 1);
        ClickTab(m_model.tab);
    }
}

void tst_FxUIStackedWidgetModel::ClickTab(int index)
{
    QTabBar *const bar = m_widget->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(index).center());
}

void tst_FxUIStackedWidgetModel::Compare()
{
    QCOMPARE(m_stack->currentIndex(), m_model.current);
    QCOMPARE(m_widget->currentIndex(), m_model.tab);
    QCOMPARE(m_widget->count(), m_model.tabs.size());
    for (int i = 0; i < m_model.tabs.size(); ++i)
        QCOMPARE(m_widget->tabText(i), m_model.tabs.at(i));
    QCOMPARE(Probe::Titles(*m_stack), m_model.titles);
    for (int i = 0; i < m_model.pages.size(); ++i)
        QCOMPARE(m_stack->indexOf(m_model.pages.at(i)), i);
    QCOMPARE(m_stack->indexOf(&m_unknown), m_model.pages.size());
    QCOMPARE(m_log, m_model.log);
    m_log.clear();
    m_model.log.clear();
    QCOMPARE(m_armed, m_model.armed);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIStackedWidgetModel>(argc, argv);
}

#include "tst_FxUIStackedWidgetModel.moc"
