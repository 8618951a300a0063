// Products of 8u and 16u pixels taken as fractions of the type's maximum M: floor(a * b / M),
// exactly, through p = a * b and (p + (p >> k) + 1) >> k with k the bit width. The maximum is
// the identity and the result never exceeds it.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/pointwise_mulscale.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/float_kernels-inl.h"

#ifndef LUMI_POINTWISE_MULSCALE_SCALAR_
#define LUMI_POINTWISE_MULSCALE_SCALAR_
namespace lumi {
namespace arithf {
template <class T>
inline T mulScale(uint32_t a, uint32_t b) {
  constexpr int k = 8 * sizeof(T);
  const uint32_t p = a * b;
  return static_cast<T>((p + (p >> k) + 1u) >> k);
}
}  // namespace arithf
}  // namespace lumi
#endif

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace arithf {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR
// d = a * b / M with b a row, or the pattern's constants when b is null. Samples are widened
// to twice their width, where the product and the correction fit.
template <class T>
void MulScaleRowSimd(const T* a, const T* b, T* out, int n, const RowPattern<T>* pat) {
  using W = hwy::MakeWide<T>;
  constexpr int k = 8 * sizeof(T);
  const hn::ScalableTag<W> dw;
  const hn::Rebind<T, decltype(dw)> dt;
  const hn::Rebind<hwy::MakeSigned<W>, decltype(dw)> ds;
  const auto one = hn::Set(dw, W{1});
  ForEachVector(
      dt, static_cast<size_t>(n), pat,
      [&](size_t i, size_t off, auto masked) {
        const auto x = hn::PromoteTo(dw, hn::LoadU(dt, a + i));
        const auto y = hn::PromoteTo(dw, hn::LoadU(dt, b ? b + i : pat->value + off));
        const auto p = hn::Mul(x, y);
        const auto r = hn::ShiftRight<k>(hn::Add(hn::Add(p, hn::ShiftRight<k>(p)), one));
        StoreOwned(dt, hn::DemoteTo(dt, hn::BitCast(ds, r)), out + i, pat, off, masked);
      },
      [&](size_t i, size_t off) {
        if (Owns(pat, off)) out[i] = mulScale<T>(a[i], b ? b[i] : pat->value[off]);
      });
}
#else
template <class T>
void MulScaleRowSimd(const T* a, const T* b, T* out, int n, const RowPattern<T>* pat) {
  for (int i = 0; i < n; ++i)
    if (Owns(pat, static_cast<size_t>(i)))
      out[i] = mulScale<T>(a[i], b ? b[i] : pat->value[i % pat->period]);
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace arithf
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace arithf {
namespace {

template <class T>
using MulScaleRow = void (*)(const T*, const T*, T*, int, const RowPattern<T>*);
LUMI_SIMD_TABLE(MulScaleRow<uint8_t>, kMulScale8u, MulScaleRowSimd<uint8_t>);
LUMI_SIMD_TABLE(MulScaleRow<uint16_t>, kMulScale16u, MulScaleRowSimd<uint16_t>);

template <class T>
void mulScaleRowScalar(const T* a, const T* b, T* out, int n, const RowPattern<T>* pat) {
  for (int i = 0; i < n; ++i)
    if (!pat || pat->writes(i)) out[i] = mulScale<T>(a[i], b ? b[i] : pat->value[i % pat->period]);
}

template <class T>
MulScaleRow<T> pickMulScale() {
  MulScaleRow<T> f;
  if constexpr (sizeof(T) == 1) f = pickSimd(kMulScale8u);
  else f = pickSimd(kMulScale16u);
  return f ? f : mulScaleRowScalar<T>;
}

// Steps are checked before sizes in this family.
template <class L, class T>
LumStatus mulScaleImpl(const T* s1, int s1Step, const T* s2, int s2Step, const T* value, T* d,
                       int dStep, LumiSize roi) {
  if (anyNull(s1, d) || (s2 == nullptr && value == nullptr)) return lumStatusNullPtrErr;
  if (s2 ? badStep(s1Step, s2Step, dStep) : badStep(s1Step, dStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  T c[4] = {};
  if (value)
    for (int k = 0; k < L::kUse; ++k) c[k] = value[k];
  const bool masked = L::kUse < L::kCh;
  RowPattern<T> pat(value || masked ? L::kCh : 1, value || masked ? L::kUse : 1, c);
  const RowPattern<T>* p = value || masked ? &pat : nullptr;
  MulScaleRow<T> row = pickMulScale<T>();
  for (int y = 0; y < roi.height; ++y)
    row(rowAt(s1, s1Step, y), s2 ? rowAt(s2, s2Step, y) : nullptr, rowAt(d, dStep, y),
        roi.width * L::kCh, p);
  return lumStatusOk;
}

}  // namespace
}  // namespace arithf
}  // namespace lumi

#define LUMI_MULSCALE(TY, T, L, VT, VP)                                                          \
  LUMI_API LumStatus lumiMulScale_##TY##_##L##R(const T* a, int as, const T* b, int bs, T* d,     \
                                                int ds, LumiSize r) {                             \
    return lumi::arithf::mulScaleImpl<lumi::L>(a, as, b, bs, static_cast<const T*>(nullptr), d, ds, r);   \
  }                                                                                               \
  LUMI_API LumStatus lumiMulScale_##TY##_##L##IR(const T* s, int ss, T* sd, int sds,              \
                                                 LumiSize r) {                                    \
    return lumi::arithf::mulScaleImpl<lumi::L>(static_cast<const T*>(sd), sds, s, ss,                     \
                                       static_cast<const T*>(nullptr), sd, sds, r);               \
  }                                                                                               \
  LUMI_API LumStatus lumiMulCScale_##TY##_##L##R(const T* s, int ss, VT value, T* d, int ds,      \
                                                 LumiSize r) {                                    \
    return lumi::arithf::mulScaleImpl<lumi::L>(s, ss, static_cast<const T*>(nullptr), 0, VP, d, ds, r);   \
  }                                                                                               \
  LUMI_API LumStatus lumiMulCScale_##TY##_##L##IR(VT value, T* sd, int sds, LumiSize r) {         \
    return lumi::arithf::mulScaleImpl<lumi::L>(static_cast<const T*>(sd), sds,                            \
                                       static_cast<const T*>(nullptr), 0, VP, sd, sds, r);        \
  }
#define LUMI_MULSCALE_ALL(TY, T)                    \
  LUMI_MULSCALE(TY, T, C1, T, &value)               \
  LUMI_MULSCALE(TY, T, C3, const T*, value)         \
  LUMI_MULSCALE(TY, T, C4, const T*, value)         \
  LUMI_MULSCALE(TY, T, AC4, const T*, value)

extern "C" {
LUMI_MULSCALE_ALL(8u, Lum8u)
LUMI_MULSCALE_ALL(16u, Lum16u)
}

#endif  // HWY_ONCE
