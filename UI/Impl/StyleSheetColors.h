#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

/// Colour names in the text of a style sheet.
namespace StyleSheetColors {

/// Returns the names and colours of \a table, one "name=colour" a line.
///
/// Lines end at line feeds; a carriage return in front of one belongs to the colour. A line without
/// exactly one "=" is skipped. Of a name that comes twice the last colour stays.
QMap<QString, QString> Parse(const QString &table);

/// Returns \a sheet with every occurrence of each name replaced by its colour, also inside longer
/// words. Names are taken in ascending order, and a later one is also replaced in the colours that
/// earlier ones brought in.
QString Replace(const QString &sheet, const QMap<QString, QString> &colors);

} // namespace StyleSheetColors
