# Debian packages, one for each component of the installation: `cpack --config build/package/CPackConfig.cmake` after a
# build of the preset "package", which installs to /usr. Elsewhere cpack makes one archive of everything.
set(CPACK_PACKAGE_NAME kqtui)
set(CPACK_PACKAGE_VENDOR "KQtUi developers")
set(CPACK_PACKAGE_CONTACT "KQtUi developers <developers@kqtui.example>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR TGZ)

if(KQTUI_DEBIAN_PACKAGES)
  set(CPACK_GENERATOR DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_COMPONENTS_ALL runtime development)
  # CPack sets its summary before each package's own one, unless it is the one that it makes up itself.
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${CMAKE_PROJECT_NAME} built using CMake")
  set(about "KQtUi holds widgets and helpers for desktop applications on Qt 5: colour and
pen pickers, combo boxes, labels, selection frames, walkthrough hints, dialogs.")

  set(papers ${PROJECT_BINARY_DIR}/packaging)
  set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
  set(CPACK_DEBIAN_VERSION ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_SOURCE kqtui)
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  # The plugin links the library of this very build, which no installed package knows.
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/KQt/Ui)
  set(this_version "(= ${CPACK_DEBIAN_VERSION})")

  set(library libkqtui${PROJECT_VERSION_MAJOR})
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library})
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
  # Who links the library depends on this version or a later one; its cache is renewed by a trigger, without scripts.
  file(WRITE ${papers}/shlibs "libKQtUi ${PROJECT_VERSION_MAJOR} ${library} (>= ${PROJECT_VERSION})\n")
  file(WRITE ${papers}/triggers "activate-noawait ldconfig\n")
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${papers}/shlibs ${papers}/triggers)
  set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS libkqtui-l10n)
  set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
      "components for desktop applications on Qt 5, library\n${about}\nThis package holds the shared library.")

  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkqtui-dev)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
      "${library} ${this_version}, qtbase5-dev (>= 5.15), libboost-dev (>= 1.65)")
  set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS kqtui-designer)
  set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
      "components for desktop applications on Qt 5, headers\n${about}\nThis package holds the headers, the CMake package and the pkg-config module.")

  if(TARGET kqtui-translations)
    list(APPEND CPACK_COMPONENTS_ALL translations)
    set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_NAME libkqtui-l10n)
    set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_SECTION localization)
    set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_ARCHITECTURE all)
    set(CPACK_COMPONENT_TRANSLATIONS_DESCRIPTION
        "components for desktop applications on Qt 5, translations\n${about}\nThis package holds the library's texts in other languages than English.")
  endif()

  if(TARGET KQtUiDesigner)
    list(APPEND CPACK_COMPONENTS_ALL designer)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME kqtui-designer)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_DEPENDS "${library} ${this_version}")
    set(CPACK_DEBIAN_DESIGNER_PACKAGE_ENHANCES qttools5-dev-tools)
    set(CPACK_COMPONENT_DESIGNER_DESCRIPTION
        "components for desktop applications on Qt 5, Designer plugin\n${about}\nThis package holds the plugin that shows the widgets in Qt Designer.")
  endif()

  # What each package tells about itself in its own folder.
  find_program(KQTUI_GZIP gzip REQUIRED)
  configure_file(packaging/debian/changelog.in ${papers}/changelog.Debian @ONLY)
  file(READ LICENSE licence)
  file(WRITE ${papers}/copyright "KQtUi: ${PROJECT_DESCRIPTION}\nThe sources and these packages come from the ${CPACK_PACKAGE_CONTACT}.\n\n${licence}")
  configure_file(CHANGELOG.md ${papers}/changelog COPYONLY)
  foreach(name IN ITEMS changelog.Debian changelog)
    # Neither name nor time of the file: the same sources make the same package.
    execute_process(COMMAND ${KQTUI_GZIP} -9nkf ${papers}/${name} COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    install(FILES ${papers}/copyright ${papers}/changelog.Debian.gz ${papers}/changelog.gz
      DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME} COMPONENT ${component})
  endforeach()
endif()

include(CPack)
