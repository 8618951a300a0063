// Resize family against direct references of its mappings and kernels, whole images compared:
// odd sizes, ROIs away from the origin, padded steps, destinations larger than the computed
// count (nothing beyond it, nor the AC4 alpha, may change), every validation order, ResizeShift
// with the steps of GetResizeFract against Resize, planar members against their planes.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "lumi/resize.h"
#include "lumitest.h"

using namespace lumitest;

namespace {

template <class T>
using ResizeFn = LumStatus (*)(const T*, LumiSize, int, LumiRect, T*, int, LumiSize, double, double, int);
template <class T>
using ShiftFn = LumStatus (*)(const T*, LumiSize, int, LumiRect, T*, int, LumiSize, double, double,
                              double, double, int);
template <class T>
using SqrFn = LumStatus (*)(const T*, LumiSize, int, LumiRect, T*, int, LumiRect, double, double,
                            double, double, int, Lum8u*);
template <class T>
struct Fns {
  ResizeFn<T> resize[4];
  ShiftFn<T> shift[4], center[4];
  SqrFn<T> sqr[4];
};
#define FNS(t, n) lumi##n##_##t##_C1R, lumi##n##_##t##_C3R, lumi##n##_##t##_C4R, lumi##n##_##t##_AC4R
template <class T> const Fns<T>& fns();
template <> const Fns<Lum8u>& fns() {
  static const Fns<Lum8u> f{{FNS(8u, Resize)}, {FNS(8u, ResizeShift)}, {FNS(8u, ResizeCenter)}, {FNS(8u, ResizeSqrPixel)}};
  return f;
}
template <> const Fns<Lum16u>& fns() {
  static const Fns<Lum16u> f{{FNS(16u, Resize)}, {FNS(16u, ResizeShift)}, {FNS(16u, ResizeCenter)}, {FNS(16u, ResizeSqrPixel)}};
  return f;
}
template <> const Fns<Lum32f>& fns() {
  static const Fns<Lum32f> f{{FNS(32f, Resize)}, {FNS(32f, ResizeShift)}, {FNS(32f, ResizeCenter)}, {FNS(32f, ResizeSqrPixel)}};
  return f;
}

// ---- the reference --------------------------------------------------------------------------
// One axis: destination count and source positions relative to the ROI origin; the source holds
// absolute [0, extent) with the ROI at `origin`.
struct RefAxis {
  int n = 0;
  std::vector<double> x;
  int origin = 0, extent = 0;
};
RefAxis refForward(int w, double f, int dstN, int mode, int origin, int extent) {
  RefAxis a;
  a.origin = origin, a.extent = extent;
  double s = w * f + 1e-7;
  a.n = s >= dstN ? dstN : std::max(1, static_cast<int>(s));
  double step = (mode == 1 || mode == 8) ? 1 / f : (w * f > 1 ? (w - 1) / (w * f - 1) : 0);
  for (int i = 0; i < a.n; ++i) a.x.push_back(mode == 8 ? i * step : mode == 1 ? (i + 0.5) * step : i * step);
  return a;
}

template <class T>
double px(const GuardedImage<T>& im, int x, int y, int c) {  // absolute, clamped
  x = std::min(std::max(x, 0), im.width() - 1);
  y = std::min(std::max(y, 0), im.height() - 1);
  return im.at(x, y, c);
}
double lanczos(double x) {
  x = std::fabs(x);
  if (x < 1e-12) return 1;
  if (x >= 3) return 0;
  const double pi = 3.14159265358979323846;
  return 3 * std::sin(pi * x) * std::sin(pi * x / 3) / (pi * pi * x * x);
}

// The value of destination pixel (i, j), channel c, before rounding to T (linear: exactly).
// Indices and fractions come from the positions relative to the ROI origin.
template <class T>
double refValue(const GuardedImage<T>& s, const RefAxis& ax, const RefAxis& ay, int mode,
                double stepX, double stepY, int i, int j, int c) {
  const int W = s.width(), H = s.height();
  // absolute index k and fraction f of a relative position
  auto split = [](double rel, int origin, int* k, double* f) {
    const double r = std::floor(rel + 1e-7);
    *f = rel - r;
    *k = static_cast<int>(r) + origin;
  };
  int kx, ky;
  double fx, fy;
  split(ax.x[i], ax.origin, &kx, &fx);
  split(ay.x[j], ay.origin, &ky, &fy);
  if (mode == 1) return px(s, kx, ky, c);
  if (mode == 2) {
    auto last = [](int n, int* k, double* f, int* w) {
      if (*k == n - 1) *k -= 1, *f = 1;
      *w = static_cast<int>(*f * 16384 + 1e-7);
    };
    int wx, wy;
    last(W, &kx, &fx, &wx);
    last(H, &ky, &fy, &wy);
    auto p = [&](int dx, int dy) { return static_cast<long long>(px(s, kx + dx, ky + dy, c)); };
    if (sizeof(T) == 1) {
      long long h0 = (p(0, 0) * (16384 - wx) + p(1, 0) * wx) >> 8, h1 = (p(0, 1) * (16384 - wx) + p(1, 1) * wx) >> 8;
      return static_cast<double>((h0 * (16384 - wy) + h1 * wy + (1 << 19)) >> 20);
    }
    if (sizeof(T) == 2) {
      long long h0 = p(0, 0) * (16384 - wx) + p(1, 0) * wx, h1 = p(0, 1) * (16384 - wx) + p(1, 1) * wx;
      return static_cast<double>((h0 * (16384 - wy) + h1 * wy + (1LL << 27)) >> 28);
    }
    const float gx = static_cast<float>(fx), gy = static_cast<float>(fy);
    auto pf = [&](int dx, int dy) { return static_cast<float>(px(s, kx + dx, ky + dy, c)); };
    float h0 = pf(0, 0) * (1 - gx) + pf(1, 0) * gx, h1 = pf(0, 1) * (1 - gx) + pf(1, 1) * gx;
    return h0 * (1 - gy) + h1 * gy;
  }
  if (mode == 4) {  // Newton form in floats: rows first, then the column
    auto base = [](int k, double f, int n, int* b, float* t) {
      const int d = k == 0 ? 1 : k == n - 2 ? -1 : k == n - 1 ? -2 : 0;
      *b = k + d;
      *t = k == n - 1 ? 2.0f : static_cast<float>(f - d);
    };
    auto newton = [](float p0, float p1, float p2, float p3, float t) {
      float a = t + 1, b = t * a / 2, cc = (t - 1) * t * a / 6;
      return p0 + a * (p1 - p0) + b * (p2 - 2 * p1 + p0) + cc * (p3 - 3 * p2 + 3 * p1 - p0);
    };
    int bx, by;
    float tx, ty;
    base(kx, fx, W, &bx, &tx);
    base(ky, fy, H, &by, &ty);
    float r[4];
    for (int k = 0; k < 4; ++k) {
      auto q = [&](int d) { return static_cast<float>(px(s, bx + d, by - 1 + k, c)); };
      r[k] = newton(q(-1), q(0), q(1), q(2), tx);
    }
    return newton(r[0], r[1], r[2], r[3], ty);
  }
  if (mode == 16) {
    double sum = 0, wsum = 0;
    for (int v = -2; v <= 3; ++v)
      for (int u = -2; u <= 3; ++u) {
        double wgt = lanczos(fx - u) * lanczos(fy - v);
        sum += wgt * px(s, kx + u, ky + v, c);
        wsum += wgt;
      }
    return sum / wsum;
  }
  // super: the area average of [x, x + stepX) x [y, y + stepY) inside the image
  const double x = ax.x[i] + ax.origin, y = ay.x[j] + ay.origin;
  const double x1 = std::min(x + stepX, static_cast<double>(W)), y1 = std::min(y + stepY, static_cast<double>(H));
  double sum = 0;
  for (int v = static_cast<int>(y); v < y1; ++v)
    for (int u = static_cast<int>(x); u < x1; ++u) {
      double ov = (std::min(x1, u + 1.0) - std::max(x, 1.0 * u)) * (std::min(y1, v + 1.0) - std::max(y, 1.0 * v));
      sum += ov * px(s, u, v, c);
    }
  return sum / ((x1 - x) * (y1 - y));
}

// Runs Resize on a guarded destination larger than the count and compares every pixel with
// the reference; tolerances: 0 for nearest and linear, cubic 8u/16u exact and 32f 1e-5
// relative, Lanczos and super within 1 (integers) or 1e-3 relative.
template <class T>
void checkResize(int layout, LumiSize srcSize, LumiRect roi, double xf, double yf, int mode,
                 int expectMode, uint32_t seed) {
  const Layout L = kLayouts[layout];
  Rng rng = makeRng(seed);
  GuardedImage<T> src(srcSize.width, srcSize.height, L.ch, -1, -1, seed);
  src.fillRandom(rng);
  if (std::is_floating_point_v<T>) src.fill([&](int, int, int) { return static_cast<T>(randInt(rng, -500, 500) * 0.25); });
  const int w = std::min(roi.width, srcSize.width - roi.x), h = std::min(roi.height, srcSize.height - roi.y);
  RefAxis ax = refForward(w, xf, 1 << 20, expectMode, roi.x, srcSize.width);
  RefAxis ay = refForward(h, yf, 1 << 20, expectMode, roi.y, srcSize.height);
  GuardedImage<T> dst(ax.n + 3, ay.n + 2, L.ch, -1, -1, seed + 1);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  const T* sp = src.row(0);
  ASSERT_EQ(fns<T>().resize[layout](sp, srcSize, src.step(), roi, dst.ptr(), dst.step(), dst.roi(), xf, yf, mode), lumStatusOk);
  ASSERT_TRUE(dst.guardsIntact());
  constexpr bool kFloat = std::is_floating_point_v<T>;
  const double lim = expectMode <= 2 ? (kFloat ? 1e-4 : 0)
                     : expectMode == 4 ? (kFloat ? 1e-3 : 0)
                     : expectMode == 8 ? (kFloat ? 1e-3 : 1)
                                       : (kFloat ? 0.25 : sizeof(T) == 1 ? 1 : 150);
  for (int y = 0; y < dst.height(); ++y)
    for (int x = 0; x < dst.width(); ++x)
      for (int c = 0; c < L.ch; ++c) {
        const T got = dst.at(x, y, c);
        if (x >= ax.n || y >= ay.n || c >= L.use) {
          ASSERT_EQ(got, before[(static_cast<std::size_t>(y) * dst.width() + x) * L.ch + c]) << x << "," << y << " untouched";
          continue;
        }
        double v = refValue(src, ax, ay, expectMode, 1 / xf, 1 / yf, x, y, c);
        if (!std::is_floating_point_v<T> && expectMode > 2)
          v = std::min(std::max(std::trunc(static_cast<float>(v) + 0.5000001f), 0.0f), static_cast<float>(std::numeric_limits<T>::max()));
        const double err = std::fabs(got - v);
        ASSERT_LE(err, lim) << L.name << " mode " << mode << " at " << x << "," << y << "," << c << ": got " << +got << " want " << v;
      }
}

struct Case {
  LumiSize src;
  LumiRect roi;
  double xf, yf;
};
const Case kCases[] = {
    {{23, 17}, {0, 0, 23, 17}, 1.7, 2.0},   // enlarge
    {{31, 19}, {5, 3, 20, 14}, 0.45, 0.6},  // reduce, ROI inside
    {{19, 13}, {4, 2, 40, 40}, 0.5, 1.3},   // ROI overhanging the image, cut
    {{17, 11}, {16, 10, 1, 1}, 3.0, 2.0},   // the last pixel only
};

template <class T>
void allModes() {
  for (int mode : {1, 2, 4, 16, 8})
    for (int layout = 0; layout < 4; ++layout)
      for (const Case& k : kCases) {
        if (mode == 8 && (k.xf > 1 || k.yf > 1)) continue;
        SCOPED_TRACE(::testing::Message() << "mode " << mode << " size " << k.src.width << "x" << k.src.height);
        checkResize<T>(layout, k.src, k.roi, k.xf, k.yf, mode, mode, 11 + mode + layout);
      }
}
TEST(Resize, AllModesAgainstReference8u) { allModes<Lum8u>(); }
TEST(Resize, AllModesAgainstReference16u) { allModes<Lum16u>(); }
TEST(Resize, AllModesAgainstReference32f) { allModes<Lum32f>(); }

// Halving by super-sampling: exact 2x2 means, rounded half up for integers (the vector path
// takes whole blocks of pixels, the odd remainder goes one by one).
template <class T>
void exactHalves() {
  Rng rng = makeRng(21);
  for (int layout = 0; layout < 4; ++layout) {
    const Layout L = kLayouts[layout];
    GuardedImage<T> src(2 * 75 + 1, 12, L.ch);
    src.fillRandom(rng);
    GuardedImage<T> dst(75, 6, L.ch);
    dst.fillRandom(rng);
    const std::vector<T> before = dst.pixels();
    ASSERT_EQ(fns<T>().resize[layout](src.ptr(), src.roi(), src.step(), {1, 0, 150, 12}, dst.ptr(), dst.step(), dst.roi(), 0.5, 0.5, lumInterpSuper), lumStatusOk);
    for (int y = 0; y < 6; ++y)
      for (int x = 0; x < 75; ++x)
        for (int c = 0; c < L.ch; ++c) {
          auto p = [&](int u, int v) { return src.at(1 + 2 * x + u, 2 * y + v, c); };
          T want;
          if (c >= L.use) want = before[(static_cast<std::size_t>(y) * 75 + x) * L.ch + c];
          else if constexpr (std::is_floating_point_v<T>)
            want = (0.5f * p(0, 0) + 0.5f * p(1, 0)) * 0.5f + 0.5f * (0.5f * p(0, 1) + 0.5f * p(1, 1));
          else want = static_cast<T>((p(0, 0) + p(1, 0) + p(0, 1) + p(1, 1) + 2) >> 2);
          ASSERT_EQ(dst.at(x, y, c), want) << L.name << " " << x << "," << y << "," << c;
        }
    ASSERT_TRUE(dst.guardsIntact());
  }
}
TEST(Resize, SuperHalvesAreExactMeans) {
  exactHalves<Lum8u>();
  exactHalves<Lum16u>();
  exactHalves<Lum32f>();
}

TEST(Resize, SmallImagesLowerTheMode) {
  checkResize<Lum8u>(0, {5, 9}, {0, 0, 5, 9}, 1.5, 1.3, 16, 4, 1);  // Lanczos -> cubic
  checkResize<Lum8u>(1, {3, 9}, {0, 0, 3, 9}, 2.0, 1.5, 4, 2, 2);   // cubic -> linear
  checkResize<Lum32f>(0, {9, 1}, {0, 0, 9, 1}, 2.0, 3.0, 4, 1, 3);  // one row -> nearest
  checkResize<Lum16u>(2, {1, 6}, {0, 0, 1, 6}, 0.5, 0.5, 8, 1, 4);  // super too
}

TEST(Resize, LargeImagesAcrossThreadsAndVectorWidths) {
  checkResize<Lum8u>(0, {301, 97}, {3, 1, 290, 95}, 2.1, 1.9, 2, 2, 5);
  checkResize<Lum8u>(1, {260, 90}, {0, 0, 260, 90}, 0.5, 0.5, 2, 2, 6);
  checkResize<Lum8u>(3, {200, 64}, {1, 0, 199, 64}, 1.6, 1.5, 4, 4, 7);
  checkResize<Lum32f>(1, {250, 70}, {0, 2, 250, 68}, 2.0, 2.0, 4, 4, 8);
  checkResize<Lum32f>(0, {333, 80}, {0, 0, 333, 80}, 0.6, 0.5, 2, 2, 9);
  checkResize<Lum8u>(3, {230, 40}, {2, 1, 220, 39}, 0.5, 0.45, 2, 2, 10);  // AC4 reduction
  checkResize<Lum8u>(0, {260, 40}, {0, 0, 260, 40}, 0.5, 0.5, 2, 2, 14);   // pairs of neighbours
  for (int again = 0; again < 2; ++again) {  // the second time with the kept tables
    checkResize<Lum8u>(0, {450, 30}, {3, 1, 446, 29}, 0.5, 0.5, 2, 2, 15 + again);
    checkResize<Lum32f>(0, {450, 30}, {3, 1, 446, 29}, 0.5, 0.5, 2, 2, 17 + again);
  }
  checkResize<Lum8u>(1, {150, 50}, {1, 1, 149, 49}, 2.0, 0.5, 1, 1, 11);
  checkResize<Lum32f>(3, {120, 40}, {0, 0, 120, 40}, 0.5, 2.0, 1, 1, 12);
  checkResize<Lum32f>(1, {200, 40}, {0, 0, 200, 40}, 0.5, 0.5, 4, 4, 13);
}

// Destinations larger than the caches are written with non-temporal stores from the first
// aligned element on: a misaligned 32f destination of 17.6 MB, sampled rows against the reference.
TEST(Resize, LargeFloatDestinations) {
  for (int mode : {2, 4}) {
    const int ch = mode == 2 ? 1 : 3, w = mode == 2 ? 1050 : 606;
    GuardedImage<Lum32f> src(w, w, ch, 4, 4);
    Rng rng = makeRng(41);
    src.fill([&](int x, int y, int c) { return static_cast<Lum32f>((x * 7 + y * 13 + c * 5) % 251 + randInt(rng, 0, 3)); });
    GuardedImage<Lum32f> dst(2 * w, 2 * w, ch, 4, 4);
    ASSERT_EQ((ch == 1 ? lumiResize_32f_C1R : lumiResize_32f_C3R)(src.ptr(), src.roi(), src.step(), {0, 0, w, w}, dst.ptr(), dst.step(), dst.roi(), 2.0, 2.0, mode), lumStatusOk);
    ASSERT_TRUE(dst.guardsIntact());
    const RefAxis ax = refForward(w, 2.0, 2 * w, mode, 0, w), ay = refForward(w, 2.0, 2 * w, mode, 0, w);
    for (int y = 0; y < 2 * w; y += 97)
      for (int x = 0; x < 2 * w; ++x)
        for (int c = 0; c < ch; ++c)
          ASSERT_NEAR(dst.at(x, y, c), refValue(src, ax, ay, mode, 0.5, 0.5, x, y, c), 1e-3) << x << "," << y;
  }
}

// ---- validation ---------------------------------------------------------------------------
TEST(Resize, ValidationOrderAndDegenerateScaling) {
  Lum8u s[64] = {}, d[64];
  std::memset(d, 7, sizeof d);
  const LumiSize ss{8, 8}, ds{8, 8};
  const LumiRect r{0, 0, 8, 8};
  struct V {
    const Lum8u* s;
    LumiSize ss;
    LumiRect r;
    LumiSize ds;
    double xf;
    int mode;
    LumStatus want;
  } cases[] = {
      {nullptr, {0, 0}, r, ds, 1, 1, lumStatusNullPtrErr},
      {s, {0, 8}, {9, 9, 1, 1}, ds, 1, 1, lumStatusSizeErr},
      {s, ss, {-1, 0, 1, 1}, ds, 1, 1, lumStatusSizeErr},
      {s, ss, {8, 0, 0, 1}, ds, 1, 1, lumStatusSizeErr},
      {s, ss, {8, 0, 1, 1}, {0, 0}, 0, 99, lumStatusNoIntersectionWarn},  // before the destination
      {s, ss, r, {0, 4}, 0, 99, lumStatusSizeErr},
      {s, ss, r, ds, 0, 99, lumStatusResizeFactorErr},
      {s, ss, r, ds, NAN, 99, lumStatusResizeFactorErr},
      {s, ss, r, ds, 1, 3, lumStatusInterpolationErr},
      {s, ss, r, ds, 1.5, 8, lumStatusInterpolationErr},  // super only reduces
      {s, ss, {7, 7, 1, 1}, ds, 0.4, 2, lumStatusResizeDegenerateErr},
  };
  for (const V& v : cases) {
    EXPECT_EQ(lumiResize_8u_C1R(v.s, v.ss, 8, v.r, d, 8, v.ds, v.xf, 1.0, v.mode), v.want);
    for (Lum8u b : d) ASSERT_EQ(b, 7);
  }
  EXPECT_EQ(lumiResize_8u_C1R(s, ss, 8, r, nullptr, 8, ds, 1, 1, 1), lumStatusNullPtrErr);
  s[63] = 200;
  EXPECT_EQ(lumiResize_8u_C1R(s, ss, 8, {7, 7, 1, 1}, d, 8, ds, 0.5, 0.5, 2), lumStatusOk);
  EXPECT_EQ(d[0], 200);
  EXPECT_EQ(d[1], 7);
  // ResizeShift: a negative step fails, super is not a step mode
  EXPECT_EQ(lumiResizeShift_8u_C1R(s, ss, 8, r, d, 8, ds, -1, 1, 0, 0, 2), lumStatusResizeFactorErr);
  EXPECT_EQ(lumiResizeShift_8u_C1R(s, ss, 8, r, d, 8, ds, 0.5, 0.5, 0, 0, 8), lumStatusInterpolationErr);
  // ResizeCenter: pDst first, pSrc after the factors
  EXPECT_EQ(lumiResizeCenter_8u_C1R(s, {0, 0}, 8, r, nullptr, 8, ds, 1, 1, 0, 0, 1), lumStatusNullPtrErr);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(nullptr, {0, 0}, 8, r, d, 8, ds, 1, 1, 0, 0, 1), lumStatusSizeErr);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(nullptr, ss, 8, {9, 0, 1, 1}, d, 8, {0, 0}, 1, 1, 0, 0, 1), lumStatusNoIntersectionWarn);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(nullptr, ss, 8, r, d, 8, {0, 1}, 1, 1, 0, 0, 1), lumStatusSizeErr);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(nullptr, ss, 8, r, d, 8, ds, 0, 1, 0, 0, 1), lumStatusResizeFactorErr);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(nullptr, ss, 8, r, d, 8, ds, 1, 1, 0, 0, 99), lumStatusNullPtrErr);
  EXPECT_EQ(lumiResizeCenter_8u_C1R(s, ss, 8, r, d, 8, ds, 1, 1, 0, 0, 99), lumStatusInterpolationErr);
  // GetResizeFract: sizes, origin, factors, outputs, mode
  double fx, fy;
  EXPECT_EQ(lumiGetResizeFract({0, 1}, r, 0, 0, nullptr, nullptr, 99), lumStatusSizeErr);
  EXPECT_EQ(lumiGetResizeFract(ss, {8, 0, 1, 1}, 0, 0, nullptr, nullptr, 99), lumStatusNoIntersectionWarn);
  EXPECT_EQ(lumiGetResizeFract(ss, r, 0, 1, nullptr, nullptr, 99), lumStatusResizeFactorErr);
  EXPECT_EQ(lumiGetResizeFract(ss, r, 1, 1, &fx, nullptr, 99), lumStatusNullPtrErr);
  EXPECT_EQ(lumiGetResizeFract(ss, r, 1, 1, &fx, &fy, 8), lumStatusInterpolationErr);
  // planar: a null plane is a null pointer
  const Lum8u* sp[3] = {s, s, nullptr};
  Lum8u* dp[3] = {d, d, d};
  EXPECT_EQ(lumiResize_8u_P3R(sp, ss, 8, r, dp, 8, ds, 1, 1, 1), lumStatusNullPtrErr);
}

