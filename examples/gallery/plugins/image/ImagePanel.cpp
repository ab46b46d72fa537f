#include "interface/GalleryPanel.h"
#include "UI/FxUIEvent.h"
#include "UI/FxUIImageView.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPreviewView.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <memory>

namespace {

QPixmap MakeTiles()
{
    QPixmap tiles(2, 2);
    tiles.fill(QColor(0xf4, 0xd3, 0x5e));
    QPainter painter(&tiles);
    painter.fillRect(0, 0, 1, 1, QColor(0x2a, 0x6f, 0x97));
    painter.fillRect(1, 1, 1, 1, QColor(0x2a, 0x6f, 0x97));
    return tiles;
}

/// Paints its pixmap and some circles, and shows the finished image in a label: the image view
/// itself has no widget.
class Canvas : public CFxUIImageView {
public:
    explicit Canvas(CFxUILabel *screen)
        : m_screen(screen)
    {
    }

    void paintEvent(CFxUIPaintEvent *event) override
    {
        CFxUIImageView::paintEvent(event);
        QPainter &painter = *GetPainter();
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xc1, 0x12, 0x1f));
        const QSize size = event->rect().size();
        for (int i = 0; i <= m_paintings; ++i)
            painter.drawEllipse(
                QPoint(size.width() * (i + 1) / (m_paintings + 2), size.height() / 2), 12, 12);
        ++m_paintings;
        m_screen->setPixmap(QPixmap::fromImage(*static_cast<QImage *>(painter.device())));
    }

    int Paintings() const { return m_paintings; }

private:
    CFxUILabel *m_screen;
    int m_paintings = 0;
};

/// The same for a preview, which stretches its pixmap and paints nothing more.
class Preview : public CFxUIPreviewView {
public:
    explicit Preview(CFxUILabel *screen)
        : m_screen(screen)
    {
    }

    void paintEvent(CFxUIPaintEvent *event) override
    {
        CFxUIPreviewView::paintEvent(event);
        m_screen->setPixmap(QPixmap::fromImage(*static_cast<QImage *>(GetPainter()->device())));
    }

private:
    CFxUILabel *m_screen;
};

class ImagePanel : public GalleryPanel {
public:
    explicit ImagePanel(IGalleryHost *host)
        : GalleryPanel(host, "Image view")
    {
    }

private:
    void Build() override
    {
        AddHeading("An image view");
        AddNote("It paints into an image off the screen and has no widget. This panel's own class "
                "overrides paintEvent() and shows the image in a label.");
        auto *screen = new CFxUILabel;
        m_canvas = std::make_unique<Canvas>(screen);
        GalleryRow row = AddTallRow("Shown in a label", screen, [this] {
            return QStringLiteral("getHandle() %1\nGetPainter() %2\nwidth() %3, height() %4\n"
                                  "paintings %5")
                .arg(GalleryText(m_canvas->getHandle()), GalleryText(m_canvas->GetPainter()),
                     GalleryText(m_canvas->width()), GalleryText(m_canvas->height()),
                     GalleryText(m_canvas->Paintings()));
        });
        m_canvas->setPixmap(MakeTiles());
        m_canvas->resize(260, 120);
        m_canvas->update();
        row.Refresh();

        AddNote("resize() and setPixmap() paint nothing by themselves; update() does.");
        AddActions(row,
                   { { "resize()", [this] { m_canvas->resize(440 - m_canvas->width(), 120); } },
                     { "setPixmap(null)", [this] { m_canvas->setPixmap(QPixmap()); } },
                     { "setPixmap(tiles)", [this] { m_canvas->setPixmap(MakeTiles()); } },
                     { "update()", [this] { m_canvas->update(); } } });

        BuildPreview();
    }

    void BuildPreview()
    {
        AddHeading("A preview view");
        AddNote("Two by two pixels, stretched to the view without regard to their proportions.");
        auto *screen = new CFxUILabel;
        m_preview = std::make_unique<Preview>(screen);
        m_preview->setPixmap(MakeTiles());
        m_preview->resize(120, 60);
        m_preview->update();
        AddTallRow("Shown in a label", screen, [this] {
            const QSize size = m_preview->pixmap()->size();
            return QStringLiteral("getHandle() %1\npixmap() %2 by %3")
                .arg(GalleryText(m_preview->getHandle()), GalleryText(size.width()),
                     GalleryText(size.height()));
        });
    }

    std::unique_ptr<Canvas> m_canvas;
    std::unique_ptr<Preview> m_preview;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "image", "Image view",
                               "Painting into an image, and a preview." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ImagePanel(host);
}
