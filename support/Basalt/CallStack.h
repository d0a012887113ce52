#pragma once

#include <string>

namespace Kestrel {

/// The calling thread's stack as text, innermost frame first, starting with the caller of this function.
///
/// One frame a line, lines separated by "\n" and none after the last: number, demangled function and the file name of
/// the library it lies in, or the address where the function's name is not in the library's dynamic symbol table.
/// On Windows a frame is a module and an offset. Symbols come from the loaded libraries alone: no debugger and no other
/// process is started, and nothing is read from disk, so that the text is cheap enough for an exception's message.
std::string GetCallStack();

} // namespace Kestrel
