// Span kernels of the warps: vector versions of the hot samplers (8u linear in every layout,
// nearest C1/C4/AC4 and cubic C1; 32f linear in every layout and nearest C1) and the chooser.
// The vector kernels compute the same double positions, taps and weights as the plain twin
// (spanScalar) and then the same integer or single-precision operations in the same order, so
// their results equal the twin's bit for bit, floats included (no fused multiply-adds).
//
// Source pixels are fetched four bytes at a time. A fetch never reads outside the source image:
// where four bytes from a pixel would pass the image's end it reads the four bytes ending at
// the pixel instead (the row above or the padding before it are still inside the image), which
// needs a source at least 4 pixels wide and 2 high; byte offsets must fit 31 bits. Other images
// take the twin.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/warp_kernels.cpp"
// clang-format off
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "geometry/warp_engine.h"
// clang-format on

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

using warp::SpanArgs;

// Source positions of pixels k .. k + N - 1 of the span (positionAt, lane by lane; kk holds
// k + lane).
template <int kPos, class D>
HWY_INLINE void positions(D d, const SpanArgs<void>& a, int k, hn::Vec<D> kk, hn::Vec<D>* x,
                          hn::Vec<D>* y) {
  if constexpr (kPos == warp::kPosArrays) {
    *x = hn::LoadU(d, a.X + k);
    *y = hn::LoadU(d, a.Y + k);
  } else {
    *x = hn::Add(hn::Set(d, a.x0), hn::Mul(kk, hn::Set(d, a.dx)));
    *y = hn::Add(hn::Set(d, a.y0), hn::Mul(kk, hn::Set(d, a.dy)));
    if constexpr (kPos == warp::kPosProjective) {
      const auto den = hn::Add(hn::Set(d, a.w0), hn::Mul(kk, hn::Set(d, a.dw)));
      *x = hn::Div(*x, den);
      *y = hn::Div(*y, den);
    }
  }
}

// clampPos: [0, n - 1], NaN to 0.
template <class D>
HWY_INLINE hn::Vec<D> clampPos(D d, hn::Vec<D> v, int n) {
  const auto zero = hn::Zero(d);
  return hn::Min(hn::IfThenElse(hn::Ge(v, zero), v, zero), hn::Set(d, static_cast<double>(n - 1)));
}

// linearTap: tap index (at most n - 2) as double and the clamped position.
template <class D>
HWY_INLINE hn::Vec<D> linearIndex(D d, hn::Vec<D>* v, int n, bool inside) {
  if (inside) return hn::Floor(*v);  // at most n - 1 - 1e-6: the floor is at most n - 2
  *v = clampPos(d, *v, n);
  return hn::Min(hn::Floor(*v), hn::Set(d, static_cast<double>(n - 2)));
}

template <class DI>
HWY_INLINE hn::Vec<DI> byteOf(DI di, hn::Vec<DI> g, int c) {
  const hn::RebindToUnsigned<DI> du;
  return hn::BitCast(di,
                     hn::And(hn::ShiftRightSame(hn::BitCast(du, g), 8 * c), hn::Set(du, 0xFFu)));
}

// 8u linear: two-stage 14-bit interpolation of channel bytes, as linearPixel.
template <class DI>
HWY_INLINE hn::Vec<DI> lerp8(DI di, hn::Vec<DI> p00, hn::Vec<DI> p01, hn::Vec<DI> p10,
                             hn::Vec<DI> p11, hn::Vec<DI> wx, hn::Vec<DI> wx0, hn::Vec<DI> wy,
                             hn::Vec<DI> wy0) {
  const auto h0 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, p00), hn::Mul(wx, p01)));
  const auto h1 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, p10), hn::Mul(wx, p11)));
  return hn::ShiftRight<20>(
      hn::Add(hn::Add(hn::Mul(h0, wy0), hn::Mul(h1, wy)), hn::Set(di, 1 << 19)));
}

