// Grey-level erosion (minimum) and dilation (maximum) over the 3x3 square or over a
// structuring element given as an 8u mask with an anchor.
//
// The element is split into its columns, and columns that hold the same set of rows share one
// pattern. For each destination row, the source rows of every pattern are first reduced into
// one row of the pattern (vertical pass, over the columns its columns reach); the destination
// row is then the extremum of the pattern rows, each shifted to its columns (horizontal pass).
// A full k x k square so costs 2k reads per pixel instead of k^2, fewer still as two
// destination rows reduce the k - 1 source rows they share once. The 3x3 functions are the
// full 3x3 element anchored at its centre. Both passes are the element-wise extremum of n rows.
//
// Results are exact for every type (no tolerance applies to 32f): values are selected, never
// computed. Of equal values the last in the plan's order survives whatever the grouping, and
// the vector and scalar kernels take the same operands in the same order, so all paths agree
// bit for bit, even on which of +0 and -0 a tie keeps. (A NaN is passed over by the next
// comparison, so where it shows depends on the grouping: NaN sources give no defined result.)
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/morphology.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/halo.h"
#include "core/simd.h"
#include "lumi/morphology.h"

// The scalar kernel, once (this file is compiled once per target).
#ifndef LUMI_FILTER_MORPHOLOGY_SCALAR_
#define LUMI_FILTER_MORPHOLOGY_SCALAR_
namespace lumi {
namespace morph {

// out[e] = extremum over k of rows[k][e] for e in [from, elems); with kAlpha every fourth
// element (AC4 alpha) is left as it was.
template <class T, bool kMax, bool kAlpha>
inline void extremeRowsFrom(const T* const* rows, int n, T* out, std::ptrdiff_t from,
                            std::ptrdiff_t elems) {
  for (std::ptrdiff_t e = from; e < elems; ++e) {
    if (kAlpha && (e & 3) == 3) continue;
    T acc = rows[0][e];
    for (int k = 1; k < n; ++k) acc = extreme<kMax>(acc, rows[k][e]);
    out[e] = acc;
  }
}

// Two consecutive rows of one pattern whose row offsets are consecutive: outA[e] is the
// extremum of rows[0..n-1], outB[e] of rows[1..n], and the n - 1 rows they share are reduced
// once. The extremum keeps the last of equal values whatever the grouping, so both equal what
// extremeRowsFrom gives for their rows.
template <class T, bool kMax>
inline void extremeRowPairFrom(const T* const* rows, int n, T* outA, T* outB, std::ptrdiff_t from,
                               std::ptrdiff_t elems) {
  for (std::ptrdiff_t e = from; e < elems; ++e) {
    T m = rows[1][e];
    for (int k = 2; k < n; ++k) m = extreme<kMax>(m, rows[k][e]);
    outA[e] = extreme<kMax>(rows[0][e], m);
    outB[e] = extreme<kMax>(m, rows[n][e]);
  }
}

}  // namespace morph
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

template <bool kMax, class V>
HWY_INLINE V extremeVec(V acc, V v) {
  if constexpr (kMax)
    return hn::Max(acc, v);
  else
    return hn::Min(acc, v);
}

// The extremum of n rows, four vectors at a time; the last partial vector is redone as a whole
// vector ending at the row's end (out never overlaps the rows it reads).
template <class T, bool kMax, bool kAlpha>
void extremeRows(const T* const* HWY_RESTRICT rows, int n, T* HWY_RESTRICT out,
                 std::ptrdiff_t elems) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const auto colour = colourLanes(d);
  std::ptrdiff_t e = 0;
  for (; e + 4 * N <= elems; e += 4 * N) {
    const T* r = rows[0] + e;
    V a0 = hn::LoadU(d, r), a1 = hn::LoadU(d, r + N), a2 = hn::LoadU(d, r + 2 * N),
      a3 = hn::LoadU(d, r + 3 * N);
    for (int k = 1; k < n; ++k) {
      r = rows[k] + e;
      a0 = extremeVec<kMax>(a0, hn::LoadU(d, r));
      a1 = extremeVec<kMax>(a1, hn::LoadU(d, r + N));
      a2 = extremeVec<kMax>(a2, hn::LoadU(d, r + 2 * N));
      a3 = extremeVec<kMax>(a3, hn::LoadU(d, r + 3 * N));
    }
    storeColour(d, a0, out + e, kAlpha, colour);
    storeColour(d, a1, out + e + N, kAlpha, colour);
    storeColour(d, a2, out + e + 2 * N, kAlpha, colour);
    storeColour(d, a3, out + e + 3 * N, kAlpha, colour);
  }
  if (e < elems && elems >= N) {
    for (;;) {
      if (e + N > elems) e = elems - N;  // a pixel boundary: N and elems are multiples of 4
      V a = hn::LoadU(d, rows[0] + e);
      for (int k = 1; k < n; ++k) a = extremeVec<kMax>(a, hn::LoadU(d, rows[k] + e));
      storeColour(d, a, out + e, kAlpha, colour);
      e += N;
      if (e >= elems) break;
    }
  }
  morph::extremeRowsFrom<T, kMax, kAlpha>(rows, n, out, e, elems);
}

