// Extrema of a ROI per channel (value, or value and first position in row-major order) and
// the count of samples inside a closed range.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/stats/minmax.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "stats/load_pix-inl.h"
#include "stats/stats_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Running minimum and/or maximum per channel over one row (mn, mx hold the values so far; the
// one not asked for, kMin or kMax false, is left as it is).
template <class T, int kCh, bool kMin, bool kMax>
void minMaxRow(const T* HWY_RESTRICT p, int width, T* mn, T* mx) {
  const hn::ScalableTag<T> d;
  const int N = static_cast<int>(hn::Lanes(d));
  using V = hn::Vec<decltype(d)>;
  V vmin[4], vmax[4], v[4];
  for (int c = 0; c < kCh; ++c) {
    if constexpr (kMin) vmin[c] = hn::Set(d, mn[c]);
    if constexpr (kMax) vmax[c] = hn::Set(d, mx[c]);
  }
  int x = 0;
  for (; x + 2 * N <= width; x += 2 * N) {  // two vectors per step halve the dependency chain
    V w[4];
    LoadPix<kCh>(d, p + elemsOf(x, kCh), v);
    LoadPix<kCh>(d, p + elemsOf(x + N, kCh), w);
    for (int c = 0; c < kCh; ++c) {
      if constexpr (kMin) vmin[c] = hn::Min(vmin[c], hn::Min(v[c], w[c]));
      if constexpr (kMax) vmax[c] = hn::Max(vmax[c], hn::Max(v[c], w[c]));
    }
  }
  for (; x + N <= width; x += N) {
    LoadPix<kCh>(d, p + elemsOf(x, kCh), v);
    for (int c = 0; c < kCh; ++c) {
      if constexpr (kMin) vmin[c] = hn::Min(vmin[c], v[c]);
      if constexpr (kMax) vmax[c] = hn::Max(vmax[c], v[c]);
    }
  }
  HWY_ALIGN T buf[hn::MaxLanes(d)];
  for (int c = 0; c < kCh; ++c) {
    if constexpr (kMin) {
      hn::Store(vmin[c], d, buf);
      for (int i = 0; i < N; ++i) mn[c] = buf[i] < mn[c] ? buf[i] : mn[c];
    }
    if constexpr (kMax) {
      hn::Store(vmax[c], d, buf);
      for (int i = 0; i < N; ++i) mx[c] = buf[i] > mx[c] ? buf[i] : mx[c];
    }
  }
  stats::minMaxFrom<T, kCh, kMin, kMax>(p, x, width, mn, mx);
}

