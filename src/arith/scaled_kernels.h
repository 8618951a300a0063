// Integer arithmetic with a scale factor: the per-element rules, the plain scalar row kernels
// and the 2-D dispatchers shared by the add/subtract, multiply and divide sources.
//
// Every result is the exact integer result r multiplied by 2^-sf, ties rounded to even, and
// saturated to the pixel type. Row kernels see a row as n elements (width x channels); the
// dispatchers own all stepping, validation and the scale-factor shortcuts.
#pragma once

#include "core/frame.h"

#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace lumi {
namespace scaled {

enum Op : int { kAdd = 0, kSub = 1, kMul = 2, kDiv = 3 };

// Row kernel: d[i] = s1[i] (op) s2[i], scaled; Sub gives s2 - s1 and Div s2 / s1. With ac4
// set, every fourth element (the alpha of a four-channel pixel) of d is left alone. Returns
// nonzero when a division met a zero divisor in a written element.
template <class T>
using RowFn = int (*)(const T* s1, const T* s2, T* d, int n, int sf, int ac4);

// The largest scale factor at which some result can still round to a nonzero value; beyond it
// every result is zero and the destination is simply cleared.
template <class T>
constexpr int upperLimit(int op) {
  if constexpr (std::is_same_v<T, Lum8u>) return op == kAdd ? 9 : op == kSub ? 8 : 16;
  else if constexpr (std::is_same_v<T, Lum16u>) return op == kAdd ? 17 : op == kSub ? 16 : 32;
  else return op == kMul ? 30 : 16;
}
// From this scale factor down the left shift saturates every nonzero result.
template <class T>
constexpr int boundBelow() {
  return sizeof(T) == 1 ? -8 : -16;
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

// r x 2^-sf for sf >= 1, ties to even (r >> sf is a floor, so this holds for negatives too).
inline int64_t roundShift(int64_t r, int sf) {
  const int64_t half = int64_t(1) << (sf - 1);
  return (r + half - 1 + ((r >> sf) & 1)) >> sf;
}

// One element with any scale factor up to the member's upper limit.
template <int op, class T>
inline T scaledElem(T a, T b, int sf) {
  int64_t r = exact<op, T>(a, b);
  if (sf > 0) {
    r = roundShift(r, sf);
  } else if (sf < 0) {
    const int k = sf < -24 ? 24 : -sf;  // 2^24 already saturates any nonzero result
    r *= int64_t(1) << k;
  }
  return saturate<T>(r);
}

// Division: the single-precision quotient times 2^-sf, converted with the current rounding
// mode of the SSE unit (round to nearest, ties to even, unless the caller changed it). Scale
// factors beyond +-40 give the same results as +-40 (every quotient is then 0 or saturated).
inline float divScale(int sf) {
  if (sf > 40) sf = 40;
  if (sf < -40) sf = -40;
  return std::ldexp(1.0f, -sf);
}
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

// ---- scalar row kernels ----------------------------------------------------------------------
enum Mode : int { kPlain, kHalf1, kRound, kShift, kBound };

template <class T>
inline int modeOf(int sf) {
  if (sf == 0) return kPlain;
  if (sf == 1) return kHalf1;
  if (sf > 1) return kRound;
  return sf >= boundBelow<T>() + 1 ? kShift : kBound;
}

template <int op, class T, int mode>
void scalarLoop(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  using Lim = std::numeric_limits<T>;
  for (int i = 0; i < n; ++i) {
    if (ac4 && (i & 3) == 3) continue;
    int64_t r = exact<op, T>(s1[i], s2[i]);
    if constexpr (mode == kHalf1) r = (r + ((r >> 1) & 1)) >> 1;
    if constexpr (mode == kRound) r = roundShift(r, sf);
    if constexpr (mode == kShift) r *= int64_t(1) << -sf;
    if constexpr (mode == kBound) r = r > 0 ? Lim::max() : r < 0 ? Lim::min() : 0;
    d[i] = saturate<T>(r);
  }
}

template <int op, class T>
int scalarRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  switch (modeOf<T>(sf)) {
    case kPlain: scalarLoop<op, T, kPlain>(s1, s2, d, n, sf, ac4); break;
    case kHalf1: scalarLoop<op, T, kHalf1>(s1, s2, d, n, sf, ac4); break;
    case kRound: scalarLoop<op, T, kRound>(s1, s2, d, n, sf, ac4); break;
    case kShift: scalarLoop<op, T, kShift>(s1, s2, d, n, sf, ac4); break;
    default: scalarLoop<op, T, kBound>(s1, s2, d, n, sf, ac4); break;
  }
  return 0;
}

template <class T>
int scalarDivRow(const T* s1, const T* s2, T* d, int n, int sf, int ac4) {
  const float scale = divScale(sf);
  int zero = 0;
  for (int i = 0; i < n; ++i) {
    if (ac4 && (i & 3) == 3) continue;
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
constexpr int ac4Of() {
  return L::kUse != L::kCh;
}

// Clears the ROI (only the colour channels of AC4). Refuses a step below one, as the fill of
// the data-movement family does, and reads no source.
template <class T, class L>
LumStatus zeroFill(T* d, int dstep, LumiSize roi) {
  if (dstep < 1) return lumStatusStepErr;
  for (int y = 0; y < roi.height; ++y) {
    T* row = rowAt(d, dstep, y);
    if constexpr (L::kUse == L::kCh) {
      std::memset(row, 0, sizeof(T) * static_cast<std::size_t>(roi.width) * L::kCh);
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < L::kUse; ++c) row[x * L::kCh + c] = 0;
    }
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
    if constexpr (L::kUse == L::kCh) {
      std::memmove(out, in, sizeof(T) * static_cast<std::size_t>(roi.width) * L::kCh);
    } else {
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < L::kUse; ++c) out[x * L::kCh + c] = in[x * L::kCh + c];
    }
  }
}

template <int op, class T>
RowFn<T> chooseRow(RowFn<T> simd) {
  if (simd) return simd;
  if constexpr (op == kDiv) return &scalarDivRow<T>;
  else return &scalarRow<op, T>;
}

// Image (op) image. Validation: pointers, sizes, then the steps where the member checks them.
template <int op, class T, class L>
LumStatus imageOp(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                  int sf, bool checkSteps, bool mayFork, RowFn<T> simd) {
  if (anyNull(s1, s2, d)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (checkSteps && badStep(st1, st2, dst)) return lumStatusStepErr;
  if (op != kDiv && sf > upperLimit<T>(op)) return zeroFill<T, L>(d, dst, roi);
  const RowFn<T> fn = chooseRow<op, T>(simd);
  const int n = roi.width * L::kCh;
  if constexpr (op == kDiv) {
    FirstStatus status;
    for (int y = 0; y < roi.height; ++y)
      if (fn(rowAt(s1, st1, y), rowAt(s2, st2, y), rowAt(d, dst, y), n, sf, ac4Of<L>()))
        status.add(lumStatusDivByZeroWarn);
    return status.value;
  }
  forRows(roi.height, mayFork && forkBySum(roi), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y)
      fn(rowAt(s1, st1, y), rowAt(s2, st2, y), rowAt(d, dst, y), n, sf, ac4Of<L>());
  });
  return lumStatusOk;
}