template <class T, bool kMax>
void extremeRowPair(const T* const* HWY_RESTRICT rows, int n, T* HWY_RESTRICT outA,
                    T* HWY_RESTRICT outB, std::ptrdiff_t elems) {
  const hn::ScalableTag<T> d;
  using V = hn::Vec<decltype(d)>;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  std::ptrdiff_t e = 0;
  for (; e + 2 * N <= elems; e += 2 * N) {
    V m0 = hn::LoadU(d, rows[1] + e), m1 = hn::LoadU(d, rows[1] + e + N);
    for (int k = 2; k < n; ++k) {
      m0 = extremeVec<kMax>(m0, hn::LoadU(d, rows[k] + e));
      m1 = extremeVec<kMax>(m1, hn::LoadU(d, rows[k] + e + N));
    }
    hn::StoreU(extremeVec<kMax>(hn::LoadU(d, rows[0] + e), m0), d, outA + e);
    hn::StoreU(extremeVec<kMax>(hn::LoadU(d, rows[0] + e + N), m1), d, outA + e + N);
    hn::StoreU(extremeVec<kMax>(m0, hn::LoadU(d, rows[n] + e)), d, outB + e);
    hn::StoreU(extremeVec<kMax>(m1, hn::LoadU(d, rows[n] + e + N)), d, outB + e + N);
  }
  if (e < elems && elems >= N) {
    for (;;) {
      if (e + N > elems) e = elems - N;
      V m = hn::LoadU(d, rows[1] + e);
      for (int k = 2; k < n; ++k) m = extremeVec<kMax>(m, hn::LoadU(d, rows[k] + e));
      hn::StoreU(extremeVec<kMax>(hn::LoadU(d, rows[0] + e), m), d, outA + e);
      hn::StoreU(extremeVec<kMax>(m, hn::LoadU(d, rows[n] + e)), d, outB + e);
      e += N;
      if (e >= elems) break;
    }
  }
  morph::extremeRowPairFrom<T, kMax>(rows, n, outA, outB, e, elems);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace morph {
namespace {

template <class T>
using ExtremeRowsFn = void (*)(const T* const*, int, T*, std::ptrdiff_t);

template <class T, bool kMax, bool kAlpha>
void extremeRowsScalar(const T* const* rows, int n, T* out, std::ptrdiff_t elems) {
  extremeRowsFrom<T, kMax, kAlpha>(rows, n, out, 0, elems);
}

template <class T, bool kMax, bool kAlpha>
ExtremeRowsFn<T> pickExtremeRows() {
  LUMI_SIMD_TABLE(ExtremeRowsFn<T>, table, extremeRows<T, kMax, kAlpha>);
  return pick(table, &extremeRowsScalar<T, kMax, kAlpha>);
}

template <class T>
using ExtremeRowPairFn = void (*)(const T* const*, int, T*, T*, std::ptrdiff_t);

template <class T, bool kMax>
void extremeRowPairScalar(const T* const* rows, int n, T* outA, T* outB, std::ptrdiff_t elems) {
  extremeRowPairFrom<T, kMax>(rows, n, outA, outB, 0, elems);
}

template <class T, bool kMax>
ExtremeRowPairFn<T> pickExtremeRowPair() {
  LUMI_SIMD_TABLE(ExtremeRowPairFn<T>, table, extremeRowPair<T, kMax>);
  return pick(table, &extremeRowPairScalar<T, kMax>);
}

// ---- the structuring element as column patterns ------------------------------------------------
// Offsets are relative to the anchor: row di = i - anchor.y, column dj = j - anchor.x.
struct Plan {
  int patterns = 0, columns = 0;
  const int* rowStart = nullptr;   // per pattern: first of its row offsets in rowOff
  const int* rowCount = nullptr;   // per pattern: how many
  const int* rowOff = nullptr;     // row offsets, grouped by pattern
  const int* lo = nullptr;         // per pattern: its first and last column offset
  const int* hi = nullptr;
  const int* colPattern = nullptr; // per participating column: its pattern and column offset
  const int* colOff = nullptr;
  int maxTaps = 0;                 // the most rows one pass reduces
  int taps = 0;                    // reads per destination pixel over both passes
  int top = 0, bottom = 0, left = 0, right = 0;  // reach of the element around the anchor
};

// Small elements keep their offset lists here; larger ones allocate.
constexpr int kStackInts = 512;

// The offset lists of an element, in the caller's stack buffer or an allocated one.
class PlanStore {
 public:
  PlanStore() = default;
  PlanStore(const PlanStore&) = delete;
  PlanStore& operator=(const PlanStore&) = delete;
  ~PlanStore() { lumsFree(heap_); }

  // Builds the plan of a validated mask with at least one non-zero byte; false when the
  // offset lists cannot be allocated.
  bool build(const Lum8u* mask, LumiSize ms, LumiPoint anchor, std::ptrdiff_t nonZero) {
    const long long need = nonZero + 6LL * ms.width;
    int* p = stack_;
    if (need > kStackInts) {
      heap_ = need > INT_MAX ? nullptr : lumsMalloc_32s(static_cast<int>(need));
      if (heap_ == nullptr) return false;
      p = heap_;
    }
    int* rowOff = p;
    int* rowStart = rowOff + nonZero;
    int* rowCount = rowStart + ms.width;
    int* lo = rowCount + ms.width;
    int* hi = lo + ms.width;
    int* colPattern = hi + ms.width;
    int* colOff = colPattern + ms.width;
    int patterns = 0, columns = 0, maxTaps = 0, taps = 0;
    std::ptrdiff_t used = 0;
    for (int j = 0; j < ms.width; ++j) {
      int n = 0;  // the column's rows, gathered after the patterns so far
      for (int i = 0; i < ms.height; ++i)
        if (mask[static_cast<std::ptrdiff_t>(i) * ms.width + j]) rowOff[used + n++] = i - anchor.y;
      if (n == 0) continue;
      int q = 0;
      while (q < patterns && !(rowCount[q] == n && std::memcmp(rowOff + rowStart[q], rowOff + used,
                                                               sizeof(int) * n) == 0))
        ++q;
      if (q == patterns) {  // a new pattern keeps the rows just gathered
        rowStart[q] = static_cast<int>(used);
        rowCount[q] = n;
        lo[q] = j - anchor.x;
        used += n;
        ++patterns;
        if (n > 1) taps += n;
        maxTaps = n > maxTaps ? n : maxTaps;
      }
      hi[q] = j - anchor.x;
      colPattern[columns] = q;
      colOff[columns] = j - anchor.x;
      ++columns;
    }
    plan_.patterns = patterns;
    plan_.columns = columns;
    plan_.rowStart = rowStart;
    plan_.rowCount = rowCount;
    plan_.rowOff = rowOff;
    plan_.lo = lo;
    plan_.hi = hi;
    plan_.colPattern = colPattern;
    plan_.colOff = colOff;
    plan_.maxTaps = columns > maxTaps ? columns : maxTaps;
    plan_.taps = taps + columns;
    plan_.top = anchor.y;
    plan_.bottom = ms.height - 1 - anchor.y;
    plan_.left = anchor.x;
    plan_.right = ms.width - 1 - anchor.x;
    return true;
  }
  const Plan& plan() const { return plan_; }

 private:
  int stack_[kStackInts];
  int* heap_ = nullptr;
  Plan plan_;
};

// Rows go to threads when pixels x reads reach this.
constexpr long long kForkWork = 1LL << 20;

inline std::size_t align64(std::size_t n) { return (n + 63) & ~static_cast<std::size_t>(63); }

// Walks the destination rows with the plan. Scratch per band: the halo copies (in place), the
// row pointers of one pass and the pattern rows.
template <class T, class L, bool kMax>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const Plan& plan,
              bool inPlace) {
  constexpr int kCh = L::kCh;
  const ImageView<const T> sv = viewOf<L>(src, srcStep, roi);
  const auto vertical = pickExtremeRows<T, kMax, false>();
  const auto verticalPair = pickExtremeRowPair<T, kMax>();
  const auto horizontal = pickExtremeRows<T, kMax, (L::kUse < L::kCh)>();

  // Patterns whose rows follow each other reduce two destination rows in one pass.
  const HaloRows<T> shape(sv, plan.top, plan.bottom, plan.left, plan.right, inPlace);
  const std::size_t haloBytes = align64(shape.scratchBytes());
  const std::size_t ptrBytes =
      align64(sizeof(const T*) * static_cast<std::size_t>(plan.maxTaps + 1 + 2 * plan.patterns));
  std::size_t rowsBytes = 0;
  for (int q = 0; q < plan.patterns; ++q)
    if (plan.rowCount[q] > 1)
      rowsBytes += 2 * align64(static_cast<std::size_t>(
                                   bytesOf(plan.hi[q] - plan.lo[q] + roi.width, kCh, sizeof(T))));

  auto prepare = [&](int y0, int y1, Lum8u* scratch) {
    HaloRows<T> halo = shape;
    halo.bind(y0, y1, scratch);
    halo.prepare();
  };
  auto body = [&](int y0, int y1, Lum8u* scratch) {
    HaloRows<T> halo = shape;
    halo.bind(y0, y1, scratch);
    const T** taps = reinterpret_cast<const T**>(scratch + haloBytes);
    const T** reduced = taps + plan.maxTaps + 1;  // per pattern: its rows for y and y + 1
    T* rows = reinterpret_cast<T*>(scratch + haloBytes + ptrBytes);
    // The destination row y from the reduced pattern rows `part` (0 or 1); single-row
    // patterns read the source row itself, asked for only now: in place, row y + 1 is kept
    // just before its destination row is written.
    auto finish = [&](int y, int part) {
      for (int c = 0; c < plan.columns; ++c) {
        const int q = plan.colPattern[c];
        const T* r = plan.rowCount[q] == 1
                         ? halo.row(y + plan.rowOff[plan.rowStart[q]]) + elemsOf(plan.lo[q], kCh)
                         : reduced[2 * q + part];
        taps[c] = r + elemsOf(plan.colOff[c] - plan.lo[q], kCh);
      }
      horizontal(taps, plan.columns, rowAt(dst, dstStep, y), elemsOf(roi.width, kCh));
    };
    for (int y = y0; y < y1;) {
      const bool pair = y + 1 < y1;
      halo.keep(y);
      T* next = rows;
      for (int q = 0; q < plan.patterns; ++q) {
        const int* off = plan.rowOff + plan.rowStart[q];
        const int n = plan.rowCount[q];
        if (n == 1) continue;
        const std::ptrdiff_t shift = elemsOf(plan.lo[q], kCh);
        const std::ptrdiff_t elems = elemsOf(plan.hi[q] - plan.lo[q] + roi.width, kCh);
        T* outA = next;
        T* outB = next + align64(static_cast<std::size_t>(elems) * sizeof(T)) / sizeof(T);
        next = outB + (outB - outA);
        reduced[2 * q] = outA;
        reduced[2 * q + 1] = outB;
        for (int k = 0; k < n; ++k) taps[k] = halo.row(y + off[k]) + shift;
        if (!pair) {
          vertical(taps, n, outA, elems);
        } else if (off[n - 1] - off[0] == n - 1) {
          taps[n] = halo.row(y + 1 + off[n - 1]) + shift;
          verticalPair(taps, n, outA, outB, elems);
        } else {
          vertical(taps, n, outA, elems);
          for (int k = 0; k < n; ++k) taps[k] = halo.row(y + 1 + off[k]) + shift;
          vertical(taps, n, outB, elems);
        }
      }
      finish(y, 0);
      if (pair) {
        halo.keep(y + 1);
        finish(y + 1, 1);
      }
      y += pair ? 2 : 1;
    }
  };
  const bool parallel = forkByWork(roi, plan.taps, kForkWork);
  const std::size_t bytes = haloBytes + ptrBytes + rowsBytes;
  if (inPlace) return forRowsWithScratch(roi.height, parallel, bytes, body, prepare);
  return forRowsWithScratch(roi.height, parallel, bytes, body);
}

// A step below the bytes of `pixels` pixels of the layout.
template <class T, class L>
inline bool stepBelow(int step, long long pixels) {
  return static_cast<long long>(step) < pixels * L::kCh * static_cast<long long>(sizeof(T));
}

const Lum8u kSquare3x3[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};

template <class T, class L, bool kMax>
LumStatus square3x3(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, bool inPlace) {
  PlanStore store;
  store.build(kSquare3x3, LumiSize{3, 3}, LumiPoint{1, 1}, 9);  // fits the stack buffer
  return run<T, L, kMax>(src, srcStep, dst, dstStep, roi, store.plan(), inPlace);
}

template <class T, class L, bool kMax>
LumStatus morph3x3(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (stepBelow<T, L>(srcStep, roi.width + 2LL) || stepBelow<T, L>(dstStep, roi.width))
    return lumStatusStepBelowRowErr;
  return square3x3<T, L, kMax>(src, srcStep, dst, dstStep, roi, false);
}

template <class T, class L, bool kMax>
LumStatus morph3x3InPlace(T* srcDst, int step, LumiSize roi) {
  if (anyNull(srcDst)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (stepBelow<T, L>(step, roi.width + 2LL)) return lumStatusStepBelowRowErr;
  return square3x3<T, L, kMax>(srcDst, step, srcDst, step, roi, true);
}

template <class T, class L, bool kMax>
LumStatus morphMask(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                    const Lum8u* mask, LumiSize ms, LumiPoint anchor, bool inPlace) {
  if (anyNull(src, dst, mask)) return lumStatusNullPtrErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badSize(ms)) return lumStatusMaskSizeErr;
  const std::ptrdiff_t cells = static_cast<std::ptrdiff_t>(ms.width) * ms.height;
  std::ptrdiff_t nonZero = 0;
  for (std::ptrdiff_t i = 0; i < cells; ++i) nonZero += mask[i] != 0;
  if (nonZero == 0) return lumStatusZeroMaskErr;
  if (anchor.x < 0 || anchor.x >= ms.width || anchor.y < 0 || anchor.y >= ms.height)
    return lumStatusAnchorErr;
  if (stepBelow<T, L>(srcStep, static_cast<long long>(ms.width) + roi.width - 1) ||
      stepBelow<T, L>(dstStep, roi.width))
    return lumStatusStepBelowRowErr;
  PlanStore store;
  if (!store.build(mask, ms, anchor, nonZero)) return lumStatusMemAllocErr;
  return run<T, L, kMax>(src, srcStep, dst, dstStep, roi, store.plan(), inPlace);
}

}  // namespace
}  // namespace morph
}  // namespace lumi

