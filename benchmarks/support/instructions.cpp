#include "instructions.h"

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#define LMBENCH_HAS_CALLGRIND
#endif

namespace bench {

#ifdef LMBENCH_HAS_CALLGRIND

namespace {

constexpr char dumpsVariable[] = "LMWIDGETS_BENCH_DUMPS";

/** Reads the number of instructions in callgrind's dump @p number, the last line of which has it. */
double readTotal(int number)
{
    const QByteArray name = qgetenv(dumpsVariable) + '.' + QByteArray::number(number);
    QFile dump(QFile::decodeName(name));
    if (!dump.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "callgrind has not written %s\n", name.constData());
        std::exit(1);
    }
    double total = 0.0;
    while (!dump.atEnd()) {
        const QByteArray line = dump.readLine();
        if (line.startsWith("totals:") || line.startsWith("summary:")) {
            total = line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble();
        }
    }
    dump.close();
    dump.remove();
    return total;
}

} // namespace

bool countsInstructions()
{
    static const bool counts = RUNNING_ON_VALGRIND && qEnvironmentVariableIsSet(dumpsVariable);
    return counts;
}

double instructionsOf(const std::function<void()> &work)
{
    static int dumps = 0;
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    work();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS;
    return readTotal(++dumps);
}

#else

bool countsInstructions()
{
    return false;
}

double instructionsOf(const std::function<void()> &work)
{
    work();
    return 0.0;
}

#endif

} // namespace bench
