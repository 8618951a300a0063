// Thresholds: clamp, replace and two-sided replace for 8u, 16s and 32f images.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/threshold.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/simd.h"
#include "threshold/threshold_kernels-inl.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET

// One kernel per element type and mode for every layout: rows are runs of width * channels
// elements and the per-channel thresholds and values arrive as patterns.
template <class T, int kMode>
HWY_INLINE void thresholdRowsMode(const thr::ElemRows<T>& r, const thr::ThresholdPatterns<T>& p) {
  const hn::ScalableTag<T> d;
  const T* t1 = p.t1.v;
  const T* v1 = p.v1.v;
  const T* t2 = p.t2.v;
  const T* v2 = p.v2.v;
  patternRows(
      d, r,
      [&](const T* s, const T*, std::ptrdiff_t i, int off) HWY_ATTR {
        const auto x = hn::LoadU(d, s + i);
        const auto a = hn::Load(d, t1 + off);
        if constexpr (kMode == thr::kClampGT) {
          if constexpr (std::is_floating_point_v<T>)
            return hn::IfThenElse(hn::Lt(x, a), x, a);
          else
            return hn::Min(x, a);
        } else if constexpr (kMode == thr::kClampLT) {
          if constexpr (std::is_floating_point_v<T>)
            return hn::IfThenElse(hn::Lt(a, x), x, a);
          else
            return hn::Max(x, a);
        } else if constexpr (kMode == thr::kValGT) {
          return hn::IfThenElse(hn::Lt(a, x), hn::Load(d, v1 + off), x);
        } else if constexpr (kMode == thr::kValLT) {
          return hn::IfThenElse(lessEq(a, x), x, hn::Load(d, v1 + off));
        } else {
          const auto b = hn::Load(d, t2 + off);
          const auto upper = hn::IfThenElse(hn::Lt(b, x), hn::Load(d, v2 + off), x);
          return hn::IfThenElse(lessEq(a, x), upper, hn::Load(d, v1 + off));
        }
      },
      [&](const T* s, const T*, std::ptrdiff_t i, int off) {
        return thr::thresholdSample<T>(kMode, s[i], t1[off], v1[off], t2[off], v2[off]);
      });
}

template <class T>
void thresholdRows(const thr::ElemRows<T>& r, int mode, const thr::ThresholdPatterns<T>& p) {
  switch (mode) {
    case thr::kClampGT: return thresholdRowsMode<T, thr::kClampGT>(r, p);
    case thr::kClampLT: return thresholdRowsMode<T, thr::kClampLT>(r, p);
    case thr::kValGT: return thresholdRowsMode<T, thr::kValGT>(r, p);
    case thr::kValLT: return thresholdRowsMode<T, thr::kValLT>(r, p);
    default: return thresholdRowsMode<T, thr::kValLTGT>(r, p);
  }
}

#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace {

template <class T>
using ThresholdRowsFn = void (*)(const thr::ElemRows<T>&, int, const thr::ThresholdPatterns<T>&);

template <class T>
void thresholdRowsScalar(const thr::ElemRows<T>& r, int mode, const thr::ThresholdPatterns<T>& p) {
  thr::withConstant<5>(mode, [&](auto m) {
    thr::forElements(r, [&](const T* s, const T*, T* o, std::ptrdiff_t i, int c) {
      o[i] = thr::thresholdSample<T>(m.value, s[i], p.t1.v[c], p.v1.v[c], p.t2.v[c], p.v2.v[c]);
    });
  });
}

template <class T>
ThresholdRowsFn<T> pickThresholdRows() {
  LUMI_SIMD_TABLE(ThresholdRowsFn<T>, table, thresholdRows<T>);
  return pick(table, &thresholdRowsScalar<T>);
}

// Applies `mode` to the processed channels of every pixel. t1/v1 are the (lower) threshold
// and value, t2/v2 the upper pair of the two-sided mode; unused ones may be null.
template <class T, class L>
void runThreshold(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mode,
                  const T* t1, const T* v1, const T* t2, const T* v2) {
  thr::ThresholdPatterns<T> p;
  const T zero[4] = {};
  thr::fillPattern(p.t1, t1, L::kCh, L::kUse);
  thr::fillPattern(p.v1, v1 ? v1 : zero, L::kCh, L::kUse);
  thr::fillPattern(p.t2, t2 ? t2 : zero, L::kCh, L::kUse);
  thr::fillPattern(p.v2, v2 ? v2 : zero, L::kCh, L::kUse);
  pickThresholdRows<T>()(thr::elemRows<L>(src, srcStep, nullptr, 0, dst, dstStep, roi), mode, p);
}

