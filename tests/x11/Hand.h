#pragma once

#include <QtCore/QPoint>
#include <QtCore/QString>
#include <QtCore/QStringList>

class QWidget;

/// A user's hand on a real X server: moves the pointer and presses keys through xdotool, as another
/// program, and keeps a picture of the screen after each step.
class Hand {
public:
    /// \a test names the pictures.
    explicit Hand(const QString &test);

    /// Waits until the window of \a widget is shown and active.
    bool waitForWindow(QWidget *widget);

    /// Waits until no window is left on the screen: behind its own window, a frame stays for as
    /// long as the window manager takes.
    bool waitForBareScreen();

    bool moveTo(const QWidget *widget, const QPoint &position);
    bool moveTo(const QWidget *widget);
    bool click(const QWidget *widget);
    bool press();
    bool release();
    bool key(const QString &name);
    bool type(const QString &text);

    /// Asks the window manager to close the window, as its title bar does.
    bool closeWindow(const QWidget *window);

    /// Saves the screen as TEST-NN-STEP.png.
    bool keepPicture(const QString &step);

private:
    bool run(const QString &program, const QStringList &arguments);

    QString m_test;
    int m_step = 0;
};
