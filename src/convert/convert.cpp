// Element type conversion: exact widening, saturating narrowing and float to integer under the
// rounding mode the caller selects. This file also holds every conversion row kernel, vector
// and scalar, including the ones the range scalings use.
//
// Products and sums are rounded one by one in single precision: the vector kernels must give
// the scalar kernels' bits, so no multiply-add may be fused.

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/convert/convert.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"

#include "core/frame.h"
#include "convert/convert_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128
RowFn GetKernel(int) { return nullptr; }  // the portable baseline is never dispatched to
#else
// Each operation converts one vector: it names its source and destination element types and
// the working lane type W whose full vector sets the number of elements done per step.

template <class S, class D>
struct Widen {  // integer to wider integer
  using TS = S;
  using TD = D;
  using W = D;
  explicit Widen(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v) const {
    return hn::PromoteTo(dw, v);
  }
};

template <class DF, class V>
HWY_INLINE hn::Vec<DF> ToFloat(DF df, V v) {
  using T = hn::TFromV<V>;
  if constexpr (std::is_same_v<T, float>) {
    return v;
  } else if constexpr (sizeof(T) == 4) {
    return hn::ConvertTo(df, v);  // rounds by the current mode beyond 2^24
  } else {
    return hn::ConvertTo(df, hn::PromoteTo(hn::Rebind<int32_t, DF>(), v));
  }
}

template <class S>
struct WidenToFloat {  // small integers to 32f, exact
  using TS = S;
  using TD = float;
  using W = float;
  explicit WidenToFloat(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW df, V v) const {
    return ToFloat(df, v);
  }
};

template <class S, class D>
struct Narrow {  // saturating integer narrowing
  using TS = S;
  using TD = D;
  using W = S;
  explicit Narrow(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v) const {
    const hn::Rebind<D, DW> dd;
    if constexpr (std::is_same_v<S, uint16_t>) {  // unsigned source: clamp, then pack
      const hn::Rebind<int16_t, DW> di;
      return hn::DemoteTo(dd, hn::BitCast(di, hn::Min(v, hn::Set(dw, uint16_t{255}))));
    } else {
      return hn::DemoteTo(dd, v);
    }
  }
};

// Clamps to [lo, hi] (NaN gives lo, as maxps does) and rounds, leaving the integer in the
// low bits of each 32-bit lane (two's complement in the low 16 bits), which the packing below
// keeps. Adding M = 1.5 * 2^23 to a value of magnitude below 2^22 rounds it to an integer by
// the current mode, exactly as a conversion instruction would, and leaves M + r in the sum.
// The one exception is toward zero for negative values (the sum is positive, so they would
// round down): signed ranges under that mode truncate first, which the caller says by
// `truncate` (set exactly when the mode is toward zero), and the sum is then exact.
template <bool kSigned, class DF>
HWY_INLINE hn::Vec<hn::RebindToUnsigned<DF>> RoundToLowBits(DF df, hn::Vec<DF> v, float lo,
                                                            float hi, bool truncate) {
  v = hn::Min(hn::Max(v, hn::Set(df, lo)), hn::Set(df, hi));
  if (kSigned && truncate) v = hn::Trunc(v);
  return hn::BitCast(hn::RebindToUnsigned<DF>(), hn::Add(v, hn::Set(df, 12582912.0f)));
}

template <class D>
struct FloatToInt {
  using TS = float;
  using TD = D;
  bool truncate;
  explicit FloatToInt(const RowParams& p) : truncate(p.truncate) {}
  template <class DF, class V>
  HWY_INLINE auto operator()(DF df, V v) const {
    return RoundToLowBits<std::is_signed_v<D>>(df, v, float(std::numeric_limits<D>::min()),
                                               float(std::numeric_limits<D>::max()), truncate);
  }
};

struct Scale8u16u {  // v * 257
  using TS = uint8_t;
  using TD = uint16_t;
  using W = uint16_t;
  explicit Scale8u16u(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v) const {
    auto w = hn::PromoteTo(dw, v);
    return hn::Or(hn::ShiftLeft<8>(w), w);
  }
};

