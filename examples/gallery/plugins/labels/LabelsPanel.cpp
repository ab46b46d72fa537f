#include "interface/GalleryPanel.h"
#include "SamplePicture.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUISlider.h"

#include <QtGui/QIcon>
#include <QtGui/QImageReader>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QWidget>

namespace {

constexpr QSize Frame(GalleryPanel::ControlWidth, 120); // of a picture, in pixels

class LabelsPanel : public GalleryPanel {
public:
    explicit LabelsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Labels and sliders")
    {
    }

private:
    void Build() override
    {
        BuildText();
        BuildPicture();
        BuildSlider();
    }

    void BuildText()
    {
        AddHeading("Text");
        auto *label = new CFxUILabel;
        label->setText(QStringLiteral("The quick brown fox"));
        GalleryRow row = AddRow("Label", label, [label] {
            return QStringLiteral("text() ") + GalleryText(label->text())
                + QStringLiteral("\nwordWrap() ") + GalleryText(label->wordWrap());
        });
        const auto align = [label](CFxUIBaseView::TextAlignment alignment) {
            return [label, alignment] { label->setTextAlignment(alignment); };
        };
        AddActions(
            row,
            { { "Left", align(CFxUIBaseView::AlignLeft) },
              { "Centre", align(CFxUIBaseView::AlignCenter) },
              { "Right", align(CFxUIBaseView::AlignRight) },
              { "Bold", [label] { label->setBoldText(true); } },
              { "Normal", [label] { label->setBoldText(false); } },
              { "Longer",
                [label] { label->setText(label->text() + QStringLiteral(" and the lazy dog")); } },
              { "Word wrap", [label] { label->setWordWrap(!label->wordWrap()); } } });
    }

    void BuildPicture()
    {
        AddHeading("Icons and pictures");
        AddNote("An icon shows at 25 by 25 pixels, a pixmap at its own size. clear() empties the "
                "text and leaves a picture alone.");
        m_picture = new CFxUILabel;
        m_picture->setText(QStringLiteral("A caption under cover"));
        m_picture->setMinimumHeight(Frame.height());
        m_picture->setMaximumHeight(Frame.height());
        m_pixmap = SamplePicture(Frame);
        m_picture->setPixmap(m_pixmap);
        m_source = QStringLiteral("painted here");
        GalleryRow row = AddTallRow("Picture", m_picture, [this] {
            return QStringLiteral("text() ") + GalleryText(m_picture->text())
                + QStringLiteral("\nPicture: ") + m_source;
        });
        AddActions(row,
                   { { "Open a picture file...", [this] { OpenPicture(); } },
                     { "setIcon()", [this] { m_picture->setIcon(QIcon(m_pixmap)); } },
                     { "setPixmap()", [this] { m_picture->setPixmap(m_pixmap); } },
                     { "setText()",
                       [this] { m_picture->setText(QStringLiteral("A caption on its own")); } },
                     { "clear()", [this] { m_picture->clear(); } } });
    }

    void OpenPicture()
    {
        const QString name = QFileDialog::getOpenFileName(
            static_cast<QWidget *>(getHandle()), QStringLiteral("Open a picture"), QString(),
            QStringLiteral("Pictures (*.png *.jpg *.jpeg *.gif *.bmp *.svg);;All files (*)"));
        if (name.isEmpty())
            return; // the user has thought better of it
        QImageReader reader(name);
        reader.setAutoTransform(true);
        const QImage image = reader.read();
        if (image.isNull()) {
            m_source = QStringLiteral("%1 can't be shown: %2").arg(name, reader.errorString());
            return;
        }
        m_pixmap =
            QPixmap::fromImage(image.scaled(Frame, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        m_picture->setPixmap(m_pixmap);
        m_source =
            QStringLiteral("%1, %2 by %3 pixels").arg(name).arg(image.width()).arg(image.height());
    }

    void BuildSlider()
    {
        AddHeading("Slider");
        auto *slider = new CFxUISlider;
        slider->setRange(8, 40);
        slider->setValue(18);
        auto *sample = new CFxUILabel;
        sample->setText(QStringLiteral("Aa"));
        sample->setFontSize(slider->value());
        slider->valueChanged().connect([sample](int value) { sample->setFontSize(value); });
        GalleryRow row = AddRow("From 8 to 40", slider, [slider] {
            return QStringLiteral("value() ") + GalleryText(slider->value());
        });
        row.Reports("valueChanged", slider->valueChanged());
        AddTallRow("setFontSize()", sample);
        AddActions(row,
                   { { "setValue(24)", [slider] { slider->setValue(24); } },
                     { "setValue(1000)", [slider] { slider->setValue(1000); } },
                     { "setMinimum(20)", [slider] { slider->setMinimum(20); } },
                     { "setRange(8, 40)", [slider] { slider->setRange(8, 40); } } });
        AddNote(
            "Press setValue(1000) twice: the first time the slider moves to its end and says "
            "so, the second time it stands there already, and value() is what was asked for. The "
            "dark sheet fixes the size of labels, so that setFontSize() shows in the light look.");
    }

    CFxUILabel *m_picture = nullptr;
    QPixmap m_pixmap;
    QString m_source;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "labels", "Labels and sliders",
                               "Text, icons, a picture file of your own, and a slider." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new LabelsPanel(host);
}