// ---- ResizeShift with GetResizeFract, ResizeCenter, planar ---------------------------------------
TEST(Resize, ShiftWithFractReproducesResize) {
  Rng rng = makeRng(5);
  GuardedImage<Lum8u> src(41, 29, 3);
  src.fillRandom(rng);
  for (int mode : {1, 2, 4, 16})
    for (double f : {0.3, 0.5, 0.77, 1.0, 1.5, 2.0, 3.3})
      for (LumiRect roi : {LumiRect{0, 0, 41, 29}, LumiRect{3, 5, 30, 20}}) {
        const LumiSize dsz{140, 100};
        std::vector<Lum8u> a(dsz.width * dsz.height * 3, 1), b(a.size(), 1);
        double fx, fy;
        ASSERT_EQ(lumiGetResizeFract(src.roi(), roi, f, f * 0.9, &fx, &fy, mode), lumStatusOk);
        ASSERT_EQ(lumiResize_8u_C3R(src.ptr(), src.roi(), src.step(), roi, a.data(), dsz.width * 3, dsz, f, f * 0.9, mode), lumStatusOk);
        ASSERT_EQ(lumiResizeShift_8u_C3R(src.ptr(), src.roi(), src.step(), roi, b.data(), dsz.width * 3, dsz, fx, fy, 0, 0, mode), lumStatusOk);
        ASSERT_TRUE(sameElements(b, a, dsz.width * 3)) << "mode " << mode << " factor " << f;
      }
}

