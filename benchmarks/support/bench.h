#ifndef BENCH_H
#define BENCH_H

/** @file
 * What every benchmark shares: the CPU time of one thing beside that of another, and the lines of
 * the table that it prints.
 *
 * All times are CPU time of this process, so that what else runs on the machine matters little.
 * Ours and stock take turns, round by round, and the ratio is the median of the rounds' ratios:
 * what slows the machine down for a while slows both.
 */

#include <QString>
#include <QVector>

#include <functional>

namespace bench {

/** One side of a comparison: does its operations of the round @p round, which counts from 0. */
using Work = std::function<void(int round)>;

/** What compare() measured. */
struct Comparison
{
    double ours = 0.0;  ///< CPU seconds of one round, median
    double stock = 0.0; ///< CPU seconds of one round, median
    double ratio = 0.0; ///< ours by stock, median of all rounds
};

/** A measured size and the seconds that it took. */
struct Point
{
    double size = 0.0;
    double seconds = 0.0;
};

/** The CPU time of this process so far, in seconds, system calls included. */
double cpuSeconds();

/** The middle of @p values, or the mean of the two in the middle; 0 without any. */
double median(QVector<double> values);

/** The CPU seconds that @p work takes once, the median of @p rounds after one that does not count.
 */
double measure(const Work &work, int rounds = 9);

/**
 * Lets @p ours and @p stock take turns for @p rounds rounds, the first of the two changing each
 * time, after one round that does not count. That one is the round 0; the others are 1 to @p
 * rounds.
 */
Comparison compare(const Work &ours, const Work &stock, int rounds = 15);

/**
 * The exponent with which the time grows with the size: 1 when twice the size takes twice the time,
 * 2 when it takes four times as long. It is the slope of the straight line through the logarithms.
 */
double growthExponent(const QVector<Point> &points);

/** Makes ready for measuring: no display, and nothing of this machine's desktop. Before
 * QApplication. */
void prepareEnvironment();
/** Sets the style and the font that all benchmarks are measured with. After QApplication. */
void prepareApplication();

/** Prints the head of the table: operation, ours, stock, ratio, goal. */
void printHead();
/**
 * Prints one line of the table, the times per operation in microseconds: each round of @p
 * comparison was
 * @p operations operations long. A @p goal above 0 is the ratio that is aimed at.
 */
void printLine(const QString &operation, const Comparison &comparison, int operations,
               double goal = 0.0);
/** Prints a line for a growth exponent in place of times. */
void printGrowth(const QString &operation, double exponent, double goal = 0.0);

} // namespace bench

#endif
