#include "ownsettings.h"

#include <QSettings>
#include <QTemporaryDir>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace lmtest {

#ifdef Q_OS_WIN

namespace {

const wchar_t Key[] = L"Software\\lmwidgets-tests";

} // namespace

/** In the registry, whose user part is a key below itself meanwhile. */
struct OwnSettings::Place
{
    Place()
    {
        RegCreateKeyExW(HKEY_CURRENT_USER, Key, 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS,
                        nullptr, &key, nullptr);
        RegOverridePredefKey(HKEY_CURRENT_USER, key);
    }
    ~Place()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key);
        RegDeleteTreeW(HKEY_CURRENT_USER, Key);
    }
    Q_DISABLE_COPY(Place)

    HKEY key = nullptr;
};

#else

struct OwnSettings::Place
{
    Place() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path()); }

    QTemporaryDir folder;
};

#endif

OwnSettings::OwnSettings() : m_place(new Place) {}

OwnSettings::~OwnSettings() = default;

} // namespace lmtest
