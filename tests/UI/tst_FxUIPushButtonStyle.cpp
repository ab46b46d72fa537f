#include "support/TestMain.h"
#include "UI/FxUIMenu.h"
#include "UI/FxUIPushButton.h"

#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

namespace {

QPushButton *QtButton(const CFxUIPushButton &button)
{
    return qobject_cast<QPushButton *>(button.getHandle());
}

QString Sheet(const CFxUIPushButton &button)
{
    return QtButton(button)->styleSheet();
}

CFxUIBaseView::TextAlignment Alignment(int number)
{
    return static_cast<CFxUIBaseView::TextAlignment>(number);
}

QImage Picture(const CFxUIPushButton &button)
{
    QPushButton *widget = QtButton(button);
    widget->resize(200, 30);
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The mean column of what a button with text draws beyond one without.
double TextColumn(CFxUIPushButton &button)
{
    button.setText(QString());
    const QImage empty = Picture(button);
    button.setText(QStringLiteral("WW"));
    const QImage full = Picture(button);
    double sum = 0;
    int count = 0;
    for (int y = 0; y < full.height(); ++y) {
        for (int x = 0; x < full.width(); ++x) {
            if (full.pixel(x, y) != empty.pixel(x, y)) {
                sum += x;
                ++count;
            }
        }
    }
    return count ? sum / count : -1;
}

const char *const NoArrow = "QPushButton::menu-indicator{image:url(none.jpg);}";

} // namespace

class tst_FxUIPushButtonStyle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void alignmentGoesIntoTheSheet_data();
    void alignmentGoesIntoTheSheet();
    void secondAlignmentReplacesTheFirst();
    void alignmentOutsideTheEnumerationRemovesTheOldOne();
    void alignmentMovesTheText();
    void weightGoesIntoTheSheet();
    void notBoldWritesNormalInsteadOfRemoving();
    void weightChangesTheFontThatIsDrawn();
    void declarationIsReplaced_data();
    void declarationIsReplaced();
    void hiddenArrowAppendsItsRuleEachTime();
    void shownArrowRemovesEveryRule();
    void shownArrowWithoutTheRuleChangesNothing();
    void hiddenArrowIsNotDrawn();
    void declarationBehindAHiddenArrowGoesIntoItsRule_data();
    void declarationBehindAHiddenArrowGoesIntoItsRule();
    void ruleThatWasWrittenIntoIsNotRemovedAnyMore();
    void bordersAndWeightShareTheRule();
};

void tst_FxUIPushButtonStyle::alignmentGoesIntoTheSheet_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("left") << 0 << "QPushButton { text-align:left;}";
    QTest::newRow("right") << 1 << "QPushButton { text-align:right;}";
    QTest::newRow("centre") << 2 << "QPushButton { text-align:center;}";
    QTest::newRow("3 is no alignment") << 3 << "QPushButton { }";
    QTest::newRow("-1 is no alignment") << -1 << "QPushButton { }";
}

void tst_FxUIPushButtonStyle::alignmentGoesIntoTheSheet()
{
    QFETCH(int, alignment);
    QFETCH(QString, sheet);
    CFxUIPushButton button;
    button.setTextAlignment(Alignment(alignment));
    QCOMPARE(Sheet(button), sheet);
}

void tst_FxUIPushButtonStyle::secondAlignmentReplacesTheFirst()
{
    CFxUIPushButton button;
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    button.setTextAlignment(CFxUIBaseView::AlignRight);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { text-align:right;}"));
}

void tst_FxUIPushButtonStyle::alignmentOutsideTheEnumerationRemovesTheOldOne()
{
    CFxUIPushButton button;
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    button.setTextAlignment(Alignment(3));
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { }"));
}

void tst_FxUIPushButtonStyle::alignmentMovesTheText()
{
    CFxUIPushButton button;
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    const double left = TextColumn(button);
    button.setTextAlignment(CFxUIBaseView::AlignCenter);
    const double centre = TextColumn(button);
    button.setTextAlignment(CFxUIBaseView::AlignRight);
    const double right = TextColumn(button);
    QVERIFY2(left > 0 && left < 50, qPrintable(QString::number(left)));
    QVERIFY2(centre > 90 && centre < 110, qPrintable(QString::number(centre)));
    QVERIFY2(right > 150, qPrintable(QString::number(right)));
}

void tst_FxUIPushButtonStyle::weightGoesIntoTheSheet()
{
    CFxUIPushButton button;
    button.setBoldText(true);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { font-weight: bold;}"));
    button.setBoldText(true);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { font-weight: bold;}"));
}

void tst_FxUIPushButtonStyle::notBoldWritesNormalInsteadOfRemoving()
{
    CFxUIPushButton button;
    button.setBoldText(false);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { font-weight: normal;}"));
    button.setBoldText(true);
    button.setBoldText(false);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { font-weight: normal;}"));
}

void tst_FxUIPushButtonStyle::weightChangesTheFontThatIsDrawn()
{
    CFxUIPushButton button;
    button.setText(QStringLiteral("text"));
    button.setBoldText(false);
    const QImage normal = Picture(button);
    button.setBoldText(true);
    QVERIFY(QtButton(button)->font().bold());
    QVERIFY(Picture(button) != normal);
}

