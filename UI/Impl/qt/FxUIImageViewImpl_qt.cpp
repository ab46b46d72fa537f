#include "UI/Impl/FxUIImageViewImpl.h"

QString CFxUIImageViewImpl::GetFrontendClassName()
{
    return QString();
}

// The places where a platform would show the image. Here it stays off the screen: all bodies are
// empty. Intended.
void CFxUIImageViewImpl::CreateFrontendControl() { }

void CFxUIImageViewImpl::MakePreviewWidget() { }

void CFxUIImageViewImpl::SetPixmapImpl(const QImage & /*image*/) { }
