#pragma once

#include "interface/GalleryPlugin.h"
#include "interface/GalleryText.h"
#include "UI/FxUISignal.h"

#include <functional>
#include <memory>

class CFxUILabel;

/// The row of a panel: reports signals to the live log and in the answer beside the control, and
/// shows what the getters answer.
///
/// A light handle to be copied; it stays valid while the panel lives.
class GalleryRow {
public:
    /// \a answers makes the text of what the getters answer; may be empty. It is called now and
    /// after each reported signal.
    GalleryRow(IGalleryHost *host, const QString &object, CFxUILabel *answer,
               std::function<QString()> answers);

    /// Reports each emission of \a signal under \a name, the name of its accessor. Returns the row,
    /// for the next one.
    template <class... Args>
    GalleryRow &Reports(const char *name, CFxUISignal<void(Args...)> &signal)
    {
        const QString signalName = QString::fromUtf8(name);
        signal.connect([row = *this, signalName](Args... args) mutable {
            row.Fired(signalName, GalleryTexts(args...));
        });
        return *this;
    }

    /// Reports something by hand, as if a signal had fired.
    void Fired(const QString &name, const QString &arguments = QString());

    /// Shows what the getters answer now; for a change that no signal tells.
    void Refresh();

private:
    struct State;
    std::shared_ptr<State> m_state;
};
