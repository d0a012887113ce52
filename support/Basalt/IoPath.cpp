#include <Basalt/IoPath.h>

#include <algorithm>
#include <utility>

namespace Kestrel {

namespace {

bool isSeparator(char c)
{
#ifdef _WIN32
    return c == '/' || c == '\\';
#else
    return c == '/';
#endif
}

bool isRoot(const std::string& text)
{
    return (text.size() == 1 && isSeparator(text[0])) || (text.size() == 3 && text[1] == ':' && isSeparator(text[2]));
}

} // namespace

ioPath::ioPath(std::string utf8)
    : m_utf8(std::move(utf8))
{
}

std::string ioPath::ToUtf8() const
{
    return m_utf8;
}

ioPath Core::RemoveDirectorySuffixIfRequired(const ioPath& path, const std::string& suffix)
{
    std::string text = path.ToUtf8();
    if (!text.empty() && isSeparator(text.back()))
        text.pop_back();

    const auto componentBegin = std::find_if(text.rbegin(), text.rend(), isSeparator).base();
    const auto lastComponent = static_cast<std::size_t>(componentBegin - text.begin());
    if (suffix.empty() || text.substr(lastComponent) != suffix)
        return path;

    text.erase(lastComponent);
    if (!text.empty() && !isRoot(text))
        text.pop_back();
    return ioPath(text);
}

} // namespace Kestrel
