// Integer arithmetic with a scale factor: the per-element rules, the plain scalar row kernels
// and the 2-D dispatchers shared by the add/subtract, multiply and divide sources.
//
// Every result is the exact integer result r multiplied by 2^-sf, ties rounded to even, and
// saturated to the pixel type. Row kernels see a row as n elements (width x channels); the
// dispatchers own all stepping, validation and the scale-factor shortcuts, and resolve the
// scale factor once per call (core/scale_factor.h).
#pragma once

#include "core/frame.h"
#include "core/scale_factor.h"

#include <xmmintrin.h>

#include <cstring>
#include <limits>
#include <type_traits>

namespace lumi {
namespace scaled {

enum Op : int { kAdd = 0, kSub = 1, kMul = 2, kDiv = 3 };

// Row kernel: d[i] = s1[i] (op) s2[i], scaled; Sub gives s2 - s1 and Div s2 / s1. With
// keepAlpha set, every fourth element (the alpha of a four-channel pixel) of d is left alone.
// Returns nonzero when a division met a zero divisor in a written element.
template <class T>
using RowFn = int (*)(const T* s1, const T* s2, T* d, std::ptrdiff_t n, const ScaleFactor& sf,
                      bool keepAlpha);

// The largest scale factor at which some result can still round to a nonzero value; beyond it
// every result is zero and the destination is simply cleared.
template <class T>
constexpr int upperLimit(int op) {
  if constexpr (std::is_same_v<T, Lum8u>) return op == kAdd ? 9 : op == kSub ? 8 : 16;
  else if constexpr (std::is_same_v<T, Lum16u>) return op == kAdd ? 17 : op == kSub ? 16 : 32;
  else return op == kMul ? 30 : 16;
}

// The scale factor of one call: a left shift by the type's width saturates every nonzero
// result, and right shifts never pass the upper limit (the dispatchers clear the ROI beyond).
template <class T>
inline ScaleFactor resolveSf(int sf) {
  return ScaleFactor::resolve(sf, 8 * sizeof(T), 62);
}

// ---- per-element rules ---------------------------------------------------------------------
template <int op, class T>
inline int64_t exact(T a, T b) {
  if constexpr (op == kAdd) {
    return int64_t(a) + b;
  } else if constexpr (op == kSub) {
    int64_t r = int64_t(b) - a;
    if (std::is_unsigned_v<T> && r < 0) r = 0;  // unsigned differences clamp at zero first
    return r;
  } else {
    return int64_t(a) * b;
  }
}

// One element with any resolved scale factor.
template <int op, class T>
inline T scaledElem(T a, T b, const ScaleFactor& sf) {
  return saturate<T>(sf.apply(exact<op, T>(a, b)));
}

// Division: the single-precision quotient times 2^-sf, converted with the current rounding
// mode of the SSE unit (round to nearest, ties to even, unless the caller changed it). Scale
// factors beyond +-40 give the same results as +-40 (every quotient is then 0 or saturated).
inline float divScale(const ScaleFactor& sf) { return sf.factor32(40); }
template <class T>
inline T divByZero(T dividend) {
  using Lim = std::numeric_limits<T>;
  return dividend == 0 ? T(0) : dividend > 0 ? Lim::max() : Lim::min();
}
template <class T>
inline T divElem(T dividend, T divisor, float scale) {
  if (divisor == 0) return divByZero(dividend);
  float q = static_cast<float>(dividend) / static_cast<float>(divisor) * scale;
  q = q < -65536.0f ? -65536.0f : q > 65536.0f ? 65536.0f : q;
  return saturate<T>(_mm_cvtss_si32(_mm_set_ss(q)));
}

// ---- scalar twins ----------------------------------------------------------------------------
template <int op, class T>
int scaledRowScalar(const T* s1, const T* s2, T* d, std::ptrdiff_t n, const ScaleFactor& sf,
                    bool keepAlpha) {
  for (std::ptrdiff_t i = 0; i < n; ++i)
    if (!(keepAlpha && (i & 3) == 3)) d[i] = scaledElem<op, T>(s1[i], s2[i], sf);
  return 0;
}

template <class T>
int divRowScalar(const T* s1, const T* s2, T* d, std::ptrdiff_t n, const ScaleFactor& sf,
                 bool keepAlpha) {
  const float scale = divScale(sf);
  int zero = 0;
  for (std::ptrdiff_t i = 0; i < n; ++i) {
    if (keepAlpha && (i & 3) == 3) continue;
    zero |= s1[i] == 0;
    d[i] = divElem(s2[i], s1[i], scale);
  }
  return zero;
}

// ---- 2-D dispatch ----------------------------------------------------------------------------
// Constant rows are handled in chunks of this many elements: a multiple of 3 and 4 (so every
// chunk starts on a pixel) and of the widest vector.
constexpr int kChunk = 3072;

template <class L>
constexpr bool keepsAlpha() {
  return L::kUse != L::kCh;
}

// Writes the colour channels of one row of width pixels (all channels unless AC4).
template <class T, class L, class F>
inline void forColour(T* row, int width, F&& f) {
  for (std::ptrdiff_t x = 0; x < elemsOf(width, L::kCh); x += L::kCh)
    for (int c = 0; c < L::kUse; ++c) f(x + c);
}

// Clears the ROI (only the colour channels of AC4). Refuses a step below one, as the fill of
// the data-movement family does, and reads no source.
template <class T, class L>
LumStatus zeroFill(T* d, int dstep, LumiSize roi) {
  if (dstep < 1) return lumStatusStepErr;
  for (int y = 0; y < roi.height; ++y) {
    T* row = rowAt(d, dstep, y);
    if constexpr (L::kUse == L::kCh) std::memset(row, 0, bytesOf(roi.width, L::kCh, sizeof(T)));
    else forColour<T, L>(row, roi.width, [&](std::ptrdiff_t i) { row[i] = 0; });
  }
  return lumStatusOk;
}

// Copies the ROI (colour channels only for AC4); in place there is nothing to do.
template <class T, class L>
void copyRoi(const T* s, int sstep, T* d, int dstep, LumiSize roi) {
  if (s == d && sstep == dstep) return;
  for (int y = 0; y < roi.height; ++y) {
    const T* in = rowAt(s, sstep, y);
    T* out = rowAt(d, dstep, y);
    if constexpr (L::kUse == L::kCh) std::memmove(out, in, bytesOf(roi.width, L::kCh, sizeof(T)));
    else forColour<T, L>(out, roi.width, [&](std::ptrdiff_t i) { out[i] = in[i]; });
  }
}

// Image (op) image. Validation: pointers, sizes, then the steps where the member checks them.
template <int op, class T, class L>
LumStatus imageOp(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                  int sf, bool checkSteps, bool mayFork, RowFn<T> fn) {
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (checkSteps && badStep(st1, st2, dst)) return lumStatusStepErr;
  if (op != kDiv && sf > upperLimit<T>(op)) return zeroFill<T, L>(d, dst, roi);
  const ScaleFactor scale = resolveSf<T>(sf);
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  if constexpr (op == kDiv) {
    FirstStatus status;
    for (int y = 0; y < roi.height; ++y)
      if (fn(rowAt(s1, st1, y), rowAt(s2, st2, y), rowAt(d, dst, y), n, scale, keepsAlpha<L>()))
        status.add(lumStatusDivByZeroWarn);
    return status.value;
  }
  forRows(roi.height, mayFork && forkBySum(roi), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y)
      fn(rowAt(s1, st1, y), rowAt(s2, st2, y), rowAt(d, dst, y), n, scale, keepsAlpha<L>());
  });
  return lumStatusOk;
}

