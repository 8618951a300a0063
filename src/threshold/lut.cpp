// Lookup tables: step, linear and cubic maps over a list of levels.
//
// Integer samples go through a full map indexed by the sample value (256 entries for 8u,
// 65536 for 16s/16u), built once per call; small 16-bit step lookups search the levels
// instead. Float samples search the levels per sample.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/lut.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/alpha-inl.h"

LUMI_SIMD_BEGIN
// Only AVX-512 has a vector lookup worth having (two-table byte permutes); the other targets
// take the scalar twin.
#if LUMI_TABLE_TARGET && HWY_TARGET == HWY_AVX3
// A 256-byte map held in registers, read as 128 little-endian words: two-table word permutes
// pick the word holding map[v] (v >> 1), bit 7 of v chooses the table pair and bit 0 the byte.
struct Map8uRegs {
  __m512i w0, w1, w2, w3;
  explicit Map8uRegs(const uint8_t* m)
      : w0(_mm512_loadu_si512(m)), w1(_mm512_loadu_si512(m + 64)),
        w2(_mm512_loadu_si512(m + 128)), w3(_mm512_loadu_si512(m + 192)) {}

  __m256i half(__m512i v) const {  // 32 samples widened to words
    const __m512i j = _mm512_srli_epi16(v, 1);
    const __m512i lo = _mm512_permutex2var_epi16(w0, j, w1);
    const __m512i hi = _mm512_permutex2var_epi16(w2, j, w3);
    __m512i w = _mm512_mask_blend_epi16(_mm512_test_epi16_mask(v, _mm512_set1_epi16(0x80)), lo, hi);
    w = _mm512_srlv_epi16(w, _mm512_slli_epi16(_mm512_and_si512(v, _mm512_set1_epi16(1)), 3));
    return _mm512_cvtepi16_epi8(w);
  }
  __m512i lookup(__m512i x) const {
    const __m256i r0 = half(_mm512_cvtepu8_epi16(_mm512_castsi512_si256(x)));
    const __m256i r1 = half(_mm512_cvtepu8_epi16(_mm512_extracti64x4_epi64(x, 1)));
    return _mm512_inserti64x4(_mm512_castsi256_si512(r0), r1, 1);
  }
};

// Full-map lookup of n bytes; with keepAlpha, every fourth byte of the destination is left as
// it was.
void mapRow8u(const uint8_t* s, uint8_t* d, std::ptrdiff_t n, const uint8_t* map, bool keepAlpha) {
  const Map8uRegs t(map);
  const hn::Full512<uint8_t> d8;
  const auto colour = colourLanes(d8);
  std::ptrdiff_t i = 0;
  for (; i + 64 <= n; i += 64)
    storeColour(d8, hn::Vec512<uint8_t>{t.lookup(_mm512_loadu_si512(s + i))}, d + i, keepAlpha,
                colour);
  for (; i < n; ++i)
    if (!keepAlpha || (i & 3) != 3) d[i] = map[s[i]];
}
#endif

LUMI_SIMD_END

#if HWY_ONCE
#include <algorithm>
#include <cmath>

#include "threshold/lut_kernels.h"

