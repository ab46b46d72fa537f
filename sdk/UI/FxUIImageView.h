#pragma once

#include "UI/FxUIBaseView.h"

class QPainter;
class QPixmap;

/// Draws into an off-screen image. update() makes a fresh image of the recorded size and calls
/// paintEvent(), which paints on it through GetPainter(). With a width or height of 0 it does
/// nothing.
///
/// There is no widget: getHandle() is null, and nothing comes on the screen by itself. An override
/// of paintEvent() can take the image from GetPainter()->device().
class COMMONUI_EXPORT CFxUIImageView : public CFxUIBaseView {
public:
    CFxUIImageView();
    ~CFxUIImageView() override;

    /// Draws the pixmap from the image's upper left corner on, stretched to the size of the
    /// rectangle of \a event whatever its proportions (QPainter::drawPixmap). A null pixmap draws
    /// nothing. Does nothing outside update(), where there is no painter.
    void paintEvent(CFxUIPaintEvent *event) override;

    /// Returns the address of the stored pixmap; never null. Default: a null pixmap.
    const QPixmap *pixmap() const;

    /// Stores only: no update follows, the caller asks for one.
    void setPixmap(const QPixmap &pixmap);

    /// Returns the painter on the image (QImage::Format_ARGB32, not cleared) during paintEvent(),
    /// otherwise null. Not the caller's to delete or end.
    QPainter *GetPainter();
};
