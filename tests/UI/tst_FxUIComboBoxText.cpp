#include "UI/FxUIComboBox.h"

#include "support/TestMain.h"
#include "UI/ComboBoxTools.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>

using namespace ComboBoxTools;

class tst_FxUIComboBoxText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void setCurrentTextLooksUpNoItem();
    void setCurrentTextWithTheSameTextIsSilent();
    void setCurrentTextOnAnEditableBoxReachesTheWidgetFirst();
    void indexDoesNotRestoreTheTextThatWasReplaced();
    void setEditTextIsSilent();
    void clearEditTextIsSilent();
    void typedTextDoesNotArrive();
    void returnInAnEditableBoxAddsToTheWidgetAlone();
    void editHandlersServeACallerThatHoldsTheImplementation();
};

void tst_FxUIComboBoxText::setCurrentTextLooksUpNoItem()
{
    WatchedABC watched;
    watched.box.setCurrentText(C);
    QCOMPARE(watched.log.Take(), Lines({ "currentStringChanged('c') 0 'c' widget 0 'a'" }));
    watched.box.setCurrentText(QStringLiteral("other"));
    QCOMPARE(watched.log.Take(), Lines({ "currentStringChanged('other') 0 'other' widget 0 'a'" }));
}

void tst_FxUIComboBoxText::setCurrentTextWithTheSameTextIsSilent()
{
    WatchedABC watched;
    watched.box.setEditable(true);
    Widget(watched.box)->setEditText(QStringLiteral("typed"));
    watched.box.setCurrentText(A);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 'a' widget 0 'typed'"));
}

void tst_FxUIComboBoxText::setCurrentTextOnAnEditableBoxReachesTheWidgetFirst()
{
    WatchedABC watched;
    watched.box.setEditable(true);
    watched.log.ListenToQt("Qt.editTextChanged", Widget(watched.box), &QComboBox::editTextChanged);
    watched.box.setCurrentText(QStringLiteral("other"));
    QCOMPARE(watched.log.Take(),
             Lines({
                 "Qt.editTextChanged('other') 0 'other' widget 0 'other'",
                 "currentStringChanged('other') 0 'other' widget 0 'other'",
             }));
}

void tst_FxUIComboBoxText::indexDoesNotRestoreTheTextThatWasReplaced()
{
    WatchedABC watched;
    watched.box.setCurrentText(QStringLiteral("other"));
    watched.log.Take();
    watched.box.setCurrentIndex(0);
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 'other' widget 0 'a'"));
}

void tst_FxUIComboBoxText::setEditTextIsSilent()
{
    WatchedABC watched;
    watched.box.setEditText(QStringLiteral("one"));
    QCOMPARE(watched.State(), QStringLiteral("0 'one' widget 0 'a'"));
    watched.box.setEditable(true);
    Widget(watched.box)->setEditText(QStringLiteral("typed"));
    watched.box.setEditText(QStringLiteral("one")); // no comparison
    QCOMPARE(watched.State(), QStringLiteral("0 'one' widget 0 'one'"));
    QCOMPARE(watched.log.Take(), QStringList());
}

void tst_FxUIComboBoxText::clearEditTextIsSilent()
{
    WatchedABC watched;
    watched.box.setEditable(true);
    watched.box.clearEditText();
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 '' widget 0 'a'"));
}

void tst_FxUIComboBoxText::typedTextDoesNotArrive()
{
    WatchedABC watched;
    watched.box.setEditable(true);
    Widget(watched.box)->lineEdit()->selectAll();
    QTest::keyClicks(Widget(watched.box)->lineEdit(), QStringLiteral("xyz"));
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.State(), QStringLiteral("0 'a' widget 0 'xyz'"));
}

// Qt's own insert policy is at work, of which the box doesn't know.
void tst_FxUIComboBoxText::returnInAnEditableBoxAddsToTheWidgetAlone()
{
    WatchedABC watched;
    watched.box.setEditable(true);
    Widget(watched.box)->lineEdit()->selectAll();
    QTest::keyClicks(Widget(watched.box)->lineEdit(), QStringLiteral("xyz"));
    QTest::keyClick(Widget(watched.box)->lineEdit(), Qt::Key_Return);
    QCOMPARE(watched.log.Take(), Lines({ "Qt.currentIndexChanged(3) 0 'a' widget 3 'xyz'" }));
    QCOMPARE(watched.box.count(), 3);
    QCOMPARE(Widget(watched.box)->count(), 4);
}

void tst_FxUIComboBoxText::editHandlersServeACallerThatHoldsTheImplementation()
{
    WatchedABC watched;
    Impl(watched.box)->OnEditTextChanged(QStringLiteral("typed"));
    Impl(watched.box)->OnEditingFinished();
    QCOMPARE(watched.log.Take(),
             Lines({
                 "editTextChanged('typed') 0 'typed' widget 0 'a'",
                 "editingFinished() 0 'typed' widget 0 'a'",
             }));
    watched.box.blockSignals(true);
    Impl(watched.box)->OnEditTextChanged(QStringLiteral("more"));
    Impl(watched.box)->OnEditingFinished();
    QCOMPARE(watched.log.Take(), QStringList());
    QCOMPARE(watched.box.currentText(), QStringLiteral("more"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIComboBoxText>(argc, argv);
}

#include "tst_FxUIComboBoxText.moc"
