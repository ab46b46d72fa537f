#include "UI/Impl/FxUIDialogButtonBoxImpl.h"

#include "UI/FxUIDialog.h"
#include "UI/FxUIPushButton.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

namespace {

constexpr bool IsSame(CFxUIDialogButtonBox::StandardButton ours,
                      QDialogButtonBox::StandardButton theirs)
{
    return static_cast<int>(ours) == static_cast<int>(theirs);
}

static_assert(IsSame(CFxUIDialogButtonBox::NoButton, QDialogButtonBox::NoButton));
static_assert(IsSame(CFxUIDialogButtonBox::Ok, QDialogButtonBox::Ok));
static_assert(IsSame(CFxUIDialogButtonBox::Save, QDialogButtonBox::Save));
static_assert(IsSame(CFxUIDialogButtonBox::SaveAll, QDialogButtonBox::SaveAll));
static_assert(IsSame(CFxUIDialogButtonBox::Open, QDialogButtonBox::Open));
static_assert(IsSame(CFxUIDialogButtonBox::Yes, QDialogButtonBox::Yes));
static_assert(IsSame(CFxUIDialogButtonBox::YesToAll, QDialogButtonBox::YesToAll));
static_assert(IsSame(CFxUIDialogButtonBox::No, QDialogButtonBox::No));
static_assert(IsSame(CFxUIDialogButtonBox::NoToAll, QDialogButtonBox::NoToAll));
static_assert(IsSame(CFxUIDialogButtonBox::Abort, QDialogButtonBox::Abort));
static_assert(IsSame(CFxUIDialogButtonBox::Retry, QDialogButtonBox::Retry));
static_assert(IsSame(CFxUIDialogButtonBox::Ignore, QDialogButtonBox::Ignore));
static_assert(IsSame(CFxUIDialogButtonBox::Close, QDialogButtonBox::Close));
static_assert(IsSame(CFxUIDialogButtonBox::Cancel, QDialogButtonBox::Cancel));
static_assert(IsSame(CFxUIDialogButtonBox::Discard, QDialogButtonBox::Discard));
static_assert(IsSame(CFxUIDialogButtonBox::Help, QDialogButtonBox::Help));
static_assert(IsSame(CFxUIDialogButtonBox::Apply, QDialogButtonBox::Apply));
static_assert(IsSame(CFxUIDialogButtonBox::Reset, QDialogButtonBox::Reset));
static_assert(IsSame(CFxUIDialogButtonBox::RestoreDefaults, QDialogButtonBox::RestoreDefaults));
static_assert(IsSame(CFxUIDialogButtonBox::FirstButton, QDialogButtonBox::FirstButton));
static_assert(IsSame(CFxUIDialogButtonBox::LastButton, QDialogButtonBox::LastButton));

// A handle without wiring: the connections that the wrapper made die with its own widget.
CFxUIPushButton *WrapButton(const QDialogButtonBox *box, QDialogButtonBox::StandardButton which)
{
    auto *wrapper = new CFxUIPushButton;
    delete wrapper->getHandle();
    wrapper->setHandle(box->button(which));
    return wrapper;
}

} // namespace

void CFxUIDialogButtonBoxImpl::CreateButtonBoxImpl(CFxUIDialog *dialog)
{
    auto *box = new QDialogButtonBox(FrontendCast<QDialog>(dialog));
    box->setMinimumHeight(30);
    box->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel
                            | QDialogButtonBox::Help);
    owner->setHandle(box);
    if (CFxUIVerticalLayout *layout = dialog ? dialog->GetLayout() : nullptr)
        layout->addView(static_cast<CFxUIBaseView *>(owner), 0.0f);
}

// QDialogButtonBox::helpRequested isn't connected. Intended.
void CFxUIDialogButtonBoxImpl::WrapButtonsImpl()
{
    auto *box = FrontendCast<QDialogButtonBox>(owner);
    m_okButton = WrapButton(box, QDialogButtonBox::Ok);
    m_cancelButton = WrapButton(box, QDialogButtonBox::Cancel);
    m_helpButton = WrapButton(box, QDialogButtonBox::Help);
    ConnectFrontend(box, &QDialogButtonBox::accepted, this, [this] { OnResult(1); });
    ConnectFrontend(box, &QDialogButtonBox::rejected, this, [this] { OnResult(0); });
    ConnectFrontend(box, &QDialogButtonBox::clicked, this, &CFxUIDialogButtonBoxImpl::OnClicked);
}
