// Remapping through two float coordinate maps with nearest, linear or cubic interpolation.
//
// Vector kernels: nearest and linear for 8u and 32f one-channel images, linear and cubic for
// 8u images of every layout, cubic for 16u and 32f one-channel images; every other nearest and linear
// remap turns the map points into offsets and weights a vector at a time and blends pixel by
// pixel. They load a vector of map points,
// test them against the box, convert and round them lane-wise exactly as the scalar twins do,
// and fetch the source pixels with gathers: 32f by element index, 8u as 32-bit words at byte
// offsets (a word holds the pixel and what follows it). A word may reach past the pixels
// needed, so a vector any of whose words would pass the image's last byte is done by the
// scalar twin. Lanes outside the box fetch from inside it and store back the destination's own
// value. Float arithmetic is done in the twins' order without fused multiply-adds, so every
// result, 32f included, equals the scalar twin's bit for bit.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/remap.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "core/widen-inl.h"
#include "geometry/cubic-inl.h"
#include "geometry/remap_kernels.h"
#include "lumi/remap.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {

// Lane-wise roundEven of non-negative floats.
template <class DF, class DI>
HWY_INLINE hn::Vec<DI> roundEvenV(DF df, DI di, hn::Vec<DF> v) {
  const auto i = hn::ConvertTo(di, v);  // truncates
  const auto f = hn::Sub(v, hn::ConvertTo(df, i));
  const auto half = hn::Set(df, 0.5f);
  const auto one = hn::Set(di, 1);
  const auto odd = hn::RebindMask(df, hn::Eq(hn::And(i, one), one));
  const auto up = hn::Or(hn::Gt(f, half), hn::And(hn::Eq(f, half), odd));
  return hn::IfThenElse(hn::RebindMask(di, up), hn::Add(i, one), i);
}

// The box test of a vector of points; points outside are moved to the box corner.
template <class DF>
HWY_INLINE hn::Mask<DF> clampToBox(DF df, const remap::Box& b, hn::Vec<DF>& x, hn::Vec<DF>& y) {
  const auto fx0 = hn::Set(df, b.fx0), fy0 = hn::Set(df, b.fy0);
  const auto in = hn::And(hn::And(hn::Ge(x, fx0), hn::Le(x, hn::Set(df, b.fx1))),
                          hn::And(hn::Ge(y, fy0), hn::Le(y, hn::Set(df, b.fy1))));
  x = hn::IfThenElse(in, x, fx0);
  y = hn::IfThenElse(in, y, fy0);
  return in;
}

// The map points of a row, N at a time: f(x, vx, vy, in) gets each vector that has a point in
// the box, with its points outside moved to the box corner (clampToBox). Returns where the
// vectors end; the plain kernel finishes the row from there.
template <class DF, class F>
HWY_INLINE int boxVectors(DF df, const remap::Box& b, const float* mx, const float* my, int width,
                          F&& f) {
  const int N = static_cast<int>(hn::Lanes(df));
  int x = 0;
  for (; x + N <= width; x += N) {
    auto vx = hn::LoadU(df, mx + x), vy = hn::LoadU(df, my + x);
    const auto in = clampToBox(df, b, vx, vy);
    if (!hn::AllFalse(df, in)) f(x, vx, vy, in);
  }
  return x;
}

// Linear cell of a vector of points (see linearCell).
template <class DF, class DI>
HWY_INLINE void linearCellV(DF df, DI di, const remap::Box& b, hn::Vec<DF> x, hn::Vec<DF> y,
                            hn::Vec<DI>& ix, hn::Vec<DI>& iy, hn::Vec<DF>& fx, hn::Vec<DF>& fy) {
  const auto one = hn::Set(di, 1);
  ix = hn::ConvertTo(di, x);
  iy = hn::ConvertTo(di, y);
  ix = hn::IfThenElse(hn::Eq(ix, hn::Set(di, b.x1)), hn::Sub(ix, one), ix);
  iy = hn::IfThenElse(hn::Eq(iy, hn::Set(di, b.y1)), hn::Sub(iy, one), iy);
  fx = hn::Sub(x, hn::ConvertTo(df, ix));
  fy = hn::Sub(y, hn::ConvertTo(df, iy));
}

// Cubic cell of a vector of points: lanes outside the box (not in) are moved to
// (x0 + 1, y0 + 1), an inner point (the box is at least 4 x 4 in cubic mode), and ix, iy take
// the integer parts. True where the 4 x 4 neighbourhood needs no clamping.
template <class DF, class DI>
HWY_INLINE hn::Mask<DI> cubicCellV(DF df, DI di, const remap::Box& b, hn::Mask<DF> in,
                                   hn::Vec<DF>& x, hn::Vec<DF>& y, hn::Vec<DI>& ix,
                                   hn::Vec<DI>& iy) {
  x = hn::IfThenElse(in, x, hn::Set(df, b.fx0 + 1));
  y = hn::IfThenElse(in, y, hn::Set(df, b.fy0 + 1));
  ix = hn::ConvertTo(di, x);
  iy = hn::ConvertTo(di, y);
  return hn::And(hn::And(hn::Gt(ix, hn::Set(di, b.x0)), hn::Lt(ix, hn::Set(di, b.x1 - 1))),
                 hn::And(hn::Gt(iy, hn::Set(di, b.y0)), hn::Lt(iy, hn::Set(di, b.y1 - 1))));
}

