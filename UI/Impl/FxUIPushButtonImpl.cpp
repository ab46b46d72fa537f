#include "UI/Impl/FxUIPushButtonImpl.h"

CFxUIPushButtonImpl::CFxUIPushButtonImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_clicked(object)
{
}

CFxUIPushButtonImpl::~CFxUIPushButtonImpl()
{
    CutFrontend();
}

// True for every click, and not the check state. Intended.
void CFxUIPushButtonImpl::OnPressed()
{
    m_clicked.emit(true);
}

void CFxUIPushButtonImpl::setText(const QString &text)
{
    m_text = text;
    SetTextImpl(m_text);
}

QString CFxUIPushButtonImpl::text() const
{
    return m_text;
}

void CFxUIPushButtonImpl::setIcon(const QIcon &icon)
{
    m_icon = icon;
    SetIconImpl(m_icon);
}

void CFxUIPushButtonImpl::setResourceIcon(const QString &name)
{
    SetResourceIconImpl(name);
}

void CFxUIPushButtonImpl::setIconSize(const QSize &size)
{
    m_iconSize = size;
    SetIconSizeImpl(m_iconSize);
}

QSize CFxUIPushButtonImpl::iconSize() const
{
    return m_iconSize;
}

// The shown text changes with the next setText() or resizing, not now. Intended.
void CFxUIPushButtonImpl::setElideTextEnabled(bool enabled)
{
    m_elideText = enabled;
}

bool CFxUIPushButtonImpl::isElideTextEnabled() const
{
    return m_elideText;
}

CFxUISignal<void(bool)> &CFxUIPushButtonImpl::clicked()
{
    return m_clicked;
}

void CFxUIPushButtonImpl::setTextAlignment(CFxUIBaseView::TextAlignment alignment)
{
    SetTextAlignmentImpl(alignment);
}

void CFxUIPushButtonImpl::setBoldText(bool bold)
{
    SetBoldTextImpl(bold);
}

void CFxUIPushButtonImpl::setToolTip(const QString &toolTip)
{
    SetToolTipImpl(toolTip);
}

void CFxUIPushButtonImpl::setCheckable(bool checkable)
{
    SetCheckableImpl(checkable);
}

void CFxUIPushButtonImpl::setMenu(CFxUIMenu *menu)
{
    SetMenuImpl(menu);
}

void CFxUIPushButtonImpl::setMenuArrowVisible(bool visible)
{
    SetMenuArrowVisibleImpl(visible);
}
