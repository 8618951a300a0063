// Wiener filter: adaptive noise removal over a rectangular mask (see include/lumi/filter_wiener.h
// for the formulas). Two parallel regions share the ROI rows in one band per thread, each
// thread working in its own five lines of the caller's buffer:
//   1. the range of the source area (minimum and maximum per channel) and, for every channel
//      whose noise is to be estimated, the sum of V over the band, in double;
//   2. the filter: window sums S and Q per destination element, slid down the band one source
//      row in and one out, then one destination row from them.
// The window sums are doubles, exact for 8u and 16s; every later step is the same double
// arithmetic, in the same order, in the plain and the vector kernels, so their results agree
// bit for bit for every type (32f included; only a NaN in a 32f source may give the two another
// range). The sums of V of the estimate are plain code on both paths.
#include <algorithm>
#include <climits>
#include <cmath>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/filter/wiener.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "filter/wiener_kernels.h"
#include "lumi/filter_wiener.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// The vector form of sumRowScalar: the same additions in the same order, per lane.
template <class T, int kCh>
void sumRow(const T* HWY_RESTRICT in, const T* HWY_RESTRICT out, double* HWY_RESTRICT s,
            double* HWY_RESTRICT q, std::ptrdiff_t elems, int mw) {
  const hn::ScalableTag<double> dd;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dd));
  std::ptrdiff_t i = 0;
  // The sum and the sum of squares of mw elements a pixel apart from p on.
  auto window = [&](const T* p, auto& sum, auto& sq) {
    sum = loadAs(dd, p);
    sq = hn::Mul(sum, sum);
    for (int k = 1; k < mw; ++k) {
      const auto v = loadAs(dd, p + elemsOf(k, kCh));
      sum = hn::Add(sum, v);
      sq = hn::Add(sq, hn::Mul(v, v));
    }
  };
  for (; i + N <= elems; i += N) {
    hn::Vec<decltype(dd)> a, a2;
    window(in + i, a, a2);
    if (out) {
      hn::Vec<decltype(dd)> b, b2;
      window(out + i, b, b2);
      a = hn::Sub(a, b);
      a2 = hn::Sub(a2, b2);
    }
    hn::StoreU(hn::Add(hn::LoadU(dd, s + i), a), dd, s + i);
    hn::StoreU(hn::Add(hn::LoadU(dd, q + i), a2), dd, q + i);
  }
  if (i < elems)
    wiener::sumRowScalar<T, kCh>(in + i, out ? out + i : nullptr, s + i, q + i, elems - i, mw);
}

// The vector form of rangeRowScalar: kCh running minima and maxima kCh x N elements apart, so
// lane j of vector k always holds channel (k N + j) mod kCh; reduced per channel at the end.
template <class T, class L>
void rangeRow(const T* HWY_RESTRICT row, int pixels, T* HWY_RESTRICT lo, T* HWY_RESTRICT hi) {
  constexpr int kCh = L::kCh;
  const hn::ScalableTag<T> d;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  const std::ptrdiff_t elems = elemsOf(pixels, kCh), stride = kCh * N;
  std::ptrdiff_t i = 0;
  if (elems >= stride) {
    hn::Vec<decltype(d)> vlo[kCh], vhi[kCh];
    for (int k = 0; k < kCh; ++k) vlo[k] = vhi[k] = hn::LoadU(d, row + k * N);
    for (i = stride; i + stride <= elems; i += stride)
      for (int k = 0; k < kCh; ++k) {
        const auto v = hn::LoadU(d, row + i + k * N);
        vlo[k] = hn::Min(vlo[k], v);
        vhi[k] = hn::Max(vhi[k], v);
      }
    HWY_ALIGN T a[hn::MaxLanes(d)], b[hn::MaxLanes(d)];
    for (int k = 0; k < kCh; ++k) {
      hn::Store(vlo[k], d, a);
      hn::Store(vhi[k], d, b);
      for (std::ptrdiff_t j = 0; j < N; ++j) {
        const int c = static_cast<int>((k * N + j) % kCh);
        if (c >= L::kUse) continue;
        if (a[j] < lo[c]) lo[c] = a[j];
        if (b[j] > hi[c]) hi[c] = b[j];
      }
    }
  }
  wiener::rangeRowScalar<T, L>(row + i, static_cast<int>((elems - i) / kCh), lo, hi);
}