namespace lumi {
namespace {


using levels::SampleRange;
using levels::clampToRange;

enum class Kind { Step, Linear, Cubic };

// ---- map construction -----------------------------------------------------------------------

// Integer result of an interpolated value: truncated toward zero, then saturated.
template <class T>
inline T truncSaturate(double y) {
  double t = std::trunc(y);
  if (t < static_cast<double>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
  if (t > static_cast<double>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
  return static_cast<T>(t);
}

// map points at the entry of the lowest sample value; entries of samples in [a, b) become
// the samples themselves.
template <class T>
inline void fillIdentity(T* map, int a, int b) {
  constexpr int lo = SampleRange<T>::kLo;
  for (int k = a; k < b; ++k) map[k - lo] = static_cast<T>(k);
}

// Identity below the first level and, when the last level lies inside the sample range, from
// it upward. Interval fills go between the two calls.
template <class T>
inline void identityBelow(T* map, const Lum32s* lev) {
  fillIdentity(map, SampleRange<T>::kLo, clampToRange<T>(lev[0]));
}
template <class T>
inline void identityAbove(T* map, const Lum32s* lev, int n) {
  if (lev[n - 1] <= SampleRange<T>::kHi - 1)
    fillIdentity(map, clampToRange<T>(lev[n - 1]), SampleRange<T>::kHi);
}

// The cubic through four points, with the origin at the second one: y = y0 + ((a t + b) t + c) t,
// t = x - x0. Solved by Cramer's rule; when points share a level the system is singular and the
// interval is interpolated as the linear lookup would.
struct CubicPiece {
  double x0, y0, a, b, c;
  bool line;  // singular system: the interval is interpolated linearly instead
};

inline double det3(const double m[3][3]) {
  return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) -
         m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
         m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

template <class P>
CubicPiece cubicPiece(const P* val, const P* lev, int n, int i) {
  int j = std::min(std::max(i - 1, 0), n - 4);
  CubicPiece p;
  p.x0 = static_cast<double>(lev[j + 1]);
  p.y0 = static_cast<double>(val[j + 1]);
  double m[3][3], r[3];
  const int pick[3] = {0, 2, 3};
  for (int e = 0; e < 3; ++e) {
    double t = static_cast<double>(lev[j + pick[e]]) - p.x0;
    m[e][0] = t * t * t;
    m[e][1] = t * t;
    m[e][2] = t;
    r[e] = static_cast<double>(val[j + pick[e]]) - p.y0;
  }
  double d = det3(m);
  if (d != 0 && std::isfinite(d)) {
    double coef[3];
    for (int col = 0; col < 3; ++col) {
      double mc[3][3];
      for (int e = 0; e < 3; ++e)
        for (int k = 0; k < 3; ++k) mc[e][k] = k == col ? r[e] : m[e][k];
      coef[col] = det3(mc) / d;
    }
    p.a = coef[0];
    p.b = coef[1];
    p.c = coef[2];
    p.line = false;
  } else {
    p.a = p.b = p.c = 0;
    p.line = true;
  }
  return p;
}

template <class T>
void buildMap(Kind kind, T* map, const Lum32s* val, const Lum32s* lev, int n) {
  if (kind == Kind::Cubic && n < 4) kind = Kind::Linear;
  identityBelow(map, lev);
  constexpr int base = SampleRange<T>::kLo;
  for (int i = 0; i + 1 < n; ++i) {
    int lo = clampToRange<T>(lev[i]), hi = clampToRange<T>(lev[i + 1]);
    if (kind != Kind::Step && !(lev[i + 1] > lev[i])) continue;  // empty or reversed: left out
    if (kind == Kind::Step || hi - lo == 1) {
      T v = saturate<T>(val[i]);
      for (int k = lo; k < hi; ++k) map[k - base] = v;
      continue;
    }
    CubicPiece p{};
    if (kind == Kind::Cubic) p = cubicPiece(val, lev, n, i);
    if (kind == Kind::Linear || p.line) {
      double slope = static_cast<double>(static_cast<int64_t>(val[i + 1]) - val[i]) /
                     static_cast<double>(static_cast<int64_t>(lev[i + 1]) - lev[i]);
      double offset = static_cast<double>(val[i]) + 0.5 - static_cast<double>(lev[i]) * slope;
      for (int k = lo; k < hi; ++k) map[k - base] = truncSaturate<T>(k * slope + offset);
    } else {
      for (int k = lo; k < hi; ++k) {
        double t = static_cast<double>(k) - p.x0;
        map[k - base] = truncSaturate<T>(p.y0 + ((p.a * t + p.b) * t + p.c) * t + 0.5);
      }
    }
  }
  identityAbove(map, lev, n);
}

// ---- applying full maps ---------------------------------------------------------------------

// maps[c] points at the entry of sample value 0 (value + 32768 offset already applied for 16s).
template <class T>
inline void mapRow(const T* s, T* d, std::ptrdiff_t n, const T* map) {
  std::ptrdiff_t i = 0;
  for (; i + 4 <= n; i += 4) {
    T a = map[s[i]], b = map[s[i + 1]], c = map[s[i + 2]], e = map[s[i + 3]];
    d[i] = a;
    d[i + 1] = b;
    d[i + 2] = c;
    d[i + 3] = e;
  }
  for (; i < n; ++i) d[i] = map[s[i]];
}

using MapRow8uFn = void (*)(const uint8_t*, uint8_t*, std::ptrdiff_t, const uint8_t*, bool);

// The twin of the AVX-512 lookup: a full-map lookup of n bytes, sparing every fourth when
// keepAlpha.
void mapRow8uScalar(const uint8_t* s, uint8_t* d, std::ptrdiff_t n, const uint8_t* map,
                    bool keepAlpha) {
  if (!keepAlpha) return mapRow(s, d, n, map);
  for (std::ptrdiff_t i = 0; i < n; ++i)
    if ((i & 3) != 3) d[i] = map[s[i]];
}

MapRow8uFn pickMapRow8u() {
  static MapRow8uFn const table[4] = {nullptr, nullptr, nullptr, LUMI_CHOOSE_AVX3(mapRow8u)};
  return pick(table, &mapRow8uScalar);
}

template <class T, class L>
inline void mapPixels(const T* s, T* d, int w, const T* const* maps) {
  // local copies: byte stores could otherwise alias the table pointers
  const T* m0 = maps[0];
  const T* m1 = maps[L::kUse > 1 ? 1 : 0];
  const T* m2 = maps[L::kUse > 2 ? 2 : 0];
  const T* m3 = maps[L::kUse > 3 ? 3 : 0];
  for (int x = 0; x < w; ++x, s += L::kCh, d += L::kCh) {
    T a = m0[s[0]];
    if constexpr (L::kUse > 1) {
      T b = m1[s[1]], c = m2[s[2]];
      if constexpr (L::kUse > 3) {
        T e = m3[s[3]];
        d[3] = e;
      }
      d[1] = b;
      d[2] = c;
    }
    d[0] = a;
  }
}

template <class T, class L>
void applyMaps(const T* src, int sstep, T* dst, int dstep, LumiSize roi, T* const* tables) {
  constexpr int size = SampleRange<T>::kSize, lo = SampleRange<T>::kLo;
  const T* maps[4];
  bool same = true;
  for (int c = 0; c < L::kUse; ++c) {
    maps[c] = tables[c] - lo;
    if (c > 0 && std::memcmp(tables[c], tables[0], sizeof(T) * size) != 0) same = false;
  }
  // One table for every channel: the row is a single run of samples. Separate tables per
  // channel go pixel by pixel (three or four register lookups per vector gain nothing there).
  const bool ac4 = L::kUse != L::kCh;
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  const MapRow8uFn map8u = sizeof(T) == 1 && same ? pickMapRow8u() : nullptr;
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, sstep, y);
    T* d = rowAt(dst, dstep, y);
    if (map8u) {  // 8u with one table
      map8u(reinterpret_cast<const uint8_t*>(s), reinterpret_cast<uint8_t*>(d), n,
            reinterpret_cast<const uint8_t*>(tables[0]), ac4);
    } else if (same && !ac4) {
      mapRow(s, d, n, maps[0]);
    } else {
      mapPixels<T, L>(s, d, roi.width, maps);
    }
  }
}

// Small 16-bit step lookups: each sample is located by halving the level list.
template <class T, class L>
void searchRows(const T* src, int sstep, T* dst, int dstep, LumiSize roi,
                const Lum32s* const* val, const Lum32s* const* lev, const int* n) {
  for (int y = 0; y < roi.height; ++y) {
    const T* s = rowAt(src, sstep, y);
    T* d = rowAt(dst, dstep, y);
    for (int x = 0; x < roi.width; ++x) {
      for (int c = 0; c < L::kUse; ++c) {
        int v = s[elemsOf(x, L::kCh) + c];
        const Lum32s* l = lev[c];
        int m = n[c];
        T out = static_cast<T>(v);
        if (v >= l[0] && v < l[m - 1]) out = saturate<T>(val[c][levels::searchInterval(l, m, v)]);
        d[elemsOf(x, L::kCh) + c] = out;
      }
    }
  }
}

template <class T, class L>
LumStatus lutInteger(Kind kind, const T* src, int sstep, T* dst, int dstep, LumiSize roi,
                     const Lum32s* const* val, const Lum32s* const* lev, const int* n) {
  constexpr int ch = L::kUse;
  if constexpr (sizeof(T) == 1) {
    alignas(64) Lum8u maps[4][256];
    Lum8u* tables[4];
    for (int c = 0; c < ch; ++c) {
      buildMap(kind, maps[c], val[c], lev[c], n[c]);
      tables[c] = maps[c];
    }
    applyMaps<T, L>(src, sstep, dst, dstep, roi, tables);
    return lumStatusOk;
  } else {
    // The search gives the map's result only for ordered levels; unordered ones always map.
    if (kind == Kind::Step && !std::is_same_v<L, C4> &&
        static_cast<int64_t>(roi.width) * roi.height <= 4096) {
      bool ordered = true;
      for (int c = 0; c < ch; ++c) ordered = ordered && levels::nonDecreasing(lev[c], n[c]);
      if (ordered) {
        searchRows<T, L>(src, sstep, dst, dstep, roi, val, lev, n);
        return lumStatusOk;
      }
    }
    constexpr int size = SampleRange<T>::kSize;
    T* block = reinterpret_cast<T*>(lumsMalloc_16s(size * ch));
    if (!block) return lumStatusMemAllocErr;
    T* tables[4];
    for (int c = 0; c < ch; ++c) {
      tables[c] = block + static_cast<std::ptrdiff_t>(size) * c;
      buildMap(kind, tables[c], val[c], lev[c], n[c]);
    }
    applyMaps<T, L>(src, sstep, dst, dstep, roi, tables);
    lumsFree(block);
    return lumStatusOk;
  }
}

// ---- 32f ----------------------------------------------------------------------------------------

// One channel of a float lookup. The step and cubic kinds take interval i when neither
// lev[i] > x nor x >= lev[i+1] holds (a NaN sample passes both tests at i = 0); the linear kind
// asks for lev[i+1] > x instead, which no NaN passes. Ordered lists are searched by halving,
// which finds the same interval for every sample that is not NaN.
struct Channel32f {
  Kind kind;
  const Lum32f* val;
  const Lum32f* lev;
  int n;
  bool ordered;
  const double* slope;      // linear: n - 1 entries
  const CubicPiece* cubic;  // cubic: n - 1 entries

