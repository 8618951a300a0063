// Copies: whole ROI, channel of interest and layout changes to and from one channel, masked.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/copy.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "convert/datamove_kernels.h"
#include "core/alpha-inl.h"
#include "convert/datamove_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {  // kernels of this file only

// One element every kSrc of s to one every kDst of d, the other destination channels kept.
// Either pointer may point at a channel other than the first, so a vector of pixels read
// through it reaches up to kCh - 1 elements past that pixel run: the vector part stops one
// pixel short of the row end.
template <class T, int kSrc, int kDst>
void strideCopy(const T* s, T* d, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  for (; i + N < n; i += N) {
    hn::Vec<decltype(dt)> a, b, c, x;
    if constexpr (kSrc == 1) {
      a = hn::LoadU(dt, s + i);
    } else if constexpr (kSrc == 3) {
      hn::LoadInterleaved3(dt, s + 3 * i, a, b, c);
    } else {
      hn::LoadInterleaved4(dt, s + 4 * i, a, b, c, x);
    }
    if constexpr (kDst == 1) {
      hn::StoreU(a, dt, d + i);
    } else if constexpr (kDst == 3) {
      hn::Vec<decltype(dt)> p, q, r;
      hn::LoadInterleaved3(dt, d + 3 * i, p, q, r);
      hn::StoreInterleaved3(a, q, r, dt, d + 3 * i);
    } else {
      hn::Vec<decltype(dt)> p, q, r, w;
      hn::LoadInterleaved4(dt, d + 4 * i, p, q, r, w);
      hn::StoreInterleaved4(a, q, r, w, dt, d + 4 * i);
    }
  }
  dm::strideCopyScalar<T, kSrc, kDst>(s + kSrc * i, d + kDst * i, n - i);
}

// Channels 0..2 of n four-channel pixels, the fourth left alone.
template <class T>
void copyKeepAlpha(const T* s, T* d, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const auto colour = colourLanes(dt);
  const std::size_t total = 4 * n;
  std::size_t i = 0;
  for (; i + N <= total; i += N) storeColour(dt, hn::LoadU(dt, s + i), d + i, true, colour);
  dm::copyKeepAlphaScalar(s + i, d + i, (total - i) / 4);
}

template <class T, class L>
void maskedCopy(const T* s, T* d, const uint8_t* m, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto mk = pixelMask(dt, m + i);
    if constexpr (L::kCh == 1) {
      hn::BlendedStore(hn::LoadU(dt, s + i), mk, dt, d + i);
    } else if constexpr (L::kCh == 3) {
      hn::Vec<decltype(dt)> a, b, c, p, q, r;
      hn::LoadInterleaved3(dt, s + 3 * i, a, b, c);
      hn::LoadInterleaved3(dt, d + 3 * i, p, q, r);
      hn::StoreInterleaved3(hn::IfThenElse(mk, a, p), hn::IfThenElse(mk, b, q),
                            hn::IfThenElse(mk, c, r), dt, d + 3 * i);
    } else {
      hn::Vec<decltype(dt)> a, b, c, x, p, q, r, w;
      hn::LoadInterleaved4(dt, s + 4 * i, a, b, c, x);
      hn::LoadInterleaved4(dt, d + 4 * i, p, q, r, w);
      hn::StoreInterleaved4(hn::IfThenElse(mk, a, p), hn::IfThenElse(mk, b, q),
                            hn::IfThenElse(mk, c, r), L::kUse == 4 ? hn::IfThenElse(mk, x, w) : w,
                            dt, d + 4 * i);
    }
  }
  dm::maskedCopyScalar<T, L>(s + L::kCh * i, d + L::kCh * i, m + i, n - i);
}

}  // namespace
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

// The choosers run on the element bits (dm::Bits).
template <class T>
auto pickCopyKeepAlpha() {
  LUMI_SIMD_TABLE(decltype(&dm::copyKeepAlphaScalar<T>), table, copyKeepAlpha<T>);
  return pick(table, &dm::copyKeepAlphaScalar<T>);
}
template <class T, int kSrc, int kDst>
auto pickStrideCopy() {
  LUMI_SIMD_TABLE(decltype(&dm::strideCopyScalar<T, kSrc, kDst>), table, strideCopy<T, kSrc, kDst>);
  return pick(table, &dm::strideCopyScalar<T, kSrc, kDst>);
}
template <class T, class L>
auto pickMaskedCopy() {
  LUMI_SIMD_TABLE(decltype(&dm::maskedCopyScalar<T, L>), table, maskedCopy<T, L>);
  return pick(table, &dm::maskedCopyScalar<T, L>);
}

// Steps are not tested: any step, zero or negative included, walks the rows it describes.
template <class T, class L>
LumStatus copyRoi(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus st = checkPointersSize(roi, src, dst)) return st;
  const LumiSize walk = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), srcStep, dstStep);
  [[maybe_unused]] const auto keepAlpha = pickCopyKeepAlpha<dm::Bits<T>>();
  for (int y = 0; y < walk.height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if constexpr (L::kUse < L::kCh)
      keepAlpha(dm::bits(s), dm::bits(d), static_cast<std::size_t>(walk.width));
    else if (s != d)
      std::memmove(d, s, static_cast<std::size_t>(bytesOf(walk.width, L::kCh, sizeof(T))));
  }
  return lumStatusOk;
}

