// General linear filters: a caller-supplied 2-D, row or column kernel applied mirrored, with
// integer kernels scaled by their divisor and 32f kernels summed in single precision. Row and
// column kernels are 2-D kernels of one row or one column, so every export runs the same code.
// The plain kernels and the scale record are in linear_kernels.h.
//
// Vector kernels: each lane computes one destination element with the same operations in the
// same order as the plain kernel (taps in the order of the definition, a product rounded and
// then added, no fused multiply-add; integer sums modulo 2^32), so integer and float results
// alike equal the plain kernels' bit for bit: the tolerance is zero.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/linear.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "filter/linear_kernels.h"
#include "lumi/filter_linear.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// N elements of T as lanes of the accumulator (loaded, widened, converted).
template <class DA, class T>
HWY_INLINE hn::Vec<DA> loadAs(DA da, const T* HWY_RESTRICT p) {
  using A = hn::TFromD<DA>;
  if constexpr (std::is_same_v<A, T>) {
    return hn::LoadU(da, p);
  } else {
    const hn::RebindToSigned<DA> di;
    const hn::Rebind<T, DA> dt;
    const auto v = hn::PromoteTo(di, hn::LoadU(dt, p));
    if constexpr (std::is_same_v<A, float>) return hn::ConvertTo(da, v);
    else return v;
  }
}

// Sums to pixels: the vector form of linear::finish (the caller holds round-to-nearest).
template <class T, class DA>
HWY_INLINE hn::Vec<hn::Rebind<T, DA>> finishVec(DA da, hn::Vec<DA> sum, const linear::Scale& sc) {
  using A = hn::TFromD<DA>;
  const hn::Rebind<T, DA> dt;
  const hn::Rebind<float, DA> df;
  const hn::Rebind<int32_t, DA> di;
  // Integers are clamped before they narrow: some targets' 32-to-8-bit narrowing passes through
  // a signed 16-bit step that does not saturate large sums correctly.
  auto narrow = [&](auto v) {
    v = hn::Max(v, hn::Set(di, static_cast<int32_t>(linear::lowOf<T>())));
    return hn::DemoteTo(dt, hn::Min(v, hn::Set(di, static_cast<int32_t>(linear::highOf<T>()))));
  };
  auto roundClamp = [&](auto v) {
    v = hn::Max(v, hn::Set(df, linear::lowOf<T>()));
    v = hn::Min(v, hn::Set(df, linear::highOf<T>()));
    return hn::DemoteTo(dt, hn::NearestInt(v));
  };
  if constexpr (std::is_same_v<T, Lum32f>) {
    return sum;
  } else if constexpr (std::is_same_v<A, float>) {
    return roundClamp(sum);
  } else {
    switch (sc.mode) {
      case linear::Mode::kShift: {
        // (S + 2^(k-1)) >> k without the addition that could overflow: the bit below the
        // shifted-out part rounds. An 8u sum below 1 gives at most 0 and saturates to 0.
        const auto half = hn::And(hn::ShiftRightSame(sum, sc.k - 1), hn::Set(di, 1));
        return narrow(hn::Add(hn::ShiftRightSame(sum, sc.k), half));
      }
      case linear::Mode::kMultiply:
        return roundClamp(hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, sc.r)));
      default:
        return narrow(sum);
    }
  }
}

template <class DA>
HWY_INLINE hn::Vec<DA> mulAdd(hn::Vec<DA> acc, hn::Vec<DA> tap, hn::Vec<DA> x) {
  return hn::Add(acc, hn::Mul(tap, x));  // rounded product, then the sum: as the plain kernel
}

