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
    rows.Set("setText", [](auto &edit, int i) { edit.setText(Text(i)); });
    rows.Set("setText, clear", [](auto &edit, int i) {
        edit.setText(Text(i));
        edit.clear();
    });
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

void RegisterViewSetters(const Rows<View, BareTextView> &rows)
{
    const auto clear = [](auto &view) { view.clear(); };
    rows.Set("setText", [](auto &view, int i) { view.setText(Text(i)); });
    rows.Set("setText, clear", [](auto &view, int i) {
        view.setText(Text(i));
        view.clear();
    });
    rows.Set(
        "setHtmlText", [](View &view, int i) { view.setHtmlText(Text(i)); },
        [](BareTextView &view, int i) { view.setHtml(Text(i)); });
    rows.SetFrom(
        "addText", 16, clear, [](View &view, int i) { view.addText(Text(i)); },
        [](BareTextView &view, int i) { view.append(Text(i).toHtmlEscaped()); });
    rows.SetFrom(
        "addHtmlText", 16, clear, [](View &view, int i) { view.addHtmlText(Text(i)); },
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

// setText of a text view selects the old text a character at a time: its cost against that length.
void RegisterCurve()
{
    const auto curve = [](benchmark::State &state) {
        View view;
        const QString text(static_cast<int>(state.range(0)), QLatin1Char('x'));
        view.setText(text);
        for (auto _ : state)
            view.setText(text);
    };
    benchmark::RegisterBenchmark("text view setText", curve)
        ->RangeMultiplier(4)
        ->Range(16, 65536)
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

void RegisterTextRows()
{
    RegisterTextEdit();
    const Rows<View, BareTextView> view("text view");
    view.Make();
    RegisterViewSetters(view);
    RegisterViewEvents(view);
    RegisterCurve();
}
