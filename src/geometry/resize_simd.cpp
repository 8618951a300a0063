// Row kernels of the resize engine per SIMD target, and their choosers.
//
// Horizontal passes gather their taps through the per-element offset tables (8u rows as 32-bit
// words holding several taps, read up to `safe`, see safePrefix); vertical passes run along
// contiguous row buffers. The arithmetic is the plain kernels' (resize_kernels.h) in the same
// order, without fused multiply-adds: 8u and 16u results equal them bit for bit, and so do the
// 32f ones on every target this library builds (the stated tolerance for 32f is 1e-6 of the
// values' magnitude, which leaves room for a reordering).
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/resize_simd.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "geometry/resize_engine.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// Linear 8u along a row: pairs of taps from one (C1, C3) or two (C4) 32-bit gathers.
template <int kPitch>
void linH8(const Lum8u* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off,
           const int16_t* HWY_RESTRICT wq, int n, int pitch, int safe, int16_t* HWY_RESTRICT h) {
  const hn::ScalableTag<int32_t> d;
  const hn::RebindToUnsigned<decltype(d)> du;
  const hn::Rebind<int16_t, decltype(d)> d16;
  const int N = static_cast<int>(hn::Lanes(d));
  const int32_t* base = reinterpret_cast<const int32_t*>(s);
  const auto m8 = hn::Set(d, 0xFF), m16 = hn::Set(d, 0xFFFF);
  int e = 0;
  for (; e + N <= safe; e += N) {
    const auto o = hn::LoadU(d, off + e);
    const auto v = hn::GatherOffset(d, base, o);
    const auto p0 = hn::And(v, m8);
    hn::Vec<decltype(d)> p1;
    if constexpr (kPitch == 1) {
      p1 = hn::And(hn::ShiftRight<8>(v), m8);
    } else if constexpr (kPitch == 3) {
      p1 = hn::BitCast(d, hn::ShiftRight<24>(hn::BitCast(du, v)));
    } else {
      p1 = hn::And(hn::GatherOffset(d, base, hn::Add(o, hn::Set(d, kPitch))), m8);
    }
    const auto wp = hn::LoadU(d, reinterpret_cast<const int32_t*>(wq + 2 * e));
    const auto hv = hn::Add(hn::Mul(p0, hn::And(wp, m16)), hn::Mul(p1, hn::ShiftRight<16>(wp)));
    hn::StoreU(hn::DemoteTo(d16, hn::ShiftRight<8>(hv)), d16, h + e);
  }
  if (e < n) resize::linH8Scalar(s, off + e, wq + 2 * e, n - e, pitch, 0, h + e);
}

// Linear 8u down the columns: (h0 16384 + (h1 - h0) wy + 2^19) >> 20, the same integer.
void linV8(const int16_t* HWY_RESTRICT h0, const int16_t* HWY_RESTRICT h1, int wy, int n,
           Lum8u* HWY_RESTRICT dst, bool keepAlpha) {
  const hn::ScalableTag<int32_t> d;
  const hn::Rebind<int16_t, decltype(d)> d16;
  const hn::Rebind<uint8_t, decltype(d)> d8;
  const int N = static_cast<int>(hn::Lanes(d));
  const auto w = hn::Set(d, wy), half = hn::Set(d, 1 << 19);
  const auto colour = colourLanes(d8);
  int e = 0;
  for (; e + N <= n; e += N) {
    const auto a = hn::PromoteTo(d, hn::LoadU(d16, h0 + e));
    const auto b = hn::PromoteTo(d, hn::LoadU(d16, h1 + e));
    const auto v = hn::ShiftRight<20>(hn::Add(hn::Add(hn::ShiftLeft<14>(a), hn::Mul(hn::Sub(b, a), w)), half));
    storeColour(d8, hn::DemoteTo(d8, v), dst + e, keepAlpha, colour);
  }
  if (e < n) resize::linV8Scalar(h0 + e, h1 + e, wy, n - e, dst + e, keepAlpha);
}

template <int kPitch>
void linHf(const float* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off,
           const float* HWY_RESTRICT wf, int n, int pitch, int safe, float* HWY_RESTRICT h) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const int N = static_cast<int>(hn::Lanes(df));
  int e = 0;
  for (; e + N <= n; e += N) {
    const auto o = hn::LoadU(di, off + e);
    const auto p0 = hn::GatherIndex(df, s, o);
    const auto p1 = hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, kPitch)));
    hn::Vec<decltype(df)> w0, w1;
    hn::LoadInterleaved2(df, wf + 2 * e, w0, w1);
    hn::StoreU(hn::Add(hn::Mul(p0, w0), hn::Mul(p1, w1)), df, h + e);
  }
  if (e < n) resize::linHfScalar(s, off + e, wf + 2 * e, n - e, pitch, 0, h + e);
}

