#pragma once
// Storage for picture pixels. Large pictures are placed on huge pages where the system offers them:
// the drawing loops write pixels at random places, and with small pages most of the time goes to
// address translation misses.
#include <cstddef>
#include <cstdint>
#include <new>

namespace quillane {

void* AllocatePixels(std::size_t bytes);
void FreePixels(void* p, std::size_t bytes) noexcept;

template <class T>
struct PixelAllocator {
    using value_type = T;
    PixelAllocator() = default;
    template <class U>
    PixelAllocator(const PixelAllocator<U>&) {}
    T* allocate(std::size_t n) { return static_cast<T*>(AllocatePixels(n * sizeof(T))); }
    void deallocate(T* p, std::size_t n) noexcept { FreePixels(p, n * sizeof(T)); }
    template <class U>
    bool operator==(const PixelAllocator<U>&) const {
        return true;
    }
};

}  // namespace quillane
