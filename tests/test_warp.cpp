// Warps: every layout and mode against reference kernels over whole guarded images (nothing
// outside the mapped quadrangle may change), the validation order, the quarter-turn path and
// the rounding points. Integer linear results are exact where the positions are exact
// (dyadic maps); elsewhere a position may differ from ours in its last bit, so 1 is allowed.
#include <xmmintrin.h>

#include <cmath>
#include <functional>
#include <vector>

#include "geometry/cubic.h"
#include "lumi/warp.h"
#include "lumitest.h"

#ifdef LUMI_HAVE_OPENCV
#include <opencv2/core.hpp>
#endif

using lumitest::GuardedImage;

namespace {

constexpr int kCh[6] = {1, 3, 4, 4, 1, 1}, kUse[6] = {1, 3, 4, 3, 1, 1},
              kPlanes[6] = {1, 1, 1, 1, 3, 4};

template <class T>
using WarpFn = std::function<LumStatus(int layout, const T* const* s, T* const* d, LumiSize ss,
                                       int sstep, LumiRect sr, int dstep, LumiRect dr, int mode)>;

// The six exports of one operation and type, by layout index (C1, C3, C4, AC4, P3, P4).
#define WARP_FN(T, t, OP, ...)                                                                    \
  WarpFn<T>([=](int li, const T* const* s, T* const* d, LumiSize ss, int st, LumiRect sr, int dt, \
                LumiRect dr, int m) -> LumStatus {                                                \
    switch (li) {                                                                                 \
      case 0:                                                                                     \
        return lumi##OP##_##t##_C1R(s[0], ss, st, sr, d[0], dt, dr, __VA_ARGS__, m);              \
      case 1:                                                                                     \
        return lumi##OP##_##t##_C3R(s[0], ss, st, sr, d[0], dt, dr, __VA_ARGS__, m);              \
      case 2:                                                                                     \
        return lumi##OP##_##t##_C4R(s[0], ss, st, sr, d[0], dt, dr, __VA_ARGS__, m);              \
      case 3:                                                                                     \
        return lumi##OP##_##t##_AC4R(s[0], ss, st, sr, d[0], dt, dr, __VA_ARGS__, m);             \
      case 4:                                                                                     \
        return lumi##OP##_##t##_P3R(s, ss, st, sr, d, dt, dr, __VA_ARGS__, m);                    \
      default:                                                                                    \
        return lumi##OP##_##t##_P4R(s, ss, st, sr, d, dt, dr, __VA_ARGS__, m);                    \
    }                                                                                             \
  })
#define WARP_FN_QUAD(T, t, OP, SQ, DQ)                                                            \
  WarpFn<T>([=](int li, const T* const* s, T* const* d, LumiSize ss, int st, LumiRect sr, int dt, \
                LumiRect dr, int m) -> LumStatus {                                                \
    switch (li) {                                                                                 \
      case 0:                                                                                     \
        return lumi##OP##_##t##_C1R(s[0], ss, st, sr, SQ, d[0], dt, dr, DQ, m);                   \
      case 1:                                                                                     \
        return lumi##OP##_##t##_C3R(s[0], ss, st, sr, SQ, d[0], dt, dr, DQ, m);                   \
      case 2:                                                                                     \
        return lumi##OP##_##t##_C4R(s[0], ss, st, sr, SQ, d[0], dt, dr, DQ, m);                   \
      case 3:                                                                                     \
        return lumi##OP##_##t##_AC4R(s[0], ss, st, sr, SQ, d[0], dt, dr, DQ, m);                  \
      case 4:                                                                                     \
        return lumi##OP##_##t##_P3R(s, ss, st, sr, SQ, d, dt, dr, DQ, m);                         \
      default:                                                                                    \
        return lumi##OP##_##t##_P4R(s, ss, st, sr, SQ, d, dt, dr, DQ, m);                         \
    }                                                                                             \
  })

// Guarded source and destination planes of one layout; sources random, destinations random too
// so that an untouched pixel is recognised.
template <class T>
struct Images {
  std::vector<GuardedImage<T>> src, dst, before;
  std::vector<const T*> sp;
  std::vector<T*> dp;
  Images(int li, LumiSize ss, LumiSize ds, uint32_t seed) {
    auto r = lumitest::makeRng(seed);
    const int pad = static_cast<int>((seed % 5) * sizeof(T));  // planes share one step
    for (int p = 0; p < kPlanes[li]; ++p) {
      src.emplace_back(ss.width, ss.height, kCh[li], pad, -1, seed + p);
      dst.emplace_back(ds.width, ds.height, kCh[li], pad + 2 * int(sizeof(T)), -1, seed + 9 + p);
      src.back().fillRandom(r);
      dst.back().fillRandom(r);
    }
    for (auto& g : src) sp.push_back(g.ptr());
    for (auto& g : dst) dp.push_back(g.ptr());
    before = dst;
  }
  int sstep() const { return src[0].step(); }
  int dstep() const { return dst[0].step(); }
};

// ---- reference kernels --------------------------------------------------------------------
template <class T>
double refSample(const GuardedImage<T>& s, int ch, double x, double y, int mode) {
  const int w = s.width(), h = s.height();
  x = std::isnan(x) ? 0 : std::min(std::max(x, 0.0), w - 1.0);
  y = std::isnan(y) ? 0 : std::min(std::max(y, 0.0), h - 1.0);
  if (mode == lumInterpNearest) return s.at(int(std::floor(x + 0.5)), int(std::floor(y + 0.5)), ch);
  if (mode == lumInterpLinear) {
    const int ix = std::min(int(x), w - 2), iy = std::min(int(y), h - 2);
    if constexpr (std::is_floating_point_v<T>) {
      const float fx = float(x - ix), fy = float(y - iy);
      const float h0 = (1 - fx) * s.at(ix, iy, ch) + fx * s.at(ix + 1, iy, ch);
      const float h1 = (1 - fx) * s.at(ix, iy + 1, ch) + fx * s.at(ix + 1, iy + 1, ch);
      return (1 - fy) * h0 + fy * h1;
    } else {
      const int64_t wx = std::llround(std::floor((x - ix) * 16384 + 0.5));
      const int64_t wy = std::llround(std::floor((y - iy) * 16384 + 0.5));
      const int64_t h0 = ((16384 - wx) * s.at(ix, iy, ch) + wx * s.at(ix + 1, iy, ch)) / 256;
      const int64_t h1 =
          ((16384 - wx) * s.at(ix, iy + 1, ch) + wx * s.at(ix + 1, iy + 1, ch)) / 256;
      return double((h0 * (16384 - wy) + h1 * wy + (1 << 19)) >> 20);
    }
  }
  // cubic: taps kept inside the image, Lagrange weights in double
  auto taps = [](double v, int n, double* t) {
    int b = int(v);
    *t = v - b;
    if (b == 0)
      b = 1, *t -= 1;
    else if (b == n - 2)
      b = n - 3, *t += 1;
    else if (b == n - 1)
      b = n - 3, *t = 2;
    return b;
  };
  double tx, ty, wx[4], wy[4];
  const int bx = taps(x, w, &tx), by = taps(y, h, &ty);
  lumi::geometry::cubicWeights(tx, wx);
  lumi::geometry::cubicWeights(ty, wy);
  double v = 0;
  for (int j = 0; j < 4; ++j)
    for (int i = 0; i < 4; ++i) v += wy[j] * wx[i] * s.at(bx - 1 + i, by - 1 + j, ch);
  if constexpr (std::is_floating_point_v<T>) return v;
  return std::min(std::max(std::floor(v + 0.5), 0.0), double(std::numeric_limits<T>::max()));
}

// Runs fn and checks every destination pixel: where pos (destination -> source) falls inside
// the source ROI the reference value (within tol), where it falls clearly outside the old value;
// the alpha of AC4 and all guards unchanged.
template <class T>
void checkWarp(const WarpFn<T>& fn, int li, int mode, LumiSize ss, LumiRect sr, LumiSize ds,
               LumiRect dr, std::function<void(double, double, double*, double*)> pos, double tol,
               LumStatus want = lumStatusOk) {
  Images<T> im(li, ss, ds, 11u * li + mode);
  ASSERT_EQ(fn(li, im.sp.data(), im.dp.data(), ss, im.sstep(), sr, im.dstep(), dr, mode), want);
  const double x0 = sr.x, y0 = sr.y, x1 = sr.x + sr.width - 1, y1 = sr.y + sr.height - 1;
  int written = 0;
  for (int p = 0; p < kPlanes[li]; ++p) {
    ASSERT_TRUE(im.dst[p].guardsIntact());
    for (int y = 0; y < ds.height; ++y)
      for (int x = 0; x < ds.width; ++x) {
        double sx, sy;
        pos(x, y, &sx, &sy);
        const bool inRoi = x >= dr.x && x < dr.x + dr.width && y >= dr.y && y < dr.y + dr.height;
        const double out = std::max(std::max(x0 - sx, sx - x1), std::max(y0 - sy, sy - y1));
        for (int c = 0; c < kCh[li]; ++c) {
          const double got = im.dst[p].at(x, y, c), old = im.before[p].at(x, y, c);
          if (!inRoi || c >= kUse[li] || out > 1e-6) {
            ASSERT_EQ(got, old) << "pixel " << x << "," << y << " channel " << c << " outside";
          } else if (out < -1e-6) {
            const double want = refSample(im.src[p], c, sx, sy, mode & 7);
            ASSERT_NEAR(got, want, tol) << "pixel " << x << "," << y << " channel " << c
                                        << " layout " << li << " mode " << mode;
            ++written;
          }
        }
      }
  }
  if (want == lumStatusOk) {
    EXPECT_GT(written, 0);
  }
}

template <class T>
double tolOf(int mode) {
  if (std::is_floating_point_v<T>) return mode == lumInterpCubic ? 2e-3 : 2e-4;  // samples to 1000
  return mode == lumInterpNearest ? 0 : 1;
}

// The typed exports of each operation.
template <class T>
struct Ops;
#define WARP_OPS(T, t)                                                                             \
  template <>                                                                                      \
  struct Ops<T> {                                                                                  \
    static WarpFn<T> affine(const double (*c)[3]) { return WARP_FN(T, t, WarpAffine, c); }         \
    static WarpFn<T> affineBack(const double (*c)[3]) { return WARP_FN(T, t, WarpAffineBack, c); } \
    static WarpFn<T> rotate(double a, double x, double y) {                                        \
      return WARP_FN(T, t, Rotate, a, x, y);                                                       \
    }                                                                                              \
    static WarpFn<T> rotateCenter(double a, double x, double y) {                                  \
      return WARP_FN(T, t, RotateCenter, a, x, y);                                                 \
    }                                                                                              \
    static WarpFn<T> shear(double a, double b, double x, double y) {                               \
      return WARP_FN(T, t, Shear, a, b, x, y);                                                     \
    }                                                                                              \
    static WarpFn<T> persp(const double (*c)[3]) { return WARP_FN(T, t, WarpPerspective, c); }     \
    static WarpFn<T> perspBack(const double (*c)[3]) {                                             \
      return WARP_FN(T, t, WarpPerspectiveBack, c);                                                \
    }                                                                                              \
    static WarpFn<T> bilinear(const double (*c)[4]) { return WARP_FN(T, t, WarpBilinear, c); }     \
    static WarpFn<T> bilinearBack(const double (*c)[4]) {                                          \
      return WARP_FN(T, t, WarpBilinearBack, c);                                                   \
    }                                                                                              \
    static WarpFn<T> affineQuad(const double (*sq)[2], const double (*dq)[2]) {                    \
      return WARP_FN_QUAD(T, t, WarpAffineQuad, sq, dq);                                           \
    }                                                                                              \
    static WarpFn<T> perspQuad(const double (*sq)[2], const double (*dq)[2]) {                     \
      return WARP_FN_QUAD(T, t, WarpPerspectiveQuad, sq, dq);                                      \
    }                                                                                              \
    static WarpFn<T> bilinearQuad(const double (*sq)[2], const double (*dq)[2]) {                  \
      return WARP_FN_QUAD(T, t, WarpBilinearQuad, sq, dq);                                         \
    }                                                                                              \
  };
WARP_OPS(Lum8u, 8u)
WARP_OPS(Lum16u, 16u)
WARP_OPS(Lum32f, 32f)

template <class T>
class Warp : public ::testing::Test {};
using Types = ::testing::Types<Lum8u, Lum16u, Lum32f>;
TYPED_TEST_SUITE(Warp, Types);

const LumiSize kSrc{37, 23}, kDst{41, 29};
const LumiRect kSrcRoi{3, 2, 31, 19}, kDstRoi{2, 3, 36, 24};
const int kModes[3] = {lumInterpNearest, lumInterpLinear, lumInterpCubic};

// Rotation about the ROI centre (through Rotate, RotateCenter, WarpAffine and its Back form),
// every layout and mode.
TYPED_TEST(Warp, AffineFamilyMatchesReference) {
  using T = TypeParam;
  const double a = 17 * M_PI / 180, cx = 18, cy = 11;
  const double xs = cx - cx * std::cos(a) - cy * std::sin(a),
               ys = cy + cx * std::sin(a) - cy * std::cos(a);
  const double fwd[2][3] = {{std::cos(a), std::sin(a), xs + 2},
                            {-std::sin(a), std::cos(a), ys + 3}};
  const double det = fwd[0][0] * fwd[1][1] - fwd[0][1] * fwd[1][0];
  double inv[2][3] = {{fwd[1][1] / det, -fwd[0][1] / det, 0},
                      {-fwd[1][0] / det, fwd[0][0] / det, 0}};
  inv[0][2] = -(inv[0][0] * fwd[0][2] + inv[0][1] * fwd[1][2]);
  inv[1][2] = -(inv[1][0] * fwd[0][2] + inv[1][1] * fwd[1][2]);
  auto pos = [&](double x, double y, double* sx, double* sy) {
    *sx = inv[0][0] * x + inv[0][1] * y + inv[0][2];
    *sy = inv[1][0] * x + inv[1][1] * y + inv[1][2];
  };
  const WarpFn<T> fns[3] = {Ops<T>::affine(fwd), Ops<T>::affineBack(inv),
                            Ops<T>::rotate(17, xs + 2, ys + 3)};
  for (int li = 0; li < 6; ++li)
    for (int m : kModes)
      for (const auto& fn : fns)
        checkWarp<T>(fn, li, m, kSrc, kSrcRoi, kDst, kDstRoi, pos, tolOf<T>(m));
  // about the centre, shifted back: the same mapping without the (2, 3) shift
  auto pos0 = [&](double x, double y, double* sx, double* sy) { pos(x + 2, y + 3, sx, sy); };
  checkWarp<T>(Ops<T>::rotateCenter(17, cx, cy), 1, lumInterpLinear, kSrc, kSrcRoi, kDst, kDstRoi,
               pos0, tolOf<T>(2));
}

// Dyadic maps give exact positions: integer linear results must then match bit for bit, and
// the shear, perspective (with a unit denominator) and bilinear Back forms agree with them.
TYPED_TEST(Warp, ExactPositionsAcrossMappings) {
  using T = TypeParam;
  const double back[2][3] = {{0.75, 0.25, -1.5}, {-0.125, 0.875, 0.625}};
  const double pback[3][3] = {{0.75, 0.25, -1.5}, {-0.125, 0.875, 0.625}, {0, 0, 1}};
  const double bback[2][4] = {{0, 0.75, 0.25, -1.5}, {0, -0.125, 0.875, 0.625}};
  auto pos = [&](double x, double y, double* sx, double* sy) {
    *sx = back[0][0] * x + back[0][1] * y + back[0][2];
    *sy = back[1][0] * x + back[1][1] * y + back[1][2];
  };
  const WarpFn<T> fns[3] = {Ops<T>::affineBack(back), Ops<T>::perspBack(pback),
                            Ops<T>::bilinearBack(bback)};
  for (int li : {0, 1, 3, 5})
    for (int m : {lumInterpNearest, lumInterpLinear})
      for (const auto& fn : fns) checkWarp<T>(fn, li, m, kSrc, kSrcRoi, kDst, kDstRoi, pos, 0);
  // shear x' = x + 0.5 y - 4: source x = x' - 0.5 y + 4
  auto spos = [&](double x, double y, double* sx, double* sy) { *sx = x - 0.5 * y + 4, *sy = y; };
  checkWarp<T>(Ops<T>::shear(0.5, 0, -4, 0), 2, lumInterpLinear, kSrc, kSrcRoi, kDst, kDstRoi, spos,
               0);
}

// With dyadic maps positions do not depend on where a run starts, so a pixel must come out the
// same whether the vector kernels or their plain twin (the ends of runs) compute it: warping
// again with the destination ROI moved by a few columns shifts which pixels fall where.
TYPED_TEST(Warp, RunPhaseDoesNotChangePixels) {
  using T = TypeParam;
  const double back[2][3] = {{0.75, 0.25, -1.5}, {-0.125, 0.875, 0.625}};
  const double pback[3][3] = {{0.75, 0.25, -1.5}, {-0.125, 0.875, 0.625}, {0, 0, 1}};
  const LumiSize ds{kDst.width + 2, kDst.height};
  for (int li = 0; li < 4; ++li)
    for (int m : kModes)
      for (const auto& fn : {Ops<T>::affineBack(back), Ops<T>::perspBack(pback)}) {
        Images<T> a(li, kSrc, ds, 5), b(li, kSrc, ds, 5);
        ASSERT_GE(fn(li, a.sp.data(), a.dp.data(), kSrc, a.sstep(), kSrcRoi, a.dstep(), kDstRoi, m),
                  0);
        for (int shift = 1; shift <= 7; shift += 3) {
          const LumiRect r{kDstRoi.x + shift, kDstRoi.y, kDstRoi.width - shift, kDstRoi.height};
          ASSERT_GE(fn(li, b.sp.data(), b.dp.data(), kSrc, b.sstep(), kSrcRoi, b.dstep(), r, m), 0);
          for (int y = r.y; y < r.y + r.height; ++y)
            for (int x = r.x; x < r.x + r.width; ++x) {
              const double sx = back[0][0] * x + back[0][1] * y + back[0][2];
              const double sy = back[1][0] * x + back[1][1] * y + back[1][2];
              if (sx < kSrcRoi.x + 0.01 || sx > kSrcRoi.x + kSrcRoi.width - 1.01 ||
                  sy < kSrcRoi.y + 0.01 || sy > kSrcRoi.y + kSrcRoi.height - 1.01)
                continue;  // on the quadrangle's border the two clippings may round apart
              for (int c = 0; c < kCh[li]; ++c)
                ASSERT_EQ(a.dst[0].at(x, y, c), b.dst[0].at(x, y, c))
                    << x << "," << y << " layout " << li << " mode " << m << " shift " << shift;
            }
        }
      }
}

// Perspective and bilinear forward and quadrangle forms: positions from the exact inverse.
TYPED_TEST(Warp, PerspectiveAndBilinearMatchReference) {
  using T = TypeParam;
  const double h[3][3] = {{1.1, 0.1, 1}, {-0.05, 0.95, 2}, {0.004, -0.003, 1}};
  double hi[3][3];
  {
    const double d = h[0][0] * (h[1][1] * h[2][2] - h[1][2] * h[2][1]) -
                     h[0][1] * (h[1][0] * h[2][2] - h[1][2] * h[2][0]) +
                     h[0][2] * (h[1][0] * h[2][1] - h[1][1] * h[2][0]);
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 3; ++j) {
        const int a = (j + 1) % 3, b = (j + 2) % 3, c = (i + 1) % 3, e = (i + 2) % 3;
        hi[i][j] = (h[a][c] * h[b][e] - h[a][e] * h[b][c]) / d;
      }
  }
  auto ppos = [&](double x, double y, double* sx, double* sy) {
    const double w = hi[2][0] * x + hi[2][1] * y + hi[2][2];
    *sx = (hi[0][0] * x + hi[0][1] * y + hi[0][2]) / w;
    *sy = (hi[1][0] * x + hi[1][1] * y + hi[1][2]) / w;
  };
  const double b[2][4] = {{0.002, 1.05, 0.1, 1.0}, {-0.003, 0.05, 0.9, 2.5}};
  auto bpos = [&](double u, double v, double* sx,
                  double* sy) {  // Newton's method on b(x, y) = (u, v)
    double x = u, y = v;
    for (int i = 0; i < 30; ++i) {
      const double fx = b[0][0] * x * y + b[0][1] * x + b[0][2] * y + b[0][3] - u;
      const double fy = b[1][0] * x * y + b[1][1] * x + b[1][2] * y + b[1][3] - v;
      const double a = b[0][0] * y + b[0][1], bb = b[0][0] * x + b[0][2];
      const double c = b[1][0] * y + b[1][1], d = b[1][0] * x + b[1][2];
      const double det = a * d - bb * c;
      x -= (d * fx - bb * fy) / det;
      y -= (a * fy - c * fx) / det;
    }
    *sx = x, *sy = y;
  };
  // the quadrangle forms: the source ROI corners and their images
  const double x0 = kSrcRoi.x, y0 = kSrcRoi.y, x1 = x0 + kSrcRoi.width - 1,
               y1 = y0 + kSrcRoi.height - 1;
  const double sq[4][2] = {{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}};
  double pq[4][2], bq[4][2];
  for (int i = 0; i < 4; ++i) {
    const double x = sq[i][0], y = sq[i][1], w = h[2][0] * x + h[2][1] * y + h[2][2];
    pq[i][0] = (h[0][0] * x + h[0][1] * y + h[0][2]) / w;
    pq[i][1] = (h[1][0] * x + h[1][1] * y + h[1][2]) / w;
    bq[i][0] = b[0][0] * x * y + b[0][1] * x + b[0][2] * y + b[0][3];
    bq[i][1] = b[1][0] * x * y + b[1][1] * x + b[1][2] * y + b[1][3];
  }
  for (int li = 0; li < 6; ++li)
    for (int m : kModes) {
      const double tol = tolOf<T>(m);
      checkWarp<T>(Ops<T>::persp(h), li, m, kSrc, kSrcRoi, kDst, kDstRoi, ppos, tol);
      checkWarp<T>(Ops<T>::bilinear(b), li, m, kSrc, kSrcRoi, kDst, kDstRoi, bpos, tol);
      if (li % 2) continue;
      checkWarp<T>(Ops<T>::perspQuad(sq, pq), li, m, kSrc, kSrcRoi, kDst, kDstRoi, ppos, tol);
      checkWarp<T>(Ops<T>::bilinearQuad(sq, bq), li, m, kSrc, kSrcRoi, kDst, kDstRoi, bpos, tol);
    }
}

