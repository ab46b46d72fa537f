#include "UI/FxUIBaseView.h"

#include "support/TestMain.h"
#include "ViewProbe.h"

#include <QtTest/QTest>
#include <QtWidgets/QWidget>

namespace {

// A view whose widget carries the sheet that the controls begin with.
struct Styled {
    explicit Styled(const char *sheet = "QWidget { }")
    {
        view.Widget()->setStyleSheet(QString::fromLatin1(sheet));
    }

    QString Sheet() const { return view.Widget()->styleSheet(); }

    ViewProbe view;
};

QPalette WithBrush(QPalette::ColorRole role, const QColor &color)
{
    QPalette palette;
    palette.setBrush(role, color);
    return palette;
}

} // namespace

class tst_FxUIBaseViewStyle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void borderWidthEditsTheSheet();
    void borderWidthsEditTheSheetLeftTopRightBottom();
    void borderColorEditsTheSheet();
    void laterDeclarationStandsBehindTheEarlier();
    void cornerRadiusHasNoEffect();
    void stylingWritesNoField();
    void colorOutOfRangeGivesAnInvalidColor_data();
    void colorOutOfRangeGivesAnInvalidColor();
    void sheetWithoutBraceGetsTheDeclarationAtItsEnd();
    void braceAtTheStartCountsForTheBackgroundAlone();
    void declarationsReachTheScreen();

    void paletteIsStored();
    void baseGoesToTheBackground();
    void textGoesToThePaletteOfTheWidget();
    void alternateBaseGoesToTheBorder();
    void paletteAppliesBackgroundTextAndBorder();
    void paletteAppliesItsRolesInTheirOrder();
    void paletteWithoutTheThreeBrushesChangesNothing();
    void brushIsTakenFromTheCurrentGroup();
    void alphaOfAColorIsDropped();
    void paletteOfADisabledViewIsStoredAlone();
    void stylingWithoutHandleDoesNothing();
};

void tst_FxUIBaseViewStyle::borderWidthEditsTheSheet()
{
    Styled styled;
    styled.view.setBorderWidth(2.5f);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { border-style:solid;border-width:2.5px;}"));
}

void tst_FxUIBaseViewStyle::borderWidthsEditTheSheetLeftTopRightBottom()
{
    Styled styled;
    styled.view.setBorderWidth(1.0f, 2.0f, 3.0f, 4.0f);
    QCOMPARE(styled.Sheet(),
             QStringLiteral("QWidget { border-left-style:solid;border-top-style:solid;"
                            "border-right-style:solid;border-bottom-style:solid;"
                            "border-left-width:1px;border-top-width:2px;border-right-width:3px;"
                            "border-bottom-width:4px;}"));
}

