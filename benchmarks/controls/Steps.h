// What the rows do over and over: values that change from call to call, and a user's events.

#pragma once

#include <QtCore/QEvent>
#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtWidgets/QWidget>

QString Text(int i);
const QPixmap &Pixmap(int i);
const QIcon &Icon(int i);

void Send(QWidget &widget, QEvent::Type type);
void PressKey(QWidget &widget, int key, const QString &text = QString());
void ReleaseKey(QWidget &widget, int key);

/// A press and a release of the left button.
void Click(QWidget &widget, QPoint at);

/// A press of the left button, a move and a release.
void Drag(QWidget &widget, QPoint from, QPoint to);

/// A notch, up or down.
void Wheel(QWidget &widget, bool up);

/// Types a letter, or takes it back.
void Type(QWidget &widget, int i);
