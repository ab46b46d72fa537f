#include "UI/FxUIStyle.h"

#include "resources/SheetRules.h"
#include "support/TestMain.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QTextStream>
#include <QtCore/QtMath>
#include <QtGui/QColor>
#include <QtGui/QImageReader>
#include <QtGui/QMovie>
#include <QtTest/QTest>

#include <initializer_list>

namespace {

const QString Root = QStringLiteral(":/commonui/resources/");

struct SheetRow {
    const char *selector;
    std::initializer_list<const char *> declarations;
};

const SheetRow DarkSheet[] = {
    { "QDialog", { "background-color: jango;" } },
    { "QTabWidget", { "background-color: jango;" } },
    { "QTabWidget::pane", { "border: none;" } },
    { "QTabWidget::tab-bar",
      { "background-color: snoke;", "border: 1px solid dark;", "min-height: 36px;" } },
    { "QTabBar::tab",
      { "background-color: snoke;", "border: 1px solid dark;", "margin: 0;", "color: light;",
        "font: 12px;", "padding: 10px;", "min-width: 70px;" } },
    { "QTabBar::tab:selected, QTabBar::tab:hover", { "border-bottom: 3px solid obi;" } },
    { "QPushButton",
      { "background-color: vader;", "color: light;", "border: 1px solid dark;",
        "padding-left: 5px;", "padding-right: 5px;" } },
    { "QGroupBox", { "background-color: jango;", "border: none;" } },
    { "QLabel",
      { "background-color: jango;", "color: light;", "font: 12px;", "border: none;", "padding: 0;",
        "padding: 5px;" } },
    { "QComboBox",
      { "background-color: vader;", "color: light;", "border: 1px solid dark;",
        "padding-left: 5px;", "padding-right: 5px;" } },
    { "QComboBox::drop-down", { "border: 0px;" } },
    { "QComboBox::down-arrow",
      { "border-style: none;", "image: url(:/commonui/resources/icons/chevron_down.png);" } },
    { "QComboBox::down-arrow:pressed",
      { "border-style: none;", "image: url(:/commonui/resources/icons/chevron_up.png);" } },
    { "QComboBox::down-arrow:on",
      { "border-style: none;", "image: url(:/commonui/resources/icons/chevron_up.png);" } },
    { "QSlider",
      { "border-style: none;", "height: 16px;", "margin-left: 5px;", "margin-right: 5px;",
        "background-color: jango;" } },
    { "QSlider::groove:horizontal", { "height: 2px;", "background-color: clone;" } },
    { "QSlider::handle:horizontal",
      { "background: rey;", "width: 14px;", "border-radius: 7px;", "margin: -7px 0;" } },
    { "QLineEdit", { "background-color: vader;", "color:light;", "border: 1px solid dark;" } },
    { "QCheckBox",
      { "background-color: jango;", "color: light;", "font: 12px;", "border: none;",
        "spacing: 5px;", "min-height: 25px;" } },
    { "QCheckBox::indicator", { "width: 30px;", "height: 30px;" } },
    { "QCheckBox::indicator:unchecked",
      { "image: url(:/commonui/resources/icons/checkbox_inactive.png);" } },
    { "QCheckBox::indicator:checked",
      { "image: url(:/commonui/resources/icons/checkbox_active.png);" } },
    { "QCheckBox::indicator:unchecked:disabled",
      { "image: url(:/commonui/resources/icons/checkbox_disabled_inactive.png);" } },
    { "QCheckBox::indicator:checked:disabled",
      { "image: url(:/commonui/resources/icons/checkbox_disabled_active.png);" } },
    { "QRadioButton",
      { "background-color: jango;", "color: light;", "font: 12px;", "border: none;",
        "spacing: 5px;" } },
    { "QRadioButton::indicator", { "width: 30px;", "height: 30px;" } },
    { "QRadioButton::indicator:unchecked",
      { "image: url(:/commonui/resources/icons/radiobutton_inactive.png);" } },
    { "QRadioButton::indicator:checked",
      { "image: url(:/commonui/resources/icons/radiobutton_active.png);" } },
    { "QRadioButton::indicator:unchecked:disabled",
      { "image: url(:/commonui/resources/icons/radiobutton_disabled.png);" } },
    { "QRadioButton::indicator:checked:disabled",
      { "image: url(:/commonui/resources/icons/radiobutton_disabled.png);" } },
};

const SheetRow LightSheet[] = {
    { "QWidget:disabled", { "color: #787878;", "background: #F0F0F0;" } },
    { "QLineEdit:enabled, QComboBox, QHeaderView", { "color: #000;", "background: #fff;" } },
    { "QLabel, QCheckBox", { "color: #000;" } },
    { "QPushButton", { "color: #000;", "background: #CFCFCF;" } },
    { "QTreeView, QTableView",
      { "color: #000;", "background: #fff;", "gridline-color: #F0F0F0;" } },
    { "QMenu, QAbstractScrollArea::corner, QTreeView::item:selected:!active, "
      "QTableView::item:selected:!active",
      { "color: #000;", "background: #F0F0F0;" } },
    { "QTreeView::item:selected:active, QTableView::item:selected:active",
      { "color: #fff;", "background: #0074cc;" } },
};

QByteArray Bytes(const QString &name)
{
    QFile file(Root + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QImage Icon(const char *name)
{
    return QImage(Root + QStringLiteral("icons/") + QLatin1String(name));
}

QVector<QImage> AnimationFrames()
{
    QVector<QImage> frames;
    QImageReader reader(Root + QStringLiteral("icons/spinner.gif"));
    while (reader.canRead())
        frames.append(reader.read().convertToFormat(QImage::Format_ARGB32));
    return frames;
}

// How much an icon stands out from a background: the mean difference of lightness over all pixels.
qreal Prominence(const QImage &icon, const QColor &background)
{
    qreal sum = 0;
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const QColor color = icon.pixelColor(x, y);
            sum += color.alphaF() * qAbs(color.lightnessF() - background.lightnessF());
        }
    }
    return sum / (icon.width() * icon.height());
}

// The direction of the picture's centre of gravity as seen from its middle, in degrees, clockwise.
qreal Heading(const QImage &frame)
{
    qreal right = 0;
    qreal down = 0;
    for (int y = 0; y < frame.height(); ++y) {
        for (int x = 0; x < frame.width(); ++x) {
            const qreal alpha = frame.pixelColor(x, y).alphaF();
            right += alpha * (x + 0.5 - frame.width() / 2.0);
            down += alpha * (y + 0.5 - frame.height() / 2.0);
        }
    }
    return qRadiansToDegrees(qAtan2(down, right));
}

// How many pixels lower a picture is drawn in its middle than over its whole width.
qreal Tip(const QImage &icon)
{
    const auto height = [&icon](int from, int to) {
        qreal sum = 0;
        qreal weight = 0;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = from; x < to; ++x) {
                const qreal alpha = icon.pixelColor(x, y).alphaF();
                sum += alpha * y;
                weight += alpha;
            }
        }
        return sum / weight;
    };
    const int middle = icon.width() / 2;
    return height(middle - 1, middle + 1) - height(0, icon.width());
}

