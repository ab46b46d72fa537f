#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>

/// Types of HTTP/2 frames (RFC 9113, section 6).
enum Http2FrameType {
    DataFrame = 0,
    HeadersFrame = 1,
    ResetFrame = 3,
    SettingsFrame = 4,
    PushFrame = 5,
    PingFrame = 6,
    GoAwayFrame = 7,
    WindowUpdateFrame = 8,
    ContinuationFrame = 9
};

enum Http2Flag { NoFlag = 0, EndStream = 1, SettingsAck = 1, EndHeaders = 4, Padded = 8 };

/// Error codes of RST_STREAM and GOAWAY (RFC 9113, section 7).
enum Http2Error {
    Http2NoError = 0,
    Http2ProtocolError = 1,
    Http2InternalError = 2,
    Http2FlowControlError = 3,
    Http2StreamClosed = 5,
    Http2FrameSizeError = 6,
    Http2RefusedStream = 7,
    Http2Cancel = 8,
    Http2EnhanceYourCalm = 11,
    Http2Http11Required = 13
};

constexpr int Http2PrefaceSize = 24; // bytes that a client sends first

/// A number of 32 bits, as payloads hold them.
inline QByteArray Http2Number(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/// A frame whose length field may say something else than the payload's size.
inline QByteArray Http2Frame(int type, int flags, quint32 stream, const QByteArray &payload,
                             quint32 length)
{
    return Http2Number(length).mid(1) + static_cast<char>(type) + static_cast<char>(flags)
        + Http2Number(stream) + payload;
}

inline QByteArray Http2Frame(int type, int flags, quint32 stream,
                             const QByteArray &payload = QByteArray())
{
    return Http2Frame(type, flags, stream, payload, static_cast<quint32>(payload.size()));
}

/// A header with a name from HPACK's static table (RFC 7541, appendix A) from 15 on, and a value of
/// up to 126 bytes.
inline QByteArray Http2Header(int name, const QByteArray &value)
{
    return QByteArray(1, 0x0f) + static_cast<char>(name - 15) + static_cast<char>(value.size())
        + value;
}

// Header blocks: ":status" as the static table has it, and names that it knows.
const char Http2Status200[] = "\x88";
const char Http2Status404[] = "\x8d";
const char Http2Status500[] = "\x8e";
constexpr int Http2ContentLength = 28;
constexpr int Http2ContentType = 31;
