// Extrema of a ROI per channel (value, or value and first position in row-major order) and
// the count of samples inside a closed range.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/stats/minmax.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "stats/load_pix-inl.h"
#include "core/frame.h"
#include "stats/stats_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
#if HWY_TARGET != HWY_SCALAR  // only the x86 vector targets enter the dispatch tables
namespace hn = hwy::HWY_NAMESPACE;

// Running minimum and maximum per channel over one row (mn, mx hold the values so far).
template <class T, int kCh>
void MinMaxRow(const T* HWY_RESTRICT p, int width, T* mn, T* mx) {
  const hn::ScalableTag<T> d;
  const int N = static_cast<int>(hn::Lanes(d));
  using V = hn::Vec<decltype(d)>;
  V vmin[4], vmax[4], v[4];
  for (int c = 0; c < kCh; ++c) {
    vmin[c] = hn::Set(d, mn[c]);
    vmax[c] = hn::Set(d, mx[c]);
  }
  int x = 0;
  for (; x + 2 * N <= width; x += 2 * N) {  // two vectors per step halve the dependency chain
    V w[4];
    LoadPix<kCh>(d, p + x * kCh, v);
    LoadPix<kCh>(d, p + (x + N) * kCh, w);
    for (int c = 0; c < kCh; ++c) {
      vmin[c] = hn::Min(vmin[c], hn::Min(v[c], w[c]));
      vmax[c] = hn::Max(vmax[c], hn::Max(v[c], w[c]));
    }
  }
  for (; x + N <= width; x += N) {
    LoadPix<kCh>(d, p + x * kCh, v);
    for (int c = 0; c < kCh; ++c) {
      vmin[c] = hn::Min(vmin[c], v[c]);
      vmax[c] = hn::Max(vmax[c], v[c]);
    }
  }
  HWY_ALIGN T buf[hn::MaxLanes(d)];
  for (int c = 0; c < kCh; ++c) {
    hn::Store(vmin[c], d, buf);
    for (int i = 0; i < N; ++i) mn[c] = buf[i] < mn[c] ? buf[i] : mn[c];
    hn::Store(vmax[c], d, buf);
    for (int i = 0; i < N; ++i) mx[c] = buf[i] > mx[c] ? buf[i] : mx[c];
  }
  stats::minMaxScalar<T, kCh>(p, x, width, mn, mx);
}

template <class T, int kCh>
void CountRow(const T* HWY_RESTRICT p, int width, const T* lo, const T* hi, int64_t* n) {
  const hn::ScalableTag<T> d;
  const int N = static_cast<int>(hn::Lanes(d));
  constexpr int kUse = kCh == 4 ? 3 : kCh;
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
      LoadPix<kCh>(d, p + x * kCh, v);
      for (int c = 0; c < kUse; ++c) {
        auto in = hn::And(hn::Eq(hn::Max(v[c], vlo[c]), v[c]), hn::Eq(hn::Min(v[c], vhi[c]), v[c]));
        s[c] = hn::Add(s[c], hn::SumsOf8(hn::IfThenElseZero(in, one)));
      }
    }
    for (int c = 0; c < kUse; ++c) n[c] += static_cast<int64_t>(hn::GetLane(hn::SumOfLanes(d64, s[c])));
  } else {
    for (; x + N <= width; x += N) {
      LoadPix<kCh>(d, p + x * kCh, v);
      for (int c = 0; c < kUse; ++c)
        n[c] += static_cast<int64_t>(hn::CountTrue(d, hn::AndNot(hn::Lt(v[c], vlo[c]), hn::Le(v[c], vhi[c]))));
    }
  }
  stats::countScalar<T, kCh>(p, x, width, lo, hi, n);
}

