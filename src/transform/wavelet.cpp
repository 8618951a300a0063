// One level of the separable 2-D wavelet transform, analysis and synthesis, with the caller's
// filters. Along each axis the analysis filter is out(i) = sum_k t[k] src(2i + a - k) and the
// synthesis filter out(n) = sum_k t[k] up(n + a - k), up holding band(i) at 2i and zeros
// between.
//
// Work per destination row: a vertical pass sums whole source rows (each times its tap) into
// one row of the work buffer, then the horizontal pass filters that row. The analysis row is
// kept split into its even and odd columns, so that the horizontal down-sampling filter reads
// contiguous samples for every tap; the synthesis row yields the even and odd output columns
// separately and interleaves them on the store. Columns go in strips of 256 sub-band columns
// while at least 257 remain; the rest (up to 256) goes through the same routine as one narrow
// strip, so the result never depends on the split.
//
// Vector kernels (one-channel rows) do the same multiplications and additions in the same order
// as the plain ones (no fused multiply-adds), so both give identical results.
#include <algorithm>
#include <cstdint>
#include <cstring>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/transform/wavelet.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "lumi/wavelet.h"
#include "transform/wavelet_kernels.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

void accSplit(float* HWY_RESTRICT e, float* HWY_RESTRICT o, const float* HWY_RESTRICT row,
              float w, int cnt) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto vw = hn::Set(d, w);
  int p = 0;
  for (; 2 * (p + N) <= cnt; p += N) {
    hn::Vec<decltype(d)> ev, od;
    hn::LoadInterleaved2(d, row + 2 * p, ev, od);
    hn::StoreU(hn::Add(hn::LoadU(d, e + p), hn::Mul(vw, ev)), d, e + p);
    hn::StoreU(hn::Add(hn::LoadU(d, o + p), hn::Mul(vw, od)), d, o + p);
  }
  wavelet::accSplitFrom<1>(p, e, o, row, w, cnt);
}

void accRow(float* HWY_RESTRICT buf, const float* HWY_RESTRICT row, float w, int cnt) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto vw = hn::Set(d, w);
  int j = 0;
  for (; j + N <= cnt; j += N)
    hn::StoreU(hn::Add(hn::LoadU(d, buf + j), hn::Mul(vw, hn::LoadU(d, row + j))), d, buf + j);
  wavelet::accRowFrom<1>(j, buf, row, w, cnt);
}

void analyse(const float* HWY_RESTRICT e, const float* HWY_RESTRICT o, const float* t, int len,
             int c, float* HWY_RESTRICT out, int n) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  int i = 0;
  for (; i + N <= n; i += N) {
    auto acc = hn::Zero(d);
    for (int k = 0; k < len; ++k) {
      const int q = c - k;
      const float* src = ((q & 1) ? o : e) + i + (q >> 1);
      acc = hn::Add(acc, hn::Mul(hn::Set(d, t[k]), hn::LoadU(d, src)));
    }
    hn::StoreU(acc, d, out + i);
  }
  wavelet::analyseFrom<1>(i, e, o, t, len, c, out, n);
}

