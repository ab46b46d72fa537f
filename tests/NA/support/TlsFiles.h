#pragma once

#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>

/// A certificate authority of this run's own and a certificate for 127.0.0.1 that it signed, made
/// by openssl, as PEM files that go with this object.
class TlsFiles {
public:
    /// Makes the files. False if openssl can't be had or fails; Fault() tells why.
    bool Make()
    {
        const QString days = QStringLiteral("2");
        return Run({ QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                     QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-subj"),
                     QStringLiteral("/CN=Test authority"), QStringLiteral("-days"), days,
                     QStringLiteral("-keyout"), File("authority.key"), QStringLiteral("-out"),
                     Authority() })
            && Run({ QStringLiteral("req"), QStringLiteral("-newkey"), QStringLiteral("rsa:2048"),
                     QStringLiteral("-nodes"), QStringLiteral("-subj"),
                     QStringLiteral("/CN=127.0.0.1"), QStringLiteral("-addext"),
                     QStringLiteral("subjectAltName=IP:127.0.0.1"), QStringLiteral("-keyout"),
                     Key(), QStringLiteral("-out"), File("server.csr") })
            && Run({ QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"),
                     File("server.csr"), QStringLiteral("-CA"), Authority(),
                     QStringLiteral("-CAkey"), File("authority.key"),
                     QStringLiteral("-CAcreateserial"), QStringLiteral("-copy_extensions"),
                     QStringLiteral("copy"), QStringLiteral("-days"), days, QStringLiteral("-out"),
                     Certificate() });
    }

    QString Authority() const { return File("authority.pem"); }

    QString Certificate() const { return File("server.pem"); }

    QString Key() const { return File("server.key"); }

    QString Fault() const { return m_fault; }

private:
    QString File(const char *name) const { return m_folder.filePath(QLatin1String(name)); }

    bool Run(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral("openssl"), arguments);
        const bool good = process.waitForFinished(60000)
            && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        if (!good)
            m_fault = QStringLiteral("openssl %1: %2 %3")
                          .arg(arguments.first(), process.errorString(),
                               QString::fromLocal8Bit(process.readAllStandardError()));
        return good;
    }

    QTemporaryDir m_folder;
    QString m_fault;
};

/// Trusts an authority besides those of the system, in Qt's default configuration; undone at the
// end.
class TrustedAuthority {
public:
    explicit TrustedAuthority(const QString &authority)
        : m_former(QSslConfiguration::defaultConfiguration())
    {
        QSslConfiguration trusting = m_former;
        trusting.setCaCertificates(m_former.caCertificates()
                                   + QSslCertificate::fromPath(authority));
        QSslConfiguration::setDefaultConfiguration(trusting);
    }

    ~TrustedAuthority() { QSslConfiguration::setDefaultConfiguration(m_former); }

    TrustedAuthority(const TrustedAuthority &) = delete;
    TrustedAuthority &operator=(const TrustedAuthority &) = delete;

private:
    QSslConfiguration m_former;
};
