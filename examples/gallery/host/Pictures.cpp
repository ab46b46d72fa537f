#include "Pictures.h"

#include "MainWindow.h"

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtCore/QTimerEvent>
#include <QtGui/QImageWriter>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

namespace {

/// While it lives, no QTimer fires but those without a delay.
class Stillness : public QObject {
public:
    Stillness() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        if (event->type() != QEvent::Timer)
            return false;
        const auto *timer = qobject_cast<QTimer *>(receiver);
        return timer && timer->interval() > 0;
    }
};

// Lets a window do what it does in its first turns of the event loop. Inside an event, a turn
// leaves out what is posted, the requests for a new layout among it.
void Settle(QWidget &window)
{
    constexpr int Turns = 8;
    QApplication::setActiveWindow(&window);
    for (int i = 0; i < Turns; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents();
    }
    if (QWidget *focus = window.focusWidget())
        focus->clearFocus();
}

void PressEnter(QWidget &window)
{
    for (QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
    }
}

QImage Grab(QWidget &window)
{
    constexpr int DotsPerMeter = 3780; // 96 dpi
    QImage image = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDotsPerMeterX(DotsPerMeter);
    image.setDotsPerMeterY(DotsPerMeter);
    return image;
}

} // namespace

Pictures::Pictures(const QString &folder, QTextStream &progress, QTextStream &errors)
    : m_folder(folder)
    , m_progress(progress)
    , m_errors(errors)
{
}

bool Pictures::PrepareFolder()
{
    if (QDir(m_folder).exists() || QDir().mkdir(m_folder))
        return true;
    Fail(QStringLiteral("cannot make the folder '%1'").arg(m_folder));
    return false;
}

void Pictures::TakePanel(MainWindow &host, Module &module, const QList<Look> &looks)
{
    for (Look look : looks) {
        host.SetLook(look);
        const bool visited = Visit(host, module, [&] {
            Settle(*module.Window());
            module.Fit();
            Take(*module.Window(), module.name, look);
        });
        if (!visited)
            return;
        module.Renew(); // the next picture shows a panel that has just been opened, too
    }
}

void Pictures::TakeHost(MainWindow &host, const QList<Look> &looks)
{
    host.ClearLog();
    if (Module *module = host.Selected()) {
        Visit(host, *module, [&] {
            for (int i = 0; i < 3; ++i)
                PressEnter(*module->Window());
        });
    }
    const Stillness stillness;
    host.setAttribute(Qt::WA_DontShowOnScreen);
    host.show();
    for (Look look : looks) {
        host.SetLook(look);
        Take(host, QStringLiteral("host"), look);
    }
    host.close();
}

bool Pictures::Visit(MainWindow &host, Module &module, const std::function<void()> &action)
{
    const Stillness stillness;
    bool visited = false;
    QObject visit; // takes the call below with it, should the panel throw
    QTimer::singleShot(0, &visit, [&] {
        visited = true;
        action();
        module.Close();
    });
    module.Window()->setAttribute(Qt::WA_DontShowOnScreen);
    host.Run(module);
    if (!module.IsLoaded())
        Fail(QStringLiteral("%1 %2").arg(module.FileName(), module.refusal));
    else if (!visited)
        Fail(QStringLiteral("%1 closed before its picture was taken").arg(module.FileName()));
    return visited && module.IsLoaded();
}

void Pictures::Take(QWidget &window, const QString &name, Look look)
{
    Settle(window);
    const QString file = QStringLiteral("%1-%2.png").arg(name, LookName(look));
    QImageWriter writer(QDir(m_folder).filePath(file));
    if (writer.write(Grab(window))) {
        ++m_taken;
        m_progress << "  " << file << '\n';
    } else {
        Fail(QStringLiteral("cannot write '%1': %2").arg(writer.fileName(), writer.errorString()));
    }
    m_progress.flush();
}

void Pictures::Fail(const QString &text)
{
    ++m_failed;
    m_progress.flush();
    m_errors << QApplication::applicationName() << ": " << text << '\n';
    m_errors.flush();
}
