#include "drivequestions_p.h"

// The seek-penalty query came with Windows 7.
#if !defined(_WIN32_WINNT) || _WIN32_WINNT < 0x0601
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif

#include <windows.h>
#include <winioctl.h>

namespace LM {
namespace Widgets {

bool isNetworkDrive(const std::wstring &drive)
{
    return GetDriveTypeW(drive.c_str()) == DRIVE_REMOTE;
}

bool isSolidStateDrive(const std::wstring &drive)
{
    const std::wstring volume = L"\\\\.\\" + drive.substr(0, 2);
    // Without any access the question needs no administrator.
    const HANDLE handle = CreateFileW(volume.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    STORAGE_PROPERTY_QUERY query = {};
    query.PropertyId = StorageDeviceSeekPenaltyProperty;
    query.QueryType = PropertyStandardQuery;
    DEVICE_SEEK_PENALTY_DESCRIPTOR answer = {};
    static_assert(sizeof(query) == 12 && sizeof(answer) == 12, "as the system counts them");
    DWORD size = 0;
    const BOOL answered = DeviceIoControl(handle, IOCTL_STORAGE_QUERY_PROPERTY, &query,
                                          sizeof(query), &answer, sizeof(answer), &size, nullptr);
    CloseHandle(handle);
    return answered && !answer.IncursSeekPenalty;
}

} // namespace Widgets
} // namespace LM