// Validation order of the engine, for every operation family.
TYPED_TEST(Warp, ValidationOrder) {
  using T = TypeParam;
  const double aff[2][3] = {{1, 0, 0}, {0, 1, 0}}, zero[2][3] = {{0, 0, 0}, {0, 0, 0}};
  const double per[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
               perZ[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 0}};
  const double bil[2][4] = {{0, 1, 0, 0}, {0, 0, 1, 0}}, bilZ[2][4] = {{0, 0, 0, 0}, {0, 0, 0, 0}};
  const double q[4][2] = {{0, 0}, {9, 0}, {9, 9}, {0, 9}},
               flat[4][2] = {{0, 0}, {9, 0}, {18, 0}, {0, 9}};
  const WarpFn<T> good[4] = {Ops<T>::affine(aff), Ops<T>::persp(per), Ops<T>::bilinear(bil),
                             Ops<T>::affineQuad(q, q)};
  const WarpFn<T> bad[6] = {Ops<T>::affine(zero),       Ops<T>::persp(perZ),
                            Ops<T>::bilinearBack(bilZ), Ops<T>::affineQuad(q, flat),
                            Ops<T>::perspQuad(flat, q), Ops<T>::bilinearQuad(q, flat)};
  const LumStatus badWant[6] = {lumStatusCoeffErr, lumStatusCoeffErr, lumStatusCoeffErr,
                                lumStatusQuadErr,  lumStatusQuadErr,  lumStatusQuadErr};
  T s[4 * 16 * 16] = {}, d[4 * 16 * 16] = {};
  const T* sp[4] = {s, s, s, s};
  T* dp[4] = {d, d, d, d};
  const T* spNull[4] = {s, nullptr, s, s};
  const T* none[4] = {nullptr, nullptr, nullptr, nullptr};
  const LumiSize ss{16, 16};
  const LumiRect r{0, 0, 16, 16};
  const int st = 16 * 4 * sizeof(T);
  for (int li : {0, 3, 4}) {
    for (const auto& fn : good) {
      EXPECT_EQ(fn(li, li < 4 ? none : nullptr, dp, ss, st, r, st, r, 1), lumStatusNullPtrErr);
      EXPECT_EQ(fn(li, sp, dp, LumiSize{0, 16}, 0, r, 0, r, 99), lumStatusSizeErr);
      EXPECT_EQ(fn(li, sp, dp, ss, st, LumiRect{-1, 0, 4, 4}, 0, r, 99), lumStatusSizeErr);
      EXPECT_EQ(fn(li, sp, dp, ss, st, r, st, LumiRect{0, 0, 0, 4}, 99), lumStatusSizeErr);
      EXPECT_EQ(fn(li, sp, dp, ss, 0, r, st, r, 99), lumStatusStepErr);
      EXPECT_EQ(fn(li, sp, dp, ss, st, r, st, r, 3), lumStatusInterpolationErr);
      EXPECT_EQ(fn(li, sp, dp, ss, st, r, st, r, lumInterpSuper), lumStatusInterpolationErr);
      if (li == 4) {
        EXPECT_EQ(fn(li, spNull, dp, ss, st, r, st, r, 1), lumStatusNullPtrErr);
      }
      EXPECT_EQ(fn(li, sp, dp, ss, st, LumiRect{16, 0, 4, 4}, st, r, 1),
                lumStatusNoIntersectionWarn);
      EXPECT_EQ(fn(li, sp, dp, ss, st, LumiRect{15, 0, 4, 4}, st, r, 1), lumStatusRectErr);
      EXPECT_EQ(fn(li, sp, dp, ss, st, LumiRect{0, 3, 2, 1}, st, r, 1), lumStatusRectErr);
    }
    for (int k = 0; k < 6; ++k) {
      EXPECT_EQ(bad[k](li, sp, dp, ss, st, r, st, r, 99), lumStatusInterpolationErr);
      EXPECT_EQ(bad[k](li, sp, dp, ss, st, LumiRect{16, 0, 4, 4}, st, r, 1), badWant[k]) << k;
    }
  }
  // a quadrangle wholly outside the destination ROI: 30, nothing written
  const double far[2][3] = {{1, 0, 100}, {0, 1, 0}};
  checkWarp<T>(
      Ops<T>::affine(far), 0, 2, kSrc, kSrcRoi, kDst, kDstRoi,
      [](double, double, double* sx, double* sy) { *sx = *sy = -99; }, 0, lumStatusQuadOutsideWarn);
}