void linVf(const float* HWY_RESTRICT h0, const float* HWY_RESTRICT h1, float w0, float w1, int n,
           float* HWY_RESTRICT dst, bool keepAlpha) {
  const hn::ScalableTag<float> df;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto a = hn::Set(df, w0), b = hn::Set(df, w1);
  const auto colour = colourLanes(df);
  int e = 0;
  for (; e + N <= n; e += N)
    storeColour(df, hn::Add(hn::Mul(hn::LoadU(df, h0 + e), a), hn::Mul(hn::LoadU(df, h1 + e), b)),
                dst + e, keepAlpha, colour);
  if (e < n) resize::linVfScalar(h0 + e, h1 + e, w0, w1, n - e, dst + e, keepAlpha);
}

// The Newton form of resize_kernels.h / cubic.h, operation for operation.
template <class D, class V>
HWY_INLINE V newton(D df, V p0, V p1, V p2, V p3, V a, V b, V c) {
  const V two = hn::Set(df, 2.0f), three = hn::Set(df, 3.0f);
  const V d1 = hn::Sub(p1, p0);
  const V d2 = hn::Add(hn::Sub(p2, hn::Mul(two, p1)), p0);
  const V d3 = hn::Sub(hn::Add(hn::Sub(p3, hn::Mul(three, p2)), hn::Mul(three, p1)), p0);
  return hn::Add(hn::Add(hn::Add(p0, hn::Mul(a, d1)), hn::Mul(b, d2)), hn::Mul(c, d3));
}

// Cubic along a row: four taps per element (8u from 32-bit gathers, 32f gathered directly).
template <class T, int kPitch>
void cubH(const T* HWY_RESTRICT s, const int32_t* HWY_RESTRICT off, const float* HWY_RESTRICT k,
          int n, int pitch, int safe, float* HWY_RESTRICT r) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::RebindToUnsigned<decltype(df)> du;
  const int N = static_cast<int>(hn::Lanes(df));
  using V = hn::Vec<decltype(df)>;
  int e = 0;
  for (; e + N <= safe; e += N) {
    const auto o = hn::LoadU(di, off + e);
    V p0, p1, p2, p3;
    if constexpr (std::is_same_v<T, float>) {
      p0 = hn::GatherIndex(df, s, o);
      p1 = hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, kPitch)));
      p2 = hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, 2 * kPitch)));
      p3 = hn::GatherIndex(df, s, hn::Add(o, hn::Set(di, 3 * kPitch)));
    } else {
      const int32_t* base = reinterpret_cast<const int32_t*>(s);
      const auto m8 = hn::Set(di, 0xFF);
      auto byteAt = [&](auto v, auto shift) {
        return hn::ConvertTo(df, hn::BitCast(di, hn::And(hn::ShiftRight<decltype(shift)::value>(hn::BitCast(du, v)), hn::BitCast(du, m8))));
      };
      using S0 = std::integral_constant<int, 0>;
      using S8 = std::integral_constant<int, 8>;
      using S16 = std::integral_constant<int, 16>;
      using S24 = std::integral_constant<int, 24>;
      if constexpr (kPitch == 1) {
        const auto v = hn::GatherOffset(di, base, o);
        p0 = byteAt(v, S0()), p1 = byteAt(v, S8()), p2 = byteAt(v, S16()), p3 = byteAt(v, S24());
      } else if constexpr (kPitch == 3) {
        const auto v = hn::GatherOffset(di, base, o);
        const auto w = hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 6)));
        p0 = byteAt(v, S0()), p1 = byteAt(v, S24()), p2 = byteAt(w, S0()), p3 = byteAt(w, S24());
      } else {
        p0 = byteAt(hn::GatherOffset(di, base, o), S0());
        p1 = byteAt(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, kPitch))), S0());
        p2 = byteAt(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 2 * kPitch))), S0());
        p3 = byteAt(hn::GatherOffset(di, base, hn::Add(o, hn::Set(di, 3 * kPitch))), S0());
      }
    }
    V a, b, c;
    hn::LoadInterleaved3(df, k + 3 * e, a, b, c);
    hn::StoreU(newton(df, p0, p1, p2, p3, a, b, c), df, r + e);
  }
  if (e < n) resize::cubHScalar(s, off + e, k + 3 * e, n - e, pitch, 0, r + e);
}

