#include "UI/Impl/qt/StyleSheetEdit.h"

#include <QtCore/QRegExp>

namespace {

const QString Border = QStringLiteral("border[ \t]*:[ \t]*[1-9a-zA-Z \t]*;");
const QString BorderStyle = QStringLiteral("border-style[ \t]*:[ \t]*[1-9a-zA-Z \t]*;");
const QString BorderSideStyle = QStringLiteral("border-[a-z]*-style[ \t]*:[ \t]*[1-9a-zA-Z \t]*;");
const QString BorderLeftWidth = QStringLiteral("border-left-width[ \t]*:[ \t]*[1-9a-zA-Z]*;");
const QString BorderTopWidth = QStringLiteral("border-top-width[ \t]*:[ \t]*[1-9a-zA-Z]*;");
const QString BorderRightWidth = QStringLiteral("border-right-width[ \t]*:[ \t]*[1-9a-zA-Z]*;");
const QString BorderBottomWidth = QStringLiteral("border-bottom-width[ \t]*:[ \t]*[1-9a-zA-Z]*;");
// A class without a repeat: it matches a value of one character. Intended.
const QString BorderColor = QStringLiteral("border-color[ \t]*:[ \t]*[1-9a-zA-Z];");
const QString BackgroundColor = QStringLiteral("background-color[ \t]*:[ \t#a-zA-Z1-9]*;");
// The backslashes are the expression's own.
const QString TextAlign = QStringLiteral("text-align[ \\t]*:[ \\ta-zA-Z]*;");
const QString FontWeight = QStringLiteral("font-weight[ \\t]*:[ \\ta-zA-Z]*;");

// There is no such file: Qt finds no picture and draws no arrow.
const QString NoMenuArrow = QStringLiteral("QPushButton::menu-indicator{image:url(none.jpg);}");

QString TextAlignDeclaration(CFxUIBaseView::TextAlignment alignment)
{
    switch (alignment) {
    case CFxUIBaseView::AlignLeft:
        return QStringLiteral("text-align:left;");
    case CFxUIBaseView::AlignRight:
        return QStringLiteral("text-align:right;");
    case CFxUIBaseView::AlignCenter:
        return QStringLiteral("text-align:center;");
    }
    return QString();
}

QString Number(float value)
{
    return QString::number(static_cast<double>(value), 'g', 6);
}

} // namespace

QString StyleSheetEdit::Replace(const QString &sheet, const QStringList &patterns,
                                const QString &declaration, Brace brace)
{
    QString text = sheet;
    for (const QString &pattern : patterns)
        text.replace(QRegExp(pattern, Qt::CaseSensitive), QString());
    const int position = text.lastIndexOf(QLatin1Char('}'));
    const int first = brace == Brace::Anywhere ? 0 : 1;
    return text.insert(position >= first ? position : text.size(), declaration);
}

QString StyleSheetEdit::WithBorderWidth(const QString &sheet, float width)
{
    const QString declaration = QStringLiteral("border-style:solid;border-width:%1px;")
                                    .arg(static_cast<double>(width), 0, 'g', -1, QLatin1Char(' '));
    return Replace(sheet,
                   { Border, BorderStyle, BorderLeftWidth, BorderTopWidth, BorderRightWidth,
                     BorderBottomWidth },
                   declaration, Brace::BehindFirst);
}

QString StyleSheetEdit::WithBorderWidths(const QString &sheet, float left, float top, float right,
                                         float bottom)
{
    const QString declaration = QStringLiteral("border-left-style:solid;border-top-style:solid;"
                                               "border-right-style:solid;border-bottom-style:solid;"
                                               "border-left-width:%1px;border-top-width:%2px;"
                                               "border-right-width:%3px;border-bottom-width:%4px;")
                                    .arg(Number(left), Number(top), Number(right), Number(bottom));
    return Replace(sheet,
                   { Border, BorderStyle, BorderSideStyle, BorderLeftWidth, BorderTopWidth,
                     BorderRightWidth, BorderBottomWidth },
                   declaration, Brace::BehindFirst);
}

QString StyleSheetEdit::WithBorderColor(const QString &sheet, const QColor &color)
{
    return Replace(sheet, { Border, BorderColor },
                   QStringLiteral("border-color: %1;").arg(color.name()), Brace::BehindFirst);
}

QString StyleSheetEdit::WithBackgroundColor(const QString &sheet, const QColor &color)
{
    return Replace(sheet, { BackgroundColor },
                   QStringLiteral("background-color: %1;").arg(color.name()), Brace::Anywhere);
}

QString StyleSheetEdit::WithTextAlignment(const QString &sheet,
                                          CFxUIBaseView::TextAlignment alignment)
{
    return Replace(sheet, { TextAlign }, TextAlignDeclaration(alignment), Brace::Anywhere);
}

QString StyleSheetEdit::WithBoldText(const QString &sheet, bool bold)
{
    return Replace(sheet, { FontWeight },
                   bold ? QStringLiteral("font-weight: bold;")
                        : QStringLiteral("font-weight: normal;"),
                   Brace::Anywhere);
}

QString StyleSheetEdit::WithMenuArrow(const QString &sheet, bool visible)
{
    if (!visible)
        return sheet + NoMenuArrow;
    QString text = sheet;
    return text.replace(NoMenuArrow, QString(), Qt::CaseSensitive);
}
