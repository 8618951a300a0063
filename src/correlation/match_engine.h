// Template matching engine shared by the cross-correlation and squared-distance families.
//
// Every member runs the same pipeline, per channel:
//  - the template goes into the top-left corner of a zeroed FFT-size tile and is transformed
//    once (its packed spectrum conjugated, so that the product with an image spectrum gives a
//    correlation);
//  - the destination is walked in tiles of (fftW - w + 1) x (fftH - h + 1) placements: the
//    source area a tile covers (zero outside the source) is converted to float, its window sums
//    are taken in double by running sums restarted in every tile, the tile is correlated with
//    the template and every placement is normalised and stored.
// The measures whose families run in parallel share the tiles among threads, each thread with
// its own tile, spectrum, sums and FFT work buffer; the template spectra are read by all.
//
// Accuracy: the numerator comes from single-precision FFTs, whose error scales with the norms
// of the whole tile and of the template. Two facts keep the results sane where the exact value
// is small: by Cauchy-Schwarz |sum src x tpl| <= |tpl| x sqrt(E) and |sum (tpl - tplMean) x
// (src - winMean)| <= sqrt(sum (tpl - tplMean)^2 x sum (src - winMean)^2), so the numerator is
// clamped to those bounds (a zero or flat window gives exactly 0); and the mean-removed measure
// correlates the tile minus its own mean, which keeps a large common level out of the FFT.
#pragma once

#include <atomic>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/frame.h"
#include "core/scale_factor.h"
#include "correlation/tile_correlator.h"
#include "lumi/correlation.h"

