#pragma once

#include <QtCore/QString>

class QWidget;

/// The two looks of the host: the light sheet, which every dialog carries by itself, and the dark
/// sheet of GetStyle(), which the host puts in its place.
enum class Look { Light, Dark };

/// Returns "light" or "dark", the name on the command line and in the names of pictures.
QString LookName(Look look);

/// Fixes what would make the host look different from machine to machine: the resolution, the
/// desktop's settings, and the platform, which is offscreen where there is no display. Leaves out
/// what Qt prints about running without one. Before the application object is made.
void PrepareEnvironment();

/// Fixes style and font. Once the application object is there.
void PrepareApplication();

/// Returns whether there is a screen to show a window on.
bool HasDisplay();

/// Gives the application the palette of \a look, which reaches what the sheets leave alone.
void ApplyPalette(Look look);

/// Gives \a window the dark sheet, or \a lightSheet.
void ApplySheet(QWidget *window, Look look, const QString &lightSheet);