struct Scale8u16s {  // v * 257 - 32768
  using TS = uint8_t;
  using TD = int16_t;
  using W = int16_t;
  explicit Scale8u16s(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v) const {
    auto w = hn::PromoteTo(dw, v);
    return hn::Xor(hn::Or(hn::ShiftLeft<8>(w), w), hn::Set(dw, int16_t(-32768)));
  }
};

struct Scale8u32s {  // v * 16843009 - 2^31
  using TS = uint8_t;
  using TD = int32_t;
  using W = int32_t;
  explicit Scale8u32s(const RowParams&) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v) const {
    auto w = hn::PromoteTo(dw, v);
    return hn::Xor(hn::Mul(w, hn::Set(dw, 0x01010101)), hn::Set(dw, int32_t(0x80000000u)));
  }
};

struct Scale8u32f {  // v * a + b
  using TS = uint8_t;
  using TD = float;
  using W = float;
  float a, b;
  explicit Scale8u32f(const RowParams& p) : a(p.a), b(p.b) {}
  template <class DW, class V>
  HWY_INLINE auto operator()(DW df, V v) const {
    return hn::Add(hn::Mul(ToFloat(df, v), hn::Set(df, a)), hn::Set(df, b));
  }
};

template <class S>
struct ScaleTo8u {  // (v + off) * a - b, rounded by the current mode, saturated to 0..255
  using TS = S;
  using TD = uint8_t;
  float off, a, b;
  explicit ScaleTo8u(const RowParams& p) : off(p.off), a(p.a), b(p.b) {}
  template <class DF, class V>
  HWY_INLINE auto operator()(DF df, V v) const {
    auto t = hn::Mul(hn::Add(ToFloat(df, v), hn::Set(df, off)), hn::Set(df, a));
    return RoundToLowBits<false>(df, hn::Sub(t, hn::Set(df, b)), 0.0f, 255.0f, false);
  }
};

// Float work narrowed to 8 or 16 bits: Op leaves each result in the low bits of a 32-bit lane
// and 4 / sizeof(TD) such vectors pack, in order, into one full destination vector.
template <class Op, class TS, class TD>
HWY_INLINE void PackedBlock(const Op& op, const TS* s, TD* d) {
  const hn::ScalableTag<float> df;
  const hn::Rebind<TS, decltype(df)> ds;
  const hn::ScalableTag<uint16_t> du16;
  const hn::ScalableTag<TD> dd;
  const std::size_t N = hn::Lanes(df);
  auto lo = hn::ConcatEven(du16, hn::BitCast(du16, op(df, hn::LoadU(ds, s + N))),
                           hn::BitCast(du16, op(df, hn::LoadU(ds, s))));
  if constexpr (sizeof(TD) == 2) {
    hn::StoreU(hn::BitCast(dd, lo), dd, d);
  } else {
    const hn::ScalableTag<uint8_t> du8;
    auto hi = hn::ConcatEven(du16, hn::BitCast(du16, op(df, hn::LoadU(ds, s + 3 * N))),
                             hn::BitCast(du16, op(df, hn::LoadU(ds, s + 2 * N))));
    hn::StoreU(hn::BitCast(dd, hn::ConcatEven(du8, hn::BitCast(du8, hi), hn::BitCast(du8, lo))),
               dd, d);
  }
}

