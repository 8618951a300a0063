// Per-tile kernels of template matching: the window sums of every placement, the normalisation
// of the correlation values and the direct correlation of small templates. Each has a plain scalar
// twin here and a vector version in match_kernels.cpp; the twins are also the tails of the vector
// kernels. Both do the same IEEE operations in the same order, so their results agree bit for bit.
#pragma once

#include <cmath>
#include <cstddef>

#include "core/frame.h"

namespace lumi {
namespace match {

// ---- window sums -------------------------------------------------------------------------------
// rows: the (th + h - 1) rows of tw horizontal window sums (stride tw, in double), one per tile
// row; acc: tw doubles of state. Slides a window of h rows down them and writes, for each of
// the th placement rows, the window's energy as float (negative rounding residue becomes 0).
using SlideEnergyFn = void (*)(const double* rows, int tw, int th, int h, double* acc, float* out);
// The same for the mean-removed measure from the value sums s and the energies e:
// out = float(E - S^2 x invN), 0 where that is at most flat x E (a flat window: this also
// absorbs the rounding of invN = 1/n), and mean = float(S x invN).
using SlideLevelFn = void (*)(const double* s, const double* e, int tw, int th, int h, double invN,
                              double flat, double* accS, double* accE, float* out, float* mean);

// acc[x] = sum of the first h rows at column x.
inline void startColumns(const double* rows, int tw, int h, double* acc) {
  for (int x = 0; x < tw; ++x) acc[x] = 0.0;
  for (int i = 0; i < h; ++i)
    for (int x = 0; x < tw; ++x) acc[x] += rows[static_cast<std::size_t>(i) * tw + x];
}

inline void slideEnergyFrom(int x0, const double* rows, int tw, int th, int h, double* acc,
                            float* out) {
  for (int y = 0; y < th; ++y) {
    const double* in = rows + static_cast<std::size_t>(y + h) * tw;
    const double* old = rows + static_cast<std::size_t>(y) * tw;
    float* o = out + static_cast<std::size_t>(y) * tw;
    for (int x = x0; x < tw; ++x) {
      o[x] = acc[x] > 0.0 ? static_cast<float>(acc[x]) : 0.0f;
      if (y + 1 < th) acc[x] += in[x] - old[x];
    }
  }
}
inline void slideEnergyScalar(const double* rows, int tw, int th, int h, double* acc, float* out) {
  startColumns(rows, tw, h, acc);
  slideEnergyFrom(0, rows, tw, th, h, acc, out);
}

inline void slideLevelFrom(int x0, const double* s, const double* e, int tw, int th, int h,
                           double invN, double flat, double* accS, double* accE, float* out,
                           float* mean) {
  for (int y = 0; y < th; ++y) {
    const std::size_t in = static_cast<std::size_t>(y + h) * tw,
                      old = static_cast<std::size_t>(y) * tw;
    float* o = out + old;
    float* m = mean + old;
    for (int x = x0; x < tw; ++x) {
      const double var = accE[x] - accS[x] * accS[x] * invN;
      o[x] = var > flat * accE[x] ? static_cast<float>(var) : 0.0f;
      m[x] = static_cast<float>(accS[x] * invN);
      if (y + 1 < th) {
        accS[x] += s[in + x] - s[old + x];
        accE[x] += e[in + x] - e[old + x];
      }
    }
  }
}
inline void slideLevelScalar(const double* s, const double* e, int tw, int th, int h, double invN,
                             double flat, double* accS, double* accE, float* out, float* mean) {
  startColumns(s, tw, h, accS);
  startColumns(e, tw, h, accE);
  slideLevelFrom(0, s, e, tw, th, h, invN, flat, accS, accE, out, mean);
}

// ---- normalisation -----------------------------------------------------------------------------
// Constants of one template channel, all single precision.
struct Norms {
  float bound;    // |tpl|, or sqrt(sum (tpl - mean)^2) for the mean-removed measure
  float floored;  // max(|tpl|, eps), or sqrt(max(sum (tpl - mean)^2, eps))
  float sqrtEps;  // sqrt(eps): sqrt(max(E, eps)) = max(sqrt(E), sqrt(eps)) as sqrt is monotonic
  float energy;   // |tpl|^2
  float resid;    // sum of the stored mean-removed template (0 up to rounding)
};

// Per placement, with the numerator clamped to its Cauchy-Schwarz bound:
//   Norm:  num / (floored x max(sqrt(E), sqrt(eps)))
//   Sqr:   max(E - 2 num + energy, 0) / (the same)
//   Level: (num - mean x resid) / (floored x max(sqrt(var), sqrt(eps))), num and the window
//          mean taken about the level the tile was shifted by
using FinishRowFn = void (*)(const float* num, const float* a, const float* b, int n,
                             const Norms& k, float* out);

inline float clampTo(float v, float bound) { return v > bound ? bound : v < -bound ? -bound : v; }

inline void finishNormFrom(int x0, const float* num, const float* e, const float*, int n,
                           const Norms& k, float* out) {
  for (int x = x0; x < n; ++x) {
    const float r = std::sqrt(e[x]);
    const float v = clampTo(num[x], k.bound * r);
    out[x] = v / (k.floored * (r > k.sqrtEps ? r : k.sqrtEps));
  }
}
inline void finishSqrFrom(int x0, const float* num, const float* e, const float*, int n,
                          const Norms& k, float* out) {
  for (int x = x0; x < n; ++x) {
    const float r = std::sqrt(e[x]);
    const float v = clampTo(num[x], k.bound * r);
    float d = e[x] - 2.0f * v + k.energy;
    d = d > 0.0f ? d : 0.0f;
    out[x] = d / (k.floored * (r > k.sqrtEps ? r : k.sqrtEps));
  }
}
inline void finishLevelFrom(int x0, const float* num, const float* var, const float* mean, int n,
                            const Norms& k, float* out) {
  for (int x = x0; x < n; ++x) {
    const float r = std::sqrt(var[x]);
    const float v = clampTo(num[x] - mean[x] * k.resid, k.bound * r);
    out[x] = v / (k.floored * (r > k.sqrtEps ? r : k.sqrtEps));
  }
}
inline void finishNormScalar(const float* num, const float* a, const float* b, int n,
                             const Norms& k, float* out) {
  finishNormFrom(0, num, a, b, n, k, out);
}
inline void finishSqrScalar(const float* num, const float* a, const float* b, int n, const Norms& k,
                            float* out) {
  finishSqrFrom(0, num, a, b, n, k, out);
}
inline void finishLevelScalar(const float* num, const float* a, const float* b, int n,
                              const Norms& k, float* out) {
  finishLevelFrom(0, num, a, b, n, k, out);
}

// ---- direct correlation of small templates -----------------------------------------------------
// out(x, y) = sum over i < h, j < w of tpl(j, i) x tile(x + j, y + i) for tw x th placements,
// summed in float in that order; tile, template and out rows are `stride` floats apart.
using CorrelateFn = void (*)(const float* tile, const float* tpl, std::size_t stride, int w, int h,
                             int tw, int th, float* out);

inline float correlateAt(const float* tile, const float* tpl, std::size_t stride, int w, int h) {
  float acc = 0.0f;
  for (int i = 0; i < h; ++i)
    for (int j = 0; j < w; ++j) acc += tpl[i * stride + j] * tile[i * stride + j];
  return acc;
}
inline void correlateFrom(int x0, const float* tile, const float* tpl, std::size_t stride, int w,
                          int h, int tw, int th, float* out) {
  for (int y = 0; y < th; ++y)
    for (int x = x0; x < tw; ++x)
      out[y * stride + x] = correlateAt(tile + y * stride + x, tpl, stride, w, h);
}
inline void correlateScalar(const float* tile, const float* tpl, std::size_t stride, int w, int h,
                            int tw, int th, float* out) {
  correlateFrom(0, tile, tpl, stride, w, h, tw, th, out);
}

// ---- loading one-channel rows ------------------------------------------------------------------
// out[j] = float(in[j]) - level for j < n (32f, 8u and 8s sources).
template <class S>
using LoadRowFn = void (*)(const S* in, int n, float level, float* out);

template <class S>
inline void loadRowFrom(int j0, const S* in, int n, float level, float* out) {
  for (int j = j0; j < n; ++j) out[j] = static_cast<float>(in[j]) - level;
}
template <class S>
inline void loadRowScalar(const S* in, int n, float level, float* out) {
  loadRowFrom(0, in, n, level, out);
}

// Choosers (match_kernels.cpp): the vector kernel the processor allows, else the twin.
SlideEnergyFn pickSlideEnergy();
SlideLevelFn pickSlideLevel();
FinishRowFn pickFinishNorm();
FinishRowFn pickFinishSqr();
FinishRowFn pickFinishLevel();
CorrelateFn pickCorrelate();
template <class S>
LoadRowFn<S> pickLoadRow();

}  // namespace match
}  // namespace lumi
