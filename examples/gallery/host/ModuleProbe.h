#pragma once

#include <QtCore/QString>

/// Opens the module \a file in a process of its own and returns why that fails, in some words;
/// empty if it doesn't.
///
/// What a module does while it is being loaded can end a process, and an exception that leaves it
/// then keeps the dynamic loader's lock taken for good. So the host opens a module only after this
/// has.
QString ProbeModule(const QString &file, int timeoutMilliseconds = 10000);
