#pragma once

#include "UI/FxUISignal.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>

/// The lines that a test expects.
inline QStringList Lines(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list.append(QString::fromUtf8(line));
    return list;
}

/// Writes down what is emitted, in order, and what a slot sees at that moment: one line for each
/// emission, `name(arguments) state`, in which the test says what the state is.
///
/// A listener of a Qt signal stands behind the library's own, since Qt calls direct connections in
/// the order in which they were made.
class EventRecorder {
public:
    /// \a state answers the text that ends each line.
    explicit EventRecorder(std::function<QString()> state)
        : m_log(std::make_shared<Log>())
    {
        m_log->state = std::move(state);
    }

    template <class... Args> void Listen(const char *name, CFxUISignal<void(Args...)> &signal)
    {
        signal.connect(Writer<Args...>(name));
    }

    template <class Sender, class Class, class... Args>
    void ListenToQt(const char *name, Sender *sender, void (Class::*signal)(Args...))
    {
        QObject::connect(sender, signal, sender, Writer<Args...>(name));
    }

    /// Adds a line of the test's own.
    void Note(const char *name) { m_log->Add(name, QStringList()); }

    /// The lines since the last call.
    QStringList Take() { return std::exchange(m_log->lines, QStringList()); }

private:
    struct Log {
        void Add(const char *name, const QStringList &arguments)
        {
            lines.append(
                QStringLiteral("%1(%2) %3")
                    .arg(QLatin1String(name), arguments.join(QLatin1String(", ")), state()));
        }

        QStringList lines;
        std::function<QString()> state;
    };

    static QString ToText(bool value)
    {
        return value ? QStringLiteral("true") : QStringLiteral("false");
    }

    static QString ToText(int value) { return QString::number(value); }

    static QString ToText(const QString &value)
    {
        return value.isNull() ? QStringLiteral("null") : QStringLiteral("'%1'").arg(value);
    }

    // The log is shared, so that a late emission finds it when the recorder is gone.
    template <class... Args> auto Writer(const char *name) const
    {
        return
            [log = m_log, name](Args... args) { log->Add(name, QStringList { ToText(args)... }); };
    }

    std::shared_ptr<Log> m_log;
};
