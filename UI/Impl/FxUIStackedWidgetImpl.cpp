#include "UI/Impl/FxUIStackedWidgetImpl.h"

#include <algorithm>

CFxUIStackedWidgetImpl::CFxUIStackedWidgetImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
    , m_currentChanged(object)
    , m_tabCloseRequested(object)
    , m_tabBarClicked(object)
    , m_tabBarDoubleClicked(object)
{
}

CFxUIStackedWidgetImpl::~CFxUIStackedWidgetImpl() = default;

int CFxUIStackedWidgetImpl::addTab(CFxUIBaseView *view, const QString &title)
{
    m_views.append(view);
    m_titles.append(title);
    return AddTabImpl(view, title);
}

// The number of pages for a view that isn't there, not -1. Intended.
int CFxUIStackedWidgetImpl::indexOf(CFxUIBaseView *view) const
{
    const auto found = std::find(m_views.cbegin(), m_views.cend(), view);
    return static_cast<int>(found - m_views.cbegin());
}

void CFxUIStackedWidgetImpl::setTabText(int index, const QString &text)
{
    if (!IsPage(index))
        return;
    m_titles[index] = text;
    SetTabTextImpl(index, text);
}

int CFxUIStackedWidgetImpl::currentIndex() const
{
    return m_currentIndex;
}

void CFxUIStackedWidgetImpl::setCurrentIndex(int index)
{
    if (!IsPage(index))
        return;
    SetCurrentIndexImpl(index); // before the comparison: a user may have turned the page since
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_currentChanged.emit(index);
}

CFxUISignal<void(int)> &CFxUIStackedWidgetImpl::currentChanged()
{
    return m_currentChanged;
}

CFxUISignal<void(int)> &CFxUIStackedWidgetImpl::tabCloseRequested()
{
    return m_tabCloseRequested;
}

CFxUISignal<void(int)> &CFxUIStackedWidgetImpl::tabBarClicked()
{
    return m_tabBarClicked;
}

CFxUISignal<void(int)> &CFxUIStackedWidgetImpl::tabBarDoubleClicked()
{
    return m_tabBarDoubleClicked;
}

void CFxUIStackedWidgetImpl::OnPageActivated(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_currentChanged.emit(index);
}

void CFxUIStackedWidgetImpl::OnTabClickedActivated(int index)
{
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    m_tabBarClicked.emit(m_currentIndex);
    m_currentChanged.emit(m_currentIndex); // read anew: a slot may have changed it
}

bool CFxUIStackedWidgetImpl::IsPage(int index) const
{
    return index >= 0 && index < m_titles.size();
}
