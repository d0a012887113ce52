# A static Qt has every program and library compile a source of one line for each plugin that it may import. Here each of these
# is compiled once, and what would compile it links that object: with a program per test, hundreds of compilations less.
function(kqtui_compile_plugin_imports_once)
  foreach(plugin IN LISTS ARGN)
    get_target_property(import ${plugin} INTERFACE_SOURCES)
    if(import)
      string(REPLACE "Qt5::" "kqtui-import-" name ${plugin})
      add_library(${name} OBJECT ${import})
      set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTORCC OFF AUTOUIC OFF)
      target_link_libraries(${name} PRIVATE Qt5::Core)
      set_target_properties(${plugin} PROPERTIES INTERFACE_SOURCES $<TARGET_OBJECTS:${name}>)
    endif()
  endforeach()
endfunction()

# None of a shared Qt has such a source.
kqtui_compile_plugin_imports_once(${Qt5Gui_PLUGINS} ${Qt5Widgets_PLUGINS})
