#pragma once

#include "UI/FxUIBaseView.h"
#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

/// Shows the fields and writes down what reaches the virtual operations.
class ViewProbeImpl : public CFxUIBaseViewImpl {
public:
    using CFxUIBaseViewImpl::CFxUIBaseViewImpl;
    using CFxUIBaseViewImpl::m_busy;
    using CFxUIBaseViewImpl::m_enabled;
    using CFxUIBaseViewImpl::m_eventAccepted;
    using CFxUIBaseViewImpl::m_hasFocus;
    using CFxUIBaseViewImpl::m_height;
    using CFxUIBaseViewImpl::m_palette;
    using CFxUIBaseViewImpl::m_preferredHeight;
    using CFxUIBaseViewImpl::m_preferredWidth;
    using CFxUIBaseViewImpl::m_visible;
    using CFxUIBaseViewImpl::m_width;

    QString GetFrontendClassName() override { return className; }

    void AddViewImpl(CFxUIBaseView *view, float weight) override
    {
        log.append(QStringLiteral("add %1").arg(double(weight)));
        toldOfAChild = view->parent() == owner && owner->children().contains(view);
    }

    void InsertViewImpl(CFxUIBaseView *view, int index, float weight) override
    {
        log.append(QStringLiteral("insert %1 %2").arg(index).arg(double(weight)));
        toldOfAChild = view->parent() == owner && owner->children().contains(view);
    }

    void RemoveViewImpl(CFxUIBaseView *view) override
    {
        log.append(view->parent() ? QStringLiteral("remove with parent")
                                  : QStringLiteral("remove"));
    }

    void setBusyStateImpl(bool busy) override
    {
        log.append(QStringLiteral("busy %1").arg(busy));
        CFxUIBaseViewImpl::setBusyStateImpl(busy);
    }

    void SetEnabled(bool enabled) override
    {
        log.append(QStringLiteral("enabled %1").arg(enabled));
        CFxUIBaseViewImpl::SetEnabled(enabled);
    }

    void OnSizeChanged(int width, int height) override
    {
        log.append(QStringLiteral("size"));
        CFxUIBaseViewImpl::OnSizeChanged(width, height);
    }

    void UpdateImpl() override
    {
        log.append(QStringLiteral("update"));
        CFxUIBaseViewImpl::UpdateImpl();
    }

    QStringList log;
    QString className;
    bool toldOfAChild = false;
};

/// A view over a plain widget.
class ViewProbe : public CFxUIBaseView {
public:
    ViewProbe()
    {
        impl = new ViewProbeImpl(this);
        setHandle(new QWidget);
    }

    ViewProbeImpl *Impl() const { return static_cast<ViewProbeImpl *>(impl); }

    QWidget *Widget() const { return static_cast<QWidget *>(getHandle()); }

    /// Puts another widget behind the view.
    void Take(QObject *handle)
    {
        delete getHandle();
        setHandle(handle);
    }
};
