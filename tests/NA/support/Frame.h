#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

/// Opcodes of WebSocket frames (RFC 6455, section 5.2).
enum FrameOpcode {
    Continuation = 0,
    TextFrame = 1,
    BinaryFrame = 2,
    CloseFrame = 8,
    Ping = 9,
    Pong = 10
};

/// A frame's length field of 16 bits (126) or 64 bits (127), whatever the length is.
inline QByteArray LongLength(int kind, quint64 length)
{
    QByteArray bytes(kind == 126 ? 2 : 8, Qt::Uninitialized);
    if (kind == 126)
        qToBigEndian(static_cast<quint16>(length), bytes.data());
    else
        qToBigEndian(length, bytes.data());
    return static_cast<char>(kind) + bytes;
}

/// A frame as a server sends it. \a flags are the upper four bits of the first byte: 8 for the last
/// frame of a message, 4, 2 and 1 for the reserved bits.
inline QByteArray Frame(int opcode, const QByteArray &payload, int flags = 8)
{
    const auto size = static_cast<quint64>(payload.size());
    const QByteArray length = size < 126 ? QByteArray(1, static_cast<char>(size))
                                         : LongLength(size < 65536 ? 126 : 127, size);
    return static_cast<char>(flags << 4 | opcode) + length + payload;
}

/// The payload of a close frame.
inline QByteArray ClosePayload(int code, const QByteArray &reason = QByteArray())
{
    QByteArray bytes(2, Qt::Uninitialized);
    qToBigEndian(static_cast<quint16>(code), bytes.data());
    return bytes + reason;
}