template <class Op>
void PackedRowLoop(const void* srcv, void* dstv, std::ptrdiff_t n, const RowParams& p) {
  using TS = typename Op::TS;
  using TD = typename Op::TD;
  const Op op(p);
  const TS* s = static_cast<const TS*>(srcv);
  TD* d = static_cast<TD*>(dstv);
  const std::ptrdiff_t B = static_cast<std::ptrdiff_t>(hn::Lanes(hn::ScalableTag<TD>()));
  std::ptrdiff_t i = 0;
  for (; i + 2 * B <= n; i += 2 * B) {
    PackedBlock(op, s + i, d + i);
    PackedBlock(op, s + i + B, d + i + B);
  }
  for (; i + B <= n; i += B) PackedBlock(op, s + i, d + i);
  if (i < n) {
    constexpr std::size_t kMax = HWY_MAX_BYTES / sizeof(TD);
    HWY_ALIGN TS sb[kMax] = {};
    HWY_ALIGN TD db[kMax];
    const std::size_t m = static_cast<std::size_t>(n - i);
    std::memcpy(sb, s + i, m * sizeof(TS));
    PackedBlock(op, sb, db);
    std::memcpy(d + i, db, m * sizeof(TD));
  }
}

// One row of n elements through Op, four vectors per step; the last partial vector goes
// through a zero-padded buffer.
template <class Op>
void RowLoop(const void* srcv, void* dstv, std::ptrdiff_t n, const RowParams& p) {
  using TS = typename Op::TS;
  using TD = typename Op::TD;
  using W = typename Op::W;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<TS, decltype(dw)> ds;
  const hn::Rebind<TD, decltype(dw)> dd;
  const Op op(p);
  const TS* s = static_cast<const TS*>(srcv);
  TD* d = static_cast<TD*>(dstv);
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
  std::ptrdiff_t i = 0;
  for (; i + 4 * N <= n; i += 4 * N) {
    auto v0 = hn::LoadU(ds, s + i);
    auto v1 = hn::LoadU(ds, s + i + N);
    auto v2 = hn::LoadU(ds, s + i + 2 * N);
    auto v3 = hn::LoadU(ds, s + i + 3 * N);
    hn::StoreU(op(dw, v0), dd, d + i);
    hn::StoreU(op(dw, v1), dd, d + i + N);
    hn::StoreU(op(dw, v2), dd, d + i + 2 * N);
    hn::StoreU(op(dw, v3), dd, d + i + 3 * N);
  }
  for (; i + N <= n; i += N) hn::StoreU(op(dw, hn::LoadU(ds, s + i)), dd, d + i);
  if (i < n) {
    constexpr std::size_t kMax = HWY_MAX_BYTES / sizeof(W);
    HWY_ALIGN TS sb[kMax] = {};
    HWY_ALIGN TD db[kMax];
    const std::size_t m = static_cast<std::size_t>(n - i);
    std::memcpy(sb, s + i, m * sizeof(TS));
    hn::Store(op(dw, hn::Load(ds, sb)), dd, db);
    std::memcpy(d + i, db, m * sizeof(TD));
  }
}

