#include "UI/Impl/FxUIImageViewImpl.h"

#include "UI/FxUIEvent.h"

#include <QtGui/QPainter>

namespace {

// A painter that is opened on an image and known to the view for as long as this lives, also if a
// painting throws.
class OpenPainter {
public:
    OpenPainter(QPainter *&known, QImage &image)
        : m_known(known)
    {
        m_known = new QPainter(&image);
    }

    OpenPainter(const OpenPainter &) = delete;
    OpenPainter &operator=(const OpenPainter &) = delete;

    ~OpenPainter()
    {
        delete m_known;
        m_known = nullptr;
    }

private:
    QPainter *&m_known;
};

} // namespace

CFxUIImageViewImpl::CFxUIImageViewImpl(CFxUIObject *object)
    : CFxUIBaseViewImpl(object)
{
}

CFxUIImageViewImpl::~CFxUIImageViewImpl() = default;

void CFxUIImageViewImpl::OnSizeChanged(int width, int height)
{
    m_width = width;
    m_height = height;
    UpdateImpl();
}

void CFxUIImageViewImpl::UpdateImpl()
{
    if (m_width == 0 || m_height == 0)
        return;
    if (m_painter)
        return; // the image that is being painted must stay
    m_image = QImage(m_width, m_height, QImage::Format_ARGB32);
    CFxUIPaintEvent event(QRect(0, 0, m_width, m_height));
    const OpenPainter painter(m_painter, m_image);
    static_cast<CFxUIBaseView *>(owner)->paintEvent(&event);
    SetPixmapImpl(m_image);
}

const QPixmap *CFxUIImageViewImpl::pixmap() const
{
    return &m_pixmap;
}

void CFxUIImageViewImpl::setPixmap(const QPixmap &pixmap)
{
    m_pixmap = pixmap;
}

QPainter *CFxUIImageViewImpl::GetPainter() const
{
    return m_painter;
}
