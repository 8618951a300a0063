// Vector loops shared by the floating-point, complex and pointwise kernel files; re-included
// once per SIMD target by each of them (after "hwy/highway.h").
#if defined(LUMI_ARITH_FLOAT_KERNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_ARITH_FLOAT_KERNELS_INL_H_
#undef LUMI_ARITH_FLOAT_KERNELS_INL_H_
#else
#define LUMI_ARITH_FLOAT_KERNELS_INL_H_
#endif

#include "hwy/highway.h"
#include "core/simd.h"
#include "core/alpha-inl.h"
#include "arith/float_kernels.h"

#include <type_traits>

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
// The family's per-target kernels live in arithv and see the scalar definitions of arithf.
namespace arithv {
using namespace arithf;

// Memory-bound rows use vectors of at most 256 bits: wider ones move no more data per cycle
// and can lower the clock.
template <class T>
using StreamTag = hn::CappedTag<T, 32 / sizeof(T)>;

// Does the row own the element at pattern offset off? (AC4 alpha is never written.)
template <class T>
HWY_INLINE bool Owns(const RowPattern<T>* pat, size_t off) {
  return !pat || !pat->masked || static_cast<int>(off % pat->period) < pat->use;
}

// Stores v at p; a masked row leaves the elements the pattern does not own untouched.
template <class D, class T, class Masked>
HWY_INLINE void StoreOwned(D d, hn::Vec<D> v, T* HWY_RESTRICT p, const RowPattern<T>* pat,
                           size_t off, Masked) {
  if constexpr (Masked::value)
    storeColour(d, v, p, true, colourLanesAt(d, off, pat->unitShift));
  else
    hn::StoreU(v, d, p);
}

// Walks n elements: whole vectors of d through vec(i, off, masked), the rest one element at a
// time through one(i, off), where off is the element's position in the pattern arrays and
// masked is std::true_type when the row has elements it must not write. Rows without a
// pattern run as a plain loop, two vectors at a time.
template <class D, class T, class V, class S>
HWY_INLINE void ForEachVector(D d, size_t n, const RowPattern<T>* pat, V&& vec, S&& one) {
  const size_t N = hn::Lanes(d);
  size_t i = 0, k = 0;
  if (!pat) {
    for (; i + 2 * N <= n; i += 2 * N) {
      vec(i, 0, std::false_type());
      vec(i + N, 0, std::false_type());
    }
    for (; i + N <= n; i += N) vec(i, 0, std::false_type());
    for (; i < n; ++i) one(i, 0);
    return;
  }
  const size_t period = static_cast<size_t>(pat->period);
  auto walk = [&](auto masked) {
    for (; i + N <= n; i += N) {
      vec(i, k * N, masked);
      if (++k == period) k = 0;
    }
  };
  if (pat->masked)
    walk(std::true_type());
  else
    walk(std::false_type());
  for (size_t j = 0; i + j < n; ++j) one(i + j, k * N + j);
}

}  // namespace arithv
#endif  // LUMI_TABLE_TARGET
LUMI_SIMD_END

#endif
