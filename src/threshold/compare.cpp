// Comparison of two images or of an image with a constant, producing a one-channel 255/0
// mask; the tolerance form for 32f.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/compare.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "threshold/threshold_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

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
  patternRow(
      d, n,
      [&](std::ptrdiff_t i, int off) HWY_ATTR {
        const auto x = hn::LoadU(d, a + i);
        const auto y = hn::LoadU(d, b + (bPattern ? off : i));
        if constexpr (kRel == thr::kRelLt) storeMaskBytes(d, hn::Lt(x, y), out + i);
        else if constexpr (kRel == thr::kRelLe) storeMaskBytes(d, lessEq(x, y), out + i);
        else if constexpr (kRel == thr::kRelEq) storeMaskBytes(d, hn::Eq(x, y), out + i);
        else if constexpr (kRel == thr::kRelGe) storeMaskBytes(d, lessEq(y, x), out + i);
        else if constexpr (kRel == thr::kRelGt) storeMaskBytes(d, hn::Lt(y, x), out + i);
        else if constexpr (hwy::IsFloat<T>())
          storeMaskBytes(d, hn::Le(hn::Abs(hn::Sub(x, y)), hn::Set(d, eps)), out + i);
      },
      [&](std::ptrdiff_t i, int off) {
        out[i] = thr::relationHolds<T>(kRel, a[i], b[bPattern ? off : i], eps) ? 0xFF : 0;
      });
}

// Per-element masks of n elements; b is an image row, or a pattern when bPattern is set.
template <class T>
void compareRow(const T* a, const T* b, bool bPattern, uint8_t* out, int n, int rel, T eps) {
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
void allChannels(const uint8_t* m, uint8_t* out, int pixels, int ch, int use) {
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

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

using AllChannelsFn = void (*)(const uint8_t*, uint8_t*, int, int, int);
template <class T>
using CompareRowFn = void (*)(const T*, const T*, bool, uint8_t*, int, int, T);

template <class T>
void compareRowScalar(const T* a, const T* b, bool bPattern, uint8_t* out, int n, int rel,
                      T eps) {
  thr::withConstant<6>(rel, [&](auto r) {
    for (int i = 0; i < n; ++i)
      out[i] = thr::relationHolds<T>(r.value, a[i], b[bPattern ? i % thr::kPatternLen : i], eps)
                   ? 0xFF
                   : 0;
  });
}

void allChannelsScalar(const uint8_t* m, uint8_t* out, int pixels, int ch, int use) {
  for (int x = 0; x < pixels; ++x) {
    uint8_t r = 0xFF;
    for (int c = 0; c < use; ++c) r &= m[x * ch + c];
    out[x] = r;
  }
}

template <class T>
CompareRowFn<T> pickCompareRow() {
  LUMI_SIMD_TABLE(CompareRowFn<T>, table, compareRow<T>);
  return pick(table, &compareRowScalar<T>);
}

AllChannelsFn pickAllChannels() {
  LUMI_SIMD_TABLE(AllChannelsFn, table, allChannels);
  return pick(table, &allChannelsScalar);
}

// Pixels per block of the multi-channel rows; block * channels is a multiple of the pattern
// length, so a constant's pattern restarts cleanly at every block.
constexpr int kBlockPixels = 960;
static_assert(kBlockPixels * 3 % thr::kPatternLen == 0 && kBlockPixels * 4 % thr::kPatternLen == 0,
              "block must hold whole patterns");

// b/bStep: the second image, or (bStep ignored) the per-channel constants when bConst.
// Multi-channel rows are compared element by element a block at a time, then every pixel's
// channels are combined.
template <class T, class L>
void runCompare(const T* a, int aStep, const T* b, int bStep, bool bConst, Lum8u* dst,
                int dstStep, LumiSize roi, int rel, T eps) {
  const auto f = pickCompareRow<T>();
  const auto all = pickAllChannels();
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
      const std::ptrdiff_t e = elemsOf(x, L::kCh);
      f(ar + e, bConst ? br : br + e, bConst, tmp, cnt * L::kCh, rel, eps);
      all(tmp, o + x, cnt, L::kCh, L::kUse);
    }
  }
}

// The images; an operation outside 0..4 then succeeds without writing.
template <class T, class L>
LumStatus compareImpl(const T* a, int aStep, const T* b, int bStep, bool bConst, Lum8u* dst,
                      int dstStep, LumiSize roi, LumCompareOp op) {
  if (LumStatus st = thr::checkOperands(a, aStep, b, bStep, bConst, dst, dstStep, roi)) return st;
  if (op < lumCmpLess || op > lumCmpGreater) return lumStatusOk;
  runCompare<T, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, op, T());
  return lumStatusOk;
}