// ResizeShift with its own steps and shifts: counts by the step rules, positions shift +
// (i + 0.5) step (nearest) or shift + i step, kept inside the image.
template <class T>
void checkShift(int layout, double fr, double shift, int mode) {
  const Layout L = kLayouts[layout];
  Rng rng = makeRng(31);
  GuardedImage<T> src(37, 23, L.ch);
  src.fillRandom(rng);
  const LumiRect roi{3, 2, 30, 19};
  const LumiSize dsz{45, 40};
  GuardedImage<T> dst(dsz.width, dsz.height, L.ch);
  dst.fillRandom(rng);
  const std::vector<T> before = dst.pixels();
  ASSERT_EQ(fns<T>().shift[layout](src.ptr(), src.roi(), src.step(), roi, dst.ptr(), dst.step(), dsz, fr, fr * 1.3, shift, -shift, mode), lumStatusOk);
  auto axis = [&](int w, double f, double sh, int dstN, int origin, int extent) {
    RefAxis a;
    a.origin = origin, a.extent = extent;
    const double q = std::trunc((mode == 1 ? w : w - 1) / f + 1e-7);
    a.n = mode == 1 ? std::max(1, static_cast<int>(std::min<double>(q, dstN))) : q < dstN - 1 ? static_cast<int>(q) + 1 : dstN;
    for (int i = 0; i < a.n; ++i) {
      const double x = sh + (mode == 1 ? i + 0.5 : i) * f;
      a.x.push_back(std::min(std::max(x, -1.0 * origin), extent - 1.0 - origin));
    }
    return a;
  };
  const RefAxis ax = axis(30, fr, shift, dsz.width, roi.x, 37), ay = axis(19, fr * 1.3, -shift, dsz.height, roi.y, 23);
  for (int y = 0; y < dsz.height; ++y)
    for (int x = 0; x < dsz.width; ++x)
      for (int c = 0; c < L.ch; ++c) {
        const T got = dst.at(x, y, c);
        if (x >= ax.n || y >= ay.n || c >= L.use) {
          ASSERT_EQ(got, before[(static_cast<std::size_t>(y) * dsz.width + x) * L.ch + c]);
          continue;
        }
        double v = refValue(src, ax, ay, mode, 0, 0, x, y, c);
        if (!std::is_floating_point_v<T> && mode == 4)
          v = std::min(std::max(std::trunc(static_cast<float>(v) + 0.5000001f), 0.0f), static_cast<float>(std::numeric_limits<T>::max()));
        ASSERT_NEAR(got, v, std::is_floating_point_v<T> ? 1e-3 : 0) << L.name << " mode " << mode << " shift " << shift << " at " << x << "," << y;
      }
  ASSERT_TRUE(dst.guardsIntact());
}
TEST(Resize, ShiftStepsAndOffsets) {
  for (int mode : {1, 2, 4})
    for (double shift : {0.0, 2.75, -4.5, 40.0})
      for (int layout : {0, 1, 3}) {
        checkShift<Lum8u>(layout, 0.7, shift, mode);
        checkShift<Lum32f>(layout, 1.9, shift, mode);
      }
  checkShift<Lum16u>(2, 0.45, 1.5, 2);
}

