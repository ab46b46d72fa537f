#include "UI/FxUIComboBox.h"

#include "support/TestMain.h"
#include "UI/ComboBoxModel.h"
#include "UI/ComboBoxTools.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

#include <random>

using namespace ComboBoxTools;

namespace {

/// The real box and the model side by side, driven by the same operations.
class Pair {
public:
    explicit Pair(unsigned seed)
        : m_random(seed)
    {
        m_box.activated().connect([this](int i) { Seen("activated", QString::number(i)); });
        m_box.currentIndexChanged().connect(
            [this](int i) { Seen("currentIndexChanged", QString::number(i)); });
        m_box.currentStringChanged().connect(
            [this](const QString &text) { Seen("currentStringChanged", text); });
        m_model.emitted = [this](const char *name, const QString &argument) {
            Expected(name, argument);
        };
    }

    /// Runs one random operation on both; false if they differ afterwards.
    bool Step()
    {
        m_seen.clear();
        m_expected.clear();
        m_nested = Chance(3) ? RandomNested() : Nested();
        m_nestedAt = Number(0, 3);
        RunRandomOperation();
        return m_seen == m_expected && RealSnapshot() == ModelSnapshot();
    }

    QString Difference() const
    {
        return QStringLiteral("\noperations:\n  %1\nemissions:\n  %2\nexpected:\n  %3\nstate:    "
                              "%4\nexpected: %5")
            .arg(m_operations.join(QStringLiteral("\n  ")), m_seen.join(QStringLiteral("\n  ")),
                 m_expected.join(QStringLiteral("\n  ")), RealSnapshot(), ModelSnapshot());
    }

    int Emissions() const { return m_emissions; }

    int NestedCalls() const { return m_nestedCalls; }

private:
    // What a slot does at the emission that was chosen, on both sides.
    struct Nested {
        std::function<void(CFxUIComboBox &)> real;
        std::function<void(ComboBoxModel::Box &)> model;
    };

    int Number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }

    bool Chance(int in) { return Number(1, in) == 1; }

    int Row() { return Number(-2, m_model.items.size() + 1); }

    QString Text()
    {
        const QStringList texts { QString(), A, B, C, QStringLiteral("item"), QStringLiteral("x") };
        return texts.at(Number(0, texts.size() - 1));
    }

    QVariant Data()
    {
        const QVariantList values { QVariant(), 1, 2, QStringLiteral("2"), 2.5, true };
        return values.at(Number(0, values.size() - 1));
    }

    void Note(const char *operation, const QString &arguments = QString())
    {
        m_operations.append(QStringLiteral("%1(%2)").arg(QLatin1String(operation), arguments));
        if (m_operations.size() > 12)
            m_operations.removeFirst();
    }

    QString Line(const char *name, const QString &argument, const QString &state) const
    {
        return QStringLiteral("%1(%2) in %3").arg(QLatin1String(name), argument, state);
    }

    void Seen(const char *name, const QString &argument)
    {
        ++m_emissions;
        const int at = m_seen.size();
        m_seen.append(Line(name, argument, RealSnapshot()));
        if (at == m_nestedAt && m_nested.real) {
            ++m_nestedCalls;
            m_nested.real(m_box);
        }
    }

    void Expected(const char *name, const QString &argument)
    {
        const int at = m_expected.size();
        m_expected.append(Line(name, argument, ModelSnapshot()));
        if (at == m_nestedAt && m_nested.model)
            m_nested.model(m_model);
    }

    QString RealSnapshot() const
    {
        const QComboBox *widget = ::Widget(m_box);
        QStringList items;
        for (int i = -1; i <= m_box.count(); ++i)
            items.append(m_box.itemText(i) + QLatin1Char('=') + m_box.itemData(i).toString());
        QStringList finds;
        for (const QString &text : { QString(), A, QStringLiteral("x") })
            finds.append(QString::number(m_box.findText(text)));
        for (const QVariant &data : { QVariant(), QVariant(2), QVariant(true) })
            finds.append(QString::number(m_box.findData(data)));
        QStringList rows;
        for (int i = 0; i < widget->count(); ++i)
            rows.append(widget->itemText(i));
        return Format(m_box.count(), m_box.currentIndex(), m_box.currentText(), m_box.isEditable(),
                      items, finds, rows, widget->currentIndex(), widget->currentText());
    }

    QString ModelSnapshot() const
    {
        QStringList items;
        for (int i = -1; i <= m_model.items.size(); ++i) {
            const QVariant data =
                i < 0 || i >= m_model.items.size() ? QVariant() : m_model.items.at(i).data;
            items.append(m_model.ItemText(i) + QLatin1Char('=') + data.toString());
        }
        QStringList finds;
        for (const QString &text : { QString(), A, QStringLiteral("x") })
            finds.append(QString::number(m_model.FindText(text)));
        for (const QVariant &data : { QVariant(), QVariant(2), QVariant(true) })
            finds.append(QString::number(m_model.FindData(data)));
        return Format(m_model.items.size(), m_model.index, m_model.text, m_model.editable, items,
                      finds, m_model.widget.rows, m_model.widget.current,
                      m_model.widget.CurrentText());
    }

