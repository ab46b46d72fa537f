#pragma once

#include <QtCore/QString>

/// The host's string. The stand-in holds a QString.
class Q_DECL_EXPORT CFxString {
public:
    CFxString(const QString &text);
    ~CFxString();

    /// Replaces the text by a form that shows, as HTML, exactly the former characters: markup shows
    /// as characters, and blanks, tabs and line breaks stay. An empty text stays empty.
    void EncodeHTML();

    /// The current text; stays valid while the object lives and isn't changed.
    operator const QString &() const;

private:
    QString m_text;
};
