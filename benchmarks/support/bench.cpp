#include "bench.h"

#include <QApplication>
#include <QFont>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

namespace bench {

namespace {

constexpr int operationColumns = 52;

double seconds(const Work &work, int round)
{
    const double start = cpuSeconds();
    work(round);
    return cpuSeconds() - start;
}

/** @p text with blanks behind it, for a table that is read as plain text. */
QByteArray padded(const QString &text)
{
    return text.leftJustified(operationColumns).toUtf8();
}

QByteArray goalText(double goal)
{
    return goal > 0.0 ? QByteArray::number(goal, 'f', 2) : QByteArray("-");
}

} // namespace

double cpuSeconds()
{
#ifdef Q_OS_UNIX
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
#else
    return static_cast<double>(std::clock()) / static_cast<double>(CLOCKS_PER_SEC);
#endif
}

double median(QVector<double> values)
{
    if (values.isEmpty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const int middle = values.size() / 2;
    if (values.size() % 2 != 0) {
        return values.at(middle);
    }
    return (values.at(middle - 1) + values.at(middle)) / 2.0;
}

double measure(const Work &work, int rounds)
{
    work(0);
    QVector<double> times;
    for (int round = 1; round <= rounds; ++round) {
        times.append(seconds(work, round));
    }
    return median(times);
}

Comparison compare(const Work &ours, const Work &stock, int rounds)
{
    ours(0);
    stock(0);
    QVector<double> oursTimes;
    QVector<double> stockTimes;
    QVector<double> ratios;
    for (int round = 1; round <= rounds; ++round) {
        double oursTime = 0.0;
        double stockTime = 0.0;
        if (round % 2 != 0) {
            oursTime = seconds(ours, round);
            stockTime = seconds(stock, round);
        } else {
            stockTime = seconds(stock, round);
            oursTime = seconds(ours, round);
        }
        oursTimes.append(oursTime);
        stockTimes.append(stockTime);
        if (stockTime > 0.0) {
            ratios.append(oursTime / stockTime);
        }
    }
    return {median(oursTimes), median(stockTimes), median(ratios)};
}

double growthExponent(const QVector<Point> &points)
{
    double count = 0.0;
    double sumX = 0.0;
    double sumY = 0.0;
    double sumXX = 0.0;
    double sumXY = 0.0;
    for (const Point &point : points) {
        if (point.size <= 0.0 || point.seconds <= 0.0) {
            continue;
        }
        const double x = std::log(point.size);
        const double y = std::log(point.seconds);
        count += 1.0;
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const double spread = count * sumXX - sumX * sumX;
    return spread > 0.0 ? (count * sumXY - sumX * sumY) / spread : 0.0;
}

void prepareEnvironment()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
}

void prepareApplication()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
}

void printHead()
{
    std::printf("%s %12s %12s %8s %8s\n", padded(QStringLiteral("operation")).constData(),
                "ours [us]", "stock [us]", "ratio", "goal");
}

void printLine(const QString &operation, const Comparison &comparison, int operations, double goal)
{
    const double scale = 1e6 / qMax(operations, 1);
    std::printf("%s %12.2f %12.2f %8.2f %8s\n", padded(operation).constData(),
                comparison.ours * scale, comparison.stock * scale, comparison.ratio,
                goalText(goal).constData());
    std::fflush(stdout);
}

void printGrowth(const QString &operation, double exponent, double goal)
{
    std::printf("%s %12s %12s %8.2f %8s\n", padded(operation).constData(), "-", "-", exponent,
                goalText(goal).constData());
    std::fflush(stdout);
}

} // namespace bench
