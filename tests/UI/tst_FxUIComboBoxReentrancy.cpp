#include "UI/FxUIComboBox.h"

#include "support/TestMain.h"
#include "UI/ComboBoxTools.h"

#include <QtTest/QTest>

#include <stdexcept>
#include <utility>

using namespace ComboBoxTools;

namespace {

// Runs the wrapped action at the first emission alone.
template <class Action> auto Once(Action action)
{
    return [action, done = std::make_shared<bool>(false)](const auto &...) {
        if (!std::exchange(*done, true))
            action();
    };
}

} // namespace

class tst_FxUIComboBoxReentrancy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void indexSetFromASlotWins();
    void indexSetFromTheStringsSlotWins();
    void indexSetBackFromASlotWins();
    void usersChoiceIsNamedToTheEndThoughASlotHasMovedOn();
    void textSetFromASlotIsSeenByTheNextOne();
    void eachEmissionTestsTheBlockForItself();
    void eachEmissionOfAUsersChoiceTestsTheBlockForItself();
    void itemRemovedByASlotHasANullText();
    void boxClearedByASlotHasANullText();
    void boxClearedByTheSlotOfAUsersChoice();
    void textOutlivesItsItemDuringTheEmission();
    void itemsAddedByASlotLeaveTheTextAlone();
    void firstItemRemovedByItsOwnSlot();
    void currentItemRemovedByASlotOfTheRemoval();
    void exceptionFromASlotLeavesTheRecordAheadOfTheWidget();
    void slotThatTakesTheWidgetAway();
};

void tst_FxUIComboBoxReentrancy::indexSetFromASlotWins()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect(Once([&] { watched.box.setCurrentIndex(2); }));
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "currentIndexChanged(2) 2 'c' widget 0 'a'",
                 "currentStringChanged('c') 2 'c' widget 0 'a'",
                 "Qt.currentIndexChanged(2) 2 'c' widget 2 'c'",
                 "currentStringChanged('c') 2 'c' widget 2 'c'",
             }));
    QCOMPARE(watched.State(), QStringLiteral("2 'c' widget 2 'c'"));
}

void tst_FxUIComboBoxReentrancy::indexSetFromTheStringsSlotWins()
{
    WatchedABC watched;
    watched.box.currentStringChanged().connect(Once([&] { watched.box.setCurrentIndex(2); }));
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "currentStringChanged('b') 1 'b' widget 0 'a'",
                 "currentIndexChanged(2) 2 'c' widget 0 'a'",
                 "currentStringChanged('c') 2 'c' widget 0 'a'",
                 "Qt.currentIndexChanged(2) 2 'c' widget 2 'c'",
             }));
    QCOMPARE(watched.State(), QStringLiteral("2 'c' widget 2 'c'"));
}

void tst_FxUIComboBoxReentrancy::indexSetBackFromASlotWins()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect(Once([&] { watched.box.setCurrentIndex(0); }));
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "currentIndexChanged(0) 0 'a' widget 0 'a'",
                 "currentStringChanged('a') 0 'a' widget 0 'a'",
                 "currentStringChanged('a') 0 'a' widget 0 'a'",
             }));
}

void tst_FxUIComboBoxReentrancy::usersChoiceIsNamedToTheEndThoughASlotHasMovedOn()
{
    WatchedABC watched;
    watched.box.activated().connect(Once([&] { watched.box.setCurrentIndex(2); }));
    QTest::keyClick(Widget(watched.box), Qt::Key_Down);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'b' widget 1 'b'",
                 "currentIndexChanged(2) 2 'c' widget 1 'b'",
                 "currentStringChanged('c') 2 'c' widget 1 'b'",
                 "Qt.currentIndexChanged(2) 2 'c' widget 2 'c'",
                 "currentIndexChanged(1) 2 'c' widget 2 'c'",
                 "currentStringChanged('b') 2 'c' widget 2 'c'",
                 "Qt.currentIndexChanged(1) 2 'c' widget 2 'c'",
             }));
}

void tst_FxUIComboBoxReentrancy::textSetFromASlotIsSeenByTheNextOne()
{
    CFxUIComboBox box;
    QStringList seen;
    box.currentStringChanged().connect([&](const QString &text) {
        if (text == A)
            box.setCurrentText(B);
    });
    box.currentStringChanged().connect([&](const QString &text) { seen.append(text); });
    box.setCurrentText(A);
    QCOMPARE(seen, (QStringList { B, B })); // the signal passes the text as it stands
    QCOMPARE(box.currentText(), B);
}

void tst_FxUIComboBoxReentrancy::eachEmissionTestsTheBlockForItself()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect([&](int) { watched.box.blockSignals(true); });
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'",
             }));
}

void tst_FxUIComboBoxReentrancy::eachEmissionOfAUsersChoiceTestsTheBlockForItself()
{
    WatchedABC watched;
    watched.box.activated().connect([&](int) { watched.box.blockSignals(true); });
    QTest::keyClick(Widget(watched.box), Qt::Key_Down);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'b' widget 1 'b'",
                 "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'",
             }));
}