// One stamp per export; MAX is false for erosion, true for dilation.
#define LUMI_MORPH3X3(NAME, T, L, MAX)                                                      \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize) { \
    return morph3x3<T, L, MAX>(pSrc, srcStep, pDst, dstStep, dstRoiSize);                   \
  }
#define LUMI_MORPH3X3_I(NAME, T, L, MAX)                                   \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize) {  \
    return morph3x3InPlace<T, L, MAX>(pSrcDst, srcDstStep, roiSize);       \
  }
#define LUMI_MORPH(NAME, T, L, MAX)                                                                \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize,   \
                          const Lum8u* pMask, LumiSize maskSize, LumiPoint anchor) {               \
    return morphMask<T, L, MAX>(pSrc, srcStep, pDst, dstStep, dstRoiSize, pMask, maskSize, anchor, \
                                false);                                                            \
  }
#define LUMI_MORPH_I(NAME, T, L, MAX)                                                             \
  LUMI_API LumStatus NAME(T* pSrcDst, int srcDstStep, LumiSize roiSize, const Lum8u* pMask,       \
                          LumiSize maskSize, LumiPoint anchor) {                                  \
    return morphMask<T, L, MAX>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, pMask,         \
                                maskSize, anchor, true);                                          \
  }

using namespace lumi;
using namespace lumi::morph;