#endif
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace stats {
namespace {

template <class T>
using MinMaxFn = void (*)(const T*, int, T*, T*);
template <class T>
using CountFn = void (*)(const T*, int, const T*, const T*, int64_t*);

template <class T, int kCh>
void minMaxScalarFull(const T* p, int width, T* mn, T* mx) {
  minMaxScalar<T, kCh>(p, 0, width, mn, mx);
}
template <class T, int kCh>
void countScalarFull(const T* p, int width, const T* lo, const T* hi, int64_t* n) {
  countScalar<T, kCh>(p, 0, width, lo, hi, n);
}

template <class T, int kCh>
MinMaxFn<T> pickMinMax() {
  LUMI_SIMD_TABLE(MinMaxFn<T>, table, MinMaxRow<T, kCh>);
  if (auto f = pickSimd(table)) return f;
  return &minMaxScalarFull<T, kCh>;
}
template <class T, int kCh>
CountFn<T> pickCount() {
  LUMI_SIMD_TABLE(CountFn<T>, table, CountRow<T, kCh>);
  if (auto f = pickSimd(table)) return f;
  return &countScalarFull<T, kCh>;
}

template <class T, class L>
void minMaxAll(const T* src, int step, LumiSize roi, T* mn, T* mx) {
  MinMaxFn<T> f = pickMinMax<T, L::kCh>();
  for (int c = 0; c < L::kCh; ++c) mn[c] = mx[c] = src[c];
  for (int y = 0; y < roi.height; ++y) f(rowAt(src, step, y), roi.width, mn, mx);
}

template <class T, class L>
LumStatus minImpl(const T* src, int step, LumiSize roi, T* mnOut) {
  if (anyNull(src, mnOut)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  T mn[4], mx[4];
  minMaxAll<T, L>(src, step, roi, mn, mx);
  for (int c = 0; c < L::kUse; ++c) mnOut[c] = mn[c];
  return lumStatusOk;
}
template <class T, class L>
LumStatus maxImpl(const T* src, int step, LumiSize roi, T* mxOut) {
  if (anyNull(src, mxOut)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  T mn[4], mx[4];
  minMaxAll<T, L>(src, step, roi, mn, mx);
  for (int c = 0; c < L::kUse; ++c) mxOut[c] = mx[c];
  return lumStatusOk;
}
template <class T, class L>
LumStatus minMaxImpl(const T* src, int step, LumiSize roi, T* mnOut, T* mxOut) {
  if (anyNull(src, mnOut, mxOut)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  T mn[4], mx[4];
  minMaxAll<T, L>(src, step, roi, mn, mx);
  for (int c = 0; c < L::kUse; ++c) {
    mnOut[c] = mn[c];
    mxOut[c] = mx[c];
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
  MinMaxFn<T> f = pickMinMax<T, kCh>();
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
          if (r[x * kCh + c] == v) {
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
  CountFn<T> f = pickCount<T, L::kCh>();
  int64_t n[4] = {0, 0, 0, 0};
  for (int y = 0; y < roi.height; ++y) f(rowAt(src, step, y), roi.width, lo, hi, n);
  for (int c = 0; c < L::kUse; ++c) counts[c] = static_cast<int>(n[c]);
  return lumStatusOk;
}

}  // namespace
}  // namespace stats
}  // namespace lumi

using lumi::AC4;
using lumi::C1;
using lumi::C3;
using lumi::C4;
using namespace lumi::stats;

#define LUMI_MINMAX(T, TS, L)                                                                   \
  LUMI_API LumStatus lumiMin_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,       \
                                           T* pMin) {                                          \
    return minImpl<T, L>(pSrc, srcStep, roiSize, pMin);                                         \
  }                                                                                             \
  LUMI_API LumStatus lumiMax_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,       \
                                           T* pMax) {                                          \
    return maxImpl<T, L>(pSrc, srcStep, roiSize, pMax);                                         \
  }                                                                                             \
  LUMI_API LumStatus lumiMinMax_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,    \
                                              T* pMin, T* pMax) {                              \
    return minMaxImpl<T, L>(pSrc, srcStep, roiSize, pMin, pMax);                                \
  }                                                                                             \
  LUMI_API LumStatus lumiMinIndx_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,   \
                                               T* pMin, int* pIndexX, int* pIndexY) {          \
    return indexImpl<T, L, false>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);              \
  }                                                                                             \
  LUMI_API LumStatus lumiMaxIndx_##TS##_##L##R(const T* pSrc, int srcStep, LumiSize roiSize,   \
                                               T* pMax, int* pIndexX, int* pIndexY) {          \
    return indexImpl<T, L, true>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);               \
  }
#define LUMI_MINMAX_TYPE(T, TS) \
  LUMI_MINMAX(T, TS, C1) LUMI_MINMAX(T, TS, C3) LUMI_MINMAX(T, TS, C4) LUMI_MINMAX(T, TS, AC4)

#define LUMI_COUNT(T, TS)                                                                       \
  LUMI_API LumStatus lumiCountInRange_##TS##_C1R(const T* pSrc, int srcStep, LumiSize roiSize,  \
                                                 int* pCounts, T lowerBound, T upperBound) {   \
    return countImpl<T, C1>(pSrc, srcStep, roiSize, pCounts, &lowerBound, &upperBound);         \
  }                                                                                             \
  LUMI_API LumStatus lumiCountInRange_##TS##_C3R(const T* pSrc, int srcStep, LumiSize roiSize,  \
                                                 int pCounts[3], const T lowerBound[3],        \
                                                 const T upperBound[3]) {                      \
    return countImpl<T, C3>(pSrc, srcStep, roiSize, pCounts, lowerBound, upperBound);           \
  }                                                                                             \
  LUMI_API LumStatus lumiCountInRange_##TS##_AC4R(const T* pSrc, int srcStep, LumiSize roiSize, \
                                                  int pCounts[3], const T lowerBound[3],       \
                                                  const T upperBound[3]) {                     \
    return countImpl<T, AC4>(pSrc, srcStep, roiSize, pCounts, lowerBound, upperBound);          \
  }

extern "C" {
LUMI_MINMAX_TYPE(Lum8u, 8u)
LUMI_MINMAX_TYPE(Lum16s, 16s)
LUMI_MINMAX_TYPE(Lum32f, 32f)
LUMI_COUNT(Lum8u, 8u)
LUMI_COUNT(Lum32f, 32f)
}
#endif
