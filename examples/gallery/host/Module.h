#pragma once

#include "Appearance.h"

#include <QtCore/QString>

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

    /// Takes the dialog over, and remembers the sheet that it came with.
    void SetDialog(CFxUIDialog *dialog);

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
    void DropDialog();

    std::unique_ptr<CFxUIDialog> m_dialog;
    QString m_lightSheet;
};