namespace lumi {
namespace match {

enum class Range { kFull, kSame, kValid };
enum class Measure { kNorm, kLevel, kSqrDist };

// Both norms are floored at the single-precision value nearest 5e-4.
constexpr float kEps = 0.0005f;
// Relative spread (to the window's energy about the tile level) under which a window counts as
// flat: far above the rounding of the running sums, far below any spread float data can hold.
constexpr double kFlat = 1e-12;

// Placement geometry and tiling of one call.
struct Plan {
  LumiSize src{0, 0}, tpl{0, 0}, dst{0, 0};
  int ox = 0, oy = 0;  // placement (x, y) covers source columns x - ox .. x - ox + w - 1
  int orderX = 1, orderY = 1;
  int fftW = 2, fftH = 2;
  int tileW = 1, tileH = 1;  // placements per tile
  int tilesX = 1, tilesY = 1;
  int tiles() const { return tilesX * tilesY; }
  std::size_t fftArea() const { return static_cast<std::size_t>(fftW) * fftH; }
};

// FFT order of one dimension: the smallest k >= 1 with 2^k >= 2 x template extent, one more
// when k < 7 and 2^k is still below the destination extent (larger tiles for small templates).
inline int fftOrder(int tplExtent, long long dstExtent) {
  int k = 1;
  while ((1LL << k) < 2LL * tplExtent) ++k;
  if (k < 7 && (1LL << k) < dstExtent) ++k;
  return k;
}

// False when the destination or the FFT tile cannot be addressed (extents past INT_MAX).
inline bool makePlan(Range range, LumiSize src, LumiSize tpl, Plan* p) {
  p->src = src;
  p->tpl = tpl;
  long long dw, dh;
  if (range == Range::kValid) {
    dw = src.width - tpl.width + 1LL;
    dh = src.height - tpl.height + 1LL;
    p->ox = p->oy = 0;
  } else if (range == Range::kFull) {
    dw = src.width + tpl.width - 1LL;
    dh = src.height + tpl.height - 1LL;
    p->ox = tpl.width - 1;
    p->oy = tpl.height - 1;
  } else {
    dw = src.width;
    dh = src.height;
    p->ox = (tpl.width - 1) / 2;
    p->oy = (tpl.height - 1) / 2;
  }
  p->orderX = fftOrder(tpl.width, dw);
  p->orderY = fftOrder(tpl.height, dh);
  if (dw > INT_MAX || dh > INT_MAX || p->orderX > 30 || p->orderY > 30) return false;
  p->dst = LumiSize{static_cast<int>(dw), static_cast<int>(dh)};
  p->fftW = 1 << p->orderX;
  p->fftH = 1 << p->orderY;
  p->tileW = p->fftW - tpl.width + 1;
  p->tileH = p->fftH - tpl.height + 1;
  p->tilesX = static_cast<int>((dw + p->tileW - 1) / p->tileW);
  p->tilesY = static_cast<int>((dh + p->tileH - 1) / p->tileH);
  return static_cast<long long>(p->tilesX) * p->tilesY <= INT_MAX;
}

// ---- destination stores ------------------------------------------------------------------
struct Store32f {
  void operator()(Lum32f* p, float v) const { *p = v; }
};
// 8u results: v x 2^-sf, ties to even whatever the caller's rounding mode, saturated; NaN
// (only from NaN or infinite input) gives 0.
struct Store8uSfs {
  ScaleFactor sf;
  void operator()(Lum8u* p, float v) const {
    double s = sf.scale(static_cast<double>(v));
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
struct TplChannel {
  double energy = 0;  // sum tpl^2
  float normFloored = kEps;  // max(|tpl|, eps)
  double bound = 0;   // |tpl| (Norm, SqrDist) or sqrt(sum (tpl - mean)^2) (Level)
  double var = 0;     // sum (tpl - mean)^2
  double resid = 0;   // sum of the mean-removed values as stored in float (0 up to rounding)
  const float* spectrum = nullptr;
};

// Copies channel c of the template into the top-left of a zeroed fftW x fftH tile (minus its
// mean for the mean-removed measure) and records the statistics of what was stored.
template <class S, class L, Measure M>
void loadTemplate(const S* tpl, int tplStep, const Plan& p, int c, float* tile, TplChannel* t) {
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
  t->energy = energy;
  const double norm = std::sqrt(energy);
  t->normFloored = static_cast<float>(norm) < kEps ? kEps : static_cast<float>(norm);
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
    t->var = var;
    t->resid = resid;
    t->bound = std::sqrt(var);
  } else {
    for (int i = 0; i < h; ++i) {
      const S* r = rowAt(tpl, tplStep, i);
      float* o = tile + static_cast<std::size_t>(i) * p.fftW;
      for (int j = 0; j < w; ++j) o[j] = static_cast<float>(r[elemsOf(j, L::kCh) + c]);
    }
    t->bound = norm;
  }
}

// ---- one thread's buffers ------------------------------------------------------------------
inline std::size_t alignUp(std::size_t n) { return (n + 63) & ~static_cast<std::size_t>(63); }

struct TileBuffers {
  float* tile;
  float* spec;
  double *winS, *winE;  // window sums of the tile's placements
  double *colS, *colE;  // column sums of the current placement row
  Lum8u* work;

