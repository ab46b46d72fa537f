#include "NA/FxNAWebSocketProtocol.h"

#include "support/TestMain.h"

#include <QtTest/QTest>

#include <type_traits>

using Protocol = CFxNAWebSocketProtocol;

static_assert(std::is_same_v<std::underlying_type_t<Protocol::Version>, int>);
static_assert(std::is_same_v<std::underlying_type_t<Protocol::CloseCode>, int>);
static_assert(std::is_convertible_v<Protocol::CloseCode, int>);

// The numbers of Qt, each against a static_assert in the library; here against the texts that fix
// them, the register of WebSocket versions and section 7.4 of RFC 6455.
class tst_FxNAWebSocketProtocol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void versionNumbers();
    void closeCodeNumbers();
    void aNumberConverts();
};

void tst_FxNAWebSocketProtocol::versionNumbers()
{
    QCOMPARE(int(Protocol::VersionUnknown), -1);
    QCOMPARE(int(Protocol::Version0), 0);
    QCOMPARE(int(Protocol::Version4), 4);
    QCOMPARE(int(Protocol::Version5), 5);
    QCOMPARE(int(Protocol::Version6), 6);
    QCOMPARE(int(Protocol::Version7), 7);
    QCOMPARE(int(Protocol::Version8), 8);
    QCOMPARE(int(Protocol::Version13), 13);
    QCOMPARE(Protocol::VersionLatest, Protocol::Version13);
}

void tst_FxNAWebSocketProtocol::closeCodeNumbers()
{
    QCOMPARE(int(Protocol::CloseCodeNormal), 1000);
    QCOMPARE(int(Protocol::CloseCodeGoingAway), 1001);
    QCOMPARE(int(Protocol::CloseCodeProtocolError), 1002);
    QCOMPARE(int(Protocol::CloseCodeDatatypeNotSupported), 1003);
    QCOMPARE(int(Protocol::CloseCodeReserved1004), 1004);
    QCOMPARE(int(Protocol::CloseCodeMissingStatusCode), 1005);
    QCOMPARE(int(Protocol::CloseCodeAbnormalDisconnection), 1006);
    QCOMPARE(int(Protocol::CloseCodeWrongDatatype), 1007);
    QCOMPARE(int(Protocol::CloseCodePolicyViolated), 1008);
    QCOMPARE(int(Protocol::CloseCodeTooMuchData), 1009);
    QCOMPARE(int(Protocol::CloseCodeMissingExtension), 1010);
    QCOMPARE(int(Protocol::CloseCodeBadOperation), 1011);
    QCOMPARE(int(Protocol::CloseCodeTlsHandshakeFailed), 1015);
}

void tst_FxNAWebSocketProtocol::aNumberConverts()
{
    QCOMPARE(int(static_cast<Protocol::CloseCode>(4000)), 4000);
    QCOMPARE(static_cast<Protocol::Version>(13), Protocol::VersionLatest);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxNAWebSocketProtocol>(argc, argv);
}

#include "tst_FxNAWebSocketProtocol.moc"
