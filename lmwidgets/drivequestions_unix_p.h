#ifndef LMWIDGETS_DRIVEQUESTIONS_UNIX_P_H
#define LMWIDGETS_DRIVEQUESTIONS_UNIX_P_H

/** @file
 * How the answers are found on Linux: in the mount table and in what the kernel says of its block
 * devices. Other Unix systems have neither, and every question is answered with no there.
 */

#include <string>

namespace LM {
namespace Widgets {

/** One line of the mount table. */
struct Mount
{
    std::string folder; ///< where it is mounted; empty when nothing was found
    std::string type;   ///< the kind of file system
    std::string source; ///< the device, or what the file system takes for one
};

/**
 * Returns the mount that the absolute path @p path without links lies on, from @p table, which has
 * the form of /proc/self/mountinfo. Lines of another form are skipped; of two mounts on one folder
 * the later hides the earlier.
 */
Mount findMount(const std::string &table, const std::string &path);

/** Whether file systems of the kind @p type have their data on another machine. */
bool isNetworkFileSystem(const std::string &type);

/**
 * Whether the block device @p number, in the form "8:1", is marked as not rotating below @p
 * devices, the folder /sys/dev/block. A partition has the mark of its disk.
 */
bool isMarkedSolidState(const std::string &devices, const std::string &number);

} // namespace Widgets
} // namespace LM

#endif