TEST(Resize, CenterMapping) {
  Rng rng = makeRng(6);
  GuardedImage<Lum32f> src(20, 16, 1);
  src.fillRandom(rng);
  // centre chosen so the ROI's first edge lands on the destination's: the same as Resize
  for (int mode : {1, 2, 4}) {
    const LumiSize dsz{30, 24};
    const double f = 1.5;
    std::vector<Lum32f> a(30 * 24, -1), b(a.size(), -1);
    ASSERT_EQ(lumiResize_32f_C1R(src.ptr(), src.roi(), src.step(), {0, 0, 20, 16}, a.data(), 120, dsz, f, f, mode), lumStatusOk);
    ASSERT_EQ(lumiResizeCenter_32f_C1R(src.ptr(), src.roi(), src.step(), {0, 0, 20, 16}, b.data(), 120, dsz, f, f, 10, 8, mode), lumStatusOk);
    ASSERT_TRUE(sameElements(b, a, 30));
  }
  // odd destination, factor 1, nearest: centre pixel (10, 8) lands on destination (3.5, 2.5),
  // the pixel covering it is (3, 2); the source edge 7.5 maps to 1, so columns 1..6 are written
  GuardedImage<Lum32f> dst(7, 5, 1);
  dst.fill([](int, int, int) { return -7.0f; });
  ASSERT_EQ(lumiResizeCenter_32f_C1R(src.ptr(), src.roi(), src.step(), {7, 6, 13, 10}, dst.ptr(), dst.step(), dst.roi(), 1, 1, 10, 8, 1), lumStatusOk);
  EXPECT_EQ(dst.at(3, 2), src.at(10, 8));
  EXPECT_EQ(dst.at(1, 1), src.at(8, 7));
  EXPECT_EQ(dst.at(0, 0), -7.0f);
  EXPECT_TRUE(dst.guardsIntact());
  EXPECT_EQ(lumiResizeCenter_32f_C1R(src.ptr(), src.roi(), src.step(), {0, 0, 20, 16}, dst.ptr(), dst.step(), dst.roi(), 1, 1, 100, 8, 1), lumStatusNoIntersectionWarn);
}