void synth(const wavelet::SynthFilter& lo, const float* HWY_RESTRICT rl,
           const wavelet::SynthFilter& hi, const float* HWY_RESTRICT rh, float* HWY_RESTRICT out,
           int n) {
  const hn::ScalableTag<float> d;
  const int N = static_cast<int>(hn::Lanes(d));
  int j = 0;
  for (; j + N <= n; j += N) {
    hn::Vec<decltype(d)> acc[2];
    for (int e = 0; e < 2; ++e) {
      acc[e] = hn::Zero(d);
      for (int k = (e + lo.anchor) & 1; k < lo.len; k += 2)
        acc[e] = hn::Add(acc[e], hn::Mul(hn::Set(d, lo.t[k]),
                                         hn::LoadU(d, rl + j + ((e + lo.anchor - k) >> 1) + lo.margin)));
      for (int k = (e + hi.anchor) & 1; k < hi.len; k += 2)
        acc[e] = hn::Add(acc[e], hn::Mul(hn::Set(d, hi.t[k]),
                                         hn::LoadU(d, rh + j + ((e + hi.anchor - k) >> 1) + hi.margin)));
    }
    hn::StoreInterleaved2(acc[0], acc[1], d, out + 2 * j);
  }
  wavelet::synthFrom<1>(j, lo, rl, hi, rh, out, n);
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace wavelet {

constexpr int kFwdTag = 46, kInvTag = 47;
constexpr int kStrip = 256;  // sub-band columns per strip

// One filter of a record: its taps (a copy), anchor, right extent and anchor - 1.
struct Filter {
  float* taps;
  int len, anchor, rightExt, anchorM1;
};

}  // namespace wavelet
}  // namespace lumi

// The records: the tag first, then the low-pass and high-pass filters.
struct LumiWTFwdSpec {
  int32_t tag;
  lumi::wavelet::Filter low, high;
  int maxRightExt, maxAnchorM1, workLen, bufSize;
};
struct LumiWTInvSpec {
  int32_t tag;
  lumi::wavelet::Filter low, high;
  int workLow, workHigh, bufSize;
};

