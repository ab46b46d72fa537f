#include "ModuleLoader.h"

#include "Failure.h"
#include "interface/GalleryPlugin.h"
#include "ModuleProbe.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLibrary>
#include <QtCore/QRegularExpression>

#include <stdexcept>

namespace {

/// Ends the loading of a module; the text is the reason.
class Refusal : public std::runtime_error {
public:
    explicit Refusal(const QString &reason)
        : std::runtime_error(reason.toStdString())
    {
    }
};

void TestThatItIsALibrary(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Refusal(QStringLiteral("cannot be read: ") + file.errorString());
    if (file.read(4)
        != QByteArray("\x7f"
                      "ELF"))
        throw Refusal(QStringLiteral("is not a shared library"));
}

void Open(QLibrary &library)
{
    TestThatItIsALibrary(library.fileName());
    const QString fault = ProbeModule(library.fileName());
    if (!fault.isEmpty())
        throw Refusal(fault);
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load())
        throw Refusal(LibraryFailure(library.fileName(), library.errorString()));
}

template <class Function> Function Resolve(QLibrary &library, const char *symbol)
{
    const QFunctionPointer function = library.resolve(symbol);
    if (!function)
        throw Refusal(QStringLiteral("has no function ") + QLatin1String(symbol));
    return reinterpret_cast<Function>(function);
}

template <class Function> auto Call(const char *symbol, Function function)
{
    decltype(function()) result = nullptr;
    try {
        result = function();
    } catch (...) {
        throw Refusal(QLatin1String(symbol) + QStringLiteral(" failed: ") + CurrentFailure());
    }
    if (!result)
        throw Refusal(QLatin1String(symbol) + QStringLiteral(" returned null"));
    return result;
}

void TestInfo(const GalleryPluginInfo &info, const Modules &loaded)
{
    if (info.interfaceVersion != GalleryInterfaceVersion)
        throw Refusal(QStringLiteral("was built for version %1 of the interface; this host has "
                                     "version %2")
                          .arg(info.interfaceVersion)
                          .arg(GalleryInterfaceVersion));
    if (!info.name || !info.title || !info.summary)
        throw Refusal(QStringLiteral("gives no name, title or summary"));
    const QString name = QString::fromUtf8(info.name);
    static const QRegularExpression word(QStringLiteral("\\A[a-z0-9-]+\\z"));
    if (!word.match(name).hasMatch())
        throw Refusal(QStringLiteral("has the name '%1', which is not made of lower-case letters, "
                                     "digits and hyphens")
                          .arg(name));
    if (const Module *other = FindModule(loaded, name))
        throw Refusal(
            QStringLiteral("has the name '%1', which %2 has already").arg(name, other->FileName()));
}

void Load(Module &module, IGalleryHost *host, const Modules &loaded)
{
    QLibrary library(module.file);
    Open(library);
    const char *infoSymbol = "GalleryPlugin_Info";
    const auto describe = Resolve<decltype(&GalleryPlugin_Info)>(library, infoSymbol);
    const GalleryPluginInfo *info = Call(infoSymbol, describe);
    TestInfo(*info, loaded);
    module.name = QString::fromUtf8(info->name);
    module.title = QString::fromUtf8(info->title);
    module.summary = QString::fromUtf8(info->summary);

    const char *createSymbol = "GalleryPlugin_CreateDialog";
    const auto create = Resolve<decltype(&GalleryPlugin_CreateDialog)>(library, createSymbol);
    module.MakeDialog([create, createSymbol, host] {
        return Call(createSymbol, [create, host] { return create(host); });
    });
    if (!module.Window())
        throw Refusal(QStringLiteral("made a dialog without a window"));
}

} // namespace

Modules LoadModules(const QString &folder, IGalleryHost *host)
{
    Modules modules;
    const QDir dir(QDir(folder).absolutePath());
    for (const QString &file : dir.entryList({ QStringLiteral("*.so") }, QDir::Files, QDir::Name))
        modules.push_back(LoadModule(dir.filePath(file), host, modules));
    return modules;
}

std::unique_ptr<Module> LoadModule(const QString &file, IGalleryHost *host, const Modules &loaded)
{
    auto module = std::make_unique<Module>(file);
    try {
        Load(*module, host, loaded);
    } catch (const Refusal &refusal) {
        module->Refuse(QString::fromUtf8(refusal.what()));
    }
    return module;
}

Module *FindModule(const Modules &modules, const QString &name)
{
    for (const auto &module : modules) {
        if (module->IsLoaded() && module->name == name)
            return module.get();
    }
    return nullptr;
}
