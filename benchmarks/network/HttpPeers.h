#pragma once

#include "Rounds.h"

#include <QtCore/QString>

/// The peers that get \a url, of \a size bytes, again and again, \a atOnce transfers at a time.
/// The reference is bare Qt with a QTimer for each transfer.
std::vector<Peer> HttpPeers(const QString &url, qint64 size, int operations, int atOnce);
