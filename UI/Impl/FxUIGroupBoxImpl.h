#pragma once

#include "UI/FxUISignal.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUIGroupBox. Margins and spacing are in the Qt layout alone.
class COMMONUI_EXPORT CFxUIGroupBoxImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIGroupBoxImpl(CFxUIObject *object);
    ~CFxUIGroupBoxImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CFxUIBaseView *view, float weight) override;
    void InsertViewImpl(CFxUIBaseView *view, int index, float weight) override;
    void RemoveViewImpl(CFxUIBaseView *view) override;

    void setTitle(const QString &title);
    QString title() const;
    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);
    void setCollapsed(bool collapsed);
    bool isCollapsed() const;

    CFxUISignal<void(bool)> &onCollapsedStateChanged();

    /// Updates the parent view, also without a change; then stores a new state and emits
    /// onCollapsedStateChanged with it. For a frontend; setCollapsed alone calls it.
    void OnCollapsedStateChanged(bool collapsed);

    void SetTitleImpl(const QString &title);
    void SetContentsMarginsImpl(int left, int top, int right, int bottom);
    void SetSpacingImpl(int spacing);

    /// Empty.
    void SetCollapsedImpl(bool collapsed);

protected:
    QString m_title;
    bool m_collapsed = false;
    CFxUISignal<void(bool)> m_onCollapsedStateChanged; ///< emitted on a change, with the new state
};
