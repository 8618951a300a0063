// The integer scale factor of the Sfs members, resolved once per call: every scaled result is
// the exact (or double-precision) result multiplied by 2^-sf, ties rounded to even, then
// saturated to the destination type. The chooser of a family turns the caller's int into one
// ScaleFactor, and the scalar twin and the vector kernels read the same mode, shift and
// multiplier from it.
//
// Every int is accepted, INT_MIN and INT_MAX included: nothing here negates the caller's value.
// Shifts are capped where the result no longer changes (a left shift by `leftCap` bits already
// saturates every nonzero result of the family, a right shift by `rightCap` bits already rounds
// every result to zero), and the floating-point multiplier 2^exponent is capped beyond the whole
// double range, where every finite nonzero value already overflows or underflows.
#pragma once

#include <cmath>
#include <cstdint>

namespace lumi {

struct ScaleFactor {
  enum Mode : int {
    kNone = 0,   // sf == 0: the exact result, saturated
    kRight = 1,  // sf > 0: drop `shift` bits, ties to even
    kLeft = 2,   // sf < 0: add `shift` bits, saturating
  };
  static constexpr int kExponentLimit = 2200;  // 2^2200 overflows, 2^-2200 underflows any double

  Mode mode = kNone;
  int shift = 0;     // kRight: 1..rightCap; kLeft: 1..leftCap
  int exponent = 0;  // -sf within +-kExponentLimit: results are multiplied by 2^exponent

  static constexpr ScaleFactor resolve(int sf, int leftCap, int rightCap) {
    ScaleFactor s;
    if (sf > 0) {
      s.mode = kRight;
      s.shift = sf < rightCap ? sf : rightCap;
    } else if (sf < 0) {
      s.mode = kLeft;
      s.shift = sf > -leftCap ? -sf : leftCap;
    }
    s.exponent = sf > kExponentLimit ? -kExponentLimit : sf < -kExponentLimit ? kExponentLimit : -sf;
    return s;
  }

  // The multiplier 2^exponent in double precision (a normal double only when normalFactor()).
  double factor() const { return std::ldexp(1.0, exponent); }
  bool normalFactor(int limit = 1000) const { return exponent >= -limit && exponent <= limit; }
  // The multiplier in single precision with the exponent held within +-limit.
  float factor32(int limit) const {
    return std::ldexp(1.0f, exponent < -limit ? -limit : exponent > limit ? limit : exponent);
  }
  // v x 2^-sf in double precision, exactly rounded once.
  double scale(double v) const { return std::ldexp(v, exponent); }

  // r x 2^-sf for an exact integer result, ties to even, unsaturated: for kRight the shift
  // must stay below 63 with |r| < 2^62, for kLeft |r| << shift must fit (callers saturate).
  int64_t apply(int64_t r) const {
    if (mode == kRight) return roundShift(r, shift);
    if (mode == kLeft) return r * (int64_t(1) << shift);
    return r;
  }
  // r x 2^-s for 1 <= s <= 62, ties to even (r >> s is a floor, so this holds for negatives).
  static int64_t roundShift(int64_t r, int s) {
    const int64_t half = int64_t(1) << (s - 1);
    return (r + half - 1 + ((r >> s) & 1)) >> s;
  }
};

}  // namespace lumi
