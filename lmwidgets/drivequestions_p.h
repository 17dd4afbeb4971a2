#ifndef LMWIDGETS_DRIVEQUESTIONS_P_H
#define LMWIDGETS_DRIVEQUESTIONS_P_H

/** @file
 * What the choice of a drive asks the system, answered by one source file per platform. The Windows
 * file does without Qt, so that it can be compiled and run wherever there is a cross compiler.
 * Tests link answers of their own in place of the platform's.
 */

#include <string>

namespace LM {
namespace Widgets {

/** Whether @p drive, named as the system lists it (for example "D:"), lies on another machine. */
bool isNetworkDrive(const std::wstring &drive);

/** Whether @p drive is known to have no seek penalty; what cannot be found out counts as no. */
bool isSolidStateDrive(const std::wstring &drive);

} // namespace Widgets
} // namespace LM

#endif
