// A list box under random calls and user actions, beside a plain list that does what the class
// promises. After each step all getters, the widget and the emissions agree.

#include "UI/FxUIListBox.h"

#include "support/Random.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUIListBoxImpl.h"

#include <QtTest/QTest>
#include <QtWidgets/QListWidget>

#include <algorithm>
#include <vector>

namespace {

constexpr int Steps = 50000;
constexpr int MostRows = 12;

struct Row {
    QString text;
    QVariant data;
    bool selected = false;
};

/// The list box as it is described.
struct Model {
    bool IsRow(int index) const { return index >= 0 && index < int(rows.size()); }

    int RowOf(const QString &text) const
    {
        const auto found = std::find_if(rows.begin(), rows.end(),
                                        [&](const Row &row) { return row.text == text; });
        return found == rows.end() ? -1 : int(found - rows.begin());
    }

    void OnItemSelected(int index, bool selected)
    {
        if (IsRow(index))
            rows[size_t(index)].selected = selected;
        const bool any =
            std::any_of(rows.begin(), rows.end(), [](const Row &row) { return row.selected; });
        if (!blocked)
            emissions.append(any ? 1 : 0);
    }

    std::vector<Row> rows;
    bool blocked = false;
    QList<int> emissions;
};

} // namespace

class tst_FxUIListBoxModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void agreesWithThePlainList();

private:
    void Step();
    void ChangeRow();
    void ActOnTheWidget();
    void Compare();
    QString RandomText();
    int RandomIndex();

    QListWidget *Widget() { return qobject_cast<QListWidget *>(m_box.getHandle()); }

    CFxUIListBox m_box;
    CFxUIListBoxImpl *m_impl = static_cast<CFxUIListBoxImpl *>(m_box.impl);
    Model m_model;
    QList<int> m_emissions;
    QRandomGenerator m_random;
};

void tst_FxUIListBoxModel::initTestCase()
{
    m_random = SeededRandom();
    m_box.valueChanged().connect([this](int value) { m_emissions.append(value); });
    m_box.setVisible(true);
}

void tst_FxUIListBoxModel::agreesWithThePlainList()
{
    for (int step = 0; step < Steps; ++step) {
        Step();
        Compare();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("in step %1").arg(step)));
    }
}

// Few texts, so that rows are often equal.
QString tst_FxUIListBoxModel::RandomText()
{
    const int number = m_random.bounded(6);
    return number == 0 ? QString() : QString::number(number);
}

// From two below the first to two behind the last.
int tst_FxUIListBoxModel::RandomIndex()
{
    return m_random.bounded(int(m_model.rows.size()) + 4) - 2;
}

void tst_FxUIListBoxModel::Step()
{
    const int choice = m_random.bounded(10);
    if (choice < 2) {
        const QString text = RandomText();
        m_box.addItem(text);
        m_model.rows.push_back({ text, QVariant() });
        if (int(m_model.rows.size()) > MostRows) {
            m_box.clear();
            m_model.rows.clear();
        }
    } else if (choice < 8) {
        ChangeRow();
    } else if (choice == 8) {
        m_model.blocked = m_random.bounded(3) == 0;
        m_box.blockSignals(m_model.blocked);
    } else {
        ActOnTheWidget();
    }
}

void tst_FxUIListBoxModel::ChangeRow()
{
    const int index = RandomIndex();
    const bool flag = m_random.bounded(2) == 0;
    Row *const row = m_model.IsRow(index) ? &m_model.rows[size_t(index)] : nullptr;
    switch (m_random.bounded(6)) {
    case 0:
        m_box.setItemData(index, index);
        if (row)
            row->data = index;
        break;
    case 1:
        m_box.setItemSelected(index, flag);
        if (row)
            row->selected = flag;
        break;
    case 2: {
        const QString text = RandomText();
        m_box.item(index) = text;
        if (row)
            row->text = text;
        break;
    }
    case 3: // these change nothing
        m_box.clearSelection();
        m_impl->clearSelection();
        m_box.setItemText(index, RandomText());
        m_impl->setItemText(index, RandomText());
        break;
    default:
        m_impl->OnItemSelected(index, flag);
        m_model.OnItemSelected(index, flag);
    }
}

// What a user does reaches nothing, since there is nothing to be seen.
void tst_FxUIListBoxModel::ActOnTheWidget()
{
    if (m_random.bounded(2) == 0)
        QTest::mouseClick(Widget()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(m_random.bounded(100), m_random.bounded(100)));
    else
        QTest::keyClick(Widget(), m_random.bounded(2) == 0 ? Qt::Key_Down : Qt::Key_Space);
}

void tst_FxUIListBoxModel::Compare()
{
    QCOMPARE(m_box.count(), int(m_model.rows.size()));
    for (int i = 0; i < m_box.count(); ++i) {
        const Row &row = m_model.rows[size_t(i)];
        QCOMPARE(m_box.item(i), row.text);
        QCOMPARE(m_box.itemData(i), row.data);
        QCOMPARE(m_box.isItemSelected(i), row.selected);
        QCOMPARE(m_box.row(row.text), m_model.RowOf(row.text));
    }
    for (const int index : { -1, m_box.count() }) {
        QVERIFY(m_box.item(index).isEmpty());
        QVERIFY(!m_box.itemData(index).isValid());
        QVERIFY(!m_box.isItemSelected(index));
    }
    QCOMPARE(m_box.row(QStringLiteral("none")), -1);
    QVERIFY(m_box.selectedItems().isEmpty());
    QCOMPARE(m_box.currentRow(), 0);
    QCOMPARE(m_emissions, m_model.emissions);
    m_emissions.clear();
    m_model.emissions.clear();
    QCOMPARE(Widget()->count(), 0);
    QVERIFY(Widget()->selectedItems().isEmpty());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIListBoxModel>(argc, argv);
}

#include "tst_FxUIListBoxModel.moc"
