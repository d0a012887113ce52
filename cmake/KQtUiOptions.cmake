# What a builder can choose. Everything that only the library's own developers need is on at top level alone.
set(kqtui_top_level OFF)
if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
  set(kqtui_top_level ON)
endif()

option(BUILD_SHARED_LIBS "Build KQtUi as a shared library" ON)
option(KQTUI_BUILD_TESTS "Build the tests" ${kqtui_top_level})
option(KQTUI_BUILD_EXAMPLES "Build the gallery" ${kqtui_top_level})
option(KQTUI_BUILD_DESIGNER_PLUGIN "Build the plugin for Qt Designer, where Qt's libraries for it are found"
  ${kqtui_top_level})
option(KQTUI_BUILD_BENCHMARKS "Build the benchmarks (Google Benchmark)" OFF)
option(KQTUI_BUILD_FUZZERS "Build the fuzzers (clang's libFuzzer)" OFF)
option(KQTUI_DEBIAN_PACKAGES "cpack makes Debian packages; for an installation to /usr" OFF)
option(KQTUI_PRECOMPILED_HEADERS "Precompile common headers (gcc, clang)" OFF)
option(KQTUI_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(KQTUI_SANITIZE "" CACHE STRING "Sanitizers for every target, as the compiler spells them: address,undefined")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Build type" FORCE)
endif()

# For every program that ctest starts. Leaks are reported by the sanitizer build; what Qt, fontconfig and drivers keep until
# the end of the process is not ours.
set(KQTUI_TEST_ENVIRONMENT
  "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
  "UBSAN_OPTIONS=print_stacktrace=1")
