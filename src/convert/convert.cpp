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
#include "core/simd.h"
#include "convert/convert_kernels.h"
#include "core/alpha-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
namespace {  // kernels of this file only

template <class DF, class V>
HWY_INLINE hn::Vec<DF> toFloat(DF df, V v) {
  using T = hn::TFromV<V>;
  if constexpr (std::is_same_v<T, float>) {
    return v;
  } else if constexpr (sizeof(T) == 4) {
    return hn::ConvertTo(df, v);  // rounds by the current mode beyond 2^24
  } else {
    return hn::ConvertTo(df, hn::PromoteTo(hn::Rebind<int32_t, DF>(), v));
  }
}

// Clamps to [lo, hi] (NaN gives lo, as maxps does) and rounds, leaving the integer in the
// low bits of each 32-bit lane (two's complement in the low 16 bits), which the packing below
// keeps. Adding M = 1.5 * 2^23 to a value of magnitude below 2^22 rounds it to an integer by
// the current mode, exactly as a conversion instruction would, and leaves M + r in the sum.
// The one exception is toward zero for negative values (the sum is positive, so they would
// round down): signed ranges under that mode truncate first, which the caller says by
// `truncate` (set exactly when the mode is toward zero), and the sum is then exact.
template <bool kSigned, class DF>
HWY_INLINE hn::Vec<hn::RebindToUnsigned<DF>> roundToLowBits(DF df, hn::Vec<DF> v, float lo,
                                                            float hi, bool truncate) {
  v = hn::Min(hn::Max(v, hn::Set(df, lo)), hn::Set(df, hi));
  if (kSigned && truncate) v = hn::Trunc(v);
  return hn::BitCast(hn::RebindToUnsigned<DF>(), hn::Add(v, hn::Set(df, 12582912.0f)));
}

// One vector of kernel kind K from S to D. W is the lane type whose full vector sets the
// elements done per step (the wider of the two); the float-to-narrow kinds work in 32f lanes
// and leave each result in the low bits of a lane for packedBlock.
template <Kind K, class S, class D>
struct Op {
  using W = std::conditional_t<K == Kind::kNarrow, S, D>;
  static constexpr bool kPacked = K == Kind::kFloatToInt || K == Kind::kScaleTo8u;

