#pragma once

#include "Rounds.h"

#include <QtCore/QString>

/// The peers that send messages to the server at \a url and get them back, \a atOnce of them on the
/// way at a time. The reference is bare Qt.
std::vector<Peer> WebSocketPeers(const QString &url, int operations, int atOnce);
