#include "interface/GalleryPanel.h"
#include "UI/FxUIListBox.h"
#include "UI/Impl/FxUIListBoxImpl.h"

namespace {

constexpr int ListHeight = 120;

class ListsPanel : public GalleryPanel {
public:
    explicit ListsPanel(IGalleryHost *host)
        : GalleryPanel(host, "Lists")
    {
    }

private:
    void Build() override
    {
        AddHeading("A list box");
        AddNote("A list box is a model and no more: the list on the screen stays empty, whatever "
                "is added. That is intended.");
        m_box = new CFxUIListBox;
        for (const char *planet : { "Mercury", "Venus", "Earth" })
            m_box->addItem(QLatin1String(planet));
        m_box->setItemSelected(2, true);
        m_box->setMinimumHeight(ListHeight);
        m_box->setMaximumHeight(ListHeight);
        GalleryRow row = AddTallRow("List box", m_box, [this] { return Answers(); });
        row.Reports("valueChanged", m_box->valueChanged());

        AddNote("What changes the model:");
        AddActions(
            row,
            { { "addItem(\"Mars\")", [this] { m_box->addItem(QStringLiteral("Mars")); } },
              { "setItemSelected(0, true)", [this] { m_box->setItemSelected(0, true); } },
              { "item(0) = \"Hermes\"", [this] { m_box->item(0) = QStringLiteral("Hermes"); } },
              { "clear()", [this] { m_box->clear(); } } });

        AddNote("What does nothing:");
        AddActions(row,
                   { { "clearSelection()", [this] { m_box->clearSelection(); } },
                     { "setItemText(0, \"x\")",
                       [this] { m_box->setItemText(0, QStringLiteral("x")); } } });

        AddNote("valueChanged comes from OnItemSelected() of the implementation object alone; its "
                "number "
                "is 1 or 0:");
        AddActions(
            row,
            { { "OnItemSelected(1, true)", [this] { Impl()->OnItemSelected(1, true); } },
              { "OnItemSelected(1, false)", [this] { Impl()->OnItemSelected(1, false); } } });
    }

    QString Answers() const
    {
        QStringList rows;
        for (int i = 0; i < m_box->count(); ++i)
            rows += m_box->item(i) + (m_box->isItemSelected(i) ? QStringLiteral(" *") : QString());
        return QStringLiteral("count() %1: %2\nselectedItems() %3, currentRow() %4\n* selected")
            .arg(QString::number(m_box->count()), rows.join(QStringLiteral(", ")),
                 m_box->selectedItems().isEmpty() ? QStringLiteral("none") : QStringLiteral("some"),
                 QString::number(m_box->currentRow()));
    }

    CFxUIListBoxImpl *Impl() const { return static_cast<CFxUIListBoxImpl *>(m_box->impl); }

    CFxUIListBox *m_box = nullptr;
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "lists", "Lists",
                               "A list box, which is a model without a picture." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new ListsPanel(host);
}
