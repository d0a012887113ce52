#pragma once

#include <objbase.h>
#include <windows.h>

namespace TestSupport {

/// Counts the blocks that this thread takes from COM's allocator and has not given back while it exists. One at a time.
class MallocSpy
{
public:
    MallocSpy();
    ~MallocSpy();

    MallocSpy(const MallocSpy&) = delete;
    MallocSpy& operator=(const MallocSpy&) = delete;

    int taken() const;
    int living() const;

private:
    class Spy;
    Spy* m_spy;
};

} // namespace TestSupport