    static QString Format(int count, int index, const QString &text, bool editable,
                          const QStringList &items, const QStringList &finds,
                          const QStringList &rows, int current, const QString &shown)
    {
        return QStringLiteral("%1 items [%2], at %3 '%4' %5, finds %6; widget [%7] at %8 '%9'")
            .arg(QString::number(count), items.join(QLatin1Char('|')), QString::number(index), text,
                 editable ? QStringLiteral("editable") : QStringLiteral("fixed"),
                 finds.join(QLatin1Char(' ')), rows.join(QLatin1Char('|')),
                 QString::number(current), shown);
    }

    void RunRandomOperation();
    void Insert();
    void Remove();
    void ChangeIndex();
    void ChangeText();
    void ActAsUser();
    Nested RandomNested();

    std::mt19937 m_random;
    CFxUIComboBox m_box;
    ComboBoxModel::Box m_model;
    Nested m_nested;
    int m_nestedAt = -1;
    QStringList m_seen;
    QStringList m_expected;
    QStringList m_operations;
    int m_emissions = 0;
    int m_nestedCalls = 0;
};

void Pair::RunRandomOperation()
{
    // A box that grows without bound would slow the comparison down.
    if (m_model.items.size() > 12 || m_model.widget.rows.size() > 12 || Chance(40)) {
        Note("clear");
        m_box.clear();
        m_model.Clear();
        return;
    }
    void (Pair::*const kinds[])() = { &Pair::Insert,     &Pair::Remove,    &Pair::ChangeIndex,
                                      &Pair::ChangeText, &Pair::ActAsUser, &Pair::ActAsUser };
    (this->*kinds[Number(0, 5)])();
}

void Pair::Insert()
{
    const ComboBoxModel::Box::Item item { Chance(2), Text(), Data() };
    const int row = Row();
    switch (Number(0, 2)) {
    case 0:
        Note("addItem", item.text);
        if (item.hasIcon)
            m_box.addItem(Icon(), item.text, item.data);
        else
            m_box.addItem(item.text, item.data);
        m_model.Add(item);
        break;
    case 1:
        Note("insertItem", QString::number(row) + QLatin1Char(' ') + item.text);
        if (item.hasIcon)
            m_box.insertItem(row, Icon(), item.text, item.data);
        else
            m_box.insertItem(row, item.text, item.data);
        m_model.Insert(row, item);
        break;
    default:
        Note("insertItems", QString::number(row) + QLatin1Char(' ') + item.text);
        m_box.insertItems(row, { item.text, A });
        m_model.Insert(qMax(0, row), { false, item.text, QVariant() });
        m_model.Insert(qMax(0, row) + 1, { false, A, QVariant() });
    }
}

void Pair::Remove()
{
    const int row = Row();
    Note("removeItem", QString::number(row));
    m_box.removeItem(row);
    m_model.Remove(row);
}

void Pair::ChangeIndex()
{
    const int row = Row();
    if (Chance(4)) {
        const QVariant data = Data();
        Note("setItemData", QString::number(row));
        m_box.setItemData(row, data, Number(0, 300));
        m_model.SetItemData(row, data);
        return;
    }
    Note("setCurrentIndex", QString::number(row));
    m_box.setCurrentIndex(row);
    m_model.SetCurrentIndex(row);
}

void Pair::ChangeText()
{
    const QString text = Text();
    switch (Number(0, 5)) {
    case 0:
    case 1:
        Note("setCurrentText", text);
        m_box.setCurrentText(text);
        m_model.SetCurrentText(text);
        break;
    case 2:
        Note("setEditText", text);
        m_box.setEditText(text);
        m_model.SetEditText(text);
        break;
    case 3:
        Note("clearEditText");
        m_box.clearEditText();
        m_model.text.clear();
        break;
    case 4:
        Note("setEditable", m_model.editable ? QStringLiteral("false") : QStringLiteral("true"));
        m_box.setEditable(!m_model.editable);
        m_model.SetEditable(!m_model.editable);
        break;
    default:
        Note("blockSignals, setItemText, setHideEmptyText, setInsertPolicy, setValidator");
        m_model.blocked = Chance(4);
        m_box.blockSignals(m_model.blocked);
        m_box.setItemText(0, text);
        m_box.setHideEmptyText(true);
        m_box.setInsertPolicy(CFxUIComboBox::NoInsert);
        m_box.setValidator(nullptr);
    }
}

