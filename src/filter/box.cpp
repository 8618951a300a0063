// Box filter: every destination pixel is the mean of the mask of source pixels its anchor places
// around it. Running sums keep the cost per pixel independent of the mask: column sums slide
// down a band of rows, and along each destination row one window sum slides over them.
// Normalisation by type is in box_kernels.h.
//
// Vector kernels: integer results equal the plain kernels' bit for bit. Float rows (32f) of
// masks up to 16 columns wide add each window's column sums directly where the plain kernel
// slides one running sum along the row; the two agree within a few units in the last place of
// the window sums' magnitudes times the row length (the tests allow 2e-7 x sum of |values| x
// (width + height + mask sizes) / area). Wider three- and four-channel rows and all column
// sums are the same arithmetic in the same order in both, so they agree exactly; wider
// one-channel 32f rows keep the plain kernel.
#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/box.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "core/halo.h"
#include "filter/box_kernels.h"
#include "lumi/filter.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Window sums to pixels: the vector form of box::normalise.
template <class T, class DA>
HWY_INLINE hn::Vec<hn::Rebind<T, DA>> normaliseVec(DA da, hn::Vec<DA> sum, const box::BoxScale& sc) {
  using A = hn::TFromD<DA>;
  const hn::Rebind<T, DA> dt;
  if constexpr (std::is_same_v<A, uint16_t>) {
    const hn::RebindToSigned<DA> di;
    const auto q = hn::ShiftRightSame(hn::MulHigh(sum, hn::Set(da, sc.m16)), sc.post);
    return hn::DemoteTo(dt, hn::BitCast(di, q));  // at most 255
  } else if constexpr (std::is_same_v<A, uint32_t>) {
    const hn::RebindToSigned<DA> di;
    const auto q = hn::ShiftRightSame(hn::Mul(sum, hn::Set(da, sc.m)), sc.s);
    return hn::DemoteTo(dt, hn::BitCast(di, q));
  } else if constexpr (std::is_same_v<A, int32_t>) {
    const hn::Rebind<float, DA> df;
    const auto v = hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, sc.r));
    return hn::DemoteTo(dt, hn::NearestInt(v));  // the caller holds round-to-nearest
  } else {
    return hn::Mul(sum, hn::Set(da, sc.r));
  }
}

template <class T, class A>
void colSlide(const T* HWY_RESTRICT in, const T* HWY_RESTRICT out, A* HWY_RESTRICT col,
              std::ptrdiff_t n) {
  const hn::ScalableTag<A> da;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const auto c = hn::LoadU(da, col + i);
    hn::StoreU(hn::Add(c, hn::Sub(loadAs(da, in + i), loadAs(da, out + i))), da, col + i);
  }
  for (; i < n; ++i) col[i] = box::accSlide(col[i], box::accOf<A>(in[i]), box::accOf<A>(out[i]));
}

constexpr int kDirectMax = 16;  // widest mask whose window sums are added column by column

// Masks up to kDirectMax columns: every element of the row is the sum of mw column sums kCh
// elements apart, whatever its channel.
template <class T, class A, class L>
void directRow(const A* HWY_RESTRICT col, T* HWY_RESTRICT dst, int width, int mw,
               const box::BoxScale& sc) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<A> da;
  const hn::Rebind<T, decltype(da)> dt;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  const auto colour = colourLanes(dt);
  std::ptrdiff_t i = 0;
  for (; i + N <= n; i += N) {
    const A* p = col + i;
    auto sum = hn::LoadU(da, p);
    for (int k = 1; k < mw; ++k) sum = hn::Add(sum, hn::LoadU(da, p + elemsOf(k, kCh)));
    storeColour(dt, normaliseVec<T>(da, sum, sc), dst + i, kAlpha, colour);
  }
  for (; i < n; ++i) {
    if (kAlpha && (i & 3) == 3) continue;
    A sum = col[i];
    for (int k = 1; k < mw; ++k) sum = box::accAdd(sum, col[i + elemsOf(k, kCh)]);
    dst[i] = box::normalise<T, A>(sum, sc);
  }
}

