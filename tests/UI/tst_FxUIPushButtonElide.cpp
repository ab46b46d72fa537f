#include "support/TestMain.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QIcon>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

namespace {

const QString LongText = QStringLiteral("a caption that is much too long for its button");

// A button on the screen, so that a resizing reaches it at once.
class ShownButton {
public:
    CFxUIPushButton button;

    explicit ShownButton(int width)
    {
        button.setVisible(true);
        Resize(width);
    }

    QPushButton *Widget() const { return qobject_cast<QPushButton *>(button.getHandle()); }

    void Resize(int width)
    {
        Widget()->resize(width, 30);
        QCOMPARE(Widget()->width(), width);
    }

    QString Shown() const { return Widget()->text(); }

    QString Elided(const QString &text) const
    {
        return QFontMetrics(Widget()->font())
            .elidedText(text, Qt::ElideRight, Widget()->width(), 0);
    }
};

} // namespace

class tst_FxUIPushButtonElide : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isOffByDefault();
    void textIsElidedToTheWholeWidth();
    void textThatFitsIsShownInFull();
    void iconAndMenuTakeNothingOffTheWidth();
    void textAnswersTheFullText();
    void emptyTextIsGivenUnelided();
    void enablingChangesNothingUntilTheNextText();
    void enablingChangesNothingUntilTheNextResizing();
    void disablingKeepsTheElidedTextUntilTheNextText();
    void resizingElidesAnew();
    void resizingUnblocksTheWidgetsSignals();
    void resizingLeavesTheWidgetsSignalsWithoutAnythingToElide_data();
    void resizingLeavesTheWidgetsSignalsWithoutAnythingToElide();
    void settingTheTextLeavesTheWidgetsSignals();
};

void tst_FxUIPushButtonElide::isOffByDefault()
{
    ShownButton shown(80);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), LongText);
    shown.Resize(60);
    QCOMPARE(shown.Shown(), LongText);
}

void tst_FxUIPushButtonElide::textIsElidedToTheWholeWidth()
{
    ShownButton shown(120);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
    QVERIFY(shown.Shown().endsWith(QChar(0x2026)));
    QVERIFY(LongText.startsWith(shown.Shown().chopped(1)));
}

void tst_FxUIPushButtonElide::textThatFitsIsShownInFull()
{
    ShownButton shown(600);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), LongText);
}

void tst_FxUIPushButtonElide::iconAndMenuTakeNothingOffTheWidth()
{
    ShownButton shown(120);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    CFxUIMenu menu;
    shown.button.setIcon(QIcon(pixmap));
    shown.button.setMenu(&menu);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
}

void tst_FxUIPushButtonElide::textAnswersTheFullText()
{
    ShownButton shown(80);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    QVERIFY(shown.Shown() != LongText);
    QCOMPARE(shown.button.text(), LongText);
}

void tst_FxUIPushButtonElide::emptyTextIsGivenUnelided()
{
    ShownButton shown(80);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    shown.button.setText(QString());
    QCOMPARE(shown.Shown(), QString());
    shown.Resize(60);
    QCOMPARE(shown.Shown(), QString());
}

void tst_FxUIPushButtonElide::enablingChangesNothingUntilTheNextText()
{
    ShownButton shown(80);
    shown.button.setText(LongText);
    shown.button.setElideTextEnabled(true);
    QCOMPARE(shown.Shown(), LongText);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
}

void tst_FxUIPushButtonElide::enablingChangesNothingUntilTheNextResizing()
{
    ShownButton shown(80);
    shown.button.setText(LongText);
    shown.button.setElideTextEnabled(true);
    shown.Resize(90);
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
}

void tst_FxUIPushButtonElide::disablingKeepsTheElidedTextUntilTheNextText()
{
    ShownButton shown(80);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    const QString elided = shown.Shown();
    QVERIFY(elided != LongText);
    shown.button.setElideTextEnabled(false);
    QCOMPARE(shown.Shown(), elided);
    shown.Resize(600);
    QCOMPARE(shown.Shown(), elided);
    shown.button.setText(LongText);
    QCOMPARE(shown.Shown(), LongText);
}

void tst_FxUIPushButtonElide::resizingElidesAnew()
{
    ShownButton shown(120);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    const QString wide = shown.Shown();
    shown.Resize(70);
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
    QVERIFY(shown.Shown().size() < wide.size());
    shown.Resize(600);
    QCOMPARE(shown.Shown(), LongText);
}

void tst_FxUIPushButtonElide::resizingUnblocksTheWidgetsSignals()
{
    ShownButton shown(120);
    shown.button.setElideTextEnabled(true);
    shown.button.setText(LongText);
    shown.Widget()->blockSignals(true);
    shown.Resize(70);
    QVERIFY(!shown.Widget()->signalsBlocked());
}

void tst_FxUIPushButtonElide::resizingLeavesTheWidgetsSignalsWithoutAnythingToElide_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("text");
    QTest::newRow("off") << false << LongText;
    QTest::newRow("no text") << true << QString();
}

void tst_FxUIPushButtonElide::resizingLeavesTheWidgetsSignalsWithoutAnythingToElide()
{
    QFETCH(bool, enabled);
    QFETCH(QString, text);
    ShownButton shown(120);
    shown.button.setElideTextEnabled(enabled);
    shown.button.setText(text);
    shown.Widget()->blockSignals(true);
    shown.Resize(70);
    QVERIFY(shown.Widget()->signalsBlocked());
}

void tst_FxUIPushButtonElide::settingTheTextLeavesTheWidgetsSignals()
{
    ShownButton shown(120);
    shown.button.setElideTextEnabled(true);
    shown.Widget()->blockSignals(true);
    shown.button.setText(LongText);
    QVERIFY(shown.Widget()->signalsBlocked());
    QCOMPARE(shown.Shown(), shown.Elided(LongText));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIPushButtonElide>(argc, argv);
}

#include "tst_FxUIPushButtonElide.moc"
