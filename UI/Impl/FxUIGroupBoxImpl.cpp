#include "UI/Impl/FxUIGroupBoxImpl.h"

CFxUIGroupBoxImpl::CFxUIGroupBoxImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_onCollapsedStateChanged(object)
{
}

CFxUIGroupBoxImpl::~CFxUIGroupBoxImpl() = default;

void CFxUIGroupBoxImpl::setTitle(const QString &title)
{
    m_title = title;
    SetTitleImpl(m_title);
}

QString CFxUIGroupBoxImpl::title() const
{
    return m_title;
}

void CFxUIGroupBoxImpl::setContentsMargins(int left, int top, int right, int bottom)
{
    SetContentsMarginsImpl(left, top, right, bottom);
}

void CFxUIGroupBoxImpl::setSpacing(int spacing)
{
    SetSpacingImpl(spacing);
}

void CFxUIGroupBoxImpl::setCollapsed(bool collapsed)
{
    if (collapsed == m_collapsed)
        return;
    SetCollapsedImpl(collapsed);
    OnCollapsedStateChanged(collapsed);
}

bool CFxUIGroupBoxImpl::isCollapsed() const
{
    return m_collapsed;
}

CFxUISignal<void(bool)> &CFxUIGroupBoxImpl::onCollapsedStateChanged()
{
    return m_onCollapsedStateChanged;
}

void CFxUIGroupBoxImpl::OnCollapsedStateChanged(bool collapsed)
{
    if (auto *parent = dynamic_cast<CFxUIBaseView *>(owner->parent()))
        parent->update();
    if (collapsed == m_collapsed)
        return;
    m_collapsed = collapsed;
    m_onCollapsedStateChanged.emit(collapsed);
}
