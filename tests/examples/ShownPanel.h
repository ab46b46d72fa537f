#pragma once

#include "interface/GalleryPlugin.h"

#include <QtCore/QLibrary>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

/// Writes down what a panel logs.
class RecordingHost final : public IGalleryHost {
public:
    void LogSignal(const QString &object, const QString &signal, const QString &arguments) override
    {
        lines.append(QStringLiteral("%1.%2(%3)").arg(object, signal, arguments));
    }

    QStringList Take() { return std::exchange(lines, QStringList()); }

    QStringList lines;
};

/// A panel that is shown, as a user finds it.
class Panel {
public:
    Panel(QWidget &shownWindow, RecordingHost &recordingHost)
        : window(shownWindow)
        , host(recordingHost)
    {
    }

    void Press(const char *text)
    {
        const QList<QPushButton *> buttons = window.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->text() == QString::fromUtf8(text)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        QFAIL(text);
    }

    bool Shows(const char *text) const
    {
        const QList<QLabel *> labels = window.findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel *label) {
            return label->text().contains(QString::fromUtf8(text).toHtmlEscaped());
        });
    }

    QLineEdit *Field(const char *placeholder) const
    {
        const QList<QLineEdit *> fields = window.findChildren<QLineEdit *>();
        const auto found = std::find_if(fields.begin(), fields.end(), [&](const QLineEdit *field) {
            return field->placeholderText() == QString::fromUtf8(placeholder);
        });
        return found == fields.end() ? nullptr : *found;
    }

    QWidget &window;
    RecordingHost &host;
};

/// Runs the panel of a module, and calls \a use with it while it is shown.
inline void RunPanel(const char *name, const std::function<void(Panel &)> &use)
{
    QLibrary module(QStringLiteral(GALLERY_PLUGINS "/%1.so").arg(QLatin1String(name)));
    const auto create = reinterpret_cast<decltype(&GalleryPlugin_CreateDialog)>(
        module.resolve("GalleryPlugin_CreateDialog"));
    QVERIFY2(create, qPrintable(module.errorString()));
    RecordingHost host;
    const std::unique_ptr<CFxUIDialog> dialog(create(&host));
    auto *const window = qobject_cast<QWidget *>(dialog->getHandle());
    window->setAttribute(Qt::WA_DontShowOnScreen); // as for the pictures
    QTimer::singleShot(0, window, [&] {
        Panel panel(*window, host);
        use(panel);
        dialog->accept();
    });
    dialog->exec();
    delete window;
}
