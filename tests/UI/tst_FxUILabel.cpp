#include "UI/FxUILabel.h"

#include "support/ControlContract.h"
#include "support/TestMain.h"
#include "UI/Impl/FxUILabelImpl.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <memory>
#include <type_traits>

static_assert(std::is_base_of_v<CFxUIBaseView, CFxUILabel>);
static_assert(!std::is_copy_constructible_v<CFxUILabel>);

namespace {

QLabel *QtLabel(const CFxUILabel &label)
{
    return qobject_cast<QLabel *>(label.getHandle());
}

CFxUILabelImpl *Impl(const CFxUILabel &label)
{
    return static_cast<CFxUILabelImpl *>(label.impl);
}

QPixmap Picture(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::darkGreen);
    return pixmap;
}

QSize ShownSize(const CFxUILabel &label)
{
    const QPixmap pixmap = QtLabel(label)->pixmap(Qt::ReturnByValue);
    return pixmap.isNull() ? QSize() : pixmap.size();
}

struct Probe : CFxUILabelImpl {
    static QIcon Icon(const CFxUILabel &label) { return Impl(label)->*(&Probe::m_icon); }

    static QPixmap Pixmap(const CFxUILabel &label) { return Impl(label)->*(&Probe::m_pixmap); }

    static int FontSize(const CFxUILabel &label) { return Impl(label)->*(&Probe::m_fontSize); }

    static QString ToolTip(const CFxUILabel &label) { return Impl(label)->*(&Probe::m_toolTip); }
};

} // namespace

class tst_FxUILabel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void passesTheControlContract();
    void frontendIsAPlainQLabelWithItsSheet();
    void frontendClassNameIsQLabel();
    void startsEmpty();
    void textGoesToTheWidgetAndIsAnsweredFromTheRecord();
    void sameTextGoesToTheWidgetAgain();
    void publicClearEmptiesTheTextAlone_data();
    void publicClearEmptiesTheTextAlone();
    void clearOfTheImplementationResetsAllThree();
    void iconShowsAtTwentyFiveBySize_data();
    void iconShowsAtTwentyFiveBySize();
    void iconShowsItsNormalPictureSwitchedOff();
    void nullIconClearsWhatIsShown();
    void pixmapShowsAtItsOwnSizeAfterAnIcon();
    void iconAndPixmapResetEachOther();
    void textIsStillAnsweredWhileAPixmapIsShown();
    void boldEditsTheFontAndNotTheSheet();
    void fontSizeIsInPixels();
    void fontSizeOfZeroIsStoredAndLeftToQt();
    void wordWrapIsStoredAndReachesTheWidget();
    void toolTipIsStoredAndReachesTheWidget();
    void textAlignment_data();
    void textAlignment();
    void textAlignmentOutsideTheEnumerationKeepsTheWidgets_data();
    void textAlignmentOutsideTheEnumerationKeepsTheWidgets();
    void buddyIsAnotherViewsWidget();
    void buddyWithoutAWidgetKeepsTheOldOne();
    void hoveringIsNotReported();
    void settersWithoutHandleKeepTheState();
    void settersWithAForeignHandleKeepTheState();
};

void tst_FxUILabel::passesTheControlContract()
{
    ControlContract([] { return new CFxUILabel; });
}

void tst_FxUILabel::frontendIsAPlainQLabelWithItsSheet()
{
    const CFxUILabel label;
    QVERIFY(QtLabel(label));
    QCOMPARE(QtLabel(label)->metaObject()->className(), "QLabel");
    QVERIFY(!QtLabel(label)->parentWidget());
    QCOMPARE(QtLabel(label)->windowType(), Qt::Window); // no flags given: Qt's own
    QCOMPARE(QtLabel(label)->styleSheet(), QStringLiteral("QLabel { }"));
}

void tst_FxUILabel::frontendClassNameIsQLabel()
{
    const CFxUILabel label;
    QCOMPARE(label.impl->GetFrontendClassName(), QStringLiteral("QLabel"));
}

void tst_FxUILabel::startsEmpty()
{
    const CFxUILabel label;
    QVERIFY(label.text().isNull());
    QVERIFY(!label.wordWrap());
    QVERIFY(Probe::Icon(label).isNull());
    QVERIFY(Probe::Pixmap(label).isNull());
    QCOMPARE(Probe::FontSize(label), -1);
    QVERIFY(Probe::ToolTip(label).isNull());
}