// Three- and four-channel rows: one pixel's running sums in one four-lane vector, slid along
// the row. Three-channel pixels carry the next pixel's first channel in lane 3: each store
// spills into that pixel before its own store overwrites it, and the last pixel of the row goes
// out through a buffer.
template <class T, class A, class L>
void pixelRow(const A* HWY_RESTRICT col, T* HWY_RESTRICT dst, int width, int mw,
              const box::BoxScale& sc) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::CappedTag<A, 4> da;
  const hn::Rebind<T, decltype(da)> dt;
  const auto colour = colourLanes(dt);
  auto sum = hn::LoadU(da, col);
  for (int k = 1; k < mw; ++k) sum = hn::Add(sum, hn::LoadU(da, col + elemsOf(k, kCh)));
  for (int x = 0; x + 1 < width; ++x) {
    storeColour(dt, normaliseVec<T>(da, sum, sc), dst + elemsOf(x, kCh), kAlpha, colour);
    sum = hn::Add(sum, hn::Sub(hn::LoadU(da, col + elemsOf(x + mw, kCh)),
                               hn::LoadU(da, col + elemsOf(x, kCh))));
  }
  T* last = dst + elemsOf(width - 1, kCh);
  if constexpr (kCh == 4) {
    storeColour(dt, normaliseVec<T>(da, sum, sc), last, kAlpha, colour);
  } else {
    HWY_ALIGN T buf[4];
    hn::Store(normaliseVec<T>(da, sum, sc), dt, buf);
    for (int c = 0; c < kCh; ++c) last[c] = buf[c];
  }
}

// One-channel integer rows of wide masks: prefix sums of the column sums (scans carried from
// vector to vector), then S(x) = P(x + mw) - P(x). The prefix sums wrap modulo 2^bits of the
// lane, and the differences of sums below 2^bits are still exact.
template <class T, class A>
void prefixRow(const A* HWY_RESTRICT col, T* HWY_RESTRICT dst, int width, int mw,
               const box::BoxScale& sc, A* HWY_RESTRICT work) {
  const std::ptrdiff_t ext = static_cast<std::ptrdiff_t>(width) + mw - 1;
  work[0] = 0;
  if constexpr (sizeof(A) == 4) {
    // 32-bit sums use whole vectors: a scan inside each 128-bit block, then the totals of the
    // blocks below added in (one step per doubling of the block count), then the carry, which
    // grows by one addition per vector.
    const hn::ScalableTag<A> d;
    const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
    HWY_ALIGN int32_t up4[hn::MaxLanes(d)], up8[hn::MaxLanes(d)], last[hn::MaxLanes(d)];
    for (std::ptrdiff_t j = 0; j < N; ++j) {
      up4[j] = static_cast<int32_t>(j >= 4 ? j - 4 : 0);
      up8[j] = static_cast<int32_t>(j >= 8 ? j - 8 : 0);
      last[j] = static_cast<int32_t>(N - 1);
    }
    const auto i4 = hn::SetTableIndices(d, up4), i8 = hn::SetTableIndices(d, up8);
    const auto il = hn::SetTableIndices(d, last);
    const auto below4 = hn::FirstN(d, 4), below8 = hn::FirstN(d, 8);
    auto carry = hn::Zero(d);
    for (std::ptrdiff_t i = 0; i < ext; i += N) {
      auto v = hn::LoadU(d, col + i);
      v = hn::Add(v, hn::ShiftLeftLanes<1>(d, v));
      v = hn::Add(v, hn::ShiftLeftLanes<2>(d, v));
      if (N > 4) v = hn::Add(v, hn::IfThenZeroElse(below4, hn::TableLookupLanes(hn::Broadcast<3>(v), i4)));
      if (N > 8) v = hn::Add(v, hn::IfThenZeroElse(below8, hn::TableLookupLanes(hn::Broadcast<3>(v), i8)));
      const auto total = hn::TableLookupLanes(v, il);  // off the carry's dependency chain
      hn::StoreU(hn::Add(v, carry), d, work + 1 + i);
      carry = hn::Add(carry, total);
    }
  } else {
    const hn::Full128<A> d4;
    constexpr std::ptrdiff_t N4 = 16 / sizeof(A);
    auto carry = hn::Zero(d4);
    for (std::ptrdiff_t i = 0; i < ext; i += N4) {
      auto v = hn::LoadU(d4, col + i);
      v = hn::Add(v, hn::ShiftLeftLanes<1>(d4, v));
      v = hn::Add(v, hn::ShiftLeftLanes<2>(d4, v));
      v = hn::Add(v, hn::ShiftLeftLanes<4>(d4, v));
      const auto total = hn::Broadcast<N4 - 1>(v);
      hn::StoreU(hn::Add(v, carry), d4, work + 1 + i);
      carry = hn::Add(carry, total);
    }
  }
  const hn::ScalableTag<A> da;
  const hn::Rebind<T, decltype(da)> dt;
  const int N = static_cast<int>(hn::Lanes(da));
  int x = 0;
  for (; x + N <= width; x += N) {
    const auto sum = hn::Sub(hn::LoadU(da, work + x + mw), hn::LoadU(da, work + x));
    hn::StoreU(normaliseVec<T>(da, sum, sc), dt, dst + x);
  }
  for (; x < width; ++x) dst[x] = box::normalise<T, A>(box::accSlide(A{0}, work[x + mw], work[x]), sc);
}