// Four bytes at base + off[j] per lane, by scalar loads: on the processors we tune for these
// beat the gather instructions (which stall on every lane).
template <class D, class VO>
HWY_INLINE hn::Vec<D> gather(D d, const void* base, VO off) {
  using V = hn::TFromD<D>;
  const hn::Rebind<int32_t, D> di;
  HWY_ALIGN int32_t o[hn::MaxLanes(di)];
  HWY_ALIGN V v[hn::MaxLanes(d)];
  hn::Store(off, di, o);
  const auto* b = static_cast<const uint8_t*>(base);
  for (size_t j = 0; j < hn::Lanes(d); ++j) std::memcpy(&v[j], b + o[j], sizeof(V));
  return hn::Load(d, v);
}

// 8u C1 taps of a group whose positions advance monotonically (linear runs), so that its first
// and last lanes bound its columns and rows: when the columns lie within 16 of each other and
// the rows within 4, the rows are loaded once as 16-byte blocks and every lane picks its bytes
// (kPair: the pixel and its right neighbour, in bytes 0 and 1). top takes row iy, bottom row
// iy + 1. False when the group is too spread or a block would leave the image; the caller then
// loads pixel by pixel.
template <bool kPair, class DI>
HWY_INLINE bool blockTaps(DI di, const uint8_t* src, int step, int w, int h, hn::Vec<DI> ix,
                          hn::Vec<DI> iy, hn::Vec<DI>* top, hn::Vec<DI>* bottom) {
  const hn::Repartition<uint8_t, DI> d8;
  if constexpr (hn::MaxLanes(d8) < 16) {
    return false;
  } else {
    const size_t last = hn::Lanes(di) - 1;
    int x0 = hn::GetLane(ix), x1 = hn::ExtractLane(ix, last);
    int y0 = hn::GetLane(iy), y1 = hn::ExtractLane(iy, last);
    if (x0 > x1) std::swap(x0, x1);
    if (y0 > y1) std::swap(y0, y1);
    const int rows = y1 - y0 + (kPair ? 2 : 1);
    if (x1 - x0 > (kPair ? 14 : 15) || rows > 4 || x0 + 16 > w || y0 + rows > h) return false;
    const uint8_t* p = src + static_cast<std::ptrdiff_t>(y0) * step + x0;
    const hn::Vec<DI> b = hn::Sub(ix, hn::Set(di, x0));
    const hn::Vec<DI> idx = kPair ? hn::Or(hn::Or(b, hn::ShiftLeft<8>(hn::Add(b, hn::Set(di, 1)))),
                                           hn::Set(di, static_cast<int32_t>(0x80800000u)))
                                  : hn::Or(b, hn::Set(di, static_cast<int32_t>(0x80808000u)));
    const auto i8 = hn::BitCast(d8, idx);
    hn::Vec<DI> g[4];
    for (int r = 0; r < rows; ++r, p += step)
      g[r] = hn::BitCast(di, hn::TableLookupBytesOr0(hn::LoadDup128(d8, p), i8));
    const hn::Vec<DI> dy = hn::Sub(iy, hn::Set(di, y0));
    hn::Vec<DI> t = g[0];
    for (int r = 1; r < rows - (kPair ? 1 : 0); ++r)
      t = hn::IfThenElse(hn::Eq(dy, hn::Set(di, r)), g[r], t);
    *top = t;
    if constexpr (kPair) {
      hn::Vec<DI> u = g[1];
      for (int r = 2; r < rows; ++r) u = hn::IfThenElse(hn::Eq(dy, hn::Set(di, r - 1)), g[r], u);
      *bottom = u;
    }
    return true;
  }
}