void tst_FxUILabel::textGoesToTheWidgetAndIsAnsweredFromTheRecord()
{
    CFxUILabel label;
    label.setText(QStringLiteral("ours"));
    QCOMPARE(QtLabel(label)->text(), QStringLiteral("ours"));
    QtLabel(label)->setText(QStringLiteral("theirs"));
    QCOMPARE(label.text(), QStringLiteral("ours"));
}

void tst_FxUILabel::sameTextGoesToTheWidgetAgain()
{
    CFxUILabel label;
    label.setText(QStringLiteral("ours"));
    QtLabel(label)->setText(QStringLiteral("theirs"));
    label.setText(QStringLiteral("ours"));
    QCOMPARE(QtLabel(label)->text(), QStringLiteral("ours"));
}

void tst_FxUILabel::publicClearEmptiesTheTextAlone_data()
{
    QTest::addColumn<bool>("withIcon");
    QTest::newRow("icon stays") << true;
    QTest::newRow("pixmap stays") << false;
}

void tst_FxUILabel::publicClearEmptiesTheTextAlone()
{
    QFETCH(bool, withIcon);
    CFxUILabel label;
    label.setText(QStringLiteral("text"));
    if (withIcon)
        label.setIcon(QIcon(Picture(64, 64)));
    else
        label.setPixmap(Picture(64, 64));
    label.clear();
    QVERIFY(label.text().isNull());
    QCOMPARE(QtLabel(label)->text(), QString());
    QCOMPARE(ShownSize(label), withIcon ? QSize(25, 25) : QSize(64, 64));
    QCOMPARE(Probe::Icon(label).isNull(), !withIcon);
    QCOMPARE(Probe::Pixmap(label).isNull(), withIcon);
}

void tst_FxUILabel::clearOfTheImplementationResetsAllThree()
{
    CFxUILabel label;
    label.setIcon(QIcon(Picture(64, 64)));
    label.setText(QStringLiteral("text"));
    Impl(label)->clear();
    QVERIFY(label.text().isNull());
    QVERIFY(Probe::Icon(label).isNull());
    QVERIFY(Probe::Pixmap(label).isNull());
    QCOMPARE(ShownSize(label), QSize());
    label.setPixmap(Picture(64, 64));
    Impl(label)->clear();
    QVERIFY(Probe::Pixmap(label).isNull());
    QCOMPARE(ShownSize(label), QSize());
}

void tst_FxUILabel::iconShowsAtTwentyFiveBySize_data()
{
    QTest::addColumn<QSize>("own");
    QTest::addColumn<QSize>("shown");
    QTest::newRow("large") << QSize(512, 512) << QSize(25, 25);
    QTest::newRow("exact") << QSize(25, 25) << QSize(25, 25);
    QTest::newRow("oblong keeps its shape") << QSize(100, 20) << QSize(25, 5);
    QTest::newRow("small isn't enlarged by QIcon") << QSize(16, 16) << QSize(16, 16);
}

void tst_FxUILabel::iconShowsAtTwentyFiveBySize()
{
    QFETCH(QSize, own);
    QFETCH(QSize, shown);
    CFxUILabel label;
    label.setIcon(QIcon(Picture(own.width(), own.height())));
    QCOMPARE(ShownSize(label), shown);
}

void tst_FxUILabel::iconShowsItsNormalPictureSwitchedOff()
{
    QIcon icon;
    const auto add = [&icon](const QColor &color, QIcon::Mode mode, QIcon::State state) {
        QPixmap pixmap(25, 25);
        pixmap.fill(color);
        icon.addPixmap(pixmap, mode, state);
    };
    for (const QIcon::Mode mode :
         { QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected }) {
        add(Qt::red, mode, QIcon::On);
        add(mode == QIcon::Normal ? Qt::blue : Qt::red, mode, QIcon::Off);
    }
    CFxUILabel label;
    label.setEnabled(false); // makes no difference
    label.setIcon(icon);
    const QImage shown = QtLabel(label)->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.pixelColor(12, 12), QColor(Qt::blue));
}