template <class T>
void cubV(const float* const* rows, const float* k, int n, T* HWY_RESTRICT dst, bool keepAlpha) {
  const hn::ScalableTag<float> df;
  const hn::RebindToSigned<decltype(df)> di;
  const hn::Rebind<T, decltype(df)> dt;
  const int N = static_cast<int>(hn::Lanes(df));
  const auto a = hn::Set(df, k[0]), b = hn::Set(df, k[1]), c = hn::Set(df, k[2]);
  const float *r0 = rows[0], *r1 = rows[1], *r2 = rows[2], *r3 = rows[3];
  const auto colour = colourLanes(dt);
  int e = 0;
  for (; e + N <= n; e += N) {
    const auto v = newton(df, hn::LoadU(df, r0 + e), hn::LoadU(df, r1 + e), hn::LoadU(df, r2 + e),
                          hn::LoadU(df, r3 + e), a, b, c);
    if constexpr (std::is_same_v<T, float>) {
      storeColour(df, v, dst + e, keepAlpha, colour);
    } else {
      const float hi = static_cast<float>(std::numeric_limits<T>::max());
      auto q = hn::Add(v, hn::Set(df, 0.5000001f));
      q = hn::Min(hn::Max(q, hn::Zero(df)), hn::Set(df, hi));
      storeColour(dt, hn::DemoteTo(dt, hn::ConvertTo(di, q)), dst + e, keepAlpha, colour);
    }
  }
  if (e < n) {
    const float* rest[4] = {r0 + e, r1 + e, r2 + e, r3 + e};
    resize::cubVScalar<T>(rest, k, n - e, dst + e, keepAlpha);
  }
}

#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace resize {

LinH8Fn pickLinH8(int pitch, int* span) {
  LUMI_SIMD_TABLE(LinH8Fn, t1, linH8<1>);
  LUMI_SIMD_TABLE(LinH8Fn, t3, linH8<3>);
  LUMI_SIMD_TABLE(LinH8Fn, t4, linH8<4>);
  const LinH8Fn f = pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &linH8Scalar);
  *span = f == &linH8Scalar ? 0 : pitch == 4 ? 8 : 4;
  return f;
}
LinV8Fn pickLinV8() {
  LUMI_SIMD_TABLE(LinV8Fn, t, linV8);
  return pick(t, &linV8Scalar);
}
LinHfFn pickLinHf(int pitch) {
  LUMI_SIMD_TABLE(LinHfFn, t1, linHf<1>);
  LUMI_SIMD_TABLE(LinHfFn, t3, linHf<3>);
  LUMI_SIMD_TABLE(LinHfFn, t4, linHf<4>);
  return pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &linHfScalar);
}
LinVfFn pickLinVf() {
  LUMI_SIMD_TABLE(LinVfFn, t, linVf);
  return pick(t, &linVfScalar);
}

template <>
CubHFn<Lum8u> pickCubH<Lum8u>(int pitch, int* span) {
  LUMI_SIMD_TABLE(CubHFn<Lum8u>, t1, cubH<Lum8u, 1>);
  LUMI_SIMD_TABLE(CubHFn<Lum8u>, t3, cubH<Lum8u, 3>);
  LUMI_SIMD_TABLE(CubHFn<Lum8u>, t4, cubH<Lum8u, 4>);
  const CubHFn<Lum8u> f = pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &cubHScalar<Lum8u>);
  *span = f == &cubHScalar<Lum8u> ? 0 : pitch == 1 ? 4 : pitch == 3 ? 10 : 16;
  return f;
}
template <>
CubHFn<Lum32f> pickCubH<Lum32f>(int pitch, int* span) {
  LUMI_SIMD_TABLE(CubHFn<Lum32f>, t1, cubH<Lum32f, 1>);
  LUMI_SIMD_TABLE(CubHFn<Lum32f>, t3, cubH<Lum32f, 3>);
  LUMI_SIMD_TABLE(CubHFn<Lum32f>, t4, cubH<Lum32f, 4>);
  *span = 0;
  return pick(pitch == 1 ? t1 : pitch == 3 ? t3 : t4, &cubHScalar<Lum32f>);
}
template <>
CubHFn<Lum16u> pickCubH<Lum16u>(int, int* span) {
  *span = 0;
  return &cubHScalar<Lum16u>;
}
template <class T>
CubVFn<T> pickCubV() {
  LUMI_SIMD_TABLE(CubVFn<T>, t, cubV<T>);
  return pick(t, &cubVScalar<T>);
}
template CubVFn<Lum8u> pickCubV<Lum8u>();
template CubVFn<Lum16u> pickCubV<Lum16u>();
template CubVFn<Lum32f> pickCubV<Lum32f>();

}  // namespace resize
}  // namespace lumi
#endif  // HWY_ONCE
