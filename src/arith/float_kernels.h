// Shared pieces of the floating-point, complex and pointwise-maths row kernels: per-element
// patterns (channel constants and which elements AC4 layouts write), scaled integer rounding of
// exact 64-bit results, and the row functions one family borrows from another.
#pragma once

#include "core/frame.h"
#include "core/scale_factor.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace lumi {
namespace arithf {

// Widest vector, in lanes of the smallest element, that any kernel uses.
constexpr int kPatLanes = 64;
constexpr int kMaxPeriod = 8;

// The per-element view of one pixel layout: element i of a row uses value[i % period] and, in
// a masked row (AC4), is written only when i % period < use. The values repeat the period
// kPatLanes times, so a vector kernel reads the constants of the k-th vector of a cycle at
// k * lanes. Masked rows are four-channel pixels of one element per channel, or of two for
// the complex types (unitShift 1); their vector kernels keep the alpha elements through
// colourLanesAt() and storeColour().
template <class T>
struct RowPattern {
  alignas(64) T value[kMaxPeriod * kPatLanes];
  int period = 1, use = 1;
  bool masked = false;
  int unitShift = 0;

  // per: elements per pixel; use: leading elements of each pixel written; c: per values or
  // null when the row has no constant operand.
  RowPattern(int per, int used, const T* c)
      : period(per), use(used), masked(used < per), unitShift(per > 4 ? 1 : 0) {
    for (int i = 0; i < per * kPatLanes; ++i) value[i] = c ? c[i % per] : T();
  }
  bool writes(std::ptrdiff_t i) const {  // scalar kernels: is element i of a row written?
    return !masked || (i % period) < use;
  }
};

// Rows of the 32f Abs, Sqr and Sqrt members advance by the step with its two low bits
// cleared; the 16s Abs members clear the lowest bit.
inline int stepDown(int step, int bytes) { return step & ~(bytes - 1); }

// ---- scaled integer results ---------------------------------------------------------------
// The scale factor of the complex integer and pointwise-maths members: magnitudes reach 2^63,
// so a left shift of 63 bits saturates every nonzero one and a right shift of 64 bits rounds
// every one to zero.
inline ScaleFactor resolveSf(int sf) { return ScaleFactor::resolve(sf, 63, 64); }

// Multiplies an exact result given as sign and magnitude (magnitude up to 2^63) by 2^-sf,
// rounds ties to even and saturates to [lo, hi].
inline int64_t scaleMagnitude(bool negative, uint64_t mag, const ScaleFactor& sf, int64_t lo,
                              int64_t hi) {
  uint64_t limit = negative ? static_cast<uint64_t>(-(lo + 1)) + 1u : static_cast<uint64_t>(hi);
  uint64_t q = mag;
  if (mag == 0) return 0;
  if (sf.mode == ScaleFactor::kRight) {
    if (sf.shift >= 64) {
      q = 0;  // mag / 2^64 is at most one half, and that tie goes to the even 0
    } else {
      uint64_t half = uint64_t{1} << (sf.shift - 1);
      uint64_t rem = mag & ((half << 1) - 1);
      q = mag >> sf.shift;
      if (rem > half || (rem == half && (q & 1u))) ++q;
    }
  } else if (sf.mode == ScaleFactor::kLeft) {
    const int k = sf.shift;
    q = (k >= 63 || mag > (limit >> k)) ? limit : mag << k;
  }
  if (q > limit) q = limit;
  return negative ? -static_cast<int64_t>(q) : static_cast<int64_t>(q);
}

inline int64_t scaleInt64(int64_t v, const ScaleFactor& sf, int64_t lo, int64_t hi) {
  bool neg = v < 0;
  uint64_t mag = neg ? 0u - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
  return scaleMagnitude(neg, mag, sf, lo, hi);
}

// Round half to even without relying on the processor's rounding mode.
inline double roundHalfEven(double x) {
  double f = std::floor(x);
  double diff = x - f;
  if (diff > 0.5) return f + 1.0;
  if (diff < 0.5) return f;
  return std::fmod(f, 2.0) == 0.0 ? f : f + 1.0;
}

// A double result multiplied by 2^-sf, rounded half to even and saturated to [lo, hi]; NaN
// gives 0.
inline double scaleDouble(double v, const ScaleFactor& sf, double lo, double hi) {
  double s = sf.scale(v);
  if (std::isnan(s)) return 0.0;
  if (s <= lo) return lo;
  if (s >= hi) return hi;
  s = roundHalfEven(s);
  return s > hi ? hi : s < lo ? lo : s;
}

// The four IEEE operations of the 32f rows, by code: 0 x + y, 1 x - y, 2 x * y, 3 x / y.
template <int OP>
inline float fop(float x, float y) {
  if constexpr (OP == 0) return x + y;
  else if constexpr (OP == 1) return x - y;
  else if constexpr (OP == 2) return x * y;
  else return x / y;
}

// ---- row functions shared between files ---------------------------------------------------
// 32f element rows (also used for the parts of complex pixels). op: 0 x + y, 1 x - y,
// 2 x * y, 3 x / y. The binary form takes a second row, the constant form the pattern's
// values. Returns nonzero when the division met a zero divisor.
using F32BinaryRow = int (*)(const float* x, const float* y, float* out, std::ptrdiff_t n,
                             const RowPattern<float>* pat);
using F32ConstRow = void (*)(const float* x, float* out, std::ptrdiff_t n,
                             const RowPattern<float>* pat);
// stream: the unmasked variant whose destination bypasses the cache (end the call with
// endStreaming()).
F32BinaryRow pickBinaryRow(int op, bool stream = false);
F32ConstRow pickConstRow(int op, bool stream = false);

// Destinations that will not stay in cache are written with cache-bypassing stores: when the
// bytes a call reads and writes exceed a quarter of the largest cache, the destination lines
// would be evicted before any reuse, and reading them for ownership first only adds traffic.
bool bypassCache(double bytes);
void endStreaming();

}  // namespace arithf
}  // namespace lumi

// ---- export stamps of the 32f and 32fc image arithmetic ------------------------------------
// One line per member: IMPL is binary32f/binary32fc (image members) or const32f/const32fc
// (constant members), T the pixel type, VT how the constant is passed (the value for C1,
// else a pointer to one per channel) and VP its address.
#define LUMI_FLOAT_IMAGE(NAME, IMPL, T, OP, L)                                             \
  LUMI_API LumStatus NAME(const T* a, int as, const T* b, int bs, T* d, int ds, LumiSize r) { \
    return lumi::arithf::IMPL<lumi::L>(OP, a, as, b, bs, d, ds, r);                          \
  }
#define LUMI_FLOAT_IMAGE_I(NAME, IMPL, T, OP, L)                            \
  LUMI_API LumStatus NAME(const T* s, int ss, T* sd, int sds, LumiSize r) { \
    return lumi::arithf::IMPL<lumi::L>(OP, s, ss, sd, sds, sd, sds, r);     \
  }
#define LUMI_FLOAT_CONST(NAME, IMPL, T, OP, L, VT, VP)                              \
  LUMI_API LumStatus NAME(const T* s, int ss, VT value, T* d, int ds, LumiSize r) { \
    return lumi::arithf::IMPL<lumi::L>(OP, s, ss, VP, d, ds, r);                    \
  }
#define LUMI_FLOAT_CONST_I(NAME, IMPL, T, OP, L, VT, VP)                \
  LUMI_API LumStatus NAME(VT value, T* sd, int sds, LumiSize r) {       \
    return lumi::arithf::IMPL<lumi::L>(OP, sd, sds, VP, sd, sds, r);    \
  }
