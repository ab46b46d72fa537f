#include "UI/FxUIPreviewView.h"

#include "UI/Impl/FxUIImageViewImpl.h"
#include "UI/Impl/ImplOf.h"

// The base has called it once already. Intended.
CFxUIPreviewView::CFxUIPreviewView()
{
    ImplOf<CFxUIImageViewImpl>(this)->MakePreviewWidget();
}

CFxUIPreviewView::~CFxUIPreviewView() = default;