// One destination row: U vectors of elements at a time share each tap, then single vectors,
// then the plain kernel for the last elements.
template <class T, class K, class L>
void linearRow(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst, int width,
               const K* HWY_RESTRICT kernel, int kw, int kh, const linear::Scale& sc) {
  using A = linear::Acc<K>;
  constexpr int kCh = L::kCh, U = 8;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<A> da;
  const hn::Rebind<T, decltype(da)> dt;
  using V = hn::Vec<decltype(da)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  const K* last = kernel + (static_cast<std::ptrdiff_t>(kw) * kh - 1);
  const auto colour = colourLanes(dt);
  std::ptrdiff_t e = 0;
  // Eight named sums (they stay in registers) hide the latency of each sum's chain of additions.
  for (; e + U * N <= n; e += U * N) {
    V a0 = hn::Zero(da), a1 = a0, a2 = a0, a3 = a0, a4 = a0, a5 = a0, a6 = a0, a7 = a0;
    const K* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const T* p = rowAt(win, srcStep, ii) + e;
      for (int jj = 0; jj < kw; ++jj, --tap, p += kCh) {
        const V t = hn::Set(da, static_cast<A>(*tap));
        a0 = mulAdd<decltype(da)>(a0, t, loadAs(da, p));
        a1 = mulAdd<decltype(da)>(a1, t, loadAs(da, p + N));
        a2 = mulAdd<decltype(da)>(a2, t, loadAs(da, p + 2 * N));
        a3 = mulAdd<decltype(da)>(a3, t, loadAs(da, p + 3 * N));
        a4 = mulAdd<decltype(da)>(a4, t, loadAs(da, p + 4 * N));
        a5 = mulAdd<decltype(da)>(a5, t, loadAs(da, p + 5 * N));
        a6 = mulAdd<decltype(da)>(a6, t, loadAs(da, p + 6 * N));
        a7 = mulAdd<decltype(da)>(a7, t, loadAs(da, p + 7 * N));
      }
    }
    T* q = dst + e;
    storeColour(dt, finishVec<T>(da, a0, sc), q, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a1, sc), q + N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a2, sc), q + 2 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a3, sc), q + 3 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a4, sc), q + 4 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a5, sc), q + 5 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a6, sc), q + 6 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a7, sc), q + 7 * N, kAlpha, colour);
  }
  for (; e + N <= n; e += N) {
    V acc = hn::Zero(da);
    const K* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const T* p = rowAt(win, srcStep, ii) + e;
      for (int jj = 0; jj < kw; ++jj, --tap, p += kCh)
        acc = mulAdd<decltype(da)>(acc, hn::Set(da, static_cast<A>(*tap)), loadAs(da, p));
    }
    storeColour(dt, finishVec<T>(da, acc, sc), dst + e, kAlpha, colour);
  }
  linear::linearFrom<T, K, L>(win, srcStep, dst, e, n, kernel, kw, kh, sc);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace linear {
namespace {

template <class T, class K, class L>
LinearRowFn<T, K> pickLinearRow() {
  using Fn = LinearRowFn<T, K>;
  LUMI_SIMD_TABLE(Fn, table, linearRow<T, K, L>);
  return pick(table, static_cast<Fn>(&linearRowScalar<T, K, L>));
}

// Pixels x taps from which the rows are shared among threads.
constexpr long long kForkWork = 1LL << 19;

// Destination row y reads source rows y - (kh - 1 - ay) .. y + ay and, in each, pixels
// x - (kw - 1 - ax) .. x + ax. One band of rows per thread.
template <class T, class K, class L>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const K* kernel,
              LumiSize ks, LumiPoint anchor, const Scale& sc) {
  const LinearRowFn<T, K> rowFn = pickLinearRow<T, K, L>();
  const std::ptrdiff_t up = static_cast<std::ptrdiff_t>(ks.height) - 1 - anchor.y;
  const std::ptrdiff_t left = static_cast<std::ptrdiff_t>(ks.width) - 1 - anchor.x;
  const T* win = byteOffset(src, -up * srcStep) - left * L::kCh;
  const bool parallel = forkByWork(roi, static_cast<long long>(ks.width) * ks.height, kForkWork);
  forRows(roi.height, parallel, [&](int y0, int y1) {
    std::conditional_t<std::is_same_v<T, Lum32f>, int, NearestRounding> rounding{};
    (void)rounding;
    for (int y = y0; y < y1; ++y)
      rowFn(rowAt(win, srcStep, y), srcStep, rowAt(dst, dstStep, y), roi.width, kernel, ks.width,
            ks.height, sc);
  });
  return lumStatusOk;
}

// Checks in the family's order: pointers, sizes, divisor, steps (the source row holds the ROI
// and the kernel's extra width, the destination row the ROI; both in bytes).
template <class T, class K, class L>
LumStatus linearImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const K* kernel,
                     LumiSize ks, LumiPoint anchor, const int* divisor) {
  if (anyNull(src, dst, kernel)) return lumStatusNullPtrErr;
  if (badSize(roi) || ks.width < 1) return lumStatusSizeErr;
  if (ks.height < 1) return lumStatusSizeErr;
  if (divisor && *divisor == 0) return lumStatusFilterDivisorErr;
  const long long pixel = static_cast<long long>(L::kCh) * sizeof(T);
  if (srcStep < (static_cast<long long>(roi.width) + ks.width - 1) * pixel ||
      dstStep < static_cast<long long>(roi.width) * pixel)
    return lumStatusStepErr;
  Scale sc;
  if (divisor) sc = scaleOf(*divisor);
  else sc.mode = Mode::kFloat;
  return run<T, K, L>(src, srcStep, dst, dstStep, roi, kernel, ks, anchor, sc);
}

}  // namespace
}  // namespace linear
}  // namespace lumi

