#include "ProgramEnvironment.h"
#include "support/TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QTest>

// The built program, started with each option and with each kind of bad input.
class tst_GalleryProgram : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void helpNamesEveryOption();
    void versionIsThatOfTheProject();
    void badInputGetsOneLineAndStatusTwo_data();
    void badInputGetsOneLineAndStatusTwo();
    void fileInPlaceOfTheFolderOfPicturesGetsOneLine();
    void listNamesTheHostsOwnPanels();
    void listTellsWhatLoadedAndWhyTheRestDidNot();
    void listOfAnEmptyFolder();
    void listNeedsNoDisplay();
    void screenshotsShowEachPanelAndTheHostInBothLooks();
    void screenshotsOfOnePanelInOneLook();
    void screenshotsAreTheSameOnEveryRun();
    void panelThatThrowsAtItsSetUpIsReportedAndTheRestGoesOn();
    void slotThatThrowsDoesNotEndTheHost();
    void panelThatClosesBeforeItsPictureIsReported();
    void withoutDisplayThePicturesAreWrittenAndItSaysWhere();

private:
    void Run(const QStringList &arguments);
    QStringList PicturesIn(const QString &folder) const;

    QProcessEnvironment m_environment;
    std::unique_ptr<QTemporaryDir> m_folder;
    int m_status = -1;
    QString m_out;
    QString m_err;
};

void tst_GalleryProgram::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_environment = ProgramEnvironment();
    // What a bare machine lacks must not make Qt speak up.
    m_environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
}

void tst_GalleryProgram::Run(const QStringList &arguments)
{
    QProcess gallery;
    gallery.setProcessEnvironment(m_environment);
    gallery.setWorkingDirectory(m_folder->path());
    gallery.start(QStringLiteral(GALLERY), arguments);
    QVERIFY2(gallery.waitForFinished(60000), qPrintable(gallery.errorString()));
    QCOMPARE(gallery.exitStatus(), QProcess::NormalExit);
    m_status = gallery.exitCode();
    m_out = QString::fromUtf8(gallery.readAllStandardOutput());
    m_err = QString::fromUtf8(gallery.readAllStandardError());
}

QStringList tst_GalleryProgram::PicturesIn(const QString &folder) const
{
    return QDir(m_folder->filePath(folder)).entryList(QDir::Files, QDir::Name);
}

void tst_GalleryProgram::helpNamesEveryOption()
{
    for (const char *option : { "--help", "-h" }) {
        Run({ QString::fromLatin1(option) });
        QCOMPARE(m_status, 0);
        QCOMPARE(m_err, QString());
        for (const char *name : { "--help", "--version", "--list", "--panel <name>",
                                  "--theme <theme>", "--screenshots <dir>", "--plugins <dir>" })
            QVERIFY2(m_out.contains(QLatin1String(name)), name);
    }
}

void tst_GalleryProgram::versionIsThatOfTheProject()
{
    Run({ QStringLiteral("--version") });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_out, QStringLiteral("commonui-gallery " GALLERY_VERSION "\n"));
    QCOMPARE(m_err, QString());
}

void tst_GalleryProgram::badInputGetsOneLineAndStatusTwo_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *name, const char *arguments, const char *line) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(line);
    };
    row("unknown option", "--frobnicate", "unknown option 'frobnicate'");
    row("option that Qt would add", "--help-all", "unknown option 'help-all'");
    row("missing value", "--panel", "missing value after '--panel'");
    row("unexpected value", "--list=all", "unexpected value after '--list'");
    row("argument", "picture.png", "unexpected argument 'picture.png'");
    row("unknown theme", "--theme blue", "unknown theme 'blue': it is light or dark");
    row("empty theme", "--theme=", "unknown theme '': it is light or dark");
    row("unknown panel", "--plugins " FIXTURE_PLUGINS " --panel nix",
        "unknown panel 'nix': the panels are closes-itself, counter, good, setup-throws, "
        "slot-throws");
    row("panel that did not load", "--plugins " FIXTURE_PLUGINS " --panel create-null",
        "unknown panel 'create-null': the panels are closes-itself, counter, good, setup-throws, "
        "slot-throws");
    row("panel of an empty folder", "--plugins . --panel good",
        "unknown panel 'good': no panel is loaded");
    row("empty panel", "--panel=", "unknown panel ''");
    row("unknown folder of plug-ins", "--plugins /nowhere", "no such folder: '/nowhere'");
    row("empty folder of plug-ins", "--plugins=", "no such folder: ''");
    row("file as folder of plug-ins", "--plugins " GALLERY, "not a folder: '" GALLERY "'");
    row("unknown folder of pictures", "--screenshots /nowhere/pictures",
        "no such folder: '/nowhere'");
    row("empty folder of pictures", "--screenshots=", "no such folder: ''");
    row("bad option beside good ones", "--list --theme light --nix", "unknown option 'nix'");
}