// Quarter turns with whole shifts copy pixels exactly whatever the mode; an empty overlap is 29.
TYPED_TEST(Warp, QuarterTurnsCopyPixels) {
  using T = TypeParam;
  struct Turn {
    double angle, xs, ys;
    std::function<void(double, double, double*, double*)> pos;
  };
  const Turn turns[3] = {
      {90, -1, 35, [](double x, double y, double* sx, double* sy) { *sx = 35 - y, *sy = x + 1; }},
      {-180, 38, 27,
       [](double x, double y, double* sx, double* sy) { *sx = 38 - x, *sy = 27 - y; }},
      {630.0 + 360 * 3, 26, -2,
       [](double x, double y, double* sx, double* sy) { *sx = y + 2, *sy = 26 - x; }}};
  for (const Turn& t : turns)
    for (int li : {0, 3, 4})
      checkWarp<T>(Ops<T>::rotate(t.angle, t.xs, t.ys), li, lumInterpCubic | lumSmoothEdge, kSrc,
                   kSrcRoi, kDst, kDstRoi, t.pos, 0);
  checkWarp<T>(
      Ops<T>::rotate(90, 500, 0), 1, 2, kSrc, kSrcRoi, kDst, kDstRoi,
      [](double, double, double* sx, double* sy) { *sx = *sy = -99; }, 0,
      lumStatusNoIntersectionWarn);
}