// 2-D kernels, with a divisor (integer) or without (32f).
#define LUMI_FILTER_LINEAR(NAME, T, L)                                                          \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor,          \
                          int divisor) {                                                         \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     kernelSize, anchor, &divisor);                              \
  }
#define LUMI_FILTER_LINEAR_F(NAME, T, L)                                                        \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor) {        \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,            \
                                   kernelSize, anchor, nullptr);                                 \
  }
// Row kernels: kernelSize x 1, anchored at (xAnchor, 0).
#define LUMI_FILTER_ROW(NAME, T, L)                                                             \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor) {     \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     LumiSize{kernelSize, 1}, LumiPoint{xAnchor, 0}, &divisor);  \
  }
#define LUMI_FILTER_ROW_F(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32f* pKernel, int kernelSize, int xAnchor) {                  \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,            \
                                   LumiSize{kernelSize, 1}, LumiPoint{xAnchor, 0}, nullptr);     \
  }
// Column kernels: 1 x kernelSize, anchored at (0, yAnchor); the source row holds the ROI only.
#define LUMI_FILTER_COLUMN(NAME, T, L)                                                          \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor) {     \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     LumiSize{1, kernelSize}, LumiPoint{0, yAnchor}, &divisor);  \
  }
#define LUMI_FILTER_COLUMN_F(NAME, T, L)                                                        \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32f* pKernel, int kernelSize, int yAnchor) {                  \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,            \
                                   LumiSize{1, kernelSize}, LumiPoint{0, yAnchor}, nullptr);     \
  }

using namespace lumi;
using namespace lumi::linear;

