// Helpers shared by the pattern generators: writing one value to the owned channels of a
// pixel, filling a row with one value, and the common argument checks.
#pragma once

#include "core/frame.h"

#include <algorithm>

namespace lumi {
namespace gen {

// Writes v to every channel the layout owns (AC4 keeps the alpha element).
template <class L, class T>
inline void putPixel(T* row, int x, T v) {
  T* p = row + static_cast<std::ptrdiff_t>(x) * L::kCh;
  for (int c = 0; c < L::kUse; ++c) p[c] = v;
}

template <class L, class T>
inline void fillRow(T* row, int width, T v) {
  if constexpr (L::kCh == L::kUse) {
    std::fill(row, row + static_cast<std::ptrdiff_t>(width) * L::kCh, v);
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

}  // namespace gen
}  // namespace lumi