void AddRuleRows(const SheetRow *rows, int count)
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("declarations");
    for (int i = 0; i < count; ++i) {
        QStringList declarations;
        for (const char *declaration : rows[i].declarations)
            declarations.append(QLatin1String(declaration));
        QTest::newRow(rows[i].selector)
            << i << QString::fromLatin1(rows[i].selector) << declarations;
    }
}

void CompareRule(const QString &file)
{
    QFETCH(int, index);
    QFETCH(QString, selector);
    QFETCH(QStringList, declarations);
    const auto rules = SheetRules(QString::fromLatin1(Bytes(file)));
    QVERIFY(index < rules.size());
    QCOMPARE(rules.at(index).selector, selector);
    QCOMPARE(rules.at(index).declarations, declarations);
}

} // namespace

class tst_ResourceTree : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isThereWithoutAnyCall();
    void holdsTheseFilesAndNoOthers();
    void textFileSizes_data();
    void textFileSizes();
    void darkSheetAloneIsStoredCompressed_data();
    void darkSheetAloneIsStoredCompressed();
    void textFilesHaveCrLfLineEnds_data();
    void textFilesHaveCrLfLineEnds();
    void colorTableText();
    void darkSheetHasNoFurtherRule();
    void darkSheetRule_data();
    void darkSheetRule();
    void lightSheetHasNoFurtherRule();
    void lightSheetRule_data();
    void lightSheetRule();
    void imagesOfTheSheetsExist();
    void iconSize_data();
    void iconSize();
    void iconsAreDrawnOnTransparentGround_data();
    void iconsAreDrawnOnTransparentGround();
    void disabledIconsStandOutLess_data();
    void disabledIconsStandOutLess();
    void chevronsPointDownAndUp();
    void animationHasSevenFramesOfSeventyMilliseconds();
    void animationRunsAsAMovieForEver();
    void animationTurnsByASeventhPerFrame();
};

void tst_ResourceTree::isThereWithoutAnyCall()
{
    QVERIFY(!g_pStyle);
    QVERIFY(QFile::exists(Root));
}