// Double lanes to pixels: ties to even and saturation for 8u and 16s, the nearest float (the
// caller holds round-to-nearest) for 32f.
template <class DD, class T>
HWY_INLINE hn::Vec<hn::Rebind<T, DD>> toPixels(DD dd, hn::Vec<DD> v) {
  const hn::Rebind<T, DD> dt;
  if constexpr (std::is_same_v<T, float>) {
    return hn::DemoteTo(dt, v);
  } else {
    const hn::Rebind<int32_t, DD> di;
    (void)dd;
    return hn::DemoteTo(dt, hn::DemoteTo(di, hn::Round(v)));
  }
}

// The vector form of filterRowScalar. Lanes take the noise power of their channel from a
// repeating pattern; AC4 vectors keep the destination's alpha lanes.
template <class T, class L>
void filterRow(const T* HWY_RESTRICT src, T* HWY_RESTRICT dst, const double* HWY_RESTRICT s,
               const double* HWY_RESTRICT q, int width, const wiener::RowParams& p) {
  constexpr int kCh = L::kCh;
  constexpr bool kAlpha = L::kUse != L::kCh;
  const hn::ScalableTag<double> dd;
  const hn::Rebind<T, decltype(dd)> dt;
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dd));
  const std::ptrdiff_t elems = elemsOf(width, kCh);
  HWY_ALIGN double pattern[hn::MaxLanes(dd) + 4];
  for (std::ptrdiff_t j = 0; j < N + kCh; ++j) pattern[j] = p.power[j % kCh];
  const auto n = hn::Set(dd, p.n);
  const auto zero = hn::Zero(dd);
  std::ptrdiff_t i = 0;
  int phase = 0;  // i % kCh
  for (; i + N <= elems; i += N) {
    const auto power = hn::LoadU(dd, pattern + phase);
    const auto sv = hn::LoadU(dd, s + i);
    const auto m = hn::Div(sv, n);
    auto v = hn::Sub(hn::LoadU(dd, q + i), hn::Div(hn::Mul(sv, sv), n));
    v = hn::IfThenElse(hn::Lt(v, power), power, v);
    const auto g = hn::Div(hn::Sub(v, power), v);
    const auto r = hn::Add(m, hn::Mul(hn::Sub(loadAs(dd, src + i), m), g));
    const auto out = toPixels<decltype(dd), T>(dd, hn::IfThenElse(hn::Gt(v, zero), r, m));
    if constexpr (kAlpha)
      storeColour(dt, out, dst + i, true, colourLanesAt(dt, static_cast<size_t>(i), 0));
    else
      hn::StoreU(out, dt, dst + i);
    phase = static_cast<int>((phase + N) % kCh);
  }
  for (; i < elems; ++i) {
    const int c = static_cast<int>(i % kCh);
    if (c >= L::kUse) continue;
    dst[i] = wiener::toPixel<T>(wiener::wienerValue(static_cast<double>(src[i]), s[i], q[i], p.n,
                                                    p.power[c]));
  }
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace wiener {
namespace {

template <class T, class L>
RangeRowFn<T> pickRangeRow() {
  LUMI_SIMD_TABLE(RangeRowFn<T>, table, rangeRow<T, L>);
  return pick(table, &rangeRowScalar<T, L>);
}
template <class T, class L>
SumRowFn<T> pickSumRow() {
  LUMI_SIMD_TABLE(SumRowFn<T>, table, sumRow<T, L::kCh>);
  return pick(table, &sumRowScalar<T, L::kCh>);
}
template <class T, class L>
FilterRowFn<T> pickFilterRow() {
  LUMI_SIMD_TABLE(FilterRowFn<T>, table, filterRow<T, L>);
  return pick(table, &filterRowScalar<T, L>);
}

// Below this magnitude (the single-precision machine epsilon) a noise value asks for the
// estimate.
constexpr float kNoiseEpsilon = 1.1920929e-7f;

// Floats per buffer line: the one-channel line holds an extended row, the multi-channel line
// one destination row (the mask width does not enter it), both rounded down to whole vectors
// of four after six elements of slack.
inline long long lineFloats(int width, int maskWidth, int channels) {
  const long long len = channels == 1 ? static_cast<long long>(width) + maskWidth + 6
                                      : static_cast<long long>(width) * channels + 6;
  return len & ~3LL;
}
constexpr int kLinesPerThread = 5;

// A thread's slice of the buffer (5 lines of at least W + 3 floats for W destination elements):
// S and Q (W doubles each), then per channel the band's sum of V (doubles) and its range
// (minima, maxima, as floats: every 8u, 16s and 32f value is one), 16 W + 64 bytes in all.
struct Slice {
  double* s;
  double* q;
  double* vsum;
  float* lo;
  float* hi;
  Slice(Lum8u* base, std::ptrdiff_t elems) {
    s = reinterpret_cast<double*>(base);
    q = s + elems;
    vsum = q + elems;
    lo = reinterpret_cast<float*>(vsum + 4);
    hi = lo + 4;
  }
};

// candidate for src/core: the scratch-region pattern over a caller-owned buffer. Runs
// body(y0, y1, slice) on one band of rows per thread of a team of at most `threads`, thread t
// using base + t x sliceBytes, and returns the size of the team that ran (its slices hold
// results). Nothing is allocated, so nothing can fail.
template <class Body>
int forRowsWithSlices(int height, int threads, Lum8u* base, std::size_t sliceBytes, Body&& body) {
  int team = 1;
#pragma omp parallel num_threads(threads) if (threads > 1)
  {
#pragma omp master
    team = omp_get_num_threads();
#pragma omp barrier
    int y0, y1;
    const int t = omp_get_thread_num();
    rowBand(height, t, team, &y0, &y1);
    if (y0 < y1) body(y0, y1, base + sliceBytes * static_cast<std::size_t>(t));
  }
  return team;
}

// Walks S and Q down rows [y0, y1) of the destination, calling row(y) once they hold row y's
// windows: the first window is summed whole, then each step adds source row y + mask.height
// and drops row y (rows of the source area, whose row 0 is the top of destination row 0's
// mask).
template <class T, class Row>
void walkSums(SumRowFn<T> sumRow, const T* area, int srcStep, std::ptrdiff_t elems,
              LumiSize mask, int y0, int y1, const Slice& sl, Row&& row) {
  std::fill(sl.s, sl.s + elems, 0.0);
  std::fill(sl.q, sl.q + elems, 0.0);
  for (int k = 0; k < mask.height; ++k)
    sumRow(rowAt(area, srcStep, y0 + k), nullptr, sl.s, sl.q, elems, mask.width);
  for (int y = y0; y < y1; ++y) {
    row(y);
    if (y + 1 < y1)
      sumRow(rowAt(area, srcStep, y + mask.height), rowAt(area, srcStep, y), sl.s, sl.q, elems,
             mask.width);
  }
}

// Steps in bytes become whole elements, as for the box filter.
template <class T>
int wholeElements(int step) {
  return step / static_cast<int>(sizeof(T)) * static_cast<int>(sizeof(T));
}

template <class T, class L>
LumStatus run(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
              LumiPoint anchor, Lum32f* noise, Lum8u* buffer) {
  constexpr int kCh = L::kCh, kUse = L::kUse;
  srcStep = wholeElements<T>(srcStep);
  dstStep = wholeElements<T>(dstStep);
  const std::ptrdiff_t elems = elemsOf(roi.width, kCh);
  const std::size_t sliceBytes = static_cast<std::size_t>(lineFloats(roi.width, mask.width, kCh)) *
                                 kLinesPerThread * sizeof(float);
  Lum8u* base = reinterpret_cast<Lum8u*>((reinterpret_cast<std::uintptr_t>(buffer) + 15) &
                                         ~static_cast<std::uintptr_t>(15));
  // The team the buffer was sized for is the largest one used.
  const bool parallel = static_cast<long long>(roi.width) * roi.height > 4096;
  int threads = parallel ? std::min(regionThreads(), omp_get_max_threads()) : 1;
  threads = std::max(1, std::min(threads, roi.height));

  const T* area = rowAt(src, srcStep, -anchor.y) - elemsOf(anchor.x, kCh);
  const int areaWidth = roi.width + mask.width - 1;
  const double n = static_cast<double>(mask.width) * mask.height;
  bool estimate[4] = {false, false, false, false};
  bool anyEstimate = false;
  for (int c = 0; c < kUse; ++c) anyEstimate |= estimate[c] = std::fabs(noise[c]) < kNoiseEpsilon;
  const SumRowFn<T> sumRow = pickSumRow<T, L>();
  const RangeRowFn<T> rangeRow = pickRangeRow<T, L>();

  // Region 1: the range over the band's rows of the source area (the last band also takes the
  // mask.height - 1 rows below the ROI) and the sums of V.
  const int team1 = forRowsWithSlices(roi.height, threads, base, sliceBytes, [&](int y0, int y1,
                                                                                 Lum8u* mine) {
    const Slice sl(mine, elems);
    const int last = y1 == roi.height ? y1 + mask.height - 1 : y1;
    T lo[4], hi[4];
    for (int c = 0; c < kUse; ++c) lo[c] = hi[c] = rowAt(area, srcStep, y0)[c];
    for (int y = y0; y < last; ++y) rangeRow(rowAt(area, srcStep, y), areaWidth, lo, hi);
    for (int c = 0; c < kUse; ++c) {
      sl.lo[c] = static_cast<float>(lo[c]);
      sl.hi[c] = static_cast<float>(hi[c]);
      sl.vsum[c] = 0.0;
    }
    if (!anyEstimate) return;
    walkSums(sumRow, area, srcStep, elems, mask, y0, y1, sl, [&](int) {
      // n V = n Q - S^2 summed along the row (exact integers for 8u and 16s until the sum
      // passes 2^53), one division per row.
      double rowSum[4] = {0, 0, 0, 0};
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < kUse; ++c) {
          const std::ptrdiff_t i = elemsOf(x, kCh) + c;
          rowSum[c] += sl.q[i] * n - sl.s[i] * sl.s[i];
        }
      for (int c = 0; c < kUse; ++c) sl.vsum[c] += rowSum[c] / n;
    });
  });

  // The noise power per channel; estimated channels learn their noise.
  RowParams p{n, {0, 0, 0, 0}};
  for (int c = 0; c < kUse; ++c) {
    double lo = 0, hi = 0, vsum = 0;
    for (int t = 0; t < team1; ++t) {
      const Slice sl(base + sliceBytes * static_cast<std::size_t>(t), elems);
      lo = t == 0 ? sl.lo[c] : std::min(lo, static_cast<double>(sl.lo[c]));
      hi = t == 0 ? sl.hi[c] : std::max(hi, static_cast<double>(sl.hi[c]));
      vsum += sl.vsum[c];
    }
    const double r2 = (hi - lo) * (hi - lo);
    if (!estimate[c]) {
      p.power[c] = static_cast<double>(noise[c]) * r2 * mask.width * mask.height;
    } else {
      const double mean = vsum / (static_cast<double>(roi.width) * roi.height);
      p.power[c] = mean;
      noise[c] = r2 > 0 ? static_cast<float>(mean * (1.0 / n) / r2) : 0.0f;
    }
  }

  // Region 2: the filter.
  const FilterRowFn<T> filterRow = pickFilterRow<T, L>();
  const T* centre = src;
  forRowsWithSlices(roi.height, threads, base, sliceBytes, [&](int y0, int y1, Lum8u* mine) {
    NearestRounding rounding;
    const Slice sl(mine, elems);
    walkSums(sumRow, area, srcStep, elems, mask, y0, y1, sl, [&](int y) {
      filterRow(rowAt(centre, srcStep, y), rowAt(dst, dstStep, y), sl.s, sl.q, roi.width, p);
    });
  });
  return lumStatusOk;
}

// Checks in the family's order: pointers, ROI, mask, anchor, steps, noise values.
template <class T, class L>
LumStatus wienerImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, LumiSize mask,
                     LumiPoint anchor, Lum32f* noise, Lum8u* buffer) {
  if (anyNull(src, dst, noise, buffer)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (mask.width < 2 || mask.height < 2) return lumStatusMaskSizeErr;
  if (anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height)
    return lumStatusAnchorErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  for (int c = 0; c < L::kUse; ++c)
    if (!(noise[c] >= 0.0f && noise[c] < 1.0f)) return lumStatusNoiseRangeErr;  // NaN too
  return run<T, L>(src, srcStep, dst, dstStep, roi, mask, anchor, noise, buffer);
}

}  // namespace
}  // namespace wiener
}  // namespace lumi

