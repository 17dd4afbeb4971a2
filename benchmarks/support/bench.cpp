#include "bench.h"

#include "instructions.h"

#include <QApplication>
#include <QFont>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace bench {

namespace {

constexpr int operationColumns = 64;
constexpr double microseconds = 1e6;

bool writesJson = false;

/** @p text with blanks behind it, for a table that is read as plain text. */
QByteArray padded(const QString &text)
{
    return text.leftJustified(operationColumns).toUtf8();
}

QByteArray number(double value)
{
    return value > 0.0 ? QByteArray::number(value, 'f', 2) : QByteArray("-");
}

void printRow(QJsonObject row, const QString &operation, double goal)
{
    if (!writesJson) {
        std::printf("%s %14s %14s %8s %8s %8s\n", padded(operation).constData(),
                    number(row.value(QStringLiteral("ours")).toDouble()).constData(),
                    number(row.value(QStringLiteral("stock")).toDouble()).constData(),
                    number(row.value(QStringLiteral("ratio")).toDouble()).constData(),
                    number(row.value(QStringLiteral("exponent")).toDouble()).constData(),
                    number(goal).constData());
    } else {
        row.insert(QStringLiteral("operation"), operation);
        row.insert(QStringLiteral("goal"), goal);
        std::printf("%s\n", QJsonDocument(row).toJson(QJsonDocument::Compact).constData());
    }
    std::fflush(stdout);
}

/** Forgets what the platform plugins say of what they cannot do, so that it is not measured. */
void forgetPluginMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || message.startsWith(QLatin1String("This plugin does not support"))) {
        return;
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtFatalMsg) {
        std::abort();
    }
}

double prepareAndMeasure(const Side &side, int round)
{
    if (side.prepare) {
        side.prepare(round);
    }
    return cost(side.run, round);
}

} // namespace

bool isCounting()
{
    return countsInstructions();
}

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

double cost(const Work &work, int round)
{
    if (isCounting()) {
        return instructionsOf([&] { work(round); });
    }
    const double start = cpuSeconds();
    work(round);
    return cpuSeconds() - start;
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
    QVector<double> costs;
    for (int round = 1; round <= (isCounting() ? 1 : rounds); ++round) {
        costs.append(cost(work, round));
    }
    return median(costs);
}

Comparison compare(const Side &ours, const Side &stock, int rounds)
{
    prepareAndMeasure(ours, 0);
    prepareAndMeasure(stock, 0);
    QVector<double> oursCosts;
    QVector<double> stockCosts;
    QVector<double> ratios;
    for (int round = 1; round <= (isCounting() ? 1 : rounds); ++round) {
        double oursCost = 0.0;
        double stockCost = 0.0;
        if (round % 2 != 0) {
            oursCost = prepareAndMeasure(ours, round);
            stockCost = prepareAndMeasure(stock, round);
        } else {
            stockCost = prepareAndMeasure(stock, round);
            oursCost = prepareAndMeasure(ours, round);
        }
        oursCosts.append(oursCost);
        stockCosts.append(stockCost);
        if (stockCost > 0.0) {
            ratios.append(oursCost / stockCost);
        }
    }
    return {median(oursCosts), median(stockCosts), median(ratios)};
}

Comparison compare(const Work &ours, const Work &stock, int rounds)
{
    return compare(Side{ours}, Side{stock}, rounds);
}

double growthExponent(const QVector<Point> &points)
{
    double count = 0.0;
    double sumX = 0.0;
    double sumY = 0.0;
    double sumXX = 0.0;
    double sumXY = 0.0;
    for (const Point &point : points) {
        if (point.size <= 0.0 || point.cost <= 0.0) {
            continue;
        }
        const double x = std::log(point.size);
        const double y = std::log(point.cost);
        count += 1.0;
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const double spread = count * sumXX - sumX * sumX;
    return spread > 0.0 ? (count * sumXY - sumX * sumY) / spread : 0.0;
}

void prepareEnvironment(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        writesJson = writesJson || std::strcmp(argv[i], "--json") == 0;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false");
    qInstallMessageHandler(forgetPluginMessages);
}

void prepareApplication()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    QApplication::setQuitOnLastWindowClosed(false);
}

void printHead()
{
    if (!writesJson) {
        const char *unit = isCounting() ? "instructions" : "us";
        std::printf("%s %14s %14s %8s %8s %8s\n", padded(QStringLiteral("operation")).constData(),
                    qPrintable(QStringLiteral("ours [%1]").arg(QLatin1String(unit))),
                    qPrintable(QStringLiteral("stock [%1]").arg(QLatin1String(unit))), "ratio",
                    "exponent", "goal");
    }
}

void printLine(const QString &operation, const Comparison &comparison, int operations, double goal,
               GoalOf goalOf)
{
    const double scale = (isCounting() ? 1.0 : microseconds) / qMax(operations, 1);
    printRow(
        {{QStringLiteral("unit"),
          isCounting() ? QStringLiteral("instructions") : QStringLiteral("us")},
         {QStringLiteral("ours"), comparison.ours * scale},
         {QStringLiteral("stock"), comparison.stock * scale},
         {QStringLiteral("ratio"), comparison.ratio},
         {QStringLiteral("goal of"), goalOf == GoalOf::Instructions ? QStringLiteral("instructions")
                                                                    : QStringLiteral("time")}},
        operation, goal);
}

void printGrowth(const QString &operation, double exponent, double goal, double stock)
{
    printRow({{QStringLiteral("unit"), QStringLiteral("exponent")},
              {QStringLiteral("exponent"), exponent},
              {QStringLiteral("stock exponent"), stock}},
             operation, goal);
}

void printBytes(const QString &operation, double ours, double stock, double goal)
{
    printRow({{QStringLiteral("unit"), QStringLiteral("bytes")},
              {QStringLiteral("ours"), ours},
              {QStringLiteral("stock"), stock},
              {QStringLiteral("ratio"), stock > 0.0 ? ours / stock : 0.0}},
             operation, goal);
}

void printGain(const QString &operation, double ours, double stock, double goal)
{
    printRow({{QStringLiteral("unit"), QStringLiteral("bytes gained")},
              {QStringLiteral("ours"), ours},
              {QStringLiteral("stock"), stock}},
             operation, goal);
}

} // namespace bench
