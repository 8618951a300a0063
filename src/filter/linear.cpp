// General linear filters: a caller-supplied 2-D, row or column kernel applied mirrored, with
// integer kernels scaled by their divisor and 32f kernels summed in single precision. Row and
// column kernels are 2-D kernels of one row or one column, so every export runs the same code.
// The plain kernels and the scale record are in linear_kernels.h.
//
// Vector kernels, one destination row at a time:
//   - linearRow: one 32-bit lane per destination element (float, or integer products modulo
//     2^32), every tap in the definition's order;
//   - integer kernels whose taps all fit in 16 bits multiply-add two taps at once in 16-bit
//     pairs: linearRowPairs for one-channel rows of kernels at least two taps wide (neighbouring
//     taps of a kernel row), linearRowZip for the others (any two consecutive taps);
//   - 8u under kernels whose taps sum in magnitude to at most 128 (shift or no scale):
//     linearRowNarrow, whose 16-bit lanes hold every partial sum exactly;
//   - kernels of several rows on the one-lane route: linearTwoRows, two destination rows per
//     pass sharing each source vector.
// Each lane computes its element with the same operations in the same order as the plain kernel
// (a product rounded and then added, no fused multiply-add; integer sums modulo 2^32, where the
// order does not matter), so integer and float results alike equal the plain kernels' bit for
// bit: the tolerance is zero.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/linear.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "filter/linear_kernels.h"
#include "lumi/filter_linear.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Integer sums scaled as the divisor says, in 32-bit lanes (the caller holds round-to-nearest).
// The shift rounds halves up without an addition that could overflow: with q = S >> (k - 1),
// (S + 2^(k-1)) >> k = ceil(q / 2) = q - (q >> 1). Products of a multiply are clamped to T's
// range while still floats; the other results are left for a saturating narrowing.
template <class T, class DI>
HWY_INLINE hn::Vec<DI> scaleInt(DI di, hn::Vec<DI> sum, const linear::Scale& sc) {
  const hn::Rebind<float, DI> df;
  switch (sc.mode) {
    case linear::Mode::kShift: {
      const auto q = hn::ShiftRightSame(sum, sc.k - 1);
      return hn::Sub(q, hn::ShiftRightSame(q, 1));
    }
    case linear::Mode::kMultiply: {
      auto v = hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, sc.r));
      v = hn::Min(hn::Max(v, hn::Set(df, linear::lowOf<T>())), hn::Set(df, linear::highOf<T>()));
      return hn::NearestInt(v);
    }
    default:
      return sum;
  }
}

// scaleInt, then clamped to T's range. Integers are clamped before a narrowing that goes
// straight from 32 to 8 bits: some targets pass through a signed 16-bit step that does not
// saturate large sums correctly. (An 8u sum below 1 in shift mode gives at most 0, so 0.)
template <class T, class DI>
HWY_INLINE hn::Vec<DI> scaleClamp(DI di, hn::Vec<DI> sum, const linear::Scale& sc) {
  const auto lo = hn::Set(di, static_cast<int32_t>(linear::lowOf<T>()));
  const auto hi = hn::Set(di, static_cast<int32_t>(linear::highOf<T>()));
  return hn::Min(hn::Max(scaleInt<T>(di, sum, sc), lo), hi);
}

// Two vectors of scaled 32-bit results to one of 16-bit lanes, saturated: lanes in the order
// lo, hi within each 128-bit block (the x86 pack).
template <class T, class D16>
HWY_INLINE hn::Vec<D16> packScaled(D16 d16, hn::Vec<hn::Repartition<int32_t, D16>> lo,
                                   hn::Vec<hn::Repartition<int32_t, D16>> hi,
                                   const linear::Scale& sc) {
  const hn::Repartition<int32_t, D16> d32;
  return hn::ReorderDemote2To(d16, scaleInt<T>(d32, lo, sc), scaleInt<T>(d32, hi, sc));
}