// Image (op) per-channel constant; vals holds L::kUse values. The constant becomes a row of
// the repeating channel pattern (equal channel values make it one plain run), placed as the
// first operand for SubC and DivC (src - value, src / value) and as the second otherwise.
template <int op, class T, class L>
LumStatus constOp(const T* src, int sst, const T* vals, T* d, int dst, LumiSize roi, int sf,
                  bool checkSteps, bool mayFork, RowFn<T> simd) {
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

  const RowFn<T> fn = chooseRow<op, T>(simd);
  const int n = roi.width * L::kCh;
  T crow[kChunk];  // as much of the pattern as one chunk of the row needs
  const T alpha = 1;
  for (int i = 0, c = 0; i < n && i < kChunk; ++i, c = c + 1 == L::kCh ? 0 : c + 1)
    crow[i] = ac4Of<L>() && c == 3 ? alpha : vals[c];
  constexpr bool constFirst = op == kSub || op == kDiv;
  forRows(roi.height, mayFork && forkBySum(roi), [&](int y0, int y1) {
    for (int y = y0; y < y1; ++y) {
      const T* in = rowAt(src, sst, y);
      T* out = rowAt(d, dst, y);
      for (int off = 0; off < n; off += kChunk) {
        const int len = n - off < kChunk ? n - off : kChunk;
        if (constFirst) fn(crow, in + off, out + off, len, sf, ac4Of<L>());
        else fn(in + off, crow, out + off, len, sf, ac4Of<L>());
      }
    }
  });
  return lumStatusOk;
}


// ---- member properties -----------------------------------------------------------------------
template <class L>
constexpr bool isC1() {
  return L::kCh == 1;
}

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
  return isC1<L>() && !std::is_same_v<T, Lum16u> && (op == kAdd || (op == kMul && !kConst));
}

