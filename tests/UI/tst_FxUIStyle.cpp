#include "UI/FxUIStyle.h"

#include "resources/SheetRules.h"
#include "support/TestMain.h"
#include "UI/FxUILabel.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <memory>
#include <type_traits>

static_assert(!std::is_polymorphic_v<CFxUIStyle>);
static_assert(!std::is_copy_constructible_v<CFxUIStyle>);
static_assert(!std::is_copy_assignable_v<CFxUIStyle>);
static_assert(sizeof(CFxUIStyle) == sizeof(QString));
static_assert(std::is_same_v<decltype(g_pStyle), std::shared_ptr<CFxUIStyle>>);
static_assert(std::is_same_v<decltype(GetStyle()), std::shared_ptr<CFxUIStyle>>);

namespace {

QString SheetAsStored()
{
    QFile file(QStringLiteral(":/commonui/resources/qss/style.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

// The sheet with each colour name, as a whole word, replaced by its colour and a carriage return.
// No name is part of another word there, so that this comes to the same.
QString SheetWithColors()
{
    QString sheet = SheetAsStored();
    const QVector<QPair<QString, QString>> colors {
        { QStringLiteral("clone"), QStringLiteral("#646464\r") },
        { QStringLiteral("jango"), QStringLiteral("#333538\r") },
        { QStringLiteral("snoke"), QStringLiteral("#1E2023\r") },
        { QStringLiteral("vader"), QStringLiteral("#141518\r") },
        { QStringLiteral("rey"), QStringLiteral("#CFCFCF\r") },
        { QStringLiteral("obi"), QStringLiteral("#214B98\r") },
        { QStringLiteral("light"), QStringLiteral("#FFFFFF\r") },
        { QStringLiteral("dark"), QStringLiteral("#000000\r") },
    };
    for (const auto &color : colors)
        sheet.replace(QRegularExpression(QStringLiteral("\\b%1\\b").arg(color.first)),
                      color.second);
    return sheet;
}

// A widget's picture under the finished sheet.
QImage Picture(QWidget &widget)
{
    widget.setStyleSheet(CFxUIStyle().styleSheet());
    widget.resize(120, 40);
    return widget.grab().toImage();
}

QImage Indicator(QAbstractButton &button, bool checked, bool enabled)
{
    button.setAutoExclusive(false);
    button.setCheckable(true);
    button.setChecked(checked);
    button.setEnabled(enabled);
    return Picture(button).copy(0, 0, 32, 40);
}

} // namespace

class tst_FxUIStyle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void noInstanceBeforeTheFirstCall();
    void twoCallsReturnTheSameInstance();
    void instanceOutlivesTheSharedReference();
    void constructorLoads();
    void loadedAgainTheTextIsTheSame();
    void textIsTheSheetWithColorsForNames();
    void noColorNameIsLeftAsAValue();
    void colorKeepsItsCarriageReturn();
    void textKeepsTheLineEndsOfTheFile();
    void rulesAndTheirColors_data();
    void rulesAndTheirColors();
    void widgetsTakeTheColors_data();
    void widgetsTakeTheColors();
    void indicatorsShowTheirIcons();
    void noViewTakesTheSheetByItself();
};

void tst_FxUIStyle::noInstanceBeforeTheFirstCall()
{
    QVERIFY(!g_pStyle);
    const auto style = GetStyle();
    QVERIFY(style);
    QCOMPARE(g_pStyle, style);
}

void tst_FxUIStyle::twoCallsReturnTheSameInstance()
{
    const auto first = GetStyle();
    const auto second = GetStyle();
    QVERIFY(first);
    QCOMPARE(second, first);
    QCOMPARE(g_pStyle, first);
    QCOMPARE(first.use_count(), 3L);
}

void tst_FxUIStyle::instanceOutlivesTheSharedReference()
{
    const auto held = GetStyle();
    g_pStyle.reset();
    QCOMPARE(held.use_count(), 1L);
    QVERIFY(!held->styleSheet().isEmpty());
    QVERIFY(GetStyle() != held);
}

void tst_FxUIStyle::constructorLoads()
{
    const CFxUIStyle style;
    QVERIFY(!style.styleSheet().isEmpty());
    QCOMPARE(style.styleSheet(), GetStyle()->styleSheet());
}

void tst_FxUIStyle::loadedAgainTheTextIsTheSame()
{
    CFxUIStyle style;
    const QString text = style.styleSheet();
    style.Load();
    QCOMPARE(style.styleSheet(), text);
}

void tst_FxUIStyle::textIsTheSheetWithColorsForNames()
{
    const QString text = GetStyle()->styleSheet();
    QCOMPARE(text, SheetWithColors());
    // 27 values, each in the place of a name.
    QCOMPARE(text.count(QLatin1Char('\r')), SheetAsStored().count(QLatin1Char('\r')) + 27);
}

void tst_FxUIStyle::noColorNameIsLeftAsAValue()
{
    const QString text = GetStyle()->styleSheet();
    for (const char *name :
         { "clone", "jango", "snoke", "vader", "rey", "obi", "kylo", "light", "dark" })
        QVERIFY2(!text.contains(QLatin1String(name)), name);
}

void tst_FxUIStyle::colorKeepsItsCarriageReturn()
{
    const QString text = GetStyle()->styleSheet();
    QVERIFY(SheetAsStored().contains(QStringLiteral("background-color: jango;")));
    QVERIFY(text.contains(QStringLiteral("background-color: #333538\r;")));
    QVERIFY(text.contains(QStringLiteral("border: 1px solid #000000\r;")));
    QVERIFY(text.contains(QStringLiteral("color:#FFFFFF\r;")));
}

void tst_FxUIStyle::textKeepsTheLineEndsOfTheFile()
{
    const QString stored = SheetAsStored();
    const QString text = GetStyle()->styleSheet();
    const int lineEnds = stored.count(QStringLiteral("\r\n"));
    QVERIFY(lineEnds > 100);
    QCOMPARE(text.count(QStringLiteral("\r\n")), lineEnds);
    QCOMPARE(text.count(QLatin1Char('\n')), lineEnds);
    QVERIFY(text.endsWith(QLatin1Char('}')));
}

void tst_FxUIStyle::rulesAndTheirColors_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("colors");
    const auto add = [](const char *selector, const QStringList &colors) {
        QTest::newRow(selector) << QString::fromLatin1(selector) << colors;
    };
    const QString clone = QStringLiteral("#646464\r");
    const QString jango = QStringLiteral("#333538\r");
    const QString snoke = QStringLiteral("#1E2023\r");
    const QString vader = QStringLiteral("#141518\r");
    const QString rey = QStringLiteral("#CFCFCF\r");
    const QString obi = QStringLiteral("#214B98\r");
    const QString light = QStringLiteral("#FFFFFF\r");
    const QString dark = QStringLiteral("#000000\r");
    add("QDialog", { jango });
    add("QTabWidget", { jango });
    add("QTabWidget::tab-bar", { snoke, dark });
    add("QTabBar::tab", { snoke, dark, light });
    add("QTabBar::tab:selected, QTabBar::tab:hover", { obi });
    add("QPushButton", { vader, light, dark });
    add("QGroupBox", { jango });
    add("QLabel", { jango, light });
    add("QComboBox", { vader, light, dark });
    add("QSlider", { jango });
    add("QSlider::groove:horizontal", { clone });
    add("QSlider::handle:horizontal", { rey });
    add("QLineEdit", { vader, light, dark });
    add("QCheckBox", { jango, light });
    add("QRadioButton", { jango, light });
}

void tst_FxUIStyle::rulesAndTheirColors()
{
    QFETCH(QString, selector);
    QFETCH(QStringList, colors);
    const auto rules = SheetRules(GetStyle()->styleSheet());
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [&selector](const SheetRule &candidate) {
            return candidate.selector == selector;
        });
    QVERIFY(rule != rules.end());
    QStringList found;
    QRegularExpressionMatchIterator matches = QRegularExpression(QStringLiteral("#[0-9A-F]{6}\r"))
                                                  .globalMatch(rule->declarations.join(QString()));
    while (matches.hasNext())
        found.append(matches.next().captured());
    QCOMPARE(found, colors);
}

