// Per-target helpers of the data-movement vector kernels (copy.cpp, set.cpp), re-included
// once per target from inside a Highway section.
#if defined(LUMI_CONVERT_DATAMOVE_KERNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_CONVERT_DATAMOVE_KERNELS_INL_H_
#undef LUMI_CONVERT_DATAMOVE_KERNELS_INL_H_
#else
#define LUMI_CONVERT_DATAMOVE_KERNELS_INL_H_
#endif

#include "hwy/highway.h"
#include "core/widen-inl.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {

// Lane mask of the pixels whose mask byte is nonzero, one lane per pixel of type T.
template <class D>
HWY_INLINE auto pixelMask(D d, const uint8_t* m) {
  namespace hn = hwy::HWY_NAMESPACE;
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) == 1) {
    return hn::Ne(hn::LoadU(d, m), hn::Zero(d));
  } else {
    const hn::Rebind<uint8_t, D> d8;
    return hn::Ne(loadAs(d, m), hn::Zero(d));
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif  // toggle
