#include "platform/large_memory.h"

#include <cstdint>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace ombrelia {

void preferLargePages(void* memory, std::size_t bytes) {
#ifdef MADV_HUGEPAGE
    constexpr std::size_t kMuch = std::size_t{4} << 20U;
    constexpr std::uintptr_t kPage = 4096;
    if (bytes < kMuch) {
        return;
    }
    // Whole pages inside the memory; a system that does not know how leaves them small.
    const auto begin = (reinterpret_cast<std::uintptr_t>(memory) + kPage - 1) / kPage * kPage;
    const auto end = (reinterpret_cast<std::uintptr_t>(memory) + bytes) / kPage * kPage;
    static_cast<void>(madvise(reinterpret_cast<void*>(begin), end - begin, MADV_HUGEPAGE));
#else
    static_cast<void>(memory);
    static_cast<void>(bytes);
#endif
}

}  // namespace ombrelia
