#include "Allocations.h"

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<std::int64_t> Allocated{0};

void* Counted(void* memory)
{
    Allocated.fetch_add(1, std::memory_order_relaxed);
    return memory;
}

} // namespace

std::int64_t AllocationsSoFar() { return Allocated; }

// In front of the C library's own, for the whole program; operator new goes through them.

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) { return Counted(__libc_malloc(size)); }
void* calloc(std::size_t count, std::size_t size) { return Counted(__libc_calloc(count, size)); }
void* realloc(void* memory, std::size_t size) { return Counted(__libc_realloc(memory, size)); }
}
