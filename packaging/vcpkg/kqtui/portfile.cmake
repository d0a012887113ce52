# An overlay port; it builds from the checkout that it lies in:
#   vcpkg install kqtui --overlay-ports=packaging/vcpkg
get_filename_component(SOURCE_PATH "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)

vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS
    -DKQTUI_BUILD_TESTS=OFF
    -DKQTUI_BUILD_EXAMPLES=OFF
    -DKQTUI_BUILD_BENCHMARKS=OFF
    -DKQTUI_BUILD_FUZZERS=OFF
    -DKQTUI_BUILD_DESIGNER_PLUGIN=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME KQtUi CONFIG_PATH lib/cmake/KQtUi)
vcpkg_fixup_pkgconfig()
vcpkg_copy_pdbs()

# Both variants install the same headers and data.
file(REMOVE_RECURSE
  "${CURRENT_PACKAGES_DIR}/debug/include"
  "${CURRENT_PACKAGES_DIR}/debug/share")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
