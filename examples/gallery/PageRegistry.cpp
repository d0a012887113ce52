#include "PageRegistry.h"

#include <algorithm>
#include <utility>

namespace Gallery {

namespace {

// A function's static: registrations in other files may run before this file's own statics would exist.
std::vector<PageRegistration>& registry()
{
    static std::vector<PageRegistration> pages;
    return pages;
}

} // namespace

PageRegistration::PageRegistration(int position, const char* title, std::function<Page*(QWidget*)> create)
    : position(position)
    , title(title)
    , create(std::move(create))
{
    registry().push_back(*this);
}

std::vector<PageRegistration> registeredPages()
{
    std::vector<PageRegistration> pages = registry();
    std::sort(pages.begin(), pages.end(),
              [](const PageRegistration& a, const PageRegistration& b) { return a.position < b.position; });
    return pages;
}

} // namespace Gallery
