#pragma once

#include "Module.h"

#include <memory>
#include <vector>

class IGalleryHost;

using Modules = std::vector<std::unique_ptr<Module>>;

/// Loads each module (`*.so`) of \a folder, in the order of the files' names, and has it make its
/// dialog. One that can't be used stands in the result with the reason; nothing that a module does
/// ends the host. A missing folder has no modules. \a host outlives the modules.
///
/// Modules stay in the process until its end: what they leave behind may need their code.
Modules LoadModules(const QString &folder, IGalleryHost *host);

/// Loads one module. \a loaded are those whose names are taken.
std::unique_ptr<Module> LoadModule(const QString &file, IGalleryHost *host, const Modules &loaded);

/// Returns the loaded module of that name, or null.
Module *FindModule(const Modules &modules, const QString &name);