LUMI_MORPH3X3(lumiErode3x3_8u_C1R, Lum8u, C1, false)
LUMI_MORPH3X3(lumiErode3x3_8u_C3R, Lum8u, C3, false)
LUMI_MORPH3X3(lumiErode3x3_8u_C4R, Lum8u, C4, false)
LUMI_MORPH3X3(lumiErode3x3_8u_AC4R, Lum8u, AC4, false)
LUMI_MORPH3X3(lumiErode3x3_32f_C1R, Lum32f, C1, false)
LUMI_MORPH3X3(lumiErode3x3_32f_C3R, Lum32f, C3, false)
LUMI_MORPH3X3(lumiErode3x3_32f_C4R, Lum32f, C4, false)
LUMI_MORPH3X3(lumiErode3x3_32f_AC4R, Lum32f, AC4, false)
LUMI_MORPH3X3(lumiDilate3x3_8u_C1R, Lum8u, C1, true)
LUMI_MORPH3X3(lumiDilate3x3_8u_C3R, Lum8u, C3, true)
LUMI_MORPH3X3(lumiDilate3x3_8u_C4R, Lum8u, C4, true)
LUMI_MORPH3X3(lumiDilate3x3_8u_AC4R, Lum8u, AC4, true)
LUMI_MORPH3X3(lumiDilate3x3_32f_C1R, Lum32f, C1, true)
LUMI_MORPH3X3(lumiDilate3x3_32f_C3R, Lum32f, C3, true)
LUMI_MORPH3X3(lumiDilate3x3_32f_C4R, Lum32f, C4, true)
LUMI_MORPH3X3(lumiDilate3x3_32f_AC4R, Lum32f, AC4, true)
LUMI_MORPH3X3_I(lumiErode3x3_8u_C1IR, Lum8u, C1, false)
LUMI_MORPH3X3_I(lumiErode3x3_8u_C3IR, Lum8u, C3, false)
LUMI_MORPH3X3_I(lumiErode3x3_8u_C4IR, Lum8u, C4, false)
LUMI_MORPH3X3_I(lumiErode3x3_8u_AC4IR, Lum8u, AC4, false)
LUMI_MORPH3X3_I(lumiErode3x3_32f_C1IR, Lum32f, C1, false)
LUMI_MORPH3X3_I(lumiErode3x3_32f_C3IR, Lum32f, C3, false)
LUMI_MORPH3X3_I(lumiErode3x3_32f_C4IR, Lum32f, C4, false)
LUMI_MORPH3X3_I(lumiErode3x3_32f_AC4IR, Lum32f, AC4, false)
LUMI_MORPH3X3_I(lumiDilate3x3_8u_C1IR, Lum8u, C1, true)
LUMI_MORPH3X3_I(lumiDilate3x3_8u_C3IR, Lum8u, C3, true)
LUMI_MORPH3X3_I(lumiDilate3x3_8u_C4IR, Lum8u, C4, true)
LUMI_MORPH3X3_I(lumiDilate3x3_8u_AC4IR, Lum8u, AC4, true)
LUMI_MORPH3X3_I(lumiDilate3x3_32f_C1IR, Lum32f, C1, true)
LUMI_MORPH3X3_I(lumiDilate3x3_32f_C3IR, Lum32f, C3, true)
LUMI_MORPH3X3_I(lumiDilate3x3_32f_C4IR, Lum32f, C4, true)
LUMI_MORPH3X3_I(lumiDilate3x3_32f_AC4IR, Lum32f, AC4, true)
LUMI_MORPH(lumiErode_8u_C1R, Lum8u, C1, false)
LUMI_MORPH(lumiErode_8u_C3R, Lum8u, C3, false)
LUMI_MORPH(lumiErode_8u_C4R, Lum8u, C4, false)
LUMI_MORPH(lumiErode_8u_AC4R, Lum8u, AC4, false)
LUMI_MORPH(lumiErode_32f_C1R, Lum32f, C1, false)
LUMI_MORPH(lumiErode_32f_C3R, Lum32f, C3, false)
LUMI_MORPH(lumiErode_32f_C4R, Lum32f, C4, false)
LUMI_MORPH(lumiErode_32f_AC4R, Lum32f, AC4, false)
LUMI_MORPH(lumiDilate_8u_C1R, Lum8u, C1, true)
LUMI_MORPH(lumiDilate_8u_C3R, Lum8u, C3, true)
LUMI_MORPH(lumiDilate_8u_C4R, Lum8u, C4, true)
LUMI_MORPH(lumiDilate_8u_AC4R, Lum8u, AC4, true)
LUMI_MORPH(lumiDilate_32f_C1R, Lum32f, C1, true)
LUMI_MORPH(lumiDilate_32f_C3R, Lum32f, C3, true)
LUMI_MORPH(lumiDilate_32f_C4R, Lum32f, C4, true)
LUMI_MORPH(lumiDilate_32f_AC4R, Lum32f, AC4, true)
LUMI_MORPH_I(lumiErode_8u_C1IR, Lum8u, C1, false)
LUMI_MORPH_I(lumiErode_8u_C3IR, Lum8u, C3, false)
LUMI_MORPH_I(lumiErode_8u_AC4IR, Lum8u, AC4, false)
LUMI_MORPH_I(lumiErode_32f_C1IR, Lum32f, C1, false)
LUMI_MORPH_I(lumiErode_32f_C3IR, Lum32f, C3, false)
LUMI_MORPH_I(lumiErode_32f_AC4IR, Lum32f, AC4, false)
LUMI_MORPH_I(lumiDilate_8u_C1IR, Lum8u, C1, true)
LUMI_MORPH_I(lumiDilate_8u_C3IR, Lum8u, C3, true)
LUMI_MORPH_I(lumiDilate_8u_AC4IR, Lum8u, AC4, true)
LUMI_MORPH_I(lumiDilate_32f_C1IR, Lum32f, C1, true)
LUMI_MORPH_I(lumiDilate_32f_C3IR, Lum32f, C3, true)
LUMI_MORPH_I(lumiDilate_32f_AC4IR, Lum32f, AC4, true)
#endif
