// Histograms over level lists: bin i counts the samples in [lev[i], lev[i+1]).
//
// 8u counts all 256 values first and regroups. 16s/16u pick, from the ROI size and the level
// count, between scanning the levels per sample, halving them, and a full 65536-entry table;
// every method counts the same. 32f scans or halves ordered levels and checks every bin of
// unordered ones.
#include "core/frame.h"

#include <algorithm>
#include <cstring>

#include "threshold/lut_kernels.h"

namespace lumi {
namespace {

using levels::SampleRange;
using levels::clampToRange;

// ---- walking the samples ----------------------------------------------------------------------

// f(c, v) for every sample v of every counted channel c.
template <class T, class L, class F>
inline void forEachSample(const T* src, int sstep, LumiSize roi, F&& f) {
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, sstep, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < L::kUse; ++c) f(c, s[elemsOf(x, L::kCh) + c]);
  }
}

// Bin i of a histogram from the counts of single values: the values in [lev[i], lev[i+1])
// clamped to the sample range; an empty or reversed interval holds nothing.
template <class T>
void regroup(const uint32_t* counts, Lum32s* hist, const Lum32s* lev, int n, int64_t* prefix) {
  constexpr int size = SampleRange<T>::kSize, base = SampleRange<T>::kLo;
  prefix[0] = 0;
  for (int k = 0; k < size; ++k) prefix[k + 1] = prefix[k] + counts[k];
  for (int i = 0; i + 1 < n; ++i) {
    int lo = clampToRange<T>(lev[i]) - base, hi = clampToRange<T>(lev[i + 1]) - base;
    hist[i] = hi > lo ? static_cast<Lum32s>(prefix[hi] - prefix[lo]) : 0;
  }
}

// ---- 8u --------------------------------------------------------------------------------------------

// Counts of every value per channel. Interleaved count tables keep consecutive equal samples
// from waiting on each other's increments.
template <class L>
void count8u(const Lum8u* src, int sstep, LumiSize roi, uint32_t (*out)[256]) {
  if constexpr (L::kCh == 1) {
    alignas(64) uint32_t t[4][256];
    std::memset(t, 0, sizeof t);
    for (int y = 0; y < roi.height; ++y) {
      const Lum8u* s = rowAt(src, sstep, y);
      int x = 0;
      for (; x + 8 <= roi.width; x += 8) {
        uint64_t v;
        std::memcpy(&v, s + x, 8);
        ++t[0][v & 255];
        ++t[1][(v >> 8) & 255];
        ++t[2][(v >> 16) & 255];
        ++t[3][(v >> 24) & 255];
        ++t[0][(v >> 32) & 255];
        ++t[1][(v >> 40) & 255];
        ++t[2][(v >> 48) & 255];
        ++t[3][v >> 56];
      }
      for (; x < roi.width; ++x) ++t[x & 3][s[x]];
    }
    for (int k = 0; k < 256; ++k) out[0][k] = t[0][k] + t[1][k] + t[2][k] + t[3][k];
  } else {
    alignas(64) uint32_t t[2][L::kUse][256];
    std::memset(t, 0, sizeof t);
    for (int y = 0; y < roi.height; ++y) {
      const Lum8u* s = rowAt(src, sstep, y);
      int x = 0;
      for (; x + 2 <= roi.width; x += 2)
        for (int c = 0; c < L::kUse; ++c) {
          ++t[0][c][s[elemsOf(x, L::kCh) + c]];
          ++t[1][c][s[elemsOf(x + 1, L::kCh) + c]];
        }
      for (; x < roi.width; ++x)
        for (int c = 0; c < L::kUse; ++c) ++t[0][c][s[elemsOf(x, L::kCh) + c]];
    }
    for (int c = 0; c < L::kUse; ++c)
      for (int k = 0; k < 256; ++k) out[c][k] = t[0][c][k] + t[1][c][k];
  }
}

