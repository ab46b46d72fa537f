#include "UI/Impl/FxBaseViewImpl.h"

#include "support/Events.h"
#include "support/TestMain.h"

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <cstdarg>

namespace {

void InvokeWithList(QObject *frontend, const QString *method, int count, ...)
{
    va_list arguments;
    va_start(arguments, count);
    FxBaseViewImpl::InvokeMethod(frontend, method, count, arguments);
    va_end(arguments);
}

} // namespace

class tst_FxBaseViewImpl : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsMadeByName_data();
    void nothingIsMadeByName();
    void widgetIsDeletedWhenTheEventLoopRuns_data();
    void widgetIsDeletedWhenTheEventLoopRuns();
    void anyOtherObjectIsLeftAlone();
    void nullIsNoFault();
    void connectionsOfTheObjectStay();
    void invokeMethodDoesNothing();
};

void tst_FxBaseViewImpl::nothingIsMadeByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a widget") << QStringLiteral("QLabel");
    QTest::newRow("empty") << QString();
}

void tst_FxBaseViewImpl::nothingIsMadeByName()
{
    QFETCH(QString, name);
    int impl = 0;
    QVERIFY(!FxBaseViewImpl::CreateFrontendControl(name, &impl));
    QVERIFY(!FxBaseViewImpl::CreateFrontendControl(name, nullptr));
}

void tst_FxBaseViewImpl::widgetIsDeletedWhenTheEventLoopRuns_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("its class") << QStringLiteral("QWidget");
    QTest::newRow("another class") << QStringLiteral("QTimer");
    QTest::newRow("empty") << QString();
}

void tst_FxBaseViewImpl::widgetIsDeletedWhenTheEventLoopRuns()
{
    QFETCH(QString, name);
    const QPointer<QWidget> widget(new QWidget);
    FxBaseViewImpl::ReleaseFrontendControl(name, widget);
    QVERIFY(widget);
    FlushDeferredDeletes();
    QVERIFY(!widget);
}

void tst_FxBaseViewImpl::anyOtherObjectIsLeftAlone()
{
    const QPointer<QTimer> timer(new QTimer);
    FxBaseViewImpl::ReleaseFrontendControl(QStringLiteral("QWidget"), timer);
    FlushDeferredDeletes();
    QVERIFY(timer);
    delete timer;
}

void tst_FxBaseViewImpl::nullIsNoFault()
{
    FxBaseViewImpl::ReleaseFrontendControl(QStringLiteral("QWidget"), nullptr);
}

void tst_FxBaseViewImpl::connectionsOfTheObjectStay()
{
    QTimer timer;
    QWidget *const widget = new QWidget;
    int calls = 0;
    connect(&timer, &QObject::objectNameChanged, &timer, [&calls] { ++calls; });
    connect(widget, &QObject::objectNameChanged, widget, [&calls] { ++calls; });
    FxBaseViewImpl::ReleaseFrontendControl(QString(), &timer);
    FxBaseViewImpl::ReleaseFrontendControl(QString(), widget);
    timer.setObjectName(QStringLiteral("still connected"));
    widget->setObjectName(QStringLiteral("still connected"));
    QCOMPARE(calls, 2);
    FlushDeferredDeletes();
}

void tst_FxBaseViewImpl::invokeMethodDoesNothing()
{
    QTimer timer;
    const QString method = QStringLiteral("start");
    FxBaseViewImpl::InvokeMethod(&timer, &method);
    FxBaseViewImpl::InvokeMethod(&timer, &method, "text", 1.5);
    FxBaseViewImpl::InvokeMethod(nullptr, nullptr);
    InvokeWithList(&timer, &method, 2, 1, 2);
    QVERIFY(!timer.isActive());
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxBaseViewImpl>(argc, argv);
}

#include "tst_FxBaseViewImpl.moc"