  int find(float x) const {
    if (ordered && n > 8) {
      if (std::isnan(x)) return kind == Kind::Linear ? -1 : 0;
      if (!(x >= lev[0]) || !(x < lev[n - 1])) return -1;
      return levels::searchInterval(lev, n, x);
    }
    if (kind == Kind::Linear) {
      for (int i = 0; i + 1 < n; ++i)
        if (!(lev[i] > x) && lev[i + 1] > x) return i;
    } else {
      for (int i = 0; i + 1 < n; ++i)
        if (!(lev[i] > x) && !(x >= lev[i + 1])) return i;
    }
    return -1;
  }

  float apply(float x) const {
    int i = find(x);
    if (i < 0) return x;
    switch (kind) {
      case Kind::Step:
        return val[i];
      case Kind::Linear: {
        // evaluated in extended precision, rounded once to single
        long double r = (static_cast<long double>(x) - lev[i]) * slope[i] + val[i];
        return static_cast<float>(r);
      }
      default: {
        const CubicPiece& p = cubic[i];
        if (p.line) {
          long double r = (static_cast<long double>(x) - lev[i]) * p.c + val[i];
          return static_cast<float>(r);
        }
        long double t = static_cast<long double>(x) - p.x0;
        long double r = p.y0 + ((p.a * t + p.b) * t + p.c) * t;
        return static_cast<float>(r);
      }
    }
  }
};

// Slope of interval i in single precision; zero-width intervals are never looked up.
inline double slope32f(const Lum32f* val, const Lum32f* lev, int i) {
  float w = lev[i + 1] - lev[i];
  return w != 0.0f ? static_cast<double>((val[i + 1] - val[i]) / w) : 0.0;
}

template <class L>
LumStatus lut32f(Kind kind, const Lum32f* src, int sstep, Lum32f* dst, int dstep, LumiSize roi,
                 const Lum32f* const* val, const Lum32f* const* lev, const int* n) {
  constexpr int ch = L::kUse;
  Channel32f chan[4];
  std::size_t bytes = 0;
  for (int c = 0; c < ch; ++c) {
    Kind k = kind == Kind::Cubic && n[c] < 4 ? Kind::Linear : kind;
    chan[c] = Channel32f{k, val[c], lev[c], n[c], levels::strictlyIncreasing(lev[c], n[c]),
                         nullptr, nullptr};
    if (k == Kind::Linear) bytes += sizeof(double) * (n[c] - 1);
    if (k == Kind::Cubic) bytes += sizeof(CubicPiece) * (n[c] - 1);
  }
  Lum8u* scratch = nullptr;
  if (bytes) {
    scratch = bytes > 0x7fffffffu ? nullptr : lumsMalloc_8u(static_cast<int>(bytes));
    if (!scratch) return lumStatusMemAllocErr;
    Lum8u* at = scratch;
    for (int c = 0; c < ch; ++c) {
      Channel32f& h = chan[c];
      if (h.kind == Kind::Linear) {
        double* s = reinterpret_cast<double*>(at);
        for (int i = 0; i + 1 < h.n; ++i) s[i] = slope32f(h.val, h.lev, i);
        h.slope = s;
        at += sizeof(double) * (h.n - 1);
      } else if (h.kind == Kind::Cubic) {
        CubicPiece* p = reinterpret_cast<CubicPiece*>(at);
        for (int i = 0; i + 1 < h.n; ++i) {
          p[i] = cubicPiece(h.val, h.lev, h.n, i);
          if (p[i].line) p[i].c = slope32f(h.val, h.lev, i);
        }
        h.cubic = p;
        at += sizeof(CubicPiece) * (h.n - 1);
      }
    }
  }
  for (int y = 0; y < roi.height; ++y) {
    const Lum32f* s = rowAt(src, sstep, y);
    Lum32f* d = rowAt(dst, dstep, y);
    for (int x = 0; x < roi.width; ++x)
      for (int c = 0; c < ch; ++c) {
        const std::ptrdiff_t i = elemsOf(x, L::kCh) + c;
        d[i] = chan[c].apply(s[i]);
      }
  }
  lumsFree(scratch);
  return lumStatusOk;
}

// ---- validation and entry points --------------------------------------------------------------

template <class T, class L, class P>
LumStatus lutRun(Kind kind, const T* src, int sstep, T* dst, int dstep, LumiSize roi,
                 const P* const* val, const P* const* lev, const int* n) {
  roi = coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), sstep, dstep);
  if constexpr (std::is_same_v<T, Lum32f>)
    return lut32f<L>(kind, src, sstep, dst, dstep, roi, val, lev, n);
  else
    return lutInteger<T, L>(kind, src, sstep, dst, dstep, roi, val, lev, n);
}

