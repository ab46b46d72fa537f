#include "FxDialog.h"

CFxDialog::CFxDialog(QWidget *parent, bool /*modal*/, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
}

CFxDialog::~CFxDialog() = default;

int CFxDialog::exec()
{
    return QDialog::exec();
}

void CFxDialog::accept()
{
    QDialog::accept();
}

void CFxDialog::reject()
{
    QDialog::reject();
}

void CFxDialog::done(int result)
{
    QDialog::done(result);
}

int CFxDialog::GetHelpId() const
{
    return 0;
}

void CFxDialog::BeginEditorCommand() { }

void CFxDialog::CancelEditorCommand() { }

void CFxDialog::CompleteEditorCommand() { }

void CFxDialog::Help() { }

bool CFxDialog::event(QEvent *event)
{
    return QDialog::event(event);
}

void CFxDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
}

void CFxDialog::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
}