// The images: pointers, then the size, then the steps.
template <class T>
LumStatus checkImages(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi) {
  return thr::checkSizeThenSteps(anyNull(src, dst), roi, srcStep, dstStep);
}

// Clamp: the images, the threshold array, and the comparison last.
template <class T, class L>
LumStatus clampImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const T* t,
                    LumCompareOp cmp) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  if (!t) return lumStatusNullPtrErr;
  if (cmp != lumCmpLess && cmp != lumCmpGreater) return lumStatusUnsupportedModeErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi,
                     cmp == lumCmpGreater ? thr::kClampGT : thr::kClampLT, t, nullptr, nullptr,
                     nullptr);
  return lumStatusOk;
}

// Replace: the comparison first, then the images and the arrays.
template <class T, class L>
LumStatus replaceImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                      const T* t, const T* v, LumCompareOp cmp) {
  if (cmp != lumCmpLess && cmp != lumCmpGreater) return lumStatusUnsupportedModeErr;
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  if (anyNull(t, v)) return lumStatusNullPtrErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi,
                     cmp == lumCmpGreater ? thr::kValGT : thr::kValLT, t, v, nullptr, nullptr);
  return lumStatusOk;
}

// Two-sided: the images, the arrays, then every channel's upper threshold must be at least
// its lower one (written as "upper >= lower" so that a NaN threshold fails too).
template <class T, class L>
LumStatus twoSidedImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                       const T* tLT, const T* vLT, const T* tGT, const T* vGT) {
  if (LumStatus st = checkImages(src, srcStep, dst, dstStep, roi)) return st;
  if (anyNull(tLT, vLT, tGT, vGT)) return lumStatusNullPtrErr;
  for (int c = 0; c < L::kUse; ++c)
    if (!(tGT[c] >= tLT[c])) return lumStatusThresholdOrderErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi, thr::kValLTGT, tLT, vLT, tGT, vGT);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// ---- exported functions -----------------------------------------------------------------------
// K: C1 takes scalars by value (SCALAR), the others arrays (ARRAY). IO: R reads pSrc and writes
// pDst, IR works in place on p. The fixed-direction forms (GT, LT, GTVal, LTVal and the C4
// replace) pass their comparison, which then always passes its check.
#define LUMI_THR_SCALAR(T) T
#define LUMI_THR_ARRAY(T) const T*
#define LUMI_THR_ADDR_SCALAR(x) &x
#define LUMI_THR_ADDR_ARRAY(x) x
#define LUMI_THR_IO_R(T) const T *pSrc, int srcStep, T *pDst, int dstStep
#define LUMI_THR_IO_IR(T) T *p, int step
#define LUMI_THR_ARGS_R pSrc, srcStep, pDst, dstStep
#define LUMI_THR_ARGS_IR p, step, p, step