void Pair::ActAsUser()
{
    QComboBox *widget = ::Widget(m_box);
    switch (Number(0, 4)) {
    case 0:
        Note("user presses Down");
        QTest::keyClick(widget, Qt::Key_Down);
        m_model.widget.PressDown();
        break;
    case 1:
        Note("user presses Up");
        QTest::keyClick(widget, Qt::Key_Up);
        m_model.widget.PressUp();
        break;
    case 2: {
        const int row = Number(-1, widget->count());
        Note("user chooses row", QString::number(row));
        widget->setCurrentIndex(row);
        m_model.widget.SetCurrentIndex(row);
        break;
    }
    case 3: {
        const QString text = Text();
        Note("user types", text);
        widget->setEditText(text);
        m_model.widget.SetEditText(text);
        break;
    }
    default:
        if (!m_model.editable || !Chance(3))
            return;
        Note("user presses Return");
        m_nested = Nested(); // the line edit hands the key on to the box: twice what follows
        QTest::keyClick(widget->lineEdit(), Qt::Key_Return);
        m_model.widget.PressReturn();
    }
}

Pair::Nested Pair::RandomNested()
{
    const int row = Row();
    const QString text = Text();
    switch (Number(0, 3)) {
    case 0:
        return { [row](CFxUIComboBox &box) { box.setCurrentIndex(row); },
                 [row](ComboBoxModel::Box &model) { model.SetCurrentIndex(row); } };
    case 1:
        return { [text](CFxUIComboBox &box) { box.setCurrentText(text); },
                 [text](ComboBoxModel::Box &model) { model.SetCurrentText(text); } };
    case 2:
        return { [text](CFxUIComboBox &box) { box.setEditText(text); },
                 [text](ComboBoxModel::Box &model) { model.SetEditText(text); } };
    default:
        return { [](CFxUIComboBox &box) { box.blockSignals(true); },
                 [](ComboBoxModel::Box &model) { model.blocked = true; } };
    }
}

unsigned Seed()
{
    const QByteArray given = qgetenv("COMMONUI_TEST_SEED");
    return given.isEmpty() ? std::random_device()() : given.toUInt();
}

} // namespace

class tst_FxUIComboBoxModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void agreesWithThePlainModelOverRandomSteps();
    void survivesSlotsThatChangeTheItems();
};

void tst_FxUIComboBoxModel::agreesWithThePlainModelOverRandomSteps()
{
    constexpr int steps = 50000;
    const unsigned seed = Seed();
    qInfo("COMMONUI_TEST_SEED=%u", seed);
    Pair pair(seed);
    for (int step = 0; step < steps; ++step) {
        if (!pair.Step())
            QFAIL(qPrintable(
                QStringLiteral("seed %1, step %2: %3").arg(seed).arg(step).arg(pair.Difference())));
    }
    // The run is worth something only if slots ran, and some of them acted.
    QVERIFY(pair.Emissions() > steps / 10);
    QVERIFY(pair.NestedCalls() > steps / 100);
    qInfo("%d emissions, %d calls from slots", pair.Emissions(), pair.NestedCalls());
}

// Slots that add and remove items leave Qt's own part to chance; what must hold is that nothing is
// read that is gone, and that list and widget agree in the end.
void tst_FxUIComboBoxModel::survivesSlotsThatChangeTheItems()
{
    const unsigned seed = Seed();
    qInfo("COMMONUI_TEST_SEED=%u", seed);
    std::mt19937 random(seed);
    const auto number = [&random](int to) {
        return std::uniform_int_distribution<>(0, to)(random);
    };
    CFxUIComboBox box;
    int depth = 0;
    const auto change = [&] {
        switch (number(4)) {
        case 0:
            return box.addItem(QString::number(number(99)));
        case 1:
            return box.insertItem(number(box.count()), QString::number(number(99)));
        case 2:
            return box.removeItem(number(box.count()));
        case 3:
            return box.setCurrentIndex(number(box.count()));
        default:
            if (number(9) == 0)
                box.clear();
        }
    };
    const auto slot = [&] {
        if (depth > 2 || number(3) != 0)
            return;
        ++depth;
        change();
        --depth;
    };
    int characters = 0;
    box.activated().connect([&](int) { slot(); });
    box.currentIndexChanged().connect([&](int) { slot(); });
    box.currentStringChanged().connect([&](const QString &) { slot(); });
    box.currentStringChanged().connect([&](const QString &text) { characters += text.size(); });
    for (int step = 0; step < 20000; ++step) {
        change();
        QCOMPARE(Texts(box), WidgetTexts(box));
        if (box.count() > 20)
            box.clear();
    }
    QVERIFY(characters > 0);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBoxModel>(argc, argv);
}

#include "tst_FxUIComboBoxModel.moc"
