#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUIHorizontalLayout. Margins and spacing are in the Qt layout alone.
class COMMONUI_EXPORT CFxUIHorizontalLayoutImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIHorizontalLayoutImpl(CFxUIObject *object);
    ~CFxUIHorizontalLayoutImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CFxUIBaseView *view, float weight) override;
    void InsertViewImpl(CFxUIBaseView *view, int index, float weight) override;
    void RemoveViewImpl(CFxUIBaseView *view) override;

    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);

    void SetContentsMarginsImpl(int left, int top, int right, int bottom);
    void SetSpacingImpl(int spacing);

protected:
    QString m_name; // neither read nor written. Intended.
};
