// What the toolkit costs over the bare Qt widget with the same style sheet: making and deleting a
// control, its setters, a user's events. The widgets are hidden unless a row shows them, so that no
// painting waters the ratios down.

#include "Rows.h"

#include <benchmark/benchmark.h>

#include <QtWidgets/QApplication>

#include <cstdio>

namespace {

// The offscreen plugin complains once for each window that a row shows.
void DropComplaintsOfThePlugin(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(DropComplaintsOfThePlugin);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RegisterViewRows();
    RegisterButtonRows();
    RegisterCheckableRows();
    RegisterChoiceRows();
    RegisterTextRows();
    RegisterContainerRows();
    RegisterDialogRows();
    RegisterMenuRows();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