void tst_ResourceTree::holdsTheseFilesAndNoOthers()
{
    QStringList files;
    QDirIterator tree(Root, QDir::Files, QDirIterator::Subdirectories);
    while (tree.hasNext())
        files.append(tree.next().mid(Root.size()));
    files.sort();
    const QStringList expected {
        QStringLiteral("icons/checkbox_active.png"),
        QStringLiteral("icons/checkbox_disabled_active.png"),
        QStringLiteral("icons/checkbox_disabled_inactive.png"),
        QStringLiteral("icons/checkbox_inactive.png"),
        QStringLiteral("icons/chevron_down.png"),
        QStringLiteral("icons/chevron_up.png"),
        QStringLiteral("icons/radiobutton_active.png"),
        QStringLiteral("icons/radiobutton_disabled.png"),
        QStringLiteral("icons/radiobutton_inactive.png"),
        QStringLiteral("icons/spinner.gif"),
        QStringLiteral("qss/light_style.qss"),
        QStringLiteral("qss/style.colors"),
        QStringLiteral("qss/style.qss"),
    };
    QCOMPARE(files, expected);
}

void tst_ResourceTree::textFileSizes_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("qss/style.qss") << 3072;
    QTest::newRow("qss/light_style.qss") << 566;
    QTest::newRow("qss/style.colors") << 129;
}

void tst_ResourceTree::textFileSizes()
{
    QFETCH(int, size);
    QCOMPARE(Bytes(QLatin1String(QTest::currentDataTag())).size(), size);
}

void tst_ResourceTree::darkSheetAloneIsStoredCompressed_data()
{
    QTest::addColumn<bool>("compressed");
    QDirIterator tree(Root, QDir::Files, QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        const QString name = tree.next().mid(Root.size());
        QTest::newRow(qPrintable(name)) << (name == QLatin1String("qss/style.qss"));
    }
}

void tst_ResourceTree::darkSheetAloneIsStoredCompressed()
{
    QFETCH(bool, compressed);
    const QResource resource(Root + QLatin1String(QTest::currentDataTag()));
    QVERIFY(resource.isValid());
    if (compressed) {
        QCOMPARE(resource.compressionAlgorithm(), QResource::ZlibCompression);
        QVERIFY(resource.size() < resource.uncompressedSize());
    } else {
        QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
        QCOMPARE(resource.size(), resource.uncompressedSize());
    }
}

void tst_ResourceTree::textFilesHaveCrLfLineEnds_data()
{
    QTest::addColumn<bool>("endsInLineEnd");
    QTest::newRow("qss/style.qss") << false;
    QTest::newRow("qss/light_style.qss") << true;
    QTest::newRow("qss/style.colors") << true;
}

void tst_ResourceTree::textFilesHaveCrLfLineEnds()
{
    QFETCH(bool, endsInLineEnd);
    const QByteArray text = Bytes(QLatin1String(QTest::currentDataTag()));
    const int lineEnds = text.count("\r\n");
    QVERIFY(lineEnds > 1);
    QCOMPARE(text.count('\n'), lineEnds);
    QCOMPARE(text.count('\r'), lineEnds);
    QCOMPARE(text.endsWith("\r\n"), endsInLineEnd);
}

void tst_ResourceTree::colorTableText()
{
    QCOMPARE(Bytes(QStringLiteral("qss/style.colors")),
             QByteArray("clone=#646464\r\n"
                        "jango=#333538\r\n"
                        "snoke=#1E2023\r\n"
                        "vader=#141518\r\n"
                        "rey=#CFCFCF\r\n"
                        "obi=#214B98\r\n"
                        "kylo=#B82115\r\n"
                        "light=#FFFFFF\r\n"
                        "dark=#000000\r\n"));
}

void tst_ResourceTree::darkSheetHasNoFurtherRule()
{
    QCOMPARE(SheetRules(QString::fromLatin1(Bytes(QStringLiteral("qss/style.qss")))).size(), 30);
}

void tst_ResourceTree::darkSheetRule_data()
{
    AddRuleRows(DarkSheet, static_cast<int>(std::size(DarkSheet)));
}

void tst_ResourceTree::darkSheetRule()
{
    CompareRule(QStringLiteral("qss/style.qss"));
}

void tst_ResourceTree::lightSheetHasNoFurtherRule()
{
    QCOMPARE(SheetRules(QString::fromLatin1(Bytes(QStringLiteral("qss/light_style.qss")))).size(),
             7);
}

void tst_ResourceTree::lightSheetRule_data()
{
    AddRuleRows(LightSheet, static_cast<int>(std::size(LightSheet)));
}

void tst_ResourceTree::lightSheetRule()
{
    CompareRule(QStringLiteral("qss/light_style.qss"));
}

void tst_ResourceTree::imagesOfTheSheetsExist()
{
    const QString sheet = QString::fromLatin1(Bytes(QStringLiteral("qss/style.qss")));
    int images = 0;
    const QString opening = QStringLiteral("url(");
    for (int at = sheet.indexOf(opening); at >= 0; at = sheet.indexOf(opening, at + 1)) {
        const int start = at + opening.size();
        const QString path = sheet.mid(start, sheet.indexOf(QLatin1Char(')'), start) - start);
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
        ++images;
    }
    QCOMPARE(images, 11);
}

