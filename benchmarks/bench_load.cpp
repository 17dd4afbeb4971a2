/** @file
 * Loading the library with all its symbols bound, beside the same code built with default
 * visibility and calls that go through the PLT. The Qt libraries are in the process already.
 *
 * Each round loads the library in a fork of this process: a library that was loaded once is not
 * read again, and one that exports unique symbols never leaves.
 */

#include "bench.h"

#include <QApplication>
#include <QByteArray>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int rounds = 101;

double threadSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void load(const char *library)
{
    if (!dlopen(library, RTLD_NOW | RTLD_LOCAL)) {
        std::fprintf(stderr, "%s\n", dlerror());
        std::_Exit(1);
    }
}

/** The CPU seconds that a fork of this process takes to load @p library. */
double loadingTime(const char *library)
{
    int ends[2] = {};
    if (pipe(ends) != 0) {
        std::perror("pipe");
        std::exit(1);
    }
    const pid_t child = fork();
    if (child == 0) {
        const double start = threadSeconds();
        load(library);
        const double time = threadSeconds() - start;
        const bool written = write(ends[1], &time, sizeof time) == sizeof time;
        std::_Exit(written ? 0 : 1);
    }
    close(ends[1]);
    double time = 0.0;
    const bool isRead = child > 0 && read(ends[0], &time, sizeof time) == sizeof time;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (!isRead) {
        std::fprintf(stderr, "cannot load %s in a fork\n", library);
        std::exit(1);
    }
    return time;
}

bench::Comparison compareTimes(const char *ours, const char *stock)
{
    QVector<double> oursTimes;
    QVector<double> stockTimes;
    QVector<double> ratios;
    for (int round = 0; round <= rounds; ++round) {
        const double oursTime = loadingTime(ours);
        const double stockTime = loadingTime(stock);
        if (round > 0) {
            oursTimes.append(oursTime);
            stockTimes.append(stockTime);
            ratios.append(oursTime / stockTime);
        }
    }
    return {bench::median(oursTimes), bench::median(stockTimes), bench::median(ratios)};
}

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    bench::printHead();
    const QString operation = QStringLiteral("loading the library, RTLD_NOW");
    if (bench::isCounting()) {
        // Callgrind does not follow a fork. Nothing else loads either library here.
        const double ours = bench::cost([](int) { load(LMBENCH_LIBRARY); }, 1);
        const double stock = bench::cost([](int) { load(LMBENCH_DEFAULT_VISIBILITY); }, 1);
        bench::printLine(operation, {ours, stock, ours / stock}, 1, 0.4);
    } else {
        bench::printLine(operation, compareTimes(LMBENCH_LIBRARY, LMBENCH_DEFAULT_VISIBILITY), 1,
                         0.4);
    }
    return 0;
}
