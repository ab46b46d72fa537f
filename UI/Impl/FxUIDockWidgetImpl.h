#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QString>

/// Implementation object of CFxUIDockWidget.
class COMMONUI_EXPORT CFxUIDockWidgetImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIDockWidgetImpl(CFxUIObject *object);
    ~CFxUIDockWidgetImpl() override;

    QString GetFrontendClassName() override;

    /// Makes nothing.
    void CreateFrontendControl() override;

    /// Doesn't store the area.
    void setArea(int area);
    void setWidget(CFxUIBaseView *view);
    CFxUIBaseView *widget() const;
    void setTitle(const QString &title);
    void raise();

    void SetAreaImpl(int area);
    void SetWidgetImpl(CFxUIBaseView *view);
    void SetTitleImpl(const QString &title);
    void RaiseImpl();

protected:
    QString m_title;
    CFxUIBaseView *m_widget = nullptr; // not owned
};
