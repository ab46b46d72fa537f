#include "Steps.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPixmap>
#include <QtGui/QWheelEvent>

namespace {

QPixmap Square(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return pixmap;
}

void SendMouse(QWidget &widget, QEvent::Type type, QPoint at, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, at, at, button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

QString Text(int i)
{
    return i % 2 ? QStringLiteral("some text") : QStringLiteral("other text");
}

const QPixmap &Pixmap(int i)
{
    static const QPixmap pixmaps[] = { Square(Qt::red), Square(Qt::blue) };
    return pixmaps[i % 2];
}

const QIcon &Icon(int i)
{
    static const QIcon icons[] = { QIcon(Pixmap(0)), QIcon(Pixmap(1)) };
    return icons[i % 2];
}

void Send(QWidget &widget, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

void PressKey(QWidget &widget, int key, const QString &text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &press);
}

void ReleaseKey(QWidget &widget, int key)
{
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &release);
}

void Click(QWidget &widget, QPoint at)
{
    SendMouse(widget, QEvent::MouseButtonPress, at, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, at, Qt::NoButton);
}

void Drag(QWidget &widget, QPoint from, QPoint to)
{
    SendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseMove, to, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, to, Qt::NoButton);
}

void Wheel(QWidget &widget, bool up)
{
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, up ? 120 : -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void Type(QWidget &widget, int i)
{
    if (i % 2)
        PressKey(widget, Qt::Key_Backspace);
    else
        PressKey(widget, Qt::Key_A, QStringLiteral("a"));
}
