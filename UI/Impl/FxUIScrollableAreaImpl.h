#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

/// Implementation object of CFxUIScrollableArea.
class COMMONUI_EXPORT CFxUIScrollableAreaImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIScrollableAreaImpl(CFxUIObject *object);
    ~CFxUIScrollableAreaImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CFxUIBaseView *view, float weight) override;
    void InsertViewImpl(CFxUIBaseView *view, int index, float weight) override;
    void RemoveViewImpl(CFxUIBaseView *view) override;

    void scrollTo(CFxUIBaseView *view);
    void setHorizontalScrollingEnabled(bool enabled);
    bool horizontalScrollingEnabled() const;
    void setVerticalScrollingEnabled(bool enabled);
    bool verticalScrollingEnabled() const;

    void ScrollToImpl(CFxUIBaseView *view);
    void SetHorizontalScrollingEnabledImpl(bool enabled);
    void SetVerticalScrollingEnabledImpl(bool enabled);

protected:
    bool m_horizontalScrollingEnabled = false; // the widget's bar is shown as needed at first
    bool m_verticalScrollingEnabled = false; // the widget's bar is shown as needed always
};
