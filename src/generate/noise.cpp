// Additive uniform and Gaussian noise, in place, from a subtract-with-borrow generator
// (modulus 2^32 - 18) combined with a linear congruential word. The caller's seed word
// seeds the first state word and receives the last one, so consecutive calls continue the
// stream through that word alone (the other words restart on every call).
//
// The stream is serial, so samples are visited strictly in row-major order: C3 and C4 rows
// are width * channels consecutive samples, AC4 rows the three colour samples of each pixel.
// Integer samples get the noise rounded by the processor's current rounding mode (ties to
// even by default) and saturated; float samples get it converted to single precision.
#include "core/frame.h"

#include <emmintrin.h>

#include <cmath>

namespace lumi {
namespace {

class NoiseStream {
 public:
  explicit NoiseStream(uint32_t seed) : a_(seed) {
    b_ = a_ * 69069u + 1013904243u;
    c_ = b_ * 69069u + 1013904243u;
  }
  int32_t next() {
    lcg_ = lcg_ * 69069u + 1013904243u;
    uint32_t t = b_ - c_ - borrow_;
    borrow_ = t >> 31;
    t -= borrow_ * 18u;
    c_ = b_;
    b_ = a_;
    a_ = t;
    return static_cast<int32_t>(a_ + lcg_);
  }
  uint32_t state() const { return a_; }

 private:
  uint32_t a_, b_, c_, borrow_ = 1, lcg_ = 1131199209u;
};

// Adds noise n to an integer sample: rint in the current rounding mode, then saturation.
// Values beyond 2^30 saturate whatever the sample, so they are clamped before the conversion.
template <class T>
inline T addNoise(T s, double n) {
  if constexpr (std::is_floating_point_v<T>) {
    return s + static_cast<float>(n);
  } else {
    n = n < -1073741824.0 ? -1073741824.0 : n;
    n = n > 1073741824.0 ? 1073741824.0 : n;
    return saturate<T>(static_cast<int>(s) + _mm_cvtsd_si32(_mm_set_sd(n)));
  }
}

// Visits the samples of the ROI in row-major order: kUse of every kCh elements.
template <int kCh, int kUse, class T, class F>
inline void eachSample(T* p, int step, LumiSize roi, F&& f) {
  for (int y = 0; y < roi.height; ++y) {
    T* row = rowAt(p, step, y);
    const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(roi.width) * kCh;
    for (std::ptrdiff_t i = 0; i < n; i += kCh)
      for (int c = 0; c < kUse; ++c) row[i + c] = f(row[i + c]);
  }
}

template <class T>
inline LumStatus checkNoise(const T* p, int step, LumiSize roi, const unsigned* seed) {
  if (anyNull(p, seed)) return lumStatusNullPtrErr;
  if (badSize(roi)) return lumStatusSizeErr;
  if (badStep(step)) return lumStatusStepErr;
  return lumStatusOk;
}

template <class T, int kCh, int kUse>
LumStatus uniform(T* p, int step, LumiSize roi, T low, T high, unsigned* seed) {
  if (LumStatus st = checkNoise(p, step, roi, seed)) return st;
  double scale, mid;
  if constexpr (std::is_floating_point_v<T>) {
    scale = static_cast<double>(high - low) * 2.3283064365387e-10;
    mid = static_cast<double>(low + high) * 0.5;
  } else {
    scale = static_cast<double>(int{high} - int{low}) * 2.3283064365387e-10;
    mid = static_cast<double>(int{low} + int{high}) * 0.5;
  }
  NoiseStream rng(*seed);
  eachSample<kCh, kUse>(p, step, roi,
                        [&](T s) { return addNoise(s, rng.next() * scale + mid); });
  *seed = rng.state();
  return lumStatusOk;
}

template <class T, int kCh, int kUse>
LumStatus gauss(T* p, int step, LumiSize roi, T mean, T stdDev, unsigned* seed) {
  if (LumStatus st = checkNoise(p, step, roi, seed)) return st;
  const double m = mean, sd = stdDev;
  NoiseStream rng(*seed);
  // Polar method: each accepted pair feeds two consecutive samples; the second one may be
  // the first sample of the next row, and is dropped after the last sample.
  bool pending = false;
  double second = 0.0;
  eachSample<kCh, kUse>(p, step, roi, [&](T s) {
    if (pending) {
      pending = false;
      return addNoise(s, second);
    }
    double u1, u2, q;
    do {
      u1 = rng.next() * 4.656612873077e-10;
      u2 = rng.next() * 4.656612873077e-10;
      q = u1 * u1 + u2 * u2;
    } while (q >= 1.0 || q == 0.0);
    const double f = std::sqrt(-2.0 * std::log(q) / q);
    second = m + sd * f * u2;
    pending = true;
    return addNoise(s, m + sd * f * u1);
  });
  *seed = rng.state();
  return lumStatusOk;
}

// C3 and C4 rows are plain sample rows of width * channels: the width is checked here, the
// rest by the one-channel form.
inline LumStatus widenRow(LumiSize* roi, unsigned channels) {
  if (roi->width < 1) return lumStatusSizeErr;
  roi->width = static_cast<int>(static_cast<unsigned>(roi->width) * channels);
  return lumStatusOk;
}

}  // namespace
}  // namespace lumi

#define LUMI_NOISE(Op, impl, code, T)                                                          \
  LUMI_API LumStatus lumiAddRand##Op##_Direct_##code##_C1IR(T* p, int s, LumiSize r, T a, T b, \
                                                            unsigned int* seed) {             \
    return lumi::impl<T, 1, 1>(p, s, r, a, b, seed);                                           \
  }                                                                                            \
  LUMI_API LumStatus lumiAddRand##Op##_Direct_##code##_C3IR(T* p, int s, LumiSize r, T a, T b, \
                                                            unsigned int* seed) {             \
    if (LumStatus st = lumi::widenRow(&r, 3)) return st;                                       \
    return lumi::impl<T, 1, 1>(p, s, r, a, b, seed);                                           \
  }                                                                                            \
  LUMI_API LumStatus lumiAddRand##Op##_Direct_##code##_C4IR(T* p, int s, LumiSize r, T a, T b, \
                                                            unsigned int* seed) {             \
    if (LumStatus st = lumi::widenRow(&r, 4)) return st;                                       \
    return lumi::impl<T, 1, 1>(p, s, r, a, b, seed);                                           \
  }                                                                                            \
  LUMI_API LumStatus lumiAddRand##Op##_Direct_##code##_AC4IR(T* p, int s, LumiSize r, T a,     \
                                                             T b, unsigned int* seed) {       \
    return lumi::impl<T, 4, 3>(p, s, r, a, b, seed);                                           \
  }

extern "C" {
LUMI_NOISE(Uniform, uniform, 8u, Lum8u)
LUMI_NOISE(Uniform, uniform, 16s, Lum16s)
LUMI_NOISE(Uniform, uniform, 32f, Lum32f)
LUMI_NOISE(Gauss, gauss, 8u, Lum8u)
LUMI_NOISE(Gauss, gauss, 16s, Lum16s)
LUMI_NOISE(Gauss, gauss, 32f, Lum32f)
}
