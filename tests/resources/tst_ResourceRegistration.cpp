#include "support/TestMain.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

#include <dlfcn.h>

// This program isn't linked with the library, and so sees the tree come and go.
class tst_ResourceRegistration : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void treeComesAndGoesWithTheLibrary();
};

void tst_ResourceRegistration::treeComesAndGoesWithTheLibrary()
{
    const QString sheet = QStringLiteral(":/commonui/resources/qss/style.qss");
    QVERIFY(!dlopen(COMMONUI_LIBRARY, RTLD_NOW | RTLD_NOLOAD));
    QVERIFY(!QFile::exists(sheet));

    void *library = dlopen(COMMONUI_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(library, dlerror());
    QFile file(sheet);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().size(), 3072);
    file.close();

    QCOMPARE(dlclose(library), 0);
    QVERIFY(!dlopen(COMMONUI_LIBRARY, RTLD_NOW | RTLD_NOLOAD));
    QVERIFY(!QFile::exists(sheet));
    QVERIFY(!QFile::exists(QStringLiteral(":/commonui")));
}

int main(int argc, char **argv)
{
    return RunTest<tst_ResourceRegistration>(argc, argv);
}

#include "tst_ResourceRegistration.moc"
