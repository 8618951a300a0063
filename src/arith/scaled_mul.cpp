// Scaled integer multiplication: Mul and MulC
// for 8u, 16u and 16s in every layout.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/scaled_mul.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/scaled_simd-inl.h"

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {
using scaled::RowFn;
LUMI_SIMD_TABLE(RowFn<Lum8u>, kMul8u, scaledv::ArithRow<scaled::kMul, Lum8u>);
LUMI_SIMD_TABLE(RowFn<Lum16u>, kMul16u, scaledv::ArithRow<scaled::kMul, Lum16u>);
LUMI_SIMD_TABLE(RowFn<Lum16s>, kMul16s, scaledv::ArithRow<scaled::kMul, Lum16s>);
}  // namespace
}  // namespace lumi

extern "C" {
LUMI_SCALED_IMAGE(Mul, lumi::scaled::kMul, 8u, Lum8u, lumi::kMul8u)
LUMI_SCALED_IMAGE(Mul, lumi::scaled::kMul, 16u, Lum16u, lumi::kMul16u)
LUMI_SCALED_IMAGE(Mul, lumi::scaled::kMul, 16s, Lum16s, lumi::kMul16s)
LUMI_SCALED_CONST(MulC, lumi::scaled::kMul, 8u, Lum8u, lumi::kMul8u)
LUMI_SCALED_CONST(MulC, lumi::scaled::kMul, 16u, Lum16u, lumi::kMul16u)
LUMI_SCALED_CONST(MulC, lumi::scaled::kMul, 16s, Lum16s, lumi::kMul16s)
}
#endif
