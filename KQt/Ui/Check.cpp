#include <KQt/Ui/Check.h>

#include <Basalt/CallStack.h>

#include <boost/exception/all.hpp>

#include <stdexcept>
#include <string>

namespace Kestrel::Gui::Detail {

namespace {

template <typename Exception>
[[noreturn]] void throwDecorated(const char* message, const char* function, const char* file, int line)
{
    const Exception plain(std::string(message) + '\n' + GetCallStack());
    // Spelled out instead of BOOST_THROW_EXCEPTION, whose thrown type differs between versions of Boost.
    throw boost::enable_current_exception(boost::enable_error_info(plain))
        << boost::throw_function(function) << boost::throw_file(file) << boost::throw_line(line);
}

} // namespace

void throwInvalidArgument(const char* message, const char* function, const char* file, int line)
{
    throwDecorated<std::invalid_argument>(message, function, file, line);
}

void throwRuntimeError(const char* message, const char* function, const char* file, int line)
{
    throwDecorated<std::runtime_error>(message, function, file, line);
}

} // namespace Kestrel::Gui::Detail
