#include "endurance.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <cstddef>
#include <cstdio>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
// GCC does not install the header that declares it.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

namespace {

constexpr int WarmUpRounds = 100;
constexpr int SettlingRounds = 3;
constexpr int ProgressInterval = 20000; // ms
constexpr int ShowLimit = 10000;        // ms
constexpr int EventSlice = 5;           // ms
constexpr double Kibi = 1024;

int warnings = 0;
QtMessageHandler nextHandler = nullptr;

/**
 * What the offscreen platform says about every window, and what Qt's views say when the user wants
 * to rename what cannot be renamed, such as a file in a browser that only reads.
 */
bool isExpected(const QString &message)
{
    return message.startsWith(QLatin1String("This plugin does not support ")) ||
           message == QLatin1String("edit: editing failed");
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isExpected(message)) {
        return;
    }
    if (type != QtDebugMsg && type != QtInfoMsg) {
        ++warnings;
    }
    nextHandler(type, context, message);
}

/** The sanitizers bring allocators of their own, of which malloc's statistics know nothing. */
qint64 allocatedBytes()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
#endif
}

int openHandles()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}

QString figures(const Balance &before, const Balance &after)
{
    return QStringLiteral("memory %1 -> %2 KiB, handles %3 -> %4, widgets %5 -> %6, "
                          "windows %7 -> %8")
        .arg(double(before.memory) / Kibi, 0, 'f', 0)
        .arg(double(after.memory) / Kibi, 0, 'f', 0)
        .arg(before.handles)
        .arg(after.handles)
        .arg(before.widgets)
        .arg(after.widgets)
        .arg(before.windows)
        .arg(after.windows);
}

bool isWithin(const Balance &before, const Balance &after, const Allowance &allowance, int rounds)
{
    return after.memory - before.memory <= allowance.bytes + rounds * allowance.bytesPerRound &&
           after.handles <= before.handles && after.widgets <= before.widgets + allowance.widgets &&
           after.windows <= before.windows + allowance.widgets;
}

/** Whether the time of @p duration is over, its rounds are done, or its half is if @p half. */
bool isOver(const Duration &duration, int done, qint64 elapsed, bool half)
{
    const int divisor = half ? 2 : 1;
    return done >= duration.rounds / divisor ||
           (duration.seconds > 0 && elapsed >= duration.seconds * 1000LL / divisor);
}

} // namespace

Balance Balance::take()
{
    for (int i = 0; i < SettlingRounds; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    Balance balance;
    balance.handles = openHandles();
    balance.widgets = QApplication::allWidgets().size();
    balance.windows = QGuiApplication::allWindows().size();
    balance.memory = allocatedBytes();
    return balance;
}

void countWarnings()
{
    nextHandler = qInstallMessageHandler(handleMessage);
}

int warningCount()
{
    return warnings;
}

bool waitUntilShown(QWidget *window)
{
    const QPointer<QWidget> guard(window);
    const auto isExposed = [&guard] {
        return guard && guard->windowHandle() && guard->windowHandle()->isExposed();
    };
    QElapsedTimer timer;
    timer.start();
    while (guard && !isExposed() && timer.elapsed() < ShowLimit) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, EventSlice);
    }
    return isExposed();
}

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", qPrintable(line));
    std::fflush(stdout);
}

bool endure(const QString &what, const Duration &duration, const Allowance &allowance,
            const std::function<void(int)> &round)
{
    QElapsedTimer timer;
    timer.start();
    qint64 nextProgress = ProgressInterval;
    const int warningsBefore = warnings;
    Balance before;
    int warm = 0;
    int done = 0;
    while (!isOver(duration, done, timer.elapsed(), false)) {
        round(done);
        ++done;
        if (warm == 0 && (done == WarmUpRounds || isOver(duration, done, timer.elapsed(), true))) {
            warm = done;
            before = Balance::take();
        }
        if (timer.elapsed() > nextProgress) {
            nextProgress = timer.elapsed() + ProgressInterval;
            say(QStringLiteral("        %1: %2 rounds so far").arg(what).arg(done));
        }
    }
    if (done == 0) {
        return true;
    }
    const Balance after = Balance::take();
    const bool good = isWithin(before, after, allowance, done - warm) && warnings == warningsBefore;
    say(QStringLiteral("%1 %2: %3 rounds, %4 ms each; %5; %6 warnings")
            .arg(good ? QStringLiteral("ok    ") : QStringLiteral("FAILED"), what)
            .arg(done)
            .arg(double(timer.elapsed()) / done, 0, 'f', 2)
            .arg(figures(before, after))
            .arg(warnings - warningsBefore));
    if (!good) {
        const QWidgetList left = QApplication::topLevelWidgets();
        for (const QWidget *window : left) {
            say(QStringLiteral("        a window is there: %1 \"%2\" with %3 children")
                    .arg(QLatin1String(window->metaObject()->className()), window->objectName())
                    .arg(window->findChildren<QWidget *>().size()));
        }
    }
    return good;
}