  template <class DW, class V>
  HWY_INLINE auto operator()(DW dw, V v, const RowParams& p) const {
    if constexpr (K == Kind::kWiden) {
      if constexpr (std::is_same_v<D, float>) return toFloat(dw, v);
      else return hn::PromoteTo(dw, v);
    } else if constexpr (K == Kind::kNarrow) {
      const hn::Rebind<D, DW> dd;
      if constexpr (std::is_same_v<S, uint16_t>) {  // unsigned source: clamp, then pack
        const hn::Rebind<int16_t, DW> di;
        return hn::DemoteTo(dd, hn::BitCast(di, hn::Min(v, hn::Set(dw, uint16_t{255}))));
      } else {
        return hn::DemoteTo(dd, v);
      }
    } else if constexpr (K == Kind::kFloatToInt) {
      return roundToLowBits<std::is_signed_v<D>>(dw, v, float(std::numeric_limits<D>::min()),
                                                 float(std::numeric_limits<D>::max()),
                                                 p.truncate);
    } else if constexpr (K == Kind::kScaleUp) {
      const auto w = hn::PromoteTo(dw, v);
      auto r = hn::Or(hn::ShiftLeft<8>(w), w);                     // the byte twice
      if constexpr (sizeof(D) == 4) r = hn::Or(hn::ShiftLeft<16>(r), r);  // four times
      if constexpr (std::is_signed_v<D>) r = hn::Xor(r, hn::SignBit(dw));
      return r;
    } else if constexpr (K == Kind::kScaleToFloat) {
      return hn::Add(hn::Mul(toFloat(dw, v), hn::Set(dw, p.a)), hn::Set(dw, p.b));
    } else {
      auto t = hn::Mul(hn::Add(toFloat(dw, v), hn::Set(dw, p.off)), hn::Set(dw, p.a));
      return roundToLowBits<false>(dw, hn::Sub(t, hn::Set(dw, p.b)), 0.0f, 255.0f, false);
    }
  }
};

// Float work narrowed to 8 or 16 bits: op leaves each result in the low bits of a 32-bit lane
// and 4 / sizeof(D) such vectors pack, in order, into one full destination vector.
template <bool kKeepAlpha, Kind K, class S, class D, class M>
HWY_INLINE void packedBlock(const S* s, D* d, const RowParams& p, M colour) {
  const Op<K, S, D> op;
  const hn::ScalableTag<float> df;
  const hn::Rebind<S, decltype(df)> ds;
  const hn::ScalableTag<uint16_t> du16;
  const hn::ScalableTag<D> dd;
  const std::size_t N = hn::Lanes(df);
  auto lo = hn::ConcatEven(du16, hn::BitCast(du16, op(df, hn::LoadU(ds, s + N), p)),
                           hn::BitCast(du16, op(df, hn::LoadU(ds, s), p)));
  if constexpr (sizeof(D) == 2) {
    storeColour(dd, hn::BitCast(dd, lo), d, kKeepAlpha, colour);
  } else {
    const hn::ScalableTag<uint8_t> du8;
    auto hi = hn::ConcatEven(du16, hn::BitCast(du16, op(df, hn::LoadU(ds, s + 3 * N), p)),
                             hn::BitCast(du16, op(df, hn::LoadU(ds, s + 2 * N), p)));
    const auto bytes = hn::ConcatEven(du8, hn::BitCast(du8, hi), hn::BitCast(du8, lo));
    storeColour(dd, hn::BitCast(dd, bytes), d, kKeepAlpha, colour);
  }
}

// kVecs (1 or 4) vectors of op on s to d, the full-width kinds; four are all loaded before any
// is stored.
template <int kVecs, bool kKeepAlpha, Kind K, class S, class D, class M>
HWY_INLINE void plainBlocks(const S* s, D* d, const RowParams& p, M colour) {
  const Op<K, S, D> op;
  const hn::ScalableTag<typename Op<K, S, D>::W> dw;
  const hn::Rebind<S, decltype(dw)> ds;
  const hn::Rebind<D, decltype(dw)> dd;
  const std::size_t N = hn::Lanes(dw);
  if constexpr (kVecs == 4) {
    const auto v0 = hn::LoadU(ds, s), v1 = hn::LoadU(ds, s + N);
    const auto v2 = hn::LoadU(ds, s + 2 * N), v3 = hn::LoadU(ds, s + 3 * N);
    storeColour(dd, op(dw, v0, p), d, kKeepAlpha, colour);
    storeColour(dd, op(dw, v1, p), d + N, kKeepAlpha, colour);
    storeColour(dd, op(dw, v2, p), d + 2 * N, kKeepAlpha, colour);
    storeColour(dd, op(dw, v3, p), d + 3 * N, kKeepAlpha, colour);
  } else {
    storeColour(dd, op(dw, hn::LoadU(ds, s), p), d, kKeepAlpha, colour);
  }
}

// kVecs blocks from s to d: a block is one full destination vector for the packed kinds, one
// W vector for the others.
template <int kVecs, bool kKeepAlpha, Kind K, class S, class D, class M>
HWY_INLINE void block(const S* s, D* d, const RowParams& p, M colour) {
  if constexpr (Op<K, S, D>::kPacked) {
    const std::size_t B = hn::Lanes(hn::ScalableTag<D>());
    for (int j = 0; j < kVecs; ++j) packedBlock<kKeepAlpha, K>(s + j * B, d + j * B, p, colour);
  } else {
    plainBlocks<kVecs, kKeepAlpha, K>(s, d, p, colour);
  }
}

// One row of n elements, four blocks per step; the last partial block goes through zero-padded
// buffers (holding the destination's alpha when it is kept).
template <bool kKeepAlpha, Kind K, class S, class D>
HWY_INLINE void rowLoop(const S* s, D* d, std::ptrdiff_t n, const RowParams& q) {
  const RowParams p = q;  // a local copy: the stores to d cannot change the constants
  using W = std::conditional_t<Op<K, S, D>::kPacked, D, typename Op<K, S, D>::W>;
  const hn::ScalableTag<W> dw;
  const hn::Rebind<D, decltype(dw)> dd;
  const auto colour = colourLanes(dd);
  const std::ptrdiff_t B = static_cast<std::ptrdiff_t>(hn::Lanes(dw));
  std::ptrdiff_t i = 0;
  for (; i + 4 * B <= n; i += 4 * B) block<4, kKeepAlpha, K>(s + i, d + i, p, colour);
  for (; i + B <= n; i += B) block<1, kKeepAlpha, K>(s + i, d + i, p, colour);
  if (i < n) {
    constexpr std::size_t kMax = HWY_MAX_BYTES / sizeof(W);
    HWY_ALIGN S sb[kMax] = {};
    HWY_ALIGN D db[kMax] = {};
    const std::size_t m = static_cast<std::size_t>(n - i);
    std::memcpy(sb, s + i, m * sizeof(S));
    if (kKeepAlpha) std::memcpy(db, d + i, m * sizeof(D));
    block<1, kKeepAlpha, K>(sb, db, p, colour);
    std::memcpy(d + i, db, m * sizeof(D));
  }
}

template <Kind K, class S, class D>
void convertRow(const void* src, void* dst, std::ptrdiff_t n, const RowParams& p) {
  const S* s = static_cast<const S*>(src);
  D* d = static_cast<D*>(dst);
  if (p.keepAlpha)
    rowLoop<true, K>(s, d, n, p);
  else
    rowLoop<false, K>(s, d, n, p);
}

}  // namespace

