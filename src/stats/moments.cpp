// Spatial, central, normalised and Hu moments up to order 3, per channel. A moment state is
// filled by one pass over the ROI and then queried as often as needed.
#include "core/frame.h"

#include <cmath>
#include <cstring>


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
  union {
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

// Per-row power sums s_k = sum over x of x^k * I(x), k = 0..3, for each channel.
template <class T, int kCh, class Acc>
inline void rowPowerSums(const T* r, int width, Acc (*s)[4]) {
  for (int c = 0; c < kCh; ++c) s[c][0] = s[c][1] = s[c][2] = s[c][3] = 0;
  for (int x = 0; x < width; ++x) {
    const Acc x1 = static_cast<Acc>(x), x2 = x1 * x1, x3 = x2 * x1;
    for (int c = 0; c < kCh; ++c) {
      const Acc v = static_cast<Acc>(r[x * kCh + c]);
      s[c][0] += v;
      s[c][1] += x1 * v;
      s[c][2] += x2 * v;
      s[c][3] += x3 * v;
    }
  }
}

// Accumulates m(i, j) = sum y^j * s_i(y) over the rows. Acc is int64_t (exact, 8u) or double;
// M is the state's element type.
template <class T, int kCh, int kUse, class Acc, class M>
void accumulateMoments(const T* src, int step, LumiSize roi, M* out) {
  for (int c = 0; c < kUse; ++c)
    for (int k = 0; k < 16; ++k) out[16 * c + k] = 0;
  for (int y = 0; y < roi.height; ++y) {
    Acc s[kCh][4];
    rowPowerSums<T, kCh, Acc>(rowAt(src, step, y), roi.width, s);
    const M y1 = static_cast<M>(y), yp[4] = {1, y1, y1 * y1, y1 * y1 * y1};
    for (int c = 0; c < kUse; ++c) {
      M* m = out + 16 * c;
      for (int j = 0; j <= 3; ++j)
        for (int i = 0; i + j <= 3; ++i) m[4 * j + i] += yp[j] * static_cast<M>(s[c][i]);
    }
  }
}

template <class T, class L, bool kExact>
LumStatus momentsImpl(const T* src, int step, LumiSize roi, void* state, int rowBytesPerPixel) {
  if (anyNull(src, static_cast<const char*>(state))) return lumStatusNullPtrErr;
  MomentState* s = asState(state);
  if (s->tag != (kExact ? kTag64s : kTag64f)) return lumStatusContextMismatchErr;
  if (badStep(step)) return lumStatusStepErr;  // steps before sizes here
  if (badSize(roi)) return lumStatusSizeErr;
  if (rowBytesPerPixel > 0 &&
      static_cast<int64_t>(step) < static_cast<int64_t>(roi.width) * rowBytesPerPixel)
    return lumStatusStepBelowRowErr;
  std::memset(&s->m, 0, sizeof(s->m));
  s->channels = L::kUse;
  if constexpr (kExact)
    accumulateMoments<T, L::kCh, L::kUse, int64_t>(src, step, roi, s->m.s);
  else if constexpr (std::is_integral_v<T>)
    accumulateMoments<T, L::kCh, L::kUse, int64_t>(src, step, roi, s->m.f);
  else
    accumulateMoments<T, L::kCh, L::kUse, double>(src, step, roi, s->m.f);
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
  if (i < 0 || j < 0 || i + j > 3) return lumStatusSizeErr;
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

using lumi::AC4;
using lumi::C1;
using lumi::C3;
using namespace lumi;

extern "C" {
LUMI_API LumStatus lumiMomentInitAlloc_64f(LumiMomentState_64f** ppState, LumAccuracyHint hint) {
  return initAlloc(reinterpret_cast<void**>(ppState), kTag64f, hint);
}
LUMI_API LumStatus lumiMomentInitAlloc_64s(LumiMomentState_64s** ppState, LumAccuracyHint hint) {
  return initAlloc(reinterpret_cast<void**>(ppState), kTag64s, hint);
}
LUMI_API LumStatus lumiMomentFree_64f(LumiMomentState_64f* pState) { return freeState(pState, kTag64f); }
LUMI_API LumStatus lumiMomentFree_64s(LumiMomentState_64s* pState) { return freeState(pState, kTag64s); }
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
LUMI_API LumStatus lumiMoments64f_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                         LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum8u, C1, false>(pSrc, srcStep, roiSize, pCtx, 1);
}
LUMI_API LumStatus lumiMoments64f_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                         LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum8u, C3, false>(pSrc, srcStep, roiSize, pCtx, 3);
}
LUMI_API LumStatus lumiMoments64f_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                          LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum8u, AC4, false>(pSrc, srcStep, roiSize, pCtx, 4);
}
LUMI_API LumStatus lumiMoments64f_32f_C1R(const Lum32f* pSrc, int srcStep, LumiSize roiSize,
                                          LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum32f, C1, false>(pSrc, srcStep, roiSize, pCtx, 4);
}
LUMI_API LumStatus lumiMoments64f_32f_C3R(const Lum32f* pSrc, int srcStep, LumiSize roiSize,
                                          LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum32f, C3, false>(pSrc, srcStep, roiSize, pCtx, 0);
}
LUMI_API LumStatus lumiMoments64f_32f_AC4R(const Lum32f* pSrc, int srcStep, LumiSize roiSize,
                                           LumiMomentState_64f* pCtx) {
  return momentsImpl<Lum32f, AC4, false>(pSrc, srcStep, roiSize, pCtx, 0);
}
LUMI_API LumStatus lumiMoments64s_8u_C1R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                         LumiMomentState_64s* pCtx) {
  return momentsImpl<Lum8u, C1, true>(pSrc, srcStep, roiSize, pCtx, 1);
}
LUMI_API LumStatus lumiMoments64s_8u_C3R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                         LumiMomentState_64s* pCtx) {
  return momentsImpl<Lum8u, C3, true>(pSrc, srcStep, roiSize, pCtx, 3);
}
LUMI_API LumStatus lumiMoments64s_8u_AC4R(const Lum8u* pSrc, int srcStep, LumiSize roiSize,
                                          LumiMomentState_64s* pCtx) {
  return momentsImpl<Lum8u, AC4, true>(pSrc, srcStep, roiSize, pCtx, 4);
}