template <class T, int kSrc, int kDst>
LumStatus copyStride(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (LumStatus st = checkPointersSize(roi, src, dst)) return st;
  const auto copy = pickStrideCopy<dm::Bits<T>, kSrc, kDst>();
  const LumiSize walk = coalesceBoth(roi, coalesceRows(roi, bytesOf(1, kSrc, sizeof(T)), srcStep),
                                         coalesceRows(roi, bytesOf(1, kDst, sizeof(T)), dstStep));
  for (int y = 0; y < walk.height; ++y)
    copy(dm::bits(rowAt(src, srcStep, y)), dm::bits(rowAt(dst, dstStep, y)),
         static_cast<std::size_t>(walk.width));
  return lumStatusOk;
}

template <class T, class L>
LumStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                     const Lum8u* mask, int maskStep) {
  if (LumStatus st = checkPointersSize(roi, src, dst, mask)) return st;
  const auto copy = pickMaskedCopy<dm::Bits<T>, L>();
  const LumiSize walk = coalesceBoth(
      roi, coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), srcStep, dstStep),
      coalesceRows(roi, 1, maskStep));
  for (int y = 0; y < walk.height; ++y)
    copy(dm::bits(rowAt(src, srcStep, y)), dm::bits(rowAt(dst, dstStep, y)),
         rowAt(mask, maskStep, y), static_cast<std::size_t>(walk.width));
  return lumStatusOk;
}

}  // namespace

void dm::copyKeepAlpha(const void* s, void* d, std::size_t n, int elemBytes) {
  if (elemBytes == 1)
    pickCopyKeepAlpha<uint8_t>()(static_cast<const uint8_t*>(s), static_cast<uint8_t*>(d), n);
  else if (elemBytes == 2)
    pickCopyKeepAlpha<uint16_t>()(static_cast<const uint16_t*>(s), static_cast<uint16_t*>(d), n);
  else
    pickCopyKeepAlpha<uint32_t>()(static_cast<const uint32_t*>(s), static_cast<uint32_t*>(d), n);
}

}  // namespace lumi

#define LUMI_COPY(NAME, T, L)                                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roiSize) { \
    return lumi::copyRoi<T, lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize);                  \
  }
#define LUMI_COPY_STRIDE(NAME, T, kSrc, kDst)                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roiSize) { \
    return lumi::copyStride<T, kSrc, kDst>(pSrc, srcStep, pDst, dstStep, roiSize);            \
  }
#define LUMI_COPY_MASKED(NAME, T, L)                                                          \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roiSize, \
                          const Lum8u* pMask, int maskStep) {                                 \
    return lumi::copyMasked<T, lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, pMask,         \
                                        maskStep);                                            \
  }

