#pragma once

#include "interface/GalleryPlugin.h"

#include <QtCore/QObject>

/// The live log: numbers what the plug-ins report and hands it on.
class SignalLog : public QObject, public IGalleryHost {
    Q_OBJECT

public:
    void LogSignal(const QString &object, const QString &signal, const QString &arguments) override;

    /// Starts over with number 1.
    void Restart();

Q_SIGNALS:
    void logged(int number, const QString &object, const QString &signal, const QString &arguments);

private:
    int m_count = 0;
};
