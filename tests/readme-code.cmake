# The code in the README is the example that the build compiles.
file(READ ${CMAKE_CURRENT_LIST_DIR}/../README.md readme)
file(READ ${CMAKE_CURRENT_LIST_DIR}/../examples/picker/main.cpp example)
string(FIND "${readme}" "```cpp\n${example}```" at)
if(at EQUAL -1)
  message(FATAL_ERROR "README.md does not show examples/picker/main.cpp as it is")
endif()
