// Placement geometry and tiling, and the correlation of an image tile with the template, both
// held in fftW x fftH float tiles.
//
// Through the library's 2-D real FFT (normalised on the inverse): the template tile is
// transformed once and its packed spectrum conjugated; each image tile is transformed, multiplied
// by it and transformed back, which leaves the correlation of the placements in the tile's
// top-left. Templates of at most kDirectTaps pixels are correlated directly instead, which is
// cheaper than two transforms per tile.
#pragma once

#include <cstddef>

#include "core/frame.h"
#include "correlation/match_kernels.h"
#include "lumi/fft.h"

namespace lumi {
namespace match {

enum class Range { kFull, kSame, kValid };
enum class Measure { kNorm, kLevel, kSqrDist };

// Both norms are floored at the single-precision value nearest 5e-4.
constexpr float kEps = 0.0005f;
// Relative spread (to the window's energy about the tile level) under which a window counts as
// flat: far above the rounding of the running sums, far below any spread float data can hold.
constexpr double kFlat = 1e-12;

// Placement geometry and tiling of one call; fftW x fftH is the tile buffer (the transform size,
// or the covered area of the direct path).
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

// Templates of at most this many pixels are correlated directly, in tiles of at most
// kDirectTile x kDirectTile placements: cheaper than two transforms per tile.
constexpr long long kDirectTaps = 25;
constexpr int kDirectTile = 128;
inline bool directFor(LumiSize tpl) {
  return static_cast<long long>(tpl.width) * tpl.height <= kDirectTaps;
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
  if (directFor(tpl)) {  // the tile buffer just holds the covered area
    p->tileW = dw < kDirectTile ? static_cast<int>(dw) : kDirectTile;
    p->tileH = dh < kDirectTile ? static_cast<int>(dh) : kDirectTile;
    p->fftW = p->tileW + tpl.width - 1;
    p->fftH = p->tileH + tpl.height - 1;
  } else {
    p->fftW = 1 << p->orderX;
    p->fftH = 1 << p->orderY;
    p->tileW = p->fftW - tpl.width + 1;
    p->tileH = p->fftH - tpl.height + 1;
  }
  p->tilesX = static_cast<int>((dw + p->tileW - 1) / p->tileW);
  p->tilesY = static_cast<int>((dh + p->tileH - 1) / p->tileH);
  return static_cast<long long>(p->tilesX) * p->tilesY <= INT_MAX;
}

// Negates the imaginary parts of a packed W x H spectrum (W, H even powers of two).
inline void conjugatePacked(float* p, int w, int h) {
  const std::size_t s = w;
  for (int i = 2; i < h - 1; i += 2) {  // columns 0 and W-1: Im A(i/2, 0) and A(i/2, W/2)
    p[i * s] = -p[i * s];
    if (w > 1) p[i * s + w - 1] = -p[i * s + w - 1];
  }
  for (int r = 0; r < h; ++r)
    for (int j = 2; j < w - 1; j += 2) p[r * s + j] = -p[r * s + j];
}

class TileCorrelator {
 public:
  TileCorrelator() = default;
  TileCorrelator(const TileCorrelator&) = delete;
  TileCorrelator& operator=(const TileCorrelator&) = delete;
  ~TileCorrelator() {
    if (spec_) lumiFFTFree_R_32f(spec_);
  }

  LumStatus init(const Plan& p) {
    w_ = p.fftW;
    h_ = p.fftH;
    tw_ = p.tpl.width;
    th_ = p.tpl.height;
    if (directFor(p.tpl)) {
      direct_ = pickCorrelate();
      return lumStatusOk;
    }
    if (LumStatus st =
            lumiFFTInitAlloc_R_32f(&spec_, p.orderX, p.orderY, lumFftDivInvByN, lumHintNone)) {
      spec_ = nullptr;
      return st;
    }
    int bytes = 0;
    if (LumStatus st = lumiFFTGetBufSize_R_32f(spec_, &bytes)) return st;
    work_ = bytes < 0 ? 0 : static_cast<std::size_t>(bytes);
    return lumStatusOk;
  }
  std::size_t workBytes() const { return work_; }

  // The template's form for correlate(): its conjugated packed spectrum (or the tile itself).
  LumStatus transformTemplate(const float* tile, float* spec, Lum8u* work) const {
    if (direct_) {
      for (std::size_t i = 0, n = static_cast<std::size_t>(w_) * h_; i < n; ++i) spec[i] = tile[i];
      return lumStatusOk;
    }
    if (LumStatus st = lumiFFTFwd_RToPack_32f_C1R(tile, step(), spec, step(), spec_, work))
      return st;
    conjugatePacked(spec, w_, h_);
    return lumStatusOk;
  }

  // Correlates the tile (the source area in its top-left) with the template for tw x th
  // placements; *result points at the values, rows of fftW floats (tile or spec).
  LumStatus correlate(float* tile, float* spec, const float* tpl, Lum8u* work, int tw, int th,
                      const float** result) const {
    if (direct_) {
      direct_(tile, tpl, w_, tw_, th_, tw, th, spec);
      *result = spec;
      return lumStatusOk;
    }
    if (LumStatus st = lumiFFTFwd_RToPack_32f_C1R(tile, step(), spec, step(), spec_, work))
      return st;
    if (LumStatus st = lumiMulPack_32f_C1IR(tpl, step(), spec, step(), LumiSize{w_, h_})) return st;
    if (LumStatus st = lumiFFTInv_PackToR_32f_C1R(spec, step(), tile, step(), spec_, work))
      return st;
    *result = tile;
    return lumStatusOk;
  }

 private:
  int step() const { return w_ * static_cast<int>(sizeof(float)); }

  LumiFFTSpec* spec_ = nullptr;
  CorrelateFn direct_ = nullptr;
  std::size_t work_ = 0;
  int w_ = 0, h_ = 0, tw_ = 0, th_ = 0;
};

}  // namespace match
}  // namespace lumi
