// Vector row loops of the threshold, compare, logic and shift families; re-included once per
// SIMD target by their kernel files (after "hwy/highway.h", before the file's own section).
#if defined(LUMI_THRESHOLD_KERNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_THRESHOLD_KERNELS_INL_H_
#undef LUMI_THRESHOLD_KERNELS_INL_H_
#else
#define LUMI_THRESHOLD_KERNELS_INL_H_
#endif

#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "threshold/threshold_kernels.h"

LUMI_SIMD_BEGIN

// Runs one row of n elements: vop(i, off) handles the vector starting at element i whose
// pattern offset is off; sop(i, off) handles a single trailing element. The pattern offset
// restarts every three vectors, and every vector starts on a pixel boundary (its lane count
// is a multiple of four).
template <class D, class VecOp, class ScalarOp>
HWY_INLINE void patternRow(D d, std::ptrdiff_t n, VecOp&& vop, ScalarOp&& sop) {
  const std::ptrdiff_t N = static_cast<std::ptrdiff_t>(hn::Lanes(d));
  std::ptrdiff_t i = 0;
  for (; i + 3 * N <= n; i += 3 * N) {
    vop(i, 0);
    vop(i + N, static_cast<int>(N));
    vop(i + 2 * N, static_cast<int>(2 * N));
  }
  int off = 0;
  for (; i + N <= n; i += N, off += static_cast<int>(N)) vop(i, off);
  for (; i < n; ++i, ++off) sop(i, off);
}

// Every row of r: the destination element i becomes vop(a, b, i, off) (a vector) or
// sop(a, b, i, off) (one trailing element), with a, b the row starts of the operands (b the
// pattern itself when r.bStep is 0). AC4 alpha is left as it was; kKeep is r.keepAlpha(),
// fixed per instance so that the loop holds no test for it.
template <bool kKeep, class D, class T, class VecOp, class ScalarOp>
HWY_INLINE void patternRowsKeeping(D d, const thr::ElemRows<T>& r, VecOp& vop, ScalarOp& sop) {
  const auto colour = colourLanes(d);
  for (int y = 0; y < r.height; ++y) {
    const T* a = rowAt(r.a, r.aStep, y);
    const T* b = r.bStep ? rowAt(r.b, r.bStep, y) : r.b;
    T* o = rowAt(r.dst, r.dstStep, y);
    patternRow(
        d, r.n,
        [&](std::ptrdiff_t i, int off) HWY_ATTR {
          storeColour(d, vop(a, b, i, off), o + i, kKeep, colour);
        },
        [&](std::ptrdiff_t i, int off) {
          if (!kKeep || (i & 3) != 3) o[i] = sop(a, b, i, off);
        });
  }
}
template <class D, class T, class VecOp, class ScalarOp>
HWY_INLINE void patternRows(D d, const thr::ElemRows<T>& r, VecOp&& vop, ScalarOp&& sop) {
  if (r.keepAlpha())
    patternRowsKeeping<true>(d, r, vop, sop);
  else
    patternRowsKeeping<false>(d, r, vop, sop);
}

// a <= b for every lane type (integer lanes have no direct less-or-equal).
template <class V>
HWY_INLINE auto lessEq(V a, V b) {
  if constexpr (hwy::IsFloat<hn::TFromV<V>>())
    return hn::Le(a, b);
  else
    return hn::Not(hn::Lt(b, a));
}

LUMI_SIMD_END

#endif  // include guard
