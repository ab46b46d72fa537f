#include "FxString.h"

CFxString::CFxString(const QString &text)
    : m_text(text)
{
}

CFxString::~CFxString() = default;

void CFxString::EncodeHTML()
{
    m_text = m_text.toHtmlEscaped();
}

CFxString::operator const QString &() const
{
    return m_text;
}
