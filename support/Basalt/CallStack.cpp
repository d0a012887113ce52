#include <Basalt/CallStack.h>

#ifdef _WIN32
#include <cstdio>
#include <iterator>
#include <windows.h>
#else
#include <boost/core/demangle.hpp>
#include <boost/stacktrace/safe_dump_to.hpp>
#include <cstring>
#include <dlfcn.h>
#include <sstream>
#endif

namespace Kestrel {

namespace {

// Enough to see through Qt's event dispatch to the application, few enough to keep a thrown check well under a
// millisecond: resolving a frame costs some microseconds.
constexpr int maximumFrames = 24;

} // namespace

#ifdef _WIN32

std::string GetCallStack()
{
    void* frames[maximumFrames];
    constexpr DWORD skippedFrames = 1; // this function
    const USHORT count = CaptureStackBackTrace(skippedFrames, maximumFrames, frames, nullptr);

    std::string text;
    for (USHORT i = 0; i < count; ++i) {
        HMODULE module = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(frames[i]), &module);
        char path[MAX_PATH] = "";
        if (module)
            GetModuleFileNameA(module, path, static_cast<DWORD>(std::size(path)));
        const std::string modulePath(path);
        const std::string name = modulePath.substr(modulePath.find_last_of("\\/") + 1);

        char line[MAX_PATH + 64];
        const auto offset = reinterpret_cast<UINT_PTR>(frames[i]) - reinterpret_cast<UINT_PTR>(module);
        std::snprintf(line, sizeof(line), "%s%2u# %s+0x%llx", text.empty() ? "" : "\n", static_cast<unsigned>(i),
                      name.empty() ? "?" : name.c_str(), static_cast<unsigned long long>(offset));
        text += line;
    }
    return text.empty() ? std::string(" 0# ?") : text;
}

#else

namespace {

/// Names @p address by what the tables of the loaded libraries hold: function and library, or library and offset.
void writeFrame(std::ostream& out, const void* address)
{
    Dl_info info = {};
    if (dladdr(address, &info) == 0 || !info.dli_fname) {
        out << address;
        return;
    }
    // The file's name alone: where a machine keeps its libraries is nobody's business in a message.
    const char* slash = std::strrchr(info.dli_fname, '/');
    const char* library = slash ? slash + 1 : info.dli_fname;
    if (info.dli_sname) {
        out << boost::core::demangle(info.dli_sname) << " in " << library;
    } else {
        const auto* base = static_cast<const char*>(info.dli_fbase);
        out << library << "+0x" << std::hex << static_cast<const char*>(address) - base << std::dec;
    }
}

} // namespace

std::string GetCallStack()
{
    const void* frames[maximumFrames + 1] = {};
    constexpr std::size_t skippedFrames = 1; // this function
    const std::size_t count = boost::stacktrace::safe_dump_to(skippedFrames, frames, sizeof(frames));

    std::ostringstream text;
    for (std::size_t i = 0; i < count && frames[i]; ++i) {
        text << (i == 0 ? "" : "\n");
        text.width(2);
        text << i << "# ";
        // A return address may lie behind the end of a function that ends in a call; one byte back it is inside.
        writeFrame(text, static_cast<const char*>(frames[i]) - 1);
    }
    const std::string result = text.str();
    return result.empty() ? std::string(" 0# ?") : result;
}

#endif

} // namespace Kestrel