extern "C" {
LUMI_FILTER_LINEAR(lumiFilter_8u_C1R, Lum8u, C1)
LUMI_FILTER_LINEAR(lumiFilter_8u_C3R, Lum8u, C3)
LUMI_FILTER_LINEAR(lumiFilter_8u_C4R, Lum8u, C4)
LUMI_FILTER_LINEAR(lumiFilter_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_LINEAR(lumiFilter_16s_C1R, Lum16s, C1)
LUMI_FILTER_LINEAR(lumiFilter_16s_C3R, Lum16s, C3)
LUMI_FILTER_LINEAR(lumiFilter_16s_C4R, Lum16s, C4)
LUMI_FILTER_LINEAR(lumiFilter_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_LINEAR_F(lumiFilter_32f_C1R, Lum32f, C1)
LUMI_FILTER_LINEAR_F(lumiFilter_32f_C3R, Lum32f, C3)
LUMI_FILTER_LINEAR_F(lumiFilter_32f_C4R, Lum32f, C4)
LUMI_FILTER_LINEAR_F(lumiFilter_32f_AC4R, Lum32f, AC4)
LUMI_FILTER_LINEAR_F(lumiFilter32f_8u_C1R, Lum8u, C1)
LUMI_FILTER_LINEAR_F(lumiFilter32f_8u_C3R, Lum8u, C3)
LUMI_FILTER_LINEAR_F(lumiFilter32f_8u_C4R, Lum8u, C4)
LUMI_FILTER_LINEAR_F(lumiFilter32f_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_LINEAR_F(lumiFilter32f_16s_C1R, Lum16s, C1)
LUMI_FILTER_LINEAR_F(lumiFilter32f_16s_C3R, Lum16s, C3)
LUMI_FILTER_LINEAR_F(lumiFilter32f_16s_C4R, Lum16s, C4)
LUMI_FILTER_LINEAR_F(lumiFilter32f_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_ROW(lumiFilterRow_8u_C1R, Lum8u, C1)
LUMI_FILTER_ROW(lumiFilterRow_8u_C3R, Lum8u, C3)
LUMI_FILTER_ROW(lumiFilterRow_8u_C4R, Lum8u, C4)
LUMI_FILTER_ROW(lumiFilterRow_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_ROW(lumiFilterRow_16s_C1R, Lum16s, C1)
LUMI_FILTER_ROW(lumiFilterRow_16s_C3R, Lum16s, C3)
LUMI_FILTER_ROW(lumiFilterRow_16s_C4R, Lum16s, C4)
LUMI_FILTER_ROW(lumiFilterRow_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_ROW_F(lumiFilterRow_32f_C1R, Lum32f, C1)
LUMI_FILTER_ROW_F(lumiFilterRow_32f_C3R, Lum32f, C3)
LUMI_FILTER_ROW_F(lumiFilterRow_32f_C4R, Lum32f, C4)
LUMI_FILTER_ROW_F(lumiFilterRow_32f_AC4R, Lum32f, AC4)
LUMI_FILTER_ROW_F(lumiFilterRow32f_8u_C1R, Lum8u, C1)
LUMI_FILTER_ROW_F(lumiFilterRow32f_8u_C3R, Lum8u, C3)
LUMI_FILTER_ROW_F(lumiFilterRow32f_8u_C4R, Lum8u, C4)
LUMI_FILTER_ROW_F(lumiFilterRow32f_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_ROW_F(lumiFilterRow32f_16s_C1R, Lum16s, C1)
LUMI_FILTER_ROW_F(lumiFilterRow32f_16s_C3R, Lum16s, C3)
LUMI_FILTER_ROW_F(lumiFilterRow32f_16s_C4R, Lum16s, C4)
LUMI_FILTER_ROW_F(lumiFilterRow32f_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_COLUMN(lumiFilterColumn_8u_C1R, Lum8u, C1)
LUMI_FILTER_COLUMN(lumiFilterColumn_8u_C3R, Lum8u, C3)
LUMI_FILTER_COLUMN(lumiFilterColumn_8u_C4R, Lum8u, C4)
LUMI_FILTER_COLUMN(lumiFilterColumn_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_COLUMN(lumiFilterColumn_16s_C1R, Lum16s, C1)
LUMI_FILTER_COLUMN(lumiFilterColumn_16s_C3R, Lum16s, C3)
LUMI_FILTER_COLUMN(lumiFilterColumn_16s_C4R, Lum16s, C4)
LUMI_FILTER_COLUMN(lumiFilterColumn_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn_32f_C1R, Lum32f, C1)
LUMI_FILTER_COLUMN_F(lumiFilterColumn_32f_C3R, Lum32f, C3)
LUMI_FILTER_COLUMN_F(lumiFilterColumn_32f_C4R, Lum32f, C4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn_32f_AC4R, Lum32f, AC4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_8u_C1R, Lum8u, C1)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_8u_C3R, Lum8u, C3)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_8u_C4R, Lum8u, C4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_16s_C1R, Lum16s, C1)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_16s_C3R, Lum16s, C3)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_16s_C4R, Lum16s, C4)
LUMI_FILTER_COLUMN_F(lumiFilterColumn32f_16s_AC4R, Lum16s, AC4)
}
#endif  // HWY_ONCE
