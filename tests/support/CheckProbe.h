#pragma once

#include <KQt/Ui/Check.h>

/// Checks that fail inside members of a template, as a header of the library holds them. Each function notes the line
/// and the signature that its exception has to carry.
template <typename T>
class CheckProbe
{
public:
    void failArgument(const T& value, int count) const;
    void failPlatform() const;

    mutable int line = 0;
    mutable const char* signature = "";
};

// Named as a header of the library is that was installed below somebody's home.
#line 40 "/home/somebody/myKQt/Ui/include/KQt/Ui/Nested/Probe.h"
template <typename T>
void CheckProbe<T>::failArgument(const T&, int) const
{
    signature = BOOST_CURRENT_FUNCTION;
    line = __LINE__ + 1;
    KQTUI_THROW_INVALID_ARGUMENT("the argument is wrong");
}

template <typename T>
void CheckProbe<T>::failPlatform() const
{
    signature = BOOST_CURRENT_FUNCTION;
    line = __LINE__ + 1;
    KQTUI_THROW_RUNTIME_ERROR("the platform failed");
}
