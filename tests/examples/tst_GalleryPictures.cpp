#include "PictureComparison.h"
#include "ProgramEnvironment.h"
#include "support/TestMain.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtGui/QFontInfo>
#include <QtTest/QTest>

// Compares each panel of the gallery, in both looks, and the host's window with the kept pictures.
class tst_GalleryPictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void comparisonCountsAndMarksThePixelsThatDiffer();
    void comparisonSeesADifferentSize();
    void looksAsKept_data();
    void looksAsKept();

private:
    const QDir m_kept { QStringLiteral(KEPT_PICTURES) };
    const QDir m_made { QStringLiteral(MADE_PICTURES) };
};

void tst_GalleryPictures::initTestCase()
{
    const QString family = QFontInfo(QApplication::font()).family();
    QVERIFY2(family == QLatin1String("DejaVu Sans"), "the font DejaVu Sans isn't installed");
    QVERIFY(QDir(m_made.path()).removeRecursively());
    QProcess gallery;
    gallery.setProcessEnvironment(ProgramEnvironment());
    gallery.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    gallery.start(QStringLiteral(GALLERY), { QStringLiteral("--screenshots"), m_made.path() });
    QVERIFY2(gallery.waitForFinished(100000), qPrintable(gallery.errorString()));
    QCOMPARE(gallery.exitStatus(), QProcess::NormalExit);
    QCOMPARE(gallery.exitCode(), 0);
}

void tst_GalleryPictures::comparisonCountsAndMarksThePixelsThatDiffer()
{
    QImage kept(8, 4, QImage::Format_RGB32);
    kept.fill(Qt::white);
    QImage made = kept;
    QCOMPARE(ComparePictures(kept, made).text, QString());
    made.setPixel(3, 1, qRgb(255, 255, 254));
    made.setPixel(7, 3, qRgb(0, 0, 0));
    const PictureDifference difference = ComparePictures(kept, made);
    QCOMPARE(difference.text, QStringLiteral("2 pixels differ"));
    QCOMPARE(difference.image.pixel(3, 1), qRgb(255, 0, 0));
    QCOMPARE(difference.image.pixel(7, 3), qRgb(255, 0, 0));
    QVERIFY(difference.image.pixel(0, 0) != qRgb(255, 0, 0));
}

void tst_GalleryPictures::comparisonSeesADifferentSize()
{
    const QImage kept(8, 4, QImage::Format_RGB32);
    const QImage made(8, 5, QImage::Format_RGB32);
    const PictureDifference difference = ComparePictures(kept, made);
    QCOMPARE(difference.text, QStringLiteral("the size was 8x4 and is 8x5"));
    QVERIFY(difference.image.isNull());
}

void tst_GalleryPictures::looksAsKept_data()
{
    QTest::addColumn<QString>("file");
    QStringList files = m_kept.entryList({ QStringLiteral("*.png") }, QDir::Files);
    files += m_made.entryList({ QStringLiteral("*.png") }, QDir::Files);
    files.removeDuplicates();
    files.sort();
    QVERIFY(!files.isEmpty());
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << file;
}

void tst_GalleryPictures::looksAsKept()
{
    QFETCH(QString, file);
    const QImage kept(m_kept.filePath(file));
    const QImage made(m_made.filePath(file));
    QVERIFY2(!made.isNull(), "there is a kept picture, but the gallery makes none");
    const QString look = QStringLiteral("look at %1 and run tests/pictures/accept if it is right")
                             .arg(m_made.filePath(file));
    QVERIFY2(!kept.isNull(), qPrintable(QStringLiteral("no kept picture: ") + look));

    const PictureDifference difference = ComparePictures(kept, made);
    if (difference.text.isEmpty())
        return;
    QString text = difference.text + QStringLiteral(": ") + look;
    const QString marked = m_made.filePath(QStringLiteral("difference-") + file);
    if (difference.image.save(marked))
        text += QStringLiteral(" (%1 marks what differs)").arg(marked);
    QFAIL(qPrintable(text));
}

int main(int argc, char **argv)
{
    return RunTest<tst_GalleryPictures>(argc, argv);
}

#include "tst_GalleryPictures.moc"
