// Thresholds: clamp, replace and two-sided replace for 8u, 16s and 32f images.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/threshold/threshold.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "threshold/threshold_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// One kernel per element type for every mode and layout: rows are runs of width * channels
// elements and the per-channel thresholds and values arrive as patterns.
template <class T, int kMode>
HWY_INLINE void thresholdRowsMode(const T* src, int srcStep, T* dst, int dstStep, int n,
                                  int height, const T* t1, const T* v1, const T* t2,
                                  const T* v2, const T* keep) {
  const hn::ScalableTag<T> d;
  for (int y = 0; y < height; ++y) {
    const T* s = rowAt(src, srcStep, y);
    T* o = rowAt(dst, dstStep, y);
    thrv::patternRow(
        d, n,
        [&](int i, int off) HWY_ATTR {
          const auto x = hn::LoadU(d, s + i);
          const auto a = hn::Load(d, t1 + off);
          hn::Vec<decltype(d)> r;
          if constexpr (kMode == thr::kClampGT) {
            if constexpr (std::is_floating_point_v<T>)
              r = hn::IfThenElse(hn::Lt(x, a), x, a);
            else
              r = hn::Min(x, a);
          } else if constexpr (kMode == thr::kClampLT) {
            if constexpr (std::is_floating_point_v<T>)
              r = hn::IfThenElse(hn::Lt(a, x), x, a);
            else
              r = hn::Max(x, a);
          } else if constexpr (kMode == thr::kValGT) {
            r = hn::IfThenElse(hn::Lt(a, x), hn::Load(d, v1 + off), x);
          } else if constexpr (kMode == thr::kValLT) {
            r = hn::IfThenElse(thrv::lessEq(a, x), x, hn::Load(d, v1 + off));
          } else {
            const auto b = hn::Load(d, t2 + off);
            const auto upper = hn::IfThenElse(hn::Lt(b, x), hn::Load(d, v2 + off), x);
            r = hn::IfThenElse(thrv::lessEq(a, x), upper, hn::Load(d, v1 + off));
          }
          thrv::storeKeeping(d, r, o + i, keep, off);
        },
        [&](int i, int off) {
          if (thr::keepLane(keep, sizeof(T), off)) return;
          constexpr bool kValue = kMode != thr::kClampGT && kMode != thr::kClampLT;
          constexpr bool kTwo = kMode == thr::kValLTGT;
          o[i] = thr::thresholdSample<T>(kMode, s[i], t1[off], kValue ? v1[off] : T(),
                                         kTwo ? t2[off] : T(), kTwo ? v2[off] : T());
        });
  }
}