#define LUMI_FILTER_WIENER(NAME, T, L)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize dstRoiSize, \
                          LumiSize maskSize, LumiPoint anchor, Lum32f noise[], Lum8u* pBuffer) { \
    return wienerImpl<T, L>(pSrc, srcStep, pDst, dstStep, dstRoiSize, maskSize, anchor, noise,  \
                            pBuffer);                                                          \
  }

using namespace lumi;
using namespace lumi::wiener;

LUMI_API LumStatus lumiFilterWienerGetBufferSize(LumiSize dstRoiSize, LumiSize maskSize,
                                                 int channels, int* pBufferSize) {
  if (!pBufferSize) return lumStatusNullPtrErr;
  if (badSize(dstRoiSize)) return lumStatusSizeErr;
  if (channels != 1 && channels != 3 && channels != 4) return lumStatusChannelCountErr;
  if (maskSize.width < 2 || maskSize.height < 2) return lumStatusMaskSizeErr;
  const long long lines = static_cast<long long>(kLinesPerThread) * omp_get_max_threads();
  const long long bytes =
      lineFloats(dstRoiSize.width, maskSize.width, channels) * lines * 4 + 15;  // 15: alignment
  if (bytes > INT_MAX) return lumStatusMemAllocErr;
  *pBufferSize = static_cast<int>(bytes);
  return lumStatusOk;
}