// Sums to pixels: the vector form of linear::finish (the caller holds round-to-nearest).
template <class T, class DA>
HWY_INLINE hn::Vec<hn::Rebind<T, DA>> finishVec(DA da, hn::Vec<DA> sum, const linear::Scale& sc) {
  using A = hn::TFromD<DA>;
  const hn::Rebind<T, DA> dt;
  if constexpr (std::is_same_v<T, Lum32f>) {
    return sum;
  } else if constexpr (std::is_same_v<A, float>) {
    const hn::Rebind<float, DA> df;
    auto v =
        hn::Min(hn::Max(sum, hn::Set(df, linear::lowOf<T>())), hn::Set(df, linear::highOf<T>()));
    return hn::DemoteTo(dt, hn::NearestInt(v));
  } else {
    return hn::DemoteTo(dt, scaleClamp<T>(da, sum, sc));
  }
}

template <class DA>
HWY_INLINE hn::Vec<DA> mulAdd(hn::Vec<DA> acc, hn::Vec<DA> tap, hn::Vec<DA> x) {
  return hn::Add(acc, hn::Mul(tap, x));  // rounded product, then the sum: as the plain kernel
}

// One destination row from element e on: U vectors of elements at a time share each tap, then
// single vectors, then one pass that overlaps the previous; the plain kernel only finishes rows
// shorter than a vector.
template <class T, class K, class L>
HWY_INLINE void linearRowFrom(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst,
                              std::ptrdiff_t e, int width, const K* HWY_RESTRICT kernel, int kw,
                              int kh, const linear::Scale& sc) {
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
  auto pass = [&](std::ptrdiff_t at) {
    V acc = hn::Zero(da);
    const K* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const T* p = rowAt(win, srcStep, ii) + at;
      for (int jj = 0; jj < kw; ++jj, --tap, p += kCh)
        acc = mulAdd<decltype(da)>(acc, hn::Set(da, static_cast<A>(*tap)), loadAs(da, p));
    }
    storeColour(dt, finishVec<T>(da, acc, sc), dst + at, kAlpha, colour);
  };
  for (; e + N <= n; e += N) pass(e);
  // The last elements: one more pass ending at the row's end, over elements already written
  // (the same values again; a multiple of four lanes keeps AC4 pixels whole).
  if (e < n && n >= N) {
    pass(n - N);
    e = n;
  }
  linear::linearFrom<T, K, L>(win, srcStep, dst, e, n, kernel, kw, kh, sc);
}

template <class T, class K, class L>
void linearRow(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst, int width,
               const K* HWY_RESTRICT kernel, int kw, int kh, const linear::Scale& sc) {
  linearRowFrom<T, K, L>(win, srcStep, dst, 0, width, kernel, kw, kh, sc);
}

// Two destination rows (win and dst are those of the upper one): each source vector loaded once
// serves both, the upper row with kernel row ii and the lower with ii - 1, every sum still
// taking its taps in the definition's order. Four sums per row.
template <class T, class K, class L>
void linearTwoRows(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst, int dstStep,
                   int width, const K* HWY_RESTRICT kernel, int kw, int kh,
                   const linear::Scale& sc) {
  using A = linear::Acc<K>;
  constexpr int kCh = L::kCh, U = 4;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<A> da;
  const hn::Rebind<T, decltype(da)> dt;
  using V = hn::Vec<decltype(da)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(da));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  const std::ptrdiff_t taps = static_cast<std::ptrdiff_t>(kw) * kh;
  const auto colour = colourLanes(dt);
  T* dst2 = rowAt(dst, dstStep, 1);
  std::ptrdiff_t e = 0;
  for (; e + U * N <= n; e += U * N) {
    V a0 = hn::Zero(da), a1 = a0, a2 = a0, a3 = a0, b0 = a0, b1 = a0, b2 = a0, b3 = a0;
    // The two source rows the previous pass did not read come from memory: asked for a
    // kilobyte ahead (the others are still in cache). A prefetch past the rows never faults.
    const std::uintptr_t next0 =
        reinterpret_cast<std::uintptr_t>(rowAt(win, srcStep, kh - 1) + e) + 1024;
    const std::uintptr_t next1 =
        reinterpret_cast<std::uintptr_t>(rowAt(win, srcStep, kh) + e) + 1024;
    for (std::uintptr_t b = 0; b < U * N * sizeof(T); b += 64) {
      __builtin_prefetch(reinterpret_cast<const void*>(next0 + b));
      __builtin_prefetch(reinterpret_cast<const void*>(next1 + b));
    }
    for (int r = 0; r <= kh; ++r) {  // source row r: kernel row r of the upper, r - 1 of the lower
      const T* p = rowAt(win, srcStep, r) + e;
      const std::ptrdiff_t tapA = taps - 1 - static_cast<std::ptrdiff_t>(r) * kw;  // at jj = 0
      const std::ptrdiff_t tapB = tapA + kw;
      for (int jj = 0; jj < kw; ++jj, p += kCh) {
        const V x0 = loadAs(da, p), x1 = loadAs(da, p + N), x2 = loadAs(da, p + 2 * N),
                x3 = loadAs(da, p + 3 * N);
        if (r < kh) {
          const V t = hn::Set(da, static_cast<A>(kernel[tapA - jj]));
          a0 = mulAdd<decltype(da)>(a0, t, x0);
          a1 = mulAdd<decltype(da)>(a1, t, x1);
          a2 = mulAdd<decltype(da)>(a2, t, x2);
          a3 = mulAdd<decltype(da)>(a3, t, x3);
        }
        if (r > 0) {
          const V t = hn::Set(da, static_cast<A>(kernel[tapB - jj]));
          b0 = mulAdd<decltype(da)>(b0, t, x0);
          b1 = mulAdd<decltype(da)>(b1, t, x1);
          b2 = mulAdd<decltype(da)>(b2, t, x2);
          b3 = mulAdd<decltype(da)>(b3, t, x3);
        }
      }
    }
    storeColour(dt, finishVec<T>(da, a0, sc), dst + e, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a1, sc), dst + e + N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a2, sc), dst + e + 2 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, a3, sc), dst + e + 3 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, b0, sc), dst2 + e, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, b1, sc), dst2 + e + N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, b2, sc), dst2 + e + 2 * N, kAlpha, colour);
    storeColour(dt, finishVec<T>(da, b3, sc), dst2 + e + 3 * N, kAlpha, colour);
  }
  linearRowFrom<T, K, L>(win, srcStep, dst, e, width, kernel, kw, kh, sc);
  linearRowFrom<T, K, L>(rowAt(win, srcStep, 1), srcStep, dst2, e, width, kernel, kw, kh, sc);
}