template <class T>
void ThresholdRowsSimd(const T* src, int srcStep, T* dst, int dstStep, int n, int height,
                       int mode, const T* t1, const T* v1, const T* t2, const T* v2,
                       const T* keep) {
  switch (mode) {
    case thr::kClampGT:
      return thresholdRowsMode<T, thr::kClampGT>(src, srcStep, dst, dstStep, n, height, t1, v1,
                                                 t2, v2, keep);
    case thr::kClampLT:
      return thresholdRowsMode<T, thr::kClampLT>(src, srcStep, dst, dstStep, n, height, t1, v1,
                                                 t2, v2, keep);
    case thr::kValGT:
      return thresholdRowsMode<T, thr::kValGT>(src, srcStep, dst, dstStep, n, height, t1, v1,
                                               t2, v2, keep);
    case thr::kValLT:
      return thresholdRowsMode<T, thr::kValLT>(src, srcStep, dst, dstStep, n, height, t1, v1,
                                               t2, v2, keep);
    default:
      return thresholdRowsMode<T, thr::kValLTGT>(src, srcStep, dst, dstStep, n, height, t1, v1,
                                                 t2, v2, keep);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {

template <class T>
using ThresholdRowsFn = void (*)(const T*, int, T*, int, int, int, int, const T*, const T*,
                                 const T*, const T*, const T*);
LUMI_SIMD_TABLE(ThresholdRowsFn<Lum8u>, kThreshold8u, ThresholdRowsSimd<Lum8u>);
LUMI_SIMD_TABLE(ThresholdRowsFn<Lum16s>, kThreshold16s, ThresholdRowsSimd<Lum16s>);
LUMI_SIMD_TABLE(ThresholdRowsFn<Lum32f>, kThreshold32f, ThresholdRowsSimd<Lum32f>);

template <class T>
ThresholdRowsFn<T> thresholdSimd() {
  if constexpr (std::is_same_v<T, Lum8u>) return pickSimd(kThreshold8u);
  else if constexpr (std::is_same_v<T, Lum16s>) return pickSimd(kThreshold16s);
  else return pickSimd(kThreshold32f);
}

// Applies `mode` to the processed channels of every pixel. t1/v1 are the (lower) threshold
// and value, t2/v2 the upper pair of the two-sided mode; unused ones may be null.
template <class T, class L>
void runThreshold(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, int mode,
                  const T* t1, const T* v1, const T* t2, const T* v2) {
  const T zero[4] = {};
  if (!v1) v1 = zero;
  if (!t2) t2 = zero;
  if (!v2) v2 = zero;
  const int n = roi.width * L::kCh;
  if (auto f = thresholdSimd<T>()) {
    thr::Pattern<T> pt1, pv1, pt2, pv2, keep;
    thr::fillPattern(pt1, t1, L::kCh, L::kUse);
    if (mode != thr::kClampGT && mode != thr::kClampLT) thr::fillPattern(pv1, v1, L::kCh, L::kUse);
    if (mode == thr::kValLTGT) {
      thr::fillPattern(pt2, t2, L::kCh, L::kUse);
      thr::fillPattern(pv2, v2, L::kCh, L::kUse);
    }
    const bool alpha = L::kUse < L::kCh;
    if (alpha) thr::fillKeep(keep, L::kCh, L::kUse);
    f(src, srcStep, dst, dstStep, n, roi.height, mode, pt1.v, pv1.v, pt2.v, pv2.v,
      alpha ? keep.v : nullptr);
    return;
  }
  thr::withConstant<5>(mode, [&](auto m) {
    thr::eachRow(src, srcStep, dst, dstStep, roi.height, [&](const T* s, T* o) {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < L::kUse; ++c) {
          const int i = x * L::kCh + c;
          o[i] = thr::thresholdSample<T>(m.value, s[i], t1[c], v1[c], t2[c], v2[c]);
        }
    });
  });
}

// Clamp: pointers, size, steps, threshold array, and the comparison last.
template <class T, class L>
LumStatus clampImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi, const T* t,
                    LumCompareOp cmp) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (!t) return lumStatusNullPtrErr;
  if (cmp != lumCmpLess && cmp != lumCmpGreater) return lumStatusUnsupportedModeErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi,
                     cmp == lumCmpGreater ? thr::kClampGT : thr::kClampLT, t, nullptr, nullptr,
                     nullptr);
  return lumStatusOk;
}

// Replace: the comparison first, then pointers, size, steps and the arrays.
template <class T, class L>
LumStatus replaceImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                      const T* t, const T* v, LumCompareOp cmp) {
  if (cmp != lumCmpLess && cmp != lumCmpGreater) return lumStatusUnsupportedModeErr;
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (anyNull(t, v)) return lumStatusNullPtrErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi,
                     cmp == lumCmpGreater ? thr::kValGT : thr::kValLT, t, v, nullptr, nullptr);
  return lumStatusOk;
}

// Four-channel replace in a fixed direction: pointers, size, steps, arrays.
template <class T>
LumStatus replaceC4Impl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                        const T* t, const T* v, bool greater) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (anyNull(t, v)) return lumStatusNullPtrErr;
  runThreshold<T, C4>(src, srcStep, dst, dstStep, roi, greater ? thr::kValGT : thr::kValLT, t,
                      v, nullptr, nullptr);
  return lumStatusOk;
}

