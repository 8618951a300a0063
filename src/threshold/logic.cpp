// Bitwise logic of two images or of an image and a constant (And, Or, Xor), Not, and the
// in-place Complement of 32s images.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/logic.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "threshold/threshold_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

template <class U, int kOp>
HWY_INLINE void logicRowsOp(const U* a, int aStep, const U* b, int bStep, bool bPattern, U* dst,
                            int dstStep, int n, int height, const U* keep) {
  const hn::ScalableTag<U> d;
  for (int y = 0; y < height; ++y) {
    const U* ar = rowAt(a, aStep, y);
    const U* br = bPattern ? b : rowAt(b, bStep, y);
    U* o = rowAt(dst, dstStep, y);
    thrv::patternRow(
        d, n,
        [&](int i, int off) HWY_ATTR {
          const auto x = hn::LoadU(d, ar + i);
          const auto v = hn::LoadU(d, br + (bPattern ? off : i));
          hn::Vec<decltype(d)> r;
          if constexpr (kOp == thr::kAnd) r = hn::And(x, v);
          else if constexpr (kOp == thr::kOr) r = hn::Or(x, v);
          else r = hn::Xor(x, v);
          thrv::storeKeeping(d, r, o + i, keep, off);
        },
        [&](int i, int off) {
          if (thr::keepLane(keep, sizeof(U), off)) return;
          o[i] = thr::logicSample<U>(kOp, ar[i], br[bPattern ? off : i]);
        });
  }
}

// Rows of n elements; b is an image, or a pattern of constants when bPattern is set.
template <class U>
void LogicRowsSimd(const U* a, int aStep, const U* b, int bStep, bool bPattern, U* dst,
                   int dstStep, int n, int height, int op, const U* keep) {
  switch (op) {
    case thr::kAnd:
      return logicRowsOp<U, thr::kAnd>(a, aStep, b, bStep, bPattern, dst, dstStep, n, height,
                                       keep);
    case thr::kOr:
      return logicRowsOp<U, thr::kOr>(a, aStep, b, bStep, bPattern, dst, dstStep, n, height,
                                      keep);
    default:
      return logicRowsOp<U, thr::kXor>(a, aStep, b, bStep, bPattern, dst, dstStep, n, height,
                                       keep);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

template <class U>
using LogicRowsFn = void (*)(const U*, int, const U*, int, bool, U*, int, int, int, int,
                             const U*);
LUMI_SIMD_TABLE(LogicRowsFn<uint8_t>, kLogic8, LogicRowsSimd<uint8_t>);
LUMI_SIMD_TABLE(LogicRowsFn<uint16_t>, kLogic16, LogicRowsSimd<uint16_t>);
LUMI_SIMD_TABLE(LogicRowsFn<uint32_t>, kLogic32, LogicRowsSimd<uint32_t>);

template <class U>
LogicRowsFn<U> logicSimd() {
  if constexpr (sizeof(U) == 1) return pickSimd(kLogic8);
  else if constexpr (sizeof(U) == 2) return pickSimd(kLogic16);
  else return pickSimd(kLogic32);
}

// Logic is on bits only, so every type runs as the unsigned type of its width.
template <class T, class L>
void runLogic(const T* a, int aStep, const T* b, int bStep, bool bConst, T* dst, int dstStep,
              LumiSize roi, int op) {
  using U = std::make_unsigned_t<T>;
  const U* ua = reinterpret_cast<const U*>(a);
  const U* ub = reinterpret_cast<const U*>(b);
  U* ud = reinterpret_cast<U*>(dst);
  if (auto f = logicSimd<U>()) {
    thr::Pattern<U> pat, keep;
    if (bConst) thr::fillPattern(pat, ub, L::kCh, L::kUse);
    const bool alpha = L::kUse < L::kCh;
    if (alpha) thr::fillKeep(keep, L::kCh, L::kUse);
    f(ua, aStep, bConst ? pat.v : ub, bStep, bConst, ud, dstStep, roi.width * L::kCh,
      roi.height, op, alpha ? keep.v : nullptr);
    return;
  }
  thr::withConstant<3>(op, [&](auto k) {
    for (int y = 0; y < roi.height; ++y) {
      const U* ar = rowAt(ua, aStep, y);
      const U* br = bConst ? ub : rowAt(ub, bStep, y);
      U* o = rowAt(ud, dstStep, y);
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < L::kUse; ++c) {
          const int i = x * L::kCh + c;
          o[i] = thr::logicSample<U>(k.value, ar[i], bConst ? br[c] : br[i]);
        }
    }
  });
}

// Pointers, steps, then the size.
template <class T, class L>
LumStatus logicImpl(const T* a, int aStep, const T* b, int bStep, T* dst, int dstStep,
                    LumiSize roi, int op) {
  if (anyNull(a, b, dst)) return lumStatusNullPtrErr;
  if (badStep(aStep, bStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  runLogic<T, L>(a, aStep, b, bStep, false, dst, dstStep, roi, op);
  return lumStatusOk;
}

template <class T, class L>
LumStatus logicConstImpl(const T* a, int aStep, const T* value, T* dst, int dstStep,
                         LumiSize roi, int op) {
  if (anyNull(a, value, dst)) return lumStatusNullPtrErr;
  if (badStep(aStep, dstStep)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  runLogic<T, L>(a, aStep, value, 0, true, dst, dstStep, roi, op);
  return lumStatusOk;
}

// Not flips every bit: an exclusive or with all ones in each processed channel.
template <class L>
LumStatus notImpl(const Lum8u* src, int srcStep, Lum8u* dst, int dstStep, LumiSize roi) {
  static const Lum8u kOnes[4] = {0xFF, 0xFF, 0xFF, 0xFF};
  return logicConstImpl<Lum8u, L>(src, srcStep, kOnes, dst, dstStep, roi, thr::kXor);
}

}  // namespace
}  // namespace lumi

using lumi::C1;
using lumi::C3;
using lumi::AC4;
using lumi::C4;

#define LUMI_LOGIC_SCALAR(T) T
#define LUMI_LOGIC_ARRAY(T) const T*
#define LUMI_LOGIC_ADDR_SCALAR(x) &x
#define LUMI_LOGIC_ADDR_ARRAY(x) x

#define LUMI_LOGIC(Op, OPCODE, tc, T, L, KIND)                                                  \
  LUMI_API LumStatus lumi##Op##_##tc##_##L##R(const T* pSrc1, int src1Step, const T* pSrc2,     \
                                              int src2Step, T* pDst, int dstStep,               \
                                              LumiSize roi) {                                   \
    return lumi::logicImpl<T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, OPCODE); \
  }                                                                                             \
  LUMI_API LumStatus lumi##Op##_##tc##_##L##IR(const T* pSrc, int srcStep, T* pSrcDst,          \
                                               int srcDstStep, LumiSize roi) {                  \
    return lumi::logicImpl<T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi,  \
                                 OPCODE);                                                       \
  }                                                                                             \
  LUMI_API LumStatus lumi##Op##C_##tc##_##L##R(const T* pSrc, int srcStep,                      \
                                               LUMI_LOGIC_##KIND(T) value, T* pDst,             \
                                               int dstStep, LumiSize roi) {                     \
    return lumi::logicConstImpl<T, L>(pSrc, srcStep, LUMI_LOGIC_ADDR_##KIND(value), pDst,       \
                                      dstStep, roi, OPCODE);                                    \
  }                                                                                             \
  LUMI_API LumStatus lumi##Op##C_##tc##_##L##IR(LUMI_LOGIC_##KIND(T) value, T* pSrcDst,         \
                                                int srcDstStep, LumiSize roi) {                 \
    return lumi::logicConstImpl<T, L>(pSrcDst, srcDstStep, LUMI_LOGIC_ADDR_##KIND(value),       \
                                      pSrcDst, srcDstStep, roi, OPCODE);                        \
  }