void tst_FxUIBaseViewStyle::borderColorEditsTheSheet()
{
    Styled styled;
    styled.view.setBorderColor(255, 0, 10);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { border-color: #ff000a;}"));
}

void tst_FxUIBaseViewStyle::laterDeclarationStandsBehindTheEarlier()
{
    Styled styled;
    styled.view.setBorderColor(255, 0, 0);
    styled.view.setBorderColor(0, 0, 255);
    QCOMPARE(styled.Sheet(),
             QStringLiteral("QWidget { border-color: #ff0000;border-color: #0000ff;}"));
    styled.view.setBorderWidth(1.0f);
    styled.view.setBorderWidth(2.0f);
    QVERIFY(styled.Sheet().endsWith(
        QStringLiteral("border-width:1px;border-style:solid;border-width:2px;}")));
}

void tst_FxUIBaseViewStyle::cornerRadiusHasNoEffect()
{
    Styled styled;
    styled.view.setCornerRadius(5.0f);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { }"));
}

void tst_FxUIBaseViewStyle::stylingWritesNoField()
{
    Styled styled;
    styled.view.setBorderWidth(1.0f);
    styled.view.setBorderColor(1, 2, 3);
    styled.view.setCornerRadius(4.0f);
    QCOMPARE(styled.view.Impl()->m_palette, QPalette());
    QVERIFY(styled.view.Impl()->log.isEmpty());
}

void tst_FxUIBaseViewStyle::colorOutOfRangeGivesAnInvalidColor_data()
{
    QTest::addColumn<int>("red");
    QTest::newRow("above") << 256;
    QTest::newRow("below") << -1;
}

void tst_FxUIBaseViewStyle::colorOutOfRangeGivesAnInvalidColor()
{
    QFETCH(int, red);
    Styled styled;
    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    styled.view.setBorderColor(red, 20, 30);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { border-color: #000000;}"));
    QTest::ignoreMessage(QtWarningMsg, "QColor::setRgb: RGB parameters out of range");
    styled.view.Impl()->SetTextColorImpl(red, 20, 30);
    QVERIFY(!styled.view.Widget()->palette().color(QPalette::Text).isValid());
}

void tst_FxUIBaseViewStyle::sheetWithoutBraceGetsTheDeclarationAtItsEnd()
{
    Styled styled("color: red;");
    styled.view.setBorderWidth(1.0f);
    QCOMPARE(styled.Sheet(), QStringLiteral("color: red;border-style:solid;border-width:1px;"));
    Styled empty("");
    empty.view.setBorderColor(1, 2, 3);
    QCOMPARE(empty.Sheet(), QStringLiteral("border-color: #010203;"));
}

void tst_FxUIBaseViewStyle::braceAtTheStartCountsForTheBackgroundAlone()
{
    Styled background("}");
    background.view.Impl()->SetBackgroundColorImpl(1, 2, 3);
    QCOMPARE(background.Sheet(), QStringLiteral("background-color: #010203;}"));
    Styled border("}");
    border.view.setBorderWidth(1.0f);
    QCOMPARE(border.Sheet(), QStringLiteral("}border-style:solid;border-width:1px;"));
}

void tst_FxUIBaseViewStyle::declarationsReachTheScreen()
{
    Styled styled;
    styled.view.Widget()->setAttribute(Qt::WA_StyledBackground);
    styled.view.Widget()->resize(40, 40);
    QPalette palette;
    palette.setBrush(QPalette::Base, QColor(Qt::yellow));
    palette.setBrush(QPalette::AlternateBase, QColor(Qt::red));
    styled.view.setPalette(palette);
    styled.view.setBorderWidth(5.0f);
    styled.view.setBorderColor(0, 0, 255); // comes later than the palette's and wins
    const QImage picture = styled.view.Widget()->grab().toImage();
    QCOMPARE(picture.pixelColor(20, 20), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(2, 20), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(20, 37), QColor(Qt::blue));
}

void tst_FxUIBaseViewStyle::paletteIsStored()
{
    Styled styled;
    QCOMPARE(styled.view.palette(), QPalette());
    const QPalette palette = WithBrush(QPalette::Highlight, Qt::green);
    styled.view.setPalette(palette);
    QCOMPARE(styled.view.palette(), palette);
    QCOMPARE(&styled.view.palette(), &styled.view.Impl()->m_palette);
}

void tst_FxUIBaseViewStyle::baseGoesToTheBackground()
{
    Styled styled;
    styled.view.setPalette(WithBrush(QPalette::Base, QColor(1, 2, 3)));
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { background-color: #010203;}"));
}

void tst_FxUIBaseViewStyle::textGoesToThePaletteOfTheWidget()
{
    Styled styled;
    styled.view.setPalette(WithBrush(QPalette::Text, QColor(4, 5, 6)));
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { }"));
    const QPalette palette = styled.view.Widget()->palette();
    for (auto group : { QPalette::Active, QPalette::Disabled, QPalette::Inactive }) {
        QCOMPARE(palette.brush(group, QPalette::Text), QBrush(QColor(4, 5, 6)));
        QCOMPARE(palette.brush(group, QPalette::Text).style(), Qt::SolidPattern);
    }
}

void tst_FxUIBaseViewStyle::alternateBaseGoesToTheBorder()
{
    Styled styled;
    styled.view.setPalette(WithBrush(QPalette::AlternateBase, QColor(7, 8, 9)));
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { border-color: #070809;}"));
}

void tst_FxUIBaseViewStyle::paletteAppliesBackgroundTextAndBorder()
{
    Styled styled;
    QPalette palette = WithBrush(QPalette::AlternateBase, QColor(7, 8, 9));
    palette.setBrush(QPalette::Text, QColor(4, 5, 6));
    palette.setBrush(QPalette::Base, QColor(1, 2, 3));
    styled.view.setPalette(palette);
    QCOMPARE(styled.Sheet(),
             QStringLiteral("QWidget { background-color: #010203;border-color: #070809;}"));
    QCOMPARE(styled.view.Widget()->palette().color(QPalette::Text), QColor(4, 5, 6));
}

void tst_FxUIBaseViewStyle::paletteAppliesItsRolesInTheirOrder()
{
    class Recording : public QWidget {
    public:
        QString sheetWithTheText;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (palette().color(QPalette::Text) == QColor(4, 5, 6) && sheetWithTheText.isNull())
                sheetWithTheText = styleSheet();
            QWidget::changeEvent(event);
        }
    };

    ViewProbe view;
    auto *widget = new Recording;
    view.Take(widget);
    QPalette palette = WithBrush(QPalette::AlternateBase, QColor(7, 8, 9));
    palette.setBrush(QPalette::Text, QColor(4, 5, 6));
    palette.setBrush(QPalette::Base, QColor(1, 2, 3));
    view.setPalette(palette);
    // The text comes behind the background and in front of the border.
    QCOMPARE(widget->sheetWithTheText, QStringLiteral("background-color: #010203;"));
    QCOMPARE(widget->styleSheet(),
             QStringLiteral("background-color: #010203;border-color: #070809;"));
}

void tst_FxUIBaseViewStyle::paletteWithoutTheThreeBrushesChangesNothing()
{
    Styled styled;
    const QPalette before = styled.view.Widget()->palette();
    styled.view.setPalette(WithBrush(QPalette::Window, Qt::red));
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { }"));
    QCOMPARE(styled.view.Widget()->palette(), before);
}

void tst_FxUIBaseViewStyle::brushIsTakenFromTheCurrentGroup()
{
    Styled styled;
    QPalette palette;
    palette.setBrush(QPalette::Disabled, QPalette::Base, QColor(1, 1, 1));
    styled.view.setPalette(palette);
    // Qt keeps one mark for a role of all groups; the colour is that of the current one.
    const bool marked = palette.isBrushSet(QPalette::Current, QPalette::Base);
    QCOMPARE(styled.Sheet().contains(QStringLiteral("background-color")), marked);
    QVERIFY(!styled.Sheet().contains(QStringLiteral("#010101")));
    palette.setCurrentColorGroup(QPalette::Disabled);
    styled.view.setPalette(palette);
    QVERIFY(styled.Sheet().contains(QStringLiteral("background-color: #010101;")));
}

void tst_FxUIBaseViewStyle::alphaOfAColorIsDropped()
{
    Styled styled;
    styled.view.setPalette(WithBrush(QPalette::Text, QColor(4, 5, 6, 7)));
    QCOMPARE(styled.view.Widget()->palette().color(QPalette::Text).alpha(), 255);
}

void tst_FxUIBaseViewStyle::paletteOfADisabledViewIsStoredAlone()
{
    Styled styled;
    const QPalette before = styled.view.Widget()->palette();
    styled.view.setEnabled(false);
    QPalette palette = WithBrush(QPalette::Base, Qt::red);
    palette.setBrush(QPalette::Text, QColor(Qt::green));
    styled.view.setPalette(palette);
    QCOMPARE(styled.view.palette(), palette);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { }"));
    styled.view.setEnabled(true);
    QCOMPARE(styled.Sheet(), QStringLiteral("QWidget { }"));
    QCOMPARE(styled.view.Widget()->palette().color(QPalette::Text), before.color(QPalette::Text));
}

void tst_FxUIBaseViewStyle::stylingWithoutHandleDoesNothing()
{
    ViewProbe view;
    view.Take(nullptr);
    QPalette palette = WithBrush(QPalette::Base, Qt::red);
    palette.setBrush(QPalette::Text, QColor(Qt::green));
    palette.setBrush(QPalette::AlternateBase, QColor(Qt::blue));
    view.setPalette(palette);
    view.setBorderWidth(1.0f);
    view.setBorderWidth(1.0f, 2.0f, 3.0f, 4.0f);
    view.setBorderColor(1, 2, 3);
    QCOMPARE(view.palette(), palette);
}

int main(int argc, char **argv)
{
    return RunTest<tst_FxUIBaseViewStyle>(argc, argv);
}

#include "tst_FxUIBaseViewStyle.moc"
