// Shared pieces of the threshold, compare, logic and shift kernels.
//
// Multi-channel rows are processed as one run of width * channels elements. Per-channel
// constants (thresholds, values, logic constants, the alpha lanes that must be kept) become a
// per-position pattern: element k of a block uses pattern[k]. The vector loops consume three
// vectors per step, so the pattern repeats every three vectors; kPatternLen covers three
// vectors of the widest target (64 lanes of 8 bits) and is a multiple of every channel count
// (1, 3, 4), so one pattern serves every target.
//
// The first part of this header is plain C++ (included once); the second part is compiled
// once per SIMD target, following the re-inclusion protocol of the per-target kernel files.

#ifndef LUMI_THRESHOLD_KERNELS_H_
#define LUMI_THRESHOLD_KERNELS_H_

#include <cstring>
#include <type_traits>
#include <utility>

#include "core/frame.h"

namespace lumi {
namespace thr {

constexpr int kPatternLen = 192;

// Pattern storage of one per-channel constant.
template <class T>
struct alignas(64) Pattern {
  T v[kPatternLen];
};

// pattern[k] = vals[k % ch] for the channels in use; lanes of a channel not in use (the alpha
// of AC4) get `fill`.
template <class T>
inline void fillPattern(Pattern<T>& p, const T* vals, int ch, int use, T fill = T()) {
  for (int k = 0; k < kPatternLen; ++k) {
    int c = k % ch;
    p.v[k] = c < use ? vals[c] : fill;
  }
}

// All-ones in the lanes the kernels must leave as the destination held them (AC4 alpha),
// zero elsewhere.
template <class T>
inline void fillKeep(Pattern<T>& p, int ch, int use) {
  for (int k = 0; k < kPatternLen; ++k) {
    if (k % ch < use)
      std::memset(&p.v[k], 0, sizeof(T));
    else
      std::memset(&p.v[k], 0xFF, sizeof(T));
  }
}

inline bool keepLane(const void* keep, int sizeOfT, int off) {
  return keep && static_cast<const unsigned char*>(keep)[off * sizeOfT] != 0;
}

// ---- per-sample rules, shared by the scalar kernels and the vector tails ----------------

// Threshold modes.
enum ThresholdMode : int { kClampGT = 0, kClampLT = 1, kValGT = 2, kValLT = 3, kValLTGT = 4 };

// Clamp: a NaN sample yields the threshold, as a minimum/maximum returning its second
// operand does. Replace: greater keeps x unless T < x (a NaN sample is kept); less keeps x
// only when T <= x (a NaN sample is replaced). Two-sided: the lower test decides first.
template <class T>
inline T thresholdSample(int mode, T x, T t1, T v1, T t2, T v2) {
  switch (mode) {
    case kClampGT: return x < t1 ? x : t1;
    case kClampLT: return t1 < x ? x : t1;
    case kValGT: return t1 < x ? v1 : x;
    case kValLT: return t1 <= x ? x : v1;
    default: return t1 <= x ? (t2 < x ? v2 : x) : v1;
  }
}

// Comparison relations; kRelEqEps is |a - b| <= eps with the absolute value formed by
// clearing the sign bit (floats only). Every relation is false when a float operand is NaN.
enum Relation : int { kRelLt = 0, kRelLe = 1, kRelEq = 2, kRelGe = 3, kRelGt = 4, kRelEqEps = 5 };

template <class T>
inline bool relationHolds(int rel, T a, T b, T eps) {
  switch (rel) {
    case kRelLt: return a < b;
    case kRelLe: return a <= b;
    case kRelEq: return a == b;
    case kRelGe: return b <= a;
    case kRelGt: return b < a;
    default:
      if constexpr (std::is_floating_point_v<T>) {
        T d = a - b;
        return (d < 0 ? -d : d) <= eps;  // NaN difference: false
      } else {
        return a == b;
      }
  }
}

enum LogicOp : int { kAnd = 0, kOr = 1, kXor = 2 };

template <class T>
inline T logicSample(int op, T a, T b) {
  switch (op) {
    case kAnd: return static_cast<T>(a & b);
    case kOr: return static_cast<T>(a | b);
    default: return static_cast<T>(a ^ b);
  }
}

// Shift of one sample by a count already reduced below the bit width.
template <class T>
inline T shiftSample(bool left, T x, int count) {
  using U = std::make_unsigned_t<T>;
  if (left) return static_cast<T>(static_cast<U>(static_cast<U>(x) << count));
  return static_cast<T>(x >> count);  // arithmetic for the signed types
}

// Calls f(std::integral_constant<int, v>) for a run-time v in [0, N), so that a scalar loop
// is compiled once per mode with the per-sample switch folded away.
template <int N, class F, int... I>
inline void withConstantImpl(int v, F&& f, std::integer_sequence<int, I...>) {
  ((v == I ? (f(std::integral_constant<int, I>{}), true) : false) || ...);
}
template <int N, class F>
inline void withConstant(int v, F&& f) {
  withConstantImpl<N>(v, f, std::make_integer_sequence<int, N>{});
}

// Walks `height` rows of `rowElems` elements of two same-typed images.
template <class S, class D, class F>
inline void eachRow(S* src, int srcStep, D* dst, int dstStep, int height, F&& f) {
  for (int y = 0; y < height; ++y) f(rowAt(src, srcStep, y), rowAt(dst, dstStep, y));
}

}  // namespace thr
}  // namespace lumi