// The vector of the last byte offsets whose 32-bit words the kernel may read (lim; -1: none).
template <class DI>
HWY_INLINE hn::Vec<DI> limitV(DI di, std::ptrdiff_t lim) {
  return hn::Set(di, static_cast<int32_t>(lim < -1 ? -1 : lim));
}

// Stores the 32-bit lanes v narrowed to dn's type at dst where in holds; the other lanes keep
// the destination's values.
template <class DN, class DI, class M>
HWY_INLINE void storeNarrow(DN dn, DI di, M in, hn::Vec<DI> v, hn::TFromD<DN>* dst) {
  const auto old = loadAs(di, dst);
  hn::StoreU(hn::DemoteTo(dn, hn::IfThenElse(hn::RebindMask(di, in), v, old)), dn, dst);
}

void nearestRow8u(const uint8_t* src, int step, const remap::Box& b, const float* mx,
                  const float* my, uint8_t* dst, int width) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<uint8_t, decltype(di)> d8;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto vstep = hn::Set(di, step);
  // 32-bit words read up to offset + 3.
  const auto limit = limitV(di, b.limit - 4);
  int x = 0;
  if (b.gather32) {
    x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
      const auto off = hn::Add(hn::Mul(roundEvenV(df, di, vy), vstep), roundEvenV(df, di, vx));
      if (!hn::AllFalse(di, hn::Gt(off, limit))) {
        remap::nearestRowScalar<uint8_t, C1>(src, step, b, mx + x, my + x, dst + x, N);
        return;
      }
      const auto v = hn::And(hn::GatherOffset(di, reinterpret_cast<const int32_t*>(src), off), hn::Set(di, 0xFF));
      storeNarrow(d8, di, in, v, dst + x);
    });
  }
  remap::nearestRowScalar<uint8_t, C1>(src, step, b, mx + x, my + x, dst + x, width - x);
}

void nearestRow32f(const float* src, int step, const remap::Box& b, const float* mx,
                   const float* my, float* dst, int width) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const int N = static_cast<int>(hn::Lanes(df));
  int x = 0;
  if (b.gather32 && step % 4 == 0) {
    const auto vstep = hn::Set(di, step / 4);
    x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
      const auto idx = hn::Add(hn::Mul(roundEvenV(df, di, vy), vstep), roundEvenV(df, di, vx));
      const auto v = hn::GatherIndex(df, src, idx);
      hn::StoreU(hn::IfThenElse(in, v, hn::LoadU(df, dst + x)), df, dst + x);
    });
  }
  remap::nearestRowScalar<float, C1>(src, step, b, mx + x, my + x, dst + x, width - x);
}

void linearRow8u(const uint8_t* src, int step, const remap::Box& b, const float* mx,
                 const float* my, uint8_t* dst, int width) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<uint8_t, decltype(di)> d8;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto vstep = hn::Set(di, step);
  // The lower word is read at offset + step, up to offset + step + 3.
  const auto limit = limitV(di, b.limit - step - 4);
  const auto k1 = hn::Set(di, remap::kOne), k33 = hn::Set(di, 33), kFF = hn::Set(di, 0xFF);
  const auto scale = hn::Set(df, static_cast<float>(remap::kOne));
  int x = 0;
  if (b.gather32) {
    x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
      hn::Vec<decltype(di)> ix, iy;
      hn::Vec<decltype(df)> fx, fy;
      linearCellV(df, di, b, vx, vy, ix, iy, fx, fy);
      const auto off = hn::Add(hn::Mul(iy, vstep), ix);
      if (!hn::AllFalse(di, hn::Gt(off, limit))) {
        remap::linearRowScalar<uint8_t, C1>(src, step, b, mx + x, my + x, dst + x, N);
        return;
      }
      const auto wx = roundEvenV(df, di, hn::Mul(fx, scale));
      const auto wy = roundEvenV(df, di, hn::Mul(fy, scale));
      const auto* base = reinterpret_cast<const int32_t*>(src);
      const auto g0 = hn::GatherOffset(di, base, off);
      const auto g1 = hn::GatherOffset(di, base, hn::Add(off, vstep));
      const auto wx0 = hn::Sub(k1, wx);
      const auto h0 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, hn::And(g0, kFF)),
                                                hn::Mul(wx, hn::And(hn::ShiftRight<8>(g0), kFF))));
      const auto h1 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, hn::And(g1, kFF)),
                                                hn::Mul(wx, hn::And(hn::ShiftRight<8>(g1), kFF))));
      const auto v = hn::ShiftRight<20>(hn::Add(hn::Add(hn::Mul(h0, hn::Sub(k1, wy)), hn::Mul(h1, wy)), k33));
      storeNarrow(d8, di, in, v, dst + x);
    });
  }
  remap::linearRowScalar<uint8_t, C1>(src, step, b, mx + x, my + x, dst + x, width - x);
}

