#include "RehearsalDialog.h"

#include "UI/FxUIDialogButtonBox.h"
#include "UI/FxUILabel.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/FxUIDialogImpl.h"
#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

namespace {

constexpr int Margin = 16;
constexpr int Spacing = 8;

} // namespace

RehearsalDialog::RehearsalDialog(const CFxUIDialog &owner)
{
    setWindowTitle(QStringLiteral("Rehearsal"));
    auto *window = qobject_cast<CFxUIDialogFrontend *>(getHandle());
    window->setCommonParameters(qobject_cast<CFxDialog *>(owner.getHandle()),
                                window->windowFlags());
    window->setIsRejectCallObject(this);
}

void RehearsalDialog::SetupUI()
{
    ++setUps;
    GetLayout()->setContentsMargins(Margin, Margin, Margin, Margin);
    GetLayout()->setSpacing(Spacing);
    m_counts = new CFxUILabel;
    ShowCounts();
    GetLayout()->addView(m_counts);
    AddButton("done(5)", [this] { done(5); });
    AddButton("setResult(7), then hide()", [this] {
        setResult(7);
        hide();
    });
    AddButton("OnHelpPressed() of the implementation object", [this] { Impl()->OnHelpPressed(); });

    auto *box = new CFxUIDialogButtonBox(this);
    box->accepted().connect([this] { accept(); });
    box->rejected().connect([this] { reject(); });
    if (onSetUp)
        onSetUp(box);
}

int RehearsalDialog::exec(bool modal)
{
    ++runs;
    if (m_counts) // else the set-up is still to come, inside the run
        ShowCounts();
    return CFxUIDialog::exec(modal);
}

bool RehearsalDialog::IsRejectAllowed()
{
    if (onAsked)
        onAsked(rejectAllowed);
    return rejectAllowed;
}

void RehearsalDialog::PretendHostAccepts()
{
    Impl()->OnAccepted();
}

CFxUIDialogImpl *RehearsalDialog::Impl() const
{
    return static_cast<CFxUIDialogImpl *>(impl);
}

void RehearsalDialog::AddButton(const char *text, const std::function<void()> &press)
{
    auto *button = new CFxUIPushButton;
    button->setText(QString::fromUtf8(text));
    button->clicked().connect([press](bool) { press(); });
    GetLayout()->addView(button);
}

void RehearsalDialog::ShowCounts()
{
    m_counts->setText(QStringLiteral("Set-ups: %1, runs: %2").arg(setUps).arg(runs));
}