void tst_GalleryProgram::badInputGetsOneLineAndStatusTwo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, line);
    Run(arguments);
    QCOMPARE(m_err, QStringLiteral("commonui-gallery: %1\n").arg(line));
    QCOMPARE(m_out, QString());
    QCOMPARE(m_status, 2);
    QVERIFY(PicturesIn(QString()).isEmpty());
}

void tst_GalleryProgram::fileInPlaceOfTheFolderOfPicturesGetsOneLine()
{
    QFile file(m_folder->filePath(QStringLiteral("pictures")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    Run({ QStringLiteral("--screenshots"), QStringLiteral("pictures") });
    QCOMPARE(m_err, QStringLiteral("commonui-gallery: not a folder: 'pictures'\n"));
    QCOMPARE(m_status, 2);
}

void tst_GalleryProgram::listNamesTheHostsOwnPanels()
{
    Run({ QStringLiteral("--list") });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_err, QString());
    QVERIFY(m_out.contains(QLatin1String("\n  hello        Hello: ")));
    QVERIFY(!m_out.contains(QLatin1String("not loaded")));
}

void tst_GalleryProgram::listTellsWhatLoadedAndWhyTheRestDidNot()
{
    Run({ QStringLiteral("--list"), QStringLiteral("--plugins"), QStringLiteral(FIXTURE_PLUGINS) });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_err, QString());
    const QString expected = QStringLiteral(
        "Modules in " FIXTURE_PLUGINS ":\n"
        "  closes-itself Closes itself: Comes back from its run at once.\n"
        "  counter      Counter: Counts what the user drags.\n"
        "  good         Good: A plug-in that loads.\n"
        "  setup-throws Set-up throws: Throws at the first run of its dialog.\n"
        "  slot-throws  Slot throws: Throws out of a slot while its dialog runs.\n"
        "  not loaded: aborts_on_load.so crashed while loading (Aborted)\n"
        "  not loaded: bad_name.so has the name '../bad', which is not made of lower-case letters, "
        "digits and hyphens\n"
        "  not loaded: create_null.so GalleryPlugin_CreateDialog returned null\n"
        "  not loaded: create_throws.so GalleryPlugin_CreateDialog failed: out of dialogs\n"
        "  not loaded: exits_on_load.so ended the process while loading\n"
        "  not loaded: info_null.so GalleryPlugin_Info returned null\n"
        "  not loaded: info_throws.so GalleryPlugin_Info failed: an exception of an unknown type\n"
        "  not loaded: no_create.so has no function GalleryPlugin_CreateDialog\n"
        "  not loaded: no_info.so has no function GalleryPlugin_Info\n"
        "  not loaded: no_texts.so gives no name, title or summary\n"
        "  not loaded: no_window.so made a dialog without a window\n"
        "  not loaded: not_a_library.so is not a shared library\n"
        "  not loaded: same_name.so has the name 'good', which good.so has already\n"
        "  not loaded: throws_on_load.so failed while loading: no licence found\n"
        "  not loaded: undefined_symbol.so undefined symbol: GalleryFixture_Missing\n"
        "  not loaded: wrong_version.so was built for version 2 of the interface; this host has "
        "version 1\n");
    QCOMPARE(m_out.split(QLatin1Char('\n')), expected.split(QLatin1Char('\n')));
}

void tst_GalleryProgram::listOfAnEmptyFolder()
{
    Run({ QStringLiteral("--list"), QStringLiteral("--plugins"), m_folder->path() });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_out, QStringLiteral("Modules in %1:\n  none\n").arg(m_folder->path()));
}

void tst_GalleryProgram::listNeedsNoDisplay()
{
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        m_environment.remove(QString::fromLatin1(variable));
    Run({ QStringLiteral("--list") });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_err, QString());
    QVERIFY(PicturesIn(QString()).isEmpty());
}

