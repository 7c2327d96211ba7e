#include "benchmarks/core/LiveMemory.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t g_liveBytes = 0;

} // namespace

// Every other form of `new` and `delete` comes down to these.

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size);
    if (!memory) {
        throw std::bad_alloc();
    }
    g_liveBytes += malloc_usable_size(memory);
    return memory;
}

void operator delete(void* memory) noexcept {
    g_liveBytes -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

std::size_t quillon::bench::liveBytes() {
    return g_liveBytes;
}