// One channel: pointers, ROI, steps, level count.
template <class T, class P>
LumStatus lutC1(Kind kind, const T* src, int sstep, T* dst, int dstep, LumiSize roi,
                const P* val, const P* lev, int n) {
  if (anyNull(src, dst, val, lev)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep, dstep)) return lumStatusStepErr;
  if (n < 2) return lumStatusLutLevelsErr;
  return lutRun<T, C1, P>(kind, src, sstep, dst, dstep, roi, &val, &lev, &n);
}

// Several channels: the arrays, then each channel's pointers and count, only then ROI and steps.
template <class T, class L, class P>
LumStatus lutCn(Kind kind, const T* src, int sstep, T* dst, int dstep, LumiSize roi,
                const P* const* val, const P* const* lev, const int* n) {
  if (anyNull(src, dst) || anyNull(val, lev, n)) return lumStatusNullPtrErr;
  for (int c = 0; c < L::kUse; ++c) {
    if (anyNull(val[c], lev[c])) return lumStatusNullPtrErr;
    if (n[c] < 2) return lumStatusLutLevelsErr;
  }
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(sstep, dstep)) return lumStatusStepErr;
  return lutRun<T, L, P>(kind, src, sstep, dst, dstep, roi, val, lev, n);
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// T the sample type, P the level and value type; C3, C4 and AC4 take one level list per
// channel (NCH of them).
#define LUMI_LUT_C1(NAME, KIND, T, P)                                                           \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roi,       \
                          const P* v, const P* l, int n) {                                      \
    return lumi::lutC1<T, P>(lumi::Kind::KIND, pSrc, srcStep, pDst, dstStep, roi, v, l, n);     \
  }
