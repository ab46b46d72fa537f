#pragma once

#include "UI/FxUIExport.h"

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

class QMovie;
class QPaintEvent;

/// The busy animation over a dimmed picture of a widget. Has no widget of its own: the widget that
/// it spins on calls paintEvent() from its own.
class COMMONUI_EXPORT CFxWidgetSpinner : private QObject {
    Q_OBJECT

public:
    /// \a widget is painted on; not owned.
    explicit CFxWidgetSpinner(QWidget *widget);
    ~CFxWidgetSpinner() override;

    /// Takes the picture and starts the animation; the file's own delays set the pace.
    void StartSpinner();

    /// Ends the animation and lets go of the widget.
    void StopSpinner();

    /// Paints the dimmed picture, and the animation's frame with its corner, not its middle, at the
    /// widget's middle.
    void paintEvent(QPaintEvent *event);

private Q_SLOTS:
    void on_FrameChanged(int frame);

protected:
    QImage m_snapshot;
    QMovie *m_movie = nullptr;
    QPointer<QWidget> m_widget; // guarded: a layout may be destroyed while it spins
};
