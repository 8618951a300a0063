// The warp engine shared by the affine, perspective and bilinear warps: validation, the corner
// quadrangle clipped to the destination ROI, one span of destination columns per row, the
// parallel walk over the rows, the samplers (nearest, linear, cubic) and the edge blending.
// A warp is one mapping object (destination pixel -> source position along a span) plus the
// forward corner quadrangle; everything else is common.
#pragma once

#include <cmath>
#include <cstring>

#include "core/frame.h"
#include "geometry/cubic.h"
#include "lumi/warp.h"

namespace lumi {
namespace warp {

enum Mode { kNearest = 1, kLinear = 2, kCubic = 4 };

struct Pt {
  double x, y;
};

// ---- images ---------------------------------------------------------------------------------
// The images of one call: one plane for the pixel-order layouts, three or four for planar ones
// (each plane then walked as C1 with the same positions).
template <class T>
struct Planes {
  const T* src[4] = {nullptr, nullptr, nullptr, nullptr};
  T* dst[4] = {nullptr, nullptr, nullptr, nullptr};
  int n = 1;
  bool nullArrays = false;  // planar: the array of plane pointers itself is null
};
template <class T>
inline Planes<T> packed(const T* s, T* d) {
  Planes<T> p;
  p.src[0] = s;
  p.dst[0] = d;
  p.nullArrays = s == nullptr || d == nullptr;
  return p;
}
template <class T, int N>
inline Planes<T> planar(const T* const* s, T* const* d) {
  Planes<T> p;
  p.n = N;
  p.nullArrays = s == nullptr || d == nullptr;
  if (!p.nullArrays)
    for (int i = 0; i < N; ++i) {
      p.src[i] = s[i];
      p.dst[i] = d[i];
    }
  return p;
}

// The whole source image as one plane: samplers may read any pixel of it.
template <class T>
struct Source {
  const T* p;
  int step, w, h;
  const T* row(int y) const { return rowAt(p, step, y); }
};

struct Frame {
  LumiSize srcSize;
  int srcStep;
  LumiRect srcRoi;
  int dstStep;
  LumiRect dstRoi;
  int interpolation;
};

inline bool badRect(LumiRect r) { return r.x < 0 || r.y < 0 || r.width < 1 || r.height < 1; }
inline int modeOf(int interpolation) { return interpolation & 0x7fffffff; }
inline bool smoothOf(int interpolation) { return (interpolation & lumSmoothEdge) != 0; }

// Null images, sizes, steps, the mode, then the plane pointers.
template <class T>
inline LumStatus checkFront(const Planes<T>& im, const Frame& f, bool checkMode = true) {
  if (im.nullArrays || (im.n == 1 && (im.src[0] == nullptr || im.dst[0] == nullptr)))
    return lumStatusNullPtrErr;
  if (badSize(f.srcSize) || badRect(f.srcRoi) || badRect(f.dstRoi)) return lumStatusSizeErr;
  if (badStep(f.srcStep, f.dstStep)) return lumStatusStepErr;
  const int m = modeOf(f.interpolation);
  if (checkMode && m != kNearest && m != kLinear && m != kCubic) return lumStatusInterpolationErr;
  for (int i = 0; i < im.n; ++i)
    if (im.src[i] == nullptr || im.dst[i] == nullptr) return lumStatusNullPtrErr;
  return lumStatusOk;
}

// The singularity test of a 2x2 linear part {a, b; c, d}.
inline bool singular(double a, double b, double c, double d) {
  const double p = a * d;
  if (std::fabs(p) > 1e-200) return !(std::fabs((p - b * c) / p) > 1e-12);
  return !(std::fabs(b * c) > 1e-12);
}

// The mode a source image allows, the ROI cut to the image: 29 when its origin lies outside,
// -57 when the cut ROI is one pixel wide or high.
inline LumStatus cutSource(const Frame& f, LumiRect* roi, int* mode) {
  int m = modeOf(f.interpolation);
  if (f.srcSize.width < 2 || f.srcSize.height < 2) m = kNearest;
  if (m == kCubic && (f.srcSize.width < 4 || f.srcSize.height < 4)) m = kLinear;
  *mode = m;
  if (f.srcRoi.x >= f.srcSize.width || f.srcRoi.y >= f.srcSize.height)
    return lumStatusNoIntersectionWarn;
  LumiRect r = f.srcRoi;
  if (r.width > f.srcSize.width - r.x) r.width = f.srcSize.width - r.x;
  if (r.height > f.srcSize.height - r.y) r.height = f.srcSize.height - r.y;
  *roi = r;
  if (r.width <= 1 || r.height <= 1) return lumStatusRectErr;
  return lumStatusOk;
}

// The corner test: every edge has a length, every corner turns the same way and none is
// collinear within a relative 1e-12; a coordinate that is not finite fails.
inline bool degenerate(const Pt q[4]) {
  for (int i = 0; i < 4; ++i)
    if (!std::isfinite(q[i].x) || !std::isfinite(q[i].y)) return true;
  int sign = 0;
  for (int i = 0; i < 4; ++i) {
    const Pt a = q[i], b = q[(i + 1) & 3], c = q[(i + 2) & 3];
    const double ax = b.x - a.x, ay = b.y - a.y, bx = c.x - b.x, by = c.y - b.y;
    const double cross = ax * by - ay * bx;
    if (!(std::fabs(cross) > 1e-12 * std::hypot(ax, ay) * std::hypot(bx, by))) return true;
    const int s = cross > 0 ? 1 : -1;
    if (sign != 0 && s != sign) return true;
    sign = s;
  }
  return false;
}
inline void toPts(const double q[4][2], Pt out[4]) {
  for (int i = 0; i < 4; ++i) out[i] = Pt{q[i][0], q[i][1]};
}

// ---- the clipped polygon and its spans ---------------------------------------------------
struct Poly {
  static constexpr int kMax = 16;
  Pt v[kMax];
  int n = 0;
};

inline void dropDuplicates(Poly& p) {
  int k = 0;
  for (int i = 0; i < p.n; ++i)
    if (k == 0 || p.v[i].x != p.v[k - 1].x || p.v[i].y != p.v[k - 1].y) p.v[k++] = p.v[i];
  while (k > 1 && p.v[k - 1].x == p.v[0].x && p.v[k - 1].y == p.v[0].y) --k;
  p.n = k;
}

// Keeps the part with s(pt) >= 0, where s is an affine function of the point; cut points on
// an axis line take the line's coordinate exactly.
template <class S, class Cut>
inline void clipBy(Poly& p, S side, Cut cut) {
  if (p.n == 0) return;
  Poly out;
  for (int i = 0; i < p.n && out.n < Poly::kMax - 1; ++i) {
    const Pt a = p.v[i], b = p.v[(i + 1) % p.n];
    const double sa = side(a), sb = side(b);
    if (sa >= 0) out.v[out.n++] = a;
    if ((sa >= 0) != (sb >= 0)) out.v[out.n++] = cut(a, b, sa / (sa - sb));
  }
  p = out;
  dropDuplicates(p);
}
inline void clipAxis(Poly& p, bool vertical, double v, bool keepAbove) {
  const double s = keepAbove ? 1.0 : -1.0;
  if (vertical)
    clipBy(
        p, [=](Pt a) { return s * (a.x - v); },
        [=](Pt a, Pt b, double) {
          return Pt{v, a.y + (v - a.x) * (b.y - a.y) / (b.x - a.x)};
        });
  else
    clipBy(
        p, [=](Pt a) { return s * (a.y - v); },
        [=](Pt a, Pt b, double) {
          return Pt{a.x + (v - a.y) * (b.x - a.x) / (b.y - a.y), v};
        });
}
// Clips to the convex quadrangle q (either orientation).
inline void clipQuad(Poly& p, const Pt q[4]) {
  double area = 0;
  for (int i = 0; i < 4; ++i) area += q[i].x * q[(i + 1) & 3].y - q[(i + 1) & 3].x * q[i].y;
  const double o = area > 0 ? 1.0 : -1.0;
  for (int i = 0; i < 4; ++i) {
    const Pt a = q[i], b = q[(i + 1) & 3];
    clipBy(
        p, [=](Pt c) { return o * ((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)); },
        [](Pt a0, Pt b0, double t) {
          return Pt{a0.x + t * (b0.x - a0.x), a0.y + t * (b0.y - a0.y)};
        });
  }
}

// The corner quadrangle clipped to the destination rectangle (top, bottom, left, right).
inline Poly clipToRect(const Pt q[4], LumiRect r) {
  Poly p;
  for (int i = 0; i < 4; ++i) p.v[i] = q[i];
  p.n = 4;
  const double x0 = r.x, y0 = r.y;
  const double x1 = static_cast<double>(r.x) + r.width - 1,
               y1 = static_cast<double>(r.y) + r.height - 1;
  clipAxis(p, false, y0, true);
  clipAxis(p, false, y1, false);
  clipAxis(p, true, x0, true);
  clipAxis(p, true, x1, false);
  return p;
}

constexpr double kEdgeTol = 1e-14;
// First and last whole coordinate of [lo, hi], each widened outward when within 1e-14 of the
// next whole number.
inline double firstWhole(double lo) {
  const double f = std::floor(lo);
  return lo - f <= kEdgeTol ? f : std::ceil(lo);
}
inline double lastWhole(double hi) {
  const double c = std::ceil(hi);
  return c - hi <= kEdgeTol ? c : std::floor(hi);
}

// Rows [y0, y1] the polygon covers inside the rectangle (empty when y0 > y1).
inline void coveredRows(const Poly& p, LumiRect r, int* y0, int* y1) {
  double lo = p.v[0].y, hi = p.v[0].y;
  for (int i = 1; i < p.n; ++i) {
    lo = std::fmin(lo, p.v[i].y);
    hi = std::fmax(hi, p.v[i].y);
  }
  const double a = std::fmax(firstWhole(lo), r.y);
  const double b = std::fmin(lastWhole(hi), static_cast<double>(r.y) + r.height - 1);
  *y0 = static_cast<int>(a);
  *y1 = a > b ? *y0 - 1 : static_cast<int>(b);
}

// The span of row y: the polygon's extent along the row (edges crossing it, vertices on it),
// whole columns inside, cut to the rectangle. False when the row holds no pixel.
inline bool spanAt(const Poly& p, int y, LumiRect r, int* xs, int* xe) {
  const double yy = y;
  double lo = HUGE_VAL, hi = -HUGE_VAL;
  for (int i = 0; i < p.n; ++i) {
    const Pt a = p.v[i], b = p.v[(i + 1) % p.n];
    if (a.y == yy) {
      lo = std::fmin(lo, a.x);
      hi = std::fmax(hi, a.x);
    }
    if (a.y == b.y) continue;  // horizontal edges add nothing but their vertices
    if ((yy < a.y && yy < b.y) || (yy > a.y && yy > b.y)) continue;
    const double x = a.x + (yy - a.y) * (b.x - a.x) / (b.y - a.y);
    lo = std::fmin(lo, x);
    hi = std::fmax(hi, x);
  }
  if (!(lo <= hi)) return false;
  const double a = std::fmax(firstWhole(lo), r.x);
  const double b = std::fmin(lastWhole(hi), static_cast<double>(r.x) + r.width - 1);
  if (a > b) return false;
  *xs = static_cast<int>(a);
  *xe = static_cast<int>(b);
  return true;
}

// ---- samplers (plain; see warp_kernels for the vector ones) ---------------------------------
constexpr int kOne = 16384;  // 1.0 in the 14-bit weights of the integer linear kernel

// Column (or row) position clamped to [0, n - 1]; NaN goes to 0.
inline double clampPos(double v, int n) {
  if (!(v >= 0)) return 0;
  const double hi = n - 1;
  return v > hi ? hi : v;
}

template <class T, int kCh, int kUse>
inline void nearestPixel(const Source<T>& s, double x, double y, T* d) {
  const int ix = static_cast<int>(clampPos(x, s.w) + 0.5);
  const int iy = static_cast<int>(clampPos(y, s.h) + 0.5);
  const T* p = s.row(iy > s.h - 1 ? s.h - 1 : iy) + elemsOf(ix > s.w - 1 ? s.w - 1 : ix, kCh);
  for (int c = 0; c < kUse; ++c) d[c] = p[c];
}

// Tap index (at most n - 2, so the right tap stays inside) and 14-bit weight of a position.
inline int linearTap(double v, int n, int* w) {
  v = clampPos(v, n);
  int i = static_cast<int>(v);
  if (i > n - 2) i = n - 2;
  *w = static_cast<int>((v - i) * kOne + 0.5);  // v - i in [0, 1]: rounds half up
  return i;
}
inline int linearTapF(double v, int n, float* f) {
  v = clampPos(v, n);
  int i = static_cast<int>(v);
  if (i > n - 2) i = n - 2;
  *f = static_cast<float>(v - i);
  return i;
}

template <class T, int kCh, int kUse>
inline void linearPixel(const Source<T>& s, double x, double y, T* d) {
  if constexpr (std::is_floating_point_v<T>) {
    float fx, fy;
    const int ix = linearTapF(x, s.w, &fx), iy = linearTapF(y, s.h, &fy);
    const T* p0 = s.row(iy) + elemsOf(ix, kCh);
    const T* p1 = s.row(iy + 1) + elemsOf(ix, kCh);
    const float gx = 1.0f - fx, gy = 1.0f - fy;
    for (int c = 0; c < kUse; ++c) {
      const float h0 = gx * p0[c] + fx * p0[c + kCh];
      const float h1 = gx * p1[c] + fx * p1[c + kCh];
      d[c] = gy * h0 + fy * h1;
    }
  } else {
    int wx, wy;
    const int ix = linearTap(x, s.w, &wx), iy = linearTap(y, s.h, &wy);
    const T* p0 = s.row(iy) + elemsOf(ix, kCh);
    const T* p1 = s.row(iy + 1) + elemsOf(ix, kCh);
    using Acc = std::conditional_t<sizeof(T) == 1, int32_t, int64_t>;  // 16u rows pass 2^22
    for (int c = 0; c < kUse; ++c) {
      const Acc h0 =
          (static_cast<Acc>(kOne - wx) * p0[c] + static_cast<Acc>(wx) * p0[c + kCh]) >> 8;
      const Acc h1 =
          (static_cast<Acc>(kOne - wx) * p1[c] + static_cast<Acc>(wx) * p1[c + kCh]) >> 8;
      d[c] = static_cast<T>((h0 * (kOne - wy) + h1 * wy + (1 << 19)) >> 20);
    }
  }
}

// Cubic taps: base b (taps b - 1 .. b + 2, inside [0, n - 1]) and the position t relative to b,
// kept inside the image as the resize engine keeps them (n >= 4).
inline int cubicTap(double v, int n, float* t) {
  v = clampPos(v, n);
  int b = static_cast<int>(v);
  float f = static_cast<float>(v - b);
  if (b == 0) {
    b = 1;
    f -= 1.0f;
  } else if (b == n - 2) {
    b = n - 3;
    f += 1.0f;
  } else if (b == n - 1) {
    b = n - 3;
    f = 2.0f;
  }
  *t = f;
  return b;
}

template <class T>
inline T roundCubic(float v) {
  if constexpr (std::is_floating_point_v<T>) {
    return v;
  } else {
    const float r = v + 0.5000001f;
    if (!(r >= 0.0f)) return 0;  // also NaN
    if (r >= static_cast<float>(std::numeric_limits<T>::max()))
      return std::numeric_limits<T>::max();
    return static_cast<T>(static_cast<int>(r));
  }
}

template <class T, int kCh, int kUse>
inline void cubicPixel(const Source<T>& s, double x, double y, T* d) {
  float tx, ty;
  const int bx = cubicTap(x, s.w, &tx), by = cubicTap(y, s.h, &ty);
  const auto kx = geometry::cubicCoeffs(tx), ky = geometry::cubicCoeffs(ty);
  const T* r[4];
  for (int j = 0; j < 4; ++j) r[j] = s.row(by - 1 + j) + elemsOf(bx - 1, kCh);
  for (int c = 0; c < kUse; ++c) {
    float h[4];
    for (int j = 0; j < 4; ++j)
      h[j] = geometry::cubicNewton<float>(r[j][c], r[j][c + kCh], r[j][c + 2 * kCh],
                                          r[j][c + 3 * kCh], kx);
    d[c] = roundCubic<T>(geometry::cubicNewton(h[0], h[1], h[2], h[3], ky));
  }
}

// How a span kernel gets its source positions: x0 + k dx, y0 + k dy (affine maps and the
// bilinear Back map, along a row); ((x0 + k dx)/(w0 + k dw), (y0 + k dy)/(w0 + k dw))
// (perspective); or read from X, Y (the bilinear inverse, which solves per pixel).
enum PosKind { kPosLinear = 0, kPosProjective = 1, kPosArrays = 2 };
template <class T>
struct SpanArgs {
  const T* src;
  int step, w, h;  // the whole source image
  double x0, y0, dx, dy, w0, dw;
  const double* X;
  const double* Y;
};
template <class T>
using SpanFn = void (*)(const SpanArgs<T>& a, T* d, int n);

template <int kPos, class T>
inline void positionAt(const SpanArgs<T>& a, int k, double* x, double* y) {
  if constexpr (kPos == kPosArrays) {
    *x = a.X[k];
    *y = a.Y[k];
  } else {
    const double kk = k;
    *x = a.x0 + kk * a.dx;
    *y = a.y0 + kk * a.dy;
    if constexpr (kPos == kPosProjective) {
      const double den = a.w0 + kk * a.dw;
      *x = *x / den;
      *y = *y / den;
    }
  }
}

// The plain twin of the vector span kernels (warp_kernels.cpp): the same positions in the same
// order, the pixel functions above.
template <class T, int kCh, int kUse, int kMode, int kPos>
void spanScalar(const SpanArgs<T>& a, T* d, int n) {
  const Source<T> s{a.src, a.step, a.w, a.h};
  for (int k = 0; k < n; ++k, d += kCh) {
    double x, y;
    positionAt<kPos>(a, k, &x, &y);
    if constexpr (kMode == kNearest) nearestPixel<T, kCh, kUse>(s, x, y, d);
    if constexpr (kMode == kLinear) linearPixel<T, kCh, kUse>(s, x, y, d);
    if constexpr (kMode == kCubic) cubicPixel<T, kCh, kUse>(s, x, y, d);
  }
}
// The span kernel for T, layout L, the mode and the position source (warp_kernels.cpp).
template <class T, class L>
SpanFn<T> pickSpan(int mode, int pos);

// ---- edge blending -------------------------------------------------------------------------
// A pixel whose source position lies d < 0.5 inside the source ROI keeps (0.5 + d) of the
// warped value and the rest of what the destination held.
template <class T, int kCh, int kUse>
void blendSpan(T* d, const T* old, int n, const double* X, const double* Y, const LumiRect& roi) {
  const double x0 = roi.x, y0 = roi.y;
  const double x1 = static_cast<double>(roi.x) + roi.width - 1;
  const double y1 = static_cast<double>(roi.y) + roi.height - 1;
  for (int k = 0; k < n; ++k, d += kCh, old += kCh) {
    const double dist = std::fmin(std::fmin(X[k] - x0, x1 - X[k]), std::fmin(Y[k] - y0, y1 - Y[k]));
    if (!(dist < 0.5)) continue;
    const double a = dist <= -0.5 ? 0.0 : 0.5 + dist;
    for (int c = 0; c < kUse; ++c) {
      const double v = old[c] + (static_cast<double>(d[c]) - old[c]) * a;
      if constexpr (std::is_floating_point_v<T>)
        d[c] = static_cast<T>(v);
      else
        d[c] = saturate<T>(std::floor(v + 0.5));
    }
  }
}

// ---- the walk -------------------------------------------------------------------------------
// Destination pixels x tap count at which the rows are split among threads.
constexpr long long kForkWork = 1 << 16;
// Positions restart (computed from x and y directly) at every multiple of kTileCols columns.
constexpr int kTileCols = 128, kTileRows = 16;

// Walks the spans of poly and samples every plane. Map provides kPos, the positions of a run
// for the kernels (start: the SpanArgs fields of the run from (xs, y)) and as arrays (span: for
// the edge blending, and for kPosArrays the only form).
template <class T, class L, class Map>
LumStatus walk(const Planes<T>& im, const Frame& f, const LumiRect& roi, int mode, bool smooth,
               const Poly& poly, const Map& map) {
  int ry0, ry1;
  coveredRows(poly, f.dstRoi, &ry0, &ry1);
  if (ry0 > ry1) return lumStatusOk;
  const int rows = ry1 - ry0 + 1;
  const int width = f.dstRoi.width;
  const long long taps = mode == kNearest ? 1 : mode == kLinear ? 4 : 16;
  const bool parallel = forkByWork(LumiSize{width, rows}, taps * im.n, kForkWork);
  const std::size_t posBytes = sizeof(double) * 2 * static_cast<std::size_t>(width);
  const std::size_t oldBytes =
      smooth ? static_cast<std::size_t>(bytesOf(width, L::kCh, sizeof(T))) : 0;
  const SpanFn<T> fn = pickSpan<T, L>(mode, Map::kPos);
  auto body = [&](int b0, int b1, Lum8u* scratch) {
    NearestRounding rounding;  // per thread
    double* X = reinterpret_cast<double*>(scratch);
    double* Y = scratch ? X + width : nullptr;
    T* old = scratch ? reinterpret_cast<T*>(scratch + posBytes) : nullptr;
    SpanArgs<T> a{nullptr, f.srcStep, f.srcSize.width, f.srcSize.height, 0, 0, 0, 0, 0, 0, X, Y};
    // one run of n pixels of row y from column xs
    auto run = [&](int y, int xs, int n) {
      if (Map::kPos == kPosArrays || smooth) map.span(y, xs, n, X, Y);
      if constexpr (Map::kPos != kPosArrays) map.start(y, xs, &a);
      for (int p = 0; p < im.n; ++p) {
        a.src = im.src[p];
        T* d = rowAt(im.dst[p], f.dstStep, y) + elemsOf(xs, L::kCh);
        if (smooth) std::memcpy(old, d, static_cast<std::size_t>(bytesOf(n, L::kCh, sizeof(T))));
        fn(a, d, n);
        if (smooth) blendSpan<T, L::kCh, L::kUse>(d, old, n, X, Y, roi);
      }
    };
    // Tiles of kTileRows rows by kTileCols columns (columns counted from 0, so a pixel's run
    // does not depend on the band): the source pixels a tile reads stay in the first-level
    // cache.
    int sx[kTileRows], ex[kTileRows];
    for (int g0 = b0; g0 < b1; g0 += kTileRows) {
      const int g1 = g0 + kTileRows < b1 ? g0 + kTileRows : b1;
      int lo = INT_MAX, hi = INT_MIN;
      for (int r = g0; r < g1; ++r) {
        if (!spanAt(poly, ry0 + r, f.dstRoi, &sx[r - g0], &ex[r - g0])) {
          sx[r - g0] = 1, ex[r - g0] = 0;
          continue;
        }
        lo = sx[r - g0] < lo ? sx[r - g0] : lo;
        hi = ex[r - g0] > hi ? ex[r - g0] : hi;
      }
      if (lo > hi) continue;
      for (long long c = lo / kTileCols * kTileCols; c <= hi; c += kTileCols)
        for (int r = g0; r < g1; ++r) {
          const int xs = sx[r - g0] > c ? sx[r - g0] : static_cast<int>(c);
          const int xe =
              ex[r - g0] < c + kTileCols - 1 ? ex[r - g0] : static_cast<int>(c + kTileCols - 1);
          if (xs <= xe) run(ry0 + r, xs, xe - xs + 1);
        }
    }
  };
  if (Map::kPos != kPosArrays && !smooth) {  // the kernels make their own positions: no scratch
    forRows(rows, parallel, [&](int b0, int b1) { body(b0, b1, nullptr); });
    return lumStatusOk;
  }
  return forRowsWithScratch(rows, parallel, posBytes + oldBytes, body);
}

// The common tail after the coefficient test: the source ROI cut (29, -57), the forward corner
// quadrangle (quadStatus: nonzero when it is degenerate), clipping to the destination ROI and
// to an optional destination quadrangle (30 when nothing is left), the walk.
template <class T, class L, class Map, class QuadOf>
LumStatus warpTail(const Planes<T>& im, const Frame& f, const Map& map, QuadOf&& quadOf,
                   const Pt* dstQuad = nullptr) {
  NearestRounding rounding;  // positions and float kernels round to nearest in any caller's mode
  LumiRect roi;
  int mode;
  LumStatus st = cutSource(f, &roi, &mode);
  if (st != lumStatusOk) return st;
  Pt q[4];
  if (quadOf(roi, q) != lumStatusOk || degenerate(q)) return lumStatusCoeffErr;
  Poly poly = clipToRect(q, f.dstRoi);
  if (dstQuad) clipQuad(poly, dstQuad);
  if (poly.n == 0) return lumStatusQuadOutsideWarn;
  return walk<T, L>(im, f, roi, mode, smoothOf(f.interpolation), poly, map);
}

// ---- mappings (destination pixel -> source position) -----------------------------------------
// span() of a mapping whose positions along a row follow from start() (M::start, M::kPos).
template <class M>
struct StepMap {
  void span(int y, int xs, int n, double* X, double* Y) const {
    SpanArgs<void> s{};
    static_cast<const M*>(this)->start(y, xs, &s);
    for (int k = 0; k < n; ++k) positionAt<M::kPos>(s, k, &X[k], &Y[k]);
  }
};

struct AffineMap : StepMap<AffineMap> {
  static constexpr int kPos = kPosLinear;
  double a[2][3];
  template <class T>
  void start(int y, int xs, SpanArgs<T>* s) const {
    s->x0 = a[0][0] * xs + a[0][1] * y + a[0][2];
    s->y0 = a[1][0] * xs + a[1][1] * y + a[1][2];
    s->dx = a[0][0];
    s->dy = a[1][0];
  }
};

struct PerspectiveMap : StepMap<PerspectiveMap> {
  static constexpr int kPos = kPosProjective;
  double a[3][3];
  template <class T>
  void start(int y, int xs, SpanArgs<T>* s) const {
    s->x0 = a[0][0] * xs + a[0][1] * y + a[0][2];
    s->y0 = a[1][0] * xs + a[1][1] * y + a[1][2];
    s->w0 = a[2][0] * xs + a[2][1] * y + a[2][2];
    s->dx = a[0][0];
    s->dy = a[1][0];
    s->dw = a[2][0];
  }
};

// Affine inverse of {a, b, c; d, e, f}; false when singular.
inline bool invertAffine(const double m[2][3], double r[2][3]) {
  const double det = m[0][0] * m[1][1] - m[0][1] * m[1][0];
  if (det == 0 || !std::isfinite(det)) return false;
  r[0][0] = m[1][1] / det;
  r[0][1] = -m[0][1] / det;
  r[1][0] = -m[1][0] / det;
  r[1][1] = m[0][0] / det;
  r[0][2] = -(r[0][0] * m[0][2] + r[0][1] * m[1][2]);
  r[1][2] = -(r[1][0] * m[0][2] + r[1][1] * m[1][2]);
  return true;
}

// Inverse of a 3x3 projective matrix (up to scale: the adjugate divided by the determinant).
inline bool invert3(const double m[3][3], double r[3][3]) {
  const double c00 = m[1][1] * m[2][2] - m[1][2] * m[2][1];
  const double c01 = m[1][2] * m[2][0] - m[1][0] * m[2][2];
  const double c02 = m[1][0] * m[2][1] - m[1][1] * m[2][0];
  const double det = m[0][0] * c00 + m[0][1] * c01 + m[0][2] * c02;
  if (det == 0 || !std::isfinite(det)) return false;
  r[0][0] = c00 / det;
  r[1][0] = c01 / det;
  r[2][0] = c02 / det;
  r[0][1] = (m[0][2] * m[2][1] - m[0][1] * m[2][2]) / det;
  r[1][1] = (m[0][0] * m[2][2] - m[0][2] * m[2][0]) / det;
  r[2][1] = (m[0][1] * m[2][0] - m[0][0] * m[2][1]) / det;
  r[0][2] = (m[0][1] * m[1][2] - m[0][2] * m[1][1]) / det;
  r[1][2] = (m[0][2] * m[1][0] - m[0][0] * m[1][2]) / det;
  r[2][2] = (m[0][0] * m[1][1] - m[0][1] * m[1][0]) / det;
  return true;
}

inline Frame frameOf(LumiSize srcSize, int srcStep, LumiRect srcRoi, int dstStep, LumiRect dstRoi,
                     int interpolation) {
  return Frame{srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation};
}

// Coefficients given either way round: map (destination to source) and fwd (source to
// destination), one a copy of c and the other its inverse. False when c has no inverse.
template <int R, class Invert>
inline bool bothWays(const double c[R][3], bool back, double map[R][3], double fwd[R][3],
                     Invert invert) {
  if (back) {
    std::memcpy(map, c, sizeof(double[R][3]));
    return invert(c, fwd);
  }
  std::memcpy(fwd, c, sizeof(double[R][3]));
  return invert(c, map);
}

// The image of roi by one of the lumiGet*Quad queries, as points.
template <class Get, class C>
inline LumStatus quadBy(Get get, LumiRect roi, const C& c, Pt q[4]) {
  double qq[4][2];
  const LumStatus s = get(roi, qq, c);
  toPts(qq, q);
  return s;
}

// The front of the quadrangle warps: both quadrangles given, the images and ROIs sound, and
// neither quadrangle degenerate; s and d receive their corners.
template <class T>
inline LumStatus checkQuads(const Planes<T>& im, const Frame& f, const double sq[4][2],
                            const double dq[4][2], Pt s[4], Pt d[4]) {
  if (sq == nullptr || dq == nullptr) return lumStatusNullPtrErr;
  const LumStatus st = checkFront(im, f);
  if (st != lumStatusOk) return st;
  toPts(sq, s);
  toPts(dq, d);
  return degenerate(s) || degenerate(d) ? lumStatusQuadErr : lumStatusOk;
}

}  // namespace warp
}  // namespace lumi

