// Spatial, central, normalised and Hu moments up to order 3, per channel. A moment state is
// filled by one pass over the ROI and then queried as often as needed.
//
// The pass keeps, for every sample column, four iterated running sums down the rows
// (S1 += v, S2 += S1, S3 += S2, S4 += S3): additions only, in 32-bit lanes for 8u (exact for
// blocks of 128 rows) and in double lanes for 32f. At the end of each block the sums are
// turned into sum y^j v per column and folded into the moments with the column powers x^i.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/stats/moments.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"

#include <cmath>
#include <cstring>

#ifndef LUMI_MOMENTS_SCALAR_ONCE  // this file is read once per SIMD target
#define LUMI_MOMENTS_SCALAR_ONCE
namespace lumi {
namespace moments {

constexpr int kGroupRows = 8;  // rows folded into the running sums per load and store

// Iterated running sums of one row of n samples: s[0..n) is S1, s[n..2n) S2 and so on.
template <class T, class S>
inline void iterSumFrom(const T* p, int i0, int n, S* s) {
  for (int i = i0; i < n; ++i) {
    S a1 = s[i] + static_cast<S>(p[i]);
    S a2 = s[n + i] + a1;
    S a3 = s[2 * n + i] + a2;
    s[i] = a1;
    s[n + i] = a2;
    s[2 * n + i] = a3;
    s[3 * n + i] += a3;
  }
}

}  // namespace moments
}  // namespace lumi
#endif

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// `rows` (1 to kGroupRows) consecutive rows at once, so the running sums are loaded and stored once
// per group of rows.
template <class T, class S>
void iterSumRows(const T* HWY_RESTRICT p, int step, int rows, int n, S* HWY_RESTRICT s) {
  const hn::ScalableTag<S> d;
  const int N = static_cast<int>(hn::Lanes(d));
  const T* r[moments::kGroupRows];
  for (int k = 0; k < rows; ++k) r[k] = rowAt(p, step, k);
  int i = 0;
  for (; i + N <= n; i += N) {
    auto a1 = hn::LoadU(d, s + i), a2 = hn::LoadU(d, s + n + i);
    auto a3 = hn::LoadU(d, s + 2 * n + i), a4 = hn::LoadU(d, s + 3 * n + i);
    for (int k = 0; k < rows; ++k) {
      a1 = hn::Add(a1, loadAs(d, r[k] + i));
      a2 = hn::Add(a2, a1);
      a3 = hn::Add(a3, a2);
      a4 = hn::Add(a4, a3);
    }
    hn::StoreU(a1, d, s + i);
    hn::StoreU(a2, d, s + n + i);
    hn::StoreU(a3, d, s + 2 * n + i);
    hn::StoreU(a4, d, s + 3 * n + i);
  }
  for (int k = 0; k < rows; ++k) moments::iterSumFrom<T, S>(r[k], i, n, s);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE

namespace lumi {
namespace {

constexpr int32_t kTag64f = 33, kTag64s = 34;
constexpr double kMomentEps = 2.220446049250313e-16;

// 400 bytes: three header words, padding, 48 moments of 64 bits (16 per channel, m(i, j) at
// 4j + i; entries with i + j > 3 stay zero).
struct MomentState {
  int32_t tag;
  int32_t hint;
  int32_t channels;
  int32_t reserved;
  union Values {
    double f[48];
    int64_t s[48];
  } m;
};
static_assert(sizeof(MomentState) == 400, "the moment state is 400 bytes");

inline MomentState* asState(void* p) { return static_cast<MomentState*>(p); }
inline const MomentState* asState(const void* p) { return static_cast<const MomentState*>(p); }

void initState(MomentState* s, int32_t tag, int hint) {
  std::memset(s, 0, sizeof(*s));
  s->tag = tag;
  s->hint = hint;
  s->channels = -1;
}

constexpr int kBlockRows = 128;  // 8u: S4 stays below 2^32 (C(131, 4) * 255)

template <class T, class S>
using IterSumRowsFn = void (*)(const T*, int, int, int, S*);
template <class T, class S>
void iterSumRowsScalar(const T* p, int step, int rows, int n, S* s) {
  for (int k = 0; k < rows; ++k) moments::iterSumFrom<T, S>(rowAt(p, step, k), 0, n, s);
}
template <class T, class S>
IterSumRowsFn<T, S> pickIterSumRows() {
  using Fn = IterSumRowsFn<T, S>;  // one macro argument
  LUMI_SIMD_TABLE(Fn, table, iterSumRows<T, S>);
  return pick(table, &iterSumRowsScalar<T, S>);
}

// Folds one block of k rows starting at row y0 into the moments m (16 per channel) and clears
// the running sums. The block's own moments (rows counted from the block start) are formed in
// the wide column type W (int64_t for 8u, exact; double for 32f) and then moved down to row y0
// in the state's element type M, so large row numbers never meet the exact column sums.
template <class S, class W, class M>
void foldBlock(S* s, int n, int ch, int use, W k, M y0, M* m) {
  M dm[4][16] = {};
  const M yp[4] = {1, y0, y0 * y0, y0 * y0 * y0};
  int x = 0, q = 0;
  for (int e = 0; e < n; ++e) {
    const W s1 = static_cast<W>(s[e]), s2 = static_cast<W>(s[n + e]), s3 = static_cast<W>(s[2 * n + e]),
            s4 = static_cast<W>(s[3 * n + e]);
    // with u = k - r (1..k) for the block row r: sum u v = S2, sum u^2 v = 2 S3 - S2,
    // sum u^3 v = 6 S4 - 6 S3 + S2
    const W t0 = s1, t1 = s2, t2 = 2 * s3 - s2, t3 = 6 * s4 - 6 * s3 + s2;
    if (q < use) {
      const W r[4] = {t0, k * t0 - t1, k * k * t0 - 2 * k * t1 + t2,
                      k * k * k * t0 - 3 * k * k * t1 + 3 * k * t2 - t3};
      // sum (y0 + r)^j v by the binomial expansion
      const M r0 = static_cast<M>(r[0]), r1 = static_cast<M>(r[1]), r2 = static_cast<M>(r[2]),
              r3 = static_cast<M>(r[3]);
      const M p[4] = {r0, yp[1] * r0 + r1, yp[2] * r0 + 2 * yp[1] * r1 + r2,
                      yp[3] * r0 + 3 * yp[2] * r1 + 3 * yp[1] * r2 + r3};
      const M x1 = static_cast<M>(x), xp[4] = {1, x1, x1 * x1, x1 * x1 * x1};
      M* d = dm[q];
      for (int j = 0; j <= 3; ++j)
        for (int i = 0; i + j <= 3; ++i) d[4 * j + i] += xp[i] * p[j];
    }
    if (++q == ch) q = 0, ++x;
  }
  for (int c = 0; c < use; ++c)
    for (int t = 0; t < 16; ++t) m[16 * c + t] += dm[c][t];
  std::memset(s, 0, sizeof(S) * 4 * static_cast<std::size_t>(n));
}

// Accumulates all moments of a ROI of kCh-channel pixels (the first `use` channels) into m.
template <class T, class S, class W, class M>
LumStatus accumulateMoments(const T* src, int step, LumiSize roi, int ch, int use, M* m) {
  const std::ptrdiff_t elems = elemsOf(roi.width, ch);
  if (elems * 4 * static_cast<std::ptrdiff_t>(sizeof(S)) > 0x7fffffff) return lumStatusMemAllocErr;
  const int n = static_cast<int>(elems);
  const std::size_t bytes = sizeof(S) * 4 * static_cast<std::size_t>(n);
  S* s = reinterpret_cast<S*>(lumsMalloc_8u(static_cast<int>(bytes)));
  if (s == nullptr) return lumStatusMemAllocErr;
  std::memset(s, 0, bytes);
  const IterSumRowsFn<T, S> f = pickIterSumRows<T, S>();
  for (int y0 = 0; y0 < roi.height; y0 += kBlockRows) {
    const int y1 = y0 + kBlockRows < roi.height ? y0 + kBlockRows : roi.height;
    for (int y = y0; y < y1; y += moments::kGroupRows)
      f(rowAt(src, step, y), step, y1 - y < moments::kGroupRows ? y1 - y : moments::kGroupRows, n, s);
    foldBlock<S, W, M>(s, n, ch, use, static_cast<W>(y1 - y0), static_cast<M>(y0), m);
  }
  lumsFree(s);
  return lumStatusOk;
}

template <class T, class L, bool kExact>
LumStatus momentsImpl(const T* src, int step, LumiSize roi, void* state, int rowBytesPerPixel) {
  if (anyNull(src, static_cast<const char*>(state))) return lumStatusNullPtrErr;
  MomentState* s = asState(state);
  if (s->tag != (kExact ? kTag64s : kTag64f)) return lumStatusContextMismatchErr;
  if (badStep(step)) return lumStatusStepErr;  // steps before sizes here
  if (badSize(roi)) return lumStatusSizeErr;
  if (rowBytesPerPixel > 0 &&
      static_cast<std::ptrdiff_t>(step) < elemsOf(roi.width, rowBytesPerPixel))
    return lumStatusStepBelowRowErr;
  MomentState::Values m{};
  LumStatus st;
  if constexpr (kExact)
    st = accumulateMoments<T, uint32_t, int64_t, int64_t>(src, step, roi, L::kCh, L::kUse, m.s);
  else if constexpr (std::is_integral_v<T>)
    st = accumulateMoments<T, uint32_t, int64_t, double>(src, step, roi, L::kCh, L::kUse, m.f);
  else
    st = accumulateMoments<T, double, double, double>(src, step, roi, L::kCh, L::kUse, m.f);
  if (st != lumStatusOk) return st;
  s->m = m;
  s->channels = L::kUse;
  return lumStatusOk;
}

// ---- queries -------------------------------------------------------------------------------
constexpr double kBinom[4][4] = {{1, 0, 0, 0}, {1, 1, 0, 0}, {1, 2, 1, 0}, {1, 3, 3, 1}};

struct Moments {
  double m[16];
  double at(int i, int j) const { return m[4 * j + i]; }
};

LumStatus loadMoments(const void* state, int32_t tag, int i, int j, int channel, const void* out,
                      Moments* mo) {
  if (anyNull(static_cast<const char*>(state), static_cast<const char*>(out)))
    return lumStatusNullPtrErr;
  const MomentState* s = asState(state);
  if (s->tag != tag) return lumStatusContextMismatchErr;
  // each order alone first: i + j must not be formed from orders near INT_MAX
  if (i < 0 || j < 0 || i > 3 || j > 3 || i + j > 3) return lumStatusSizeErr;
  if (channel < 0 || channel >= s->channels) return lumStatusChannelIndexErr;
  for (int k = 0; k < 16; ++k)
    mo->m[k] = tag == kTag64s ? static_cast<double>(s->m.s[16 * channel + k]) : s->m.f[16 * channel + k];
  return lumStatusOk;
}

// sum over a <= i, b <= j of C(i, a) C(j, b) ox^(i-a) oy^(j-b) m(a, b)
double shifted(const Moments& mo, int i, int j, double ox, double oy) {
  double v = 0;
  for (int a = 0; a <= i; ++a)
    for (int b = 0; b <= j; ++b)
      v += kBinom[i][a] * kBinom[j][b] * std::pow(ox, i - a) * std::pow(oy, j - b) * mo.at(a, b);
  return v;
}

double central(const Moments& mo, int i, int j) {
  double m00 = mo.at(0, 0);
  return shifted(mo, i, j, -mo.at(1, 0) / m00, -mo.at(0, 1) / m00);
}

bool zeroMass(const Moments& mo) { return !(std::fabs(mo.at(0, 0)) > kMomentEps); }

LumStatus spatial(const void* st, int32_t tag, int i, int j, int ch, LumiPoint off, Lum64f* v,
                  bool normalised) {
  Moments mo;
  LumStatus s = loadMoments(st, tag, i, j, ch, v, &mo);
  if (s != lumStatusOk) return s;
  if (normalised && zeroMass(mo)) return lumStatusMomentZeroErr;
  double r = shifted(mo, i, j, off.x, off.y);
  if (normalised) r *= std::pow(mo.at(0, 0), -(i + j + 2) / 2.0);
  *v = r;
  return lumStatusOk;
}

LumStatus centralQuery(const void* st, int32_t tag, int i, int j, int ch, Lum64f* v,
                       bool normalised) {
  Moments mo;
  LumStatus s = loadMoments(st, tag, i, j, ch, v, &mo);
  if (s != lumStatusOk) return s;
  if (zeroMass(mo)) return lumStatusMomentZeroErr;
  double r = central(mo, i, j);
  if (normalised) r *= std::pow(mo.at(0, 0), -(i + j + 2) / 2.0);
  *v = r;
  return lumStatusOk;
}

LumStatus huMoments(const void* st, int32_t tag, int ch, Lum64f* hu) {
  Moments mo;
  LumStatus s = loadMoments(st, tag, 0, 0, ch, hu, &mo);
  if (s != lumStatusOk) return s;
  if (zeroMass(mo)) return lumStatusMomentZeroErr;
  const double m00 = mo.at(0, 0);
  const double s2 = 1.0 / (m00 * m00), s3 = 1.0 / (std::sqrt(m00) * m00 * m00);
  const double n20 = central(mo, 2, 0) * s2, n11 = central(mo, 1, 1) * s2,
               n02 = central(mo, 0, 2) * s2;
  const double n30 = central(mo, 3, 0) * s3, n21 = central(mo, 2, 1) * s3,
               n12 = central(mo, 1, 2) * s3, n03 = central(mo, 0, 3) * s3;
  const double a = n30 + n12, b = n21 + n03, p = n30 - 3 * n12, q = 3 * n21 - n03;
  hu[0] = n20 + n02;
  hu[1] = (n20 - n02) * (n20 - n02) + 4 * n11 * n11;
  hu[2] = p * p + q * q;
  hu[3] = a * a + b * b;
  hu[4] = p * a * (a * a - 3 * b * b) + q * b * (3 * a * a - b * b);
  hu[5] = (n20 - n02) * (a * a - b * b) + 4 * n11 * a * b;
  hu[6] = q * a * (a * a - 3 * b * b) - p * b * (3 * a * a - b * b);
  return lumStatusOk;
}

LumStatus initAlloc(void** pp, int32_t tag, int hint) {
  if (pp == nullptr) return lumStatusNullPtrErr;
  auto* s = reinterpret_cast<MomentState*>(lumsMalloc_8u(static_cast<int>(sizeof(MomentState))));
  if (s == nullptr) return lumStatusMemAllocErr;
  initState(s, tag, hint);
  *pp = s;
  return lumStatusOk;
}

LumStatus freeState(void* p, int32_t tag) {
  if (p == nullptr) return lumStatusNullPtrErr;
  if (asState(p)->tag != tag) return lumStatusContextMismatchErr;
  lumsFree(p);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

using namespace lumi;

// Tag of each state kind: 64f keeps the moments in double, 64s exactly in 64-bit integers.
template <class S>
constexpr int32_t tagOf() {
  return std::is_same_v<S, LumiMomentState_64s> ? kTag64s : kTag64f;
}

// One stamp per export. ROWBYTES is the step a ROI row needs per pixel (0: not checked).
#define LUMI_MOMENTS(NAME, T, L, S, ROWBYTES)                                                \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roiSize, S* pCtx) {           \
    return momentsImpl<T, L, tagOf<S>() == kTag64s>(pSrc, srcStep, roiSize, pCtx, ROWBYTES); \
  }
#define LUMI_SPATIAL_MOMENT(NAME, S, NORMALISED)                                           \
  LUMI_API LumStatus NAME(const S* pState, int mOrd, int nOrd, int nChannel,               \
                          LumiPoint roiOffset, Lum64f* pValue) {                           \
    return spatial(pState, tagOf<S>(), mOrd, nOrd, nChannel, roiOffset, pValue, NORMALISED); \
  }
#define LUMI_CENTRAL_MOMENT(NAME, S, NORMALISED)                                               \
  LUMI_API LumStatus NAME(const S* pState, int mOrd, int nOrd, int nChannel, Lum64f* pValue) { \
    return centralQuery(pState, tagOf<S>(), mOrd, nOrd, nChannel, pValue, NORMALISED);         \
  }
#define LUMI_HU_MOMENTS(NAME, S)                                                   \
  LUMI_API LumStatus NAME(const S* pState, int nChannel, Lum64f pHm[7]) {          \
    return huMoments(pState, tagOf<S>(), nChannel, pHm);                           \
  }
#define LUMI_MOMENT_ALLOC(NAME, S)                                                 \
  LUMI_API LumStatus NAME(S** ppState, LumAccuracyHint hint) {                     \
    return initAlloc(reinterpret_cast<void**>(ppState), tagOf<S>(), hint);         \
  }
#define LUMI_MOMENT_FREE(NAME, S) \
  LUMI_API LumStatus NAME(S* pState) { return freeState(pState, tagOf<S>()); }

LUMI_MOMENT_ALLOC(lumiMomentInitAlloc_64f, LumiMomentState_64f)
LUMI_MOMENT_ALLOC(lumiMomentInitAlloc_64s, LumiMomentState_64s)
LUMI_MOMENT_FREE(lumiMomentFree_64f, LumiMomentState_64f)
LUMI_MOMENT_FREE(lumiMomentFree_64s, LumiMomentState_64s)
LUMI_API LumStatus lumiMomentGetStateSize_64s(LumAccuracyHint hint, int* pSize) {
  if (pSize == nullptr) return lumStatusNullPtrErr;
  *pSize = static_cast<int>(sizeof(MomentState));
  return lumStatusOk;
}
LUMI_API LumStatus lumiMomentInit_64s(LumiMomentState_64s* pState, LumAccuracyHint hint) {
  if (pState == nullptr) return lumStatusNullPtrErr;
  initState(asState(pState), kTag64s, hint);
  return lumStatusOk;
}

// The step must hold one ROI row: width for 8u C1, 3 * width for 8u C3, 4 * width for 8u AC4
// and 32f C1; the 32f C3 and AC4 forms do not test it.
LUMI_MOMENTS(lumiMoments64f_8u_C1R, Lum8u, C1, LumiMomentState_64f, 1)
LUMI_MOMENTS(lumiMoments64f_8u_C3R, Lum8u, C3, LumiMomentState_64f, 3)
LUMI_MOMENTS(lumiMoments64f_8u_AC4R, Lum8u, AC4, LumiMomentState_64f, 4)
LUMI_MOMENTS(lumiMoments64f_32f_C1R, Lum32f, C1, LumiMomentState_64f, 4)
LUMI_MOMENTS(lumiMoments64f_32f_C3R, Lum32f, C3, LumiMomentState_64f, 0)
LUMI_MOMENTS(lumiMoments64f_32f_AC4R, Lum32f, AC4, LumiMomentState_64f, 0)
LUMI_MOMENTS(lumiMoments64s_8u_C1R, Lum8u, C1, LumiMomentState_64s, 1)
LUMI_MOMENTS(lumiMoments64s_8u_C3R, Lum8u, C3, LumiMomentState_64s, 3)
LUMI_MOMENTS(lumiMoments64s_8u_AC4R, Lum8u, AC4, LumiMomentState_64s, 4)

LUMI_SPATIAL_MOMENT(lumiGetSpatialMoment_64f, LumiMomentState_64f, false)
LUMI_SPATIAL_MOMENT(lumiGetSpatialMoment_64s, LumiMomentState_64s, false)
LUMI_SPATIAL_MOMENT(lumiGetNormalizedSpatialMoment_64f, LumiMomentState_64f, true)
LUMI_SPATIAL_MOMENT(lumiGetNormalizedSpatialMoment_64s, LumiMomentState_64s, true)
LUMI_CENTRAL_MOMENT(lumiGetCentralMoment_64f, LumiMomentState_64f, false)
LUMI_CENTRAL_MOMENT(lumiGetCentralMoment_64s, LumiMomentState_64s, false)
LUMI_CENTRAL_MOMENT(lumiGetNormalizedCentralMoment_64f, LumiMomentState_64f, true)
LUMI_CENTRAL_MOMENT(lumiGetNormalizedCentralMoment_64s, LumiMomentState_64s, true)
LUMI_HU_MOMENTS(lumiGetHuMoments_64f, LumiMomentState_64f)
LUMI_HU_MOMENTS(lumiGetHuMoments_64s, LumiMomentState_64s)
#endif
