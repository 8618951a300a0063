// Template matching engine shared by the cross-correlation and squared-distance families.
//
// Every member runs the same pipeline, per channel:
//  - the template goes into the top-left corner of a zeroed tile (minus its mean for the
//    mean-removed measure) and is transformed once (tile_correlator.h);
//  - the destination is walked in tiles of placements, row band by row band: the source area a
//    tile covers (zero outside the source) is converted to float; the sums of each placement's
//    window (values and squares) are taken in double, first along every covered row by running
//    sums restarted in each row, then down the columns by a running sum over h rows; the tile
//    is correlated with the template; every placement is normalised in single precision
//    (match_kernels.h) and stored.
// The measures whose families run in parallel share the tiles among threads, each thread with
// its own tile, spectrum, sums and FFT work buffer; the template spectra are read by all.
//
// Accuracy: the numerator comes from single-precision FFTs, whose error scales with the norms
// of the whole tile and of the template. Two facts keep the results sane where the exact value
// is small: by Cauchy-Schwarz |sum src x tpl| <= |tpl| x sqrt(E) and |sum (tpl - tplMean) x
// (src - winMean)| <= sqrt(sum (tpl - tplMean)^2 x sum (src - winMean)^2), so the numerator is
// clamped to those bounds (a zero or flat window gives exactly 0); and the mean-removed measure
// works on the tile minus one common level, which keeps a large level out of the transforms
// and the spread sums (its numerator gets back the window mean about that level times the sum
// of the stored template, 0 up to rounding).
#pragma once

#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/frame.h"
#include "core/scale_factor.h"
#include "correlation/match_kernels.h"
#include "correlation/tile_correlator.h"
#include "lumi/correlation.h"

namespace lumi {
namespace match {

// ---- destination stores ------------------------------------------------------------------
struct Store32f {
  void operator()(Lum32f* p, float v) const { *p = v; }
};
// 8u results: v x 2^-sf, ties to even whatever the caller's rounding mode, saturated; NaN
// (only from NaN or infinite input) gives 0.
struct Store8uSfs {
  explicit Store8uSfs(int scaleFactor)
      : sf(ScaleFactor::resolve(scaleFactor, 8, 9)),
        normal(sf.normalFactor()),
        factor(sf.factor()) {}
  ScaleFactor sf;
  bool normal;  // 2^-sf is a normal double: multiplying by it is exact
  double factor;
  void operator()(Lum8u* p, float v) const {
    const double s = normal ? static_cast<double>(v) * factor : sf.scale(static_cast<double>(v));
    if (!(s > 0.0)) {
      *p = 0;
      return;
    }
    if (s >= 255.0) {
      *p = 255;
      return;
    }
    double f = std::floor(s), d = s - f;
    int r = static_cast<int>(f);
    if (d > 0.5 || (d == 0.5 && (r & 1))) ++r;
    *p = static_cast<Lum8u>(r);
  }
};

// ---- template statistics -------------------------------------------------------------------
// Copies channel c of the template into the top-left of a zeroed fftW x fftH tile (minus its
// mean for the mean-removed measure) and returns the constants of the normalisation.
template <class S, class L, Measure M>
Norms loadTemplate(const S* tpl, int tplStep, const Plan& p, int c, float* tile) {
  std::memset(tile, 0, p.fftArea() * sizeof(float));
  const int w = p.tpl.width, h = p.tpl.height;
  double sum = 0, energy = 0;
  for (int i = 0; i < h; ++i) {
    const S* r = rowAt(tpl, tplStep, i);
    for (int j = 0; j < w; ++j) {
      double v = static_cast<double>(r[elemsOf(j, L::kCh) + c]);
      sum += v;
      energy += v * v;
    }
  }
  Norms k{};
  k.sqrtEps = std::sqrt(kEps);
  if constexpr (M == Measure::kLevel) {
    const double mean = sum / (static_cast<double>(w) * h);
    double var = 0, resid = 0;
    for (int i = 0; i < h; ++i) {
      const S* r = rowAt(tpl, tplStep, i);
      float* o = tile + static_cast<std::size_t>(i) * p.fftW;
      for (int j = 0; j < w; ++j) {
        double d = static_cast<double>(r[elemsOf(j, L::kCh) + c]) - mean;
        var += d * d;
        o[j] = static_cast<float>(d);
        resid += o[j];
      }
    }
    const float v = static_cast<float>(var);
    k.bound = std::sqrt(v);
    k.floored = std::sqrt(v < kEps ? kEps : v);
    k.resid = static_cast<float>(resid);
  } else {
    for (int i = 0; i < h; ++i) {
      const S* r = rowAt(tpl, tplStep, i);
      float* o = tile + static_cast<std::size_t>(i) * p.fftW;
      for (int j = 0; j < w; ++j) o[j] = static_cast<float>(r[elemsOf(j, L::kCh) + c]);
    }
    k.bound = static_cast<float>(std::sqrt(energy));
    k.floored = k.bound < kEps ? kEps : k.bound;
    k.energy = static_cast<float>(energy);
  }
  return k;
}

// ---- one thread's buffers ------------------------------------------------------------------
inline std::size_t alignUp(std::size_t n) { return (n + 63) & ~static_cast<std::size_t>(63); }

struct TileBuffers {
  float* tile;          // fftW x fftH: the source area, then the correlation values
  float* spec;          // fftW x fftH: the tile's spectrum
  double *rowS, *rowE;  // fftH x tileW: sums of w consecutive values (squares) of each row
  double *accS, *accE;  // tileW: the sliding column state
  float *a, *b;         // tileW x tileH: energy or spread, window mean
  float* out;           // tileW: one row of results
  Lum8u* work;          // the transform's work buffer

