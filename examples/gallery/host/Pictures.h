#pragma once

#include "ModuleLoader.h"

#include <QtCore/QTextStream>

#include <functional>

class MainWindow;
class QImage;
class QWidget;

/// Writes pictures of the panels and of the host's window, the same pixels on every run: the
/// windows aren't mapped, nothing has the focus, and timers stand still, so that an animation shows
/// its first frame.
class Pictures {
public:
    /// \a progress is told each picture, \a errors each failure, a line each.
    Pictures(const QString &folder, QTextStream &progress, QTextStream &errors);

    /// Makes the folder if it isn't there.
    bool PrepareFolder();

    /// Runs the panel for each look, writes NAME-LOOK.png, and closes it.
    void TakePanel(MainWindow &host, Module &module, const QList<Look> &looks);

    /// Writes host-LOOK.png, as it looks after a user has opened the selected panel and pressed
    /// Enter some times.
    void TakeHost(MainWindow &host, const QList<Look> &looks);

    int Taken() const { return m_taken; }

    int Failed() const { return m_failed; }

private:
    bool Visit(MainWindow &host, Module &module, const std::function<void()> &action);
    void Take(QWidget &window, const QString &name, Look look);
    void Fail(const QString &text);

    QString m_folder;
    QTextStream &m_progress;
    QTextStream &m_errors;
    int m_taken = 0;
    int m_failed = 0;
};