void linearRow32f(const float* src, int step, const remap::Box& b, const float* mx,
                  const float* my, float* dst, int width) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto one = hn::Set(df, 1.0f);
  const auto ione = hn::Set(di, 1);
  int x = 0;
  if (b.gather32 && step % 4 == 0) {
    const auto vstep = hn::Set(di, step / 4);
    x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
      hn::Vec<decltype(di)> ix, iy;
      hn::Vec<decltype(df)> fx, fy;
      linearCellV(df, di, b, vx, vy, ix, iy, fx, fy);
      const auto i0 = hn::Add(hn::Mul(iy, vstep), ix), i1 = hn::Add(i0, vstep);
      const auto p00 = hn::GatherIndex(df, src, i0), p01 = hn::GatherIndex(df, src, hn::Add(i0, ione));
      const auto p10 = hn::GatherIndex(df, src, i1), p11 = hn::GatherIndex(df, src, hn::Add(i1, ione));
      const auto gx = hn::Sub(one, fx);
      const auto h0 = hn::Add(hn::Mul(p00, gx), hn::Mul(p01, fx));
      const auto h1 = hn::Add(hn::Mul(p10, gx), hn::Mul(p11, fx));
      const auto v = hn::Add(hn::Mul(h0, hn::Sub(one, fy)), hn::Mul(h1, fy));
      hn::StoreU(hn::IfThenElse(in, v, hn::LoadU(df, dst + x)), df, dst + x);
    });
  }
  remap::linearRowScalar<float, C1>(src, step, b, mx + x, my + x, dst + x, width - x);
}

// Any type and layout, nearest or linear, in two passes over chunks of a row: the map points
// are turned into byte offsets of the (top-left) source pixel, -1 outside the box, and for
// linear into weights, a vector at a time exactly as the scalar twins do it; then each pixel
// is fetched and blended in a plain loop with the twins' arithmetic.
constexpr int kChunk = 256;

template <class T, class L, bool kLinear>
void remapRowAny(const T* src, int step, const remap::Box& b, const float* mx, const float* my,
                 T* dst, int width) {
  if (!b.gather32) {
    if constexpr (kLinear)
      remap::linearRowScalar<T, L>(src, step, b, mx, my, dst, width);
    else
      remap::nearestRowScalar<T, L>(src, step, b, mx, my, dst, width);
    return;
  }
  constexpr int kPix = static_cast<int>(sizeof(T)) * L::kCh;
  constexpr bool kFloat = std::is_floating_point_v<T>;
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto vstep = hn::Set(di, step), vpix = hn::Set(di, kPix), none = hn::Set(di, -1);
  const auto scale = hn::Set(df, static_cast<float>(remap::kOne));
  HWY_ALIGN int32_t off[kChunk];
  HWY_ALIGN int32_t wxi[kChunk], wyi[kChunk];
  HWY_ALIGN float fxs[kChunk], fys[kChunk];
  const auto* bytes = reinterpret_cast<const uint8_t*>(src);
  for (int x0 = 0; x0 < width; x0 += kChunk) {
    const int n = width - x0 < kChunk ? width - x0 : kChunk;
    const float* px = mx + x0;
    const float* py = my + x0;
    int i = 0;
    for (; i + N <= n; i += N) {
      auto vx = hn::LoadU(df, px + i), vy = hn::LoadU(df, py + i);
      const auto in = hn::RebindMask(di, clampToBox(df, b, vx, vy));
      if constexpr (kLinear) {
        hn::Vec<decltype(di)> ix, iy;
        hn::Vec<decltype(df)> fx, fy;
        linearCellV(df, di, b, vx, vy, ix, iy, fx, fy);
        hn::Store(hn::IfThenElse(in, hn::Add(hn::Mul(iy, vstep), hn::Mul(ix, vpix)), none), di, off + i);
        if constexpr (kFloat) {
          hn::Store(fx, df, fxs + i);
          hn::Store(fy, df, fys + i);
        } else {
          hn::Store(roundEvenV(df, di, hn::Mul(fx, scale)), di, wxi + i);
          hn::Store(roundEvenV(df, di, hn::Mul(fy, scale)), di, wyi + i);
        }
      } else {
        const auto o = hn::Add(hn::Mul(roundEvenV(df, di, vy), vstep), hn::Mul(roundEvenV(df, di, vx), vpix));
        hn::Store(hn::IfThenElse(in, o, none), di, off + i);
      }
    }
    for (; i < n; ++i) {
      off[i] = -1;
      if (!remap::inside(b, px[i], py[i])) continue;
      if constexpr (kLinear) {
        int ix, iy;
        float fx, fy;
        remap::linearCell(b, px[i], py[i], &ix, &iy, &fx, &fy);
        off[i] = iy * step + ix * kPix;
        fxs[i] = fx, fys[i] = fy;
        wxi[i] = remap::roundEven(fx * remap::kOne), wyi[i] = remap::roundEven(fy * remap::kOne);
      } else {
        off[i] = remap::roundEven(py[i]) * step + remap::roundEven(px[i]) * kPix;
      }
    }
    T* d = dst + elemsOf(x0, L::kCh);
    for (i = 0; i < n; ++i, d += L::kCh) {
      if (off[i] < 0) continue;
      const T* p0 = reinterpret_cast<const T*>(bytes + off[i]);
      if constexpr (!kLinear) {
        for (int c = 0; c < L::kUse; ++c) d[c] = p0[c];
      } else {
        const T* p1 = reinterpret_cast<const T*>(bytes + off[i] + step);
        if constexpr (kFloat) {
          const float fx = fxs[i], fy = fys[i];
          for (int c = 0; c < L::kUse; ++c) {
            const float h0 = p0[c] * (1 - fx) + p0[c + L::kCh] * fx;
            const float h1 = p1[c] * (1 - fx) + p1[c + L::kCh] * fx;
            d[c] = h0 * (1 - fy) + h1 * fy;
          }
        } else {
          const int wx = wxi[i], wy = wyi[i];
          for (int c = 0; c < L::kUse; ++c) {
            const int h0 = ((remap::kOne - wx) * p0[c] + wx * p0[c + L::kCh]) >> 8;
            const int h1 = ((remap::kOne - wx) * p1[c] + wx * p1[c + L::kCh]) >> 8;
            if constexpr (sizeof(T) == 1)
              d[c] = static_cast<T>((h0 * (remap::kOne - wy) + h1 * wy + 33) >> 20);
            else
              d[c] = static_cast<T>((static_cast<int64_t>(h0) * (remap::kOne - wy) + static_cast<int64_t>(h1) * wy + 33) >> 20);
          }
        }
      }
    }
  }
}