void tst_FxUILabel::nullIconClearsWhatIsShown()
{
    CFxUILabel label;
    label.setPixmap(Picture(64, 64));
    label.setIcon(QIcon());
    QCOMPARE(ShownSize(label), QSize());
    label.setText(QStringLiteral("text"));
    label.setIcon(QIcon());
    QCOMPARE(QtLabel(label)->text(), QString());
    QCOMPARE(label.text(), QStringLiteral("text"));
}

void tst_FxUILabel::pixmapShowsAtItsOwnSizeAfterAnIcon()
{
    CFxUILabel label;
    label.setIcon(QIcon(Picture(64, 64)));
    label.setPixmap(Picture(200, 10));
    QCOMPARE(ShownSize(label), QSize(200, 10));
}

void tst_FxUILabel::iconAndPixmapResetEachOther()
{
    CFxUILabel label;
    label.setPixmap(Picture(64, 64));
    QVERIFY(!Probe::Pixmap(label).isNull());
    label.setIcon(QIcon(Picture(64, 64)));
    QVERIFY(Probe::Pixmap(label).isNull());
    QVERIFY(!Probe::Icon(label).isNull());
    label.setPixmap(Picture(64, 64));
    QVERIFY(Probe::Icon(label).isNull());
    QVERIFY(!Probe::Pixmap(label).isNull());
}

void tst_FxUILabel::textIsStillAnsweredWhileAPixmapIsShown()
{
    CFxUILabel label;
    label.setText(QStringLiteral("text"));
    label.setPixmap(Picture(64, 64));
    QCOMPARE(label.text(), QStringLiteral("text"));
    QCOMPARE(QtLabel(label)->text(), QString());
}

void tst_FxUILabel::boldEditsTheFontAndNotTheSheet()
{
    CFxUILabel label;
    const QFont before = QtLabel(label)->font();
    label.setBoldText(true);
    QCOMPARE(QtLabel(label)->font().weight(), 75);
    QCOMPARE(QtLabel(label)->font().pixelSize(), before.pixelSize());
    label.setBoldText(false);
    QCOMPARE(QtLabel(label)->font().weight(), 50);
    QCOMPARE(QtLabel(label)->styleSheet(), QStringLiteral("QLabel { }"));
}

void tst_FxUILabel::fontSizeIsInPixels()
{
    CFxUILabel label;
    label.setBoldText(true);
    label.setFontSize(31);
    QCOMPARE(Probe::FontSize(label), 31);
    QCOMPARE(QtLabel(label)->font().pixelSize(), 31);
    QCOMPARE(QtLabel(label)->font().pointSize(), -1);
    QCOMPARE(QtLabel(label)->font().weight(), 75); // the rest of the font stays
}

void tst_FxUILabel::fontSizeOfZeroIsStoredAndLeftToQt()
{
    CFxUILabel label;
    label.setFontSize(20);
    QTest::ignoreMessage(QtWarningMsg, "QFont::setPixelSize: Pixel size <= 0 (0)");
    label.setFontSize(0);
    QCOMPARE(Probe::FontSize(label), 0);
    QCOMPARE(QtLabel(label)->font().pixelSize(), 20);
}

void tst_FxUILabel::wordWrapIsStoredAndReachesTheWidget()
{
    CFxUILabel label;
    label.setWordWrap(true);
    QVERIFY(label.wordWrap());
    QVERIFY(QtLabel(label)->wordWrap());
    QtLabel(label)->setWordWrap(false);
    QVERIFY(label.wordWrap());
    label.setWordWrap(false);
    QVERIFY(!label.wordWrap());
}

void tst_FxUILabel::toolTipIsStoredAndReachesTheWidget()
{
    CFxUILabel label;
    label.setToolTip(QStringLiteral("tip"));
    QCOMPARE(QtLabel(label)->toolTip(), QStringLiteral("tip"));
    QCOMPARE(Probe::ToolTip(label), QStringLiteral("tip"));
}

void tst_FxUILabel::textAlignment_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("qtAlignment");
    QTest::newRow("left") << 0 << 1;
    QTest::newRow("right") << 1 << 2;
    QTest::newRow("centre, on both axes") << 2 << 0x84;
}

