#include "interface/GalleryPlugin.h"

#include "support/TestMain.h"
#include "UI/FxUIDialog.h"

#include <QtCore/QLibrary>
#include <QtCore/QTimer>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTextEdit>

#include <functional>
#include <memory>

namespace {

class RecordingHost final : public IGalleryHost {
public:
    void LogSignal(const QString & /*object*/, const QString &signal,
                   const QString & /*arguments*/) override
    {
        fired.append(signal);
    }

    QStringList fired;
};

// A panel of a built module, used through its widgets alone.
class Panel {
public:
    explicit Panel(const char *name)
        : m_module(QStringLiteral(PLUGINS "/") + QLatin1String(name) + QStringLiteral(".so"))
    {
        const auto create = reinterpret_cast<decltype(&GalleryPlugin_CreateDialog)>(
            m_module.resolve("GalleryPlugin_CreateDialog"));
        if (create)
            m_dialog.reset(create(&host));
        m_window = m_dialog ? qobject_cast<QWidget *>(m_dialog->getHandle()) : nullptr;
    }

    ~Panel()
    {
        m_dialog.reset();
        delete m_window;
    }

    // Runs the panel and calls \a visit while it is shown.
    void Run(const std::function<void()> &visit)
    {
        QVERIFY2(m_dialog, qPrintable(m_module.errorString()));
        QTimer::singleShot(0, m_window, [&] {
            visit();
            m_dialog->accept();
        });
        m_dialog->exec();
    }

    void Press(const QString &text) const
    {
        for (QPushButton *button : m_window->findChildren<QPushButton *>()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(qPrintable(QStringLiteral("no button ") + text));
    }

    // The nth field, from top to bottom.
    QLineEdit *Field(int number) const
    {
        return m_window->findChildren<QLineEdit *>().value(number);
    }

    QTextEdit *View(int number) const
    {
        return m_window->findChildren<QTextEdit *>().value(number);
    }

    bool Says(const QString &text) const
    {
        for (const QLabel *label : m_window->findChildren<QLabel *>()) {
            if (label->text().contains(text))
                return true;
        }
        return false;
    }

    QWidget *Window() const { return m_window; }

    RecordingHost host;

private:
    QLibrary m_module;
    std::unique_ptr<CFxUIDialog> m_dialog;
    QWidget *m_window = nullptr;
};

enum HttpField { Url, Headers, Body, Timeout };

} // namespace

class tst_GalleryNetworkPanels : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void httpSaysWhatHappened_data();
    void httpSaysWhatHappened();
    void httpShowsAPictureAsAPicture();
    void httpSendsMethodHeadersAndBody();
    void httpMovesItsProgress();
    void httpRefusedConnection();
    void httpClosedWhileATransferRuns();
    void chatTalksAndHangsUp();
    void chatSaysWhatIsWrong_data();
    void chatSaysWhatIsWrong();
};

void tst_GalleryNetworkPanels::httpSaysWhatHappened_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("timeout");
    QTest::addColumn<QString>("words");
    QTest::newRow("text") << QStringLiteral("http://demo/text") << QStringLiteral("5000")
                          << QStringLiteral("HTTP status 200. Finished without");
    QTest::newRow("not found") << QStringLiteral("http://demo/nothing") << QStringLiteral("5000")
                               << QStringLiteral("HTTP status 404");
    QTest::newRow("time-out") << QStringLiteral("http://demo/never") << QStringLiteral("50")
                              << QStringLiteral("No answer. Given up: no end within");
    QTest::newRow("no URL") << QStringLiteral("http://[bad") << QStringLiteral("5000")
                            << QStringLiteral("This is no URL");
    QTest::newRow("no scheme") << QStringLiteral("demo/text") << QStringLiteral("5000")
                               << QStringLiteral("This is no URL");
}

void tst_GalleryNetworkPanels::httpSaysWhatHappened()
{
    QFETCH(QString, url);
    QFETCH(QString, timeout);
    QFETCH(QString, words);
    Panel panel("http");
    panel.Run([&] {
        panel.Field(Url)->setText(url);
        panel.Field(Timeout)->setText(timeout);
        panel.Press(QStringLiteral("Send"));
        QTRY_VERIFY(panel.Says(words));
    });
}

