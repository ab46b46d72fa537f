#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

#include "UI/IFxUIDialogFrontend.h"
#include "UI/Impl/FxUIDialogImpl.h"

#include <QtCore/QFile>
#include <QtCore/QTextStream>

// Each dialog reads the light style anew and wears it whatever the application's style is; without
// the resource it has no sheet of its own. Intended.
CFxUIDialogFrontend::CFxUIDialogFrontend()
    : CFxDialog(nullptr, true,
                Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
{
    QFile file(QStringLiteral(":/commonui/resources/qss/light_style.qss"));
    if (file.open(QIODevice::ReadOnly))
        setStyleSheet(QTextStream(&file).readAll());
}

CFxUIDialogFrontend::~CFxUIDialogFrontend() = default;

int CFxUIDialogFrontend::GetHelpId() const
{
    return impl ? impl->GetHelpId() : CFxDialog::GetHelpId();
}

void CFxUIDialogFrontend::reject()
{
    if (!m_rejectCallObject || m_rejectCallObject->IsRejectAllowed())
        CFxDialog::reject();
}

void CFxUIDialogFrontend::setCommonParameters(CFxDialog *parent, Qt::WindowFlags flags)
{
    setParent(parent);
    setWindowFlags(flags);
}

void CFxUIDialogFrontend::setIsRejectCallObject(IFxUIDialogFrontend *object)
{
    m_rejectCallObject = object;
}

bool CFxUIDialogFrontend::isUINotYetSetup() const
{
    return m_uiNotYetSetup;
}

void CFxUIDialogFrontend::setIsUINotYetSetup(bool notYet)
{
    m_uiNotYetSetup = notYet;
}