// Two-sided: pointers, size, steps, arrays, then every channel's upper threshold must be at
// least its lower one (written as "upper >= lower" so that a NaN threshold fails too).
template <class T, class L>
LumStatus twoSidedImpl(const T* src, int srcStep, T* dst, int dstStep, LumiSize roi,
                       const T* tLT, const T* vLT, const T* tGT, const T* vGT) {
  if (anyNull(src, dst)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(srcStep, dstStep)) return lumStatusStepErr;
  if (anyNull(tLT, vLT, tGT, vGT)) return lumStatusNullPtrErr;
  for (int c = 0; c < L::kUse; ++c)
    if (!(tGT[c] >= tLT[c])) return lumStatusThresholdOrderErr;
  runThreshold<T, L>(src, srcStep, dst, dstStep, roi, thr::kValLTGT, tLT, vLT, tGT, vGT);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

// ---- exported wrappers ------------------------------------------------------------------
using lumi::C1;
using lumi::C3;
using lumi::AC4;
using lumi::C4;

// C1 takes scalars by value, C3 and AC4 take arrays of three.
#define LUMI_THR_SCALAR(T) T
#define LUMI_THR_ARRAY(T) const T*
#define LUMI_THR_ADDR_SCALAR(x) &x
#define LUMI_THR_ADDR_ARRAY(x) x

#define LUMI_THRESHOLD_FAMILY(tc, T, L, KIND)                                                   \
  LUMI_API LumStatus lumiThreshold_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,           \
                                                 int dstStep, LumiSize roi,                     \
                                                 LUMI_THR_##KIND(T) t, LumCompareOp cmp) {      \
    return lumi::clampImpl<T, L>(pSrc, srcStep, pDst, dstStep, roi, LUMI_THR_ADDR_##KIND(t),    \
                                 cmp);                                                          \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_##tc##_##L##IR(T* p, int step, LumiSize roi,                 \
                                                  LUMI_THR_##KIND(T) t, LumCompareOp cmp) {     \
    return lumiThreshold_##tc##_##L##R(p, step, p, step, roi, t, cmp);                          \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_GT_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,        \
                                                    int dstStep, LumiSize roi,                  \
                                                    LUMI_THR_##KIND(T) t) {                     \
    return lumiThreshold_##tc##_##L##R(pSrc, srcStep, pDst, dstStep, roi, t, lumCmpGreater);    \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_GT_##tc##_##L##IR(T* p, int step, LumiSize roi,              \
                                                     LUMI_THR_##KIND(T) t) {                    \
    return lumiThreshold_##tc##_##L##R(p, step, p, step, roi, t, lumCmpGreater);                \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LT_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,        \
                                                    int dstStep, LumiSize roi,                  \
                                                    LUMI_THR_##KIND(T) t) {                     \
    return lumiThreshold_##tc##_##L##R(pSrc, srcStep, pDst, dstStep, roi, t, lumCmpLess);       \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LT_##tc##_##L##IR(T* p, int step, LumiSize roi,              \
                                                     LUMI_THR_##KIND(T) t) {                    \
    return lumiThreshold_##tc##_##L##R(p, step, p, step, roi, t, lumCmpLess);                   \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_Val_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,       \
                                                     int dstStep, LumiSize roi,                 \
                                                     LUMI_THR_##KIND(T) t,                      \
                                                     LUMI_THR_##KIND(T) v, LumCompareOp cmp) {  \
    return lumi::replaceImpl<T, L>(pSrc, srcStep, pDst, dstStep, roi, LUMI_THR_ADDR_##KIND(t),  \
                                   LUMI_THR_ADDR_##KIND(v), cmp);                               \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_Val_##tc##_##L##IR(T* p, int step, LumiSize roi,             \
                                                      LUMI_THR_##KIND(T) t,                     \
                                                      LUMI_THR_##KIND(T) v, LumCompareOp cmp) { \
    return lumiThreshold_Val_##tc##_##L##R(p, step, p, step, roi, t, v, cmp);                   \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_GTVal_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,     \
                                                       int dstStep, LumiSize roi,               \
                                                       LUMI_THR_##KIND(T) t,                    \
                                                       LUMI_THR_##KIND(T) v) {                  \
    return lumiThreshold_Val_##tc##_##L##R(pSrc, srcStep, pDst, dstStep, roi, t, v,             \
                                           lumCmpGreater);                                      \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_GTVal_##tc##_##L##IR(T* p, int step, LumiSize roi,           \
                                                        LUMI_THR_##KIND(T) t,                   \
                                                        LUMI_THR_##KIND(T) v) {                 \
    return lumiThreshold_Val_##tc##_##L##R(p, step, p, step, roi, t, v, lumCmpGreater);         \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTVal_##tc##_##L##R(const T* pSrc, int srcStep, T* pDst,     \
                                                       int dstStep, LumiSize roi,               \
                                                       LUMI_THR_##KIND(T) t,                    \
                                                       LUMI_THR_##KIND(T) v) {                  \
    return lumiThreshold_Val_##tc##_##L##R(pSrc, srcStep, pDst, dstStep, roi, t, v,             \
                                           lumCmpLess);                                         \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTVal_##tc##_##L##IR(T* p, int step, LumiSize roi,           \
                                                        LUMI_THR_##KIND(T) t,                   \
                                                        LUMI_THR_##KIND(T) v) {                 \
    return lumiThreshold_Val_##tc##_##L##R(p, step, p, step, roi, t, v, lumCmpLess);            \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTValGTVal_##tc##_##L##R(                                    \
      const T* pSrc, int srcStep, T* pDst, int dstStep, LumiSize roi, LUMI_THR_##KIND(T) tLT,   \
      LUMI_THR_##KIND(T) vLT, LUMI_THR_##KIND(T) tGT, LUMI_THR_##KIND(T) vGT) {                 \
    return lumi::twoSidedImpl<T, L>(pSrc, srcStep, pDst, dstStep, roi,                          \
                                    LUMI_THR_ADDR_##KIND(tLT), LUMI_THR_ADDR_##KIND(vLT),       \
                                    LUMI_THR_ADDR_##KIND(tGT), LUMI_THR_ADDR_##KIND(vGT));      \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTValGTVal_##tc##_##L##IR(                                   \
      T* p, int step, LumiSize roi, LUMI_THR_##KIND(T) tLT, LUMI_THR_##KIND(T) vLT,             \
      LUMI_THR_##KIND(T) tGT, LUMI_THR_##KIND(T) vGT) {                                         \
    return lumiThreshold_LTValGTVal_##tc##_##L##R(p, step, p, step, roi, tLT, vLT, tGT, vGT);   \
  }