// One-channel integer rows whose taps all fit in 16 bits: two neighbouring taps of a kernel row
// at once with one multiply-add of 16-bit pairs (pmaddwd: lane m of the 32-bit result is
// a[2m] b[2m] + a[2m+1] b[2m+1], exact modulo 2^32 as the plain kernel's sums). The source loaded
// at x + jj holds, in lanes 2m and 2m + 1, the pixels taps jj and jj + 1 take for the even
// destination pixel x + 2m; loaded one pixel later, for the odd one. Even and odd sums are
// scaled apart and interleaved back as 16-bit lanes. An odd kernel width pairs its last tap
// with a zero tap, whose pixel is the one just past the window: the vector passes stop one
// pixel early so that it is still a pixel of the row the caller supplies.
template <class T>
HWY_INLINE hn::Vec<hn::Repartition<int16_t, hn::ScalableTag<int32_t>>> load16(
    const T* HWY_RESTRICT p) {
  return loadAs(hn::Repartition<int16_t, hn::ScalableTag<int32_t>>(), p);
}

template <class T>
void linearRowPairs(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst, int width,
                    const int32_t* HWY_RESTRICT kernel, int kw, int kh, const linear::Scale& sc) {
  const hn::ScalableTag<int32_t> d32;
  const hn::Repartition<int16_t, decltype(d32)> d16;
  using V32 = hn::Vec<decltype(d32)>;
  using V16 = hn::Vec<decltype(d16)>;
  const std::ptrdiff_t M = static_cast<std::ptrdiff_t>(hn::Lanes(d16));  // pixels per pass
  const std::ptrdiff_t n = width, stop = n - (kw & 1);
  const int32_t* last = kernel + (static_cast<std::ptrdiff_t>(kw) * kh - 1);
  auto pairOf = [](const int32_t* tap, bool both) {  // taps jj (low half) and jj + 1 (high)
    const uint32_t a = static_cast<uint16_t>(tap[0]);
    const uint32_t b = both ? static_cast<uint16_t>(tap[-1]) : 0u;
    return static_cast<int32_t>(a | (b << 16));
  };
  // Packed, each 128-bit block holds four even then four odd pixels: one byte shuffle per
  // block interleaves them.
  const hn::Repartition<uint8_t, decltype(d16)> du8;
  HWY_ALIGN static constexpr uint8_t kEvenOdd[16] = {0, 1, 8,  9,  2, 3, 10, 11,
                                                     4, 5, 12, 13, 6, 7, 14, 15};
  const auto evenOdd = hn::LoadDup128(du8, kEvenOdd);
  auto store = [&](V32 even, V32 odd, T* q) {
    const V16 v = hn::BitCast(
        d16, hn::TableLookupBytes(hn::BitCast(du8, packScaled<T>(d16, even, odd, sc)), evenOdd));
    if constexpr (std::is_same_v<T, Lum8u>)
      hn::StoreU(hn::DemoteTo(hn::Rebind<uint8_t, decltype(d16)>(), v),
                 hn::Rebind<uint8_t, decltype(d16)>(), q);
    else
      hn::StoreU(v, d16, q);
  };
  std::ptrdiff_t e = 0;
  for (; e + 2 * M <= stop; e += 2 * M) {  // two passes of M pixels: four named sums
    V32 e0 = hn::Zero(d32), o0 = e0, e1 = e0, o1 = e0, s0 = e0, s1 = e0, s2 = e0, s3 = e0;
    const int32_t* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const T* p = rowAt(win, srcStep, ii) + e;
      for (int jj = 0; jj < kw; jj += 2, tap -= 2, p += 2) {
        const V16 k = hn::BitCast(d16, hn::Set(d32, pairOf(tap, jj + 1 < kw)));
        e0 = hn::ReorderWidenMulAccumulate(d32, load16(p), k, e0, s0);
        o0 = hn::ReorderWidenMulAccumulate(d32, load16(p + 1), k, o0, s1);
        e1 = hn::ReorderWidenMulAccumulate(d32, load16(p + M), k, e1, s2);
        o1 = hn::ReorderWidenMulAccumulate(d32, load16(p + M + 1), k, o1, s3);
      }
      tap += (kw & 1);  // the zero tap took no kernel element
    }
    store(e0, o0, dst + e);
    store(e1, o1, dst + e + M);
  }
  auto pass = [&](std::ptrdiff_t at) {
    V32 e0 = hn::Zero(d32), o0 = e0, s0 = e0, s1 = e0;
    const int32_t* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const T* p = rowAt(win, srcStep, ii) + at;
      for (int jj = 0; jj < kw; jj += 2, tap -= 2, p += 2) {
        const V16 k = hn::BitCast(d16, hn::Set(d32, pairOf(tap, jj + 1 < kw)));
        e0 = hn::ReorderWidenMulAccumulate(d32, load16(p), k, e0, s0);
        o0 = hn::ReorderWidenMulAccumulate(d32, load16(p + 1), k, o0, s1);
      }
      tap += (kw & 1);
    }
    store(e0, o0, dst + at);
  };
  for (; e + M <= stop; e += M) pass(e);
  if (e < stop && stop >= M) {  // one more pass ending at `stop`, over pixels already written
    pass(stop - M);
    e = stop;
  }
  linear::linearFrom<T, int32_t, C1>(win, srcStep, dst, e, n, kernel, kw, kh, sc);
}

