// Aligned vector and image allocators. Every block is 32-byte aligned; the system
// allocator's pointer is kept in the word just below the aligned address.
#include "core/frame.h"

#include <cstdlib>

namespace lumi {
namespace {

// The aligned address is the smallest multiple of 32 at least raw + 4, so a block of
// n + 36 bytes always holds the stored word and the caller's bytes. On 64-bit targets the
// stored word is pointer-sized; the system allocator's 16-byte alignment leaves it room.
static_assert(alignof(std::max_align_t) >= sizeof(void*), "stored word must fit below block");

void* alignedAlloc(int len, unsigned elemSize) {
  if (len < 1) return nullptr;
  uint32_t bytes = static_cast<uint32_t>(len) * elemSize + 36u;  // wraps, deliberately
  void* raw = std::malloc(bytes);
  if (!raw) return nullptr;
  uintptr_t aligned = (reinterpret_cast<uintptr_t>(raw) + 35u) & ~static_cast<uintptr_t>(31);
  reinterpret_cast<void**>(aligned)[-1] = raw;
  return reinterpret_cast<void*>(aligned);
}

template <class T, int kBytesPerPixel>
T* imageAlloc(int width, int height, int* pStep) {
  if (!pStep) return nullptr;
  if (width < 1 || height < 1) {
    *pStep = 0;
    return nullptr;
  }
  uint32_t step = (static_cast<uint32_t>(width) * kBytesPerPixel + 31u) & ~31u;
  *pStep = static_cast<int>(step);
  int total = static_cast<int>(step * static_cast<uint32_t>(height));
  return static_cast<T*>(alignedAlloc(total, 1));
}

}  // namespace
}  // namespace lumi

using lumi::alignedAlloc;
using lumi::imageAlloc;

extern "C" {
LUMI_API Lum8u* lumsMalloc_8u(int len) { return static_cast<Lum8u*>(alignedAlloc(len, 1)); }
LUMI_API Lum8s* lumsMalloc_8s(int len) { return static_cast<Lum8s*>(alignedAlloc(len, 1)); }
LUMI_API Lum16u* lumsMalloc_16u(int len) { return static_cast<Lum16u*>(alignedAlloc(len, 2)); }
LUMI_API Lum16s* lumsMalloc_16s(int len) { return static_cast<Lum16s*>(alignedAlloc(len, 2)); }
LUMI_API Lum32u* lumsMalloc_32u(int len) { return static_cast<Lum32u*>(alignedAlloc(len, 4)); }
LUMI_API Lum32s* lumsMalloc_32s(int len) { return static_cast<Lum32s*>(alignedAlloc(len, 4)); }
LUMI_API Lum32f* lumsMalloc_32f(int len) { return static_cast<Lum32f*>(alignedAlloc(len, 4)); }
LUMI_API Lum16sc* lumsMalloc_16sc(int len) { return static_cast<Lum16sc*>(alignedAlloc(len, 4)); }
LUMI_API Lum64s* lumsMalloc_64s(int len) { return static_cast<Lum64s*>(alignedAlloc(len, 8)); }
LUMI_API Lum32sc* lumsMalloc_32sc(int len) { return static_cast<Lum32sc*>(alignedAlloc(len, 8)); }
LUMI_API Lum32fc* lumsMalloc_32fc(int len) { return static_cast<Lum32fc*>(alignedAlloc(len, 8)); }
LUMI_API Lum64fc* lumsMalloc_64fc(int len) { return static_cast<Lum64fc*>(alignedAlloc(len, 16)); }

LUMI_API void lumsFree(void* ptr) {
  if (ptr) std::free(static_cast<void**>(ptr)[-1]);
}
LUMI_API void lumiFree(void* ptr) { lumsFree(ptr); }

#define LUMI_IMAGE_ALLOC(T, code, layout, bpp)                                   \
  LUMI_API T* lumiMalloc_##code##_##layout(int width, int height, int* pStep) { \
    return imageAlloc<T, bpp>(width, height, pStep);                             \
  }
#define LUMI_IMAGE_ALLOC_LAYOUTS(T, code)                 \
  LUMI_IMAGE_ALLOC(T, code, C1, 1 * sizeof(T))            \
  LUMI_IMAGE_ALLOC(T, code, C2, 2 * sizeof(T))            \
  LUMI_IMAGE_ALLOC(T, code, C3, 3 * sizeof(T))            \
  LUMI_IMAGE_ALLOC(T, code, C4, 4 * sizeof(T))            \
  LUMI_IMAGE_ALLOC(T, code, AC4, 4 * sizeof(T))

LUMI_IMAGE_ALLOC_LAYOUTS(Lum8u, 8u)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum16u, 16u)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum16s, 16s)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum32s, 32s)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum32f, 32f)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum32sc, 32sc)
LUMI_IMAGE_ALLOC_LAYOUTS(Lum32fc, 32fc)

LUMI_API const LumLibraryVersion* lumiGetLibVersion(void) {
  static const LumLibraryVersion kVersion = {
      5, 1, 133, 272, {'t', '7', '\0', '\0'}, "liblumit7.so.5.1", "5.1.1", "Jun 17 2006"};
  return &kVersion;
}
}
