// Vector kernels of the warps and their choosers.
#include "geometry/warp_engine.h"

namespace lumi {
namespace warp {

template <class T, class L>
AffineSpanFn<T> pickAffineLinearSpan() {
  return &affineLinearSpanScalar<T, L::kCh, L::kUse>;
}

#define LUMI_WARP_PICKS(T)                                  \
  template AffineSpanFn<T> pickAffineLinearSpan<T, C1>();   \
  template AffineSpanFn<T> pickAffineLinearSpan<T, C3>();   \
  template AffineSpanFn<T> pickAffineLinearSpan<T, C4>();   \
  template AffineSpanFn<T> pickAffineLinearSpan<T, AC4>();
LUMI_WARP_PICKS(Lum8u)
LUMI_WARP_PICKS(Lum16u)
LUMI_WARP_PICKS(Lum32f)

}  // namespace warp
}  // namespace lumi
