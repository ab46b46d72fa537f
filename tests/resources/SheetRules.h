#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

/// One rule of a style sheet: its selector and its declarations, in order, each from its first
/// letter to its semicolon.
struct SheetRule {
    QString selector;
    QStringList declarations;
};

/// Returns the rules of \a sheet in their order. Knows no comments and no nesting.
inline QVector<SheetRule> SheetRules(const QString &sheet)
{
    QVector<SheetRule> rules;
    const QStringList blocks = sheet.split(QLatin1Char('}'), Qt::SkipEmptyParts);
    for (const QString &block : blocks) {
        if (block.trimmed().isEmpty())
            continue;
        const QStringList parts = block.split(QLatin1Char('{'));
        SheetRule rule;
        rule.selector = parts.value(0).trimmed();
        const QRegularExpression declaration(QStringLiteral("\\S[^;]*;?"));
        auto matches = declaration.globalMatch(parts.value(1));
        while (matches.hasNext())
            rule.declarations.append(matches.next().captured());
        rules.append(rule);
    }
    return rules;
}
