// Copies: whole ROI, channel of interest and layout changes to and from one channel, masked.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/copy.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "convert/datamove_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;
namespace {  // kernels of this file only

// One element every kSrc of s to one every kDst of d, the other destination channels kept.
// Either pointer may point at a channel other than the first, so a vector of pixels read
// through it reaches up to kCh - 1 elements past that pixel run: the vector part stops one
// pixel short of the row end.
template <class T, int kSrc, int kDst>
void StrideCopy(const T* s, T* d, std::size_t n) {
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

// Channels 0..2 of four-channel pixels; the fourth lane of each pixel is masked off the store.
template <class T>
void CopyKeepAlpha(const T* s, T* d, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  const auto colour = dmv::colourLanes(dt);
  const std::size_t total = 4 * n;
  std::size_t i = 0;
  for (; i + N <= total; i += N) hn::BlendedStore(hn::LoadU(dt, s + i), colour, dt, d + i);
  dm::copyPixelsScalar<T, lumi::AC4>(s + i, d + i, (total - i) / 4);
}

template <class T, class L>
void MaskedCopy(const T* s, T* d, const uint8_t* m, std::size_t n) {
  const hn::ScalableTag<T> dt;
  const std::size_t N = hn::Lanes(dt);
  std::size_t i = 0;
  for (; i + N <= n; i += N) {
    const auto mk = dmv::pixelMask(dt, m + i);
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
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

LUMI_TABLES_BY_SIZE(copyKeepAlphaSimd, CopyKeepAlpha)
LUMI_TABLES_BY_SIZE(extract3Simd, StrideCopy, , 3, 1)
LUMI_TABLES_BY_SIZE(extract4Simd, StrideCopy, , 4, 1)
LUMI_TABLES_BY_SIZE(insert3Simd, StrideCopy, , 1, 3)
LUMI_TABLES_BY_SIZE(insert4Simd, StrideCopy, , 1, 4)
LUMI_TABLES_BY_SIZE(channel3Simd, StrideCopy, , 3, 3)
LUMI_TABLES_BY_SIZE(channel4Simd, StrideCopy, , 4, 4)
LUMI_TABLES_BY_SIZE(maskedC1Simd, MaskedCopy, , lumi::C1)
LUMI_TABLES_BY_SIZE(maskedC3Simd, MaskedCopy, , lumi::C3)
LUMI_TABLES_BY_SIZE(maskedC4Simd, MaskedCopy, , lumi::C4)
LUMI_TABLES_BY_SIZE(maskedAC4Simd, MaskedCopy, , lumi::AC4)

template <class T>
void copyKeepAlphaT(const T* s, T* d, std::size_t n) {
  if (auto f = copyKeepAlphaSimd<T>())
    f(s, d, n);
  else
    dm::copyPixelsScalar<T, AC4>(s, d, n);
}

template <class T, int kSrc, int kDst>
auto strideSimd() {
  if constexpr (kSrc == 3 && kDst == 1) return extract3Simd<T>();
  else if constexpr (kSrc == 4 && kDst == 1) return extract4Simd<T>();
  else if constexpr (kSrc == 1 && kDst == 3) return insert3Simd<T>();
  else if constexpr (kSrc == 1 && kDst == 4) return insert4Simd<T>();
  else if constexpr (kSrc == 3) return channel3Simd<T>();
  else return channel4Simd<T>();
}
template <class T, class L>
auto maskedSimd() {
  if constexpr (std::is_same_v<L, C1>) return maskedC1Simd<T>();
  else if constexpr (std::is_same_v<L, C3>) return maskedC3Simd<T>();
  else if constexpr (std::is_same_v<L, C4>) return maskedC4Simd<T>();
  else return maskedAC4Simd<T>();
}

inline std::ptrdiff_t rowBytesOf(LumiSize roi, int elems, std::size_t elemBytes) {
  return static_cast<std::ptrdiff_t>(roi.width) * elems * static_cast<std::ptrdiff_t>(elemBytes);
}

// Steps are not tested: any step, zero or negative included, walks the rows it describes.
template <class T, class L>
LumStatus copyRoi(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  const auto rowBytes = rowBytesOf(roi, L::kCh, sizeof(T));
  dm::walkRows(roi, dm::stepsAre(rowBytes, srcStep, dstStep), [&](int y, std::size_t n) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if constexpr (L::kUse < L::kCh)
      copyKeepAlphaT(dm::bits(s), dm::bits(d), n);
    else if (s != d)
      std::memmove(d, s, n * L::kCh * sizeof(T));
  });
  return lumStatusOk;
}

template <class T, int kSrc, int kDst>
LumStatus copyStride(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  const auto simd = strideSimd<dm::Bits<T>, kSrc, kDst>();
  const bool oneRow = srcStep == rowBytesOf(roi, kSrc, sizeof(T)) &&
                      dstStep == rowBytesOf(roi, kDst, sizeof(T));
  dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    if (simd)
      simd(dm::bits(s), dm::bits(d), n);
    else
      dm::strideCopyScalar<T, kSrc, kDst>(s, d, n);
  });
  return lumStatusOk;
}

template <class T, class L>
LumStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                     const Lum8u* mask, int maskStep) {
  if (anyNull(src, dst, mask)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  const auto simd = maskedSimd<dm::Bits<T>, L>();
  const auto rowBytes = rowBytesOf(roi, L::kCh, sizeof(T));
  const bool oneRow = dm::stepsAre(rowBytes, srcStep, dstStep) && maskStep == roi.width;
  dm::walkRows(roi, oneRow, [&](int y, std::size_t n) {
    const T* s = rowAt(src, srcStep, y);
    T* d = rowAt(dst, dstStep, y);
    const Lum8u* m = rowAt(mask, maskStep, y);
    if (simd)
      simd(dm::bits(s), dm::bits(d), m, n);
    else
      dm::maskedCopyScalar<T, L>(s, d, m, n);
  });
  return lumStatusOk;
}

}  // namespace