// Stores a vector of interpolated 8u colour pixels held as words (channel c in byte c) at
// pixel x of dst: four-channel pixels as words (AC4: with the destination's alpha), three-
// channel ones packed four to a block when every lane is inside and two more pixels follow
// (the store's last four bytes write back what the destination holds there), else pixel by
// pixel. Lanes outside the box keep the destination's pixels.
template <class L, class DF, class DI>
HWY_INLINE void storeWords(DF df, DI di, hn::Mask<DF> in, hn::Vec<DI> res, const remap::Box& b,
                           const float* mx, const float* my, uint8_t* dst, int x, int width) {
  const int N = static_cast<int>(hn::Lanes(df));
  if constexpr (L::kCh == 4) {
    int32_t* out = reinterpret_cast<int32_t*>(dst + elemsOf(x, 4));
    const auto old = hn::LoadU(di, out);
    if constexpr (L::kUse == 3) res = hn::Or(res, hn::And(old, hn::Set(di, static_cast<int32_t>(0xFF000000u))));
    hn::StoreU(hn::IfThenElse(hn::RebindMask(di, in), res, old), di, out);
  } else {
    HWY_ALIGN int32_t words[hn::MaxLanes(di)];
    hn::Store(res, di, words);
    if (hn::AllTrue(df, in) && x + N + 2 <= width) {
      const hn::Full128<uint8_t> d16;
      alignas(16) static constexpr uint8_t kPack[16] = {0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0x80, 0x80, 0x80, 0x80};
      const auto pack = hn::Load(d16, kPack);
      const auto keep = hn::FirstN(d16, 12);
      for (int j = 0; j < N / 4; ++j) {
        uint8_t* o = dst + elemsOf(x + 4 * j, 3);
        const auto w = hn::Load(d16, reinterpret_cast<const uint8_t*>(words + 4 * j));
        hn::StoreU(hn::IfThenElse(keep, hn::TableLookupBytesOr0(w, pack), hn::LoadU(d16, o)), d16, o);
      }
    } else {
      for (int i = 0; i < N; ++i)
        if (remap::inside(b, mx[x + i], my[x + i])) std::memcpy(dst + elemsOf(x + i, 3), &words[i], 3);
    }
  }
}

