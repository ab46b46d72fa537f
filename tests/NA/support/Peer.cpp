#include "NA/support/Peer.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QStandardPaths>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpSocket>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int StartMilliseconds = 20000;

// Each byte as the character of its number, zero included.
QString Text(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.constData(), bytes.size());
}

QString Script(const char *name)
{
    return QStringLiteral(COMMONUI_PEERS "/") + QLatin1String(name);
}

const QString Python = QStringLiteral("/usr/bin/python3");

} // namespace

ReservedPort::ReservedPort()
    : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto *general = reinterpret_cast<sockaddr *>(&address);
    socklen_t length = sizeof address;
    const int on = 1;
    if (setsockopt(m_socket, SOL_SOCKET, SO_REUSEPORT, &on, sizeof on) != 0
        || bind(m_socket, general, length) != 0 || getsockname(m_socket, general, &length) != 0)
        qFatal("No port of the loopback interface can be had");
    m_port = ntohs(address.sin_port);
}

ReservedPort::~ReservedPort()
{
    close(m_socket);
}

quint16 ReservedPort::Port() const
{
    return m_port;
}

void Peer::Process::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

Peer::~Peer()
{
    Stop();
}

void Peer::Stop()
{
    m_process.kill();
    m_process.waitForFinished();
}

quint16 Peer::Port() const
{
    return m_port;
}

QString Peer::Fault() const
{
    return m_fault;
}

QByteArray Peer::ReadLine()
{
    while (!m_process.canReadLine() && m_process.waitForReadyRead(StartMilliseconds)) { }
    return m_process.readLine().trimmed();
}

QUrl Peer::Url(const QString &path, const QString &scheme) const
{
    return QUrl(QStringLiteral("%1://127.0.0.1:%2%3").arg(scheme).arg(m_port).arg(path));
}

bool Peer::StartPrinting(const QString &program, const QStringList &arguments)
{
    if (!StartProgram(program, arguments))
        return false;
    m_port = ReadLine().toUShort();
    if (!m_port) {
        m_fault = QStringLiteral("%1 %2 told no port: %3")
                      .arg(program, arguments.join(QLatin1Char(' ')),
                           QString::fromLocal8Bit(m_process.readAllStandardError()));
        return false;
    }
    return WaitForConnection();
}

bool Peer::StartProgram(const QString &program, const QStringList &arguments)
{
    m_process.start(program, arguments);
    if (m_process.waitForStarted(StartMilliseconds))
        return true;
    m_fault = QStringLiteral("the server program %1 can't be started: %2")
                  .arg(program, m_process.errorString());
    return false;
}

bool Peer::WaitForConnection()
{
    QElapsedTimer elapsed;
    elapsed.start();
    QTcpSocket client;
    while (m_process.state() == QProcess::Running && elapsed.elapsed() < StartMilliseconds) {
        client.connectToHost(QHostAddress::LocalHost, m_port);
        if (client.waitForConnected(StartMilliseconds))
            return true;
        m_process.waitForFinished(10);
    }
    m_fault =
        QStringLiteral("%1 takes no connection on port %2: %3 %4")
            .arg(m_process.program())
            .arg(m_port)
            .arg(client.errorString(), QString::fromLocal8Bit(m_process.readAllStandardError()));
    return false;
}

Steps &Steps::Send(const QByteArray &bytes)
{
    return Add({ QStringLiteral("send"), Text(bytes) });
}

Steps &Steps::Fill(int count)
{
    return Add({ QStringLiteral("fill"), count });
}

Steps &Steps::Drip(const QByteArray &bytes, double seconds)
{
    return Add({ QStringLiteral("drip"), Text(bytes), seconds });
}

Steps &Steps::Endless(const QByteArray &bytes)
{
    return Add({ QStringLiteral("endless"), Text(bytes) });
}

Steps &Steps::Read(int count)
{
    return Add({ QStringLiteral("read"), count });
}

Steps &Steps::Frames(int type)
{
    return Add({ QStringLiteral("frames"), type });
}

Steps &Steps::Upgrade()
{
    return Send("HTTP/1.1 101 Switching Protocols\r\nUpgrade: websocket\r\n"
                "Connection: Upgrade\r\nSec-WebSocket-Accept: @ACCEPT@\r\n\r\n");
}

Steps &Steps::Echo()
{
    return Add({ QStringLiteral("echo") });
}

Steps &Steps::Hang()
{
    return Add({ QStringLiteral("hang") });
}

Steps &Steps::Close()
{
    return Add({ QStringLiteral("close") });
}

Steps &Steps::Reset()
{
    return Add({ QStringLiteral("reset") });
}

Steps &Steps::Append(const Steps &more)
{
    for (const auto &step : more.m_steps)
        m_steps.append(step);
    return *this;
}

QString Steps::Path() const
{
    return QLatin1Char('/') + QString::fromLatin1(Json().toBase64(QByteArray::Base64UrlEncoding));
}

QByteArray Steps::Json() const
{
    return QJsonDocument(m_steps).toJson(QJsonDocument::Compact);
}

Steps &Steps::Add(const QJsonArray &step)
{
    m_steps.append(step);
    return *this;
}

void FaultPeer::SetOnConnect(const Steps &steps)
{
    m_arguments << QStringLiteral("--on-connect") << QString::fromUtf8(steps.Json());
}

void FaultPeer::SetTls(const QString &certificate, const QString &key)
{
    m_arguments << QStringLiteral("--tls") << certificate << key;
}

bool FaultPeer::Start()
{
    return StartPrinting(Python, QStringList { Script("fault_server.py") } + m_arguments);
}

bool WebSocketPeer::Start()
{
    return StartPrinting(Python, { Script("websocket_server.py") });
}

void NginxPeer::SetTls(const QString &certificate, const QString &key)
{
    m_tls = QStringLiteral("ssl_certificate %1;\nssl_certificate_key %2;").arg(certificate, key);
}

bool NginxPeer::Start()
{
    const QString program =
        QStandardPaths::findExecutable(QStringLiteral("nginx"),
                                       { QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                         QStringLiteral("/usr/local/sbin") });
    if (program.isEmpty()) {
        m_fault = QStringLiteral("the server program nginx isn't installed (package nginx-light)");
        return false;
    }
    m_port = m_reserved.Port();
    const QStringList arguments {
        QStringLiteral("-p"), m_folder.path(),
        QStringLiteral("-e"), m_folder.filePath(QStringLiteral("log")),
        QStringLiteral("-c"), m_folder.filePath(QStringLiteral("nginx.conf"))
    };
    return WriteConfiguration() && StartProgram(program, arguments) && WaitForConnection();
}

QString NginxPeer::Folder() const
{
    return m_folder.filePath(QStringLiteral("files"));
}

bool NginxPeer::WriteConfiguration()
{
    QFile pattern(Script("nginx.conf.in"));
    QFile configuration(m_folder.filePath(QStringLiteral("nginx.conf")));
    if (!pattern.open(QIODevice::ReadOnly) || !configuration.open(QIODevice::WriteOnly)
        || !QDir().mkpath(Folder())) {
        m_fault = QStringLiteral("the configuration of nginx can't be written");
        return false;
    }
    QString text = QString::fromUtf8(pattern.readAll());
    text.replace(QStringLiteral("@FOLDER@"), m_folder.path());
    text.replace(QStringLiteral("@PORT@"), QString::number(m_port));
    text.replace(QStringLiteral("@SSL@"), m_tls.isEmpty() ? QString() : QStringLiteral("ssl"));
    text.replace(QStringLiteral("@CERTIFICATE@"), m_tls);
    configuration.write(text.toUtf8());
    return true;
}
