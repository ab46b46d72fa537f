#include "UI/Impl/qt/frontend/FxUIGroupBoxFrontend.h"

#include "support/TestMain.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIStyle.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

#include <type_traits>

static_assert(std::is_base_of_v<QGroupBox, CFxUIGroupBoxFrontend>);
static_assert(std::is_base_of_v<CFxUIFrontendBase<CFxUIGroupBoxImpl>, CFxUIGroupBoxFrontend>);

namespace {

QImage Picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The first point on the edge that isn't black, as text; empty if there is none.
QString EdgeFault(const QImage &picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const bool edge =
                x == 0 || y == 0 || x == picture.width() - 1 || y == picture.height() - 1;
            if (edge && picture.pixelColor(x, y) != Qt::black)
                return QStringLiteral("%1,%2 is %3")
                    .arg(x)
                    .arg(y)
                    .arg(picture.pixelColor(x, y).name());
        }
    }
    return QString();
}

} // namespace

class tst_FxUIGroupBoxFrontend : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isAGroupBoxWithoutParentAndWithoutAWayBack();
    void outlineIsBlackAlongTheEdge_data();
    void outlineIsBlackAlongTheEdge();
    void outlineIsOnePixelWide();
    void outlineIsDrawnOverTheBorderOfTheStyleSheet();
    void outlineIsDrawnOverTheLibrarysStyleSheets_data();
    void outlineIsDrawnOverTheLibrarysStyleSheets();
    void titleAndContentsAreDrawnByQt();
};

void tst_FxUIGroupBoxFrontend::isAGroupBoxWithoutParentAndWithoutAWayBack()
{
    const CFxUIGroupBoxFrontend frontend;
    QVERIFY(!frontend.parentWidget());
    QVERIFY(!frontend.impl);
    QVERIFY(frontend.title().isEmpty());
    QCOMPARE(frontend.metaObject()->className(), "CFxUIGroupBoxFrontend");
}

void tst_FxUIGroupBoxFrontend::outlineIsBlackAlongTheEdge_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("usual") << QSize(120, 80);
    QTest::newRow("flat") << QSize(50, 2);
    QTest::newRow("narrow") << QSize(2, 50);
}

void tst_FxUIGroupBoxFrontend::outlineIsBlackAlongTheEdge()
{
    QFETCH(QSize, size);
    CFxUIGroupBoxFrontend frontend;
    frontend.setTitle(QStringLiteral("Units"));
    frontend.resize(size);
    const QImage picture = Picture(frontend);
    QCOMPARE(picture.size(), size);
    QCOMPARE(EdgeFault(picture), QString());
}

void tst_FxUIGroupBoxFrontend::outlineIsOnePixelWide()
{
    CFxUIGroupBoxFrontend frontend;
    frontend.setStyleSheet(
        QStringLiteral("QGroupBox { border: none; background-color: #ffffff; }"));
    frontend.resize(60, 40);
    const QImage picture = Picture(frontend);
    QCOMPARE(EdgeFault(picture), QString());
    const QImage inside = picture.copy(1, 1, 58, 38);
    QImage white(inside.size(), QImage::Format_RGB32);
    white.fill(Qt::white);
    QCOMPARE(inside, white);
}

void tst_FxUIGroupBoxFrontend::outlineIsDrawnOverTheBorderOfTheStyleSheet()
{
    CFxUIGroupBox box;
    auto *frontend = qobject_cast<CFxUIGroupBoxFrontend *>(box.getHandle());
    frontend->setStyleSheet(QStringLiteral("QGroupBox { border: 3px solid #ff0000; }"));
    frontend->resize(60, 40);
    const QImage picture = Picture(*frontend);
    QCOMPARE(EdgeFault(picture), QString());
    QCOMPARE(picture.pixelColor(1, 20), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(2, 20), QColor(Qt::red));
}

void tst_FxUIGroupBoxFrontend::outlineIsDrawnOverTheLibrarysStyleSheets_data()
{
    QFile light(QStringLiteral(":/commonui/resources/qss/light_style.qss"));
    QVERIFY(light.open(QIODevice::ReadOnly));
    QTest::addColumn<QString>("sheet");
    QTest::newRow("dark") << GetStyle()->styleSheet();
    QTest::newRow("light") << QString::fromUtf8(light.readAll());
}

void tst_FxUIGroupBoxFrontend::outlineIsDrawnOverTheLibrarysStyleSheets()
{
    QFETCH(QString, sheet);
    QVERIFY(!sheet.isEmpty());
    QWidget dialog;
    dialog.setStyleSheet(sheet);
    auto *frontend = new CFxUIGroupBoxFrontend;
    frontend->setParent(&dialog);
    frontend->resize(60, 40);
    QCOMPARE(EdgeFault(Picture(*frontend)), QString());
}

void tst_FxUIGroupBoxFrontend::titleAndContentsAreDrawnByQt()
{
    CFxUIGroupBoxFrontend frontend;
    QGroupBox plain;
    for (QGroupBox *box : { static_cast<QGroupBox *>(&frontend), &plain }) {
        box->setTitle(QStringLiteral("Units"));
        box->resize(120, 80);
    }
    const QRect inside(1, 1, 118, 78);
    QCOMPARE(Picture(frontend).copy(inside), Picture(plain).copy(inside));
    QVERIFY(Picture(frontend) != Picture(plain));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIGroupBoxFrontend>(argc, argv);
}

#include "tst_FxUIGroupBoxFrontend.moc"
