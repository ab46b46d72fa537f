#include "UI/FxUIEvent.h"

CFxUIEvent::~CFxUIEvent() = default;
CFxUIShowEvent::~CFxUIShowEvent() = default;
CFxUIHideEvent::~CFxUIHideEvent() = default;
CFxUIResizeEvent::~CFxUIResizeEvent() = default;
CFxUIPaintEvent::~CFxUIPaintEvent() = default;
CFxUIFocusEvent::~CFxUIFocusEvent() = default;