template <class T, int kCh, int kUse, int kMode, int kPos>
void warpSpan(const SpanArgs<T>& args, T* HWY_RESTRICT d, int n) {
  const SpanArgs<T> a = args;  // a local copy: the stores below cannot alias it
  const hn::ScalableTag<double> d64;
  const hn::Rebind<int32_t, decltype(d64)> di;
  const hn::Rebind<float, decltype(d64)> df;
  const hn::Rebind<uint8_t, decltype(d64)> du8;
  using VD = hn::Vec<decltype(d64)>;
  using VI = hn::Vec<decltype(di)>;
  const int N = static_cast<int>(hn::Lanes(d64));
  const long long last = static_cast<long long>(a.step) * (a.h - 1) +
                         static_cast<long long>(a.w) * kCh * static_cast<long long>(sizeof(T));
  int k = 0;
  if (a.w >= 4 && a.h >= 2 && last < (1LL << 31) - 64) {
    const SpanArgs<void> av{a.src, a.step, a.w, a.h, a.x0, a.y0, a.dx, a.dy, a.w0, a.dw, a.X, a.Y};
    const auto* base = reinterpret_cast<const int32_t*>(a.src);
    const auto* b8 = reinterpret_cast<const uint8_t*>(a.src);
    const VI step = hn::Set(di, a.step);
    const VI chBytes = hn::Set(di, kCh * static_cast<int>(sizeof(T)));
    // Runs whose ends lie inside the image (positions along a run are monotonic) skip the
    // clamping, which would leave every position as it is.
    bool inside = false;
    if constexpr (kPos != warp::kPosArrays) {
      double xa, ya, xb, yb;
      warp::positionAt<kPos>(a, 0, &xa, &ya);
      warp::positionAt<kPos>(a, n - 1, &xb, &yb);
      const double m = 1e-6;
      inside = std::fmin(xa, xb) >= m && std::fmax(xa, xb) <= a.w - 1 - m &&
               std::fmin(ya, yb) >= m && std::fmax(ya, yb) <= a.h - 1 - m;
    }
    VD kk = hn::Iota(d64, 0.0);  // k + lane, exact
    const VD stepN = hn::Set(d64, static_cast<double>(N));
    for (; k + N <= n; k += N, kk = hn::Add(kk, stepN)) {
      VD x, y;
      positions<kPos>(d64, av, k, kk, &x, &y);
      T* out = d + static_cast<std::ptrdiff_t>(k) * kCh;
      if constexpr (kMode == warp::kLinear) {
        const VD xi = linearIndex(d64, &x, a.w, inside), yi = linearIndex(d64, &y, a.h, inside);
        const VI ix = hn::DemoteTo(di, xi), iy = hn::DemoteTo(di, yi);
        const VI off = hn::Add(hn::Mul(iy, step), hn::Mul(ix, chBytes));
        if constexpr (sizeof(T) == 1) {
          const VD one = hn::Set(d64, 16384.0), half = hn::Set(d64, 0.5);
          const VI wx = hn::DemoteTo(di, hn::Add(hn::Mul(hn::Sub(x, xi), one), half));
          const VI wy = hn::DemoteTo(di, hn::Add(hn::Mul(hn::Sub(y, yi), one), half));
          const VI wx0 = hn::Sub(hn::Set(di, 16384), wx), wy0 = hn::Sub(hn::Set(di, 16384), wy);
          if constexpr (kCh == 1) {
            VI t, u, r;
            if (kPos == warp::kPosLinear &&
                blockTaps<true>(di, b8, a.step, a.w, a.h, ix, iy, &t, &u)) {
              r = lerp8(di, byteOf(di, t, 0), byteOf(di, t, 1), byteOf(di, u, 0), byteOf(di, u, 1),
                        wx, wx0, wy, wy0);
            } else {
              // p00 p01 from the four bytes at the pixel; p10 p11 from the four ending after p11
              const VI g0 = gather(di, base, off);
              const VI g1 = gather(di, base, hn::Sub(hn::Add(off, step), hn::Set(di, 2)));
              r = lerp8(di, byteOf(di, g0, 0), byteOf(di, g0, 1), byteOf(di, g1, 2),
                        byteOf(di, g1, 3), wx, wx0, wy, wy0);
            }
            hn::StoreU(hn::DemoteTo(du8, r), du8, out);
          } else {
            // the right-hand pixels: C4 exactly, C3 from one byte before (shifted out)
            const int rb = kCh == 4 ? 4 : 2, sh = kCh == 4 ? 0 : 1;
            const VI o1 = hn::Add(off, step);
            const VI g00 = gather(di, base, off);
            const VI g01 = gather(di, base, hn::Add(off, hn::Set(di, rb)));
            const VI g10 = gather(di, base, o1);
            const VI g11 = gather(di, base, hn::Add(o1, hn::Set(di, rb)));
            VI r = hn::Zero(di);
            for (int c = 0; c < kUse; ++c) {
              const VI v = lerp8(di, byteOf(di, g00, c), byteOf(di, g01, c + sh),
                                 byteOf(di, g10, c), byteOf(di, g11, c + sh), wx, wx0, wy, wy0);
              r = hn::Or(r, hn::ShiftLeftSame(v, 8 * c));
            }
            if constexpr (kCh == 4) {
              if constexpr (kUse == 3) {
                const VI old = hn::LoadU(di, reinterpret_cast<const int32_t*>(out));
                r = hn::Or(r, hn::And(old, hn::Set(di, static_cast<int32_t>(0xFF000000u))));
              }
              hn::StoreU(r, di, reinterpret_cast<int32_t*>(out));
            } else {
              HWY_ALIGN int32_t buf[hn::MaxLanes(di)];
              hn::Store(r, di, buf);
              for (int j = 0; j < N; ++j) std::memcpy(out + 3 * j, &buf[j], 3);
            }
          }
        } else {  // 32f
          const auto fx = hn::DemoteTo(df, hn::Sub(x, xi)), fy = hn::DemoteTo(df, hn::Sub(y, yi));
          const auto gx = hn::Sub(hn::Set(df, 1.0f), fx), gy = hn::Sub(hn::Set(df, 1.0f), fy);
          const auto* fb = reinterpret_cast<const float*>(a.src);
          const VI o1 = hn::Add(off, step);
          hn::Vec<decltype(df)> res[4];
          for (int c = 0; c < kUse; ++c) {
            const VI oc = hn::Set(di, 4 * c), ocr = hn::Set(di, 4 * (c + kCh));
            const auto p00 = gather(df, fb, hn::Add(off, oc));
            const auto p01 = gather(df, fb, hn::Add(off, ocr));
            const auto p10 = gather(df, fb, hn::Add(o1, oc));
            const auto p11 = gather(df, fb, hn::Add(o1, ocr));
            const auto h0 = hn::Add(hn::Mul(gx, p00), hn::Mul(fx, p01));
            const auto h1 = hn::Add(hn::Mul(gx, p10), hn::Mul(fx, p11));
            res[c] = hn::Add(hn::Mul(gy, h0), hn::Mul(fy, h1));
          }
          if constexpr (kCh == 1) {
            hn::StoreU(res[0], df, out);
          } else {
            HWY_ALIGN float buf[4][hn::MaxLanes(df)];
            for (int c = 0; c < kUse; ++c) hn::Store(res[c], df, buf[c]);
            for (int j = 0; j < N; ++j)
              for (int c = 0; c < kUse; ++c) out[kCh * j + c] = buf[c][j];
          }
        }
      } else if constexpr (kMode == warp::kNearest) {
        const VD half = hn::Set(d64, 0.5);
        VI ix, iy;
        if (inside) {  // at most n - 1 - 1e-6: x + 0.5 truncates to at most n - 1
          ix = hn::DemoteTo(di, hn::Add(x, half));
          iy = hn::DemoteTo(di, hn::Add(y, half));
        } else {
          ix =
              hn::Min(hn::DemoteTo(di, hn::Add(clampPos(d64, x, a.w), half)), hn::Set(di, a.w - 1));
          iy =
              hn::Min(hn::DemoteTo(di, hn::Add(clampPos(d64, y, a.h), half)), hn::Set(di, a.h - 1));
        }
        const VI off = hn::Add(hn::Mul(iy, step), hn::Mul(ix, chBytes));
        if constexpr (sizeof(T) == 4 || kCh == 4) {  // one whole element or pixel per lane
          const VI g = gather(di, base, off);
          if constexpr (sizeof(T) == 4) {
            hn::StoreU(hn::BitCast(df, g), df, reinterpret_cast<float*>(out));
          } else {
            VI r = g;
            if constexpr (kUse == 3) {
              const VI old = hn::LoadU(di, reinterpret_cast<const int32_t*>(out));
              const VI alpha = hn::Set(di, static_cast<int32_t>(0xFF000000u));
              r = hn::Or(hn::AndNot(alpha, g), hn::And(old, alpha));
            }
            hn::StoreU(r, di, reinterpret_cast<int32_t*>(out));
          }
        } else {  // 8u C1: byte loads (cheaper than a gather here)
          HWY_ALIGN int32_t o[hn::MaxLanes(di)];
          hn::Store(off, di, o);
          for (int j = 0; j < N; ++j) out[j] = b8[o[j]];
        }
      } else {  // cubic 8u C1
        auto tap = [&](VD v, int len, VI* b, hn::Vec<decltype(df)>* t) {
          if (!inside) v = clampPos(d64, v, len);
          const VD bf = hn::Floor(v);
          VI bi = hn::DemoteTo(di, bf);
          auto f = hn::DemoteTo(df, hn::Sub(v, bf));
          const auto m0 = hn::Eq(bi, hn::Zero(di));
          const auto m2 = hn::Eq(bi, hn::Set(di, len - 2));
          const auto m1 = hn::Eq(bi, hn::Set(di, len - 1));
          f = hn::IfThenElse(hn::RebindMask(df, m0), hn::Sub(f, hn::Set(df, 1.0f)), f);
          f = hn::IfThenElse(hn::RebindMask(df, m2), hn::Add(f, hn::Set(df, 1.0f)), f);
          f = hn::IfThenElse(hn::RebindMask(df, m1), hn::Set(df, 2.0f), f);
          bi = hn::IfThenElse(m0, hn::Set(di, 1), bi);
          bi = hn::IfThenElse(hn::Or(m1, m2), hn::Set(di, len - 3), bi);
          *b = bi;
          *t = f;
        };
        VI bx, by;
        hn::Vec<decltype(df)> tx, ty;
        tap(x, a.w, &bx, &tx);
        tap(y, a.h, &by, &ty);
        using VF = hn::Vec<decltype(df)>;
        struct K {
          VF a, b, c;
        };
        auto coeffs = [&](VF t) {  // cubicCoeffs
          const VF ta = hn::Add(t, hn::Set(df, 1.0f));
          return K{
              ta, hn::Div(hn::Mul(t, ta), hn::Set(df, 2.0f)),
              hn::Div(hn::Mul(hn::Mul(hn::Sub(t, hn::Set(df, 1.0f)), t), ta), hn::Set(df, 6.0f))};
        };
        auto newton = [&](VF p0, VF p1, VF p2, VF p3, const K& kc) {  // cubicNewton
          const VF two = hn::Set(df, 2.0f), three = hn::Set(df, 3.0f);
          const VF d1 = hn::Sub(p1, p0);
          const VF d2 = hn::Add(hn::Sub(p2, hn::Mul(two, p1)), p0);
          const VF d3 = hn::Sub(hn::Add(hn::Sub(p3, hn::Mul(three, p2)), hn::Mul(three, p1)), p0);
          return hn::Add(hn::Add(hn::Add(p0, hn::Mul(kc.a, d1)), hn::Mul(kc.b, d2)),
                         hn::Mul(kc.c, d3));
        };
        const K kx = coeffs(tx), ky = coeffs(ty);
        VF h[4];
        VI off = hn::Add(hn::Mul(hn::Sub(by, hn::Set(di, 1)), step), hn::Sub(bx, hn::Set(di, 1)));
        for (int j = 0; j < 4; ++j, off = hn::Add(off, step)) {
          const VI g = gather(di, base, off);
          h[j] =
              newton(hn::ConvertTo(df, byteOf(di, g, 0)), hn::ConvertTo(df, byteOf(di, g, 1)),
                     hn::ConvertTo(df, byteOf(di, g, 2)), hn::ConvertTo(df, byteOf(di, g, 3)), kx);
        }
        VF v = hn::Add(newton(h[0], h[1], h[2], h[3], ky), hn::Set(df, 0.5000001f));
        v = hn::Min(hn::IfThenElse(hn::Ge(v, hn::Zero(df)), v, hn::Zero(df)), hn::Set(df, 255.0f));
        hn::StoreU(hn::DemoteTo(du8, hn::ConvertTo(di, v)), du8, out);
      }
    }
  }
  for (; k < n; ++k) {  // the rest of the span (and every pixel of images the loads cannot serve)
    double x, y;
    warp::positionAt<kPos>(a, k, &x, &y);
    const warp::Source<T> s{a.src, a.step, a.w, a.h};
    T* o = d + static_cast<std::ptrdiff_t>(k) * kCh;
    if constexpr (kMode == warp::kNearest) warp::nearestPixel<T, kCh, kUse>(s, x, y, o);
    if constexpr (kMode == warp::kLinear) warp::linearPixel<T, kCh, kUse>(s, x, y, o);
    if constexpr (kMode == warp::kCubic) warp::cubicPixel<T, kCh, kUse>(s, x, y, o);
  }
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace warp {

// Which span kernels have a vector version.
template <class T, int kCh, int kMode>
constexpr bool kVector = std::is_same_v<T, Lum8u>
                             ? (kMode == kLinear || (kMode == kNearest && kCh != 3) ||
                                (kMode == kCubic && kCh == 1))
                             : std::is_same_v<T, Lum32f> &&
                                   (kMode == kLinear || (kMode == kNearest && kCh == 1));

template <class T, class L, int kMode, int kPos>
SpanFn<T> pickSpanOf() {
  if constexpr (kVector<T, L::kCh, kMode>) {
    LUMI_SIMD_TABLE(SpanFn<T>, table, warpSpan<T, L::kCh, L::kUse, kMode, kPos>);
    return pick(table, &spanScalar<T, L::kCh, L::kUse, kMode, kPos>);
  } else {
    return &spanScalar<T, L::kCh, L::kUse, kMode, kPos>;
  }
}

template <class T, class L, int kPos>
SpanFn<T> pickSpanAt(int mode) {
  return mode == kNearest  ? pickSpanOf<T, L, kNearest, kPos>()
         : mode == kLinear ? pickSpanOf<T, L, kLinear, kPos>()
                           : pickSpanOf<T, L, kCubic, kPos>();
}

template <class T, class L>
SpanFn<T> pickSpan(int mode, int pos) {
  return pos == kPosLinear       ? pickSpanAt<T, L, kPosLinear>(mode)
         : pos == kPosProjective ? pickSpanAt<T, L, kPosProjective>(mode)
                                 : pickSpanAt<T, L, kPosArrays>(mode);
}

#define LUMI_WARP_PICKS(T)                      \
  template SpanFn<T> pickSpan<T, C1>(int, int); \
  template SpanFn<T> pickSpan<T, C3>(int, int); \
  template SpanFn<T> pickSpan<T, C4>(int, int); \
  template SpanFn<T> pickSpan<T, AC4>(int, int);
LUMI_WARP_PICKS(Lum8u)
LUMI_WARP_PICKS(Lum16u)
LUMI_WARP_PICKS(Lum32f)

}  // namespace warp
}  // namespace lumi
#endif  // HWY_ONCE
