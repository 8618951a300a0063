// Bitwise logic of two images or of an image and a constant (And, Or, Xor), Not, and the
// in-place Complement of 32s images.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/logic.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "threshold/threshold_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// b is a pattern (kPattern) or an image row.
template <class U, int kOp, bool kPattern>
HWY_INLINE void logicRowsOf(const thr::ElemRows<U>& r) {
  const hn::ScalableTag<U> d;
  patternRows(
      d, r,
      [&](const U* a, const U* b, std::ptrdiff_t i, int off) HWY_ATTR {
        const auto x = hn::LoadU(d, a + i);
        const auto v = hn::LoadU(d, kPattern ? b + off : b + i);
        if constexpr (kOp == thr::kAnd) return hn::And(x, v);
        else if constexpr (kOp == thr::kOr) return hn::Or(x, v);
        else return hn::Xor(x, v);
      },
      [&](const U* a, const U* b, std::ptrdiff_t i, int off) {
        return thr::logicSample<U>(kOp, a[i], kPattern ? b[off] : b[i]);
      });
}
template <class U, int kOp>
HWY_INLINE void logicRowsOp(const thr::ElemRows<U>& r) {
  if (r.bStep == 0)
    logicRowsOf<U, kOp, true>(r);
  else
    logicRowsOf<U, kOp, false>(r);
}

// b is an image, or a pattern of constants when r.bStep is 0.
template <class U>
void logicRows(const thr::ElemRows<U>& r, int op) {
  switch (op) {
    case thr::kAnd: return logicRowsOp<U, thr::kAnd>(r);
    case thr::kOr: return logicRowsOp<U, thr::kOr>(r);
    default: return logicRowsOp<U, thr::kXor>(r);
  }
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

template <class U>
using LogicRowsFn = void (*)(const thr::ElemRows<U>&, int);

template <class U>
void logicRowsScalar(const thr::ElemRows<U>& r, int op) {
  const bool bPattern = r.bStep == 0;
  thr::withConstant<3>(op, [&](auto k) {
    thr::forElements(r, [&](const U* a, const U* b, U* o, std::ptrdiff_t i, int c) {
      o[i] = thr::logicSample<U>(k.value, a[i], bPattern ? b[c] : b[i]);
    });
  });
}

template <class U>
LogicRowsFn<U> pickLogicRows() {
  LUMI_SIMD_TABLE(LogicRowsFn<U>, table, logicRows<U>);
  return pick(table, &logicRowsScalar<U>);
}

// Pointers, steps, then the size. Logic is on bits only, so every type runs as the unsigned
// type of its width. b is the second image, or (bConst) the per-channel constants.
template <class T, class L>
LumStatus logicImpl(const T* a, int aStep, const T* b, int bStep, bool bConst, T* dst,
                    int dstStep, LumiSize roi, int op) {
  if (LumStatus st = thr::checkOperands(a, aStep, b, bStep, bConst, dst, dstStep, roi))
    return st;
  using U = std::make_unsigned_t<T>;
  const U* ub = reinterpret_cast<const U*>(b);
  thr::Pattern<U> pat;
  if (bConst) {
    thr::fillPattern(pat, ub, L::kCh, L::kUse);
    ub = pat.v;
  }
  pickLogicRows<U>()(thr::elemRows<L>(reinterpret_cast<const U*>(a), aStep, ub,
                                      bConst ? 0 : bStep, reinterpret_cast<U*>(dst), dstStep,
                                      roi),
                     op);
  return lumStatusOk;
}

// Not flips every bit: an exclusive or with all ones in each processed channel.
template <class L>
LumStatus notImpl(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi) {
  static const Lum8u kOnes[4] = {0xFF, 0xFF, 0xFF, 0xFF};
  return logicImpl<Lum8u, L>(src, srcStep, kOnes, 0, true, dst, dstStep, roi, thr::kXor);
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// K: C1 takes the constant by value (SCALAR), the others an array (ARRAY).
#define LUMI_LOGIC_SCALAR(T) T
#define LUMI_LOGIC_ARRAY(T) const T*
#define LUMI_LOGIC_ADDR_SCALAR(x) &x
#define LUMI_LOGIC_ADDR_ARRAY(x) x

#define LUMI_LOGIC(NAME, OP, T, L)                                                              \
  LUMI_API LumStatus NAME(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step,           \
                          T* pDst, int dstStep, LumiSize roi) {                                 \
    return lumi::logicImpl<T, lumi::L>(pSrc1, src1Step, pSrc2, src2Step, false, pDst, dstStep,  \
                                       roi, lumi::thr::OP);                                     \
  }
#define LUMI_LOGIC_I(NAME, OP, T, L)                                                            \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep,               \
                          LumiSize roi) {                                                       \
    return lumi::logicImpl<T, lumi::L>(pSrc, srcStep, pSrcDst, srcDstStep, false, pSrcDst,      \
                                       srcDstStep, roi, lumi::thr::OP);                         \
  }
#define LUMI_LOGIC_C(NAME, OP, T, L, K)                                                         \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, LUMI_LOGIC_##K(T) value, T* pDst,         \
                          int dstStep, LumiSize roi) {                                          \
    return lumi::logicImpl<T, lumi::L>(pSrc, srcStep, LUMI_LOGIC_ADDR_##K(value), 0, true,      \
                                       pDst, dstStep, roi, lumi::thr::OP);                      \
  }
