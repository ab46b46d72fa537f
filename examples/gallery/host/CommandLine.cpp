#include "CommandLine.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace {

struct Options {
    QCommandLineOption help { { QStringLiteral("h"), QStringLiteral("help") },
                              QStringLiteral("Print this help and exit.") };
    QCommandLineOption version { { QStringLiteral("v"), QStringLiteral("version") },
                                 QStringLiteral("Print the version and exit.") };
    QCommandLineOption list { QStringLiteral("list"),
                              QStringLiteral("List the plug-ins that loaded, why the others did "
                                             "not, and exit.") };
    QCommandLineOption panel { QStringLiteral("panel"),
                               QStringLiteral("Open the panel <name> at once. With --screenshots, "
                                              "visit this panel alone."),
                               QStringLiteral("name") };
    QCommandLineOption theme { QStringLiteral("theme"),
                               QStringLiteral("Start with the look <theme>, light or dark "
                                              "(default: light). With --screenshots, only in this "
                                              "look."),
                               QStringLiteral("theme") };
    QCommandLineOption screenshots {
        QStringLiteral("screenshots"),
        QStringLiteral("Visit each panel in both looks, write a picture of each and of the host's "
                       "window into the folder <dir>, and exit. The folder is made if need be."),
        QStringLiteral("dir")
    };
    QCommandLineOption plugins { QStringLiteral("plugins"),
                                 QStringLiteral("Load the plug-ins of the folder <dir> instead of "
                                                "the host's own."),
                                 QStringLiteral("dir") };
};

CommandLine Printing(const QString &text)
{
    CommandLine line;
    line.action = CommandLine::Print;
    line.text = text;
    return line;
}

CommandLine Refusing(const QString &text)
{
    CommandLine line;
    line.action = CommandLine::Refuse;
    line.text = text;
    return line;
}

QString VersionText()
{
    return QCoreApplication::applicationName() + QLatin1Char(' ')
        + QCoreApplication::applicationVersion() + QLatin1Char('\n');
}

// The parser's own text for an error, as part of our line: no capital, no full stop.
QString ParserFault(const QString &text)
{
    QString fault = text;
    fault.replace(0, 1, fault.at(0).toLower());
    if (fault.endsWith(QLatin1Char('.')))
        fault.chop(1);
    return fault;
}

QString FolderFault(const QString &folder)
{
    const QFileInfo info(folder);
    if (folder.isEmpty() || !info.exists())
        return QStringLiteral("no such folder: '%1'").arg(folder);
    if (!info.isDir())
        return QStringLiteral("not a folder: '%1'").arg(folder);
    return {};
}

// A missing folder is made later, in its parent, which must be there.
QString PictureFolderFault(const QString &folder)
{
    if (folder.isEmpty() || QFileInfo::exists(folder))
        return FolderFault(folder);
    return FolderFault(QFileInfo(QFileInfo(folder).absoluteFilePath()).path());
}

std::optional<Look> LookOf(const QString &name)
{
    for (Look look : { Look::Light, Look::Dark }) {
        if (name == LookName(look))
            return look;
    }
    return std::nullopt;
}

CommandLine Interpret(const QCommandLineParser &parser, const Options &options, bool hasDisplay)
{
    CommandLine line;
    line.panel = parser.value(options.panel);
    if (parser.isSet(options.panel) && line.panel.isEmpty())
        return Refusing(QStringLiteral("unknown panel ''"));

    const QString theme = parser.value(options.theme);
    line.look = LookOf(theme);
    if (parser.isSet(options.theme) && !line.look)
        return Refusing(QStringLiteral("unknown theme '%1': it is light or dark").arg(theme));

    line.pluginFolder = parser.value(options.plugins);
    if (parser.isSet(options.plugins)) {
        const QString fault = FolderFault(line.pluginFolder);
        if (!fault.isEmpty())
            return Refusing(fault);
    }

    if (parser.isSet(options.list)) {
        line.action = CommandLine::List;
        return line;
    }
    if (!parser.isSet(options.screenshots) && hasDisplay)
        return line;

    line.action = CommandLine::Pictures;
    line.pictureFolder = parser.isSet(options.screenshots) ? parser.value(options.screenshots)
                                                           : QStringLiteral("gallery-pictures");
    const QString fault = PictureFolderFault(line.pictureFolder);
    return fault.isEmpty() ? line : Refusing(fault);
}

} // namespace

CommandLine ParseCommandLine(const QStringList &arguments, bool hasDisplay)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Loads plug-ins that show CommonUI's panels, and logs every signal that "
                       "fires.\nWithout a display it writes pictures of the panels into the "
                       "folder gallery-pictures."));
    parser.addOptions({ options.help, options.version, options.list, options.panel, options.theme,
                        options.screenshots, options.plugins });

    if (!parser.parse(arguments))
        return Refusing(ParserFault(parser.errorText()));
    if (parser.isSet(options.help))
        return Printing(parser.helpText());
    if (parser.isSet(options.version))
        return Printing(VersionText());
    if (!parser.positionalArguments().isEmpty())
        return Refusing(QStringLiteral("unexpected argument '%1'")
                            .arg(parser.positionalArguments().constFirst()));
    return Interpret(parser, options, hasDisplay);
}