// The images, then a tolerance that is not at least zero (NaN included).
template <class L>
LumStatus compareEpsImpl(const Lum32f* a, int aStep, const Lum32f* b, int bStep, bool bConst,
                         Lum8u* dst, int dstStep, LumiSize roi, Lum32f eps) {
  if (LumStatus st = thr::checkOperands(a, aStep, b, bStep, bConst, dst, dstStep, roi)) return st;
  if (!(eps >= 0.0f)) return lumStatusEpsilonErr;
  runCompare<Lum32f, L>(a, aStep, b, bStep, bConst, dst, dstStep, roi, thr::kRelEqEps, eps);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// K: C1 takes the constant by value (SCALAR), the others an array (ARRAY).
#define LUMI_CMP_SCALAR(T) T
#define LUMI_CMP_ARRAY(T) const T*
#define LUMI_CMP_ADDR_SCALAR(x) &x
#define LUMI_CMP_ADDR_ARRAY(x) x

#define LUMI_COMPARE(NAME, T, L)                                                                \
  LUMI_API LumStatus NAME(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step,           \
                          Lum8u* pDst, int dstStep, LumiSize roi, LumCompareOp op) {            \
    return lumi::compareImpl<T, lumi::L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst,         \
                                         dstStep, roi, op);                                     \
  }
#define LUMI_COMPARE_C(NAME, T, L, K)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LUMI_CMP_##K(T) value, Lum8u* pDst,       \
                          int dstStep, LumiSize roi, LumCompareOp op) {                         \
    return lumi::compareImpl<T, lumi::L>(pSrc, srcStep, LUMI_CMP_ADDR_##K(value), 0, true,      \
                                         pDst, dstStep, roi, op);                               \
  }
#define LUMI_COMPARE_EPS(NAME, L)                                                               \
  LUMI_API LumStatus NAME(const Lum32f* pSrc1, int src1Step, const Lum32f* pSrc2,               \
                          int src2Step, Lum8u* pDst, int dstStep, LumiSize roi, Lum32f eps) {   \
    return lumi::compareEpsImpl<lumi::L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst,         \
                                         dstStep, roi, eps);                                    \
  }
#define LUMI_COMPARE_EPS_C(NAME, L, K)                                                          \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, LUMI_CMP_##K(Lum32f) value,          \
                          Lum8u* pDst, int dstStep, LumiSize roi, Lum32f eps) {                 \
    return lumi::compareEpsImpl<lumi::L>(pSrc, srcStep, LUMI_CMP_ADDR_##K(value), 0, true,      \
                                         pDst, dstStep, roi, eps);                              \
  }

LUMI_COMPARE(lumiCompare_8u_C1R, Lum8u, C1)
LUMI_COMPARE_C(lumiCompareC_8u_C1R, Lum8u, C1, SCALAR)
LUMI_COMPARE(lumiCompare_8u_C3R, Lum8u, C3)
LUMI_COMPARE_C(lumiCompareC_8u_C3R, Lum8u, C3, ARRAY)
LUMI_COMPARE(lumiCompare_8u_C4R, Lum8u, C4)
LUMI_COMPARE_C(lumiCompareC_8u_C4R, Lum8u, C4, ARRAY)
LUMI_COMPARE(lumiCompare_8u_AC4R, Lum8u, AC4)
LUMI_COMPARE_C(lumiCompareC_8u_AC4R, Lum8u, AC4, ARRAY)
LUMI_COMPARE(lumiCompare_16s_C1R, Lum16s, C1)
LUMI_COMPARE_C(lumiCompareC_16s_C1R, Lum16s, C1, SCALAR)
LUMI_COMPARE(lumiCompare_16s_C3R, Lum16s, C3)
LUMI_COMPARE_C(lumiCompareC_16s_C3R, Lum16s, C3, ARRAY)
LUMI_COMPARE(lumiCompare_16s_C4R, Lum16s, C4)
LUMI_COMPARE_C(lumiCompareC_16s_C4R, Lum16s, C4, ARRAY)
LUMI_COMPARE(lumiCompare_16s_AC4R, Lum16s, AC4)
LUMI_COMPARE_C(lumiCompareC_16s_AC4R, Lum16s, AC4, ARRAY)
LUMI_COMPARE(lumiCompare_32f_C1R, Lum32f, C1)
LUMI_COMPARE_C(lumiCompareC_32f_C1R, Lum32f, C1, SCALAR)
LUMI_COMPARE(lumiCompare_32f_C3R, Lum32f, C3)
LUMI_COMPARE_C(lumiCompareC_32f_C3R, Lum32f, C3, ARRAY)
LUMI_COMPARE(lumiCompare_32f_C4R, Lum32f, C4)
LUMI_COMPARE_C(lumiCompareC_32f_C4R, Lum32f, C4, ARRAY)
LUMI_COMPARE(lumiCompare_32f_AC4R, Lum32f, AC4)
LUMI_COMPARE_C(lumiCompareC_32f_AC4R, Lum32f, AC4, ARRAY)
LUMI_COMPARE_EPS(lumiCompareEqualEps_32f_C1R, C1)
LUMI_COMPARE_EPS_C(lumiCompareEqualEpsC_32f_C1R, C1, SCALAR)
LUMI_COMPARE_EPS(lumiCompareEqualEps_32f_C3R, C3)
LUMI_COMPARE_EPS_C(lumiCompareEqualEpsC_32f_C3R, C3, ARRAY)
LUMI_COMPARE_EPS(lumiCompareEqualEps_32f_C4R, C4)
LUMI_COMPARE_EPS_C(lumiCompareEqualEpsC_32f_C4R, C4, ARRAY)
LUMI_COMPARE_EPS(lumiCompareEqualEps_32f_AC4R, AC4)
LUMI_COMPARE_EPS_C(lumiCompareEqualEpsC_32f_AC4R, AC4, ARRAY)

#endif  // HWY_ONCE
