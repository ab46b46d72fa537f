#include "UI/Impl/StyleSheetColors.h"

#include <QtCore/QStringList>

QMap<QString, QString> StyleSheetColors::Parse(const QString &table)
{
    QMap<QString, QString> colors;
    const QStringList lines = table.split(QLatin1Char('\n'), Qt::KeepEmptyParts, Qt::CaseSensitive);
    for (const QString &line : lines) {
        const QStringList parts =
            line.split(QLatin1Char('='), Qt::KeepEmptyParts, Qt::CaseSensitive);
        if (parts.size() == 2)
            colors.insert(parts.at(0), parts.at(1));
    }
    return colors;
}

QString StyleSheetColors::Replace(const QString &sheet, const QMap<QString, QString> &colors)
{
    QString text = sheet;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        text.replace(color.key(), color.value(), Qt::CaseSensitive);
    return text;
}