#define LUMI_MOMENT_QUERIES(K, TAG)                                                              \
  LUMI_API LumStatus lumiGetSpatialMoment_##K(const LumiMomentState_##K* pState, int mOrd,      \
                                              int nOrd, int nChannel, LumiPoint roiOffset,      \
                                              Lum64f* pValue) {                                 \
    return spatial(pState, TAG, mOrd, nOrd, nChannel, roiOffset, pValue, false);                \
  }                                                                                              \
  LUMI_API LumStatus lumiGetNormalizedSpatialMoment_##K(const LumiMomentState_##K* pState,      \
                                                        int mOrd, int nOrd, int nChannel,       \
                                                        LumiPoint roiOffset, Lum64f* pValue) {  \
    return spatial(pState, TAG, mOrd, nOrd, nChannel, roiOffset, pValue, true);                 \
  }                                                                                              \
  LUMI_API LumStatus lumiGetCentralMoment_##K(const LumiMomentState_##K* pState, int mOrd,      \
                                              int nOrd, int nChannel, Lum64f* pValue) {         \
    return centralQuery(pState, TAG, mOrd, nOrd, nChannel, pValue, false);                      \
  }                                                                                              \
  LUMI_API LumStatus lumiGetNormalizedCentralMoment_##K(const LumiMomentState_##K* pState,      \
                                                        int mOrd, int nOrd, int nChannel,       \
                                                        Lum64f* pValue) {                       \
    return centralQuery(pState, TAG, mOrd, nOrd, nChannel, pValue, true);                       \
  }                                                                                              \
  LUMI_API LumStatus lumiGetHuMoments_##K(const LumiMomentState_##K* pState, int nChannel,      \
                                          Lum64f pHm[7]) {                                      \
    return huMoments(pState, TAG, nChannel, pHm);                                               \
  }

LUMI_MOMENT_QUERIES(64f, kTag64f)
LUMI_MOMENT_QUERIES(64s, kTag64s)
}