void dm::copyKeepAlpha(const void* s, void* d, std::size_t n, int elemBytes) {
  if (elemBytes == 1)
    copyKeepAlphaT(static_cast<const uint8_t*>(s), static_cast<uint8_t*>(d), n);
  else if (elemBytes == 2)
    copyKeepAlphaT(static_cast<const uint16_t*>(s), static_cast<uint16_t*>(d), n);
  else
    copyKeepAlphaT(static_cast<const uint32_t*>(s), static_cast<uint32_t*>(d), n);
}

}  // namespace lumi

#define LUMI_COPY_FN(t, name, ...)                                                           \
  LUMI_API LumStatus lumiCopy_##t##_##name(const Lum##t* pSrc, int srcStep, Lum##t* pDst,    \
                                           int dstStep, LumiSize roiSize) {                  \
    return lumi::__VA_ARGS__(pSrc, srcStep, pDst, dstStep, roiSize);                         \
  }
#define LUMI_COPY_MASKED(t, L)                                                               \
  LUMI_API LumStatus lumiCopy_##t##_##L##MR(const Lum##t* pSrc, int srcStep, Lum##t* pDst,   \
                                            int dstStep, LumiSize roiSize, const Lum8u* pMask, \
                                            int maskStep) {                                  \
    return lumi::copyMasked<Lum##t, lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize, pMask,   \
                                             maskStep);                                      \
  }
#define LUMI_COPY_TYPE(t)                                       \
  LUMI_COPY_FN(t, C1R, copyRoi<Lum##t, lumi::C1>)               \
  LUMI_COPY_FN(t, C3R, copyRoi<Lum##t, lumi::C3>)               \
  LUMI_COPY_FN(t, C4R, copyRoi<Lum##t, lumi::C4>)               \
  LUMI_COPY_FN(t, AC4R, copyRoi<Lum##t, lumi::AC4>)             \
  LUMI_COPY_FN(t, C3C1R, copyStride<Lum##t, 3, 1>)              \
  LUMI_COPY_FN(t, C4C1R, copyStride<Lum##t, 4, 1>)              \
  LUMI_COPY_FN(t, C1C3R, copyStride<Lum##t, 1, 3>)              \
  LUMI_COPY_FN(t, C1C4R, copyStride<Lum##t, 1, 4>)              \
  LUMI_COPY_FN(t, C3CR, copyStride<Lum##t, 3, 3>)               \
  LUMI_COPY_FN(t, C4CR, copyStride<Lum##t, 4, 4>)               \
  LUMI_COPY_MASKED(t, C1)                                       \
  LUMI_COPY_MASKED(t, C3)                                       \
  LUMI_COPY_MASKED(t, C4)                                       \
  LUMI_COPY_MASKED(t, AC4)

extern "C" {
LUMI_COPY_TYPE(8u)
LUMI_COPY_TYPE(16u)
LUMI_COPY_TYPE(16s)
LUMI_COPY_TYPE(32s)
LUMI_COPY_TYPE(32f)
}
#endif  // HWY_ONCE
