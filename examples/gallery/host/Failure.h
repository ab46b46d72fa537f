#pragma once

#include <QtCore/QString>

// Failures of plug-ins in words for the user.

/// What the exception that is being handled says. Inside a catch block.
QString CurrentFailure();

/// What the system says of the call that has just failed, behind \a text.
QString SystemFailure(const QString &text);

/// Qt's text on a library that can't be loaded, without the path, which it repeats.
QString LibraryFailure(const QString &file, const QString &errorString);