template <class L>
LumStatus hist8u(const Lum8u* src, int sstep, LumiSize roi, Lum32s* const* hist,
                 const Lum32s* const* lev, const int* n) {
  alignas(64) uint32_t counts[L::kUse][256];
  int64_t prefix[257];
  count8u<L>(src, sstep, roi, counts);
  for (int c = 0; c < L::kUse; ++c) regroup<Lum8u>(counts[c], hist[c], lev[c], n[c], prefix);
  return lumStatusOk;
}

// ---- 16s / 16u -------------------------------------------------------------------------------------

enum class Method { EveryBin, ForwardScan, BinarySearch, FullTable };

// Size breakpoints (ascending) and the level-count limit for j = the number of breakpoints not
// above the pixel count (kNoLimit: any count).
constexpr int kNoLimit = 0x7fffffff;
struct SizeRule {
  const int* breaks;
  int nBreaks;
  const int* limits;  // nBreaks + 1 entries
  int limit(int64_t pixels) const {
    int j = 0;
    while (j < nBreaks && breaks[j] <= pixels) ++j;
    return limits[j];
  }
};
struct MethodRule {
  SizeRule ordered, unordered;
  int scanBelow;  // ordered levels under the limit: forward scan below this count, else halving
};

constexpr int kOrd1Breaks[] = {12544, 16384, 20736, 25600, 30976, 43264, 50176, 65536, 123904};
constexpr int kOrd1Limits[] = {kNoLimit, 214, 74, 38, 34, 22, 18, 14, 3, 2};
constexpr int kUnord1Breaks[] = {1024,  2304,  4096,  6400,  9216,  12544,
                                 16384, 20736, 30976, 36864, 50176, 82944};
constexpr int kUnord1Limits[] = {kNoLimit, 442, 202, 114, 74, 54, 42, 30, 22, 18, 14, 10, 6};
constexpr int kOrd4Breaks[] = {12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 173056};
constexpr int kOrd4Limits[] = {kNoLimit, 190, 102, 62, 46, 38, 34, 22, 18, 14};
constexpr int kUnord4Breaks[] = {1024,  2304,  4096,  6400,  9216,  12544,
                                 16384, 20736, 25600, 36864, 57600, 160000};
constexpr int kUnord4Limits[] = {kNoLimit, 358, 162, 98, 66, 50, 38, 30, 26, 22, 18, 14, 10};

constexpr MethodRule kRuleOne{{kOrd1Breaks, 9, kOrd1Limits}, {kUnord1Breaks, 12, kUnord1Limits}, 27};
constexpr MethodRule kRuleMany{{kOrd4Breaks, 9, kOrd4Limits}, {kUnord4Breaks, 12, kUnord4Limits}, 15};

template <class L>
Method chooseMethod(LumiSize roi, const Lum32s* const* lev, const int* n) {
  const MethodRule& rule = L::kCh == 1 ? kRuleOne : kRuleMany;
  int64_t pixels = static_cast<int64_t>(roi.width) * roi.height;
  int64_t sum = 0;
  bool ordered = true;
  for (int c = 0; c < L::kUse; ++c) {
    sum += n[c];
    ordered = ordered && levels::strictlyIncreasing(lev[c], n[c]);
  }
  int64_t count = sum / L::kUse;
  if (ordered) {
    if (count > rule.ordered.limit(pixels)) return Method::FullTable;
    return count < rule.scanBelow ? Method::ForwardScan : Method::BinarySearch;
  }
  return count > rule.unordered.limit(pixels) ? Method::FullTable : Method::EveryBin;
}

