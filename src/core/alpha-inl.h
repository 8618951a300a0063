// Leaving the alpha channel of AC4 pixels untouched, for vector kernels: the one way every
// family stores a vector of interleaved four-channel pixels whose fourth element it must not
// write. Re-included per target from inside a Highway section (after "hwy/highway.h").
//
// A vector that starts on a pixel boundary and holds a multiple of four lanes has its alpha in
// lanes 3, 7, 11, ...; colourLanes(d) marks the others once per row, storeColour() writes only
// those (the alpha lanes keep what the destination held). Scalar twins simply loop over the
// layout's kUse channels.
#if defined(LUMI_CORE_ALPHA_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_CORE_ALPHA_INL_H_
#undef LUMI_CORE_ALPHA_INL_H_
#else
#define LUMI_CORE_ALPHA_INL_H_
#endif

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {

// The colour lanes of a vector whose first lane is element `first` of a row, where an element
// unit of 2^unitShift lanes makes one channel (1 for the two floats of a complex channel, or
// for narrow elements carried in double-width lanes): lane j is colour unless unit
// (first + j) >> unitShift is the fourth of its pixel. Vectors of fewer lanes than a pixel
// start at any element; the others start on a pixel and use colourLanes(d).
template <class D>
HWY_INLINE hwy::HWY_NAMESPACE::Mask<D> colourLanesAt(D d, size_t first, int unitShift) {
  namespace hn = hwy::HWY_NAMESPACE;
  const hn::RebindToUnsigned<D> du;
  using U = hn::TFromD<decltype(du)>;
  const U phase = static_cast<U>(first & ((size_t{4} << unitShift) - 1));
  const auto unit = hn::ShiftRightSame(hn::Add(hn::Iota(du, U{0}), hn::Set(du, phase)), unitShift);
  return hn::RebindMask(d, hn::Ne(hn::And(unit, hn::Set(du, U{3})), hn::Set(du, U{3})));
}
template <class D>
HWY_INLINE hwy::HWY_NAMESPACE::Mask<D> colourLanes(D d) {
  return colourLanesAt(d, 0, 0);
}

// Stores v at p: every lane when keepAlpha is false, else only the colour lanes.
template <class D, class V>
HWY_INLINE void storeColour(D d, V v, hwy::HWY_NAMESPACE::TFromD<D>* HWY_RESTRICT p,
                            bool keepAlpha, hwy::HWY_NAMESPACE::Mask<D> colour) {
  namespace hn = hwy::HWY_NAMESPACE;
  if (keepAlpha) v = hn::IfThenElse(colour, v, hn::LoadU(d, p));
  hn::StoreU(v, d, p);
}

}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif
