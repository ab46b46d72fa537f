// Compiled with Qt's keywords alive, as most hosts do: there s.emit(...) can't be written.

#include "UI/FxUISignal.h"

#include "support/TestMain.h"
#include "UI/FxUISlider.h"

#include <QtTest/QTest>
#include <QtWidgets/QSlider>

#if !defined(emit) || !defined(signals) || !defined(slots)
#error "the headers have swallowed a macro"
#endif

class tst_FxUISignalKeywords : public QObject {
    Q_OBJECT

Q_SIGNALS:
    void qtSignal(int number);

private Q_SLOTS:
    void callOperatorEmits();
    void callOperatorIsSilentWhileTheOwnerIsBlocked();
    void keywordBeforeTheCallOperatorIsNoFault();
    void qtsOwnSignalsGoOnWorking();
    void accessorOfAControlEmits();
};

void tst_FxUISignalKeywords::callOperatorEmits()
{
    CFxUIObject object;
    CFxUISignal<void(int, QString)> signal(&object);
    QStringList log;
    signal.connect([&log](int number, QString text) { log << text + QString::number(number); });
    signal(7, QStringLiteral("seven "));
    QCOMPARE(log, { QStringLiteral("seven 7") });
}

void tst_FxUISignalKeywords::callOperatorIsSilentWhileTheOwnerIsBlocked()
{
    CFxUIObject object;
    CFxUISignal<void()> signal(&object);
    int calls = 0;
    signal.connect([&calls] { ++calls; });
    object.blockSignals(true);
    signal();
    QCOMPARE(calls, 0);
}

void tst_FxUISignalKeywords::keywordBeforeTheCallOperatorIsNoFault()
{
    CFxUIObject object;
    CFxUISignal<void(int)> signal(&object);
    int sum = 0;
    signal.connect([&sum](int number) { sum += number; });
    emit signal(3);
    QCOMPARE(sum, 3);
}

void tst_FxUISignalKeywords::qtsOwnSignalsGoOnWorking()
{
    int sum = 0;
    connect(this, &tst_FxUISignalKeywords::qtSignal, this, [&sum](int number) { sum += number; });
    emit qtSignal(4);
    QCOMPARE(sum, 4);
}

void tst_FxUISignalKeywords::accessorOfAControlEmits()
{
    CFxUISlider slider;
    QList<int> values;
    slider.valueChanged().connect([&values](int value) { values << value; });
    static_cast<QSlider *>(slider.getHandle())->setValue(5); // the library's own emission
    slider.valueChanged()(6); // this source's
    QCOMPARE(values, (QList<int> { 5, 6 }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUISignalKeywords>(argc, argv);
}

#include "tst_FxUISignalKeywords.moc"