template <class T, class L>
void countRow(const T* HWY_RESTRICT p, int width, const T* lo, const T* hi, int64_t* n) {
  const hn::ScalableTag<T> d;
  const int N = static_cast<int>(hn::Lanes(d));
  constexpr int kCh = L::kCh, kUse = L::kUse;
  using V = hn::Vec<decltype(d)>;
  V v[4], vlo[4], vhi[4];
  for (int c = 0; c < kUse; ++c) {
    vlo[c] = hn::Set(d, lo[c]);
    vhi[c] = hn::Set(d, hi[c]);
  }
  int x = 0;
  if constexpr (sizeof(T) == 1) {
    // 0/1 bytes summed eight at a time into 64-bit lanes
    const hn::Repartition<uint64_t, decltype(d)> d64;
    hn::Vec<decltype(d64)> s[4];
    for (int c = 0; c < kUse; ++c) s[c] = hn::Zero(d64);
    const V one = hn::Set(d, T{1});
    for (; x + N <= width; x += N) {
      LoadPix<kCh>(d, p + elemsOf(x, kCh), v);
      for (int c = 0; c < kUse; ++c) {
        auto in = hn::And(hn::Eq(hn::Max(v[c], vlo[c]), v[c]), hn::Eq(hn::Min(v[c], vhi[c]), v[c]));
        s[c] = hn::Add(s[c], hn::SumsOf8(hn::IfThenElseZero(in, one)));
      }
    }
    for (int c = 0; c < kUse; ++c) n[c] += static_cast<int64_t>(hn::GetLane(hn::SumOfLanes(d64, s[c])));
  } else {
    for (; x + N <= width; x += N) {
      LoadPix<kCh>(d, p + elemsOf(x, kCh), v);
      for (int c = 0; c < kUse; ++c)
        n[c] += static_cast<int64_t>(hn::CountTrue(d, hn::AndNot(hn::Lt(v[c], vlo[c]), hn::Le(v[c], vhi[c]))));
    }
  }
  stats::countFrom<T, L>(p, x, width, lo, hi, n);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
// The choosers and the whole-ROI loops, then the exports.
namespace lumi {
namespace stats {
namespace {

template <class T>
using MinMaxRowFn = void (*)(const T*, int, T*, T*);
template <class T>
using CountRowFn = void (*)(const T*, int, const T*, const T*, int64_t*);

template <class T, int kCh, bool kMin, bool kMax>
void minMaxRowScalar(const T* p, int width, T* mn, T* mx) {
  minMaxFrom<T, kCh, kMin, kMax>(p, 0, width, mn, mx);
}
template <class T, class L>
void countRowScalar(const T* p, int width, const T* lo, const T* hi, int64_t* n) {
  countFrom<T, L>(p, 0, width, lo, hi, n);
}

template <class T, int kCh, bool kMin, bool kMax>
MinMaxRowFn<T> pickMinMaxRow() {
  LUMI_SIMD_TABLE(MinMaxRowFn<T>, table, minMaxRow<T, kCh, kMin, kMax>);
  return pick(table, &minMaxRowScalar<T, kCh, kMin, kMax>);
}
template <class T, class L>
CountRowFn<T> pickCountRow() {
  LUMI_SIMD_TABLE(CountRowFn<T>, table, countRow<T, L>);
  return pick(table, &countRowScalar<T, L>);
}

// Minimum and/or maximum of every channel of the ROI.
template <class T, int kCh, bool kMin, bool kMax>
HWY_NOINLINE void extremaOf(const T* src, int step, LumiSize roi, T* mn, T* mx) {
  const MinMaxRowFn<T> f = pickMinMaxRow<T, kCh, kMin, kMax>();
  for (int c = 0; c < kCh; ++c) mn[c] = mx[c] = src[c];
  for (int y = 0; y < roi.height; ++y) f(rowAt(src, step, y), roi.width, mn, mx);
}

// Min, max or both per channel (kMin, kMax: which outputs the caller asked for).
template <class T, class L, bool kMin, bool kMax>
LumStatus extremaImpl(const T* src, int step, LumiSize roi, T* mnOut, T* mxOut) {
  if (src == nullptr || (kMin && mnOut == nullptr) || (kMax && mxOut == nullptr))
    return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  T mn[4], mx[4];
  extremaOf<T, L::kCh, kMin, kMax>(src, step, roi, mn, mx);
  for (int c = 0; c < L::kUse; ++c) {
    if (kMin) mnOut[c] = mn[c];
    if (kMax) mxOut[c] = mx[c];
  }
  return lumStatusOk;
}

// Rows top to bottom: a row whose extreme is strictly better than the running one records the
// row and the first column holding that value, so ties resolve to the first pixel in
// row-major order. An 8u scan ends once every channel has reached the end of the range.
template <class T, class L, bool kMax>
LumStatus indexImpl(const T* src, int step, LumiSize roi, T* value, int* px, int* py) {
  if (anyNull(src, value, px, py)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  constexpr int kCh = L::kCh, kUse = L::kUse;
  const MinMaxRowFn<T> f = pickMinMaxRow<T, kCh, !kMax, kMax>();
  T best[4];
  int bx[4] = {0, 0, 0, 0}, by[4] = {0, 0, 0, 0};
  for (int c = 0; c < kCh; ++c) best[c] = src[c];
  for (int y = 0; y < roi.height; ++y) {
    if constexpr (std::is_same_v<T, Lum8u>) {
      bool done = true;
      for (int c = 0; c < kUse; ++c) done = done && best[c] == (kMax ? 255 : 0);
      if (done) break;
    }
    const T* r = rowAt(src, step, y);
    T mn[4], mx[4];
    for (int c = 0; c < kCh; ++c) mn[c] = mx[c] = r[c];
    f(r, roi.width, mn, mx);
    for (int c = 0; c < kUse; ++c) {
      T v = kMax ? mx[c] : mn[c];
      if (kMax ? v > best[c] : v < best[c]) {
        for (int x = 0; x < roi.width; ++x)
          if (r[elemsOf(x, kCh) + c] == v) {
            best[c] = v;
            bx[c] = x;
            by[c] = y;
            break;
          }
      }
    }
  }
  for (int c = 0; c < kUse; ++c) {
    value[c] = best[c];
    px[c] = bx[c];
    py[c] = by[c];
  }
  return lumStatusOk;
}

template <class T, class L>
LumStatus countImpl(const T* src, int step, LumiSize roi, int* counts, const T* lo, const T* hi) {
  if (anyNull(src, counts, lo, hi)) return lumStatusNullPtrErr;
  if (badStep(step)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  for (int c = 0; c < L::kUse; ++c)
    if (lo[c] > hi[c]) return lumStatusInvertedRangeErr;
  const CountRowFn<T> f = pickCountRow<T, L>();
  int64_t n[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) f(rowAt(src, step, y), roi.width, lo, hi, n);
  for (int c = 0; c < L::kUse; ++c) counts[c] = static_cast<int>(n[c]);
  return lumStatusOk;
}

}  // namespace
}  // namespace stats
}  // namespace lumi

// One stamp per export, each from the family's single definition.
#define LUMI_MIN(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, T* pMin) {   \
    return extremaImpl<T, L, true, false>(pSrc, srcStep, roiSize, pMin, nullptr);    \
  }
#define LUMI_MAX(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, T* pMax) {   \
    return extremaImpl<T, L, false, true>(pSrc, srcStep, roiSize, nullptr, pMax);    \
  }
#define LUMI_MINMAX(NAME, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, T* pMin, T* pMax) {  \
    return extremaImpl<T, L, true, true>(pSrc, srcStep, roiSize, pMin, pMax);                \
  }
