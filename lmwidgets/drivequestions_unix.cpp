#include "drivequestions_unix_p.h"

#include "drivequestions_p.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <iterator>
#include <sstream>
#include <sys/stat.h>
#ifdef __linux__
#include <sys/sysmacros.h>
#endif
#include <vector>

namespace LM {
namespace Widgets {

namespace {

const char *const NetworkTypes[] = {
    "9p",        "afs",        "beegfs",         "ceph",        "cifs",           "coda",
    "davfs",     "fuse.ceph",  "fuse.curlftpfs", "fuse.davfs2", "fuse.glusterfs", "fuse.rclone",
    "fuse.s3fs", "fuse.sshfs", "gfs2",           "gpfs",        "lustre",         "ncpfs",
    "nfs",       "nfs4",       "ocfs2",          "orangefs",    "smb3",           "smbfs",
};

std::string readFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

bool isOctal(char digit)
{
    return digit >= '0' && digit <= '7';
}

/** The mount table writes blanks, line ends and backslashes as a backslash and three digits. */
std::string unescaped(const std::string &text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && isOctal(text[i + 1]) &&
            isOctal(text[i + 2]) && isOctal(text[i + 3])) {
            const int code =
                (text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0');
            result += static_cast<char>(code);
            i += 3;
        } else {
            result += text[i];
        }
    }
    return result;
}

bool isFolderOf(const std::string &folder, const std::string &path)
{
    return folder == "/" || path == folder ||
           (path.size() > folder.size() && path.compare(0, folder.size(), folder) == 0 &&
            path[folder.size()] == '/');
}

Mount parseMount(const std::string &line)
{
    std::istringstream stream(line);
    const std::vector<std::string> fields{std::istream_iterator<std::string>(stream),
                                          std::istream_iterator<std::string>()};
    constexpr std::size_t folderField = 4;
    const auto separator = std::find(fields.begin(), fields.end(), "-");
    if (separator - fields.begin() <= static_cast<std::ptrdiff_t>(folderField) ||
        fields.end() - separator < 3) {
        return Mount();
    }
    return {unescaped(fields[folderField]), separator[1], unescaped(separator[2])};
}

#ifdef __linux__

std::string narrow(const std::wstring &text)
{
    std::mbstate_t state = {};
    const wchar_t *source = text.c_str();
    std::string result(text.size() * MB_LEN_MAX, '\0');
    const std::size_t size = std::wcsrtombs(&result[0], &source, result.size(), &state);
    // What the locale cannot express is no path that could be asked about.
    result.resize(size == static_cast<std::size_t>(-1) ? 0 : size);
    return result;
}

/** The absolute path without links, or an empty one where there is no such file. */
std::string realPath(const std::wstring &drive)
{
    char *resolved = realpath(narrow(drive).c_str(), nullptr);
    const std::string path = resolved ? resolved : "";
    std::free(resolved);
    return path;
}

std::string deviceNumber(dev_t device)
{
    return std::to_string(major(device)) + ':' + std::to_string(minor(device));
}

#endif

} // namespace

Mount findMount(const std::string &table, const std::string &path)
{
    Mount best;
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
        const Mount mount = parseMount(line);
        if (!mount.folder.empty() && isFolderOf(mount.folder, path) &&
            mount.folder.size() >= best.folder.size()) {
            best = mount;
        }
    }
    return best;
}

bool isNetworkFileSystem(const std::string &type)
{
    return std::find(std::begin(NetworkTypes), std::end(NetworkTypes), type) !=
           std::end(NetworkTypes);
}

bool isMarkedSolidState(const std::string &devices, const std::string &number)
{
    const std::string device = devices + '/' + number;
    std::string mark = readFile(device + "/queue/rotational");
    if (mark.empty()) {
        mark = readFile(device + "/../queue/rotational");
    }
    return !mark.empty() && mark[0] == '0';
}

#ifdef __linux__

bool isNetworkDrive(const std::wstring &drive)
{
    const std::string path = realPath(drive);
    return !path.empty() &&
           isNetworkFileSystem(findMount(readFile("/proc/self/mountinfo"), path).type);
}

bool isSolidStateDrive(const std::wstring &drive)
{
    const std::string path = realPath(drive);
    struct stat status = {};
    if (path.empty() || stat(path.c_str(), &status) != 0) {
        return false;
    }
    dev_t device = status.st_dev;
    if (major(device) == 0) {
        // File systems such as btrfs number their volumes themselves; the table names the device.
        const Mount mount = findMount(readFile("/proc/self/mountinfo"), path);
        if (stat(mount.source.c_str(), &status) != 0 || !S_ISBLK(status.st_mode)) {
            return false;
        }
        device = status.st_rdev;
    }
    return isMarkedSolidState("/sys/dev/block", deviceNumber(device));
}

#else

bool isNetworkDrive(const std::wstring &)
{
    return false;
}

bool isSolidStateDrive(const std::wstring &)
{
    return false;
}

#endif

} // namespace Widgets
} // namespace LM
