// Scaled integer addition and subtraction: Add, Sub (second image minus the first), AddC and
// SubC for 8u, 16u and 16s in every layout.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "src/arith/scaled_add.cpp"
#include "hwy/foreach_target.h"
#include "hwy/highway.h"
#include "core/frame.h"
#include "arith/scaled_simd-inl.h"

#if HWY_ONCE
#include "core/simd.h"

namespace lumi {
namespace {
using scaled::RowFn;
LUMI_SIMD_TABLE(RowFn<Lum8u>, kAdd8u, scaledv::ArithRow<scaled::kAdd, Lum8u>);
LUMI_SIMD_TABLE(RowFn<Lum16u>, kAdd16u, scaledv::ArithRow<scaled::kAdd, Lum16u>);
LUMI_SIMD_TABLE(RowFn<Lum16s>, kAdd16s, scaledv::ArithRow<scaled::kAdd, Lum16s>);
LUMI_SIMD_TABLE(RowFn<Lum8u>, kSub8u, scaledv::ArithRow<scaled::kSub, Lum8u>);
LUMI_SIMD_TABLE(RowFn<Lum16u>, kSub16u, scaledv::ArithRow<scaled::kSub, Lum16u>);
LUMI_SIMD_TABLE(RowFn<Lum16s>, kSub16s, scaledv::ArithRow<scaled::kSub, Lum16s>);
}  // namespace
}  // namespace lumi

extern "C" {
LUMI_SCALED_IMAGE(Add, lumi::scaled::kAdd, 8u, Lum8u, lumi::kAdd8u)
LUMI_SCALED_IMAGE(Add, lumi::scaled::kAdd, 16u, Lum16u, lumi::kAdd16u)
LUMI_SCALED_IMAGE(Add, lumi::scaled::kAdd, 16s, Lum16s, lumi::kAdd16s)
LUMI_SCALED_IMAGE(Sub, lumi::scaled::kSub, 8u, Lum8u, lumi::kSub8u)
LUMI_SCALED_IMAGE(Sub, lumi::scaled::kSub, 16u, Lum16u, lumi::kSub16u)
LUMI_SCALED_IMAGE(Sub, lumi::scaled::kSub, 16s, Lum16s, lumi::kSub16s)
LUMI_SCALED_CONST(AddC, lumi::scaled::kAdd, 8u, Lum8u, lumi::kAdd8u)
LUMI_SCALED_CONST(AddC, lumi::scaled::kAdd, 16u, Lum16u, lumi::kAdd16u)
LUMI_SCALED_CONST(AddC, lumi::scaled::kAdd, 16s, Lum16s, lumi::kAdd16s)
LUMI_SCALED_CONST(SubC, lumi::scaled::kSub, 8u, Lum8u, lumi::kSub8u)
LUMI_SCALED_CONST(SubC, lumi::scaled::kSub, 16u, Lum16u, lumi::kSub16u)
LUMI_SCALED_CONST(SubC, lumi::scaled::kSub, 16s, Lum16s, lumi::kSub16s)
}
#endif