#define LUMI_INDX(NAME, T, L, MAX)                                                       \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, T* pValue,       \
                          int* pIndexX, int* pIndexY) {                                  \
    return indexImpl<T, L, MAX>(pSrc, srcStep, roiSize, pValue, pIndexX, pIndexY);       \
  }
#define LUMI_COUNT_C1(NAME, T)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, int* pCounts,       \
                          T lowerBound, T upperBound) {                                     \
    return countImpl<T, C1>(pSrc, srcStep, roiSize, pCounts, &lowerBound, &upperBound);     \
  }
#define LUMI_COUNT(NAME, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, int pCounts[3],     \
                          const T lowerBound[3], const T upperBound[3]) {                   \
    return countImpl<T, L>(pSrc, srcStep, roiSize, pCounts, lowerBound, upperBound);        \
  }

using namespace lumi;
using namespace lumi::stats;

LUMI_MIN(lumiMin_8u_C1R, Lum8u, C1)
LUMI_MIN(lumiMin_8u_C3R, Lum8u, C3)
LUMI_MIN(lumiMin_8u_C4R, Lum8u, C4)
LUMI_MIN(lumiMin_8u_AC4R, Lum8u, AC4)
LUMI_MIN(lumiMin_16s_C1R, Lum16s, C1)
LUMI_MIN(lumiMin_16s_C3R, Lum16s, C3)
LUMI_MIN(lumiMin_16s_C4R, Lum16s, C4)
LUMI_MIN(lumiMin_16s_AC4R, Lum16s, AC4)
LUMI_MIN(lumiMin_32f_C1R, Lum32f, C1)
LUMI_MIN(lumiMin_32f_C3R, Lum32f, C3)
LUMI_MIN(lumiMin_32f_C4R, Lum32f, C4)
LUMI_MIN(lumiMin_32f_AC4R, Lum32f, AC4)
LUMI_MAX(lumiMax_8u_C1R, Lum8u, C1)
LUMI_MAX(lumiMax_8u_C3R, Lum8u, C3)
LUMI_MAX(lumiMax_8u_C4R, Lum8u, C4)
LUMI_MAX(lumiMax_8u_AC4R, Lum8u, AC4)
LUMI_MAX(lumiMax_16s_C1R, Lum16s, C1)
LUMI_MAX(lumiMax_16s_C3R, Lum16s, C3)
LUMI_MAX(lumiMax_16s_C4R, Lum16s, C4)
LUMI_MAX(lumiMax_16s_AC4R, Lum16s, AC4)
LUMI_MAX(lumiMax_32f_C1R, Lum32f, C1)
LUMI_MAX(lumiMax_32f_C3R, Lum32f, C3)
LUMI_MAX(lumiMax_32f_C4R, Lum32f, C4)
LUMI_MAX(lumiMax_32f_AC4R, Lum32f, AC4)
LUMI_MINMAX(lumiMinMax_8u_C1R, Lum8u, C1)
LUMI_MINMAX(lumiMinMax_8u_C3R, Lum8u, C3)
LUMI_MINMAX(lumiMinMax_8u_C4R, Lum8u, C4)
LUMI_MINMAX(lumiMinMax_8u_AC4R, Lum8u, AC4)
LUMI_MINMAX(lumiMinMax_16s_C1R, Lum16s, C1)
LUMI_MINMAX(lumiMinMax_16s_C3R, Lum16s, C3)
LUMI_MINMAX(lumiMinMax_16s_C4R, Lum16s, C4)
LUMI_MINMAX(lumiMinMax_16s_AC4R, Lum16s, AC4)
LUMI_MINMAX(lumiMinMax_32f_C1R, Lum32f, C1)
LUMI_MINMAX(lumiMinMax_32f_C3R, Lum32f, C3)
LUMI_MINMAX(lumiMinMax_32f_C4R, Lum32f, C4)
LUMI_MINMAX(lumiMinMax_32f_AC4R, Lum32f, AC4)
LUMI_INDX(lumiMinIndx_8u_C1R, Lum8u, C1, false)
LUMI_INDX(lumiMinIndx_8u_C3R, Lum8u, C3, false)
LUMI_INDX(lumiMinIndx_8u_C4R, Lum8u, C4, false)
LUMI_INDX(lumiMinIndx_8u_AC4R, Lum8u, AC4, false)
LUMI_INDX(lumiMinIndx_16s_C1R, Lum16s, C1, false)
LUMI_INDX(lumiMinIndx_16s_C3R, Lum16s, C3, false)
LUMI_INDX(lumiMinIndx_16s_C4R, Lum16s, C4, false)
LUMI_INDX(lumiMinIndx_16s_AC4R, Lum16s, AC4, false)
LUMI_INDX(lumiMinIndx_32f_C1R, Lum32f, C1, false)
LUMI_INDX(lumiMinIndx_32f_C3R, Lum32f, C3, false)
LUMI_INDX(lumiMinIndx_32f_C4R, Lum32f, C4, false)
LUMI_INDX(lumiMinIndx_32f_AC4R, Lum32f, AC4, false)
LUMI_INDX(lumiMaxIndx_8u_C1R, Lum8u, C1, true)
LUMI_INDX(lumiMaxIndx_8u_C3R, Lum8u, C3, true)
LUMI_INDX(lumiMaxIndx_8u_C4R, Lum8u, C4, true)
LUMI_INDX(lumiMaxIndx_8u_AC4R, Lum8u, AC4, true)
LUMI_INDX(lumiMaxIndx_16s_C1R, Lum16s, C1, true)
LUMI_INDX(lumiMaxIndx_16s_C3R, Lum16s, C3, true)
LUMI_INDX(lumiMaxIndx_16s_C4R, Lum16s, C4, true)
LUMI_INDX(lumiMaxIndx_16s_AC4R, Lum16s, AC4, true)
LUMI_INDX(lumiMaxIndx_32f_C1R, Lum32f, C1, true)
LUMI_INDX(lumiMaxIndx_32f_C3R, Lum32f, C3, true)
LUMI_INDX(lumiMaxIndx_32f_C4R, Lum32f, C4, true)
LUMI_INDX(lumiMaxIndx_32f_AC4R, Lum32f, AC4, true)
LUMI_COUNT_C1(lumiCountInRange_8u_C1R, Lum8u)
LUMI_COUNT(lumiCountInRange_8u_C3R, Lum8u, C3)
LUMI_COUNT(lumiCountInRange_8u_AC4R, Lum8u, AC4)
LUMI_COUNT_C1(lumiCountInRange_32f_C1R, Lum32f)
LUMI_COUNT(lumiCountInRange_32f_C3R, Lum32f, C3)
LUMI_COUNT(lumiCountInRange_32f_AC4R, Lum32f, AC4)
#endif