// Ordered levels through the full table: a bin index per sample value (the last entry, nb,
// collects values outside every bin), counted in interleaved tables.
template <class T, class L>
void countByBinMap(const T* src, int sstep, LumiSize roi, Lum32s* const* hist,
                   const Lum32s* const* lev, const int* n, Lum8u* scratch, int subs) {
  constexpr int size = SampleRange<T>::kSize, base = SampleRange<T>::kLo;
  uint16_t* maps[4];
  uint32_t* counts[4];
  Lum8u* at = scratch;
  for (int c = 0; c < L::kUse; ++c) {
    int nb = n[c] - 1;
    uint16_t* m = reinterpret_cast<uint16_t*>(at);
    at += sizeof(uint16_t) * size;
    for (int k = 0; k < size; ++k) m[k] = static_cast<uint16_t>(nb);
    for (int i = 0; i < nb; ++i) {
      int lo = clampToRange<T>(lev[c][i]) - base, hi = clampToRange<T>(lev[c][i + 1]) - base;
      for (int k = lo; k < hi; ++k) m[k] = static_cast<uint16_t>(i);
    }
    maps[c] = m - base;
    counts[c] = reinterpret_cast<uint32_t*>(at);
    at += sizeof(uint32_t) * static_cast<std::size_t>(nb + 1) * subs;
    std::memset(counts[c], 0, sizeof(uint32_t) * static_cast<std::size_t>(nb + 1) * subs);
  }
  if constexpr (L::kCh == 1) {
    const uint16_t* m = maps[0];
    uint32_t* t = counts[0];
    const std::ptrdiff_t stride = subs == 4 ? n[0] : 0;  // one table when the bins are many
    for (int y = 0; y < roi.height; ++y) {
      const T* s = rowAt(src, sstep, y);
      int x = 0;
      for (; x + 4 <= roi.width; x += 4) {
        ++t[m[s[x]]];
        ++t[stride + m[s[x + 1]]];
        ++t[2 * stride + m[s[x + 2]]];
        ++t[3 * stride + m[s[x + 3]]];
      }
      for (; x < roi.width; ++x) ++t[m[s[x]]];
    }
  } else {
    forEachSample<T, L>(src, sstep, roi, [&](int c, int v) { ++counts[c][maps[c][v]]; });
  }
  for (int c = 0; c < L::kUse; ++c) {
    int nb = n[c] - 1;
    for (int i = 0; i < nb; ++i) {
      uint32_t sum = 0;
      for (int k = 0; k < subs; ++k) sum += counts[c][static_cast<std::ptrdiff_t>(k) * (nb + 1) + i];
      hist[c][i] = static_cast<Lum32s>(sum);
    }
  }
}

// Unordered levels through the full table: a count per sample value, then regrouped.
template <class T, class L>
void countByValue(const T* src, int sstep, LumiSize roi, Lum32s* const* hist,
                  const Lum32s* const* lev, const int* n, Lum8u* scratch) {
  constexpr int size = SampleRange<T>::kSize, base = SampleRange<T>::kLo;
  uint32_t* counts = reinterpret_cast<uint32_t*>(scratch);
  std::memset(counts, 0, sizeof(uint32_t) * size * L::kUse);
  uint32_t* at[4];
  for (int c = 0; c < L::kUse; ++c) at[c] = counts + static_cast<std::ptrdiff_t>(size) * c - base;
  forEachSample<T, L>(src, sstep, roi, [&](int c, int v) { ++at[c][v]; });
  int64_t* prefix = reinterpret_cast<int64_t*>(counts + static_cast<std::ptrdiff_t>(size) * L::kUse);
  for (int c = 0; c < L::kUse; ++c)
    regroup<T>(counts + static_cast<std::ptrdiff_t>(size) * c, hist[c], lev[c], n[c], prefix);
}

