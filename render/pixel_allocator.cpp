#include "render/pixel_allocator.h"

#include <sys/mman.h>

#include <cstdlib>

namespace quillane {

namespace {
constexpr std::size_t HugePage = std::size_t{2} << 20;
}

void* AllocatePixels(std::size_t bytes) {
    if (bytes < HugePage) {
        void* p = std::malloc(bytes ? bytes : 1);
        if (!p) throw std::bad_alloc();
        return p;
    }
    const std::size_t rounded = (bytes + HugePage - 1) / HugePage * HugePage;
    void* p = std::aligned_alloc(HugePage, rounded);
    if (!p) throw std::bad_alloc();
#ifdef MADV_HUGEPAGE
    madvise(p, rounded, MADV_HUGEPAGE);  // a hint; without it the pages are simply small
#endif
    return p;
}

void FreePixels(void* p, std::size_t) noexcept {
    std::free(p);
}

}  // namespace quillane