// Integer rows of 16-bit taps in any layout, column kernels included: taps t and t + 1 of the
// definition's order (in the same kernel row or not) at once. Interleaving their two source
// vectors gives 16-bit pairs for the multiply-add; the x86 targets interleave and pack within
// each 128-bit block, so packing the sums of the lower and upper halves restores the order.
template <class T, class L>
void linearRowZip(const T* HWY_RESTRICT win, int srcStep, T* HWY_RESTRICT dst, int width,
                  const int32_t* HWY_RESTRICT kernel, int kw, int kh, const linear::Scale& sc) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<int32_t> d32;
  const hn::Repartition<int16_t, decltype(d32)> d16;
  const hn::Rebind<T, decltype(d16)> dt;
  using V32 = hn::Vec<decltype(d32)>;
  using V16 = hn::Vec<decltype(d16)>;
  const std::ptrdiff_t M = static_cast<std::ptrdiff_t>(hn::Lanes(d16));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  const long long taps = static_cast<long long>(kw) * kh;
  const int32_t* last = kernel + (taps - 1);
  const auto colour = colourLanes(dt);
  // U (1 or 2) blocks of M elements share each tap's bookkeeping.
  auto pass = [&](std::ptrdiff_t at, auto blocks) {
    constexpr int U = decltype(blocks)::value;
    V32 lo0 = hn::Zero(d32), hi0 = lo0, lo1 = lo0, hi1 = lo0, s = lo0;
    int ii = 0, jj = 0;
    const T* p = win + at;
    auto next = [&]() {  // the source of the following tap
      const T* q = p;
      if (++jj == kw) {
        jj = 0;
        p = rowAt(win, srcStep, ++ii) + at;
      } else {
        p += kCh;
      }
      return q;
    };
    const int32_t* tap = last;
    for (long long t = 0; t < taps; t += 2, tap -= 2) {
      const bool both = t + 1 < taps;
      const T* pa = next();
      const T* pb = both ? next() : pa;
      const uint32_t pair =
          static_cast<uint16_t>(tap[0]) |
          (both ? static_cast<uint32_t>(static_cast<uint16_t>(tap[-1])) << 16 : 0u);
      const V16 k = hn::BitCast(d16, hn::Set(d32, static_cast<int32_t>(pair)));
      const V16 a0 = load16(pa), b0 = load16(pb);
      lo0 = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveLower(d16, a0, b0), k, lo0, s);
      hi0 = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveUpper(d16, a0, b0), k, hi0, s);
      if (U == 2) {
        const V16 a1 = load16(pa + M), b1 = load16(pb + M);
        lo1 = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveLower(d16, a1, b1), k, lo1, s);
        hi1 = hn::ReorderWidenMulAccumulate(d32, hn::InterleaveUpper(d16, a1, b1), k, hi1, s);
      }
    }
    auto out = [&](V32 lo, V32 hi, T* q) {
      const V16 v = packScaled<T>(d16, lo, hi, sc);
      if constexpr (std::is_same_v<T, Lum8u>)
        storeColour(dt, hn::DemoteTo(dt, v), q, kAlpha, colour);
      else
        storeColour(dt, v, q, kAlpha, colour);
    };
    out(lo0, hi0, dst + at);
    if (U == 2) out(lo1, hi1, dst + at + M);
  };
  using One = std::integral_constant<int, 1>;
  using Two = std::integral_constant<int, 2>;
  std::ptrdiff_t e = 0;
  for (; e + 2 * M <= n; e += 2 * M) pass(e, Two());
  for (; e + M <= n; e += M) pass(e, One());
  if (e < n && n >= M) {  // one more pass ending at the row's end, over elements already written
    pass(n - M, One());
    e = n;
  }
  linear::linearFrom<T, int32_t, L>(win, srcStep, dst, e, n, kernel, kw, kh, sc);
}