void tst_FxUIComboBoxReentrancy::itemRemovedByASlotHasANullText()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect(Once([&] { watched.box.removeItem(2); }));
    watched.box.setCurrentIndex(2);
    // The widget stands at 0 all the time and knows nothing of row 2 any more.
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(2) 2 'c' widget 0 'a'",
                 "currentStringChanged(null) 2 'c' widget 0 'a'",
                 "Qt.currentIndexChanged(-1) 2 'c' widget -1 ''",
             }));
}

void tst_FxUIComboBoxReentrancy::boxClearedByASlotHasANullText()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect(Once([&] { watched.box.clear(); }));
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "currentIndexChanged(1) 1 'b' widget 0 'a'",
                 "Qt.currentIndexChanged(-1) 1 'b' widget -1 ''",
                 "currentStringChanged(null) 1 'b' widget -1 ''",
             }));
    QCOMPARE(watched.box.count(), 0);
}

void tst_FxUIComboBoxReentrancy::boxClearedByTheSlotOfAUsersChoice()
{
    WatchedABC watched;
    watched.box.activated().connect(Once([&] { watched.box.clear(); }));
    QTest::keyClick(Widget(watched.box), Qt::Key_Down);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(1) 1 'b' widget 1 'b'",
                 "Qt.currentIndexChanged(-1) 1 'b' widget -1 ''",
                 "currentIndexChanged(1) 1 'b' widget -1 ''",
                 "currentStringChanged(null) 1 'b' widget -1 ''",
                 "Qt.currentIndexChanged(1) 1 'b' widget -1 ''",
             }));
}

void tst_FxUIComboBoxReentrancy::textOutlivesItsItemDuringTheEmission()
{
    CFxUIComboBox box;
    AddABC(box);
    box.setItemData(1, QString(1000, QLatin1Char('x')));
    QStringList seen;
    box.currentStringChanged().connect([&](const QString &text) {
        while (box.count() > 0)
            box.removeItem(0);
        seen.append(text);
    });
    box.currentStringChanged().connect([&](const QString &text) { seen.append(text); });
    box.setCurrentIndex(1);
    // The removal shifts the current row: "b" becomes row 0 and is reported on the way.
    QVERIFY(seen.size() >= 2);
    QCOMPARE(seen.last(), B);
    QCOMPARE(seen.at(seen.size() - 2), B);
    QCOMPARE(box.count(), 0);
}

void tst_FxUIComboBoxReentrancy::itemsAddedByASlotLeaveTheTextAlone()
{
    CFxUIComboBox box;
    AddABC(box);
    QStringList seen;
    box.currentStringChanged().connect(Once([&box] {
        for (int i = 0; i < 1000; ++i)
            box.addItem(QString::number(i)); // the list moves in memory
    }));
    box.currentStringChanged().connect([&](const QString &text) { seen.append(text); });
    box.setCurrentIndex(1);
    QCOMPARE(seen, QStringList { B });
    QCOMPARE(Texts(box), WidgetTexts(box));
}

void tst_FxUIComboBoxReentrancy::firstItemRemovedByItsOwnSlot()
{
    Watched watched;
    watched.box.activated().connect(Once([&] { watched.box.removeItem(0); }));
    watched.box.addItem(A);
    QCOMPARE(watched.log.Take(),
             Lines({
                 "activated(0) 0 'a' widget 0 'a'",
                 "Qt.currentIndexChanged(-1) 0 'a' widget -1 ''",
                 "currentIndexChanged(0) 0 'a' widget -1 ''",
                 "currentStringChanged(null) 0 'a' widget -1 ''",
                 "Qt.currentIndexChanged(0) 0 'a' widget -1 ''",
             }));
    QCOMPARE(Texts(watched.box), WidgetTexts(watched.box));
}

void tst_FxUIComboBoxReentrancy::currentItemRemovedByASlotOfTheRemoval()
{
    WatchedABC watched;
    watched.box.setCurrentIndex(2);
    watched.box.currentIndexChanged().connect(Once([&] { watched.box.removeItem(1); }));
    watched.box.removeItem(2);
    QCOMPARE(Texts(watched.box), QStringList { A });
    QCOMPARE(WidgetTexts(watched.box), QStringList { A });
    QCOMPARE(watched.State(), QStringLiteral("0 'a' widget 0 'a'"));
}

void tst_FxUIComboBoxReentrancy::exceptionFromASlotLeavesTheRecordAheadOfTheWidget()
{
    WatchedABC watched;
    watched.box.currentIndexChanged().connect(Once([] { throw std::runtime_error("slot"); }));
    QVERIFY_EXCEPTION_THROWN(watched.box.setCurrentIndex(1), std::runtime_error);
    QCOMPARE(watched.State(), QStringLiteral("1 'b' widget 0 'a'"));
    watched.log.Take();
    watched.box.setCurrentIndex(1);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(1) 1 'b' widget 1 'b'" }));
}

void tst_FxUIComboBoxReentrancy::slotThatTakesTheWidgetAway()
{
    CFxUIComboBox box;
    AddABC(box);
    box.currentStringChanged().connect([&box](const QString &) { delete box.getHandle(); });
    box.setCurrentIndex(1);
    QVERIFY(!box.getHandle());
    QCOMPARE(box.currentText(), B);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBoxReentrancy>(argc, argv);
}

#include "tst_FxUIComboBoxReentrancy.moc"