#define LUMI_LOGIC_LAYOUTS(Op, OPCODE, tc, T) \
  LUMI_LOGIC(Op, OPCODE, tc, T, C1, SCALAR)   \
  LUMI_LOGIC(Op, OPCODE, tc, T, C3, ARRAY)    \
  LUMI_LOGIC(Op, OPCODE, tc, T, C4, ARRAY)    \
  LUMI_LOGIC(Op, OPCODE, tc, T, AC4, ARRAY)

#define LUMI_LOGIC_TYPES(Op, OPCODE)               \
  LUMI_LOGIC_LAYOUTS(Op, OPCODE, 8u, Lum8u)        \
  LUMI_LOGIC_LAYOUTS(Op, OPCODE, 16u, Lum16u)      \
  LUMI_LOGIC_LAYOUTS(Op, OPCODE, 32s, Lum32s)

#define LUMI_NOT(L)                                                                             \
  LUMI_API LumStatus lumiNot_8u_##L##R(const Lum8u* pSrc, int srcStep, Lum8u* pDst,             \
                                       int dstStep, LumiSize roi) {                             \
    return lumi::notImpl<L>(pSrc, srcStep, pDst, dstStep, roi);                                 \
  }                                                                                             \
  LUMI_API LumStatus lumiNot_8u_##L##IR(Lum8u* pSrcDst, int srcDstStep, LumiSize roi) {         \
    return lumi::notImpl<L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi);                     \
  }

extern "C" {
LUMI_LOGIC_TYPES(And, lumi::thr::kAnd)
LUMI_LOGIC_TYPES(Or, lumi::thr::kOr)
LUMI_LOGIC_TYPES(Xor, lumi::thr::kXor)
LUMI_NOT(C1)
LUMI_NOT(C3)
LUMI_NOT(C4)
LUMI_NOT(AC4)

// Rewrites negative samples from two's complement into sign-and-magnitude form: the sign bit
// stays set and the low 31 bits hold the magnitude (the most negative value keeps its code).
// Non-negative samples are unchanged.
LUMI_API LumStatus lumiComplement_32s_C1IR(Lum32s* pSrcDst, int srcDstStep, LumiSize roi) {
  if (!pSrcDst) return lumStatusNullPtrErr;
  if (lumi::badStep(srcDstStep)) return lumStatusStepErr;
  if (lumi::badSize(roi)) return lumStatusSizeErr;
  for (int y = 0; y < roi.height; ++y) {
    Lum32s* p = lumi::rowAt(pSrcDst, srcDstStep, y);
    for (int x = 0; x < roi.width; ++x) {
      const uint32_t v = static_cast<uint32_t>(p[x]);
      if (v & 0x80000000u) p[x] = static_cast<Lum32s>(0x80000000u | ((0u - v) & 0x7FFFFFFFu));
    }
  }
  return lumStatusOk;
}
}

#endif  // HWY_ONCE
