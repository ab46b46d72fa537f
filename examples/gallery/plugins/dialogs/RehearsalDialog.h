#pragma once

#include "UI/FxUIDialog.h"
#include "UI/IFxUIDialogFrontend.h"

#include <functional>

class CFxUIDialogButtonBox;
class CFxUIDialogImpl;
class CFxUILabel;

/// A dialog to try the life of one on. Counts its set-ups and runs, and asks a veto of its own
/// before Escape and the close button reject it.
class RehearsalDialog final : public CFxUIDialog, public IFxUIDialogFrontend {
public:
    /// Stands in front of the window of \a owner.
    explicit RehearsalDialog(const CFxUIDialog &owner);

    void SetupUI() override;
    int exec(bool modal = true) override;

    /// The host's question: may Escape and the close button reject?
    bool IsRejectAllowed() override;

    /// Calls the handler that a host's own frontend would call.
    void PretendHostAccepts();

    /// Called at the end of the set-up, with the button box, for listening to it.
    std::function<void(CFxUIDialogButtonBox *)> onSetUp;

    /// Called each time the veto was asked, with its answer.
    std::function<void(bool)> onAsked;

    bool rejectAllowed = true;
    int setUps = 0;
    int runs = 0;

private:
    CFxUIDialogImpl *Impl() const;
    void AddButton(const char *text, const std::function<void()> &press);
    void ShowCounts();

    CFxUILabel *m_counts = nullptr;
};