template <class T, int P>
void planarMatchesPlanes(LumStatus (*fn)(const T* const*, LumiSize, int, LumiRect, T* const*, int, LumiSize, double, double, int)) {
  Rng rng = makeRng(P);
  const LumiSize ss{27, 21}, ds{50, 12};
  std::vector<GuardedImage<T>> src, dst;
  for (int p = 0; p < P; ++p) {
    src.emplace_back(ss.width, ss.height, 1, 8, 0, p + 1);
    src.back().fillRandom(rng);
    dst.emplace_back(ds.width, ds.height, 1, 8, 0, p + 9);
  }
  const T* sp[4];
  T* dp[4];
  for (int p = 0; p < P; ++p) sp[p] = src[p].ptr(), dp[p] = dst[p].ptr();
  for (int mode : {1, 2, 4, 16, 8}) {
    ASSERT_EQ(fn(sp, ss, src[0].step(), {2, 1, 25, 20}, dp, dst[0].step(), ds, 1.7, 0.55, mode == 8 ? 8 : mode) , mode == 8 ? lumStatusInterpolationErr : lumStatusOk);
    if (mode == 8) continue;
    for (int p = 0; p < P; ++p) {
      GuardedImage<T> one(ds.width, ds.height, 1, 8, 0, p + 9);
      ASSERT_EQ(fns<T>().resize[0](sp[p], ss, src[0].step(), {2, 1, 25, 20}, one.ptr(), one.step(), ds, 1.7, 0.55, mode), lumStatusOk);
      ASSERT_TRUE(sameElements(dst[p].pixels(), one.pixels(), ds.width)) << "plane " << p << " mode " << mode;
    }
  }
}
TEST(Resize, PlanarEqualsEachPlane) {
  planarMatchesPlanes<Lum8u, 3>(lumiResize_8u_P3R);
  planarMatchesPlanes<Lum16u, 4>(lumiResize_16u_P4R);
  planarMatchesPlanes<Lum32f, 3>(lumiResize_32f_P3R);
}

