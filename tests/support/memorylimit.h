#pragma once

#include <cstdlib>

#include <sys/resource.h>

/// No further address space for this process while it lives: every mapping is refused, small allocations are served
/// from what is at hand.
class MemoryLimit
{
public:
    MemoryLimit()
    {
        // Something to serve them from; volatile, or the pair would be optimised away.
        constexpr std::size_t bytes = 65536;
        void* volatile store = std::malloc(bytes);
        std::free(store);
        getrlimit(RLIMIT_AS, &before);
        rlimit none = before;
        none.rlim_cur = 1;
        setrlimit(RLIMIT_AS, &none);
    }
    ~MemoryLimit()
    {
        setrlimit(RLIMIT_AS, &before);
    }
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;

private:
    rlimit before{};
};
