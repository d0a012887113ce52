# cmake -DSOURCE_DIR=... -DWORK_DIR=... -P installed-siblings.cmake
#
# The sibling libraries are taken from installed packages where CMake finds them, each on its own, and from the stand-ins
# otherwise: seen in what would be compiled and linked.
file(REMOVE_RECURSE ${WORK_DIR})

# An "installed copy" that can be told apart: its headers' folder and a definition show in every compile command.
function(offer name)
  file(WRITE ${WORK_DIR}/prefix/lib/cmake/${name}/${name}Config.cmake "
    add_library(${name}::${name} INTERFACE IMPORTED)
    target_compile_definitions(${name}::${name} INTERFACE INSTALLED_${name})
    target_link_libraries(${name}::${name} INTERFACE \"-linstalled-${name}\")")
endfunction()

function(configure)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G Ninja -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
      -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DKQTUI_BUILD_TESTS=OFF -DKQTUI_BUILD_EXAMPLES=OFF
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${output}")
  endif()
endfunction()

function(expect_sibling name installed)
  file(READ ${WORK_DIR}/build/compile_commands.json commands)
  file(READ ${WORK_DIR}/build/build.ninja rules)
  string(FIND "${commands}" "${SOURCE_DIR}/support/${name}/" stand_in_compiled)
  string(FIND "${commands}" "-DINSTALLED_${name}" installed_seen)
  string(FIND "${rules}" "-linstalled-${name}" installed_linked)
  if(installed)
    if(NOT stand_in_compiled EQUAL -1 OR installed_seen EQUAL -1 OR installed_linked EQUAL -1)
      message(FATAL_ERROR "The installed ${name} is not used")
    endif()
  elseif(stand_in_compiled EQUAL -1 OR NOT installed_seen EQUAL -1)
    message(FATAL_ERROR "The stand-in of ${name} is not used")
  endif()
endfunction()

configure()
expect_sibling(Basalt FALSE)
expect_sibling(KQtUtil FALSE)

file(REMOVE_RECURSE ${WORK_DIR}/build)
offer(Basalt)
configure()
expect_sibling(Basalt TRUE)
expect_sibling(KQtUtil FALSE)

file(REMOVE_RECURSE ${WORK_DIR}/build)
offer(KQtUtil)
configure()
expect_sibling(Basalt TRUE)
expect_sibling(KQtUtil TRUE)