// ---- square pixels and 4:2:2 ----------------------------------------------------------------
TEST(Resize, SqrPixelMapsCentresAndWritesOnlyTheCoveredPart) {
  Rng rng = makeRng(8);
  GuardedImage<Lum32f> src(24, 18, 3);
  src.fillRandom(rng);
  const LumiRect roi{4, 3, 16, 12};
  for (int mode : {1, 2, 4, 16, 8}) {
    const double xf = mode == 8 ? 0.5 : 1.6, yf = mode == 8 ? 0.5 : 0.8, xs = mode == 8 ? 2 : 2.5,
                 ys = mode == 8 ? -1.5 : -1.25;
    GuardedImage<Lum32f> dst(40, 20, 3);
    dst.fill([](int, int, int) { return -9.0f; });
    int bytes = 0;
    ASSERT_EQ(lumiResizeSqrPixelGetBufSize({36, 16}, 3, mode, &bytes), lumStatusOk);
    std::vector<Lum8u> buf(bytes);
    const LumiRect dr{2, 3, 36, 16};
    ASSERT_EQ(lumiResizeSqrPixel_32f_C3R(src.ptr(), src.roi(), src.step(), roi, dst.ptr(), dst.step(), dr, xf, yf, xs, ys, mode, buf.data()), lumStatusOk);
    ASSERT_TRUE(dst.guardsIntact());
    for (int y = 0; y < dst.height(); ++y)
      for (int x = 0; x < dst.width(); ++x) {
        const double u = (x + 0.5 - xs) / xf, v = (y + 0.5 - ys) / yf;  // edge coordinates
        const bool inside = x >= dr.x && x < dr.x + dr.width && y >= dr.y && y < dr.y + dr.height &&
                            u >= roi.x && u < roi.x + roi.width && v >= roi.y && v < roi.y + roi.height;
        if (!inside) {
          ASSERT_EQ(dst.at(x, y, 1), -9.0f) << x << "," << y;
          continue;
        }
        if (mode == 1) {
          ASSERT_EQ(dst.at(x, y, 1), src.at(static_cast<int>(u), static_cast<int>(v), 1));
        }
        if (mode == 2) {  // bilinear inside the ROI, edges repeated
          auto cl = [](double p, int lo, int hi) { return std::min(std::max(p, 1.0 * lo), 1.0 * hi); };
          const double sx = cl(u - 0.5, roi.x, roi.x + roi.width - 1), sy = cl(v - 0.5, roi.y, roi.y + roi.height - 1);
          const int kx = std::min(static_cast<int>(sx), roi.x + roi.width - 2), ky = std::min(static_cast<int>(sy), roi.y + roi.height - 2);
          const double fx = sx - kx, fy = sy - ky;
          const double want = (src.at(kx, ky, 1) * (1 - fx) + src.at(kx + 1, ky, 1) * fx) * (1 - fy) +
                              (src.at(kx, ky + 1, 1) * (1 - fx) + src.at(kx + 1, ky + 1, 1) * fx) * fy;
          ASSERT_NEAR(dst.at(x, y, 1), want, 1e-3) << x << "," << y;
        }
        if (mode == 8) {
          const int sx = static_cast<int>(std::floor(u - 1)), sy = static_cast<int>(std::floor(v - 1));  // 2x2 block
          const double want = (src.at(sx, sy, 1) + src.at(sx + 1, sy, 1) + src.at(sx, sy + 1, 1) + src.at(sx + 1, sy + 1, 1)) / 4;
          ASSERT_NEAR(dst.at(x, y, 1), want, 1e-3) << x << "," << y;
        }
      }
  }
  int bytes;
  EXPECT_EQ(lumiResizeSqrPixelGetBufSize({4, 4}, 2, 1, &bytes), lumStatusChannelCountErr);
  std::vector<Lum8u> buf(4096);
  EXPECT_EQ(lumiResizeSqrPixel_32f_C3R(src.ptr(), src.roi(), src.step(), roi, src.ptr(), src.step(), {0, 0, 4, 4}, 1, 1, 100, 0, 1, buf.data()), lumStatusNoIntersectionWarn);
  EXPECT_EQ(lumiResizeSqrPixel_32f_C3R(src.ptr(), src.roi(), src.step(), roi, src.ptr(), src.step(), {0, 0, 4, 4}, 1, 1, 0, 0, 1, nullptr), lumStatusNullPtrErr);
}

