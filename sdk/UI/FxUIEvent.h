#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QRegion>

/// Root of the view events: values that stand for Qt's events at the public interface. The library
/// makes them on the stack and hands them on by pointer.
class COMMONUI_EXPORT CFxUIEvent {
public:
    /// The numbers of QEvent::Type.
    enum Type : int {
        None = 0,
        FocusIn = 8,
        FocusOut = 9,
        Paint = 12,
        Resize = 14,
        Show = 17,
        Hide = 18
    };

    explicit CFxUIEvent(Type type)
        : m_type(type)
    {
    }

    virtual ~CFxUIEvent();

    Type type() const { return m_type; }

protected:
    Type m_type;
};

/// A view is shown. Made by the host alone.
class COMMONUI_EXPORT CFxUIShowEvent : public CFxUIEvent {
public:
    CFxUIShowEvent()
        : CFxUIEvent(Show)
    {
    }

    ~CFxUIShowEvent() override;
};

/// A view is hidden. Made by the host alone.
class COMMONUI_EXPORT CFxUIHideEvent : public CFxUIEvent {
public:
    CFxUIHideEvent()
        : CFxUIEvent(Hide)
    {
    }

    ~CFxUIHideEvent() override;
};

/// A view has a new size. Made by the host alone.
class COMMONUI_EXPORT CFxUIResizeEvent : public CFxUIEvent {
public:
    CFxUIResizeEvent(const QSize &size, const QSize &oldSize)
        : CFxUIEvent(Resize)
        , m_size(size)
        , m_oldSize(oldSize)
    {
    }

    ~CFxUIResizeEvent() override;

    const QSize &size() const { return m_size; }

    const QSize &oldSize() const { return m_oldSize; }

protected:
    QSize m_size;
    QSize m_oldSize;
};

/// A view is to paint itself. Each constructor fills one of the two fields, on purpose not both.
class COMMONUI_EXPORT CFxUIPaintEvent : public CFxUIEvent {
public:
    /// Leaves rect() the null rectangle.
    explicit CFxUIPaintEvent(const QRegion &region)
        : CFxUIEvent(Paint)
        , m_region(region)
    {
    }

    /// Leaves region() empty.
    explicit CFxUIPaintEvent(const QRect &rect)
        : CFxUIEvent(Paint)
        , m_rect(rect)
    {
    }

    ~CFxUIPaintEvent() override;

    const QRect &rect() const { return m_rect; }

    const QRegion &region() const { return m_region; }

protected:
    QRect m_rect;
    QRegion m_region;
};

/// A view gets or loses the focus. type() is FocusIn for both: only the operation that receives the
/// event tells them apart. Intended.
class COMMONUI_EXPORT CFxUIFocusEvent : public CFxUIEvent {
public:
    /// The numbers of Qt::FocusReason.
    enum FocusReason : int {
        MouseFocusReason,
        TabFocusReason,
        BacktabFocusReason,
        ActiveWindowFocusReason,
        PopupFocusReason,
        ShortcutFocusReason,
        MenuBarFocusReason,
        OtherFocusReason,
        NoFocusReason
    };

    /// The type is ignored.
    CFxUIFocusEvent(CFxUIEvent::Type /*type*/, FocusReason reason)
        : CFxUIEvent(FocusIn)
        , m_reason(reason)
    {
    }

    ~CFxUIFocusEvent() override;

    FocusReason reason() const { return m_reason; }

protected:
    FocusReason m_reason;
};
