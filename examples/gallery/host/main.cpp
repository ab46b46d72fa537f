#include "CommandLine.h"
#include "Failure.h"
#include "MainWindow.h"
#include "Pictures.h"
#include "SignalLog.h"

#include <QtCore/QDir>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

constexpr int BadUsage = 2;
constexpr int SomethingFailed = 1;

/// Keeps the host alive when a slot of a plug-in throws out of an event.
class GalleryApplication : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            log.LogSignal(QStringLiteral("host"), QStringLiteral("exception"), CurrentFailure());
            return true;
        }
    }

    SignalLog log;
};

QTextStream &Out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &Err()
{
    static QTextStream stream(stderr);
    return stream;
}

int Refuse(const QString &text)
{
    Err() << QApplication::applicationName() << ": " << text << '\n';
    Err().flush();
    return BadUsage;
}

// Next to the program as it is built, or where it is installed.
QString OwnPluginFolder()
{
    const QDir dir(QApplication::applicationDirPath());
    const QString built = dir.filePath(QStringLiteral("plugins"));
    return QFileInfo(built).isDir()
        ? built
        : QDir::cleanPath(dir.filePath(QStringLiteral(GALLERY_INSTALLED_PLUGINS)));
}

QString UnknownPanel(const QString &name, const Modules &modules)
{
    QStringList names;
    for (const auto &module : modules) {
        if (module->IsLoaded())
            names.append(module->name);
    }
    return QStringLiteral("unknown panel '%1': ").arg(name)
        + (names.isEmpty() ? QStringLiteral("no panel is loaded")
                           : QStringLiteral("the panels are ") + names.join(QStringLiteral(", ")));
}

int PrintList(const Modules &modules, const QString &folder)
{
    Out() << "Modules in " << folder << ":\n";
    for (const auto &module : modules) {
        if (module->IsLoaded())
            Out() << "  " << module->name.leftJustified(12) << ' ' << module->title << ": "
                  << module->summary << '\n';
    }
    for (const auto &module : modules) {
        if (!module->IsLoaded())
            Out() << "  not loaded: " << module->FileName() << ' ' << module->refusal << '\n';
    }
    if (modules.empty())
        Out() << "  none\n";
    Out().flush();
    return 0;
}

int TakePictures(const CommandLine &line, MainWindow &window, Modules &modules)
{
    const QList<Look> looks =
        line.look ? QList<Look> { *line.look } : QList<Look> { Look::Light, Look::Dark };
    Pictures pictures(line.pictureFolder, Out(), Err());
    if (!pictures.PrepareFolder())
        return BadUsage;
    if (!HasDisplay())
        Out() << "There is no display to show a window on.\n";
    Out() << "Writing pictures into " << QDir(line.pictureFolder).absolutePath() << '\n';
    for (const auto &module : modules) {
        if (module->IsLoaded() && (line.panel.isEmpty() || line.panel == module->name))
            pictures.TakePanel(window, *module, looks);
        else if (!module->IsLoaded() && line.panel.isEmpty())
            Out() << "  not loaded: " << module->FileName() << ' ' << module->refusal << '\n';
    }
    if (line.panel.isEmpty())
        pictures.TakeHost(window, looks);
    Out() << pictures.Taken() << " pictures written\n";
    Out().flush();
    return pictures.Failed() == 0 ? 0 : SomethingFailed;
}

int RunHost(const CommandLine &line, MainWindow &window, Module *panel)
{
    window.SetLook(line.look.value_or(Look::Light));
    window.show();
    if (panel) {
        window.SelectPanel(*panel);
        QTimer::singleShot(0, &window, &MainWindow::RunSelected);
    }
    return QApplication::exec();
}

int Perform(const CommandLine &line, SignalLog &log)
{
    const QString folder =
        line.pluginFolder.isEmpty() ? OwnPluginFolder() : QDir(line.pluginFolder).absolutePath();
    Modules modules = LoadModules(folder, &log);
    Module *panel = FindModule(modules, line.panel);
    if (!line.panel.isEmpty() && !panel)
        return Refuse(UnknownPanel(line.panel, modules));
    if (line.action == CommandLine::List)
        return PrintList(modules, folder);
    MainWindow window(modules, log, folder);
    return line.action == CommandLine::Pictures ? TakePictures(line, window, modules)
                                                : RunHost(line, window, panel);
}

} // namespace

int main(int argc, char **argv)
{
    PrepareEnvironment();
    GalleryApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("commonui-gallery"));
    QApplication::setApplicationVersion(QStringLiteral(GALLERY_VERSION));
    PrepareApplication();

    const CommandLine line = ParseCommandLine(QApplication::arguments(), HasDisplay());
    switch (line.action) {
    case CommandLine::Print:
        Out() << line.text;
        Out().flush();
        return 0;
    case CommandLine::Refuse:
        return Refuse(line.text);
    default:
        return Perform(line, application.log);
    }
}