void tst_ResourceTree::iconSize_data()
{
    QTest::addColumn<QSize>("size");
    for (const char *name :
         { "checkbox_active.png", "checkbox_inactive.png", "checkbox_disabled_active.png",
           "checkbox_disabled_inactive.png", "radiobutton_active.png", "radiobutton_inactive.png",
           "radiobutton_disabled.png" })
        QTest::newRow(name) << QSize(72, 72);
    QTest::newRow("chevron_down.png") << QSize(16, 10);
    QTest::newRow("chevron_up.png") << QSize(16, 10);
}

void tst_ResourceTree::iconSize()
{
    QFETCH(QSize, size);
    const QImage icon = Icon(QTest::currentDataTag());
    QCOMPARE(icon.size(), size);
    // Eight bits each of red, green, blue and alpha.
    QCOMPARE(icon.format(), QImage::Format_ARGB32);
}

void tst_ResourceTree::iconsAreDrawnOnTransparentGround_data()
{
    iconSize_data();
}

void tst_ResourceTree::iconsAreDrawnOnTransparentGround()
{
    const QImage icon = Icon(QTest::currentDataTag());
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(icon.pixelColor(icon.width() - 1, icon.height() - 1).alpha(), 0);
    QVERIFY(Prominence(icon, QColor(0x33, 0x35, 0x38)) > 0.01);
    QVERIFY(Prominence(icon, Qt::white) > 0.01);
}

void tst_ResourceTree::disabledIconsStandOutLess_data()
{
    QTest::addColumn<QByteArray>("disabled");
    QTest::newRow("checkbox_active.png") << QByteArray("checkbox_disabled_active.png");
    QTest::newRow("checkbox_inactive.png") << QByteArray("checkbox_disabled_inactive.png");
    QTest::newRow("radiobutton_active.png") << QByteArray("radiobutton_disabled.png");
    QTest::newRow("radiobutton_inactive.png") << QByteArray("radiobutton_disabled.png");
}

void tst_ResourceTree::disabledIconsStandOutLess()
{
    QFETCH(QByteArray, disabled);
    for (const QColor &ground : { QColor(0x33, 0x35, 0x38), QColor(Qt::white) }) {
        QVERIFY(Prominence(Icon(disabled.constData()), ground)
                < 0.8 * Prominence(Icon(QTest::currentDataTag()), ground));
    }
}

void tst_ResourceTree::chevronsPointDownAndUp()
{
    QVERIFY(Tip(Icon("chevron_down.png")) > 0.5);
    QVERIFY(Tip(Icon("chevron_up.png")) < -0.5);
}

void tst_ResourceTree::animationHasSevenFramesOfSeventyMilliseconds()
{
    QImageReader reader(Root + QStringLiteral("icons/spinner.gif"));
    QCOMPARE(reader.format(), QByteArray("gif"));
    QCOMPARE(reader.size(), QSize(40, 40));
    QVERIFY(reader.supportsAnimation());
    QCOMPARE(reader.imageCount(), 7);
    QCOMPARE(reader.loopCount(), -1);
    for (int frame = 0; frame < 7; ++frame) {
        const QImage image = reader.read();
        QCOMPARE(image.size(), QSize(40, 40));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(20, 20).alpha(), 0);
        QCOMPARE(reader.nextImageDelay(), 70);
    }
    QVERIFY(!reader.canRead());
}

void tst_ResourceTree::animationRunsAsAMovieForEver()
{
    QMovie movie(Root + QStringLiteral("icons/spinner.gif"));
    QVERIFY(movie.isValid());
    QCOMPARE(movie.frameCount(), 7);
    QCOMPARE(movie.loopCount(), -1);
    for (int frame = 0; frame < 7; ++frame) {
        QVERIFY(movie.jumpToFrame(frame));
        QCOMPARE(movie.nextFrameDelay(), 70);
    }
    QVERIFY(movie.jumpToNextFrame());
    QCOMPARE(movie.currentFrameNumber(), 0);
}

void tst_ResourceTree::animationTurnsByASeventhPerFrame()
{
    const QVector<QImage> frames = AnimationFrames();
    QCOMPARE(frames.size(), 7);
    for (int frame = 0; frame < 7; ++frame) {
        qreal turn = Heading(frames.at((frame + 1) % 7)) - Heading(frames.at(frame));
        if (turn < 0)
            turn += 360;
        QVERIFY2(qAbs(turn - 360.0 / 7) < 5, qPrintable(QString::number(turn)));
    }
}

int main(int argc, char **argv)
{
    return RunTest<tst_ResourceTree>(argc, argv);
}

#include "tst_ResourceTree.moc"