template <class T, class L>
LumStatus hist16(const T* src, int sstep, LumiSize roi, Lum32s* const* hist,
                 const Lum32s* const* lev, const int* n) {
  constexpr int size = SampleRange<T>::kSize;
  Method method = chooseMethod<L>(roi, lev, n);
  if (method == Method::FullTable) {
    bool byBin = true;
    for (int c = 0; c < L::kUse; ++c)
      byBin = byBin && n[c] - 1 < 65535 && levels::strictlyIncreasing(lev[c], n[c]);
    int subs = 1;
    if (byBin && L::kCh == 1 && n[0] <= 4097) subs = 4;
    std::size_t bytes = 0;
    if (byBin) {
      for (int c = 0; c < L::kUse; ++c)
        bytes += sizeof(uint16_t) * size + sizeof(uint32_t) * static_cast<std::size_t>(n[c]) * subs;
    } else {
      bytes = sizeof(uint32_t) * size * L::kUse + sizeof(int64_t) * (size + 1);
    }
    Lum8u* scratch = lumsMalloc_8u(static_cast<int>(bytes));
    if (!scratch) return lumStatusMemAllocErr;
    if (byBin)
      countByBinMap<T, L>(src, sstep, roi, hist, lev, n, scratch, subs);
    else
      countByValue<T, L>(src, sstep, roi, hist, lev, n, scratch);
    lumsFree(scratch);
    return lumStatusOk;
  }
  for (int c = 0; c < L::kUse; ++c) std::fill(hist[c], hist[c] + (n[c] - 1), 0);
  switch (method) {
    case Method::ForwardScan:
      forEachSample<T, L>(src, sstep, roi, [&](int c, int v) {
        const Lum32s* l = lev[c];
        if (v < l[0] || v >= l[n[c] - 1]) return;
        int i = 0;
        while (!(v < l[i + 1])) ++i;
        ++hist[c][i];
      });
      break;
    case Method::BinarySearch:
      forEachSample<T, L>(src, sstep, roi, [&](int c, int v) {
        const Lum32s* l = lev[c];
        if (v < l[0] || v >= l[n[c] - 1]) return;
        ++hist[c][levels::searchInterval(l, n[c], v)];
      });
      break;
    default:  // every bin holding the sample counts it
      forEachSample<T, L>(src, sstep, roi, [&](int c, int v) {
        const Lum32s* l = lev[c];
        for (int i = 0; i + 1 < n[c]; ++i)
          if (l[i] <= v && v < l[i + 1]) ++hist[c][i];
      });
  }
  return lumStatusOk;
}

// ---- 32f -------------------------------------------------------------------------------------------

// Ordered levels: the one bin holding the sample, by scanning few levels or halving many; NaN
// lies in no bin. Unordered levels: every bin for which neither lev[i] > x nor x >= lev[i+1]
// holds, which a NaN sample satisfies everywhere.
template <class L>
LumStatus hist32f(const Lum32f* src, int sstep, LumiSize roi, Lum32s* const* hist,
                  const Lum32f* const* lev, const int* n) {
  bool ordered = true;
  int64_t sum = 0;
  for (int c = 0; c < L::kUse; ++c) {
    ordered = ordered && levels::strictlyIncreasing(lev[c], n[c]);
    sum += n[c];
    std::fill(hist[c], hist[c] + (n[c] - 1), 0);
  }
  if (!ordered) {
    forEachSample<Lum32f, L>(src, sstep, roi, [&](int c, float x) {
      const Lum32f* l = lev[c];
      for (int i = 0; i + 1 < n[c]; ++i)
        if (!(l[i] > x) && !(x >= l[i + 1])) ++hist[c][i];
    });
  } else if (sum / L::kUse > 102) {
    forEachSample<Lum32f, L>(src, sstep, roi, [&](int c, float x) {
      const Lum32f* l = lev[c];
      if (!(x >= l[0] && x < l[n[c] - 1])) return;
      ++hist[c][levels::searchInterval(l, n[c], x)];
    });
  } else {
    forEachSample<Lum32f, L>(src, sstep, roi, [&](int c, float x) {
      const Lum32f* l = lev[c];
      if (!(x >= l[0] && x < l[n[c] - 1])) return;
      int i = 0;
      while (!(x < l[i + 1])) ++i;
      ++hist[c][i];
    });
  }
  return lumStatusOk;
}

template <class T, class L, class P>
LumStatus histRun(const T* src, int sstep, LumiSize roi, Lum32s* const* hist,
                  const P* const* lev, const int* n) {
  roi = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), sstep);
  if constexpr (std::is_same_v<T, Lum8u>)
    return hist8u<L>(src, sstep, roi, hist, lev, n);
  else if constexpr (std::is_same_v<T, Lum32f>)
    return hist32f<L>(src, sstep, roi, hist, lev, n);
  else
    return hist16<T, L>(src, sstep, roi, hist, lev, n);
}

// ---- validation and entry points --------------------------------------------------------------