// The export stamps of the warps, one per signature: IMPL<T, L> takes the images, the frame and
// the rest of the arguments in order. The _P forms take N planes and run IMPL<T, C1>.
#define LUMI_WARP_COEFFS(NAME, IMPL, T, L, ROWS, COLS)                                            \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi, T* pDst, \
                          int dstStep, LumiRect dstRoi, const double coeffs[ROWS][COLS],          \
                          int interpolation) {                                                    \
    return IMPL<T, L>(packed(pSrc, pDst),                                                         \
                      frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation), coeffs); \
  }
#define LUMI_WARP_COEFFS_P(NAME, IMPL, T, N, ROWS, COLS)                                          \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          T* const pDst[N], int dstStep, LumiRect dstRoi,                         \
                          const double coeffs[ROWS][COLS], int interpolation) {                   \
    return IMPL<T, C1>(planar<T, N>(pSrc, pDst),                                                  \
                       frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),         \
                       coeffs);                                                                   \
  }
#define LUMI_WARP_QUAD(NAME, IMPL, T, L)                                                       \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,       \
                          const double srcQuad[4][2], T* pDst, int dstStep, LumiRect dstRoi,   \
                          const double dstQuad[4][2], int interpolation) {                     \
    return IMPL<T, L>(packed(pSrc, pDst),                                                      \
                      frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),       \
                      srcQuad, dstQuad);                                                       \
  }
#define LUMI_WARP_QUAD_P(NAME, IMPL, T, N)                                                        \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi, \
                          const double srcQuad[4][2], T* const pDst[N], int dstStep,              \
                          LumiRect dstRoi, const double dstQuad[4][2], int interpolation) {       \
    return IMPL<T, C1>(planar<T, N>(pSrc, pDst),                                                  \
                       frameOf(srcSize, srcStep, srcRoi, dstStep, dstRoi, interpolation),         \
                       srcQuad, dstQuad);                                                         \
  }
