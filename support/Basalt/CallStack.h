#pragma once

#include <string>

namespace Kestrel {

/// The calling thread's stack as text, innermost frame first, starting with the caller of this function.
///
/// Never empty. One frame a line, lines separated by "\n" and none after the last: number, then the demangled function
/// and the file name of the library it lies in. Where the function's name is not in the library's dynamic symbol table,
/// and always on Windows, a frame is a library and an offset into it ("libX.so.1+0x1f3a"). Symbols come from the loaded
/// libraries alone: no debugger and no other process is started, and nothing is read from disk, so that the text is
/// cheap enough for an exception's message.
std::string GetCallStack();

} // namespace Kestrel
