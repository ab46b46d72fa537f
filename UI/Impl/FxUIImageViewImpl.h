#pragma once

#include "UI/Impl/FxUIBaseViewImpl.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>

class QPainter;

/// Implementation object of CFxUIImageView and CFxUIPreviewView.
class COMMONUI_EXPORT CFxUIImageViewImpl : public CFxUIBaseViewImpl {
public:
    explicit CFxUIImageViewImpl(CFxUIObject *object);
    ~CFxUIImageViewImpl() override;

    /// Empty.
    QString GetFrontendClassName() override;

    /// Makes nothing.
    void CreateFrontendControl() override;

    /// Stores the size, then updates.
    void OnSizeChanged(int width, int height) override;

    /// Paints a fresh image of the recorded size through the public object's paintEvent(). Does
    /// nothing if width or height is 0, and nothing from inside a painting.
    void UpdateImpl() override;

    const QPixmap *pixmap() const;
    void setPixmap(const QPixmap &pixmap);
    QPainter *GetPainter() const;

    /// Called by each public constructor. Makes nothing.
    void MakePreviewWidget();

    /// Gets the finished image, with the painter on it still open. Does nothing.
    void SetPixmapImpl(const QImage &image);

protected:
    QImage m_image;
    QPixmap m_pixmap;
    QPainter *m_painter = nullptr; // owned; open during UpdateImpl() only
};
