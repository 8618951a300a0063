// Scalar twins of the transpose kernels: pixels as opaque units of P bytes.
#pragma once

#include <cstring>

#include "core/frame.h"

namespace lumi {
namespace transpose {

template <int P>
inline void swapPx(uint8_t* a, uint8_t* b) {
  uint8_t t[P];
  std::memcpy(t, a, P);
  std::memcpy(a, b, P);
  std::memcpy(b, t, P);
}

// dst pixel (y, x) = src pixel (x, y) for rows x cols source pixels.
template <int P>
void tileScalar(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int rows, int cols) {
  for (int x = 0; x < cols; ++x) {
    uint8_t* d = dst + static_cast<std::ptrdiff_t>(dstStep) * x;
    for (int y = 0; y < rows; ++y)
      std::memcpy(d + static_cast<std::ptrdiff_t>(y) * P,
                  src + static_cast<std::ptrdiff_t>(srcStep) * y + static_cast<std::ptrdiff_t>(x) * P, P);
  }
}

// Pixel (i, j) trades with (j, i) for i in [r0, r0 + rows), j in [c0, c0 + cols); on a diagonal
// tile (r0 == c0) only the pairs with j > i.
template <int P>
void pairTilesScalar(uint8_t* a, int step, int r0, int c0, int rows, int cols) {
  auto at = [&](int i, int j) {
    return a + static_cast<std::ptrdiff_t>(step) * i + static_cast<std::ptrdiff_t>(j) * P;
  };
  for (int i = r0; i < r0 + rows; ++i)
    for (int j = r0 == c0 ? i + 1 : c0; j < c0 + cols; ++j) swapPx<P>(at(i, j), at(j, i));
}

}  // namespace transpose
}  // namespace lumi
