#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtGui/QColor>

namespace {

int PolicyWidth(CFxUIBaseView::UIWidthSizePolicy policy)
{
    switch (static_cast<int>(policy)) {
    case CFxUIBaseView::Small:
        return 69;
    case CFxUIBaseView::Medium:
        return 158;
    case CFxUIBaseView::Large:
        return 248;
    case CFxUIBaseView::ExtraLarge:
        return 336;
    default:
        return 39;
    }
}

bool HasColor(const QPalette &palette, QPalette::ColorRole role)
{
    return palette.isBrushSet(QPalette::Current, role);
}

} // namespace

CFxUIBaseViewImpl::CFxUIBaseViewImpl(CFxUIObject *object)
    : CFxUIObjectImpl(object)
    , m_aboutToPassEventToParent(object)
    , m_aboutToShow(object)
    , m_hoverEnter(object)
    , m_hoverLeave(object)
{
}

CFxUIBaseViewImpl::~CFxUIBaseViewImpl() = default;

void CFxUIBaseViewImpl::AddViewImpl(CFxUIBaseView * /*view*/, float /*weight*/) { }

void CFxUIBaseViewImpl::InsertViewImpl(CFxUIBaseView * /*view*/, int /*index*/, float /*weight*/) {
}

void CFxUIBaseViewImpl::RemoveViewImpl(CFxUIBaseView * /*view*/) { }

void CFxUIBaseViewImpl::setBusyStateImpl(bool busy)
{
    m_busy = busy;
}

void CFxUIBaseViewImpl::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    SetEnabledImpl(m_enabled);
}

void CFxUIBaseViewImpl::OnSizeChanged(int width, int height)
{
    m_width = width;
    m_height = height;
}

bool CFxUIBaseViewImpl::isEnabled() const
{
    return m_enabled;
}

bool CFxUIBaseViewImpl::hasFocus() const
{
    return m_hasFocus;
}

bool CFxUIBaseViewImpl::isVisible() const
{
    return m_visible;
}

void CFxUIBaseViewImpl::setVisible(bool visible)
{
    m_visible = visible;
    if (!visible) {
        SetVisibleImpl(false);
        return;
    }
    m_aboutToShow.emit();
    SetVisibleImpl(m_visible); // read anew: a slot may have cancelled the showing
}

void CFxUIBaseViewImpl::setPalette(const QPalette &palette)
{
    m_palette = palette;
    if (!m_enabled)
        return; // stored, and not applied later either
    int red = 0;
    int green = 0;
    int blue = 0;
    if (HasColor(palette, QPalette::Base)) {
        palette.color(QPalette::Base).getRgb(&red, &green, &blue);
        SetBackgroundColorImpl(red, green, blue);
    }
    if (HasColor(palette, QPalette::Text)) {
        palette.color(QPalette::Text).getRgb(&red, &green, &blue);
        SetTextColorImpl(red, green, blue);
    }
    if (HasColor(palette, QPalette::AlternateBase)) {
        palette.color(QPalette::AlternateBase).getRgb(&red, &green, &blue);
        SetBorderColorImpl(red, green, blue);
    }
}

const QPalette &CFxUIBaseViewImpl::palette() const
{
    return m_palette;
}

int CFxUIBaseViewImpl::width() const
{
    return m_width;
}

int CFxUIBaseViewImpl::height() const
{
    return m_height;
}

void CFxUIBaseViewImpl::setWidth(int width)
{
    m_width = width;
}

void CFxUIBaseViewImpl::setHeight(int height)
{
    m_height = height;
}

void CFxUIBaseViewImpl::setPreferableSize(int width, int height)
{
    m_width = width;
    m_height = height;
    m_preferredWidth = width;
    m_preferredHeight = height;
    SetPreferrableSizeImpl(width, height);
}

void CFxUIBaseViewImpl::setWidthPolicy(CFxUIBaseView::UIWidthSizePolicy policy)
{
    setPreferableSize(PolicyWidth(policy), -1);
}

bool CFxUIBaseViewImpl::isEventAccepted() const
{
    return m_eventAccepted;
}

void CFxUIBaseViewImpl::setEventAccepted(bool accepted)
{
    m_eventAccepted = accepted;
}

CFxUISignal<void()> &CFxUIBaseViewImpl::aboutToPassEventToParent()
{
    return m_aboutToPassEventToParent;
}

CFxUISignal<void()> &CFxUIBaseViewImpl::aboutToShow()
{
    return m_aboutToShow;
}

CFxUISignal<void()> &CFxUIBaseViewImpl::hoverEnter()
{
    return m_hoverEnter;
}

CFxUISignal<void()> &CFxUIBaseViewImpl::hoverLeave()
{
    return m_hoverLeave;
}
