# Half of what it takes to compile a file is reading headers of Qt, Boost and the standard library: those that most files read are
# precompiled where the build asks for it. What a file does not include itself it does not have in other builds, nor in the
# static analysis.
#
# Of the repository's own headers there is none: one that changes would have everything compiled again.
set(KQTUI_COMMON_HEADERS
  <QApplication> <QBoxLayout> <QComboBox> <QGraphicsScene> <QGraphicsView> <QLabel> <QLineEdit> <QListView> <QMouseEvent>
  <QPainter> <QPointer> <QPushButton> <QSlider> <QStyleOption> <QTimer> <QToolButton> <boost/exception/all.hpp> <functional>
  <memory> <stdexcept>)

# kqtui_add_precompiled_headers(target [header...])
#
# Adds a target that has nothing but precompiled headers: the common ones after those given. It needs the settings of those that
# use it; only definitions that no header asks for may differ.
function(kqtui_add_precompiled_headers target)
  add_library(${target} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled-headers.cpp)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF)
  target_precompile_headers(${target} PRIVATE ${ARGN} ${KQTUI_COMMON_HEADERS})
  # What ccache takes for the contents; gcc and clang have their own names for such a file.
  set(suffix gch)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    set(suffix pch)
  endif()
  file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${target}.dir/cmake_pch.hxx.${suffix}.sum
    "${ARGN} ${KQTUI_COMMON_HEADERS} ${CMAKE_CXX_COMPILER_VERSION} ${Qt5_VERSION} ${Boost_VERSION}\n")
endfunction()

# Has a target read the headers of such a one, where there is one.
function(kqtui_use_precompiled_headers target headers)
  if(TARGET ${headers})
    target_precompile_headers(${target} REUSE_FROM ${headers})
  endif()
endfunction()

if(KQTUI_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_ID MATCHES "^(GNU|Clang)$")
  # For the library and what is built with the same settings.
  kqtui_add_precompiled_headers(kqtui-common-headers)
  kqtui_strict(kqtui-common-headers)
  target_link_libraries(kqtui-common-headers PRIVATE Qt5::Widgets Boost::boost)
endif()