namespace lumi {
namespace wavelet {
namespace {

using AccSplitFn = void (*)(float*, float*, const float*, float, int);
using AccRowFn = void (*)(float*, const float*, float, int);
using AnalyseFn = void (*)(const float*, const float*, const float*, int, int, float*, int);
using SynthFn = void (*)(const SynthFilter&, const float*, const SynthFilter&, const float*,
                         float*, int);

template <int kCh>
void accSplitScalar(float* e, float* o, const float* row, float w, int cnt) {
  accSplitFrom<kCh>(0, e, o, row, w, cnt);
}
template <int kCh>
void accRowScalar(float* buf, const float* row, float w, int cnt) {
  accRowFrom<kCh>(0, buf, row, w, cnt);
}
template <int kCh>
void analyseScalar(const float* e, const float* o, const float* t, int len, int c, float* out,
                   int n) {
  analyseFrom<kCh>(0, e, o, t, len, c, out, n);
}
template <int kCh>
void synthScalar(const SynthFilter& lo, const float* rl, const SynthFilter& hi, const float* rh,
                 float* out, int n) {
  synthFrom<kCh>(0, lo, rl, hi, rh, out, n);
}

// Interleaved three-channel rows keep the plain kernels.
template <int kCh>
AccSplitFn pickAccSplit() {
  if constexpr (kCh != 1) return &accSplitScalar<kCh>;
  LUMI_SIMD_TABLE(AccSplitFn, table, accSplit);
  return pick(table, &accSplitScalar<1>);
}
template <int kCh>
AccRowFn pickAccRow() {
  if constexpr (kCh != 1) return &accRowScalar<kCh>;
  LUMI_SIMD_TABLE(AccRowFn, table, accRow);
  return pick(table, &accRowScalar<1>);
}
template <int kCh>
AnalyseFn pickAnalyse() {
  if constexpr (kCh != 1) return &analyseScalar<kCh>;
  LUMI_SIMD_TABLE(AnalyseFn, table, analyse);
  return pick(table, &analyseScalar<1>);
}
template <int kCh>
SynthFn pickSynth() {
  if constexpr (kCh != 1) return &synthScalar<kCh>;
  LUMI_SIMD_TABLE(SynthFn, table, synth);
  return pick(table, &synthScalar<1>);
}

// ---- records ----------------------------------------------------------------------------------
int roundUp32(long long v) { return static_cast<int>((v + 31) & ~31LL); }

bool filterOk(const Filter& f) { return f.taps != nullptr && f.len >= 2 && f.rightExt >= 0; }

LumStatus checkInit(const void* pp, const Lum32f* tl, int ll, int al, const Lum32f* th, int lh,
                    int ah) {
  if (anyNull(pp, tl, th)) return lumStatusNullPtrErr;
  if (ll < 2 || lh < 2) return lumStatusSizeErr;
  if (al < 0 || al >= ll || ah < 0 || ah >= lh) return lumStatusAnchorErr;
  return lumStatusOk;
}

bool makeFilter(Filter* f, const Lum32f* taps, int len, int anchor) {
  f->taps = lumsMalloc_32f(len);
  if (!f->taps) return false;
  std::memcpy(f->taps, taps, sizeof(float) * static_cast<std::size_t>(len));
  f->len = len;
  f->anchor = anchor;
  f->rightExt = len - anchor - 1;
  f->anchorM1 = anchor - 1;
  return true;
}

template <class R>
void freeRecord(R* r) {
  lumsFree(r->low.taps);
  lumsFree(r->high.taps);
  r->tag = 0;
  lumsFree(r);
}

template <class R>
LumStatus initRecord(R** pp, const Lum32f* tl, int ll, int al, const Lum32f* th, int lh, int ah) {
  LumStatus st = checkInit(pp, tl, ll, al, th, lh, ah);
  if (st != lumStatusOk) return st;
  R* r = reinterpret_cast<R*>(lumsMalloc_8u(static_cast<int>(sizeof(R))));
  if (!r) return lumStatusMemAllocErr;
  std::memset(r, 0, sizeof(R));
  if (!makeFilter(&r->low, tl, ll, al) || !makeFilter(&r->high, th, lh, ah)) {
    freeRecord(r);
    return lumStatusMemAllocErr;
  }
  if constexpr (std::is_same_v<R, LumiWTFwdSpec>) {
    r->tag = kFwdTag;
    r->maxRightExt = std::max(r->low.rightExt, r->high.rightExt);
    r->maxAnchorM1 = std::max(r->low.anchorM1, r->high.anchorM1);
    r->workLen = r->maxRightExt + r->maxAnchorM1 + 2 * kStrip;
    r->bufSize = roundUp32(4LL * r->workLen);
  } else {
    r->tag = kInvTag;
    r->workLow = r->low.rightExt + r->low.anchor + kStrip;
    r->workHigh = r->high.rightExt + r->high.anchor + kStrip;
    r->bufSize = roundUp32(4LL * (r->workLow + r->workHigh));
  }
  *pp = r;
  return lumStatusOk;
}

template <class R>
bool recordOk(const R* r) {
  const int tag = std::is_same_v<R, LumiWTFwdSpec> ? kFwdTag : kInvTag;
  return r->tag == tag && filterOk(r->low) && filterOk(r->high);
}

template <class R>
LumStatus freeImpl(R* r) {
  if (!r) return lumStatusNullPtrErr;
  if (!recordOk(r)) return lumStatusContextMismatchErr;
  freeRecord(r);
  return lumStatusOk;
}

template <class R>
LumStatus bufSizeImpl(const R* r, int* pSize) {
  if (anyNull(r, pSize)) return lumStatusNullPtrErr;
  if (!recordOk(r)) return lumStatusContextMismatchErr;
  *pSize = r->bufSize;
  return lumStatusOk;
}

// The caller's buffer holds floats; the kernels load and store unaligned.
float* floatsOf(Lum8u* p) { return reinterpret_cast<float*>(p); }

// Rows [0, height) in bands, body(y0, y1, buffer). Large images share the rows among threads:
// the first uses the caller's buffer, the others one allocated here; when that allocation fails
// the calling thread does all the rows.
constexpr long long kForkArea = 256 * 256;
template <class Body>
void byBands(int height, int width, int bufSize, Lum8u* pBuffer, Body&& body) {
  int n = static_cast<long long>(width) * height >= kForkArea ? regionThreads() : 1;
  if (n > height) n = height;
  const std::size_t slice = (static_cast<std::size_t>(bufSize) + 63) & ~std::size_t{63};
  Lum8u* extra = nullptr;
  if (n > 1 && slice * (n - 1) <= 0x7fffffffu)
    extra = lumsMalloc_8u(static_cast<int>(slice * (n - 1)));
  if (!extra) n = 1;
#pragma omp parallel num_threads(n) if (n > 1)
  {
    const int t = omp_get_thread_num();
    int y0, y1;
    rowBand(height, t, omp_get_num_threads(), &y0, &y1);
    if (y0 < y1) body(y0, y1, floatsOf(t == 0 ? pBuffer : extra + slice * (t - 1)));
  }
  lumsFree(extra);
}

// ---- forward ----------------------------------------------------------------------------------
template <int kCh>
struct FwdKernels {
  AccSplitFn acc = pickAccSplit<kCh>();
  AnalyseFn an = pickAnalyse<kCh>();
};

// Sub-band columns [x0, x0 + n) of sub-band row y, channel ch: the vertical filter v over the
// source rows into the split row, then the low and high horizontal filters into outLow and
// outHigh.
template <int kCh>
void fwdStripRow(const FwdKernels<kCh>& kn, const LumiWTFwdSpec& r, const Filter& v,
                 const float* src, int srcStep, int y, int x0, int n, int ch, float* buf,
                 float* outLow, float* outHigh) {
  const int cnt = 2 * n - 1 + r.maxRightExt + r.maxAnchorM1 + 1;
  float* e = buf;
  float* o = buf + (cnt + 1) / 2;
  std::memset(buf, 0, sizeof(float) * static_cast<std::size_t>(cnt));
  const std::ptrdiff_t col = elemsOf(2 * x0 - r.maxRightExt, kCh) + ch;
  for (int k = 0; k < v.len; ++k)
    kn.acc(e, o, rowAt(src, srcStep, 2 * y + v.anchor - k) + col, v.taps[k], cnt);
  const std::ptrdiff_t out = elemsOf(x0, kCh) + ch;
  kn.an(e, o, r.low.taps, r.low.len, r.low.anchor + r.maxRightExt, outLow + out, n);
  kn.an(e, o, r.high.taps, r.high.len, r.high.anchor + r.maxRightExt, outHigh + out, n);
}

template <int kCh>
LumStatus fwdImpl(const Lum32f* src, int srcStep, Lum32f* pA, int aStep, Lum32f* pX, int xStep,
                  Lum32f* pY, int yStep, Lum32f* pXY, int xyStep, LumiSize roi,
                  const LumiWTFwdSpec* r, Lum8u* pBuffer) {
  if (!r) return lumStatusNullPtrErr;
  if (!recordOk(r)) return lumStatusContextMismatchErr;
  if (anyNull(pBuffer, src, pA, pX, pY, pXY)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, aStep, xStep, yStep, xyStep)) return lumStatusStepErr;
  const FwdKernels<kCh> kn;
  byBands(roi.height, roi.width, r->bufSize, pBuffer, [&](int y0, int y1, float* buf) {
    for (int y = y0; y < y1; ++y) {
      float* a = rowAt(pA, aStep, y);
      float* dx = rowAt(pX, xStep, y);
      float* dy = rowAt(pY, yStep, y);
      float* dxy = rowAt(pXY, xyStep, y);
      for (int ch = 0; ch < kCh; ++ch) {
        int x0 = 0;
        for (; roi.width - x0 > kStrip; x0 += kStrip) {  // strips while 257 or more remain
          fwdStripRow<kCh>(kn, *r, r->low, src, srcStep, y, x0, kStrip, ch, buf, a, dy);
          fwdStripRow<kCh>(kn, *r, r->high, src, srcStep, y, x0, kStrip, ch, buf, dx, dxy);
        }
        // the narrow rest: at most 256 columns
        fwdStripRow<kCh>(kn, *r, r->low, src, srcStep, y, x0, roi.width - x0, ch, buf, a, dy);
        fwdStripRow<kCh>(kn, *r, r->high, src, srcStep, y, x0, roi.width - x0, ch, buf, dx, dxy);
      }
    }
  });
  return lumStatusOk;
}

// ---- inverse ----------------------------------------------------------------------------------
template <int kCh>
struct InvKernels {
  AccRowFn acc = pickAccRow<kCh>();
  SynthFn syn = pickSynth<kCh>();
};

struct Band {
  const float* p;
  int step;
};

// Left margin and count of sub-band columns a synthesis filter reads for n output pairs.
inline int marginOf(const Filter& f) { return f.rightExt / 2; }
inline int countOf(const Filter& f, int n) { return n + f.rightExt / 2 + (f.anchor + 1) / 2; }

// row[j] = sum over the vertical taps of both filters (low over bandLow, high over bandHigh)
// of the sub-band rows output row m meets, columns x0 - margin of the horizontal filter h on.
template <int kCh>
void invVertical(const InvKernels<kCh>& kn, const LumiWTInvSpec& r, const Filter& h, Band lo,
                 Band hi, int m, int x0, int n, int ch, float* row) {
  const int cnt = countOf(h, n);
  std::memset(row, 0, sizeof(float) * static_cast<std::size_t>(cnt));
  const std::ptrdiff_t col = elemsOf(x0 - marginOf(h), kCh) + ch;
  const Filter* fs[2] = {&r.low, &r.high};
  const Band bs[2] = {lo, hi};
  for (int b = 0; b < 2; ++b) {
    const Filter& f = *fs[b];
    for (int k = (m + f.anchor) & 1; k < f.len; k += 2)
      kn.acc(row, rowAt(bs[b].p, bs[b].step, (m + f.anchor - k) >> 1) + col, f.taps[k], cnt);
  }
}

template <int kCh>
LumStatus invImpl(const Lum32f* pA, int aStep, const Lum32f* pX, int xStep, const Lum32f* pY,
                  int yStep, const Lum32f* pXY, int xyStep, LumiSize roi, Lum32f* dst,
                  int dstStep, const LumiWTInvSpec* r, Lum8u* pBuffer) {
  if (!r) return lumStatusNullPtrErr;
  if (!recordOk(r)) return lumStatusContextMismatchErr;
  if (anyNull(pBuffer, pA, pX, pY, pXY, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(aStep, xStep, yStep, xyStep, dstStep)) return lumStatusStepErr;
  const InvKernels<kCh> kn;
  const SynthFilter lo{r->low.taps, r->low.len, r->low.anchor, marginOf(r->low)};
  const SynthFilter hi{r->high.taps, r->high.len, r->high.anchor, marginOf(r->high)};
  byBands(2 * roi.height, 2 * roi.width, r->bufSize, pBuffer, [&](int m0, int m1, float* rl) {
    float* rh = rl + r->workLow;
    for (int m = m0; m < m1; ++m) {
      float* out = rowAt(dst, dstStep, m);
      for (int ch = 0; ch < kCh; ++ch) {
        for (int x0 = 0; x0 < roi.width;) {
          const int n = roi.width - x0 > kStrip ? kStrip : roi.width - x0;
          // horizontally low: approximation (vertical low) and DetailX (vertical high)
          invVertical<kCh>(kn, *r, r->low, Band{pA, aStep}, Band{pX, xStep}, m, x0, n, ch, rl);
          // horizontally high: DetailY (vertical low) and DetailXY (vertical high)
          invVertical<kCh>(kn, *r, r->high, Band{pY, yStep}, Band{pXY, xyStep}, m, x0, n, ch, rh);
          kn.syn(lo, rl, hi, rh, out + elemsOf(2 * x0, kCh) + ch, n);
          x0 += n;
        }
      }
    }
  });
  return lumStatusOk;
}

}  // namespace
}  // namespace wavelet
}  // namespace lumi