void tst_GalleryProgram::screenshotsShowEachPanelAndTheHostInBothLooks()
{
    Run({ QStringLiteral("--list") });
    QStringList panels { QStringLiteral("host") };
    for (const QString &line : m_out.split(QLatin1Char('\n')).mid(1)) {
        if (!line.isEmpty())
            panels += line.trimmed().section(QLatin1Char(' '), 0, 0);
    }
    QVERIFY(panels.contains(QStringLiteral("hello")));

    Run({ QStringLiteral("--screenshots"), QStringLiteral("pictures") });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_err, QString());
    QStringList expected;
    for (const QString &panel : panels)
        expected << panel + QStringLiteral("-dark.png") << panel + QStringLiteral("-light.png");
    expected.sort();
    QCOMPARE(PicturesIn(QStringLiteral("pictures")), expected);
    for (const QString &file : expected) {
        QVERIFY2(m_out.contains(file), qPrintable(file));
        const QImage picture(m_folder->filePath(QStringLiteral("pictures/") + file));
        QVERIFY2(picture.width() >= 860 && picture.height() >= 200, qPrintable(file));
        // A screen of 1024 by 768 with a title bar.
        QVERIFY2(picture.width() <= 1000 && picture.height() <= 740, qPrintable(file));
        QVERIFY2(picture.convertToFormat(QImage::Format_Indexed8).colorCount() > 8,
                 qPrintable(file));
    }
    QVERIFY(m_out.endsWith(QStringLiteral("\n%1 pictures written\n").arg(expected.size())));
}

void tst_GalleryProgram::screenshotsOfOnePanelInOneLook()
{
    Run({ QStringLiteral("--screenshots"), QStringLiteral("."), QStringLiteral("--panel"),
          QStringLiteral("hello"), QStringLiteral("--theme"), QStringLiteral("dark") });
    QCOMPARE(m_status, 0);
    QCOMPARE(PicturesIn(QString()), QStringList { QStringLiteral("hello-dark.png") });
}

void tst_GalleryProgram::screenshotsAreTheSameOnEveryRun()
{
    const QStringList folders { QStringLiteral("one"), QStringLiteral("two") };
    for (const QString &folder : folders)
        Run({ QStringLiteral("--screenshots"), folder });
    const QStringList files = PicturesIn(folders.at(0));
    QVERIFY(files.size() >= 4);
    QCOMPARE(PicturesIn(folders.at(1)), files);
    for (const QString &file : files) {
        QVERIFY2(QImage(m_folder->filePath(QStringLiteral("one/") + file))
                     == QImage(m_folder->filePath(QStringLiteral("two/") + file)),
                 qPrintable(file));
    }
}

void tst_GalleryProgram::panelThatThrowsAtItsSetUpIsReportedAndTheRestGoesOn()
{
    Run({ QStringLiteral("--screenshots"), QStringLiteral("."), QStringLiteral("--plugins"),
          QStringLiteral(FIXTURE_PLUGINS) });
    QCOMPARE(m_status, 1);
    QVERIFY(
        m_err.contains(QStringLiteral("setup_throws.so failed while running: no content today\n")));
    const QStringList pictures = PicturesIn(QString());
    QVERIFY(!pictures.contains(QStringLiteral("setup-throws-light.png")));
    QVERIFY(pictures.contains(QStringLiteral("slot-throws-dark.png")));
    QVERIFY(pictures.contains(QStringLiteral("host-dark.png")));
}

void tst_GalleryProgram::slotThatThrowsDoesNotEndTheHost()
{
    Run({ QStringLiteral("--screenshots"), QStringLiteral("."), QStringLiteral("--plugins"),
          QStringLiteral(FIXTURE_PLUGINS), QStringLiteral("--panel"),
          QStringLiteral("slot-throws") });
    QCOMPARE(m_err, QString());
    QCOMPARE(m_status, 0);
    QCOMPARE(PicturesIn(QString()).size(), 2);
}

void tst_GalleryProgram::panelThatClosesBeforeItsPictureIsReported()
{
    Run({ QStringLiteral("--screenshots"), QStringLiteral("."), QStringLiteral("--plugins"),
          QStringLiteral(FIXTURE_PLUGINS), QStringLiteral("--panel"),
          QStringLiteral("closes-itself") });
    QCOMPARE(
        m_err,
        QStringLiteral("commonui-gallery: closes_itself.so closed before its picture was taken\n"));
    QCOMPARE(m_status, 1);
}

void tst_GalleryProgram::withoutDisplayThePicturesAreWrittenAndItSaysWhere()
{
    for (const char *variable : { "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM" })
        m_environment.remove(QString::fromLatin1(variable));
    Run({ QStringLiteral("--panel"), QStringLiteral("hello") });
    QCOMPARE(m_status, 0);
    QCOMPARE(m_err, QString());
    const QString folder = QStringLiteral("gallery-pictures");
    QVERIFY(m_out.contains(QStringLiteral("There is no display")));
    QVERIFY(m_out.contains(m_folder->filePath(folder)));
    QCOMPARE(PicturesIn(folder),
             QStringList({ QStringLiteral("hello-dark.png"), QStringLiteral("hello-light.png") }));
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryProgram>(argc, argv);
}

#include "tst_GalleryProgram.moc"
