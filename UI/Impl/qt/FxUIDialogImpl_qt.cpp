#include "UI/Impl/FxUIDialogImpl.h"

#include "FxDocument.h"
#include "UI/FxUIDialog.h"
#include "UI/FxUIVerticalLayout.h"
#include "UI/Impl/qt/ConnectFrontend.h"
#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"
#include "UI/Impl/qt/FrontendCast.h"

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QVBoxLayout>

namespace {

// Nothing goes on in the group box, and the destructor of the layout leaves it alone.
void LeaveGroupBoxBehind(CFxUIVerticalLayout *layout)
{
    layout->setBusyState(false);
    layout->setHandle(nullptr);
}

} // namespace

void CFxUIDialogImpl::CreateFrontendDialogImpl()
{
    auto *dialog = new CFxUIDialogFrontend;
    LinkFrontend(dialog, this);
    owner->setHandle(dialog);
}

// The window is left behind, with its group box and Qt layout inside. Intended.
void CFxUIDialogImpl::DestroyFrontendDialogImpl()
{
    CutFrontend();
    if (auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner)) {
        dialog->impl = nullptr; // a host may have set another window
        dialog->setParent(nullptr);
        dialog->hide(); // without a parent before, setParent() hasn't done it
    }
    owner->setHandle(nullptr);
    if (m_layoutView)
        LeaveGroupBoxBehind(m_layoutView);
    m_mainLayout = nullptr;
    delete m_layoutView;
    m_layoutView = nullptr;
}

void CFxUIDialogImpl::SetupUIImpl(QObject * /*parent*/)
{
    auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner);
    if (!dialog || !dialog->isUINotYetSetup())
        return;
    dialog->setIsUINotYetSetup(false);
    dialog->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);

    m_mainLayout = new QVBoxLayout(dialog);
    m_mainLayout->setObjectName(QStringLiteral("mainLayout"));
    m_layoutView = new CFxUIVerticalLayout;
    auto *groupBox = FrontendCast<QGroupBox>(m_layoutView);
    groupBox->setObjectName(QStringLiteral("main_layout"));
    m_mainLayout->setContentsMargins(0, 0, 0, 0);
    groupBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_mainLayout->addWidget(groupBox, 0, Qt::Alignment());

    static_cast<CFxUIDialog *>(owner)->SetupUI();
}

int CFxUIDialogImpl::ExecImpl(bool /*modal*/)
{
    SetupUIImpl(nullptr);
    auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner);
    if (!dialog)
        return m_result;
    const std::weak_ptr<void> self = m_alive;
    const int code = dialog->exec();
    if (!self.expired()) // a slot may have destroyed the dialog, against the rules
        setResult(code);
    return code;
}

void CFxUIDialogImpl::HideImpl()
{
    auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner);
    if (!dialog)
        return;
    dialog->setResult(m_result);
    dialog->hide();
}

void CFxUIDialogImpl::SetVisibleImpl(bool visible)
{
    if (auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner))
        dialog->setVisible(visible);
}

void CFxUIDialogImpl::SetWindowTitleImpl(const QString &title)
{
    if (auto *dialog = FrontendCast<CFxUIDialogFrontend>(owner))
        dialog->setWindowTitle(title);
}

void CFxUIDialogImpl::OpenHelpImpl(int /*helpId*/)
{
    // Help is the host's affair. Intended.
}

void CFxUIDialogImpl::SetDialogActiveImpl(bool active)
{
    CFxDocument *document = ACTIVE_DOCUMENT();
    if (document && document->dialogSink)
        document->dialogSink->SetDialogActive(active);
}