void tst_GalleryNetworkPanels::httpShowsAPictureAsAPicture()
{
    Panel panel("http");
    panel.Run([&] {
        panel.Press(QStringLiteral("Send"));
        QTRY_VERIFY(panel.host.fired.contains(QStringLiteral("finished")));
        bool found = false;
        for (const QLabel *label : panel.Window()->findChildren<QLabel *>())
            found = found || (label->pixmap(Qt::ReturnByValue).size() == QSize(240, 80));
        QVERIFY(found);
        QVERIFY(panel.View(0)->toPlainText().contains(QStringLiteral("image/png")));
    });
}

void tst_GalleryNetworkPanels::httpSendsMethodHeadersAndBody()
{
    Panel panel("http");
    panel.Run([&] {
        panel.Window()->findChild<QComboBox *>()->setCurrentIndex(2);
        panel.Field(Url)->setText(QStringLiteral("http://demo/echo"));
        panel.Field(Body)->setText(QStringLiteral("a body"));
        panel.Press(QStringLiteral("Send"));
        QTRY_COMPARE(panel.View(1)->toPlainText(), QStringLiteral("PUT with the body:\na body"));
    });
}

void tst_GalleryNetworkPanels::httpMovesItsProgress()
{
    Panel panel("http");
    panel.Run([&] {
        auto *progress = panel.Window()->findChild<QSlider *>();
        QList<int> values;
        connect(progress, &QSlider::valueChanged, this,
                [&values](int value) { values.append(value); });
        panel.Field(Url)->setText(QStringLiteral("http://demo/slow"));
        panel.Press(QStringLiteral("Send"));
        QTRY_VERIFY(panel.host.fired.contains(QStringLiteral("finished")));
        QCOMPARE(values.last(), progress->maximum());
        QVERIFY(values.size() > 2);
    });
}

void tst_GalleryNetworkPanels::httpRefusedConnection()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    const QString url = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    server.close();
    Panel panel("http");
    panel.Run([&] {
        panel.Field(Url)->setText(url);
        panel.Press(QStringLiteral("Send"));
        QTRY_VERIFY(panel.Says(QStringLiteral("No answer. Connection refused (error 1).")));
    });
}

void tst_GalleryNetworkPanels::httpClosedWhileATransferRuns()
{
    Panel panel("http");
    panel.Run([&] {
        panel.Field(Url)->setText(QStringLiteral("http://demo/never"));
        panel.Press(QStringLiteral("Send"));
        QVERIFY(panel.Says(QStringLiteral("Waiting for an answer")));
    });
}

void tst_GalleryNetworkPanels::chatTalksAndHangsUp()
{
    Panel panel("chat");
    panel.Run([&] {
        panel.Press(QStringLiteral("Connect"));
        QTRY_VERIFY(panel.View(0)->toPlainText().contains(QStringLiteral("they: Welcome")));
        QTest::keyClicks(panel.Field(1), QStringLiteral("a<b>"));
        QTest::keyClick(panel.Field(1), Qt::Key_Return);
        QVERIFY(panel.Field(1)->text().isEmpty());
        QTRY_VERIFY(panel.View(0)->toPlainText().endsWith(
            QStringLiteral("you: a<b>\nthey: That was 4 characters: a<b>")));
        QTest::keyClicks(panel.Field(1), QStringLiteral("bye"));
        QTest::keyClick(panel.Field(1), Qt::Key_Return);
        QTRY_VERIFY(panel.View(0)->toPlainText().endsWith(QStringLiteral("(disconnected)")));
        QVERIFY(panel.host.fired.contains(QStringLiteral("textMessageReceived")));
    });
}

void tst_GalleryNetworkPanels::chatSaysWhatIsWrong_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("words");
    QTest::newRow("not a WebSocket URL")
        << QStringLiteral("http://demo/") << QStringLiteral("(this is no ws: or wss: URL)");
    QTest::newRow("refused") << QStringLiteral("ws://127.0.0.1:1/")
                             << QStringLiteral("(socket error 0: no connection");
}

void tst_GalleryNetworkPanels::chatSaysWhatIsWrong()
{
    QFETCH(QString, url);
    QFETCH(QString, words);
    Panel panel("chat");
    panel.Run([&] {
        panel.Field(0)->setText(url);
        panel.Press(QStringLiteral("Connect"));
        QTRY_VERIFY(panel.View(0)->toPlainText().contains(words));
        QTest::keyClicks(panel.Field(1), QStringLiteral("hello"));
        QTest::keyClick(panel.Field(1), Qt::Key_Return);
        QVERIFY(panel.View(0)->toPlainText().endsWith(QStringLiteral("(not connected)")));
    });
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryNetworkPanels>(argc, argv);
}

#include "tst_GalleryNetworkPanels.moc"