void tst_FxUIStyle::widgetsTakeTheColors_data()
{
    QTest::addColumn<bool>("edit");
    QTest::newRow("line edit") << true;
    QTest::newRow("push button") << false;
}

void tst_FxUIStyle::widgetsTakeTheColors()
{
    QFETCH(bool, edit);
    const std::unique_ptr<QWidget> widget(edit ? static_cast<QWidget *>(new QLineEdit)
                                               : new QPushButton);
    const QImage picture = Picture(*widget);
    QCOMPARE(picture.pixelColor(0, 20), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(60, 10), QColor(0x14, 0x15, 0x18));
}

void tst_FxUIStyle::indicatorsShowTheirIcons()
{
    QCheckBox box;
    const QImage unchecked = Indicator(box, false, true);
    const QImage checked = Indicator(box, true, true);
    const QImage uncheckedDisabled = Indicator(box, false, false);
    const QImage checkedDisabled = Indicator(box, true, false);
    const QVector<QImage> all { unchecked, checked, uncheckedDisabled, checkedDisabled };
    for (int i = 0; i < all.size(); ++i) {
        for (int j = 0; j < i; ++j)
            QVERIFY(all.at(i) != all.at(j));
    }
    QRadioButton button;
    QVERIFY(Indicator(button, false, true) != Indicator(button, true, true));
    QVERIFY(Indicator(button, false, true) != Indicator(button, false, false));
    QCOMPARE(Indicator(button, false, false), Indicator(button, true, false));
}

void tst_FxUIStyle::noViewTakesTheSheetByItself()
{
    GetStyle();
    QVERIFY(qApp->styleSheet().isEmpty());
    const CFxUILabel label;
    QCOMPARE(qobject_cast<QWidget *>(label.getHandle())->styleSheet(),
             QStringLiteral("QLabel { }"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIStyle>(argc, argv);
}

#include "tst_FxUIStyle.moc"