// 8u rows under integer kernels whose taps sum in magnitude to at most 128, in shift or no-scale
// mode: every partial sum lies within 255 x 128 = 32640, so 16-bit lanes hold the exact sums and
// products (each tap at most 128 in magnitude) of the one-lane-per-element route.
template <class L>
void linearRowNarrow(const Lum8u* HWY_RESTRICT win, int srcStep, Lum8u* HWY_RESTRICT dst, int width,
                     const int32_t* HWY_RESTRICT kernel, int kw, int kh, const linear::Scale& sc) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<int16_t> d16;
  const hn::Rebind<uint8_t, decltype(d16)> d8;
  using V = hn::Vec<decltype(d16)>;
  const std::ptrdiff_t M = static_cast<std::ptrdiff_t>(hn::Lanes(d16));
  const std::ptrdiff_t n = elemsOf(width, kCh);
  const int32_t* last = kernel + (static_cast<std::ptrdiff_t>(kw) * kh - 1);
  const auto colour = colourLanes(d8);
  const int k1 = sc.mode == linear::Mode::kShift ? (sc.k - 1 < 15 ? sc.k - 1 : 15) : 0;
  auto store = [&](V sum, Lum8u* q) {
    if (sc.mode == linear::Mode::kShift) {  // halves up: q - (q >> 1) with q = S >> (k - 1)
      sum = hn::ShiftRightSame(sum, k1);    // |S| < 2^15: larger shifts give the same 0 or -1
      sum = hn::Sub(sum, hn::ShiftRightSame(sum, 1));
    }
    storeColour(d8, hn::DemoteTo(d8, sum), q, kAlpha, colour);
  };
  std::ptrdiff_t e = 0;
  for (; e + 4 * M <= n; e += 4 * M) {
    V a0 = hn::Zero(d16), a1 = a0, a2 = a0, a3 = a0;
    const int32_t* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const Lum8u* p = rowAt(win, srcStep, ii) + e;
      for (int jj = 0; jj < kw; ++jj, --tap, p += kCh) {
        const V t = hn::Set(d16, static_cast<int16_t>(*tap));
        a0 = hn::Add(a0, hn::Mul(t, loadAs(d16, p)));
        a1 = hn::Add(a1, hn::Mul(t, loadAs(d16, p + M)));
        a2 = hn::Add(a2, hn::Mul(t, loadAs(d16, p + 2 * M)));
        a3 = hn::Add(a3, hn::Mul(t, loadAs(d16, p + 3 * M)));
      }
    }
    store(a0, dst + e);
    store(a1, dst + e + M);
    store(a2, dst + e + 2 * M);
    store(a3, dst + e + 3 * M);
  }
  auto pass = [&](std::ptrdiff_t at) {
    V acc = hn::Zero(d16);
    const int32_t* tap = last;
    for (int ii = 0; ii < kh; ++ii) {
      const Lum8u* p = rowAt(win, srcStep, ii) + at;
      for (int jj = 0; jj < kw; ++jj, --tap, p += kCh)
        acc = hn::Add(acc, hn::Mul(hn::Set(d16, static_cast<int16_t>(*tap)), loadAs(d16, p)));
    }
    store(acc, dst + at);
  };
  for (; e + M <= n; e += M) pass(e);
  if (e < n && n >= M) {  // one more pass ending at the row's end, over elements already written
    pass(n - M);
    e = n;
  }
  linear::linearFrom<Lum8u, int32_t, L>(win, srcStep, dst, e, n, kernel, kw, kh, sc);
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
template <class T, class K>
using TwoRowsFn = void (*)(const T*, int, T*, int, int, const K*, int, int, const Scale&);
template <class T, class K, class L>
void linearTwoRowsScalar(const T* win, int srcStep, T* dst, int dstStep, int width, const K* kernel,
                         int kw, int kh, const Scale& sc) {
  linearRowScalar<T, K, L>(win, srcStep, dst, width, kernel, kw, kh, sc);
  linearRowScalar<T, K, L>(rowAt(win, srcStep, 1), srcStep, rowAt(dst, dstStep, 1), width, kernel,
                           kw, kh, sc);
}
template <class T, class K, class L>
TwoRowsFn<T, K> pickLinearTwoRows() {
  using Fn = TwoRowsFn<T, K>;
  LUMI_SIMD_TABLE(Fn, table, linearTwoRows<T, K, L>);
  return pick(table, static_cast<Fn>(&linearTwoRowsScalar<T, K, L>));
}
// One-channel integer rows of 16-bit taps: two taps per multiply-add.
template <class T>
LinearRowFn<T, int32_t> pickLinearRowPairs() {
  using Fn = LinearRowFn<T, int32_t>;
  LUMI_SIMD_TABLE(Fn, table, linearRowPairs<T>);
  return pick(table, static_cast<Fn>(&linearRowScalar<T, int32_t, C1>));
}

