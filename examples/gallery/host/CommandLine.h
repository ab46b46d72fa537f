#pragma once

#include "Appearance.h"

#include <QtCore/QStringList>

#include <optional>

/// What the user asked for.
struct CommandLine {
    enum Action {
        Run, ///< show the host's window
        List, ///< print what loaded and why the rest did not
        Pictures, ///< write pictures of the panels
        Print, ///< print `text`: the help or the version
        Refuse ///< print `text`, one line, as an error
    };

    Action action = Run;
    QString text;
    QString panel; ///< empty: no panel was named
    std::optional<Look> look;
    QString pictureFolder;
    QString pluginFolder; ///< empty: the host's own
};

/// Reads the arguments, the program's name first, and tests all that can be tested before a plug-in
/// is loaded. The application object exists. Where there is no display, what would show a window
/// writes pictures.
CommandLine ParseCommandLine(const QStringList &arguments, bool hasDisplay);