template <int op, class T, class L, bool kInPlace>
LumStatus imageMember(const T* s1, int st1, const T* s2, int st2, T* d, int dst, LumiSize roi,
                      int sf, RowFn<T> simd) {
  return imageOp<op, T, L>(s1, st1, s2, st2, d, dst, roi, sf,
                           checksSteps<op, T, L, false, kInPlace>(), forks<op, T, L, false>(),
                           simd);
}
template <int op, class T, class L, bool kInPlace>
LumStatus constMember(const T* src, int sst, const T* vals, T* d, int dst, LumiSize roi, int sf,
                      RowFn<T> simd) {
  return constOp<op, T, L>(src, sst, vals, d, dst, roi, sf,
                           checksSteps<op, T, L, true, kInPlace>(), forks<op, T, L, true>(), simd);
}

}  // namespace scaled
}  // namespace lumi

// ---- export stamps: all eight layouts of one operation and type ------------------------------
#define LUMI_SCALED_IMAGE_L(OP, OPC, TC, T, L, TABLE)                                          \
  LUMI_API LumStatus lumi##OP##_##TC##_##L##RSfs(const T* pSrc1, int src1Step, const T* pSrc2, \
                                                 int src2Step, T* pDst, int dstStep,           \
                                                 LumiSize roiSize, int scaleFactor) {          \
    return lumi::scaled::imageMember<OPC, T, lumi::L, false>(                                 \
        pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor,                \
        lumi::pickSimd(TABLE));                                                                \
  }                                                                                            \
  LUMI_API LumStatus lumi##OP##_##TC##_##L##IRSfs(const T* pSrc, int srcStep, T* pSrcDst,      \
                                                  int srcDstStep, LumiSize roiSize,            \
                                                  int scaleFactor) {                           \
    return lumi::scaled::imageMember<OPC, T, lumi::L, true>(                                  \
        pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor,        \
        lumi::pickSimd(TABLE));                                                                \
  }
#define LUMI_SCALED_IMAGE(OP, OPC, TC, T, TABLE)   \
  LUMI_SCALED_IMAGE_L(OP, OPC, TC, T, C1, TABLE)   \
  LUMI_SCALED_IMAGE_L(OP, OPC, TC, T, C3, TABLE)   \
  LUMI_SCALED_IMAGE_L(OP, OPC, TC, T, AC4, TABLE)  \
  LUMI_SCALED_IMAGE_L(OP, OPC, TC, T, C4, TABLE)

#define LUMI_SCALED_CONST_L(OP, OPC, TC, T, L, NV, TABLE)                                      \
  LUMI_API LumStatus lumi##OP##_##TC##_##L##RSfs(const T* pSrc, int srcStep, const T value[NV], \
                                                 T* pDst, int dstStep, LumiSize roiSize,        \
                                                 int scaleFactor) {                             \
    return lumi::scaled::constMember<OPC, T, lumi::L, false>(                                  \
        pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor, lumi::pickSimd(TABLE));      \
  }                                                                                             \
  LUMI_API LumStatus lumi##OP##_##TC##_##L##IRSfs(const T value[NV], T* pSrcDst, int srcDstStep, \
                                                  LumiSize roiSize, int scaleFactor) {          \
    return lumi::scaled::constMember<OPC, T, lumi::L, true>(pSrcDst, srcDstStep, value, pSrcDst, \
                                                            srcDstStep, roiSize, scaleFactor,   \
                                                            lumi::pickSimd(TABLE));             \
  }
#define LUMI_SCALED_CONST(OP, OPC, TC, T, TABLE)                                                \
  LUMI_API LumStatus lumi##OP##_##TC##_C1RSfs(const T* pSrc, int srcStep, T value, T* pDst,     \
                                              int dstStep, LumiSize roiSize, int scaleFactor) { \
    return lumi::scaled::constMember<OPC, T, lumi::C1, false>(                                 \
        pSrc, srcStep, &value, pDst, dstStep, roiSize, scaleFactor, lumi::pickSimd(TABLE));     \
  }                                                                                             \
  LUMI_API LumStatus lumi##OP##_##TC##_C1IRSfs(T value, T* pSrcDst, int srcDstStep,             \
                                               LumiSize roiSize, int scaleFactor) {             \
    return lumi::scaled::constMember<OPC, T, lumi::C1, true>(pSrcDst, srcDstStep, &value,       \
                                                             pSrcDst, srcDstStep, roiSize,      \
                                                             scaleFactor, lumi::pickSimd(TABLE)); \
  }                                                                                             \
  LUMI_SCALED_CONST_L(OP, OPC, TC, T, C3, 3, TABLE)                                             \
  LUMI_SCALED_CONST_L(OP, OPC, TC, T, AC4, 3, TABLE)                                            \
  LUMI_SCALED_CONST_L(OP, OPC, TC, T, C4, 4, TABLE)
