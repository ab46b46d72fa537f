// A dialog where the library's resource tree is missing.

#include "DialogTools.h"
#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

// Stands in front of Qt's own, for the library's start as well, and registers nothing.
Q_DECL_EXPORT bool qRegisterResourceData(int /*version*/, const unsigned char * /*tree*/,
                                         const unsigned char * /*name*/,
                                         const unsigned char * /*data*/)
{
    return true;
}

class tst_FxUIDialogWithoutStyle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void windowHasNoSheetOfItsOwn();
    void dialogRunsAllTheSame();
};

void tst_FxUIDialogWithoutStyle::cleanup()
{
    FlushDeferredDeletes();
    DeleteLeftBehindWindows();
}

void tst_FxUIDialogWithoutStyle::windowHasNoSheetOfItsOwn()
{
    QVERIFY(!QFile::exists(QStringLiteral(":/commonui/resources/qss/light_style.qss")));
    const TestDialog dialog; // a warning would fail the program
    QVERIFY(Window(dialog)->styleSheet().isEmpty());
}

void tst_FxUIDialogWithoutStyle::dialogRunsAllTheSame()
{
    TestDialog dialog;
    QCOMPARE(ExecAndDo(dialog, [&] { dialog.accept(); }), 1);
    QCOMPARE(dialog.calls, QStringList({ QStringLiteral("SetupUI") }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIDialogWithoutStyle>(argc, argv);
}

#include "tst_FxUIDialogWithoutStyle.moc"
