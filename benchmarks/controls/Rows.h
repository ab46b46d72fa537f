// The table's vocabulary: Rows<Control, Bare> names a control and its peer, and each of its
// operations registers one row, "CONTROL/GROUP/NAME".

#pragma once

#include "Pairs.h"

#include <QtWidgets/QWidget>

#include <string>
#include <type_traits>
#include <utility>

void RegisterViewRows();
void RegisterButtonRows();
void RegisterCheckableRows();
void RegisterChoiceRows();
void RegisterTextRows();
void RegisterContainerRows();
void RegisterDialogRows();
void RegisterMenuRows();

/// \a Bare is what one writes in Qt alone for the same widget: the same style sheet and set-up, and
/// where the control listens to a Qt signal, a lambda on it that stores the value. Its `heard`
/// counts what a slot of the caller's would get.
template <class Control, class Bare> class Rows {
public:
    explicit Rows(std::string control)
        : m_control(std::move(control))
    {
    }

    /// Making and deleting, with the deferred deletion of the widget.
    void Make(const std::string &name = "alone") const
    {
        const auto ours = [](int) {
            delete new Control;
            Settle();
        };
        const auto theirs = [](int) {
            Release(new Bare);
            Settle();
        };
        Register("make", name, [ours, theirs](benchmark::State &state) {
            Compare(state, Side(Nothing, ours), Side(Nothing, theirs), 0);
        });
    }

    /// A setter that is spelt alike on both sides.
    template <class Step> void Set(const std::string &name, Step step) const
    {
        Set(name, step, step);
    }

    template <class Ours, class Theirs>
    void Set(const std::string &name, Ours ours, Theirs theirs) const
    {
        SetFrom(
            name, 0, [](auto &) {}, ours, theirs);
    }

    /// A setter that changes what the next call costs: \a reset comes before each batch of \a
    /// calls, or of as many as it takes for 0, and isn't timed.
    template <class Reset, class Ours, class Theirs>
    void SetFrom(const std::string &name, int calls, Reset reset, Ours ours, Theirs theirs) const
    {
        Register("set", name, [calls, reset, ours, theirs](benchmark::State &state) {
            Control control;
            Bare bare;
            Compare(state, Side([&] { reset(control); }, [&](int i) { ours(control, i); }),
                    Side([&] { reset(bare); }, [&](int i) { theirs(bare, i); }), calls);
        });
    }

    /// An event of the user's, sent to the Qt object by \a step, which is given it and a number.
    template <class Step> void User(const std::string &name, Step step) const
    {
        Register("user", name, [step](benchmark::State &state) {
            Control control;
            Bare bare;
            Compare(state, Side(Nothing, [&](int i) { step(Handle(control), i); }),
                    Side(Nothing, [&](int i) { step(bare, i); }), 0);
        });
    }

    /// The same, and \a listen connects a slot to the control that counts in its second argument.
    template <class Listen, class Step>
    void User(const std::string &name, Listen listen, Step step) const
    {
        Register("user", name, [listen, step](benchmark::State &state) {
            Control control;
            Bare bare;
            int heard = 0;
            listen(control, heard);
            bare.heard = 0;
            Side ours(Nothing, [&](int i) { step(Handle(control), i); });
            Side theirs(Nothing, [&](int i) { step(bare, i); });
            Compare(state, ours, theirs, 0);
            CheckHeard(state, double(heard) / ours.Calls(), double(bare.heard) / theirs.Calls());
        });
    }

private:
    using Target = std::conditional_t<std::is_base_of_v<QWidget, Bare>, QWidget, QObject>;

    static void Nothing() { }

    /// As the controls do: a widget goes later, any other object at once.
    static void Release(Bare *bare)
    {
        if constexpr (std::is_base_of_v<QWidget, Bare>)
            bare->deleteLater();
        else
            delete bare;
    }

    static Target &Handle(const Control &control)
    {
        return *static_cast<Target *>(control.getHandle());
    }

    template <class Run>
    void Register(const std::string &group, const std::string &name, Run run) const
    {
        benchmark::RegisterBenchmark((m_control + '/' + group + '/' + name).c_str(), run);
    }

    /// Both slots must have been called, and equally often for an event.
    static void CheckHeard(benchmark::State &state, double ours, double theirs)
    {
        if (!(ours > 0) || ours < theirs || ours > theirs)
            state.SkipWithError("the slots weren't called equally often");
    }

    std::string m_control;
};
