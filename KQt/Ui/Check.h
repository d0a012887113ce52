#pragma once

#include <KQt/Ui/Export.h>

#include <boost/current_function.hpp>

/// @file
/// The library's one way of reporting a broken precondition.
///
/// A failed check throws `std::invalid_argument` (an argument, or the context an object stands in) or
/// `std::runtime_error` (a call of the platform that failed). `what()` is the fixed message, one line feed, and the call
/// stack at the throw. The exception can also be caught as `boost::exception` and carries Boost's `throw_function`,
/// `throw_file` and `throw_line` of the detecting function; it supports `boost::current_exception()`.
///
/// Check before the first side effect: what throws must leave no filter and no connection behind.

/// Throws `std::invalid_argument` with @p message (a string literal) from the calling function. Never returns.
#define KQTUI_THROW_INVALID_ARGUMENT(message)                                                                          \
    ::Kestrel::Gui::Detail::throwInvalidArgument(message, BOOST_CURRENT_FUNCTION, KQTUI_SOURCE_FILE, __LINE__)

/// Throws `std::runtime_error` with @p message (a string literal) from the calling function. Never returns.
#define KQTUI_THROW_RUNTIME_ERROR(message)                                                                             \
    ::Kestrel::Gui::Detail::throwRuntimeError(message, BOOST_CURRENT_FUNCTION, KQTUI_SOURCE_FILE, __LINE__)

/// The current source file as the library names it: from "KQt/Ui/" on, wherever the header or source lies.
#define KQTUI_SOURCE_FILE ::Kestrel::Gui::Detail::librarySourcePath(__FILE__)

namespace Kestrel::Gui::Detail {

/// @p path from its last "KQt/Ui/" on; the whole of it where it holds none.
constexpr const char* librarySourcePath(const char* path)
{
    constexpr char root[] = "KQt/Ui/";
    const char* result = path;
    for (const char* start = path; *start; ++start) {
        const char* at = start;
        const char* expected = root;
        // Windows compilers write either separator.
        while (*expected && (*at == *expected || (*expected == '/' && *at == '\\'))) {
            ++at;
            ++expected;
        }
        if (!*expected)
            result = start;
    }
    return result;
}

/// Builds, decorates and throws the exception. @p function and @p file must outlive it: literals.
[[noreturn]] KQTUI_EXPORT void throwInvalidArgument(const char* message, const char* function, const char* file,
                                                    int line);
[[noreturn]] KQTUI_EXPORT void throwRuntimeError(const char* message, const char* function, const char* file, int line);

} // namespace Kestrel::Gui::Detail
