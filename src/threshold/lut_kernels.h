// Shared pieces of the lookup-table and histogram families: the value range of each integer
// sample type (the index space of a full map or a full count table), the level-list
// predicates and the interval search both families use.
#pragma once

#include "core/frame.h"

namespace lumi {
namespace levels {

// Samples of T span [kLo, kHi); a full table over them has kSize entries, entry k - kLo
// belonging to sample value k.
template <class T>
struct SampleRange;
template <>
struct SampleRange<Lum8u> {
  static constexpr int kLo = 0, kHi = 256, kSize = 256;
};
template <>
struct SampleRange<Lum16s> {
  static constexpr int kLo = -32768, kHi = 32768, kSize = 65536;
};
template <>
struct SampleRange<Lum16u> {
  static constexpr int kLo = 0, kHi = 65536, kSize = 65536;
};

// A level clamped into the index space of T (both ends inclusive, so the upper end is kHi).
template <class T>
inline int clampToRange(Lum32s v) {
  using R = SampleRange<T>;
  return v < R::kLo ? R::kLo : (v > R::kHi ? R::kHi : v);
}

// Every lev[i] < lev[i+1]. A NaN level fails the test, so a float list holding one is
// treated as unordered.
template <class L>
inline bool strictlyIncreasing(const L* lev, int n) {
  for (int i = 0; i + 1 < n; ++i)
    if (!(lev[i] < lev[i + 1])) return false;
  return true;
}
template <class L>
inline bool nonDecreasing(const L* lev, int n) {
  for (int i = 0; i + 1 < n; ++i)
    if (!(lev[i] <= lev[i + 1])) return false;
  return true;
}

// The interval of a sample that is known to lie in [lev[0], lev[n-1]) of a non-decreasing
// list: the last i with lev[i] <= s, found by halving the candidate range [b, b + m).
template <class L, class V>
inline int searchInterval(const L* lev, int n, V s) {
  int b = 0, m = n - 1;
  while (m > 1) {
    int h = m >> 1;
    if (!(s < lev[b + h])) {
      b += h;
      m -= h;
    } else {
      m = h;
    }
  }
  return b;
}

}  // namespace levels
}  // namespace lumi
