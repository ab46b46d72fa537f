#include "interface/GalleryPanel.h"

#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"

namespace {

constexpr int Margin = 18;
constexpr int Spacing = 6;
constexpr int ColumnSpacing = 14;
constexpr int CaptionWidth = 150;
constexpr int RowHeight = 32;
constexpr int ActionHeight = 26;
constexpr int ActionPadding = 20;
constexpr int LetterWidth = 7; // of most texts, about
constexpr int ActionSpacing = 8;
constexpr int HeadingSpacing = 6; // above a heading, beside Spacing
constexpr int AnswerHeight = 40; // two lines, so that a first signal moves nothing

// The column of the control. The empty view takes what a control of a fixed width leaves, so that
// it stands at the left.
CFxUIBaseView *MakeCell(CFxUIBaseView *control)
{
    auto *rest = new CFxUIHorizontalLayout;
    rest->setMinimumWidth(1);
    auto *cell = new CFxUIHorizontalLayout;
    cell->setSpacing(0);
    cell->addView(control, 1);
    cell->addView(rest);
    cell->setMinimumWidth(GalleryPanel::ControlWidth);
    cell->setMaximumWidth(GalleryPanel::ControlWidth);
    return cell;
}

} // namespace

GalleryPanel::GalleryPanel(IGalleryHost *host, const char *title)
    : m_host(host)
{
    setWindowTitle(QString::fromUtf8(title));
}

void GalleryPanel::SetupUI()
{
    GetLayout()->setContentsMargins(Margin, Margin, Margin, Margin);
    GetLayout()->setSpacing(Spacing);
    Build();
    if (!m_filled)
        GetLayout()->addView(new CFxUIVerticalLayout, 1);
}

void GalleryPanel::AddHeading(const char *text)
{
    // Rich text: the dark sheet fixes the font of labels and would undo a bold or larger one.
    auto *label = new CFxUILabel;
    label->setText(QStringLiteral("<span style=\"font-size:15px; font-weight:bold\">%1</span>")
                       .arg(QString::fromUtf8(text).toHtmlEscaped()));

    auto *line = new CFxUILabel;
    line->setMinimumHeight(1);
    line->setMaximumHeight(1);
    QPalette grey;
    grey.setColor(QPalette::Base, QColor(0x80, 0x80, 0x80));
    line->setPalette(grey);

    auto *heading = new CFxUIVerticalLayout;
    heading->setContentsMargins(0, HeadingSpacing, 0, 0);
    heading->setSpacing(2);
    heading->addView(label);
    heading->addView(line);
    GetLayout()->addView(heading);
}

void GalleryPanel::AddNote(const char *text)
{
    GetLayout()->addView(MakeLabel(QString::fromUtf8(text), 0));
}

GalleryRow GalleryPanel::AddRow(const char *caption, CFxUIBaseView *control, Answers answers)
{
    control->setMinimumHeight(RowHeight);
    control->setMaximumHeight(RowHeight); // the row may be higher
    return AddColumns(caption, control, std::move(answers), false);
}

GalleryRow GalleryPanel::AddTallRow(const char *caption, CFxUIBaseView *control, Answers answers)
{
    return AddColumns(caption, control, std::move(answers), true);
}

GalleryRow GalleryPanel::AddWideRow(const char *caption, CFxUIBaseView *control, Answers answers)
{
    const QString object = QString::fromUtf8(caption);
    auto *head = new CFxUIHorizontalLayout;
    head->setSpacing(ColumnSpacing);
    CFxUILabel *answer = MakeLabel({}, 0);
    head->addView(MakeLabel(object, CaptionWidth));
    head->addView(answer, 1);
    GetLayout()->addView(head);
    GetLayout()->addView(control, 1);
    m_filled = true;
    return { m_host, object, answer, std::move(answers) };
}

void GalleryPanel::AddActions(const GalleryRow &row, const std::vector<Action> &actions)
{
    auto *line = new CFxUIHorizontalLayout;
    line->setSpacing(ActionSpacing);
    line->setContentsMargins(CaptionWidth + ColumnSpacing, 0, 0, 0);
    for (const Action &action : actions) {
        auto *button = new CFxUIPushButton;
        button->setText(QString::fromUtf8(action.text));
        button->setMinimumWidth(button->text().size() * LetterWidth + ActionPadding);
        button->setMinimumHeight(ActionHeight);
        button->clicked().connect([changed = GalleryRow(row), run = action.run](bool) mutable {
            run();
            changed.Refresh();
        });
        line->addView(button);
    }
    line->addView(new CFxUIHorizontalLayout, 1);
    GetLayout()->addView(line);
}

CFxUILabel *GalleryPanel::MakeLabel(const QString &text, int width) const
{
    auto *label = new CFxUILabel;
    label->setText(text);
    label->setWordWrap(true);
    label->setMinimumHeight(1); // or the height at a lesser width would be kept free
    if (width > 0) {
        label->setMinimumWidth(width);
        label->setMaximumWidth(width);
    }
    return label;
}

GalleryRow GalleryPanel::AddColumns(const char *caption, CFxUIBaseView *control, Answers answers,
                                    bool tall)
{
    const QString object = QString::fromUtf8(caption);
    CFxUILabel *captionLabel = MakeLabel(object, CaptionWidth);
    CFxUILabel *answer = MakeLabel({}, 0);
    if (answers)
        answer->setMinimumHeight(AnswerHeight);
    if (tall) {
        captionLabel->setTextAlignment(CFxUIBaseView::AlignLeft);
        answer->setTextAlignment(CFxUIBaseView::AlignLeft);
    }

    CFxUIBaseView *cell = MakeCell(control);

    auto *row = new CFxUIHorizontalLayout;
    row->setSpacing(ColumnSpacing);
    row->addView(captionLabel);
    row->addView(cell);
    row->addView(answer, 1);
    GetLayout()->addView(row);
    return { m_host, object, answer, std::move(answers) };
}
