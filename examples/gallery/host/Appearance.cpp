#include "Appearance.h"

#include "UI/FxUIStyle.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QWidget>

namespace {

/// Fusion without what desktops change about it, and without animations.
class HostStyle : public QProxyStyle {
public:
    HostStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_Widget_Animation_Duration:
            return 0;
        case SH_DialogButtonLayout:
            return QDialogButtonBox::WinLayout;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
        }
    }
};

QByteArray PlatformWithFallback()
{
    const bool x = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (wayland)
        return x ? "wayland;xcb;offscreen" : "wayland;offscreen";
    return x ? "xcb;offscreen" : "offscreen";
}

QtMessageHandler g_printMessage = nullptr;

// Offscreen, Qt mentions what such a platform lacks; a user has no use for that.
void PrintMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("This plugin does not support "))
        || message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        return;
    g_printMessage(type, context, message);
}

QPalette DarkPalette()
{
    const QColor window(0x33, 0x35, 0x38);
    const QColor field(0x14, 0x15, 0x18);
    const QColor dimmed(0x8C, 0x8C, 0x8C);
    QPalette palette(field, window);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, QColor(0x1E, 0x20, 0x23));
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, dimmed);
    palette.setColor(QPalette::Highlight, QColor(0x21, 0x4B, 0x98));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7F, 0xA8, 0xF0));
    for (auto role : { QPalette::WindowText, QPalette::ButtonText, QPalette::Text })
        palette.setColor(QPalette::Disabled, role, dimmed);
    return palette;
}

} // namespace

QString LookName(Look look)
{
    return look == Look::Dark ? QStringLiteral("dark") : QStringLiteral("light");
}

void PrepareEnvironment()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", PlatformWithFallback());
    qputenv("QT_FONT_DPI", "96");
    for (const char *variable : { "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "QT_SCALE_FACTOR",
                                  "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR" })
        qunsetenv(variable);
    QGuiApplication::setDesktopSettingsAware(false);
    g_printMessage = qInstallMessageHandler(PrintMessage);
}

void PrepareApplication()
{
    QApplication::setStyle(new HostStyle);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);
}

bool HasDisplay()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

void ApplyPalette(Look look)
{
    QApplication::setPalette(look == Look::Dark ? DarkPalette()
                                                : QApplication::style()->standardPalette());
}

void ApplySheet(QWidget *window, Look look, const QString &lightSheet)
{
    window->setStyleSheet(look == Look::Dark ? GetStyle()->styleSheet() : lightSheet);
}