// Rounding points: nearest rounds 2.5 up; linear at the last column returns that column; the
// identity perspective copies the ROI; c22 = 0 is singular.
TYPED_TEST(Warp, RoundingPointsAndIdentity) {
  using T = TypeParam;
  const T src[2][5] = {{10, 20, 30, 40, 50}, {60, 70, 80, 90, 100}};
  T dst[2][5] = {};
  const double half[2][3] = {{1, 0, 0.5}, {0, 1, 0}};  // destination x reads source x + 0.5
  const LumiSize ss{5, 2};
  const LumiRect all{0, 0, 5, 2};
  const int st = 5 * sizeof(T);
  ASSERT_EQ(lumiWarpAffineBack_8u_C1R(nullptr, ss, st, all, nullptr, st, all, half, 1),
            lumStatusNullPtrErr);
  const T* sp[1] = {&src[0][0]};
  T* dp[1] = {&dst[0][0]};
  ASSERT_EQ(Ops<T>::affineBack(half)(0, sp, dp, ss, st, all, st, all, lumInterpNearest),
            lumStatusOk);
  EXPECT_EQ(dst[0][2], 40);  // 2.5 -> column 3
  EXPECT_EQ(dst[1][0], 70);
  EXPECT_EQ(dst[0][4], 0);  // 4.5 lies outside the ROI: untouched
  ASSERT_EQ(Ops<T>::affineBack(half)(0, sp, dp, ss, st, all, st, all, lumInterpLinear),
            lumStatusOk);
  EXPECT_EQ(dst[0][3], 45);  // 3.5 between 40 and 50
  const double ident[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  T out[2][5] = {};
  T* op[1] = {&out[0][0]};
  ASSERT_EQ(Ops<T>::persp(ident)(0, sp, op, ss, st, all, st, all, lumInterpLinear), lumStatusOk);
  for (int x = 0; x < 5; ++x) EXPECT_EQ(out[1][x], src[1][x]);  // the last column and row too
  const double c22[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 0}};
  EXPECT_EQ(Ops<T>::persp(c22)(0, sp, op, ss, st, all, st, all, 1), lumStatusCoeffErr);
}

