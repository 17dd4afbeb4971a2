#ifndef BENCH_H
#define BENCH_H

/** @file
 * What every benchmark shares: the cost of one thing beside that of another, and the rows of the
 * table that it prints.
 *
 * The cost is CPU time of this process, so that what else runs on the machine matters little. Ours
 * and stock take turns, round by round, and the ratio is the median of the rounds' ratios: what
 * slows the machine down for a while slows both. Under callgrind the cost is the number of
 * instructions instead, which is the same in every run.
 *
 * Every program takes the option --json, with which its rows are written one JSON object per line,
 * for scripts/bench.
 */

#include <QString>
#include <QVector>

#include <functional>

namespace bench {

/** One side of a comparison: does its operations of the round @p round, which counts from 0. */
using Work = std::function<void(int round)>;

/** A side of a comparison that has something to do before each round that is not measured. */
struct Side
{
    Work run;
    Work prepare = {};
};

/** What compare() measured, in seconds or instructions of one round. */
struct Comparison
{
    double ours = 0.0;  ///< median
    double stock = 0.0; ///< median
    double ratio = 0.0; ///< ours by stock, median of all rounds
};

/** A measured size and what it cost. */
struct Point
{
    double size = 0.0;
    double cost = 0.0;
};

/** What a goal is compared with. */
enum class GoalOf {
    Time,        ///< the ratio of the CPU times
    Instructions ///< the ratio of the numbers of instructions, which scripts/bench counts
};

/** Whether instructions are counted and time is not measured: each operation takes about fifty
 * times as long. */
bool isCounting();

/** The CPU time of this process so far, in seconds, system calls included. */
double cpuSeconds();

/** What @p work costs in the round @p round, in seconds or instructions. */
double cost(const Work &work, int round);

/** The middle of @p values, or the mean of the two in the middle; 0 without any. */
double median(QVector<double> values);

/** What @p work costs, the median of @p rounds after one that does not count. */
double measure(const Work &work, int rounds = 9);

/**
 * Lets @p ours and @p stock take turns for @p rounds rounds, the first of the two changing each
 * time, after one round that does not count. That one is the round 0; the others are 1 to @p
 * rounds. Instructions are counted for one round.
 */
Comparison compare(const Side &ours, const Side &stock, int rounds = 15);
/** The same without anything to prepare. */
Comparison compare(const Work &ours, const Work &stock, int rounds = 15);

/**
 * The exponent with which the cost grows with the size: 1 when twice the size costs twice as much,
 * 2 when it costs four times as much. It is the slope of the straight line through the logarithms.
 */
double growthExponent(const QVector<Point> &points);

/** Reads the options, and makes ready for measuring: no display unless QT_QPA_PLATFORM names one,
 * and nothing of this machine's desktop. Before QApplication. */
void prepareEnvironment(int argc, char **argv);
/** Sets the style and the font that all benchmarks are measured with. After QApplication. */
void prepareApplication();

/** Prints the head of the table: operation, ours, stock, ratio, goal. */
void printHead();
/**
 * Prints one row, the cost per operation in microseconds or instructions: each round of @p
 * comparison was @p operations operations long. A @p goal above 0 is the largest ratio that is
 * aimed at.
 */
void printLine(const QString &operation, const Comparison &comparison, int operations,
               double goal = 0.0, GoalOf goalOf = GoalOf::Time);
/** Prints a row for the growth exponent of ours and, where it was measured, that of stock. */
void printGrowth(const QString &operation, double exponent, double goal = 0.0, double stock = 0.0);
/** Prints a row for bytes: what one of ours takes beside what a stock one takes. */
void printBytes(const QString &operation, double ours, double stock, double goal = 0.0);
/** Prints a row for bytes that ours and stock gained in each of many rounds; @p goal is the most
 * that ours may. */
void printGain(const QString &operation, double ours, double stock, double goal);

} // namespace bench

#endif
