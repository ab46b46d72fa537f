#pragma once

#include "UI/FxUIImageView.h"

/// An image view for previews. Behaves as CFxUIImageView in every respect.
class COMMONUI_EXPORT CFxUIPreviewView : public CFxUIImageView {
public:
    CFxUIPreviewView();
    ~CFxUIPreviewView() override;
};