template <class T, class A, class L>
void boxRow(const A* HWY_RESTRICT col, T* HWY_RESTRICT dst, int width, int mw,
            const box::BoxScale& sc, A* HWY_RESTRICT work) {
  if (mw <= kDirectMax) return directRow<T, A, L>(col, dst, width, mw, sc);
  if constexpr (L::kCh > 1) return pixelRow<T, A, L>(col, dst, width, mw, sc);
  if constexpr (std::is_integral_v<A>) return prefixRow<T, A>(col, dst, width, mw, sc, work);
  box::boxRowScalar<T, A, L>(col, dst, width, mw, sc);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace box {
namespace {

// 8u rows of the float path (masks above 8100 pixels) have no vector kernels.
template <class T, class A>
constexpr bool kHasVector = !(std::is_same_v<T, Lum8u> && std::is_same_v<A, float>);

template <class T, class A>
ColSlideFn<T, A> pickColSlide() {
  using Fn = ColSlideFn<T, A>;
  if constexpr (kHasVector<T, A>) {
    LUMI_SIMD_TABLE(Fn, table, colSlide<T, A>);
    return pick(table, static_cast<Fn>(&colSlideScalar<T, A>));
  } else {
    return &colSlideScalar<T, A>;
  }
}
template <class T, class A, class L>
BoxRowFn<T, A> pickBoxRow() {
  using Fn = BoxRowFn<T, A>;
  if constexpr (kHasVector<T, A>) {
    LUMI_SIMD_TABLE(Fn, table, boxRow<T, A, L>);
    return pick(table, static_cast<Fn>(&boxRowScalar<T, A, L>));
  } else {
    return &boxRowScalar<T, A, L>;
  }
}

// Steps in bytes become whole elements: a 16s or 32f step that is not a multiple of the
// element size is rounded down to one, not reported.
template <class T>
int wholeElements(int step) {
  return step / static_cast<int>(sizeof(T)) * static_cast<int>(sizeof(T));
}

constexpr std::size_t kScratchLimit = 0x7fffffff;
inline std::size_t roundUp64(std::size_t n) { return (n + 63) & ~static_cast<std::size_t>(63); }

// The rows of the ROI in one band per thread (when the ROI has more than 4096 pixels). Each
// band starts its column sums from scratch at its first row and slides them down. In place, the
// source rows a band still reads after it (or its neighbour) overwrote them come from the halo
// copies; the arithmetic, and so the result, is that of the out-of-place call with the same
// bands.
template <class T, class A, class L>
LumStatus runBands(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                   LumiPoint anchor, const BoxScale& sc, bool inPlace) {
  constexpr int kCh = L::kCh;
  const int top = anchor.y, bottom = mask.height - 1 - anchor.y;
  const int left = anchor.x, right = mask.width - 1 - anchor.x;
  // Scratch per thread: the column sums (with room for vector loads past the end) and, in
  // place, the halo rows. Sized in double first: masks near INT_MAX must not wrap the count.
  const double extElems = (static_cast<double>(roi.width) + mask.width - 1) * kCh;
  const double haloRows = inPlace ? 2.0 * top + 1.0 + bottom : 0.0;
  if (2 * (extElems + 128) * sizeof(A) + haloRows * extElems * sizeof(T) + 256 > kScratchLimit)
    return lumStatusMemAllocErr;
  const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(extElems);
  const std::size_t colBytes = 2 * roundUp64(static_cast<std::size_t>(n + 128) * sizeof(A));
  const HaloRows<T> halo(viewOf<L>(src, srcStep, roi), top, bottom, left, right, inPlace);
  const std::size_t bytes = colBytes + halo.scratchBytes();
  const std::ptrdiff_t lead = elemsOf(left, kCh);
  const ColSlideFn<T, A> slide = pickColSlide<T, A>();
  const BoxRowFn<T, A> boxRow = pickBoxRow<T, A, L>();

  auto body = [&](int y0, int y1, Lum8u* scratch) {
    std::conditional_t<std::is_same_v<T, Lum16s>, NearestRounding, int> rounding{};
    (void)rounding;
    A* col = reinterpret_cast<A*>(scratch);
    A* work = reinterpret_cast<A*>(scratch + colBytes / 2);
    std::fill(col + n, col + n + 128, A{0});  // vector loads may pass the last column
    HaloRows<T> rows = halo;
    rows.bind(y0, y1, scratch + colBytes);
    colSet(rows.row(y0 - top) - lead, col, n);
    for (int k = 1; k < mask.height; ++k) colAdd(rows.row(y0 - top + k) - lead, col, n);
    for (int y = y0; y < y1; ++y) {
      rows.keep(y);
      boxRow(col, rowAt(dst, dstStep, y), roi.width, mask.width, sc, work);
      if (y + 1 < y1) slide(rows.row(y + 1 + bottom) - lead, rows.row(y - top) - lead, col, n);
    }
  };
  const bool parallel = static_cast<long long>(roi.width) * roi.height > 4096;
  if (!inPlace) return forRowsWithScratch(roi.height, parallel, bytes, body);
  auto prepare = [&](int y0, int y1, Lum8u* scratch) {
    HaloRows<T> rows = halo;
    rows.bind(y0, y1, scratch + colBytes);
    rows.prepare();
  };
  return forRowsWithScratch(roi.height, parallel, bytes, body, prepare);
}

template <class T, class L>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
              LumiPoint anchor, bool inPlace) {
  const long long area = static_cast<long long>(mask.width) * mask.height;
  srcStep = wholeElements<T>(srcStep);
  dstStep = wholeElements<T>(dstStep);
  if constexpr (std::is_same_v<T, Lum8u>) {
    if (area > 1 && area <= kMaxNarrowArea)
      return runBands<T, uint16_t, L>(src, srcStep, dst, dstStep, roi, mask, anchor,
                                      scale8u(area), inPlace);
    if (area <= kMaxIntegerArea)
      return runBands<T, uint32_t, L>(src, srcStep, dst, dstStep, roi, mask, anchor,
                                      scale8u(area), inPlace);
    return runBands<T, float, L>(src, srcStep, dst, dstStep, roi, mask, anchor, scaleFloat(area),
                                 inPlace);
  } else if constexpr (std::is_same_v<T, Lum16s>) {
    return runBands<T, int32_t, L>(src, srcStep, dst, dstStep, roi, mask, anchor,
                                   scaleFloat(area), inPlace);
  } else {
    return runBands<T, float, L>(src, srcStep, dst, dstStep, roi, mask, anchor, scaleFloat(area),
                                 inPlace);
  }
}

// Checks in the family's order: pointers, steps, ROI, mask, anchor.
inline LumStatus checkMask(LumiSize mask, LumiPoint anchor) {
  if (badSize(mask)) return lumStatusMaskSizeErr;
  if (anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height)
    return lumStatusAnchorErr;
  return lumStatusOk;
}

template <class T, class L>
LumStatus boxImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                  LumiPoint anchor) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (LumStatus st = checkMask(mask, anchor)) return st;
  return run<T, L>(src, srcStep, dst, dstStep, roi, mask, anchor, false);
}