// 16u linear with full-scale values stays exact (the row terms pass 2^22); a 60-degree rotation.
TEST(Warp16u, FullScaleLinear) {
  std::vector<Lum16u> s(20 * 20, 65535), d(20 * 20, 0);
  const LumiSize ss{20, 20};
  const LumiRect r{0, 0, 20, 20};
  ASSERT_EQ(
      lumiRotateCenter_16u_C1R(s.data(), ss, 40, r, d.data(), 40, r, 60, 9.5, 9.5, lumInterpLinear),
      lumStatusOk);
  int written = 0;
  for (Lum16u v : d) {
    written += v == 65535;
    EXPECT_TRUE(v == 0 || v == 65535);
  }
  EXPECT_GT(written, 150);
}

// lumSmoothEdge: identity map, border pixels half old and half new, inner ones unblended.
TEST(WarpSmooth, BorderPixelsBlendHalf) {
  std::vector<Lum8u> s(8 * 6, 200), d(8 * 6, 100);
  const double id[2][3] = {{1, 0, 0}, {0, 1, 0}};
  const LumiSize ss{8, 6};
  const LumiRect r{0, 0, 8, 6};
  ASSERT_EQ(lumiWarpAffine_8u_C1R(s.data(), ss, 8, r, d.data(), 8, r, id,
                                  lumInterpLinear | lumSmoothEdge),
            lumStatusOk);
  for (int y = 0; y < 6; ++y)
    for (int x = 0; x < 8; ++x)
      EXPECT_EQ(d[y * 8 + x], (x == 0 || y == 0 || x == 7 || y == 5) ? 150 : 200) << x << "," << y;
}

