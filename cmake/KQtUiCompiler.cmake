# Settings shared by every target of the tree.
set(CMAKE_CXX_STANDARD 17 CACHE STRING "C++ standard")
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(KQTUI_CCACHE ccache)
if(KQTUI_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # The path map below makes outputs independent of the folder; this lets ccache see that too. What a file includes is
  # taken from the compiler's own list, which saves preprocessing each file once more. The rest is what ccache asks
  # for where headers are precompiled: it then takes the checksum that lies beside such a header, since no two are alike.
  if(CMAKE_HOST_UNIX)
    set(env env) # a tenth of the time of CMake's own
  else()
    set(env ${CMAKE_COMMAND} -E env)
  endif()
  set(CMAKE_CXX_COMPILER_LAUNCHER ${env} CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
      CCACHE_DEPEND=1 CCACHE_PCH_EXTSUM=1 CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
      ${KQTUI_CCACHE})
endif()

# Paths in messages, assertions and debug information start at the source tree, wherever the build runs.
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  # The last map that fits is used.
  add_compile_options(-ffile-prefix-map=${PROJECT_SOURCE_DIR}/= -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
endif()

if(MINGW AND CMAKE_CROSSCOMPILING)
  # Each program has a static Qt in it, which lld links in a tenth of the time. This gcc knows of one linker only.
  find_program(KQTUI_LLD ld.lld)
  if(KQTUI_LLD)
    add_link_options(-fno-use-linker-plugin "SHELL:-wrapper '${PROJECT_SOURCE_DIR}/cmake/link-with-lld'")
  endif()
endif()

if(KQTUI_SANITIZE)
  add_compile_options(-fsanitize=${KQTUI_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${KQTUI_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Instrumented code hides from gcc's analysis what initialises a variable; the release build has this warning on.
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-maybe-uninitialized>)
  endif()
endif()

# Adds the warnings and Qt settings that the repository's own code is written against; nothing of it reaches a user.
function(kqtui_strict target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic
      $<$<BOOL:${KQTUI_WARNINGS_AS_ERRORS}>:-Werror>)
  endif()
  target_compile_definitions(${target} PRIVATE
    QT_DEPRECATED_WARNINGS QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS)
endfunction()