template <class T, class L>
LumStatus boxInPlaceImpl(T* srcDst, int step, LumiSize roi, LumiSize mask, LumiPoint anchor) {
  if (anyNull(srcDst)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (LumStatus st = checkMask(mask, anchor)) return st;
  return run<T, L>(srcDst, step, srcDst, step, roi, mask, anchor, true);
}

}  // namespace
}  // namespace box
}  // namespace lumi

#define LUMI_FILTER_BOX(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep,                   \
                          LumiSize dstRoiSize, LumiSize maskSize, LumiPoint anchor) {         \
    return boxImpl<T, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor);         \
  }
#define LUMI_FILTER_BOX_I(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize, LumiSize maskSize,    \
                          LumiPoint anchor) {                                                 \
    return boxInPlaceImpl<T, L>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);              \
  }

using namespace lumi;
using namespace lumi::box;

LUMI_FILTER_BOX(lumiFilterBox_8u_C1R, Lum8u, C1)
LUMI_FILTER_BOX(lumiFilterBox_8u_C3R, Lum8u, C3)
LUMI_FILTER_BOX(lumiFilterBox_8u_C4R, Lum8u, C4)
LUMI_FILTER_BOX(lumiFilterBox_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_BOX(lumiFilterBox_16s_C1R, Lum16s, C1)
LUMI_FILTER_BOX(lumiFilterBox_16s_C3R, Lum16s, C3)
LUMI_FILTER_BOX(lumiFilterBox_16s_C4R, Lum16s, C4)
LUMI_FILTER_BOX(lumiFilterBox_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_BOX(lumiFilterBox_32f_C1R, Lum32f, C1)
LUMI_FILTER_BOX(lumiFilterBox_32f_C3R, Lum32f, C3)
LUMI_FILTER_BOX(lumiFilterBox_32f_C4R, Lum32f, C4)
LUMI_FILTER_BOX(lumiFilterBox_32f_AC4R, Lum32f, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C1IR, Lum8u, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C3IR, Lum8u, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_C4IR, Lum8u, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_8u_AC4IR, Lum8u, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C1IR, Lum16s, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C3IR, Lum16s, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_C4IR, Lum16s, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_16s_AC4IR, Lum16s, AC4)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C1IR, Lum32f, C1)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C3IR, Lum32f, C3)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_C4IR, Lum32f, C4)
LUMI_FILTER_BOX_I(lumiFilterBox_32f_AC4IR, Lum32f, AC4)
#endif  // HWY_ONCE
