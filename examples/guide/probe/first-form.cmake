# Adds the probe to the project first-form, which shows nothing of it to its readers:
#   cmake -S examples/guide/first-form -DCMAKE_PROJECT_first-form_INCLUDE=<this file>
# The call is put off until the target is there; its arguments would be, too.
set(probe ${CMAKE_CURRENT_LIST_DIR}/Probe.cpp)
cmake_language(EVAL CODE "cmake_language(DEFER CALL target_sources first-form PRIVATE [[${probe}]])")
