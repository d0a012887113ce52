#include <KQt/Ui/Check.h>

#include <Basalt/CallStack.h>

#include <boost/exception/all.hpp>

#include <stdexcept>
#include <string>

namespace Kestrel::Gui::Detail {

namespace {

std::string describe(const char* message, const std::string& callStack)
{
    return std::string(message) + '\n' + callStack;
}

/// Spelled out instead of BOOST_THROW_EXCEPTION, whose thrown type differs between versions of Boost.
template <typename Exception>
auto decorated(const std::string& text, const char* function, const char* file, int line)
{
    auto exception = boost::enable_current_exception(boost::enable_error_info(Exception(text)));
    exception << boost::throw_function(function) << boost::throw_file(file) << boost::throw_line(line);
    return exception;
}

} // namespace

// Each takes the call stack itself: its first frame is then a name that a reader can look up.

void throwInvalidArgument(const char* message, const char* function, const char* file, int line)
{
    throw decorated<std::invalid_argument>(describe(message, GetCallStack()), function, file, line);
}

void throwRuntimeError(const char* message, const char* function, const char* file, int line)
{
    throw decorated<std::runtime_error>(describe(message, GetCallStack()), function, file, line);
}

} // namespace Kestrel::Gui::Detail
