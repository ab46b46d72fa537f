#pragma once

#include "Appearance.h"

#include <QtCore/QString>

#include <functional>
#include <memory>

class CFxUIDialog;
class QWidget;

/// A module of the plug-in folder: either loaded, with a dialog to run, or refused, with the
/// reason.
class Module {
public:
    explicit Module(const QString &file);
    ~Module();

    Module(const Module &) = delete;
    Module &operator=(const Module &) = delete;

    /// Makes the dialog with \a create and keeps that for Renew(). Lets through what it throws.
    void MakeDialog(std::function<CFxUIDialog *()> create);

    /// Replaces the dialog by a fresh one, which has never run. Refuses the module if that fails.
    void Renew();

    /// Drops the dialog. \a reason is shown to the user.
    void Refuse(const QString &reason);

    bool IsLoaded() const { return m_dialog != nullptr; }

    /// The file's name without its folder.
    QString FileName() const;

    /// Runs the dialog until it is closed, and returns its result. Lets through what the plug-in
    /// throws; the caller refuses it then.
    int Run();

    /// Closes the dialog from within Run().
    void Close();

    /// Gives the dialog the look's sheet, and the size that its content then needs.
    void SetLook(Look look);

    /// Gives the dialog the size that its content needs. Nothing, before its first run.
    void Fit();

    /// The dialog's window; null if the module isn't loaded.
    QWidget *Window() const;

    QString file; ///< full path
    QString refusal; ///< why it isn't loaded
    QString name;
    QString title;
    QString summary;

private:
    void TakeOver(CFxUIDialog *dialog);
    void DropDialog();

    std::function<CFxUIDialog *()> m_create;
    std::unique_ptr<CFxUIDialog> m_dialog;
    QString m_lightSheet; ///< the sheet that the dialog came with
    Look m_look = Look::Light;
};
