#include "UI/FxUIBaseView.h"

#include "UI/FxUIObjectData.h"
#include "UI/Impl/FxBaseViewImpl.h"
#include "UI/Impl/FxUIBaseViewImpl.h"
#include "UI/Impl/ImplOf.h"

namespace {

// A view that was built around an existing Qt object has no implementation object of its own class.
CFxUIBaseViewImpl *EnsureImpl(CFxUIBaseView *view)
{
    if (!view->impl)
        view->impl = new CFxUIBaseViewImpl(view);
    return ImplOf<CFxUIBaseViewImpl>(view);
}

// The implementation object that a container operation goes to; null for a view with neither an
// implementation object nor a handle.
CFxUIBaseViewImpl *ContainerImpl(CFxUIBaseView *view)
{
    return view->impl || view->getHandle() ? EnsureImpl(view) : nullptr;
}

} // namespace

CFxUIBaseView::CFxUIBaseView() = default;

CFxUIBaseView::~CFxUIBaseView()
{
    if (QObject *handle = getHandle())
        FxBaseViewImpl::ReleaseFrontendControl(impl ? impl->GetFrontendClassName() : QString(),
                                               handle);
}

void CFxUIBaseView::showEvent(CFxUIShowEvent * /*event*/) { }

void CFxUIBaseView::hideEvent(CFxUIHideEvent * /*event*/) { }

void CFxUIBaseView::paintEvent(CFxUIPaintEvent * /*event*/) { }

void CFxUIBaseView::resizeEvent(CFxUIResizeEvent * /*event*/) { }

void CFxUIBaseView::focusInEvent(CFxUIFocusEvent * /*event*/) { }

void CFxUIBaseView::focusOutEvent(CFxUIFocusEvent * /*event*/) { }

void CFxUIBaseView::addView(CFxUIBaseView *child, float weight)
{
    if (!child || child->parent())
        return;
    child->setParent(this);
    if (auto *container = ContainerImpl(this))
        container->AddViewImpl(child, weight);
}

// Unlike addView, a child that has a parent moves over. Intended.
void CFxUIBaseView::insertView(CFxUIBaseView *child, int index, float weight)
{
    if (!child)
        return;
    child->setParent(this);
    if (auto *container = ContainerImpl(this))
        container->InsertViewImpl(child, index, weight);
}

int CFxUIBaseView::indexOf(CFxUIBaseView *child)
{
    return data->indexOf(child);
}

void CFxUIBaseView::removeView(CFxUIBaseView *child)
{
    if (!child || child->parent() != this)
        return;
    child->setParent(nullptr);
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->RemoveViewImpl(child);
}

void CFxUIBaseView::setEnabled(bool enabled)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetEnabled(enabled);
}

void CFxUIBaseView::setDisabled(bool disabled)
{
    setEnabled(!disabled);
}

bool CFxUIBaseView::isEnabled() const
{
    return !impl || ImplOf<CFxUIBaseViewImpl>(this)->isEnabled();
}

bool CFxUIBaseView::hasFocus() const
{
    return impl && ImplOf<CFxUIBaseViewImpl>(this)->hasFocus();
}

void CFxUIBaseView::setFocus()
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetFocusImpl();
}

void CFxUIBaseView::setFocus(int /*reason*/) { }

void CFxUIBaseView::setFocusPolicy(int policy)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetFocusPolicyImpl(policy);
}

void CFxUIBaseView::setTabOrder(CFxUIObject *first, CFxUIObject *second)
{
    CFxUIBaseViewImpl::SetTabOrderImpl(first, second);
}

int CFxUIBaseView::backgroundRole()
{
    return QPalette::Base;
}

bool CFxUIBaseView::isVisible()
{
    return impl && ImplOf<CFxUIBaseViewImpl>(this)->isVisible();
}

void CFxUIBaseView::setVisible(bool visible)
{
    EnsureImpl(this)->setVisible(visible);
}

void CFxUIBaseView::setPalette(const QPalette &palette)
{
    EnsureImpl(this)->setPalette(palette);
}

const QPalette &CFxUIBaseView::palette() const
{
    return EnsureImpl(const_cast<CFxUIBaseView *>(this))->palette();
}

int CFxUIBaseView::width()
{
    return impl ? ImplOf<CFxUIBaseViewImpl>(this)->width() : -1;
}

int CFxUIBaseView::height()
{
    return impl ? ImplOf<CFxUIBaseViewImpl>(this)->height() : -1;
}

void CFxUIBaseView::setWidth(int width)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->setWidth(width);
}

void CFxUIBaseView::setHeight(int height)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->setHeight(height);
}

void CFxUIBaseView::resize(int width, int height)
{
    setWidth(width);
    setHeight(height);
}

void CFxUIBaseView::setPreferableSize(int width, int height)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->setPreferableSize(width, height);
}

void CFxUIBaseView::setMinimumWidth(int width)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetMinimumWidthImpl(width);
}

void CFxUIBaseView::setMinimumHeight(int height)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetMinimumHeightImpl(height);
}

void CFxUIBaseView::setMaximumWidth(int width)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetMaximumWidthImpl(width);
}

void CFxUIBaseView::setMaximumHeight(int height)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetMaximumHeightImpl(height);
}

void CFxUIBaseView::update()
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->UpdateImpl();
}

void CFxUIBaseView::setBusyState(bool busy)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->setBusyStateImpl(busy);
}

void CFxUIBaseView::setEventAccepted(bool accepted)
{
    EnsureImpl(this)->setEventAccepted(accepted);
}

void CFxUIBaseView::setCornerRadius(float radius)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetCornerRadiusImpl(radius);
}

void CFxUIBaseView::setBorderWidth(float width)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetBorderWidthImpl(width);
}

void CFxUIBaseView::setBorderWidth(float left, float top, float right, float bottom)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetBorderWidthImpl(left, top, right, bottom);
}

void CFxUIBaseView::setBorderColor(int red, int green, int blue)
{
    if (impl)
        ImplOf<CFxUIBaseViewImpl>(this)->SetBorderColorImpl(red, green, blue);
}

CFxUISignal<void()> &CFxUIBaseView::aboutToPassEventToParent()
{
    return EnsureImpl(this)->aboutToPassEventToParent();
}

CFxUISignal<void()> &CFxUIBaseView::aboutToShow()
{
    return EnsureImpl(this)->aboutToShow();
}

CFxUISignal<void()> &CFxUIBaseView::hoverEnter()
{
    return EnsureImpl(this)->hoverEnter();
}

CFxUISignal<void()> &CFxUIBaseView::hoverLeave()
{
    return EnsureImpl(this)->hoverLeave();
}