#endif  // LUMI_THRESHOLD_KERNELS_H_

// ---- per-target part --------------------------------------------------------------------
#if defined(LUMI_THRESHOLD_KERNELS_TOGGLE) == defined(HWY_TARGET_TOGGLE)
#ifdef LUMI_THRESHOLD_KERNELS_TOGGLE
#undef LUMI_THRESHOLD_KERNELS_TOGGLE
#else
#define LUMI_THRESHOLD_KERNELS_TOGGLE
#endif

#include "hwy/highway.h"

HWY_BEFORE_NAMESPACE();
namespace lumi {
namespace HWY_NAMESPACE {
namespace thrv {

// Runs one row of n elements: vop(i, off) handles the vector starting at element i whose
// pattern offset is off; sop(i, off) handles a single trailing element. The pattern offset
// restarts every three vectors.
template <class D, class VecOp, class ScalarOp>
HWY_INLINE void patternRow(D d, int n, VecOp&& vop, ScalarOp&& sop) {
  const int N = static_cast<int>(hwy::HWY_NAMESPACE::Lanes(d));
  int i = 0;
  for (; i + 3 * N <= n; i += 3 * N) {
    vop(i, 0);
    vop(i + N, N);
    vop(i + 2 * N, 2 * N);
  }
  int off = 0;
  for (; i + N <= n; i += N, off += N) vop(i, off);
  for (; i < n; ++i, ++off) sop(i, off);
}

// a <= b for every lane type (integer lanes have no direct less-or-equal).
template <class V>
HWY_INLINE auto lessEq(V a, V b) {
  namespace hn = hwy::HWY_NAMESPACE;
  if constexpr (hwy::IsFloat<hn::TFromV<V>>())
    return hn::Le(a, b);
  else
    return hn::Not(hn::Lt(b, a));
}

// Stores r at p, keeping the lanes flagged in the keep pattern (AC4 alpha) as p held them.
template <class D, class V, class T>
HWY_INLINE void storeKeeping(D d, V r, T* p, const T* keep, int off) {
  namespace hn = hwy::HWY_NAMESPACE;
  if (keep) r = hn::IfThenElse(hn::MaskFromVec(hn::Load(d, keep + off)), hn::LoadU(d, p), r);
  hn::StoreU(r, d, p);
}

}  // namespace thrv
}  // namespace HWY_NAMESPACE
}  // namespace lumi
HWY_AFTER_NAMESPACE();

#endif  // toggle
