// Correlation of an image tile with the template, both held in fftW x fftH float tiles.
#pragma once

#include <cstddef>

#include "core/frame.h"

namespace lumi {
namespace match {

// Direct evaluation: out(x, y) = sum over the template of tpl(j, i) x tile(x + j, y + i),
// accumulated in double.
class TileCorrelator {
 public:
  TileCorrelator() = default;
  TileCorrelator(const TileCorrelator&) = delete;
  TileCorrelator& operator=(const TileCorrelator&) = delete;

  LumStatus init(int orderX, int orderY, int tplW, int tplH) {
    w_ = 1 << orderX;
    h_ = 1 << orderY;
    tw_ = tplW;
    th_ = tplH;
    return lumStatusOk;
  }
  std::size_t workBytes() const { return 0; }

  // The template's form for correlate(): here the tile as it is.
  LumStatus transformTemplate(const float* tile, float* spec, Lum8u*) const {
    for (std::size_t i = 0, n = static_cast<std::size_t>(w_) * h_; i < n; ++i) spec[i] = tile[i];
    return lumStatusOk;
  }

  // Correlates the tile (the source area in its top-left) with the template for tw x th
  // placements; *result points at the values, rows of fftW floats (tile or spec).
  LumStatus correlate(float* tile, float* spec, const float* tpl, Lum8u*, int tw, int th,
                      const float** result) const {
    const std::size_t s = w_;
    for (int y = 0; y < th; ++y)
      for (int x = 0; x < tw; ++x) {
        double acc = 0;
        for (int i = 0; i < th_; ++i) {
          const float* a = tpl + i * s;
          const float* b = tile + (y + i) * s + x;
          for (int j = 0; j < tw_; ++j) acc += static_cast<double>(a[j]) * b[j];
        }
        spec[y * s + x] = static_cast<float>(acc);
      }
    *result = spec;
    return lumStatusOk;
  }

 private:
  int w_ = 0, h_ = 0, tw_ = 0, th_ = 0;
};

}  // namespace match
}  // namespace lumi