// 8u three- and four-channel pixels: one 32-bit word per pixel and neighbour (three-channel
// words carry a byte of the next pixel), each channel taken out, interpolated in 32-bit lanes
// and put back. Four-channel results are stored as words (AC4: with the destination's alpha),
// three-channel ones pixel by pixel.
template <class L>
void linearRow8uPix(const uint8_t* src, int step, const remap::Box& b, const float* mx,
                    const float* my, uint8_t* dst, int width) {
  constexpr int kCh = L::kCh;
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto vstep = hn::Set(di, step), vch = hn::Set(di, kCh);
  // The last word is read at offset + step + kCh, up to 3 bytes further.
  const auto limit = limitV(di, b.limit - step - kCh - 4);
  const auto k1 = hn::Set(di, remap::kOne), k33 = hn::Set(di, 33), kFF = hn::Set(di, 0xFF);
  const auto scale = hn::Set(df, static_cast<float>(remap::kOne));
  int x = 0;
  if (b.gather32) {
    x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
      hn::Vec<decltype(di)> ix, iy;
      hn::Vec<decltype(df)> fx, fy;
      linearCellV(df, di, b, vx, vy, ix, iy, fx, fy);
      const auto off = hn::Add(hn::Mul(iy, vstep), hn::Mul(ix, vch));
      if (!hn::AllFalse(di, hn::Gt(off, limit))) {
        remap::linearRowScalar<uint8_t, L>(src, step, b, mx + x, my + x, dst + elemsOf(x, kCh), N);
        return;
      }
      const auto wx = roundEvenV(df, di, hn::Mul(fx, scale));
      const auto wy = roundEvenV(df, di, hn::Mul(fy, scale));
      const auto wx0 = hn::Sub(k1, wx), wy0 = hn::Sub(k1, wy);
      const auto* base = reinterpret_cast<const int32_t*>(src);
      const auto g00 = hn::GatherOffset(di, base, off), g01 = hn::GatherOffset(di, base, hn::Add(off, vch));
      const auto off1 = hn::Add(off, vstep);
      const auto g10 = hn::GatherOffset(di, base, off1), g11 = hn::GatherOffset(di, base, hn::Add(off1, vch));
      auto res = hn::Zero(di);
      for (int c = 0; c < L::kUse; ++c) {
        auto chan = [&](hn::Vec<decltype(di)> g) { return hn::And(hn::ShiftRightSame(g, 8 * c), kFF); };
        const auto h0 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, chan(g00)), hn::Mul(wx, chan(g01))));
        const auto h1 = hn::ShiftRight<8>(hn::Add(hn::Mul(wx0, chan(g10)), hn::Mul(wx, chan(g11))));
        const auto v = hn::ShiftRight<20>(hn::Add(hn::Add(hn::Mul(h0, wy0), hn::Mul(h1, wy)), k33));
        res = hn::Or(res, hn::ShiftLeftSame(v, 8 * c));
      }
      storeWords<L>(df, di, in, res, b, mx, my, dst, x, width);
    });
  }
  remap::linearRowScalar<uint8_t, L>(src, step, b, mx + x, my + x, dst + elemsOf(x, kCh), width - x);
}

// 8u cubic: vectors whose points all lie at least one pixel inside the box (the 4 x 4
// neighbourhood then needs no clamping) read 32-bit words: one per neighbourhood row for one
// channel (its four pixels), one per neighbour for three and four (its channels; three-channel
// words may reach a byte past the neighbourhood, so vectors whose last word would pass the
// image's end go to the twin). The 4-point cubic is evaluated in float with the very
// operations of the scalar twin (no fused multiply-adds), so the results agree bit for bit.
// Other vectors go to the twin.
template <class L>
void cubicRow8u(const uint8_t* src, int step, const remap::Box& b, const float* mx,
                const float* my, uint8_t* dst, int width) {
  constexpr int kCh = L::kCh;
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<uint8_t, decltype(di)> d8;
  using VF = hn::Vec<decltype(df)>;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto vstep = hn::Set(di, step), kFF = hn::Set(di, 0xFF), one = hn::Set(di, 1), vch = hn::Set(di, kCh);
  const auto half = hn::Set(df, 0.5f), top = hn::Set(df, 255.0f);
  const auto limit = limitV(di, b.limit - 3 * static_cast<std::ptrdiff_t>(step) - 3 * kCh - 4);
  auto byteOf = [&](hn::Vec<decltype(di)> g, int k) { return hn::ConvertTo(df, hn::And(hn::ShiftRightSame(g, 8 * k), kFF)); };
  const auto* base = reinterpret_cast<const int32_t*>(src);
  const int x = boxVectors(df, b, mx, my, width, [&](int x, auto vx, auto vy, auto in) {
    hn::Vec<decltype(di)> ix, iy;
    const auto inner = cubicCellV(df, di, b, in, vx, vy, ix, iy);
    auto off = hn::Add(hn::Mul(hn::Sub(iy, one), vstep), hn::Mul(hn::Sub(ix, one), vch));
    if (!b.gather32 || !hn::AllTrue(di, inner) || (kCh == 3 && !hn::AllFalse(di, hn::Gt(off, limit)))) {
      remap::cubicRowScalar<uint8_t, L>(src, step, b, mx + x, my + x, dst + elemsOf(x, kCh), N);
      return;
    }
    VF xa, xb, xc, ya, yb, yc;
    cubicCoeffsV(df, hn::Sub(vx, hn::ConvertTo(df, ix)), xa, xb, xc);
    cubicCoeffsV(df, hn::Sub(vy, hn::ConvertTo(df, iy)), ya, yb, yc);
    VF h[L::kUse][4];
    for (int r = 0; r < 4; ++r, off = hn::Add(off, vstep)) {
      if constexpr (kCh == 1) {
        const auto g = hn::GatherOffset(di, base, off);
        h[0][r] = cubicNewtonV(df, byteOf(g, 0), byteOf(g, 1), byteOf(g, 2), byteOf(g, 3), xa, xb, xc);
      } else {
        hn::Vec<decltype(di)> g[4];
        for (int k = 0; k < 4; ++k) g[k] = hn::GatherOffset(di, base, hn::Add(off, hn::Set(di, k * kCh)));
        for (int c = 0; c < L::kUse; ++c)
          h[c][r] = cubicNewtonV(df, byteOf(g[0], c), byteOf(g[1], c), byteOf(g[2], c), byteOf(g[3], c), xa, xb, xc);
      }
    }
    // floor(v + 0.5) saturated: clamping first gives the same for every finite v.
    auto rounded = [&](int c) {
      const auto v = cubicNewtonV(df, h[c][0], h[c][1], h[c][2], h[c][3], ya, yb, yc);
      return hn::ConvertTo(di, hn::Add(hn::Min(hn::Max(v, hn::Zero(df)), top), half));
    };
    if constexpr (kCh == 1) {
      storeNarrow(d8, di, in, rounded(0), dst + x);
    } else {
      auto res = hn::Zero(di);
      for (int c = 0; c < L::kUse; ++c) res = hn::Or(res, hn::ShiftLeftSame(rounded(c), 8 * c));
      storeWords<L>(df, di, in, res, b, mx, my, dst, x, width);
    }
  });
  remap::cubicRowScalar<uint8_t, L>(src, step, b, mx + x, my + x, dst + elemsOf(x, kCh), width - x);
}