void tst_FxUILabel::textAlignment()
{
    QFETCH(int, alignment);
    QFETCH(int, qtAlignment);
    CFxUILabel label;
    label.setTextAlignment(static_cast<CFxUIBaseView::TextAlignment>(alignment));
    QCOMPARE(int(QtLabel(label)->alignment()), qtAlignment);
}

void tst_FxUILabel::textAlignmentOutsideTheEnumerationKeepsTheWidgets_data()
{
    QTest::addColumn<int>("alignment");
    QTest::newRow("3") << 3;
    QTest::newRow("-1") << -1;
    QTest::newRow("Qt's own number for both axes") << 0x84;
}

void tst_FxUILabel::textAlignmentOutsideTheEnumerationKeepsTheWidgets()
{
    QFETCH(int, alignment);
    CFxUILabel label;
    label.setTextAlignment(CFxUIBaseView::AlignRight);
    label.setTextAlignment(static_cast<CFxUIBaseView::TextAlignment>(alignment));
    QCOMPARE(QtLabel(label)->alignment(), Qt::Alignment(Qt::AlignRight));
}

void tst_FxUILabel::buddyIsAnotherViewsWidget()
{
    const CFxUILabel label;
    CFxUILabel buddy;
    Impl(label)->SetBuddyImpl(&buddy);
    QCOMPARE(QtLabel(label)->buddy(), QtLabel(buddy));
}

void tst_FxUILabel::buddyWithoutAWidgetKeepsTheOldOne()
{
    const CFxUILabel label;
    CFxUILabel buddy;
    Impl(label)->SetBuddyImpl(&buddy);
    CFxUILabel other;
    const std::unique_ptr<QObject> handle(other.getHandle());
    other.setHandle(nullptr);
    Impl(label)->SetBuddyImpl(&other);
    QObject noWidget;
    other.setHandle(&noWidget);
    Impl(label)->SetBuddyImpl(&other);
    Impl(label)->SetBuddyImpl(nullptr);
    QCOMPARE(QtLabel(label)->buddy(), QtLabel(buddy));
    other.setHandle(nullptr);
}

void tst_FxUILabel::hoveringIsNotReported()
{
    CFxUILabel label;
    int emissions = 0;
    label.hoverEnter().connect([&emissions] { ++emissions; });
    label.hoverLeave().connect([&emissions] { ++emissions; });
    for (const QEvent::Type type : { QEvent::Enter, QEvent::Leave }) {
        QEvent event(type);
        QCoreApplication::sendEvent(QtLabel(label), &event);
    }
    QCOMPARE(emissions, 0);
}

void tst_FxUILabel::settersWithoutHandleKeepTheState()
{
    CFxUILabel label;
    const std::unique_ptr<QObject> handle(label.getHandle());
    label.setHandle(nullptr);
    label.setText(QStringLiteral("text"));
    label.setWordWrap(true);
    label.setPixmap(Picture(9, 9));
    label.setIcon(QIcon(Picture(9, 9)));
    label.setFontSize(12);
    label.setBoldText(true);
    label.setToolTip(QStringLiteral("tip"));
    label.setTextAlignment(CFxUIBaseView::AlignRight);
    CFxUILabel buddy;
    Impl(label)->SetBuddyImpl(&buddy);
    QCOMPARE(label.text(), QStringLiteral("text"));
    QVERIFY(label.wordWrap());
    QVERIFY(!Probe::Icon(label).isNull());
    QCOMPARE(Probe::FontSize(label), 12);
    QCOMPARE(Probe::ToolTip(label), QStringLiteral("tip"));
    QCOMPARE(static_cast<QLabel *>(handle.get())->text(), QString());
}

void tst_FxUILabel::settersWithAForeignHandleKeepTheState()
{
    CFxUILabel label;
    const std::unique_ptr<QObject> handle(label.getHandle());
    QPushButton foreign;
    label.setHandle(&foreign);
    label.setText(QStringLiteral("text"));
    label.setToolTip(QStringLiteral("tip"));
    label.setBoldText(true);
    QCOMPARE(label.text(), QStringLiteral("text"));
    QCOMPARE(foreign.text(), QString());
    QCOMPARE(foreign.toolTip(), QString());
    QCOMPARE(foreign.font().weight(), 50);
    label.setHandle(nullptr);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUILabel>(argc, argv);
}

#include "tst_FxUILabel.moc"