template <class T, class L>
LinearRowFn<T, int32_t> pickLinearRowZip() {
  using Fn = LinearRowFn<T, int32_t>;
  LUMI_SIMD_TABLE(Fn, table, linearRowZip<T, L>);
  return pick(table, static_cast<Fn>(&linearRowScalar<T, int32_t, L>));
}

template <class L>
LinearRowFn<Lum8u, int32_t> pickLinearRowNarrow() {
  using Fn = LinearRowFn<Lum8u, int32_t>;
  LUMI_SIMD_TABLE(Fn, table, linearRowNarrow<L>);
  return pick(table, static_cast<Fn>(&linearRowScalar<Lum8u, int32_t, L>));
}

inline long long sumOfMagnitudes(const int32_t* k, long long count) {
  long long s = 0;
  for (long long i = 0; i < count; ++i) s += k[i] < 0 ? -static_cast<long long>(k[i]) : k[i];
  return s;
}

inline bool tapsFit16(const int32_t* k, long long count) {
  for (long long i = 0; i < count; ++i)
    if (k[i] < -32768 || k[i] > 32767) return false;
  return true;
}

// Pixels x taps from which the rows are shared among threads.
constexpr long long kForkWork = 1LL << 19;

// Destination row y reads source rows y - (kh - 1 - ay) .. y + ay and, in each, pixels
// x - (kw - 1 - ax) .. x + ax. One band of rows per thread.
template <class T, class K, class L>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const K* kernel,
              LumiSize ks, LumiPoint anchor, const Scale& sc) {
  LinearRowFn<T, K> rowFn = pickLinearRow<T, K, L>();
  // Kernels of one row share no source rows between destination rows.
  TwoRowsFn<T, K> twoRows = ks.height > 1 ? pickLinearTwoRows<T, K, L>() : nullptr;
  if constexpr (std::is_same_v<K, int32_t>) {
    if (tapsFit16(kernel, static_cast<long long>(ks.width) * ks.height)) {
      if (L::kCh == 1 && ks.width >= 2)
        rowFn = pickLinearRowPairs<T>();
      else
        rowFn = pickLinearRowZip<T, L>();
      twoRows = nullptr;
    }
    if constexpr (std::is_same_v<T, Lum8u>) {
      if (sc.mode != Mode::kMultiply &&
          sumOfMagnitudes(kernel, static_cast<long long>(ks.width) * ks.height) <= 128) {
        rowFn = pickLinearRowNarrow<L>();
        twoRows = nullptr;
      }
    }
  }
  const std::ptrdiff_t up = static_cast<std::ptrdiff_t>(ks.height) - 1 - anchor.y;
  const std::ptrdiff_t left = static_cast<std::ptrdiff_t>(ks.width) - 1 - anchor.x;
  const T* win = byteOffset(src, -up * srcStep) - left * L::kCh;
  const bool parallel = forkByWork(roi, static_cast<long long>(ks.width) * ks.height, kForkWork);
  forRows(roi.height, parallel, [&](int y0, int y1) {
    std::conditional_t<std::is_same_v<T, Lum32f>, int, NearestRounding> rounding{};
    (void)rounding;
    int y = y0;
    if (twoRows) {
      for (; y + 1 < y1; y += 2)
        twoRows(rowAt(win, srcStep, y), srcStep, rowAt(dst, dstStep, y), dstStep, roi.width, kernel,
                ks.width, ks.height, sc);
    }
    for (; y < y1; ++y)
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
  if (divisor)
    sc = scaleOf(*divisor);
  else
    sc.mode = Mode::kFloat;
  return run<T, K, L>(src, srcStep, dst, dstStep, roi, kernel, ks, anchor, sc);
}

}  // namespace
}  // namespace linear
}  // namespace lumi

