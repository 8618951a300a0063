// Vector row kernels of the scaled integer arithmetic, compiled once per SIMD target (included
// by each kernel source inside its per-target pass). They match the scalar kernels of
// scaled_kernels.h bit for bit; row tails go through the same per-element rules.

#if defined(LUMI_ARITH_SCALED_SIMD_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_ARITH_SCALED_SIMD_INL_H_
#undef LUMI_ARITH_SCALED_SIMD_INL_H_
#else
#define LUMI_ARITH_SCALED_SIMD_INL_H_
#endif

#include "hwy/highway.h"
#include "arith/scaled_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace scaledv {

namespace hn = hwy::HWY_NAMESPACE;
using scaled::kAdd;
using scaled::kMul;
using scaled::kSub;

template <class T>
struct WideOf;
template <>
struct WideOf<uint8_t> {
  using type = uint16_t;
  static constexpr int kMaxShift = 8;  // 255 << 8 still fits; 1 << 8 already saturates
};
template <>
struct WideOf<uint16_t> {
  using type = uint32_t;
  static constexpr int kMaxShift = 16;
};
template <>
struct WideOf<int16_t> {
  using type = int32_t;
  static constexpr int kMaxShift = 16;
};

// Lanes that are not the fourth element of a pixel (vectors always start on a pixel).
template <class D>
HWY_INLINE hn::Mask<D> ColourLanes(D d) {
  const auto three = hn::Set(d, hn::TFromD<D>(3));
  return hn::Ne(hn::And(hn::Iota(d, 0), three), three);
}

// Stores v; for AC4 rows the alpha lanes keep what the destination held.
template <class D, class V, class M>
HWY_INLINE void StoreKeep(D d, V v, hn::TFromD<D>* p, int ac4, M colour) {
  if (ac4) v = hn::IfThenElse(colour, v, hn::LoadU(d, p));
  hn::StoreU(v, d, p);
}

template <int op, class T>
HWY_INLINE void TailRow(const T* s1, const T* s2, T* d, int i, int n, int sf, int ac4) {
  for (; i < n; ++i)
    if (!(ac4 && (i & 3) == 3)) d[i] = scaled::scaledElem<op, T>(s1[i], s2[i], sf);
}

// Scale factor 0 of Add and Sub: the native saturating operations at full width (unsigned
// subtraction saturating at zero is exactly the clamped difference).
template <int op, class T>
HWY_INLINE void SaturatingRow(const T* s1, const T* s2, T* d, int n, int ac4) {
  const hn::ScalableTag<T> dt;
  const int N = static_cast<int>(hn::Lanes(dt));
  const auto colour = ColourLanes(dt);
  int i = 0;
  for (; i + 2 * N <= n; i += 2 * N) {
    const auto a0 = hn::LoadU(dt, s1 + i), b0 = hn::LoadU(dt, s2 + i);
    const auto a1 = hn::LoadU(dt, s1 + i + N), b1 = hn::LoadU(dt, s2 + i + N);
    const auto r0 = op == kAdd ? hn::SaturatedAdd(a0, b0) : hn::SaturatedSub(b0, a0);
    const auto r1 = op == kAdd ? hn::SaturatedAdd(a1, b1) : hn::SaturatedSub(b1, a1);
    StoreKeep(dt, r0, d + i, ac4, colour);
    StoreKeep(dt, r1, d + i + N, ac4, colour);
  }
  for (; i + N <= n; i += N) {
    const auto a = hn::LoadU(dt, s1 + i), b = hn::LoadU(dt, s2 + i);
    StoreKeep(dt, op == kAdd ? hn::SaturatedAdd(a, b) : hn::SaturatedSub(b, a), d + i, ac4,
              colour);
  }
  TailRow<op, T>(s1, s2, d, i, n, 0, ac4);
}

// Every other case in lanes of twice the width: the exact result, then (kMode 1) the right
// shift rounding ties to even, or (kMode 2) the saturating left shift, then saturation.
// The rounding compares the dropped bits with half minus the kept lowest bit, which is the
// add-half-then-shift rule without the overflow of the addition.
template <int op, class T, int kMode>
HWY_INLINE void WideRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  using W = typename WideOf<T>::type;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<T, decltype(dw)> dh;
  const hn::RebindToSigned<decltype(dw)> dws;
  const int N = static_cast<int>(hn::Lanes(dw));
  const auto colour = ColourLanes(dh);
  int shift = 0;
  W maskBits = 0, half = 0;
  if (kMode == 1) {
    shift = sf;
    maskBits = static_cast<W>((uint64_t(1) << sf) - 1);
    half = static_cast<W>(uint64_t(1) << (sf - 1));
  } else if (kMode == 2) {
    shift = sf < -WideOf<T>::kMaxShift ? WideOf<T>::kMaxShift : -sf;
  }
  const auto vmask = hn::Set(dw, maskBits), vhalf = hn::Set(dw, half), one = hn::Set(dw, W(1));
  const auto hi = hn::Set(dw, W(std::numeric_limits<T>::max()));
  const auto lo = hn::Set(dw, W(std::numeric_limits<T>::min()));
  int i = 0;
  for (; i + N <= n; i += N) {
    const auto ah = hn::LoadU(dh, s1 + i), bh = hn::LoadU(dh, s2 + i);
    hn::Vec<decltype(dw)> r;
    if constexpr (op == kAdd) {
      r = hn::Add(hn::PromoteTo(dw, ah), hn::PromoteTo(dw, bh));
    } else if constexpr (op == kSub) {
      if constexpr (std::is_unsigned_v<T>)
        r = hn::PromoteTo(dw, hn::SaturatedSub(bh, ah));
      else
        r = hn::Sub(hn::PromoteTo(dw, bh), hn::PromoteTo(dw, ah));
    } else {
      r = hn::Mul(hn::PromoteTo(dw, ah), hn::PromoteTo(dw, bh));
    }
    if constexpr (kMode == 1) {
      const auto q = hn::ShiftRightSame(r, shift);
      const auto up = hn::Gt(hn::And(r, vmask), hn::Sub(vhalf, hn::And(q, one)));
      r = hn::Sub(q, hn::VecFromMask(dw, up));
    } else if constexpr (kMode == 2) {
      r = hn::ShiftLeftSame(hn::Min(hn::Max(r, lo), hi), shift);
    }
    r = hn::Min(hn::Max(r, lo), hi);
    StoreKeep(dh, hn::DemoteTo(dh, hn::BitCast(dws, r)), d + i, ac4, colour);
  }
  TailRow<op, T>(s1, s2, d, i, n, sf, ac4);
}

template <int op, class T>
HWY_NOINLINE int ArithRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  if (sf == 0) {
    if constexpr (op == kMul)
      WideRow<op, T, 0>(s1, s2, d, n, sf, ac4);
    else
      SaturatingRow<op, T>(s1, s2, d, n, ac4);
  } else if (sf > 0) {
    WideRow<op, T, 1>(s1, s2, d, n, sf, ac4);
  } else {
    WideRow<op, T, 2>(s1, s2, d, n, sf, ac4);
  }
  return 0;
}

}  // namespace scaledv
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif
