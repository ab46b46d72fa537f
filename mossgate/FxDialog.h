#pragma once

#include <QtWidgets/QDialog>

/// Base class of the host's dialogs. The stand-in behaves as a plain QDialog: what a host does
/// beside that (help, editor commands) has an empty body here.
class Q_DECL_EXPORT CFxDialog : public QDialog {
    Q_OBJECT

public:
    /// \a modal is the host's affair and not looked at here.
    CFxDialog(QWidget *parent, bool modal, Qt::WindowFlags flags);
    ~CFxDialog() override;

    int exec() override;
    void accept() override;
    void reject() override;
    void done(int result) override;

    virtual int GetHelpId() const;
    virtual void BeginEditorCommand();
    virtual void CancelEditorCommand();
    virtual void CompleteEditorCommand();
    virtual void Help();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
};