// The caller's rounding mode (here toward zero) neither changes the results nor is lost.
TEST(WarpRounding, RoundsToNearestWhateverTheCallersMode) {
  std::vector<Lum32f> s(30 * 20), a(30 * 20, 0), b(30 * 20, 0);
  for (std::size_t i = 0; i < s.size(); ++i) s[i] = static_cast<float>(i % 7) * 0.3f + i / 9.0f;
  const LumiSize ss{30, 20};
  const LumiRect r{0, 0, 30, 20};
  ASSERT_EQ(
      lumiRotateCenter_32f_C1R(s.data(), ss, 120, r, a.data(), 120, r, 21, 14, 9, lumInterpCubic),
      lumStatusOk);
  const unsigned saved = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(_MM_ROUND_TOWARD_ZERO);
  const LumStatus st =
      lumiRotateCenter_32f_C1R(s.data(), ss, 120, r, b.data(), 120, r, 21, 14, 9, lumInterpCubic);
  const unsigned mode = _MM_GET_ROUNDING_MODE();
  _MM_SET_ROUNDING_MODE(saved);
  EXPECT_EQ(st, lumStatusOk);
  EXPECT_EQ(mode, static_cast<unsigned>(_MM_ROUND_TOWARD_ZERO));
  EXPECT_TRUE(lumitest::sameElements(b, a));
}

#ifdef LUMI_HAVE_OPENCV
// A quarter turn is an index permutation in both libraries.
TEST(WarpOpenCV, QuarterTurnMatchesRotate) {
  cv::Mat s(21, 34, CV_8UC3), d(34, 21, CV_8UC3, cv::Scalar::all(0)), want;
  cv::randu(s, 0, 256);
  cv::rotate(s, want, cv::ROTATE_90_COUNTERCLOCKWISE);
  // x' = y, y' = 33 - x
  ASSERT_EQ(
      lumiRotate_8u_C3R(s.ptr(), LumiSize{34, 21}, int(s.step), LumiRect{0, 0, 34, 21}, d.ptr(),
                        int(d.step), LumiRect{0, 0, 21, 34}, 90, 0, 33, lumInterpLinear),
      lumStatusOk);
  EXPECT_EQ(cv::norm(d, want, cv::NORM_INF), 0);
}
#endif

}  // namespace