// 16u and 32f one channel, cubic: the inner vectors of cubicRow8u, with two 32-bit words per
// neighbourhood row for 16u (two pixels each) and one float gather per neighbour for 32f (the
// step a whole number of floats); 16u results are rounded and saturated as in the twin.
template <class T>
void cubicRowWide(const T* src, int step, const remap::Box& b, const float* mx, const float* my,
                  T* dst, int width) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  using VF = hn::Vec<decltype(df)>;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto one = hn::Set(di, 1);
  constexpr bool kFloat = std::is_floating_point_v<T>;
  const bool ok = b.gather32 && (!kFloat || step % 4 == 0);
  // 32f: element indices; 16u: byte offsets.
  const auto vrow = hn::Set(di, kFloat ? step / 4 : step), vpix = hn::Set(di, kFloat ? 1 : 2);
  int x = 0;
  for (; ok && x + N <= width; x += N) {
    auto vx = hn::LoadU(df, mx + x), vy = hn::LoadU(df, my + x);
    const auto in = clampToBox(df, b, vx, vy);
    if (hn::AllFalse(df, in)) continue;
    hn::Vec<decltype(di)> ix, iy;
    const auto inner = cubicCellV(df, di, b, in, vx, vy, ix, iy);
    if (!hn::AllTrue(di, inner)) {
      remap::cubicRowScalar<T, C1>(src, step, b, mx + x, my + x, dst + x, N);
      continue;
    }
    VF xa, xb, xc, ya, yb, yc;
    cubicCoeffsV(df, hn::Sub(vx, hn::ConvertTo(df, ix)), xa, xb, xc);
    cubicCoeffsV(df, hn::Sub(vy, hn::ConvertTo(df, iy)), ya, yb, yc);
    auto at = hn::Add(hn::Mul(hn::Sub(iy, one), vrow), hn::Mul(hn::Sub(ix, one), vpix));
    VF h[4];
    for (int r = 0; r < 4; ++r, at = hn::Add(at, vrow)) {
      VF p[4];
      if constexpr (kFloat) {
        for (int k = 0; k < 4; ++k) p[k] = hn::GatherIndex(df, src, hn::Add(at, hn::Set(di, k)));
      } else {
        const auto* base = reinterpret_cast<const int32_t*>(src);
        const auto kLow = hn::Set(di, 0xFFFF);
        const auto w0 = hn::GatherOffset(di, base, at), w1 = hn::GatherOffset(di, base, hn::Add(at, hn::Set(di, 4)));
        p[0] = hn::ConvertTo(df, hn::And(w0, kLow));
        p[1] = hn::ConvertTo(df, hn::And(hn::ShiftRight<16>(w0), kLow));
        p[2] = hn::ConvertTo(df, hn::And(w1, kLow));
        p[3] = hn::ConvertTo(df, hn::And(hn::ShiftRight<16>(w1), kLow));
      }
      h[r] = cubicNewtonV(df, p[0], p[1], p[2], p[3], xa, xb, xc);
    }
    const auto v = cubicNewtonV(df, h[0], h[1], h[2], h[3], ya, yb, yc);
    if constexpr (kFloat) {
      hn::StoreU(hn::IfThenElse(in, v, hn::LoadU(df, dst + x)), df, dst + x);
    } else {
      const hn::Rebind<uint16_t, decltype(di)> d16;
      const auto r = hn::ConvertTo(di, hn::Add(hn::Min(hn::Max(v, hn::Zero(df)), hn::Set(df, 65535.0f)), hn::Set(df, 0.5f)));
      storeNarrow(d16, di, in, r, dst + x);
    }
  }
  remap::cubicRowScalar<T, C1>(src, step, b, mx + x, my + x, dst + x, width - x);
}

}  // namespace
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace remap {
namespace {

template <class T>
using RowFn = void (*)(const T*, int, const Box&, const float*, const float*, T*, int);

// The row kernel of a type, layout and mode (1, 2 or 4, already adjusted to the source).
template <class T, class L>
RowFn<T> pickRow(int mode) {
  if constexpr (std::is_same_v<L, C1> && (std::is_same_v<T, Lum8u> || std::is_same_v<T, Lum32f>)) {
    if (mode == lumInterpNearest) {
      if constexpr (std::is_same_v<T, Lum8u>) {
        LUMI_SIMD_TABLE(RowFn<T>, table, nearestRow8u);
        return pick(table, &nearestRowScalar<T, L>);
      } else {
        LUMI_SIMD_TABLE(RowFn<T>, table, nearestRow32f);
        return pick(table, &nearestRowScalar<T, L>);
      }
    }
    if (mode == lumInterpLinear) {
      if constexpr (std::is_same_v<T, Lum8u>) {
        LUMI_SIMD_TABLE(RowFn<T>, table, linearRow8u);
        return pick(table, &linearRowScalar<T, L>);
      } else {
        LUMI_SIMD_TABLE(RowFn<T>, table, linearRow32f);
        return pick(table, &linearRowScalar<T, L>);
      }
    }
  }
  if constexpr (std::is_same_v<T, Lum8u> && L::kCh >= 3) {
    if (mode == lumInterpLinear) {
      LUMI_SIMD_TABLE(RowFn<T>, table, linearRow8uPix<L>);
      return pick(table, &linearRowScalar<T, L>);
    }
  }
  if constexpr (std::is_same_v<T, Lum8u>) {
    if (mode == lumInterpCubic) {
      LUMI_SIMD_TABLE(RowFn<T>, table, cubicRow8u<L>);
      return pick(table, &cubicRowScalar<T, L>);
    }
  }
  if constexpr (!std::is_same_v<T, Lum8u> && std::is_same_v<L, C1>) {
    if (mode == lumInterpCubic) {
      LUMI_SIMD_TABLE(RowFn<T>, table, cubicRowWide<T>);
      return pick(table, &cubicRowScalar<T, L>);
    }
  }
  if (mode == lumInterpNearest) {
    LUMI_SIMD_TABLE(RowFn<T>, table, remapRowAny<T, L, false>);
    return pick(table, &nearestRowScalar<T, L>);
  }
  if (mode == lumInterpLinear) {
    LUMI_SIMD_TABLE(RowFn<T>, table, remapRowAny<T, L, true>);
    return pick(table, &linearRowScalar<T, L>);
  }
  return &cubicRowScalar<T, L>;
}

// Checks in the documented order; on success fills the box and the mode adjusted to the
// source. Returns lumStatusNoIntersectionWarn for a ROI origin outside the image.
LumStatus prepare(LumiSize srcSize, int srcStep, LumiRect srcRoi, int xMapStep, int yMapStep,
                  int dstStep, LumiSize dstSize, int interpolation, std::size_t pixelBytes, Box* b,
                  int* mode) {
  if (srcSize.width < 1 || srcSize.height < 1 || srcRoi.x < 0 || srcRoi.y < 0 || srcRoi.width < 1 ||
      srcRoi.height < 1 || badSize(dstSize))
    return lumStatusSizeErr;
  if (interpolation != lumInterpNearest && interpolation != lumInterpLinear && interpolation != lumInterpCubic)
    return lumStatusInterpolationErr;
  if (badStep(srcStep, dstStep, xMapStep, yMapStep)) return lumStatusStepErr;
  if (srcRoi.x >= srcSize.width || srcRoi.y >= srcSize.height) return lumStatusNoIntersectionWarn;
  const int w = srcSize.width - srcRoi.x < srcRoi.width ? srcSize.width - srcRoi.x : srcRoi.width;
  const int h = srcSize.height - srcRoi.y < srcRoi.height ? srcSize.height - srcRoi.y : srcRoi.height;
  b->x0 = srcRoi.x;
  b->y0 = srcRoi.y;
  b->x1 = srcRoi.x + w - 1;
  b->y1 = srcRoi.y + h - 1;
  b->fx0 = static_cast<float>(b->x0);
  b->fy0 = static_cast<float>(b->y0);
  b->fx1 = static_cast<float>(b->x1);
  b->fy1 = static_cast<float>(b->y1);
  b->limit = static_cast<std::ptrdiff_t>(srcStep) * (srcSize.height - 1) +
             static_cast<std::ptrdiff_t>(pixelBytes) * srcSize.width;
  b->gather32 = static_cast<long long>(srcStep) * srcSize.height + static_cast<long long>(pixelBytes) * srcSize.width < INT_MAX;
  *mode = interpolation;
  if (w == 1 || h == 1)
    *mode = lumInterpNearest;
  else if (*mode == lumInterpCubic && (w < 4 || h < 4))
    *mode = lumInterpLinear;
  return lumStatusOk;
}

// Destination rows in bands; each plane (one for interleaved layouts) through the same row
// kernel.
template <class T, class L, int kPlanes>
LumStatus remapImpl(const T* const* src, LumiSize srcSize, int srcStep, LumiRect srcRoi,
                    const Lum32f* mx, int xMapStep, const Lum32f* my, int yMapStep, T* const* dst,
                    int dstStep, LumiSize dstSize, int interpolation) {
  Box b;
  int mode;
  if (LumStatus st = prepare(srcSize, srcStep, srcRoi, xMapStep, yMapStep, dstStep, dstSize,
                             interpolation, sizeof(T) * L::kCh, &b, &mode))
    return st;
  const RowFn<T> f = pickRow<T, L>(mode);
  const long long taps = mode == lumInterpNearest ? 1 : (mode == lumInterpLinear ? 4 : 16);
  forRows(dstSize.height, forkByWork(dstSize, taps * kPlanes, 1 << 18), [&](int y0, int y1) {
    for (int p = 0; p < kPlanes; ++p)
      for (int y = y0; y < y1; ++y)
        f(src[p], srcStep, b, rowAt(mx, xMapStep, y), rowAt(my, yMapStep, y), rowAt(dst[p], dstStep, y), dstSize.width);
  });
  return lumStatusOk;
}

template <class T, class L>
LumStatus remapPacked(const T* src, LumiSize srcSize, int srcStep, LumiRect srcRoi, const Lum32f* mx,
                      int xMapStep, const Lum32f* my, int yMapStep, T* dst, int dstStep,
                      LumiSize dstSize, int interpolation) {
  if (anyNull(src, mx, my, dst)) return lumStatusNullPtrErr;
  return remapImpl<T, L, 1>(&src, srcSize, srcStep, srcRoi, mx, xMapStep, my, yMapStep, &dst, dstStep,
                            dstSize, interpolation);
}

template <class T, int kPlanes>
LumStatus remapPlanar(const T* const* src, LumiSize srcSize, int srcStep, LumiRect srcRoi,
                      const Lum32f* mx, int xMapStep, const Lum32f* my, int yMapStep, T* const* dst,
                      int dstStep, LumiSize dstSize, int interpolation) {
  if (anyNull(src, mx, my, dst)) return lumStatusNullPtrErr;
  for (int p = 0; p < kPlanes; ++p)
    if (anyNull(src[p], dst[p])) return lumStatusNullPtrErr;
  return remapImpl<T, C1, kPlanes>(src, srcSize, srcStep, srcRoi, mx, xMapStep, my, yMapStep, dst,
                                   dstStep, dstSize, interpolation);
}

}  // namespace
}  // namespace remap
}  // namespace lumi