// Image (op) per-channel constant; vals holds L::kUse values. The constant becomes a row of
// the repeating channel pattern (equal channel values make it one plain run), placed as the
// first operand for SubC and DivC (src - value, src / value) and as the second otherwise.
template <int op, class T, class L>
LumStatus constOp(const T* src, int sst, const T* vals, T* d, int dst, LumiSize roi, int sf,
                  bool checkSteps, bool mayFork, RowFn<T> fn) {
  if (anyNull(src, vals, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (checkSteps && badStep(sst, dst)) return lumStatusStepErr;
  bool allZero = true, allOne = true;
  for (int c = 0; c < L::kUse; ++c) {
    if (op == kDiv && vals[c] == 0) return lumStatusDivisorZeroErr;
    allZero = allZero && vals[c] == 0;
    allOne = allOne && vals[c] == 1;
  }
  if (((op == kAdd || op == kSub) && allZero && sf == 0) || (op == kMul && allOne && sf == 0)) {
    copyRoi<T, L>(src, sst, d, dst, roi);
    return lumStatusOk;
  }
  if (op == kMul && allZero) return zeroFill<T, L>(d, dst, roi);
  if (op != kDiv && sf > upperLimit<T>(op)) return zeroFill<T, L>(d, dst, roi);

  const ScaleFactor scale = resolveSf<T>(sf);
  const std::ptrdiff_t n = elemsOf(roi.width, L::kCh);
  T crow[kChunk];  // as much of the pattern as one chunk of the row needs
  const T alpha = 1;
  for (int i = 0, c = 0; i < n && i < kChunk; ++i, c = c + 1 == L::kCh ? 0 : c + 1)
    crow[i] = keepsAlpha<L>() && c == 3 ? alpha : vals[c];
  constexpr bool constFirst = op == kSub || op == kDiv;
  forRows(roi.height, mayFork && forkBySum(roi), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      const T* in = rowAt(src, sst, y);
      T* out = rowAt(d, dst, y);
      for (std::ptrdiff_t off = 0; off < n; off += kChunk) {
        const std::ptrdiff_t len = n - off < kChunk ? n - off : kChunk;
        if (constFirst) fn(crow, in + off, out + off, len, scale, keepsAlpha<L>());
        else fn(in + off, crow, out + off, len, scale, keepsAlpha<L>());
      }
    }
  });
  return lumStatusOk;
}