// 2-D kernels, with a divisor (integer) or without (32f).
#define LUMI_FILTER_LINEAR(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, LumiSize kernelSize, LumiPoint anchor,          \
                          int divisor) {                                                         \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     kernelSize, anchor, &divisor);                              \
  }
#define LUMI_FILTER_LINEAR_F(NAME, T, L)                                                          \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize,  \
                          const Lum32f* pKernel, LumiSize kernelSize, LumiPoint anchor) {         \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel, kernelSize, \
                                   anchor, nullptr);                                              \
  }
// Row kernels: kernelSize x 1, anchored at (xAnchor, 0).
#define LUMI_FILTER_ROW(NAME, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, int kernelSize, int xAnchor, int divisor) {     \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     LumiSize{kernelSize, 1}, LumiPoint{xAnchor, 0}, &divisor);  \
  }
#define LUMI_FILTER_ROW_F(NAME, T, L)                                                            \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32f* pKernel, int kernelSize, int xAnchor) {                  \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,            \
                                   LumiSize{kernelSize, 1}, LumiPoint{xAnchor, 0}, nullptr);     \
  }
// Column kernels: 1 x kernelSize, anchored at (0, yAnchor); the source row holds the ROI only.
#define LUMI_FILTER_COLUMN(NAME, T, L)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32s* pKernel, int kernelSize, int yAnchor, int divisor) {     \
    return linearImpl<T, int32_t, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,          \
                                     LumiSize{1, kernelSize}, LumiPoint{0, yAnchor}, &divisor);  \
  }
#define LUMI_FILTER_COLUMN_F(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          const Lum32f* pKernel, int kernelSize, int yAnchor) {                  \
    return linearImpl<T, float, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pKernel,            \
                                   LumiSize{1, kernelSize}, LumiPoint{0, yAnchor}, nullptr);     \
  }

using namespace lumi;
using namespace lumi::linear;

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
#endif  // HWY_ONCE
