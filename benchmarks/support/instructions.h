#ifndef INSTRUCTIONS_H
#define INSTRUCTIONS_H

/** @file
 * Counts the instructions of a piece of work with callgrind.
 */

#include <functional>

namespace bench {

/**
 * Whether this program runs under callgrind for counting. The environment variable
 * LMWIDGETS_BENCH_DUMPS names the files that callgrind writes then, without their numbers: its
 * option --callgrind-out-file must be the same.
 */
bool countsInstructions();

/** The number of instructions that @p work takes, in this process and in user mode only. */
double instructionsOf(const std::function<void()> &work);

} // namespace bench

#endif
