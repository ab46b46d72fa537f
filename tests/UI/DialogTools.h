#pragma once

#include "UI/FxUIDialog.h"
#include "UI/Impl/FxUIDialogImpl.h"
#include "UI/Impl/qt/frontend/FxUIDialogFrontend.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <functional>

/// Writes down which of its virtual operations are called.
class TestDialog : public CFxUIDialog {
public:
    QStringList calls;
    std::function<void()> inSetup;
    int helpId = 42;
    mutable int helpIdsAsked = 0;

    void SetupUI() override
    {
        calls.append(QStringLiteral("SetupUI"));
        if (inSetup)
            inSetup();
    }

    int GetHelpId() const override
    {
        ++helpIdsAsked;
        return helpId;
    }

    const char *GetHelpURL() const override { return "https://help.example/"; }

    void showEvent(CFxUIShowEvent * /*event*/) override
    {
        calls.append(QStringLiteral("showEvent"));
    }

    void hideEvent(CFxUIHideEvent * /*event*/) override
    {
        calls.append(QStringLiteral("hideEvent"));
    }

    void reject() override
    {
        calls.append(QStringLiteral("reject"));
        CFxUIDialog::reject();
    }

    CFxUIDialogImpl *Impl() const { return static_cast<CFxUIDialogImpl *>(impl); }
};

/// Calls the handler that has the name of the present row.
inline void CallHandlerOfRow(const TestDialog &dialog)
{
    const QHash<QString, void (CFxUIDialogImpl::*)()> handlers = {
        { QStringLiteral("OnAccepted"), &CFxUIDialogImpl::OnAccepted },
        { QStringLiteral("OnAcceptPressed"), &CFxUIDialogImpl::OnAcceptPressed },
        { QStringLiteral("OnRejected"), &CFxUIDialogImpl::OnRejected },
        { QStringLiteral("OnRejectPressed"), &CFxUIDialogImpl::OnRejectPressed }
    };
    (dialog.Impl()->*handlers.value(QString::fromLatin1(QTest::currentDataTag())))();
}

/// Writes down what the three signals of a dialog emit.
class DialogEmissions {
public:
    explicit DialogEmissions(CFxUIDialog &dialog)
    {
        dialog.accepted().connect([this] { log.append(QStringLiteral("accepted")); });
        dialog.rejected().connect([this] { log.append(QStringLiteral("rejected")); });
        dialog.finished().connect(
            [this](int code) { log.append(QStringLiteral("finished %1").arg(code)); });
    }

    DialogEmissions(const DialogEmissions &) = delete;
    DialogEmissions &operator=(const DialogEmissions &) = delete;

    QStringList log;
};

/// The window of \a dialog.
inline CFxUIDialogFrontend *Window(const CFxUIDialog &dialog)
{
    return qobject_cast<CFxUIDialogFrontend *>(dialog.getHandle());
}

/// What ExecAndDo() returns where the dialog was still open after the actions.
constexpr int StillOpen = -4711;

/// Runs the dialog and calls \a actions from inside its event loop, once. A dialog that they leave
/// open is closed, so that a failed test ends, too.
inline int ExecAndDo(CFxUIDialog &dialog, const std::function<void()> &actions, bool modal = true)
{
    const QPointer<CFxUIDialogFrontend> window(Window(dialog));
    QTimer::singleShot(0, window, [&] {
        actions();
        if (window && window->isVisible())
            window->done(StillOpen);
    });
    return dialog.exec(modal);
}

/// The windows whose dialogs are gone: the library leaves them behind.
inline QList<CFxUIDialogFrontend *> LeftBehindWindows()
{
    QList<CFxUIDialogFrontend *> windows;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        auto *window = qobject_cast<CFxUIDialogFrontend *>(widget);
        if (window && !window->impl)
            windows.append(window);
    }
    return windows;
}

/// For the end of each test function that makes dialogs.
inline void DeleteLeftBehindWindows()
{
    qDeleteAll(LeftBehindWindows());
}