using namespace lumi;

#define LUMI_REMAP(NAME, T, L)                                                                     \
  LUMI_API LumStatus NAME(const T* pSrc, LumiSize srcSize, int srcStep, LumiRect srcRoi,           \
                          const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep,    \
                          T* pDst, int dstStep, LumiSize dstRoiSize, int interpolation) {          \
    return remap::remapPacked<T, L>(pSrc, srcSize, srcStep, srcRoi, pxMap, xMapStep, pyMap,        \
                                    yMapStep, pDst, dstStep, dstRoiSize, interpolation);           \
  }
#define LUMI_REMAP_P(NAME, T, N)                                                                   \
  LUMI_API LumStatus NAME(const T* const pSrc[N], LumiSize srcSize, int srcStep, LumiRect srcRoi,  \
                          const Lum32f* pxMap, int xMapStep, const Lum32f* pyMap, int yMapStep,    \
                          T* const pDst[N], int dstStep, LumiSize dstRoiSize, int interpolation) { \
    return remap::remapPlanar<T, N>(pSrc, srcSize, srcStep, srcRoi, pxMap, xMapStep, pyMap,        \
                                    yMapStep, pDst, dstStep, dstRoiSize, interpolation);           \
  }

LUMI_REMAP(lumiRemap_8u_C1R, Lum8u, C1)
LUMI_REMAP(lumiRemap_8u_C3R, Lum8u, C3)
LUMI_REMAP(lumiRemap_8u_C4R, Lum8u, C4)
LUMI_REMAP(lumiRemap_8u_AC4R, Lum8u, AC4)
LUMI_REMAP(lumiRemap_16u_C1R, Lum16u, C1)
LUMI_REMAP(lumiRemap_16u_C3R, Lum16u, C3)
LUMI_REMAP(lumiRemap_16u_C4R, Lum16u, C4)
LUMI_REMAP(lumiRemap_16u_AC4R, Lum16u, AC4)
LUMI_REMAP(lumiRemap_32f_C1R, Lum32f, C1)
LUMI_REMAP(lumiRemap_32f_C3R, Lum32f, C3)
LUMI_REMAP(lumiRemap_32f_C4R, Lum32f, C4)
LUMI_REMAP(lumiRemap_32f_AC4R, Lum32f, AC4)
LUMI_REMAP_P(lumiRemap_8u_P3R, Lum8u, 3)
LUMI_REMAP_P(lumiRemap_8u_P4R, Lum8u, 4)
LUMI_REMAP_P(lumiRemap_16u_P3R, Lum16u, 3)
LUMI_REMAP_P(lumiRemap_16u_P4R, Lum16u, 4)
LUMI_REMAP_P(lumiRemap_32f_P3R, Lum32f, 3)
LUMI_REMAP_P(lumiRemap_32f_P4R, Lum32f, 4)
#endif  // HWY_ONCE
