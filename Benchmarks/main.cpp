#include "qxBenchScene.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt says at every start that a machine without a user session has no folder for one, and of
    // every window that nobody asks how large it may be.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
