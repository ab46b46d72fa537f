#include "UI/Impl/FxUILabelImpl.h"

CFxUILabelImpl::CFxUILabelImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUILabelImpl::~CFxUILabelImpl() = default;

QString CFxUILabelImpl::text() const
{
    return m_text;
}

void CFxUILabelImpl::setText(const QString &text)
{
    m_text = text;
    SetTextImpl(m_text);
}

void CFxUILabelImpl::clear()
{
    setIcon(QIcon());
    setPixmap(QPixmap());
    setText(QString());
}

void CFxUILabelImpl::setIcon(const QIcon &icon)
{
    m_pixmap = QPixmap();
    m_icon = icon;
    SetIconImpl(m_icon);
}

void CFxUILabelImpl::setPixmap(const QPixmap &pixmap)
{
    m_icon = QIcon();
    m_pixmap = pixmap;
    SetPixmapImpl(m_pixmap);
}

void CFxUILabelImpl::setBoldText(bool bold)
{
    SetBoldTextImpl(bold);
}

void CFxUILabelImpl::setFontSize(int pixels)
{
    m_fontSize = pixels;
    SetFontSizeImpl(pixels);
}

bool CFxUILabelImpl::wordWrap() const
{
    return m_wordWrap;
}

void CFxUILabelImpl::setWordWrap(bool wrap)
{
    m_wordWrap = wrap;
    SetWordWrapImpl(wrap);
}

void CFxUILabelImpl::setToolTip(const QString &toolTip)
{
    m_toolTip = toolTip;
    SetToolTipImpl(m_toolTip);
}

void CFxUILabelImpl::setTextAlignment(CFxUIBaseView::TextAlignment alignment)
{
    SetTextAlignmentImpl(alignment);
}
