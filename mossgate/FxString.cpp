#include "FxString.h"

CFxString::CFxString(const QString &text)
    : m_text(text)
{
}

CFxString::~CFxString() = default;

// The element around the text does two things that escaping alone can't: it makes every text look
// like HTML to readers that decide by the text itself (Qt::mightBeRichText), and it keeps blanks,
// tabs and line breaks as they are. HTML knows no "\r\n", which would show as two line breaks.
void CFxString::EncodeHTML()
{
    if (m_text.isEmpty())
        return;
    const QString text = QString(m_text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
    m_text = QLatin1String("<span style=\"white-space:pre-wrap\">") + text.toHtmlEscaped()
        + QLatin1String("</span>");
}

CFxString::operator const QString &() const
{
    return m_text;
}
