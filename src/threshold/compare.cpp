// Comparison of two images or of an image with a constant, producing a one-channel 255/0
// mask; the tolerance form for 32f.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/compare.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "threshold/threshold_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Writes one byte per lane of the mask: 0xFF where it is set.
template <class D, class M>
HWY_INLINE void storeMaskBytes(D d, M m, uint8_t* out) {
  using T = hn::TFromD<D>;
  const hn::Rebind<uint8_t, D> du8;
  if constexpr (sizeof(T) == 1) {
    hn::StoreU(hn::BitCast(du8, hn::VecFromMask(d, m)), du8, out);
  } else {
    const hn::RebindToSigned<D> di;
    const hn::Rebind<int8_t, D> di8;
    const auto wide = hn::BitCast(di, hn::VecFromMask(d, m));
    hn::StoreU(hn::BitCast(du8, hn::DemoteTo(di8, wide)), du8, out);
  }
}

template <class T, int kRel>
HWY_INLINE void compareRowRel(const T* a, const T* b, bool bPattern, uint8_t* out, int n,
                              T eps) {
  const hn::ScalableTag<T> d;
  thrv::patternRow(
      d, n,
      [&](int i, int off) HWY_ATTR {
        const auto x = hn::LoadU(d, a + i);
        const auto y = hn::LoadU(d, b + (bPattern ? off : i));
        if constexpr (kRel == thr::kRelLt) storeMaskBytes(d, hn::Lt(x, y), out + i);
        else if constexpr (kRel == thr::kRelLe) storeMaskBytes(d, thrv::lessEq(x, y), out + i);
        else if constexpr (kRel == thr::kRelEq) storeMaskBytes(d, hn::Eq(x, y), out + i);
        else if constexpr (kRel == thr::kRelGe) storeMaskBytes(d, thrv::lessEq(y, x), out + i);
        else if constexpr (kRel == thr::kRelGt) storeMaskBytes(d, hn::Lt(y, x), out + i);
        else if constexpr (hwy::IsFloat<T>())
          storeMaskBytes(d, hn::Le(hn::Abs(hn::Sub(x, y)), hn::Set(d, eps)), out + i);
      },
      [&](int i, int off) {
        out[i] = thr::relationHolds<T>(kRel, a[i], b[bPattern ? off : i], eps) ? 0xFF : 0;
      });
}

// Per-element masks of n elements; b is an image row, or a pattern when bPattern is set.
template <class T>
void CompareRowSimd(const T* a, const T* b, bool bPattern, uint8_t* out, int n, int rel,
                    T eps) {
  switch (rel) {
    case thr::kRelLt: return compareRowRel<T, thr::kRelLt>(a, b, bPattern, out, n, eps);
    case thr::kRelLe: return compareRowRel<T, thr::kRelLe>(a, b, bPattern, out, n, eps);
    case thr::kRelEq: return compareRowRel<T, thr::kRelEq>(a, b, bPattern, out, n, eps);
    case thr::kRelGe: return compareRowRel<T, thr::kRelGe>(a, b, bPattern, out, n, eps);
    case thr::kRelGt: return compareRowRel<T, thr::kRelGt>(a, b, bPattern, out, n, eps);
    default: return compareRowRel<T, thr::kRelEqEps>(a, b, bPattern, out, n, eps);
  }
}

