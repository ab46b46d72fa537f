#pragma once

#include "UI/FxUIBaseView.h"

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QColor>

/// Edits of a widget's style sheet as text: declarations of the same kind are removed by regular
/// expression, and the new one is spliced in front of the last closing brace.
///
/// The expressions leave some declarations standing (no class holds the digit 0 or the point, and
/// "border-width" matches nothing). That is settled: the declaration that comes later wins.
namespace StyleSheetEdit {

/// How the text is searched for the brace that a declaration goes in front of.
enum class Brace {
    BehindFirst, ///< counts from index 1 on; for none the declaration goes to the end
    Anywhere ///< counts from index 0 on; for none the declaration goes to the end
};

/// Removes all matches of each pattern, in their order, and inserts the declaration.
QString Replace(const QString &sheet, const QStringList &patterns, const QString &declaration,
                Brace brace);

QString WithBorderWidth(const QString &sheet, float width);
QString WithBorderWidths(const QString &sheet, float left, float top, float right, float bottom);
QString WithBorderColor(const QString &sheet, const QColor &color);
QString WithBackgroundColor(const QString &sheet, const QColor &color);

/// An alignment that has no name gives no declaration; an earlier one goes all the same.
QString WithTextAlignment(const QString &sheet, CFxUIBaseView::TextAlignment alignment);
QString WithBoldText(const QString &sheet, bool bold);

/// Without the arrow the sheet ends in a rule that takes it away, added whether it is there already
/// or not; with the arrow all of these rules go.
QString WithMenuArrow(const QString &sheet, bool visible);

} // namespace StyleSheetEdit