void tst_FxUIPushButtonStyle::declarationIsReplaced_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<bool>("alignment");
    QTest::addColumn<QString>("after");
    QTest::newRow("blanks and tabs belong to it")
        << "QPushButton { text-align \t: \tleft ;}" << true << "QPushButton { text-align:right;}";
    QTest::newRow("capitals in the value belong to it")
        << "QPushButton { text-align:LEFT;}" << true << "QPushButton { text-align:right;}";
    QTest::newRow("capitals in the name don't")
        << "QPushButton { TEXT-ALIGN:left;}" << true
        << "QPushButton { TEXT-ALIGN:left;text-align:right;}";
    QTest::newRow("every one goes") << "A { text-align:left;} B { text-align:center;}" << true
                                    << "A { } B { text-align:right;}";
    QTest::newRow("an empty value goes")
        << "QPushButton { text-align:;}" << true << "QPushButton { text-align:right;}";
    QTest::newRow("a hyphen keeps it") << "QPushButton { text-align:-qt-left;}" << true
                                       << "QPushButton { text-align:-qt-left;text-align:right;}";
    QTest::newRow("a line feed keeps it") << "QPushButton { text-align:\nleft;}" << true
                                          << "QPushButton { text-align:\nleft;text-align:right;}";
    QTest::newRow("a digit keeps it") << "QPushButton { font-weight:600;}" << false
                                      << "QPushButton { font-weight:600;font-weight: bold;}";
    QTest::newRow("without a semicolon it stays")
        << "QPushButton { font-weight:normal }" << false
        << "QPushButton { font-weight:normal font-weight: bold;}";
    QTest::newRow("in front of the last brace")
        << "A { } B { color: red; } " << false << "A { } B { color: red; font-weight: bold;} ";
    QTest::newRow("a brace at the beginning counts") << "}" << true << "text-align:right;}";
    QTest::newRow("without a brace at the end")
        << "color: red;" << true << "color: red;text-align:right;";
    QTest::newRow("an empty sheet") << "" << false << "font-weight: bold;";
}

// What the edits leave of a sheet that a caller has set on the widget.
void tst_FxUIPushButtonStyle::declarationIsReplaced()
{
    QFETCH(QString, before);
    QFETCH(bool, alignment);
    QFETCH(QString, after);
    CFxUIPushButton button;
    QtButton(button)->setStyleSheet(before);
    if (alignment)
        button.setTextAlignment(CFxUIBaseView::AlignRight);
    else
        button.setBoldText(true);
    QCOMPARE(Sheet(button), after);
}

void tst_FxUIPushButtonStyle::hiddenArrowAppendsItsRuleEachTime()
{
    CFxUIPushButton button;
    button.setMenuArrowVisible(false);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { }") + QLatin1String(NoArrow));
    button.setMenuArrowVisible(false);
    QCOMPARE(Sheet(button),
             QStringLiteral("QPushButton { }") + QLatin1String(NoArrow) + QLatin1String(NoArrow));
}

void tst_FxUIPushButtonStyle::shownArrowRemovesEveryRule()
{
    CFxUIPushButton button;
    button.setMenuArrowVisible(false);
    button.setMenuArrowVisible(false);
    button.setMenuArrowVisible(true);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { }"));
}

void tst_FxUIPushButtonStyle::shownArrowWithoutTheRuleChangesNothing()
{
    CFxUIPushButton button;
    button.setMenuArrowVisible(true);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { }"));
    const QString lowerCase = QString::fromLatin1(NoArrow).toLower();
    QtButton(button)->setStyleSheet(lowerCase);
    button.setMenuArrowVisible(true);
    QCOMPARE(Sheet(button), lowerCase);
}

void tst_FxUIPushButtonStyle::hiddenArrowIsNotDrawn()
{
    CFxUIPushButton button;
    CFxUIMenu menu;
    button.setText(QStringLiteral("text"));
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    const QImage bare = Picture(button);
    button.setMenu(&menu);
    const QImage withArrow = Picture(button);
    button.setMenuArrowVisible(false);
    const QImage withoutArrow = Picture(button);
    QVERIFY(withArrow != withoutArrow);
    const QRect rightEnd(150, 0, 50, 30);
    QVERIFY(withArrow.copy(rightEnd) != bare.copy(rightEnd));
    QCOMPARE(withoutArrow.copy(rightEnd), bare.copy(rightEnd));
}

void tst_FxUIPushButtonStyle::declarationBehindAHiddenArrowGoesIntoItsRule_data()
{
    QTest::addColumn<bool>("alignment");
    QTest::addColumn<QString>("rule");
    QTest::newRow("alignment") << true << "{image:url(none.jpg);text-align:left;}";
    QTest::newRow("weight") << false << "{image:url(none.jpg);font-weight: bold;}";
}

void tst_FxUIPushButtonStyle::declarationBehindAHiddenArrowGoesIntoItsRule()
{
    QFETCH(bool, alignment);
    QFETCH(QString, rule);
    CFxUIPushButton button;
    button.setMenuArrowVisible(false);
    if (alignment)
        button.setTextAlignment(CFxUIBaseView::AlignLeft);
    else
        button.setBoldText(true);
    QCOMPARE(Sheet(button), QStringLiteral("QPushButton { }QPushButton::menu-indicator") + rule);
}

void tst_FxUIPushButtonStyle::ruleThatWasWrittenIntoIsNotRemovedAnyMore()
{
    CFxUIPushButton button;
    button.setMenuArrowVisible(false);
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    const QString sheet = Sheet(button);
    button.setMenuArrowVisible(true);
    QCOMPARE(Sheet(button), sheet);
}

void tst_FxUIPushButtonStyle::bordersAndWeightShareTheRule()
{
    CFxUIPushButton button;
    button.setBorderColor(255, 0, 0);
    button.setBoldText(true);
    button.setTextAlignment(CFxUIBaseView::AlignLeft);
    button.setBorderColor(0, 0, 255);
    QCOMPARE(Sheet(button),
             QStringLiteral("QPushButton { border-color: #ff0000;font-weight: bold;text-align:left;"
                            "border-color: #0000ff;}"));
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIPushButtonStyle>(argc, argv);
}

#include "tst_FxUIPushButtonStyle.moc"