TEST(Resize, Yuv422LumaAndChromaAsPlanes) {
  Rng rng = makeRng(9);
  GuardedImage<Lum8u> src(22, 9, 2);
  src.fillRandom(rng);
  std::vector<Lum8u> y(22 * 9), u(11 * 9), v(11 * 9);
  for (int r = 0; r < 9; ++r)
    for (int i = 0; i < 11; ++i) {
      y[r * 22 + 2 * i] = src.at(2 * i, r, 0), y[r * 22 + 2 * i + 1] = src.at(2 * i + 1, r, 0);
      u[r * 11 + i] = src.at(2 * i, r, 1), v[r * 11 + i] = src.at(2 * i + 1, r, 1);
    }
  for (int mode : {1, 2, 4}) {
    GuardedImage<Lum8u> dst(40, 20, 2);
    ASSERT_EQ(lumiResizeYUV422_8u_C2R(src.ptr(), src.roi(), src.step(), {0, 0, 22, 9}, dst.ptr(), dst.step(), dst.roi(), 1.7, 1.5, mode), lumStatusOk);
    ASSERT_TRUE(dst.guardsIntact());
    const int nx = 36, ny = 13;  // trunc(22 x 1.7) = 37, even: 36
    std::vector<Lum8u> ry(nx * ny), ru(18 * ny), rv(18 * ny);
    ASSERT_EQ(lumiResize_8u_C1R(y.data(), {22, 9}, 22, {0, 0, 22, 9}, ry.data(), nx, {nx, ny}, 1.7, 1.5, mode), lumStatusOk);
    ASSERT_EQ(lumiResize_8u_C1R(u.data(), {11, 9}, 11, {0, 0, 11, 9}, ru.data(), 18, {18, ny}, 1.7, 1.5, mode), lumStatusOk);
    ASSERT_EQ(lumiResize_8u_C1R(v.data(), {11, 9}, 11, {0, 0, 11, 9}, rv.data(), 18, {18, ny}, 1.7, 1.5, mode), lumStatusOk);
    for (int r = 0; r < ny; ++r)
      for (int i = 0; i < nx; ++i) {
        ASSERT_EQ(dst.at(i, r, 0), ry[r * nx + i]) << "luma " << i << "," << r;
        ASSERT_EQ(dst.at(i, r, 1), (i & 1 ? rv : ru)[r * 18 + i / 2]) << "chroma " << i << "," << r;
      }
  }
  EXPECT_EQ(lumiResizeYUV422_8u_C2R(src.ptr(), src.roi(), src.step(), {0, 0, 21, 9}, src.ptr(), src.step(), {4, 4}, 1, 1, 1), lumStatusSizeErr);
}

}  // namespace
