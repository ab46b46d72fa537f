// Text edit and text view.

#include "Bare.h"
#include "Rows.h"
#include "Steps.h"

#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QFocusEvent>

namespace {

using Edit = CFxUITextEdit;
using View = CFxUITextView;

void RegisterEditSetters(const Rows<Edit, BareTextEdit> &rows)
{
    const auto clear = [](auto &edit, int) { edit.clear(); };
    rows.Set("setText", [](auto &edit, int i) { edit.setText(Text(i)); });
    rows.SetFrom(
        "clear", 1, [](auto &edit) { edit.setText(Text(0)); }, clear, clear);
    rows.Set(
        "setPlainText", [](Edit &edit, int i) { edit.setPlainText(Text(i)); },
        [](BareTextEdit &edit, int i) { edit.setText(Text(i)); });
    rows.Set("selectAll", [](auto &edit, int) { edit.selectAll(); });
    rows.Set("setFocus", [](auto &edit, int) { edit.setFocus(); });
    rows.Set("setPlaceholderText", [](auto &edit, int i) { edit.setPlaceholderText(Text(i)); });
    rows.Set("setClearButtonEnabled", [](auto &edit, int i) { edit.setClearButtonEnabled(i % 2); });
    rows.Set("setInputMask", [](auto &edit, int i) {
        edit.setInputMask(i % 2 ? QStringLiteral("000") : QString());
    });
    rows.Set("setReadOnly", [](auto &edit, int i) { edit.setReadOnly(i % 2); });
}

void RegisterTextEdit()
{
    const Rows<Edit, BareTextEdit> rows("text edit");
    rows.Make();
    RegisterEditSetters(rows);
    rows.User(
        "type a letter",
        [](Edit &edit, int &heard) {
            edit.textChanged().connect([&heard](const QString &) { ++heard; });
        },
        Type);
}

/// In the same way on both sides: setText() leaves another state of the document behind.
struct FillWithHtml {
    void operator()(View &view) const { view.setHtmlText(Text(0)); }

    void operator()(BareTextView &view) const { view.setHtml(Text(0)); }
};

void RegisterViewSetters(const Rows<View, BareTextView> &rows)
{
    const auto empty = [](auto &view) { view.clear(); };
    const auto clear = [](auto &view, int) { view.clear(); };
    rows.Set(
        "setText", [](View &view, int i) { view.setText(Text(i)); },
        [](BareTextView &view, int i) { view.setPlainText(Text(i)); });
    rows.SetFrom("clear", 1, FillWithHtml {}, clear, clear);
    rows.Set(
        "setHtmlText", [](View &view, int i) { view.setHtmlText(Text(i)); },
        [](BareTextView &view, int i) { view.setHtml(Text(i)); });
    rows.SetFrom(
        "addText", 16, empty, [](View &view, int i) { view.addText(Text(i)); },
        [](BareTextView &view, int i) { view.append(Text(i).toHtmlEscaped()); });
    rows.SetFrom(
        "addHtmlText", 16, empty, [](View &view, int i) { view.addHtmlText(Text(i)); },
        [](BareTextView &view, int i) {
            view.moveCursor(QTextCursor::End);
            view.insertHtml(Text(i));
        });
    rows.Set("setReadOnly", [](auto &view, int i) { view.setReadOnly(i % 2); });
    rows.Set("setPlaceholderText", [](auto &view, int i) { view.setPlaceholderText(Text(i)); });
}

void SendFocus(QWidget &widget, QEvent::Type type)
{
    QFocusEvent event(type, Qt::OtherFocusReason);
    QCoreApplication::sendEvent(&widget, &event);
}

void RegisterViewEvents(const Rows<View, BareTextView> &rows)
{
    rows.User(
        "type a letter",
        [](View &view, int &heard) { view.textChanged().connect([&heard] { ++heard; }); }, Type);
    rows.User(
        "focus, in and out",
        [](View &view, int &heard) {
            view.focusInEventSignal().connect([&heard] { ++heard; });
            view.focusOutEventSignal().connect([&heard] { ++heard; });
        },
        [](QWidget &view, int) {
            SendFocus(view, QEvent::FocusIn);
            SendFocus(view, QEvent::FocusOut);
        });
}

void CompareLength(benchmark::State &state, int length)
{
    const QString text(length, QLatin1Char('x'));
    View view;
    BareTextView bare;
    view.setText(text);
    bare.setPlainText(text);
    Compare(state, Side([] {}, [&](int) { view.setText(text); }),
            Side([] {}, [&](int) { bare.setPlainText(text); }), 1);
}

// setText of a text view selects the old text a character at a time: its cost against that length.
void RegisterLengths()
{
    for (int length = 16; length <= 65536; length *= 4) {
        benchmark::RegisterBenchmark(
            ("text view/length/" + std::to_string(length)).c_str(),
            [length](benchmark::State &state) { CompareLength(state, length); });
    }
}

} // namespace

void RegisterTextRows()
{
    RegisterTextEdit();
    const Rows<View, BareTextView> view("text view");
    view.Make();
    RegisterViewSetters(view);
    RegisterViewEvents(view);
    RegisterLengths();
}
