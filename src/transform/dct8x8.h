// The 8x8 float DCT kernels shared by the block functions and the general transform
// (src/transform/dct8x8.cpp), and the factor tables of the float butterflies.
#pragma once

#include "core/frame.h"

namespace lumi {
namespace dct {

// Butterfly constants at full precision (the named expressions).
constexpr float kC4 = 0.70710678118654752f;     // cos(pi/4)
constexpr float kS8 = 0.38268343236508977f;     // cos(3 pi/8)
constexpr float kK0541 = 0.54119610014619699f;  // sqrt(2) cos(3 pi/8)
constexpr float kK1306 = 1.30656296487637653f;  // sqrt(2) cos(pi/8)
constexpr float kR2 = 1.41421356237309505f;     // sqrt(2)
constexpr float kK1847 = 1.84775906502257351f;  // 2 cos(pi/8)
constexpr float kK1082 = 1.08239220029239396f;  // 2 (cos(pi/8) - cos(3 pi/8))
constexpr float kK2613 = 2.61312592975275306f;  // 2 (cos(pi/8) + cos(3 pi/8))

// a(k) = sqrt(2) cos(k pi / 16), a(0) = 1: the butterflies' output factors per axis.
constexpr double kAan[8] = {1.0,
                            1.38703984532214746,
                            1.30656296487637653,
                            1.17587560241935871,
                            1.0,
                            0.78569495838710218,
                            0.54119610014619699,
                            0.27589937928294306};

struct ScaleTable {
  float fwd[64];  // 1 / (8 a(u) a(v)); (0, 0) is 0.125
  float inv[64];  // a(u) a(v) / 8; (0, 0) is 0.125
};
constexpr ScaleTable makeScaleTable() {
  ScaleTable t{};
  for (int v = 0; v < 8; ++v)
    for (int u = 0; u < 8; ++u) {
      t.fwd[v * 8 + u] = static_cast<float>(1.0 / (8.0 * kAan[u] * kAan[v]));
      t.inv[v * 8 + u] = static_cast<float>(kAan[u] * kAan[v] / 8.0);
    }
  return t;
}
inline constexpr ScaleTable kScale = makeScaleTable();

// The 16-bit kernels' cosine constants with 14 fraction bits, K(u, x) = round(16384 sqrt(2) C(u)
// cos((2x + 1) u pi / 16)).
struct IntTable {
  int32_t k[8][8];  // k[u][x]
};
constexpr IntTable makeIntTable() {
  // round(16384 sqrt(2) cos(k pi / 16)) for k = 0..8; the u = 0 row is 16384 (C(0) = 1/sqrt(2))
  constexpr int32_t c[9] = {23170, 22725, 21407, 19266, 16384, 12873, 8867, 4520, 0};
  IntTable t{};
  for (int u = 0; u < 8; ++u)
    for (int x = 0; x < 8; ++x) {
      if (u == 0) {
        t.k[u][x] = 16384;
        continue;
      }
      int a = ((2 * x + 1) * u) % 32;  // cos(a pi / 16)
      if (a > 16) a = 32 - a;
      t.k[u][x] = a <= 8 ? c[a] : -c[16 - a];
    }
  return t;
}
inline constexpr IntTable kInt = makeIntTable();

// One 8x8 block, 64 contiguous floats in row order; src == dst allowed.
using BlockFn = void (*)(const float* src, float* dst);
BlockFn pickBlockFwd();
BlockFn pickBlockInv();

}  // namespace dct
}  // namespace lumi
