#pragma once

#include "interface/GalleryText.h"
#include "UI/FxUISignal.h"
#include "UI/FxUITimer.h"

#include <QtCore/QStringList>

#include <memory>

/// Everything that fired within one turn of the event loop, in order: what one click or one call
/// has set off. A light handle to be copied.
class EmissionSequence {
public:
    template <class... Args> void Follow(const char *name, CFxUISignal<void(Args...)> &signal)
    {
        signal.connect([state = m_state, signalName = QString::fromUtf8(name)](Args... args) {
            Add(state, QStringLiteral("%1(%2)").arg(signalName, GalleryTexts(args...)));
        });
    }

    /// Begins anew: what is called next may well be silent.
    void Restart() { m_state->emissions.clear(); }

    QString Text() const
    {
        return QStringLiteral("fired: ")
            + (m_state->emissions.isEmpty() ? QStringLiteral("nothing")
                                            : m_state->emissions.join(QStringLiteral(", ")));
    }

private:
    struct State {
        QStringList emissions;
        bool running = false;
    };

    static void Add(const std::shared_ptr<State> &state, const QString &emission)
    {
        if (!state->running) {
            state->running = true;
            state->emissions.clear();
            CFxUITimer::singleShot(0, [state] { state->running = false; });
        }
        state->emissions.append(emission);
    }

    std::shared_ptr<State> m_state = std::make_shared<State>();
};
