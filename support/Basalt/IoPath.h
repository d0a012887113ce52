#pragma once

#include <string>

namespace Kestrel {

/// A file-system path. Its text is UTF-8, with the separators that it was given.
class ioPath
{
public:
    ioPath() = default;
    explicit ioPath(std::string utf8);

    std::string ToUtf8() const;

private:
    std::string m_utf8;
};

namespace Core {

/// @p path without its last component where that component is exactly @p suffix; any other path comes back unchanged.
///
/// One trailing separator is tolerated. The separator before the suffix goes with it, except at a root: "/VIDEO_TS"
/// becomes "/" and "D:\VIDEO_TS" becomes "D:\".
ioPath RemoveDirectorySuffixIfRequired(const ioPath& path, const std::string& suffix);

} // namespace Core
} // namespace Kestrel
