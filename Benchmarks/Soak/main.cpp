// Takes random steps for a long time: what the module holds and shows stays what a plain model
// says, and memory stays flat.

#include "Script/qxScriptRunner.h"
#include "qxHost.h"
#include "qxSoakSteps.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <random>
#include <unistd.h>

/// The first tenth fills what is kept: pools, caches, arenas of the allocator.
constexpr double MostGrowth = 32;

static double megabytes()
{
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return double(resident) * double(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// What the module and the log say is not asked for; the table goes where standard output was.
static std::FILE *silence()
{
    std::FILE *const table = fdopen(dup(STDOUT_FILENO), "w");
    const bool isDone =
        std::freopen("/dev/null", "w", stdout) && std::freopen("/dev/null", "w", stderr);
    return isDone ? table : nullptr;
}

static int soak(long steps, unsigned seed, std::FILE *table)
{
    const QTemporaryDir folder;
    std::mt19937 random(seed);
    qxHost host;
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
    qxSoakSteps soak(host, QStringLiteral(QX_SOAK_SCENE), folder.filePath("saved.gltf"),
                     [&](unsigned below) { return unsigned(random() % below); });
    std::fprintf(table, "seed %u\n%10s %9s %9s\n", seed, "steps", "per s", "MB");
    const long tenth = std::max(1L, steps / 10);
    double settled = 0;
    QElapsedTimer timer;
    timer.start();
    for (long step = 1; step <= steps; ++step) {
        const QString wrong = soak.take();
        if (!wrong.isEmpty()) {
            std::fprintf(table, "step %ld of seed %u, %s: %s\n", step, seed,
                         qUtf8Printable(soak.last()), qUtf8Printable(wrong));
            return 1;
        }
        if (step % tenth != 0)
            continue;
        const double now = megabytes();
        settled = step == tenth ? now : settled;
        std::fprintf(table, "%10ld %9.0f %9.1f\n", step,
                     double(tenth) * 1000 / double(std::max<qint64>(1, timer.restart())), now);
        std::fflush(table);
        if (now > settled + MostGrowth) {
            std::fprintf(table, "memory grew by %.1f MB by step %ld of seed %u\n", now - settled,
                         step, seed);
            return 1;
        }
    }
    return 0;
}

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption steps("steps", "How many steps to take.", "N", "1000000");
    const QCommandLineOption seed("seed", "Where the random numbers begin.", "N", "1");
    parser.addOptions({steps, seed});
    parser.addHelpOption();
    parser.process(application);
    std::FILE *const table = silence();
    return table ? soak(parser.value(steps).toLong(), parser.value(seed).toUInt(), table) : 2;
}