RowFn GetKernel(int k) {
  switch (static_cast<Kernel>(k)) {
    case Kernel::k8u16u: return &RowLoop<Widen<uint8_t, uint16_t>>;
    case Kernel::k8u32s: return &RowLoop<Widen<uint8_t, int32_t>>;
    case Kernel::k8u32f: return &RowLoop<WidenToFloat<uint8_t>>;
    case Kernel::k8s32s: return &RowLoop<Widen<int8_t, int32_t>>;
    case Kernel::k8s32f: return &RowLoop<WidenToFloat<int8_t>>;
    case Kernel::k16u32s: return &RowLoop<Widen<uint16_t, int32_t>>;
    case Kernel::k16u32f: return &RowLoop<WidenToFloat<uint16_t>>;
    case Kernel::k16s32f: return &RowLoop<WidenToFloat<int16_t>>;
    case Kernel::k16u8u: return &RowLoop<Narrow<uint16_t, uint8_t>>;
    case Kernel::k16s8u: return &RowLoop<Narrow<int16_t, uint8_t>>;
    case Kernel::k32s8u: return &RowLoop<Narrow<int32_t, uint8_t>>;
    case Kernel::k32s8s: return &RowLoop<Narrow<int32_t, int8_t>>;
    case Kernel::k32f8u: return &PackedRowLoop<FloatToInt<uint8_t>>;
    case Kernel::k32f8s: return &PackedRowLoop<FloatToInt<int8_t>>;
    case Kernel::k32f16u: return &PackedRowLoop<FloatToInt<uint16_t>>;
    case Kernel::k32f16s: return &PackedRowLoop<FloatToInt<int16_t>>;
    case Kernel::kScale8u16u: return &RowLoop<Scale8u16u>;
    case Kernel::kScale8u16s: return &RowLoop<Scale8u16s>;
    case Kernel::kScale8u32s: return &RowLoop<Scale8u32s>;
    case Kernel::kScale8u32f: return &RowLoop<Scale8u32f>;
    case Kernel::kScale16u8u: return &PackedRowLoop<ScaleTo8u<uint16_t>>;
    case Kernel::kScale16s8u: return &PackedRowLoop<ScaleTo8u<int16_t>>;
    case Kernel::kScale32s8u: return &PackedRowLoop<ScaleTo8u<int32_t>>;
    case Kernel::kScale32f8u: return &PackedRowLoop<ScaleTo8u<float>>;
    default: return nullptr;
  }
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include <xmmintrin.h>

#include "core/simd.h"

namespace lumi {
namespace {

// ---- scalar kernels ------------------------------------------------------------------------
// max/min with the operand order of maxps/minps: a NaN first operand yields the second.
inline float maxps1(float a, float b) { return a > b ? a : b; }
inline float minps1(float a, float b) { return a < b ? a : b; }

// Float to int32 by the current rounding mode of the SSE unit.
inline int roundByMode(float v) { return _mm_cvtss_si32(_mm_set_ss(v)); }

template <class T>
inline float toFloat(T v) {
  return static_cast<float>(v);  // cvtsi2ss for 32-bit values: rounds by the current mode
}

template <class D>
inline D roundSaturate(float v, float lo, float hi) {
  return static_cast<D>(roundByMode(minps1(maxps1(v, lo), hi)));
}

template <class S, class D>
struct ScalarWiden {
  static D apply(S v, const RowParams&) { return static_cast<D>(v); }
};
template <class S>
struct ScalarWidenToFloat {
  static float apply(S v, const RowParams&) { return toFloat(v); }
};
template <class S, class D>
struct ScalarNarrow {
  static D apply(S v, const RowParams&) { return saturate<D>(v); }
};
template <class D>
struct ScalarFloatToInt {
  static D apply(float v, const RowParams&) {
    return roundSaturate<D>(v, float(std::numeric_limits<D>::min()),
                            float(std::numeric_limits<D>::max()));
  }
};
struct ScalarScale8u16u {
  static uint16_t apply(uint8_t v, const RowParams&) { return static_cast<uint16_t>(v * 257); }
};
struct ScalarScale8u16s {
  static int16_t apply(uint8_t v, const RowParams&) {
    return static_cast<int16_t>(v * 257 - 32768);
  }
};
struct ScalarScale8u32s {
  static int32_t apply(uint8_t v, const RowParams&) {
    return static_cast<int32_t>((v * 0x01010101u) ^ 0x80000000u);
  }
};
struct ScalarScale8u32f {
  static float apply(uint8_t v, const RowParams& p) {
    float t = toFloat(v) * p.a;
    return t + p.b;
  }
};
template <class S>
struct ScalarScaleTo8u {
  static uint8_t apply(S v, const RowParams& p) {
    float t = (toFloat(v) + p.off) * p.a;
    return roundSaturate<uint8_t>(t - p.b, 0.0f, 255.0f);
  }
};

template <class S, class D, class Op>
void scalarRow(const void* srcv, void* dstv, std::ptrdiff_t n, const RowParams& p) {
  const S* s = static_cast<const S*>(srcv);
  D* d = static_cast<D*>(dstv);
  for (std::ptrdiff_t i = 0; i < n; ++i) d[i] = Op::apply(s[i], p);
}

constexpr RowFn kScalarKernels[] = {
    &scalarRow<uint8_t, uint16_t, ScalarWiden<uint8_t, uint16_t>>,
    &scalarRow<uint8_t, int32_t, ScalarWiden<uint8_t, int32_t>>,
    &scalarRow<uint8_t, float, ScalarWidenToFloat<uint8_t>>,
    &scalarRow<int8_t, int32_t, ScalarWiden<int8_t, int32_t>>,
    &scalarRow<int8_t, float, ScalarWidenToFloat<int8_t>>,
    &scalarRow<uint16_t, int32_t, ScalarWiden<uint16_t, int32_t>>,
    &scalarRow<uint16_t, float, ScalarWidenToFloat<uint16_t>>,
    &scalarRow<int16_t, float, ScalarWidenToFloat<int16_t>>,
    &scalarRow<uint16_t, uint8_t, ScalarNarrow<uint16_t, uint8_t>>,
    &scalarRow<int16_t, uint8_t, ScalarNarrow<int16_t, uint8_t>>,
    &scalarRow<int32_t, uint8_t, ScalarNarrow<int32_t, uint8_t>>,
    &scalarRow<int32_t, int8_t, ScalarNarrow<int32_t, int8_t>>,
    &scalarRow<float, uint8_t, ScalarFloatToInt<uint8_t>>,
    &scalarRow<float, int8_t, ScalarFloatToInt<int8_t>>,
    &scalarRow<float, uint16_t, ScalarFloatToInt<uint16_t>>,
    &scalarRow<float, int16_t, ScalarFloatToInt<int16_t>>,
    &scalarRow<uint8_t, uint16_t, ScalarScale8u16u>,
    &scalarRow<uint8_t, int16_t, ScalarScale8u16s>,
    &scalarRow<uint8_t, int32_t, ScalarScale8u32s>,
    &scalarRow<uint8_t, float, ScalarScale8u32f>,
    &scalarRow<uint16_t, uint8_t, ScalarScaleTo8u<uint16_t>>,
    &scalarRow<int16_t, uint8_t, ScalarScaleTo8u<int16_t>>,
    &scalarRow<int32_t, uint8_t, ScalarScaleTo8u<int32_t>>,
    &scalarRow<float, uint8_t, ScalarScaleTo8u<float>>,
};
static_assert(sizeof(kScalarKernels) / sizeof(kScalarKernels[0]) ==
                  static_cast<std::size_t>(Kernel::kCount),
              "one scalar kernel per entry of Kernel");

using GetKernelFn = RowFn (*)(int);
LUMI_SIMD_TABLE(GetKernelFn, kSimdKernels, GetKernel);

// ---- Convert -------------------------------------------------------------------------------
template <class L, class TS, class TD>
LumStatus convertImpl(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                      Kernel k) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  convertRows<L>(src, srcStep, dst, dstStep, roi, rowKernel(k), RowParams{});
  return lumStatusOk;
}

// Float to integer: the caller's selector picks the SSE rounding mode for the call.
template <class L, class TD>
LumStatus convertFloatImpl(const float* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                           int roundMode, Kernel k) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  RowFn fn = rowKernel(k);
  ConversionRounding rounding(roundMode);
  RowParams p;
  p.truncate = roundMode != lumRndNear;  // the mode just set, for kernels that round explicitly
  convertRows<L>(src, srcStep, dst, dstStep, roi, fn, p);
  return lumStatusOk;
}

}  // namespace

