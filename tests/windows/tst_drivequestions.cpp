/** @file
 * The Windows answers to what the choice of a drive asks the system, compiled for Windows and run
 * wherever such programs run. Half of the checks put functions of their own in place of the
 * system's, to see what it is asked and to give every answer there is; the other half asks the real
 * system. Does without Qt, as the source under test does.
 */

#ifndef UNICODE
#define UNICODE
#endif

#include "lmwidgets/drivequestions_p.h"

#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif

#include <windows.h>
#include <winioctl.h>

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <string>

namespace {

int failures = 0;

void check(bool holds, const char *what, int line)
{
    if (!holds) {
        std::printf("FAIL  line %d: %s\n", line, what);
        ++failures;
    }
}

#define CHECK(condition) check((condition), #condition, __LINE__)

/** What the source under test asked, and what it is to be told. */
struct Spy
{
    bool active = false;
    UINT driveType = DRIVE_FIXED;
    bool canOpen = true;
    bool knowsPenalty = true;
    BYTE penalty = 0;

    std::wstring driveName;
    std::wstring volume;
    DWORD access = 1;
    DWORD share = 0;
    const void *security = nullptr;
    DWORD disposition = 0;
    DWORD flags = 1;
    HANDLE pattern = nullptr;
    DWORD code = 0;
    DWORD inputSize = 0;
    DWORD outputSize = 0;
    unsigned char input[12] = {};
    int opened = 0;
    int asked = 0;
    int closed = 0;
};

Spy spy;
const HANDLE Handle = reinterpret_cast<HANDLE>(0x1234);

UINT WINAPI spiedDriveType(const wchar_t *name)
{
    if (!spy.active) {
        return GetDriveTypeW(name);
    }
    spy.driveName = name;
    return spy.driveType;
}

HANDLE WINAPI spiedCreateFile(const wchar_t *name, DWORD access, DWORD share,
                              SECURITY_ATTRIBUTES *security, DWORD disposition, DWORD flags,
                              HANDLE pattern)
{
    spy.volume = name;
    spy.access = access;
    spy.share = share;
    spy.security = security;
    spy.disposition = disposition;
    spy.flags = flags;
    spy.pattern = pattern;
    HANDLE handle = spy.canOpen ? Handle : INVALID_HANDLE_VALUE;
    if (!spy.active) {
        handle = CreateFileW(name, access, share, security, disposition, flags, pattern);
    }
    spy.opened += handle != INVALID_HANDLE_VALUE;
    return handle;
}

BOOL WINAPI spiedControl(HANDLE handle, DWORD code, void *input, DWORD inputSize, void *output,
                         DWORD outputSize, DWORD *size, OVERLAPPED *overlapped)
{
    ++spy.asked;
    spy.code = code;
    spy.inputSize = inputSize;
    spy.outputSize = outputSize;
    std::memcpy(spy.input, input, sizeof(spy.input));
    if (!spy.active) {
        return DeviceIoControl(handle, code, input, inputSize, output, outputSize, size,
                               overlapped);
    }
    CHECK(handle == Handle);
    if (!spy.knowsPenalty) {
        return FALSE;
    }
    auto *answer = static_cast<DEVICE_SEEK_PENALTY_DESCRIPTOR *>(output);
    answer->Version = sizeof(DEVICE_SEEK_PENALTY_DESCRIPTOR);
    answer->Size = sizeof(DEVICE_SEEK_PENALTY_DESCRIPTOR);
    answer->IncursSeekPenalty = spy.penalty;
    *size = sizeof(DEVICE_SEEK_PENALTY_DESCRIPTOR);
    return TRUE;
}

BOOL WINAPI spiedClose(HANDLE handle)
{
    ++spy.closed;
    if (!spy.active) {
        return CloseHandle(handle);
    }
    CHECK(handle == Handle);
    return TRUE;
}

} // namespace

#define GetDriveTypeW spiedDriveType
#define CreateFileW spiedCreateFile
#define DeviceIoControl spiedControl
#define CloseHandle spiedClose