LUMI_FILTER_WIENER(lumiFilterWiener_8u_C1R, Lum8u, C1)
LUMI_FILTER_WIENER(lumiFilterWiener_8u_C3R, Lum8u, C3)
LUMI_FILTER_WIENER(lumiFilterWiener_8u_C4R, Lum8u, C4)
LUMI_FILTER_WIENER(lumiFilterWiener_8u_AC4R, Lum8u, AC4)
LUMI_FILTER_WIENER(lumiFilterWiener_16s_C1R, Lum16s, C1)
LUMI_FILTER_WIENER(lumiFilterWiener_16s_C3R, Lum16s, C3)
LUMI_FILTER_WIENER(lumiFilterWiener_16s_C4R, Lum16s, C4)
LUMI_FILTER_WIENER(lumiFilterWiener_16s_AC4R, Lum16s, AC4)
LUMI_FILTER_WIENER(lumiFilterWiener_32f_C1R, Lum32f, C1)
LUMI_FILTER_WIENER(lumiFilterWiener_32f_C3R, Lum32f, C3)
LUMI_FILTER_WIENER(lumiFilterWiener_32f_C4R, Lum32f, C4)
LUMI_FILTER_WIENER(lumiFilterWiener_32f_AC4R, Lum32f, AC4)
#endif  // HWY_ONCE
