// Helpers of the generators: writing one value to the owned channels of a pixel, filling a
// row with one value, the argument checks of the patterns, and adding one noise value to a
// sample (shared by the scalar and the vector noise kernels).
#pragma once

#include <emmintrin.h>

#include <algorithm>

#include "core/frame.h"

namespace lumi {
namespace gen {

// Writes v to every channel the layout owns (AC4 keeps the alpha element).
template <class L, class T>
inline void putPixel(T* row, int x, T v) {
  T* p = row + elemsOf(x, L::kCh);
  for (int c = 0; c < L::kUse; ++c) p[c] = v;
}

template <class L, class T>
inline void fillRow(T* row, int width, T v) {
  if constexpr (L::kCh == L::kUse) {
    std::fill(row, row + elemsOf(width, L::kCh), v);
  } else {
    for (int x = 0; x < width; ++x) putPixel<L>(row, x, v);
  }
}

// Pattern generators check the pointer, then the step, then the ROI.
template <class T>
inline LumStatus checkPattern(const T* dst, int step, LumiSize roi) {
  if (dst == nullptr) return lumStatusNullPtrErr;
  if (step < 1) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  return lumStatusOk;
}

// Values beyond 2^30 saturate any integer sample, so noise is clamped to this first.
constexpr double kNoiseClamp = 1073741824.0;

// Adds noise n to a sample. Integers: n rounded in the current rounding mode (ties to even by
// default), then saturation. Floats: n rounded to single precision, then added.
template <class T>
inline T addNoise(T s, double n) {
  if constexpr (std::is_floating_point_v<T>) {
    return s + static_cast<float>(n);
  } else {
    n = n < -kNoiseClamp ? -kNoiseClamp : n;
    n = n > kNoiseClamp ? kNoiseClamp : n;
    return saturate<T>(static_cast<int>(s) + _mm_cvtsd_si32(_mm_set_sd(n)));
  }
}

}  // namespace gen
}  // namespace lumi