RowFn rowKernel(Kernel k) {
  if (auto get = pickSimd(kSimdKernels)) return get(static_cast<int>(k));
  return kScalarKernels[static_cast<int>(k)];
}

}  // namespace lumi

#define LUMI_CONVERT_ONE(ts, td, TS, TD, L, K)                                               \
  LUMI_API LumStatus lumiConvert_##ts##td##_##L##R(const TS* pSrc, int srcStep, TD* pDst,  \
                                                   int dstStep, LumiSize roiSize) {        \
    return lumi::convertImpl<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize,              \
                                      lumi::Kernel::K);                                   \
  }
#define LUMI_CONVERT(ts, td, TS, TD, K)          \
  LUMI_CONVERT_ONE(ts, td, TS, TD, C1, K)        \
  LUMI_CONVERT_ONE(ts, td, TS, TD, C3, K)        \
  LUMI_CONVERT_ONE(ts, td, TS, TD, AC4, K)       \
  LUMI_CONVERT_ONE(ts, td, TS, TD, C4, K)

#define LUMI_CONVERT_FLOAT_ONE(td, TD, L, K)                                                 \
  LUMI_API LumStatus lumiConvert_32f##td##_##L##R(const Lum32f* pSrc, int srcStep,         \
                                                  TD* pDst, int dstStep, LumiSize roiSize, \
                                                  int roundMode) {                         \
    return lumi::convertFloatImpl<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize,         \
                                           roundMode, lumi::Kernel::K);                   \
  }
