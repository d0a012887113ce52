# The languages of translations/*.ts; English stands in the sources.
set(KQTUI_LANGUAGES ar de es fr he it ja pl pt_BR ru uk zh_CN)

# Translations are compiled by the build machine's lrelease, also where the library is built for another system. Without
# one everything is built all the same, with English texts only.
find_program(KQTUI_LRELEASE NAMES lrelease lrelease-qt5 HINTS /usr/lib/qt5/bin NO_CMAKE_FIND_ROOT_PATH)
find_program(KQTUI_LUPDATE NAMES lupdate lupdate-qt5 HINTS /usr/lib/qt5/bin NO_CMAKE_FIND_ROOT_PATH)

# kqtui_translation_files(<variable> <program>)
# Sets the variable to the .ts files of "kqtui" or "gallery", one for each language.
function(kqtui_translation_files variable program)
  set(files)
  foreach(language IN LISTS KQTUI_LANGUAGES)
    list(APPEND files ${PROJECT_SOURCE_DIR}/translations/${program}_${language}.ts)
  endforeach()
  set(${variable} ${files} PARENT_SCOPE)
endfunction()

# kqtui_compile_translations(<variable> <file.ts>...)
# Sets the variable to the list of .qm files that the build makes of them; empty where lrelease is missing.
function(kqtui_compile_translations variable)
  set(compiled)
  if(KQTUI_LRELEASE)
    foreach(ts IN LISTS ARGN)
      get_filename_component(ts ${ts} ABSOLUTE)
      get_filename_component(name ${ts} NAME_WE)
      set(qm ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
      add_custom_command(OUTPUT ${qm}
        COMMAND ${KQTUI_LRELEASE} -silent ${ts} -qm ${qm}
        DEPENDS ${ts} VERBATIM)
      list(APPEND compiled ${qm})
    endforeach()
  else()
    message(STATUS "lrelease not found: no translations")
  endif()
  set(${variable} ${compiled} PARENT_SCOPE)
endfunction()

# kqtui_translations_resource(<variable> <name> <:/prefix> <file.qm>...)
# Writes <name>.qrc with the files under the prefix and sets the variable to its path.
function(kqtui_translations_resource variable name prefix)
  string(REGEX REPLACE "^:" "" prefix ${prefix})
  set(content "<RCC>\n<qresource prefix=\"${prefix}\">\n")
  foreach(qm IN LISTS ARGN)
    get_filename_component(alias ${qm} NAME)
    string(APPEND content "<file alias=\"${alias}\">${qm}</file>\n")
  endforeach()
  string(APPEND content "</qresource>\n</RCC>\n")
  set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  file(CONFIGURE OUTPUT ${qrc} CONTENT "${content}" @ONLY)
  set(${variable} ${qrc} PARENT_SCOPE)
endfunction()
