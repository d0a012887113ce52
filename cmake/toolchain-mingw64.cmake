# Cross-builds for 64-bit Windows with Debian's mingw-w64; programs run under wine.
# The static Qt, glog and Boost's headers lie in KQTUI_WINDOWS_SYSROOT, which tools/build-windows-sysroot makes.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

if(NOT KQTUI_WINDOWS_SYSROOT)
  if(DEFINED ENV{KQTUI_WINDOWS_SYSROOT})
    set(KQTUI_WINDOWS_SYSROOT $ENV{KQTUI_WINDOWS_SYSROOT})
  else()
    set(KQTUI_WINDOWS_SYSROOT $ENV{HOME}/.cache/kqtui/windows-sysroot)
  endif()
endif()
set(KQTUI_WINDOWS_SYSROOT ${KQTUI_WINDOWS_SYSROOT} CACHE PATH "Qt, glog and Boost for Windows")
# The compiler checks read this file again in a project of their own.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KQTUI_WINDOWS_SYSROOT)
if(NOT EXISTS ${KQTUI_WINDOWS_SYSROOT}/qt5/lib/cmake/Qt5/Qt5Config.cmake)
  message(FATAL_ERROR "There is no Qt for Windows in ${KQTUI_WINDOWS_SYSROOT}: tools/build-windows-sysroot makes one.")
endif()

# The variant with the thread library that std::mutex and std::thread need.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH
  ${KQTUI_WINDOWS_SYSROOT}/qt5
  ${KQTUI_WINDOWS_SYSROOT}/glog
  ${KQTUI_WINDOWS_SYSROOT}/boost
  /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs bring the compiler's runtime along, so that they start without its libraries beside them.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT -static)
endforeach()

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/run-in-wine)
