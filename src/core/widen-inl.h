// Loading narrow elements into wider lanes, for vector kernels: reads N pixels' elements of
// type T as lanes of the kernel's accumulator type A. Every conversion is exact:
// integers widen (through 32-bit lanes when A is a floating type), floats promote to double.
// Re-included per target from inside a Highway section (after "hwy/highway.h").
#if defined(LUMI_CORE_WIDEN_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_CORE_WIDEN_INL_H_
#undef LUMI_CORE_WIDEN_INL_H_
#else
#define LUMI_CORE_WIDEN_INL_H_
#endif

#include <type_traits>

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {

// Lanes(da) elements of T from p as lanes of da's type.
template <class DA, class T>
HWY_INLINE hwy::HWY_NAMESPACE::Vec<DA> loadAs(DA da, const T* HWY_RESTRICT p) {
  namespace hn = hwy::HWY_NAMESPACE;
  using A = hn::TFromD<DA>;
  const hn::Rebind<T, DA> dt;
  if constexpr (std::is_same_v<A, T>) {
    return hn::LoadU(da, p);
  } else if constexpr (hwy::IsFloat<T>() || !hwy::IsFloat<A>()) {
    return hn::PromoteTo(da, hn::LoadU(dt, p));  // wider integers, or float to double
  } else {
    const hn::Rebind<int32_t, DA> di;
    hn::Vec<decltype(di)> v;
    if constexpr (sizeof(T) == 4)
      v = hn::LoadU(di, reinterpret_cast<const int32_t*>(p));
    else
      v = hn::PromoteTo(di, hn::LoadU(dt, p));
    if constexpr (sizeof(A) == 4)
      return hn::ConvertTo(da, v);
    else
      return hn::PromoteTo(da, v);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif  // LUMI_CORE_WIDEN_INL_H_
