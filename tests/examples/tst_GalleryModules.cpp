#include "fixtures/plugins/FixtureDialog.h"
#include "host/ModuleLoader.h"
#include "host/ModuleProbe.h"
#include "host/SignalLog.h"
#include "support/TestMain.h"
#include "UI/FxUIStyle.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <stdexcept>

namespace {

QString Fixture(const char *name)
{
    return QStringLiteral(FIXTURE_PLUGINS "/") + QLatin1String(name) + QStringLiteral(".so");
}

} // namespace

class tst_GalleryModules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void loadsAGoodModule();
    void refusesWithAClearReason_data();
    void refusesWithAClearReason();
    void refusesALibraryCutShort_data();
    void refusesALibraryCutShort();
    void refusesAMissingFile();
    void refusesANameThatIsTaken();
    void loadsAFolderInTheOrderOfNamesAndReportsEachModule();
    void missingFolderHasNoModules();
    void leavesOtherFilesAlone();
    void findsLoadedModulesAlone();
    void probeGivesUpOnAModuleThatHangs();
    void otherThreadsCanLoadAfterAModuleThatThrows();
    void refusingDropsTheDialogAndItsWindow();
    void renewingMakesAFreshDialogInTheSameLook();
    void renewingThatFailsRefuses();

private:
    SignalLog m_log;
};

void tst_GalleryModules::loadsAGoodModule()
{
    const auto module = LoadModule(Fixture("good"), &m_log, {});
    QCOMPARE(module->refusal, QString());
    QVERIFY(module->IsLoaded());
    QCOMPARE(module->name, QStringLiteral("good"));
    QCOMPARE(module->title, QStringLiteral("Good"));
    QCOMPARE(module->summary, QStringLiteral("A plug-in that loads."));
    QCOMPARE(module->FileName(), QStringLiteral("good.so"));
    QVERIFY(module->Window());
    QVERIFY(!module->Window()->isVisible());
}

void tst_GalleryModules::refusesWithAClearReason_data()
{
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const char *reason) {
        QTest::newRow(name) << QString::fromUtf8(reason);
    };
    row("not_a_library", "is not a shared library");
    row("undefined_symbol", "undefined symbol: GalleryFixture_Missing");
    row("throws_on_load", "failed while loading: no licence found");
    row("aborts_on_load", "crashed while loading (Aborted)");
    row("exits_on_load", "ended the process while loading");
    row("no_info", "has no function GalleryPlugin_Info");
    row("info_null", "GalleryPlugin_Info returned null");
    row("info_throws", "GalleryPlugin_Info failed: an exception of an unknown type");
    row("wrong_version", "was built for version 2 of the interface; this host has version 1");
    row("no_texts", "gives no name, title or summary");
    row("bad_name",
        "has the name '../bad', which is not made of lower-case letters, digits and hyphens");
    row("no_create", "has no function GalleryPlugin_CreateDialog");
    row("create_null", "GalleryPlugin_CreateDialog returned null");
    row("create_throws", "GalleryPlugin_CreateDialog failed: out of dialogs");
    row("no_window", "made a dialog without a window");
}

void tst_GalleryModules::refusesWithAClearReason()
{
    QFETCH(QString, reason);
    const auto module = LoadModule(Fixture(QTest::currentDataTag()), &m_log, {});
    QCOMPARE(module->refusal, reason);
    QVERIFY(!module->IsLoaded());
    QVERIFY(!module->Window());
}

void tst_GalleryModules::refusesALibraryCutShort_data()
{
    QTest::addColumn<qint64>("size");
    QTest::newRow("in its header") << qint64(20);
    QTest::newRow("behind its header") << qint64(100);
    QTest::newRow("in the middle") << QFileInfo(Fixture("good")).size() / 2;
}

// The reason is the system's; where the cut would crash the loader, it is the probe's.
void tst_GalleryModules::refusesALibraryCutShort()
{
    QFETCH(qint64, size);
    const QTemporaryDir folder;
    const QString cut = folder.filePath(QStringLiteral("cut.so"));
    QVERIFY(QFile::copy(Fixture("good"), cut));
    QVERIFY(QFile::resize(cut, size));
    const auto module = LoadModule(cut, &m_log, {});
    QVERIFY(!module->IsLoaded());
    QVERIFY(!module->refusal.isEmpty());
    QVERIFY2(!module->refusal.contains(folder.path()), qPrintable(module->refusal));
}

void tst_GalleryModules::refusesAMissingFile()
{
    const auto module = LoadModule(QStringLiteral("/nowhere/module.so"), &m_log, {});
    QVERIFY(!module->IsLoaded());
    QCOMPARE(module->refusal, QStringLiteral("cannot be read: No such file or directory"));
}

