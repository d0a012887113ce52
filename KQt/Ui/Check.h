#pragma once

#include <KQt/Ui/Export.h>

#include <boost/current_function.hpp>

#include <cstddef>

/// @file
/// The library's one way of reporting a broken precondition.
///
/// A failed check throws `std::invalid_argument` (an argument, or the context an object stands in) or
/// `std::runtime_error` (a call of the platform that failed). `what()` is the fixed message, one line feed, and the
/// call stack at the throw, innermost frame first. The exception can also be caught as `boost::exception` and carries
/// Boost's `throw_function`, `throw_file` and `throw_line` of the detecting function; it supports
/// `boost::current_exception()`.
///
/// Check before the first side effect: what throws must leave no filter and no connection behind.

/// Throws `std::invalid_argument` with @p message (a string literal) from the calling function. Never returns.
#define KQTUI_THROW_INVALID_ARGUMENT(message)                                                                          \
    ::Kestrel::Gui::Detail::throwInvalidArgument(message, BOOST_CURRENT_FUNCTION, KQTUI_SOURCE_FILE, __LINE__)

/// Throws `std::runtime_error` with @p message (a string literal) from the calling function. Never returns.
#define KQTUI_THROW_RUNTIME_ERROR(message) KQTUI_THROW_RUNTIME_ERROR_AT(message, __LINE__)

/// The same with @p line as the place in the file, for checks that readers of logs know by their line: a named constant,
/// which stays what it is when the check moves.
#define KQTUI_THROW_RUNTIME_ERROR_AT(message, line)                                                                    \
    ::Kestrel::Gui::Detail::throwRuntimeError(message, BOOST_CURRENT_FUNCTION, KQTUI_SOURCE_FILE, line)

/// The current source file as the library names it: from "KQt/Ui/" on with forward slashes, wherever the file lies and
/// however the compiler was handed its path. A `const char*` that is valid for ever.
// The lambda is evaluated at compile time, so that no binary holds the path that was left out.
#define KQTUI_SOURCE_FILE                                                                                              \
    ([]() -> const char* {                                                                                             \
        static constexpr auto path = ::Kestrel::Gui::Detail::librarySourcePath(__FILE__);                              \
        return path.text;                                                                                              \
    }())

namespace Kestrel::Gui::Detail {

/// The text that librarySourcePath() makes, as long as the path it was made of.
template <std::size_t Size>
struct SourcePath
{
    char text[Size] = {};
};

/// Where in @p path the last component pair "KQt/Ui/" begins, with either separator; 0 where there is none.
template <std::size_t Size>
constexpr std::size_t libraryRootIn(const char (&path)[Size])
{
    constexpr char root[] = "KQt/Ui/";
    constexpr std::size_t rootLength = sizeof(root) - 1;
    for (std::size_t start = Size; start-- > 0;) {
        const bool beginsComponent = start == 0 || path[start - 1] == '/' || path[start - 1] == '\\';
        std::size_t matching = 0;
        while (matching < rootLength && start + matching < Size &&
               (path[start + matching] == root[matching] || (root[matching] == '/' && path[start + matching] == '\\')))
            ++matching;
        if (beginsComponent && matching == rootLength)
            return start;
    }
    return 0;
}

/// @p path from its last "KQt/Ui/" on, the whole of it where it holds none, with forward slashes.
template <std::size_t Size>
constexpr SourcePath<Size> librarySourcePath(const char (&path)[Size])
{
    SourcePath<Size> result;
    std::size_t end = 0;
    for (std::size_t i = libraryRootIn(path); i < Size; ++i)
        result.text[end++] = path[i] == '\\' ? '/' : path[i];
    return result;
}

/// Builds, decorates and throws the exception. @p function and @p file must outlive it: literals.
[[noreturn]] KQTUI_EXPORT void throwInvalidArgument(const char* message, const char* function, const char* file,
                                                    int line);
[[noreturn]] KQTUI_EXPORT void throwRuntimeError(const char* message, const char* function, const char* file, int line);

} // namespace Kestrel::Gui::Detail
