#include "interface/GalleryPanel.h"
#include "UI/FxUITextEdit.h"

namespace {

class TextEntryPanel : public GalleryPanel {
public:
    explicit TextEntryPanel(IGalleryHost *host)
        : GalleryPanel(host, "Text entry")
    {
    }

private:
    void Build() override
    {
        BuildField();
        BuildMask();
        BuildVeto();
    }

    void BuildField()
    {
        AddHeading("A field");
        AddNote("A change by the user gives textChanged and textEdited. setText() gives "
                "textChanged, textEdited, textChanged; with the same text again, nothing. "
                "editingFinished never fires.");
        auto *field = new CFxUITextEdit(CFxUIBaseView::Large);
        field->setPlaceholderText(QStringLiteral("Type a name"));
        field->setClearButtonEnabled(true);
        GalleryRow row = AddField("Placeholder, clear button", field);
        AddActions(row,
                   { { "setText(\"Ada Lovelace\")",
                       [field] { field->setText(QStringLiteral("Ada Lovelace")); } },
                     { "clear()", [field] { field->clear(); } } });

        auto *fixed = new CFxUITextEdit(CFxUIBaseView::Large);
        fixed->setText(QStringLiteral("To be copied, not changed"));
        fixed->setReadOnly(true);
        AddField("Read-only", fixed);
    }

    void BuildMask()
    {
        AddHeading("An input mask");
        AddNote("text() is what the mask has made of the text. Two such calls in a row differ: the "
                "second finds the widget as it was, and the argument itself stands in text().");
        auto *field = new CFxUITextEdit(CFxUIBaseView::Large);
        field->setInputMask(QStringLiteral("99:99"));
        field->setText(QStringLiteral("0930"));
        GalleryRow row = AddRow("Time of day", field, [field] {
            return QStringLiteral("text() ") + GalleryText(field->text())
                + QStringLiteral("\ninputMask() ") + GalleryText(field->inputMask());
        });
        row.Reports("textChanged", field->textChanged()).Reports("textEdited", field->textEdited());

        AddActions(row,
                   { { "setText(\"1x5\")", [field] { field->setText(QStringLiteral("1x5")); } } });
    }

    void BuildVeto()
    {
        AddHeading("A key vetoed");
        AddNote("A slot of keyPressed calls setEventAccepted(true) for the digits: the field never "
                "sees them. The second number of keyPressed, the modifiers, is always 0 here.");
        auto *field = new CFxUITextEdit(CFxUIBaseView::Large);
        field->setPlaceholderText(QStringLiteral("Takes no digits"));
        field->keyPressed().connect([field](int key, int) {
            if (key >= Qt::Key_0 && key <= Qt::Key_9)
                field->setEventAccepted(true);
        });
        AddField("No digits", field).Reports("keyPressed", field->keyPressed());
    }

    GalleryRow AddField(const char *caption, CFxUITextEdit *field)
    {
        GalleryRow row = AddRow(caption, field, [field] {
            return QStringLiteral("text() ") + GalleryText(field->text())
                + QStringLiteral("\nhasFocus() ") + GalleryText(field->hasFocus());
        });
        row.Reports("textChanged", field->textChanged())
            .Reports("textEdited", field->textEdited())
            .Reports("editingFinished", field->editingFinished());
        return row;
    }
};

const GalleryPluginInfo Info { GalleryInterfaceVersion, "textentry", "Text entry",
                               "Text fields: placeholder, input mask, vetoed keys." };

} // namespace

const GalleryPluginInfo *GalleryPlugin_Info()
{
    return &Info;
}

CFxUIDialog *GalleryPlugin_CreateDialog(IGalleryHost *host)
{
    return new TextEntryPanel(host);
}
