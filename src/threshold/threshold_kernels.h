// Shared pieces of the threshold, compare, logic and shift families (plain C++, included once;
// the vector row loops are in threshold_kernels-inl.h).
//
// Multi-channel rows are processed as one run of width * channels elements. Per-channel
// constants (thresholds, values, logic constants) become a per-position pattern: element k of
// a block uses pattern[k]. The vector loops consume three vectors per step, so the pattern
// repeats every three vectors; kPatternLen covers three vectors of the widest target (64 lanes
// of 8 bits) and is a multiple of every channel count (1, 3, 4), so one pattern serves every
// target, and pattern[c] is channel c's constant for the scalar twins.
#pragma once

#include <cstddef>
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

// ---- the rows one call works on ---------------------------------------------------------------

// Rows of n = width x channels elements: a source a, an optional second operand b (an image,
// or a pattern of constants when bStep is 0) and a destination. ch and use are the layout's
// channels in memory and written; use < ch (AC4) leaves every fourth element as it was.
template <class T, class O = T>
struct ElemRows {
  const T* a;
  int aStep;
  const T* b;
  int bStep;
  O* dst;
  int dstStep;
  std::ptrdiff_t n;
  int height;
  int ch, use;
  bool keepAlpha() const { return use < ch; }
};

// The rows of layout L with one source (and a pattern or nothing as b): a contiguous image is
// walked as one long row.
template <class L, class T, class O>
inline ElemRows<T, O> elemRows(const T* a, int aStep, const std::remove_const_t<T>* b, int bStep,
                               O* dst, int dstStep, LumiSize roi) {
  const LumiSize r = bStep ? coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), aStep, bStep, dstStep)
                           : coalesceRows(roi, bytesOf(1, L::kCh, sizeof(T)), aStep, dstStep);
  return {a, aStep, b, bStep, dst, dstStep, elemsOf(r.width, L::kCh), r.height, L::kCh, L::kUse};
}

// The scalar twins' walk: f(a, b, o, i, c) for every written element i (channel c) of every
// row; a, b and o are the row starts (b is the pattern itself when r.bStep is 0).
template <class T, class O, class F>
inline void forElements(const ElemRows<T, O>& r, F&& f) {
  for (int y = 0; y < r.height; ++y) {
    const T* a = rowAt(r.a, r.aStep, y);
    const T* b = r.bStep ? rowAt(r.b, r.bStep, y) : r.b;
    O* o = rowAt(r.dst, r.dstStep, y);
    for (std::ptrdiff_t x = 0; x < r.n; x += r.ch)
      for (int c = 0; c < r.use; ++c) f(a, b, o, x + c, c);
  }
}

// ---- argument checks ------------------------------------------------------------------------

// Null pointers, then the ROI size, then the steps.
template <class... S>
inline LumStatus checkSizeThenSteps(bool nullPtr, LumiSize roi, S... steps) {
  if (nullPtr) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(steps...)) return lumStatusStepErr;
  return lumStatusOk;
}
// Null pointers, then the steps, then the ROI size.
template <class... S>
inline LumStatus checkStepsThenSize(bool nullPtr, LumiSize roi, S... steps) {
  if (nullPtr) return lumStatusNullPtrErr;
  if (badStep(steps...)) return lumStatusStepErr;
  if (badSize(roi)) return lumStatusSizeErr;
  return lumStatusOk;
}

// Pointers, steps, then size of a call on a source a and a second operand b: an image, or
// per-channel constants (bConst) that have no step.
template <class T, class O>
inline LumStatus checkOperands(const T* a, int aStep, const T* b, int bStep, bool bConst,
                               const O* dst, int dstStep, LumiSize roi) {
  return bConst ? checkStepsThenSize(anyNull(a, b, dst), roi, aStep, dstStep)
                : checkStepsThenSize(anyNull(a, b, dst), roi, aStep, bStep, dstStep);
}

// ---- per-sample rules, shared by the scalar twins and the vector tails ----------------------

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

// The patterns of one threshold call: t1/v1 the (lower) threshold and value, t2/v2 the upper
// pair of the two-sided mode (unused ones are zero).
template <class T>
struct ThresholdPatterns {
  Pattern<T> t1, v1, t2, v2;
};

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

}  // namespace thr
}  // namespace lumi