void tst_GalleryModules::refusesANameThatIsTaken()
{
    Modules loaded;
    loaded.push_back(LoadModule(Fixture("good"), &m_log, loaded));
    const auto module = LoadModule(Fixture("same_name"), &m_log, loaded);
    QVERIFY(!module->IsLoaded());
    QCOMPARE(module->refusal, QStringLiteral("has the name 'good', which good.so has already"));
}

void tst_GalleryModules::loadsAFolderInTheOrderOfNamesAndReportsEachModule()
{
    const QDir folder(QStringLiteral(FIXTURE_PLUGINS));
    const Modules modules = LoadModules(folder.path(), &m_log);
    const QStringList files = folder.entryList({ QStringLiteral("*.so") }, QDir::Files, QDir::Name);
    QCOMPARE(int(modules.size()), files.size());
    int loaded = 0;
    for (size_t i = 0; i < modules.size(); ++i) {
        QCOMPARE(modules[i]->FileName(), files.at(int(i)));
        QCOMPARE(modules[i]->refusal.isEmpty(), modules[i]->IsLoaded());
        loaded += modules[i]->IsLoaded() ? 1 : 0;
    }
    QCOMPARE(loaded, 5); // closes-itself, counter, good, setup-throws, slot-throws
}

void tst_GalleryModules::missingFolderHasNoModules()
{
    QVERIFY(LoadModules(QStringLiteral("/nowhere"), &m_log).empty());
}

void tst_GalleryModules::leavesOtherFilesAlone()
{
    const QTemporaryDir folder;
    QVERIFY(QFile::copy(Fixture("good"), folder.filePath(QStringLiteral("good.so.bak"))));
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("folder.so")));
    QVERIFY(LoadModules(folder.path(), &m_log).empty());
}

void tst_GalleryModules::findsLoadedModulesAlone()
{
    const Modules modules = LoadModules(QStringLiteral(FIXTURE_PLUGINS), &m_log);
    const Module *good = FindModule(modules, QStringLiteral("good"));
    QVERIFY(good);
    QCOMPARE(good->title, QStringLiteral("Good"));
    QVERIFY(!FindModule(modules, QStringLiteral("create-null")));
    QVERIFY(!FindModule(modules, QStringLiteral("unheard-of")));
    QVERIFY(!FindModule(modules, QString()));
}

void tst_GalleryModules::probeGivesUpOnAModuleThatHangs()
{
    QCOMPARE(ProbeModule(QStringLiteral(HANGING_PLUGINS "/hangs_on_load.so"), 300),
             QStringLiteral("takes more than 0.3 seconds to load"));
}

// The loader's lock would be taken for good, had the host itself opened that module.
void tst_GalleryModules::otherThreadsCanLoadAfterAModuleThatThrows()
{
    QVERIFY(!LoadModule(Fixture("throws_on_load"), &m_log, {})->IsLoaded());
    std::unique_ptr<QThread> thread(QThread::create([] {
        QLibrary library(Fixture("good"));
        library.load();
    }));
    thread->start();
    QVERIFY(thread->wait(20000));
}

void tst_GalleryModules::refusingDropsTheDialogAndItsWindow()
{
    const auto module = LoadModule(Fixture("good"), &m_log, {});
    const QPointer<QWidget> window(module->Window());
    QVERIFY(window);
    module->Refuse(QStringLiteral("of no use"));
    QVERIFY(!window);
    QVERIFY(!module->IsLoaded());
    QVERIFY(!module->Window());
    module->SetLook(Look::Dark); // nothing to give it to
}

void tst_GalleryModules::renewingMakesAFreshDialogInTheSameLook()
{
    Module module(QStringLiteral("/nowhere/module.so"));
    module.MakeDialog([] { return new FixtureDialog; });
    const QString light = module.Window()->styleSheet();
    module.SetLook(Look::Dark);
    const QPointer<QWidget> first(module.Window());
    module.Renew();
    QVERIFY(!first);
    QVERIFY(module.IsLoaded());
    QCOMPARE(module.Window()->styleSheet(), GetStyle()->styleSheet());
    module.SetLook(Look::Light);
    QCOMPARE(module.Window()->styleSheet(), light);
}

void tst_GalleryModules::renewingThatFailsRefuses()
{
    Module module(QStringLiteral("/nowhere/module.so"));
    int dialogs = 0;
    module.MakeDialog([&dialogs] {
        if (++dialogs > 1)
            throw std::runtime_error("one is enough");
        return new FixtureDialog;
    });
    module.Renew();
    QVERIFY(!module.IsLoaded());
    QCOMPARE(module.refusal, QStringLiteral("made no second dialog: one is enough"));
    module.Renew();
    QVERIFY(!module.IsLoaded());
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryModules>(argc, argv);
}

#include "tst_GalleryModules.moc"