#define LUMI_WT_FWD_INIT(NAME)                                                                 \
  LUMI_API LumStatus NAME(LumiWTFwdSpec** pp, const Lum32f* tl, int ll, int al,              \
                          const Lum32f* th, int lh, int ah) {                                \
    return lumi::wavelet::initRecord(pp, tl, ll, al, th, lh, ah);                            \
  }
#define LUMI_WT_INV_INIT(NAME)                                                                 \
  LUMI_API LumStatus NAME(LumiWTInvSpec** pp, const Lum32f* tl, int ll, int al,              \
                          const Lum32f* th, int lh, int ah) {                                \
    return lumi::wavelet::initRecord(pp, tl, ll, al, th, lh, ah);                            \
  }
#define LUMI_WT_FREE(NAME, R) \
  LUMI_API LumStatus NAME(R* p) { return lumi::wavelet::freeImpl(p); }
#define LUMI_WT_BUFSIZE(NAME, R) \
  LUMI_API LumStatus NAME(const R* p, int* s) { return lumi::wavelet::bufSizeImpl(p, s); }
#define LUMI_WT_FWD(NAME, CH)                                                                   \
  LUMI_API LumStatus NAME(const Lum32f* s, int ss, Lum32f* a, int as, Lum32f* x, int xs,       \
                          Lum32f* y, int ys, Lum32f* xy, int xys, LumiSize roi,                \
                          const LumiWTFwdSpec* r, Lum8u* b) {                                  \
    return lumi::wavelet::fwdImpl<CH>(s, ss, a, as, x, xs, y, ys, xy, xys, roi, r, b);         \
  }
