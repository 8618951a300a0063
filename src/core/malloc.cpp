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

#define LUMI_VECTOR_ALLOC(NAME, T) \
  LUMI_API T* NAME(int len) { return static_cast<T*>(alignedAlloc(len, sizeof(T))); }
LUMI_VECTOR_ALLOC(lumsMalloc_8u, Lum8u)
LUMI_VECTOR_ALLOC(lumsMalloc_8s, Lum8s)
LUMI_VECTOR_ALLOC(lumsMalloc_16u, Lum16u)
LUMI_VECTOR_ALLOC(lumsMalloc_16s, Lum16s)
LUMI_VECTOR_ALLOC(lumsMalloc_32u, Lum32u)
LUMI_VECTOR_ALLOC(lumsMalloc_32s, Lum32s)
LUMI_VECTOR_ALLOC(lumsMalloc_32f, Lum32f)
LUMI_VECTOR_ALLOC(lumsMalloc_16sc, Lum16sc)
LUMI_VECTOR_ALLOC(lumsMalloc_64s, Lum64s)
LUMI_VECTOR_ALLOC(lumsMalloc_32sc, Lum32sc)
LUMI_VECTOR_ALLOC(lumsMalloc_32fc, Lum32fc)
LUMI_VECTOR_ALLOC(lumsMalloc_64fc, Lum64fc)

LUMI_API void lumsFree(void* ptr) {
  if (ptr) std::free(static_cast<void**>(ptr)[-1]);
}
LUMI_API void lumiFree(void* ptr) { lumsFree(ptr); }

// An image of pixels of kCh elements of T (AC4 allocates all four).
#define LUMI_IMAGE_ALLOC(NAME, T, kCh)                        \
  LUMI_API T* NAME(int width, int height, int* pStep) {       \
    return imageAlloc<T, kCh * sizeof(T)>(width, height, pStep); \
  }
LUMI_IMAGE_ALLOC(lumiMalloc_8u_C1, Lum8u, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_8u_C2, Lum8u, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_8u_C3, Lum8u, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_8u_C4, Lum8u, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_8u_AC4, Lum8u, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_16u_C1, Lum16u, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_16u_C2, Lum16u, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_16u_C3, Lum16u, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_16u_C4, Lum16u, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_16u_AC4, Lum16u, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_16s_C1, Lum16s, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_16s_C2, Lum16s, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_16s_C3, Lum16s, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_16s_C4, Lum16s, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_16s_AC4, Lum16s, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32s_C1, Lum32s, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_32s_C2, Lum32s, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_32s_C3, Lum32s, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_32s_C4, Lum32s, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32s_AC4, Lum32s, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32f_C1, Lum32f, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_32f_C2, Lum32f, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_32f_C3, Lum32f, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_32f_C4, Lum32f, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32f_AC4, Lum32f, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32sc_C1, Lum32sc, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_32sc_C2, Lum32sc, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_32sc_C3, Lum32sc, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_32sc_C4, Lum32sc, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32sc_AC4, Lum32sc, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32fc_C1, Lum32fc, 1)
LUMI_IMAGE_ALLOC(lumiMalloc_32fc_C2, Lum32fc, 2)
LUMI_IMAGE_ALLOC(lumiMalloc_32fc_C3, Lum32fc, 3)
LUMI_IMAGE_ALLOC(lumiMalloc_32fc_C4, Lum32fc, 4)
LUMI_IMAGE_ALLOC(lumiMalloc_32fc_AC4, Lum32fc, 4)

LUMI_API const LumLibraryVersion* lumiGetLibVersion(void) {
  static const LumLibraryVersion kVersion = {
      5, 1, 133, 272, {'t', '7', '\0', '\0'}, "liblumit7.so.5.1", "5.1.1", "Jun 17 2006"};
  return &kVersion;
}
