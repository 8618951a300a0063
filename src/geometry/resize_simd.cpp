// Row kernels of the resize engine per SIMD target, and their choosers.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/geometry/resize_simd.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/alpha-inl.h"
#include "core/simd.h"
#include "geometry/resize_engine.h"

LUMI_SIMD_BEGIN
#if LUMI_TABLE_TARGET
#endif
LUMI_SIMD_END

#if HWY_ONCE
namespace lumi {
namespace resize {

LinH8Fn pickLinH8(int) { return &linH8Scalar; }
LinV8Fn pickLinV8() { return &linV8Scalar; }
LinHfFn pickLinHf(int) { return &linHfScalar; }
LinVfFn pickLinVf() { return &linVfScalar; }
template <class T>
CubHFn<T> pickCubH(int) {
  return &cubHScalar<T>;
}
template <class T>
CubVFn<T> pickCubV() {
  return &cubVScalar<T>;
}
template CubHFn<Lum8u> pickCubH<Lum8u>(int);
template CubHFn<Lum16u> pickCubH<Lum16u>(int);
template CubHFn<Lum32f> pickCubH<Lum32f>(int);
template CubVFn<Lum8u> pickCubV<Lum8u>();
template CubVFn<Lum16u> pickCubV<Lum16u>();
template CubVFn<Lum32f> pickCubV<Lum32f>();

}  // namespace resize
}  // namespace lumi
#endif  // HWY_ONCE
