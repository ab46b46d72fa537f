// What the toolkit costs over the bare Qt widget with the same style sheet: making and deleting a
// control, a setter, a user's event. Rows come in pairs, NAME/commonui and NAME/qt.

#include "UI/FxUICheckBox.h"
#include "UI/FxUIComboBox.h"
#include "UI/FxUIGroupBox.h"
#include "UI/FxUIHorizontalLayout.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIListBox.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIRadioButton.h"
#include "UI/FxUIScrollableArea.h"
#include "UI/FxUISlider.h"
#include "UI/FxUIStackedWidget.h"
#include "UI/FxUITextEdit.h"
#include "UI/FxUITextView.h"
#include "UI/FxUIVerticalLayout.h"

#include <benchmark/benchmark.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextEdit>

#include <memory>
#include <string>

namespace {

void FlushDeferredDeletes()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template <class Control> void MakeControl(benchmark::State &state)
{
    for (auto _ : state) {
        delete new Control;
        FlushDeferredDeletes();
    }
}

template <class Widget> void MakeWidget(benchmark::State &state, const QString &sheet)
{
    for (auto _ : state) {
        auto *widget = new Widget;
        widget->setStyleSheet(sheet);
        widget->deleteLater();
        FlushDeferredDeletes();
    }
}

template <class Layout> void MakeBoxLayout(benchmark::State &state)
{
    for (auto _ : state) {
        auto *box = new QGroupBox;
        box->setStyleSheet(QStringLiteral("QGroupBox { border: none; padding: 0px; }"));
        (new Layout(box))->setContentsMargins(0, 0, 0, 0);
        box->deleteLater();
        FlushDeferredDeletes();
    }
}

template <class Control, class Widget>
void RegisterMake(const std::string &name, const QString &sheet)
{
    benchmark::RegisterBenchmark(("make " + name + "/commonui").c_str(), MakeControl<Control>);
    benchmark::RegisterBenchmark(
        ("make " + name + "/qt").c_str(),
        [sheet](benchmark::State &state) { MakeWidget<Widget>(state, sheet); });
}

// Runs \a step over and over with a number that changes each time.
template <class Step> void Repeat(benchmark::State &state, Step step)
{
    int i = 0;
    for (auto _ : state)
        step(++i);
}

template <class Ours, class Theirs>
void RegisterPair(const std::string &name, Ours ours, Theirs theirs)
{
    benchmark::RegisterBenchmark((name + "/commonui").c_str(), ours);
    benchmark::RegisterBenchmark((name + "/qt").c_str(), theirs);
}

QString Text(int i)
{
    return i % 2 ? QStringLiteral("some text") : QStringLiteral("other text");
}

void PressKey(QObject *widget, int key, const QString &text = QString())
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(widget, &press);
}

void RegisterConstruction()
{
    RegisterMake<CFxUILabel, QLabel>("label", QStringLiteral("QLabel { }"));
    RegisterMake<CFxUIPushButton, QPushButton>("push button", QStringLiteral("QPushButton { }"));
    RegisterMake<CFxUICheckBox, QCheckBox>("check box", QStringLiteral("QCheckBox { }"));
    RegisterMake<CFxUIRadioButton, QRadioButton>("radio button",
                                                 QStringLiteral("QRadioButton { }"));
    RegisterMake<CFxUIComboBox, QComboBox>("combo box", QStringLiteral("QComboBox { }"));
    RegisterMake<CFxUIListBox, QListWidget>("list box", QStringLiteral("QListWidget { }"));
    RegisterMake<CFxUISlider, QSlider>("slider", QStringLiteral("QSlider { }"));
    RegisterMake<CFxUITextEdit, QLineEdit>("text edit", QStringLiteral("QLineEdit { }"));
    RegisterMake<CFxUITextView, QTextEdit>("text view", QStringLiteral("QTextEdit { }"));
    RegisterMake<CFxUIGroupBox, QGroupBox>("group box", QStringLiteral("QGroupBox { }"));
    RegisterMake<CFxUIScrollableArea, QScrollArea>("scrollable area",
                                                   QStringLiteral("QScrollView, QScrollArea { }"));
    RegisterMake<CFxUIStackedWidget, QTabWidget>("stacked widget",
                                                 QStringLiteral("QTabWidget { }"));
    RegisterPair("make vertical layout", MakeControl<CFxUIVerticalLayout>,
                 MakeBoxLayout<QVBoxLayout>);
    RegisterPair("make horizontal layout", MakeControl<CFxUIHorizontalLayout>,
                 MakeBoxLayout<QHBoxLayout>);
}

