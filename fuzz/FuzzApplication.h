#pragma once

#include <QApplication>

#include <cstdlib>

/// What every fuzzer begins with.
namespace Fuzz {

/// Ends the run with a report where @p condition does not hold.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

/// The application that widgets need, made at the first call.
inline QApplication& application()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char* argv[] = {name, nullptr};
    static QApplication instance(argc, argv);
    return instance;
}

} // namespace Fuzz
