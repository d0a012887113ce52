# The installed copy: library, public headers, CMake package and pkg-config module. Nothing in it holds an absolute path,
# so the prefix can be chosen at installation and moved afterwards.
#
# Everything belongs to a component, so that packages can be made of parts of it: "runtime" is what programs need to run,
# "development" what it takes to build them, "designer" the plugin for Qt Designer, "translations" the texts in other
# languages, "licence" the licence's text, which distributions keep in a place of their own.
include(CMakePackageConfigHelpers)

set(KQTUI_TRANSLATIONSDIR ${CMAKE_INSTALL_DATADIR}/kqtui/translations)
set(KQTUI_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/KQtUi)
set(kqtui_targets KQtUi)
set(KQTUI_STATIC_DEPENDENCIES)

# A static library leaves it to the program to link what it calls.
if(NOT BUILD_SHARED_LIBS)
  string(APPEND KQTUI_STATIC_DEPENDENCIES "find_dependency(glog CONFIG)\n")
  foreach(sibling IN ITEMS Basalt KQtUtil)
    if(TARGET KQtUi::${sibling})
      list(APPEND kqtui_targets ${sibling})
    else()
      string(APPEND KQTUI_STATIC_DEPENDENCIES "find_dependency(${sibling} CONFIG)\n")
    endif()
  endforeach()
  foreach(module IN LISTS KQTUI_PLATFORM_QT_MODULES)
    string(APPEND KQTUI_STATIC_DEPENDENCIES "find_dependency(Qt5${module} 5.15)\n")
  endforeach()
endif()

install(TARGETS ${kqtui_targets} EXPORT KQtUiTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)

get_directory_property(headers DIRECTORY ${PROJECT_SOURCE_DIR}/KQt/Ui DEFINITION KQTUI_PUBLIC_HEADERS)
foreach(header IN LISTS headers)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES KQt/Ui/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KQt/Ui/${folder} COMPONENT development)
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/include/KQt/Ui/Export.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/KQt/Ui
  COMPONENT development)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT licence)

configure_package_config_file(cmake/KQtUiConfig.cmake.in ${PROJECT_BINARY_DIR}/KQtUiConfig.cmake
  INSTALL_DESTINATION ${KQTUI_INSTALL_CMAKEDIR}
  PATH_VARS KQTUI_TRANSLATIONSDIR
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/KQtUiConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/KQtUiConfig.cmake ${PROJECT_BINARY_DIR}/KQtUiConfigVersion.cmake
  DESTINATION ${KQTUI_INSTALL_CMAKEDIR} COMPONENT development)
install(EXPORT KQtUiTargets NAMESPACE KQtUi:: DESTINATION ${KQTUI_INSTALL_CMAKEDIR} COMPONENT development)

# Folders as pkg-config sees them: from the prefix on where they lie beneath it.
function(kqtui_pkgconfig_folder result folder)
  if(IS_ABSOLUTE ${folder})
    set(${result} ${folder} PARENT_SCOPE)
  else()
    set(${result} "\${prefix}/${folder}" PARENT_SCOPE)
  endif()
endfunction()
kqtui_pkgconfig_folder(KQTUI_PC_LIBDIR ${CMAKE_INSTALL_LIBDIR})
kqtui_pkgconfig_folder(KQTUI_PC_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
kqtui_pkgconfig_folder(KQTUI_PC_TRANSLATIONSDIR ${KQTUI_TRANSLATIONSDIR})
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(KQTUI_PC_PREFIX ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
  string(REGEX REPLACE "/$" "" up ${up})
  set(KQTUI_PC_PREFIX "\${pcfiledir}/${up}")
endif()
set(KQTUI_PC_REQUIRES)
set(KQTUI_PC_CFLAGS)
set(KQTUI_PC_LIBS -lKQtUi)
if(NOT BUILD_SHARED_LIBS)
  set(KQTUI_PC_CFLAGS " -DKQTUI_STATIC")
  foreach(sibling IN ITEMS KQtUtil Basalt)
    if(TARGET KQtUi::${sibling})
      get_target_property(name ${sibling} OUTPUT_NAME)
      string(APPEND KQTUI_PC_LIBS " -l${name}")
    endif()
  endforeach()
  get_directory_property(platform_libraries DIRECTORY ${PROJECT_SOURCE_DIR}/KQt/Ui DEFINITION KQTUI_PLATFORM_LIBRARIES)
  foreach(library IN LISTS CMAKE_DL_LIBS platform_libraries)
    string(APPEND KQTUI_PC_LIBS " -l${library}")
  endforeach()
  set(KQTUI_PC_REQUIRES ", libglog")
  foreach(module IN LISTS KQTUI_PLATFORM_QT_MODULES)
    string(APPEND KQTUI_PC_REQUIRES ", Qt5${module} >= 5.15")
  endforeach()
endif()
configure_file(cmake/kqtui.pc.in ${PROJECT_BINARY_DIR}/kqtui.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kqtui.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
