// Vector loops shared by the arithmetic kernel files; included once per SIMD target from
// inside a file's Highway section (after "hwy/highway.h").
#if defined(LUMI_ARITH_FLOAT_KERNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_ARITH_FLOAT_KERNELS_INL_H_
#undef LUMI_ARITH_FLOAT_KERNELS_INL_H_
#else
#define LUMI_ARITH_FLOAT_KERNELS_INL_H_
#endif

#include "hwy/highway.h"
#include "arith/float_kernels.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Does the row own the element at pattern offset off? (AC4 alpha is never written.)
template <class T>
HWY_INLINE bool Owns(const RowPattern<T>* pat, size_t off) {
  return !pat || !pat->masked || static_cast<int>(off % pat->period) < pat->use;
}

// Stores v at p, leaving the elements the pattern does not own untouched.
template <class D, class T>
HWY_INLINE void StoreOwned(D d, hn::Vec<D> v, T* HWY_RESTRICT p, const RowPattern<T>* pat,
                           size_t off) {
  if (pat && pat->masked)
    hn::BlendedStore(v, hn::MaskFromVec(hn::LoadU(d, pat->mask + off)), d, p);
  else
    hn::StoreU(v, d, p);
}

// Walks n elements: whole vectors of d through vec(i, off), the rest one element at a time
// through one(i, off), where off is the element's position in the pattern arrays.
template <class D, class V, class S>
HWY_INLINE void ForEachVector(D d, size_t n, int period, V&& vec, S&& one) {
  const size_t N = hn::Lanes(d);
  size_t i = 0, k = 0;
  for (; i + N <= n; i += N) {
    vec(i, k * N);
    if (++k == static_cast<size_t>(period)) k = 0;
  }
  for (size_t j = 0; i + j < n; ++j) one(i + j, k * N + j);
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif
