#include <Basalt/WindowsVersion.h>

#ifdef _WIN32
#include <windows.h>
#endif

namespace Kestrel::Core {

bool IsWindowsVistaOrGreater()
{
#ifdef _WIN32
    // VerifyVersionInfo instead of the SDK's IsWindowsVistaOrGreater(), whose name this function has.
    constexpr DWORD vistaMajor = 6;
    OSVERSIONINFOEXW wanted = {};
    wanted.dwOSVersionInfoSize = sizeof(wanted);
    wanted.dwMajorVersion = vistaMajor;
    const DWORDLONG mask = VerSetConditionMask(0, VER_MAJORVERSION, VER_GREATER_EQUAL);
    return VerifyVersionInfoW(&wanted, VER_MAJORVERSION, mask) != FALSE;
#else
    return false;
#endif
}

} // namespace Kestrel::Core