#define LUMI_CLAMP(NAME, T, L, K, IO)                                                           \
  LUMI_API LumStatus NAME(LUMI_THR_IO_##IO(T), LumiSize roi, LUMI_THR_##K(T) t,                 \
                          LumCompareOp cmp) {                                                   \
    return lumi::clampImpl<T, lumi::L>(LUMI_THR_ARGS_##IO, roi, LUMI_THR_ADDR_##K(t), cmp);     \
  }
#define LUMI_CLAMP_TO(NAME, T, L, K, IO, CMP)                                                   \
  LUMI_API LumStatus NAME(LUMI_THR_IO_##IO(T), LumiSize roi, LUMI_THR_##K(T) t) {               \
    return lumi::clampImpl<T, lumi::L>(LUMI_THR_ARGS_##IO, roi, LUMI_THR_ADDR_##K(t), CMP);     \
  }
#define LUMI_REPLACE(NAME, T, L, K, IO)                                                         \
  LUMI_API LumStatus NAME(LUMI_THR_IO_##IO(T), LumiSize roi, LUMI_THR_##K(T) t,                 \
                          LUMI_THR_##K(T) v, LumCompareOp cmp) {                                \
    return lumi::replaceImpl<T, lumi::L>(LUMI_THR_ARGS_##IO, roi, LUMI_THR_ADDR_##K(t),         \
                                         LUMI_THR_ADDR_##K(v), cmp);                            \
  }
#define LUMI_REPLACE_TO(NAME, T, L, K, IO, CMP)                                                 \
  LUMI_API LumStatus NAME(LUMI_THR_IO_##IO(T), LumiSize roi, LUMI_THR_##K(T) t,                 \
                          LUMI_THR_##K(T) v) {                                                  \
    return lumi::replaceImpl<T, lumi::L>(LUMI_THR_ARGS_##IO, roi, LUMI_THR_ADDR_##K(t),         \
                                         LUMI_THR_ADDR_##K(v), CMP);                            \
  }
#define LUMI_TWO_SIDED(NAME, T, L, K, IO)                                                       \
  LUMI_API LumStatus NAME(LUMI_THR_IO_##IO(T), LumiSize roi, LUMI_THR_##K(T) tLT,               \
                          LUMI_THR_##K(T) vLT, LUMI_THR_##K(T) tGT, LUMI_THR_##K(T) vGT) {      \
    return lumi::twoSidedImpl<T, lumi::L>(LUMI_THR_ARGS_##IO, roi, LUMI_THR_ADDR_##K(tLT),      \
                                          LUMI_THR_ADDR_##K(vLT), LUMI_THR_ADDR_##K(tGT),       \
                                          LUMI_THR_ADDR_##K(vGT));                              \
  }

LUMI_CLAMP(lumiThreshold_8u_C1R, Lum8u, C1, SCALAR, R)
LUMI_CLAMP(lumiThreshold_8u_C1IR, Lum8u, C1, SCALAR, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_C1R, Lum8u, C1, SCALAR, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_C1IR, Lum8u, C1, SCALAR, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_C1R, Lum8u, C1, SCALAR, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_C1IR, Lum8u, C1, SCALAR, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_8u_C1R, Lum8u, C1, SCALAR, R)
LUMI_REPLACE(lumiThreshold_Val_8u_C1IR, Lum8u, C1, SCALAR, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C1R, Lum8u, C1, SCALAR, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C1IR, Lum8u, C1, SCALAR, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C1R, Lum8u, C1, SCALAR, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C1IR, Lum8u, C1, SCALAR, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_C1R, Lum8u, C1, SCALAR, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_C1IR, Lum8u, C1, SCALAR, IR)
LUMI_CLAMP(lumiThreshold_8u_C3R, Lum8u, C3, ARRAY, R)
LUMI_CLAMP(lumiThreshold_8u_C3IR, Lum8u, C3, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_C3R, Lum8u, C3, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_C3IR, Lum8u, C3, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_C3R, Lum8u, C3, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_C3IR, Lum8u, C3, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_8u_C3R, Lum8u, C3, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_8u_C3IR, Lum8u, C3, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C3R, Lum8u, C3, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C3IR, Lum8u, C3, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C3R, Lum8u, C3, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C3IR, Lum8u, C3, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_C3R, Lum8u, C3, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_C3IR, Lum8u, C3, ARRAY, IR)
LUMI_CLAMP(lumiThreshold_8u_AC4R, Lum8u, AC4, ARRAY, R)
LUMI_CLAMP(lumiThreshold_8u_AC4IR, Lum8u, AC4, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_AC4R, Lum8u, AC4, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_8u_AC4IR, Lum8u, AC4, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_AC4R, Lum8u, AC4, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_8u_AC4IR, Lum8u, AC4, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_8u_AC4R, Lum8u, AC4, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_8u_AC4IR, Lum8u, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_AC4R, Lum8u, AC4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_AC4IR, Lum8u, AC4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_AC4R, Lum8u, AC4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_AC4IR, Lum8u, AC4, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_AC4R, Lum8u, AC4, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_8u_AC4IR, Lum8u, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C4R, Lum8u, C4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_8u_C4IR, Lum8u, C4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C4R, Lum8u, C4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_8u_C4IR, Lum8u, C4, ARRAY, IR, lumCmpLess)
LUMI_CLAMP(lumiThreshold_16s_C1R, Lum16s, C1, SCALAR, R)
LUMI_CLAMP(lumiThreshold_16s_C1IR, Lum16s, C1, SCALAR, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_C1R, Lum16s, C1, SCALAR, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_C1IR, Lum16s, C1, SCALAR, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_C1R, Lum16s, C1, SCALAR, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_C1IR, Lum16s, C1, SCALAR, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_16s_C1R, Lum16s, C1, SCALAR, R)
LUMI_REPLACE(lumiThreshold_Val_16s_C1IR, Lum16s, C1, SCALAR, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C1R, Lum16s, C1, SCALAR, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C1IR, Lum16s, C1, SCALAR, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C1R, Lum16s, C1, SCALAR, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C1IR, Lum16s, C1, SCALAR, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_C1R, Lum16s, C1, SCALAR, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_C1IR, Lum16s, C1, SCALAR, IR)
LUMI_CLAMP(lumiThreshold_16s_C3R, Lum16s, C3, ARRAY, R)
LUMI_CLAMP(lumiThreshold_16s_C3IR, Lum16s, C3, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_C3R, Lum16s, C3, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_C3IR, Lum16s, C3, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_C3R, Lum16s, C3, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_C3IR, Lum16s, C3, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_16s_C3R, Lum16s, C3, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_16s_C3IR, Lum16s, C3, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C3R, Lum16s, C3, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C3IR, Lum16s, C3, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C3R, Lum16s, C3, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C3IR, Lum16s, C3, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_C3R, Lum16s, C3, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_C3IR, Lum16s, C3, ARRAY, IR)
LUMI_CLAMP(lumiThreshold_16s_AC4R, Lum16s, AC4, ARRAY, R)
LUMI_CLAMP(lumiThreshold_16s_AC4IR, Lum16s, AC4, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_AC4R, Lum16s, AC4, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_16s_AC4IR, Lum16s, AC4, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_AC4R, Lum16s, AC4, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_16s_AC4IR, Lum16s, AC4, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_16s_AC4R, Lum16s, AC4, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_16s_AC4IR, Lum16s, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_AC4R, Lum16s, AC4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_AC4IR, Lum16s, AC4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_AC4R, Lum16s, AC4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_AC4IR, Lum16s, AC4, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_AC4R, Lum16s, AC4, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_16s_AC4IR, Lum16s, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C4R, Lum16s, C4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_16s_C4IR, Lum16s, C4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C4R, Lum16s, C4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_16s_C4IR, Lum16s, C4, ARRAY, IR, lumCmpLess)
LUMI_CLAMP(lumiThreshold_32f_C1R, Lum32f, C1, SCALAR, R)
LUMI_CLAMP(lumiThreshold_32f_C1IR, Lum32f, C1, SCALAR, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_C1R, Lum32f, C1, SCALAR, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_C1IR, Lum32f, C1, SCALAR, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_C1R, Lum32f, C1, SCALAR, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_C1IR, Lum32f, C1, SCALAR, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_32f_C1R, Lum32f, C1, SCALAR, R)
LUMI_REPLACE(lumiThreshold_Val_32f_C1IR, Lum32f, C1, SCALAR, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C1R, Lum32f, C1, SCALAR, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C1IR, Lum32f, C1, SCALAR, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C1R, Lum32f, C1, SCALAR, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C1IR, Lum32f, C1, SCALAR, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_C1R, Lum32f, C1, SCALAR, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_C1IR, Lum32f, C1, SCALAR, IR)
LUMI_CLAMP(lumiThreshold_32f_C3R, Lum32f, C3, ARRAY, R)
LUMI_CLAMP(lumiThreshold_32f_C3IR, Lum32f, C3, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_C3R, Lum32f, C3, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_C3IR, Lum32f, C3, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_C3R, Lum32f, C3, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_C3IR, Lum32f, C3, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_32f_C3R, Lum32f, C3, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_32f_C3IR, Lum32f, C3, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C3R, Lum32f, C3, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C3IR, Lum32f, C3, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C3R, Lum32f, C3, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C3IR, Lum32f, C3, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_C3R, Lum32f, C3, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_C3IR, Lum32f, C3, ARRAY, IR)
LUMI_CLAMP(lumiThreshold_32f_AC4R, Lum32f, AC4, ARRAY, R)
LUMI_CLAMP(lumiThreshold_32f_AC4IR, Lum32f, AC4, ARRAY, IR)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_AC4R, Lum32f, AC4, ARRAY, R, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_GT_32f_AC4IR, Lum32f, AC4, ARRAY, IR, lumCmpGreater)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_AC4R, Lum32f, AC4, ARRAY, R, lumCmpLess)
LUMI_CLAMP_TO(lumiThreshold_LT_32f_AC4IR, Lum32f, AC4, ARRAY, IR, lumCmpLess)
LUMI_REPLACE(lumiThreshold_Val_32f_AC4R, Lum32f, AC4, ARRAY, R)
LUMI_REPLACE(lumiThreshold_Val_32f_AC4IR, Lum32f, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_AC4R, Lum32f, AC4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_AC4IR, Lum32f, AC4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_AC4R, Lum32f, AC4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_AC4IR, Lum32f, AC4, ARRAY, IR, lumCmpLess)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_AC4R, Lum32f, AC4, ARRAY, R)
LUMI_TWO_SIDED(lumiThreshold_LTValGTVal_32f_AC4IR, Lum32f, AC4, ARRAY, IR)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C4R, Lum32f, C4, ARRAY, R, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_GTVal_32f_C4IR, Lum32f, C4, ARRAY, IR, lumCmpGreater)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C4R, Lum32f, C4, ARRAY, R, lumCmpLess)
LUMI_REPLACE_TO(lumiThreshold_LTVal_32f_C4IR, Lum32f, C4, ARRAY, IR, lumCmpLess)

#endif  // HWY_ONCE