  struct Sizes {
    std::size_t area, rows, acc, places, out;
  };
  static Sizes sizes(const Plan& p) {
    return Sizes{alignUp(p.fftArea() * sizeof(float)),
                 alignUp(static_cast<std::size_t>(p.fftH) * p.tileW * sizeof(double)),
                 alignUp(static_cast<std::size_t>(p.tileW) * sizeof(double)),
                 alignUp(static_cast<std::size_t>(p.tileW) * p.tileH * sizeof(float)),
                 alignUp(static_cast<std::size_t>(p.tileW) * sizeof(float))};
  }
  static std::size_t bytes(const Plan& p, std::size_t workBytes) {
    const Sizes z = sizes(p);
    return 2 * z.area + 2 * z.rows + 2 * z.acc + 2 * z.places + z.out + alignUp(workBytes) + 64;
  }
  static TileBuffers carve(const Plan& p, Lum8u* block) {
    const Sizes z = sizes(p);
    Lum8u* q = reinterpret_cast<Lum8u*>((reinterpret_cast<std::uintptr_t>(block) + 63) &
                                        ~static_cast<std::uintptr_t>(63));
    auto take = [&q](std::size_t n) {
      Lum8u* r = q;
      q += n;
      return r;
    };
    TileBuffers b;
    b.tile = reinterpret_cast<float*>(take(z.area));
    b.spec = reinterpret_cast<float*>(take(z.area));
    b.rowS = reinterpret_cast<double*>(take(z.rows));
    b.rowE = reinterpret_cast<double*>(take(z.rows));
    b.accS = reinterpret_cast<double*>(take(z.acc));
    b.accE = reinterpret_cast<double*>(take(z.acc));
    b.a = reinterpret_cast<float*>(take(z.places));
    b.b = reinterpret_cast<float*>(take(z.places));
    b.out = reinterpret_cast<float*>(take(z.out));
    b.work = q;
    return b;
  }
};

// ---- one tile ------------------------------------------------------------------------------
// The mean-removed measure correlates the covered area minus one level, which keeps a large
// common level out of the single-precision transforms and the spread sums: the mean of up to
// 8 x 8 source samples spread over the covered area (rounded to an integer for integer sources,
// so that the shifted values stay exact).
template <class S, class L>
float sampleLevel(const S* src, int srcStep, const Plan& p, int c, int x0, int y0, int tw,
                  int th) {
  const int sx0 = x0 - p.ox, sy0 = y0 - p.oy;
  const int xa = sx0 < 0 ? 0 : sx0, ya = sy0 < 0 ? 0 : sy0;
  const int xb = sx0 + tw + p.tpl.width - 1 < p.src.width ? sx0 + tw + p.tpl.width - 1 : p.src.width;
  const int yb = sy0 + th + p.tpl.height - 1 < p.src.height ? sy0 + th + p.tpl.height - 1
                                                             : p.src.height;
  double sum = 0;
  int n = 0;
  for (int i = 0; i < 8; ++i) {
    const S* r = rowAt(src, srcStep, ya + static_cast<int>((yb - ya) * (2LL * i + 1) / 16));
    for (int j = 0; j < 8; ++j, ++n)
      sum += static_cast<double>(r[elemsOf(xa + static_cast<int>((xb - xa) * (2LL * j + 1) / 16),
                                           L::kCh) + c]);
  }
  const double m = sum / n;
  return std::is_floating_point_v<S> ? static_cast<float>(m)
                                     : static_cast<float>(std::floor(m + 0.5));
}

// Converts the source area under placements [x0, x0 + tw) x [y0, y0 + th) of channel c, minus
// `level`, into the top-left (tw + w - 1) x (th + h - 1) of the tile, the source being zero
// outside its ROI (-level there); the rest of the tile is cleared (it only feeds placements
// that are not kept, but must hold numbers).
template <class S, class L>
void loadTile(const S* src, int srcStep, const Plan& p, int c, int x0, int y0, int tw, int th,
              float level, LoadRowFn<S> loadRow, float* tile) {
  const int cw = tw + p.tpl.width - 1, chh = th + p.tpl.height - 1;
  const int sx0 = x0 - p.ox, sy0 = y0 - p.oy;
  // the columns of the covered area that lie inside the source
  const int jLo = sx0 < 0 ? -sx0 : 0;
  const int jHi = (sx0 + cw > p.src.width ? p.src.width - sx0 : cw);
  const float outside = -level;
  for (int i = 0; i < p.fftH; ++i) {
    float* o = tile + static_cast<std::size_t>(i) * p.fftW;
    const int sy = sy0 + i;
    if (i >= chh) {
      std::memset(o, 0, p.fftW * sizeof(float));
      continue;
    }
    if (sy < 0 || sy >= p.src.height || jLo >= jHi) {
      for (int j = 0; j < cw; ++j) o[j] = outside;
      for (int j = cw; j < p.fftW; ++j) o[j] = 0.0f;
      continue;
    }
    const S* r = rowAt(src, srcStep, sy) + elemsOf(sx0 + jLo, L::kCh) + c;
    for (int j = 0; j < jLo; ++j) o[j] = outside;
    if constexpr (L::kCh == 1) {
      if (std::is_same_v<S, Lum32f> && level == 0.0f)
        std::memcpy(o + jLo, r, (jHi - jLo) * sizeof(float));
      else
        loadRow(r, jHi - jLo, level, o + jLo);
    } else {
      for (int j = jLo; j < jHi; ++j, r += L::kCh) o[j] = static_cast<float>(*r) - level;
    }
    for (int j = jHi; j < cw; ++j) o[j] = outside;
    for (int j = cw; j < p.fftW; ++j) o[j] = 0.0f;
  }
}

// Sums of w consecutive values (kSum) and squares along each of the covered rows, by running
// sums in double restarted in every row of every tile: squares of floats are exact in double
// and integer data sums exactly. Two rows at a time keep four independent chains in flight.
template <bool kSum>
void rowSums(const float* tile, const Plan& p, int tw, int rows, const TileBuffers& b) {
  const int w = p.tpl.width;
  const std::size_t stride = p.fftW;
  int r = 0;
  for (; r + 2 <= rows; r += 2) {
    const float* u = tile + r * stride;
    const float* v = u + stride;
    double su = 0, eu = 0, sv = 0, ev = 0;
    for (int j = 0; j < w; ++j) {
      const double a = u[j], c = v[j];
      su += a, eu += a * a, sv += c, ev += c * c;
    }
    double *osu = b.rowS + r * static_cast<std::size_t>(tw), *osv = osu + tw;
    double *oeu = b.rowE + r * static_cast<std::size_t>(tw), *oev = oeu + tw;
    for (int x = 0;; ++x) {
      if (kSum) osu[x] = su, osv[x] = sv;
      oeu[x] = eu, oev[x] = ev;
      if (x + 1 == tw) break;
      const double ai = u[x + w], ao = u[x], ci = v[x + w], co = v[x];
      if (kSum) su += ai - ao, sv += ci - co;
      eu += ai * ai - ao * ao;
      ev += ci * ci - co * co;
    }
  }
  for (; r < rows; ++r) {
    const float* u = tile + r * stride;
    double su = 0, eu = 0;
    for (int j = 0; j < w; ++j) {
      const double a = u[j];
      su += a, eu += a * a;
    }
    double* osu = b.rowS + r * static_cast<std::size_t>(tw);
    double* oeu = b.rowE + r * static_cast<std::size_t>(tw);
    for (int x = 0;; ++x) {
      if (kSum) osu[x] = su;
      oeu[x] = eu;
      if (x + 1 == tw) break;
      const double ai = u[x + w], ao = u[x];
      if (kSum) su += ai - ao;
      eu += ai * ai - ao * ao;
    }
  }
}

// The chosen kernels of one call.
struct Kernels {
  SlideEnergyFn slideEnergy = pickSlideEnergy();
  SlideLevelFn slideLevel = pickSlideLevel();
  FinishRowFn finish;
};

// Normalises the correlation values `num` (rows of fftW) of a tile and stores them.
template <class D, class L, class Store>
void finishTile(const float* num, const Plan& p, const Norms& k, const Kernels& kern,
                const TileBuffers& b, int tw, int th, D* dst, int dstStep, int x0, int y0, int c,
                const Store& store) {
  for (int y = 0; y < th; ++y) {
    const std::size_t at = static_cast<std::size_t>(y) * tw;
    D* o = rowAt(dst, dstStep, y0 + y) + elemsOf(x0, L::kCh) + c;
    if constexpr (L::kCh == 1 && std::is_same_v<D, Lum32f>) {
      kern.finish(num + static_cast<std::size_t>(y) * p.fftW, b.a + at, b.b + at, tw, k, o);
    } else {
      kern.finish(num + static_cast<std::size_t>(y) * p.fftW, b.a + at, b.b + at, tw, k, b.out);
      for (int x = 0; x < tw; ++x, o += L::kCh) store(o, b.out[x]);
    }
  }
}

// ---- the whole call --------------------------------------------------------------------------
// Parallel families fork when there are several tiles and enough transform work.
inline bool forkTiles(const Plan& p, int channels) {
  return p.tiles() >= 2 && forkByWork(LumiSize{p.fftW, p.fftH},
                                      static_cast<long long>(p.tiles()) * channels, 1 << 16);
}

template <class S, class D, class L, Range R, Measure M, class Store>
LumStatus run(const S* src, int srcStep, LumiSize srcRoi, const S* tpl, int tplStep,
              LumiSize tplRoi, D* dst, int dstStep, const Store& store) {
  if (anyNull(src, tpl, dst)) return lumStatusNullPtrErr;
  if (badSize(srcRoi) || badSize(tplRoi) || srcRoi.width < tplRoi.width ||
      srcRoi.height < tplRoi.height)
    return lumStatusSizeErr;
  if (badStep(srcStep, tplStep, dstStep)) return lumStatusStepErr;
  Plan p;
  if (!makePlan(R, srcRoi, tplRoi, &p)) return lumStatusMemAllocErr;

  constexpr int kUse = L::kUse;
  // Buffers that could never be allocated fail before the transform is set up.
  const std::size_t area = alignUp(p.fftArea() * sizeof(float));
  if ((kUse + 1) * area > 0x7fffffffu) return lumStatusMemAllocErr;

  TileCorrelator corr;
  if (LumStatus st = corr.init(p)) return st;

  // The template spectra of every channel, a tile to build them in and a work buffer.
  const std::size_t sharedBytes = (kUse + 1) * area + alignUp(corr.workBytes()) + 64;
  if (sharedBytes > 0x7fffffffu) return lumStatusMemAllocErr;
  Lum8u* shared = lumsMalloc_8u(static_cast<int>(sharedBytes));
  if (!shared) return lumStatusMemAllocErr;
  Lum8u* q = reinterpret_cast<Lum8u*>((reinterpret_cast<std::uintptr_t>(shared) + 63) &
                                      ~static_cast<std::uintptr_t>(63));
  Norms k[kUse];
  const float* spectra[kUse];
  float* tmp = reinterpret_cast<float*>(q + kUse * area);
  Lum8u* tmpWork = q + (kUse + 1) * area;
  for (int c = 0; c < kUse; ++c) {
    float* spec = reinterpret_cast<float*>(q + c * area);
    k[c] = loadTemplate<S, L, M>(tpl, tplStep, p, c, tmp);
    if (LumStatus st = corr.transformTemplate(tmp, spec, tmpWork)) {
      lumsFree(shared);
      return st;
    }
    spectra[c] = spec;
  }

  Kernels kern;
  kern.finish = M == Measure::kNorm    ? pickFinishNorm()
                : M == Measure::kLevel ? pickFinishLevel()
                                       : pickFinishSqr();
  const LoadRowFn<S> loadRow = pickLoadRow<S>();
  const double invN = 1.0 / (static_cast<double>(tplRoi.width) * tplRoi.height);
  std::atomic<int> failure{lumStatusOk};
  const bool parallel = M != Measure::kNorm && forkTiles(p, kUse);
  LumStatus st = forRowsWithScratch(
      p.tiles(), parallel, TileBuffers::bytes(p, corr.workBytes()),
      [&](int t0, int t1, Lum8u* mine) {
        const TileBuffers b = TileBuffers::carve(p, mine);
        for (int t = t0; t < t1 && failure.load(std::memory_order_relaxed) == lumStatusOk; ++t) {
          const int x0 = (t % p.tilesX) * p.tileW, y0 = (t / p.tilesX) * p.tileH;
          const int tw = p.dst.width - x0 < p.tileW ? p.dst.width - x0 : p.tileW;
          const int th = p.dst.height - y0 < p.tileH ? p.dst.height - y0 : p.tileH;
          const int rows = th + tplRoi.height - 1;
          for (int c = 0; c < kUse; ++c) {
            if constexpr (M == Measure::kLevel) {
              const float level = sampleLevel<S, L>(src, srcStep, p, c, x0, y0, tw, th);
              loadTile<S, L>(src, srcStep, p, c, x0, y0, tw, th, level, loadRow, b.tile);
              rowSums<true>(b.tile, p, tw, rows, b);
              kern.slideLevel(b.rowS, b.rowE, tw, th, tplRoi.height, invN, kFlat, b.accS, b.accE,
                              b.a, b.b);
            } else {
              loadTile<S, L>(src, srcStep, p, c, x0, y0, tw, th, 0.0f, loadRow, b.tile);
              rowSums<false>(b.tile, p, tw, rows, b);
              kern.slideEnergy(b.rowE, tw, th, tplRoi.height, b.accE, b.a);
            }
            const float* num = nullptr;
            if (LumStatus fs = corr.correlate(b.tile, b.spec, spectra[c], b.work, tw, th, &num)) {
              int expected = lumStatusOk;
              failure.compare_exchange_strong(expected, fs);
              return;
            }
            finishTile<D, L>(num, p, k[c], kern, b, tw, th, dst, dstStep, x0, y0, c, store);
          }
        }
      });
  lumsFree(shared);
  if (st != lumStatusOk) return st;
  return failure.load();
}

}  // namespace match
}  // namespace lumi

