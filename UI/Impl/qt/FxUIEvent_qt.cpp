#include "UI/FxUIEvent.h"

#include <QtCore/QEvent>

// Types and reasons cross to and from Qt as numbers.
static_assert(int(CFxUIEvent::None) == int(QEvent::None));
static_assert(int(CFxUIEvent::FocusIn) == int(QEvent::FocusIn));
static_assert(int(CFxUIEvent::FocusOut) == int(QEvent::FocusOut));
static_assert(int(CFxUIEvent::Paint) == int(QEvent::Paint));
static_assert(int(CFxUIEvent::Resize) == int(QEvent::Resize));
static_assert(int(CFxUIEvent::Show) == int(QEvent::Show));
static_assert(int(CFxUIEvent::Hide) == int(QEvent::Hide));

static_assert(int(CFxUIFocusEvent::MouseFocusReason) == int(Qt::MouseFocusReason));
static_assert(int(CFxUIFocusEvent::TabFocusReason) == int(Qt::TabFocusReason));
static_assert(int(CFxUIFocusEvent::BacktabFocusReason) == int(Qt::BacktabFocusReason));
static_assert(int(CFxUIFocusEvent::ActiveWindowFocusReason) == int(Qt::ActiveWindowFocusReason));
static_assert(int(CFxUIFocusEvent::PopupFocusReason) == int(Qt::PopupFocusReason));
static_assert(int(CFxUIFocusEvent::ShortcutFocusReason) == int(Qt::ShortcutFocusReason));
static_assert(int(CFxUIFocusEvent::MenuBarFocusReason) == int(Qt::MenuBarFocusReason));
static_assert(int(CFxUIFocusEvent::OtherFocusReason) == int(Qt::OtherFocusReason));
static_assert(int(CFxUIFocusEvent::NoFocusReason) == int(Qt::NoFocusReason));