// ---- member properties -----------------------------------------------------------------------
// Which members test their steps (after the sizes) is fixed per member and deliberately
// irregular: add and subtract never do, nor does any 16u member or 8u multiply; division of
// 8u and 16s does when not in place; the 16s multiplies do for some layouts only.
template <int op, class T, class L, bool kConst, bool kInPlace>
constexpr bool checksSteps() {
  if (op == kAdd || op == kSub || std::is_same_v<T, Lum16u>) return false;
  if (op == kDiv) return !kInPlace;
  if (std::is_same_v<T, Lum8u>) return false;
  const bool ac4 = L::kUse != L::kCh, c4 = L::kUse == 4, c3 = L::kCh == 3;
  if (!kConst) return ac4;
  return ac4 || c4 || (c3 && !kInPlace);
}

// The one-channel 8u and 16s add, add-constant and multiply members share large ROIs among
// threads.
template <int op, class T, class L, bool kConst>
constexpr bool forks() {
  return L::kCh == 1 && !std::is_same_v<T, Lum16u> && (op == kAdd || (op == kMul && !kConst));
}

template <int op, class T, class L, bool kInPlace>
LumStatus imageMember(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                      int sf, RowFn<T> fn) {
  return imageOp<op, T, L>(s1, st1, s2, st2, d, dst, roi, sf,
                           checksSteps<op, T, L, false, kInPlace>(), forks<op, T, L, false>(),
                           fn);
}
template <int op, class T, class L, bool kInPlace>
LumStatus constMember(const T* src, int sst, const T* vals, T* d, int dst, LumiSize roi, int sf,
                      RowFn<T> fn) {
  return constOp<op, T, L>(src, sst, vals, d, dst, roi, sf,
                           checksSteps<op, T, L, true, kInPlace>(), forks<op, T, L, true>(), fn);
}

}  // namespace scaled
}  // namespace lumi

// ---- export stamps ---------------------------------------------------------------------------
// One line per exported member; OP names the operation, which the including source chooses a
// row kernel for with its pickScaledRow<OP, T>().
#define LUMI_SCALED_IMAGE(NAME, OP, T, L)                                                     \
  LUMI_API LumStatus NAME(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, \
                          int dstStep, LumiSize roiSize, int scaleFactor) {                    \
    return lumi::scaled::imageMember<lumi::scaled::OP, T, lumi::L, false>(                    \
        pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor,                \
        lumi::scaled::pickScaledRow<lumi::scaled::OP, T>());                                  \
  }
#define LUMI_SCALED_IMAGE_I(NAME, OP, T, L)                                                    \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep,              \
                          LumiSize roiSize, int scaleFactor) {                                 \
    return lumi::scaled::imageMember<lumi::scaled::OP, T, lumi::L, true>(                     \
        pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor,        \
        lumi::scaled::pickScaledRow<lumi::scaled::OP, T>());                                  \
  }
// VT is how the constant is passed: T for C1, const T[n] otherwise (VP its address).
#define LUMI_SCALED_CONST(NAME, OP, T, L, VT, VP)                                              \
  LUMI_API LumStatus NAME(const T* pSrc, int srcStep, VT value, T* pDst, int dstStep,          \
                          LumiSize roiSize, int scaleFactor) {                                 \
    return lumi::scaled::constMember<lumi::scaled::OP, T, lumi::L, false>(                    \
        pSrc, srcStep, VP, pDst, dstStep, roiSize, scaleFactor,                               \
        lumi::scaled::pickScaledRow<lumi::scaled::OP, T>());                                  \
  }
#define LUMI_SCALED_CONST_I(NAME, OP, T, L, VT, VP)                                            \
  LUMI_API LumStatus NAME(VT value, T* pSrcDst, int srcDstStep, LumiSize roiSize,              \
                          int scaleFactor) {                                                   \
    return lumi::scaled::constMember<lumi::scaled::OP, T, lumi::L, true>(                     \
        pSrcDst, srcDstStep, VP, pSrcDst, srcDstStep, roiSize, scaleFactor,                   \
        lumi::scaled::pickScaledRow<lumi::scaled::OP, T>());                                  \
  }