// One stamp per export: the 32f-result members and the 8u members with a scale factor.
#define LUMI_MATCH(NAME, S, D, L, RANGE, MEASURE)                                                  \
  LUMI_API LumStatus NAME(const S* pSrc, int srcStep, LumiSize srcRoiSize, const S* pTpl,          \
                          int tplStep, LumiSize tplRoiSize, D* pDst, int dstStep) {                \
    return ::lumi::match::run<S, D, ::lumi::L, ::lumi::match::Range::RANGE,                        \
                              ::lumi::match::Measure::MEASURE>(pSrc, srcStep, srcRoiSize, pTpl,    \
                                                               tplStep, tplRoiSize, pDst, dstStep, \
                                                               ::lumi::match::Store32f());         \
  }
#define LUMI_MATCH_SFS(NAME, L, RANGE, MEASURE)                                                   \
  LUMI_API LumStatus NAME(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize, const Lum8u* pTpl, \
                          int tplStep, LumiSize tplRoiSize, Lum8u* pDst, int dstStep,             \
                          int scaleFactor) {                                                      \
    return ::lumi::match::run<Lum8u, Lum8u, ::lumi::L, ::lumi::match::Range::RANGE,               \
                              ::lumi::match::Measure::MEASURE>(                                   \
        pSrc, srcStep, srcRoiSize, pTpl, tplStep, tplRoiSize, pDst, dstStep,                      \
        ::lumi::match::Store8uSfs(scaleFactor));                                                  \
  }
