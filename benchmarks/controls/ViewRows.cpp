// The setters that every view has, on a label; then the label's own.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUILabel.h"

namespace {

using Label = CFxUILabel;
using Bare = BareLabel;

void ResetSheet(QWidget *widget)
{
    widget->setStyleSheet(QStringLiteral("QLabel { }"));
}

void ResetSheet(Label &label)
{
    ResetSheet(static_cast<QWidget *>(label.getHandle()));
}

void ResetSheet(Bare &label)
{
    ResetSheet(&label);
}

const QPalette &BaseAndText(int i)
{
    static const QPalette palettes[] = { [] {
                                            QPalette palette;
                                            palette.setColor(QPalette::Base, Qt::yellow);
                                            palette.setColor(QPalette::Text, Qt::blue);
                                            return palette;
                                        }(),
                                         [] {
                                             QPalette palette;
                                             palette.setColor(QPalette::Base, Qt::white);
                                             palette.setColor(QPalette::Text, Qt::red);
                                             return palette;
                                         }() };
    return palettes[i % 2];
}

void SetPaletteOfBare(Bare &label, int i)
{
    const QPalette &wanted = BaseAndText(i);
    label.setStyleSheet(
        QStringLiteral("QLabel { background-color: %1;}").arg(wanted.color(QPalette::Base).name()));
    QPalette palette = label.palette();
    palette.setColor(QPalette::Text, wanted.color(QPalette::Text));
    label.setPalette(palette);
}

void RegisterCommonSetters(const Rows<Label, Bare> &rows)
{
    rows.Set("setObjectName", [](auto &label, int i) { label.setObjectName(Text(i)); });
    rows.Set("setProperty", [](auto &label, int i) { label.setProperty("indent", i % 9); });
    rows.Set("setEnabled", [](auto &label, int i) { label.setEnabled(i % 2); });
    rows.Set("setDisabled", [](auto &label, int i) { label.setDisabled(i % 2); });
    rows.Set("setVisible", [](auto &label, int i) { label.setVisible(i % 2); });
    rows.Set("setFocus", [](auto &label, int) { label.setFocus(); });
    rows.Set(
        "setFocusPolicy", [](Label &label, int i) { label.setFocusPolicy(i % 2); },
        [](Bare &label, int i) { label.setFocusPolicy(i % 2 ? Qt::TabFocus : Qt::NoFocus); });
    rows.Set("setMinimumWidth", [](auto &label, int i) { label.setMinimumWidth(i % 9); });
    rows.Set("setMinimumHeight", [](auto &label, int i) { label.setMinimumHeight(i % 9); });
    rows.Set("setMaximumWidth", [](auto &label, int i) { label.setMaximumWidth(1000 + i % 9); });
    rows.Set("setMaximumHeight", [](auto &label, int i) { label.setMaximumHeight(1000 + i % 9); });
    rows.Set("update", [](auto &label, int) { label.update(); });
}

// Ours adds declarations to the sheet that is there, so each call starts from the first sheet.
void RegisterStyleSetters(const Rows<Label, Bare> &rows)
{
    const auto reset = [](auto &label) { ResetSheet(label); };
    rows.SetFrom(
        "setPalette", 1, reset, [](Label &label, int i) { label.setPalette(BaseAndText(i)); },
        SetPaletteOfBare);
    rows.SetFrom(
        "setBorderWidth", 1, reset, [](Label &label, int) { label.setBorderWidth(2); },
        [](Bare &label, int) {
            label.setStyleSheet(
                QStringLiteral("QLabel { border-style:solid;border-width:%1px;}").arg(2));
        });
    rows.SetFrom(
        "setBorderWidth, each side", 1, reset,
        [](Label &label, int) { label.setBorderWidth(1, 2, 3, 4); },
        [](Bare &label, int) {
            label.setStyleSheet(
                QStringLiteral("QLabel { border-left-style:solid;border-top-style:solid;"
                               "border-right-style:solid;border-bottom-style:solid;"
                               "border-left-width:%1px;border-top-width:%2px;"
                               "border-right-width:%3px;border-bottom-width:%4px;}")
                    .arg(1)
                    .arg(2)
                    .arg(3)
                    .arg(4));
        });
    rows.SetFrom(
        "setBorderColor", 1, reset, [](Label &label, int) { label.setBorderColor(1, 2, 3); },
        [](Bare &label, int) {
            label.setStyleSheet(
                QStringLiteral("QLabel { border-color: %1;}").arg(QColor(1, 2, 3).name()));
        });
}

template <class Change> void ChangeFont(Bare &label, Change change)
{
    QFont font = label.font();
    change(font);
    label.setFont(font);
}

void RegisterLabelSetters(const Rows<Label, Bare> &rows)
{
    rows.Set("setText", [](auto &label, int i) { label.setText(Text(i)); });
    const auto clear = [](auto &label, int) { label.clear(); };
    rows.SetFrom(
        "clear", 1, [](auto &label) { label.setText(Text(0)); }, clear, clear);
    rows.Set(
        "setIcon", [](Label &label, int i) { label.setIcon(Icon(i)); },
        [](Bare &label, int i) { label.setPixmap(Icon(i).pixmap(QSize(25, 25))); });
    rows.Set("setPixmap", [](auto &label, int i) { label.setPixmap(Pixmap(i)); });
    rows.Set(
        "setBoldText", [](Label &label, int i) { label.setBoldText(i % 2); },
        [](Bare &label, int i) { ChangeFont(label, [i](QFont &font) { font.setBold(i % 2); }); });
    rows.Set(
        "setFontSize", [](Label &label, int i) { label.setFontSize(10 + i % 9); },
        [](Bare &label, int i) {
            ChangeFont(label, [i](QFont &font) { font.setPixelSize(10 + i % 9); });
        });
    rows.Set("setWordWrap", [](auto &label, int i) { label.setWordWrap(i % 2); });
    rows.Set("setToolTip", [](auto &label, int i) { label.setToolTip(Text(i)); });
    rows.Set(
        "setTextAlignment",
        [](Label &label, int i) {
            label.setTextAlignment(i % 2 ? Label::AlignRight : Label::AlignCenter);
        },
        [](Bare &label, int i) { label.setAlignment(i % 2 ? Qt::AlignRight : Qt::AlignCenter); });
}

} // namespace

void RegisterViewRows()
{
    const Rows<Label, Bare> view("view");
    RegisterCommonSetters(view);
    RegisterStyleSetters(view);
    const Rows<Label, Bare> label("label");
    label.Make();
    RegisterLabelSetters(label);
}
