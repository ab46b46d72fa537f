#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>

/// A free port of the loopback interface that nothing else takes while this object lives. It
/// refuses connections, unless a program of the same user listens on it (SO_REUSEPORT).
class ReservedPort {
public:
    ReservedPort();
    ~ReservedPort();

    ReservedPort(const ReservedPort &) = delete;
    ReservedPort &operator=(const ReservedPort &) = delete;

    quint16 Port() const;

private:
    int m_socket;
    quint16 m_port = 0;
};

/// A server program on the loopback interface that ends with this object, and with the test program
/// however that ends: its standard input closes then, and the system kills it.
class Peer {
public:
    Peer() = default;
    virtual ~Peer();

    Peer(const Peer &) = delete;
    Peer &operator=(const Peer &) = delete;

    /// Starts the server and waits until it takes connections. False if it can't be had; Fault()
    /// tells why.
    virtual bool Start() = 0;

    /// Ends the server; its port refuses connections from then on.
    void Stop();

    quint16 Port() const;
    QString Fault() const;

    /// Waits for the next line that the server prints; empty if none comes.
    QByteArray ReadLine();

    /// The URL of a path on this server.
    QUrl Url(const QString &path, const QString &scheme = QStringLiteral("http")) const;

protected:
    /// Starts a program that prints its port as its first line.
    bool StartPrinting(const QString &program, const QStringList &arguments);

    bool StartProgram(const QString &program, const QStringList &arguments);
    bool WaitForConnection();

    class Process : public QProcess {
    protected:
        void setupChildProcess() override;
    };

    Process m_process;
    quint16 m_port = 0;
    QString m_fault;
};

/// What the fault server does for one request; see fault_server.py.
class Steps {
public:
    Steps &Send(const QByteArray &bytes);
    Steps &Fill(int count);
    Steps &Drip(const QByteArray &bytes, double seconds);
    Steps &Endless(const QByteArray &bytes);
    Steps &Read(int count);
    Steps &Frames(int type); ///< HTTP/2 frames, up to one of this type
    Steps &Upgrade(); ///< a WebSocket's handshake as it should be
    Steps &Echo();
    Steps &Hang();
    Steps &Close();
    Steps &Reset();
    Steps &Append(const Steps &more);

    /// The path that asks for these steps.
    QString Path() const;
    QByteArray Json() const;

private:
    Steps &Add(const QJsonArray &step);

    QJsonArray m_steps;
};

Q_DECLARE_METATYPE(Steps)

/// fault_server.py.
class FaultPeer : public Peer {
public:
    /// What it does with each connection before it reads a request.
    void SetOnConnect(const Steps &steps);

    /// PEM files; from then on it speaks TLS.
    void SetTls(const QString &certificate, const QString &key);

    bool Start() override;

private:
    QStringList m_arguments;
};

/// websocket_server.py: the WebSocket server of Python's websockets package.
class WebSocketPeer : public Peer {
public:
    bool Start() override;
};

/// nginx with what HTTP offers: see nginx.conf.in for its locations.
class NginxPeer : public Peer {
public:
    /// PEM files; from then on it speaks TLS.
    void SetTls(const QString &certificate, const QString &key);

    bool Start() override;

    /// The folder that it serves and writes uploads to.
    QString Folder() const;

private:
    bool WriteConfiguration();

    ReservedPort m_reserved;
    QTemporaryDir m_folder;
    QString m_tls;
};
