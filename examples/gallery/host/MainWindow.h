#pragma once

#include "ModuleLoader.h"

#include <QtWidgets/QMainWindow>

class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QTreeWidget;
class SignalLog;

/// The host's window: the panels that loaded, the modules that did not with the reason, the live
/// log of signals, and the choice of the look.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// \a modules and \a log outlive the window. \a folder is where the modules came from.
    MainWindow(Modules &modules, SignalLog &log, const QString &folder);

    /// Gives the look to this window and to every panel. Default: light.
    void SetLook(Look look);

    void SelectPanel(const Module &module);

    /// Returns the selected panel; null if there is none. Default: "hello", or else the first.
    Module *Selected() const;

    void ClearLog();

    /// Runs the selected panel's dialog until it is closed. A panel that throws meanwhile is moved
    /// to the modules that did not load.
    void RunSelected();

    /// The same with the given one.
    void Run(Module &module);

private:
    QWidget *MakePanelSide();
    QWidget *MakeLogSide();
    QWidget *MakeLookBar();
    void FillLists();
    void ShowSelected();
    void AddLogLine(int number, const QString &object, const QString &signal,
                    const QString &arguments);

    Modules &m_modules;
    SignalLog &m_log;
    QString m_folder;
    QListWidget *m_panels = nullptr;
    QListWidget *m_refused = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_open = nullptr;
    QTreeWidget *m_lines = nullptr;
    QRadioButton *m_light = nullptr;
    QRadioButton *m_dark = nullptr;
    bool m_running = false;
};