#define LUMI_LOGIC_CI(NAME, OP, T, L, K)                                                        \
  LUMI_API LumStatus NAME(LUMI_LOGIC_##K(T) value, T* pSrcDst, int srcDstStep, LumiSize roi) {  \
    return lumi::logicImpl<T, lumi::L>(pSrcDst, srcDstStep, LUMI_LOGIC_ADDR_##K(value), 0,      \
                                       true, pSrcDst, srcDstStep, roi, lumi::thr::OP);          \
  }
#define LUMI_NOT(NAME, L)                                                                       \
  LUMI_API LumStatus NAME(const Lum8u* pSrc, int srcStep, Lum8u* pDst, int dstStep,             \
                          LumiSize roi) {                                                       \
    return lumi::notImpl<lumi::L>(pSrc, srcStep, pDst, dstStep, roi);                           \
  }
#define LUMI_NOT_I(NAME, L)                                                                     \
  LUMI_API LumStatus NAME(Lum8u* pSrcDst, int srcDstStep, LumiSize roi) {                       \
    return lumi::notImpl<lumi::L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);               \
  }

LUMI_LOGIC(lumiAnd_8u_C1R, kAnd, Lum8u, C1)
LUMI_LOGIC_I(lumiAnd_8u_C1IR, kAnd, Lum8u, C1)
LUMI_LOGIC_C(lumiAndC_8u_C1R, kAnd, Lum8u, C1, SCALAR)
LUMI_LOGIC_CI(lumiAndC_8u_C1IR, kAnd, Lum8u, C1, SCALAR)
LUMI_LOGIC(lumiAnd_8u_C3R, kAnd, Lum8u, C3)
LUMI_LOGIC_I(lumiAnd_8u_C3IR, kAnd, Lum8u, C3)
LUMI_LOGIC_C(lumiAndC_8u_C3R, kAnd, Lum8u, C3, ARRAY)
LUMI_LOGIC_CI(lumiAndC_8u_C3IR, kAnd, Lum8u, C3, ARRAY)
LUMI_LOGIC(lumiAnd_8u_C4R, kAnd, Lum8u, C4)
LUMI_LOGIC_I(lumiAnd_8u_C4IR, kAnd, Lum8u, C4)
LUMI_LOGIC_C(lumiAndC_8u_C4R, kAnd, Lum8u, C4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_8u_C4IR, kAnd, Lum8u, C4, ARRAY)
LUMI_LOGIC(lumiAnd_8u_AC4R, kAnd, Lum8u, AC4)
LUMI_LOGIC_I(lumiAnd_8u_AC4IR, kAnd, Lum8u, AC4)
LUMI_LOGIC_C(lumiAndC_8u_AC4R, kAnd, Lum8u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_8u_AC4IR, kAnd, Lum8u, AC4, ARRAY)
LUMI_LOGIC(lumiAnd_16u_C1R, kAnd, Lum16u, C1)
LUMI_LOGIC_I(lumiAnd_16u_C1IR, kAnd, Lum16u, C1)
LUMI_LOGIC_C(lumiAndC_16u_C1R, kAnd, Lum16u, C1, SCALAR)
LUMI_LOGIC_CI(lumiAndC_16u_C1IR, kAnd, Lum16u, C1, SCALAR)
LUMI_LOGIC(lumiAnd_16u_C3R, kAnd, Lum16u, C3)
LUMI_LOGIC_I(lumiAnd_16u_C3IR, kAnd, Lum16u, C3)
LUMI_LOGIC_C(lumiAndC_16u_C3R, kAnd, Lum16u, C3, ARRAY)
LUMI_LOGIC_CI(lumiAndC_16u_C3IR, kAnd, Lum16u, C3, ARRAY)
LUMI_LOGIC(lumiAnd_16u_C4R, kAnd, Lum16u, C4)
LUMI_LOGIC_I(lumiAnd_16u_C4IR, kAnd, Lum16u, C4)
LUMI_LOGIC_C(lumiAndC_16u_C4R, kAnd, Lum16u, C4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_16u_C4IR, kAnd, Lum16u, C4, ARRAY)
LUMI_LOGIC(lumiAnd_16u_AC4R, kAnd, Lum16u, AC4)
LUMI_LOGIC_I(lumiAnd_16u_AC4IR, kAnd, Lum16u, AC4)
LUMI_LOGIC_C(lumiAndC_16u_AC4R, kAnd, Lum16u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_16u_AC4IR, kAnd, Lum16u, AC4, ARRAY)
LUMI_LOGIC(lumiAnd_32s_C1R, kAnd, Lum32s, C1)
LUMI_LOGIC_I(lumiAnd_32s_C1IR, kAnd, Lum32s, C1)
LUMI_LOGIC_C(lumiAndC_32s_C1R, kAnd, Lum32s, C1, SCALAR)
LUMI_LOGIC_CI(lumiAndC_32s_C1IR, kAnd, Lum32s, C1, SCALAR)
LUMI_LOGIC(lumiAnd_32s_C3R, kAnd, Lum32s, C3)
LUMI_LOGIC_I(lumiAnd_32s_C3IR, kAnd, Lum32s, C3)
LUMI_LOGIC_C(lumiAndC_32s_C3R, kAnd, Lum32s, C3, ARRAY)
LUMI_LOGIC_CI(lumiAndC_32s_C3IR, kAnd, Lum32s, C3, ARRAY)
LUMI_LOGIC(lumiAnd_32s_C4R, kAnd, Lum32s, C4)
LUMI_LOGIC_I(lumiAnd_32s_C4IR, kAnd, Lum32s, C4)
LUMI_LOGIC_C(lumiAndC_32s_C4R, kAnd, Lum32s, C4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_32s_C4IR, kAnd, Lum32s, C4, ARRAY)
LUMI_LOGIC(lumiAnd_32s_AC4R, kAnd, Lum32s, AC4)
LUMI_LOGIC_I(lumiAnd_32s_AC4IR, kAnd, Lum32s, AC4)
LUMI_LOGIC_C(lumiAndC_32s_AC4R, kAnd, Lum32s, AC4, ARRAY)
LUMI_LOGIC_CI(lumiAndC_32s_AC4IR, kAnd, Lum32s, AC4, ARRAY)
LUMI_LOGIC(lumiOr_8u_C1R, kOr, Lum8u, C1)
LUMI_LOGIC_I(lumiOr_8u_C1IR, kOr, Lum8u, C1)
LUMI_LOGIC_C(lumiOrC_8u_C1R, kOr, Lum8u, C1, SCALAR)
LUMI_LOGIC_CI(lumiOrC_8u_C1IR, kOr, Lum8u, C1, SCALAR)
LUMI_LOGIC(lumiOr_8u_C3R, kOr, Lum8u, C3)
LUMI_LOGIC_I(lumiOr_8u_C3IR, kOr, Lum8u, C3)
LUMI_LOGIC_C(lumiOrC_8u_C3R, kOr, Lum8u, C3, ARRAY)
LUMI_LOGIC_CI(lumiOrC_8u_C3IR, kOr, Lum8u, C3, ARRAY)
LUMI_LOGIC(lumiOr_8u_C4R, kOr, Lum8u, C4)
LUMI_LOGIC_I(lumiOr_8u_C4IR, kOr, Lum8u, C4)
LUMI_LOGIC_C(lumiOrC_8u_C4R, kOr, Lum8u, C4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_8u_C4IR, kOr, Lum8u, C4, ARRAY)
LUMI_LOGIC(lumiOr_8u_AC4R, kOr, Lum8u, AC4)
LUMI_LOGIC_I(lumiOr_8u_AC4IR, kOr, Lum8u, AC4)
LUMI_LOGIC_C(lumiOrC_8u_AC4R, kOr, Lum8u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_8u_AC4IR, kOr, Lum8u, AC4, ARRAY)
LUMI_LOGIC(lumiOr_16u_C1R, kOr, Lum16u, C1)
LUMI_LOGIC_I(lumiOr_16u_C1IR, kOr, Lum16u, C1)
LUMI_LOGIC_C(lumiOrC_16u_C1R, kOr, Lum16u, C1, SCALAR)
LUMI_LOGIC_CI(lumiOrC_16u_C1IR, kOr, Lum16u, C1, SCALAR)
LUMI_LOGIC(lumiOr_16u_C3R, kOr, Lum16u, C3)
LUMI_LOGIC_I(lumiOr_16u_C3IR, kOr, Lum16u, C3)
LUMI_LOGIC_C(lumiOrC_16u_C3R, kOr, Lum16u, C3, ARRAY)
LUMI_LOGIC_CI(lumiOrC_16u_C3IR, kOr, Lum16u, C3, ARRAY)
LUMI_LOGIC(lumiOr_16u_C4R, kOr, Lum16u, C4)
LUMI_LOGIC_I(lumiOr_16u_C4IR, kOr, Lum16u, C4)
LUMI_LOGIC_C(lumiOrC_16u_C4R, kOr, Lum16u, C4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_16u_C4IR, kOr, Lum16u, C4, ARRAY)
LUMI_LOGIC(lumiOr_16u_AC4R, kOr, Lum16u, AC4)
LUMI_LOGIC_I(lumiOr_16u_AC4IR, kOr, Lum16u, AC4)
LUMI_LOGIC_C(lumiOrC_16u_AC4R, kOr, Lum16u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_16u_AC4IR, kOr, Lum16u, AC4, ARRAY)
LUMI_LOGIC(lumiOr_32s_C1R, kOr, Lum32s, C1)
LUMI_LOGIC_I(lumiOr_32s_C1IR, kOr, Lum32s, C1)
LUMI_LOGIC_C(lumiOrC_32s_C1R, kOr, Lum32s, C1, SCALAR)
LUMI_LOGIC_CI(lumiOrC_32s_C1IR, kOr, Lum32s, C1, SCALAR)
LUMI_LOGIC(lumiOr_32s_C3R, kOr, Lum32s, C3)
LUMI_LOGIC_I(lumiOr_32s_C3IR, kOr, Lum32s, C3)
LUMI_LOGIC_C(lumiOrC_32s_C3R, kOr, Lum32s, C3, ARRAY)
LUMI_LOGIC_CI(lumiOrC_32s_C3IR, kOr, Lum32s, C3, ARRAY)
LUMI_LOGIC(lumiOr_32s_C4R, kOr, Lum32s, C4)
LUMI_LOGIC_I(lumiOr_32s_C4IR, kOr, Lum32s, C4)
LUMI_LOGIC_C(lumiOrC_32s_C4R, kOr, Lum32s, C4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_32s_C4IR, kOr, Lum32s, C4, ARRAY)
LUMI_LOGIC(lumiOr_32s_AC4R, kOr, Lum32s, AC4)
LUMI_LOGIC_I(lumiOr_32s_AC4IR, kOr, Lum32s, AC4)
LUMI_LOGIC_C(lumiOrC_32s_AC4R, kOr, Lum32s, AC4, ARRAY)
LUMI_LOGIC_CI(lumiOrC_32s_AC4IR, kOr, Lum32s, AC4, ARRAY)
LUMI_LOGIC(lumiXor_8u_C1R, kXor, Lum8u, C1)
LUMI_LOGIC_I(lumiXor_8u_C1IR, kXor, Lum8u, C1)
LUMI_LOGIC_C(lumiXorC_8u_C1R, kXor, Lum8u, C1, SCALAR)
LUMI_LOGIC_CI(lumiXorC_8u_C1IR, kXor, Lum8u, C1, SCALAR)
LUMI_LOGIC(lumiXor_8u_C3R, kXor, Lum8u, C3)
LUMI_LOGIC_I(lumiXor_8u_C3IR, kXor, Lum8u, C3)
LUMI_LOGIC_C(lumiXorC_8u_C3R, kXor, Lum8u, C3, ARRAY)
LUMI_LOGIC_CI(lumiXorC_8u_C3IR, kXor, Lum8u, C3, ARRAY)
LUMI_LOGIC(lumiXor_8u_C4R, kXor, Lum8u, C4)
LUMI_LOGIC_I(lumiXor_8u_C4IR, kXor, Lum8u, C4)
LUMI_LOGIC_C(lumiXorC_8u_C4R, kXor, Lum8u, C4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_8u_C4IR, kXor, Lum8u, C4, ARRAY)
LUMI_LOGIC(lumiXor_8u_AC4R, kXor, Lum8u, AC4)
LUMI_LOGIC_I(lumiXor_8u_AC4IR, kXor, Lum8u, AC4)
LUMI_LOGIC_C(lumiXorC_8u_AC4R, kXor, Lum8u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_8u_AC4IR, kXor, Lum8u, AC4, ARRAY)
LUMI_LOGIC(lumiXor_16u_C1R, kXor, Lum16u, C1)
LUMI_LOGIC_I(lumiXor_16u_C1IR, kXor, Lum16u, C1)
LUMI_LOGIC_C(lumiXorC_16u_C1R, kXor, Lum16u, C1, SCALAR)
LUMI_LOGIC_CI(lumiXorC_16u_C1IR, kXor, Lum16u, C1, SCALAR)
LUMI_LOGIC(lumiXor_16u_C3R, kXor, Lum16u, C3)
LUMI_LOGIC_I(lumiXor_16u_C3IR, kXor, Lum16u, C3)
LUMI_LOGIC_C(lumiXorC_16u_C3R, kXor, Lum16u, C3, ARRAY)
LUMI_LOGIC_CI(lumiXorC_16u_C3IR, kXor, Lum16u, C3, ARRAY)
LUMI_LOGIC(lumiXor_16u_C4R, kXor, Lum16u, C4)
LUMI_LOGIC_I(lumiXor_16u_C4IR, kXor, Lum16u, C4)
LUMI_LOGIC_C(lumiXorC_16u_C4R, kXor, Lum16u, C4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_16u_C4IR, kXor, Lum16u, C4, ARRAY)
LUMI_LOGIC(lumiXor_16u_AC4R, kXor, Lum16u, AC4)
LUMI_LOGIC_I(lumiXor_16u_AC4IR, kXor, Lum16u, AC4)
LUMI_LOGIC_C(lumiXorC_16u_AC4R, kXor, Lum16u, AC4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_16u_AC4IR, kXor, Lum16u, AC4, ARRAY)
LUMI_LOGIC(lumiXor_32s_C1R, kXor, Lum32s, C1)
LUMI_LOGIC_I(lumiXor_32s_C1IR, kXor, Lum32s, C1)
LUMI_LOGIC_C(lumiXorC_32s_C1R, kXor, Lum32s, C1, SCALAR)
LUMI_LOGIC_CI(lumiXorC_32s_C1IR, kXor, Lum32s, C1, SCALAR)
LUMI_LOGIC(lumiXor_32s_C3R, kXor, Lum32s, C3)
LUMI_LOGIC_I(lumiXor_32s_C3IR, kXor, Lum32s, C3)
LUMI_LOGIC_C(lumiXorC_32s_C3R, kXor, Lum32s, C3, ARRAY)
LUMI_LOGIC_CI(lumiXorC_32s_C3IR, kXor, Lum32s, C3, ARRAY)
LUMI_LOGIC(lumiXor_32s_C4R, kXor, Lum32s, C4)
LUMI_LOGIC_I(lumiXor_32s_C4IR, kXor, Lum32s, C4)
LUMI_LOGIC_C(lumiXorC_32s_C4R, kXor, Lum32s, C4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_32s_C4IR, kXor, Lum32s, C4, ARRAY)
LUMI_LOGIC(lumiXor_32s_AC4R, kXor, Lum32s, AC4)
LUMI_LOGIC_I(lumiXor_32s_AC4IR, kXor, Lum32s, AC4)
LUMI_LOGIC_C(lumiXorC_32s_AC4R, kXor, Lum32s, AC4, ARRAY)
LUMI_LOGIC_CI(lumiXorC_32s_AC4IR, kXor, Lum32s, AC4, ARRAY)
LUMI_NOT(lumiNot_8u_C1R, C1)
LUMI_NOT_I(lumiNot_8u_C1IR, C1)
LUMI_NOT(lumiNot_8u_C3R, C3)
LUMI_NOT_I(lumiNot_8u_C3IR, C3)
LUMI_NOT(lumiNot_8u_C4R, C4)
LUMI_NOT_I(lumiNot_8u_C4IR, C4)
LUMI_NOT(lumiNot_8u_AC4R, AC4)
LUMI_NOT_I(lumiNot_8u_AC4IR, AC4)

// Rewrites negative samples from two's complement into sign-and-magnitude form: the sign bit
// stays set and the low 31 bits hold the magnitude (the most negative value keeps its code).
// Non-negative samples are unchanged.
LUMI_API LumStatus lumiComplement_32s_C1IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roi) {
  if (LumStatus st = lumi::thr::checkStepsThenSize(!pSrcDst, roi, srcDstStep)) return st;
  for (int y = 0; y < roi.height; ++y) {
    Lum32s* p = lumi::rowAt(pSrcDst, srcDstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const uint32_t v = static_cast<uint32_t>(p[x]);
      if (v & 0x80000000u) p[x] = static_cast<Lum32s>(0x80000000u | ((0u - v) & 0x7FFFFFFFu));
    }
  }
  return lumStatusOk;
}

#endif  // HWY_ONCE