// Pixel masks from per-element masks: 0xFF only where the first `use` of `ch` channels are.
void AllChannelsSimd(const uint8_t* m, uint8_t* out, int pixels, int ch, int use) {
  const hn::ScalableTag<uint8_t> d;
  const int N = static_cast<int>(hn::Lanes(d));
  int x = 0;
  if (ch == 3) {
    for (; x + N <= pixels; x += N) {
      hn::Vec<decltype(d)> c0, c1, c2;
      hn::LoadInterleaved3(d, m + 3 * x, c0, c1, c2);
      hn::StoreU(hn::And(hn::And(c0, c1), c2), d, out + x);
    }
  } else {
    for (; x + N <= pixels; x += N) {
      hn::Vec<decltype(d)> c0, c1, c2, c3;
      hn::LoadInterleaved4(d, m + 4 * x, c0, c1, c2, c3);
      auto r = hn::And(hn::And(c0, c1), c2);
      if (use == 4) r = hn::And(r, c3);
      hn::StoreU(r, d, out + x);
    }
  }
  for (; x < pixels; ++x) {
    uint8_t r = 0xFF;
    for (int c = 0; c < use; ++c) r &= m[x * ch + c];
    out[x] = r;
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

template <class T>
using CompareRowFn = void (*)(const T*, const T*, bool, uint8_t*, int, int, T);
LUMI_SIMD_TABLE(CompareRowFn<Lum8u>, kCompare8u, CompareRowSimd<Lum8u>);
LUMI_SIMD_TABLE(CompareRowFn<Lum16s>, kCompare16s, CompareRowSimd<Lum16s>);
LUMI_SIMD_TABLE(CompareRowFn<Lum32f>, kCompare32f, CompareRowSimd<Lum32f>);
using AllChannelsFn = void (*)(const uint8_t*, uint8_t*, int, int, int);
LUMI_SIMD_TABLE(AllChannelsFn, kAllChannels, AllChannelsSimd);

template <class T>
CompareRowFn<T> compareSimd() {
  if constexpr (std::is_same_v<T, Lum8u>) return pickSimd(kCompare8u);
  else if constexpr (std::is_same_v<T, Lum16s>) return pickSimd(kCompare16s);
  else return pickSimd(kCompare32f);
}

// Pixels per block of the multi-channel vector path; block * channels is a multiple of the
// pattern length, so a constant's pattern restarts cleanly at every block.
constexpr int kBlockPixels = 960;
static_assert(kBlockPixels * 3 % thr::kPatternLen == 0 && kBlockPixels * 4 % thr::kPatternLen == 0,
              "block must hold whole patterns");

// b/bStep: the second image, or (bStep ignored) the per-channel constants when bConst.
template <class T, class L>
void runCompare(const T* a, int aStep, const T* b, int bStep, bool bConst, Lum8u* dst,
                int dstStep, LumiSize roi, int rel, T eps) {
  auto f = compareSimd<T>();
  auto all = pickSimd(kAllChannels);
  if (f && all) {
    thr::Pattern<T> pat;
    if (bConst) thr::fillPattern(pat, b, L::kCh, L::kUse);
    alignas(64) uint8_t tmp[kBlockPixels * 4];
    for (int y = 0; y < roi.height; ++y) {
      const T* ar = rowAt(a, aStep, y);
      const T* br = bConst ? pat.v : rowAt(b, bStep, y);
      Lum8u* o = rowAt(dst, dstStep, y);
      if (L::kCh == 1) {
        f(ar, br, bConst, o, roi.width, rel, eps);
        continue;
      }
      for (int x = 0; x < roi.width; x += kBlockPixels) {
        const int cnt = roi.width - x < kBlockPixels ? roi.width - x : kBlockPixels;
        const std::ptrdiff_t e = static_cast<std::ptrdiff_t>(x) * L::kCh;
        f(ar + e, bConst ? br : br + e, bConst, tmp, cnt * L::kCh, rel, eps);
        all(tmp, o + x, cnt, L::kCh, L::kUse);
      }
    }
    return;
  }
  thr::withConstant<6>(rel, [&](auto r) {
    for (int y = 0; y < roi.height; ++y) {
      const T* ar = rowAt(a, aStep, y);
      const T* br = bConst ? b : rowAt(b, bStep, y);
      Lum8u* o = rowAt(dst, dstStep, y);
      for (int x = 0; x < roi.width; ++x) {
        bool all = true;
        for (int c = 0; c < L::kUse; ++c)
          all = all && thr::relationHolds<T>(r.value, ar[x * L::kCh + c],
                                             bConst ? br[c] : br[x * L::kCh + c], eps);
        o[x] = all ? 0xFF : 0;
      }
    }
  });
}

// Pointers, steps, size; an operation outside 0..4 then succeeds without writing.
template <class T, class L>
LumStatus compareImpl(const T* a, int aStep, const T* b, int bStep, bool bConst, Lum8u* dst,
                      int dstStep, LumiSize roi, LumCompareOp op) {
  if (anyNull(a, b, dst)) return lumStatusNullPtrErr;
  if (bConst ? badStep(aStep, dstStep) : badStep(aStep, bStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (op < lumCmpLess || op > lumCmpGreater) return lumStatusOk;
  runCompare<T, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, op, T());
  return lumStatusOk;
}

// Pointers, steps, size, then a tolerance that is not at least zero (NaN included).
template <class L>
LumStatus compareEpsImpl(const Lum32f* a, int aStep, const Lum32f* b, int bStep, bool bConst,
                         Lum8u* dst, int dstStep, LumiSize roi, Lum32f eps) {
  if (anyNull(a, b, dst)) return lumStatusNullPtrErr;
  if (bConst ? badStep(aStep, dstStep) : badStep(aStep, bStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (!(eps >= 0.0f)) return lumStatusEpsilonErr;
  runCompare<Lum32f, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, thr::kRelEqEps, eps);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using lumi::C1;
using lumi::C3;
using lumi::AC4;
using lumi::C4;

#define LUMI_CMP_SCALAR(T) T
#define LUMI_CMP_ARRAY(T) const T*
#define LUMI_CMP_ADDR_SCALAR(x) &x
#define LUMI_CMP_ADDR_ARRAY(x) x

#define LUMI_COMPARE(tc, T, L, KIND)                                                            \
  LUMI_API LumStatus lumiCompare_##tc##_##L##R(const T* pSrc1, int src1Step, const T* pSrc2,    \
                                               int src2Step, Lum8u* pDst, int dstStep,          \
                                               LumiSize roi, LumCompareOp op) {                 \
    return lumi::compareImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep,      \
                                   roi, op);                                                    \
  }                                                                                             \
  LUMI_API LumStatus lumiCompareC_##tc##_##L##R(const T* pSrc, int srcStep,                     \
                                                LUMI_CMP_##KIND(T) value, Lum8u* pDst,          \
                                                int dstStep, LumiSize roi, LumCompareOp op) {   \
    return lumi::compareImpl<T, L>(pSrc, srcStep, LUMI_CMP_ADDR_##KIND(value), 0, true, pDst,   \
                                   dstStep, roi, op);                                           \
  }

#define LUMI_COMPARE_EPS(L, KIND)                                                               \
  LUMI_API LumStatus lumiCompareEqualEps_32f_##L##R(const Lum32f* pSrc1, int src1Step,          \
                                                    const Lum32f* pSrc2, int src2Step,          \
                                                    Lum8u* pDst, int dstStep, LumiSize roi,     \
                                                    Lum32f eps) {                               \
    return lumi::compareEpsImpl<L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep, roi, \
                                   eps);                                                        \
  }                                                                                             \
  LUMI_API LumStatus lumiCompareEqualEpsC_32f_##L##R(const Lum32f* pSrc, int srcStep,           \
                                                     LUMI_CMP_##KIND(Lum32f) value, Lum8u* pDst, \
                                                     int dstStep, LumiSize roi, Lum32f eps) {   \
    return lumi::compareEpsImpl<L>(pSrc, srcStep, LUMI_CMP_ADDR_##KIND(value), 0, true, pDst,   \
                                   dstStep, roi, eps);                                          \
  }

#define LUMI_COMPARE_TYPE(tc, T)   \
  LUMI_COMPARE(tc, T, C1, SCALAR)  \
  LUMI_COMPARE(tc, T, C3, ARRAY)   \
  LUMI_COMPARE(tc, T, C4, ARRAY)   \
  LUMI_COMPARE(tc, T, AC4, ARRAY)

extern "C" {
LUMI_COMPARE_TYPE(8u, Lum8u)
LUMI_COMPARE_TYPE(16s, Lum16s)
LUMI_COMPARE_TYPE(32f, Lum32f)
LUMI_COMPARE_EPS(C1, SCALAR)
LUMI_COMPARE_EPS(C3, ARRAY)
LUMI_COMPARE_EPS(C4, ARRAY)
LUMI_COMPARE_EPS(AC4, ARRAY)
}

#endif  // HWY_ONCE
