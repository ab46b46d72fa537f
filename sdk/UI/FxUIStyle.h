#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QString>

#include <memory>

/// The library's dark style sheet with its colour names replaced by colours.
///
/// A service for the host, which applies the text to what it wishes (QApplication::setStyleSheet,
/// QWidget::setStyleSheet). No view of the library takes it by itself.
class COMMONUI_EXPORT CFxUIStyle {
public:
    /// Calls Load().
    CFxUIStyle();
    CFxUIStyle(const CFxUIStyle &) = delete;
    CFxUIStyle &operator=(const CFxUIStyle &) = delete;

    /// Reads the colour table `:/commonui/resources/qss/style.colors`, then the sheet
    /// `:/commonui/resources/qss/style.qss`, and replaces each name of the table in the sheet by
    /// its colour, in the order of the names.
    ///
    /// A line of the table is a name, "=" and a colour; lines with more or fewer "=" are skipped,
    /// and the last line of a name counts. A name is replaced wherever its letters stand, also
    /// inside a longer word or a selector. If a file can't be opened, the text stays as it was.
    void Load();

    /// Returns the finished sheet. Empty if a file couldn't be opened. Each colour is followed by
    /// the carriage return of its line in the table; to Qt's style-sheet parser that is white
    /// space.
    QString styleSheet() const { return m_styleSheet; }

private:
    QString m_styleSheet;
};

/// The instance that GetStyle() gives out; null before its first call.
COMMONUI_EXPORT extern std::shared_ptr<CFxUIStyle> g_pStyle;

/// Returns the one shared instance, made at the first call and never loaded again. GUI thread only.
COMMONUI_EXPORT std::shared_ptr<CFxUIStyle> GetStyle();