#define LUMI_THRESHOLD_C4(tc, T)                                                                \
  LUMI_API LumStatus lumiThreshold_GTVal_##tc##_C4R(const T* pSrc, int srcStep, T* pDst,        \
                                                    int dstStep, LumiSize roi, const T* t,      \
                                                    const T* v) {                               \
    return lumi::replaceC4Impl<T>(pSrc, srcStep, pDst, dstStep, roi, t, v, true);               \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_GTVal_##tc##_C4IR(T* p, int step, LumiSize roi, const T* t,  \
                                                     const T* v) {                              \
    return lumi::replaceC4Impl<T>(p, step, p, step, roi, t, v, true);                           \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTVal_##tc##_C4R(const T* pSrc, int srcStep, T* pDst,        \
                                                    int dstStep, LumiSize roi, const T* t,      \
                                                    const T* v) {                               \
    return lumi::replaceC4Impl<T>(pSrc, srcStep, pDst, dstStep, roi, t, v, false);              \
  }                                                                                             \
  LUMI_API LumStatus lumiThreshold_LTVal_##tc##_C4IR(T* p, int step, LumiSize roi, const T* t,  \
                                                     const T* v) {                              \
    return lumi::replaceC4Impl<T>(p, step, p, step, roi, t, v, false);                          \
  }

#define LUMI_THRESHOLD_TYPE(tc, T)            \
  LUMI_THRESHOLD_FAMILY(tc, T, C1, SCALAR)    \
  LUMI_THRESHOLD_FAMILY(tc, T, C3, ARRAY)     \
  LUMI_THRESHOLD_FAMILY(tc, T, AC4, ARRAY)    \
  LUMI_THRESHOLD_C4(tc, T)

extern "C" {
LUMI_THRESHOLD_TYPE(8u, Lum8u)
LUMI_THRESHOLD_TYPE(16s, Lum16s)
LUMI_THRESHOLD_TYPE(32f, Lum32f)
}

#endif  // HWY_ONCE
