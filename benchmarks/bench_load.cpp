/** @file
 * Loading the library with all its symbols bound, beside the same code built with default
 * visibility and calls that go through the PLT. The Qt libraries are in the process already. Each
 * library leaves the process again before the next one comes.
 */

#include "bench.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <QApplication>

namespace {

constexpr int rounds = 201;

void fail()
{
    std::fprintf(stderr, "%s\n", dlerror());
    std::exit(1);
}

/** Loads @p library, or unloads what it loaded before. */
class Loader
{
public:
    explicit Loader(const char *library) : m_library(library) {}

    void load()
    {
        m_handle = dlopen(m_library, RTLD_NOW | RTLD_LOCAL);
        if (!m_handle) {
            fail();
        }
    }

    void unload()
    {
        if (m_handle && dlclose(m_handle) != 0) {
            fail();
        }
        m_handle = nullptr;
        if (dlopen(m_library, RTLD_NOW | RTLD_NOLOAD)) {
            std::fprintf(stderr, "%s stays loaded\n", m_library);
            std::exit(1);
        }
    }

private:
    const char *m_library;
    void *m_handle = nullptr;
};

} // namespace

int main(int argc, char **argv)
{
    bench::prepareEnvironment(argc, argv);
    QApplication application(argc, argv);
    bench::prepareApplication();
    Loader ours(LMBENCH_LIBRARY);
    Loader stock(LMBENCH_DEFAULT_VISIBILITY);
    const auto unloadBoth = [&](int) {
        ours.unload();
        stock.unload();
    };
    bench::printHead();
    bench::printLine(QStringLiteral("loading the library, RTLD_NOW"),
                     bench::compare(bench::Side{[&](int) { ours.load(); }, unloadBoth},
                                    bench::Side{[&](int) { stock.load(); }, unloadBoth}, rounds),
                     1, 0.4);
    return 0;
}