void RegisterTextSetters()
{
    RegisterPair(
        "set label text",
        [](benchmark::State &state) {
            CFxUILabel label;
            Repeat(state, [&](int i) { label.setText(Text(i)); });
        },
        [](benchmark::State &state) {
            QLabel label;
            label.setStyleSheet(QStringLiteral("QLabel { }"));
            Repeat(state, [&](int i) { label.setText(Text(i)); });
        });
    RegisterPair(
        "set button text",
        [](benchmark::State &state) {
            CFxUIPushButton button;
            Repeat(state, [&](int i) { button.setText(Text(i)); });
        },
        [](benchmark::State &state) {
            QPushButton button;
            button.setStyleSheet(QStringLiteral("QPushButton { }"));
            Repeat(state, [&](int i) { button.setText(Text(i)); });
        });
    RegisterPair(
        "set edit text",
        [](benchmark::State &state) {
            CFxUITextEdit edit;
            Repeat(state, [&](int i) { edit.setText(Text(i)); });
        },
        [](benchmark::State &state) {
            QLineEdit edit;
            edit.setStyleSheet(QStringLiteral("QLineEdit { }"));
            Repeat(state, [&](int i) { edit.setText(Text(i)); });
        });
}

void RegisterValueSetters()
{
    RegisterPair(
        "set slider value",
        [](benchmark::State &state) {
            CFxUISlider slider;
            Repeat(state, [&](int i) { slider.setValue(i % 100); });
        },
        [](benchmark::State &state) {
            QSlider slider(Qt::Horizontal);
            slider.setStyleSheet(QStringLiteral("QSlider { }"));
            Repeat(state, [&](int i) { slider.setValue(i % 100); });
        });
    RegisterPair(
        "set check box",
        [](benchmark::State &state) {
            CFxUICheckBox box;
            Repeat(state, [&](int i) { box.setChecked(i % 2); });
        },
        [](benchmark::State &state) {
            QCheckBox box;
            box.setStyleSheet(QStringLiteral("QCheckBox { }"));
            Repeat(state, [&](int i) { box.setChecked(i % 2); });
        });
    RegisterPair(
        "set combo index",
        [](benchmark::State &state) {
            CFxUIComboBox box;
            for (int i = 0; i < 10; ++i)
                box.addItem(Text(i));
            Repeat(state, [&](int i) { box.setCurrentIndex(i % 10); });
        },
        [](benchmark::State &state) {
            QComboBox box;
            box.setStyleSheet(QStringLiteral("QComboBox { }"));
            for (int i = 0; i < 10; ++i)
                box.addItem(Text(i));
            Repeat(state, [&](int i) { box.setCurrentIndex(i % 10); });
        });
}

// Both sides have one slot.
void RegisterUserEvents()
{
    RegisterPair(
        "user clicks a button",
        [](benchmark::State &state) {
            CFxUIPushButton button;
            int clicks = 0;
            button.clicked().connect([&clicks](bool) { ++clicks; });
            auto *widget = static_cast<QPushButton *>(button.getHandle());
            Repeat(state, [&](int) { widget->click(); });
            benchmark::DoNotOptimize(clicks);
        },
        [](benchmark::State &state) {
            QPushButton button;
            button.setStyleSheet(QStringLiteral("QPushButton { }"));
            int clicks = 0;
            QObject::connect(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
            Repeat(state, [&](int) { button.click(); });
            benchmark::DoNotOptimize(clicks);
        });
    RegisterPair(
        "user types a letter",
        [](benchmark::State &state) {
            CFxUITextEdit edit;
            int changes = 0;
            edit.textChanged().connect([&changes](const QString &) { ++changes; });
            Repeat(state, [&](int i) {
                PressKey(edit.getHandle(), i % 2 ? Qt::Key_A : Qt::Key_Backspace,
                         i % 2 ? QStringLiteral("a") : QString());
            });
            benchmark::DoNotOptimize(changes);
        },
        [](benchmark::State &state) {
            QLineEdit edit;
            edit.setStyleSheet(QStringLiteral("QLineEdit { }"));
            int changes = 0;
            QObject::connect(&edit, &QLineEdit::textChanged, &edit, [&changes] { ++changes; });
            Repeat(state, [&](int i) {
                PressKey(&edit, i % 2 ? Qt::Key_A : Qt::Key_Backspace,
                         i % 2 ? QStringLiteral("a") : QString());
            });
            benchmark::DoNotOptimize(changes);
        });
    RegisterPair(
        "user moves a slider",
        [](benchmark::State &state) {
            CFxUISlider slider;
            int changes = 0;
            slider.valueChanged().connect([&changes](int) { ++changes; });
            Repeat(state, [&](int i) {
                PressKey(slider.getHandle(), i % 2 ? Qt::Key_Right : Qt::Key_Left);
            });
            benchmark::DoNotOptimize(changes);
        },
        [](benchmark::State &state) {
            QSlider slider(Qt::Horizontal);
            slider.setStyleSheet(QStringLiteral("QSlider { }"));
            int changes = 0;
            QObject::connect(&slider, &QSlider::valueChanged, &slider, [&changes] { ++changes; });
            Repeat(state, [&](int i) { PressKey(&slider, i % 2 ? Qt::Key_Right : Qt::Key_Left); });
            benchmark::DoNotOptimize(changes);
        });
}

// setText of a text view selects the old text a character at a time: its cost against that length.
void RegisterTextViewCurve()
{
    const auto curve = [](benchmark::State &state) {
        CFxUITextView view;
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

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RegisterConstruction();
    RegisterTextSetters();
    RegisterValueSetters();
    RegisterUserEvents();
    RegisterTextViewCurve();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