#define LUMI_CONVERT_VECTOR_ROW(K, KIND, S, D) &convertRow<Kind::KIND, S, D>,
RowFn rowKernel(Kernel k) {
  static constexpr RowFn kRows[] = {LUMI_CONVERT_KERNELS(LUMI_CONVERT_VECTOR_ROW)};
  return kRows[static_cast<int>(k)];
}
#undef LUMI_CONVERT_VECTOR_ROW

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
#include <xmmintrin.h>

namespace lumi {
namespace {

// ---- scalar twins ----------------------------------------------------------------------------
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

// One element of kernel kind K from S to D.
template <Kind K, class S, class D>
inline D convertOne(S v, const RowParams& p) {
  if constexpr (K == Kind::kWiden) {
    return static_cast<D>(v);
  } else if constexpr (K == Kind::kNarrow) {
    return saturate<D>(v);
  } else if constexpr (K == Kind::kFloatToInt) {
    return roundSaturate<D>(v, float(std::numeric_limits<D>::min()),
                            float(std::numeric_limits<D>::max()));
  } else if constexpr (K == Kind::kScaleUp) {  // the byte repeated, the sign bit flipped
    using U = std::make_unsigned_t<D>;
    const U r = static_cast<U>(sizeof(D) == 2 ? v * 0x0101u : v * 0x01010101u);
    return static_cast<D>(std::is_signed_v<D> ? r ^ (U{1} << (8 * sizeof(D) - 1)) : r);
  } else if constexpr (K == Kind::kScaleToFloat) {
    float t = toFloat(v) * p.a;
    return t + p.b;
  } else {
    float t = (toFloat(v) + p.off) * p.a;
    return roundSaturate<uint8_t>(t - p.b, 0.0f, 255.0f);
  }
}

template <Kind K, class S, class D>
void convertRowScalar(const void* src, void* dst, std::ptrdiff_t n, const RowParams& p) {
  const S* s = static_cast<const S*>(src);
  D* d = static_cast<D*>(dst);
  if (p.keepAlpha) {
    for (std::ptrdiff_t i = 0; i < n; i += AC4::kCh)
      for (int c = 0; c < AC4::kUse; ++c) d[i + c] = convertOne<K, S, D>(s[i + c], p);
  } else {
    for (std::ptrdiff_t i = 0; i < n; ++i) d[i] = convertOne<K, S, D>(s[i], p);
  }
}

#define LUMI_CONVERT_SCALAR_ROW(K, KIND, S, D) &convertRowScalar<Kind::KIND, S, D>,
RowFn rowKernelScalar(Kernel k) {
  static constexpr RowFn kRows[] = {LUMI_CONVERT_KERNELS(LUMI_CONVERT_SCALAR_ROW)};
  return kRows[static_cast<int>(k)];
}
#undef LUMI_CONVERT_SCALAR_ROW

// ---- Convert -------------------------------------------------------------------------------
template <class L, class TS, class TD>
LumStatus convertImpl(const TS* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                      Kernel k) {
  return convertImage<L>(src, srcStep, dst, dstStep, roi, k, kCallerRounding,
                         [] { return RowParams{}; });
}

// Float to integer: the caller's selector picks the SSE rounding mode for the call.
template <class L, class TD>
LumStatus convertFloatImpl(const float* src, int srcStep, TD* dst, int dstStep, LumiSize roi,
                           int roundMode, Kernel k) {
  return convertImage<L>(src, srcStep, dst, dstStep, roi, k, roundMode, [roundMode] {
    RowParams p;
    p.truncate = roundMode != lumRndNear;  // the mode just set, for kernels that round explicitly
    return p;
  });
}

}  // namespace

RowFn pickRowKernel(Kernel k) {
  using RowKernelFn = RowFn (*)(Kernel);
  LUMI_SIMD_TABLE(RowKernelFn, table, rowKernel);
  return pick(table, &rowKernelScalar)(k);
}

}  // namespace lumi