#define LUMI_CONVERT_FLOAT(td, TD, K)          \
  LUMI_CONVERT_FLOAT_ONE(td, TD, C1, K)        \
  LUMI_CONVERT_FLOAT_ONE(td, TD, C3, K)        \
  LUMI_CONVERT_FLOAT_ONE(td, TD, AC4, K)       \
  LUMI_CONVERT_FLOAT_ONE(td, TD, C4, K)

// 8u16s shares the bits of 8u16u: every byte value fits both.
namespace lumi {
namespace {
template <class L>
LumStatus convert8u16s(const Lum8u* src, int srcStep, Lum16s* dst, int dstStep, LumiSize roi) {
  return convertImpl<L>(src, srcStep, reinterpret_cast<Lum16u*>(dst), dstStep, roi,
                        Kernel::k8u16u);
}
}  // namespace
}  // namespace lumi

extern "C" {
LUMI_CONVERT(8u, 16u, Lum8u, Lum16u, k8u16u)
LUMI_CONVERT(8u, 32s, Lum8u, Lum32s, k8u32s)
LUMI_CONVERT(8u, 32f, Lum8u, Lum32f, k8u32f)
LUMI_CONVERT(8s, 32s, Lum8s, Lum32s, k8s32s)
LUMI_CONVERT(8s, 32f, Lum8s, Lum32f, k8s32f)
LUMI_CONVERT(16u, 32s, Lum16u, Lum32s, k16u32s)
LUMI_CONVERT(16u, 32f, Lum16u, Lum32f, k16u32f)
LUMI_CONVERT(16s, 32f, Lum16s, Lum32f, k16s32f)
LUMI_CONVERT(16u, 8u, Lum16u, Lum8u, k16u8u)
LUMI_CONVERT(16s, 8u, Lum16s, Lum8u, k16s8u)
LUMI_CONVERT(32s, 8u, Lum32s, Lum8u, k32s8u)
LUMI_CONVERT(32s, 8s, Lum32s, Lum8s, k32s8s)
LUMI_CONVERT_FLOAT(8u, Lum8u, k32f8u)
LUMI_CONVERT_FLOAT(8s, Lum8s, k32f8s)
LUMI_CONVERT_FLOAT(16u, Lum16u, k32f16u)
LUMI_CONVERT_FLOAT(16s, Lum16s, k32f16s)

LUMI_API LumStatus lumiConvert_8u16s_C1R(const Lum8u* pSrc, int srcStep, Lum16s* pDst,
                                         int dstStep, LumiSize roiSize) {
  return lumi::convert8u16s<lumi::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
LUMI_API LumStatus lumiConvert_8u16s_C3R(const Lum8u* pSrc, int srcStep, Lum16s* pDst,
                                         int dstStep, LumiSize roiSize) {
  return lumi::convert8u16s<lumi::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
LUMI_API LumStatus lumiConvert_8u16s_AC4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst,
                                          int dstStep, LumiSize roiSize) {
  return lumi::convert8u16s<lumi::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
LUMI_API LumStatus lumiConvert_8u16s_C4R(const Lum8u* pSrc, int srcStep, Lum16s* pDst,
                                         int dstStep, LumiSize roiSize) {
  return lumi::convert8u16s<lumi::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
}  // extern "C"
#endif  // HWY_ONCE
