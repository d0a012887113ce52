#pragma once

namespace TestSupport {

/// Whether the program is built with AddressSanitizer, which gcc and clang tell in different ways.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool hasAddressSanitizer = true;
#elif defined(__has_feature)
constexpr bool hasAddressSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool hasAddressSanitizer = false;
#endif

} // namespace TestSupport