template <class T, class P>
LumStatus rangeC1(const T* src, int sstep, LumiSize roi, Lum32s* hist, const P* lev, int n) {
  if (anyNull(src, hist, lev)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep)) return lumStatusStepErr;
  if (n < 2) return lumStatusHistLevelsErr;
  return histRun<T, C1, P>(src, sstep, roi, &hist, &lev, &n);
}

template <class L, class P>
LumStatus checkChannels(Lum32s* const* hist, const P* const* lev, const int* n) {
  for (int c = 0; c < L::kUse; ++c) {
    if (anyNull(hist[c], lev[c])) return lumStatusNullPtrErr;
    if (n[c] < 2) return lumStatusHistLevelsErr;
  }
  return lumStatusOk;
}

template <class T, class L, class P>
LumStatus rangeCn(const T* src, int sstep, LumiSize roi, Lum32s* const* hist,
                  const P* const* lev, const int* n) {
  if (anyNull(src) || anyNull(hist, lev) || anyNull(n)) return lumStatusNullPtrErr;
  if (LumStatus st = checkChannels<L>(hist, lev, n)) return st;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep)) return lumStatusStepErr;
  return histRun<T, L, P>(src, sstep, roi, hist, lev, n);
}

// n levels from lower to upper: the span split into n - 1 steps of the truncated quotient, the
// first |remainder| of them one wider (one further down for a falling span).
void evenLevels(Lum32s* lev, int n, Lum32s lower, Lum32s upper) {
  int64_t d = static_cast<int64_t>(upper) - lower;
  int64_t q = d / (n - 1), r = d % (n - 1);
  int64_t v = lower;
  lev[0] = lower;
  for (int k = 1; k < n; ++k) {
    if (q >= 0) {
      v += q + (r > 0 ? 1 : 0);
      --r;
    } else {
      v += q - (r < 0 ? 1 : 0);
      ++r;
    }
    lev[k] = static_cast<Lum32s>(v);
  }
}

template <class T>
LumStatus evenC1(const T* src, int sstep, LumiSize roi, Lum32s* hist, Lum32s* lev, int n,
                 Lum32s lower, Lum32s upper) {
  if (anyNull(src, hist, lev)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep)) return lumStatusStepErr;
  if (n < 2) return lumStatusHistLevelsErr;
  evenLevels(lev, n, lower, upper);
  const Lum32s* l = lev;
  return histRun<T, C1, Lum32s>(src, sstep, roi, &hist, &l, &n);
}

template <class T, class L>
LumStatus evenCn(const T* src, int sstep, LumiSize roi, Lum32s* const* hist, Lum32s* const* lev,
                 const int* n, const Lum32s* lower, const Lum32s* upper) {
  if (anyNull(src) || anyNull(hist, lev) || anyNull(n, lower, upper)) return lumStatusNullPtrErr;
  if (LumStatus st = checkChannels<L>(hist, lev, n)) return st;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep)) return lumStatusStepErr;
  const Lum32s* l[4];
  for (int c = 0; c < L::kUse; ++c) {
    evenLevels(lev[c], n[c], lower[c], upper[c]);
    l[c] = lev[c];
  }
  return histRun<T, L, Lum32s>(src, sstep, roi, hist, l, n);
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// T the sample type, P the level type; C3, C4 and AC4 take one histogram and level list per
// channel (NCH of them).
#define LUMI_HIST_RANGE(NAME, T, P)                                                             \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roi, Lum32s* pHist,              \
                          const P* pLevels, int n) {                                            \
    return lumi::rangeC1<T, P>(pSrc, srcStep, roi, pHist, pLevels, n);                          \
  }
#define LUMI_HIST_RANGE_N(NAME, T, P, L, NCH)                                                   \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roi, Lum32s* const h[NCH],       \
                          const P* const l[NCH], const int n[NCH]) {                            \
    return lumi::rangeCn<T, lumi::L, P>(pSrc, srcStep, roi, h, l, n);                           \
  }