#include "lmwidgets/drivequestions_win.cpp"

#undef GetDriveTypeW
#undef CreateFileW
#undef DeviceIoControl
#undef CloseHandle

namespace {

using LM::Widgets::isNetworkDrive;
using LM::Widgets::isSolidStateDrive;

void pretend()
{
    spy = Spy();
    spy.active = true;
}

void networkDrives()
{
    pretend();
    for (const UINT type : {0U, 1U, 2U, 3U, 5U, 6U}) {
        spy.driveType = type;
        CHECK(!isNetworkDrive(L"D:"));
    }
    spy.driveType = 4;
    CHECK(isNetworkDrive(L"D:"));
    // As it was listed, without anything added.
    CHECK(spy.driveName == L"D:");
    CHECK(spy.opened == 0 && spy.asked == 0);
}

void whatIsAsked()
{
    pretend();
    isSolidStateDrive(L"E:");
    CHECK(spy.volume == L"\\\\.\\E:");
    CHECK(spy.access == 0);
    CHECK(spy.share == 3);
    CHECK(spy.security == nullptr);
    CHECK(spy.disposition == 3);
    CHECK(spy.flags == 0);
    CHECK(spy.pattern == nullptr);
    CHECK(spy.code == 0x2D1400);
    CHECK(spy.inputSize == 12);
    CHECK(spy.outputSize == 12);
    const unsigned char query[12] = {7};
    CHECK(std::memcmp(spy.input, query, sizeof(query)) == 0);
    CHECK(spy.asked == 1);
}

void namesOfOtherLengths()
{
    pretend();
    isSolidStateDrive(L"E:\\folder");
    CHECK(spy.volume == L"\\\\.\\E:");
    isSolidStateDrive(L"E");
    CHECK(spy.volume == L"\\\\.\\E");
    isSolidStateDrive(L"");
    CHECK(spy.volume == L"\\\\.\\");
}

void answers()
{
    pretend();
    CHECK(isSolidStateDrive(L"E:"));
    CHECK(spy.opened == 1 && spy.closed == 1);

    pretend();
    spy.penalty = 1;
    CHECK(!isSolidStateDrive(L"E:"));
    CHECK(spy.opened == 1 && spy.closed == 1);

    pretend();
    spy.knowsPenalty = false;
    CHECK(!isSolidStateDrive(L"E:"));
    CHECK(spy.opened == 1 && spy.closed == 1);

    pretend();
    spy.canOpen = false;
    CHECK(!isSolidStateDrive(L"E:"));
    CHECK(spy.asked == 0 && spy.closed == 0);
}

/** Here C: is a folder of this machine, N: a network drive, and there is no Q:. */
void realSystem()
{
    spy = Spy();
    CHECK(!isNetworkDrive(L"C:"));
    CHECK(isNetworkDrive(L"N:"));
    CHECK(!isNetworkDrive(L"Q:"));
    CHECK(!isNetworkDrive(L""));

    spy = Spy();
    SetLastError(0);
    CHECK(!isSolidStateDrive(L"C:"));
    CHECK(spy.opened == 1 && spy.asked == 1 && spy.closed == 1);
    CHECK(spy.volume == L"\\\\.\\C:");

    spy = Spy();
    CHECK(!isSolidStateDrive(L"Q:"));
    CHECK(GetLastError() == ERROR_FILE_NOT_FOUND);
    CHECK(spy.opened == 0 && spy.asked == 0 && spy.closed == 0);

    DWORD before = 0;
    CHECK(GetProcessHandleCount(GetCurrentProcess(), &before));
    for (int i = 0; i < 100; ++i) {
        isSolidStateDrive(L"C:");
    }
    DWORD after = 0;
    CHECK(GetProcessHandleCount(GetCurrentProcess(), &after));
    CHECK(after == before);
}

} // namespace

int main()
{
    networkDrives();
    whatIsAsked();
    namesOfOtherLengths();
    answers();
    realSystem();
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
