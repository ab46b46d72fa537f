#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIObjectImpl.h"

#include <QtGui/QPalette>

/// Root of the implementation objects of views. As such it serves a view that was built around an
/// existing Qt widget.
class COMMONUI_EXPORT CFxUIBaseViewImpl : public CFxUIObjectImpl {
public:
    explicit CFxUIBaseViewImpl(CFxUIObject *object);
    ~CFxUIBaseViewImpl() override;

    QString GetFrontendClassName() override;

    /// Makes a frontend by name, if there is a name (FxBaseViewImpl::CreateFrontendControl).
    void CreateFrontendControl() override;

    /// Put a child into the container's Qt layout or take it out. Here: nothing.
    virtual void AddViewImpl(CFxUIBaseView *view, float weight);
    virtual void InsertViewImpl(CFxUIBaseView *view, int index, float weight);
    virtual void RemoveViewImpl(CFxUIBaseView *view);

    /// Stores the flag, which nothing reads.
    virtual void setBusyStateImpl(bool busy);

    virtual void SetEnabled(bool enabled);

    /// Stores the size. For a frontend or the host to report a new one; no operation of the library
    /// calls it.
    virtual void OnSizeChanged(int width, int height);

    virtual void UpdateImpl();

    bool isEnabled() const;
    bool hasFocus() const;
    bool isVisible() const;
    void setVisible(bool visible);
    void setPalette(const QPalette &palette);
    const QPalette &palette() const;
    int width() const;
    int height() const;
    void setWidth(int width);
    void setHeight(int height);
    void setPreferableSize(int width, int height);

    /// Sets the width and the preferred width from the policy, both heights to -1.
    void setWidthPolicy(CFxUIBaseView::UIWidthSizePolicy policy);

    bool isEventAccepted() const;
    void setEventAccepted(bool accepted);

    CFxUISignal<void()> &aboutToPassEventToParent();
    CFxUISignal<void()> &aboutToShow();
    CFxUISignal<void()> &hoverEnter();
    CFxUISignal<void()> &hoverLeave();

    void SetEnabledImpl(bool enabled);
    void SetVisibleImpl(bool visible);
    void SetFocusImpl();
    void SetFocusPolicyImpl(int policy);
    static void SetTabOrderImpl(CFxUIObject *first, CFxUIObject *second);
    void SetPreferrableSizeImpl(int width, int height);
    void SetMinimumWidthImpl(int width);
    void SetMinimumHeightImpl(int height);
    void SetMaximumWidthImpl(int width);
    void SetMaximumHeightImpl(int height);

    /// Edits of the widget's style sheet, the only record of what they set.
    void SetCornerRadiusImpl(float radius);
    void SetBorderWidthImpl(float width);
    void SetBorderWidthImpl(float left, float top, float right, float bottom);
    void SetBorderColorImpl(int red, int green, int blue);
    void SetBackgroundColorImpl(int red, int green, int blue);

    /// The one colour that goes through the widget's palette and not its style sheet.
    void SetTextColorImpl(int red, int green, int blue);

protected:
    QPalette m_palette;
    bool m_visible = false;
    bool m_enabled = true;
    bool m_hasFocus = false;
    bool m_busy = false;
    int m_width = 0;
    int m_height = 0;
    int m_preferredWidth = 0;
    int m_preferredHeight = 0;
    bool m_eventAccepted = false;
    CFxUISignal<void()> m_aboutToPassEventToParent; ///< emitted before a key goes to the parent
    CFxUISignal<void()> m_aboutToShow; ///< emitted before the widget is shown
    CFxUISignal<void()> m_hoverEnter; ///< emitted when the pointer enters
    CFxUISignal<void()> m_hoverLeave; ///< emitted when the pointer leaves
};
