#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUIVerticalLayout. Margins and spacing are in the Qt layout alone.
class COMMONUI_EXPORT CFxUIVerticalLayoutImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIVerticalLayoutImpl(CFxUIObject *object);
    ~CFxUIVerticalLayoutImpl() override;

    QString GetFrontendClassName() override;
    void CreateFrontendControl() override;
    void AddViewImpl(CFxUIBaseView *view, float weight) override;
    void InsertViewImpl(CFxUIBaseView *view, int index, float weight) override;
    void RemoveViewImpl(CFxUIBaseView *view) override;

    /// Starts or stops the busy animation. The flag of the base class stays untouched.
    void setBusyStateImpl(bool busy) override;

    void setContentsMargins(int left, int top, int right, int bottom);
    void setSpacing(int spacing);

    void SetContentsMarginsImpl(int left, int top, int right, int bottom);
    void SetSpacingImpl(int spacing);

protected:
    QString m_name; // neither read nor written. Intended.
};