LUMI_COPY(lumiCopy_8u_C1R, Lum8u, C1)
LUMI_COPY(lumiCopy_8u_C3R, Lum8u, C3)
LUMI_COPY(lumiCopy_8u_C4R, Lum8u, C4)
LUMI_COPY(lumiCopy_8u_AC4R, Lum8u, AC4)
LUMI_COPY_STRIDE(lumiCopy_8u_C3C1R, Lum8u, 3, 1)
LUMI_COPY_STRIDE(lumiCopy_8u_C4C1R, Lum8u, 4, 1)
LUMI_COPY_STRIDE(lumiCopy_8u_C1C3R, Lum8u, 1, 3)
LUMI_COPY_STRIDE(lumiCopy_8u_C1C4R, Lum8u, 1, 4)
LUMI_COPY_STRIDE(lumiCopy_8u_C3CR, Lum8u, 3, 3)
LUMI_COPY_STRIDE(lumiCopy_8u_C4CR, Lum8u, 4, 4)
LUMI_COPY_MASKED(lumiCopy_8u_C1MR, Lum8u, C1)
LUMI_COPY_MASKED(lumiCopy_8u_C3MR, Lum8u, C3)
LUMI_COPY_MASKED(lumiCopy_8u_C4MR, Lum8u, C4)
LUMI_COPY_MASKED(lumiCopy_8u_AC4MR, Lum8u, AC4)
LUMI_COPY(lumiCopy_16u_C1R, Lum16u, C1)
LUMI_COPY(lumiCopy_16u_C3R, Lum16u, C3)
LUMI_COPY(lumiCopy_16u_C4R, Lum16u, C4)
LUMI_COPY(lumiCopy_16u_AC4R, Lum16u, AC4)
LUMI_COPY_STRIDE(lumiCopy_16u_C3C1R, Lum16u, 3, 1)
LUMI_COPY_STRIDE(lumiCopy_16u_C4C1R, Lum16u, 4, 1)
LUMI_COPY_STRIDE(lumiCopy_16u_C1C3R, Lum16u, 1, 3)
LUMI_COPY_STRIDE(lumiCopy_16u_C1C4R, Lum16u, 1, 4)
LUMI_COPY_STRIDE(lumiCopy_16u_C3CR, Lum16u, 3, 3)
LUMI_COPY_STRIDE(lumiCopy_16u_C4CR, Lum16u, 4, 4)
LUMI_COPY_MASKED(lumiCopy_16u_C1MR, Lum16u, C1)
LUMI_COPY_MASKED(lumiCopy_16u_C3MR, Lum16u, C3)
LUMI_COPY_MASKED(lumiCopy_16u_C4MR, Lum16u, C4)
LUMI_COPY_MASKED(lumiCopy_16u_AC4MR, Lum16u, AC4)
LUMI_COPY(lumiCopy_16s_C1R, Lum16s, C1)
LUMI_COPY(lumiCopy_16s_C3R, Lum16s, C3)
LUMI_COPY(lumiCopy_16s_C4R, Lum16s, C4)
LUMI_COPY(lumiCopy_16s_AC4R, Lum16s, AC4)
LUMI_COPY_STRIDE(lumiCopy_16s_C3C1R, Lum16s, 3, 1)
LUMI_COPY_STRIDE(lumiCopy_16s_C4C1R, Lum16s, 4, 1)
LUMI_COPY_STRIDE(lumiCopy_16s_C1C3R, Lum16s, 1, 3)
LUMI_COPY_STRIDE(lumiCopy_16s_C1C4R, Lum16s, 1, 4)
LUMI_COPY_STRIDE(lumiCopy_16s_C3CR, Lum16s, 3, 3)
LUMI_COPY_STRIDE(lumiCopy_16s_C4CR, Lum16s, 4, 4)
LUMI_COPY_MASKED(lumiCopy_16s_C1MR, Lum16s, C1)
LUMI_COPY_MASKED(lumiCopy_16s_C3MR, Lum16s, C3)
LUMI_COPY_MASKED(lumiCopy_16s_C4MR, Lum16s, C4)
LUMI_COPY_MASKED(lumiCopy_16s_AC4MR, Lum16s, AC4)
LUMI_COPY(lumiCopy_32s_C1R, Lum32s, C1)
LUMI_COPY(lumiCopy_32s_C3R, Lum32s, C3)
LUMI_COPY(lumiCopy_32s_C4R, Lum32s, C4)
LUMI_COPY(lumiCopy_32s_AC4R, Lum32s, AC4)
LUMI_COPY_STRIDE(lumiCopy_32s_C3C1R, Lum32s, 3, 1)
LUMI_COPY_STRIDE(lumiCopy_32s_C4C1R, Lum32s, 4, 1)
LUMI_COPY_STRIDE(lumiCopy_32s_C1C3R, Lum32s, 1, 3)
LUMI_COPY_STRIDE(lumiCopy_32s_C1C4R, Lum32s, 1, 4)
LUMI_COPY_STRIDE(lumiCopy_32s_C3CR, Lum32s, 3, 3)
LUMI_COPY_STRIDE(lumiCopy_32s_C4CR, Lum32s, 4, 4)
LUMI_COPY_MASKED(lumiCopy_32s_C1MR, Lum32s, C1)
LUMI_COPY_MASKED(lumiCopy_32s_C3MR, Lum32s, C3)
LUMI_COPY_MASKED(lumiCopy_32s_C4MR, Lum32s, C4)
LUMI_COPY_MASKED(lumiCopy_32s_AC4MR, Lum32s, AC4)
LUMI_COPY(lumiCopy_32f_C1R, Lum32f, C1)
LUMI_COPY(lumiCopy_32f_C3R, Lum32f, C3)
LUMI_COPY(lumiCopy_32f_C4R, Lum32f, C4)
LUMI_COPY(lumiCopy_32f_AC4R, Lum32f, AC4)
LUMI_COPY_STRIDE(lumiCopy_32f_C3C1R, Lum32f, 3, 1)
LUMI_COPY_STRIDE(lumiCopy_32f_C4C1R, Lum32f, 4, 1)
LUMI_COPY_STRIDE(lumiCopy_32f_C1C3R, Lum32f, 1, 3)
LUMI_COPY_STRIDE(lumiCopy_32f_C1C4R, Lum32f, 1, 4)
LUMI_COPY_STRIDE(lumiCopy_32f_C3CR, Lum32f, 3, 3)
LUMI_COPY_STRIDE(lumiCopy_32f_C4CR, Lum32f, 4, 4)
LUMI_COPY_MASKED(lumiCopy_32f_C1MR, Lum32f, C1)
LUMI_COPY_MASKED(lumiCopy_32f_C3MR, Lum32f, C3)
LUMI_COPY_MASKED(lumiCopy_32f_C4MR, Lum32f, C4)
LUMI_COPY_MASKED(lumiCopy_32f_AC4MR, Lum32f, AC4)
#endif  // HWY_ONCE