// 8u16s shares the bits of 8u16u: every byte value fits both.
#define LUMI_CONVERT(NAME, TS, TD, L, K)                                                     \
  LUMI_API LumStatus NAME(const TS* pSrc, int srcStep, TD* pDst, int dstStep,              \
                          LumiSize roiSize) {                                              \
    return lumi::convertImpl<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize,               \
                                      lumi::Kernel::K);                                    \
  }
#define LUMI_CONVERT_FLOAT(NAME, TD, L, K)                                                   \
  LUMI_API LumStatus NAME(const Lum32f* pSrc, int srcStep, TD* pDst, int dstStep,          \
                          LumiSize roiSize, int roundMode) {                               \
    return lumi::convertFloatImpl<lumi::L>(pSrc, srcStep, pDst, dstStep, roiSize,          \
                                           roundMode, lumi::Kernel::K);                    \
  }

LUMI_CONVERT(lumiConvert_8u16u_C1R, Lum8u, Lum16u, C1, k8u16u)
LUMI_CONVERT(lumiConvert_8u16u_C3R, Lum8u, Lum16u, C3, k8u16u)
LUMI_CONVERT(lumiConvert_8u16u_AC4R, Lum8u, Lum16u, AC4, k8u16u)
LUMI_CONVERT(lumiConvert_8u16u_C4R, Lum8u, Lum16u, C4, k8u16u)
LUMI_CONVERT(lumiConvert_8u16s_C1R, Lum8u, Lum16s, C1, k8u16u)
LUMI_CONVERT(lumiConvert_8u16s_C3R, Lum8u, Lum16s, C3, k8u16u)
LUMI_CONVERT(lumiConvert_8u16s_AC4R, Lum8u, Lum16s, AC4, k8u16u)
LUMI_CONVERT(lumiConvert_8u16s_C4R, Lum8u, Lum16s, C4, k8u16u)
LUMI_CONVERT(lumiConvert_8u32s_C1R, Lum8u, Lum32s, C1, k8u32s)
LUMI_CONVERT(lumiConvert_8u32s_C3R, Lum8u, Lum32s, C3, k8u32s)
LUMI_CONVERT(lumiConvert_8u32s_AC4R, Lum8u, Lum32s, AC4, k8u32s)
LUMI_CONVERT(lumiConvert_8u32s_C4R, Lum8u, Lum32s, C4, k8u32s)
LUMI_CONVERT(lumiConvert_8u32f_C1R, Lum8u, Lum32f, C1, k8u32f)
LUMI_CONVERT(lumiConvert_8u32f_C3R, Lum8u, Lum32f, C3, k8u32f)
LUMI_CONVERT(lumiConvert_8u32f_AC4R, Lum8u, Lum32f, AC4, k8u32f)
LUMI_CONVERT(lumiConvert_8u32f_C4R, Lum8u, Lum32f, C4, k8u32f)
LUMI_CONVERT(lumiConvert_8s32s_C1R, Lum8s, Lum32s, C1, k8s32s)
LUMI_CONVERT(lumiConvert_8s32s_C3R, Lum8s, Lum32s, C3, k8s32s)
LUMI_CONVERT(lumiConvert_8s32s_AC4R, Lum8s, Lum32s, AC4, k8s32s)
LUMI_CONVERT(lumiConvert_8s32s_C4R, Lum8s, Lum32s, C4, k8s32s)
LUMI_CONVERT(lumiConvert_8s32f_C1R, Lum8s, Lum32f, C1, k8s32f)
LUMI_CONVERT(lumiConvert_8s32f_C3R, Lum8s, Lum32f, C3, k8s32f)
LUMI_CONVERT(lumiConvert_8s32f_AC4R, Lum8s, Lum32f, AC4, k8s32f)
LUMI_CONVERT(lumiConvert_8s32f_C4R, Lum8s, Lum32f, C4, k8s32f)
LUMI_CONVERT(lumiConvert_16u32s_C1R, Lum16u, Lum32s, C1, k16u32s)
LUMI_CONVERT(lumiConvert_16u32s_C3R, Lum16u, Lum32s, C3, k16u32s)
LUMI_CONVERT(lumiConvert_16u32s_AC4R, Lum16u, Lum32s, AC4, k16u32s)
LUMI_CONVERT(lumiConvert_16u32s_C4R, Lum16u, Lum32s, C4, k16u32s)
LUMI_CONVERT(lumiConvert_16u32f_C1R, Lum16u, Lum32f, C1, k16u32f)
LUMI_CONVERT(lumiConvert_16u32f_C3R, Lum16u, Lum32f, C3, k16u32f)
LUMI_CONVERT(lumiConvert_16u32f_AC4R, Lum16u, Lum32f, AC4, k16u32f)
LUMI_CONVERT(lumiConvert_16u32f_C4R, Lum16u, Lum32f, C4, k16u32f)
LUMI_CONVERT(lumiConvert_16s32f_C1R, Lum16s, Lum32f, C1, k16s32f)
LUMI_CONVERT(lumiConvert_16s32f_C3R, Lum16s, Lum32f, C3, k16s32f)
LUMI_CONVERT(lumiConvert_16s32f_AC4R, Lum16s, Lum32f, AC4, k16s32f)
LUMI_CONVERT(lumiConvert_16s32f_C4R, Lum16s, Lum32f, C4, k16s32f)
LUMI_CONVERT(lumiConvert_16u8u_C1R, Lum16u, Lum8u, C1, k16u8u)
LUMI_CONVERT(lumiConvert_16u8u_C3R, Lum16u, Lum8u, C3, k16u8u)
LUMI_CONVERT(lumiConvert_16u8u_AC4R, Lum16u, Lum8u, AC4, k16u8u)
LUMI_CONVERT(lumiConvert_16u8u_C4R, Lum16u, Lum8u, C4, k16u8u)
LUMI_CONVERT(lumiConvert_16s8u_C1R, Lum16s, Lum8u, C1, k16s8u)
LUMI_CONVERT(lumiConvert_16s8u_C3R, Lum16s, Lum8u, C3, k16s8u)
LUMI_CONVERT(lumiConvert_16s8u_AC4R, Lum16s, Lum8u, AC4, k16s8u)
LUMI_CONVERT(lumiConvert_16s8u_C4R, Lum16s, Lum8u, C4, k16s8u)
LUMI_CONVERT(lumiConvert_32s8u_C1R, Lum32s, Lum8u, C1, k32s8u)
LUMI_CONVERT(lumiConvert_32s8u_C3R, Lum32s, Lum8u, C3, k32s8u)
LUMI_CONVERT(lumiConvert_32s8u_AC4R, Lum32s, Lum8u, AC4, k32s8u)
LUMI_CONVERT(lumiConvert_32s8u_C4R, Lum32s, Lum8u, C4, k32s8u)
LUMI_CONVERT(lumiConvert_32s8s_C1R, Lum32s, Lum8s, C1, k32s8s)
LUMI_CONVERT(lumiConvert_32s8s_C3R, Lum32s, Lum8s, C3, k32s8s)
LUMI_CONVERT(lumiConvert_32s8s_AC4R, Lum32s, Lum8s, AC4, k32s8s)
LUMI_CONVERT(lumiConvert_32s8s_C4R, Lum32s, Lum8s, C4, k32s8s)
LUMI_CONVERT_FLOAT(lumiConvert_32f8u_C1R, Lum8u, C1, k32f8u)
LUMI_CONVERT_FLOAT(lumiConvert_32f8u_C3R, Lum8u, C3, k32f8u)
LUMI_CONVERT_FLOAT(lumiConvert_32f8u_AC4R, Lum8u, AC4, k32f8u)
LUMI_CONVERT_FLOAT(lumiConvert_32f8u_C4R, Lum8u, C4, k32f8u)
LUMI_CONVERT_FLOAT(lumiConvert_32f8s_C1R, Lum8s, C1, k32f8s)
LUMI_CONVERT_FLOAT(lumiConvert_32f8s_C3R, Lum8s, C3, k32f8s)
LUMI_CONVERT_FLOAT(lumiConvert_32f8s_AC4R, Lum8s, AC4, k32f8s)
LUMI_CONVERT_FLOAT(lumiConvert_32f8s_C4R, Lum8s, C4, k32f8s)
LUMI_CONVERT_FLOAT(lumiConvert_32f16u_C1R, Lum16u, C1, k32f16u)
LUMI_CONVERT_FLOAT(lumiConvert_32f16u_C3R, Lum16u, C3, k32f16u)
LUMI_CONVERT_FLOAT(lumiConvert_32f16u_AC4R, Lum16u, AC4, k32f16u)
LUMI_CONVERT_FLOAT(lumiConvert_32f16u_C4R, Lum16u, C4, k32f16u)
LUMI_CONVERT_FLOAT(lumiConvert_32f16s_C1R, Lum16s, C1, k32f16s)
LUMI_CONVERT_FLOAT(lumiConvert_32f16s_C3R, Lum16s, C3, k32f16s)
LUMI_CONVERT_FLOAT(lumiConvert_32f16s_AC4R, Lum16s, AC4, k32f16s)
LUMI_CONVERT_FLOAT(lumiConvert_32f16s_C4R, Lum16s, C4, k32f16s)
#endif  // HWY_ONCE