#define LUMI_LUT_C1_I(NAME, KIND, T, P)                                                         \
  LUMI_API LumStatus NAME(T* p, int step, LumiSize roi, const P* v, const P* l, int n) {        \
    return lumi::lutC1<T, P>(lumi::Kind::KIND, p, step, p, step, roi, v, l, n);                 \
  }
#define LUMI_LUT_CN(NAME, KIND, T, P, L, NCH)                                                   \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roi,       \
                          const P* const v[NCH], const P* const l[NCH], const int n[NCH]) {     \
    return lumi::lutCn<T, lumi::L, P>(lumi::Kind::KIND, pSrc, srcStep, pDst, dstStep, roi, v,   \
                                      l, n);                                                    \
  }
#define LUMI_LUT_CN_I(NAME, KIND, T, P, L, NCH)                                                 \
  LUMI_API LumStatus NAME(T* p, int step, LumiSize roi, const P* const v[NCH],                  \
                          const P* const l[NCH], const int n[NCH]) {                            \
    return lumi::lutCn<T, lumi::L, P>(lumi::Kind::KIND, p, step, p, step, roi, v, l, n);        \
  }

LUMI_LUT_C1(lumiLUT_8u_C1R, Step, Lum8u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_8u_C1IR, Step, Lum8u, Lum32s)
LUMI_LUT_CN(lumiLUT_8u_C3R, Step, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_8u_C3IR, Step, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_8u_C4R, Step, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_8u_C4IR, Step, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_8u_AC4R, Step, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_8u_AC4IR, Step, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_16s_C1R, Step, Lum16s, Lum32s)
LUMI_LUT_C1_I(lumiLUT_16s_C1IR, Step, Lum16s, Lum32s)
LUMI_LUT_CN(lumiLUT_16s_C3R, Step, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_16s_C3IR, Step, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_16s_C4R, Step, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_16s_C4IR, Step, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_16s_AC4R, Step, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_16s_AC4IR, Step, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_16u_C1R, Step, Lum16u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_16u_C1IR, Step, Lum16u, Lum32s)
LUMI_LUT_CN(lumiLUT_16u_C3R, Step, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_16u_C3IR, Step, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_16u_C4R, Step, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_16u_C4IR, Step, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_16u_AC4R, Step, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_16u_AC4IR, Step, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_32f_C1R, Step, Lum32f, Lum32f)
LUMI_LUT_C1_I(lumiLUT_32f_C1IR, Step, Lum32f, Lum32f)
LUMI_LUT_CN(lumiLUT_32f_C3R, Step, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN_I(lumiLUT_32f_C3IR, Step, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN(lumiLUT_32f_C4R, Step, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN_I(lumiLUT_32f_C4IR, Step, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN(lumiLUT_32f_AC4R, Step, Lum32f, Lum32f, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_32f_AC4IR, Step, Lum32f, Lum32f, AC4, 3)
LUMI_LUT_C1(lumiLUT_Linear_8u_C1R, Linear, Lum8u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Linear_8u_C1IR, Linear, Lum8u, Lum32s)
LUMI_LUT_CN(lumiLUT_Linear_8u_C3R, Linear, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_8u_C3IR, Linear, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Linear_8u_C4R, Linear, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Linear_8u_C4IR, Linear, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Linear_8u_AC4R, Linear, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_8u_AC4IR, Linear, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Linear_16s_C1R, Linear, Lum16s, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Linear_16s_C1IR, Linear, Lum16s, Lum32s)
LUMI_LUT_CN(lumiLUT_Linear_16s_C3R, Linear, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_16s_C3IR, Linear, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Linear_16s_C4R, Linear, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Linear_16s_C4IR, Linear, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Linear_16s_AC4R, Linear, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_16s_AC4IR, Linear, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Linear_16u_C1R, Linear, Lum16u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Linear_16u_C1IR, Linear, Lum16u, Lum32s)
LUMI_LUT_CN(lumiLUT_Linear_16u_C3R, Linear, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_16u_C3IR, Linear, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Linear_16u_C4R, Linear, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Linear_16u_C4IR, Linear, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Linear_16u_AC4R, Linear, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_16u_AC4IR, Linear, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Linear_32f_C1R, Linear, Lum32f, Lum32f)
LUMI_LUT_C1_I(lumiLUT_Linear_32f_C1IR, Linear, Lum32f, Lum32f)
LUMI_LUT_CN(lumiLUT_Linear_32f_C3R, Linear, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_32f_C3IR, Linear, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN(lumiLUT_Linear_32f_C4R, Linear, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Linear_32f_C4IR, Linear, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN(lumiLUT_Linear_32f_AC4R, Linear, Lum32f, Lum32f, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Linear_32f_AC4IR, Linear, Lum32f, Lum32f, AC4, 3)
LUMI_LUT_C1(lumiLUT_Cubic_8u_C1R, Cubic, Lum8u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Cubic_8u_C1IR, Cubic, Lum8u, Lum32s)
LUMI_LUT_CN(lumiLUT_Cubic_8u_C3R, Cubic, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_8u_C3IR, Cubic, Lum8u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Cubic_8u_C4R, Cubic, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Cubic_8u_C4IR, Cubic, Lum8u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Cubic_8u_AC4R, Cubic, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_8u_AC4IR, Cubic, Lum8u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Cubic_16s_C1R, Cubic, Lum16s, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Cubic_16s_C1IR, Cubic, Lum16s, Lum32s)
LUMI_LUT_CN(lumiLUT_Cubic_16s_C3R, Cubic, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_16s_C3IR, Cubic, Lum16s, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Cubic_16s_C4R, Cubic, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Cubic_16s_C4IR, Cubic, Lum16s, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Cubic_16s_AC4R, Cubic, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_16s_AC4IR, Cubic, Lum16s, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Cubic_16u_C1R, Cubic, Lum16u, Lum32s)
LUMI_LUT_C1_I(lumiLUT_Cubic_16u_C1IR, Cubic, Lum16u, Lum32s)
LUMI_LUT_CN(lumiLUT_Cubic_16u_C3R, Cubic, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_16u_C3IR, Cubic, Lum16u, Lum32s, C3, 3)
LUMI_LUT_CN(lumiLUT_Cubic_16u_C4R, Cubic, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Cubic_16u_C4IR, Cubic, Lum16u, Lum32s, C4, 4)
LUMI_LUT_CN(lumiLUT_Cubic_16u_AC4R, Cubic, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_16u_AC4IR, Cubic, Lum16u, Lum32s, AC4, 3)
LUMI_LUT_C1(lumiLUT_Cubic_32f_C1R, Cubic, Lum32f, Lum32f)
LUMI_LUT_C1_I(lumiLUT_Cubic_32f_C1IR, Cubic, Lum32f, Lum32f)
LUMI_LUT_CN(lumiLUT_Cubic_32f_C3R, Cubic, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_32f_C3IR, Cubic, Lum32f, Lum32f, C3, 3)
LUMI_LUT_CN(lumiLUT_Cubic_32f_C4R, Cubic, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN_I(lumiLUT_Cubic_32f_C4IR, Cubic, Lum32f, Lum32f, C4, 4)
LUMI_LUT_CN(lumiLUT_Cubic_32f_AC4R, Cubic, Lum32f, Lum32f, AC4, 3)
LUMI_LUT_CN_I(lumiLUT_Cubic_32f_AC4IR, Cubic, Lum32f, Lum32f, AC4, 3)
#endif  // HWY_ONCE