#define LUMI_WT_INV(NAME, CH)                                                                   \
  LUMI_API LumStatus NAME(const Lum32f* a, int as, const Lum32f* x, int xs, const Lum32f* y,   \
                          int ys, const Lum32f* xy, int xys, LumiSize roi, Lum32f* d, int ds,  \
                          const LumiWTInvSpec* r, Lum8u* b) {                                  \
    return lumi::wavelet::invImpl<CH>(a, as, x, xs, y, ys, xy, xys, roi, d, ds, r, b);         \
  }

LUMI_WT_FWD_INIT(lumiWTFwdInitAlloc_32f_C1R)
LUMI_WT_FWD_INIT(lumiWTFwdInitAlloc_32f_C3R)
LUMI_WT_INV_INIT(lumiWTInvInitAlloc_32f_C1R)
LUMI_WT_INV_INIT(lumiWTInvInitAlloc_32f_C3R)
LUMI_WT_FREE(lumiWTFwdFree_32f_C1R, LumiWTFwdSpec)
LUMI_WT_FREE(lumiWTFwdFree_32f_C3R, LumiWTFwdSpec)
LUMI_WT_FREE(lumiWTInvFree_32f_C1R, LumiWTInvSpec)
LUMI_WT_FREE(lumiWTInvFree_32f_C3R, LumiWTInvSpec)
LUMI_WT_BUFSIZE(lumiWTFwdGetBufSize_C1R, LumiWTFwdSpec)
LUMI_WT_BUFSIZE(lumiWTFwdGetBufSize_C3R, LumiWTFwdSpec)
LUMI_WT_BUFSIZE(lumiWTInvGetBufSize_C1R, LumiWTInvSpec)
LUMI_WT_BUFSIZE(lumiWTInvGetBufSize_C3R, LumiWTInvSpec)
LUMI_WT_FWD(lumiWTFwd_32f_C1R, 1)
LUMI_WT_FWD(lumiWTFwd_32f_C3R, 3)
LUMI_WT_INV(lumiWTInv_32f_C1R, 1)
LUMI_WT_INV(lumiWTInv_32f_C3R, 3)
#endif  // HWY_ONCE