#define LUMI_HIST_EVEN(NAME, T)                                                                 \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roi, Lum32s* pHist,              \
                          Lum32s* pLevels, int n, Lum32s lower, Lum32s upper) {                 \
    return lumi::evenC1<T>(pSrc, srcStep, roi, pHist, pLevels, n, lower, upper);                \
  }
#define LUMI_HIST_EVEN_N(NAME, T, L, NCH)                                                       \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LumiSize roi, Lum32s* const h[NCH],       \
                          Lum32s* const l[NCH], const int n[NCH], const Lum32s lower[NCH],      \
                          const Lum32s upper[NCH]) {                                            \
    return lumi::evenCn<T, lumi::L>(pSrc, srcStep, roi, h, l, n, lower, upper);                 \
  }

LUMI_HIST_RANGE(lumiHistogramRange_8u_C1R, Lum8u, Lum32s)
LUMI_HIST_RANGE_N(lumiHistogramRange_8u_C3R, Lum8u, Lum32s, C3, 3)
LUMI_HIST_RANGE_N(lumiHistogramRange_8u_C4R, Lum8u, Lum32s, C4, 4)
LUMI_HIST_RANGE_N(lumiHistogramRange_8u_AC4R, Lum8u, Lum32s, AC4, 3)
LUMI_HIST_RANGE(lumiHistogramRange_16s_C1R, Lum16s, Lum32s)
LUMI_HIST_RANGE_N(lumiHistogramRange_16s_C3R, Lum16s, Lum32s, C3, 3)
LUMI_HIST_RANGE_N(lumiHistogramRange_16s_C4R, Lum16s, Lum32s, C4, 4)
LUMI_HIST_RANGE_N(lumiHistogramRange_16s_AC4R, Lum16s, Lum32s, AC4, 3)
LUMI_HIST_RANGE(lumiHistogramRange_16u_C1R, Lum16u, Lum32s)
LUMI_HIST_RANGE_N(lumiHistogramRange_16u_C3R, Lum16u, Lum32s, C3, 3)
LUMI_HIST_RANGE_N(lumiHistogramRange_16u_C4R, Lum16u, Lum32s, C4, 4)
LUMI_HIST_RANGE_N(lumiHistogramRange_16u_AC4R, Lum16u, Lum32s, AC4, 3)
LUMI_HIST_RANGE(lumiHistogramRange_32f_C1R, Lum32f, Lum32f)
LUMI_HIST_RANGE_N(lumiHistogramRange_32f_C3R, Lum32f, Lum32f, C3, 3)
LUMI_HIST_RANGE_N(lumiHistogramRange_32f_C4R, Lum32f, Lum32f, C4, 4)
LUMI_HIST_RANGE_N(lumiHistogramRange_32f_AC4R, Lum32f, Lum32f, AC4, 3)
LUMI_HIST_EVEN(lumiHistogramEven_8u_C1R, Lum8u)
LUMI_HIST_EVEN_N(lumiHistogramEven_8u_C3R, Lum8u, C3, 3)
LUMI_HIST_EVEN_N(lumiHistogramEven_8u_C4R, Lum8u, C4, 4)
LUMI_HIST_EVEN_N(lumiHistogramEven_8u_AC4R, Lum8u, AC4, 3)
LUMI_HIST_EVEN(lumiHistogramEven_16s_C1R, Lum16s)
LUMI_HIST_EVEN_N(lumiHistogramEven_16s_C3R, Lum16s, C3, 3)
LUMI_HIST_EVEN_N(lumiHistogramEven_16s_C4R, Lum16s, C4, 4)
LUMI_HIST_EVEN_N(lumiHistogramEven_16s_AC4R, Lum16s, AC4, 3)
LUMI_HIST_EVEN(lumiHistogramEven_16u_C1R, Lum16u)
LUMI_HIST_EVEN_N(lumiHistogramEven_16u_C3R, Lum16u, C3, 3)
LUMI_HIST_EVEN_N(lumiHistogramEven_16u_C4R, Lum16u, C4, 4)
LUMI_HIST_EVEN_N(lumiHistogramEven_16u_AC4R, Lum16u, AC4, 3)