  static std::size_t bytes(const Plan& p, std::size_t workBytes) {
    const std::size_t area = p.fftArea() * sizeof(float);
    const std::size_t places = static_cast<std::size_t>(p.tileW) * p.tileH * sizeof(double);
    const std::size_t cols = static_cast<std::size_t>(p.fftW) * sizeof(double);
    return 2 * alignUp(area) + 2 * alignUp(places) + 2 * alignUp(cols) + alignUp(workBytes) + 64;
  }
  static TileBuffers carve(const Plan& p, Lum8u* block) {
    const std::size_t area = p.fftArea() * sizeof(float);
    const std::size_t places = static_cast<std::size_t>(p.tileW) * p.tileH * sizeof(double);
    const std::size_t cols = static_cast<std::size_t>(p.fftW) * sizeof(double);
    Lum8u* q = reinterpret_cast<Lum8u*>(
        (reinterpret_cast<std::uintptr_t>(block) + 63) & ~static_cast<std::uintptr_t>(63));
    TileBuffers b;
    b.tile = reinterpret_cast<float*>(q), q += alignUp(area);
    b.spec = reinterpret_cast<float*>(q), q += alignUp(area);
    b.winS = reinterpret_cast<double*>(q), q += alignUp(places);
    b.winE = reinterpret_cast<double*>(q), q += alignUp(places);
    b.colS = reinterpret_cast<double*>(q), q += alignUp(cols);
    b.colE = reinterpret_cast<double*>(q), q += alignUp(cols);
    b.work = q;
    return b;
  }
};

// ---- one tile ------------------------------------------------------------------------------
// Converts the source area under placements [x0, x0 + tw) x [y0, y0 + th) of channel c into the
// top-left (tw + w - 1) x (th + h - 1) of the tile, zero outside the source; the rest of the
// tile is cleared too (it only feeds placements that are not kept, but stays deterministic).
template <class S, class L>
void loadTile(const S* src, int srcStep, const Plan& p, int c, int x0, int y0, int tw, int th,
              float* tile) {
  const int cw = tw + p.tpl.width - 1, chh = th + p.tpl.height - 1;
  const int sx0 = x0 - p.ox, sy0 = y0 - p.oy;
  // source columns inside [0, src.width) that the covered area reaches
  const int jLo = sx0 < 0 ? -sx0 : 0;
  const int jHi = (sx0 + cw > p.src.width ? p.src.width - sx0 : cw);
  for (int i = 0; i < p.fftH; ++i) {
    float* o = tile + static_cast<std::size_t>(i) * p.fftW;
    const int sy = sy0 + i;
    if (i >= chh || sy < 0 || sy >= p.src.height || jLo >= jHi) {
      std::memset(o, 0, p.fftW * sizeof(float));
      continue;
    }
    const S* r = rowAt(src, srcStep, sy) + elemsOf(sx0 + jLo, L::kCh) + c;
    for (int j = 0; j < jLo; ++j) o[j] = 0.0f;
    if constexpr (L::kCh == 1 && std::is_same_v<S, Lum32f>) {
      std::memcpy(o + jLo, r, (jHi - jLo) * sizeof(float));
    } else {
      for (int j = jLo; j < jHi; ++j, r += L::kCh) o[j] = static_cast<float>(*r);
    }
    for (int j = jHi; j < p.fftW; ++j) o[j] = 0.0f;
  }
}

// Window sums (winS: values, winE: squares) of every placement of a tw x th tile, by running
// sums in double restarted in each tile: squares of floats are exact in double and integer
// data sums exactly. Tiny negative energies from cancellation are clamped to zero.
inline void windowSums(const float* tile, const Plan& p, int tw, int th, const TileBuffers& b) {
  const int w = p.tpl.width, h = p.tpl.height, cw = tw + w - 1;
  const std::size_t stride = p.fftW;
  for (int j = 0; j < cw; ++j) b.colS[j] = b.colE[j] = 0.0;
  for (int i = 0; i < h; ++i) {
    const float* r = tile + i * stride;
    for (int j = 0; j < cw; ++j) {
      double v = r[j];
      b.colS[j] += v;
      b.colE[j] += v * v;
    }
  }
  for (int y = 0; y < th; ++y) {
    if (y > 0) {
      const float* in = tile + (y + h - 1) * stride;
      const float* out = tile + (y - 1) * stride;
      for (int j = 0; j < cw; ++j) {
        double a = in[j], o = out[j];
        b.colS[j] += a - o;
        b.colE[j] += a * a - o * o;
      }
    }
    double s = 0, e = 0;
    for (int j = 0; j < w; ++j) {
      s += b.colS[j];
      e += b.colE[j];
    }
    double* rs = b.winS + static_cast<std::size_t>(y) * tw;
    double* re = b.winE + static_cast<std::size_t>(y) * tw;
    for (int x = 0;; ++x) {
      rs[x] = s;
      re[x] = e < 0.0 ? 0.0 : e;
      if (x + 1 == tw) break;
      s += b.colS[x + w] - b.colS[x];
      e += b.colE[x + w] - b.colE[x];
    }
  }
}

// The mean-removed measure correlates the covered area minus one level (its mean, rounded to
// an integer for integer sources so that the values stay exact).
template <class S>
float subtractLevel(float* tile, const Plan& p, int tw, int th) {
  const int cw = tw + p.tpl.width - 1, chh = th + p.tpl.height - 1;
  double sum = 0;
  for (int i = 0; i < chh; ++i) {
    const float* r = tile + static_cast<std::size_t>(i) * p.fftW;
    for (int j = 0; j < cw; ++j) sum += r[j];
  }
  double mean = sum / (static_cast<double>(cw) * chh);
  float level = std::is_floating_point_v<S> ? static_cast<float>(mean)
                                            : static_cast<float>(std::floor(mean + 0.5));
  for (int i = 0; i < chh; ++i) {
    float* r = tile + static_cast<std::size_t>(i) * p.fftW;
    for (int j = 0; j < cw; ++j) r[j] -= level;
  }
  return level;
}

// Normalises the correlation values `num` (rows of fftW) of a tile and stores them.
template <Measure M, class D, class L, class Store>
void finishTile(const float* num, const Plan& p, const TplChannel& t, const TileBuffers& b,
                int tw, int th, D* dst, int dstStep, int x0, int y0, int c, const Store& store) {
  const double n = static_cast<double>(p.tpl.width) * p.tpl.height;
  const double eps = kEps;
  for (int y = 0; y < th; ++y) {
    const float* r = num + static_cast<std::size_t>(y) * p.fftW;
    const double* ws = b.winS + static_cast<std::size_t>(y) * tw;
    const double* we = b.winE + static_cast<std::size_t>(y) * tw;
    D* o = rowAt(dst, dstStep, y0 + y) + elemsOf(x0, L::kCh) + c;
    for (int x = 0; x < tw; ++x, o += L::kCh) {
      float v;
      if constexpr (M == Measure::kLevel) {
        // window values were shifted by the tile's level: ws, we are sums of the shifted values
        // a spread below what the double sums resolve is a flat window
        double var = we[x] - ws[x] * ws[x] / n;
        if (var <= kFlat * we[x]) var = 0.0;
        double nm = static_cast<double>(r[x]) - ws[x] / n * t.resid;
        double bound = t.bound * std::sqrt(var);
        nm = nm > bound ? bound : nm < -bound ? -bound : nm;
        double den = std::sqrt((t.var < eps ? eps : t.var) * (var < eps ? eps : var));
        v = static_cast<float>(nm / den);
      } else {
        double bound = t.bound * std::sqrt(we[x]);
        double nm = r[x];
        nm = nm > bound ? bound : nm < -bound ? -bound : nm;
        float e = static_cast<float>(we[x]);
        float den = t.normFloored * std::sqrt(e < kEps ? kEps : e);
        if constexpr (M == Measure::kNorm) {
          v = static_cast<float>(nm) / den;
        } else {
          double d = we[x] - 2.0 * nm + t.energy;
          v = static_cast<float>(d < 0.0 ? 0.0 : d) / den;
        }
      }
      store(o, v);
    }
  }
}

// ---- the whole call --------------------------------------------------------------------------
// Parallel families fork when there are several tiles and enough transform work.
inline bool forkTiles(const Plan& p, int channels) {
  return p.tiles() >= 2 &&
         forkByWork(LumiSize{p.fftW, p.fftH}, static_cast<long long>(p.tiles()) * channels,
                    1 << 16);
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
  const std::size_t area = p.fftArea() * sizeof(float);
  if ((kUse + 1) * alignUp(area) > 0x7fffffffu) return lumStatusMemAllocErr;

  TileCorrelator corr;
  if (LumStatus st = corr.init(p.orderX, p.orderY, tplRoi.width, tplRoi.height)) return st;

  // The template spectra of every channel, a tile to build them in and a work buffer.
  const std::size_t sharedBytes = (kUse + 1) * alignUp(area) + alignUp(corr.workBytes()) + 64;
  if (sharedBytes > 0x7fffffffu) return lumStatusMemAllocErr;
  Lum8u* shared = lumsMalloc_8u(static_cast<int>(sharedBytes));
  if (!shared) return lumStatusMemAllocErr;
  Lum8u* q = reinterpret_cast<Lum8u*>(
      (reinterpret_cast<std::uintptr_t>(shared) + 63) & ~static_cast<std::uintptr_t>(63));
  TplChannel t[kUse];
  float* tmp = reinterpret_cast<float*>(q + kUse * alignUp(area));
  Lum8u* tmpWork = q + (kUse + 1) * alignUp(area);
  for (int c = 0; c < kUse; ++c) {
    float* spec = reinterpret_cast<float*>(q + c * alignUp(area));
    loadTemplate<S, L, M>(tpl, tplStep, p, c, tmp, &t[c]);
    if (LumStatus st = corr.transformTemplate(tmp, spec, tmpWork)) {
      lumsFree(shared);
      return st;
    }
    t[c].spectrum = spec;
  }

  std::atomic<int> failure{lumStatusOk};
  const bool parallel = M != Measure::kNorm && forkTiles(p, kUse);
  LumStatus st = forRowsWithScratch(
      p.tiles(), parallel, TileBuffers::bytes(p, corr.workBytes()),
      [&](int t0, int t1, Lum8u* mine) {
        TileBuffers b = TileBuffers::carve(p, mine);
        for (int k = t0; k < t1 && failure.load(std::memory_order_relaxed) == lumStatusOk; ++k) {
          const int x0 = (k % p.tilesX) * p.tileW, y0 = (k / p.tilesX) * p.tileH;
          const int tw = p.dst.width - x0 < p.tileW ? p.dst.width - x0 : p.tileW;
          const int th = p.dst.height - y0 < p.tileH ? p.dst.height - y0 : p.tileH;
          for (int c = 0; c < kUse; ++c) {
            loadTile<S, L>(src, srcStep, p, c, x0, y0, tw, th, b.tile);
            if constexpr (M == Measure::kLevel) subtractLevel<S>(b.tile, p, tw, th);
            windowSums(b.tile, p, tw, th, b);
            const float* num = nullptr;
            if (LumStatus fs = corr.correlate(b.tile, b.spec, t[c].spectrum, b.work, tw, th,
                                              &num)) {
              int expected = lumStatusOk;
              failure.compare_exchange_strong(expected, fs);
              return;
            }
            finishTile<M, D, L>(num, p, t[c], b, tw, th, dst, dstStep, x0, y0, c, store);
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
#define LUMI_MATCH(NAME, S, D, L, RANGE, MEASURE)                                             \
  LUMI_API LumStatus NAME(const S* pSrc, int srcStep, LumiSize srcRoiSize, const S* pTpl,      \
                          int tplStep, LumiSize tplRoiSize, D* pDst, int dstStep) {            \
    return ::lumi::match::run<S, D, ::lumi::L, ::lumi::match::Range::RANGE,                    \
                              ::lumi::match::Measure::MEASURE>(                                \
        pSrc, srcStep, srcRoiSize, pTpl, tplStep, tplRoiSize, pDst, dstStep,                   \
        ::lumi::match::Store32f());                                                            \
  }
#define LUMI_MATCH_SFS(NAME, L, RANGE, MEASURE)                                                \
  LUMI_API LumStatus NAME(const Lum8u* pSrc, int srcStep, LumiSize srcRoiSize,                 \
                          const Lum8u* pTpl, int tplStep, LumiSize tplRoiSize, Lum8u* pDst,    \
                          int dstStep, int scaleFactor) {                                      \
    return ::lumi::match::run<Lum8u, Lum8u, ::lumi::L, ::lumi::match::Range::RANGE,            \
                              ::lumi::match::Measure::MEASURE>(                                \
        pSrc, srcStep, srcRoiSize, pTpl, tplStep, tplRoiSize, pDst, dstStep,                   \
        ::lumi::match::Store8uSfs{::lumi::ScaleFactor::resolve(scaleFactor, 8, 9)});           \
  }
